// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Facts.h"

#include <array>

// What a worksheet is made of. Its number holds all of it, so typing the number again
// rebuilds the very same sheet: 112-0109-4127 is multiplication (1), stacked (1), 20 problems
// (2), the 1s to the 9s (0109), sheet 4127 of that kind.
struct Worksheet {
    enum class Layout : qint16 { Stacked = 1, InARow = 2 };
    static constexpr std::array<qint16, 3> Counts{20, 30, 50};
    static constexpr qint16 MaxSheet = 9999;

    Operation op = Operation::Multiply;
    Layout layout = Layout::Stacked;
    qint16 count = 20;
    qint16 low = 1;
    qint16 high = 9;
    qint16 sheet = 0;

    // "112-0109-4127".
    QString number() const;
    // Why a typed number is not a worksheet number, in words for a pupil or teacher; empty
    // when it is one. Blanks and dashes may be typed or left out.
    static QString problem(const QString &typed);
    static std::optional<Worksheet> parse(const QString &typed);
    // The problems of the sheet, in order; the same number always gives the same problems.
    QList<MathFact> problems() const;
    // A sheet of the same kind with a sheet number from the random source.
    Worksheet withNewSheet(RandomSource &random) const;
    bool operator==(const Worksheet &) const = default;
};

inline constexpr auto WorksheetNumberTitle = "Worksheet Number";
