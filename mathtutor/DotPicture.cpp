// SPDX-License-Identifier: GPL-3.0-or-later
#include "DotPicture.h"

#include <array>
#include <QPainter>

DotPicture::DotPicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DotPicture::setRows(int rows, int perRow)
{
    m_rows = qBound(0, rows, 12);
    m_perRow = qBound(0, perRow, 12);
    setAccessibleDescription(
        tr("%1 rows of %2 dots: %3 dots in all").arg(m_rows).arg(m_perRow).arg(m_rows * m_perRow));
    update();
}

void DotPicture::paintEvent(QPaintEvent *)
{
    static const std::array<QColor, 4> colours{QColor(0xE5, 0x39, 0x35), QColor(0x1E, 0x88, 0xE5),
                                               QColor(0x43, 0xA0, 0x47), QColor(0xFB, 0x8C, 0x00)};
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(6, 6, -6, -6);
    painter.setPen(QPen(QColor(0x90, 0xCA, 0xF9), 3));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(area, 14, 14);
    if (m_rows == 0 || m_perRow == 0) {
        // Nothing to draw is the point of a 0 fact: say so in words.
        QFont big = font();
        big.setPixelSize(qBound(14, int(area.height() / 6), 48));
        painter.setFont(big);
        painter.setPen(QColor(0x42, 0x42, 0x42));
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                         m_rows == 0 ? tr("0 rows:\nno dots at all!")
                                     : tr("%1 rows with no dots:\nno dots at all!").arg(m_rows));
        return;
    }
    const QRectF inner = area.adjusted(10, 10, -10, -10);
    const double cell = qMin(inner.width() / m_perRow, inner.height() / m_rows);
    const double radius = cell * 0.38;
    const QPointF origin(inner.center().x() - cell * m_perRow / 2,
                         inner.center().y() - cell * m_rows / 2);
    painter.setPen(Qt::NoPen);
    for (int r = 0; r < m_rows; ++r) {
        painter.setBrush(colours[size_t(r) % colours.size()]);
        for (int c = 0; c < m_perRow; ++c)
            painter.drawEllipse(origin + QPointF((c + 0.5) * cell, (r + 0.5) * cell), radius,
                                radius);
    }
}
