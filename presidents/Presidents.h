// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "quiz/Quiz.h"
#include "quiz/QuizTable.h"

#include <array>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcPresidents)

// The presidencies of "uspres.dat" for the US Presidents quiz: the fields of a record, the
// texts and portraits of its ten display items, and the question of "Who Is Missing?". The
// file holds one record per presidency in order, as many as there have been; a person who
// served two separate terms has two records with the same name.
namespace Presidents {
inline constexpr auto FileName = "uspres.dat";
inline constexpr int Fields = 11;
// Fewer presidencies than this could not fill a row of three and four choices.
inline constexpr int FewestRecords = 8;
enum Field {
    Name = 1,
    FullName = 2,
    BirthDate = 3,
    BirthTown = 4,
    BirthState = 5,
    TermBegan = 6,
    Party = 7,
    FirstFact = 8,
};
inline constexpr int Facts = 4;

// The display items, also the clue numbers of "Name the President".
enum Item {
    PortraitItem = 1,
    NumberItem,
    BirthDateItem,
    BirthPlaceItem,
    TermItem,
    PartyItem,
    Fact1Item,
    Fact2Item,
    Fact3Item,
    Fact4Item,
};
inline constexpr int Items = 10;

// The three modes, numbered as their buttons.
enum Mode { ReviewMode = 1, NameMode = 2, WhoMode = 3 };

QuizTable::Layout Layout();
// A date in the file that cannot be shown (a month of 13, a day of 40, no year): the first
// one, or nothing when every date reads well.
FileError CheckDates(const QuizTable &presidents);

// "presi002.gif" for the first presidency: below 24 the file numbered n + 1, at 24 always
// presi023.gif (the same man as 22), above 24 the file numbered n.
QString PortraitFile(int presidency);
// "1st President", "22nd President", "11th President".
QString NumberText(int presidency);
// Month names with their trailing blank, January = 1; empty outside 1..12.
QString MonthName(int month);
// "February 22, 1732" from "02/22/1732"; empty when the date cannot be read.
QString DateText(const QString &monthFirst);
QString BirthDateText(const QuizTable &presidents, int presidency);
QString BirthPlaceText(const QuizTable &presidents, int presidency);
// "1789 - 1797": the year this presidency began and the year the next one did; " - Now" for
// the last.
QString TermText(const QuizTable &presidents, int presidency);
QString PartyText(const QuizTable &presidents, int presidency);

// Whether two presidencies were held by one person (found by their names).
bool SamePerson(const QuizTable &presidents, int a, int b);

// The plan of each asking mode over the engine. Who Is Missing? builds its own choices, so
// the engine makes none.
QuizPlan PlanFor(Mode mode);

// One question of "Who Is Missing?": three presidencies in a row, one of them hidden, and
// four presidencies to pick the hidden one from.
struct WhoIsMissing {
    int missing = 0;              // c, the presidency to name
    int position = 0;             // m, 1..3: its place in the row
    std::array<int, 3> row{};     // the three presidencies shown, in order
    std::array<int, 4> choices{}; // the four offered, shuffled
    int correct = 0;              // 1..4: the choice that holds `missing`
};
// Builds the question around presidency `missing` (1..count), drawing the row's position
// and the order of the choices from the random source.
WhoIsMissing BuildWhoIsMissing(const QuizTable &presidents, int missing);

// Multiple choice over names: a choice whose person is already offered (a second term) is
// replaced by another presidency, so no name is offered twice. `current` is kept.
QList<int> DistinctChoices(const QuizTable &presidents, QList<int> choices, int current);
} // namespace Presidents
