// SPDX-License-Identifier: GPL-3.0-or-later
#include "SalesReport.h"

#include "Evening.h"

#include <QCoreApplication>

namespace {
// Rounds a / b to the nearest whole number, a half to the even one (b > 0).
qint64 RoundedQuotient(qint64 a, qint64 b)
{
    qint64 q = a / b;
    qint64 r = a % b;
    if (r < 0) {
        --q;
        r += b;
    }
    if (2 * r > b || (2 * r == b && q % 2 != 0))
        ++q;
    return q;
}
} // namespace

qint64 SalesReport::mileageCost() const
{
    return RoundedQuotient(miles, 10);
}

std::optional<qint64> SalesReport::profitPerHour() const
{
    const qint64 minutesOpen = qint64(hour - Evening::FirstHour) * 60 + minute;
    if (minutesOpen <= 0)
        return std::nullopt;
    // profit / (minutes / 60), kept in whole numbers so no rounding creeps in.
    return RoundedQuotient(profit() * 60, minutesOpen);
}

QString SalesReport::endText() const
{
    return QCoreApplication::translate("SalesReport", "End - ") +
           Evening::timeText(hour * 60 + minute);
}

QString SalesReport::money(qint64 dollars)
{
    const quint64 size = dollars < 0 ? quint64(0) - quint64(dollars) : quint64(dollars);
    QString digits = QString::number(size);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, u',');
    return (dollars < 0 ? QStringLiteral("-$") : QStringLiteral("$")) + digits;
}
