// SPDX-License-Identifier: GPL-3.0-or-later
#include "CandyMap.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace {

constexpr double BoardWidth = 100;
constexpr double BoardHeight = 74;
constexpr double KeyHeight = 15; // the key below the streets, where there is room for it
constexpr double RoadHalf = 2.6;
constexpr double MainLeft = 47.5;
constexpr double MainRight = 52.5;
constexpr double BandGap = 0.6;   // between the road and the houses
constexpr double BandDepth = 5.6; // how deep a house's plot is
constexpr double MarkerRadius = 2.3;

// Each street's row and side: the first four branch off to the left, the rest to the right,
// where the school takes the place of a fourth.
struct Row {
    double y;
    bool left;
};
constexpr Row Rows[] = {{10, true},  {28, true},  {46, true}, {64, true},
                        {10, false}, {28, false}, {64, false}};
constexpr int RowCount = int(sizeof(Rows) / sizeof(Rows[0]));

} // namespace

CandyMap::CandyMap(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(false);
    setMinimumSize(minimumSizeHint());
}

void CandyMap::setContest(const Contest *contest, bool planning)
{
    m_contest = contest;
    m_planning = planning && contest;
    if (!m_planning)
        m_dragged = -1;
    update();
}

QColor CandyMap::teamColour(int team)
{
    static const QColor Colours[] = {QColor(0xE5, 0x39, 0x35), QColor(0x1E, 0x88, 0xE5),
                                     QColor(0xF9, 0xA8, 0x25), QColor(0x43, 0xA0, 0x47),
                                     QColor(0x8E, 0x24, 0xAA)};
    return Colours[qBound(0, team, Contest::MaxTeams - 1)];
}

QColor CandyMap::sideColour(Contest::Side side)
{
    return side == Contest::Side::Ours ? QColor(0x15, 0x65, 0xC0) : QColor(0xE6, 0x51, 0x00);
}

const Contest &CandyMap::shown() const
{
    // Before a contest the neighbourhood is shown as every contest begins.
    static const Contest Preview(1, 0);
    return m_contest ? *m_contest : Preview;
}

double CandyMap::totalHeight() const
{
    // The key is left out when the widget is too flat for it to fit without shrinking the map.
    return height() * BoardWidth >= width() * (BoardHeight + KeyHeight) ? BoardHeight + KeyHeight
                                                                        : BoardHeight;
}

double CandyMap::scale() const
{
    return qMin(width() / BoardWidth, height() / totalHeight());
}

QPointF CandyMap::toScreen(QPointF unit) const
{
    const double s = scale();
    const QPointF origin((width() - BoardWidth * s) / 2, (height() - totalHeight() * s) / 2);
    return origin + unit * s;
}

QPointF CandyMap::toUnits(QPointF screen) const
{
    const double s = scale();
    const QPointF origin((width() - BoardWidth * s) / 2, (height() - totalHeight() * s) / 2);
    return (screen - origin) / s;
}

QRectF CandyMap::roadUnits(int street)
{
    const Row row = Rows[qBound(0, street, RowCount - 1)];
    return row.left ? QRectF(QPointF(1.5, row.y - RoadHalf), QPointF(MainLeft, row.y + RoadHalf))
                    : QRectF(QPointF(MainRight, row.y - RoadHalf),
                             QPointF(BoardWidth - 1.5, row.y + RoadHalf));
}

QRectF CandyMap::schoolUnits()
{
    return QRectF(QPointF(57, 37.5), QPointF(95, 54.5));
}

QRectF CandyMap::streetArea(int street) const
{
    const QRectF road = roadUnits(street);
    const double reach = BandGap + BandDepth;
    const QRectF units = road.adjusted(0, -reach, 0, reach);
    return QRectF(toScreen(units.topLeft()), toScreen(units.bottomRight()));
}

int CandyMap::streetAt(QPointF position) const
{
    const int streets = m_contest ? int(m_contest->streets().size()) : RowCount;
    for (int s = 0; s < qMin(streets, RowCount); ++s)
        if (streetArea(s).contains(position))
            return s;
    return -1;
}

QPointF CandyMap::markerUnits(int team) const
{
    const int street = m_contest ? m_contest->assignment(team) : -1;
    if (street < 0 || street >= RowCount) {
        // Waiting in the schoolyard, in a row.
        const QRectF school = schoolUnits();
        return {school.left() + 5 + team * 7.0, school.bottom() - 3.6};
    }
    int before = 0;
    int together = 0;
    for (int t = 0; t < m_contest->teams(); ++t) {
        if (m_contest->assignment(t) != street)
            continue;
        if (t < team)
            ++before;
        ++together;
    }
    // On the half of the road nearer School Road, leaving the far half for the street's name.
    const QRectF road = roadUnits(street);
    const double span = road.width() * 0.5;
    const double step = qMin(6.0, span / (together + 1));
    const double nearEnd = Rows[street].left ? road.right() - 3 : road.left() + 3;
    const double x = Rows[street].left ? nearEnd - step * (together - 1 - before) - step * 0.5
                                       : nearEnd + step * (together - 1 - before) + step * 0.5;
    return {x, road.center().y()};
}

