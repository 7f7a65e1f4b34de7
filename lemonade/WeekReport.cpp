// SPDX-License-Identifier: GPL-3.0-or-later
#include "WeekReport.h"

#include <QCoreApplication>

namespace {
QString tr(const char *text)
{
    return QCoreApplication::translate("WeekReport", text);
}
} // namespace

QString WeekReport::count(int n, const QString &one, const QString &many)
{
    return QString::number(n) + u' ' + (n == 1 ? one : many);
}

QString WeekReport::money(qint64 cents)
{
    const quint64 size = cents < 0 ? quint64(0) - quint64(cents) : quint64(cents);
    QString dollars = QString::number(size / 100);
    for (qsizetype at = dollars.size() - 3; at > 0; at -= 3)
        dollars.insert(at, u',');
    return (cents < 0 ? QStringLiteral("-$") : QStringLiteral("$")) + dollars + u'.' +
           QStringLiteral("%1").arg(size % 100, 2, 10, QLatin1Char('0'));
}

QStringList WeekReport::reasons() const
{
    QStringList said;
    const QString thirsty =
        count(turnedAway, tr("customer went home thirsty."), tr("customers went home thirsty."));
    if (turnedAway > 0) {
        if (lemonsBought == 0 && cupsAtStart == 0)
            said << tr("You had no lemons and no cups: ") + thirsty;
        else if (lemonsBought == 0)
            said << tr("You had no lemons: ") + thirsty;
        else if (cupsAtStart == 0)
            said << tr("You had no cups: ") + thirsty;
        else if (ranOut == RanOut::Cups)
            said << tr("You ran out of cups: ") + thirsty;
        else if (ranOut == RanOut::Lemons)
            said << tr("You ran out of lemons: ") + thirsty;
        else
            said << tr("You ran out of lemonade: ") + thirsty;
    }

    if (weather > forecast)
        said << tr("The forecast said %1, but it was %2, so fewer people came.")
                    .arg(WeatherName(forecast), WeatherName(weather));
    else if (weather < forecast)
        said << tr("The forecast said %1, but it was %2, so more people came.")
                    .arg(WeatherName(forecast), WeatherName(weather));

    if (came > 0 && 2 * price > 3 * fairPrice)
        said << tr("Your price was high for a %1 week: %2 said no.")
                    .arg(WeatherName(weather), count(saidNo(), tr("person"), tr("people")));

    if (weather == forecast) {
        if (weather == Weather::Rainy)
            said << tr("It rained, so fewer people came.");
        else if (weather == Weather::Stormy)
            said << tr("There was a storm, so most people stayed at home.");
        else if (weather == Weather::HotSunny)
            said << tr("It was hot, so lots of people wanted lemonade.");
    }

    if (sold > 0 && 2 * price < fairPrice)
        said << tr("Your price was very low: people would have paid more.");
    if (lemonsSpoiled >= LemonsWorthAWord)
        said << count(lemonsSpoiled, tr("lemon was left over and went bad."),
                      tr("lemons were left over and went bad."));
    if (said.isEmpty()) {
        if (profit() > 0)
            said << tr("Well done: you sold %1 and made a profit.")
                        .arg(count(sold, tr("cup"), tr("cups")));
        else if (sold == 0)
            said << tr("You sold no lemonade this week.");
        else
            said << tr("You spent more than you took in.");
    }
    return said.mid(0, 2);
}
