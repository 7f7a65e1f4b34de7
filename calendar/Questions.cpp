// SPDX-License-Identifier: GPL-3.0-or-later
#include "Questions.h"

#include "shell/core/SoundCode.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("QuestionMaker", text);
}

QString plain(const QString &typed)
{
    QString text = typed.simplified().toLower();
    while (text.endsWith(u'.') || text.endsWith(u'!') || text.endsWith(u'?'))
        text.chop(1);
    if (text.startsWith(QLatin1String("the ")))
        text.remove(0, 4);
    return text.trimmed();
}

// A number written in words, as young pupils often type it: "seven", "twenty-eight", "three
// hundred sixty-five", or a date's "twelfth"; -1 when the text is not such a number.
int numberFromWords(const QString &text)
{
    static const QHash<QString, int> small = [] {
        QHash<QString, int> words;
        const QStringList ones =
            QStringLiteral(
                "zero one two three four five six seven eight nine ten eleven twelve thirteen "
                "fourteen fifteen sixteen seventeen eighteen nineteen")
                .split(u' ');
        const QStringList nths =
            QStringLiteral(
                "zeroth first second third fourth fifth sixth seventh eighth ninth tenth eleventh "
                "twelfth thirteenth fourteenth fifteenth sixteenth seventeenth eighteenth "
                "nineteenth")
                .split(u' ');
        const QStringList tens =
            QStringLiteral("twenty thirty forty fifty sixty seventy eighty ninety").split(u' ');
        const QStringList tenths = QStringLiteral("twentieth thirtieth fortieth fiftieth "
                                                  "sixtieth seventieth eightieth ninetieth")
                                       .split(u' ');
        for (int n = 0; n < 20; ++n)
            words.insert(ones[n], n), words.insert(nths[n], n);
        for (int n = 0; n < 8; ++n)
            words.insert(tens[n], 20 + 10 * n), words.insert(tenths[n], 20 + 10 * n);
        return words;
    }();
    static const QRegularExpression gaps(QStringLiteral("[\\s-]+"));
    int total = 0;
    int part = 0;
    bool any = false;
    for (const QString &word : text.split(gaps, Qt::SkipEmptyParts)) {
        if (word == u"and")
            continue;
        if (word == u"hundred" || word == u"hundredth") {
            part = (part == 0 ? 1 : part) * 100;
            total += part;
            part = 0;
        } else if (small.contains(word)) {
            part += small.value(word);
        } else {
            return -1;
        }
        // No calendar answer is this large, and stopping here keeps the sum from overflowing.
        if (total + part > 100000)
            return -1;
        any = true;
    }
    return any ? total + part : -1;
}

} // namespace

bool Question::accepts(const QString &typed) const
{
    QString text = plain(typed);
    if (text.isEmpty())
        return false;
    if (numeric) {
        if (!dateWord.isEmpty() && text.startsWith(dateWord.toLower()))
            text = text.mid(dateWord.size()).trimmed();
        static const QRegularExpression pattern(QStringLiteral("^(\\d{1,9})(st|nd|rd|th)?$"));
        const auto match = pattern.match(text);
        if (match.hasMatch())
            return match.captured(1).toLongLong() == number;
        return numberFromWords(text) == number;
    }
    for (const QString &answer : accepted)
        if (plain(answer) == text)
            return true;
    // Spelt the way it sounds still counts, but only a word and never a number.
    if (text.contains(QRegularExpression(QStringLiteral("\\d"))))
        return false;
    const QString code = SoundCode(text);
    for (const QString &answer : accepted)
        if (SoundCode(plain(answer)) == code)
            return true;
    return false;
}

QuestionMaker::QuestionMaker(const CalendarData &data, RandomSource *random)
    : m_data(data), m_random(random)
{
}

int QuestionMaker::draw(int n)
{
    return int(next() * n) + 1;
}

int QuestionMaker::seasonOf(int month)
{
    return month % 12 / 3 + 1;
}

QString QuestionMaker::seasonName(int season)
{
    switch (season) {
    case 1:
        return tr("winter");
    case 2:
        return tr("spring");
    case 3:
        return tr("summer");
    default:
        return tr("fall");
    }
}

