// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Mastery.h"

#include <QWidget>

// The mastery grid on screen: families down the side, the other number across the top, each
// fact coloured grey (not yet seen), yellow (practising) or green (known), with the product
// once it has been seen. The families being practised are marked at the side.
class MasteryView : public QWidget {
    Q_OBJECT
public:
    explicit MasteryView(const MasteryGrid &grid, QWidget *parent = nullptr);
    void setOperation(Operation op);
    void setRange(int low, int high);
    // Repaints and retells screen readers what the grid holds.
    void refresh();
    static QColor colour(Mastery state);
    QSize sizeHint() const override { return {420, 420}; }
    QSize minimumSizeHint() const override { return {180, 180}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const MasteryGrid &m_grid;
    Operation m_op = Operation::Multiply;
    int m_low = 0;
    int m_high = 12;
};
