// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuizPanels.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace QuizPanels {

QString frameStyle(const char *ink, const char *border)
{
    // No font in the style: a font set there would replace the window's in every child.
    return QStringLiteral("QGroupBox { color: %1; border: 2px solid %2;"
                          " border-radius: 10px; margin-top: 14px; padding: 8px 6px 6px 6px;"
                          " background: #FFFFFF; }"
                          "QGroupBox::title { subcontrol-origin: margin; left: 12px;"
                          " padding: 0 4px; }")
        .arg(QLatin1String(ink), QLatin1String(border));
}

QString choiceStyle(const char *background, const char *border, const char *pressed)
{
    return QStringLiteral("QPushButton { background: %1; color: #102027; border: 3px solid %2;"
                          " border-radius: 10px; padding: 4px 8px; }"
                          "QPushButton:focus { border-color: #FFC107; }"
                          "QPushButton:pressed { background: %3; }")
        .arg(QLatin1String(background), QLatin1String(border), QLatin1String(pressed));
}

QString asButtonText(const QString &text)
{
    QString escaped = text;
    return escaped.replace(u'&', QStringLiteral("&&"));
}

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

double typeFactor(const QWidget *window)
{
    return qBound(0.62, qMin(window->width() / 1024.0, window->height() / 720.0), 1.7);
}

void scaleType(QWidget *window, const QList<TypeScale> &scaled, double factor)
{
    for (const TypeScale &control : scaled) {
        QFont type = window->font();
        type.setPointSizeF(13.0 * control.scale * factor);
        type.setBold(control.bold);
        control.widget->setFont(type);
    }
    const int buttonHeight = qRound(40 * qMin(factor, 1.0));
    const auto buttons = window->findChildren<QPushButton *>();
    for (QPushButton *b : buttons)
        b->setMinimumHeight(buttonHeight);
}

void sizeOptions(const QList<QRadioButton *> &options, double factor)
{
    const int dot = qRound(18 * factor);
    for (QRadioButton *option : options)
        option->setStyleSheet(QStringLiteral("QRadioButton::indicator { width: %1px;"
                                             " height: %1px; }")
                                  .arg(dot));
}

void fitSidePanel(QScrollArea *side)
{
    side->setMinimumWidth(side->widget()->minimumSizeHint().width() +
                          side->verticalScrollBar()->sizeHint().width());
}

} // namespace QuizPanels
