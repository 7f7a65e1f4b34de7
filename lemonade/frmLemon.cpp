// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmLemon.h"

#include "LemonStand.h"
#include "ProfitChart.h"
#include "SummerPapers.h"

#include "shell/core/DataPath.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QLabel *MakeLabel(const QString &name, QWidget *parent, double scale = 1.0, bool bold = false)
{
    auto *label = new QLabel(parent);
    if (!name.isEmpty())
        label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(parent->font());
    if (scale != 1.0 || bold)
        ScaleFont(label, scale, bold);
    return label;
}

QLabel *MakeCaption(const QString &text, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(parent->font());
    label->setBuddy(buddy);
    return label;
}

QSpinBox *MakeSpin(const QString &name, int minimum, int maximum, const QString &accessible,
                   QWidget *parent)
{
    auto *spin = Named(new QSpinBox(parent), name);
    spin->setRange(minimum, maximum);
    spin->setAccessibleName(accessible);
    spin->setMinimumHeight(38);
    spin->setMinimumWidth(110);
    spin->setFont(parent->font());
    ScaleFont(spin, 1.15, true);
    spin->setStyleSheet(QStringLiteral(
        "QSpinBox { background: #FFFDE7; border: 3px solid #FFB300; border-radius: 8px;"
        " padding: 0 4px; color: #1A237E; }"
        "QSpinBox:focus { border: 4px solid #F57C00; }"
        "QSpinBox::up-button, QSpinBox::down-button { width: 30px; }"));
    return spin;
}

QWidget *MakePage(const QString &name)
{
    auto *page = new QWidget;
    page->setObjectName(name);
    return page;
}

QString Temperature(int degrees)
{
    return QStringLiteral("%1°F").arg(degrees);
}

} // namespace

frmLemon::frmLemon(QWidget *parent) : ActivityWindow(QStringLiteral("lemonade"), parent)
{
    setObjectName(QStringLiteral("frmLemon"));
    setWindowTitle(tr("Lemonade Stand"));
    applyLook(QColor(0xFF, 0xF9, 0xC4));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    m_uhohSound = DataFile(QStringLiteral("uhoh.wav"));
    m_dingSound = DataFile(QStringLiteral("ding.wav"));

    buildControls();
    setPage(Page::Start, cmdNew);
    showStatus();
    updateControls();
    resize(1024, 720);
}

