// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QJsonValue>
#include <QList>
#include <QPoint>
#include <QPointF>

// One place's shape on a map: its polygons (islands and all) in map units.
using Outline = QList<QList<QPointF>>;

// Reads an outline written as JSON, [[[x, y], ...], ...]; nothing when it is not one.
std::optional<Outline> ParseOutline(const QJsonValue &value);
std::optional<Outline> LoadOutline(const QString &path);

// Whether a point lies inside the outline (even-odd rule, so lakes cut out of a shape stay out).
bool OutlineContains(const Outline &outline, QPointF point);

// The record whose map point (points[0] is record 1) is nearest to the click: the search
// starts from a best squared distance of 1,000,000 and takes only strictly nearer records, so
// ties keep the lower record and a click farther than 1000 units from all keeps `current`.
int NearestRecord(const QList<QPoint> &points, QPoint click, int current);

// How far a point lies from the nearest edge of an outline, in map units.
double OutlineDistance(const Outline &outline, QPointF point);
// The area an outline covers (its polygons' areas added up), in square map units.
double OutlineArea(const Outline &outline);

// Finds the record under a click on a map: the first whose outline holds the point, else the
// one whose outline passes within `reach` map units (the nearest such; small islands are
// hard to hit exactly), else the nearest by map point as above. Outlines and points are both
// indexed from record 1.
class MapClick {
public:
    void setPoints(const QList<QPoint> &points) { m_points = points; }
    void setOutline(int record, const Outline &outline);
    int recordAt(QPointF click, int current, double reach = 0) const;
    // Only the outlines: 0 when the click is in none of them.
    int outlineAt(QPointF click) const;
    // The outline nearest the click within `reach`: 0 when none comes that close. On a shared
    // border the smaller place wins, since the larger one is easy to hit elsewhere.
    int outlineNear(QPointF click, double reach) const;

private:
    QList<QPoint> m_points;
    QList<Outline> m_outlines;
    QList<double> m_areas;
};
