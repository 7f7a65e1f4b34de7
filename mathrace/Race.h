// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Problem.h"
#include "shell/core/Settings.h"

#include <array>
#include <optional>
#include <QList>
#include <QLoggingCategory>
#include <QStringList>

Q_DECLARE_LOGGING_CATEGORY(lcMathRace)

// The state of one race of one to four cars: whose turn it is, the problem, the gas left and
// how far each car has gone. The window drives it with commands (start, seeProblem, tick,
// answer, nextTurn, stop), owns the timer and asks it what to show.
class Race {
public:
    static constexpr qint16 MaxPlayers = 4;
    static constexpr qint16 Finish = 75;
    static constexpr qint16 FullGas = 100;
    static constexpr qint16 GasPerDrain = 10;
    // The first tick comes a second after the problem appears and drains nothing.
    static constexpr int FirstTickMs = 1000;

    enum class Phase {
        Idle,        // no race on
        Ready,       // a turn has begun; the problem is still hidden
        FirstSecond, // the problem is shown; the first tick has not come yet
        Draining,    // every tick now costs gas
        OutOfGas,    // the gas ran out; the answer is shown
        Answered,    // answered right; the car has moved
    };
    enum class TickResult { Ignored, Started, Drained, OutOfGas };
    enum class TurnResult { NextTurn, Over };

    // Starts a race with the players, names and problem settings given.
    void start(const Settings::MathRace &settings);
    // The pupil asks to see the problem: the first second begins.
    void seeProblem();
    // One tick of the window's timer; after it, timerInterval() says when the next is due.
    TickResult tick();
    // A typed answer: the steps gained when it is right, nothing when it is wrong or when no
    // problem is waiting for an answer.
    std::optional<qint16> answer(int value);
    // Ends the turn and begins the next one, or ends the race when a round is complete and
    // someone has reached the finish.
    TurnResult nextTurn();
    void stop();

    bool isRunning() const { return m_phase != Phase::Idle; }
    bool isOver() const { return m_over; }
    Phase phase() const { return m_phase; }
    qint16 players() const { return m_players; }
    // 1 to players().
    qint16 currentPlayer() const { return m_current; }
    QString name(int player) const;
    QStringList names() const;
    qint16 position(int player) const;
    qint16 gas() const { return m_gas; }
    const Problem &problem() const { return m_problem; }
    int timerInterval() const { return m_interval; }
    // One flag per player 1 to 4 (non-zero = reached the finish by the end of the last round).
    QList<qint16> finishers() const;
    bool hasFinished(int player) const { return position(player) >= Finish; }

    // Steps a right answer earns with this much gas: gas / 10 rounded half to even.
    static qint16 stepsFor(qint16 gas);
    // Milliseconds between drains for a clock choice: (4 - clock) x 500.
    static int drainInterval(qint16 clock);

private:
    void beginTurn();

    Phase m_phase = Phase::Idle;
    bool m_over = false;
    qint16 m_players = 0;
    qint16 m_current = 1;
    qint16 m_gas = FullGas;
    int m_interval = FirstTickMs;
    Problem m_problem;
    std::array<Settings::MathRacePlayer, MaxPlayers> m_setup;
    std::array<qint16, MaxPlayers> m_position{};
};
