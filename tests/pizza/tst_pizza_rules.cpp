// SPDX-License-Identifier: GPL-3.0-or-later
#include "pizza/Evening.h"
#include "pizza/SalesReport.h"
#include "support/TestDoubles.h"

#include <QTest>

// The evening's rules and the sales report, without any window.
class tst_pizza_rules : public QObject {
    Q_OBJECT
private slots:
    void wholeEveningKeepsItsRules();
    void pizzasWanted_data();
    void pizzasWanted();
    void callsPickAFreeHouseAndStopAfterHalfPastTen();
    void onlyTheOldestOrderGivesUpEachMinute();
    void ovenBakesTenMinutesAndTheRackHoldsTwenty();
    void loading_data();
    void loading();
    void carDrivesAlongTheStreets();
    void stopOutcomes_data();
    void stopOutcomes();
    void reportFigures_data();
    void reportFigures();
    void moneyText_data();
    void moneyText();
};

namespace {

// The draw that makes RndInt(n) give `value`, and Int(Rnd * 100) give `r`.
double Pick(int value, int n)
{
    return (value - 0.5) / n;
}
double Percent(int r)
{
    return (r + 0.5) / 100;
}

// Scripts one call: the house, the pizzas' draw and the steps to the next call.
void ScriptCall(ScriptedRandom &random, QPoint house, int r, int k = 1)
{
    random.values << Pick(house.x(), 20) << Pick(house.y(), 20) << Percent(r) << Pick(k, 9);
}

void Minutes(Evening &evening, int minutes)
{
    for (int i = 0; i < minutes; ++i)
        evening.clockTick();
}

// Bakes a batch and waits for it to come out.
void Bake(Evening &evening, int count)
{
    QVERIFY(evening.startBaking(count));
    while (!evening.bakeTick()) {
    }
}

Evening::Stop DriveTo(Evening &evening, QPoint house)
{
    if (!evening.go(house))
        return Evening::Stop::Driving;
    Evening::Stop stop = Evening::Stop::Driving;
    while (stop == Evening::Stop::Driving)
        stop = evening.carStep();
    return stop;
}

} // namespace

void tst_pizza_rules::wholeEveningKeepsItsRules()
{
    // A whole evening minute by minute, the four timers at their real rates, with a pupil
    // who keeps the oven busy and drives to the oldest order it can fill.
    for (const qint64 seed : {1, 77, 2024}) {
        Randomize(seed);
        Evening evening;
        evening.start();
        int untilCall = Evening::FirstCallMs;
        int blocks = 0;
        int deliveries = 0;
        int calls = 0;
        int minutes = 0;
        while (evening.isRunning()) {
            for (int step = 0; step < Evening::BlocksPerMinute; ++step) {
                if (!evening.carMoving()) {
                    if (evening.carAtShop()) {
                        const int before = evening.carPizzas();
                        const int loaded = evening.load();
                        QVERIFY(loaded <= Evening::CarLoad);
                        QVERIFY(evening.carPizzas() == before + loaded);
                    }
                    QPoint target = Evening::pizzaPlace();
                    for (const Evening::Order &order : evening.orders())
                        if (order.pizzas <= evening.carPizzas()) {
                            target = order.house;
                            break;
                        }
                    evening.go(target);
                }
                const QPoint before = evening.carPosition();
                const Evening::Stop stop = evening.carStep();
                blocks += (evening.carPosition() - before).manhattanLength();
                if (stop == Evening::Stop::OnTime || stop == Evening::Stop::Late)
                    ++deliveries;
                QVERIFY(evening.carPizzas() <= Evening::CarLoad);
            }
            if (!evening.isBaking())
                evening.startBaking(8);
            evening.bakeTick();
            QVERIFY(evening.ready() <= Evening::MaxReady);

            const QList<Evening::Order> waiting = evening.orders();
            const Evening::ClockResult tick = evening.clockTick();
            ++minutes;
            if (tick.gaveUp) {
                QCOMPARE(*tick.gaveUp, waiting.first());
                QVERIFY(evening.now() - tick.gaveUp->time >= Evening::GiveUpMinutes);
                QCOMPARE(evening.orders(), waiting.mid(1));
            } else if (!tick.dayOver) {
                QCOMPARE(evening.orders(), waiting);
            }
            // At most one call comes a minute, so checking only the oldest is enough to keep
            // every order under the limit.
            if (!evening.orders().isEmpty())
                QVERIFY(evening.now() - evening.orders().first().time < Evening::GiveUpMinutes);

            untilCall -= Evening::MinuteMs;
            while (untilCall <= 0 && evening.isRunning()) {
                if (const auto order = evening.phoneCall()) {
                    ++calls;
                    QVERIFY(order->time <= 10 * 60 + 30);
                    QVERIFY(order->house.x() >= 1 && order->house.y() >= 1);
                }
                QVERIFY(evening.nextCallMs() >= Evening::CallStepMs &&
                        evening.nextCallMs() <= 9 * Evening::CallStepMs);
                untilCall += evening.nextCallMs();
            }
            for (qsizetype i = 1; i < evening.orders().size(); ++i)
                QVERIFY(evening.orders()[i - 1].time <= evening.orders()[i].time);
        }
        QCOMPARE(minutes, 300);
        QCOMPARE(evening.clockText(), QStringLiteral("11:00"));
        QCOMPARE(evening.milesDriven(), blocks);
        QCOMPARE(evening.onTimeDeliveries() + evening.lateDeliveries(), deliveries);
        QVERIFY2(calls > 25 && deliveries > 10,
                 qPrintable(QStringLiteral("%1 calls, %2 deliveries").arg(calls).arg(deliveries)));
        QVERIFY(!evening.phoneCall());
    }
}

