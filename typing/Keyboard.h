// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcTyping)

// The ten fingers that type, from the left little finger to the right one; both thumbs share
// the space bar.
enum class Finger {
    LeftPinky,
    LeftRing,
    LeftMiddle,
    LeftIndex,
    Thumbs,
    RightIndex,
    RightMiddle,
    RightRing,
    RightPinky
};

// The rows of the keyboard from the top: numbers, the top letter row, the home row, the bottom
// row and the space bar.
enum class KeyRow { Number, Top, Home, Bottom, Space };

// One key of a US keyboard: where it sits (in quarters of a key width), the characters it types
// plain and with Shift (none for Tab, Shift and the like) and the finger that presses it.
struct Key {
    QString label;
    QChar plain;
    QChar shifted;
    KeyRow row = KeyRow::Home;
    int x = 0;     // left edge, quarter keys from the keyboard's left edge
    int width = 4; // quarter keys
    Finger finger = Finger::LeftPinky;
    bool isShift = false;
};

// The US keyboard map: every key, and the key, finger and Shift that type a character.
namespace Keyboard {
constexpr int RowCount = 5;
constexpr int Width = 60; // quarter keys: fifteen keys of the number row

const QList<Key> &keys();
// The key that types a character, plain or shifted; nullptr for a character no key types.
const Key *keyFor(QChar c);
// Whether the character is typed with Shift held down.
bool needsShift(QChar c);
// The Shift key to hold for a character: the one on the other hand from the key's finger.
const Key *shiftKeyFor(QChar c);
bool isLeftHand(Finger finger);
// "left little finger", "right index finger", "thumb", for captions and help.
QString fingerName(Finger finger);
} // namespace Keyboard
