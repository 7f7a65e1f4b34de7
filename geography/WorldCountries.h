// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "quiz/MapClick.h"
#include "quiz/Quiz.h"
#include "quiz/QuizTable.h"

#include <QLineF>
#include <QList>
#include <QSizeF>

// The hundred countries of "wgeo.dat" for the World Geography quiz: the fields of a record,
// the texts and pictures of its eight display items, the pointer on the world map and the
// map that answers clicks.
namespace WorldCountries {
inline constexpr auto FileName = "wgeo.dat";
inline constexpr int Records = 100;
inline constexpr int Fields = 12;
enum Field {
    Name = 1,
    Capital = 2,
    FirstFact = 3,
    Region = 6,
    Language = 7,
    Currency = 8,
    Area = 9,
    Products = 10,
    MapX = 11,
    MapY = 12,
};

// The display items, also the clue numbers of "Name the Country".
enum Item {
    MapItem = 1,
    FlagItem,
    CapitalItem,
    RegionItem,
    Fact1Item,
    Fact2Item,
    Fact3Item,
    ProductsItem,
};
inline constexpr int Items = 8;

inline constexpr int Regions = 13;

QuizTable::Layout Layout();
GeographyFields QuizFields();

// The name of region 1..13 ("Scandanavia" is spelt so on purpose); empty outside the table.
QString RegionName(int region);
QString RegionText(const QuizTable &countries, int record);
QString CapitalText(const QuizTable &countries, int record);
// "flag007.png" for record 7.
QString FlagFile(int record);
inline constexpr auto MapPicture = "world.svg";
inline constexpr auto WorldShapes = "world.json";

// The pointer that marks a place on the map: a shaft at 45 degrees, 125 map units long, with
// its tip on the place and two barbs, turned towards the middle of the map so that all of
// it stays on the map wherever the place lies. Lines run from the tip outwards.
inline constexpr double PointerLength = 125;
QList<QLineF> PointerLines(QPointF place, QSizeF map);

// The world map's size in map units and the click finder over the countries' points and
// outlines, both from the shapes file; nothing when the file is not one of ours. A country
// with no outline is still found by its point.
struct WorldShapesFile {
    QSizeF size;
    MapClick click;
};
std::optional<WorldShapesFile> LoadShapes(const QuizTable &countries, const QString &path);
} // namespace WorldCountries