void frmLemon::buildControls()
{
    picStand = Named(new LemonStand(this), QStringLiteral("picStand"));
    picStand->setAccessibleName(tr("The lemonade stand"));

    auto *panel = new QWidget;
    QFont panelFont = font();
    panelFont.setPointSizeF(12.5);
    panel->setFont(panelFont);

    lblWeek = MakeLabel(QStringLiteral("lblWeek"), panel, 1.5, true);
    lblWeek->setAlignment(Qt::AlignCenter);
    lblWeek->setStyleSheet(QStringLiteral("color: #E65100;"));
    lblMoney = MakeLabel(QStringLiteral("lblMoney"), panel, 1.3, true);
    lblMoney->setAlignment(Qt::AlignCenter);
    lblMoney->setStyleSheet(QStringLiteral("color: #2E7D32;"));
    lblStock = MakeLabel(QStringLiteral("lblStock"), panel);
    lblStock->setAlignment(Qt::AlignCenter);

    stkPages = Named(new QStackedWidget(panel), QStringLiteral("stkPages"));
    stkPages->setFont(panelFont);
    for (QWidget *page :
         {buildStartPage(), buildPlanPage(), buildSellingPage(), buildReportPage(), buildEndPage()})
        stkPages->addWidget(page);

    auto *fraLength = Named(new QGroupBox(tr("Summer"), panel), QStringLiteral("fraLength"));
    fraLength->setFont(panelFont);
    optLong = Named(new QRadioButton(tr("&10 weeks"), fraLength), QStringLiteral("optLong"));
    optShort = Named(new QRadioButton(tr("&5 weeks"), fraLength), QStringLiteral("optShort"));
    optLong->setAccessibleName(tr("A summer of 10 weeks"));
    optShort->setAccessibleName(tr("A short summer of 5 weeks"));
    optLong->setChecked(true);
    auto *lengthRow = new QHBoxLayout(fraLength);
    lengthRow->addWidget(optLong);
    lengthRow->addWidget(optShort);
    connect(optLong, &QRadioButton::toggled, this, [this] { showStatus(); });

    cmdNew = MakeBoldBrightButton(tr("&New Summer"), QStringLiteral("cmdNew"), "#1565C0", panel);
    cmdNew->setAccessibleName(tr("Start a new summer"));
    cmdHelp = MakeBoldBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", panel);
    cmdHelp->setAccessibleName(tr("Help"));
    cmdExit = MakeBoldBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", panel);
    cmdExit->setAccessibleName(tr("Stop the summer or leave the lemonade stand"));
    connect(cmdNew, &QPushButton::clicked, this, &frmLemon::cmdNew_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmLemon::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmLemon::cmdExit_Click);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew, 2);
    buttons->addWidget(cmdHelp, 1);
    buttons->addWidget(cmdExit, 1);

    auto *panelLayout = new QVBoxLayout(panel);
    panelLayout->setContentsMargins(4, 0, 4, 0);
    panelLayout->setSpacing(4);
    panelLayout->addWidget(lblWeek);
    panelLayout->addWidget(lblMoney);
    panelLayout->addWidget(lblStock);
    panelLayout->addWidget(stkPages, 1);
    panelLayout->addWidget(fraLength);
    panelLayout->addLayout(buttons);

    // On a small or strongly magnified screen the panel scrolls instead of being cut off.
    auto *scroller = new QScrollArea(this);
    scroller->setWidget(panel);
    scroller->setAccessibleName(tr("This week"));
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_panel = scroller;
    scroller->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    panel->setAutoFillBackground(false);
    scroller->viewport()->setAutoFillBackground(false);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    layout->addWidget(picStand, 1);
    layout->addWidget(scroller);

    timSell = new QTimer(this);
    timSell->setObjectName(QStringLiteral("timSell"));
    timSell->setInterval(FrameMs);
    connect(timSell, &QTimer::timeout, this, &frmLemon::timSell_Timer);

    setTabOrder(spnLemons, spnCups);
    setTabOrder(spnCups, spnPosters);
    setTabOrder(spnPosters, spnPrice);
    setTabOrder(spnPrice, cmdSell);
    setTabOrder(cmdSell, cmdSkip);
    setTabOrder(cmdSkip, cmdNext);
    setTabOrder(cmdNext, txtName);
    setTabOrder(txtName, cmdPrint);
    setTabOrder(cmdPrint, optLong);
    setTabOrder(optLong, optShort);
    setTabOrder(optShort, cmdNew);
    setTabOrder(cmdNew, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);
}

QWidget *frmLemon::buildStartPage()
{
    QWidget *page = MakePage(QStringLiteral("fraStart"));
    page->setFont(stkPages->font());
    auto *welcome = MakeLabel(QString(), page, 1.1);
    welcome->setText(
        tr("Welcome to your lemonade stand!\n\n"
           "You start with %1. Each week, read the weather forecast, buy lemons and cups, "
           "and choose your price. Then watch your customers come.\n\n"
           "Make as much money as you can before the summer ends!\n\n"
           "Choose a summer of 10 or 5 weeks, then press New Summer.")
            .arg(WeekReport::money(Summer::StartMoney)));
    welcome->setStyleSheet(QStringLiteral("QLabel { background: white; border: 3px solid #FFB300;"
                                          " border-radius: 12px; padding: 10px; }"));
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(welcome);
    layout->addStretch();
    return page;
}

