// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The five kinds of summer weather, from the best for selling lemonade to the worst.
enum class Weather { HotSunny, Sunny, Cloudy, Rainy, Stormy };

inline constexpr int WeatherCount = 5;

// How a kind of weather treats a lemonade stand: how many people walk past, and the
// temperatures it comes with (degrees Fahrenheit).
struct WeatherFacts {
    int passers;
    int lowTemp;
    int highTemp;
};

WeatherFacts Facts(Weather weather);
// "hot and sunny", "sunny", "cloudy", "rainy", "stormy"
QString WeatherName(Weather weather);
// The price in cents most people think fair on a day of this temperature: hotter days make
// people happy to pay more.
int FairPrice(int temperature);
