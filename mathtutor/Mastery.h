// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Facts.h"

#include <array>

enum class Mastery : quint8 { NotSeen, Practising, Known };

// How well each fact (family 0-12 by other number 0-12) is known, one grid per operation.
// A quick right answer makes a fact known, a wrong one sends it back to practising.
class MasteryGrid {
public:
    static constexpr int Size = FactRange::Highest + 1;

    Mastery at(Operation op, int family, int other) const;
    Mastery at(const MathFact &fact) const { return at(fact.op, fact.family, fact.other); }
    void record(const MathFact &fact, bool right, bool quick);
    int count(Operation op, Mastery state) const;
    void clear();

private:
    using Grid = std::array<std::array<Mastery, Size>, Size>;
    std::array<Grid, 2> m_grids{};
};

// The grid of this run of the program: it lasts until the program ends.
MasteryGrid &TheMastery();
