// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

// A row of one dot per question of a round: green with a tick when answered right, red when
// missed, ringed in yellow for the question being asked, white for those to come.
class ScoreDots : public QWidget {
    Q_OBJECT
public:
    explicit ScoreDots(int count, QWidget *parent = nullptr);
    void setResults(const QList<bool> &results, bool asking);
    QSize sizeHint() const override { return {m_count * 34, 34}; }
    QSize minimumSizeHint() const override { return {m_count * 14, 18}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_count;
    QList<bool> m_results;
    bool m_asking = false;
};
