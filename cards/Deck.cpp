// SPDX-License-Identifier: GPL-3.0-or-later
#include "Deck.h"

#include <QtGlobal>

namespace Deck {

int SuitIndex(int card)
{
    Q_ASSERT(card >= 1 && card <= Size);
    return (card - 1) / Ranks;
}

int RankIndex(int card)
{
    Q_ASSERT(card >= 1 && card <= Size);
    return (card - 1) % Ranks;
}

QString WarText(int rankIndex)
{
    switch (rankIndex) {
    case 9:
        return QStringLiteral("J");
    case 10:
        return QStringLiteral("Q");
    case 11:
        return QStringLiteral("K");
    case 12:
        return QStringLiteral("A");
    default:
        return QString::number(rankIndex + 2);
    }
}

QString BlackjackText(int rankIndex)
{
    switch (rankIndex) {
    case 0:
        return QStringLiteral("A");
    case 10:
        return QStringLiteral("J");
    case 11:
        return QStringLiteral("Q");
    case 12:
        return QStringLiteral("K");
    default:
        return QString::number(rankIndex + 1);
    }
}

int BlackjackValue(int rankIndex)
{
    return qMin(rankIndex + 1, 10);
}

ConcentrationCard ConcentrationNumbering(int k)
{
    Q_ASSERT(k >= 1 && k <= Size);
    int half = 0;
    if (k > Size / 2) {
        half = 2;
        k -= Size / 2;
    }
    return {(k - 1) / 2 + 1, (k - 1) % 2 + half};
}

QString ConcentrationText(int value)
{
    switch (value) {
    case 1:
        return QStringLiteral("A");
    case 11:
        return QStringLiteral("J");
    case 12:
        return QStringLiteral("Q");
    case 13:
        return QStringLiteral("K");
    default:
        return QString::number(value);
    }
}

} // namespace Deck

void BlackjackDeck::place(int slot, int position)
{
    Q_ASSERT(slot >= 1 && slot <= Deck::Size);
    const int rank = Deck::RankIndex(position);
    text[size_t(slot)] = Deck::BlackjackText(rank);
    value[size_t(slot)] = qint16(Deck::BlackjackValue(rank));
    suit[size_t(slot)] = qint16(Deck::SuitIndex(position));
}

void Shuffle_Cards(BlackjackDeck &deck, RandomSource &random)
{
    std::array<bool, Deck::Size + 1> used{};
    for (int remaining = Deck::Size; remaining > 0;) {
        const int r = int(random.next() * remaining) + 1;
        int position = 0;
        for (int seen = 0; seen < r;)
            if (!used[size_t(++position)])
                ++seen;
        used[size_t(position)] = true;
        --remaining;
        deck.place(Deck::Size - remaining, position);
    }
    deck.next = 1;
}
