// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <QList>
#include <QLoggingCategory>
#include <QPoint>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcPizza)

// One evening of the pizza business, from "6:00" to "11:00": the clock, the telephone orders,
// the oven, the car on the street grid and the counters of the sales report. It knows nothing
// of real time; the window's four timers call clockTick, phoneCall, bakeTick and carStep, and
// the constants below say how often, so a whole evening can also run in a test loop.
class Evening {
public:
    // Streets run along x = 0..20 and y = 0..20; houses stand at 1..20, the shop at (0, 0).
    static constexpr int GridMax = 20;
    static constexpr int FirstHour = 6;
    static constexpr int LastHour = 11;
    // Customers give up on an order this many minutes after calling.
    static constexpr int GiveUpMinutes = 61;
    // A delivery within half an hour of the call is on time: time to bake a batch (10 minutes)
    // and drive to the farthest house (8 minutes) with some to spare, so a careful
    // nine-year-old can make it, while letting orders wait is still paid less.
    static constexpr int OnTimeMinutes = 30;
    static constexpr int BakeMinutes = 10;
    static constexpr int MaxReady = 20;
    static constexpr int CarLoad = 10;

    // Real-time pace. One simulated minute lasts 2.5 seconds, so the five hours take twelve
    // and a half minutes of play; a call comes 1 to 9 steps of 2.5 seconds after the last,
    // that is 1 to 9 simulated minutes; the car drives one block every half second, five
    // blocks a simulated minute, so the round trip to the farthest house takes 16 minutes.
    static constexpr int MinuteMs = 2500;
    static constexpr int CallStepMs = 2500;
    static constexpr int CarStepMs = 500;
    static constexpr int BlocksPerMinute = MinuteMs / CarStepMs;
    // The first call of the day comes after one step, so the shop is busy at once.
    static constexpr int FirstCallMs = CallStepMs;
    // Each block driven is one mile on the car's meter.
    static constexpr int MilesPerBlock = 1;

    struct Order {
        QPoint house;
        qint16 pizzas = 0;
        int time = 0; // minutes since midnight
        bool operator==(const Order &) const = default;
    };

    enum class Heading { East, West, North, South };
    enum class Stop {
        Driving,         // still on the way
        PizzaPlace,      // back at the shop
        NoPizzaWanted,   // nobody at this house is waiting for pizza
        NotEnoughPizzas, // the order is bigger than what the car holds; nothing is handed over
        OnTime,          // delivered within OnTimeMinutes of the call
        Late,            // delivered, but later than that
    };

    struct ClockResult {
        bool dayOver = false;
        std::optional<Order> gaveUp; // the oldest order, when its customer stopped waiting
    };

    static QPoint pizzaPlace() { return {0, 0}; }

    // A new day: "6:00", no orders, empty oven and car at the shop, counters 0.
    void start();
    // Ends the day early (the stop button); the clock keeps the time it had reached.
    void stop();
    bool isRunning() const { return m_running; }

    // One simulated minute. At 11:00 the day ends. Otherwise only the oldest order is
    // checked, and removed when it is GiveUpMinutes old.
    ClockResult clockTick();
    int hour() const { return m_hour; }
    int minute() const { return m_minute; }
    int now() const { return m_hour * 60 + m_minute; }
    QString clockText() const { return timeText(now()); }
    // "6:05", "10:40": hour without a leading zero, minutes with two digits.
    static QString timeText(int minutesSinceMidnight);

    // A telephone call: a new order from a house that has none, or nothing from 10:31 on.
    // Afterwards nextCallMs() holds the delay to the next call.
    std::optional<Order> phoneCall();
    bool callsOver() const { return m_hour > 10 || (m_hour == 10 && m_minute > 30); }
    int nextCallMs() const { return m_nextCallMs; }
    // Pizzas for a draw r of 0..99: 0-29 one, 30-49 two, 50-69 three, 70-84 four, 85-99 five.
    static qint16 pizzasFor(int r);

    // Open orders, oldest first.
    const QList<Order> &orders() const { return m_orders; }
    qint16 pizzasWanted(QPoint house) const;
    // Minutes since midnight of the house's order, or -1 when it has none.
    int orderTime(QPoint house) const;

    // Puts a batch in the oven; false (and nothing happens) for 0, more than MaxReady, or
    // while a batch is baking. The pizzas count as baked when they go in: that is when the
    // dough and cheese are paid for.
    bool startBaking(int count);
    // One simulated minute of the oven; true when the batch has just come out.
    bool bakeTick();
    bool isBaking() const { return m_ovenCount > 0; }
    int ovenCount() const { return m_ovenCount; }
    int bakeLeft() const { return m_bakeLeft; }
    // When the batch in the oven comes out, in minutes since midnight.
    int ovenDoneAt() const { return m_ovenDoneAt; }
    int ready() const { return m_ready; }
    // Pizzas that came out of the oven with no room left on the rack (ready is capped).
    int lostPizzas() const { return m_lost; }

    // Moves ready pizzas into the car, at most CarLoad in the car at once; only at the shop.
    // Returns how many went in.
    int load();
    int carPizzas() const { return m_carPizzas; }

    // Sends the car to a grid point; false when it is already moving, already there, or the
    // point is off the grid.
    bool go(QPoint destination);
    bool returnToShop() { return go(pizzaPlace()); }
    // Moves the car one block along the streets (first along x, then along y) and says what
    // happened when it arrives.
    Stop carStep();
    bool carMoving() const { return m_carMoving; }
    QPoint carPosition() const { return m_car; }
    QPoint destination() const { return m_destination; }
    Heading heading() const { return m_heading; }
    bool carAtShop() const { return m_car == pizzaPlace(); }
    // Pizzas handed over at the last delivery.
    int lastDelivered() const { return m_lastDelivered; }

    int onTimeDeliveries() const { return m_onTime; }
    int lateDeliveries() const { return m_late; }
    int pizzasBaked() const { return m_baked; }
    int milesDriven() const { return m_miles; }

    static bool onGrid(QPoint p);

private:
    Stop arrive();
    void removeOrder(QPoint house);
    static int cell(QPoint p) { return p.y() * (GridMax + 1) + p.x(); }

    bool m_running = false;
    int m_hour = FirstHour;
    int m_minute = 0;
    std::array<qint16, (GridMax + 1) * (GridMax + 1)> m_wanted{};
    std::array<int, (GridMax + 1) * (GridMax + 1)> m_orderTime{};
    QList<Order> m_orders;
    int m_nextCallMs = FirstCallMs;
    int m_ovenCount = 0;
    int m_bakeLeft = 0;
    int m_ovenDoneAt = 0;
    int m_ready = 0;
    int m_lost = 0;
    int m_carPizzas = 0;
    QPoint m_car;
    QPoint m_destination;
    bool m_carMoving = false;
    Heading m_heading = Heading::East;
    int m_lastDelivered = 0;
    int m_onTime = 0;
    int m_late = 0;
    int m_baked = 0;
    int m_miles = 0;
};