QList<int> QuestionMaker::seasonMonths(int season)
{
    const int first = season == 1 ? 12 : season * 3 - 3;
    return {first, first % 12 + 1, (first + 1) % 12 + 1};
}

Question QuestionMaker::textAnswer(int kind, const QString &text, const QString &answer,
                                   QStringList accepted)
{
    Question q;
    q.kind = kind;
    q.text = u'\n' + text;
    q.answer = answer;
    accepted.prepend(answer);
    q.accepted = accepted;
    return q;
}

Question QuestionMaker::numberAnswer(int kind, const QString &text, int number)
{
    Question q;
    q.kind = kind;
    q.text = u'\n' + text;
    q.answer = QString::number(number);
    q.number = number;
    q.numeric = true;
    return q;
}

Question QuestionMaker::quiz(int kind)
{
    if (kind <= 3) {
        const int p = draw(7);
        return textAnswer(kind, tr("What is the ") + m_data.position(p) + tr(" day of the week?"),
                          day(p));
    }
    if (kind <= 6) {
        const int p = draw(12);
        return textAnswer(kind, tr("What is the ") + m_data.position(p) + tr(" month of the year?"),
                          month(p));
    }
    if (kind <= 12) {
        const bool days = kind <= 9;
        const int n = draw(days ? 7 : 12);
        const bool after = next() < 0.5;
        const int next = n + (after ? 1 : -1);
        return textAnswer(kind,
                          (days ? tr("What day comes") : tr("What month comes")) +
                              (after ? tr(" after ") : tr(" before ")) +
                              (days ? day(n) : month(n)) + u'?',
                          days ? day(next) : month(next));
    }
    if (kind == 13)
        return textAnswer(kind, tr("What are %1 and %2 called?").arg(day(7), day(1)), tr("weekend"),
                          {tr("weekends"), tr("a weekend")});
    if (kind == 14)
        return textAnswer(kind, tr("What are %1 through %2 called?").arg(day(2), day(6)),
                          tr("weekdays"), {tr("weekday"), tr("school days")});
    if (kind <= 32) {
        const int record = kind - 14;
        const QString unit = record <= 12 ? tr("days") : m_data.name(record);
        return numberAnswer(kind,
                            tr("How many ") + unit + tr(" are in ") + m_data.span(record) + u'?',
                            m_data.count(record));
    }
    switch (kind) {
    case 33: {
        const int m = draw(12);
        const int season = seasonOf(m);
        return textAnswer(kind, tr("In which season is %1?").arg(month(m)), seasonName(season),
                          season == 4 ? QStringList{tr("autumn")} : QStringList{});
    }
    case 34: {
        const int season = draw(4);
        const QList<int> months = seasonMonths(season);
        Question q = textAnswer(
            kind, tr("Name a month in %1.").arg(seasonName(season)),
            tr("%1, %2 or %3").arg(month(months[0]), month(months[1]), month(months[2])));
        q.accepted = {month(months[0]), month(months[1]), month(months[2])};
        return q;
    }
    case 35: {
        // Years a pupil or their grandparents know, 2000 among them.
        const int year = 1979 + draw(61);
        return textAnswer(kind, tr("Is %1 a leap year?").arg(year),
                          MonthMath::isLeapYear(year) ? tr("yes") : tr("no"));
    }
    case 36: {
        const int year = 1979 + draw(61);
        return numberAnswer(kind, tr("How many days are in %1 %2?").arg(month(2)).arg(year),
                            MonthMath::daysInMonth(m_data, 2, year));
    }
    case 37: {
        const int days = next() < 0.5 ? 30 : 31;
        int months = 0;
        for (int m = 1; m <= 12; ++m)
            months += m_data.daysInMonth(m) == days ? 1 : 0;
        return numberAnswer(kind, tr("How many months have %1 days?").arg(days), months);
    }
    case 38: {
        const int d = draw(7);
        const int later = draw(5) + 1;
        return textAnswer(
            kind, tr("If today is %1, what day will it be in %2 days?").arg(day(d)).arg(later),
            day(d + later));
    }
    case 39: {
        const int m = draw(12);
        const int later = draw(5) + 1;
        return textAnswer(
            kind,
            tr("If this month is %1, what month will it be in %2 months?").arg(month(m)).arg(later),
            month(m + later));
    }
    default: {
        const int m = draw(11) + 1;
        return numberAnswer(
            kind, tr("%1 is month number 1. What number is %2?").arg(month(1), month(m)), m);
    }
    }
}

