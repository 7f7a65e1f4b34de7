// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SpeedTest.h"

#include "shell/Printing.h"

#include <QDate>

// The certificate a pupil prints after speed tests: a framed page with the name, the best
// speed and its accuracy, and the date.
namespace Certificate {
PrintDocument make(const QString &name, const TestResult &best, const QDate &date);
// The sentence in the middle of the page.
QString sentence(const QString &name, const TestResult &best);
} // namespace Certificate
