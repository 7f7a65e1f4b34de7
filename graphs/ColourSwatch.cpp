// SPDX-License-Identifier: GPL-3.0-or-later
#include "ColourSwatch.h"

#include "ChartPainter.h"

#include <QPainter>

ColourSwatch::ColourSwatch(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColourSwatch::setColourIndex(int index)
{
    m_index = index;
    setToolTip(ChartPainter::colourName(index));
    // A screen reader says the colour, which the square itself cannot.
    setAccessibleDescription(ChartPainter::colourName(index));
    update();
}

void ColourSwatch::setMarked(bool marked)
{
    m_marked = marked;
    update();
}

QSize ColourSwatch::sizeHint() const
{
    // In step with the lettering, so rows and paint box shrink with it on a small screen.
    // The rings round it take 10 pixels, whatever the size.
    const int line = fontMetrics().height();
    const int side = qMax(line + 10, line * 3 / 2);
    return {side, side};
}

void ColourSwatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect()).adjusted(3, 3, -3, -3);
    if (hasFocus()) {
        painter.setPen(QPen(QColor(0xFF, 0xD6, 0x00), 5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 7, 7);
    }
    painter.setPen(
        QPen(m_marked ? QColor(0x21, 0x21, 0x21) : QColor(0x90, 0xA4, 0xAE), m_marked ? 3.5 : 1.5));
    QColor fill = ChartPainter::colour(m_index);
    // Faded, not lightened: a lightened yellow would turn white and look like no colour at all.
    if (!isEnabled())
        fill.setAlpha(90);
    painter.setBrush(fill);
    painter.drawRoundedRect(box.adjusted(2, 2, -2, -2), 5, 5);
}
