// SPDX-License-Identifier: GPL-3.0-or-later
#include "Summer.h"

#include "shell/core/Random.h"

#include <QCoreApplication>

namespace {

int RandomTemperature(Weather weather)
{
    const WeatherFacts facts = Facts(weather);
    return facts.lowTemp + RndInt(facts.highTemp - facts.lowTemp + 1) - 1;
}

Weather Shifted(Weather weather, int by)
{
    return Weather(qBound(0, int(weather) + by, WeatherCount - 1));
}

} // namespace

int Demand::posterBoost(int posters)
{
    static constexpr int Boost[] = {0, 25, 40, 50, 57, 62, 66, 69, 71, 73, 75};
    return Boost[qBound(0, posters, Summer::MaxPosters)];
}

int Demand::buyingShare(int price, int fairPrice)
{
    const qint64 f = qMax(1, fairPrice);
    const qint64 p = qBound(0, price, 10 * Summer::MaxPrice);
    // At the fair price everyone buys; at one and a half times it fewer than half do, and at
    // twice it about one in five.
    return int(qMin<qint64>(1000, 2000 * f * f * f / (f * f * f + p * p * p)));
}

int Demand::expectedVisitors(Weather weather, int posters, int reputation)
{
    return int(qint64(Facts(weather).passers) * (100 + posterBoost(posters)) * reputation / 10000);
}

Summer::Summer(int weeks) : m_weeks(qBound(1, weeks, LongSummer))
{
    drawWeek();
}

QString Summer::reputationWord() const
{
    if (m_reputation >= 120)
        return QCoreApplication::translate("Summer", "great");
    if (m_reputation >= 95)
        return QCoreApplication::translate("Summer", "good");
    if (m_reputation >= 75)
        return QCoreApplication::translate("Summer", "so-so");
    return QCoreApplication::translate("Summer", "poor");
}

qint64 Summer::cost(const Plan &plan) const
{
    return qint64(plan.bags) * m_bagPrice + qint64(plan.stacks) * m_stackPrice +
           qint64(plan.posters) * PosterCost;
}

Summer::Refusal Summer::check(const Plan &plan) const
{
    if (isOver())
        return Refusal::SummerOver;
    if (plan.bags < 0 || plan.bags > MaxBags || plan.stacks < 0 || plan.stacks > MaxStacks ||
        plan.posters < 0 || plan.posters > MaxPosters || plan.price < MinPrice ||
        plan.price > MaxPrice)
        return Refusal::OutOfRange;
    if (cost(plan) > m_money)
        return Refusal::NotEnoughMoney;
    return Refusal::None;
}

std::optional<WeekReport> Summer::runWeek(const Plan &plan)
{
    if (check(plan) != Refusal::None)
        return std::nullopt;

    WeekReport r;
    r.week = week();
    r.forecast = m_forecast;
    r.forecastTemperature = m_forecastTemperature;
    // The real weather usually keeps to the forecast; now and then it is a step better or worse.
    const double surprise = Rnd();
    r.weather = surprise < 0.7    ? m_forecast
                : surprise < 0.85 ? Shifted(m_forecast, -1)
                                  : Shifted(m_forecast, 1);
    r.temperature = r.weather == m_forecast ? m_forecastTemperature + RndInt(5) - 3
                                            : RandomTemperature(r.weather);
    r.price = plan.price;
    r.fairPrice = FairPrice(r.temperature);
    r.posters = plan.posters;
    r.moneyBefore = m_money;
    r.reputationBefore = m_reputation;

    r.lemonsBought = plan.bags * LemonsPerBag;
    r.cupsBought = plan.stacks * CupsPerStack;
    r.cupsAtStart = m_cups + r.cupsBought;
    r.lemonCost = qint64(plan.bags) * m_bagPrice;
    r.cupCost = qint64(plan.stacks) * m_stackPrice;
    r.posterCost = qint64(plan.posters) * PosterCost;

    const int luck = 89 + RndInt(21);
    r.came =
        int(qint64(Demand::expectedVisitors(r.weather, plan.posters, m_reputation)) * luck / 100);
    r.wanted = r.came * Demand::buyingShare(plan.price, r.fairPrice) / 1000;
    const int fromLemons = r.lemonsBought * CupsPerLemon;
    const int canMake = qMin(r.cupsAtStart, fromLemons);
    r.sold = qMin(r.wanted, canMake);
    r.turnedAway = r.wanted - r.sold;
    if (r.turnedAway > 0)
        r.ranOut = r.cupsAtStart < fromLemons   ? WeekReport::RanOut::Cups
                   : fromLemons < r.cupsAtStart ? WeekReport::RanOut::Lemons
                                                : WeekReport::RanOut::Both;
    r.lemonsUsed = (r.sold + CupsPerLemon - 1) / CupsPerLemon;
    r.lemonsSpoiled = r.lemonsBought - r.lemonsUsed;
    r.cupsLeft = r.cupsAtStart - r.sold;
    r.taken = qint64(r.sold) * plan.price;

    // Word gets round: thirsty customers sent away and steep prices hurt; fair weeks help.
    int reputation = m_reputation;
    if (r.turnedAway > 0)
        reputation -= 3 + 20 * r.turnedAway / r.wanted;
    if (r.came > 0 && 2 * r.price > 3 * r.fairPrice)
        reputation -= 8;
    else if (r.sold > 0 && r.turnedAway == 0)
        reputation += r.price <= r.fairPrice ? 6 : 2;
    r.reputationAfter = qBound(MinReputation, reputation, MaxReputation);

    m_money = r.moneyAfter();
    m_cups = r.cupsLeft;
    m_reputation = r.reputationAfter;
    m_reports.append(r);
    if (!isOver())
        drawWeek();
    return r;
}

qint64 Summer::totalProfit() const
{
    qint64 total = 0;
    for (const WeekReport &r : m_reports)
        total += r.profit();
    return total;
}

int Summer::bestWeek() const
{
    int best = -1;
    for (int i = 0; i < m_reports.size(); ++i)
        if (best < 0 || m_reports[i].profit() > m_reports[best].profit())
            best = i;
    return best;
}

int Summer::worstWeek() const
{
    int worst = -1;
    for (int i = 0; i < m_reports.size(); ++i)
        if (worst < 0 || m_reports[i].profit() < m_reports[worst].profit())
            worst = i;
    return worst;
}

void Summer::drawWeek()
{
    const double r = Rnd();
    m_forecast = r < 0.2    ? Weather::HotSunny
                 : r < 0.5  ? Weather::Sunny
                 : r < 0.75 ? Weather::Cloudy
                 : r < 0.9  ? Weather::Rainy
                            : Weather::Stormy;
    m_forecastTemperature = RandomTemperature(m_forecast);
    // Prices wander a little from week to week, within their bounds.
    m_bagPrice = qBound(MinBagPrice, m_bagPrice + (RndInt(5) - 3) * 10, MaxBagPrice);
    m_stackPrice = qBound(MinStackPrice, m_stackPrice + (RndInt(5) - 3) * 5, MaxStackPrice);
}
