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
};

namespace {

// Scripts one call: the draws for the house, for the pizzas (Int(Rnd * 100) = r) and for the
// steps to the next call.
void ScriptCall(ScriptedRandom &random, QPoint house, int r, int k = 1)
{
    random.values << (house.x() - 0.5) / 20 << (house.y() - 0.5) / 20 << (r + 0.5) / 100
                  << (k - 0.5) / 9;
}

void Minutes(Evening &evening, int minutes)
{
    for (int i = 0; i < minutes; ++i)
        evening.clockTick();
}

void Bake(Evening &evening, int count)
{
    QVERIFY(evening.startBaking(count));
    while (!evening.bakeTick()) {
    }
}

Evening::Stop DriveTo(Evening &evening, QPoint house)
{
    Evening::Stop stop = Evening::Stop::Driving;
    if (evening.go(house))
        while (stop == Evening::Stop::Driving)
            stop = evening.carStep();
    return stop;
}

} // namespace

void tst_pizza_rules::wholeEveningKeepsItsRules()
{
    // Whole evenings minute by minute, the four timers at their real rates, with a pupil who
    // keeps the oven busy and drives to the oldest order the car can fill.
    for (const qint64 seed : {1, 77, 2024}) {
        Randomize(seed);
        Evening evening;
        evening.start();
        int untilCall = Evening::FirstCallMs;
        int blocks = 0, deliveries = 0, calls = 0, minutes = 0;
        while (evening.isRunning()) {
            for (int step = 0; step < Evening::BlocksPerMinute; ++step) {
                if (!evening.carMoving()) {
                    const int before = evening.carPizzas();
                    QCOMPARE(evening.carPizzas(), before + evening.load());
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
                deliveries += stop == Evening::Stop::OnTime || stop == Evening::Stop::Late;
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

            for (untilCall -= Evening::MinuteMs; untilCall <= 0 && evening.isRunning();
                 untilCall += evening.nextCallMs()) {
                if (const auto order = evening.phoneCall()) {
                    ++calls;
                    QVERIFY(order->time <= 10 * 60 + 30);
                    QVERIFY(order->house.x() >= 1 && order->house.y() >= 1);
                }
                QVERIFY(evening.nextCallMs() >= Evening::CallStepMs &&
                        evening.nextCallMs() <= 9 * Evening::CallStepMs);
            }
            for (qsizetype i = 1; i < evening.orders().size(); ++i)
                QVERIFY(evening.orders()[i - 1].time <= evening.orders()[i].time);
        }
        QCOMPARE(minutes, 300);
        QCOMPARE(evening.clockText(), QStringLiteral("11:00"));
        QCOMPARE(evening.milesDriven(), blocks);
        QCOMPARE(evening.onTimeDeliveries() + evening.lateDeliveries(), deliveries);
        QVERIFY2(calls > 25 && deliveries > 10, qPrintable(QString::number(deliveries)));
        QVERIFY(!evening.phoneCall());
    }
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
    random.values << 0.99 << 0.01 << 0.99 << 0.01;
    ScriptCall(random, QPoint(1, 20), 99, 9);
    const auto second = evening.phoneCall();
    QCOMPARE(*second, (Evening::Order{QPoint(1, 20), 5, 6 * 60}));
    QCOMPARE(evening.nextCallMs(), 9 * 2500);
    QCOMPARE(evening.orders().first().house, QPoint(20, 1));

    // The pizzas wanted at each edge of the table.
    const int table[][2] = {{0, 1},  {29, 1}, {30, 2}, {49, 2}, {50, 3},
                            {69, 3}, {70, 4}, {84, 4}, {85, 5}, {99, 5}};
    int x = 1;
    for (const auto &[r, pizzas] : table) {
        ScriptCall(random, QPoint(++x, 7), r);
        QCOMPARE(evening.phoneCall()->pizzas, qint16(pizzas));
    }
    QVERIFY(random.values.isEmpty());

    // 10:30 is the last minute a call comes in.
    Minutes(evening, 4 * 60 + 30);
    ScriptCall(random, QPoint(7, 17), 40);
    QCOMPARE(evening.phoneCall()->time, 10 * 60 + 30);
    evening.clockTick();
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
    QCOMPARE(evening.clockTick().gaveUp->house, QPoint(3, 3));
    QCOMPARE(evening.orderTime(QPoint(3, 3)), -1);
    // The second is just as old, but waits for the next minute's check.
    QCOMPARE(evening.orders().size(), 1);
    QCOMPARE(evening.clockTick().gaveUp->house, QPoint(5, 5));
    QVERIFY(!evening.clockTick().gaveUp);
}

void tst_pizza_rules::ovenBakesTenMinutesAndTheRackHoldsTwenty()
{
    Evening evening;
    QVERIFY(!evening.startBaking(5)); // no day yet
    evening.start();
    for (const int wrong : {0, -3, 21})
        QVERIFY(!evening.startBaking(wrong));
    Minutes(evening, 55);
    QVERIFY(evening.startBaking(15));
    QCOMPARE(Evening::timeText(evening.ovenDoneAt()), QStringLiteral("7:05"));
    QVERIFY(!evening.startBaking(3)); // one batch at a time
    for (int minute = 1; minute < 10; ++minute)
        QVERIFY(!evening.bakeTick());
    QCOMPARE(evening.ready(), 0);
    QVERIFY(evening.bakeTick());
    QCOMPARE(evening.ready(), 15);
    QVERIFY(!evening.isBaking() && !evening.bakeTick());

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
    QTest::addRow("nothing ready") << 0 << 0 << 0;
    QTest::addRow("a few") << 4 << 0 << 4;
    QTest::addRow("exactly ten") << 10 << 0 << 10;
    QTest::addRow("more than ten") << 17 << 0 << 10;
    QTest::addRow("full rack") << 20 << 0 << 10;
    QTest::addRow("topping up") << 9 << 6 << 4;
    QTest::addRow("car full") << 5 << 10 << 0;
}

void tst_pizza_rules::loading()
{
    QFETCH(int, ready);
    QFETCH(int, inCar);
    QFETCH(int, loaded);
    Evening evening;
    evening.start();
    if (inCar > 0) {
        Bake(evening, inCar);
        QCOMPARE(evening.load(), inCar);
    }
    if (ready > 0)
        Bake(evening, ready);
    QCOMPARE(evening.load(), loaded);
    QCOMPARE(evening.ready(), ready - loaded);
    QCOMPARE(evening.carPizzas(), inCar + loaded);
    // Away from the shop nothing can be loaded.
    DriveTo(evening, QPoint(1, 0));
    QCOMPARE(evening.load(), 0);
}

void tst_pizza_rules::carDrivesAlongTheStreets()
{
    Evening evening;
    QVERIFY(!evening.go(QPoint(3, 2))); // no day yet
    evening.start();
    for (const QPoint wrong : {QPoint(0, 0), QPoint(21, 3), QPoint(3, -1)})
        QVERIFY(!evening.go(wrong)); // already there, or off the map
    QVERIFY(evening.go(QPoint(3, 2)));
    QVERIFY(!evening.go(QPoint(9, 9))); // already on its way
    using H = Evening::Heading;
    const QList<std::pair<QPoint, H>> route{{{1, 0}, H::East},
                                            {{2, 0}, H::East},
                                            {{3, 0}, H::East},
                                            {{3, 1}, H::North},
                                            {{3, 2}, H::North}};
    for (qsizetype i = 0; i < route.size(); ++i) {
        const Evening::Stop stop = evening.carStep();
        QCOMPARE(evening.carPosition(), route[i].first);
        QCOMPARE(evening.heading(), route[i].second);
        QCOMPARE(evening.milesDriven(), int(i) + 1);
        QCOMPARE(stop == Evening::Stop::Driving, i + 1 < route.size());
    }
    QCOMPARE(evening.carStep(), Evening::Stop::Driving); // parked: nothing moves
    QCOMPARE(evening.milesDriven(), 5);

    QVERIFY(evening.go(QPoint(1, 5)));
    evening.carStep();
    QCOMPARE(evening.heading(), H::West);
    while (evening.carStep() == Evening::Stop::Driving) {
    }
    QCOMPARE(evening.heading(), H::North);
    QCOMPARE(DriveTo(evening, Evening::pizzaPlace()), Evening::Stop::PizzaPlace);
    QCOMPARE(evening.heading(), H::South);
    QCOMPARE(evening.milesDriven(), 5 + 5 + 6);
}

void tst_pizza_rules::stopOutcomes_data()
{
    QTest::addColumn<int>("wanted"); // 0: no order at the house
    QTest::addColumn<int>("inCar");
    QTest::addColumn<int>("waited"); // minutes between the call and the arrival
    QTest::addColumn<Evening::Stop>("outcome");
    QTest::addColumn<int>("carAfter");
    QTest::addRow("no order") << 0 << 5 << 10 << Evening::Stop::NoPizzaWanted << 5;
    QTest::addRow("too few") << 4 << 3 << 10 << Evening::Stop::NotEnoughPizzas << 3;
    QTest::addRow("just enough, on time") << 3 << 3 << 10 << Evening::Stop::OnTime << 0;
    QTest::addRow("last on-time minute") << 1 << 4 << 30 << Evening::Stop::OnTime << 3;
    QTest::addRow("a minute late") << 2 << 4 << 31 << Evening::Stop::Late << 2;
    QTest::addRow("very late") << 5 << 10 << 60 << Evening::Stop::Late << 5;
}

void tst_pizza_rules::stopOutcomes()
{
    QFETCH(int, wanted);
    QFETCH(int, inCar);
    QFETCH(int, waited);
    QFETCH(Evening::Stop, outcome);
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
    QCOMPARE(DriveTo(evening, house), outcome);
    QCOMPARE(evening.milesDriven(), 3);
    QCOMPARE(evening.carPizzas(), carAfter);
    const bool delivered = outcome == Evening::Stop::OnTime || outcome == Evening::Stop::Late;
    QCOMPARE(evening.onTimeDeliveries(), int(outcome == Evening::Stop::OnTime));
    QCOMPARE(evening.lateDeliveries(), int(outcome == Evening::Stop::Late));
    QCOMPARE(int(evening.pizzasWanted(house)), delivered ? 0 : wanted);
    QCOMPARE(evening.orders().size(), delivered || wanted == 0 ? 0 : 1);
}

void tst_pizza_rules::reportFigures_data()
{
    QTest::addColumn<SalesReport>("report");
    QTest::addColumn<qint64>("costs");
    QTest::addColumn<QString>("profit");
    QTest::addColumn<QString>("perHour"); // empty: not shown
    QTest::addColumn<QString>("end");
    // on time, late, baked, miles, hour, minute
    QTest::addRow("nothing at six") << SalesReport{0, 0, 0, 0, 6, 0} << 0LL << "$0"
                                    << ""
                                    << "End - 6:00";
    QTest::addRow("a loss at six") << SalesReport{0, 0, 10, 25, 6, 0} << 32LL << "-$32"
                                   << ""
                                   << "End - 6:00";
    QTest::addRow("a good evening") << SalesReport{12, 3, 30, 124, 11, 0} << 102LL << "$33"
                                    << "$7"
                                    << "End - 11:00";
    QTest::addRow("half an hour") << SalesReport{2, 0, 3, 0, 6, 30} << 9LL << "$11"
                                  << "$22"
                                  << "End - 6:30";
    QTest::addRow("a loss per hour") << SalesReport{1, 1, 20, 35, 8, 15} << 64LL << "-$49"
                                     << "-$22"
                                     << "End - 8:15";
    QTest::addRow("1.5 dollars of miles round to 2")
        << SalesReport{0, 0, 0, 15, 7, 5} << 2LL << "-$2"
        << "-$2"
        << "End - 7:05";
    QTest::addRow("2.5 dollars of miles round to 2")
        << SalesReport{0, 0, 0, 25, 7, 0} << 2LL << "-$2"
        << "-$2"
        << "End - 7:00";
    QTest::addRow("thousands") << SalesReport{150, 40, 20, 10, 10, 0} << 61LL << "$1,639"
                               << "$410"
                               << "End - 10:00";
    QTest::addRow("huge counts do not wrap")
        << SalesReport{2147483647, 2147483647, 0, 0, 11, 0} << 0LL << "$32,212,254,705"
        << "$6,442,450,941"
        << "End - 11:00";
}

void tst_pizza_rules::reportFigures()
{
    QFETCH(SalesReport, report);
    QFETCH(qint64, costs);
    QFETCH(QString, profit);
    QFETCH(QString, perHour);
    QFETCH(QString, end);
    QCOMPARE(report.sales(), qint64(report.onTime) * 10 + qint64(report.late) * 5);
    QCOMPARE(report.bakingCost(), qint64(report.baked) * 3);
    QCOMPARE(report.costs(), costs);
    QCOMPARE(report.profit(), report.sales() - costs);
    QCOMPARE(SalesReport::money(report.profit()), profit);
    const auto hourly = report.profitPerHour();
    QCOMPARE(hourly ? SalesReport::money(*hourly) : QString(), perHour);
    QCOMPARE(report.endText(), end);
    QCOMPARE(SalesReport::money(std::numeric_limits<qint64>::min()),
             QStringLiteral("-$9,223,372,036,854,775,808"));
}

QTEST_GUILESS_MAIN(tst_pizza_rules)
#include "tst_pizza_rules.moc"
