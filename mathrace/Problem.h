// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The four kinds of problem; a player's type 5 draws one of them for every turn.
enum ProblemKind : qint16 { Addition = 1, Subtraction = 2, Multiplication = 3, Division = 4 };
inline constexpr qint16 MixedType = 5;

// One arithmetic problem as the pupil sees it ("first op second =") and its correct answer.
struct Problem {
    qint16 kind = Addition;
    qint16 first = 0;
    qint16 second = 0;
    qint16 answer = 0;

    // The caption with the blank a sign would take before each number: " 3 + 2 =".
    QString caption() const;
    bool operator==(const Problem &) const = default;
};

// A number the way a conversion with a place for the sign writes it: " 7", "-7".
QString SignedText(int number);
// The kind of this turn's problem for a player's type: 1 to 4 as they are, 5 draws one.
qint16 ChooseKind(qint16 type);
// Draws a problem of a kind whose key number runs from 1 to `largest` (taken as at least 1).
Problem Problem_Type(qint16 kind, qint16 largest);
