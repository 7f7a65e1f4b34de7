// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QStringList>
#include <QWidget>

class PictureBox;

// A chequered flag on a pole, drawn to fill its area: the mark of a car that has finished.
class FinishFlag : public QWidget {
    Q_OBJECT
public:
    explicit FinishFlag(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

// The race track seen from above: four lanes with the racers' names, a start line and a
// chequered finish line, the cars (picCar_1..4) and the finish flags (picWin_1..4). Every
// part is placed from the widget's size, so the track scales with the window.
class RaceTrack : public QWidget {
    Q_OBJECT
public:
    static constexpr int Lanes = 4;

    explicit RaceTrack(QWidget *parent = nullptr);

    // The number of racers (lanes beyond it stay empty) and the names shown in the lanes.
    void setRacers(int count, const QStringList &names);
    int racers() const { return m_racers; }
    QString name(int car) const { return m_names.value(car - 1); }
    // Steps travelled by a car 1..4; the car's nose reaches the finish line at `finish`.
    void setPosition(int car, int steps);
    int position(int car) const;
    void setFinish(int steps);
    void setFlagShown(int car, bool shown);
    // Puts every car back at the start and takes the flags down.
    void reset();

    PictureBox *car(int car) const { return m_cars[size_t(car - 1)]; }
    FinishFlag *flag(int car) const { return m_flags[size_t(car - 1)]; }
    // The colour of a car, for naming racers in the same colour elsewhere.
    static QColor carColour(int car);

    // Where the lanes lie, the start line and the finish line (in widget pixels).
    QRectF laneRect(int lane) const;
    double startX() const;
    double finishX() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeCars();
    double nameWidth() const;
    double carWidth() const;
    // The side of one square of the chequered finish line.
    double squareSize() const;
    QFont nameFont() const;

    int m_racers = 0;
    int m_finish = 75;
    QStringList m_names;
    std::array<int, Lanes> m_positions{};
    std::array<PictureBox *, Lanes> m_cars{};
    std::array<FinishFlag *, Lanes> m_flags{};
};