QWidget *frmLemon::buildPlanPage()
{
    QWidget *page = MakePage(QStringLiteral("fraPlan"));
    page->setFont(stkPages->font());
    lblForecast = MakeLabel(QStringLiteral("lblForecast"), page, 1.2, true);
    lblForecast->setAccessibleName(tr("Forecast"));
    lblForecast->setStyleSheet(QStringLiteral("QLabel { color: #0D47A1; background: #E3F2FD;"
                                              " border-radius: 10px; padding: 6px; }"));
    lblPrices = MakeLabel(QStringLiteral("lblPrices"), page);
    lblPrices->setAccessibleName(tr("Prices this week"));

    spnLemons = MakeSpin(QStringLiteral("spnLemons"), 0, Summer::MaxBags,
                         tr("Bags of lemons to buy"), page);
    spnCups = MakeSpin(QStringLiteral("spnCups"), 0, Summer::MaxStacks, tr("Stacks of cups to buy"),
                       page);
    spnPosters = MakeSpin(QStringLiteral("spnPosters"), 0, Summer::MaxPosters,
                          tr("Posters to put up"), page);
    spnPrice = MakeSpin(QStringLiteral("spnPrice"), Summer::MinPrice, Summer::MaxPrice,
                        tr("Price of a cup in cents"), page);
    spnPrice->setSuffix(tr(" cents"));
    spnPrice->setValue(25);
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(4);
    grid->addWidget(
        MakeCaption(tr("&Lemons (bags of %1):").arg(Summer::LemonsPerBag), spnLemons, page), 0, 0);
    grid->addWidget(spnLemons, 0, 1);
    grid->addWidget(
        MakeCaption(tr("&Cups (stacks of %1):").arg(Summer::CupsPerStack), spnCups, page), 1, 0);
    grid->addWidget(spnCups, 1, 1);
    grid->addWidget(MakeCaption(tr("&Posters:"), spnPosters, page), 2, 0);
    grid->addWidget(spnPosters, 2, 1);
    grid->addWidget(MakeCaption(tr("P&rice of a cup:"), spnPrice, page), 3, 0);
    grid->addWidget(spnPrice, 3, 1);
    grid->setColumnStretch(0, 1);
    for (QSpinBox *spin : {spnLemons, spnCups, spnPosters, spnPrice})
        connect(spin, &QSpinBox::valueChanged, this, &frmLemon::showCost);

    lblCost = MakeLabel(QStringLiteral("lblCost"), page, 1.0, true);
    lblCost->setAccessibleName(tr("Cost of the shopping"));
    lblTip = MakeLabel(QStringLiteral("lblTip"), page);
    lblTip->setAccessibleName(tr("Tip"));
    lblTip->setStyleSheet(QStringLiteral("QLabel { background: #FFF3E0; border: 2px solid #FFB74D;"
                                         " border-radius: 8px; padding: 4px; }"));
    cmdSell =
        MakeBoldBrightButton(tr("&Open the Stand"), QStringLiteral("cmdSell"), "#2E7D32", page);
    cmdSell->setAccessibleName(tr("Buy the shopping and open the stand for the week"));
    connect(cmdSell, &QPushButton::clicked, this, &frmLemon::cmdSell_Click);

    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->addWidget(lblForecast);
    layout->addWidget(lblPrices);
    layout->addLayout(grid);
    layout->addWidget(lblCost);
    layout->addWidget(lblTip);
    layout->addStretch();
    layout->addWidget(cmdSell);
    return page;
}