QPointF CandyMap::markerCentre(int team) const
{
    return toScreen(markerUnits(team));
}

int CandyMap::markerAt(QPointF position) const
{
    if (!m_planning)
        return -1;
    const double reach = MarkerRadius * scale() * 1.2;
    for (int t = m_contest->teams() - 1; t >= 0; --t)
        if (QLineF(markerCentre(t), position).length() <= reach)
            return t;
    return -1;
}

void CandyMap::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor(0xDC, 0xED, 0xC8));
    const QRectF board(toScreen({0, 0}), toScreen({BoardWidth, BoardHeight}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xC5, 0xE1, 0xA5));
    painter.drawRoundedRect(board, 8, 8);

    drawRoads(painter);
    drawSchool(painter);
    drawHouses(painter);
    drawVisits(painter);
    if (totalHeight() > BoardHeight)
        drawKey(painter);
    if (m_planning) {
        for (int t = 0; t < m_contest->teams(); ++t)
            if (t != m_dragged)
                drawMarker(painter, markerCentre(t), t);
        if (m_dragged >= 0)
            drawMarker(painter, m_dragAt, m_dragged);
    }
}

void CandyMap::drawRoads(QPainter &painter) const
{
    const double s = scale();
    const QColor asphalt(0x78, 0x90, 0x9C);
    painter.setPen(Qt::NoPen);
    painter.setBrush(asphalt);
    painter.drawRect(QRectF(toScreen({MainLeft, 0}), toScreen({MainRight, BoardHeight})));
    painter.setPen(QPen(QColor(0xFF, 0xEE, 0x58), qMax(1.0, 0.35 * s), Qt::DashLine));
    painter.drawLine(toScreen({50, 0}), toScreen({50, BoardHeight}));

    QFont name = font();
    name.setBold(true);
    name.setPixelSize(qMax(9, int(2.9 * s)));
    for (int street = 0; street < RowCount; ++street) {
        const QRectF road(toScreen(roadUnits(street).topLeft()),
                          toScreen(roadUnits(street).bottomRight()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(asphalt);
        painter.drawRect(road);
        if (street >= shown().streets().size())
            continue;
        painter.setFont(name);
        painter.setPen(Qt::white);
        const QRectF label = road.adjusted(1.2 * s, 0, -1.2 * s, 0);
        painter.drawText(label,
                         Qt::AlignVCenter | (Rows[street].left ? Qt::AlignLeft : Qt::AlignRight),
                         shown().streets()[street].name);
    }
    // The name of the road the school stands on, written down its length.
    painter.save();
    painter.translate(toScreen({50, 36}));
    painter.rotate(-90);
    painter.setFont(name);
    painter.setPen(Qt::white);
    const double w = 30 * s;
    painter.drawText(QRectF(-w / 2, -2.5 * s, w, 5 * s), Qt::AlignCenter, tr("School Road"));
    painter.restore();
}

void CandyMap::drawSchool(QPainter &painter) const
{
    const double s = scale();
    const QRectF school(toScreen(schoolUnits().topLeft()), toScreen(schoolUnits().bottomRight()));
    painter.setPen(QPen(QColor(0x5D, 0x40, 0x37), qMax(1.0, 0.3 * s)));
    painter.setBrush(QColor(0xEF, 0x9A, 0x9A));
    const QRectF building = school.adjusted(0, 0, 0, -8.5 * s);
    painter.drawRect(building);
    painter.setBrush(QColor(0xFF, 0xF8, 0xE1));
    // The playground where teams wait for their streets.
    painter.drawRoundedRect(QRectF(building.bottomLeft(), school.bottomRight()), 0.8 * s, 0.8 * s);
    QFont label = font();
    label.setBold(true);
    label.setPixelSize(qMax(9, int(3.0 * s)));
    painter.setFont(label);
    painter.setPen(QColor(0x3E, 0x27, 0x23));
    painter.drawText(building, Qt::AlignCenter, tr("School"));
}

void CandyMap::drawHouse(QPainter &painter, QRectF slot, Contest::Kind kind) const
{
    const double s = scale();
    painter.setPen(QPen(QColor(0x4E, 0x34, 0x2E), qMax(0.8, 0.18 * s)));
    switch (kind) {
    case Contest::Kind::Apartment: {
        const QRectF block = slot.adjusted(slot.width() * 0.12, 0, -slot.width() * 0.12, 0);
        painter.setBrush(QColor(0xB3, 0x9D, 0xDB));
        painter.drawRect(block);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xFF, 0xF5, 0x9D));
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 2; ++c)
                painter.drawRect(QRectF(block.left() + block.width() * (0.18 + 0.42 * c),
                                        block.top() + block.height() * (0.12 + 0.28 * r),
                                        block.width() * 0.22, block.height() * 0.16));
        break;
    }
    case Contest::Kind::SmallHouse:
    case Contest::Kind::BigHouse: {
        const bool big = kind == Contest::Kind::BigHouse;
        const double inset = big ? 0.04 : 0.2;
        const QRectF plot = slot.adjusted(slot.width() * inset, slot.height() * (big ? 0 : 0.15),
                                          -slot.width() * inset, 0);
        const double roofDepth = plot.height() * 0.42;
        const QRectF walls = plot.adjusted(0, roofDepth, 0, 0);
        painter.setBrush(big ? QColor(0xFF, 0xAB, 0x91) : QColor(0xFF, 0xE0, 0x82));
        painter.drawRect(walls);
        QPainterPath roof;
        roof.moveTo(walls.topLeft());
        roof.lineTo(walls.center().x(), plot.top());
        roof.lineTo(walls.topRight());
        roof.closeSubpath();
        painter.setBrush(big ? QColor(0x6D, 0x4C, 0x41) : QColor(0xD8, 0x43, 0x15));
        painter.drawPath(roof);
        break;
    }
    }
}

