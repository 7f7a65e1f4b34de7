// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Contest.h"

#include <QWidget>

// The neighbourhood from above: School Road down the middle with the school, seven streets
// branching off it lined with their houses, the houses that bought lately marked in the
// colour of the class they bought from, each street's sale days, and our teams' markers. A
// marker can be dragged from the school or a street onto another street. Everything is drawn
// to the size of the area.
class CandyMap : public QWidget {
    Q_OBJECT
public:
    explicit CandyMap(QWidget *parent = nullptr);

    // The contest to show (nullptr shows the streets alone); markers only while `planning`.
    void setContest(const Contest *contest, bool planning);

    static QColor teamColour(int team);
    static QColor sideColour(Contest::Side side);

    // Where things are drawn in the widget, for the mouse and for tests.
    QRectF streetArea(int street) const;
    QPointF markerCentre(int team) const;
    int streetAt(QPointF position) const;
    int markerAt(QPointF position) const;
    // "Maple Street: 11 small houses, 3 big houses", for the tooltip of a street.
    QString streetText(int street) const;

    QSize sizeHint() const override { return {660, 560}; }
    QSize minimumSizeHint() const override { return {300, 240}; }

signals:
    // A team marker let go over a street, or over anything else (street -1: back to school).
    void teamDropped(int team, int street);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    // The map is laid out on a board of 100 x 74 units, with a key below it when the widget is
    // tall enough, scaled to fit the widget.
    QPointF toScreen(QPointF unit) const;
    QPointF toUnits(QPointF screen) const;
    const Contest &shown() const;
    double scale() const;
    double totalHeight() const;
    static QRectF roadUnits(int street);
    static QRectF schoolUnits();
    QPointF markerUnits(int team) const;
    void drawRoads(QPainter &painter) const;
    void drawSchool(QPainter &painter) const;
    void drawHouses(QPainter &painter) const;
    void drawHouse(QPainter &painter, QRectF slot, Contest::Kind kind) const;
    void drawKey(QPainter &painter) const;
    void drawVisits(QPainter &painter) const;
    void drawMarker(QPainter &painter, QPointF centre, int team) const;

    const Contest *m_contest = nullptr;
    bool m_planning = false;
    int m_dragged = -1;
    QPointF m_dragAt;
};
