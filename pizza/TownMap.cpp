// SPDX-License-Identifier: GPL-3.0-or-later
#include "TownMap.h"

#include <cmath>
#include <numbers>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

const QColor Grass(0xAE, 0xD5, 0x81);
const QColor Lawn(0xC5, 0xE1, 0xA5);
const QColor Road(0x78, 0x90, 0x9C);
const QColor Line(0xFF, 0xF5, 0x9D);

// A red desk telephone with its handset on top, on a transparent square.
QImage DrawPhone()
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(0x7F, 0x00, 0x00), 3));
    p.setBrush(QColor(0xE5, 0x39, 0x35));
    QPainterPath body;
    body.moveTo(14, 30);
    body.lineTo(50, 30);
    body.lineTo(58, 58);
    body.lineTo(6, 58);
    body.closeSubpath();
    p.drawPath(body);
    p.drawRoundedRect(QRectF(4, 10, 56, 14), 7, 7);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(32, 44), 9, 9);
    p.setBrush(QColor(0x7F, 0x00, 0x00));
    p.drawEllipse(QPointF(32, 44), 3, 3);
    return image;
}

// The delivery car seen from above, driving to the right, with a pizza box on its roof.
QImage DrawCar()
{
    QImage image(80, 48, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x21, 0x21, 0x21));
    for (const QRectF &wheel :
         {QRectF(12, 2, 16, 8), QRectF(52, 2, 16, 8), QRectF(12, 38, 16, 8), QRectF(52, 38, 16, 8)})
        p.drawRoundedRect(wheel, 3, 3);
    p.setPen(QPen(QColor(0x0D, 0x47, 0xA1), 3));
    p.setBrush(QColor(0x1E, 0x88, 0xE5));
    p.drawRoundedRect(QRectF(3, 7, 74, 34), 12, 12);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xB3, 0xE5, 0xFC));
    p.drawRoundedRect(QRectF(52, 11, 12, 26), 4, 4);
    p.setBrush(QColor(0xFF, 0xF1, 0x76));
    p.drawEllipse(QRectF(70, 10, 6, 6));
    p.drawEllipse(QRectF(70, 32, 6, 6));
    p.setPen(QPen(QColor(0x8D, 0x6E, 0x63), 2));
    p.setBrush(QColor(0xFF, 0xE0, 0xB2));
    p.drawRect(QRectF(18, 12, 28, 24));
    p.setPen(QPen(QColor(0xD8, 0x43, 0x15), 3));
    p.drawEllipse(QRectF(24, 16, 16, 16));
    return image;
}

QColor HouseColour(int x, int y)
{
    static const QColor colours[] = {QColor(0xEF, 0x9A, 0x9A), QColor(0x90, 0xCA, 0xF9),
                                     QColor(0xFF, 0xE0, 0x82), QColor(0xCE, 0x93, 0xD8),
                                     QColor(0xFF, 0xCC, 0x80), QColor(0x80, 0xDE, 0xEA)};
    return colours[(x * 7 + y * 13) % 6];
}

} // namespace

TownMap::TownMap(const Evening &evening, QWidget *parent) : QWidget(parent), m_evening(evening)
{
    setAccessibleName(tr("Town map"));
    setAccessibleDescription(tr("Click a house to send the car there."));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCursor(Qt::PointingHandCursor);
    imgPhone = DrawPhone();
    imgHoriz = DrawCar();
    imgVert = imgHoriz.transformed(QTransform().rotate(-90));
    imgCarLocation = new QLabel(this);
    imgCarLocation->setObjectName(QStringLiteral("imgCarLocation"));
    imgCarLocation->setAccessibleName(tr("Car"));
    imgCarLocation->setTextFormat(Qt::PlainText);
    imgCarLocation->setScaledContents(true);
    imgCarLocation->setAttribute(Qt::WA_TransparentForMouseEvents);
    layOut();
}

void TownMap::refresh()
{
    placeCar();
    update();
}

void TownMap::setDestination(QPoint destination)
{
    m_destination = destination;
    update();
}

QPointF TownMap::toScreen(QPointF grid) const
{
    return {m_origin.x() + grid.x() * m_block, m_origin.y() - grid.y() * m_block};
}

