// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

class Concentration;

// The Concentration grid: 13 card backs across and 4 down, drawn as large as the area allows.
// A click picks the card under it by column and row; the arrow keys move a yellow ring from
// card to card and Space or Enter picks the card in the ring.
class ConcBoard : public QWidget {
    Q_OBJECT
public:
    explicit ConcBoard(const Concentration &game, QWidget *parent = nullptr);

    void setBackColour(const QColor &colour);
    // The rectangle the 52 places fill, in widget coordinates.
    QRectF gridRect() const;
    // The place (1 to 52) under the keyboard ring.
    int cursor() const { return m_cursor; }
    void setCursor(int place);

    QSize sizeHint() const override { return {780, 400}; }
    QSize minimumSizeHint() const override { return {390, 170}; }

signals:
    void picked(int place);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    const Concentration &m_game;
    QColor m_back;
    int m_cursor = 1;
};
