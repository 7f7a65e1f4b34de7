// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPushButton>

// A big, rounded button in one strong colour that paints itself: the look of the program's
// bright buttons (BrightColoursOf) without a style sheet. A window that opens first, with many
// such buttons, shows them sooner this way: a sheet is read, matched and drawn for each one.
class BrightButton : public QPushButton {
    Q_OBJECT
public:
    explicit BrightButton(const QColor &colour, QWidget *parent = nullptr, int radius = 14);

    QColor colour() const { return m_colour; }
    void setColour(const QColor &colour);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
    int m_radius;
};
