// SPDX-License-Identifier: GPL-3.0-or-later
#include "Concentration.h"

#include "shell/core/Shuffle.h"

#include <cmath>

void Concentration::start(const QList<qint16> &order, MatchType type)
{
    Q_ASSERT(order.size() > Places);
    for (int place = 1; place <= Places; ++place)
        m_cards[size_t(place)] = Deck::ConcentrationNumbering(order[place]);
    m_taken.fill(false);
    m_matched.fill(false);
    m_type = type;
    m_running = true;
    m_remaining = Places;
    m_guesses = 0;
    m_matches = 0;
    m_pick = 1;
    m_first = 0;
    m_second = 0;
}

void Concentration::start(MatchType type, RandomSource &random)
{
    QList<qint16> order(Places + 1);
    Shuffle(Places, order, random);
    start(order, type);
}

Concentration::Pick Concentration::pick(int place)
{
    if (!m_running || place < 1 || place > Places || m_taken[size_t(place)])
        return Pick::Ignored;
    ++m_guesses;
    if (m_pick == 1) {
        m_taken[size_t(place)] = true;
        m_first = place;
        m_second = 0;
        m_pick = 2;
        return Pick::First;
    }
    m_second = place;
    m_pick = 1;
    const Deck::ConcentrationCard a = m_cards[size_t(m_first)];
    const Deck::ConcentrationCard b = m_cards[size_t(m_second)];
    const bool same = m_type == BySuit ? a.suit == b.suit : a.value == b.value;
    if (!same) {
        m_taken[size_t(m_first)] = false;
        return Pick::NoMatch;
    }
    m_taken[size_t(m_second)] = true;
    m_matched[size_t(m_first)] = true;
    m_matched[size_t(m_second)] = true;
    ++m_matches;
    m_remaining -= 2;
    if (!pairLeft()) {
        m_running = false;
        return Pick::AllMatched;
    }
    return Pick::Match;
}

bool Concentration::pairLeft() const
{
    // Thirteen cards to a suit: matching by suit always leaves one card of each suit over.
    std::array<int, 14> seen{};
    for (int place = 1; place <= Places; ++place) {
        if (m_matched[size_t(place)])
            continue;
        const Deck::ConcentrationCard card = m_cards[size_t(place)];
        if (++seen[size_t(m_type == BySuit ? card.suit : card.value)] == 2)
            return true;
    }
    return false;
}

int Concentration::placeAt(QPointF point, QRectF grid)
{
    if (grid.isEmpty() || !std::isfinite(point.x()) || !std::isfinite(point.y()))
        return 0;
    const double across = (point.x() - grid.left()) / (grid.width() / Columns);
    const double down = (point.y() - grid.top()) / (grid.height() / Rows);
    if (across < 0 || down < 0 || across >= Columns || down >= Rows)
        return 0;
    const int column = int(across) + 1;
    const int row = int(down) + 1;
    return (row - 1) * Columns + column;
}
