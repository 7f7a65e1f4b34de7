// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChartGeometry.h"

#include <algorithm>
#include <cmath>
#include <numeric>

QList<double> ChartGeometry::ticks(double minimum, double maximum, int divisions)
{
    QList<double> values;
    divisions = std::max(1, divisions);
    for (int i = 0; i <= divisions; ++i)
        // Each tick from the ends, so the last is the maximum exactly and errors do not add up.
        values.append(minimum + (maximum - minimum) * i / divisions);
    return values;
}

int ChartGeometry::labelStride(double plotHeight, int divisions, double lineHeight)
{
    const double step = plotHeight / std::max(1, divisions);
    if (step <= 0)
        return std::max(1, divisions);
    int stride = 1;
    while (stride < divisions && step * stride < lineHeight * 1.15)
        ++stride;
    return stride;
}

double ChartGeometry::valueToY(const QRectF &plot, double minimum, double maximum, double value)
{
    const double range = maximum - minimum;
    if (range <= 0)
        return plot.bottom();
    const double clamped = std::clamp(value, minimum, maximum);
    return plot.bottom() - (clamped - minimum) / range * plot.height();
}

double ChartGeometry::baseline(double minimum, double maximum)
{
    return std::clamp(0.0, minimum, maximum);
}

double ChartGeometry::slotWidth(const QRectF &plot, int count)
{
    return count > 0 ? plot.width() / count : plot.width();
}

double ChartGeometry::slotCentre(const QRectF &plot, int count, int index)
{
    return plot.left() + slotWidth(plot, count) * (index + 0.5);
}

QList<QRectF> ChartGeometry::bars(const QRectF &plot, const Graph &graph)
{
    QList<QRectF> rects;
    const int count = int(graph.points.size());
    const double slot = slotWidth(plot, count);
    const double width = slot * 0.62;
    const double base = valueToY(plot, graph.yMin, graph.yMax, baseline(graph.yMin, graph.yMax));
    for (int i = 0; i < count; ++i) {
        const double top = valueToY(plot, graph.yMin, graph.yMax, graph.points[i].value);
        const double x = slotCentre(plot, count, i) - width / 2;
        rects.append(
            QRectF(QPointF(x, std::min(top, base)), QPointF(x + width, std::max(top, base))));
    }
    return rects;
}

QList<QPointF> ChartGeometry::linePoints(const QRectF &plot, const Graph &graph)
{
    QList<QPointF> points;
    const int count = int(graph.points.size());
    for (int i = 0; i < count; ++i)
        points.append(QPointF(slotCentre(plot, count, i),
                              valueToY(plot, graph.yMin, graph.yMax, graph.points[i].value)));
    return points;
}

bool ChartGeometry::slantLabels(double slot, double widestLabel)
{
    return widestLabel > slot * 0.92;
}

QList<int> ChartGeometry::percentages(const QList<double> &values)
{
    QList<int> result(values.size(), 0);
    double total = 0;
    for (const double v : values)
        total += std::max(0.0, v);
    if (total <= 0)
        return result;
    QList<double> remainders(values.size(), 0);
    int given = 0;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const double exact = std::max(0.0, values[i]) * 100.0 / total;
        result[i] = int(std::floor(exact));
        remainders[i] = exact - result[i];
        given += result[i];
    }
    QList<qsizetype> order(values.size());
    std::iota(order.begin(), order.end(), 0);
    // Largest remainders first; on a tie the earlier point, so the result does not depend on
    // sorting.
    std::stable_sort(order.begin(), order.end(),
                     [&](qsizetype a, qsizetype b) { return remainders[a] > remainders[b]; });
    for (qsizetype k = 0; given < 100 && k < order.size(); ++k) {
        if (values[order[k]] <= 0)
            continue;
        ++result[order[k]];
        ++given;
    }
    return result;
}

QList<ChartGeometry::Slice> ChartGeometry::pieSlices(const Graph &graph)
{
    QList<double> values;
    double total = 0;
    for (const GraphPoint &point : graph.points) {
        values.append(std::max(0.0, double(point.value)));
        total += values.last();
    }
    QList<Slice> slices;
    if (total <= 0)
        return slices;
    const QList<int> percent = percentages(values);
    constexpr int Top = 90 * 16;
    double sum = 0;
    int edge = 0;
    for (qsizetype i = 0; i < values.size(); ++i) {
        sum += values[i];
        // Every edge is rounded from the running total, so the spans meet and close the circle.
        const int next = int(std::lround(sum / total * FullTurn));
        Slice slice;
        slice.start = Top - edge;
        slice.span = -(next - edge);
        slice.percent = percent[i];
        slice.middleDegrees = (Top - edge - (next - edge) / 2.0) / 16.0;
        slices.append(slice);
        edge = next;
    }
    return slices;
}
