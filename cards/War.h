// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"

#include <array>
#include <QList>

// The state of a game of War between the pupil (side 1) and the computer (side 2): each side's
// face-down play pile and won pile, the cards on the table by slot, and who has won. Slots 1 to 5
// are the pupil's places on the table and slots 6 to 10 the computer's (slot i + 5 faces slot i).
class War {
public:
    enum Side { Nobody = 0, Pupil = 1, Computer = 2 };
    enum class Result { PupilTakes, ComputerTakes, War, TakeBack };
    static constexpr int Slots = 5;

    // Without a source of its own it draws from the process-wide one.
    explicit War(RandomSource *random = nullptr) : m_random(random) {}

    // Shuffles the deck and gives each side 26 cards.
    void deal();
    // Starts from given piles, top card first (any sizes that add up to the deck).
    void deal(const QList<qint16> &pupilPile, const QList<qint16> &computerPile);

    // Turns each side's next card into the current slot pair. False when a side has no card
    // left to lay: the game is then over and the other side has won.
    bool turnPair();
    // Settles the pair just turned: the higher rank takes the table, equal ranks start a war
    // (below slot 5) or, at slot 5, send each side's own cards back to it.
    Result settle();
    // Lays three face-down pairs after a tie; the next pair turned decides, in slot 5.
    // False when a side runs out while laying, which ends the game.
    bool layWar();

    int current() const { return m_current; }
    // The card (1 to 52) lying in table slot 1 to 10, or 0.
    int tableCard(int slot) const { return m_table[size_t(slot)]; }
    int count(Side side) const { return pile(side).count; }
    int playLeft(Side side) const { return int(pile(side).play.size()) - pile(side).top; }
    int wonCount(Side side) const { return int(pile(side).won.size()); }
    const QList<qint16> &wonPile(Side side) const { return pile(side).won; }
    Side winner() const { return m_winner; }
    bool isOver() const { return m_winner != Nobody; }

private:
    struct Pile {
        QList<qint16> play;
        int top = 0;
        QList<qint16> won;
        int count = 0;
    };
    Pile &pile(Side side) { return side == Pupil ? m_pupil : m_computer; }
    const Pile &pile(Side side) const { return side == Pupil ? m_pupil : m_computer; }
    // The side's next card, refilling its play pile from its shuffled won pile; 0 when none.
    int takeCard(Side side);
    bool layPair(int slot);
    void clearTable();
    void endGame(Side winner);

    RandomSource &random() { return m_random ? *m_random : CurrentRandomSource(); }

    RandomSource *m_random;
    Pile m_pupil;
    Pile m_computer;
    std::array<int, 2 * Slots + 1> m_table{};
    int m_current = 1;
    Side m_winner = Nobody;
};
