// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

class QScrollArea;
class QWidget;

namespace QuizPanels {

// The column of mode frames with Help and Exit at its foot. On a very small screen the column
// scrolls rather than squeezing its buttons together; Tab still reaches every one.
QScrollArea *sidePanel(QWidget *window, const QList<QWidget *> &frames, QWidget *help,
                       QWidget *exit);

// The game, which scrolls where even its smallest type does not fit the height; the answer
// given the focus for the next question is scrolled into sight.
QScrollArea *playPanel(QWidget *window, QWidget *game);

// The game beside the column, four parts to one. The type shrinks with the window, so the
// window may be smaller than its contents ask for: down to a 1366 x 768 screen at 200 %.
void layOut(QWidget *window, QScrollArea *play, QScrollArea *side);

} // namespace QuizPanels
