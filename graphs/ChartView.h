// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"

#include <QWidget>

// The chart on screen: paints the graph it was last given, at the size of the widget.
class ChartView : public QWidget {
    Q_OBJECT
public:
    explicit ChartView(QWidget *parent = nullptr);
    void setGraph(const Graph &graph);
    const Graph &graph() const { return m_graph; }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Graph m_graph;
};