QWidget *frmLemon::buildSellingPage()
{
    QWidget *page = MakePage(QStringLiteral("fraSelling"));
    page->setFont(stkPages->font());
    lblSelling = MakeLabel(QStringLiteral("lblSelling"), page, 1.4, true);
    lblSelling->setAlignment(Qt::AlignCenter);
    lblSelling->setAccessibleName(tr("Selling"));
    lblSelling->setStyleSheet(QStringLiteral("color: #E65100;"));
    cmdSkip = MakeBoldBrightButton(tr("S&kip"), QStringLiteral("cmdSkip"), "#6A1B9A", page);
    cmdSkip->setAccessibleName(tr("Skip to the sales report"));
    connect(cmdSkip, &QPushButton::clicked, this, &frmLemon::cmdSkip_Click);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(lblSelling);
    layout->addStretch();
    layout->addWidget(cmdSkip);
    return page;
}

QWidget *frmLemon::buildReportPage()
{
    QWidget *page = MakePage(QStringLiteral("fraReport"));
    page->setFont(stkPages->font());
    auto *sheet = new QFrame(page);
    sheet->setObjectName(QStringLiteral("fraSheet"));
    sheet->setFont(page->font());
    sheet->setStyleSheet(QStringLiteral("QFrame#fraSheet { background: white;"
                                        " border: 3px solid #FFB300; border-radius: 12px; }"));
    auto *grid = new QGridLayout(sheet);
    grid->setContentsMargins(10, 6, 10, 6);
    grid->setVerticalSpacing(1);
    int row = 0;
    lblWeather = MakeLabel(QStringLiteral("lblWeather"), sheet);
    lblWeather->setAccessibleName(tr("The weather"));
    grid->addWidget(lblWeather, row++, 0, 1, 2);
    auto pair = [&](const QString &caption, QLabel *&value, const QString &name) {
        auto *left = MakeLabel(QString(), sheet);
        left->setText(caption);
        value = MakeLabel(name, sheet);
        value->setWordWrap(false);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        value->setAccessibleName(caption);
        grid->addWidget(left, row, 0);
        grid->addWidget(value, row++, 1);
        return left;
    };
    pair(tr("Customers who came"), lblCame, QStringLiteral("lblCame"));
    pair(tr("Cups sold"), lblSold, QStringLiteral("lblSold"));
    pair(tr("Said no to the price"), lblSaidNo, QStringLiteral("lblSaidNo"));
    pair(tr("Went home thirsty"), lblThirsty, QStringLiteral("lblThirsty"));
    pair(tr("Lemons gone bad"), lblSpoiled, QStringLiteral("lblSpoiled"));
    pair(tr("Cups kept for next week"), lblCupsLeft, QStringLiteral("lblCupsLeft"));
    pair(tr("Money at the start"), lblMoneyBefore, QStringLiteral("lblMoneyBefore"));
    pair(tr("- Money spent"), lblSpent, QStringLiteral("lblSpent"));
    lblSpentDetail = MakeLabel(QStringLiteral("lblSpentDetail"), sheet, 0.85);
    lblSpentDetail->setStyleSheet(QStringLiteral("color: #616161;"));
    lblSpentDetail->setAccessibleName(tr("What the money was spent on"));
    grid->addWidget(lblSpentDetail, row++, 0, 1, 2);
    pair(tr("+ Money taken"), lblTaken, QStringLiteral("lblTaken"));
    QLabel *now = pair(tr("= Money now"), lblMoneyNow, QStringLiteral("lblMoneyNow"));
    ScaleFont(now, 1.0, true);
    ScaleFont(lblMoneyNow, 1.0, true);
    m_profitCaption = pair(tr("Profit this week"), lblProfit, QStringLiteral("lblProfit"));
    ScaleFont(m_profitCaption, 1.15, true);
    ScaleFont(lblProfit, 1.15, true);
    grid->setColumnStretch(0, 1);

    lblReasons = MakeLabel(QStringLiteral("lblReasons"), page);
    lblReasons->setAccessibleName(tr("Why"));
    lblReasons->setStyleSheet(
        QStringLiteral("QLabel { background: #FFF3E0; border: 2px solid #FFB74D;"
                       " border-radius: 8px; padding: 4px; }"));
    cmdNext = MakeBoldBrightButton(tr("Next &Week"), QStringLiteral("cmdNext"), "#2E7D32", page);
    cmdNext->setAccessibleName(tr("Plan the next week"));
    connect(cmdNext, &QPushButton::clicked, this, &frmLemon::cmdNext_Click);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->addWidget(sheet);
    layout->addWidget(lblReasons);
    layout->addStretch();
    layout->addWidget(cmdNext);
    return page;
}

