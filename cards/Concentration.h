// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Deck.h"

#include <array>
#include <QList>
#include <QPointF>
#include <QRectF>

// The Concentration board: 52 cards face down in 4 rows of 13, picked two at a time and kept
// when they match by value or by suit. Counts every card turned and every match. The game is
// over when no two cards left can match (all gone by value; one of each suit left by suit).
class Concentration {
public:
    static constexpr int Columns = 13;
    static constexpr int Rows = 4;
    static constexpr int Places = Columns * Rows;
    enum MatchType { ByValue = 0, BySuit = 1 };
    enum class Pick { Ignored, First, NoMatch, Match, AllMatched };

    // A new game over the shuffled order 1..52 (element 0 unused).
    void start(const QList<qint16> &order, MatchType type);
    void start(MatchType type, RandomSource &random = CurrentRandomSource());
    // Ends the game where it stands; later picks are ignored.
    void stop() { m_running = false; }

    // Turns the card at place 1 to 52. Taken places, places out of range and picks while no
    // game runs are ignored and count nothing.
    Pick pick(int place);

    // The place (1 to 52) under a point of a grid drawn in `grid`, or 0 outside it.
    static int placeAt(QPointF point, QRectF grid);

    bool isRunning() const { return m_running; }
    Deck::ConcentrationCard card(int place) const { return m_cards[size_t(place)]; }
    bool isTaken(int place) const { return m_taken[size_t(place)]; }
    // A place whose card has been matched and left the board.
    bool isMatched(int place) const { return m_matched[size_t(place)]; }
    int remaining() const { return m_remaining; }
    int guesses() const { return m_guesses; }
    int matches() const { return m_matches; }
    // 1 while the first card of a pair is awaited, 2 while the second is.
    int pickNumber() const { return m_pick; }
    int firstPlace() const { return m_first; }
    int secondPlace() const { return m_second; }
    MatchType matchType() const { return m_type; }

private:
    bool pairLeft() const;

    std::array<Deck::ConcentrationCard, Places + 1> m_cards{};
    std::array<bool, Places + 1> m_taken{};
    std::array<bool, Places + 1> m_matched{};
    MatchType m_type = ByValue;
    bool m_running = false;
    int m_remaining = 0;
    int m_guesses = 0;
    int m_matches = 0;
    int m_pick = 1;
    int m_first = 0;
    int m_second = 0;
};
