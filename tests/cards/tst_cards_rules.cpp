// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/Blackjack.h"
#include "cards/Concentration.h"
#include "cards/Deck.h"
#include "cards/War.h"
#include "support/TestDoubles.h"

#include <QSet>
#include <QTest>

// The deck's numberings and the rules of War, Concentration and Blackjack, without windows.
class tst_cards_rules : public QObject {
    Q_OBJECT
private slots:
    void numberingsAtTheEdges_data();
    void numberingsAtTheEdges();
    void shuffleCards();
    void warRounds();
    void warInsideAWarGivesBackOwnCards();
    void warPlaysOnFromTheShuffledWonPile();
    void warEnds_data();
    void warEnds();
    void concentrationMatching_data();
    void concentrationMatching();
    void concentrationIgnoresTakenAndOutside();
    void concentrationPerfectGame();
    void concentrationPlaceFromPoint_data();
    void concentrationPlaceFromPoint();
    void blackjackHands_data();
    void blackjackHands();
    void blackjackWinningsText();
    void blackjackReshufflesPastSlot35();
};

namespace {

// A deck whose first slots deal the given positions and whose other slots hold the rest.
void Stack(BlackjackDeck &deck, const QList<int> &positions)
{
    QSet<int> used(positions.cbegin(), positions.cend());
    int slot = 1;
    for (int position : positions)
        deck.place(slot++, position);
    for (int position = 1; position <= Deck::Size; ++position)
        if (!used.contains(position))
            deck.place(slot++, position);
    deck.next = 1;
}

// Every card not named, in order, to fill out a War pile.
QList<qint16> Rest(const QList<qint16> &named)
{
    QList<qint16> rest;
    for (qint16 card = 1; card <= Deck::Size; ++card)
        if (!named.contains(card))
            rest.append(card);
    return rest;
}

} // namespace

void tst_cards_rules::numberingsAtTheEdges_data()
{
    // Each card as the games read it: suit, War text, Blackjack text and value, then
    // Concentration's text and suit for the same number.
    QTest::addColumn<int>("card");
    QTest::addColumn<QString>("reads");
    const std::pair<int, const char *> rows[] = {
        {1, "0 2 A 1 A 0"},   {2, "0 3 2 2 A 1"},   {9, "0 10 9 9 5 0"}, {10, "0 J 10 10 5 1"},
        {12, "0 K Q 10 6 1"}, {13, "0 A K 10 7 0"}, {14, "1 2 A 1 7 1"}, {26, "1 A K 10 K 1"},
        {27, "2 2 A 1 A 2"},  {28, "2 3 2 2 A 3"},  {52, "3 A K 10 K 3"}};
    for (const auto &[card, reads] : rows)
        QTest::newRow(qPrintable(QString::number(card))) << card << QString::fromLatin1(reads);
}

void tst_cards_rules::numberingsAtTheEdges()
{
    QFETCH(int, card);
    QFETCH(QString, reads);
    const int rank = Deck::RankIndex(card);
    BlackjackDeck deck;
    deck.place(7, card);
    const Deck::ConcentrationCard pairCard = Deck::ConcentrationNumbering(card);
    const QString seen = QStringLiteral("%1 %2 %3 %4 %5 %6")
                             .arg(Deck::SuitIndex(card))
                             .arg(Deck::WarText(rank), Deck::BlackjackText(rank))
                             .arg(Deck::BlackjackValue(rank))
                             .arg(Deck::ConcentrationText(pairCard.value))
                             .arg(pairCard.suit);
    QCOMPARE(seen, reads);
    QCOMPARE(rank, (card - 1) % 13);
    QCOMPARE(QStringLiteral("%1 %2 %3").arg(deck.suit[7]).arg(deck.text[7]).arg(deck.value[7]),
             reads.section(u' ', 0, 0) + u' ' + reads.section(u' ', 2, 3));
}

