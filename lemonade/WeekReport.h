// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Weather.h"

#include <QStringList>

// What one week at the stand came to: the weather, what was bought and sold and the money,
// all money in whole cents. The figures are filled in by Summer; the sums and the plain
// sentences saying why the week went as it did are worked out here.
struct WeekReport {
    // What stopped the stand selling to everyone who wanted a cup.
    enum class RanOut { Nothing, Cups, Lemons, Both };
    // Spoiled lemons fewer than this are not worth a sentence of their own.
    static constexpr int LemonsWorthAWord = 8;

    int week = 0;
    Weather forecast = Weather::Sunny;
    int forecastTemperature = 0;
    Weather weather = Weather::Sunny;
    int temperature = 0;
    int price = 0;
    int fairPrice = 0;
    int posters = 0;

    int lemonsBought = 0;
    int cupsBought = 0;
    int cupsAtStart = 0;
    qint64 lemonCost = 0;
    qint64 cupCost = 0;
    qint64 posterCost = 0;

    int came = 0;
    int wanted = 0;
    int sold = 0;
    int turnedAway = 0;
    RanOut ranOut = RanOut::Nothing;
    int lemonsUsed = 0;
    int lemonsSpoiled = 0;
    int cupsLeft = 0;

    qint64 moneyBefore = 0;
    qint64 taken = 0;
    int reputationBefore = 0;
    int reputationAfter = 0;

    qint64 spent() const { return lemonCost + cupCost + posterCost; }
    qint64 profit() const { return taken - spent(); }
    qint64 moneyAfter() const { return moneyBefore - spent() + taken; }
    // Customers who came but would not pay the price.
    int saidNo() const { return came - wanted; }
    // One or two sentences a pupil can act on, the most important first.
    QStringList reasons() const;

    // "$12.05", "-$0.40", "$1,234.00"
    static QString money(qint64 cents);
    // "1 customer", "23 customers": a count and its noun, singular or plural.
    static QString count(int n, const QString &one, const QString &many);
};
