// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Space Race: the options with a list, a Flasher turn, a Scrambler turn and the
// results.
#include "Scene.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/frmResults.h"
#include "shell/Services.h"
#include "spacerace/frmSRace.h"
#include "spacerace/optSRace.h"
#include "spacerace/SkyView.h"
#include "spacerace/WordList.h"
#include "support/TestDoubles.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

void ThreePilots(qint16 game)
{
    Settings::SpaceRace &race = TheSettings().spaceRace;
    race.players = 3;
    race.names = {QStringLiteral("Amara"), QStringLiteral("Jonas"), QStringLiteral("Lucia"),
                  QStringLiteral("Player 4")};
    race.gameType = game;
    SetSharedList(WordList::read(DataFile(QStringLiteral("grade3.srl"))).value_or(WordList()));
}

// Spells the current word with a number of wrong letters first.
void PlayTurn(frmSRace *window, int mistakes)
{
    if (window->race().game() == RocketRace::Game::Flasher)
        QTest::mouseClick(window->cmdOK, Qt::LeftButton);
    for (int i = 0; i < mistakes; ++i)
        QTest::keyClick(window->picSky, Qt::Key_Q);
    if (window->race().phase() == RocketRace::Phase::Typing)
        QTest::keyClicks(window->picSky, window->race().word().mid(window->race().typed().size()));
    if (window->race().phase() == RocketRace::Phase::TurnLost)
        QTest::mouseClick(window->cmdOK, Qt::LeftButton);
}

frmSRace *RaceUnderWay(qint16 game)
{
    ThreePilots(game);
    auto *window = new frmSRace;
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    const int mistakes[] = {0, 1, 2};
    for (int round = 0; round < 4; ++round)
        for (int player = 0; player < 3; ++player)
            PlayTurn(window, mistakes[player]);
    // Amara's next word is under way, two letters in.
    if (game == 1)
        QTest::mouseClick(window->cmdOK, Qt::LeftButton);
    QTest::keyClicks(window->picSky, window->race().word().mid(window->race().typed().size(), 2));
    return window;
}

frmResults *Results()
{
    ThreePilots(2);
    frmResults *results = nullptr;
    auto *dialogs = dynamic_cast<ScriptedDialogs *>(&Services::dialogs());
    if (dialogs) {
        // The results window lives only while it is shown; keep a copy of what it said.
        dialogs->onRun = [&results](QDialog &dialog) {
            auto *shown = qobject_cast<frmResults *>(&dialog);
            if (!shown)
                return int(QDialog::Accepted);
            auto *copy = new frmResults;
            copy->setWindowTitle(shown->windowTitle());
            for (int i = 0; i < 2; ++i)
                copy->Label1[i]->setText(shown->Label1[i]->text());
            for (int i = 0; i < int(shown->lblWin.size()); ++i)
                copy->lblWin[i]->setText(shown->lblWin[i]->text());
            results = copy;
            return int(QDialog::Accepted);
        };
    }
    auto *window = new frmSRace;
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    // Amara and Jonas spell every word; Lucia slips now and then.
    int turn = 0;
    while (window->race().isRunning())
        PlayTurn(window, window->race().currentPlayer() == 3 && ++turn % 2 ? 1 : 0);
    if (dialogs)
        dialogs->onRun = nullptr;
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    delete window;
    return results;
}

} // namespace

QList<Scene> spaceraceScenes()
{
    return {
        {QStringLiteral("spacerace-options"),
         [] {
             ThreePilots(1);
             auto *options = new optSRace;
             options->setAttribute(Qt::WA_DeleteOnClose);
             return options;
         },
         QSize(1000, 580)},
        {QStringLiteral("spacerace-open"),
         [] {
             ThreePilots(2);
             return new frmSRace;
         }},
        {QStringLiteral("spacerace-flasher"), [] { return RaceUnderWay(1); }},
        {QStringLiteral("spacerace-scrambler"), [] { return RaceUnderWay(2); }},
        {QStringLiteral("spacerace-results"), []() -> QWidget * { return Results(); },
         QSize(560, 440)},
    };
}
