// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Case.h"
#include "CaseNumber.h"
#include "ThiefData.h"

#include "shell/core/Random.h"

// Builds the case of a case number from the word tables. It owns the generator the case is
// drawn from, so the same number always gives the same case whatever else has drawn numbers.
class CaseBuilder {
public:
    explicit CaseBuilder(const ThiefData &data) : m_data(data) {}

    Case build(const CaseNumber &number);

private:
    double draw() { return m_random.next(); }
    const ThiefData &m_data;
    Generator m_random;
};

// The written argument that leads from the clues to the thief, one stage per level.
Solution BuildSolution(const Case &c);
