// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseCover.h"

#include <QPainter>
#include <QPainterPath>

CaseCover::CaseCover(QWidget *parent) : QWidget(parent)
{
    setMinimumSize(300, 300);
}

QStringList CaseCover::steps()
{
    return {tr("Press New Case, or Old Case to type a case number."),
            tr("Read the case and the fourteen clues."),
            tr("Cross off the suspects who cannot be the thief."),
            tr("Accuse the thief, and get promoted!")};
}

void CaseCover::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(4, 4, -4, -4);
    painter.setPen(QPen(QColor(0xC5, 0xCA, 0xE9), 2));
    painter.setBrush(QColor(0xFF, 0xFD, 0xF5));
    painter.drawRoundedRect(area, 14, 14);

    const double unit = qMin(area.width(), area.height()) / 100.0;
    // A trail of footprints from the lower left towards the glass.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x8D, 0x6E, 0x63, 150));
    for (int i = 0; i < 6; ++i) {
        const QPointF at(area.left() + area.width() * (0.10 + 0.08 * i),
                         area.bottom() - area.height() * (0.10 + 0.06 * i) - (i % 2) * 4 * unit);
        painter.save();
        painter.translate(at);
        painter.rotate(-30);
        painter.drawEllipse(QRectF(-2.2 * unit, -3.5 * unit, 4.4 * unit, 7 * unit));
        painter.drawEllipse(QRectF(-1.8 * unit, 4 * unit, 3.6 * unit, 3 * unit));
        painter.restore();
    }

    // The magnifying glass.
    const QPointF lens(area.left() + area.width() * 0.68, area.bottom() - area.height() * 0.42);
    const double radius = 14 * unit;
    painter.save();
    painter.translate(lens);
    painter.rotate(45);
    painter.setBrush(QColor(0x6D, 0x4C, 0x41));
    painter.drawRoundedRect(QRectF(radius * 0.95, -2.6 * unit, radius * 1.5, 5.2 * unit), 2 * unit,
                            2 * unit);
    painter.restore();
    painter.setPen(QPen(QColor(0x37, 0x47, 0x4F), 3 * unit));
    painter.setBrush(QColor(0xB3, 0xE5, 0xFC, 170));
    painter.drawEllipse(lens, radius, radius);
    painter.setPen(QPen(QColor(255, 255, 255, 200), 1.6 * unit, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(
        QRectF(lens.x() - radius * 0.65, lens.y() - radius * 0.65, radius * 1.3, radius * 1.3),
        100 * 16, 70 * 16);

    // The title and the steps, above the picture.
    QFont title = font();
    title.setPixelSize(int(qMax(18.0, 9 * unit)));
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(QColor(0xC6, 0x28, 0x28));
    const QRectF titleArea(area.left(), area.top() + 3 * unit, area.width(), 12 * unit);
    painter.drawText(titleArea, Qt::AlignCenter, tr("Stop Thief!"));

    QFont body = font();
    body.setPixelSize(int(qMax(15.0, 4.2 * unit)));
    painter.setFont(body);
    painter.setPen(QColor(0x1A, 0x23, 0x7E));
    const QStringList lines = steps();
    double y = titleArea.bottom() + 2 * unit;
    const double lineHeight = QFontMetricsF(body).lineSpacing();
    for (int i = 0; i < lines.size(); ++i) {
        const QRectF line(area.left() + 6 * unit, y, area.width() - 12 * unit, lineHeight * 2.2);
        const QRectF used = painter.boundingRect(line, Qt::TextWordWrap,
                                                 QStringLiteral("%1. %2").arg(i + 1).arg(lines[i]));
        painter.drawText(line, Qt::TextWordWrap, QStringLiteral("%1. %2").arg(i + 1).arg(lines[i]));
        y += used.height() + 0.6 * lineHeight;
    }
}
