// SPDX-License-Identifier: GPL-3.0-or-later
#include "lemonade/Summer.h"
#include "support/TestDoubles.h"

#include <QTest>

// The summer's rules without any window: money, stock, demand, reputation and the reports.
class tst_lemonade_rules : public QObject {
    Q_OBJECT
private slots:
    void moneyAndStockAddUpEveryWeek();
    void refusedPlansChangeNothing_data();
    void refusedPlansChangeNothing();
    void lemonsSpoilAndCupsKeep();
    void runningOut_data();
    void runningOut();
    void demandFallsAsThePriceRises();
    void carefulPlayersProfitAndCarelessOnesDoNot();
    void aSeedReplaysTheSummer();
    void sentences_data();
    void sentences();
    void moneyText_data();
    void moneyText();
};

Q_DECLARE_METATYPE(Plan)
Q_DECLARE_METATYPE(WeekReport::RanOut)
Q_DECLARE_METATYPE(WeekReport)
Q_DECLARE_METATYPE(Summer::Refusal)

namespace {

// A hot week of 95 degrees, exactly as forecast, with average luck: 120 people come
// (without posters) and everyone buys at the fair price of 42 cents.
void ScriptHotWeek(ScriptedRandom &random)
{
    random.values << 0.1 << 0.5 << 0.5 << 0.5 // forecast, temperature, lemon and cup prices
                  << 0.1 << 0.5 << 0.5;       // real weather, temperature, luck
}

// Buys for the people the forecast promises, at the fair price of the forecast's
// temperature, with one poster: what a pupil who reads the reports learns to do.
Plan CarefulPlan(const Summer &summer)
{
    Plan plan;
    plan.price = FairPrice(summer.forecastTemperature());
    plan.posters = summer.forecast() <= Weather::Cloudy && summer.money() >= 1000 ? 1 : 0;
    const int expected =
        Demand::expectedVisitors(summer.forecast(), plan.posters, summer.reputation()) * 11 / 10;
    const int lemonCups = Summer::LemonsPerBag * Summer::CupsPerLemon;
    plan.bags = (expected + lemonCups - 1) / lemonCups;
    plan.stacks =
        (qMax(0, expected - summer.cups()) + Summer::CupsPerStack - 1) / Summer::CupsPerStack;
    for (bool lemons = true; summer.cost(plan) > summer.money(); lemons = !lemons) {
        if (lemons && plan.bags > 0)
            --plan.bags;
        else if (plan.stacks > 0)
            --plan.stacks;
        else
            plan.posters = 0;
    }
    return plan;
}

Plan GreedyPlan(const Summer &summer)
{
    Plan plan = CarefulPlan(summer);
    plan.price = 150;
    return plan;
}

Plan IdlePlan(const Summer &)
{
    return Plan{};
}

qint64 PlaySummer(qint64 seed, Plan (*choose)(const Summer &), Summer *out = nullptr)
{
    Randomize(seed);
    Summer summer;
    while (!summer.isOver())
        if (!summer.runWeek(choose(summer)))
            return std::numeric_limits<qint64>::min();
    if (out)
        *out = summer;
    return summer.totalProfit();
}

} // namespace

void tst_lemonade_rules::moneyAndStockAddUpEveryWeek()
{
    for (qint64 seed = 1; seed <= 60; ++seed) {
        Randomize(seed);
        Summer summer(seed % 2 ? Summer::LongSummer : Summer::ShortSummer);
        while (!summer.isOver()) {
            // Wild but affordable plans, so every corner of the rules is visited.
            Plan plan{RndInt(6) - 1, RndInt(8) - 1, RndInt(11) - 1, RndInt(Summer::MaxPrice)};
            while (summer.cost(plan) > summer.money())
                plan = Plan{plan.bags / 2, plan.stacks / 2, plan.posters / 2, plan.price};
            const qint64 before = summer.money();
            const int cupsBefore = summer.cups();
            const std::optional<WeekReport> r = summer.runWeek(plan);
            QVERIFY(r);
            QCOMPARE(r->moneyBefore, before);
            QCOMPARE(r->moneyAfter(), before - r->spent() + r->taken);
            QCOMPARE(summer.money(), r->moneyAfter());
            QVERIFY(summer.money() >= 0);
            QCOMPARE(r->taken, qint64(r->sold) * plan.price);
            QCOMPARE(r->posterCost, qint64(plan.posters) * Summer::PosterCost);
            QCOMPARE(r->cupsAtStart, cupsBefore + plan.stacks * Summer::CupsPerStack);
            QCOMPARE(r->lemonsUsed + r->lemonsSpoiled, plan.bags * Summer::LemonsPerBag);
            QVERIFY(r->lemonsSpoiled >= 0);
            QVERIFY(r->sold <= r->cupsAtStart);
            QVERIFY(r->sold <= r->lemonsBought * Summer::CupsPerLemon);
            QCOMPARE(r->sold + r->turnedAway + r->saidNo(), r->came);
            QCOMPARE(summer.cups(), r->cupsLeft);
            QVERIFY(r->reputationAfter >= Summer::MinReputation &&
                    r->reputationAfter <= Summer::MaxReputation);
            QVERIFY(!r->reasons().isEmpty() && r->reasons().size() <= 2);
        }
        qint64 total = 0;
        for (const WeekReport &r : summer.reports())
            total += r.profit();
        QCOMPARE(summer.totalProfit(), total);
        QCOMPARE(summer.money(), Summer::StartMoney + total);
        const auto &reports = summer.reports();
        for (const WeekReport &r : reports) {
            QVERIFY(r.profit() <= reports[summer.bestWeek()].profit());
            QVERIFY(r.profit() >= reports[summer.worstWeek()].profit());
        }
    }
}

