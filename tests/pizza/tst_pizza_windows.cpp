// SPDX-License-Identifier: GPL-3.0-or-later
#include "pizza/frmPizza.h"
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
    void ordersBakingAndEveryStop();
    void pauseStopsEveryTimerAndStopGivesTheReport();
    void elevenOClockEndsTheDayWithTheReport();
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
    // Drives to the house picked with the spin buttons (or by a click) and says what happened.
    QString go() const
    {
        QTest::mouseClick(w->cmdGo, Qt::LeftButton);
        for (int i = 0; i < 100 && w->timCar->isActive(); ++i)
            w->timCar_Timer();
        return w->lblCar->text();
    }
    void bake(int count) const
    {
        for (int i = 0; i < count; ++i)
            QTest::keyClick(w->spnBake, Qt::Key_Up);
        QTest::mouseClick(w->cmdBake, Qt::LeftButton);
        for (int i = 0; i < 10; ++i)
            w->timBake_Timer();
    }
};

// The next call comes from `house` wanting the pizzas that the draw r gives.
void ScriptCall(ScriptedRandom &random, QPoint house, int r)
{
    random.values << (house.x() - 0.5) / 20 << (house.y() - 0.5) / 20 << (r + 0.5) / 100 << 1.5 / 9;
}

// Reads the report when it is shown, then presses Print and Return on it.
void CaptureReport(TestEnvironment &env, QMap<QString, QString> &labels)
{
    env.dialogs.onRun = [&labels](QDialog &dialog) {
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            labels[label->objectName()] = label->text();
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

void tst_pizza_windows::ordersBakingAndEveryStop()
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
    ScriptCall(random, QPoint(1, 1), 90);
    w->timPhone_Timer();
    QCOMPARE(w->lstPizza->item(0)->text(), QStringLiteral("(2,1)   6:00   2 Pizzas"));
    QCOMPARE(w->lstPizza->item(1)->text(), QStringLiteral("(1,1)   6:00   5 Pizzas"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play phone.wav wait"));
    QCOMPARE(w->lstPizza->accessibleDescription(),
             QStringLiteral("New order: 5 Pizzas from (1,1)"));
    QCOMPARE(w->timPhone->interval(), 2 * 2500);

    QCOMPARE(QApplication::focusWidget(), w->spnBake);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(w->spnBake, Qt::Key_Up);
    QCOMPARE(w->lblBake->text(), QStringLiteral("3"));
    QTest::mouseClick(w->cmdBake, Qt::LeftButton);
    QCOMPARE(w->lblOven->text(), QStringLiteral("3 Pizzas\nOut At 6:10"));
    QVERIFY(!w->cmdBake->isEnabled() && !w->spnBake->isEnabled() && w->timBake->isActive());
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

    // A click on the house's picture sets the destination.
    QTest::mouseClick(w->picPizza, Qt::LeftButton, {},
                      w->picPizza->toScreen(QPointF(1.6, 0.6)).toPoint());
    QCOMPARE(w->lblXY->text(), QStringLiteral("(2,1)"));
    QCOMPARE(w->picPizza->destination(), QPoint(2, 1));
    QTest::mouseClick(w->cmdGo, Qt::LeftButton);
    QCOMPARE(w->lblCar->text(), QStringLiteral("Car Going To:\n(2,1)"));
    QVERIFY(!w->cmdGo->isEnabled() && !w->spnX->isEnabled() && !w->cmdReturn->isEnabled());
    QCOMPARE(win.go(), QStringLiteral("Car at (2,1)\nDelivered\nOn-Time Delivery"));
    QCOMPARE(w->lblCar->accessibleDescription(),
             QStringLiteral("Car at (2,1) Delivered On-Time Delivery"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play tada.wav async"));
    QCOMPARE(w->lblCarPizzas->text(), QStringLiteral("1"));
    QCOMPARE(w->lstPizza->count(), 1);

    // Choosing an order in the list sets the destination too.
    w->lstPizza->setCurrentRow(0);
    QCOMPARE(win.go(), QStringLiteral("Car at (1,1)\nNot Enough Pizzas"));
    w->spnX->setValue(3);
    QCOMPARE(win.go(), QStringLiteral("Car at (3,1)\nNo Pizza Wanted"));
    QTest::keyClick(w, Qt::Key_B, Qt::AltModifier);
    // A mnemonic presses its button a moment later, as a click the pupil can see.
    QTRY_COMPARE(w->lblCar->text(), QStringLiteral("Car Returning\nTo Pizza Place:"));
    w->spnX->setValue(0);
    w->spnY->setValue(0);
    QCOMPARE(win.go(), QStringLiteral("Car at Pizza Place"));
    QCOMPARE(w->evening().milesDriven(), 3 + 1 + 2 + 4);
    QVERIFY(!w->cmdReturn->isEnabled());

    win.bake(4);
    QTest::mouseClick(w->cmdLoad, Qt::LeftButton);
    for (int i = 0; i < 31; ++i) // 31 minutes since the call
        w->timClock_Timer();
    w->lstPizza->setCurrentRow(0);
    QCOMPARE(win.go(), QStringLiteral("Car at (1,1)\nDelivered\nLate Delivery!"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play carbeep.wav async"));
    QCOMPARE(w->evening().lateDeliveries(), 1);
}

void tst_pizza_windows::pauseStopsEveryTimerAndStopGivesTheReport()
{
    TestEnvironment env;
    QMap<QString, QString> report;
    CaptureReport(env, report);
    Window win;
    frmPizza *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QTest::keyClick(w->spnBake, Qt::Key_Up);
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

    // Stopping, even while paused, ends the day and gives the report.
    w->cmdPause->click();
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(env.dialogs.ranWindows, QStringList{QStringLiteral("frmSales")});
    QCOMPARE(report["lblEnd"], QStringLiteral("End - 6:00"));
    QCOMPARE(report["lblProfit"], QStringLiteral("-$6"));
    QCOMPARE(report["lblHP"], QStringLiteral("-"));
    QVERIFY(win.running().isEmpty() && !w->isPaused());

    // A second evening starts afresh.
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QCOMPARE(w->evening().pizzasBaked(), 0);
    QCOMPARE(w->lblOven->text(), QStringLiteral("Oven is empty"));
    QVERIFY(w->cmdBake->isEnabled());
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QSignalSpy closed(w, &ActivityWindow::closed);
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(env.sound.events.last(), QStringLiteral("stop"));
}

void tst_pizza_windows::elevenOClockEndsTheDayWithTheReport()
{
    TestEnvironment env;
    QMap<QString, QString> report;
    CaptureReport(env, report);
    ScriptedRandom random;
    SetRandomSource(&random);
    Window win;
    frmPizza *w = win.w;
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    ScriptCall(random, QPoint(1, 1), 0);
    w->timPhone_Timer();
    win.bake(2);
    QTest::mouseClick(w->cmdLoad, Qt::LeftButton);
    w->lstPizza->setCurrentRow(0);
    win.go();
    for (int minute = 1; minute < 300; ++minute)
        w->timClock_Timer();
    QCOMPARE(w->lblClock->text(), QStringLiteral("10:59"));
    QVERIFY(env.dialogs.ranWindows.isEmpty());
    w->timClock_Timer();
    QCOMPARE(w->lblClock->text(), QStringLiteral("11:00"));
    QCOMPARE(env.dialogs.ranWindows, QStringList{QStringLiteral("frmSales")});
    const QMap<QString, QString> expected{{"lblEnd", "End - 11:00"},
                                          {"lblOnTime", "1 On-Time Deliveries"},
                                          {"lblOnTimeSales", "$10"},
                                          {"lblLate", "0 Late Deliveries"},
                                          {"lblLateSales", "$0"},
                                          {"lblSales", "$10"},
                                          {"lblBaked", "2 Pizzas Baked"},
                                          {"lblBakingCost", "$6"},
                                          {"lblMiles", "2 Miles Driven"},
                                          {"lblMileage", "$0"},
                                          {"lblCosts", "$6"},
                                          {"lblProfit", "$4"},
                                          {"lblHP", "$1"}};
    for (auto it = expected.begin(); it != expected.end(); ++it)
        QCOMPARE(report[it.key()], it.value());
    QCOMPARE(env.dialogs.printed, QStringList{QStringLiteral("Pizza Place Sales Report")});
    QVERIFY(win.running().isEmpty() && !w->evening().isRunning());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->cmdNew->isEnabled() && !w->cmdPause->isEnabled());
}

QTEST_MAIN(tst_pizza_windows)
#include "tst_pizza_windows.moc"
