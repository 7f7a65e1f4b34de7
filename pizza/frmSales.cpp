// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmSales.h"

#include "shell/Printing.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

QLabel *MakeLabel(QWidget *parent, const QString &name, Qt::Alignment align = Qt::AlignLeft)
{
    auto *label = new QLabel(parent);
    if (!name.isEmpty())
        label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(align | Qt::AlignVCenter);
    // Children of a styled frame do not take the window's type from it.
    label->setFont(parent->window()->font());
    return label;
}

// A count and what it counts: "12 On-Time Deliveries".
QString Count(int n, const QString &what)
{
    return QString::number(n) + what;
}

QString Line(const QString &left, const QString &right)
{
    constexpr int Width = 44;
    return left + QString(qMax(2, Width - int(left.size()) - int(right.size())), u'.') + right;
}

} // namespace

frmSales::frmSales(const SalesReport &report, QWidget *parent) : QDialog(parent), m_report(report)
{
    setObjectName(QStringLiteral("frmSales"));
    setWindowTitle(tr("Pizza Place Sales Report"));
    QFont base(QStringLiteral("Comic Sans MS"));
    base.setPointSize(14);
    setFont(base);
    setStyleSheet(QStringLiteral("frmSales { background: #FFF8E1; }"
                                 "QFrame#fraSheet { background: white; border: 3px solid #FFB300;"
                                 " border-radius: 14px; }"));

    // The figures scroll when the screen is too small for them; the buttons always show.
    auto *page = new QWidget;
    page->setFont(font());
    auto *title = MakeLabel(page, QString(), Qt::AlignHCenter);
    title->setText(tr("Pizza Place Sales Report"));
    ScaleFont(title, 1.5, true);
    title->setStyleSheet(QStringLiteral("color: #C62828;"));
    lblEnd = MakeLabel(page, QStringLiteral("lblEnd"), Qt::AlignHCenter);
    ScaleFont(lblEnd, 1.1, true);
    lblEnd->setStyleSheet(QStringLiteral("color: #1A237E;"));

    auto *sheet = new QFrame(page);
    sheet->setObjectName(QStringLiteral("fraSheet"));
    auto *grid = new QGridLayout(sheet);
    grid->setContentsMargins(20, 14, 20, 14);
    grid->setHorizontalSpacing(30);
    grid->setVerticalSpacing(4);
    int row = 0;
    auto heading = [&](const QString &text) {
        auto *label = MakeLabel(sheet, QString());
        label->setText(text);
        ScaleFont(label, 1.15, true);
        label->setStyleSheet(QStringLiteral("color: #E65100; margin-top: 6px;"));
        grid->addWidget(label, row++, 0, 1, 2);
    };
    auto pair = [&](QLabel *&left, const QString &leftName, QLabel *&right,
                    const QString &rightName, bool total) {
        left = MakeLabel(sheet, leftName);
        right = MakeLabel(sheet, rightName, Qt::AlignRight);
        if (total) {
            QFont bold = left->font();
            bold.setBold(true);
            left->setFont(bold);
            right->setFont(bold);
        }
        grid->addWidget(left, row, 0);
        grid->addWidget(right, row++, 1);
    };
    QLabel *salesCaption = nullptr;
    QLabel *costsCaption = nullptr;
    QLabel *profitCaption = nullptr;
    heading(tr("Sales"));
    pair(lblOnTime, QStringLiteral("lblOnTime"), lblOnTimeSales, QStringLiteral("lblOnTimeSales"),
         false);
    pair(lblLate, QStringLiteral("lblLate"), lblLateSales, QStringLiteral("lblLateSales"), false);
    pair(salesCaption, QString(), lblSales, QStringLiteral("lblSales"), true);
    heading(tr("Costs"));
    pair(lblBaked, QStringLiteral("lblBaked"), lblBakingCost, QStringLiteral("lblBakingCost"),
         false);
    pair(lblMiles, QStringLiteral("lblMiles"), lblMileage, QStringLiteral("lblMileage"), false);
    pair(costsCaption, QString(), lblCosts, QStringLiteral("lblCosts"), true);
    heading(tr("Profit"));
    pair(profitCaption, QString(), lblProfit, QStringLiteral("lblProfit"), true);
    pair(lblHour, QStringLiteral("lblHour"), lblHP, QStringLiteral("lblHP"), false);
    salesCaption->setText(tr("Total Sales"));
    costsCaption->setText(tr("Total Costs"));
    profitCaption->setText(tr("Sales minus Costs"));
    lblHour->setText(tr("Profit per Hour"));
    ScaleFont(lblProfit, 1.25, true);

    cmdPrint = Named(new QPushButton(tr("&Print"), this), QStringLiteral("cmdPrint"));
    cmdReturn = Named(new QPushButton(tr("&Return"), this), QStringLiteral("cmdReturn"));
    for (auto [button, colour] :
         {std::pair{cmdPrint, "#1565C0"}, std::pair{cmdReturn, "#2E7D32"}}) {
        button->setAutoDefault(true);
        button->setMinimumSize(150, 46);
        QFont bold = font();
        bold.setBold(true);
        button->setFont(bold);
        StyleBrightButton(button, QColor(QLatin1String(colour)));
    }
    cmdPrint->setAccessibleName(tr("Print the report"));
    cmdReturn->setAccessibleName(tr("Return to the pizza place"));
    cmdReturn->setDefault(true);
    connect(cmdPrint, &QPushButton::clicked, this, &frmSales::print);
    connect(cmdReturn, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdPrint);
    buttons->addWidget(cmdReturn);
    buttons->addStretch();
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->setSpacing(10);
    pageLayout->addWidget(title);
    pageLayout->addWidget(lblEnd);
    pageLayout->addWidget(sheet);
    pageLayout->addStretch();
    auto *scroller = new QScrollArea(this);
    scroller->setWidget(page);
    scroller->setAccessibleName(tr("Sales report"));
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    scroller->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(10);
    layout->addWidget(scroller, 1);
    layout->addLayout(buttons);

    fill();
    const auto labels = findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setAccessibleName(label->text());
}

