// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of US Presidents: the window as it opens, the review, a president named from clues
// and the row of Who Is Missing?, typed and picked.
#include "Scene.h"

#include "presidents/frmPres.h"
#include "shell/core/Random.h"
#include "shell/core/Settings.h"

#include <QLineEdit>
#include <QPushButton>

namespace {

frmPres *PresidentsInMode(int mode, int answerType, qint64 seed)
{
    TheSettings().presidents.answerType = qint16(answerType);
    auto *window = new frmPres;
    // After the window, which seeds the source from the clock, so the picture is the same
    // every time.
    Randomize(seed);
    window->cmdChoice[mode - 1]->click();
    return window;
}

} // namespace

QList<Scene> presidentsScenes()
{
    return {
        {QStringLiteral("presidents-start"), [] { return new frmPres; }},
        {QStringLiteral("presidents-review"),
         [] {
             frmPres *window = PresidentsInMode(Presidents::ReviewMode, 0, 3);
             while (window->quiz().currentRecord() != 16) // Abraham Lincoln
                 window->cmdNext->click();
             return window;
         }},
        {QStringLiteral("presidents-name"),
         [] {
             frmPres *window = PresidentsInMode(Presidents::NameMode, 0, 5);
             for (int i = 0; i < 4; ++i)
                 window->cmdClue->click();
             window->txtAnswer->setText(QStringLiteral("Lin"));
             return window;
         }},
        {QStringLiteral("presidents-name-picked"),
         [] { return PresidentsInMode(Presidents::NameMode, 1, 8); }},
        {QStringLiteral("presidents-who"),
         [] {
             frmPres *window = PresidentsInMode(Presidents::WhoMode, 1, 11);
             const int right = window->quiz().correctChoice();
             window->lblanswer[right % 4]->click();
             return window;
         }},
        {QStringLiteral("presidents-who-answered"),
         [] {
             frmPres *window = PresidentsInMode(Presidents::WhoMode, 0, 13);
             window->txtAnswer->setText(window->quiz().expected());
             QMetaObject::invokeMethod(window->txtAnswer, "returnPressed");
             return window;
         }},
        {QStringLiteral("presidents-small"),
         [] { return PresidentsInMode(Presidents::WhoMode, 1, 17); }, QSize(683, 340)},
    };
}
