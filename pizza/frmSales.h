// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SalesReport.h"

#include <QDialog>

class PrintDocument;
class QLabel;
class QPushButton;

// The sales report at the end of an evening: what the deliveries earned, what the pizzas and
// the driving cost, the profit and the profit per hour. It can be printed.
class frmSales : public QDialog {
    Q_OBJECT
public:
    explicit frmSales(const SalesReport &report, QWidget *parent = nullptr);

    const SalesReport &report() const { return m_report; }
    // The report as printed: the same figures, one line each.
    static PrintDocument document(const SalesReport &report);

    QLabel *lblEnd;
    QLabel *lblOnTime;
    QLabel *lblOnTimeSales;
    QLabel *lblLate;
    QLabel *lblLateSales;
    QLabel *lblSales;
    QLabel *lblBaked;
    QLabel *lblBakingCost;
    QLabel *lblMiles;
    QLabel *lblMileage;
    QLabel *lblCosts;
    QLabel *lblProfit;
    QLabel *lblHour;
    QLabel *lblHP;
    QPushButton *cmdPrint;
    QPushButton *cmdReturn;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fill();
    void print();

    SalesReport m_report;
};
