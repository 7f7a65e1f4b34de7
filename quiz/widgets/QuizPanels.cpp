// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuizPanels.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace QuizPanels {

QScrollArea *sidePanel(QWidget *window, const QList<QWidget *> &frames, QWidget *help,
                       QWidget *exit)
{
    auto *panel = new QScrollArea(window);
    panel->setFrameShape(QFrame::NoFrame);
    panel->setWidgetResizable(true);
    panel->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    panel->viewport()->setAutoFillBackground(false);
    auto *contents = new QWidget(panel);
    contents->setAutoFillBackground(false);
    auto *side = new QVBoxLayout(contents);
    side->setContentsMargins(0, 0, 0, 0);
    for (QWidget *frame : frames)
        side->addWidget(frame);
    side->addStretch(1);
    auto *ends = new QHBoxLayout;
    ends->addWidget(help);
    ends->addWidget(exit);
    side->addLayout(ends);
    panel->setWidget(contents);
    panel->setAccessibleName(QApplication::translate("QuizPanels", "Games and settings"));
    return panel;
}

QScrollArea *playPanel(QWidget *window, QWidget *game)
{
    auto *panel = new QScrollArea(window);
    panel->setFrameShape(QFrame::NoFrame);
    panel->setWidgetResizable(true);
    panel->viewport()->setAutoFillBackground(false);
    panel->setWidget(game);
    game->setAutoFillBackground(false); // the window's colour shows around the frame
    panel->setAccessibleName(QApplication::translate("QuizPanels", "Game"));
    QObject::connect(qApp, &QApplication::focusChanged, panel, [panel](QWidget *, QWidget *now) {
        if (now && panel->widget()->isAncestorOf(now))
            panel->ensureWidgetVisible(now);
    });
    return panel;
}

void layOut(QWidget *window, QScrollArea *play, QScrollArea *side)
{
    auto *layout = new QHBoxLayout(window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    window->setMinimumSize(480, 280);
    layout->setContentsMargins(10, 8, 10, 10);
    layout->setSpacing(10);
    layout->addWidget(play, 4);
    layout->addWidget(side, 1);
}

} // namespace QuizPanels