Question QuestionMaker::randomQuiz()
{
    return quiz(draw(QuizKinds));
}

Question QuestionMaker::reading(int kind, const MonthLayout &shown)
{
    const QString name = month(shown.month);
    auto count = [&shown](auto wanted) {
        int days = 0;
        for (int d = 1; d <= shown.days; ++d)
            days += wanted(shown.weekdayOf(d)) ? 1 : 0;
        return days;
    };
    Question q;
    switch (kind) {
    case 1: {
        const int d = draw(shown.days);
        q = textAnswer(kind, tr("What day of the week is %1 %2?").arg(name).arg(d),
                       day(shown.weekdayOf(d)));
        break;
    }
    case 2: {
        const int w = draw(7);
        q = numberAnswer(kind, tr("How many %1s are in %2?").arg(day(w), name),
                         count([w](int weekday) { return weekday == w; }));
        break;
    }
    case 3: {
        const int w = draw(7);
        // Fifth and "last" differ only in some months, so "last" stands for the fifth.
        const int p = draw(5) % 5;
        int date = (w - shown.firstWeekday + 7) % 7 + 1;
        if (p == 0) {
            while (date + 7 <= shown.days)
                date += 7;
        } else {
            date += 7 * (p - 1);
        }
        q = numberAnswer(
            kind, tr("What is the date of the %1 %2 in %3?").arg(m_data.position(p), day(w), name),
            date);
        q.dateWord = name;
        break;
    }
    case 4:
        q = textAnswer(kind, tr("What day of the week comes after the last day of %1?").arg(name),
                       day(shown.weekdayOf(shown.days) + 1));
        break;
    case 5:
        q = textAnswer(kind, tr("On what day of the week does %1 begin?").arg(name),
                       day(shown.firstWeekday));
        break;
    case 6:
        q = numberAnswer(kind, tr("How many days are in %1 %2?").arg(name).arg(shown.year),
                         shown.days);
        break;
    case 7: {
        const int d = draw(shown.days - 7);
        q = numberAnswer(kind, tr("What is the date one week after %1 %2?").arg(name).arg(d),
                         d + 7);
        q.dateWord = name;
        break;
    }
    case 8:
        q = numberAnswer(kind, tr("How many weekend days are in %1?").arg(name),
                         count([](int weekday) { return weekday == 1 || weekday == 7; }));
        break;
    default: {
        const int d = draw(CalendarData::Positions - 1);
        q = textAnswer(
            kind, tr("What day of the week is the %1 day of %2?").arg(m_data.position(d), name),
            day(shown.weekdayOf(d)));
        break;
    }
    }
    return q;
}

Question QuestionMaker::randomReading(const MonthLayout &shown)
{
    return reading(draw(ReadingKinds), shown);
}

void QuizRound::start()
{
    m_question = Question();
    m_waiting = false;
    m_asked = 0;
    m_right = 0;
    m_tries = 0;
    m_results.clear();
}

void QuizRound::ask(const Question &question)
{
    m_question = question;
    m_waiting = true;
    m_tries = 0;
    ++m_asked;
}

QuizRound::Outcome QuizRound::submit(const QString &typed)
{
    if (!m_waiting)
        return Outcome::Missed;
    if (m_question.accepts(typed)) {
        m_waiting = false;
        ++m_right;
        m_results.append(true);
        return Outcome::Right;
    }
    if (++m_tries < Tries)
        return Outcome::TryAgain;
    m_waiting = false;
    m_results.append(false);
    return Outcome::Missed;
}
