// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

class QPainter;

// Drawing of the cards the three games share: a white rounded face with the rank in two
// corners and the suit picture, or a back in one bright colour. Cards keep a card's shape and
// grow with the area they are given.
namespace CardLook {
// The five back colours a game picks from: light red, light blue, light green, light magenta
// and yellow of the 16-colour palette.
QColor BackColour(int choice);
// Spades, hearts, clubs and diamonds, in the order of the suit index.
QString SuitName(int suit);
bool IsRed(int suit);
// The largest card-shaped rectangle centred in `area`.
QRectF Fit(const QRectF &area);
void PaintFace(QPainter &painter, const QRectF &card, const QString &rank, int suit);
void PaintBack(QPainter &painter, const QRectF &card, const QColor &colour);
// What a screen reader says for a face: "Queen of Hearts".
QString Spoken(const QString &rank, int suit);
} // namespace CardLook

// One place on the table where a card lies face up or face down. Hidden, it keeps its room
// so the table does not jump. It can take the keyboard focus and reports clicks, Space and Enter.
class CardView : public QWidget {
    Q_OBJECT
public:
    explicit CardView(QWidget *parent = nullptr);

    void showFace(const QString &rank, int suit);
    void showBack(const QColor &colour);
    void hideCard();

    bool isFaceUp() const { return isVisible() && m_faceUp; }
    QString rank() const { return m_rank; }
    int suit() const { return m_suit; }
    QColor backColour() const { return m_back; }
    // Where the card itself is drawn inside the widget.
    QRectF cardRect() const;

    QSize sizeHint() const override { return {110, 154}; }
    QSize minimumSizeHint() const override { return {36, 50}; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_faceUp = false;
    QString m_rank;
    int m_suit = 0;
    QColor m_back = Qt::blue;
};
