// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>

// The figures of the evening's sales report, worked out from the day's counters and the time
// the day ended. Money is in whole dollars; the counters are 32-bit and every sum is done in
// 64 bits, so no count, however large, can wrap.
struct SalesReport {
    int onTime = 0;
    int late = 0;
    int baked = 0;
    int miles = 0;
    int hour = 6;
    int minute = 0;

    static constexpr qint64 OnTimePrice = 10;
    static constexpr qint64 LatePrice = 5;
    static constexpr qint64 PizzaCost = 3;

    qint64 onTimeSales() const { return qint64(onTime) * OnTimePrice; }
    qint64 lateSales() const { return qint64(late) * LatePrice; }
    qint64 sales() const { return onTimeSales() + lateSales(); }
    qint64 bakingCost() const { return qint64(baked) * PizzaCost; }
    // Ten cents a mile, rounded to whole dollars, a half to the even dollar.
    qint64 mileageCost() const;
    qint64 costs() const { return bakingCost() + mileageCost(); }
    qint64 profit() const { return sales() - costs(); }
    // Profit over the hours the shop was open; none when the day ended at 6:00 or before.
    std::optional<qint64> profitPerHour() const;
    // "End - 9:45"
    QString endText() const;

    // "$1,234", "-$56": whole dollars with commas between thousands.
    static QString money(qint64 dollars);
};
