// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphPaper.h"

#include "ChartGeometry.h"
#include "ChartPainter.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr int TableWidth = 270;

void drawTable(QPainter &painter, const QRectF &area, const Graph &graph, const QFont &fine)
{
    const bool percent = graph.type == Graph::PieChart;
    const QList<ChartGeometry::Slice> slices = ChartGeometry::pieSlices(graph);
    const int rows = int(graph.points.size()) + 1;
    const double rowHeight = qMin(34.0, area.height() / qMax(1, rows));
    const double swatch = 16;
    const double valueColumn = 86;
    const double percentColumn = percent ? 58 : 0;
    const double labelColumn = area.width() - valueColumn - percentColumn;
    // The axis titles name the columns; a pie's second title often names its values too.
    const QStringList headings{
        graph.xTitle.trimmed().isEmpty() ? QCoreApplication::translate("GraphPaper", "Label")
                                         : graph.xTitle,
        graph.yTitle.trimmed().isEmpty() ? QCoreApplication::translate("GraphPaper", "Value")
                                         : graph.yTitle,
        QCoreApplication::translate("GraphPaper", "Part")};

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1.2));
    painter.setBrush(QColor(0xE0, 0xE0, 0xE0));
    painter.drawRect(QRectF(area.left(), area.top(), area.width(), rowHeight));
    painter.setBrush(Qt::NoBrush);
    for (int r = 0; r <= rows; ++r)
        painter.drawLine(QPointF(area.left(), area.top() + r * rowHeight),
                         QPointF(area.right(), area.top() + r * rowHeight));
    QList<double> edges{area.left(), area.left() + labelColumn,
                        area.left() + labelColumn + valueColumn};
    if (percent)
        edges.append(area.right());
    else
        edges.last() = area.right();
    for (const double x : edges)
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.top() + rows * rowHeight));

    // Text at ten times the scale: page units are too coarse for the size of a letter.
    const int f = PrintDocument::Fine;
    painter.scale(1.0 / f, 1.0 / f);
    QFont bold = fine;
    bold.setBold(true);
    auto cell = [&](int column, int row) {
        return QRectF((edges[column] + 6) * f, (area.top() + row * rowHeight) * f,
                      (edges[column + 1] - edges[column] - 12) * f, rowHeight * f);
    };
    painter.setFont(bold);
    const QFontMetricsF boldMetrics(bold);
    for (int c = 0; c < edges.size() - 1; ++c)
        painter.drawText(cell(c, 0), Qt::AlignCenter,
                         boldMetrics.elidedText(headings[c], Qt::ElideRight, cell(c, 0).width()));
    painter.setFont(fine);
    const QFontMetricsF metrics(fine);
    for (int i = 0; i < graph.points.size(); ++i) {
        const GraphPoint &point = graph.points[i];
        QRectF label = cell(0, i + 1);
        painter.setPen(QPen(Qt::black, 1.2 * f));
        painter.setBrush(ChartPainter::colour(point.colour));
        painter.drawRect(
            QRectF(label.left(), label.center().y() - swatch * f / 2, swatch * f, swatch * f));
        painter.setBrush(Qt::NoBrush);
        label.setLeft(label.left() + (swatch + 6) * f);
        painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(point.label, Qt::ElideRight, label.width()));
        painter.drawText(cell(1, i + 1), Qt::AlignRight | Qt::AlignVCenter,
                         GraphRules::formatValue(point.value));
        if (percent && i < slices.size())
            painter.drawText(cell(2, i + 1), Qt::AlignRight | Qt::AlignVCenter,
                             QStringLiteral("%1%").arg(slices[i].percent));
    }
    painter.restore();
}

} // namespace

PrintDocument GraphPaper::document(const Graph &graph, const QString &fileName)
{
    const QString caption = QCoreApplication::translate("GraphPaper", "Graphs & Charts");
    PrintDocument paper(fileName == QLatin1String(GraphRules::NewName)
                            ? caption
                            : caption + QStringLiteral(" - ") + fileName);
    paper.setLandscape(true);
    paper.setFont(QStringLiteral("Comic Sans MS"), 12);
    const int height = paper.bottom() - PrintDocument::Top - 4 * qCeil(paper.lineSpacing()) - 10;
    const QFont fine = paper.fineFont();
    paper.addDrawing(height, [graph, fine](QPainter &painter, const QRect &area) {
        const QRectF chart(area.left(), area.top(), area.width() - TableWidth - 30, area.height());
        ChartPainter::Options options;
        options.paper = true;
        options.legend = false; // the table beside the chart shows each colour
        ChartPainter::paint(painter, chart, graph, options);
        if (!graph.points.isEmpty())
            drawTable(
                painter,
                QRectF(area.right() - TableWidth, area.top() + 20, TableWidth, area.height() - 40),
                graph, fine);
    });
    return paper;
}
