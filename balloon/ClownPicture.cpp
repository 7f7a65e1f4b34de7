// SPDX-License-Identifier: GPL-3.0-or-later
#include "ClownPicture.h"

#include <cmath>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

namespace {

// The picture is drawn on a 400 x 300 canvas and scaled to fit the widget.
constexpr double CanvasWidth = 400;
constexpr double CanvasHeight = 300;
constexpr double Ground = 262;
constexpr int FrameMs = 40;
constexpr int FloatFrames = 30;
// He juggles for about six seconds and lands on his feet; a still picture spares the laptop.
constexpr int JuggleFrames = 143;

// Where each of the six balloons floats while the clown holds it.
const QPointF Slots[ClownPicture::MaxBalloons] = {{112, 80}, {152, 46}, {198, 34},
                                                  {240, 62}, {162, 98}, {70, 58}};

const QColor Ink(0x37, 0x2B, 0x2B);

void Limb(QPainter &painter, const QList<QPointF> &points, const QColor &sleeve)
{
    QPainterPath path(points.first());
    for (qsizetype i = 1; i < points.size(); ++i)
        path.lineTo(points[i]);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Ink, 13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.setPen(QPen(sleeve, 10, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    // A white glove at the end.
    painter.setPen(QPen(Ink, 1.5));
    painter.setBrush(Qt::white);
    painter.drawEllipse(points.last(), 7, 7);
}

void Disc(QPainter &painter, QPointF centre, double radius, const QColor &fill)
{
    painter.setPen(QPen(Ink, 1.5));
    painter.setBrush(fill);
    painter.drawEllipse(centre, radius, radius);
}

} // namespace

ClownPicture::ClownPicture(QWidget *parent) : QWidget(parent), m_timer(new QTimer(this))
{
    m_timer->setObjectName(QStringLiteral("timClown"));
    m_timer->setInterval(FrameMs);
    connect(m_timer, &QTimer::timeout, this, &ClownPicture::tick);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Clown with balloons"));
    setBalloons(MaxBalloons);
}

QColor ClownPicture::balloonColour(int index)
{
    static const QColor colours[MaxBalloons] = {QColor(0xE5, 0x39, 0x35), QColor(0xFB, 0x8C, 0x00),
                                                QColor(0xFD, 0xD8, 0x35), QColor(0x43, 0xA0, 0x47),
                                                QColor(0x1E, 0x88, 0xE5), QColor(0x8E, 0x24, 0xAA)};
    return colours[qBound(0, index, MaxBalloons - 1)];
}

void ClownPicture::describe()
{
    setAccessibleDescription(m_balloons == 1 ? tr("The clown holds one balloon.")
                                             : tr("The clown holds %1 balloons.").arg(m_balloons));
}

void ClownPicture::setBalloons(int count)
{
    m_balloons = qBound(0, count, int(MaxBalloons));
    m_floating = -1;
    describe();
    if (m_mood != Mood::Juggling)
        m_timer->stop();
    update();
}

void ClownPicture::releaseBalloon()
{
    if (m_balloons == 0)
        return;
    --m_balloons;
    m_floating = m_balloons;
    m_floatFrame = 0;
    describe();
    m_timer->start();
    update();
}

void ClownPicture::setMood(Mood mood)
{
    m_mood = mood;
    m_frame = 0;
    if (mood == Mood::Juggling)
        m_timer->start();
    update();
}

void ClownPicture::setFrame(int frame)
{
    m_frame = frame;
    if (m_floating >= 0)
        m_floatFrame = qMin(frame, FloatFrames);
    update();
}

bool ClownPicture::isAnimating() const
{
    return m_timer->isActive();
}

void ClownPicture::tick()
{
    ++m_frame;
    if (m_floating >= 0 && ++m_floatFrame > FloatFrames)
        m_floating = -1;
    const bool juggling = m_mood == Mood::Juggling && m_frame < JuggleFrames;
    if (m_floating < 0 && !juggling)
        m_timer->stop();
    update();
}

void ClownPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = qMin(width() / CanvasWidth, height() / CanvasHeight);
    const QPointF origin((width() - CanvasWidth * scale) / 2,
                         (height() - CanvasHeight * scale) / 2);

    // Sky and grass fill the whole widget, whatever its shape.
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, QColor(0x81, 0xD4, 0xFA));
    sky.setColorAt(1, QColor(0xE1, 0xF5, 0xFE));
    painter.fillRect(rect(), sky);
    const double groundY = origin.y() + Ground * scale;
    painter.fillRect(QRectF(0, groundY, width(), height() - groundY), QColor(0x7C, 0xC5, 0x76));
    painter.fillRect(QRectF(0, groundY, width(), 3 * scale), QColor(0x55, 0x8B, 0x2F));

