// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of the card games: War in the middle of a war, Concentration part way through, and
// Blackjack with a hand being played and a hand won.
#include "Scene.h"

#include "cards/CardView.h"
#include "cards/ConcBoard.h"
#include "cards/frmBlack.h"
#include "cards/frmConc.h"
#include "cards/frmWar.h"
#include "shell/core/Random.h"

#include <QPushButton>
#include <QTest>

namespace {

frmWar *WarUnderWay()
{
    auto *window = new frmWar;
    Randomize(41);
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    // Play on until a tie has laid three pairs face down; stop there, before the deciding pair.
    for (int round = 0; round < 400 && window->war().current() != 5; ++round)
        window->playRound();
    return window;
}

frmConc *ConcentrationUnderWay()
{
    auto *window = new frmConc;
    Randomize(7);
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    const Concentration &game = window->game();
    // Five pairs found, one miss, and the first card of the next pair turned up.
    int found = 0;
    for (int a = 1; a <= Concentration::Places && found < 5; ++a)
        for (int b = a + 1; b <= Concentration::Places; ++b)
            if (!game.isMatched(a) && !game.isMatched(b) &&
                game.card(a).value == game.card(b).value && (a * 7 + b) % 3 == 0) {
                window->pickPlace(a);
                window->pickPlace(b);
                ++found;
                break;
            }
    for (int place = 40; place <= Concentration::Places; ++place)
        if (!game.isMatched(place)) {
            window->pickPlace(place);
            window->picBoard->setCursor(place + 1);
            break;
        }
    window->picBoard->setFocus();
    return window;
}

frmBlack *BlackjackHand(bool stay)
{
    auto *window = new frmBlack;
    Randomize(5);
    QTest::mouseClick(window->cmdNew, Qt::LeftButton);
    // Computer: 9 and 7; pupil: 4 and 5, then an ace and a 3 (positions of suit 0 to 3).
    const int positions[] = {48, 20, 30, 44, 1, 29, 13};
    for (int i = 0; i < 7; ++i)
        window->deck().place(30 + i, positions[i]);
    // Finish the first hand, then deal the stacked one.
    while (!window->game().handOver())
        QTest::mouseClick(window->cmdStay, Qt::LeftButton);
    window->deck().next = 30;
    QTest::mouseClick(window->cmdDeal, Qt::LeftButton);
    QTest::mouseClick(window->cmdHit, Qt::LeftButton);
    QTest::mouseClick(window->cmdHit, Qt::LeftButton);
    if (stay)
        QTest::mouseClick(window->cmdStay, Qt::LeftButton);
    return window;
}

} // namespace

QList<Scene> cardsScenes()
{
    return {
        {QStringLiteral("cards-war"), [] { return WarUnderWay(); }},
        {QStringLiteral("cards-concentration"), [] { return ConcentrationUnderWay(); }},
        {QStringLiteral("cards-blackjack-hand"), [] { return BlackjackHand(false); }},
        {QStringLiteral("cards-blackjack-won"), [] { return BlackjackHand(true); }},
        {QStringLiteral("cards-war-open"), [] { return new frmWar; }},
    };
}