QWidget *frmLemon::buildEndPage()
{
    QWidget *page = MakePage(QStringLiteral("fraEnd"));
    page->setFont(stkPages->font());
    lblTotal = MakeLabel(QStringLiteral("lblTotal"), page, 1.3, true);
    lblTotal->setAlignment(Qt::AlignCenter);
    lblTotal->setAccessibleName(tr("Total for the summer"));
    lblBest = MakeLabel(QStringLiteral("lblBest"), page);
    lblBest->setAccessibleName(tr("Best week"));
    lblWorst = MakeLabel(QStringLiteral("lblWorst"), page);
    lblWorst->setAccessibleName(tr("Worst week"));
    picChart = Named(new ProfitChart(page), QStringLiteral("picChart"));
    picChart->setAccessibleName(tr("Bar chart of the profit of each week"));
    lblAdvice = MakeLabel(QStringLiteral("lblAdvice"), page);
    lblAdvice->setAccessibleName(tr("Advice"));
    lblAdvice->setStyleSheet(
        QStringLiteral("QLabel { background: #FFF3E0; border: 2px solid #FFB74D;"
                       " border-radius: 8px; padding: 4px; }"));
    txtName = Named(new QLineEdit(page), QStringLiteral("txtName"));
    txtName->setAccessibleName(tr("Your name for the certificate"));
    txtName->setMaxLength(40);
    txtName->setMinimumHeight(34);
    cmdPrint =
        MakeBoldBrightButton(tr("Pr&int Certificate"), QStringLiteral("cmdPrint"), "#1565C0", page);
    cmdPrint->setAccessibleName(tr("Print the certificate and the season report"));
    connect(cmdPrint, &QPushButton::clicked, this, &frmLemon::cmdPrint_Click);
    connect(txtName, &QLineEdit::returnPressed, cmdPrint, &QPushButton::click);
    auto *nameRow = new QHBoxLayout;
    nameRow->addWidget(MakeCaption(tr("Your n&ame:"), txtName, page));
    nameRow->addWidget(txtName, 1);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->addWidget(lblTotal);
    layout->addWidget(lblBest);
    layout->addWidget(lblWorst);
    layout->addWidget(picChart, 1);
    layout->addWidget(lblAdvice);
    layout->addLayout(nameRow);
    layout->addWidget(cmdPrint);
    return page;
}

void frmLemon::resizeEvent(QResizeEvent *event)
{
    // The panel keeps a share of the width, enough for the report's figures, so the stand
    // beside it never shrinks to a sliver on a small screen.
    m_panel->setFixedWidth(qBound(330, width() * 9 / 20, 480));
    ActivityWindow::resizeEvent(event);
}

frmLemon::Page frmLemon::page() const
{
    return Page(stkPages->currentIndex());
}

void frmLemon::setPage(Page page, QWidget *focus)
{
    stkPages->setCurrentIndex(int(page));
    updateControls();
    if (focus)
        focus->setFocus();
}

void frmLemon::updateControls()
{
    cmdNew->setEnabled(!m_playing);
    optLong->setEnabled(!m_playing);
    optShort->setEnabled(!m_playing);
    setRunningCaption(cmdExit, m_playing);
}

void frmLemon::cmdNew_Click()
{
    if (m_playing)
        return;
    m_summer = Summer(optShort->isChecked() ? Summer::ShortSummer : Summer::LongSummer);
    m_playing = true;
    spnLemons->setValue(0);
    spnCups->setValue(0);
    spnPosters->setValue(0);
    spnPrice->setValue(25);
    txtName->clear();
    showPlan();
}

