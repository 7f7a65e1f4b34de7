// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Math Race: the options, the window as it opens, a race under way, the finish and
// the results.
#include "Scene.h"

#include "mathrace/AnswerBox.h"
#include "mathrace/frmMRace.h"
#include "mathrace/optMRace.h"
#include "shell/frmResults.h"
#include "shell/Services.h"
#include "shell/core/Settings.h"
#include "support/TestDoubles.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

void FourRacers()
{
    Settings::MathRace &race = TheSettings().mathRace;
    race.players = 4;
    const char *names[] = {"Anna", "Kofi", "Mei", "Santiago"};
    const qint16 types[] = {1, 3, 2, 5};
    const qint16 largest[] = {20, 144, 50, 12};
    for (int i = 0; i < 4; ++i) {
        race.player[size_t(i)].name = QString::fromLatin1(names[i]);
        race.player[size_t(i)].type = types[i];
        race.player[size_t(i)].largest = largest[i];
        race.player[size_t(i)].clock = qint16(i % 3 + 1);
    }
}

// Plays one turn: the problem is answered after `drains` drains of gas, or not at all.
void PlayTurn(frmMRace *window, int drains, bool answers)
{
    QTest::mouseClick(window->cmdOK, Qt::LeftButton);
    window->timer1Tick();
    for (int i = 0; i < drains && window->race().phase() == Race::Phase::Draining; ++i)
        window->timer1Tick();
    if (answers) {
        QTest::keyClicks(window->txtAnswer, QString::number(window->race().problem().answer));
        QTest::keyClick(window->txtAnswer, Qt::Key_Return);
    } else {
        while (window->race().phase() != Race::Phase::OutOfGas)
            window->timer1Tick();
        QTest::mouseClick(window->cmdOK, Qt::LeftButton);
    }
}

frmMRace *RaceUnderWay()
{
    FourRacers();
    auto *window = new frmMRace;
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    // Anna answers fast, Kofi steadily, Mei slowly, Santiago misses now and then.
    const int drains[] = {0, 3, 6, 2};
    for (int round = 0; round < 4; ++round)
        for (int player = 0; player < 4; ++player)
            PlayTurn(window, drains[player], !(player == 3 && round % 2 == 1));
    // Anna's next problem is on show with some gas gone and an answer half typed.
    QTest::mouseClick(window->cmdOK, Qt::LeftButton);
    window->timer1Tick();
    for (int i = 0; i < 4; ++i)
        window->timer1Tick();
    window->Timer1->stop();
    const QString answer = QString::number(window->race().problem().answer);
    QTest::keyClicks(window->txtAnswer, answer.left(qMax(1, int(answer.size()) - 1)));
    return window;
}

frmMRace *RaceFinished(frmResults **results)
{
    FourRacers();
    auto *dialogs = dynamic_cast<ScriptedDialogs *>(&Services::dialogs());
    if (dialogs && results) {
        // The results window lives only while it is shown; keep a copy of what it said.
        dialogs->onRun = [results](QDialog &dialog) {
            auto *shown = qobject_cast<frmResults *>(&dialog);
            if (!shown)
                return int(QDialog::Accepted);
            auto *copy = new frmResults;
            copy->setWindowTitle(shown->windowTitle());
            for (int i = 0; i < 2; ++i)
                copy->Label1[i]->setText(shown->Label1[i]->text());
            for (int i = 0; i < int(shown->lblWin.size()); ++i)
                copy->lblWin[i]->setText(shown->lblWin[i]->text());
            *results = copy;
            return int(QDialog::Accepted);
        };
    }
    auto *window = new frmMRace;
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    const int drains[] = {0, 0, 5, 3};
    while (window->race().isRunning()) {
        const int player = window->race().currentPlayer() - 1;
        PlayTurn(window, drains[player], true);
    }
    if (dialogs)
        dialogs->onRun = nullptr;
    return window;
}

} // namespace

QList<Scene> mathraceScenes()
{
    return {
        {QStringLiteral("mathrace-options"),
         [] {
             FourRacers();
             TheSettings().mathRace.players = 3;
             auto *options = new optMRace;
             options->setAttribute(Qt::WA_DeleteOnClose);
             return options;
         }},
        {QStringLiteral("mathrace-open"), [] { return new frmMRace; }},
        {QStringLiteral("mathrace-race"), [] { return RaceUnderWay(); }},
        {QStringLiteral("mathrace-finish"), [] { return RaceFinished(nullptr); }},
        {QStringLiteral("mathrace-results"),
         []() -> QWidget * {
             frmResults *results = nullptr;
             delete RaceFinished(&results);
             return results;
         },
         QSize(560, 440)},
    };
}
