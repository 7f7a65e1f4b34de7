// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/CardTable.h"
#include "cards/CardView.h"
#include "cards/ConcBoard.h"
#include "cards/frmBlack.h"
#include "cards/frmConc.h"
#include "cards/frmWar.h"
#include "shell/ActivityTable.h"
#include "shell/core/Settings.h"
#include "shell/frmMenu.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

// The three card game windows played as a pupil would, by mouse and by keyboard, with the
// sounds recorded and the pauses virtual; and the switch between games and back to the menu.
class tst_cards_windows : public QObject {
    Q_OBJECT
private slots:
    void warPlaysToTheEnd();
    void concentrationPicks();
    void concentrationByKeyboardToTheEnd();
    void blackjackHands();
    void switcherAndMenu();
};

namespace {

// Owns a window for one test; shows it and makes it active so keys reach it.
template <typename W> struct Shown {
    W *w = new W;
    Shown()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the window did not become active");
    }
    ~Shown()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
};

void Press(Qt::Key key)
{
    QWidget *focus = QApplication::focusWidget();
    QVERIFY(focus);
    QTest::keyClick(focus, key);
}

QPoint CentreOf(const CardView *view)
{
    return view->cardRect().center().toPoint();
}

// Where place 1 to 52 lies on the board.
QPoint PlacePoint(const ConcBoard *board, int place)
{
    const QRectF grid = board->gridRect();
    const double w = grid.width() / 13;
    const double h = grid.height() / 4;
    return QPointF(grid.left() + ((place - 1) % 13 + 0.5) * w,
                   grid.top() + ((place - 1) / 13 + 0.5) * h)
        .toPoint();
}

// The place holding a card that matches (or, with `match` false, does not match) `place`.
int Partner(const Concentration &game, int place, bool match)
{
    for (int other = 1; other <= Concentration::Places; ++other) {
        if (other == place || game.isMatched(other))
            continue;
        const auto a = game.card(place);
        const auto b = game.card(other);
        const bool same =
            game.matchType() == Concentration::BySuit ? a.suit == b.suit : a.value == b.value;
        if (same == match)
            return other;
    }
    return 0;
}

} // namespace

void tst_cards_windows::warPlaysToTheEnd()
{
    TestEnvironment env;
    Shown<frmWar> win;
    frmWar *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(!w->fraGame->isVisible());
    QCOMPARE(w->lblMatch[1]->text() + w->lblMatch[2]->text(), QStringLiteral("2626"));
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Click\nTop Pile"));
    QVERIFY(w->shpBack[0]->isVisible() && !w->shpBack[0]->isFaceUp());
    QCOMPARE(w->shpBack[0]->backColour(), w->shpBack[11]->backColour());
    QCOMPARE(QApplication::focusWidget(), w->shpBack[0]);
    // The computer's pile, the felt around the pupil's card and the window turn nothing.
    QTest::mouseClick(w->shpBack[11], Qt::LeftButton, {}, CentreOf(w->shpBack[11]));
    QTest::mouseClick(w->shpBack[0], Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(5, w->height() / 2));
    QVERIFY(env.sound.events.isEmpty());
    QTest::mouseClick(w->shpBack[0], Qt::LeftButton, {}, CentreOf(w->shpBack[0]));
    QCOMPARE(env.sound.played().mid(0, 2), (QStringList{"ding.wav", "ding.wav"}));

    // Space on the pile plays round after round; every round's sounds follow its outcome.
    bool sawWar = false;
    while (w->isRunning()) {
        env.sound.events.clear();
        env.clock.delays.clear();
        Press(Qt::Key_Space);
        const QStringList played = env.sound.played();
        QCOMPARE(played.first(), QStringLiteral("ding.wav"));
        if (!w->isRunning())
            break; // a side that cannot lay its card ends the game at once
        QCOMPARE(played[1], QStringLiteral("ding.wav"));
        QCOMPARE(env.clock.delays.mid(0, 2), (QList<double>{frmWar::TurnPause, frmWar::TurnPause}));
        if (w->war().current() == 5) {
            // A tie: chimes, the turned pair stays up and three pairs lie face down.
            sawWar = true;
            QCOMPARE(played.last(), QStringLiteral("chimes.wav"));
            QVERIFY(w->shpBack[1]->isFaceUp() && w->shpBack[6]->isFaceUp());
            for (int slot : {2, 3, 4, 7, 8, 9})
                QVERIFY(w->shpBack[size_t(slot)]->isVisible() &&
                        !w->shpBack[size_t(slot)]->isFaceUp());
        } else {
            QCOMPARE(env.clock.delays.last(), 0.5);
            for (int slot = 1; slot <= 10; ++slot)
                QVERIFY(!w->shpBack[size_t(slot)]->isVisible());
        }
        QCOMPARE(w->lblMatch[1]->text().toInt() + w->lblMatch[2]->text().toInt(), 52);
    }
    QVERIFY(sawWar);
    QCOMPARE(env.sound.events.last(), QStringLiteral("play tada.wav wait"));
    const bool pupilWon = w->war().winner() == War::Pupil;
    QCOMPARE(w->lblMatch[1]->text(), pupilWon ? QStringLiteral("52") : QStringLiteral("0"));
    QCOMPARE(w->lblMatch[2]->text(), pupilWon ? QStringLiteral("0") : QStringLiteral("52"));
    QCOMPARE(w->shpBack[0]->isVisible(), pupilWon);
    QCOMPARE(w->shpBack[11]->isVisible(), !pupilWon);
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Game Over"));
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->fraGame->isVisible());
    QTest::mouseClick(w->cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{"cards-war"});
}

