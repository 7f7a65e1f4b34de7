// SPDX-License-Identifier: GPL-3.0-or-later
#include "Answers.h"

#include "shell/core/SoundCode.h"

Match CheckAnswer(const QString &typed, const QString &expected)
{
    if (typed == expected)
        return Match::Exact;
    if (typed.trimmed().compare(expected.trimmed(), Qt::CaseInsensitive) == 0)
        return Match::SameLetters;
    if (SoundCode(typed) == SoundCode(expected))
        return Match::SoundsAlike;
    return Match::Wrong;
}

QString OrdinalSuffix(int number)
{
    const int lastTwo = std::abs(number % 100);
    if (lastTwo >= 11 && lastTwo <= 13)
        return QStringLiteral("th");
    switch (lastTwo % 10) {
    case 1:
        return QStringLiteral("st");
    case 2:
        return QStringLiteral("nd");
    case 3:
        return QStringLiteral("rd");
    default:
        return QStringLiteral("th");
    }
}