void tst_lemonade_rules::refusedPlansChangeNothing_data()
{
    QTest::addColumn<Plan>("plan");
    QTest::addColumn<Summer::Refusal>("refusal");
    // $20.00 buys at most 13 bags at the dearest price of $2.50... but never 20 bags and 20
    // stacks together.
    QTest::newRow("more than the money") << Plan{20, 20, 10, 50} << Summer::Refusal::NotEnoughMoney;
    QTest::newRow("posters alone too dear")
        << Plan{9, 0, 10, 50} << Summer::Refusal::NotEnoughMoney;
    QTest::newRow("negative bags") << Plan{-1, 0, 0, 50} << Summer::Refusal::OutOfRange;
    QTest::newRow("too many stacks") << Plan{0, 21, 0, 50} << Summer::Refusal::OutOfRange;
    QTest::newRow("too many posters") << Plan{0, 0, 11, 50} << Summer::Refusal::OutOfRange;
    QTest::newRow("free lemonade") << Plan{1, 1, 0, 0} << Summer::Refusal::OutOfRange;
    QTest::newRow("price too high") << Plan{1, 1, 0, 201} << Summer::Refusal::OutOfRange;
    QTest::newRow("huge numbers") << Plan{2'000'000'000, 2'000'000'000, 0, 50}
                                  << Summer::Refusal::OutOfRange;
}

void tst_lemonade_rules::refusedPlansChangeNothing()
{
    QFETCH(Plan, plan);
    QFETCH(Summer::Refusal, refusal);
    Randomize(7);
    Summer summer;
    const Weather forecast = summer.forecast();
    const int bagPrice = summer.bagPrice();
    QCOMPARE(summer.check(plan), refusal);
    QVERIFY(!summer.runWeek(plan));
    QCOMPARE(summer.money(), Summer::StartMoney);
    QCOMPARE(summer.week(), 1);
    QCOMPARE(summer.forecast(), forecast);
    QCOMPARE(summer.bagPrice(), bagPrice);
    QVERIFY(summer.reports().isEmpty());

    // Spending every last cent is allowed; one cent more is not.
    Plan all{0, 0, 0, 50};
    while (summer.cost({all.bags + 1, 0, 0, 50}) <= summer.money())
        ++all.bags;
    QCOMPARE(summer.check(all), Summer::Refusal::None);
    ++all.bags;
    QCOMPARE(summer.check(all), Summer::Refusal::NotEnoughMoney);

    Summer shortOne(Summer::ShortSummer);
    for (int i = 0; i < Summer::ShortSummer; ++i)
        QVERIFY(shortOne.runWeek(Plan{}));
    QVERIFY(shortOne.isOver());
    QCOMPARE(shortOne.check(Plan{}), Summer::Refusal::SummerOver);
    QVERIFY(!shortOne.runWeek(Plan{}));
}

void tst_lemonade_rules::lemonsSpoilAndCupsKeep()
{
    ScriptedRandom random;
    SetRandomSource(&random);
    ScriptHotWeek(random);
    Summer summer;
    // 120 want a cup; 3 bags make 120 cups from 30 lemons, and 8 stacks hold 200 cups.
    const WeekReport first = *summer.runWeek(Plan{4, 8, 0, 42});
    SetRandomSource(nullptr);
    QCOMPARE(first.came, 120);
    QCOMPARE(first.sold, 120);
    QCOMPARE(first.turnedAway, 0);
    QCOMPARE(first.lemonsUsed, 30);
    QCOMPARE(first.lemonsSpoiled, 10);
    QCOMPARE(first.cupsLeft, 80);
    QVERIFY(first.reasons().contains(QStringLiteral("10 lemons were left over and went bad.")));
    QCOMPARE(first.reputationAfter, Summer::StartReputation + 6);

    // No lemons are carried into the next week; the cups are.
    QCOMPARE(summer.cups(), 80);
    const WeekReport second = *summer.runWeek(Plan{0, 0, 0, 42});
    QCOMPARE(second.cupsAtStart, 80);
    QCOMPARE(second.sold, 0);
    QCOMPARE(second.cupsLeft, 80);
    QCOMPARE(second.turnedAway, second.wanted);
}

