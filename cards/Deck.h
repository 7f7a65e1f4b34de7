// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"

#include <array>
#include <QString>

// One numbering of a 52-card deck shared by the card games: card 1 to 52, thirteen ranks to a
// suit. Each game reads the rank in its own way, so each keeps its own table on purpose.
namespace Deck {
inline constexpr int Size = 52;
inline constexpr int Ranks = 13;
inline constexpr int Suits = 4;

// Suit 0 to 3 and rank 0 to 12 of a card 1 to 52.
int SuitIndex(int card);
int RankIndex(int card);

// War: aces high, rank 0 is "2" and rank 12 is "A".
QString WarText(int rankIndex);

// Blackjack: aces low, rank 0 is "A" (worth 1) and rank 12 is "K" (worth 10).
QString BlackjackText(int rankIndex);
int BlackjackValue(int rankIndex);

// Concentration numbers its shuffled cards so that neighbours pair up: 1 and 2 are the aces
// of suits 0 and 1, 27 and 28 the aces of suits 2 and 3.
struct ConcentrationCard {
    int value = 0; // 1 ace to 13 king
    int suit = 0;
    bool operator==(const ConcentrationCard &) const = default;
};
ConcentrationCard ConcentrationNumbering(int k);
QString ConcentrationText(int value);
} // namespace Deck

// Blackjack's dealing order: what lies in deck slots 1 to 52 and which slot deals next.
struct BlackjackDeck {
    std::array<QString, Deck::Size + 1> text;
    std::array<qint16, Deck::Size + 1> value{};
    std::array<qint16, Deck::Size + 1> suit{};
    qint16 next = 1;

    // Puts the card of deck position 1 to 52 into a dealing slot.
    void place(int slot, int position);
};

// Fills the dealing order by drawing the free positions one by one (the r-th still free
// position for r = Int(random * remaining) + 1) and starts dealing at slot 1.
void Shuffle_Cards(BlackjackDeck &deck, RandomSource &random = CurrentRandomSource());
