// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>

// A case number of seven digits: the group (1 boys, 2 girls), the five-digit case seed
// (00000 to 30000) and the detective level of the case (1 to 5). Teachers hand them out so
// that every pupil gets the same case.
struct CaseNumber {
    static constexpr qint16 MaxSeed = 30000;
    static constexpr qint16 Levels = 5;

    QString text;
    qint16 group = 1;
    qint16 seed = 0;
    qint16 level = 1;

    // The first rule a typed number breaks, worded for the pupil; empty when it is a case number.
    static QString problem(const QString &typed);
    static std::optional<CaseNumber> parse(const QString &text);
    // A fresh number at a level: the group and the seed come from the shared random source,
    // which is first seeded from the clock.
    static QString makeNew(qint16 level);
    // The rank of a level: "Beginner", "Novice", "Experienced", "Advanced", "Expert".
    static QString levelCaption(int level);
};

inline constexpr auto InvalidCaseTitle = "Invalid Case Number";
