// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar's rules: its data file, month arithmetic, the start month, every question kind
// checked against Qt's own dates, lenient answers and the round's score.
#include "calendar/CalendarData.h"
#include "calendar/MonthMath.h"
#include "calendar/Questions.h"
#include "support/TestDoubles.h"

#include <QDate>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QStringList Ordinals =
    QStringLiteral("last first second third fourth fifth sixth seventh eighth ninth tenth "
                   "eleventh twelfth thirteenth fourteenth fifteenth sixteenth seventeenth "
                   "eighteenth")
        .split(u' ');

// Names straight from Qt, so the checks do not lean on the file under test.
QString dayOf(const QDate &date)
{
    return QLocale::c().dayName(date.dayOfWeek());
}
int monthNumber(const QString &name)
{
    for (int m = 1; m <= 12; ++m)
        if (QLocale::c().monthName(m) == name)
            return m;
    return 0;
}
QString monthName(int month)
{
    return QLocale::c().monthName((month - 1 + 1200) % 12 + 1);
}
// A date in a known week (7 January 2024 was a Sunday) falling on the named day.
QDate dateOfDay(const QString &day)
{
    for (QDate d(2024, 1, 7); d < QDate(2024, 1, 14); d = d.addDays(1))
        if (dayOf(d) == day)
            return d;
    return {};
}
QString seasonOf(int month)
{
    const char *names[] = {"winter", "winter", "spring", "spring", "spring", "summer",
                           "summer", "summer", "fall",   "fall",   "fall",   "winter"};
    return QLatin1String(names[month - 1]);
}

