// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Contest.h"

#include <QWidget>

// A bar chart of the boxes each class sold on each day of the contest, the two classes side
// by side, with a scale and a key. The same drawing serves the screen and the printed report.
class SalesChart : public QWidget {
    Q_OBJECT
public:
    explicit SalesChart(QWidget *parent = nullptr);

    // The days to show, and the one to pick out (0 for none).
    void setReports(const QList<Contest::DayReport> &reports, int highlightDay);

    static void paint(QPainter &painter, const QRectF &area,
                      const QList<Contest::DayReport> &reports, int highlightDay,
                      const QFont &font);
    // The top of the scale: a round number at least as large as the biggest day.
    static int scaleTop(const QList<Contest::DayReport> &reports);

    QSize sizeHint() const override { return {520, 240}; }
    QSize minimumSizeHint() const override { return {260, 150}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<Contest::DayReport> m_reports;
    int m_highlight = 0;
};
