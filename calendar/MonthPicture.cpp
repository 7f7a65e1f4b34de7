// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthPicture.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace {

QFont sized(const QString &family, double pixels, bool bold)
{
    QFont font(family);
    font.setPixelSize(qMax(1, qRound(pixels)));
    font.setBold(bold);
    return font;
}

} // namespace

void PaintMonth(QPainter &painter, const QRectF &area, const MonthLayout &month,
                const MonthLook &look)
{
    const double rowHeight = area.height() / (month.rows + 2);
    const double columnWidth = area.width() / 7;
    const QColor ink = look.colour ? QColor(0x1A, 0x23, 0x7E) : QColor(Qt::black);
    const QColor line = look.colour ? QColor(0x9F, 0xA8, 0xDA) : QColor(Qt::black);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);

    const QRectF titleBox(area.left(), area.top(), area.width(), rowHeight);
    if (look.colour) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x15, 0x65, 0xC0));
        painter.drawRoundedRect(titleBox.adjusted(0, 0, 0, -rowHeight * 0.08), rowHeight * 0.2,
                                rowHeight * 0.2);
    }
    painter.setPen(look.colour ? QColor(Qt::white) : ink);
    painter.setFont(sized(look.titleFamily, qMin(rowHeight * 0.55, area.width() / 14), true));
    painter.drawText(titleBox, Qt::AlignCenter, look.title);

    const QRectF grid(area.left(), area.top() + rowHeight, area.width(),
                      rowHeight * (month.rows + 1));
    painter.setPen(Qt::NoPen);
    for (int c = 0; c < 7; ++c) {
        const bool weekend = c == 0 || c == 6;
        QColor fill = weekend ? QColor(0xE3, 0xF2, 0xFD) : QColor(Qt::white);
        if (!look.colour)
            fill = weekend ? QColor(0xE8, 0xE8, 0xE8) : QColor(Qt::white);
        painter.setBrush(fill);
        painter.drawRect(QRectF(grid.left() + c * columnWidth, grid.top() + rowHeight, columnWidth,
                                rowHeight * month.rows));
    }
    painter.setBrush(look.colour ? QColor(0xFF, 0xE0, 0x82) : QColor(0xD0, 0xD0, 0xD0));
    painter.drawRect(QRectF(grid.left(), grid.top(), grid.width(), rowHeight));
    if (look.highlightRow >= 0 && look.highlightRow < month.rows) {
        painter.setBrush(QColor(0xFF, 0xF1, 0x76));
        painter.drawRect(QRectF(grid.left(), grid.top() + rowHeight * (look.highlightRow + 1),
                                grid.width(), rowHeight));
    }

    painter.setPen(QPen(line, qMax(1.0, rowHeight / 40)));
    painter.setBrush(Qt::NoBrush);
    for (int r = 0; r <= month.rows + 1; ++r)
        painter.drawLine(QPointF(grid.left(), grid.top() + r * rowHeight),
                         QPointF(grid.right(), grid.top() + r * rowHeight));
    for (int c = 0; c <= 7; ++c)
        painter.drawLine(QPointF(grid.left() + c * columnWidth, grid.top()),
                         QPointF(grid.left() + c * columnWidth, grid.bottom()));

    painter.setPen(ink);
    // The weekday names shrink until the longest fits its column.
    QFont heads = sized(look.titleFamily, qMin(rowHeight * 0.4, columnWidth * 0.3), true);
    for (const QString &head : look.dayHeads)
        while (heads.pixelSize() > 4 &&
               QFontMetricsF(heads).horizontalAdvance(head) > columnWidth * 0.88)
            heads.setPixelSize(heads.pixelSize() - 1);
    painter.setFont(heads);
    for (int c = 0; c < 7 && c < look.dayHeads.size(); ++c)
        painter.drawText(QRectF(grid.left() + c * columnWidth, grid.top(), columnWidth, rowHeight),
                         Qt::AlignCenter, look.dayHeads[c]);

    const double numberSize = look.colour ? qMin(rowHeight * 0.5, columnWidth * 0.4)
                                          : qMin(rowHeight * 0.3, columnWidth * 0.28);
    const QFont numbers = sized(look.numberFamily, numberSize, true);
    painter.setFont(numbers);
    for (int day = 1; day <= month.days; ++day) {
        const QRectF cell(grid.left() + (month.weekdayOf(day) - 1) * columnWidth,
                          grid.top() + (month.rowOf(day) + 1) * rowHeight, columnWidth, rowHeight);
        if (day == look.today) {
            const double size = qMin(cell.width(), cell.height()) * 0.82;
            painter.save();
            painter.setPen(QPen(look.colour ? QColor(0xD3, 0x2F, 0x2F) : QColor(Qt::black),
                                qMax(1.5, size / 12)));
            painter.drawEllipse(
                QRectF(cell.center().x() - size / 2, cell.center().y() - size / 2, size, size));
            painter.restore();
        }
        // On paper the number sits in the corner, leaving the box free to write in.
        if (look.colour)
            painter.drawText(cell, Qt::AlignCenter, QString::number(day));
        else
            painter.drawText(cell.adjusted(columnWidth * 0.08, rowHeight * 0.04, 0, 0),
                             Qt::AlignLeft | Qt::AlignTop, QString::number(day));
    }
    painter.restore();
}

MonthPicture::MonthPicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MonthPicture::setMonth(const MonthLayout &month, const MonthLook &look)
{
    m_month = month;
    m_look = look;
    update();
}

void MonthPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // The month keeps a calendar's shape however the window is stretched.
    const QRectF room = QRectF(rect()).adjusted(4, 4, -4, -4);
    const double width = qMin(room.width(), room.height() * 1.5);
    const double height = qMin(room.height(), width / 1.05);
    const QRectF area(room.center().x() - width / 2, room.center().y() - height / 2, width, height);
    PaintMonth(painter, area, m_month, m_look);
}