std::optional<QPoint> TownMap::houseAt(QPointF position) const
{
    const double gx = (position.x() - m_origin.x()) / m_block;
    const double gy = (m_origin.y() - position.y()) / m_block;
    if (gx < -1 || gy < -1 || gx > Evening::GridMax + 0.5 || gy > Evening::GridMax + 0.5)
        return std::nullopt;
    // The shop covers the corner round (0, 0).
    if (gx < 0.6 && gy < 0.6)
        return Evening::pizzaPlace();
    // The house at (x, y) stands in the block whose top right corner is (x, y).
    const int x = qBound(1, int(std::floor(gx)) + 1, Evening::GridMax);
    const int y = qBound(1, int(std::floor(gy)) + 1, Evening::GridMax);
    return QPoint(x, y);
}

void TownMap::layOut()
{
    // Room for the street numbers on the left and below, and for half a badge above.
    const double margin = qMax(18.0, qMin(width(), height()) * 0.06);
    const double side = qMax(40.0, qMin(width() - margin * 1.6, height() - margin * 1.6));
    m_block = side / Evening::GridMax;
    const double left = (width() - side - margin * 0.6) / 2 + margin;
    const double top = (height() - side - margin * 0.6) / 2 + margin * 0.6;
    m_origin = QPointF(left, top + side);
    placeCar();
}

void TownMap::placeCar()
{
    const bool across = m_evening.heading() == Evening::Heading::East ||
                        m_evening.heading() == Evening::Heading::West;
    QImage picture = across ? imgHoriz : imgVert;
    if (m_evening.heading() == Evening::Heading::West)
        picture = picture.mirrored(true, false);
    else if (m_evening.heading() == Evening::Heading::South)
        picture = picture.mirrored(false, true);
    imgCarLocation->setPixmap(QPixmap::fromImage(picture));
    const double length = m_block * 1.1;
    const double breadth = length * 48 / 80;
    const QSizeF size = across ? QSizeF(length, breadth) : QSizeF(breadth, length);
    const QPointF centre = toScreen(m_evening.carPosition());
    imgCarLocation->setGeometry(
        QRectF(centre - QPointF(size.width() / 2, size.height() / 2), size).toRect());
    imgCarLocation->raise();
}

void TownMap::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void TownMap::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !isEnabled())
        return;
    if (const auto house = houseAt(event->position()))
        emit housePicked(*house);
}

void TownMap::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Grass);
    drawStreets(painter);
    drawHouses(painter);
    drawDestination(painter);
    drawShop(painter);
    drawOrders(painter);
    drawAxes(painter);
}

void TownMap::drawStreets(QPainter &painter) const
{
    const QRectF town(toScreen(QPointF(0, Evening::GridMax)),
                      toScreen(QPointF(Evening::GridMax, 0)));
    painter.fillRect(town, Lawn);
    QPen road(Road, qMax(2.0, m_block * 0.28), Qt::SolidLine, Qt::SquareCap);
    painter.setPen(road);
    for (int i = 0; i <= Evening::GridMax; ++i) {
        painter.drawLine(toScreen(QPointF(i, 0)), toScreen(QPointF(i, Evening::GridMax)));
        painter.drawLine(toScreen(QPointF(0, i)), toScreen(QPointF(Evening::GridMax, i)));
    }
    // The middle line only where it can be seen.
    if (m_block >= 24) {
        painter.setPen(QPen(Line, 1, Qt::DashLine));
        for (int i = 0; i <= Evening::GridMax; ++i) {
            painter.drawLine(toScreen(QPointF(i, 0)), toScreen(QPointF(i, Evening::GridMax)));
            painter.drawLine(toScreen(QPointF(0, i)), toScreen(QPointF(Evening::GridMax, i)));
        }
    }
}

void TownMap::drawHouses(QPainter &painter) const
{
    const double size = m_block * 0.42;
    painter.setPen(QPen(QColor(0x5D, 0x40, 0x37), qMax(1.0, m_block * 0.04)));
    for (int x = 1; x <= Evening::GridMax; ++x) {
        for (int y = 1; y <= Evening::GridMax; ++y) {
            // Each house sits in the corner of its block next to its own address.
            const QPointF centre = toScreen(QPointF(x - 0.36, y - 0.36));
            const QRectF wall(centre.x() - size / 2, centre.y() - size * 0.2, size, size * 0.62);
            painter.setBrush(HouseColour(x, y));
            painter.drawRect(wall);
            QPolygonF roof;
            roof << QPointF(wall.left() - size * 0.12, wall.top())
                 << QPointF(centre.x(), wall.top() - size * 0.45)
                 << QPointF(wall.right() + size * 0.12, wall.top());
            painter.setBrush(QColor(0xA1, 0x4A, 0x2F));
            painter.drawPolygon(roof);
        }
    }
}

