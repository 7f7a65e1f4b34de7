// SPDX-License-Identifier: GPL-3.0-or-later
#include "FuzzTargets.h"

#include "balloon/BalloonWords.h"
#include "calendar/CalendarData.h"
#include "geography/UsStates.h"
#include "geography/WorldCountries.h"
#include "graphs/Graph.h"
#include "presidents/Presidents.h"
#include "shell/core/Random.h"
#include "shell/core/Settings.h"
#include "shell/core/WriteFormat.h"
#include "spacerace/WordList.h"
#include "stopthief/ThiefData.h"
#include "typing/Keyboard.h"
#include "typing/TypingTexts.h"

#include <cstdio>
#include <cstdlib>

void FuzzFail(const char *what, const QByteArray &input)
{
    std::fprintf(stderr, "fuzz check failed: %s (input of %lld bytes)\n", what,
                 static_cast<long long>(input.size()));
    std::abort();
}

namespace {
// A failed read names where it failed; a successful one leaves no error behind.
void expectHonestError(bool ok, const FileError &error, const QByteArray &input)
{
    if (ok == error.isSet())
        FuzzFail(ok ? "a read succeeded with an error set" : "a read failed without a reason",
                 input);
    if (!ok && (error.line < 0 || error.item < 0))
        FuzzFail("an error names a negative line or item", input);
}

// What the reader reads, the writer writes back, and it reads back the same: texts to the
// letter, numbers to the bit.
void writeFormatRoundTrip(const QByteArray &input)
{
    WriteReader first;
    const bool ok = first.parse(input);
    expectHonestError(ok, first.error(), input);
    if (!ok)
        return;
    WriteWriter out;
    QList<QList<double>> numbers;
    for (const auto &line : first.lines()) {
        QList<double> lineNumbers;
        for (const WriteItem &item : line) {
            WriteReader one;
            double value = 0;
            if (!item.quoted && one.parse(item.text.toUtf8()) && one.readNumber(value)) {
                out.number(value);
                lineNumbers.append(value);
            } else {
                out.text(item.text);
            }
        }
        out.endLine();
        numbers.append(lineNumbers);
    }
    WriteReader second;
    if (!second.parse(out.data()))
        FuzzFail("the writer wrote what the reader refuses", input);
    if (second.lines().size() != first.lines().size())
        FuzzFail("a round trip changed the number of lines", input);
    for (qsizetype l = 0; l < first.lines().size(); ++l) {
        const auto &was = first.lines()[l];
        const auto &now = second.lines()[l];
        if (was.size() != now.size())
            FuzzFail("a round trip changed the number of items", input);
        qsizetype n = 0;
        for (qsizetype i = 0; i < was.size(); ++i) {
            if (now[i].quoted) {
                if (now[i].text != was[i].text)
                    FuzzFail("a round trip changed a text", input);
                continue;
            }
            WriteReader one;
            double value = 0;
            if (!one.parse(now[i].text.toUtf8()) || !one.readNumber(value) ||
                n >= numbers[l].size() || value != numbers[l][n++])
                FuzzFail("a round trip changed a number", input);
        }
    }
}

void settingsFile(const QByteArray &input)
{
    FileError error;
    const auto settings = SettingsFile::parse(input, &error);
    expectHonestError(settings.has_value(), error, input);
    if (!settings)
        return;
    const auto again = SettingsFile::parse(SettingsFile::format(*settings));
    if (!again || !(*again == *settings))
        FuzzFail("settings written back read differently", input);
}

void thiefData(const QByteArray &input)
{
    ThiefData data;
    expectHonestError(data.parse(input), data.error(), input);
}

// A word list that reads holds only words a pupil can play.
void balloonWords(const QByteArray &input)
{
    BalloonWords words;
    const bool ok = words.parse(input);
    expectHonestError(ok, words.error(), input);
    for (int grade = 1; ok && grade <= BalloonWords::Grades; ++grade)
        for (const BalloonWord &word : words.grade(grade))
            if (!BalloonWords::isPlayable(word.word))
                FuzzFail("an unplayable balloon word was read", input);
}
// A word list that reads writes back to the same bytes' meaning: the same words, in order.
void spellingList(const QByteArray &input)
{
    FileError error;
    const auto list = WordList::parse(input, QStringLiteral("fuzz.srl"), &error);
    expectHonestError(list.has_value(), error, input);
    if (!list)
        return;
    const auto again = WordList::parse(list->format(), QStringLiteral("fuzz.srl"));
    if (!again || again->format() != list->format())
        FuzzFail("a spelling list written back read differently", input);
}
// A quiz table that reads holds every record its quiz asks about, with every answer given.
void quizTable(const QByteArray &input, const QuizTable::Layout &layout)
{
    QuizTable table;
    const bool ok = table.parse(input, layout);
    expectHonestError(ok, table.error(), input);
    if (ok && table.count() != layout.records)
        FuzzFail("a quiz table read with the wrong number of records", input);
    for (int record = 1; ok && record <= layout.records; ++record)
        for (const int field : layout.requiredFields)
            if (table.text(record, field).isEmpty())
                FuzzFail("a quiz table read with a blank answer", input);
}
// A calendar file that reads has a real length for every month.
void calendarData(const QByteArray &input)
{
    CalendarData data;
    const bool ok = data.parse(input);
    expectHonestError(ok, data.error(), input);
    for (int month = 1; ok && month <= 12; ++month)
        if (data.daysInMonth(month) < 28 || data.daysInMonth(month) > 31)
            FuzzFail("a calendar read with a month of impossible length", input);
}

// A graph file that reads is written back and read again as the same graph.
void graphFile(const QByteArray &input)
{
    FileError error;
    const auto graph = GraphFile::parse(input, &error);
    expectHonestError(graph.has_value(), error, input);
    if (!graph)
        return;
    const auto again = GraphFile::parse(GraphFile::format(*graph));
    if (!again || !(*again == *graph))
        FuzzFail("a graph written back read differently", input);
}
// Texts that read can all be typed on the keyboard map, and words are small letters only.
void typingTexts(const QByteArray &input)
{
    TypingTexts texts;
    const bool ok = texts.parse(input);
    expectHonestError(ok, texts.error(), input);
    if (!ok)
        return;
    if (texts.words().isEmpty() || texts.passages().isEmpty())
        FuzzFail("typing texts without words or passages were read", input);
    for (const QString &word : texts.words())
        if (word.isEmpty() || word != word.toLower() || !TypingTexts::isTypeable(word))
            FuzzFail("a typing word that is not small letters was read", input);
    for (const QString &sentence : texts.sentences())
        if (!TypingTexts::isTypeable(sentence))
            FuzzFail("an untypeable sentence was read", input);
    for (const Passage &passage : texts.passages())
        if (passage.text.isEmpty() || !TypingTexts::isTypeable(passage.text))
            FuzzFail("an untypeable passage was read", input);
}

// Any presidents' table that reads must give texts for every item, and a question of Who Is
// Missing? that keeps its promises, whatever its dates and names hold.
void presidentsData(const QByteArray &input)
{
    QuizTable table;
    const bool ok = table.parse(input, Presidents::Layout());
    expectHonestError(ok, table.error(), input);
    if (!ok)
        return;
    // As many presidencies as the file holds, but never too few for a row and four choices.
    if (table.count() < Presidents::FewestRecords)
        FuzzFail("a presidents' table read with too few records", input);
    for (int n = 1; n <= table.count(); ++n)
        if (table.text(n, Presidents::Name).isEmpty())
            FuzzFail("a presidents' table read with a blank name", input);
    const bool datesRead = !Presidents::CheckDates(table).isSet();
    Randomize(input.size());
    for (int n = 1; n <= table.count(); ++n) {
        // The first and last presidencies are where rows are moved and ranges clamped.
        if (n > 64 && n <= table.count() - 64)
            continue;
        if (datesRead && Presidents::BirthDateText(table, n).isEmpty())
            FuzzFail("a checked birth date shown as nothing", input);
        Presidents::TermText(table, n);
        const Presidents::WhoIsMissing who = Presidents::BuildWhoIsMissing(table, n);
        if (who.row[0] < 1 || who.row[2] > table.count() || who.correct < 1 ||
            who.choices[who.correct - 1] != n)
            FuzzFail("a Who Is Missing? question out of the records", input);
    }
}
} // namespace

