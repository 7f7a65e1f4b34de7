// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Keyboard.h"

#include <QList>
#include <QWidget>

// The on-screen keyboard with two hands beneath: every key in the colour of the finger that
// types it, the next key lit up with its finger (and Shift when needed), and the keys a lesson
// teaches ringed. Drawn to fit its area at any size.
class KeyboardView : public QWidget {
    Q_OBJECT
public:
    explicit KeyboardView(QWidget *parent = nullptr);

    void setNextKey(QChar c);
    QChar nextKey() const { return m_next; }
    void setLessonKeys(const QString &keys);
    static QColor fingerColour(Finger finger);

    QSize sizeHint() const override { return {640, 300}; }
    QSize minimumSizeHint() const override { return {300, 140}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawHand(QPainter &painter, const QRectF &area, bool left, const QList<Finger> &lit);

    QChar m_next;
    QString m_lessonKeys;
};
