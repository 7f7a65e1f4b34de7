// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProfitChart.h"

#include "WeekReport.h"

#include <QCoreApplication>
#include <QPainter>

ProfitChart::ProfitChart(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ProfitChart::setProfits(const QList<qint64> &profits)
{
    m_profits = profits;
    update();
}

void ProfitChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Qt::white);
    QFont small = font();
    small.setPointSizeF(qMax(7.0, font().pointSizeF() * 0.75));
    paint(painter, QRectF(rect()).adjusted(4, 4, -4, -4), m_profits, small);
}

void ProfitChart::paint(QPainter &painter, const QRectF &area, const QList<qint64> &profits,
                        const QFont &font)
{
    painter.save();
    painter.setFont(font);
    const QFontMetricsF metrics(font, painter.device());
    const double line = metrics.height();
    qint64 top = 0;
    qint64 bottom = 0;
    for (qint64 p : profits) {
        top = qMax(top, p);
        bottom = qMin(bottom, p);
    }
    // Room above and below the bars for their amounts, and below for the week numbers.
    const QRectF plot = area.adjusted(0, line * 1.2, 0, -line * 3.3);
    const double range = double(top - bottom) > 0 ? double(top - bottom) : 1.0;
    const double zeroY = plot.top() + plot.height() * double(top) / range;

    const int count = int(qMax<qsizetype>(profits.size(), 1));
    const double slot = plot.width() / count;
    for (int i = 0; i < profits.size(); ++i) {
        const qint64 p = profits[i];
        const double height = plot.height() * double(p < 0 ? -p : p) / range;
        const QRectF bar(plot.left() + slot * (i + 0.18), p >= 0 ? zeroY - height : zeroY,
                         slot * 0.64, qMax(1.0, height));
        painter.setPen(Qt::NoPen);
        painter.setBrush(p >= 0 ? QColor(0x43, 0xA0, 0x47) : QColor(0xE5, 0x39, 0x35));
        painter.drawRect(bar);
        painter.setPen(QColor(0x21, 0x21, 0x21));
        // The amount to the nearest dollar fits above a narrow bar.
        const QString amount = QString::number((p + (p < 0 ? -50 : 50)) / 100);
        const QRectF label(plot.left() + slot * i, p >= 0 ? bar.top() - line : bar.bottom(), slot,
                           line);
        painter.drawText(label, Qt::AlignCenter, amount);
        painter.drawText(QRectF(plot.left() + slot * i, plot.bottom() + line * 1.1, slot, line),
                         Qt::AlignCenter, QString::number(i + 1));
    }
    painter.setPen(QPen(QColor(0x37, 0x47, 0x4F), qMax(1.0, line / 10)));
    painter.drawLine(QPointF(plot.left(), zeroY), QPointF(plot.right(), zeroY));
    painter.drawText(QRectF(area.left(), area.bottom() - line, area.width(), line), Qt::AlignCenter,
                     QCoreApplication::translate("ProfitChart", "Profit each week, in dollars"));
    painter.restore();
}
