// SPDX-License-Identifier: GPL-3.0-or-later
#include "WeatherSign.h"

#include <cmath>
#include <QPainter>
#include <QPainterPath>

WeatherSign::WeatherSign(QWidget *parent) : QWidget(parent)
{
    setFixedSize(sizeHint());
}

void WeatherSign::setWeather(std::optional<Contest::Weather> weather)
{
    m_weather = weather;
    setAccessibleName(weather ? Contest::weatherName(*weather) : QString());
    update();
}

void WeatherSign::paintEvent(QPaintEvent *)
{
    if (!m_weather)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double u = qMin(width(), height()) / 12.0;
    const QPointF centre(width() / 2.0, height() / 2.0);
    if (*m_weather == Contest::Weather::Sunny) {
        painter.setPen(QPen(QColor(0xFF, 0xA0, 0x00), 0.7 * u, Qt::SolidLine, Qt::RoundCap));
        for (int i = 0; i < 8; ++i) {
            const double a = i * M_PI / 4;
            const QPointF d(std::cos(a), std::sin(a));
            painter.drawLine(centre + d * 3.6 * u, centre + d * 5.4 * u);
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xFF, 0xD5, 0x4F));
        painter.drawEllipse(centre, 2.9 * u, 2.9 * u);
        return;
    }
    const bool rain = *m_weather == Contest::Weather::Rainy;
    const QPointF cloud = centre - QPointF(0, rain ? 1.6 * u : 0);
    QPainterPath shape;
    shape.addEllipse(cloud + QPointF(-2.6 * u, 0.4 * u), 2.4 * u, 2.0 * u);
    shape.addEllipse(cloud + QPointF(0.2 * u, -1.0 * u), 2.9 * u, 2.6 * u);
    shape.addEllipse(cloud + QPointF(2.9 * u, 0.5 * u), 2.2 * u, 1.9 * u);
    shape.addRoundedRect(QRectF(cloud.x() - 4.6 * u, cloud.y(), 9.2 * u, 2.4 * u), u, u);
    painter.setPen(QPen(QColor(0x78, 0x90, 0x9C), 0.4 * u));
    painter.setBrush(rain ? QColor(0xB0, 0xBE, 0xC5) : QColor(0xEC, 0xEF, 0xF1));
    painter.drawPath(shape.simplified());
    if (rain) {
        painter.setPen(QPen(QColor(0x1E, 0x88, 0xE5), 0.6 * u, Qt::SolidLine, Qt::RoundCap));
        for (int i = -1; i <= 1; ++i) {
            const QPointF top = cloud + QPointF(i * 2.4 * u, 3.4 * u);
            painter.drawLine(top, top + QPointF(-0.6 * u, 1.8 * u));
        }
    }
}