void tst_pizza_rules::pizzasWanted_data()
{
    QTest::addColumn<int>("r");
    QTest::addColumn<int>("pizzas");
    const int table[][2] = {{0, 1},  {29, 1}, {30, 2}, {49, 2}, {50, 3},
                            {69, 3}, {70, 4}, {84, 4}, {85, 5}, {99, 5}};
    for (const auto &row : table)
        QTest::addRow("r=%d", row[0]) << row[0] << row[1];
}

void tst_pizza_rules::pizzasWanted()
{
    QFETCH(int, r);
    QFETCH(int, pizzas);
    QCOMPARE(int(Evening::pizzasFor(r)), pizzas);

    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    Evening evening;
    evening.start();
    ScriptCall(random, QPoint(4, 9), r, 7);
    const auto order = evening.phoneCall();
    QVERIFY(order);
    QCOMPARE(int(order->pizzas), pizzas);
    QCOMPARE(int(evening.pizzasWanted(QPoint(4, 9))), pizzas);
    QCOMPARE(evening.nextCallMs(), 7 * 2500);
}

void tst_pizza_rules::callsPickAFreeHouseAndStopAfterHalfPastTen()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    Evening evening;
    QVERIFY(!evening.phoneCall()); // no day yet
    evening.start();
    ScriptCall(random, QPoint(20, 1), 0);
    QCOMPARE(evening.phoneCall()->house, QPoint(20, 1));
    // The same house again is drawn anew, until a house without an order comes up.
    random.values << Pick(20, 20) << Pick(1, 20) << Pick(20, 20) << Pick(1, 20);
    ScriptCall(random, QPoint(1, 20), 99, 9);
    const auto second = evening.phoneCall();
    QCOMPARE(second->house, QPoint(1, 20));
    QCOMPARE(second->pizzas, qint16(5));
    QCOMPARE(second->time, 6 * 60);
    QCOMPARE(evening.nextCallMs(), 9 * 2500);
    QVERIFY(random.values.isEmpty());
    QCOMPARE(evening.orders().size(), 2);
    QCOMPARE(evening.orders().first().house, QPoint(20, 1));

    // 10:30 is the last minute a call comes in.
    Minutes(evening, 4 * 60 + 30);
    QCOMPARE(evening.clockText(), QStringLiteral("10:30"));
    ScriptCall(random, QPoint(7, 7), 40);
    const auto last = evening.phoneCall();
    QVERIFY(last);
    QCOMPARE(last->time, 10 * 60 + 30);
    evening.clockTick();
    random.values.clear();
    QVERIFY(evening.callsOver());
    QVERIFY(!evening.phoneCall());
}

