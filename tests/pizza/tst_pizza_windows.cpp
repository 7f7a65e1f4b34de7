// SPDX-License-Identifier: GPL-3.0-or-later
#include "pizza/frmPizza.h"
#include "pizza/frmSales.h"
#include "pizza/TownMap.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

// The pizza place and its sales report, driven as a pupil would with clicks and keys.
class tst_pizza_windows : public QObject {
    Q_OBJECT
private slots:
    void opensWithTheShopClosed();
    void bakeLoadDeliverAndComeBack();
    void lateAndFailedStops();
    void pauseStopsEveryTimerAndRestartResumesThem();
    void elevenOClockEndsTheDayWithTheReport();
    void stopEndsTheDayEarlyThenExitCloses();
};

namespace {

struct Window {
    frmPizza *w = new frmPizza;
    Window()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the pizza window did not become active");
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
    QList<QTimer *> running() const
    {
        QList<QTimer *> active;
        for (QTimer *timer : {w->timClock, w->timPhone, w->timBake, w->timCar})
            if (timer->isActive())
                active.append(timer);
        return active;
    }
    void driveUntilStopped() const
    {
        for (int i = 0; i < 100 && w->timCar->isActive(); ++i)
            w->timCar_Timer();
    }
};

double Pick(int value, int n)
{
    return (value - 0.5) / n;
}

// The next call comes from `house` wanting the pizzas that the draw r gives.
void ScriptCall(ScriptedRandom &random, QPoint house, int r)
{
    random.values << Pick(house.x(), 20) << Pick(house.y(), 20) << (r + 0.5) / 100 << Pick(2, 9);
}

void Bake(frmPizza *w, int count)
{
    w->spnBake->setFocus();
    for (int i = 0; i < count; ++i)
        QTest::keyClick(w->spnBake, Qt::Key_Up);
    QTest::mouseClick(w->cmdBake, Qt::LeftButton);
    for (int i = 0; i < 10; ++i)
        w->timBake_Timer();
}

struct Report {
    int shown = 0;
    QMap<QString, QString> labels;
};

// Reads the report when it is shown and presses Print and Return on it.
void CaptureReport(TestEnvironment &env, Report &report)
{
    env.dialogs.onRun = [&report](QDialog &dialog) {
        ++report.shown;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            if (label->objectName().startsWith(QLatin1String("lbl")))
                report.labels[label->objectName()] = label->text();
        QTest::mouseClick(dialog.findChild<QPushButton *>("cmdPrint"), Qt::LeftButton);
        QTest::mouseClick(dialog.findChild<QPushButton *>("cmdReturn"), Qt::LeftButton);
        return dialog.result();
    };
}

} // namespace

void tst_pizza_windows::opensWithTheShopClosed()
{
    TestEnvironment env;
    Window win;
    for (const char *name : {"picPizza",     "imgCarLocation", "lblClock", "lstPizza", "spnBake",
                             "lblBake",      "cmdBake",        "lblOven",  "lblReady", "cmdLoad",
                             "lblCarPizzas", "spnX",           "spnY",     "lblXY",    "cmdGo",
                             "cmdReturn",    "lblCar",         "cmdNew",   "cmdPause", "cmdExit",
                             "cmdHelp",      "timClock",       "timPhone", "timBake",  "timCar"})
        QVERIFY2(win.w->findChild<QObject *>(name), name);
    QCOMPARE(win.w->lblClock->text(), QStringLiteral("6:00"));
    QCOMPARE(win.w->cmdNew->text(), QStringLiteral("&Start"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    for (QWidget *control : QList<QWidget *>{win.w->cmdBake, win.w->cmdLoad, win.w->cmdGo,
                                             win.w->cmdReturn, win.w->cmdPause, win.w->spnX})
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    QVERIFY(win.running().isEmpty());
    for (QWidget *control : win.w->findChildren<QWidget *>())
        if (qobject_cast<QPushButton *>(control) || qobject_cast<QSpinBox *>(control))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    QTest::keyClick(win.w, Qt::Key_F1);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("pizza")});
}