void tst_cards_windows::concentrationPicks()
{
    TestEnvironment env;
    TheSettings().cards.concentration = 1;
    Shown<frmConc> win;
    frmConc *w = win.w;
    QVERIFY(w->optType[1]->isChecked());
    QTest::mouseClick(w->optType[0], Qt::LeftButton, {}, QPoint(8, w->optType[0]->height() / 2));
    QCOMPARE(TheSettings().cards.concentration, qint16(0));

    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QCOMPARE(w->game().matchType(), Concentration::ByValue);
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Pick a Card"));
    QCOMPARE(w->lblMatch[0]->text(), QStringLiteral("0"));
    ConcBoard *board = w->picBoard;
    // Outside the grid: nothing counts.
    const QRectF grid = board->gridRect();
    QTest::mouseClick(board, Qt::LeftButton, {},
                      QPoint(int(grid.right()) + 2, int(grid.top()) + 5));
    QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(w->game().guesses(), 0);

    QTest::mouseClick(board, Qt::LeftButton, {}, PlacePoint(board, 14));
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Pick Another Card"));
    QCOMPARE(w->lblMatch[0]->text(), QStringLiteral("1"));
    QVERIFY(w->shpCard[1]->isFaceUp());
    QCOMPARE(w->shpCard[1]->rank(), Deck::ConcentrationText(w->game().card(14).value));
    // The card already turned counts nothing.
    QTest::mouseClick(board, Qt::LeftButton, {}, PlacePoint(board, 14));
    QCOMPARE(w->lblMatch[0]->text(), QStringLiteral("1"));

    const int miss = Partner(w->game(), 14, false);
    QTest::mouseClick(board, Qt::LeftButton, {}, PlacePoint(board, miss));
    QCOMPARE(env.sound.played(), QStringList{"boing.wav"});
    QCOMPARE(env.clock.delays, QList<double>{1.0});
    QVERIFY(!w->shpCard[1]->isVisible() && !w->shpCard[2]->isVisible());
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Pick a Card"));

    QTest::mouseClick(board, Qt::LeftButton, {}, PlacePoint(board, 14));
    const int hit = Partner(w->game(), 14, true);
    QTest::mouseClick(board, Qt::LeftButton, {}, PlacePoint(board, hit));
    QCOMPARE(env.sound.played(), (QStringList{"boing.wav", "conwin.wav"}));
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Pick A Card"));
    QCOMPARE(w->lblMatch[0]->text(), QStringLiteral("4"));
    QCOMPARE(w->lblMatch[1]->text(), QStringLiteral("1"));
    // The options cannot change the rules of a game under way.
    QVERIFY(!w->Frame1->isEnabled());
}

