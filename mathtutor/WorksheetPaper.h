// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Worksheet.h"

#include "shell/Printing.h"

#include <QSize>

class QPainter;

// The printed worksheet: a name and date line, the problems in large type, stacked or in a
// row, the worksheet number at the foot; and the answer key on a page of its own.
namespace WorksheetPaper {

// "Multiplication Facts 1 to 9 - Worksheet 112-0109-4127".
QString title(const Worksheet &sheet);
// "Answer Key - Worksheet 112-0109-4127".
QString keyTitle(const Worksheet &sheet);
// Columns and rows of problems on the page.
QSize grid(const Worksheet &sheet);
// The page height the sheet fills below the document's header.
int bodyHeight(const PrintDocument &document);
PrintDocument document(const Worksheet &sheet, bool withKey);
// Draws the sheet, or its key, in page units (hundredths of an inch) into `area`.
void draw(QPainter &painter, const QRectF &area, const Worksheet &sheet,
          const QList<MathFact> &problems, bool key);

} // namespace WorksheetPaper