QByteArray shippedFile()
{
    QFile file(BuiltDataPath() + QStringLiteral("/calendar.dat"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The answers a question about the calendar must accept, worked out from its text alone.
QStringList expectedQuiz(const QString &text)
{
    QRegularExpressionMatch m;
    auto is = [&m, &text](const char *pattern) {
        m = QRegularExpression(QLatin1String(pattern)).match(text);
        return m.hasMatch();
    };
    if (is("^\\nWhat is the (\\w+) day of the week\\?$"))
        return {dayOf(QDate(2024, 1, 6).addDays(Ordinals.indexOf(m.captured(1))))};
    if (is("^\\nWhat is the (\\w+) month of the year\\?$"))
        return {monthName(Ordinals.indexOf(m.captured(1)))};
    if (is("^\\nWhat day comes (after|before) (\\w+)\\?$"))
        return {dayOf(dateOfDay(m.captured(2)).addDays(m.captured(1) == u"after" ? 1 : -1))};
    if (is("^\\nWhat month comes (after|before) (\\w+)\\?$"))
        return {monthName(monthNumber(m.captured(2)) + (m.captured(1) == u"after" ? 1 : -1))};
    if (is("^\\nWhat are Saturday and Sunday called\\?$"))
        return {QStringLiteral("weekend")};
    if (is("^\\nWhat are Monday through Friday called\\?$"))
        return {QStringLiteral("weekdays")};
    if (is("^\\nHow many days are in (\\w+)( \\(normal year\\))?\\?$"))
        return {QString::number(QDate(2023, monthNumber(m.captured(1)), 1).daysInMonth())};
    if (is("^\\nHow many days are in February (\\d+)\\?$"))
        return {QString::number(QDate(m.captured(1).toInt(), 2, 1).daysInMonth())};
    if (is("^\\nHow many (\\w+) are in (a|a normal|a leap) (week|year|weekend)\\?$")) {
        const QString what = m.captured(1) + u' ' + m.captured(2) + u' ' + m.captured(3);
        const QMap<QString, int> facts{
            {QStringLiteral("days a week"), 7},
            {QStringLiteral("months a year"), 12},
            {QStringLiteral("weeks a year"), 52},
            {QStringLiteral("days a weekend"), 2},
            {QStringLiteral("days a normal year"), QDate(2023, 1, 1).daysInYear()},
            {QStringLiteral("days a leap year"), QDate(2024, 1, 1).daysInYear()}};
        return {QString::number(facts.value(what, -1))};
    }
    if (is("^\\nIn which season is (\\w+)\\?$"))
        return {seasonOf(monthNumber(m.captured(1)))};
    if (is("^\\nName a month in (\\w+)\\.$")) {
        QStringList months;
        for (int month = 1; month <= 12; ++month)
            if (seasonOf(month) == m.captured(1))
                months.append(monthName(month));
        return months;
    }
    if (is("^\\nIs (\\d+) a leap year\\?$"))
        return {QDate::isLeapYear(m.captured(1).toInt()) ? QStringLiteral("yes")
                                                         : QStringLiteral("no")};
    if (is("^\\nHow many months have (\\d+) days\\?$")) {
        int count = 0;
        for (int month = 1; month <= 12; ++month)
            count += QDate(2023, month, 1).daysInMonth() == m.captured(1).toInt() ? 1 : 0;
        return {QString::number(count)};
    }
    if (is("^\\nIf today is (\\w+), what day will it be in (\\d) days\\?$"))
        return {dayOf(dateOfDay(m.captured(1)).addDays(m.captured(2).toInt()))};
    if (is("^\\nIf this month is (\\w+), what month will it be in (\\d) months\\?$"))
        return {monthName(monthNumber(m.captured(1)) + m.captured(2).toInt())};
    if (is("^\\nJanuary is month number 1\\. What number is (\\w+)\\?$"))
        return {QString::number(monthNumber(m.captured(1)))};
    return {};
}

QStringList expectedReading(const QString &text, int month, int year)
{
    const QDate first(year, month, 1);
    QRegularExpressionMatch m;
    auto is = [&m, &text](const char *pattern) {
        m = QRegularExpression(QLatin1String(pattern)).match(text);
        return m.hasMatch();
    };
    auto count = [&first](auto wanted) {
        int n = 0;
        for (QDate d = first; d.month() == first.month(); d = d.addDays(1))
            n += wanted(d) ? 1 : 0;
        return QString::number(n);
    };
    const QString name = QLocale::c().monthName(month);
    if (is("^\\nWhat day of the week is (\\w+) (\\d+)\\?$") && m.captured(1) == name)
        return {dayOf(QDate(year, month, m.captured(2).toInt()))};
    if (is("^\\nHow many (\\w+)s are in (\\w+)\\?$") && m.captured(2) == name) {
        const QString day = m.captured(1);
        if (day == u"weekend days")
            return {};
        return {count([&day](const QDate &d) { return dayOf(d) == day; })};
    }
    if (is("^\\nWhat is the date of the (\\w+) (\\w+) in (\\w+)\\?$") && m.captured(3) == name) {
        QList<int> dates;
        for (QDate d = first; d.month() == month; d = d.addDays(1))
            if (dayOf(d) == m.captured(2))
                dates.append(d.day());
        const int p = Ordinals.indexOf(m.captured(1));
        return {QString::number(p == 0 ? dates.last() : dates.value(p - 1, -1))};
    }
    if (is("^\\nWhat day of the week comes after the last day of (\\w+)\\?$"))
        return {dayOf(first.addMonths(1))};
    if (is("^\\nOn what day of the week does (\\w+) begin\\?$"))
        return {dayOf(first)};
    if (is("^\\nHow many days are in (\\w+) (\\d+)\\?$") && m.captured(2).toInt() == year)
        return {QString::number(first.daysInMonth())};
    if (is("^\\nWhat is the date one week after (\\w+) (\\d+)\\?$"))
        return {QString::number(QDate(year, month, m.captured(2).toInt()).addDays(7).day())};
    if (is("^\\nHow many weekend days are in (\\w+)\\?$"))
        return {count([](const QDate &d) { return d.dayOfWeek() >= 6; })};
    if (is("^\\nWhat day of the week is the (\\w+) day of (\\w+)\\?$"))
        return {dayOf(QDate(year, month, Ordinals.indexOf(m.captured(1))))};
    return {};
}

} // namespace

class tst_calendar_rules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void shippedFileHoldsTheFacts();
    void damagedFileIsRefused_data();
    void damagedFileIsRefused();
    void monthFacts_data();
    void monthFacts();
    void firstWeekdayMatchesTheRealCalendarInItsSpan();
    void startMonthAndYear_data();
    void startMonthAndYear();
    void everyQuizKindIsAnsweredRightly();
    void wrapAround_data();
    void wrapAround();
    void everyReadingKindIsAnsweredRightly();
    void answersAreLenient_data();
    void answersAreLenient();
    void roundKeepsScore();

private:
    CalendarData m_data;
};

void tst_calendar_rules::initTestCase()
{
    InitTestProgram();
    QVERIFY2(m_data.parse(shippedFile()), qPrintable(m_data.error().message()));
}

void tst_calendar_rules::shippedFileHoldsTheFacts()
{
    for (int m = 1; m <= 12; ++m) {
        QCOMPARE(m_data.monthName(m), QLocale::c().monthName(m));
        QCOMPARE(int(m_data.daysInMonth(m)), QDate(2023, m, 1).daysInMonth());
    }
    for (int d = 1; d <= 7; ++d)
        QCOMPARE(m_data.dayName(d), dayOf(QDate(2024, 1, 6).addDays(d)));
    for (int p = 0; p < CalendarData::Positions; ++p)
        QCOMPARE(m_data.position(p), Ordinals[p]);
    QCOMPARE(m_data.span(2), QStringLiteral("February (normal year)"));
}

void tst_calendar_rules::damagedFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray good = shippedFile();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut short") << good.left(good.lastIndexOf("\"fourteenth\""));
    QTest::newRow("one item too many") << good + "\"extra\"\n";
    QTest::newRow("February of 29 days")
        << QByteArray(good).replace("\"February\",28", "\"February\",29");
    QTest::newRow("a word for a number") << QByteArray(good).replace("\"April\",30", "\"April\",x");
    QTest::newRow("too large a number")
        << QByteArray(good).replace("\"weeks\",52", "\"weeks\",99999");
    QTest::newRow("no weeks in a year") << QByteArray(good).replace("\"weeks\",52", "\"weeks\",0");
    QTest::newRow("empty day name") << QByteArray(good).replace("\"Friday\"", "\"  \"");
    QTest::newRow("empty position") << QByteArray(good).replace("\"fifth\"", "\"\"");
    QTest::newRow("open quote") << QByteArray(good).replace("\"June\",30", "\"June,30");
}