Plan frmLemon::currentPlan() const
{
    return Plan{spnLemons->value(), spnCups->value(), spnPosters->value(), spnPrice->value()};
}

void frmLemon::showPlan()
{
    lblForecast->setText(
        tr("Forecast for week %1: %2, %3")
            .arg(m_summer.week())
            .arg(WeatherName(m_summer.forecast()), Temperature(m_summer.forecastTemperature())));
    lblPrices->setText(
        tr("A bag of %1 lemons costs %2.\nA stack of %3 cups costs %4.\nA poster costs %5.\n"
           "One lemon makes %6 cups of lemonade.")
            .arg(Summer::LemonsPerBag)
            .arg(WeekReport::money(m_summer.bagPrice()))
            .arg(Summer::CupsPerStack)
            .arg(WeekReport::money(m_summer.stackPrice()), WeekReport::money(Summer::PosterCost))
            .arg(Summer::CupsPerLemon));
    if (m_summer.isBroke()) {
        lblTip->setText(tr("Money is short: you cannot buy enough to sell lemonade this week. "
                           "That's all right! You can still finish the summer. Press Open the "
                           "Stand to let the week go by."));
    } else if (m_summer.week() == 1) {
        lblTip->setText(tr("Tip: hot days bring more customers. Buy enough for them, but lemons "
                           "left over at the end of the week go bad."));
    } else {
        // Last week's main lesson stays in sight while the next week is planned.
        lblTip->setText(
            tr("Remember last week: %1").arg(m_summer.reports().last().reasons().first()));
    }
    lblTip->setVisible(!lblTip->text().isEmpty());
    picStand->setWeather(m_summer.forecast(), m_summer.forecastTemperature());
    picStand->setCustomers(0, 0);
    picStand->setProgress(1.0);
    showCost();
    setPage(Page::Plan, spnLemons);
    showStatus();
    Announce(lblForecast, lblForecast->text() + u' ' + lblTip->text());
}

void frmLemon::showCost()
{
    const Plan plan = currentPlan();
    const qint64 cost = m_summer.cost(plan);
    const int cups = qMin(m_summer.cups() + plan.stacks * Summer::CupsPerStack,
                          plan.bags * Summer::LemonsPerBag * Summer::CupsPerLemon);
    if (cost > m_summer.money()) {
        lblCost->setText(tr("Shopping costs %1, but you have only %2!")
                             .arg(WeekReport::money(cost), WeekReport::money(m_summer.money())));
        lblCost->setStyleSheet(QStringLiteral("color: #C62828;"));
    } else {
        lblCost->setText(tr("Shopping costs %1. You will have %2 left.\nYou can make %3.")
                             .arg(WeekReport::money(cost),
                                  WeekReport::money(m_summer.money() - cost),
                                  WeekReport::count(cups, tr("cup"), tr("cups"))));
        lblCost->setStyleSheet(QStringLiteral("color: #1A237E;"));
    }
    picStand->setPrice(plan.price);
}

void frmLemon::showStatus()
{
    if (!m_playing && m_summer.reports().isEmpty()) {
        lblWeek->setText(tr("Lemonade Stand"));
        lblMoney->setText(
            tr("A summer of %1 weeks")
                .arg(optShort->isChecked() ? Summer::ShortSummer : Summer::LongSummer));
        lblStock->clear();
        return;
    }
    qint64 money = m_summer.money();
    int cups = m_summer.cups();
    int week = qMin(m_summer.week(), m_summer.weeks());
    if (page() == Page::Selling || page() == Page::Report) {
        const WeekReport &r = m_summer.reports().last();
        week = r.week;
        // While the customers come, the money and cups are what was left after the shopping.
        if (page() == Page::Selling) {
            money = r.moneyBefore - r.spent();
            cups = r.cupsAtStart;
        }
    }
    lblWeek->setText(m_playing ? tr("Week %1 of %2").arg(week).arg(m_summer.weeks())
                               : tr("The summer is over"));
    lblMoney->setText(tr("Money: %1").arg(WeekReport::money(money)));
    lblStock->setText(tr("Cups in store: %1.  People think your stand is %2.")
                          .arg(cups)
                          .arg(m_summer.reputationWord()));
}

