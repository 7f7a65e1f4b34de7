// SPDX-License-Identifier: GPL-3.0-or-later
#include "SalesChart.h"

#include "CandyMap.h"

#include <QCoreApplication>
#include <QPainter>

SalesChart::SalesChart(QWidget *parent) : QWidget(parent)
{
    setMinimumSize(minimumSizeHint());
}

void SalesChart::setReports(const QList<Contest::DayReport> &reports, int highlightDay)
{
    m_reports = reports;
    m_highlight = highlightDay;
    update();
}

int SalesChart::scaleTop(const QList<Contest::DayReport> &reports)
{
    int most = 0;
    for (const Contest::DayReport &r : reports)
        most = qMax(most, qMax(r.boxesOurs, r.boxesTheirs));
    for (int step : {5, 10, 20, 50, 100, 200, 500, 1000})
        if (most <= step * 5)
            return qMax(step, (most + step - 1) / step * step);
    return most;
}

void SalesChart::paint(QPainter &painter, const QRectF &area,
                       const QList<Contest::DayReport> &reports, int highlightDay,
                       const QFont &font)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QFont text = font;
    const double unit = qMin(area.width() / 60.0, area.height() / 30.0);
    text.setPixelSize(qMax(8, int(unit * 1.9)));
    painter.setFont(text);
    const QFontMetricsF metrics(text);
    const double line = metrics.height();

    // The key across the top.
    const QList<std::pair<Contest::Side, QString>> key = {
        {Contest::Side::Ours, Contest::sideName(Contest::Side::Ours)},
        {Contest::Side::Theirs, Contest::sideName(Contest::Side::Theirs)}};
    double x = area.left() + line * 3;
    for (const auto &[side, name] : key) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(CandyMap::sideColour(side));
        painter.drawRect(QRectF(x, area.top() + line * 0.2, line * 0.8, line * 0.8));
        painter.setPen(QColor(0x21, 0x21, 0x21));
        painter.drawText(QPointF(x + line, area.top() + metrics.ascent()), name);
        x += line * 1.6 + metrics.horizontalAdvance(name) + line;
    }

    const int top = scaleTop(reports);
    const double labelWidth = metrics.horizontalAdvance(QString::number(top)) + line * 0.6;
    const QRectF plot(area.left() + labelWidth, area.top() + line * 1.6,
                      area.width() - labelWidth - line * 0.4, area.height() - line * 3.6);
    // The scale: five steps with faint lines across.
    for (int i = 0; i <= 5; ++i) {
        const double y = plot.bottom() - plot.height() * i / 5.0;
        painter.setPen(QPen(QColor(0xCF, 0xD8, 0xDC), 1));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(QColor(0x45, 0x5A, 0x64));
        painter.drawText(QRectF(area.left(), y - line / 2, labelWidth - line * 0.3, line),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(top * i / 5));
    }
    const double slot = plot.width() / Contest::Days;
    for (int d = 1; d <= Contest::Days; ++d) {
        const double left = plot.left() + slot * (d - 1);
        if (d == highlightDay) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0xFF, 0xF5, 0x9D));
            painter.drawRect(QRectF(left, plot.top(), slot, plot.height()));
        }
        painter.setPen(QColor(0x37, 0x47, 0x4F));
        painter.drawText(QRectF(left, plot.bottom() + line * 0.2, slot, line), Qt::AlignCenter,
                         QString::number(d));
        if (d > reports.size())
            continue;
        const Contest::DayReport &r = reports[d - 1];
        const double bar = slot * 0.36;
        const int values[] = {r.boxesOurs, r.boxesTheirs};
        for (int i = 0; i < 2; ++i) {
            const double height = top > 0 ? plot.height() * values[i] / top : 0;
            painter.setPen(Qt::NoPen);
            painter.setBrush(
                CandyMap::sideColour(i == 0 ? Contest::Side::Ours : Contest::Side::Theirs));
            painter.drawRect(
                QRectF(left + slot * 0.12 + bar * i, plot.bottom() - height, bar, height));
        }
    }
    painter.setPen(QPen(QColor(0x37, 0x47, 0x4F), 1.5));
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.bottomLeft(), plot.topLeft());
    painter.drawText(QRectF(plot.left(), plot.bottom() + line * 1.1, plot.width(), line),
                     Qt::AlignCenter,
                     QCoreApplication::translate("SalesChart", "Boxes sold each day"));
    painter.restore();
}

void SalesChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    paint(painter, QRectF(rect()).adjusted(6, 6, -6, -6), m_reports, m_highlight, font());
}
