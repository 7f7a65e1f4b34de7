// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stopthief/Case.h"

#include <QSet>
#include <QString>

// A detective of our own for the tests: it reads the clue list as the pupil sees it, knowing
// only the suspects' names and the phrases of the case, and tries every way of sharing out the
// values. It also reads the written solution and checks each claim against the case.
namespace CaseSolver {

struct Result {
    QString problem;        // a clue it could not read; empty when all were read
    QSet<int> thieves;      // suspects (generation order, 1-5) who can be the thief
    qint64 assignments = 0; // ways of sharing out the values that every clue allows
};

Result solve(const Case &c);
// The first sentence of the solution that says something untrue or that it cannot read, with
// the reason; empty when every sentence is true and the last one names the thief.
QString checkSolution(const Case &c);

} // namespace CaseSolver
