// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorldMap.h"

#include "WorldCountries.h"

#include <QPainter>
#include <QPainterPath>

WorldMap::WorldMap(QWidget *parent) : PictureBox(parent) {}

void WorldMap::setMapSize(QSizeF size)
{
    if (!size.isEmpty())
        m_mapSize = size;
    update();
}

void WorldMap::setPointer(QPointF place)
{
    m_pointer = place;
    update();
}

void WorldMap::clearPointer()
{
    m_pointer.reset();
    update();
}

double WorldMap::unitsPerPixel() const
{
    const QRectF picture = pictureRect();
    return picture.width() > 0 ? m_mapSize.width() / picture.width() : 1.0;
}

QPointF WorldMap::toWidget(QPointF mapUnits) const
{
    return pictureRect().topLeft() + mapUnits / unitsPerPixel();
}

QPointF WorldMap::toMap(QPointF widgetPoint) const
{
    return (widgetPoint - pictureRect().topLeft()) * unitsPerPixel();
}

void WorldMap::paintEvent(QPaintEvent *event)
{
    PictureBox::paintEvent(event);
    if (!m_pointer || isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    for (const QLineF &line : WorldCountries::PointerLines(*m_pointer, m_mapSize)) {
        path.moveTo(toWidget(line.p1()));
        path.lineTo(toWidget(line.p2()));
    }
    // A white edge round a red line reads on sea and land alike, at any size.
    const double scale = 1.0 / unitsPerPixel();
    const double width = qBound(2.0, 5.0 * scale, 8.0);
    painter.setPen(QPen(Qt::white, width + 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.setPen(
        QPen(QColor(0xD5, 0x00, 0x00), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    // A ring round the place itself, so a tiny country is not hidden under the tip.
    const double ring = qMax(5.0, 9.0 * scale);
    painter.setPen(QPen(Qt::white, width + 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(toWidget(*m_pointer), ring, ring);
    painter.setPen(QPen(QColor(0xFF, 0xD6, 0x00), width - 1));
    painter.drawEllipse(toWidget(*m_pointer), ring, ring);
}