    painter.translate(origin);
    painter.scale(scale, scale);
    drawScene(painter);
}

void ClownPicture::drawScene(QPainter &painter) const
{
    // A smiling sun and two soft clouds.
    painter.setPen(QPen(QColor(0xFF, 0xB3, 0x00), 3, Qt::SolidLine, Qt::RoundCap));
    const QPointF sun(360, 42);
    for (int i = 0; i < 12; ++i) {
        const double a = i * M_PI / 6;
        painter.drawLine(sun + QPointF(std::cos(a), std::sin(a)) * 28,
                         sun + QPointF(std::cos(a), std::sin(a)) * 36);
    }
    painter.setBrush(QColor(0xFF, 0xEB, 0x3B));
    painter.drawEllipse(sun, 22, 22);
    painter.setPen(QPen(QColor(0xE6, 0x51, 0x00), 2, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(sun.x() - 11, sun.y() - 8, 22, 20), 200 * 16, 140 * 16);
    painter.drawPoint(sun + QPointF(-7, -6));
    painter.drawPoint(sun + QPointF(7, -6));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 230));
    for (const QPointF c : {QPointF(318, 112), QPointF(38, 170)}) {
        painter.drawEllipse(c, 26, 12);
        painter.drawEllipse(c + QPointF(-16, 4), 16, 10);
        painter.drawEllipse(c + QPointF(14, -6), 16, 12);
    }

    const bool juggling = m_mood == Mood::Juggling;
    const double hop = juggling ? -std::abs(std::sin(m_frame * 0.22)) * 12 : 0;
    painter.save();
    painter.translate(0, hop);
    drawClown(painter);
    painter.restore();

    // Balloons are tied to his raised hand, or to a peg in the grass while he juggles, out of
    // the way of the balls.
    const QPointF knot = juggling ? QPointF(128, Ground - 6) : QPointF(198, 150);
    const QPointF shift = juggling ? QPointF(-45, 0) : QPointF();
    if (juggling && m_balloons > 0) {
        painter.setPen(QPen(Ink, 1.2));
        painter.setBrush(QColor(0x8D, 0x6E, 0x63));
        painter.drawRect(QRectF(knot.x() - 3, knot.y() - 2, 6, 14));
    }
    for (int i = 0; i < m_balloons; ++i) {
        const double bob = juggling ? std::sin(m_frame * 0.22 + i) * 3 : 0;
        drawBalloon(painter, Slots[i] + shift + QPointF(0, bob), i, knot);
    }
    if (m_floating >= 0) {
        const double t = m_floatFrame;
        const QPointF drift(-2.2 * t + 6 * std::sin(t * 0.35), -7.5 * t);
        drawBalloon(painter, Slots[m_floating] + drift, m_floating, QPointF());
    }
}

void ClownPicture::drawBalloon(QPainter &painter, QPointF centre, int index, QPointF knot) const
{
    const QColor colour = balloonColour(index);
    const QPointF bottom = centre + QPointF(0, 25);
    // The string: to the knot in his hand, or hanging loose below a balloon floating away.
    QPainterPath string(bottom + QPointF(0, 4));
    if (knot.isNull()) {
        string.cubicTo(bottom + QPointF(6, 16), bottom + QPointF(-6, 30), bottom + QPointF(2, 46));
    } else {
        const QPointF middle = (bottom + knot) / 2;
        string.quadTo(middle + QPointF(6, 0), knot);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x61, 0x61, 0x61), 1.2));
    painter.drawPath(string);

    QRadialGradient shine(centre + QPointF(-7, -9), 30);
    shine.setColorAt(0, colour.lighter(150));
    shine.setColorAt(1, colour);
    painter.setPen(QPen(colour.darker(150), 1.5));
    painter.setBrush(shine);
    painter.drawEllipse(centre, 19, 24);
    QPolygonF tie;
    tie << bottom + QPointF(0, -1) << bottom + QPointF(-4, 5) << bottom + QPointF(4, 5);
    painter.drawPolygon(tie);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 150));
    painter.drawEllipse(centre + QPointF(-8, -10), 4, 7);
}

