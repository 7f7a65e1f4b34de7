// SPDX-License-Identifier: GPL-3.0-or-later
#include "Worksheet.h"

namespace {

// The digits of a typed number without the blanks and dashes that make it easy to read.
QString digitsOf(const QString &typed)
{
    QString digits;
    for (const QChar c : typed)
        if (c != u' ' && c != u'-')
            digits.append(c);
    return digits;
}

bool allDigits(const QString &text)
{
    for (const QChar c : text)
        if (c < u'0' || c > u'9')
            return false;
    return true;
}

} // namespace

QString Worksheet::number() const
{
    return QStringLiteral("%1%2%3-%4%5-%6")
        .arg(int(op) + 1)
        .arg(int(layout))
        .arg(count / 10)
        .arg(low, 2, 10, QLatin1Char('0'))
        .arg(high, 2, 10, QLatin1Char('0'))
        .arg(sheet, 4, 10, QLatin1Char('0'));
}

QString Worksheet::problem(const QString &typed)
{
    const QString d = digitsOf(typed);
    if (d.size() != 11 || !allDigits(d))
        return QStringLiteral("A worksheet number has 11 digits, like 112-0109-4127.  Try again.");
    if (d[0] != u'1' && d[0] != u'2')
        return QStringLiteral("The first digit must be 1 (times) or 2 (divide).  Try again.");
    if (d[1] != u'1' && d[1] != u'2')
        return QStringLiteral("The second digit must be 1 (stacked) or 2 (in a row).  Try again.");
    if (d[2] != u'2' && d[2] != u'3' && d[2] != u'5')
        return QStringLiteral("The third digit must be 2, 3 or 5 (20, 30 or 50 problems).  "
                              "Try again.");
    const int low = d.mid(3, 2).toInt();
    const int high = d.mid(5, 2).toInt();
    const Operation op = d[0] == u'1' ? Operation::Multiply : Operation::Divide;
    const QString range = FactRange::problem(op, low, high);
    if (!range.isEmpty())
        return QStringLiteral("The middle four digits are the facts, from 00 to 12.  ") + range +
               QStringLiteral("  Try again.");
    return {};
}

std::optional<Worksheet> Worksheet::parse(const QString &typed)
{
    if (!problem(typed).isEmpty())
        return std::nullopt;
    const QString d = digitsOf(typed);
    Worksheet sheet;
    sheet.op = d[0] == u'1' ? Operation::Multiply : Operation::Divide;
    sheet.layout = d[1] == u'1' ? Layout::Stacked : Layout::InARow;
    sheet.count = qint16(d[2].digitValue() * 10);
    sheet.low = qint16(d.mid(3, 2).toInt());
    sheet.high = qint16(d.mid(5, 2).toInt());
    sheet.sheet = qint16(d.mid(7, 4).toInt());
    return sheet;
}

QList<MathFact> Worksheet::problems() const
{
    const auto pool = FactRange::facts(op, low, high);
    if (!pool)
        return {};
    // The whole number seeds the draw, so sheets of different kinds differ as well.
    Generator generator(digitsOf(number()).toLongLong());
    return DrawFacts(*pool, count, generator);
}

Worksheet Worksheet::withNewSheet(RandomSource &random) const
{
    Worksheet next = *this;
    next.sheet = qint16(int(random.next() * (MaxSheet + 1)));
    return next;
}
