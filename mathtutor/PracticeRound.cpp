// SPDX-License-Identifier: GPL-3.0-or-later
#include "PracticeRound.h"

bool PracticeRound::start(const QList<MathFact> &pool, RandomSource &random, qint64 now)
{
    m_queue = DrawFacts(pool, Length, random);
    m_first = QList<bool>(m_queue.size(), true);
    m_missed.clear();
    m_turn = 0;
    m_shownAt = now;
    m_rightFirstTime = 0;
    m_answered = 0;
    m_lastQuick = false;
    m_running = !m_queue.isEmpty();
    return m_running;
}

PracticeRound::Result PracticeRound::answer(int value, qint64 now)
{
    if (!m_running || isOver())
        return Result::Ignored;
    const MathFact fact = m_queue[m_turn];
    const bool right = value == fact.answer();
    // A clock that went backwards is not a quick answer.
    m_lastQuick = right && now >= m_shownAt && now - m_shownAt <= QuickMs;
    m_grid->record(fact, right, m_lastQuick);
    ++m_answered;
    if (right) {
        if (m_first[m_turn])
            ++m_rightFirstTime;
    } else {
        if (!m_missed.contains(fact))
            m_missed.append(fact);
        const qsizetype back = qMin(m_turn + 1 + ComeBackAfter, m_queue.size());
        m_queue.insert(back, fact);
        m_first.insert(back, false);
    }
    ++m_turn;
    if (isOver())
        m_running = false;
    return right ? Result::Right : Result::Wrong;
}
