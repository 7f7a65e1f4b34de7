// SPDX-License-Identifier: GPL-3.0-or-later
#include "War.h"

#include "Deck.h"
#include "shell/core/Shuffle.h"

void War::deal()
{
    QList<qint16> order(Deck::Size + 1);
    Shuffle(Deck::Size, order, random());
    deal(order.mid(1, Deck::Size / 2), order.mid(1 + Deck::Size / 2));
}

void War::deal(const QList<qint16> &pupilPile, const QList<qint16> &computerPile)
{
    m_pupil = {pupilPile, 0, {}, int(pupilPile.size())};
    m_computer = {computerPile, 0, {}, int(computerPile.size())};
    clearTable();
    m_winner = Nobody;
}

int War::takeCard(Side side)
{
    Pile &p = pile(side);
    if (p.top >= p.play.size()) {
        if (p.won.isEmpty())
            return 0;
        // The won cards come back in a fresh random order, as a player would shuffle them.
        const auto n = qint16(p.won.size());
        QList<qint16> order(n + 1);
        Shuffle(n, order, random());
        p.play.clear();
        for (int i = 1; i <= n; ++i)
            p.play.append(p.won[order[i] - 1]);
        p.won.clear();
        p.top = 0;
    }
    return p.play[p.top++];
}

bool War::layPair(int slot)
{
    const int pupilCard = takeCard(Pupil);
    const int computerCard = takeCard(Computer);
    m_table[size_t(slot)] = pupilCard;
    m_table[size_t(slot + Slots)] = computerCard;
    // A side that cannot lay a card has lost: the cards in dispute go to the side that could
    // still play, so the game ends with all 52 on one side.
    if (pupilCard == 0 || computerCard == 0) {
        endGame(pupilCard == 0 ? Computer : Pupil);
        return false;
    }
    return true;
}

bool War::turnPair()
{
    if (isOver())
        return false;
    return layPair(m_current);
}

War::Result War::settle()
{
    const int pupilRank = Deck::RankIndex(m_table[size_t(m_current)]);
    const int computerRank = Deck::RankIndex(m_table[size_t(m_current + Slots)]);
    if (pupilRank == computerRank && m_current < Slots)
        return Result::War;

    Side taker = pupilRank > computerRank ? Pupil : Computer;
    if (pupilRank == computerRank) {
        for (int slot = 1; slot <= Slots; ++slot) {
            m_pupil.won.append(qint16(m_table[size_t(slot)]));
            m_computer.won.append(qint16(m_table[size_t(slot + Slots)]));
        }
        clearTable();
        return Result::TakeBack;
    }
    Pile &winner = pile(taker);
    Pile &loser = pile(taker == Pupil ? Computer : Pupil);
    for (int slot = 1; slot <= m_current; ++slot)
        winner.won.append(qint16(m_table[size_t(slot)]));
    for (int slot = 1; slot <= m_current; ++slot)
        winner.won.append(qint16(m_table[size_t(slot + Slots)]));
    winner.count += m_current;
    loser.count -= m_current;
    clearTable();
    if (winner.count == Deck::Size)
        endGame(taker);
    return taker == Pupil ? Result::PupilTakes : Result::ComputerTakes;
}

bool War::layWar()
{
    for (int i = 0; i < 3; ++i) {
        ++m_current;
        if (!layPair(m_current))
            return false;
    }
    ++m_current;
    return true;
}

void War::clearTable()
{
    m_table.fill(0);
    m_current = 1;
}

void War::endGame(Side winner)
{
    m_winner = winner;
    pile(winner).count = Deck::Size;
    pile(winner == Pupil ? Computer : Pupil).count = 0;
}
