// SPDX-License-Identifier: GPL-3.0-or-later
#include "ConcBoard.h"

#include "CardView.h"
#include "Concentration.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

ConcBoard::ConcBoard(const Concentration &game, QWidget *parent)
    : QWidget(parent), m_game(game), m_back(CardLook::BackColour(1))
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ConcBoard::setBackColour(const QColor &colour)
{
    m_back = colour;
    update();
}

void ConcBoard::setCursor(int place)
{
    m_cursor = qBound(1, place, int(Concentration::Places));
    const int row = (m_cursor - 1) / Concentration::Columns + 1;
    const int column = (m_cursor - 1) % Concentration::Columns + 1;
    // Screen readers follow the ring by row and place, and hear when a place is empty.
    setAccessibleDescription(m_game.isMatched(m_cursor)
                                 ? tr("Row %1, card %2: matched").arg(row).arg(column)
                                 : tr("Row %1, card %2").arg(row).arg(column));
    update();
}

QRectF ConcBoard::gridRect() const
{
    // Places a little wider than a card, so the cards have room between them.
    const double cellAspect = 0.8;
    double cellWidth = width() / double(Concentration::Columns);
    double cellHeight = cellWidth / cellAspect;
    if (cellHeight * Concentration::Rows > height()) {
        cellHeight = height() / double(Concentration::Rows);
        cellWidth = cellHeight * cellAspect;
    }
    const double w = cellWidth * Concentration::Columns;
    const double h = cellHeight * Concentration::Rows;
    return {(width() - w) / 2, (height() - h) / 2, w, h};
}

void ConcBoard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF grid = gridRect();
    const double cellWidth = grid.width() / Concentration::Columns;
    const double cellHeight = grid.height() / Concentration::Rows;
    const double gap = cellWidth * 0.06;
    for (int place = 1; place <= Concentration::Places; ++place) {
        const int column = (place - 1) % Concentration::Columns;
        const int row = (place - 1) / Concentration::Columns;
        const QRectF cell(grid.left() + column * cellWidth, grid.top() + row * cellHeight,
                          cellWidth, cellHeight);
        const QRectF card = CardLook::Fit(cell.adjusted(gap, gap, -gap, -gap));
        if (m_game.isMatched(place)) {
            // A matched card leaves an empty place with a faint outline.
            painter.setPen(QPen(QColor(255, 255, 255, 70), 1.5, Qt::DashLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(card, card.width() * 0.09, card.width() * 0.09);
        } else {
            CardLook::PaintBack(painter, card, m_back);
            if (m_game.isTaken(place)) {
                // The card turned up lies in the first slot below; its place is marked.
                painter.fillRect(card, QColor(255, 255, 255, 150));
                painter.setPen(QPen(QColor("#FF6F00"), qMax(2.0, card.width() / 12)));
                painter.drawRoundedRect(card, card.width() * 0.09, card.width() * 0.09);
            }
        }
        if (place == m_cursor && hasFocus()) {
            painter.setPen(QPen(QColor("#FFD600"), qMax(3.0, card.width() / 9)));
            painter.setBrush(Qt::NoBrush);
            const double grow = gap * 0.7;
            painter.drawRoundedRect(card.adjusted(-grow, -grow, grow, grow), card.width() * 0.12,
                                    card.width() * 0.12);
        }
    }
}

void ConcBoard::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int place = Concentration::placeAt(event->position(), gridRect());
    if (place == 0)
        return;
    setCursor(place);
    emit picked(place);
}

void ConcBoard::keyPressEvent(QKeyEvent *event)
{
    const int column = (m_cursor - 1) % Concentration::Columns;
    const int row = (m_cursor - 1) / Concentration::Columns;
    switch (event->key()) {
    case Qt::Key_Left:
        setCursor(m_cursor - (column > 0 ? 1 : 0));
        return;
    case Qt::Key_Right:
        setCursor(m_cursor + (column < Concentration::Columns - 1 ? 1 : 0));
        return;
    case Qt::Key_Up:
        setCursor(m_cursor - (row > 0 ? Concentration::Columns : 0));
        return;
    case Qt::Key_Down:
        setCursor(m_cursor + (row < Concentration::Rows - 1 ? Concentration::Columns : 0));
        return;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            emit picked(m_cursor);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
