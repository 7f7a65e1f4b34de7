// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChartPainter.h"

#include "ChartGeometry.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

struct Swatch {
    const char *hex;
    const char *name;
};
// Ordered so that neighbours differ in lightness as well as in hue.
constexpr Swatch Swatches[Graph::Colours] = {
    {"#E53935", QT_TRANSLATE_NOOP("ChartPainter", "Red")},
    {"#1E88E5", QT_TRANSLATE_NOOP("ChartPainter", "Blue")},
    {"#FDD835", QT_TRANSLATE_NOOP("ChartPainter", "Yellow")},
    {"#2E7D32", QT_TRANSLATE_NOOP("ChartPainter", "Green")},
    {"#FB8C00", QT_TRANSLATE_NOOP("ChartPainter", "Orange")},
    {"#8E24AA", QT_TRANSLATE_NOOP("ChartPainter", "Purple")},
    {"#4FC3F7", QT_TRANSLATE_NOOP("ChartPainter", "Sky Blue")},
    {"#5D4037", QT_TRANSLATE_NOOP("ChartPainter", "Brown")},
    {"#F48FB1", QT_TRANSLATE_NOOP("ChartPainter", "Pink")},
    {"#C0CA33", QT_TRANSLATE_NOOP("ChartPainter", "Lime")},
    {"#1A237E", QT_TRANSLATE_NOOP("ChartPainter", "Navy")},
    {"#26A69A", QT_TRANSLATE_NOOP("ChartPainter", "Teal")},
};

const QColor Ink(0x26, 0x32, 0x38);
const QColor SoftInk(0x54, 0x6E, 0x7A);
const QColor GridColour(0xCF, 0xD8, 0xDC);

QFont fontOf(const QPainter &painter, double size, bool bold = false)
{
    QFont font = painter.font();
    font.setFamily(QStringLiteral("Comic Sans MS"));
    font.setPixelSize(qMax(1, qRound(size)));
    font.setBold(bold);
    return font;
}

// Dark text on light colours and white on dark ones.
QColor textOn(const QColor &fill)
{
    return fill.lightness() > 150 ? Ink : Qt::white;
}

void drawElided(QPainter &painter, const QRectF &box, int flags, const QString &text)
{
    const QFontMetricsF metrics(painter.font());
    painter.drawText(box, flags, metrics.elidedText(text, Qt::ElideRight, box.width()));
}

