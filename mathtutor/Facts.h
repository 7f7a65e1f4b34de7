// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"

#include <optional>
#include <QList>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcMathTutor)

enum class Operation : qint16 { Multiply = 0, Divide = 1 };

// One fact of a family: for the 7s, 7 x 8 = 56 when multiplying and 56 / 7 = 8 when dividing.
// The family is the row of the mastery grid and `other` its column, for both operations.
struct MathFact {
    Operation op = Operation::Multiply;
    qint16 family = 0;
    qint16 other = 0;

    // The two numbers in the order they are written, and the answer.
    int left() const { return op == Operation::Multiply ? family : family * other; }
    int right() const { return op == Operation::Multiply ? other : family; }
    int answer() const { return op == Operation::Multiply ? family * other : other; }
    // "7 × 8" or "56 ÷ 7"; with the answer: "7 × 8 = 56".
    QString text() const;
    QString withAnswer() const;
    bool operator==(const MathFact &) const = default;
};

QString OperationSign(Operation op);

// The facts of a range of families: every family from the lowest to the highest (0 to 12),
// each with the other number 0 to 12. Division leaves out the 0s, since nothing is divided by 0.
namespace FactRange {
inline constexpr qint16 Lowest = 0;
inline constexpr qint16 Highest = 12;

// Why a range cannot be used, in words for a pupil; empty when it can.
QString problem(Operation op, int low, int high);
std::optional<QList<MathFact>> facts(Operation op, int low, int high);
// The families of a range that have facts (for division the 0s are skipped).
QList<qint16> families(Operation op, int low, int high);
} // namespace FactRange

// `count` facts of a pool in random order, no fact twice while the pool allows it, and never
// the same fact twice in a row when the pool has more than one.
QList<MathFact> DrawFacts(const QList<MathFact> &pool, int count, RandomSource &random);

// The facts that go with a fact, with their answers: its turn-around and its division or
// multiplication partners, each once, never a division by 0 ("8 × 7 = 56", "56 ÷ 7 = 8", ...).
QList<MathFact> Partners(const MathFact &fact);