void tst_cards_rules::shuffleCards()
{
    BlackjackDeck deck;
    const auto card = [&deck](int slot) {
        return QStringLiteral("%1/%2").arg(deck.suit[size_t(slot)]).arg(deck.text[size_t(slot)]);
    };
    for (qint64 seed = 1; seed <= 300; ++seed) {
        Generator random(seed);
        deck.next = 30;
        Shuffle_Cards(deck, random);
        QCOMPARE(int(deck.next), 1);
        QSet<QString> seen;
        for (int slot = 1; slot <= Deck::Size; ++slot)
            seen.insert(card(slot));
        QCOMPARE(seen.size(), Deck::Size);
    }
    // Draws of 0 take the first free position, so the deck comes out in order; a first draw
    // of 0.5 takes position 27 (ace of suit 2) and draws near 1 then the last free ones.
    ScriptedRandom low;
    low.values = QList<double>(52, 0.0);
    Shuffle_Cards(deck, low);
    for (int slot = 1; slot <= Deck::Size; ++slot)
        QCOMPARE(
            card(slot),
            QStringLiteral("%1/%2").arg((slot - 1) / 13).arg(Deck::BlackjackText((slot - 1) % 13)));
    ScriptedRandom high;
    high.values = QList<double>(52, 0.9999);
    high.values[0] = 0.5;
    Shuffle_Cards(deck, high);
    const QStringList expected{"2/A", "3/K", "2/2", "1/K", "0/A"};
    QCOMPARE((QStringList{card(1), card(2), card(26), card(27), card(52)}), expected);
}

void tst_cards_rules::warRounds()
{
    Generator random(5);
    War war(&random);
    // The pupil's ace (13) beats the computer's king (12).
    QList<qint16> pupil{13};
    QList<qint16> computer{12};
    pupil += Rest({13, 12}).mid(0, 25);
    computer += Rest({13, 12}).mid(25);
    war.deal(pupil, computer);
    QVERIFY(war.turnPair());
    QCOMPARE(war.tableCard(6), 12);
    QCOMPARE(war.settle(), War::Result::PupilTakes);
    QCOMPARE(war.count(War::Pupil), 27);
    QCOMPARE(war.count(War::Computer), 25);
    QCOMPARE(war.wonPile(War::Pupil), (QList<qint16>{13, 12}));
    QCOMPARE(war.tableCard(1), 0);

    // Two 2s (1 and 14) start a war: three face-down pairs, then the pair in slot 5 decides,
    // here the computer's 5 (17) against the pupil's 4 (3).
    pupil = {1, 4, 5, 6, 3};
    computer = {14, 30, 31, 32, 17};
    pupil += Rest(pupil + computer).mid(0, 21);
    computer += Rest(pupil + computer);
    war.deal(pupil, computer);
    QVERIFY(war.turnPair());
    QCOMPARE(war.settle(), War::Result::War);
    QVERIFY(war.layWar());
    QCOMPARE(war.current(), 5);
    for (int slot = 2; slot <= 4; ++slot)
        QCOMPARE(war.tableCard(slot) * 100 + war.tableCard(slot + 5),
                 pupil[slot - 1] * 100 + computer[slot - 1]);
    QVERIFY(war.turnPair());
    QCOMPARE(war.settle(), War::Result::ComputerTakes);
    QCOMPARE(war.count(War::Pupil), 21);
    QCOMPARE(war.count(War::Computer), 31);
    QCOMPARE(war.wonPile(War::Computer), (QList<qint16>{1, 4, 5, 6, 3, 14, 30, 31, 32, 17}));
}

void tst_cards_rules::warInsideAWarGivesBackOwnCards()
{
    War war;
    const QList<qint16> pupil{1, 2, 3, 4, 5, 40};
    const QList<qint16> computer{14, 28, 29, 30, 18, 41};
    war.deal(pupil + Rest(pupil + computer).mid(0, 20), computer + Rest(pupil + computer).mid(20));
    QVERIFY(war.turnPair());
    QCOMPARE(war.settle(), War::Result::War);
    QVERIFY(war.layWar());
    QVERIFY(war.turnPair());
    // Two 6s (5 and 18) in slot 5: no room for another war.
    QCOMPARE(war.settle(), War::Result::TakeBack);
    QCOMPARE(war.wonPile(War::Pupil), pupil.mid(0, 5));
    QCOMPARE(war.wonPile(War::Computer), computer.mid(0, 5));
    QCOMPARE(war.count(War::Pupil), 26);
    QVERIFY(war.turnPair());
    QCOMPARE(war.tableCard(1), 40);
}

