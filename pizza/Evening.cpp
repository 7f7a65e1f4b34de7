// SPDX-License-Identifier: GPL-3.0-or-later
#include "Evening.h"

#include "shell/core/Random.h"

Q_LOGGING_CATEGORY(lcPizza, "lumbridle.pizza", QtInfoMsg)

void Evening::start()
{
    *this = Evening();
    m_running = true;
}

void Evening::stop()
{
    m_running = false;
    m_carMoving = false;
}

QString Evening::timeText(int minutesSinceMidnight)
{
    return QStringLiteral("%1:%2")
        .arg(minutesSinceMidnight / 60)
        .arg(minutesSinceMidnight % 60, 2, 10, QLatin1Char('0'));
}

Evening::ClockResult Evening::clockTick()
{
    ClockResult result;
    if (!m_running)
        return result;
    if (++m_minute == 60) {
        m_minute = 0;
        ++m_hour;
    }
    if (m_hour >= LastHour) {
        stop();
        result.dayOver = true;
        return result;
    }
    // Only the oldest order is looked at each minute, as a busy shop checks its order spike.
    if (!m_orders.isEmpty() && now() - m_orders.first().time >= GiveUpMinutes) {
        result.gaveUp = m_orders.first();
        removeOrder(m_orders.first().house);
    }
    return result;
}

qint16 Evening::pizzasFor(int r)
{
    if (r < 30)
        return 1;
    if (r < 50)
        return 2;
    if (r < 70)
        return 3;
    if (r < 85)
        return 4;
    return 5;
}

std::optional<Evening::Order> Evening::phoneCall()
{
    if (!m_running || callsOver())
        return std::nullopt;
    std::optional<Order> order;
    // With every house waiting there is nobody left to call; drawing again would never end.
    if (m_orders.size() < GridMax * GridMax) {
        QPoint house;
        do {
            const int x = RndInt(GridMax); // x is drawn before y
            house = QPoint(x, RndInt(GridMax));
        } while (m_wanted[size_t(cell(house))] != 0);
        const qint16 pizzas = pizzasFor(int(Rnd() * 100));
        order = Order{house, pizzas, now()};
        m_wanted[size_t(cell(house))] = pizzas;
        m_orderTime[size_t(cell(house))] = now();
        m_orders.append(*order);
    }
    m_nextCallMs = RndInt(9) * CallStepMs;
    return order;
}

qint16 Evening::pizzasWanted(QPoint house) const
{
    return onGrid(house) ? m_wanted[size_t(cell(house))] : qint16(0);
}

int Evening::orderTime(QPoint house) const
{
    return pizzasWanted(house) > 0 ? m_orderTime[size_t(cell(house))] : -1;
}

bool Evening::startBaking(int count)
{
    if (!m_running || isBaking() || count <= 0 || count > MaxReady)
        return false;
    m_ovenCount = count;
    m_bakeLeft = BakeMinutes;
    m_ovenDoneAt = now() + BakeMinutes;
    m_baked += count;
    return true;
}

bool Evening::bakeTick()
{
    if (!isBaking())
        return false;
    if (--m_bakeLeft > 0)
        return false;
    // The rack holds twenty; the rest of a batch has nowhere to go and is thrown away.
    const int total = m_ready + m_ovenCount;
    m_ready = qMin(total, MaxReady);
    m_lost += total - m_ready;
    m_ovenCount = 0;
    return true;
}

int Evening::load()
{
    if (!m_running || m_carMoving || !carAtShop())
        return 0;
    const int taken = qMin(m_ready, CarLoad - m_carPizzas);
    m_ready -= taken;
    m_carPizzas += taken;
    return taken;
}

bool Evening::onGrid(QPoint p)
{
    return p.x() >= 0 && p.x() <= GridMax && p.y() >= 0 && p.y() <= GridMax;
}

bool Evening::go(QPoint destination)
{
    if (!m_running || m_carMoving || !onGrid(destination) || destination == m_car)
        return false;
    m_destination = destination;
    m_carMoving = true;
    return true;
}

Evening::Stop Evening::carStep()
{
    if (!m_carMoving)
        return Stop::Driving;
    if (m_car.x() != m_destination.x()) {
        const bool east = m_destination.x() > m_car.x();
        m_heading = east ? Heading::East : Heading::West;
        m_car.rx() += east ? 1 : -1;
    } else if (m_car.y() != m_destination.y()) {
        const bool north = m_destination.y() > m_car.y();
        m_heading = north ? Heading::North : Heading::South;
        m_car.ry() += north ? 1 : -1;
    }
    m_miles += MilesPerBlock;
    if (m_car != m_destination)
        return Stop::Driving;
    m_carMoving = false;
    return arrive();
}

Evening::Stop Evening::arrive()
{
    if (carAtShop())
        return Stop::PizzaPlace;
    const int wanted = pizzasWanted(m_car);
    if (wanted == 0)
        return Stop::NoPizzaWanted;
    if (wanted > m_carPizzas)
        return Stop::NotEnoughPizzas;
    const bool onTime = now() - orderTime(m_car) <= OnTimeMinutes;
    m_carPizzas -= wanted;
    m_lastDelivered = wanted;
    removeOrder(m_car);
    ++(onTime ? m_onTime : m_late);
    qCDebug(lcPizza) << "delivered" << wanted << "at" << m_car << (onTime ? "on time" : "late");
    return onTime ? Stop::OnTime : Stop::Late;
}

void Evening::removeOrder(QPoint house)
{
    m_wanted[size_t(cell(house))] = 0;
    m_orders.removeIf([house](const Order &order) { return order.house == house; });
}
