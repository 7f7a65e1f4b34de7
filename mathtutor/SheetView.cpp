// SPDX-License-Identifier: GPL-3.0-or-later
#include "SheetView.h"

#include "WorksheetPaper.h"

#include <QPainter>

SheetView::SheetView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Worksheet preview"));
    setSheet(m_sheet);
}

void SheetView::setSheet(const Worksheet &sheet)
{
    m_sheet = sheet;
    m_problems = sheet.problems();
    setAccessibleDescription(m_key ? WorksheetPaper::keyTitle(sheet)
                                   : WorksheetPaper::title(sheet));
    update();
}

void SheetView::setShowKey(bool key)
{
    m_key = key;
    setSheet(m_sheet);
}

void SheetView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = qMin((width() - 12.0) / PrintDocument::PageWidth,
                              (height() - 12.0) / PrintDocument::PageHeight);
    if (scale <= 0)
        return;
    const QSizeF page(PrintDocument::PageWidth * scale, PrintDocument::PageHeight * scale);
    const QPointF corner((width() - page.width()) / 2, (height() - page.height()) / 2);
    painter.fillRect(QRectF(corner + QPointF(4, 4), page), QColor(0, 0, 0, 60));
    painter.fillRect(QRectF(corner, page), Qt::white);
    painter.translate(corner);
    painter.scale(scale, scale);

    // The same places as on paper: the title under the credit line, then the sheet.
    const PrintDocument paper(WorksheetPaper::title(m_sheet));
    const double lineHeight = std::ceil(paper.lineSpacing());
    painter.save();
    painter.scale(1.0 / PrintDocument::Fine, 1.0 / PrintDocument::Fine);
    painter.setFont(paper.fineFont());
    painter.setPen(Qt::black);
    const QString heading = m_key ? WorksheetPaper::keyTitle(m_sheet) : paper.title();
    painter.drawText(QPointF(PrintDocument::Left * PrintDocument::Fine,
                             (PrintDocument::Top + 2 * lineHeight) * PrintDocument::Fine +
                                 QFontMetricsF(paper.fineFont()).ascent()),
                     heading);
    painter.restore();
    const int body = WorksheetPaper::bodyHeight(paper);
    WorksheetPaper::draw(
        painter,
        QRectF(PrintDocument::Left, PrintDocument::Bottom - body, PrintDocument::TextWidth, body),
        m_sheet, m_problems, m_key);
}
