// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Contest.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTableWidget;
class SalesChart;

// One day's report of the contest: what each team of both classes sold on which street, the
// boxes by street, the money raised, the running totals and the chart of every day so far.
// The pupil can page back through the earlier days; after the last day it names the winner.
class frmDayReport : public QDialog {
    Q_OBJECT
public:
    frmDayReport(const Contest &contest, int day, QWidget *parent = nullptr);

    int day() const { return m_day; }
    void showDay(int day);

    QLabel *lblTitle;
    QLabel *lblWinner;
    QTableWidget *tblTeams;
    QTableWidget *tblStreets;
    QLabel *lblToday;
    QLabel *lblTotals;
    SalesChart *picChart;
    QPushButton *cmdPrevious;
    QPushButton *cmdNext;
    QPushButton *cmdOK;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QBoxLayout *m_tables;
    QList<Contest::DayReport> m_reports;
    QStringList m_streets;
    QString m_winner;
    int m_day = 1;
};
