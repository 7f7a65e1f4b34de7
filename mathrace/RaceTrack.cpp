// SPDX-License-Identifier: GPL-3.0-or-later
#include "RaceTrack.h"

#include "shell/core/DataPath.h"
#include "shell/widgets/PictureBox.h"
#include "shell/WindowUtil.h"

#include <cmath>
#include <QPainter>
#include <QPainterPath>

namespace {
constexpr double Kerb = 0.06;     // grass above and below the lanes, as a share of height
constexpr double CarShare = 0.78; // car height as a share of its lane
constexpr double CarAspect = 2.0; // the car pictures are twice as wide as tall
constexpr double FlagRoom = 1.15; // room after the finish line, in lane heights

const QColor Asphalt(0x54, 0x5B, 0x64);
const QColor AsphaltEmpty(0x7A, 0x80, 0x87);
const QColor Grass(0x66, 0xBB, 0x6A);
const QColor GrassDark(0x43, 0xA0, 0x47);
} // namespace

FinishFlag::FinishFlag(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FinishFlag::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = width();
    const double h = height();
    const double pole = qMax(2.0, w * 0.08);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x5D, 0x40, 0x37));
    p.drawRoundedRect(QRectF(w * 0.08, h * 0.04, pole, h * 0.92), pole / 2, pole / 2);
    p.setBrush(QColor(0xFF, 0xD5, 0x4F));
    p.drawEllipse(QPointF(w * 0.08 + pole / 2, h * 0.05), pole * 0.9, pole * 0.9);

    // The cloth waves a little: each column of squares is lifted along a gentle curve.
    const QRectF cloth(w * 0.08 + pole, h * 0.08, w * 0.84 - pole, h * 0.52);
    const int columns = 5;
    const int rows = 3;
    const double cw = cloth.width() / columns;
    const double ch = cloth.height() / rows;
    for (int c = 0; c < columns; ++c) {
        const double lift = std::sin(c * 1.1) * ch * 0.25;
        for (int r = 0; r < rows; ++r) {
            p.setBrush((c + r) % 2 ? Qt::white : Qt::black);
            p.drawRect(
                QRectF(cloth.left() + c * cw, cloth.top() + r * ch + lift, cw + 0.5, ch + 0.5));
        }
    }
}

RaceTrack::RaceTrack(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (int i = 0; i < Lanes; ++i) {
        auto *car = Named(new PictureBox(this), ArrayName("picCar", i + 1));
        car->load(DataFile(QStringLiteral("car%1.svg").arg(i + 1)));
        car->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_cars[size_t(i)] = car;
        auto *flag = Named(new FinishFlag(this), ArrayName("picWin", i + 1));
        flag->hide();
        m_flags[size_t(i)] = flag;
    }
    setAccessibleName(tr("Race track"));
}

QColor RaceTrack::carColour(int car)
{
    static const QColor colours[Lanes] = {QColor(0xE5, 0x39, 0x35), QColor(0x1E, 0x88, 0xE5),
                                          QColor(0x43, 0xA0, 0x47), QColor(0xFB, 0x8C, 0x00)};
    return colours[qBound(1, car, int(Lanes)) - 1];
}

void RaceTrack::setRacers(int count, const QStringList &names)
{
    m_racers = qBound(0, count, int(Lanes));
    m_names = names;
    for (int i = 0; i < Lanes; ++i)
        m_cars[size_t(i)]->setVisible(i < m_racers);
    placeCars();
    update();
}

void RaceTrack::setPosition(int car, int steps)
{
    if (car < 1 || car > Lanes)
        return;
    m_positions[size_t(car - 1)] = qMax(0, steps);
    placeCars();
}

int RaceTrack::position(int car) const
{
    return car >= 1 && car <= Lanes ? m_positions[size_t(car - 1)] : 0;
}

void RaceTrack::setFinish(int steps)
{
    m_finish = qMax(1, steps);
    placeCars();
}

void RaceTrack::setFlagShown(int car, bool shown)
{
    if (car >= 1 && car <= Lanes)
        m_flags[size_t(car - 1)]->setVisible(shown);
}

void RaceTrack::reset()
{
    m_positions.fill(0);
    for (FinishFlag *flag : m_flags)
        flag->hide();
    placeCars();
}

QRectF RaceTrack::laneRect(int lane) const
{
    const double top = height() * Kerb;
    const double laneHeight = height() * (1 - 2 * Kerb) / Lanes;
    return {0, top + (lane - 1) * laneHeight, double(width()), laneHeight};
}

QFont RaceTrack::nameFont() const
{
    QFont f = font();
    f.setBold(true);
    f.setPixelSize(qBound(12, int(laneRect(1).height() * 0.26), 30));
    return f;
}

double RaceTrack::nameWidth() const
{
    const QFontMetricsF fm(nameFont());
    double widest = fm.horizontalAdvance(QStringLiteral("Player 4"));
    for (int i = 0; i < m_racers && i < m_names.size(); ++i)
        widest = qMax(widest, fm.horizontalAdvance(m_names[i]));
    // Long names are cut short rather than squeezing the track away.
    return qMin(widest + laneRect(1).height() * 0.9 + 16, width() * 0.28);
}

double RaceTrack::carWidth() const
{
    return laneRect(1).height() * CarShare * CarAspect;
}

double RaceTrack::squareSize() const
{
    return qMax(4.0, laneRect(1).height() / 6);
}

double RaceTrack::startX() const
{
    return nameWidth() + carWidth() + 6;
}

double RaceTrack::finishX() const
{
    return width() - laneRect(1).height() * FlagRoom - 8;
}