void tst_pizza_rules::onlyTheOldestOrderGivesUpEachMinute()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    Evening evening;
    evening.start();
    ScriptCall(random, QPoint(3, 3), 10);
    ScriptCall(random, QPoint(5, 5), 10);
    evening.phoneCall();
    evening.phoneCall();
    Minutes(evening, 60);
    QCOMPARE(evening.orders().size(), 2); // 60 minutes old: still waiting
    const Evening::ClockResult first = evening.clockTick();
    QVERIFY(first.gaveUp);
    QCOMPARE(first.gaveUp->house, QPoint(3, 3));
    QCOMPARE(evening.pizzasWanted(QPoint(3, 3)), qint16(0));
    QCOMPARE(evening.orderTime(QPoint(3, 3)), -1);
    // The second is just as old, but waits for the next minute's check.
    QCOMPARE(evening.orders().size(), 1);
    QCOMPARE(evening.clockTick().gaveUp->house, QPoint(5, 5));
    QVERIFY(evening.orders().isEmpty());
    QVERIFY(!evening.clockTick().gaveUp);
}

void tst_pizza_rules::ovenBakesTenMinutesAndTheRackHoldsTwenty()
{
    Evening evening;
    QVERIFY(!evening.startBaking(5)); // no day yet
    evening.start();
    QVERIFY(!evening.startBaking(0));
    QVERIFY(!evening.startBaking(-3));
    QVERIFY(!evening.startBaking(21));
    Minutes(evening, 55);
    QVERIFY(evening.startBaking(15));
    QCOMPARE(Evening::timeText(evening.ovenDoneAt()), QStringLiteral("7:05"));
    QCOMPARE(evening.pizzasBaked(), 15);
    QVERIFY(!evening.startBaking(3)); // one batch at a time
    for (int minute = 1; minute < 10; ++minute)
        QVERIFY(!evening.bakeTick());
    QCOMPARE(evening.ready(), 0);
    QVERIFY(evening.bakeTick());
    QCOMPARE(evening.ready(), 15);
    QVERIFY(!evening.isBaking());
    QVERIFY(!evening.bakeTick());

    Bake(evening, 15);
    QCOMPARE(evening.ready(), 20);
    QCOMPARE(evening.lostPizzas(), 10);
    // Pizzas count as baked when they go in, the lost ones too: they were paid for.
    QCOMPARE(evening.pizzasBaked(), 30);
}

void tst_pizza_rules::loading_data()
{
    QTest::addColumn<int>("ready");
    QTest::addColumn<int>("inCar");
    QTest::addColumn<int>("loaded");
    QTest::addColumn<int>("readyAfter");
    QTest::addRow("nothing ready") << 0 << 0 << 0 << 0;
    QTest::addRow("a few") << 4 << 0 << 4 << 0;
    QTest::addRow("exactly ten") << 10 << 0 << 10 << 0;
    QTest::addRow("more than ten") << 17 << 0 << 10 << 7;
    QTest::addRow("full rack") << 20 << 0 << 10 << 10;
    QTest::addRow("topping up") << 9 << 6 << 4 << 5;
    QTest::addRow("car full") << 5 << 10 << 0 << 5;
}

void tst_pizza_rules::loading()
{
    QFETCH(int, ready);
    QFETCH(int, inCar);
    QFETCH(int, loaded);
    QFETCH(int, readyAfter);
    Evening evening;
    evening.start();
    if (inCar > 0) {
        Bake(evening, inCar);
        QCOMPARE(evening.load(), inCar);
    }
    if (ready > 0)
        Bake(evening, ready);
    QCOMPARE(evening.load(), loaded);
    QCOMPARE(evening.ready(), readyAfter);
    QCOMPARE(evening.carPizzas(), inCar + loaded);

    // Away from the shop nothing can be loaded.
    if (evening.ready() > 0 && evening.carPizzas() < Evening::CarLoad) {
        DriveTo(evening, QPoint(1, 0));
        QCOMPARE(evening.load(), 0);
    }
}

