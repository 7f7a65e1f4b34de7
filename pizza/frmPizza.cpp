// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmPizza.h"

#include "frmSales.h"
#include "TownMap.h"

#include "shell/core/DataPath.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Spin buttons: only the two arrows (and the arrow and page keys); the number they set is
// shown in large type beside them, in a label of its own.
class SpinButtons : public QSpinBox {
public:
    SpinButtons(int maximum, QWidget *parent) : QSpinBox(parent)
    {
        setRange(0, maximum);
        setWrapping(false);
        setFixedWidth(44);
        setMinimumHeight(40);
        setStyleSheet(QStringLiteral(
            "QSpinBox { background: #FFFDE7; border: 3px solid #FFB300; border-radius: 8px; }"
            "QSpinBox:focus { border: 4px solid #F57C00; }"
            "QSpinBox::up-button, QSpinBox::down-button { width: 38px; }"));
    }

protected:
    QString textFromValue(int) const override { return QString(); }
    // Typed characters would go into a box that shows nothing; the arrows do the work.
    QValidator::State validate(QString &input, int &) const override
    {
        return input.isEmpty() ? QValidator::Acceptable : QValidator::Invalid;
    }
    int valueFromText(const QString &) const override { return value(); }
};

QLabel *MakeValue(const QString &name, double scale, QWidget *parent)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(parent->font());
    ScaleFont(label, scale, true);
    label->setStyleSheet(QStringLiteral("color: #1A237E;"));
    return label;
}

QLabel *MakeCaption(const QString &text, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(parent->font());
    if (buddy)
        label->setBuddy(buddy);
    return label;
}

QGroupBox *MakeFrame(const QString &title, const QString &name, QWidget *parent)
{
    auto *frame = Named(new QGroupBox(title, parent), name);
    frame->setFont(parent->font());
    frame->setStyleSheet(QStringLiteral(
        "QGroupBox { color: #BF360C; font-weight: bold; background: #FFFFFF;"
        " border: 2px solid #FFCC80; border-radius: 10px; margin-top: 12px;"
        " padding: 4px 4px 2px 4px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }"));
    return frame;
}

QString PizzaCount(int count)
{
    return QString::number(count) + QCoreApplication::translate("frmPizza", " Pizza") +
           (count == 1 ? QString() : QStringLiteral("s"));
}

QString HouseText(QPoint house)
{
    return QStringLiteral("(%1,%2)").arg(house.x()).arg(house.y());
}

} // namespace