void RaceTrack::placeCars()
{
    const double carW = carWidth();
    const double carH = carW / CarAspect;
    const double run = qMax(0.0, finishX() - startX());
    for (int i = 0; i < Lanes; ++i) {
        const QRectF lane = laneRect(i + 1);
        const double share = qMin(1.0, double(m_positions[size_t(i)]) / m_finish);
        const double nose = startX() + run * share;
        m_cars[size_t(i)]->setGeometry(
            QRectF(nose - carW, lane.center().y() - carH / 2, carW, carH).toRect());
        const double flagH = lane.height() * 0.92;
        m_flags[size_t(i)]->setGeometry(QRectF(finishX() + 2 * squareSize() + 4,
                                               lane.top() + lane.height() * 0.04, flagH * 0.8,
                                               flagH)
                                            .toRect());
    }
}

void RaceTrack::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeCars();
}

QSize RaceTrack::sizeHint() const
{
    return {800, 360};
}

QSize RaceTrack::minimumSizeHint() const
{
    // In step with the lettering, so the track can shrink with it on a small screen.
    const int line = fontMetrics().height();
    return {line * 24, line * 10};
}

void RaceTrack::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF all = rect();

    QLinearGradient grass(all.topLeft(), all.bottomLeft());
    grass.setColorAt(0, GrassDark);
    grass.setColorAt(0.5, Grass);
    grass.setColorAt(1, GrassDark);
    p.fillRect(all, grass);

    const QRectF road(0, laneRect(1).top(), width(), laneRect(Lanes).bottom() - laneRect(1).top());
    const double laneH = laneRect(1).height();

    for (int lane = 1; lane <= Lanes; ++lane) {
        const QRectF r = laneRect(lane);
        p.fillRect(r, lane <= m_racers ? Asphalt : AsphaltEmpty);
    }

    // Red and white kerbs along both edges of the road.
    const double kerbH = qMax(3.0, laneH * 0.07);
    const double kerbW = kerbH * 3;
    for (double x = 0; x < width(); x += kerbW) {
        const bool red = int(x / kerbW) % 2 == 0;
        p.fillRect(QRectF(x, road.top() - kerbH, kerbW, kerbH),
                   red ? QColor(0xE5, 0x39, 0x35) : Qt::white);
        p.fillRect(QRectF(x, road.bottom(), kerbW, kerbH),
                   red ? Qt::white : QColor(0xE5, 0x39, 0x35));
    }

    // Dashed white lines between the lanes.
    QPen dash(QColor(255, 255, 255, 200), qMax(2.0, laneH * 0.035));
    dash.setDashPattern({4, 3});
    p.setPen(dash);
    for (int lane = 2; lane <= Lanes; ++lane) {
        const double y = laneRect(lane).top();
        p.drawLine(QPointF(startX(), y), QPointF(width(), y));
    }

    // The names' box at the left of each lane, with the lane number in the car's colour.
    const double nameW = nameWidth();
    const QFont names = nameFont();
    for (int lane = 1; lane <= Lanes; ++lane) {
        const QRectF r = laneRect(lane);
        const QRectF box(4, r.top() + r.height() * 0.12, nameW - 8, r.height() * 0.76);
        p.setPen(Qt::NoPen);
        p.setBrush(lane <= m_racers ? QColor(255, 255, 255, 235) : QColor(255, 255, 255, 90));
        p.drawRoundedRect(box, 8, 8);
        const double badge = box.height() * 0.7;
        const QRectF circle(box.left() + 6, box.center().y() - badge / 2, badge, badge);
        p.setBrush(lane <= m_racers ? carColour(lane) : QColor(0x9E, 0x9E, 0x9E));
        p.drawEllipse(circle);
        QFont number = names;
        number.setPixelSize(int(badge * 0.62));
        p.setFont(number);
        p.setPen(Qt::white);
        p.drawText(circle, Qt::AlignCenter, QString::number(lane));
        if (lane <= m_racers) {
            p.setFont(names);
            p.setPen(QColor(0x21, 0x21, 0x21));
            const QRectF text = box.adjusted(badge + 14, 0, -6, 0);
            const QString name = QFontMetricsF(names).elidedText(m_names.value(lane - 1),
                                                                 Qt::ElideRight, text.width());
            p.drawText(text, Qt::AlignVCenter | Qt::AlignLeft, name);
        }
    }

    // The start line: solid white across the road.
    const double lineW = qMax(4.0, laneH * 0.08);
    p.fillRect(QRectF(startX(), road.top(), lineW, road.height()), Qt::white);

    // The finish line: two columns of black and white squares.
    const double square = squareSize();
    const int rows = int(std::ceil(road.height() / square));
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < 2; ++c) {
            const QRectF cell(finishX() + c * square, road.top() + r * square, square,
                              qMin(square, road.bottom() - (road.top() + r * square)));
            p.fillRect(cell, (r + c) % 2 ? Qt::white : Qt::black);
        }
    }
    QFont label = names;
    label.setPixelSize(qBound(10, int(laneH * 0.2), 22));
    p.setFont(label);
    p.setPen(Qt::white);
    const QRectF above(0, 0, width(), road.top() - kerbH);
    p.drawText(QRectF(startX(), above.top(), finishX() - startX(), above.height()),
               Qt::AlignVCenter | Qt::AlignLeft, tr("START"));
    p.drawText(QRectF(finishX() - 200, above.top(), 200 + square * 2, above.height()),
               Qt::AlignVCenter | Qt::AlignRight, tr("FINISH"));
}
