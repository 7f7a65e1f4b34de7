// SPDX-License-Identifier: GPL-3.0-or-later
#include "LemonStand.h"

#include <cmath>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

// The picture is laid out on a square of 100 units, centred in the widget.
constexpr double Units = 100.0;

QColor SkyTop(Weather weather)
{
    switch (weather) {
    case Weather::HotSunny:
        return QColor(0x29, 0x79, 0xFF);
    case Weather::Sunny:
        return QColor(0x42, 0xA5, 0xF5);
    case Weather::Cloudy:
        return QColor(0x90, 0xA4, 0xAE);
    case Weather::Rainy:
        return QColor(0x60, 0x7D, 0x8B);
    case Weather::Stormy:
        return QColor(0x37, 0x47, 0x4F);
    }
    return Qt::blue;
}

void PaintCloud(QPainter &painter, QPointF centre, double size, const QColor &colour)
{
    painter.setBrush(colour);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(centre, size, size * 0.6);
    painter.drawEllipse(centre + QPointF(-size * 0.8, size * 0.2), size * 0.6, size * 0.45);
    painter.drawEllipse(centre + QPointF(size * 0.8, size * 0.2), size * 0.65, size * 0.45);
}

} // namespace

LemonStand::LemonStand(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LemonStand::setWeather(Weather weather, int temperature)
{
    m_weather = weather;
    m_temperature = temperature;
    update();
}

void LemonStand::setPrice(int cents)
{
    m_price = cents;
    update();
}

void LemonStand::setCustomers(int walkers, int buyers)
{
    m_walkers = qMax(0, walkers);
    m_buyers = qBound(0, buyers, m_walkers);
    update();
}

void LemonStand::setProgress(double progress)
{
    m_progress = qBound(0.0, progress, 1.0);
    update();
}

void LemonStand::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = qMin(width(), height());
    const double unit = side / Units;
    const QRectF area((width() - side) / 2, (height() - side) / 2, side, side);
    // Outside the square the sky and grass simply carry on.
    painter.fillRect(rect(), SkyTop(m_weather));
    painter.fillRect(QRectF(0, area.top() + 62 * unit, width(), height()),
                     QColor(0x8B, 0xC3, 0x4A));
    paintSky(painter, area, unit);

    const QRectF path(0, area.top() + 82 * unit, width(), 9 * unit);
    painter.fillRect(path, QColor(0xD7, 0xCC, 0xC8));
    painter.setPen(QPen(QColor(0xBC, 0xAA, 0xA4), unit * 0.5));
    for (double x = path.left(); x < path.right(); x += 12 * unit)
        painter.drawLine(QPointF(x, path.top()), QPointF(x, path.bottom()));

    const QRectF counter(area.left() + 30 * unit, area.top() + 58 * unit, 40 * unit, 24 * unit);
    paintStand(painter, counter, unit);

    if (m_walkers > 0 && m_progress < 1.0) {
        // Each customer walks up from the left, stops at the counter and walks off to the
        // right; they set out one after another so the line keeps moving.
        const double span = 0.45;
        const double gap = m_walkers > 1 ? (1.0 - span) / (m_walkers - 1) : 0.0;
        const double stopX = counter.center().x();
        for (int i = m_walkers - 1; i >= 0; --i) {
            const double t = (m_progress - i * gap) / span;
            if (t <= 0 || t >= 1)
                continue;
            const bool leaving = t > 0.5;
            const double x = leaving ? stopX + (t - 0.5) * 2 * (width() - stopX + 10 * unit)
                                     : -10 * unit + t * 2 * (stopX + 10 * unit);
            const bool bought = i < m_buyers;
            paintCustomer(painter, QPointF(x, path.top() + 6 * unit), unit, i, leaving && bought,
                          !leaving || bought);
        }
    }
}