void frmSales::fill()
{
    const SalesReport &r = m_report;
    lblEnd->setText(r.endText());
    lblOnTime->setText(Count(r.onTime, tr(" On-Time Deliveries")));
    lblOnTimeSales->setText(SalesReport::money(r.onTimeSales()));
    lblLate->setText(Count(r.late, tr(" Late Deliveries")));
    lblLateSales->setText(SalesReport::money(r.lateSales()));
    lblSales->setText(SalesReport::money(r.sales()));
    lblBaked->setText(Count(r.baked, tr(" Pizzas Baked")));
    lblBakingCost->setText(SalesReport::money(r.bakingCost()));
    lblMiles->setText(Count(r.miles, tr(" Miles Driven")));
    lblMileage->setText(SalesReport::money(r.mileageCost()));
    lblCosts->setText(SalesReport::money(r.costs()));
    lblProfit->setText(SalesReport::money(r.profit()));
    lblProfit->setStyleSheet(r.profit() < 0 ? QStringLiteral("color: #C62828;")
                                            : QStringLiteral("color: #2E7D32;"));
    const auto perHour = r.profitPerHour();
    // Before the first minute has passed there is no hour to share the profit over.
    lblHP->setText(perHour ? SalesReport::money(*perHour) : QStringLiteral("-"));
}

PrintDocument frmSales::document(const SalesReport &r)
{
    PrintDocument paper(tr("Pizza Place Sales Report"));
    paper.addLine(r.endText());
    paper.addBlankLine();
    paper.addLine(tr("Sales"));
    paper.addLine(
        Line(Count(r.onTime, tr(" On-Time Deliveries")), SalesReport::money(r.onTimeSales())));
    paper.addLine(Line(Count(r.late, tr(" Late Deliveries")), SalesReport::money(r.lateSales())));
    paper.addLine(Line(tr("Total Sales"), SalesReport::money(r.sales())));
    paper.addBlankLine();
    paper.addLine(tr("Costs"));
    paper.addLine(Line(Count(r.baked, tr(" Pizzas Baked")), SalesReport::money(r.bakingCost())));
    paper.addLine(Line(Count(r.miles, tr(" Miles Driven")), SalesReport::money(r.mileageCost())));
    paper.addLine(Line(tr("Total Costs"), SalesReport::money(r.costs())));
    paper.addBlankLine();
    paper.addLine(Line(tr("Profit"), SalesReport::money(r.profit())));
    const auto perHour = r.profitPerHour();
    paper.addLine(
        Line(tr("Profit per Hour"), perHour ? SalesReport::money(*perHour) : QStringLiteral("-")));
    return paper;
}

void frmSales::print()
{
    PrintWithPreview(this, document(m_report));
    cmdPrint->setFocus();
}

void frmSales::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    CentreOnScreen(this);
    cmdReturn->setFocus();
    Announce(lblProfit, tr("Profit %1").arg(lblProfit->text()));
}