void TownMap::drawShop(QPainter &painter) const
{
    const QPointF corner = toScreen(QPointF(0, 0));
    const double size = m_block * 1.5;
    const QRectF shop(corner.x() - size * 0.5, corner.y() - size * 0.5, size, size);
    painter.setPen(QPen(QColor(0x7F, 0x00, 0x00), qMax(1.5, m_block * 0.07)));
    painter.setBrush(QColor(0xFF, 0xF8, 0xE1));
    painter.drawRoundedRect(shop, size * 0.12, size * 0.12);
    // A pizza with its slices, the sign every pupil knows.
    const QPointF middle = shop.center();
    painter.setBrush(QColor(0xFF, 0xB3, 0x00));
    painter.drawEllipse(middle, size * 0.36, size * 0.36);
    painter.setBrush(QColor(0xFF, 0xE0, 0x82));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(middle, size * 0.29, size * 0.29);
    painter.setBrush(QColor(0xD3, 0x2F, 0x2F));
    for (int i = 0; i < 5; ++i) {
        const double angle = i * 2 * std::numbers::pi / 5 + 0.4;
        painter.drawEllipse(middle + QPointF(std::cos(angle), std::sin(angle)) * size * 0.17,
                            size * 0.06, size * 0.06);
    }
    painter.setPen(QPen(QColor(0xBF, 0x36, 0x0C), qMax(1.0, m_block * 0.04)));
    for (int i = 0; i < 3; ++i) {
        const double angle = i * std::numbers::pi / 3;
        const QPointF along = QPointF(std::cos(angle), std::sin(angle)) * size * 0.29;
        painter.drawLine(middle - along, middle + along);
    }
}

void TownMap::drawOrders(QPainter &painter) const
{
    QFont number = font();
    number.setBold(true);
    number.setPixelSize(qMax(8, int(m_block * 0.5)));
    painter.setFont(number);
    for (const Evening::Order &order : m_evening.orders()) {
        const QPointF centre = toScreen(QPointF(order.house) - QPointF(0.5, 0.5));
        const QRectF badge(centre.x() - m_block * 0.58, centre.y() - m_block * 0.38, m_block * 1.16,
                           m_block * 0.76);
        // The ring turns orange once the order can no longer be on time.
        const bool late = m_evening.now() - order.time > Evening::OnTimeMinutes;
        painter.setPen(QPen(late ? QColor(0xE6, 0x51, 0x00) : QColor(0x2E, 0x7D, 0x32),
                            qMax(1.5, m_block * 0.08)));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(badge, m_block * 0.2, m_block * 0.2);
        const double icon = badge.height() * 0.8;
        painter.drawImage(
            QRectF(badge.left() + m_block * 0.06, badge.center().y() - icon / 2, icon, icon),
            imgPhone);
        painter.setPen(QColor(0x1A, 0x23, 0x7E));
        painter.drawText(
            QRectF(badge.left() + icon, badge.top(), badge.width() - icon, badge.height()),
            Qt::AlignCenter, QString::number(order.pizzas));
    }
}

void TownMap::drawDestination(QPainter &painter) const
{
    const QPointF at = toScreen(m_destination);
    painter.setPen(QPen(QColor(0x6A, 0x1B, 0x9A), qMax(2.0, m_block * 0.1), Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(at, m_block * 0.45, m_block * 0.45);
}

void TownMap::drawAxes(QPainter &painter) const
{
    QFont label = font();
    label.setBold(true);
    label.setPixelSize(qBound(7, int(m_block * 0.42), 20));
    painter.setFont(label);
    painter.setPen(QColor(0x1B, 0x5E, 0x20));
    // Every street is numbered when there is room, otherwise every other one.
    const int step = m_block >= 18 ? 1 : 2;
    for (int i = step; i <= Evening::GridMax; i += step) {
        const QPointF below = toScreen(QPointF(i, 0));
        painter.drawText(
            QRectF(below.x() - m_block, below.y() + m_block * 0.2, m_block * 2, m_block * 0.7),
            Qt::AlignHCenter | Qt::AlignTop, QString::number(i));
        const QPointF left = toScreen(QPointF(0, i));
        painter.drawText(
            QRectF(left.x() - m_block * 1.35, left.y() - m_block * 0.5, m_block * 1.1, m_block),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(i));
    }
}
