// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QString>

// Sound-alike codes for letters A to Z, so a typed answer spelt the way it sounds can count.
inline constexpr std::array<qint16, 26> SoundTable = {0, 1, 2, 3, 0, 1, 2, 0, 0, 2, 2, 4, 5,
                                                      5, 0, 1, 2, 6, 2, 3, 0, 1, 0, 2, 0, 2};

// The word's sound-alike code: its first character, then the codes of the following letters,
// dropping zeros and repeats of the code just before (vowels, H, W and Y break a repeat).
QString SoundCode(const QString &word);