frmPizza::frmPizza(QWidget *parent) : ActivityWindow(QStringLiteral("pizza"), parent)
{
    setObjectName(QStringLiteral("frmPizza"));
    setWindowTitle(tr("Pizza Place"));
    applyLook(QColor(0xFF, 0xF3, 0xE0));

    m_phoneSound = DataFile(QStringLiteral("phone.wav"));
    m_carBeepSound = DataFile(QStringLiteral("carbeep.wav"));
    m_dingSound = DataFile(QStringLiteral("ding.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));

    buildControls();

    lblClock->setText(m_evening.clockText());
    lblBake->setText(QStringLiteral("0"));
    lblOven->setText(tr("Oven is empty"));
    showCarLoad();
    showCar(tr("Press Start to open the shop!"));
    destinationChanged();
    updateControls();
    resize(1024, 720);
    cmdNew->setFocus();
}

void frmPizza::buildControls()
{
    picPizza = Named(new TownMap(m_evening, this), QStringLiteral("picPizza"));
    connect(picPizza, &TownMap::housePicked, this, &frmPizza::pickHouse);

    auto *panel = new QWidget;
    // A little smaller than the window's type, so every control fits beside the town on a
    // 768-pixel-high screen without scrolling.
    QFont panelFont = font();
    panelFont.setPointSizeF(12.5);
    panel->setFont(panelFont);
    panel->setObjectName(QStringLiteral("fraPanel"));

    lblClock = MakeValue(QStringLiteral("lblClock"), 2.0, panel);
    lblClock->setAccessibleName(tr("Clock"));
    lblClock->setStyleSheet(QStringLiteral("QLabel { color: #FFEB3B; background: #263238;"
                                           " border-radius: 10px; padding: 2px 14px; }"));

    // The frame's mnemonic puts the focus in the list inside it.
    auto *fraOrders = MakeFrame(tr("&Orders (oldest first)"), QStringLiteral("fraOrders"), panel);
    lstPizza = Named(new QListWidget(fraOrders), QStringLiteral("lstPizza"));
    lstPizza->setAccessibleName(tr("Orders, oldest first"));
    lstPizza->setMinimumHeight(84);
    // The list takes whatever height is left over, never more.
    lstPizza->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    ScaleFont(lstPizza, 1.1, true);
    lstPizza->setStyleSheet(QStringLiteral("QListWidget { border: 2px solid #FFE0B2;"
                                           " border-radius: 6px; }"
                                           "QListWidget::item:selected { background: #FFE082;"
                                           " color: #212121; }"));
    auto *ordersLayout = new QVBoxLayout(fraOrders);
    ordersLayout->addWidget(lstPizza, 1);
    connect(lstPizza, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_filling || row < 0 || row >= m_evening.orders().size() || !spnX->isEnabled())
            return;
        pickHouse(m_evening.orders().at(row).house);
    });

    auto *fraOven = MakeFrame(tr("Oven"), QStringLiteral("fraOven"), panel);
    spnBake = Named(new SpinButtons(Evening::MaxReady, fraOven), QStringLiteral("spnBake"));
    spnBake->setAccessibleName(tr("Pizzas to bake"));
    lblBake = MakeValue(QStringLiteral("lblBake"), 1.6, fraOven);
    lblBake->setMinimumWidth(48);
    lblBake->setAccessibleName(tr("Pizzas to bake"));
    cmdBake = MakeBoldBrightButton(tr("Ba&ke"), QStringLiteral("cmdBake"), "#D84315", fraOven, 38);
    cmdBake->setAccessibleName(tr("Bake the pizzas"));
    lblOven = MakeValue(QStringLiteral("lblOven"), 1.0, fraOven);
    lblOven->setAccessibleName(tr("Oven"));
    lblOven->setMinimumHeight(QFontMetrics(lblOven->font()).lineSpacing() * 2 + 4);
    auto *ovenRow = new QHBoxLayout;
    ovenRow->addWidget(MakeCaption(tr("Pi&zzas:"), spnBake, fraOven));
    ovenRow->addWidget(spnBake);
    ovenRow->addWidget(lblBake);
    ovenRow->addWidget(cmdBake, 1);
    auto *ovenLayout = new QVBoxLayout(fraOven);
    ovenLayout->addLayout(ovenRow);
    ovenLayout->addWidget(lblOven);
    connect(spnBake, &QSpinBox::valueChanged, this,
            [this](int value) { lblBake->setText(QString::number(value)); });
    connect(cmdBake, &QPushButton::clicked, this, &frmPizza::cmdBake_Click);

    // Loading is done at the shop, so its frame says where the car must be.
    fraLoad = MakeFrame(QStringLiteral("Car at Pizza Place:"), QStringLiteral("fraLoad"), panel);
    lblReady = MakeValue(QStringLiteral("lblReady"), 1.4, fraLoad);
    lblReady->setAccessibleName(tr("Pizzas ready"));
    cmdLoad =
        MakeBoldBrightButton(tr("&Load Car"), QStringLiteral("cmdLoad"), "#6A1B9A", fraLoad, 38);
    cmdLoad->setAccessibleName(tr("Load the car"));
    lblCarPizzas = MakeValue(QStringLiteral("lblCarPizzas"), 1.4, fraLoad);
    lblCarPizzas->setAccessibleName(tr("Pizzas in the car"));
    auto *loadLayout = new QGridLayout(fraLoad);
    loadLayout->addWidget(MakeCaption(tr("Ready"), nullptr, fraLoad), 0, 0, Qt::AlignCenter);
    loadLayout->addWidget(lblReady, 1, 0);
    loadLayout->addWidget(cmdLoad, 0, 1, 2, 1);
    loadLayout->addWidget(MakeCaption(tr("In Car"), nullptr, fraLoad), 0, 2, Qt::AlignCenter);
    loadLayout->addWidget(lblCarPizzas, 1, 2);
    loadLayout->setColumnStretch(1, 1);
    connect(cmdLoad, &QPushButton::clicked, this, &frmPizza::cmdLoad_Click);

    auto *fraDrive = MakeFrame(tr("Drive"), QStringLiteral("fraDrive"), panel);
    spnX = Named(new SpinButtons(Evening::GridMax, fraDrive), QStringLiteral("spnX"));
    spnX->setAccessibleName(tr("Street across, x"));
    spnY = Named(new SpinButtons(Evening::GridMax, fraDrive), QStringLiteral("spnY"));
    spnY->setAccessibleName(tr("Street up, y"));
    lblXY = MakeValue(QStringLiteral("lblXY"), 1.5, fraDrive);
    lblXY->setAccessibleName(tr("Destination"));
    lblXY->setMinimumWidth(110);
    cmdGo = MakeBoldBrightButton(tr("&Go"), QStringLiteral("cmdGo"), "#2E7D32", fraDrive, 38);
    cmdGo->setAccessibleName(tr("Drive to the destination"));
    cmdReturn = MakeBoldBrightButton(tr("Come &Back"), QStringLiteral("cmdReturn"), "#00838F",
                                     fraDrive, 38);
    cmdReturn->setAccessibleName(tr("Drive back to the pizza place"));
    lblCar = MakeValue(QStringLiteral("lblCar"), 1.0, fraDrive);
    lblCar->setAccessibleName(tr("Car"));
    lblCar->setWordWrap(true);
    lblCar->setMinimumHeight(QFontMetrics(lblCar->font()).lineSpacing() * 3 + 8);
    lblCar->setStyleSheet(QStringLiteral("QLabel { color: #1A237E; background: #FFF9C4;"
                                         " border: 2px solid #FBC02D; border-radius: 8px; }"));
    auto *xyRow = new QHBoxLayout;
    xyRow->addWidget(MakeCaption(tr("&Across:"), spnX, fraDrive));
    xyRow->addWidget(spnX);
    xyRow->addWidget(MakeCaption(tr("&Up:"), spnY, fraDrive));
    xyRow->addWidget(spnY);
    xyRow->addWidget(lblXY, 1);
    auto *goRow = new QHBoxLayout;
    goRow->addWidget(cmdGo, 1);
    goRow->addWidget(cmdReturn, 1);
    auto *driveLayout = new QVBoxLayout(fraDrive);
    driveLayout->addLayout(xyRow);
    driveLayout->addLayout(goRow);
    driveLayout->addWidget(lblCar);
    connect(spnX, &QSpinBox::valueChanged, this, &frmPizza::destinationChanged);
    connect(spnY, &QSpinBox::valueChanged, this, &frmPizza::destinationChanged);
    connect(cmdGo, &QPushButton::clicked, this, &frmPizza::cmdGo_Click);
    connect(cmdReturn, &QPushButton::clicked, this, &frmPizza::cmdReturn_Click);

    cmdNew = MakeBoldBrightButton(tr("&Start"), QStringLiteral("cmdNew"), "#1565C0", panel, 38);
    cmdNew->setAccessibleName(tr("Start a new evening"));
    cmdPause = MakeBoldBrightButton(tr("&Pause"), QStringLiteral("cmdPause"), "#F9A825", panel, 38);
    cmdPause->setAccessibleName(tr("Pause or restart the evening"));
    cmdHelp = MakeBoldBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", panel, 38);
    cmdExit =
        MakeBoldBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", panel, 38);
    cmdHelp->setAccessibleName(tr("Help"));
    cmdExit->setAccessibleName(tr("Stop the evening or leave the pizza place"));
    auto *buttons = new QGridLayout;
    buttons->addWidget(cmdNew, 0, 0);
    buttons->addWidget(cmdPause, 0, 1);
    buttons->addWidget(cmdHelp, 1, 0);
    buttons->addWidget(cmdExit, 1, 1);
    connect(cmdNew, &QPushButton::clicked, this, &frmPizza::cmdNew_Click);
    connect(cmdPause, &QPushButton::clicked, this, &frmPizza::cmdPause_Click);
    connect(cmdExit, &QPushButton::clicked, this, &frmPizza::cmdExit_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmPizza::openHelp);

    auto *panelLayout = new QVBoxLayout(panel);
    panelLayout->setContentsMargins(4, 0, 4, 0);
    panelLayout->setSpacing(2);
    panelLayout->addWidget(lblClock, 0, Qt::AlignHCenter);
    panelLayout->addWidget(fraOrders, 1);
    panelLayout->addWidget(fraOven);
    panelLayout->addWidget(fraLoad);
    panelLayout->addWidget(fraDrive);
    panelLayout->addLayout(buttons);

    // On a small or strongly magnified screen the controls scroll instead of being cut off.
    auto *scroller = new QScrollArea(this);
    scroller->setWidget(panel);
    scroller->setAccessibleName(tr("Orders, oven and car"));
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setMinimumWidth(panel->sizeHint().width() + 20);
    scroller->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    scroller->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    panel->setAutoFillBackground(false);
    scroller->viewport()->setAutoFillBackground(false);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    layout->addWidget(picPizza, 1);
    layout->addWidget(scroller);

    timClock = new QTimer(this);
    timClock->setObjectName(QStringLiteral("timClock"));
    timClock->setInterval(Evening::MinuteMs);
    timPhone = new QTimer(this);
    timPhone->setObjectName(QStringLiteral("timPhone"));
    timBake = new QTimer(this);
    timBake->setObjectName(QStringLiteral("timBake"));
    timBake->setInterval(Evening::MinuteMs);
    timCar = new QTimer(this);
    timCar->setObjectName(QStringLiteral("timCar"));
    timCar->setInterval(Evening::CarStepMs);
    connect(timClock, &QTimer::timeout, this, &frmPizza::timClock_Timer);
    connect(timPhone, &QTimer::timeout, this, &frmPizza::timPhone_Timer);
    connect(timBake, &QTimer::timeout, this, &frmPizza::timBake_Timer);
    connect(timCar, &QTimer::timeout, this, &frmPizza::timCar_Timer);

    setTabOrder(lstPizza, spnBake);
    setTabOrder(spnBake, cmdBake);
    setTabOrder(cmdBake, cmdLoad);
    setTabOrder(cmdLoad, spnX);
    setTabOrder(spnX, spnY);
    setTabOrder(spnY, cmdGo);
    setTabOrder(cmdGo, cmdReturn);
    setTabOrder(cmdReturn, cmdNew);
    setTabOrder(cmdNew, cmdPause);
    setTabOrder(cmdPause, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);
}

