// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WeekReport.h"

#include <optional>
#include <QList>

// What the pupil decides for one week: how many bags of lemons and stacks of cups to buy,
// how many posters to put up and the price of a cup in cents.
struct Plan {
    int bags = 0;
    int stacks = 0;
    int posters = 0;
    int price = 25;
};

// How many people come and how many of them buy, as whole numbers. Public so that the reports
// and the tests can reason about the same rules the stand follows.
namespace Demand {
// Extra people a number of posters brings, in percent: each poster helps less than the last.
int posterBoost(int posters);
// Of 1000 people who come, how many buy at this price on a day with this fair price. Never
// more than 1000, and falling as the price climbs above the fair one.
int buyingShare(int price, int fairPrice);
// People who walk up to the stand before the week's luck (90 to 110 percent) is applied.
int expectedVisitors(Weather weather, int posters, int reputation);
} // namespace Demand

// One summer of the lemonade stand: the money, the cups in store, the stand's reputation and
// the weeks played, each with its forecast and prices drawn from the process-wide random
// source (so a seed replays a summer). Money is in whole cents.
class Summer {
public:
    static constexpr int LongSummer = 10;
    static constexpr int ShortSummer = 5;
    static constexpr qint64 StartMoney = 2000;
    static constexpr int LemonsPerBag = 10;
    static constexpr int CupsPerStack = 25;
    static constexpr int CupsPerLemon = 4;
    static constexpr int PosterCost = 50;
    static constexpr int MaxBags = 20;
    static constexpr int MaxStacks = 20;
    static constexpr int MaxPosters = 10;
    static constexpr int MinPrice = 1;
    static constexpr int MaxPrice = 200;
    static constexpr int StartReputation = 100;
    static constexpr int MinReputation = 50;
    static constexpr int MaxReputation = 150;
    static constexpr int MinBagPrice = 150;
    static constexpr int MaxBagPrice = 250;
    static constexpr int MinStackPrice = 60;
    static constexpr int MaxStackPrice = 100;

    enum class Refusal { None, OutOfRange, NotEnoughMoney, SummerOver };

    explicit Summer(int weeks = LongSummer);

    int weeks() const { return m_weeks; }
    // The week being planned, from 1; weeks() + 1 once the summer is over.
    int week() const { return int(m_reports.size()) + 1; }
    bool isOver() const { return m_reports.size() >= m_weeks; }

    Weather forecast() const { return m_forecast; }
    int forecastTemperature() const { return m_forecastTemperature; }
    int bagPrice() const { return m_bagPrice; }
    int stackPrice() const { return m_stackPrice; }
    qint64 money() const { return m_money; }
    int cups() const { return m_cups; }
    int reputation() const { return m_reputation; }
    // "great", "good", "so-so" or "poor": how people in town talk about the stand.
    QString reputationWord() const;

    qint64 cost(const Plan &plan) const;
    Refusal check(const Plan &plan) const;
    // True when the money left cannot buy a bag of lemons and, when no cups are left, a stack
    // of cups too: the stand cannot sell any more.
    bool isBroke() const
    {
        return m_money < m_bagPrice || (m_cups == 0 && m_money < m_bagPrice + m_stackPrice);
    }

    // Buys, sells and closes the week; nothing changes when the plan is refused.
    std::optional<WeekReport> runWeek(const Plan &plan);

    const QList<WeekReport> &reports() const { return m_reports; }
    qint64 totalProfit() const;
    // Indexes into reports() of the week with the largest and smallest profit (the first on a
    // tie); -1 before the first week.
    int bestWeek() const;
    int worstWeek() const;

private:
    void drawWeek();

    int m_weeks;
    qint64 m_money = StartMoney;
    int m_cups = 0;
    int m_reputation = StartReputation;
    int m_bagPrice = 200;
    int m_stackPrice = 80;
    Weather m_forecast = Weather::Sunny;
    int m_forecastTemperature = 80;
    QList<WeekReport> m_reports;
};
