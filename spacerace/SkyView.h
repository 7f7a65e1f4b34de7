// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QWidget>

// A rocket in a player's colour, drawn to fill its area, nose up.
class RocketPicture : public QWidget {
    Q_OBJECT
public:
    explicit RocketPicture(const QColor &colour, QWidget *parent = nullptr);
    // The flame burns once the rocket has left its pad.
    void setFlying(bool flying);
    bool isFlying() const { return m_flying; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
    bool m_flying = false;
};

// A full moon with craters, drawn to fill its area.
class MoonPicture : public QWidget {
    Q_OBJECT
public:
    explicit MoonPicture(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

// The night sky of the race: one column per player with a moon at the top and a rocket on
// its launch pad at the bottom (picMoon_1..4, picRocket_1..4). A rocket's height above the
// pad is in proportion to its position / 75. Everything is placed from the widget's size.
class SkyView : public QWidget {
    Q_OBJECT
public:
    static constexpr int Columns = 4;

    explicit SkyView(QWidget *parent = nullptr);

    // Shows the rockets and moons of the first `count` players, all on their pads.
    void setPlayers(int count);
    int players() const { return m_players; }
    void hideAll();
    // Steps flown by a rocket 1..4; at `moon` steps it touches its moon.
    void setPosition(int rocket, int steps);
    int position(int rocket) const;
    void setMoonAt(int steps) { m_moon = steps; }

    RocketPicture *rocket(int rocket) const { return m_rockets[size_t(rocket - 1)]; }
    MoonPicture *moon(int moon) const { return m_moons[size_t(moon - 1)]; }
    static QColor rocketColour(int rocket);

    // The rocket's top edge on its pad and at the moon, in widget pixels.
    double padTop() const;
    double moonTop() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();
    QRectF column(int index) const;
    double rocketHeight() const;

    int m_players = 0;
    int m_moon = 75;
    std::array<int, Columns> m_positions{};
    std::array<RocketPicture *, Columns> m_rockets{};
    std::array<MoonPicture *, Columns> m_moons{};
};