void tst_pizza_windows::bakeLoadDeliverAndComeBack()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    Window win;
    frmPizza *w = win.w;
    // Enter on the focused Start button opens the shop.
    QCOMPARE(QApplication::focusWidget(), w->cmdNew);
    QTest::keyClick(w->cmdNew, Qt::Key_Return);
    QTRY_VERIFY(w->evening().isRunning());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(win.running(), (QList<QTimer *>{w->timClock, w->timPhone}));

    ScriptCall(random, QPoint(2, 1), 35);
    w->timPhone_Timer();
    QCOMPARE(w->lstPizza->count(), 1);
    QCOMPARE(w->lstPizza->item(0)->text(), QStringLiteral("(2,1)   6:00   2 Pizzas"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play phone.wav wait"));
    QCOMPARE(w->lstPizza->accessibleDescription(),
             QStringLiteral("New order: 2 Pizzas from (2,1)"));
    QCOMPARE(w->timPhone->interval(), 2 * 2500);

    w->spnBake->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(w->spnBake, Qt::Key_Up);
    QCOMPARE(w->lblBake->text(), QStringLiteral("3"));
    QTest::mouseClick(w->cmdBake, Qt::LeftButton);
    QCOMPARE(w->lblOven->text(), QStringLiteral("3 Pizzas\nOut At 6:10"));
    QVERIFY(!w->cmdBake->isEnabled() && !w->spnBake->isEnabled());
    QVERIFY(w->timBake->isActive());
    for (int i = 0; i < 9; ++i)
        w->timBake_Timer();
    QCOMPARE(w->lblReady->text(), QStringLiteral("0"));
    w->timBake_Timer();
    QCOMPARE(w->lblReady->text(), QStringLiteral("3"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play ding.wav wait"));
    QCOMPARE(w->lblBake->text(), QStringLiteral("0"));
    QVERIFY(w->cmdBake->isEnabled() && !w->timBake->isActive());

    QTest::mouseClick(w->cmdLoad, Qt::LeftButton);
    QCOMPARE(w->lblCarPizzas->text(), QStringLiteral("3"));
    QCOMPARE(w->lblReady->text(), QStringLiteral("0"));
    QVERIFY(!w->cmdLoad->isEnabled());

    // A click on the house's picture sets the destination.
    const QPoint house = w->picPizza->toScreen(QPointF(1.6, 0.6)).toPoint();
    QTest::mouseClick(w->picPizza, Qt::LeftButton, {}, house);
    QCOMPARE(w->spnX->value(), 2);
    QCOMPARE(w->spnY->value(), 1);
    QCOMPARE(w->lblXY->text(), QStringLiteral("(2,1)"));
    QCOMPARE(w->picPizza->destination(), QPoint(2, 1));

    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car Going To:\n(2,1)"));
    QVERIFY(!w->cmdGo->isEnabled() && !w->spnX->isEnabled() && !w->cmdReturn->isEnabled());
    w->timCar_Timer();
    QCOMPARE(w->evening().carPosition(), QPoint(1, 0));
    win.driveUntilStopped();
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car at (2,1)\nDelivered\nOn-Time Delivery"));
    QCOMPARE(w->lblCar->accessibleDescription(),
             QStringLiteral("Car at (2,1) Delivered On-Time Delivery"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play tada.wav async"));
    QCOMPARE(w->lblCarPizzas->text(), QStringLiteral("1"));
    QCOMPARE(w->lstPizza->count(), 0);
    QCOMPARE(w->evening().onTimeDeliveries(), 1);

    // A mnemonic presses its button a moment later, as a click the pupil can see.
    QTest::keyClick(w, Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(w->lblCar->text(), QStringLiteral("Car Returning\nTo Pizza Place:"));
    win.driveUntilStopped();
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car at Pizza Place"));
    QCOMPARE(w->evening().milesDriven(), 6);
    QVERIFY(!w->cmdReturn->isEnabled());
}

void tst_pizza_windows::lateAndFailedStops()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    Window win;
    frmPizza *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    ScriptCall(random, QPoint(1, 1), 90); // five pizzas
    w->timPhone_Timer();
    Bake(w, 4);
    QTest::mouseClick(w->cmdLoad, Qt::LeftButton);

    // Choosing an order in the list sets the destination too.
    w->lstPizza->setCurrentRow(0);
    QCOMPARE(w->lblXY->text(), QStringLiteral("(1,1)"));
    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    win.driveUntilStopped();
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car at (1,1)\nNot Enough Pizzas"));
    QCOMPARE(w->lstPizza->count(), 1);

    w->spnX->setValue(3);
    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    win.driveUntilStopped();
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car at (3,1)\nNo Pizza Wanted"));

    QTest::mouseClick(w->cmdReturn, Qt::LeftButton);
    win.driveUntilStopped();
    Bake(w, 1);
    QTest::mouseClick(w->cmdLoad, Qt::LeftButton);
    QCOMPARE(w->lblCarPizzas->text(), QStringLiteral("5"));
    for (int i = 0; i < 32; ++i) // 32 minutes since the call
        w->timClock_Timer();
    w->lstPizza->setCurrentRow(0);
    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    win.driveUntilStopped();
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car at (1,1)\nDelivered\nLate Delivery!"));
    QCOMPARE(w->evening().lateDeliveries(), 1);
    QCOMPARE(env.sound.events.last(), QStringLiteral("play carbeep.wav async"));
}

void tst_pizza_windows::pauseStopsEveryTimerAndRestartResumesThem()
{
    TestEnvironment env;
    Window win;
    frmPizza *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QTest::keyClick(w->spnBake, Qt::Key_Up);
    QTest::mouseClick(w->cmdBake, Qt::LeftButton);
    w->spnX->setValue(4);
    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    const QList<QTimer *> before = win.running();
    QCOMPARE(before.size(), 4);

    QTest::keyClick(w, Qt::Key_P, Qt::AltModifier);
    QTRY_VERIFY(w->isPaused());
    QVERIFY(win.running().isEmpty());
    QCOMPARE(w->cmdPause->text(), QStringLiteral("&Restart"));
    QVERIFY(!w->cmdGo->isEnabled() && !w->cmdBake->isEnabled() && !w->spnX->isEnabled());

    QTest::keyClick(w, Qt::Key_R, Qt::AltModifier);
    QTRY_VERIFY(!w->isPaused());
    QCOMPARE(w->cmdPause->text(), QStringLiteral("&Pause"));
    QCOMPARE(win.running(), before);
    QCOMPARE(w->timCar->interval(), Evening::CarStepMs);
    QCOMPARE(w->timClock->interval(), Evening::MinuteMs);
}

void tst_pizza_windows::elevenOClockEndsTheDayWithTheReport()
{
    TestEnvironment env;
    Report report;
    CaptureReport(env, report);
    ScriptedRandom random;
    SetRandomSource(&random);
    Window win;
    frmPizza *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    ScriptCall(random, QPoint(1, 1), 0);
    w->timPhone_Timer();
    Bake(w, 2);
    QTest::mouseClick(w->cmdLoad, Qt::LeftButton);
    w->lstPizza->setCurrentRow(0);
    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    win.driveUntilStopped();
    for (int minute = 1; minute < 300; ++minute)
        w->timClock_Timer();
    QCOMPARE(w->lblClock->text(), QStringLiteral("10:59"));
    QCOMPARE(report.shown, 0);
    w->timClock_Timer();
    QCOMPARE(w->lblClock->text(), QStringLiteral("11:00"));
    QCOMPARE(report.shown, 1);
    QCOMPARE(env.dialogs.ranWindows, QStringList{QStringLiteral("frmSales")});
    QCOMPARE(report.labels["lblEnd"], QStringLiteral("End - 11:00"));
    QCOMPARE(report.labels["lblOnTime"], QStringLiteral("1 On-Time Deliveries"));
    QCOMPARE(report.labels["lblOnTimeSales"], QStringLiteral("$10"));
    QCOMPARE(report.labels["lblLate"], QStringLiteral("0 Late Deliveries"));
    QCOMPARE(report.labels["lblBaked"], QStringLiteral("2 Pizzas Baked"));
    QCOMPARE(report.labels["lblBakingCost"], QStringLiteral("$6"));
    QCOMPARE(report.labels["lblMiles"], QStringLiteral("2 Miles Driven"));
    QCOMPARE(report.labels["lblMileage"], QStringLiteral("$0"));
    QCOMPARE(report.labels["lblCosts"], QStringLiteral("$6"));
    QCOMPARE(report.labels["lblProfit"], QStringLiteral("$4"));
    QCOMPARE(report.labels["lblHP"], QStringLiteral("$1"));
    QCOMPARE(env.dialogs.printed, QStringList{QStringLiteral("Pizza Place Sales Report")});
    QVERIFY(win.running().isEmpty());
    QVERIFY(!w->evening().isRunning());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->cmdNew->isEnabled() && !w->cmdPause->isEnabled());
}

void tst_pizza_windows::stopEndsTheDayEarlyThenExitCloses()
{
    TestEnvironment env;
    Report report;
    CaptureReport(env, report);
    Window win;
    frmPizza *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QTest::keyClick(w->spnBake, Qt::Key_Up);
    QTest::keyClick(w->spnBake, Qt::Key_Up);
    QTest::mouseClick(w->cmdBake, Qt::LeftButton);
    w->cmdPause->click();
    QVERIFY(w->isPaused());
    // Stopping while paused still ends the day and gives the report.
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(report.shown, 1);
    QCOMPARE(report.labels["lblEnd"], QStringLiteral("End - 6:00"));
    QCOMPARE(report.labels["lblProfit"], QStringLiteral("-$6"));
    QCOMPARE(report.labels["lblHP"], QStringLiteral("-"));
    QVERIFY(win.running().isEmpty());
    QVERIFY(!w->isPaused());

    // A second evening starts afresh.
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QCOMPARE(w->evening().pizzasBaked(), 0);
    QCOMPARE(w->lblOven->text(), QStringLiteral("Oven is empty"));
    QVERIFY(w->cmdBake->isEnabled());
    for (int i = 0; i < 45; ++i)
        w->timClock_Timer();
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(report.labels["lblEnd"], QStringLiteral("End - 6:45"));

    QSignalSpy closed(w, &ActivityWindow::closed);
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QVERIFY(env.sound.events.contains(QStringLiteral("stop")));
}

QTEST_MAIN(tst_pizza_windows)
#include "tst_pizza_windows.moc"
