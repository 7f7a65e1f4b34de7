// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class BalloonRound;

// The hidden word as one box per letter: guessed letters in blue, "-" and "'" from the start,
// and, once the word is given away, the letters nobody found in orange. Boxes shrink to fit
// long words and grow with the window.
class WordBoxes : public QWidget {
    Q_OBJECT
public:
    explicit WordBoxes(QWidget *parent = nullptr);

    void showRound(const BalloonRound &round);
    void clear();
    // What the boxes show, as a screen reader reads it: "C A _".
    QString spoken() const;

    QSize sizeHint() const override { return {700, 90}; }
    QSize minimumSizeHint() const override { return {200, 36}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    enum class Cell { Hidden, Found, Given };
    QString m_word;
    QList<Cell> m_cells;
};