void paintHint(QPainter &painter, const QRectF &area, const QString &text)
{
    // A small picture of a chart waiting for its numbers.
    const double size = qMin(area.width(), area.height()) * 0.28;
    const QRectF icon(area.center().x() - size / 2, area.center().y() - size * 0.9, size, size);
    const double bar = size / 4;
    const double heights[] = {0.45, 0.8, 0.6};
    for (int i = 0; i < 3; ++i) {
        QColor fill = ChartPainter::colour(i * 3 + 1);
        fill.setAlpha(110);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        const double h = size * heights[i];
        painter.drawRoundedRect(
            QRectF(icon.left() + bar * 0.4 + i * bar * 1.2, icon.bottom() - h, bar, h), bar * 0.2,
            bar * 0.2);
    }
    painter.setPen(QPen(GridColour, size * 0.03));
    painter.drawLine(icon.bottomLeft(), icon.bottomRight());
    painter.setPen(SoftInk);
    painter.setFont(fontOf(painter, 30, true));
    painter.drawText(QRectF(area.left() + 40, icon.bottom() + 20, area.width() - 80,
                            area.bottom() - icon.bottom() - 30),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

void paintAxesChart(QPainter &painter, const QRectF &area, const Graph &graph)
{
    using namespace ChartGeometry;
    const int count = int(graph.points.size());
    const QFont axisTitleFont = fontOf(painter, 32, true);
    const QFont labelFont = fontOf(painter, 29);
    const QFont tickFont = fontOf(painter, 28);
    const QFontMetricsF labelMetrics(labelFont);
    const QFontMetricsF tickMetrics(tickFont);

    const QList<double> tickValues = ticks(graph.yMin, graph.yMax, graph.divisions);
    double tickWidth = 0;
    for (const double v : tickValues)
        tickWidth = qMax(tickWidth, tickMetrics.horizontalAdvance(GraphRules::formatValue(v)));

    double widest = 0;
    for (const GraphPoint &point : graph.points)
        widest = qMax(widest, labelMetrics.horizontalAdvance(point.label));
    const double yTitleWidth = QFontMetricsF(axisTitleFont).height() + 12;
    const double left = area.left() + yTitleWidth + tickWidth + 16;
    const double plotWidth = area.right() - 20 - left;
    const bool slant = slantLabels(slotWidth(QRectF(0, 0, plotWidth, 1), count), widest);
    // Slanted labels may take up to a quarter of the height; longer ones are shortened.
    const double slantLength = qMin(widest, area.height() * 0.25 / qSin(qDegreesToRadians(40.0)));
    const double labelHeight =
        slant ? slantLength * qSin(qDegreesToRadians(40.0)) + labelMetrics.height()
              : labelMetrics.height() + 8;
    const double xTitleHeight = QFontMetricsF(axisTitleFont).height() + 8;
    const QRectF plot(left, area.top() + tickMetrics.height() / 2 + 6, plotWidth,
                      area.height() - labelHeight - xTitleHeight - tickMetrics.height() / 2 - 18);
    if (plot.width() < 20 || plot.height() < 20)
        return;

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFA, 0xFB, 0xFC));
    painter.drawRect(plot);

    // The value axis: grid lines or short ticks, and every value that has room.
    const int stride = labelStride(plot.height(), graph.divisions, tickMetrics.height());
    painter.setFont(tickFont);
    for (int i = 0; i < tickValues.size(); ++i) {
        const double y = valueToY(plot, graph.yMin, graph.yMax, tickValues[i]);
        if (graph.grid && i > 0) {
            painter.setPen(QPen(GridColour, 2));
            painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        }
        painter.setPen(QPen(Ink, 2.5));
        painter.drawLine(QPointF(plot.left() - 8, y), QPointF(plot.left(), y));
        if (i % stride == 0 || i == tickValues.size() - 1) {
            painter.setPen(Ink);
            painter.drawText(QRectF(plot.left() - 14 - tickWidth, y - tickMetrics.height() / 2,
                                    tickWidth, tickMetrics.height()),
                             Qt::AlignRight | Qt::AlignVCenter,
                             GraphRules::formatValue(tickValues[i]));
        }
    }

    const double slot = slotWidth(plot, count);
    painter.setFont(labelFont);
    if (graph.type == Graph::BarChart) {
        const QList<QRectF> rects = bars(plot, graph);
        const bool roomForValues = labelMetrics.horizontalAdvance(QStringLiteral("888.8")) < slot;
        for (int i = 0; i < count; ++i) {
            const QColor fill = ChartPainter::colour(graph.points[i].colour);
            painter.setPen(QPen(fill.darker(150), 2.5));
            painter.setBrush(fill);
            painter.drawRect(rects[i]);
            if (!roomForValues)
                continue;
            const bool below = graph.points[i].value < baseline(graph.yMin, graph.yMax);
            const double y =
                below ? rects[i].bottom() + 2 : rects[i].top() - labelMetrics.height() - 2;
            painter.setPen(Ink);
            painter.drawText(
                QRectF(rects[i].center().x() - slot / 2, y, slot, labelMetrics.height()),
                Qt::AlignCenter, GraphRules::formatValue(graph.points[i].value));
        }
    } else {
        const QList<QPointF> points = linePoints(plot, graph);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(QColor(0x37, 0x47, 0x4F), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(points.constData(), int(points.size()));
        const double radius = qBound(6.0, slot * 0.12, 12.0);
        for (int i = 0; i < count; ++i) {
            painter.setPen(QPen(Qt::white, 3));
            painter.setBrush(ChartPainter::colour(graph.points[i].colour));
            painter.drawEllipse(points[i], radius, radius);
        }
    }

    // Axis lines on top of the bars, so that the baseline stays visible.
    painter.setPen(QPen(Ink, 3, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(plot.topLeft(), plot.bottomLeft());
    const double zero = valueToY(plot, graph.yMin, graph.yMax, baseline(graph.yMin, graph.yMax));
    painter.drawLine(QPointF(plot.left(), zero), QPointF(plot.right(), zero));
    if (zero < plot.bottom() - 1) {
        painter.setPen(QPen(SoftInk, 2));
        painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    }

    // The labels under their slots, slanted when they would run into each other.
    painter.setPen(Ink);
    painter.setFont(labelFont);
    for (int i = 0; i < count; ++i) {
        const double x = slotCentre(plot, count, i);
        if (!slant) {
            drawElided(painter,
                       QRectF(x - slot / 2, plot.bottom() + 6, slot, labelMetrics.height()),
                       Qt::AlignHCenter | Qt::AlignTop, graph.points[i].label);
            continue;
        }
        painter.save();
        painter.translate(x + labelMetrics.height() * 0.3, plot.bottom() + 8);
        painter.rotate(-40);
        drawElided(painter, QRectF(-slantLength, 0, slantLength, labelMetrics.height()),
                   Qt::AlignRight | Qt::AlignTop, graph.points[i].label);
        painter.restore();
    }

    painter.setFont(axisTitleFont);
    painter.setPen(QColor(0x0D, 0x47, 0xA1));
    drawElided(painter,
               QRectF(plot.left(), area.bottom() - xTitleHeight, plot.width(), xTitleHeight),
               Qt::AlignHCenter | Qt::AlignVCenter, graph.xTitle);
    painter.save();
    painter.translate(area.left(), plot.center().y());
    painter.rotate(-90);
    drawElided(painter, QRectF(-plot.height() / 2, 0, plot.height(), yTitleWidth),
               Qt::AlignHCenter | Qt::AlignTop, graph.yTitle);
    painter.restore();
}

void paintPie(QPainter &painter, const QRectF &area, const Graph &graph, bool legend)
{
    const QList<ChartGeometry::Slice> slices = ChartGeometry::pieSlices(graph);
    const int count = int(graph.points.size());
    const QFont legendFont = fontOf(painter, 32);
    const QFont percentFont = fontOf(painter, 30, true);
    const QFontMetricsF legendMetrics(legendFont);

    const double legendWidth = legend ? qMin(area.width() * 0.4, 400.0) : 0.0;
    const double diameter = qMin(area.height() - 20, area.width() - legendWidth - 60);
    if (diameter < 40)
        return;
    const QRectF pie(area.left() + (area.width() - legendWidth - diameter) / 2,
                     area.top() + (area.height() - diameter) / 2, diameter, diameter);
    const double radius = diameter / 2;

    painter.setPen(QPen(Qt::white, 3));
    for (int i = 0; i < count; ++i) {
        if (slices[i].span == 0)
            continue;
        painter.setBrush(ChartPainter::colour(graph.points[i].colour));
        if (-slices[i].span >= ChartGeometry::FullTurn)
            painter.drawEllipse(pie);
        else
            painter.drawPie(pie, slices[i].start, slices[i].span);
    }
    painter.setPen(QPen(Ink, 2.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(pie);

    // Percentages on the slices that have room for them, just outside the others.
    if (graph.piePercent) {
        painter.setFont(percentFont);
        const QFontMetricsF metrics(percentFont);
        for (int i = 0; i < count; ++i) {
            if (slices[i].span == 0)
                continue;
            const QString text = QStringLiteral("%1%").arg(slices[i].percent);
            const double angle = qDegreesToRadians(slices[i].middleDegrees);
            const double width = metrics.horizontalAdvance(text);
            const double arc = -slices[i].span / 16.0 * M_PI / 180.0 * radius * 0.66;
            const bool inside = arc > width * 1.1 && radius > 4 * metrics.height();
            const double r = inside ? radius * 0.66 : radius + metrics.height() * 0.8;
            const QPointF at(pie.center().x() + r * qCos(angle),
                             pie.center().y() - r * qSin(angle));
            const QColor fill = ChartPainter::colour(graph.points[i].colour);
            painter.setPen(inside ? textOn(fill) : Ink);
            painter.drawText(
                QRectF(at.x() - width, at.y() - metrics.height() / 2, width * 2, metrics.height()),
                Qt::AlignCenter, text);
        }
    }

    if (!legend)
        return;
    // The legend: one row per point with its colour, label and value.
    const double row = qMin(legendMetrics.height() * 1.5, (area.height() - 20) / qMax(1, count));
    const double box = qMin(row * 0.7, legendMetrics.height());
    const double legendLeft = area.right() - legendWidth;
    double y = area.top() + (area.height() - row * count) / 2;
    painter.setFont(legendFont);
    for (int i = 0; i < count; ++i) {
        const GraphPoint &point = graph.points[i];
        painter.setPen(QPen(Ink, 1.5));
        painter.setBrush(ChartPainter::colour(point.colour));
        painter.drawRoundedRect(QRectF(legendLeft, y + (row - box) / 2, box, box), 4, 4);
        const QString value = GraphRules::formatValue(point.value);
        const double valueWidth = legendMetrics.horizontalAdvance(value) + 8;
        painter.setPen(Ink);
        drawElided(painter,
                   QRectF(legendLeft + box + 12, y, legendWidth - box - 12 - valueWidth, row),
                   Qt::AlignLeft | Qt::AlignVCenter, point.label);
        painter.setPen(SoftInk);
        painter.drawText(QRectF(area.right() - valueWidth, y, valueWidth, row),
                         Qt::AlignRight | Qt::AlignVCenter, value);
        y += row;
    }
}

} // namespace

QColor ChartPainter::colour(int index)
{
    return QColor(QLatin1String(Swatches[qBound(0, index, Graph::Colours - 1)].hex));
}

QString ChartPainter::colourName(int index)
{
    return QCoreApplication::translate("ChartPainter",
                                       Swatches[qBound(0, index, Graph::Colours - 1)].name);
}

QString ChartPainter::emptyHint(const Graph &graph)
{
    if (graph.points.isEmpty())
        return QCoreApplication::translate(
            "ChartPainter", "Your graph will appear here.\nType labels and numbers in the Data "
                            "step, then press Draw.");
    return QCoreApplication::translate("ChartPainter",
                                       "A pie chart needs at least one number bigger than zero.");
}

void ChartPainter::paint(QPainter &painter, const QRectF &area, const Graph &graph,
                         const Options &options)
{
    if (area.width() < 10 || area.height() < 10)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    // A grid of a thousandth of the area's width (or of its height, for tall areas).
    const double unit = qMin(area.width(), area.height() * 1.4) / 1000.0;
    painter.translate(area.topLeft());
    painter.scale(unit, unit);
    const QRectF box(0, 0, area.width() / unit, area.height() / unit);

    if (!options.paper) {
        painter.setPen(QPen(QColor(0xB0, 0xBE, 0xC5), 3));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(box.adjusted(2, 2, -2, -2), 18, 18);
    }
    QRectF inner = box.adjusted(28, 20, -28, -20);
    painter.setFont(fontOf(painter, 46, true));
    painter.setPen(QColor(0x0D, 0x47, 0xA1));
    const double titleHeight = QFontMetricsF(painter.font()).height() + 10;
    drawElided(painter, QRectF(inner.left(), inner.top(), inner.width(), titleHeight),
               Qt::AlignCenter, graph.title);
    inner.setTop(inner.top() + titleHeight + 10);

    const bool empty = graph.points.isEmpty() ||
                       (graph.type == Graph::PieChart && ChartGeometry::pieSlices(graph).isEmpty());
    if (empty)
        paintHint(painter, inner, emptyHint(graph));
    else if (graph.type == Graph::PieChart)
        paintPie(painter, inner, graph, options.legend);
    else
        paintAxesChart(painter, inner, graph);
    painter.restore();
}
