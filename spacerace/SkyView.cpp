// SPDX-License-Identifier: GPL-3.0-or-later
#include "SkyView.h"

#include "shell/WindowUtil.h"

#include <QPainter>
#include <QPainterPath>

namespace {
constexpr double GroundShare = 0.09; // the ground below the pads, as a share of the height
constexpr double MoonTopShare = 0.03;
constexpr double RocketAspect = 0.42; // width to height of a rocket

const QColor SkyTop(0x0B, 0x1D, 0x51);
const QColor SkyLow(0x3F, 0x51, 0xB5);
const QColor Ground(0x5D, 0x40, 0x37);
const QColor Pad(0x9E, 0x9E, 0x9E);
} // namespace

RocketPicture::RocketPicture(const QColor &colour, QWidget *parent)
    : QWidget(parent), m_colour(colour)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void RocketPicture::setFlying(bool flying)
{
    if (flying != m_flying) {
        m_flying = flying;
        update();
    }
}

void RocketPicture::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = width();
    const double h = height();
    const double body = w * 0.56;
    const double left = (w - body) / 2;
    const double flameTop = h * 0.82;

    if (m_flying) {
        QPainterPath flame;
        flame.moveTo(left + body * 0.2, flameTop);
        flame.quadTo(w / 2, h * 1.05, left + body * 0.8, flameTop);
        flame.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xFF, 0x98, 0x00));
        p.drawPath(flame);
        p.setBrush(QColor(0xFF, 0xEB, 0x3B));
        p.drawEllipse(QPointF(w / 2, flameTop + h * 0.04), body * 0.18, h * 0.05);
    }

    // Fins on both sides at the foot of the body.
    p.setPen(QPen(m_colour.darker(150), qMax(1.0, w * 0.02)));
    p.setBrush(m_colour.darker(120));
    for (const int side : {-1, 1}) {
        const double edge = side < 0 ? left : left + body;
        QPolygonF fin;
        fin << QPointF(edge, h * 0.55) << QPointF(edge + side * w * 0.2, h * 0.8)
            << QPointF(edge + side * w * 0.2, h * 0.86) << QPointF(edge, h * 0.78);
        p.drawPolygon(fin);
    }

    QPainterPath hull;
    hull.moveTo(w / 2, 0);
    hull.cubicTo(left + body * 1.05, h * 0.12, left + body, h * 0.3, left + body, h * 0.45);
    hull.lineTo(left + body, flameTop);
    hull.lineTo(left, flameTop);
    hull.lineTo(left, h * 0.45);
    hull.cubicTo(left, h * 0.3, left - body * 0.05, h * 0.12, w / 2, 0);
    p.setBrush(QColor(0xF5, 0xF5, 0xF5));
    p.setPen(QPen(QColor(0x42, 0x42, 0x42), qMax(1.0, w * 0.025)));
    p.drawPath(hull);

    // The nose in the player's colour, then a round window.
    p.save();
    p.setClipPath(hull);
    p.setPen(Qt::NoPen);
    p.setBrush(m_colour);
    p.drawRect(QRectF(0, 0, w, h * 0.2));
    p.drawRect(QRectF(0, h * 0.72, w, h * 0.1));
    p.restore();
    p.setPen(QPen(m_colour.darker(140), qMax(1.0, w * 0.04)));
    p.setBrush(QColor(0x81, 0xD4, 0xFA));
    p.drawEllipse(QPointF(w / 2, h * 0.38), body * 0.26, body * 0.26);
}

MoonPicture::MoonPicture(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void MoonPicture::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double d = qMin(width(), height()) - 2;
    const QRectF disc((width() - d) / 2, (height() - d) / 2, d, d);
    QRadialGradient light(disc.center() - QPointF(d * 0.2, d * 0.2), d * 0.7);
    light.setColorAt(0, QColor(0xFF, 0xFD, 0xE7));
    light.setColorAt(1, QColor(0xE0, 0xD8, 0xA8));
    p.setPen(Qt::NoPen);
    p.setBrush(light);
    p.drawEllipse(disc);
    // Craters at fixed places on the disc, as shares of its size.
    const struct {
        double x, y, r;
    } craters[] = {{0.3, 0.35, 0.1},
                   {0.62, 0.28, 0.07},
                   {0.55, 0.62, 0.13},
                   {0.28, 0.7, 0.06},
                   {0.75, 0.5, 0.05}};
    p.setBrush(QColor(0xC8, 0xBE, 0x8C));
    for (const auto &c : craters)
        p.drawEllipse(QPointF(disc.left() + c.x * d, disc.top() + c.y * d), c.r * d, c.r * d);
}

SkyView::SkyView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (int i = 0; i < Columns; ++i) {
        auto *moon = Named(new MoonPicture(this), ArrayName("picMoon", i + 1));
        moon->hide();
        m_moons[size_t(i)] = moon;
        auto *rocket =
            Named(new RocketPicture(rocketColour(i + 1), this), ArrayName("picRocket", i + 1));
        rocket->hide();
        m_rockets[size_t(i)] = rocket;
    }
    setAccessibleName(tr("Sky with the rockets and the moon"));
}

QColor SkyView::rocketColour(int rocket)
{
    static const QColor colours[Columns] = {QColor(0xE5, 0x39, 0x35), QColor(0x1E, 0x88, 0xE5),
                                            QColor(0x43, 0xA0, 0x47), QColor(0xFB, 0x8C, 0x00)};
    return colours[qBound(1, rocket, int(Columns)) - 1];
}

