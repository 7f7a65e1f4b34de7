// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarPrint.h"

#include "MonthPicture.h"

#include <QCoreApplication>

namespace CalendarPrint {

QString title(const CalendarData &data, const MonthLayout &month)
{
    return QCoreApplication::translate("CalendarPrint", "Calendar for %1 %2")
        .arg(data.monthName(month.month))
        .arg(month.year);
}

PrintDocument document(const CalendarData &data, const MonthLayout &month)
{
    PrintDocument page(title(data, month));
    page.setFont(QStringLiteral("Courier New"), 12);
    MonthLook look;
    look.title = QStringLiteral("%1 %2").arg(data.monthName(month.month)).arg(month.year);
    for (int d = 1; d <= 7; ++d)
        look.dayHeads.append(data.dayName(d));
    look.titleFamily = QStringLiteral("Times New Roman");
    look.numberFamily = QStringLiteral("Courier New");
    // Ink only: a printed calendar is written on, and grey weekends copy well.
    look.colour = false;
    page.addDrawing(MonthHeight, [month, look](QPainter &painter, const QRect &area) {
        PaintMonth(painter, QRectF(area), month, look);
    });
    return page;
}

} // namespace CalendarPrint
