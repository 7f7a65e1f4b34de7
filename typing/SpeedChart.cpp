// SPDX-License-Identifier: GPL-3.0-or-later
#include "SpeedChart.h"

#include <cmath>
#include <QPainter>

SpeedChart::SpeedChart(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SpeedChart::setResults(const QList<TestResult> &results)
{
    m_results = results;
    update();
}

void SpeedChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(QPen(QColor(0x90, 0xA4, 0xAE), 2));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));

    QFont small = font();
    small.setPixelSize(std::max(9, height() / 14));
    painter.setFont(small);
    const QFontMetrics metrics(small);
    const int line = metrics.height();
    const QRect plot = rect().adjusted(metrics.horizontalAdvance(QStringLiteral("000")) + 14,
                                       line + 8, -12, -2 * line - 8);
    painter.setPen(QColor(0x37, 0x47, 0x4F));
    painter.drawText(QRect(0, 2, width(), line), Qt::AlignCenter, tr("Words a minute"));
    if (m_results.isEmpty() || plot.width() < 20 || plot.height() < 20) {
        painter.drawText(rect(), Qt::AlignCenter, tr("No speed tests yet"));
        return;
    }

    double top = 10;
    for (const TestResult &r : std::as_const(m_results))
        top = std::max(top, r.wordsPerMinute);
    top = std::ceil(top / 10.0) * 10.0;
    // Grid lines every ten words a minute, fewer when the scale is tall.
    const int step = top > 60 ? 20 : 10;
    for (int v = 0; v <= top; v += step) {
        const double y = plot.bottom() - plot.height() * v / top;
        painter.setPen(QPen(QColor(0xCF, 0xD8, 0xDC), 1));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(QColor(0x37, 0x47, 0x4F));
        painter.drawText(QRectF(0, y - line / 2.0, plot.left() - 6, line),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(v));
    }
    const int count = int(m_results.size());
    const double slot = plot.width() / double(count);
    const double barWidth = std::min(slot * 0.6, double(plot.height()));
    for (int i = 0; i < count; ++i) {
        const TestResult &r = m_results[i];
        const double h = plot.height() * r.wordsPerMinute / top;
        const QRectF bar(plot.left() + slot * i + (slot - barWidth) / 2, plot.bottom() - h,
                         barWidth, h);
        painter.setPen(QPen(QColor(0x0D, 0x47, 0xA1), 1.5));
        painter.setBrush(r.minutes == 2 ? QColor(0x42, 0xA5, 0xF5) : QColor(0x66, 0xBB, 0x6A));
        painter.drawRect(bar);
        painter.setPen(QColor(0x1A, 0x23, 0x7E));
        painter.drawText(QRectF(bar.left() - slot, bar.top() - line, barWidth + 2 * slot, line),
                         Qt::AlignCenter, QString::number(qRound(r.wordsPerMinute)));
        painter.drawText(QRectF(plot.left() + slot * i, plot.bottom() + 2, slot, line),
                         Qt::AlignCenter, tr("Test %1").arg(i + 1));
        painter.drawText(QRectF(plot.left() + slot * i, plot.bottom() + 2 + line, slot, line),
                         Qt::AlignCenter, tr("%1%").arg(qRound(r.accuracy)));
    }
}