void CandyMap::drawHouses(QPainter &painter) const
{
    const Contest &contest = shown();
    const double s = scale();
    for (int street = 0; street < qMin(RowCount, int(contest.streets().size())); ++street) {
        const QList<int> &homes = contest.streets()[street].houses;
        const QRectF road = roadUnits(street);
        const int aboveCount = int((homes.size() + 1) / 2);
        for (int i = 0; i < homes.size(); ++i) {
            const bool above = i < aboveCount;
            const int place = above ? i : i - aboveCount;
            const int count = above ? aboveCount : int(homes.size()) - aboveCount;
            const double slotWidth = (road.width() - 2) / qMax(count, 9);
            // Homes sit at the street's far end first, so the near end has room for markers.
            const double x = Rows[street].left ? road.left() + 1 + place * slotWidth
                                               : road.right() - 1 - (place + 1) * slotWidth;
            const double y = above ? road.top() - BandGap - BandDepth : road.bottom() + BandGap;
            const QRectF units(x + 0.3, y, slotWidth - 0.6, BandDepth);
            const QRectF slot(toScreen(units.topLeft()), toScreen(units.bottomRight()));
            const Contest::House &house = contest.houses()[homes[i]];
            drawHouse(painter, slot, house.kind);
            // A candy dot for a house that bought lately, fading as it gets hungry again.
            if (m_contest && house.lastBought > 0) {
                const double tired = 1.0 - m_contest->houseRecovery(homes[i]);
                if (tired > 0) {
                    QColor dot = sideColour(house.lastBuyer);
                    dot.setAlphaF(0.35 + 0.65 * tired);
                    painter.setPen(QPen(Qt::white, qMax(0.8, 0.2 * s)));
                    painter.setBrush(dot);
                    const QPointF at(slot.center().x(), slot.bottom() - 1.3 * s);
                    painter.drawEllipse(at, 1.1 * s, 1.1 * s);
                }
            }
        }
    }
}

void CandyMap::drawVisits(QPainter &painter) const
{
    if (!m_contest)
        return;
    const double s = scale();
    QFont small = font();
    small.setBold(true);
    small.setPixelSize(qMax(8, int(2.2 * s)));
    painter.setFont(small);
    // The latest sale days of each street, as chips in the class's colour beside its name.
    for (int street = 0; street < qMin(RowCount, int(m_contest->streets().size())); ++street) {
        const QList<Contest::Visit> &visits = m_contest->streets()[street].visits;
        const QRectF road = roadUnits(street);
        const int shown = qMin(4, int(visits.size()));
        for (int i = 0; i < shown; ++i) {
            const Contest::Visit &visit = visits[visits.size() - shown + i];
            const double chip = 3.4;
            const double x = Rows[street].left ? road.left() + 19 + i * (chip + 0.5)
                                               : road.right() - 19 - (shown - i) * (chip + 0.5);
            const QRectF units(x, road.center().y() - 1.5, chip, 3.0);
            const QRectF area(toScreen(units.topLeft()), toScreen(units.bottomRight()));
            painter.setPen(QPen(Qt::white, qMax(0.8, 0.2 * s)));
            painter.setBrush(sideColour(visit.side));
            painter.drawRoundedRect(area, 0.6 * s, 0.6 * s);
            painter.setPen(Qt::white);
            painter.drawText(area, Qt::AlignCenter, QString::number(visit.day));
        }
    }
}

