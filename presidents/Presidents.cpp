// SPDX-License-Identifier: GPL-3.0-or-later
#include "Presidents.h"

#include "quiz/Answers.h"
#include "shell/core/Random.h"

#include <QCoreApplication>

Q_LOGGING_CATEGORY(lcPresidents, "lumbridle.presidents")

namespace Presidents {

namespace {
QString translate(const char *text)
{
    return QCoreApplication::translate("Presidents", text);
}

struct Date {
    int month = 0;
    int day = 0;
    QString year;
};

// Month first: two digits, a separator, the day (one or two digits), a separator, the year.
std::optional<Date> readDate(const QString &text)
{
    if (text.size() < 8 || text.size() > 10)
        return std::nullopt;
    bool monthOk = false;
    bool dayOk = false;
    Date date;
    date.month = text.left(2).toInt(&monthOk);
    date.day = text.mid(3, text.size() - 8).toInt(&dayOk);
    date.year = text.right(4);
    bool yearOk = false;
    date.year.toInt(&yearOk);
    if (!monthOk || !dayOk || !yearOk || date.month < 1 || date.month > 12 || date.day < 1 ||
        date.day > 31 || text[2].isDigit() || text[text.size() - 5].isDigit())
        return std::nullopt;
    return date;
}
} // namespace

QuizTable::Layout Layout()
{
    return {.fileName = QString::fromLatin1(FileName),
            .records = 0,
            .fields = Fields,
            .numberFields = {},
            .requiredFields = {Name, BirthDate, TermBegan},
            .minRecords = FewestRecords};
}

FileError CheckDates(const QuizTable &presidents)
{
    for (int n = 1; n <= presidents.count(); ++n)
        for (const int field : {BirthDate, TermBegan})
            if (!readDate(presidents.text(n, field)))
                return FileError{QString::fromLatin1(FileName), n, field,
                                 QStringLiteral("the date is not a month, a day and a year "
                                                "in range")};
    return {};
}

QString PortraitFile(int presidency)
{
    const int number = presidency < 24 ? presidency + 1 : presidency == 24 ? 23 : presidency;
    return QStringLiteral("presi%1.gif").arg(number, 3, 10, QLatin1Char('0'));
}

QString NumberText(int presidency)
{
    return QString::number(presidency) + OrdinalSuffix(presidency) + translate(" President");
}

QString MonthName(int month)
{
    static const char *const names[12] = {
        QT_TRANSLATE_NOOP("Presidents", "January "),   QT_TRANSLATE_NOOP("Presidents", "February "),
        QT_TRANSLATE_NOOP("Presidents", "March "),     QT_TRANSLATE_NOOP("Presidents", "April "),
        QT_TRANSLATE_NOOP("Presidents", "May "),       QT_TRANSLATE_NOOP("Presidents", "June "),
        QT_TRANSLATE_NOOP("Presidents", "July "),      QT_TRANSLATE_NOOP("Presidents", "August "),
        QT_TRANSLATE_NOOP("Presidents", "September "), QT_TRANSLATE_NOOP("Presidents", "October "),
        QT_TRANSLATE_NOOP("Presidents", "November "),  QT_TRANSLATE_NOOP("Presidents", "December "),
    };
    if (month < 1 || month > 12)
        return {};
    return translate(names[month - 1]);
}

QString DateText(const QString &monthFirst)
{
    const auto date = readDate(monthFirst);
    if (!date)
        return {};
    return MonthName(date->month) + QString::number(date->day) + QStringLiteral(", ") + date->year;
}

QString BirthDateText(const QuizTable &presidents, int presidency)
{
    return DateText(presidents.text(presidency, BirthDate));
}

QString BirthPlaceText(const QuizTable &presidents, int presidency)
{
    return presidents.text(presidency, BirthTown) + QStringLiteral(", ") +
           presidents.text(presidency, BirthState);
}

QString TermText(const QuizTable &presidents, int presidency)
{
    const QString began = presidents.text(presidency, TermBegan).right(4);
    if (presidency >= presidents.count())
        return began + translate(" - Now");
    return began + QStringLiteral(" - ") + presidents.text(presidency + 1, TermBegan).right(4);
}

QString PartyText(const QuizTable &presidents, int presidency)
{
    return presidents.text(presidency, Party) + translate(" Party");
}

bool SamePerson(const QuizTable &presidents, int a, int b)
{
    return a != b && presidents.text(a, Name) == presidents.text(b, Name);
}

QuizPlan PlanFor(Mode mode)
{
    QuizPlan plan;
    plan.answerField = Name;
    switch (mode) {
    case ReviewMode:
        plan.order = QuizPlan::Order::Browse;
        break;
    case NameMode:
        plan.order = QuizPlan::Order::AtRandom;
        plan.clueCount = Items;
        break;
    case WhoMode:
        plan.order = QuizPlan::Order::AtRandom;
        plan.hintTry = 2;
        plan.revealTry = 4;
        break;
    }
    return plan;
}

WhoIsMissing BuildWhoIsMissing(const QuizTable &presidents, int missing)
{
    const int count = presidents.count();
    WhoIsMissing who;
    who.missing = missing;
    // The row of three holding `missing` at place m, moved to stay within the records.
    int m = RndInt(3);
    auto first = [&] { return missing + 1 - m; };
    while (first() < 1)
        --m;
    while (first() + 2 > count)
        ++m;
    who.position = m;
    for (int k = 0; k < 3; ++k)
        who.row[k] = first() + k;

    // The candidates: six presidencies about the row, outside it.
    int s = who.row[0] - (m == 3 ? 1 : 2);
    s = qMax(s, 1);
    s = qMin(s, count - 5);
    QList<int> choices{missing};
    const auto inRow = [&](int n) { return n >= who.row[0] && n <= who.row[2]; };
    for (int n = s; n <= s + 5 && choices.size() < 4; ++n)
        if (!inRow(n))
            choices.append(n);

    // One person with two presidencies is offered once: the first later choice that is such a
    // person's second presidency gives way, and so does a choice the range left empty.
    const auto usable = [&](int n, const QList<int> &taken) {
        if (n < 1 || n > count || inRow(n) || taken.contains(n))
            return false;
        for (const int other : taken)
            if (SamePerson(presidents, n, other))
                return false;
        return true;
    };
    const int preferred = m >= 3 ? s - 1 : s + 6;
    const auto replacement = [&](const QList<int> &taken) {
        // The first choice is beside the range; should that one not serve, the nearest that does.
        // Within a few dozen of the range, so a damaged file of one name cannot stall the search.
        for (int step = 0; step <= qMin(count, 64); ++step)
            for (const int n : {preferred + step, preferred - step})
                if (usable(n, taken))
                    return n;
        return 0;
    };
    for (int i = 1; i < choices.size(); ++i) {
        bool twice = false;
        for (int j = 0; j < choices.size(); ++j)
            twice = twice || (j != i && SamePerson(presidents, choices[i], choices[j]));
        if (twice) {
            QList<int> others = choices;
            others.removeAt(i);
            choices[i] = replacement(others);
            break;
        }
    }
    while (choices.size() < 4)
        choices.append(replacement(choices));
    for (int i = 0; i < 4; ++i)
        who.choices[i] = choices[i];

    for (int i = 0; i < 4; ++i)
        std::swap(who.choices[i], who.choices[RndInt(4) - 1]);
    for (int i = 0; i < 4; ++i)
        if (who.choices[i] == missing)
            who.correct = i + 1;
    return who;
}

QList<int> DistinctChoices(const QuizTable &presidents, QList<int> choices, int current)
{
    const int count = presidents.count();
    for (int i = 0; i < choices.size(); ++i) {
        if (choices[i] == current)
            continue;
        const auto clashes = [&](int n) {
            for (int j = 0; j < choices.size(); ++j)
                if (j != i && (choices[j] == n ||
                               presidents.text(choices[j], Name) == presidents.text(n, Name)))
                    return true;
            return false;
        };
        if (!clashes(choices[i]))
            continue;
        // Another presidency at random, then the next ones in turn until one fits.
        const int start = RndInt(count);
        for (int step = 0; step < count; ++step) {
            const int n = (start - 1 + step) % count + 1;
            if (!clashes(n)) {
                choices[i] = n;
                break;
            }
        }
    }
    return choices;
}

} // namespace Presidents