void frmPizza::cmdNew_Click()
{
    if (m_evening.isRunning())
        return;
    m_evening.start();
    m_paused = false;
    m_pausedTimers.clear();
    lblClock->setText(m_evening.clockText());
    fillOrders();
    spnBake->setValue(0);
    lblBake->setText(QStringLiteral("0"));
    lblOven->setText(tr("Oven is empty"));
    showCarLoad();
    showCar(tr("Car at Pizza Place"));
    picPizza->refresh();
    timClock->start(Evening::MinuteMs);
    timPhone->start(Evening::FirstCallMs);
    setRunningCaption(cmdExit, true);
    cmdPause->setText(tr("&Pause"));
    updateControls();
    spnBake->setFocus();
}

void frmPizza::cmdPause_Click()
{
    if (!m_evening.isRunning())
        return;
    if (m_paused) {
        m_paused = false;
        for (QTimer *timer : std::as_const(m_pausedTimers))
            timer->start();
        m_pausedTimers.clear();
        cmdPause->setText(tr("&Pause"));
    } else {
        m_paused = true;
        // Nothing ticks while the shop is paused, so the program rests.
        for (QTimer *timer : {timClock, timPhone, timBake, timCar}) {
            if (timer->isActive()) {
                m_pausedTimers.append(timer);
                timer->stop();
            }
        }
        cmdPause->setText(tr("&Restart"));
    }
    updateControls();
    cmdPause->setFocus();
}