void tst_cards_rules::warPlaysOnFromTheShuffledWonPile()
{
    Generator random(77);
    War war(&random);
    // The pupil holds only an ace; after winning with it the play pile is empty.
    QList<qint16> computer = Rest({13});
    war.deal({13}, computer);
    QVERIFY(war.turnPair());
    QCOMPARE(war.settle(), War::Result::PupilTakes);
    QCOMPARE(war.playLeft(War::Pupil), 0);
    QCOMPARE(war.wonCount(War::Pupil), 2);
    QVERIFY(war.turnPair());
    const QList<qint16> won{13, computer[0]};
    QVERIFY(won.contains(qint16(war.tableCard(1))));
    QCOMPARE(war.wonCount(War::Pupil), 0);
    QCOMPARE(war.playLeft(War::Pupil), 1);
    QCOMPARE(war.count(War::Pupil), 2);
}

void tst_cards_rules::warEnds_data()
{
    QTest::addColumn<QList<qint16>>("pupil");
    QTest::addColumn<QList<qint16>>("computer");
    QTest::addColumn<int>("restTo");
    QTest::addColumn<int>("winner");
    // The pupil's last card, a 2, loses to the computer's 3: the computer holds all 52.
    QTest::newRow("computer takes the last card") << QList<qint16>{1} << QList<qint16>{2} << 2 << 2;
    QTest::newRow("pupil takes the last card") << QList<qint16>{26} << QList<qint16>{1} << 1 << 1;
    // A tie with two cards left: the pupil lays one card face down but not a second.
    QTest::newRow("pupil runs out in a war") << QList<qint16>{1, 2} << QList<qint16>{14} << 2 << 2;
    QTest::newRow("computer runs out in a war")
        << QList<qint16>{1} << QList<qint16>{14, 15, 16} << 1 << 1;
}

void tst_cards_rules::warEnds()
{
    QFETCH(QList<qint16>, pupil);
    QFETCH(QList<qint16>, computer);
    QFETCH(int, restTo);
    QFETCH(int, winner);
    const QList<qint16> rest = Rest(pupil + computer);
    (restTo == 1 ? pupil : computer) += rest;
    War war;
    war.deal(pupil, computer);
    QVERIFY(war.turnPair());
    const War::Result first = war.settle();
    if (first == War::Result::War)
        QVERIFY(!war.layWar());
    QVERIFY(war.isOver());
    QCOMPARE(int(war.winner()), winner);
    QCOMPARE(war.count(War::Side(winner)), 52);
    QCOMPARE(war.count(War::Side(3 - winner)), 0);
    QVERIFY(!war.turnPair());
}

void tst_cards_rules::concentrationMatching_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("match");
    // Shuffled numbers as Concentration reads them: 1 and 2 the aces of suits 0 and 1,
    // 13 the 7 of suit 0, 27 the ace of suit 2.
    QTest::newRow("value: two aces of different suits") << 0 << 1 << 2 << true;
    QTest::newRow("value: aces of the other half") << 0 << 1 << 27 << true;
    QTest::newRow("value: ace and seven of one suit") << 0 << 1 << 13 << false;
    QTest::newRow("suit: ace and seven of one suit") << 1 << 1 << 13 << true;
    QTest::newRow("suit: two aces of different suits") << 1 << 1 << 2 << false;
    QTest::newRow("suit: suits 0 and 2 differ") << 1 << 1 << 27 << false;
}

void tst_cards_rules::concentrationMatching()
{
    QFETCH(int, type);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, match);
    // Places 1 and 2 hold the two numbers; the rest of the board is dealt in order.
    QList<qint16> order{0, qint16(first), qint16(second)};
    for (qint16 k = 1; k <= 52; ++k)
        if (k != first && k != second)
            order.append(k);
    Concentration board;
    board.start(order, Concentration::MatchType(type));
    QCOMPARE(board.pick(1), Concentration::Pick::First);
    QVERIFY(board.isTaken(1));
    QCOMPARE(board.pick(2), match ? Concentration::Pick::Match : Concentration::Pick::NoMatch);
    // A miss turns both cards back down; a match keeps them.
    QCOMPARE(board.isTaken(1) && board.isTaken(2) && board.isMatched(2), match);
    QCOMPARE(board.matches(), match ? 1 : 0);
    QCOMPARE(board.remaining(), match ? 50 : 52);
    QCOMPARE(board.guesses(), 2);
    QCOMPARE(board.pickNumber(), 1);
}

