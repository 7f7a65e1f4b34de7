// SPDX-License-Identifier: GPL-3.0-or-later
#include "MapClick.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtMath>

#include <cmath>
#include <limits>

std::optional<Outline> ParseOutline(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    Outline outline;
    for (const QJsonValue &ring : value.toArray()) {
        if (!ring.isArray())
            return std::nullopt;
        QList<QPointF> polygon;
        for (const QJsonValue &corner : ring.toArray()) {
            const QJsonArray pair = corner.toArray();
            if (pair.size() != 2 || !pair[0].isDouble() || !pair[1].isDouble())
                return std::nullopt;
            polygon.append(QPointF(pair[0].toDouble(), pair[1].toDouble()));
        }
        outline.append(polygon);
    }
    return outline;
}

std::optional<Outline> LoadOutline(const QString &path)
{
    QFile file(path);
    // Outlines are a few kilobytes; a far larger file is not one of ours.
    if (!file.open(QIODevice::ReadOnly) || file.size() > 4 * 1024 * 1024)
        return std::nullopt;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        return std::nullopt;
    return ParseOutline(document.isArray() ? QJsonValue(document.array()) : QJsonValue());
}

bool OutlineContains(const Outline &outline, QPointF point)
{
    bool inside = false;
    for (const QList<QPointF> &polygon : outline) {
        const qsizetype n = polygon.size();
        for (qsizetype i = 0, j = n - 1; i < n; j = i++) {
            const QPointF &a = polygon[i];
            const QPointF &b = polygon[j];
            if ((a.y() > point.y()) != (b.y() > point.y()) &&
                point.x() < (b.x() - a.x()) * (point.y() - a.y()) / (b.y() - a.y()) + a.x())
                inside = !inside;
        }
    }
    return inside;
}

int NearestRecord(const QList<QPoint> &points, QPoint click, int current)
{
    qint64 best = 1000000;
    int result = current;
    for (qsizetype i = 0; i < points.size(); ++i) {
        const qint64 dx = qint64(click.x()) - points[i].x();
        const qint64 dy = qint64(click.y()) - points[i].y();
        const qint64 d = dx * dx + dy * dy;
        if (d < best) {
            best = d;
            result = int(i + 1);
        }
    }
    return result;
}

void MapClick::setOutline(int record, const Outline &outline)
{
    if (record < 1)
        return;
    if (m_outlines.size() < record) {
        m_outlines.resize(record);
        m_areas.resize(record);
    }
    m_outlines[record - 1] = outline;
    m_areas[record - 1] = OutlineArea(outline);
}

int MapClick::outlineAt(QPointF click) const
{
    for (qsizetype i = 0; i < m_outlines.size(); ++i)
        if (OutlineContains(m_outlines[i], click))
            return int(i + 1);
    return 0;
}

double OutlineDistance(const Outline &outline, QPointF point)
{
    double best = std::numeric_limits<double>::infinity();
    for (const QList<QPointF> &polygon : outline) {
        const qsizetype n = polygon.size();
        for (qsizetype i = 0, j = n - 1; i < n; j = i++) {
            const QPointF a = polygon[j];
            const QPointF edge = polygon[i] - a;
            const double length2 = QPointF::dotProduct(edge, edge);
            const double t = length2 > 0
                                 ? qBound(0.0, QPointF::dotProduct(point - a, edge) / length2, 1.0)
                                 : 0.0;
            const QPointF gap = point - (a + t * edge);
            best = qMin(best, std::hypot(gap.x(), gap.y()));
        }
    }
    return best;
}

double OutlineArea(const Outline &outline)
{
    double area = 0;
    for (const QList<QPointF> &polygon : outline) {
        double twice = 0;
        const qsizetype n = polygon.size();
        for (qsizetype i = 0, j = n - 1; i < n; j = i++)
            twice += polygon[j].x() * polygon[i].y() - polygon[i].x() * polygon[j].y();
        area += std::abs(twice) / 2;
    }
    return area;
}

int MapClick::outlineNear(QPointF click, double reach) const
{
    int found = 0;
    double best = 0;
    for (qsizetype i = 0; i < m_outlines.size(); ++i) {
        const double d = OutlineDistance(m_outlines[i], click);
        const bool tie = found != 0 && qAbs(d - best) < 1e-9;
        if (d <= reach &&
            (found == 0 || (d < best && !tie) || (tie && m_areas[i] < m_areas[found - 1]))) {
            best = d;
            found = int(i + 1);
        }
    }
    return found;
}

int MapClick::recordAt(QPointF click, int current, double reach) const
{
    if (const int inside = outlineAt(click))
        return inside;
    if (reach > 0)
        if (const int near = outlineNear(click, reach))
            return near;
    // Clicks come in fractions of a map unit; the nearest-point rule works in whole units.
    return NearestRecord(m_points, QPoint(qRound(click.x()), qRound(click.y())), current);
}
