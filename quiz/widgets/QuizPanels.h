// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStackedWidget>
#include <QString>

class QRadioButton;
class QScrollArea;
class QWidget;

namespace QuizPanels {

// The pages of pictures. Its wrapped captions must not make it ask for their preferred height
// for its width: it takes the height the texts leave, and a scrolling game area would
// otherwise scroll on every small screen.
class PictureStack final : public QStackedWidget {
public:
    using QStackedWidget::QStackedWidget;
    bool hasHeightForWidth() const override { return false; }
};

// A white, rounded frame with its title in the ink colour.
QString frameStyle(const char *ink, const char *border);

// A rounded choice button; the focused one has a yellow ring.
QString choiceStyle(const char *background, const char *border, const char *pressed);

// A name shown on a button as it is written: an ampersand is not taken for a shortcut.
QString asButtonText(const QString &text);

// A control whose type follows the window: its size against the window's, and whether bold.
struct TypeScale {
    QWidget *widget;
    double scale;
    bool bold;
};

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

// How much bigger or smaller than at 1024 x 720 the window's type is drawn.
double typeFactor(const QWidget *window);

// Sets the type of each scaled control from the window's own (styled frames would hand their
// children another), and gives every button a big target, less so on a small screen.
void scaleType(QWidget *window, const QList<TypeScale> &scaled, double factor);

// Option dots that grow and shrink with the type.
void sizeOptions(const QList<QRadioButton *> &options, double factor);

// The column is as wide as its widest button, never cut by a scroll bar.
void fitSidePanel(QScrollArea *side);

} // namespace QuizPanels