void tst_lemonade_rules::runningOut_data()
{
    QTest::addColumn<Plan>("plan");
    QTest::addColumn<int>("sold");
    QTest::addColumn<WeekReport::RanOut>("ranOut");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("cups") << Plan{1, 1, 0, 42} << 25 << WeekReport::RanOut::Cups
                          << "You ran out of cups: 95 customers went home thirsty.";
    QTest::newRow("lemons") << Plan{1, 3, 0, 42} << 40 << WeekReport::RanOut::Lemons
                            << "You ran out of lemons: 80 customers went home thirsty.";
    QTest::newRow("both") << Plan{5, 8, 0, 42} << 200 - 80 << WeekReport::RanOut::Nothing
                          << "It was hot, so lots of people wanted lemonade.";
    QTest::newRow("no lemons") << Plan{0, 2, 0, 42} << 0 << WeekReport::RanOut::Lemons
                               << "You had no lemons: 120 customers went home thirsty.";
    QTest::newRow("nothing at all") << Plan{0, 0, 0, 42} << 0 << WeekReport::RanOut::Both
                                    << "You had no lemons and no cups: 120 customers went home "
                                       "thirsty.";
}

void tst_lemonade_rules::runningOut()
{
    QFETCH(Plan, plan);
    QFETCH(int, sold);
    QFETCH(WeekReport::RanOut, ranOut);
    QFETCH(QString, sentence);
    ScriptedRandom random;
    SetRandomSource(&random);
    ScriptHotWeek(random);
    Summer summer;
    const WeekReport r = *summer.runWeek(plan);
    SetRandomSource(nullptr);
    QCOMPARE(r.wanted, 120);
    QCOMPARE(r.sold, qMin(sold, 120));
    QCOMPARE(r.turnedAway, 120 - r.sold);
    QCOMPARE(r.ranOut, ranOut);
    QCOMPARE(r.reasons().first(), sentence);
    if (r.turnedAway > 0)
        QCOMPARE(r.reputationAfter, 100 - 3 - 20 * r.turnedAway / 120);
    else
        QVERIFY(r.reputationAfter > 100);
}

void tst_lemonade_rules::demandFallsAsThePriceRises()
{
    for (int w = 0; w < WeatherCount; ++w) {
        const WeatherFacts facts = Facts(Weather(w));
        for (int temperature : {facts.lowTemp, facts.highTemp}) {
            const int fair = FairPrice(temperature);
            QCOMPARE(Demand::buyingShare(fair, fair), 1000);
            int previous = 1000;
            for (int price = Summer::MinPrice; price <= Summer::MaxPrice; ++price) {
                const int share = Demand::buyingShare(price, fair);
                QVERIFY2(share <= previous, qPrintable(QString::number(price)));
                // Above the fair price every 5 cents more loses customers.
                if (price >= fair + 5 && Demand::buyingShare(price - 5, fair) > 20)
                    QVERIFY(share < Demand::buyingShare(price - 5, fair));
                previous = share;
            }
            QVERIFY(Demand::buyingShare(Summer::MaxPrice, fair) < 100);
        }
        // The weather decides how many come; hotter weather is never worse.
        if (w > 0)
            QVERIFY(Demand::expectedVisitors(Weather(w), 0, 100) <
                    Demand::expectedVisitors(Weather(w - 1), 0, 100));
        QVERIFY(Demand::expectedVisitors(Weather(w), 0, 80) <
                Demand::expectedVisitors(Weather(w), 0, 120));
    }
    // Hot days make people happy to pay more.
    QVERIFY(Demand::buyingShare(50, FairPrice(95)) > Demand::buyingShare(50, FairPrice(60)));
    // Every poster brings more people, but less than the one before.
    for (int p = 1; p <= Summer::MaxPosters; ++p) {
        QVERIFY(Demand::posterBoost(p) > Demand::posterBoost(p - 1));
        if (p > 1)
            QVERIFY(Demand::posterBoost(p) - Demand::posterBoost(p - 1) <=
                    Demand::posterBoost(p - 1) - Demand::posterBoost(p - 2));
    }
}