void frmLemon::cmdSell_Click()
{
    if (!m_playing || page() != Page::Plan)
        return;
    const Plan plan = currentPlan();
    const Summer::Refusal refusal = m_summer.check(plan);
    if (refusal == Summer::Refusal::NotEnoughMoney) {
        MsgBox(
            this, tr("Open the Stand"),
            tr("This shopping costs %1, but you have only %2.\n\nBuy fewer bags or stacks, "
               "or put up fewer posters.")
                .arg(WeekReport::money(m_summer.cost(plan)), WeekReport::money(m_summer.money())),
            QMessageBox::Information);
        spnLemons->setFocus();
        return;
    }
    const std::optional<WeekReport> report = m_summer.runWeek(plan);
    if (!report)
        return;
    // A few walkers stand for many customers, so the picture stays calm on a busy week.
    const int walkers = report->came == 0 ? 0 : qBound(1, (report->came + 9) / 10, 12);
    const int buyers =
        report->came == 0 ? 0
                          : int((qint64(walkers) * report->sold + report->came / 2) / report->came);
    picStand->setWeather(report->weather, report->temperature);
    picStand->setCustomers(walkers, buyers);
    picStand->setProgress(0.0);
    m_frame = 0;
    lblSelling->setText(tr("Week %1: the stand is open!\n\nIt is %2, %3.")
                            .arg(report->week)
                            .arg(WeatherName(report->weather), Temperature(report->temperature)));
    setPage(Page::Selling, cmdSkip);
    showStatus();
    Announce(lblSelling, lblSelling->text());
    timSell->start(FrameMs);
}

void frmLemon::timSell_Timer()
{
    if (page() != Page::Selling) {
        timSell->stop();
        return;
    }
    ++m_frame;
    picStand->setProgress(double(m_frame) / SellingFrames);
    const WeekReport &r = m_summer.reports().last();
    lblSelling->setText(tr("Week %1: the stand is open!\n\nIt is %2, %3.\n\nCups sold: %4")
                            .arg(r.week)
                            .arg(WeatherName(r.weather), Temperature(r.temperature))
                            .arg(qint64(r.sold) * qMin(m_frame, SellingFrames) / SellingFrames));
    if (m_frame >= SellingFrames)
        showReport();
}

void frmLemon::cmdSkip_Click()
{
    if (page() == Page::Selling)
        showReport();
}

