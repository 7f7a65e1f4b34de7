// SPDX-License-Identifier: GPL-3.0-or-later
#include "Blackjack.h"

Blackjack::Ending Blackjack::ending(Outcome outcome)
{
    switch (outcome) {
    case Outcome::TwoBlackjacks:
        return {QStringLiteral("Two Blackjacks!"), QStringLiteral("wow.wav"), 0};
    case Outcome::ComputerBlackjack:
        return {QStringLiteral("Computer Blackjack!"), QStringLiteral("boing.wav"), -10};
    case Outcome::PupilBlackjack:
        return {QStringLiteral("You have Blackjack!"), QStringLiteral("tada.wav"), 15};
    case Outcome::PupilBust:
        return {QStringLiteral("You Bust!"), QStringLiteral("boing.wav"), -10};
    case Outcome::ComputerWins:
        return {QStringLiteral("Computer Wins!"), QStringLiteral("boing.wav"), -10};
    case Outcome::Push:
        return {QStringLiteral("It's a Push!"), QStringLiteral("chimes.wav"), 0};
    case Outcome::PupilWins:
        return {QStringLiteral("You Win!"), QStringLiteral("tada.wav"), 10};
    case Outcome::ComputerBusts:
        return {QStringLiteral("Computer Busts!"), QStringLiteral("tada.wav"), 10};
    case Outcome::Playing:
        break;
    }
    return {};
}

int Blackjack::bestTotal(int hardTotal, int aces)
{
    int total = hardTotal;
    bool added = false;
    while (aces > 0 && total < 22) {
        total += 10;
        --aces;
        added = true;
    }
    if (added && total > 21)
        total -= 10;
    return total;
}

QString Blackjack::winningsText(int winnings)
{
    if (winnings == 0)
        return QStringLiteral("Even");
    return QStringLiteral("%1 %2")
        .arg(winnings > 0 ? QStringLiteral("Won") : QStringLiteral("Lost"))
        .arg(qAbs(winnings));
}

Blackjack::Outcome Blackjack::newGame()
{
    m_winnings = 0;
    Shuffle_Cards(m_deck, random());
    return newHand();
}

void Blackjack::add(Hand &hand)
{
    const auto slot = size_t(m_deck.next);
    hand.held.append(m_deck.next);
    hand.total += m_deck.value[slot];
    if (m_deck.value[slot] == 1)
        ++hand.aces;
    ++m_deck.next;
}

Blackjack::Outcome Blackjack::newHand()
{
    if (m_deck.next > ReshuffleAfter)
        Shuffle_Cards(m_deck, random());
    m_outcome = Outcome::Playing;
    m_staying = false;
    m_computer = {};
    add(m_computer);
    add(m_computer);
    m_player = {};
    add(m_player);
    add(m_player);

    // Only the first two cards can make a blackjack: an ace with a card worth ten.
    for (Hand *hand : {&m_computer, &m_player})
        if (hand->total == 11 && hand->aces == 1)
            hand->total = 21;
    const bool computer21 = m_computer.total == 21;
    const bool player21 = m_player.total == 21;
    if (computer21 && player21)
        return end(Outcome::TwoBlackjacks);
    if (computer21)
        return end(Outcome::ComputerBlackjack);
    if (player21)
        return end(Outcome::PupilBlackjack);
    return m_outcome;
}

Blackjack::Outcome Blackjack::hit()
{
    if (handOver() || m_staying)
        return m_outcome;
    add(m_player);
    if (m_player.total >= 22)
        return end(Outcome::PupilBust);
    if (m_player.cards() == MaxCards)
        return stay();
    return m_outcome;
}

Blackjack::Outcome Blackjack::stay()
{
    if (handOver())
        return m_outcome;
    m_staying = true;
    m_player.total = bestTotal(m_player.total, m_player.aces);
    m_player.aces = 0;
    for (;;) {
        const int computerBest = bestTotal(m_computer.total, m_computer.aces);
        if (computerBest > 16) {
            if (computerBest > m_player.total)
                return end(Outcome::ComputerWins);
            if (computerBest == m_player.total)
                return end(Outcome::Push);
            return end(Outcome::PupilWins);
        }
        // A computer stuck at six cards on 16 or less loses the hand.
        if (m_computer.cards() == MaxCards)
            return end(Outcome::PupilWins);
        add(m_computer);
        if (m_computer.total > 21)
            return end(Outcome::ComputerBusts);
    }
}

Blackjack::Outcome Blackjack::end(Outcome outcome)
{
    m_outcome = outcome;
    m_winnings += ending(outcome).points;
    return outcome;
}