void tst_pizza_rules::carDrivesAlongTheStreets()
{
    Evening evening;
    QVERIFY(!evening.go(QPoint(3, 2))); // no day yet
    evening.start();
    QVERIFY(!evening.go(QPoint(0, 0)));  // already there
    QVERIFY(!evening.go(QPoint(21, 3))); // off the map
    QVERIFY(!evening.go(QPoint(3, -1)));
    QVERIFY(evening.go(QPoint(3, 2)));
    QVERIFY(!evening.go(QPoint(9, 9))); // already on its way
    const QList<QPoint> route{{1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}};
    const QList<Evening::Heading> headings{Evening::Heading::East, Evening::Heading::East,
                                           Evening::Heading::East, Evening::Heading::North,
                                           Evening::Heading::North};
    for (qsizetype i = 0; i < route.size(); ++i) {
        const Evening::Stop stop = evening.carStep();
        QCOMPARE(evening.carPosition(), route[i]);
        QCOMPARE(evening.heading(), headings[i]);
        QCOMPARE(evening.milesDriven(), int(i) + 1);
        QCOMPARE(stop == Evening::Stop::Driving, i + 1 < route.size());
    }
    QVERIFY(!evening.carMoving());
    QCOMPARE(evening.carStep(), Evening::Stop::Driving); // parked: nothing moves
    QCOMPARE(evening.milesDriven(), 5);

    QVERIFY(evening.go(QPoint(1, 5)));
    evening.carStep();
    QCOMPARE(evening.heading(), Evening::Heading::West);
    evening.carStep();
    evening.carStep();
    QCOMPARE(evening.heading(), Evening::Heading::North);
    while (evening.carStep() == Evening::Stop::Driving) {
    }
    QCOMPARE(evening.carPosition(), QPoint(1, 5));
    QCOMPARE(DriveTo(evening, Evening::pizzaPlace()), Evening::Stop::PizzaPlace);
    QCOMPARE(evening.heading(), Evening::Heading::South);
    QCOMPARE(evening.milesDriven(), 5 + 5 + 6);
}

void tst_pizza_rules::stopOutcomes_data()
{
    QTest::addColumn<int>("wanted"); // 0: no order at the house
    QTest::addColumn<int>("inCar");
    QTest::addColumn<int>("waited"); // minutes between the call and the arrival
    QTest::addColumn<int>("outcome");
    QTest::addColumn<int>("carAfter");
    QTest::addRow("no order") << 0 << 5 << 10 << int(Evening::Stop::NoPizzaWanted) << 5;
    QTest::addRow("too few") << 4 << 3 << 10 << int(Evening::Stop::NotEnoughPizzas) << 3;
    QTest::addRow("just enough, on time") << 3 << 3 << 10 << int(Evening::Stop::OnTime) << 0;
    QTest::addRow("last on-time minute") << 1 << 4 << 30 << int(Evening::Stop::OnTime) << 3;
    QTest::addRow("a minute late") << 2 << 4 << 31 << int(Evening::Stop::Late) << 2;
    QTest::addRow("very late") << 5 << 10 << 60 << int(Evening::Stop::Late) << 5;
}

void tst_pizza_rules::stopOutcomes()
{
    QFETCH(int, wanted);
    QFETCH(int, inCar);
    QFETCH(int, waited);
    QFETCH(int, outcome);
    QFETCH(int, carAfter);
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    const QPoint house(2, 1);
    const int draws[] = {0, 0, 30, 50, 70, 85};
    Evening evening;
    evening.start();
    Bake(evening, inCar);
    evening.load();
    if (wanted > 0) {
        ScriptCall(random, house, draws[wanted]);
        evening.phoneCall();
    }
    Minutes(evening, waited);
    const int milesBefore = evening.milesDriven();
    QCOMPARE(int(DriveTo(evening, house)), outcome);
    QCOMPARE(evening.milesDriven() - milesBefore, 3);
    QCOMPARE(evening.carPizzas(), carAfter);
    const bool delivered =
        outcome == int(Evening::Stop::OnTime) || outcome == int(Evening::Stop::Late);
    QCOMPARE(evening.onTimeDeliveries(), outcome == int(Evening::Stop::OnTime) ? 1 : 0);
    QCOMPARE(evening.lateDeliveries(), outcome == int(Evening::Stop::Late) ? 1 : 0);
    QCOMPARE(int(evening.pizzasWanted(house)), delivered ? 0 : wanted);
    QCOMPARE(evening.orders().size(), delivered || wanted == 0 ? 0 : 1);
    if (delivered)
        QCOMPARE(evening.lastDelivered(), wanted);
}