void tst_cards_windows::concentrationByKeyboardToTheEnd()
{
    TestEnvironment env;
    Shown<frmConc> win;
    frmConc *w = win.w;
    w->optType[1]->setChecked(true);
    QCOMPARE(TheSettings().cards.concentration, qint16(1));
    w->cmdNew->setFocus();
    Press(Qt::Key_Return);
    QVERIFY(w->isRunning());
    QCOMPARE(w->game().matchType(), Concentration::BySuit);
    QCOMPARE(QApplication::focusWidget(), w->picBoard);

    // Walks the ring to a place with the arrow keys, then picks with Enter or Space.
    const auto pickByKeys = [&](int place, Qt::Key pick) {
        const auto row = [](int at) { return (at - 1) / 13; };
        const auto column = [](int at) { return (at - 1) % 13; };
        while (row(w->picBoard->cursor()) > row(place))
            Press(Qt::Key_Up);
        while (row(w->picBoard->cursor()) < row(place))
            Press(Qt::Key_Down);
        while (column(w->picBoard->cursor()) > column(place))
            Press(Qt::Key_Left);
        while (column(w->picBoard->cursor()) < column(place))
            Press(Qt::Key_Right);
        Press(pick);
    };
    int pairs = 0;
    while (w->isRunning()) {
        int first = 1;
        while (w->game().isMatched(first) || Partner(w->game(), first, true) == 0)
            ++first;
        pickByKeys(first, Qt::Key_Return);
        pickByKeys(Partner(w->game(), first, true), Qt::Key_Space);
        QVERIFY(++pairs <= 24);
    }
    // Thirteen cards to a suit: one of each suit is left when every pair is found.
    QCOMPARE(pairs, 24);
    QCOMPARE(w->lblMatch[0]->text(), QStringLiteral("48"));
    QCOMPARE(w->lblMatch[1]->text(), QStringLiteral("24"));
    QCOMPARE(w->lblMessage->text(), QStringLiteral("Game Over"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play tada.wav wait"));
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->fraGame->isVisible());
    QVERIFY(w->Frame1->isEnabled());
}

void tst_cards_windows::blackjackHands()
{
    TestEnvironment env;
    Shown<frmBlack> win;
    frmBlack *w = win.w;
    QVERIFY(!w->fraPlay->isVisible());
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QVERIFY(w->fraPlay->isVisible() && w->Label2[0]->isVisible());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    // Finish the first hand whatever it is, then deal stacked hands from slot 20.
    while (!w->game().handOver())
        QTest::mouseClick(w->cmdStay, Qt::LeftButton);
    QVERIFY(w->cmdDeal->isEnabled() && !w->cmdHit->isEnabled());
    int winnings = w->game().winnings();

    const auto stack = [w](const QList<int> &positions) {
        for (int i = 0; i < positions.size(); ++i)
            w->deck().place(20 + i, positions[i]);
        w->deck().next = 20;
    };
    // Computer 10 and 9, pupil ace and king: a blackjack, 15 points, Deal takes the focus.
    stack({10, 9, 1, 13});
    env.sound.events.clear();
    Press(Qt::Key_D);
    QCOMPARE(w->lblResults->text(), QStringLiteral("You have Blackjack!"));
    QCOMPARE(env.sound.events, (QStringList{"stop", "play tada.wav async"}));
    winnings += 15;
    QCOMPARE(w->lblWinnings->text(), Blackjack::winningsText(winnings));
    QCOMPARE(QApplication::focusWidget(), w->cmdDeal);
    QVERIFY(!w->shpBack->isVisible());
    QVERIFY(w->shpDealer[0]->isFaceUp());

    // Computer 10 and 6 with its first card hidden; pupil 2 and 3 hits with H to six cards,
    // which stand by themselves; the computer then draws a king and busts.
    stack({10, 6, 2, 3, 15, 16, 28, 29, 13});
    Press(Qt::Key_D);
    QVERIFY(w->shpBack->isVisible());
    QVERIFY(!w->shpDealer[0]->isVisible());
    QCOMPARE(w->shpDealer[1]->rank(), QStringLiteral("6"));
    QVERIFY(w->lblResults->text().isEmpty());
    QCOMPARE(QApplication::focusWidget(), w->cmdHit);
    for (int hit = 1; hit <= 4; ++hit) {
        QVERIFY(w->cmdHit->isEnabled());
        Press(Qt::Key_H);
        QVERIFY(w->shpPlayer[size_t(hit + 1)]->isFaceUp());
    }
    QCOMPARE(w->lblResults->text(), QStringLiteral("Computer Busts!"));
    QVERIFY(w->shpDealer[2]->isFaceUp());
    QCOMPARE(w->shpDealer[2]->rank(), QStringLiteral("K"));
    winnings += 10;
    QCOMPARE(w->lblWinnings->text(), Blackjack::winningsText(winnings));

    // S is Stay: ace and ace count 12 against 10 and 7.
    stack({10, 7, 1, 14});
    Press(Qt::Key_D);
    Press(Qt::Key_S);
    QCOMPARE(w->lblResults->text(), QStringLiteral("Computer Wins!"));
    QCOMPARE(env.sound.played().last(), QStringLiteral("boing.wav"));
    QCOMPARE(w->lblWinnings->text(), Blackjack::winningsText(winnings - 10));

    // Stop keeps the points on show and hides the play buttons; keys then do nothing.
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QVERIFY(!w->fraPlay->isVisible());
    QVERIFY(w->fraGame->isVisible());
    QCOMPARE(w->lblWinnings->text(), Blackjack::winningsText(winnings - 10));
    const int next = w->game().deck().next;
    Press(Qt::Key_D);
    QCOMPARE(int(w->game().deck().next), next);
}

void tst_cards_windows::switcherAndMenu()
{
    TestEnvironment env;
    ActivityEntry deckhand{13, QStringLiteral("\tDeckhand"),
                           CardGameOpener([] { return OpenCardGame(WarGame); },
                                          [] { return OpenCardGame(ConcentrationGame); },
                                          [] { return OpenCardGame(BlackjackGame); }),
                           QStringLiteral("cards")};
    auto *menu = new frmMenu({deckhand});
    menu->show();
    TheSettings().cards.game = 2;
    menu->openActivity(13);
    QVERIFY(!menu->isVisible());
    QPointer<ActivityWindow> conc = menu->currentActivity();
    QCOMPARE(conc->windowTitle(), QStringLiteral("Deckhand-Concentration"));
    // Concentration names War and Blackjack; Blackjack replaces it and the menu stays hidden.
    auto *toBlackjack = conc->findChild<QPushButton *>(QStringLiteral("cmdGame_1"));
    QCOMPARE(toBlackjack->text(), QStringLiteral("&Blackjack"));
    QTest::mouseClick(toBlackjack, Qt::LeftButton);
    QCOMPARE(TheSettings().cards.game, qint16(3));
    QTRY_VERIFY(conc.isNull());
    QCOMPARE(menu->currentActivity()->windowTitle(), QStringLiteral("Deckhand-Blackjack"));
    QVERIFY(menu->currentActivity()->isVisible());
    QVERIFY(!menu->isVisible());

    auto *toWar = menu->currentActivity()->findChild<QPushButton *>(QStringLiteral("cmdGame_0"));
    QCOMPARE(toWar->text(), QStringLiteral("&War"));
    QTest::mouseClick(toWar, Qt::LeftButton);
    QCOMPARE(TheSettings().cards.game, qint16(1));
    auto *war = qobject_cast<frmWar *>(menu->currentActivity());
    QVERIFY(war);
    QCOMPARE(war->cmdGame[0]->text(), QStringLiteral("&Concentration"));
    // A game under way hides the switcher; Exit between games brings the menu back.
    QTest::mouseClick(war->cmdNew, Qt::LeftButton);
    QVERIFY(!war->fraGame->isVisible());
    QTest::mouseClick(war->cmdExit, Qt::LeftButton);
    QTest::mouseClick(war->cmdExit, Qt::LeftButton);
    QVERIFY(menu->isVisible());
    QVERIFY(!menu->currentActivity());
    // The menu opens the game last chosen.
    menu->openActivity(13);
    QCOMPARE(menu->currentActivity()->windowTitle(), QStringLiteral("Deckhand-War"));
    menu->currentActivity()->close();
    delete menu;
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(tst_cards_windows)
#include "tst_cards_windows.moc"
