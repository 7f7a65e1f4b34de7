// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"

#include <QList>
#include <QPointF>
#include <QRectF>

// Where each part of a chart goes, worked out apart from painting so that it can be checked
// exactly: the value axis's ticks, the bars, the points of a line and the slices of a pie.
namespace ChartGeometry {

// The scale's tick values from the minimum to the maximum, divisions + 1 of them.
QList<double> ticks(double minimum, double maximum, int divisions);
// Every how many ticks a value is written, so that written values stand a line apart.
int labelStride(double plotHeight, int divisions, double lineHeight);
// The height on the plot of a value of the scale (the top of the plot is the maximum).
double valueToY(const QRectF &plot, double minimum, double maximum, double value);
// The value bars grow from: zero when the scale holds it, else the scale's nearer end.
double baseline(double minimum, double maximum);
// The middle of the slot of point `index` of `count` along the label axis.
double slotCentre(const QRectF &plot, int count, int index);
double slotWidth(const QRectF &plot, int count);
// One bar per point, from the baseline to its value, in the middle part of its slot.
QList<QRectF> bars(const QRectF &plot, const Graph &graph);
// One point per value, at the middle of its slot.
QList<QPointF> linePoints(const QRectF &plot, const Graph &graph);
// Whether labels must be slanted so that they do not run into each other.
bool slantLabels(double slot, double widestLabel);

// A slice of a pie, in sixteenths of a degree as painters take them: it starts at twelve
// o'clock and goes clockwise, so spans are negative. The spans add up to a full turn.
struct Slice {
    int start = 0;
    int span = 0;
    int percent = 0;
    double middleDegrees = 0; // counter-clockwise from three o'clock, for labels
};
inline constexpr int FullTurn = 360 * 16;
// Slices of the positive values; an empty list when nothing is above zero.
QList<Slice> pieSlices(const Graph &graph);
// Whole percentages of the total that add up to 100 (largest remainders get the spare ones).
QList<int> percentages(const QList<double> &values);

} // namespace ChartGeometry
