// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SpeedTest.h"

#include <QWidget>

// A small bar chart of the speed of each test of the sitting, with its accuracy beneath.
class SpeedChart : public QWidget {
    Q_OBJECT
public:
    explicit SpeedChart(QWidget *parent = nullptr);
    void setResults(const QList<TestResult> &results);

    QSize sizeHint() const override { return {500, 200}; }
    QSize minimumSizeHint() const override { return {240, 120}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<TestResult> m_results;
};