void LemonStand::paintSky(QPainter &painter, const QRectF &area, double unit) const
{
    QLinearGradient sky(area.topLeft(), QPointF(area.left(), area.top() + 62 * unit));
    sky.setColorAt(0, SkyTop(m_weather));
    sky.setColorAt(1, SkyTop(m_weather).lighter(150));
    // Across the whole widget, so a wide or tall window shows one sky: above the square the
    // gradient's first colour carries on.
    painter.fillRect(QRectF(0, 0, width(), area.top() + 62 * unit), sky);

    painter.setPen(Qt::NoPen);
    if (m_weather == Weather::HotSunny || m_weather == Weather::Sunny) {
        const bool hot = m_weather == Weather::HotSunny;
        const QPointF sun(area.left() + 78 * unit, area.top() + 18 * unit);
        const double radius = (hot ? 11 : 9) * unit;
        painter.setPen(QPen(hot ? QColor(0xFF, 0x8F, 0x00) : QColor(0xFF, 0xCA, 0x28), unit * 1.6,
                            Qt::SolidLine, Qt::RoundCap));
        for (int ray = 0; ray < 12; ++ray) {
            const double a = ray * M_PI / 6;
            painter.drawLine(sun + QPointF(std::cos(a), std::sin(a)) * (radius + 2 * unit),
                             sun + QPointF(std::cos(a), std::sin(a)) * (radius + 6 * unit));
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(hot ? QColor(0xFF, 0xA0, 0x00) : QColor(0xFF, 0xEB, 0x3B));
        painter.drawEllipse(sun, radius, radius);
        if (m_weather == Weather::Sunny)
            PaintCloud(painter, QPointF(area.left() + 28 * unit, area.top() + 16 * unit), 6 * unit,
                       QColor(255, 255, 255, 230));
    } else {
        const QColor grey = m_weather == Weather::Cloudy  ? QColor(0xEC, 0xEF, 0xF1)
                            : m_weather == Weather::Rainy ? QColor(0xB0, 0xBE, 0xC5)
                                                          : QColor(0x78, 0x90, 0x9C);
        if (m_weather == Weather::Cloudy) {
            painter.setBrush(QColor(0xFF, 0xEB, 0x3B));
            painter.drawEllipse(QPointF(area.left() + 74 * unit, area.top() + 14 * unit), 7 * unit,
                                7 * unit);
        }
        PaintCloud(painter, QPointF(area.left() + 25 * unit, area.top() + 16 * unit), 9 * unit,
                   grey);
        PaintCloud(painter, QPointF(area.left() + 70 * unit, area.top() + 20 * unit), 10 * unit,
                   grey.darker(108));
        if (m_weather != Weather::Cloudy) {
            painter.setPen(QPen(QColor(0xBB, 0xDE, 0xFB), unit * 0.7, Qt::SolidLine, Qt::RoundCap));
            // Fixed streaks, so the rain does not flicker from one repaint to the next.
            const int streaks = qMax(40, int(40 * width() / area.width()));
            for (int i = 0; i < streaks; ++i) {
                const double x = double((i * 37) % streaks) * width() / streaks;
                const double y = area.top() + (28 + (i * 53) % 50) * unit;
                painter.drawLine(QPointF(x, y), QPointF(x - 1.5 * unit, y + 4 * unit));
            }
        }
        if (m_weather == Weather::Stormy) {
            QPolygonF bolt;
            for (QPointF p : {QPointF(72, 26), QPointF(66, 38), QPointF(71, 38), QPointF(64, 52),
                              QPointF(77, 35), QPointF(72, 35), QPointF(77, 26)})
                bolt << area.topLeft() + p * unit;
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0xFF, 0xEE, 0x58));
            painter.drawPolygon(bolt);
        }
    }

    // The temperature on a round badge, large enough to read at a glance.
    const QRectF badge(area.left() + 3 * unit, area.top() + 3 * unit, 22 * unit, 12 * unit);
    painter.setPen(QPen(Qt::white, unit * 0.6));
    painter.setBrush(m_temperature >= 90   ? QColor(0xE6, 0x4A, 0x19)
                     : m_temperature >= 75 ? QColor(0xFB, 0x8C, 0x00)
                                           : QColor(0x15, 0x65, 0xC0));
    painter.drawRoundedRect(badge, 5 * unit, 5 * unit);
    QFont font = this->font();
    font.setBold(true);
    font.setPixelSize(qMax(8, int(6.5 * unit)));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, QStringLiteral("%1°F").arg(m_temperature));
}