void tst_cards_rules::concentrationIgnoresTakenAndOutside()
{
    Concentration board;
    QCOMPARE(board.pick(1), Concentration::Pick::Ignored); // no game yet
    board.start(Concentration::ByValue);
    QCOMPARE(board.guesses(), 0);
    for (int place : {0, -1, 53, 30000})
        QCOMPARE(board.pick(place), Concentration::Pick::Ignored);
    QCOMPARE(board.pick(5), Concentration::Pick::First);
    QCOMPARE(board.pick(5), Concentration::Pick::Ignored); // the card already turned
    QCOMPARE(board.guesses(), 1);
    QCOMPARE(board.pickNumber(), 2);
    board.stop();
    QCOMPARE(board.pick(6), Concentration::Pick::Ignored);
    QCOMPARE(board.guesses(), 1);
}

void tst_cards_rules::concentrationPerfectGame()
{
    // A pupil with a perfect memory: every second card turned finds its partner.
    Generator random(9);
    Concentration board;
    board.start(Concentration::ByValue, random);
    QList<int> left;
    for (int place = 1; place <= Concentration::Places; ++place)
        left.append(place);
    for (int pairs = 1; pairs <= 26; ++pairs) {
        const int first = left.takeFirst();
        const auto partner = std::find_if(left.begin(), left.end(), [&](int place) {
            return board.card(place).value == board.card(first).value;
        });
        QVERIFY(partner != left.end());
        QCOMPARE(board.pick(first), Concentration::Pick::First);
        QCOMPARE(board.pick(*partner),
                 pairs < 26 ? Concentration::Pick::Match : Concentration::Pick::AllMatched);
        QCOMPARE(board.pick(*partner), Concentration::Pick::Ignored); // gone from the board
        left.erase(partner);
    }
    QCOMPARE(board.guesses(), 52);
    QCOMPARE(board.matches(), 26);
    QCOMPARE(board.remaining(), 0);
    QVERIFY(!board.isRunning());
}

void tst_cards_rules::concentrationPlaceFromPoint_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("place");
    // A grid of 13 cards of 20 across and 4 of 30 down, from (10, 40).
    QTest::newRow("top left corner") << QPointF(10, 40) << 1;
    QTest::newRow("top right card") << QPointF(269.9, 69.9) << 13;
    QTest::newRow("last card") << QPointF(269.9, 159.9) << 52;
    QTest::newRow("left of the grid") << QPointF(9.9, 50) << 0;
    QTest::newRow("right of the grid") << QPointF(270, 50) << 0;
    QTest::newRow("below the grid") << QPointF(50, 160) << 0;
    QTest::newRow("far away") << QPointF(-1e9, 1e12) << 0;
}

void tst_cards_rules::concentrationPlaceFromPoint()
{
    QFETCH(QPointF, point);
    QFETCH(int, place);
    QCOMPARE(Concentration::placeAt(point, QRectF(10, 40, 260, 120)), place);
    QCOMPARE(Concentration::placeAt(point, QRectF()), 0);
}

