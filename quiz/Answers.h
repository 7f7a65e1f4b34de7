// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// How a typed answer compares with the expected one. Anything but Wrong counts as right;
// SoundsAlike answers are spelt differently, so the pupil is shown the right spelling.
enum class Match { Exact, SameLetters, SoundsAlike, Wrong };

// Exact, or equal apart from capitals and blanks at the ends, or equal after SoundCode of both.
Match CheckAnswer(const QString &typed, const QString &expected);
inline bool IsRight(Match match)
{
    return match != Match::Wrong;
}

// The English ordinal ending of a whole number: "st" for 1, 21, 31; "nd" for 2, 22; "rd" for
// 3, 23; "th" for the others, 11, 12 and 13 included.
QString OrdinalSuffix(int number);