void frmPizza::cmdExit_Click()
{
    if (m_evening.isRunning())
        endDay();
    else
        close();
}

void frmPizza::timClock_Timer()
{
    const Evening::ClockResult tick = m_evening.clockTick();
    if (tick.dayOver) {
        lblClock->setText(QStringLiteral("11:00"));
        endDay();
        return;
    }
    lblClock->setText(m_evening.clockText());
    if (tick.gaveUp) {
        fillOrders();
        Announce(lstPizza, tr("%1 gave up waiting").arg(HouseText(tick.gaveUp->house)));
    }
    // The waiting badges change colour as orders grow old.
    picPizza->refresh();
}

void frmPizza::timPhone_Timer()
{
    if (!m_evening.isRunning())
        return;
    const std::optional<Evening::Order> order = m_evening.phoneCall();
    if (order) {
        fillOrders();
        picPizza->refresh();
        Announce(
            lstPizza,
            tr("New order: %1 from %2").arg(PizzaCount(order->pizzas), HouseText(order->house)));
        PlaySound(m_phoneSound, SND_SYNC);
    }
    if (m_evening.callsOver())
        timPhone->stop();
    else
        timPhone->setInterval(m_evening.nextCallMs());
}

void frmPizza::cmdBake_Click()
{
    const int count = lblBake->text().toInt();
    if (!m_evening.startBaking(count))
        return;
    lblOven->setText(PizzaCount(count) + u'\n' + tr("Out At ") +
                     Evening::timeText(m_evening.ovenDoneAt()));
    Announce(lblOven, lblOven->text());
    timBake->start(Evening::MinuteMs);
    updateControls();
    cmdLoad->setFocus();
}

