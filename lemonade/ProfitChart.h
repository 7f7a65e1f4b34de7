// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

// A bar chart of the profit of each week: green bars up for a profit, red bars down for a
// loss, the week numbers below. The same drawing serves the window and the printed report.
class ProfitChart : public QWidget {
    Q_OBJECT
public:
    explicit ProfitChart(QWidget *parent = nullptr);

    // Profits in cents, week 1 first.
    void setProfits(const QList<qint64> &profits);
    const QList<qint64> &profits() const { return m_profits; }

    // Draws the chart into `area` with the lettering of `font`.
    static void paint(QPainter &painter, const QRectF &area, const QList<qint64> &profits,
                      const QFont &font);

    QSize sizeHint() const override { return {420, 220}; }
    QSize minimumSizeHint() const override { return {220, 140}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<qint64> m_profits;
};
