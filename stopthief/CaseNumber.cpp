// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseNumber.h"

#include "shell/core/Random.h"

#include <array>

namespace {

bool allDigits(QStringView text)
{
    for (const QChar c : text)
        if (c < u'0' || c > u'9')
            return false;
    return !text.isEmpty();
}

} // namespace

QString CaseNumber::problem(const QString &typed)
{
    if (typed.size() != 7)
        return QStringLiteral("Case number must have seven digits.  Try again.");
    if (typed[0] != u'1' && typed[0] != u'2')
        return QStringLiteral("First digit must be a 1 or 2.  Try again.");
    const QStringView middle = QStringView(typed).mid(1, 5);
    if (!allDigits(middle) || middle.toInt() > MaxSeed)
        return QStringLiteral("Middle 5 digits must be between 00000 and 30000.  Try again.");
    if (typed[6] < u'1' || typed[6] > u'5')
        return QStringLiteral("Last digit must be 1, 2, 3, 4, or 5.  Try again.");
    return {};
}

std::optional<CaseNumber> CaseNumber::parse(const QString &text)
{
    if (!problem(text).isEmpty())
        return std::nullopt;
    CaseNumber number;
    number.text = text;
    number.group = static_cast<qint16>(text[0].digitValue());
    number.seed = static_cast<qint16>(QStringView(text).mid(1, 5).toInt());
    number.level = static_cast<qint16>(text[6].digitValue());
    return number;
}

QString CaseNumber::makeNew(qint16 level)
{
    RandomizeFromClock();
    const int group = static_cast<int>(2 * Rnd()) + 1;
    const int middle = static_cast<int>(Rnd() * (MaxSeed + 1));
    // Padding only below 10000 is the same as padding to five digits, since middle <= 30000.
    return QString::number(group) + QStringLiteral("%1").arg(middle, 5, 10, QLatin1Char('0')) +
           QString::number(level);
}

QString CaseNumber::levelCaption(int level)
{
    static const std::array<QString, Levels> captions{
        QStringLiteral("Beginner"), QStringLiteral("Novice"), QStringLiteral("Experienced"),
        QStringLiteral("Advanced"), QStringLiteral("Expert")};
    return level >= 1 && level <= Levels ? captions[level - 1] : QString();
}