void tst_calendar_rules::damagedFileIsRefused()
{
    QFETCH(QByteArray, content);
    CalendarData data;
    QVERIFY(!data.parse(content));
    QVERIFY(data.error().isSet());
    QVERIFY(data.error().message().contains(QStringLiteral("calendar.dat")));
}

void tst_calendar_rules::monthFacts_data()
{
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("rows");
    // Outside March 1900 to February 2100 the first weekday is a day off, and stays so.
    QTest::newRow("February 1900") << 2 << 1900 << 28 << 4 << 5;
    QTest::newRow("February 2000") << 2 << 2000 << 29 << 3 << 5;
    QTest::newRow("February 2024") << 2 << 2024 << 29 << 5 << 5;
    QTest::newRow("February 2100") << 2 << 2100 << 28 << 2 << 5;
    QTest::newRow("February 2015") << 2 << 2015 << 28 << 1 << 4;
    QTest::newRow("January 1997") << 1 << 1997 << 31 << 4 << 5;
    QTest::newRow("November 2026") << 11 << 2026 << 30 << 1 << 5;
    QTest::newRow("January 1850") << 1 << 1850 << 31 << 2 << 5;
    QTest::newRow("March 2100") << 3 << 2100 << 31 << 3 << 5;
    QTest::newRow("March 2025, 31 days from Saturday") << 3 << 2025 << 31 << 7 << 6;
    QTest::newRow("May 2026, 31 days from Friday") << 5 << 2026 << 31 << 6 << 6;
    QTest::newRow("November 2025, 30 days from Saturday") << 11 << 2025 << 30 << 7 << 6;
}

void tst_calendar_rules::monthFacts()
{
    QFETCH(int, month);
    QFETCH(int, year);
    QFETCH(int, days);
    QFETCH(int, first);
    QFETCH(int, rows);
    QCOMPARE(MonthMath::daysInMonth(m_data, month, year), days);
    QCOMPARE(MonthMath::firstWeekday(month, year), first);
    QCOMPARE(MonthMath::weekRows(days, first), rows);
}

void tst_calendar_rules::firstWeekdayMatchesTheRealCalendarInItsSpan()
{
    for (QDate first(1900, 3, 1); first < QDate(2100, 3, 1); first = first.addMonths(1)) {
        const int sundayFirst = first.dayOfWeek() % 7 + 1;
        QVERIFY2(MonthMath::firstWeekday(first.month(), first.year()) == sundayFirst,
                 qPrintable(first.toString(Qt::ISODate)));
    }
    // Every month of the display is drawn in whole rows, its last day in the last row.
    for (int year = MonthMath::FirstYear; year <= MonthMath::LastYear; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const MonthLayout layout = MonthLayout::of(m_data, month, year);
            QVERIFY(layout.firstWeekday >= 1 && layout.firstWeekday <= 7);
            QCOMPARE(layout.rowOf(layout.days), layout.rows - 1);
            QCOMPARE(layout.weekdayOf(1), layout.firstWeekday);
        }
    }
}

