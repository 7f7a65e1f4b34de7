// SPDX-License-Identifier: GPL-3.0-or-later
#include "Weather.h"

#include <QCoreApplication>

WeatherFacts Facts(Weather weather)
{
    switch (weather) {
    case Weather::HotSunny:
        return {120, 90, 99};
    case Weather::Sunny:
        return {90, 78, 89};
    case Weather::Cloudy:
        return {55, 66, 77};
    case Weather::Rainy:
        return {32, 60, 70};
    case Weather::Stormy:
        return {20, 56, 66};
    }
    return {0, 70, 70};
}

QString WeatherName(Weather weather)
{
    switch (weather) {
    case Weather::HotSunny:
        return QCoreApplication::translate("Weather", "hot and sunny");
    case Weather::Sunny:
        return QCoreApplication::translate("Weather", "sunny");
    case Weather::Cloudy:
        return QCoreApplication::translate("Weather", "cloudy");
    case Weather::Rainy:
        return QCoreApplication::translate("Weather", "rainy");
    case Weather::Stormy:
        return QCoreApplication::translate("Weather", "stormy");
    }
    return {};
}

int FairPrice(int temperature)
{
    // 95 degrees: 42 cents; 60 degrees: 25 cents.
    return qMax(10, (temperature - 10) / 2);
}