void CandyMap::drawKey(QPainter &painter) const
{
    const double s = scale();
    QFont text = font();
    text.setPixelSize(qMax(9, int(2.6 * s)));
    painter.setFont(text);
    const QFontMetricsF metrics(text);
    const double rowHeight = 4.2;
    double x = 2;
    double y = BoardHeight + 1;
    auto caption = [&](const QString &words) {
        painter.setPen(QColor(0x26, 0x32, 0x38));
        const QPointF at = toScreen({x, y});
        painter.drawText(QRectF(at, QSizeF(60 * s, rowHeight * s)), Qt::AlignVCenter, words);
        x += metrics.horizontalAdvance(words) / s + 3;
    };
    for (const Contest::Kind kind :
         {Contest::Kind::Apartment, Contest::Kind::SmallHouse, Contest::Kind::BigHouse}) {
        drawHouse(painter, QRectF(toScreen({x, y}), toScreen({x + 4, y + rowHeight})), kind);
        x += 5;
        caption(Contest::kindName(kind));
    }
    for (const bool chips : {false, true}) {
        x = 2;
        y += rowHeight + 0.4;
        for (const Contest::Side side : {Contest::Side::Ours, Contest::Side::Theirs}) {
            painter.setPen(QPen(Qt::white, qMax(0.8, 0.2 * s)));
            painter.setBrush(sideColour(side));
            if (chips) {
                const QRectF chip(toScreen({x, y + 0.6}), toScreen({x + 3.4, y + rowHeight - 0.6}));
                painter.drawRoundedRect(chip, 0.6 * s, 0.6 * s);
                painter.setPen(Qt::white);
                painter.drawText(chip, Qt::AlignCenter, QStringLiteral("3"));
            } else {
                painter.drawEllipse(toScreen({x + 1.7, y + rowHeight / 2}), 1.1 * s, 1.1 * s);
            }
            x += 4.5;
            const bool ours = side == Contest::Side::Ours;
            caption(chips ? (ours ? tr("our class sold on this street on day 3")
                                  : tr("the other class did"))
                          : (ours ? tr("bought from our class lately")
                                  : tr("bought from the other class")));
        }
    }
}

void CandyMap::drawMarker(QPainter &painter, QPointF centre, int team) const
{
    const double r = MarkerRadius * scale();
    painter.setPen(QPen(Qt::white, qMax(1.5, r * 0.18)));
    painter.setBrush(teamColour(team));
    painter.drawEllipse(centre, r, r);
    QFont number = font();
    number.setBold(true);
    number.setPixelSize(qMax(9, int(r * 1.3)));
    painter.setFont(number);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(centre.x() - r, centre.y() - r, 2 * r, 2 * r), Qt::AlignCenter,
                     QString::number(team + 1));
}

QString CandyMap::streetText(int street) const
{
    const Contest &contest = shown();
    if (street < 0 || street >= contest.streets().size())
        return {};
    int kinds[3] = {};
    for (int index : contest.streets()[street].houses)
        ++kinds[int(contest.houses()[index].kind)];
    QStringList parts;
    const QString one[] = {tr("1 apartment"), tr("1 small house"), tr("1 big house")};
    const QString many[] = {tr("%1 apartments"), tr("%1 small houses"), tr("%1 big houses")};
    for (int k = 0; k < 3; ++k)
        if (kinds[k] > 0)
            parts.append(kinds[k] == 1 ? one[k] : many[k].arg(kinds[k]));
    return contest.streets()[street].name + QStringLiteral(": ") + parts.join(QStringLiteral(", "));
}

bool CandyMap::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        const int team = markerAt(help->pos());
        const QString text = team >= 0 ? Contest::teamName(Contest::Side::Ours, team)
                                       : streetText(streetAt(help->pos()));
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, this);
        return true;
    }
    return QWidget::event(event);
}

void CandyMap::mousePressEvent(QMouseEvent *event)
{
    const int team = event->button() == Qt::LeftButton ? markerAt(event->position()) : -1;
    if (team < 0) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_dragged = team;
    m_dragAt = event->position();
    setCursor(Qt::ClosedHandCursor);
    update();
}

void CandyMap::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragged < 0)
        return;
    m_dragAt = event->position();
    update();
}

void CandyMap::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_dragged < 0 || event->button() != Qt::LeftButton)
        return;
    const int team = m_dragged;
    m_dragged = -1;
    unsetCursor();
    update();
    if (m_planning)
        emit teamDropped(team, streetAt(event->position()));
}
