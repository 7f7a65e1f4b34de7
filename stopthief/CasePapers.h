// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Case.h"

#include "shell/Printing.h"

// The three printed papers of a case: the story, the clues with a table to tick off on paper,
// and the written solution.
namespace CasePapers {

// "Description", "Clues" or "Solution" + "-Case Number 1234563 (Experienced Level)", with
// "-Continued" after "Level)" on further pages.
QString title(const QString &paper, const Case &c, bool continued = false);

PrintDocument caseDocument(const Case &c);
PrintDocument cluesDocument(const Case &c);
PrintDocument solutionDocument(const Case &c);

} // namespace CasePapers
