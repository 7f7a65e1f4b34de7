// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of the shell: the menu, the word-entry window, the results window and help.
#include "Scene.h"

#include "Activities.h"
#include "shell/frmInput.h"
#include "shell/frmMenu.h"
#include "shell/frmResults.h"
#include "shell/HelpWindow.h"

#include <QLabel>
#include <QTest>

QList<Scene> shellScenes()
{
    return {
        {QStringLiteral("menu"), [] { return new frmMenu(Activities()); }},
        {QStringLiteral("input"),
         [] {
             auto *input = new frmInput;
             input->show();
             QTest::keyClicks(input->txtWord, QStringLiteral("don't-stop"));
             return input;
         },
         QSize(560, 240)},
        {QStringLiteral("results"),
         [] {
             auto *results = new frmResults;
             results->setWindowTitle(QStringLiteral("Math Race Results"));
             results->Label1[0]->setText(QStringLiteral("The game is over."));
             results->Label1[1]->setText(QStringLiteral("These player(s) finished the race:"));
             results->lblWin[0]->setText(QStringLiteral("Anna"));
             results->lblWin[1]->setText(QStringLiteral("Kofi"));
             return results;
         },
         QSize(560, 440)},
        {QStringLiteral("help-contents"),
         [] {
             auto *help = new HelpWindow;
             help->showTopic(QString());
             return help;
         },
         QSize(760, 640)},
    };
}
