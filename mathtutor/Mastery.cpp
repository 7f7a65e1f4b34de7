// SPDX-License-Identifier: GPL-3.0-or-later
#include "Mastery.h"

namespace {
bool inGrid(int family, int other)
{
    return family >= 0 && family < MasteryGrid::Size && other >= 0 && other < MasteryGrid::Size;
}
} // namespace

Mastery MasteryGrid::at(Operation op, int family, int other) const
{
    return inGrid(family, other) ? m_grids[int(op) & 1][family][other] : Mastery::NotSeen;
}

void MasteryGrid::record(const MathFact &fact, bool right, bool quick)
{
    if (!inGrid(fact.family, fact.other))
        return;
    Mastery &cell = m_grids[int(fact.op) & 1][fact.family][fact.other];
    if (right && quick)
        cell = Mastery::Known;
    else if (!right)
        cell = Mastery::Practising;
    // A slow right answer keeps a known fact known: the pupil may just have looked away.
    else if (cell == Mastery::NotSeen)
        cell = Mastery::Practising;
}

int MasteryGrid::count(Operation op, Mastery state) const
{
    int n = 0;
    for (const auto &row : m_grids[int(op) & 1])
        for (const Mastery cell : row)
            n += cell == state ? 1 : 0;
    return n;
}

void MasteryGrid::clear()
{
    m_grids = {};
}

MasteryGrid &TheMastery()
{
    static MasteryGrid grid;
    return grid;
}