void SkyView::setPlayers(int count)
{
    m_players = qBound(0, count, int(Columns));
    m_positions.fill(0);
    for (int i = 0; i < Columns; ++i) {
        m_rockets[size_t(i)]->setVisible(i < m_players);
        m_rockets[size_t(i)]->setFlying(false);
        m_moons[size_t(i)]->setVisible(i < m_players);
    }
    place();
    update();
}

void SkyView::hideAll()
{
    setPlayers(0);
}

void SkyView::setPosition(int rocket, int steps)
{
    if (rocket < 1 || rocket > Columns)
        return;
    m_positions[size_t(rocket - 1)] = qMax(0, steps);
    m_rockets[size_t(rocket - 1)]->setFlying(steps > 0);
    place();
}

int SkyView::position(int rocket) const
{
    return rocket >= 1 && rocket <= Columns ? m_positions[size_t(rocket - 1)] : 0;
}

QRectF SkyView::column(int index) const
{
    const double w = double(width()) / qMax(1, m_players);
    return QRectF(index * w, 0, w, height());
}

double SkyView::rocketHeight() const
{
    return qMax(12.0, qMin(height() * 0.2, column(0).width() * 0.9));
}

double SkyView::padTop() const
{
    return height() * (1 - GroundShare) - rocketHeight();
}

double SkyView::moonTop() const
{
    const double d = qMin(column(0).width() * 0.5, height() * 0.16);
    return height() * MoonTopShare + d;
}

void SkyView::place()
{
    const double rh = rocketHeight();
    const double rw = rh * RocketAspect;
    const double d = moonTop() - height() * MoonTopShare;
    for (int i = 0; i < m_players; ++i) {
        const QRectF c = column(i);
        m_moons[size_t(i)]->setGeometry(
            QRectF(c.center().x() - d / 2, height() * MoonTopShare, d, d).toRect());
        // The rocket climbs in proportion to position / 75 and stops with its nose at the moon.
        const double share = qMin(1.0, double(m_positions[size_t(i)]) / qMax(1, m_moon));
        const double top = padTop() - (padTop() - moonTop()) * share;
        m_rockets[size_t(i)]->setGeometry(QRectF(c.center().x() - rw / 2, top, rw, rh).toRect());
    }
}

void SkyView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

QSize SkyView::sizeHint() const
{
    return {520, 420};
}

QSize SkyView::minimumSizeHint() const
{
    return {160, 120};
}

void SkyView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = width();
    const double h = height();
    QLinearGradient sky(0, 0, 0, h);
    sky.setColorAt(0, SkyTop);
    sky.setColorAt(1, SkyLow);
    p.fillRect(rect(), sky);

    // Stars at places that stay put from one paint to the next, spread by a simple hash.
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 90; ++i) {
        const unsigned hash = unsigned(i) * 2654435761u;
        const double x = (hash % 1000) / 1000.0 * w;
        const double y = ((hash / 1000) % 1000) / 1000.0 * h * (1 - GroundShare);
        const double r = 0.8 + (hash % 7) * 0.25 * qMax(1.0, h / 500);
        p.setBrush(QColor(255, 255, 255, 120 + int(hash % 120)));
        p.drawEllipse(QPointF(x, y), r, r);
    }

    // Each player's path to the moon, dotted, with a mark at every ten steps.
    const double rh = rocketHeight();
    for (int i = 0; i < m_players; ++i) {
        const QRectF c = column(i);
        const double x = c.center().x();
        QColor path = rocketColour(i + 1).lighter(150);
        path.setAlpha(150);
        p.setPen(QPen(path, qMax(1.5, w / 400), Qt::DotLine));
        p.drawLine(QPointF(x, moonTop()), QPointF(x, padTop() + rh));
        p.setPen(QPen(path, qMax(1.5, w / 400)));
        for (int step = 10; step < m_moon; step += 10) {
            const double y = padTop() + rh - (padTop() - moonTop()) * step / m_moon;
            p.drawLine(QPointF(x - rh * 0.12, y), QPointF(x + rh * 0.12, y));
        }
    }

    const double groundTop = h * (1 - GroundShare);
    p.setPen(Qt::NoPen);
    p.setBrush(Ground);
    p.drawRect(QRectF(0, groundTop, w, h - groundTop));
    p.setBrush(Ground.lighter(130));
    p.drawRect(QRectF(0, groundTop, w, qMax(2.0, h * 0.012)));
    for (int i = 0; i < m_players; ++i) {
        const QRectF c = column(i);
        p.setBrush(Pad);
        p.drawRoundedRect(QRectF(c.center().x() - rh * 0.35, groundTop - rh * 0.02, rh * 0.7,
                                 qMax(4.0, rh * 0.1)),
                          3, 3);
        // The player's number on the ground under the pad, in the rocket's colour.
        QFont number = font();
        number.setBold(true);
        number.setPixelSize(qMax(10, int((h - groundTop) * 0.6)));
        p.setFont(number);
        p.setPen(rocketColour(i + 1).lighter(140));
        p.drawText(QRectF(c.left(), groundTop, c.width(), h - groundTop), Qt::AlignCenter,
                   QString::number(i + 1));
        p.setPen(Qt::NoPen);
    }
}