void tst_cards_rules::blackjackHands_data()
{
    // Deck positions in dealing order: the computer's two cards, the pupil's two, then the
    // cards drawn. Positions 1 to 13 are A, 2 ... 10, J, Q, K of suit 0; 14 is the next ace.
    // The ending reads message|sound|points.
    QTest::addColumn<QList<int>>("deal");
    QTest::addColumn<QString>("moves");
    QTest::addColumn<QString>("ending");
    QTest::addColumn<int>("playerTotal");
    QTest::addColumn<int>("computerCards");
    // clang-format off
    QTest::newRow("both blackjack") << QList<int>{1, 13, 14, 26} << "" << "Two Blackjacks!|wow.wav|0" << 21 << 2;
    QTest::newRow("computer blackjack") << QList<int>{1, 13, 10, 9} << "" << "Computer Blackjack!|boing.wav|-10" << 19 << 2;
    QTest::newRow("pupil blackjack") << QList<int>{10, 9, 1, 13} << "" << "You have Blackjack!|tada.wav|15" << 21 << 2;
    QTest::newRow("pupil busts") << QList<int>{10, 7, 23, 19, 13} << "H" << "You Bust!|boing.wav|-10" << 26 << 2;
    QTest::newRow("computer higher") << QList<int>{10, 9, 23, 8} << "S" << "Computer Wins!|boing.wav|-10" << 18 << 2;
    QTest::newRow("soft 17 stands, push") << QList<int>{1, 6, 14, 19} << "S" << "It's a Push!|chimes.wav|0" << 17 << 2;
    QTest::newRow("pupil higher") << QList<int>{10, 7, 23, 9} << "S" << "You Win!|tada.wav|10" << 19 << 2;
    QTest::newRow("computer busts") << QList<int>{10, 6, 23, 8, 13} << "S" << "Computer Busts!|tada.wav|10" << 18 << 3;
    QTest::newRow("computer stuck at six cards") << QList<int>{2, 15, 10, 9, 28, 41, 3, 16} << "S" << "You Win!|tada.wav|10" << 19 << 6;
    QTest::newRow("ace and ace is 12") << QList<int>{10, 7, 1, 14} << "S" << "Computer Wins!|boing.wav|-10" << 12 << 2;
    // Six cards without passing 21 stand by themselves: 2+2+2+2+3+3 = 14 against 17.
    QTest::newRow("pupil's six cards stand") << QList<int>{10, 7, 2, 15, 28, 41, 3, 16} << "HHHH" << "Computer Wins!|boing.wav|-10" << 14 << 2;
    QTest::newRow("hit then stay with an ace") << QList<int>{10, 8, 4, 5, 1} << "HS" << "You Win!|tada.wav|10" << 20 << 2;
    // clang-format on
}

void tst_cards_rules::blackjackHands()
{
    QFETCH(QList<int>, deal);
    QFETCH(QString, moves);
    QFETCH(QString, ending);
    QFETCH(int, playerTotal);
    QFETCH(int, computerCards);
    Blackjack game;
    Stack(game.deck(), deal);
    Blackjack::Outcome outcome = game.newHand();
    QCOMPARE(int(game.deck().next), 5);
    for (const QChar move : moves) {
        QVERIFY(!game.handOver());
        QVERIFY(game.holeCardHidden());
        outcome = move == u'H' ? game.hit() : game.stay();
    }
    QVERIFY(game.handOver());
    QVERIFY(!game.holeCardHidden());
    const Blackjack::Ending end = Blackjack::ending(outcome);
    QCOMPARE(QStringLiteral("%1|%2|%3").arg(end.message, end.sound).arg(end.points), ending);
    QCOMPARE(game.winnings(), end.points);
    QCOMPARE(game.player().total, playerTotal);
    QCOMPARE(game.computer().cards(), computerCards);
    // An ended hand takes no more cards.
    const int next = game.deck().next;
    QCOMPARE(game.hit(), outcome);
    QCOMPARE(game.stay(), outcome);
    QCOMPARE(int(game.deck().next), next);
}

void tst_cards_rules::blackjackWinningsText()
{
    QCOMPARE(Blackjack::winningsText(15), QStringLiteral("Won 15"));
    // Two lost hands, then two won: Lost 20 and back to Even.
    Blackjack game;
    const QList<std::pair<QList<int>, bool>> hands{{{1, 13, 10, 9}, false},
                                                   {{14, 26, 11, 12}, false},
                                                   {{10, 7, 23, 9}, true},
                                                   {{10, 7, 23, 9}, true}};
    QStringList shown;
    for (const auto &[deal, stays] : hands) {
        Stack(game.deck(), deal);
        game.newHand();
        if (stays)
            game.stay();
        shown.append(Blackjack::winningsText(game.winnings()));
    }
    QCOMPARE(shown, (QStringList{"Lost 10", "Lost 20", "Lost 10", "Even"}));
}

void tst_cards_rules::blackjackReshufflesPastSlot35()
{
    Generator random(3);
    Blackjack game(&random);
    game.newGame();
    BlackjackDeck ordered;
    Stack(ordered, {});
    // At slot 35 the hand is dealt from the same deck; at 36 the deck is shuffled first.
    for (const int next : {35, 36}) {
        Stack(game.deck(), {});
        game.deck().next = qint16(next);
        game.newHand();
        const bool same = next == 35;
        QCOMPARE(game.player().held, (same ? QList<int>{37, 38} : QList<int>{3, 4}));
        QCOMPARE(game.deck().text == ordered.text && game.deck().suit == ordered.suit, same);
    }
}

QTEST_GUILESS_MAIN(tst_cards_rules)
#include "tst_cards_rules.moc"