void LemonStand::paintStand(QPainter &painter, const QRectF &counter, double unit) const
{
    const QColor wood(0xA1, 0x66, 0x2F);
    // Posts holding up the awning.
    painter.setPen(Qt::NoPen);
    painter.setBrush(wood.darker(120));
    painter.drawRect(
        QRectF(counter.left() + unit, counter.top() - 26 * unit, 2.5 * unit, 26 * unit));
    painter.drawRect(
        QRectF(counter.right() - 3.5 * unit, counter.top() - 26 * unit, 2.5 * unit, 26 * unit));

    // The striped awning, yellow and white, with a scalloped edge.
    const QRectF awning(counter.left() - 4 * unit, counter.top() - 34 * unit,
                        counter.width() + 8 * unit, 10 * unit);
    const int stripes = 8;
    const double w = awning.width() / stripes;
    for (int i = 0; i < stripes; ++i) {
        painter.setBrush(i % 2 ? QColor(Qt::white) : QColor(0xFF, 0xD6, 0x00));
        painter.drawRect(QRectF(awning.left() + i * w, awning.top(), w + 0.5, awning.height()));
        painter.drawChord(QRectF(awning.left() + i * w, awning.bottom() - w / 2, w, w), 180 * 16,
                          180 * 16);
    }
    painter.setBrush(QColor(0xF5, 0x7F, 0x17));
    painter.drawRoundedRect(QRectF(awning.left() - unit, awning.top() - 2 * unit,
                                   awning.width() + 2 * unit, 2.5 * unit),
                            unit, unit);

    // The counter with its sign.
    painter.setBrush(wood);
    painter.setPen(QPen(wood.darker(140), unit * 0.6));
    painter.drawRoundedRect(counter, unit, unit);
    painter.setPen(QPen(wood.darker(125), unit * 0.4));
    for (double y = counter.top() + 6 * unit; y < counter.bottom(); y += 6 * unit)
        painter.drawLine(QPointF(counter.left() + unit, y), QPointF(counter.right() - unit, y));
    const QRectF sign(counter.left() + 4 * unit, counter.top() + 3 * unit,
                      counter.width() - 8 * unit, 9 * unit);
    painter.setBrush(QColor(0xFF, 0xF9, 0xC4));
    painter.setPen(QPen(QColor(0xF9, 0xA8, 0x25), unit * 0.6));
    painter.drawRoundedRect(sign, 2 * unit, 2 * unit);
    QFont font = this->font();
    font.setBold(true);
    font.setPixelSize(qMax(7, int(5.2 * unit)));
    painter.setFont(font);
    painter.setPen(QColor(0xE6, 0x51, 0x00));
    painter.drawText(sign, Qt::AlignCenter, tr("LEMONADE"));

    // The pitcher and a row of cups on the counter.
    const QRectF pitcher(counter.left() + 6 * unit, counter.top() - 11 * unit, 8 * unit, 11 * unit);
    painter.setPen(QPen(QColor(0x90, 0xA4, 0xAE), unit * 0.5));
    painter.setBrush(QColor(0xFF, 0xF1, 0x76));
    painter.drawRoundedRect(pitcher, 1.5 * unit, 1.5 * unit);
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(
        QRectF(pitcher.right() - 2 * unit, pitcher.top() + 2 * unit, 5 * unit, 6 * unit), -90 * 16,
        180 * 16);
    painter.setBrush(QColor(0xFF, 0xEB, 0x3B));
    painter.setPen(QPen(QColor(0xF9, 0xA8, 0x25), unit * 0.4));
    painter.drawEllipse(QPointF(counter.left() + 20 * unit, counter.top() - 3 * unit), 3.2 * unit,
                        2.4 * unit);
    painter.setBrush(Qt::white);
    painter.setPen(QPen(QColor(0x90, 0xA4, 0xAE), unit * 0.4));
    for (int i = 0; i < 3; ++i) {
        const double x = counter.left() + (26 + i * 4.5) * unit;
        QPolygonF cup;
        cup << QPointF(x, counter.top() - 5 * unit)
            << QPointF(x + 3.4 * unit, counter.top() - 5 * unit)
            << QPointF(x + 2.8 * unit, counter.top()) << QPointF(x + 0.6 * unit, counter.top());
        painter.drawPolygon(cup);
    }

    if (m_price > 0) {
        // The price on a little board leaning on the stand.
        const QRectF board(counter.right() + 2 * unit, counter.top() + 6 * unit, 17 * unit,
                           11 * unit);
        painter.setPen(QPen(wood.darker(140), unit * 0.8));
        painter.drawLine(QPointF(board.center().x(), board.bottom()),
                         QPointF(board.center().x(), counter.bottom()));
        painter.setBrush(QColor(0x26, 0x32, 0x38));
        painter.setPen(QPen(wood, unit * 0.8));
        painter.drawRect(board);
        font.setPixelSize(qMax(7, int(6 * unit)));
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(board, Qt::AlignCenter, QStringLiteral("%1¢").arg(m_price));
    }
}

