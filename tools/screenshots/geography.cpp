// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of US Geography and World Geography: the window as it opens, the review of a place,
// and a question of each quiz, typed and picked, part-way through.
#include "Scene.h"

#include "geography/FlagButton.h"
#include "geography/frmGeo.h"
#include "geography/frmWGeo.h"
#include "shell/core/Random.h"
#include "shell/core/Settings.h"

#include <array>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

// The window in a mode, with the answer type and the mode's direction chosen first in its
// settings line; `seedStep` keeps the two windows' questions apart.
template <typename Window>
Window *ModeOf(std::array<qint16, 4> &values, int seedStep, int mode, int answerType, int direction)
{
    values[0] = qint16(answerType);
    if (mode == Capitals)
        values[1] = qint16(direction);
    if (mode == FindIt)
        values[2] = qint16(direction);
    if (mode == Flags)
        values[3] = qint16(direction);
    auto *window = new Window;
    // After the window, which seeds the source from the clock, so the picture is the same
    // every time.
    Randomize(mode * seedStep + direction);
    window->cmdChoice[mode - 1]->click();
    return window;
}

frmGeo *InMode(int mode, int answerType, int direction = 0)
{
    return ModeOf<frmGeo>(TheSettings().usGeography.values, 7, mode, answerType, direction);
}

frmWGeo *WorldInMode(int mode, int answerType, int direction = 0)
{
    return ModeOf<frmWGeo>(TheSettings().worldGeography.values, 11, mode, answerType, direction);
}

} // namespace

QList<Scene> worldgeoScenes()
{
    return {
        {QStringLiteral("worldgeo-start"), [] { return new frmWGeo; }},
        {QStringLiteral("worldgeo-review"), [] { return WorldInMode(Review, 1); }},
        // A country at the map's edge: the pointer turns inwards.
        {QStringLiteral("worldgeo-review-edge"),
         [] {
             frmWGeo *window = WorldInMode(Review, 1);
             while (window->quiz().currentRecord() != 62) // New Zealand
                 window->cmdNext->click();
             return window;
         }},
        {QStringLiteral("worldgeo-capitals"),
         [] {
             frmWGeo *window = WorldInMode(Capitals, 0, 1);
             window->txtAnswer->setText(QStringLiteral("Peru"));
             QMetaObject::invokeMethod(window->txtAnswer, "returnPressed");
             return window;
         }},
        {QStringLiteral("worldgeo-clues"),
         [] {
             frmWGeo *window = WorldInMode(NameIt, 1);
             for (int i = 0; i < 3; ++i)
                 window->cmdClue->click();
             return window;
         }},
        {QStringLiteral("worldgeo-find"),
         [] {
             frmWGeo *window = WorldInMode(FindIt, 1, 0);
             const int right = window->quiz().correctChoice();
             window->lblanswer[right % 4]->click();
             return window;
         }},
        {QStringLiteral("worldgeo-findmap"), [] { return WorldInMode(FindIt, 0, 1); }},
        {QStringLiteral("worldgeo-flags"),
         [] {
             frmWGeo *window = WorldInMode(Flags, 1, 0);
             window->imgFlagGame[window->quiz().correctChoice() - 1]->click();
             return window;
         }},
        {QStringLiteral("worldgeo-nameflag"), [] { return WorldInMode(Flags, 0, 1); }},
        {QStringLiteral("worldgeo-small"),
         [] {
             frmWGeo *window = WorldInMode(Review, 1);
             return window;
         },
         QSize(683, 340)},
    };
}

QList<Scene> geographyScenes()
{
    return {
        {QStringLiteral("geography-start"), [] { return new frmGeo; }},
        {QStringLiteral("geography-review"),
         [] {
             frmGeo *window = InMode(Review, 1);
             window->cmdNext->click();
             return window;
         }},
        {QStringLiteral("geography-capitals"),
         [] {
             frmGeo *window = InMode(Capitals, 0, 1);
             window->txtAnswer->setText(QStringLiteral("Ohio"));
             QMetaObject::invokeMethod(window->txtAnswer, "returnPressed");
             window->txtAnswer->setText(QStringLiteral("Tex"));
             return window;
         }},
        {QStringLiteral("geography-clues"),
         [] {
             frmGeo *window = InMode(NameIt, 1);
             for (int i = 0; i < 4; ++i)
                 window->cmdClue->click();
             return window;
         }},
        {QStringLiteral("geography-find"),
         [] {
             frmGeo *window = InMode(FindIt, 1, 0);
             const int right = window->quiz().correctChoice();
             window->lblanswer[right % 4]->click();
             return window;
         }},
        {QStringLiteral("geography-findmap"), [] { return InMode(FindIt, 0, 1); }},
        {QStringLiteral("geography-flags"),
         [] {
             frmGeo *window = InMode(Flags, 1, 0);
             window->imgFlagGame[window->quiz().correctChoice() - 1]->click();
             return window;
         }},
        {QStringLiteral("geography-nameflag"), [] { return InMode(Flags, 1, 1); }},
        // A 1366 x 768 screen at 200 %.
        {QStringLiteral("geography-small"),
         [] {
             frmGeo *window = InMode(NameIt, 1);
             window->cmdClue->click();
             return window;
         },
         QSize(683, 340)},
    };
}