void tst_lemonade_rules::carefulPlayersProfitAndCarelessOnesDoNot()
{
    qint64 carefulTotal = 0;
    for (qint64 seed = 100; seed < 300; ++seed) {
        const qint64 careful = PlaySummer(seed, CarefulPlan);
        QVERIFY2(careful > 0, qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(careful)));
        carefulTotal += careful;
        QVERIFY2(PlaySummer(seed, GreedyPlan) < 0, qPrintable(QString::number(seed)));
        QCOMPARE(PlaySummer(seed, IdlePlan), 0);
    }
    // Careful play pays well: on average many times the starting money over a summer.
    QVERIFY(carefulTotal / 200 > 2 * Summer::StartMoney);

    // Every kind of forecast has a plan that makes money in the week it promises.
    for (int w = 0; w < WeatherCount; ++w) {
        ScriptedRandom random;
        SetRandomSource(&random);
        random.values << QList<double>{0.1, 0.3, 0.6, 0.8, 0.95}[w] << 0.0 << 0.5 << 0.5 << 0.1
                      << 0.5 << 0.0;
        Summer summer;
        QCOMPARE(int(summer.forecast()), w);
        const WeekReport r = *summer.runWeek(CarefulPlan(summer));
        SetRandomSource(nullptr);
        QVERIFY2(r.profit() > 0, qPrintable(WeatherName(Weather(w))));
    }
}

void tst_lemonade_rules::aSeedReplaysTheSummer()
{
    Summer first(Summer::ShortSummer);
    Summer second(Summer::ShortSummer);
    PlaySummer(42, CarefulPlan, &first);
    PlaySummer(42, CarefulPlan, &second);
    auto fingerprint = [](const Summer &s) {
        QList<qint64> figures;
        for (const WeekReport &r : s.reports())
            figures << int(r.weather) << r.temperature << r.lemonCost << r.cupCost << r.came
                    << r.sold << r.moneyAfter();
        return figures;
    };
    QCOMPARE(first.reports().size(), Summer::LongSummer);
    QCOMPARE(fingerprint(first), fingerprint(second));
    Summer other;
    PlaySummer(43, CarefulPlan, &other);
    QVERIFY(fingerprint(first) != fingerprint(other));
}

void tst_lemonade_rules::sentences_data()
{
    QTest::addColumn<WeekReport>("report");
    QTest::addColumn<QStringList>("said");
    WeekReport base;
    base.forecast = base.weather = Weather::Cloudy;
    base.temperature = 70;
    base.fairPrice = FairPrice(70);
    base.price = 30;
    base.came = base.wanted = base.sold = 50;
    base.lemonsBought = 20;
    base.lemonsUsed = 13;
    base.lemonsSpoiled = 7;
    base.cupsAtStart = 75;
    base.taken = 1500;
    base.lemonCost = 400;
    QTest::newRow("a good week") << base
                                 << QStringList{"Well done: you sold 50 cups and made a profit."};
    WeekReport rain = base;
    rain.forecast = rain.weather = Weather::Rainy;
    QTest::newRow("rain") << rain << QStringList{"It rained, so fewer people came."};
    WeekReport surprise = base;
    surprise.weather = Weather::Stormy;
    surprise.turnedAway = 1;
    surprise.ranOut = WeekReport::RanOut::Cups;
    QTest::newRow("storm instead of clouds")
        << surprise
        << QStringList{"You ran out of cups: 1 customer went home thirsty.",
                       "The forecast said cloudy, but it was stormy, so fewer people came."};
    WeekReport dear = base;
    dear.price = 60;
    dear.wanted = dear.sold = 12;
    QTest::newRow("too dear") << dear
                              << QStringList{"Your price was high for a cloudy week: 38 people "
                                             "said no."};
    WeekReport cheap = base;
    cheap.price = 10;
    cheap.lemonsSpoiled = 12;
    QTest::newRow("too cheap") << cheap
                               << QStringList{"Your price was very low: people would have paid "
                                              "more.",
                                              "12 lemons were left over and went bad."};
    WeekReport loss = base;
    loss.taken = 100;
    QTest::newRow("a loss") << loss << QStringList{"You spent more than you took in."};
}

void tst_lemonade_rules::sentences()
{
    QFETCH(WeekReport, report);
    QFETCH(QStringList, said);
    QCOMPARE(report.reasons(), said);
}

void tst_lemonade_rules::moneyText_data()
{
    QTest::addColumn<qint64>("cents");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << qint64(2000) << "$20.00";
    QTest::newRow("cents") << qint64(5) << "$0.05";
    QTest::newRow("loss") << qint64(-140) << "-$1.40";
    QTest::newRow("thousands") << qint64(123456789) << "$1,234,567.89";
    QTest::newRow("smallest") << std::numeric_limits<qint64>::min()
                              << "-$92,233,720,368,547,758.08";
}

void tst_lemonade_rules::moneyText()
{
    QFETCH(qint64, cents);
    QFETCH(QString, text);
    QCOMPARE(WeekReport::money(cents), text);
}

QTEST_GUILESS_MAIN(tst_lemonade_rules)
#include "tst_lemonade_rules.moc"
