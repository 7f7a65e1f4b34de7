// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScoreDots.h"

#include <QPainter>
#include <QPainterPath>

ScoreDots::ScoreDots(int count, QWidget *parent) : QWidget(parent), m_count(count)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ScoreDots::setResults(const QList<bool> &results, bool asking)
{
    m_results = results;
    m_asking = asking;
    update();
}

void ScoreDots::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = qMin(double(width()) / m_count * 0.7, height() - 4.0);
    // Close together in the middle, so the row reads as one score on a wide window.
    const double step = qMin(double(width()) / m_count, size * 1.5);
    const double left = (width() - step * m_count) / 2;
    for (int i = 0; i < m_count; ++i) {
        const QRectF dot(left + i * step + (step - size) / 2, (height() - size) / 2, size, size);
        const bool settled = i < m_results.size();
        const bool current = m_asking && i == m_results.size();
        QColor fill(Qt::white);
        if (settled)
            fill = m_results[i] ? QColor(0x43, 0xA0, 0x47) : QColor(0xE5, 0x39, 0x35);
        painter.setBrush(fill);
        painter.setPen(QPen(current ? QColor(0xFF, 0xB3, 0x00) : QColor(0x9F, 0xA8, 0xDA),
                            current ? size / 6 : qMax(1.0, size / 14)));
        painter.drawEllipse(dot);
        if (!settled)
            continue;
        // A tick or a cross, so the colours are not the only sign.
        painter.setPen(QPen(Qt::white, qMax(1.5, size / 9), Qt::SolidLine, Qt::RoundCap));
        const QRectF in = dot.adjusted(size * 0.28, size * 0.28, -size * 0.28, -size * 0.28);
        if (m_results[i]) {
            QPainterPath tick;
            tick.moveTo(in.left(), in.center().y());
            tick.lineTo(in.left() + in.width() * 0.4, in.bottom());
            tick.lineTo(in.right(), in.top());
            painter.setBrush(Qt::NoBrush);
            painter.drawPath(tick);
        } else {
            painter.drawLine(in.topLeft(), in.bottomRight());
            painter.drawLine(in.topRight(), in.bottomLeft());
        }
    }
}