void tst_calendar_rules::startMonthAndYear_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("year");
    QTest::newRow("today") << "11-22-2026" << 11 << 2026;
    QTest::newRow("1582") << "10-15-1582" << 10 << 1997;
    QTest::newRow("2200") << "03-01-2200" << 3 << 1997;
    QTest::newRow("first year") << "12-31-1583" << 12 << 1583;
    QTest::newRow("last year") << "01-01-2199" << 1 << 2199;
    QTest::newRow("month 13") << "13-01-2000" << 1 << 2000;
    QTest::newRow("month 0") << "00-01-2000" << 1 << 2000;
    QTest::newRow("not a date") << "ab-cd-efgh" << 1 << 1997;
    QTest::newRow("nothing") << "" << 1 << 1997;
    QTest::newRow("huge year") << "05-05-99999999" << 5 << 1997;
}

void tst_calendar_rules::startMonthAndYear()
{
    QFETCH(QString, date);
    QFETCH(int, month);
    QFETCH(int, year);
    const auto start = MonthMath::startFrom(date);
    QCOMPARE(start.month, month);
    QCOMPARE(start.year, year);
}

void tst_calendar_rules::everyQuizKindIsAnsweredRightly()
{
    Generator random(7);
    QuestionMaker maker(m_data, &random);
    for (int kind = 1; kind <= QuestionMaker::QuizKinds; ++kind) {
        QSet<QString> texts;
        for (int draw = 0; draw < 60; ++draw) {
            const Question q = maker.quiz(kind);
            texts.insert(q.text);
            const QStringList expected = expectedQuiz(q.text);
            QVERIFY2(!expected.isEmpty(),
                     qPrintable(QStringLiteral("kind %1: %2").arg(kind).arg(q.text)));
            for (const QString &answer : expected)
                QVERIFY2(q.accepts(answer), qPrintable(q.text + u' ' + answer));
            if (expected.size() == 1)
                QCOMPARE(q.answer, expected.first());
            QCOMPARE(q.kind, kind);
        }
        // Kinds that draw something do vary; the fixed ones always ask the same.
        const bool fixed = kind == 13 || kind == 14 || (kind >= 15 && kind <= 32);
        QVERIFY2(fixed ? texts.size() == 1 : texts.size() > 1, qPrintable(QString::number(kind)));
    }
}

void tst_calendar_rules::wrapAround_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QList<double>>("draws");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("answer");
    // The day and month questions wrap round the week and the year.
    QTest::newRow("after Saturday")
        << 7 << QList<double>{0.99, 0.2} << "\nWhat day comes after Saturday?"
        << "Sunday";
    QTest::newRow("before Sunday")
        << 8 << QList<double>{0.0, 0.7} << "\nWhat day comes before Sunday?"
        << "Saturday";
    QTest::newRow("after December")
        << 10 << QList<double>{0.99, 0.49} << "\nWhat month comes after December?"
        << "January";
    QTest::newRow("before January")
        << 12 << QList<double>{0.0, 0.5} << "\nWhat month comes before January?"
        << "December";
    QTest::newRow("Friday and 6 days")
        << 38 << QList<double>{0.8, 0.99} << "\nIf today is Friday, what day will it be in 6 days?"
        << "Thursday";
    QTest::newRow("November and 3 months")
        << 39 << QList<double>{0.86, 0.3}
        << "\nIf this month is November, what month will it be in 3 months?"
        << "February";
}

void tst_calendar_rules::wrapAround()
{
    QFETCH(int, kind);
    QFETCH(QList<double>, draws);
    QFETCH(QString, text);
    QFETCH(QString, answer);
    ScriptedRandom random;
    random.values = draws;
    QuestionMaker maker(m_data, &random);
    const Question q = maker.quiz(kind);
    QCOMPARE(q.text, text);
    QCOMPARE(q.answer, answer);
    QVERIFY(random.values.isEmpty());
}

