// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Keyboard.h"

#include <array>
#include <QList>
#include <QSet>
#include <QString>

// The choices of the typing tutor kept in settings line 15: which rows the drills use (top
// letter row, home row, bottom row, number row), whether the finger guide shows, and whether
// capitals and punctuation typed with Shift are added.
struct TypingSettings {
    bool topRow = true;
    bool homeRow = true;
    bool bottomRow = true;
    bool numberRow = false;
    bool guide = true;
    bool shift = false;

    // Values other than 0 and 1 are damaged and read as the usual choice.
    static TypingSettings fromValues(const std::array<qint16, 6> &values);
    std::array<qint16, 6> values() const;
    bool rowOn(KeyRow row) const;
};

// One lesson: its title and the characters it teaches (capitals stand for Shift).
struct TypingLesson {
    QString title;
    QString newKeys;
    bool usesShift = false;
};

// The lessons in the order they are taught, from the home row to Shift and punctuation, and
// the characters a drill of each may use.
namespace Lessons {
const QList<TypingLesson> &all();
// Every character taught in lessons 0 to `index`, whatever the settings.
QSet<QChar> taughtUpTo(int index);
// The characters a drill of lesson `index` may use: those taught so far on the rows switched
// on, capitals and shifted marks only with Shift on, and always the space bar.
QSet<QChar> allowedKeys(int index, const TypingSettings &settings);
// The lesson's own new characters that its drills may use; none means the lesson is closed
// by the settings (its row is off, or it teaches Shift and Shift is off).
QString newKeysAllowed(int index, const TypingSettings &settings);
bool isOpen(int index, const TypingSettings &settings);
} // namespace Lessons
