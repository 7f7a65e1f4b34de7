// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarData.h"
#include "MonthMath.h"

#include "shell/Printing.h"

// The printed month: the credit line and title in "Courier New", then the month filling the
// page, its heading and weekday names in "Times New Roman" and its dates in "Courier New".
namespace CalendarPrint {
inline constexpr int MonthHeight = 860;
QString title(const CalendarData &data, const MonthLayout &month);
PrintDocument document(const CalendarData &data, const MonthLayout &month);
} // namespace CalendarPrint
