// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QTimer;

// The clown and his balloons, drawn by us and scaled with the widget. He holds up to six
// balloons of different colours; a lost one floats away, a won word makes him juggle and a
// lost word makes him sit down with a shrug.
class ClownPicture : public QWidget {
    Q_OBJECT
public:
    enum class Mood { Waiting, Juggling, Shrugging };
    static constexpr int MaxBalloons = 6;

    explicit ClownPicture(QWidget *parent = nullptr);

    // Sets the balloons he holds at once, without a balloon floating away.
    void setBalloons(int count);
    int balloons() const { return m_balloons; }
    // The top balloon slips from his hand and floats up and away.
    void releaseBalloon();
    void setMood(Mood mood);
    Mood mood() const { return m_mood; }
    // Moves the animation to a given frame (screenshots, and a still picture for tests).
    void setFrame(int frame);
    bool isAnimating() const;

    static QColor balloonColour(int index);
    QSize sizeHint() const override { return {520, 380}; }
    QSize minimumSizeHint() const override { return {200, 120}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tick();
    void describe();
    void drawScene(class QPainter &painter) const;
    void drawBalloon(QPainter &painter, QPointF centre, int index, QPointF knot) const;
    void drawClown(QPainter &painter) const;

    QTimer *m_timer;
    int m_balloons = MaxBalloons;
    int m_floating = -1; // the balloon floating away, or -1
    int m_floatFrame = 0;
    int m_frame = 0;
    Mood m_mood = Mood::Waiting;
};