const QList<FuzzTarget> &FuzzTargets()
{
    static const QList<FuzzTarget> targets = {
        {"writeformat", {"lumbridle52.ini", "thief.dat", "usgeo.dat"}, writeFormatRoundTrip},
        {"settings", {"lumbridle52.ini"}, settingsFile},
        {"thief", {"thief.dat"}, thiefData},
        {"balloon", {"balloon.dat"}, balloonWords},
        {"usgeo", {"usgeo.dat"}, [](const QByteArray &in) { quizTable(in, UsStates::Layout()); }},
        {"calendar", {"calendar.dat"}, calendarData},
        {"graph", {"line.tsx", "bar1.tsx", "bar2.tsx", "pie1.tsx", "pie2.tsx"}, graphFile},
        {"spelling", {"grade1.srl", "grade3.srl", "grade5.srl", "tricky.srl"}, spellingList},
        {"typing", {"typing.dat"}, typingTexts},
        {"wgeo",
         {"wgeo.dat"},
         [](const QByteArray &in) { quizTable(in, WorldCountries::Layout()); }},
        {"uspres", {"uspres.dat"}, presidentsData},
    };
    return targets;
}

const FuzzTarget *FindFuzzTarget(const QByteArray &name)
{
    for (const FuzzTarget &target : FuzzTargets())
        if (name == target.name)
            return &target;
    return nullptr;
}
