// SPDX-License-Identifier: GPL-3.0-or-later
#include "Lessons.h"

#include <QCoreApplication>

namespace {

bool validFlag(qint16 value)
{
    return value == 0 || value == 1;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("Lessons", text);
}

QList<TypingLesson> makeLessons()
{
    // Home row first, then the top and bottom rows a pair of keys at a time, reaching out
    // from the home keys; numbers, capitals and marks come once every letter is known.
    return {
        {tr("Home row: A S D F"), QStringLiteral("asdf")},
        {tr("Home row: J K L ;"), QStringLiteral("jkl;")},
        {tr("G and H"), QStringLiteral("gh")},
        {tr("E and I"), QStringLiteral("ei")},
        {tr("R and U"), QStringLiteral("ru")},
        {tr("T and Y"), QStringLiteral("ty")},
        {tr("W and O"), QStringLiteral("wo")},
        {tr("Q and P"), QStringLiteral("qp")},
        {tr("N and M"), QStringLiteral("nm")},
        {tr("V and B"), QStringLiteral("vb")},
        {tr("C and comma"), QStringLiteral("c,")},
        {tr("X and period"), QStringLiteral("x.")},
        {tr("Z and apostrophe"), QStringLiteral("z'")},
        {tr("Numbers 1 to 5"), QStringLiteral("12345")},
        {tr("Numbers 6 to 0"), QStringLiteral("67890")},
        {tr("Capitals with Shift"), QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), true},
        {tr("Marks: ? ! : -"), QStringLiteral("?!:-"), true},
    };
}

} // namespace

TypingSettings TypingSettings::fromValues(const std::array<qint16, 6> &values)
{
    TypingSettings s;
    bool *flags[] = {&s.topRow, &s.homeRow, &s.bottomRow, &s.numberRow, &s.guide, &s.shift};
    for (int i = 0; i < 6; ++i)
        if (validFlag(values[i]))
            *flags[i] = values[i] == 1;
    return s;
}

std::array<qint16, 6> TypingSettings::values() const
{
    return {qint16(topRow),    qint16(homeRow), qint16(bottomRow),
            qint16(numberRow), qint16(guide),   qint16(shift)};
}

bool TypingSettings::rowOn(KeyRow row) const
{
    switch (row) {
    case KeyRow::Number:
        return numberRow;
    case KeyRow::Top:
        return topRow;
    case KeyRow::Home:
        return homeRow;
    case KeyRow::Bottom:
        return bottomRow;
    case KeyRow::Space:
        return true;
    }
    return false;
}

namespace Lessons {

const QList<TypingLesson> &all()
{
    static const QList<TypingLesson> lessons = makeLessons();
    return lessons;
}

QSet<QChar> taughtUpTo(int index)
{
    QSet<QChar> taught{QChar(u' ')};
    const QList<TypingLesson> &lessons = all();
    for (int i = 0; i <= index && i < lessons.size(); ++i)
        for (QChar c : lessons[i].newKeys)
            taught.insert(c);
    return taught;
}

QSet<QChar> allowedKeys(int index, const TypingSettings &settings)
{
    QSet<QChar> allowed;
    const QSet<QChar> taught = taughtUpTo(index);
    for (QChar c : taught) {
        const Key *key = Keyboard::keyFor(c);
        if (!key || !settings.rowOn(key->row))
            continue;
        if (Keyboard::needsShift(c) && !settings.shift)
            continue;
        allowed.insert(c);
    }
    return allowed;
}

QString newKeysAllowed(int index, const TypingSettings &settings)
{
    if (index < 0 || index >= all().size())
        return {};
    const QSet<QChar> allowed = allowedKeys(index, settings);
    QString keys;
    for (QChar c : all()[index].newKeys)
        if (allowed.contains(c))
            keys += c;
    return keys;
}

bool isOpen(int index, const TypingSettings &settings)
{
    return !newKeysAllowed(index, settings).isEmpty();
}

} // namespace Lessons
