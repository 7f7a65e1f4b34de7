// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Mastery.h"

// A round of practice: 20 facts in random order, one typed answer each. A wrong fact comes
// back a few turns later until it is answered right; a right answer within three seconds of
// the fact appearing makes it known. Times are milliseconds from the clock the window reads.
class PracticeRound {
public:
    static constexpr int Length = 20;
    static constexpr qint64 QuickMs = 3000;
    // How many other facts come between a miss and the fact's next turn, when there are enough.
    static constexpr int ComeBackAfter = 3;

    enum class Result { Right, Wrong, Ignored };

    explicit PracticeRound(MasteryGrid &grid) : m_grid(&grid) {}

    // Starts a round over a pool of facts drawn with the random source; false for an empty pool.
    bool start(const QList<MathFact> &pool, RandomSource &random, qint64 now);
    void stop() { m_running = false; }

    bool isRunning() const { return m_running; }
    bool isOver() const { return !m_queue.isEmpty() && m_turn >= m_queue.size(); }
    MathFact current() const { return m_turn < m_queue.size() ? m_queue[m_turn] : MathFact{}; }
    // The fact's turn starts now (after the pause that showed the last answer).
    void showCurrent(qint64 now) { m_shownAt = now; }
    Result answer(int value, qint64 now);
    bool lastWasQuick() const { return m_lastQuick; }

    // Turns still to come, the current one included.
    int remaining() const { return int(m_queue.size() - m_turn); }
    int rightFirstTime() const { return m_rightFirstTime; }
    int answered() const { return m_answered; }
    // The facts missed in this round, each once, in the order they were missed.
    const QList<MathFact> &missed() const { return m_missed; }

private:
    MasteryGrid *m_grid;
    QList<MathFact> m_queue;
    // Whether a turn of the queue is a fact's first (counted in the 20) or a second chance.
    QList<bool> m_first;
    QList<MathFact> m_missed;
    qsizetype m_turn = 0;
    qint64 m_shownAt = 0;
    int m_rightFirstTime = 0;
    int m_answered = 0;
    bool m_lastQuick = false;
    bool m_running = false;
};
