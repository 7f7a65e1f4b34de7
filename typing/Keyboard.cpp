// SPDX-License-Identifier: GPL-3.0-or-later
#include "Keyboard.h"

#include <QCoreApplication>

Q_LOGGING_CATEGORY(lcTyping, "lumbridle.typing")

namespace {

using F = Finger;

// A row of character keys laid side by side from a left edge, with the finger of each.
void addRow(QList<Key> &keys, KeyRow row, int x, const char *plain, const char *shifted,
            std::initializer_list<Finger> fingers)
{
    auto finger = fingers.begin();
    for (int i = 0; plain[i]; ++i, ++finger) {
        Key key;
        key.plain = QChar(plain[i]);
        key.shifted = QChar(shifted[i]);
        key.label = QString(key.plain.isLetter() ? key.shifted : key.plain);
        key.row = row;
        key.x = x + 4 * i;
        key.finger = *finger;
        keys.append(key);
    }
}

Key special(const QString &label, KeyRow row, int x, int width, Finger finger, bool shift = false)
{
    Key key;
    key.label = label;
    key.row = row;
    key.x = x;
    key.width = width;
    key.finger = finger;
    key.isShift = shift;
    return key;
}

QList<Key> makeKeys()
{
    QList<Key> keys;
    addRow(keys, KeyRow::Number, 0, "`1234567890-=", "~!@#$%^&*()_+",
           {F::LeftPinky, F::LeftPinky, F::LeftRing, F::LeftMiddle, F::LeftIndex, F::LeftIndex,
            F::RightIndex, F::RightIndex, F::RightMiddle, F::RightRing, F::RightPinky,
            F::RightPinky, F::RightPinky});
    keys.append(special(QStringLiteral("Back"), KeyRow::Number, 52, 8, F::RightPinky));
    keys.append(special(QStringLiteral("Tab"), KeyRow::Top, 0, 6, F::LeftPinky));
    addRow(keys, KeyRow::Top, 6, "qwertyuiop[]\\", "QWERTYUIOP{}|",
           {F::LeftPinky, F::LeftRing, F::LeftMiddle, F::LeftIndex, F::LeftIndex, F::RightIndex,
            F::RightIndex, F::RightMiddle, F::RightRing, F::RightPinky, F::RightPinky,
            F::RightPinky, F::RightPinky});
    keys.last().width = 6;
    keys.append(special(QStringLiteral("Caps"), KeyRow::Home, 0, 7, F::LeftPinky));
    addRow(keys, KeyRow::Home, 7, "asdfghjkl;'", "ASDFGHJKL:\"",
           {F::LeftPinky, F::LeftRing, F::LeftMiddle, F::LeftIndex, F::LeftIndex, F::RightIndex,
            F::RightIndex, F::RightMiddle, F::RightRing, F::RightPinky, F::RightPinky});
    keys.append(special(QStringLiteral("Enter"), KeyRow::Home, 51, 9, F::RightPinky));
    keys.append(special(QStringLiteral("Shift"), KeyRow::Bottom, 0, 9, F::LeftPinky, true));
    addRow(keys, KeyRow::Bottom, 9, "zxcvbnm,./", "ZXCVBNM<>?",
           {F::LeftPinky, F::LeftRing, F::LeftMiddle, F::LeftIndex, F::LeftIndex, F::RightIndex,
            F::RightIndex, F::RightMiddle, F::RightRing, F::RightPinky});
    keys.append(special(QStringLiteral("Shift"), KeyRow::Bottom, 49, 11, F::RightPinky, true));
    Key space = special(QString(), KeyRow::Space, 14, 28, F::Thumbs);
    space.plain = space.shifted = QChar(u' ');
    keys.append(space);
    return keys;
}

} // namespace

namespace Keyboard {

const QList<Key> &keys()
{
    static const QList<Key> all = makeKeys();
    return all;
}

const Key *keyFor(QChar c)
{
    if (c.isNull())
        return nullptr;
    for (const Key &key : keys())
        if (!key.plain.isNull() && (key.plain == c || key.shifted == c))
            return &key;
    return nullptr;
}

bool needsShift(QChar c)
{
    const Key *key = keyFor(c);
    return key && key->plain != c;
}

const Key *shiftKeyFor(QChar c)
{
    const Key *key = keyFor(c);
    if (!key || key->plain == c)
        return nullptr;
    const bool left = isLeftHand(key->finger);
    for (const Key &shift : keys())
        if (shift.isShift && isLeftHand(shift.finger) != left)
            return &shift;
    return nullptr;
}

bool isLeftHand(Finger finger)
{
    return finger < Finger::Thumbs;
}

QString fingerName(Finger finger)
{
    switch (finger) {
    case Finger::LeftPinky:
        return QCoreApplication::translate("Keyboard", "left little finger");
    case Finger::LeftRing:
        return QCoreApplication::translate("Keyboard", "left ring finger");
    case Finger::LeftMiddle:
        return QCoreApplication::translate("Keyboard", "left middle finger");
    case Finger::LeftIndex:
        return QCoreApplication::translate("Keyboard", "left pointer finger");
    case Finger::Thumbs:
        return QCoreApplication::translate("Keyboard", "thumb");
    case Finger::RightIndex:
        return QCoreApplication::translate("Keyboard", "right pointer finger");
    case Finger::RightMiddle:
        return QCoreApplication::translate("Keyboard", "right middle finger");
    case Finger::RightRing:
        return QCoreApplication::translate("Keyboard", "right ring finger");
    case Finger::RightPinky:
        return QCoreApplication::translate("Keyboard", "right little finger");
    }
    return {};
}

} // namespace Keyboard
