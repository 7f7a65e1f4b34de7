// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Balloon Man: a word half guessed with a hint taken, a win and a loss.
#include "Scene.h"

#include "balloon/ClownPicture.h"
#include "balloon/frmBall.h"
#include "shell/core/Settings.h"

#include <QPushButton>
#include <QTest>

namespace {

frmBall *Open(qint16 grade)
{
    TheSettings().balloon.values = {1, grade};
    return new frmBall;
}

// Guesses the letters of the word that are in `right`, then `wrong` letters it lacks.
void Guess(frmBall *window, const QString &right, int wrong)
{
    const QString word = window->round().word();
    for (QChar c : right)
        if (word.contains(c))
            window->guessLetter(c);
    for (QChar c : QStringLiteral("QZJXVKWYBFGHMPUDC")) {
        if (wrong == 0)
            break;
        if (!word.contains(c) && !window->round().wasTried(c)) {
            window->guessLetter(c);
            --wrong;
        }
    }
}

} // namespace

QList<Scene> balloonScenes()
{
    return {
        {QStringLiteral("balloon-play"),
         [] {
             auto *window = Open(3);
             Guess(window, QStringLiteral("EAR"), 2);
             QTest::mouseClick(window->cmdHint, Qt::LeftButton);
             window->picClown->setFrame(40);
             return window;
         }},
        {QStringLiteral("balloon-win"),
         [] {
             auto *window = Open(2);
             Guess(window, QStringLiteral("Z"), 1);
             Guess(window, window->round().word(), 0);
             window->picClown->setFrame(30);
             return window;
         }},
        {QStringLiteral("balloon-loss"),
         [] {
             auto *window = Open(5);
             Guess(window, QStringLiteral("AE"), 6);
             window->picClown->setFrame(9);
             return window;
         }},
    };
}
