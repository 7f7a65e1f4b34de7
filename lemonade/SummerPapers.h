// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Printing.h"

class Summer;

// The printed end of a summer: a certificate with the pupil's name on the first page, then
// the season report, a line a week with the totals and the bar chart of profits.
namespace SummerPapers {
// An empty name leaves a line to write it on by hand.
PrintDocument document(const Summer &summer, const QString &name);
// The sentence of the certificate that says what the pupil did.
QString achievement(const Summer &summer);
} // namespace SummerPapers
