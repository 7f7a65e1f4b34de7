// SPDX-License-Identifier: GPL-3.0-or-later
#include "WordBoxes.h"

#include "BalloonRound.h"

#include <QPainter>

WordBoxes::WordBoxes(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Word"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void WordBoxes::showRound(const BalloonRound &round)
{
    m_word = round.word();
    m_cells.clear();
    for (int i = 0; i < m_word.size(); ++i) {
        const QChar c = m_word.at(i);
        const bool letter = c >= u'A' && c <= u'Z';
        if (!letter || round.wasTried(c))
            m_cells.append(Cell::Found);
        else
            m_cells.append(round.isShown(i) ? Cell::Given : Cell::Hidden);
    }
    setAccessibleDescription(spoken());
    update();
}

void WordBoxes::clear()
{
    m_word.clear();
    m_cells.clear();
    setAccessibleDescription(QString());
    update();
}

QString WordBoxes::spoken() const
{
    QStringList parts;
    for (int i = 0; i < m_word.size(); ++i)
        parts.append(m_cells[i] == Cell::Hidden ? QStringLiteral("_") : QString(m_word.at(i)));
    return parts.join(u' ');
}

void WordBoxes::paintEvent(QPaintEvent *)
{
    if (m_word.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int n = int(m_word.size());
    // Square boxes as big as the height allows, narrower when the word is long.
    // Gaps take at most a fifth of the width, so a long word on a narrow window still fits.
    const double gap = qMax(1.0, qMin(height() * 0.08, width() * 0.2 / (n + 1)));
    const double side = qMin(height() - 4.0, (width() - gap * (n + 1)) / n);
    const double total = n * side + (n - 1) * gap;
    double x = (width() - total) / 2;
    const double y = (height() - side) / 2;
    QFont letters = font();
    letters.setBold(true);
    letters.setPixelSize(qMax(8, int(side * 0.62)));
    painter.setFont(letters);
    for (int i = 0; i < n; ++i, x += side + gap) {
        const QRectF box(x, y, side, side);
        const QChar c = m_word.at(i);
        const bool mark = c == u'-' || c == u'\'';
        if (!mark) {
            painter.setPen(QPen(QColor(0x1A, 0x23, 0x7E), qMax(1.5, side * 0.05)));
            painter.setBrush(m_cells[i] == Cell::Given ? QColor(0xFF, 0xE0, 0xB2) : Qt::white);
            painter.drawRoundedRect(box, side * 0.15, side * 0.15);
        }
        if (m_cells[i] == Cell::Hidden)
            continue;
        painter.setPen(m_cells[i] == Cell::Given ? QColor(0xE6, 0x51, 0x00)
                                                 : QColor(0x0D, 0x47, 0xA1));
        painter.drawText(box, Qt::AlignCenter, QString(c));
    }
}
