// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Evening.h"

#include <QImage>
#include <QWidget>

class QLabel;

// The town seen from above: the streets of the grid, a house in every block, the pizza place
// at (0, 0), the houses waiting for pizza with the phone and how many they want, the chosen
// destination and the car. Everything is drawn to the size of the area, so it scales with the
// window. A click on a house picks it as the car's destination.
class TownMap : public QWidget {
    Q_OBJECT
public:
    explicit TownMap(const Evening &evening, QWidget *parent = nullptr);

    // Redraws after the evening changed and moves the car to where it now is.
    void refresh();
    void setDestination(QPoint destination);
    QPoint destination() const { return m_destination; }

    // Where a grid point is drawn, and which house a point of the widget belongs to.
    QPointF toScreen(QPointF grid) const;
    std::optional<QPoint> houseAt(QPointF position) const;
    double blockSize() const { return m_block; }

    QSize sizeHint() const override { return {640, 640}; }
    QSize minimumSizeHint() const override { return {240, 240}; }

    // The pictures: the telephone of a waiting house and the car driving across or up.
    QImage imgPhone;
    QImage imgHoriz;
    QImage imgVert;
    QLabel *imgCarLocation;

signals:
    void housePicked(QPoint house);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void layOut();
    void placeCar();
    void drawStreets(QPainter &painter) const;
    void drawHouses(QPainter &painter) const;
    void drawShop(QPainter &painter) const;
    void drawOrders(QPainter &painter) const;
    void drawDestination(QPainter &painter) const;
    void drawAxes(QPainter &painter) const;

    const Evening &m_evening;
    QPoint m_destination;
    double m_block = 20;
    QPointF m_origin;
};
