// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthMath.h"

#include "CalendarData.h"

#include <cmath>

namespace MonthMath {

bool isLeapYear(int year)
{
    return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
}

int daysInMonth(const CalendarData &data, int month, int year)
{
    const int days = data.daysInMonth(month);
    return month == 2 && isLeapYear(year) ? 29 : days;
}

int firstWeekday(int month, int year)
{
    int mm = month + 1;
    if (month < 3) {
        year -= 1;
        mm = month + 13;
    }
    const double n = std::floor(mm * 30.6001) + std::floor(year * 365.25) + 6;
    const double q = n / 7;
    return int(std::floor((q - std::floor(q)) * 7 + 0.05)) + 1;
}

int weekRows(int days, int firstWeekday)
{
    const int after = days - (8 - firstWeekday);
    return after / 7 + 1 + (after % 7 != 0 ? 1 : 0);
}

MonthYear startFrom(const QString &dateText)
{
    MonthYear start;
    bool ok = false;
    const int month = dateText.left(2).toInt(&ok);
    start.month = ok && month >= 1 && month <= 12 ? month : 1;
    const int year = dateText.size() >= 4 ? dateText.right(4).toInt(&ok) : 0;
    start.year = ok && year >= FirstYear && year <= LastYear ? year : FallbackYear;
    return start;
}

} // namespace MonthMath

MonthLayout MonthLayout::of(const CalendarData &data, int month, int year)
{
    MonthLayout layout;
    layout.month = month;
    layout.year = year;
    layout.firstWeekday = MonthMath::firstWeekday(month, year);
    layout.days = MonthMath::daysInMonth(data, month, year);
    layout.rows = MonthMath::weekRows(layout.days, layout.firstWeekday);
    return layout;
}
