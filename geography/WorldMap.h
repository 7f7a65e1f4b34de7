// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/widgets/PictureBox.h"

#include <optional>
#include <QPointF>
#include <QSizeF>

// The world map with the pointer that marks one country on it. The map stays loaded; only
// the pointer moves, drawn over the map at the map's present scale.
class WorldMap : public PictureBox {
    Q_OBJECT
public:
    explicit WorldMap(QWidget *parent = nullptr);
    // The size of the map in the units of the countries' map points.
    void setMapSize(QSizeF size);
    QSizeF mapSize() const { return m_mapSize; }
    void setPointer(QPointF place);
    void clearPointer();
    std::optional<QPointF> pointer() const { return m_pointer; }
    // A point in map units as a point of this widget, and back.
    QPointF toWidget(QPointF mapUnits) const;
    QPointF toMap(QPointF widgetPoint) const;
    // Map units per pixel of the widget.
    double unitsPerPixel() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSizeF m_mapSize{1000, 520};
    std::optional<QPointF> m_pointer;
};
