// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "quiz/MapClick.h"
#include "quiz/Quiz.h"
#include "quiz/QuizTable.h"

#include <QLoggingCategory>
#include <QRectF>
#include <QSizeF>

Q_DECLARE_LOGGING_CATEGORY(lcGeography)

// The fifty states of "usgeo.dat" for the US Geography quiz: the fields of a record, the
// texts and pictures of its eleven display items, and the map that answers clicks.
namespace UsStates {
inline constexpr auto FileName = "usgeo.dat";
inline constexpr int Records = 50;
inline constexpr int Fields = 15;
enum Field {
    Abbreviation = 1,
    Name = 2,
    Capital = 3,
    Region = 7,
    Admitted = 8,
    Nickname = 9,
    Order = 10,
    FirstFact = 11,
    MapX = 14,
    MapY = 15,
};
// The two states drawn in insets instead of on the main map.
inline constexpr int Alaska = 2;
inline constexpr int Hawaii = 11;

// The display items, also the clue numbers of "Name the State".
enum Item {
    MapItem = 1,
    FlagItem,
    AbbreviationItem,
    NicknameItem,
    OrderItem,
    AdmittedItem,
    CapitalItem,
    RegionItem,
    Fact1Item,
    Fact2Item,
    Fact3Item,
};
inline constexpr int Items = 11;

QuizTable::Layout Layout();
GeographyFields QuizFields();

// "1st State", "22nd State", "11th State".
QString OrderText(int order);
QString CapitalText(const QuizTable &states, int record);
QString RegionText(const QuizTable &states, int record);
QString AdmittedText(const QuizTable &states, int record);

// The picture files of a state: its own map (none for Alaska and Hawaii, which light their
// inset instead) and its flag; the insets, lit or not.
QString MapFile(const QuizTable &states, int record);
QString FlagFile(const QuizTable &states, int record);
QString AlaskaInset(bool lit);
QString HawaiiInset(bool lit);
inline constexpr auto CountryMap = "usmap.svg";

// The map's drawing size and where the two insets sit on it, in map units (from usmap.json).
struct MapGeometry {
    QSizeF size{960, 600};
    QRectF alaska{6, 452, 236, 144};
    QRectF hawaii{250, 512, 90, 84};
};
std::optional<MapGeometry> LoadGeometry(const QString &path);

// The click finder over the states' map points and outlines (XXoutline.json in `folder`);
// a state whose outline is missing is still found by its point.
MapClick LoadMapClick(const QuizTable &states, const QString &folder);
} // namespace UsStates