void ClownPicture::drawClown(QPainter &painter) const
{
    const bool sitting = m_mood == Mood::Shrugging;
    const bool juggling = m_mood == Mood::Juggling;
    const QColor suit(0xFD, 0xD8, 0x35);
    const QColor trousers(0x1E, 0x88, 0xE5);
    const QColor shoes(0xE5, 0x39, 0x35);
    // Sitting on the grass puts everything above the legs lower down.
    const double drop = sitting ? 24 : 0;

    // Legs and big shoes.
    painter.setPen(QPen(Ink, 1.5));
    if (sitting) {
        painter.setBrush(trousers);
        painter.drawRoundedRect(QRectF(196, 238, 44, 18), 8, 8);
        painter.drawRoundedRect(QRectF(262, 238, 44, 18), 8, 8);
        painter.setBrush(shoes);
        painter.drawEllipse(QPointF(192, 244), 9, 16);
        painter.drawEllipse(QPointF(310, 244), 9, 16);
    } else {
        QPolygonF legs;
        legs << QPointF(226, 226) << QPointF(276, 226) << QPointF(280, 258) << QPointF(222, 258);
        painter.setBrush(trousers);
        painter.drawPolygon(legs);
        painter.drawLine(QPointF(251, 236), QPointF(251, 258));
        painter.setBrush(shoes);
        painter.drawEllipse(QPointF(228, 262), 20, 8);
        painter.drawEllipse(QPointF(274, 262), 20, 8);
    }

    // Arms behind the body.
    QList<QPointF> left, right;
    if (sitting) {
        left = {{228, 196 + drop}, {204, 206 + drop}, {194, 190 + drop}};
        right = {{274, 196 + drop}, {298, 206 + drop}, {308, 190 + drop}};
    } else if (juggling) {
        const double swing = std::sin(m_frame * 0.44) * 5;
        left = {{228, 194}, {206, 178}, {212, 148 + swing}};
        right = {{274, 194}, {296, 178}, {290, 148 - swing}};
    } else {
        const double wave = std::sin(m_frame * 0.3) * 4;
        left = {{228, 194}, {206, 180}, {198, 152}};
        right = {{274, 194}, {298, 196}, {306 + wave, 172}};
    }
    Limb(painter, left, suit);
    Limb(painter, right, suit);

    // A baggy yellow suit with coloured dots and pompom buttons.
    painter.setPen(QPen(Ink, 1.5));
    painter.setBrush(suit);
    painter.drawEllipse(QPointF(251, 206 + drop), 30, 32);
    painter.setPen(Qt::NoPen);
    const QPointF dots[] = {{236, 196}, {266, 192}, {238, 222}, {264, 224}, {246, 234}, {258, 210}};
    for (int i = 0; i < 6; ++i) {
        painter.setBrush(balloonColour(i == 2 ? 5 : i).lighter(115));
        painter.drawEllipse(dots[i] + QPointF(0, drop), 3.5, 3.5);
    }
    for (int i = 0; i < 3; ++i)
        Disc(painter, QPointF(251, 192 + 14 * i + drop), 4.5,
             balloonColour(i * 2 == 2 ? 4 : i * 2));

    // A frilly white collar.
    for (int i = 0; i < 7; ++i)
        Disc(painter, QPointF(229 + i * 7.3, 179 + drop + (i % 2) * 2), 6.5,
             QColor(0xFA, 0xFA, 0xFA));

    const QPointF head(251, 153 + drop);
    // Orange curly hair on both sides.
    for (const QPointF puff : {QPointF(-23, -6), QPointF(-27, 6), QPointF(23, -6), QPointF(27, 6)})
        Disc(painter, head + puff, 10, QColor(0xFF, 0x70, 0x43));
    Disc(painter, head, 22, QColor(0xFF, 0xF3, 0xE0));

    // A pointed party hat with a pompom.
    QPolygonF hat;
    hat << head + QPointF(-16, -16) << head + QPointF(16, -16) << head + QPointF(3, -56);
    painter.setPen(QPen(Ink, 1.5));
    painter.setBrush(QColor(0x8E, 0x24, 0xAA));
    painter.drawPolygon(hat);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xEB, 0x3B));
    for (const QPointF star : {QPointF(-5, -24), QPointF(5, -33), QPointF(0, -44)})
        painter.drawEllipse(head + star, 2.5, 2.5);
    Disc(painter, head + QPointF(3, -57), 6, QColor(0xFF, 0xEB, 0x3B));

    // Face: rosy cheeks, a red nose and a big smile; eyebrows go up in a shrug.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0x80, 0xAB, 150));
    painter.drawEllipse(head + QPointF(-13, 8), 5, 4);
    painter.drawEllipse(head + QPointF(13, 8), 5, 4);
    painter.setPen(QPen(Ink, 2, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    if (juggling) {
        // Happy closed eyes.
        painter.drawArc(QRectF(head.x() - 12, head.y() - 7, 8, 7), 0, 180 * 16);
        painter.drawArc(QRectF(head.x() + 4, head.y() - 7, 8, 7), 0, 180 * 16);
    } else {
        painter.setBrush(Ink);
        painter.drawEllipse(head + QPointF(-8, -4), 2.6, 3.2);
        painter.drawEllipse(head + QPointF(8, -4), 2.6, 3.2);
        painter.setBrush(Qt::NoBrush);
        const double lift = sitting ? -5 : 0;
        painter.drawArc(QRectF(head.x() - 13, head.y() - 14 + lift, 10, 6), 20 * 16, 140 * 16);
        painter.drawArc(QRectF(head.x() + 3, head.y() - 14 + lift, 10, 6), 20 * 16, 140 * 16);
    }
    if (sitting) {
        // A small, wobbly "oh well" smile.
        QPainterPath mouth(head + QPointF(-8, 13));
        mouth.cubicTo(head + QPointF(-3, 10), head + QPointF(3, 16), head + QPointF(8, 12));
        painter.setPen(QPen(QColor(0xC6, 0x28, 0x28), 2.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(mouth);
    } else {
        QPainterPath mouth(head + QPointF(-12, 7));
        mouth.quadTo(head + QPointF(0, juggling ? 24 : 20), head + QPointF(12, 7));
        mouth.quadTo(head + QPointF(0, 12), head + QPointF(-12, 7));
        painter.setPen(QPen(Ink, 1.5));
        painter.setBrush(QColor(0xE5, 0x39, 0x35));
        painter.drawPath(mouth);
    }
    Disc(painter, head + QPointF(0, 3), 6, QColor(0xE5, 0x39, 0x35));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 170));
    painter.drawEllipse(head + QPointF(-2, 1), 2, 1.5);

    if (juggling) {
        // Three balls looping over his head.
        for (int i = 0; i < 3; ++i) {
            const double a = m_frame * 0.16 + i * 2 * M_PI / 3;
            const QPointF ball(251 + 34 * std::cos(a), 92 - 30 * std::abs(std::sin(a)));
            Disc(painter, ball, 7, balloonColour(i * 2 + 1));
        }
    }
    if (sitting) {
        // Little marks of a shrug beside his hands.
        painter.setPen(QPen(QColor(0x54, 0x6E, 0x7A), 2, Qt::SolidLine, Qt::RoundCap));
        for (const double x : {186.0, 316.0}) {
            const double side = x < 251 ? -1 : 1;
            painter.drawLine(QPointF(x, 200), QPointF(x + 6 * side, 194));
            painter.drawLine(QPointF(x + 2 * side, 208), QPointF(x + 10 * side, 206));
        }
    }
}
