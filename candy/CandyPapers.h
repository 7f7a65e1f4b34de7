// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Contest.h"

#include <QStringList>

class PrintDocument;
class QPainter;
class QRectF;

// The words of the reports, shared by the screen and the printer, and the printed papers:
// the certificate and the contest report.
namespace CandyPapers {
// "$1,234": whole dollars with commas between thousands.
QString money(qint64 dollars);
// "23 boxes ($46)"
QString boxes(qint64 count);
// "Our Class won the Candy Drive!" and the like, once the contest is over.
QString verdict(const Contest &contest);
// One day in one line for the contest report: day, weather, both classes' boxes.
QString dayLine(const Contest::DayReport &report);
// The certificate, drawn to fill the area.
void drawCertificate(QPainter &painter, const QRectF &area, const Contest &contest);
// The certificate, then the whole contest day by day, by team and by street, and the chart.
PrintDocument document(const Contest &contest);
} // namespace CandyPapers