void LemonStand::paintCustomer(QPainter &painter, QPointF feet, double unit, int which, bool cup,
                               bool happy) const
{
    static const QColor Shirts[] = {QColor(0xE5, 0x39, 0x35), QColor(0x1E, 0x88, 0xE5),
                                    QColor(0x43, 0xA0, 0x47), QColor(0x8E, 0x24, 0xAA),
                                    QColor(0xFB, 0x8C, 0x00), QColor(0x00, 0xAC, 0xC1)};
    static const QColor Skins[] = {QColor(0xFF, 0xCC, 0x99), QColor(0xC6, 0x8E, 0x5B),
                                   QColor(0x8D, 0x55, 0x24), QColor(0xF1, 0xC2, 0x7D)};
    const double h = (which % 3 == 0 ? 14 : 17) * unit;
    painter.setPen(QPen(QColor(0x37, 0x47, 0x4F), unit * 1.2, Qt::SolidLine, Qt::RoundCap));
    // Legs swing a little as they walk.
    const double swing = ((int(feet.x() / (2 * unit)) % 2) ? 1.5 : -1.5) * unit;
    painter.drawLine(feet + QPointF(swing, 0), feet + QPointF(0, -h * 0.35));
    painter.drawLine(feet + QPointF(-swing, 0), feet + QPointF(0, -h * 0.35));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shirts[which % 6]);
    painter.drawRoundedRect(
        QRectF(feet.x() - 2.6 * unit, feet.y() - h * 0.75, 5.2 * unit, h * 0.42), unit, unit);
    const QPointF head(feet.x(), feet.y() - h * 0.75 - 3 * unit);
    painter.setBrush(Skins[which % 4]);
    painter.drawEllipse(head, 3 * unit, 3 * unit);
    painter.setPen(QPen(QColor(0x3E, 0x27, 0x23), unit * 0.5));
    painter.setBrush(Qt::NoBrush);
    const QRectF mouth(head.x() - 1.4 * unit, head.y() - 0.2 * unit, 2.8 * unit, 2 * unit);
    if (happy)
        painter.drawArc(mouth, 200 * 16, 140 * 16);
    else
        painter.drawArc(mouth.translated(0, 1.2 * unit), 20 * 16, 140 * 16);
    painter.setBrush(QColor(0x3E, 0x27, 0x23));
    painter.drawEllipse(head + QPointF(-1.1 * unit, -0.8 * unit), 0.3 * unit, 0.3 * unit);
    painter.drawEllipse(head + QPointF(1.1 * unit, -0.8 * unit), 0.3 * unit, 0.3 * unit);
    if (cup) {
        painter.setPen(QPen(QColor(0x90, 0xA4, 0xAE), unit * 0.3));
        painter.setBrush(QColor(0xFF, 0xF1, 0x76));
        painter.drawRect(QRectF(feet.x() + 2.6 * unit, feet.y() - h * 0.62, 2.4 * unit, 3 * unit));
    }
}