void tst_pizza_rules::reportFigures_data()
{
    QTest::addColumn<int>("onTime");
    QTest::addColumn<int>("late");
    QTest::addColumn<int>("baked");
    QTest::addColumn<int>("miles");
    QTest::addColumn<int>("hour");
    QTest::addColumn<int>("minute");
    QTest::addColumn<qint64>("sales");
    QTest::addColumn<qint64>("costs");
    QTest::addColumn<qint64>("profit");
    QTest::addColumn<qint64>("perHour"); // -1: not shown
    QTest::addColumn<QString>("end");
    QTest::addRow("nothing at six")
        << 0 << 0 << 0 << 0 << 6 << 0 << 0LL << 0LL << 0LL << -1LL << "End - 6:00";
    QTest::addRow("a loss at six")
        << 0 << 0 << 10 << 25 << 6 << 0 << 0LL << 32LL << -32LL << -1LL << "End - 6:00";
    QTest::addRow("a good evening")
        << 12 << 3 << 30 << 124 << 11 << 0 << 135LL << 102LL << 33LL << 7LL << "End - 11:00";
    QTest::addRow("half an hour") << 2 << 0 << 3 << 0 << 6 << 30 << 20LL << 9LL << 11LL << 22LL
                                  << "End - 6:30";
    QTest::addRow("a loss per hour")
        << 1 << 1 << 20 << 35 << 8 << 15 << 15LL << 64LL << -49LL << -22LL << "End - 8:15";
    QTest::addRow("one and a half miles cost two dollars")
        << 0 << 0 << 0 << 15 << 7 << 0 << 0LL << 2LL << -2LL << -2LL << "End - 7:00";
    QTest::addRow("three and a half miles cost four dollars")
        << 0 << 0 << 0 << 35 << 7 << 0 << 0LL << 4LL << -4LL << -4LL << "End - 7:00";
    QTest::addRow("two and a half round down to two")
        << 0 << 0 << 0 << 25 << 7 << 0 << 0LL << 2LL << -2LL << -2LL << "End - 7:00";
    QTest::addRow("huge counts do not wrap")
        << 2147483647 << 2147483647 << 0 << 0 << 11 << 0 << 32212254705LL << 0LL << 32212254705LL
        << 6442450941LL << "End - 11:00";
}

void tst_pizza_rules::reportFigures()
{
    QFETCH(int, onTime);
    QFETCH(int, late);
    QFETCH(int, baked);
    QFETCH(int, miles);
    QFETCH(int, hour);
    QFETCH(int, minute);
    QFETCH(qint64, sales);
    QFETCH(qint64, costs);
    QFETCH(qint64, profit);
    QFETCH(qint64, perHour);
    QFETCH(QString, end);
    SalesReport report{onTime, late, baked, miles, hour, minute};
    QCOMPARE(report.onTimeSales(), qint64(onTime) * 10);
    QCOMPARE(report.lateSales(), qint64(late) * 5);
    QCOMPARE(report.sales(), sales);
    QCOMPARE(report.bakingCost(), qint64(baked) * 3);
    QCOMPARE(report.costs(), costs);
    QCOMPARE(report.profit(), profit);
    QCOMPARE(report.profitPerHour().value_or(-1), perHour);
    QCOMPARE(report.profitPerHour().has_value(), perHour != -1);
    QCOMPARE(report.endText(), end);
}

void tst_pizza_rules::moneyText_data()
{
    QTest::addColumn<qint64>("dollars");
    QTest::addColumn<QString>("text");
    QTest::addRow("zero") << 0LL << "$0";
    QTest::addRow("small") << 7LL << "$7";
    QTest::addRow("hundreds") << 999LL << "$999";
    QTest::addRow("thousands") << 1234LL << "$1,234";
    QTest::addRow("millions") << 1234567LL << "$1,234,567";
    QTest::addRow("a loss") << -56LL << "-$56";
    QTest::addRow("a big loss") << -12345LL << "-$12,345";
    QTest::addRow("the smallest") << std::numeric_limits<qint64>::min()
                                  << "-$9,223,372,036,854,775,808";
}

void tst_pizza_rules::moneyText()
{
    QFETCH(qint64, dollars);
    QFETCH(QString, text);
    QCOMPARE(SalesReport::money(dollars), text);
}

QTEST_GUILESS_MAIN(tst_pizza_rules)
#include "tst_pizza_rules.moc"