void frmLemon::showReport()
{
    timSell->stop();
    picStand->setProgress(1.0);
    const WeekReport &r = m_summer.reports().last();
    lblWeather->setText(tr("Week %1. Forecast: %2, %3. Real weather: %4, %5.")
                            .arg(r.week)
                            .arg(WeatherName(r.forecast), Temperature(r.forecastTemperature),
                                 WeatherName(r.weather), Temperature(r.temperature)));
    lblCame->setText(QString::number(r.came));
    lblSold->setText(QString::number(r.sold));
    lblSaidNo->setText(QString::number(r.saidNo()));
    lblThirsty->setText(QString::number(r.turnedAway));
    lblSpoiled->setText(QString::number(r.lemonsSpoiled));
    lblCupsLeft->setText(QString::number(r.cupsLeft));
    lblMoneyBefore->setText(WeekReport::money(r.moneyBefore));
    lblSpent->setText(WeekReport::money(r.spent()));
    lblSpentDetail->setText(tr("lemons %1 + cups %2 + posters %3")
                                .arg(WeekReport::money(r.lemonCost), WeekReport::money(r.cupCost),
                                     WeekReport::money(r.posterCost)));
    lblTaken->setText(WeekReport::money(r.taken));
    lblMoneyNow->setText(WeekReport::money(r.moneyAfter()));
    const bool loss = r.profit() < 0;
    m_profitCaption->setText(loss ? tr("Loss this week") : tr("Profit this week"));
    lblProfit->setText(WeekReport::money(r.profit()));
    lblProfit->setStyleSheet(loss ? QStringLiteral("color: #C62828;")
                                  : QStringLiteral("color: #2E7D32;"));
    lblReasons->setText(r.reasons().join(u'\n'));
    cmdNext->setText(m_summer.isOver() ? tr("See the &End of Summer") : tr("Next &Week"));
    cmdNext->setAccessibleName(m_summer.isOver() ? tr("See the end of the summer")
                                                 : tr("Plan the next week"));
    setPage(Page::Report, cmdNext);
    showStatus();
    PlaySound(r.profit() > 0 ? m_tadaSound : m_uhohSound, SND_ASYNC);
    Announce(lblProfit,
             m_profitCaption->text() + u' ' + lblProfit->text() + u' ' + lblReasons->text());
}

void frmLemon::cmdNext_Click()
{
    if (page() != Page::Report)
        return;
    if (m_summer.isOver())
        showEnd();
    else
        showPlan();
}

void frmLemon::showEnd()
{
    timSell->stop();
    m_playing = false;
    const qint64 total = m_summer.totalProfit();
    lblTotal->setText(total < 0 ? tr("Total loss: %1").arg(WeekReport::money(total))
                                : tr("Total profit: %1").arg(WeekReport::money(total)));
    lblTotal->setStyleSheet(total < 0 ? QStringLiteral("color: #C62828;")
                                      : QStringLiteral("color: #2E7D32;"));
    const QList<WeekReport> &reports = m_summer.reports();
    const WeekReport &best = reports[m_summer.bestWeek()];
    const WeekReport &worst = reports[m_summer.worstWeek()];
    lblBest->setText(tr("Best week: week %1, %2 (%3)")
                         .arg(best.week)
                         .arg(WeekReport::money(best.profit()), WeatherName(best.weather)));
    lblWorst->setText(tr("Worst week: week %1, %2 (%3)")
                          .arg(worst.week)
                          .arg(WeekReport::money(worst.profit()), WeatherName(worst.weather)));
    QList<qint64> profits;
    for (const WeekReport &r : reports)
        profits << r.profit();
    picChart->setProfits(profits);
    if (m_summer.isBroke())
        lblAdvice->setText(tr("You ran out of money this summer. That happens to real businesses "
                              "too! Next time, buy only what the forecast says you can sell."));
    else if (total <= 0)
        lblAdvice->setText(tr("Running a stand is not easy. Next summer, read the forecast and "
                              "the reports, and try a fairer price."));
    else
        lblAdvice->setText(tr("Great work! You made money this summer. Print your certificate "
                              "to show everyone."));
    setPage(Page::End, txtName);
    showStatus();
    PlaySound(total > 0 ? m_tadaSound : m_dingSound, SND_ASYNC);
    Announce(lblTotal, lblTotal->text() + u' ' + lblAdvice->text());
}

void frmLemon::cmdPrint_Click()
{
    if (m_summer.reports().isEmpty())
        return;
    PrintWithPreview(this, SummerPapers::document(m_summer, txtName->text()));
    cmdPrint->setFocus();
}

void frmLemon::cmdExit_Click()
{
    if (!m_playing) {
        close();
        return;
    }
    timSell->stop();
    if (m_summer.reports().isEmpty()) {
        // Nothing was sold yet, so there is no summer to sum up.
        m_playing = false;
        m_summer = Summer();
        picStand->setCustomers(0, 0);
        setPage(Page::Start, cmdNew);
        showStatus();
        return;
    }
    showEnd();
}
