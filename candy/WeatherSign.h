// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Contest.h"

#include <optional>
#include <QWidget>

// A small picture of the day's weather: a sun, a cloud, or a cloud with rain. Empty when
// there is no day to show.
class WeatherSign : public QWidget {
    Q_OBJECT
public:
    explicit WeatherSign(QWidget *parent = nullptr);
    void setWeather(std::optional<Contest::Weather> weather);
    std::optional<Contest::Weather> weather() const { return m_weather; }

    QSize sizeHint() const override { return {56, 48}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<Contest::Weather> m_weather;
};
