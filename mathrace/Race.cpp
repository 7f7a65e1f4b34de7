// SPDX-License-Identifier: GPL-3.0-or-later
#include "Race.h"

Q_LOGGING_CATEGORY(lcMathRace, "lumbridle.mathrace", QtInfoMsg)

namespace {

template <typename T> T Clamped(T value, T low, T high, const char *what)
{
    if (value >= low && value <= high)
        return value;
    qCInfo(lcMathRace) << what << value << "is outside" << low << "to" << high << "- using"
                       << qBound(low, value, high);
    return qBound(low, value, high);
}

} // namespace

void Race::start(const Settings::MathRace &settings)
{
    // Values come from a file anyone can edit; the race keeps to the ranges it can play.
    m_players = Clamped<qint16>(settings.players, 1, MaxPlayers, "number of players");
    for (int i = 0; i < MaxPlayers; ++i) {
        Settings::MathRacePlayer p = settings.player[size_t(i)];
        p.type = Clamped<qint16>(p.type, Addition, MixedType, "problem type");
        p.largest = Clamped<qint16>(p.largest, 1, 32767, "largest number");
        p.clock = Clamped<qint16>(p.clock, 1, 3, "clock");
        m_setup[size_t(i)] = p;
    }
    m_position.fill(0);
    m_over = false;
    m_current = 1;
    beginTurn();
}

void Race::beginTurn()
{
    const Settings::MathRacePlayer &p = m_setup[size_t(m_current - 1)];
    m_gas = FullGas;
    m_problem = Problem_Type(ChooseKind(p.type), p.largest);
    m_interval = FirstTickMs;
    m_phase = Phase::Ready;
}

void Race::seeProblem()
{
    if (m_phase != Phase::Ready)
        return;
    m_interval = FirstTickMs;
    m_phase = Phase::FirstSecond;
}

Race::TickResult Race::tick()
{
    switch (m_phase) {
    case Phase::FirstSecond:
        m_interval = drainInterval(m_setup[size_t(m_current - 1)].clock);
        m_phase = Phase::Draining;
        return TickResult::Started;
    case Phase::Draining:
        m_gas = qint16(qMax(0, m_gas - GasPerDrain));
        if (m_gas < 1) {
            m_phase = Phase::OutOfGas;
            return TickResult::OutOfGas;
        }
        return TickResult::Drained;
    default:
        return TickResult::Ignored;
    }
}

std::optional<qint16> Race::answer(int value)
{
    if (m_phase != Phase::FirstSecond && m_phase != Phase::Draining)
        return std::nullopt;
    if (value != m_problem.answer)
        return std::nullopt;
    const qint16 steps = stepsFor(m_gas);
    qint16 &position = m_position[size_t(m_current - 1)];
    // A car never runs past a step or ten beyond the finish, far inside 16 bits.
    position = qint16(qMin<int>(position + steps, Finish + FullGas / GasPerDrain));
    m_phase = Phase::Answered;
    return steps;
}

Race::TurnResult Race::nextTurn()
{
    if (m_phase == Phase::Idle)
        return TurnResult::Over;
    if (m_current < m_players) {
        ++m_current;
        beginTurn();
        return TurnResult::NextTurn;
    }
    m_current = 1;
    for (int player = 1; player <= m_players; ++player) {
        if (hasFinished(player)) {
            m_over = true;
            qCDebug(lcMathRace) << "race over; finishers" << finishers();
            return TurnResult::Over;
        }
    }
    beginTurn();
    return TurnResult::NextTurn;
}

void Race::stop()
{
    m_phase = Phase::Idle;
}

QString Race::name(int player) const
{
    return player >= 1 && player <= MaxPlayers ? m_setup[size_t(player - 1)].name : QString();
}

QStringList Race::names() const
{
    QStringList list;
    for (int player = 1; player <= MaxPlayers; ++player)
        list.append(name(player));
    return list;
}

qint16 Race::position(int player) const
{
    return player >= 1 && player <= MaxPlayers ? m_position[size_t(player - 1)] : qint16(0);
}

QList<qint16> Race::finishers() const
{
    QList<qint16> flags;
    for (int player = 1; player <= MaxPlayers; ++player)
        flags.append(player <= m_players && hasFinished(player) ? 1 : 0);
    return flags;
}

qint16 Race::stepsFor(qint16 gas)
{
    const int whole = gas / 10;
    const int rest = gas % 10;
    return qint16(rest > 5 || (rest == 5 && whole % 2 == 1) ? whole + 1 : whole);
}

int Race::drainInterval(qint16 clock)
{
    return (4 - qBound<int>(1, clock, 3)) * 500;
}
