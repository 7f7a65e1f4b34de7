// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

// Paints a graph of any kind into a rectangle of any size: the screen's chart area and the
// printed page share it. Everything is laid out on a grid of a thousandth of the area, so the
// chart keeps its look at every size.
namespace ChartPainter {
// The twelve swatch colours: bright on screen, and of different lightness so that they stay
// apart when printed in grey.
QColor colour(int index);
QString colourName(int index);

struct Options {
    bool paper = false; // no rounded card behind the chart
    bool legend = true; // a pie's legend, left out where a table beside it says the same
};
void paint(QPainter &painter, const QRectF &area, const Graph &graph, const Options &options);
// The friendly words shown in place of a chart that has nothing to draw.
QString emptyHint(const Graph &graph);
} // namespace ChartPainter
