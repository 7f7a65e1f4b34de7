// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Weather.h"

#include <QWidget>

// The lemonade stand, drawn by us at any size: the sky of the week's weather with its
// temperature, the striped stand with its price sign, and while it sells, customers walking
// up to it and away (with a cup when they bought one).
class LemonStand : public QWidget {
    Q_OBJECT
public:
    explicit LemonStand(QWidget *parent = nullptr);

    void setWeather(Weather weather, int temperature);
    // The price on the sign in cents; 0 hides the sign.
    void setPrice(int cents);
    // Customers to show walking past this week (a few stand for many) and how many of them
    // leave with a cup.
    void setCustomers(int walkers, int buyers);
    // How far the week has gone, 0 to 1; customers walk only while it is below 1.
    void setProgress(double progress);

    Weather weather() const { return m_weather; }
    int walkers() const { return m_walkers; }

    QSize sizeHint() const override { return {560, 560}; }
    QSize minimumSizeHint() const override { return {220, 220}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintSky(QPainter &painter, const QRectF &area, double unit) const;
    void paintStand(QPainter &painter, const QRectF &counter, double unit) const;
    void paintCustomer(QPainter &painter, QPointF feet, double unit, int which, bool cup,
                       bool happy) const;

    Weather m_weather = Weather::Sunny;
    int m_temperature = 80;
    int m_price = 0;
    int m_walkers = 0;
    int m_buyers = 0;
    double m_progress = 1.0;
};