void tst_calendar_rules::everyReadingKindIsAnsweredRightly()
{
    Generator random(11);
    QuestionMaker maker(m_data, &random);
    for (int trial = 0; trial < 150; ++trial) {
        const int year = 1901 + int(random.next() * 199);
        const int month = 1 + int(random.next() * 12);
        const MonthLayout shown = MonthLayout::of(m_data, month, year);
        for (int kind = 1; kind <= QuestionMaker::ReadingKinds; ++kind) {
            const Question q = maker.reading(kind, shown);
            const QStringList expected = expectedReading(q.text, month, year);
            const QString where = QStringLiteral("%1/%2 kind %3: %4")
                                      .arg(month)
                                      .arg(year)
                                      .arg(kind)
                                      .arg(q.text.mid(1));
            QVERIFY2(expected.size() == 1, qPrintable(where));
            QVERIFY2(q.answer == expected.first(), qPrintable(where + u' ' + q.answer));
            QVERIFY(q.accepts(expected.first()));
        }
    }
}

void tst_calendar_rules::answersAreLenient_data()
{
    // Text answers as "answer|also accepted"; "#12" is the number 12 of a date in May.
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("right");
    const QList<std::tuple<const char *, const char *, const char *, bool>> rows{
        {"same", "Wednesday", "Wednesday", true},
        {"case and blanks", "Wednesday", "  wEDNESDAY. ", true},
        {"sounds alike", "Wednesday", "Wednsday", true},
        {"another day", "Thursday", "Tuesday", false},
        {"empty", "Thursday", "   ", false},
        {"the weekend", "weekend|weekends", "The weekend", true},
        {"plural", "weekend|weekends", "Weekends", true},
        {"not weekdays", "weekend|weekends", "weekdays", false},
        {"autumn", "fall|autumn", "Autumn", true},
        {"no for yes", "yes", "no", false},
        {"a digit for a word", "May", "5", false},
        {"number", "#12", "12", true},
        {"ordinal", "#12", "the 12th", true},
        {"with the month", "#12", "May 12", true},
        {"another month", "#12", "June 12", false},
        {"sounds like a number", "#12", "13", false},
        {"in words", "#28", "Twenty-eight", true},
        {"long words", "#365", "three hundred and sixty five", true},
        {"ordinal word", "#12", "May twelfth", true},
        {"wrong words", "#12", "twenty", false},
        {"not a number word", "#12", "twelve apples", false},
        {"huge", "#12", "999999999999999999999", false},
        {"minus", "#12", "-12", false},
    };
    for (const auto &[name, answers, typed, right] : rows)
        QTest::newRow(name) << QString::fromLatin1(answers) << QString::fromLatin1(typed) << right;
}

void tst_calendar_rules::answersAreLenient()
{
    QFETCH(QString, answers);
    QFETCH(QString, typed);
    QFETCH(bool, right);
    Question q;
    q.numeric = answers.startsWith(u'#');
    q.number = answers.mid(1).toInt();
    q.dateWord = QStringLiteral("May");
    q.accepted = q.numeric ? QStringList() : answers.split(u'|');
    QCOMPARE(q.accepts(typed), right);
}

void tst_calendar_rules::roundKeepsScore()
{
    Generator random(3);
    QuestionMaker maker(m_data, &random);
    QuizRound round;
    round.start();
    QCOMPARE(round.submit(QStringLiteral("Sunday")), QuizRound::Outcome::Missed);
    QCOMPARE(round.asked(), 0);
    const QString wrong = QStringLiteral("zzz");
    for (int i = 0; i < QuizRound::Length; ++i) {
        QVERIFY(!round.isOver());
        round.ask(maker.quiz(1 + i * 4));
        const QString right = round.question().accepted.value(0, round.question().answer);
        // Right at once, right at the second try, or wrong twice and then too late.
        if (i % 3 > 0)
            QCOMPARE(round.submit(wrong), QuizRound::Outcome::TryAgain);
        if (i % 3 == 2)
            QCOMPARE(round.submit(wrong), QuizRound::Outcome::Missed);
        QCOMPARE(round.submit(right),
                 i % 3 == 2 ? QuizRound::Outcome::Missed : QuizRound::Outcome::Right);
    }
    QVERIFY(round.isOver());
    QCOMPARE(round.right(), 7);
    QCOMPARE(round.results(),
             (QList<bool>{true, true, false, true, true, false, true, true, false, true}));
    round.start();
    QCOMPARE(round.right(), 0);
    QVERIFY(round.results().isEmpty());
    QVERIFY(!round.isOver());
}

QTEST_GUILESS_MAIN(tst_calendar_rules)
#include "tst_calendar_rules.moc"
