// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class CalendarData;

// Calendar arithmetic for the month display: leap years, the weekday a month starts on, the
// week rows it needs, and the month to start from.
namespace MonthMath {
inline constexpr int FirstYear = 1583;
inline constexpr int LastYear = 2199;
inline constexpr int FallbackYear = 1997;

bool isLeapYear(int year);
// Days of a month from the file's normal-year count, February growing to 29 in a leap year.
int daysInMonth(const CalendarData &data, int month, int year);
// 1 = Sunday ... 7 = Saturday, by the day-count formula without a century correction: true
// from March 1900 to February 2100 and a day off outside, which the display keeps.
int firstWeekday(int month, int year);
// Week rows a month of `days` days starting on `firstWeekday` fills.
int weekRows(int days, int firstWeekday);

struct MonthYear {
    int month = 1;
    int year = FallbackYear;
};
// The start month and year from a date written "MM-DD-YYYY": the first two characters and
// the last four, with month 1 and year 1997 when they are out of range or unreadable.
MonthYear startFrom(const QString &dateText);
} // namespace MonthMath

// One month laid out for drawing: where each day falls in the grid of week rows.
struct MonthLayout {
    int month = 1;
    int year = MonthMath::FallbackYear;
    int firstWeekday = 1;
    int days = 31;
    int rows = 5;

    static MonthLayout of(const CalendarData &data, int month, int year);
    // Weekday of a day of this month, 1 = Sunday.
    int weekdayOf(int day) const { return (firstWeekday - 1 + day - 1) % 7 + 1; }
    // Row (0-based) of a day in the grid.
    int rowOf(int day) const { return (firstWeekday - 1 + day - 1) / 7; }
};