void frmPizza::timBake_Timer()
{
    if (!m_evening.bakeTick())
        return;
    timBake->stop();
    showCarLoad();
    PlaySound(m_dingSound, SND_SYNC);
    lblOven->setText(tr("Oven is empty"));
    spnBake->setValue(0);
    lblBake->setText(QStringLiteral("0"));
    Announce(lblReady, tr("%1 ready").arg(PizzaCount(m_evening.ready())));
    updateControls();
}

void frmPizza::cmdLoad_Click()
{
    m_evening.load();
    showCarLoad();
    updateControls();
    spnX->setFocus();
}

void frmPizza::pickHouse(QPoint house)
{
    if (!spnX->isEnabled())
        return;
    spnX->setValue(house.x());
    spnY->setValue(house.y());
}

void frmPizza::destinationChanged()
{
    const QPoint destination(spnX->value(), spnY->value());
    lblXY->setText(HouseText(destination));
    picPizza->setDestination(destination);
}

void frmPizza::cmdGo_Click()
{
    const QPoint destination(spnX->value(), spnY->value());
    if (!m_evening.go(destination))
        return;
    showCar(tr("Car Going To:") + u'\n' + HouseText(destination));
    PlaySound(m_carBeepSound, SND_ASYNC);
    timCar->start(Evening::CarStepMs);
    updateControls();
}

void frmPizza::cmdReturn_Click()
{
    if (!m_evening.returnToShop())
        return;
    showCar(tr("Car Returning") + u'\n' + tr("To Pizza Place:"));
    timCar->start(Evening::CarStepMs);
    updateControls();
}

