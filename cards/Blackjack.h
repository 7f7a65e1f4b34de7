// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Deck.h"

#include <QList>
#include <QString>

// A game of Blackjack for points between the pupil and the computer: the deck in dealing
// order, both hands, the running winnings, and how each hand ends (message, sound, points).
class Blackjack {
public:
    static constexpr int MaxCards = 6;
    // Past this slot a new hand shuffles first; a hand takes at most twelve cards.
    static constexpr int ReshuffleAfter = 35;

    enum class Outcome {
        Playing,
        TwoBlackjacks,
        ComputerBlackjack,
        PupilBlackjack,
        PupilBust,
        ComputerWins,
        Push,
        PupilWins,
        ComputerBusts
    };
    // How a hand ended: the words shown, the sound's file name and the points won or lost.
    struct Ending {
        QString message;
        QString sound;
        int points = 0;
    };
    static Ending ending(Outcome outcome);

    struct Hand {
        QList<int> held; // deck slots of the cards held, in the order dealt
        int aces = 0;
        int total = 0; // aces counted as 1
        int cards() const { return int(held.size()); }
    };

    // Without a source of its own it draws from the process-wide one.
    explicit Blackjack(RandomSource *random = nullptr) : m_random(random) {}

    // Winnings back to even and a freshly shuffled deck, then the first hand.
    Outcome newGame();
    // Two cards each, the computer first; an ended hand (a blackjack) has counted its points.
    Outcome newHand();
    Outcome hit();
    Outcome stay();

    // The total with at most one ace counted as 11, when that keeps it at 21 or less.
    static int bestTotal(int hardTotal, int aces);
    // "Even", "Won 15" or "Lost 10".
    static QString winningsText(int winnings);

    BlackjackDeck &deck() { return m_deck; }
    const BlackjackDeck &deck() const { return m_deck; }
    const Hand &computer() const { return m_computer; }
    const Hand &player() const { return m_player; }
    int winnings() const { return m_winnings; }
    Outcome outcome() const { return m_outcome; }
    bool handOver() const { return m_outcome != Outcome::Playing; }
    // The computer's first card lies face down until the pupil stays or the hand ends.
    bool holeCardHidden() const { return !handOver() && !m_staying; }

private:
    void add(Hand &hand);
    Outcome end(Outcome outcome);

    RandomSource &random() { return m_random ? *m_random : CurrentRandomSource(); }

    RandomSource *m_random;
    BlackjackDeck m_deck;
    Hand m_computer;
    Hand m_player;
    int m_winnings = 0;
    Outcome m_outcome = Outcome::Playing;
    bool m_staying = false;
};
