// SPDX-License-Identifier: GPL-3.0-or-later
#include "MasteryView.h"

#include <QPainter>

MasteryView::MasteryView(const MasteryGrid &grid, QWidget *parent) : QWidget(parent), m_grid(grid)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Mastery grid"));
    refresh();
}

void MasteryView::setOperation(Operation op)
{
    m_op = op;
    refresh();
}

void MasteryView::setRange(int low, int high)
{
    m_low = low;
    m_high = high;
    update();
}

void MasteryView::refresh()
{
    setAccessibleDescription(tr("%1 facts known, %2 practising, %3 not yet seen")
                                 .arg(m_grid.count(m_op, Mastery::Known))
                                 .arg(m_grid.count(m_op, Mastery::Practising))
                                 .arg(m_grid.count(m_op, Mastery::NotSeen) -
                                      (m_op == Operation::Divide ? MasteryGrid::Size : 0)));
    update();
}

QColor MasteryView::colour(Mastery state)
{
    switch (state) {
    case Mastery::Known:
        return {0x66, 0xBB, 0x6A};
    case Mastery::Practising:
        return {0xFF, 0xD5, 0x4F};
    case Mastery::NotSeen:
        break;
    }
    return {0xEC, 0xEF, 0xF1};
}

void MasteryView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int Cells = MasteryGrid::Size + 1;
    const double cell = qMin(width(), height()) / double(Cells);
    const QPointF origin((width() - cell * Cells) / 2, (height() - cell * Cells) / 2);
    auto box = [&](int row, int column) {
        return QRectF(origin.x() + column * cell, origin.y() + row * cell, cell, cell);
    };
    QFont small = font();
    small.setPixelSize(qMax(7, int(cell * 0.42)));
    QFont heading = small;
    heading.setBold(true);

    painter.setFont(heading);
    painter.setPen(QColor(0x0D, 0x47, 0xA1));
    painter.drawText(box(0, 0), Qt::AlignCenter, OperationSign(m_op));
    for (int n = 0; n < MasteryGrid::Size; ++n) {
        const bool practised = n >= m_low && n <= m_high;
        QRectF side = box(n + 1, 0).adjusted(1, 1, -1, -1);
        if (practised) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0xBB, 0xDE, 0xFB));
            painter.drawRoundedRect(side, 4, 4);
        }
        painter.setPen(QColor(0x0D, 0x47, 0xA1));
        painter.drawText(side, Qt::AlignCenter, QString::number(n));
        painter.drawText(box(0, n + 1), Qt::AlignCenter, QString::number(n));
    }
    painter.setFont(small);
    for (int family = 0; family < MasteryGrid::Size; ++family) {
        for (int other = 0; other < MasteryGrid::Size; ++other) {
            const QRectF square = box(family + 1, other + 1).adjusted(1, 1, -1, -1);
            // Nothing is divided by 0, so that row is no fact at all.
            if (m_op == Operation::Divide && family == 0) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(QColor(0xCF, 0xD8, 0xDC).lighter(110));
                painter.drawRect(square);
                continue;
            }
            const Mastery state = m_grid.at(m_op, family, other);
            painter.setPen(QPen(QColor(0xB0, 0xBE, 0xC5), 1));
            painter.setBrush(colour(state));
            painter.drawRoundedRect(square, 3, 3);
            if (state != Mastery::NotSeen) {
                // The product, as in a times table: the same number both ways round.
                painter.setPen(QColor(0x21, 0x21, 0x21));
                painter.drawText(square, Qt::AlignCenter, QString::number(family * other));
            }
        }
    }
}