void frmPizza::timCar_Timer()
{
    const Evening::Stop stop = m_evening.carStep();
    picPizza->refresh();
    if (stop == Evening::Stop::Driving)
        return;
    timCar->stop();
    const QString at = tr("Car at ") + HouseText(m_evening.carPosition()) + u'\n';
    switch (stop) {
    case Evening::Stop::PizzaPlace:
        showCar(tr("Car at Pizza Place"));
        PlaySound(m_carBeepSound, SND_ASYNC);
        break;
    case Evening::Stop::NoPizzaWanted:
        showCar(at + tr("No Pizza Wanted"));
        PlaySound(m_carBeepSound, SND_ASYNC);
        break;
    case Evening::Stop::NotEnoughPizzas:
        showCar(at + tr("Not Enough Pizzas"));
        PlaySound(m_carBeepSound, SND_ASYNC);
        break;
    case Evening::Stop::OnTime:
        showCar(at + tr("Delivered") + u'\n' + tr("On-Time Delivery"));
        PlaySound(m_tadaSound, SND_ASYNC);
        break;
    case Evening::Stop::Late:
        showCar(at + tr("Delivered") + u'\n' + tr("Late Delivery!"));
        PlaySound(m_carBeepSound, SND_ASYNC);
        break;
    case Evening::Stop::Driving:
        break;
    }
    fillOrders();
    showCarLoad();
    updateControls();
    (m_evening.carAtShop() ? static_cast<QWidget *>(cmdLoad) : cmdReturn)->setFocus();
}

void frmPizza::endDay()
{
    for (QTimer *timer : {timClock, timPhone, timBake, timCar})
        timer->stop();
    m_pausedTimers.clear();
    m_paused = false;
    m_evening.stop();
    setRunningCaption(cmdExit, false);
    cmdPause->setText(tr("&Pause"));
    updateControls();
    PlaySound(m_tadaSound, SND_ASYNC);

    SalesReport report;
    report.onTime = m_evening.onTimeDeliveries();
    report.late = m_evening.lateDeliveries();
    report.baked = m_evening.pizzasBaked();
    report.miles = m_evening.milesDriven();
    report.hour = m_evening.hour();
    report.minute = m_evening.minute();
    showCar(tr("The shop is closed."));
    frmSales sales(report, this);
    RunModal(sales);
    cmdNew->setFocus();
}

void frmPizza::fillOrders()
{
    m_filling = true;
    lstPizza->clear();
    for (const Evening::Order &order : m_evening.orders())
        lstPizza->addItem(HouseText(order.house) + QStringLiteral("   ") +
                          Evening::timeText(order.time) + QStringLiteral("   ") +
                          PizzaCount(order.pizzas));
    m_filling = false;
}

void frmPizza::showCarLoad()
{
    lblReady->setText(QString::number(m_evening.ready()));
    lblCarPizzas->setText(QString::number(m_evening.carPizzas()));
}

void frmPizza::showCar(const QString &text)
{
    lblCar->setText(text);
    Announce(lblCar, QString(text).replace(u'\n', u' '));
}

void frmPizza::updateControls()
{
    const bool playing = m_evening.isRunning() && !m_paused;
    const bool parked = playing && !m_evening.carMoving();
    spnBake->setEnabled(playing && !m_evening.isBaking());
    cmdBake->setEnabled(playing && !m_evening.isBaking());
    cmdLoad->setEnabled(parked && m_evening.carAtShop() && m_evening.ready() > 0 &&
                        m_evening.carPizzas() < Evening::CarLoad);
    spnX->setEnabled(parked);
    spnY->setEnabled(parked);
    cmdGo->setEnabled(parked);
    cmdReturn->setEnabled(parked && !m_evening.carAtShop());
    lstPizza->setEnabled(m_evening.isRunning());
    cmdPause->setEnabled(m_evening.isRunning());
    cmdNew->setEnabled(!m_evening.isRunning());
}
