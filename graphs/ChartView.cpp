// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChartView.h"

#include "ChartPainter.h"

#include <QPainter>

ChartView::ChartView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

// Room for a few bars and their labels in the lettering of the day: on a small screen the
// window's type shrinks, and the chart with it.
QSize ChartView::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 11, line * 8};
}

void ChartView::setGraph(const Graph &graph)
{
    m_graph = graph;
    // Screen readers get the chart in words: its title and every label with its value.
    QStringList parts{graph.title + QStringLiteral(", ") + Graph::typeName(graph.type)};
    for (const GraphPoint &point : graph.points)
        parts.append(point.label + QStringLiteral(" ") + GraphRules::formatValue(point.value));
    setAccessibleDescription(parts.join(QStringLiteral("; ")));
    update();
}

void ChartView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ChartPainter::paint(painter, QRectF(rect()), m_graph, {});
}
