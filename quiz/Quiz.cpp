// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quiz.h"

#include "shell/core/Random.h"
#include "shell/core/Shuffle.h"

#include <limits>

QuizPlan StandardPlan(QuizMode mode, bool multipleChoice, int direction,
                      const GeographyFields &fields)
{
    QuizPlan plan;
    plan.answerField = fields.name;
    plan.multipleChoice = multipleChoice;
    switch (mode) {
    case Idle:
    case Review:
        plan.order = QuizPlan::Order::Browse;
        plan.multipleChoice = false;
        break;
    case Capitals:
        if (direction == Direction::NameCapital)
            plan.answerField = fields.capital;
        else
            plan.hintTry = 2; // the map
        plan.revealTry = 4;
        break;
    case NameIt:
        plan.order = QuizPlan::Order::AtRandom;
        plan.clueCount = fields.clues;
        break;
    case FindIt:
        if (direction == Direction::NamePlace) {
            plan.hintTry = 2; // the region
        } else {
            // The pupil answers on the map; choices would give the place away.
            if (multipleChoice)
                plan.revealTry = 4;
            plan.multipleChoice = false;
        }
        break;
    case Flags:
        // Picking a flag is always a choice of four.
        if (direction == Direction::PickFlag)
            plan.multipleChoice = true;
        break;
    }
    return plan;
}

void Quiz::start(int mode, const QuizPlan &plan)
{
    m_mode = mode;
    m_plan = plan;
    m_asked = 0;
    m_right = 0;
    m_tries = 0;
    m_answered = false;
    m_choices.clear();
    m_correctChoice = 0;
    const int count = qMin(m_table.count(), int(std::numeric_limits<qint16>::max()));
    if (plan.order == QuizPlan::Order::Browse) {
        m_current = count > 0 ? RndInt(count) : 0;
        return;
    }
    if (plan.order == QuizPlan::Order::EachOnce) {
        m_order = QList<qint16>(count + 1, 0);
        Shuffle(qint16(count), m_order);
    }
}

void Quiz::stop()
{
    m_mode = Idle;
    m_answered = false;
}

void Quiz::step(int delta)
{
    const int count = m_table.count();
    if (count == 0)
        return;
    m_current = ((m_current - 1 + delta) % count + count) % count + 1;
}

void Quiz::select(int record)
{
    if (record >= 1 && record <= m_table.count())
        m_current = record;
}

bool Quiz::nextQuestion()
{
    if (!isRunning() || m_plan.order == QuizPlan::Order::Browse)
        return false;
    const int count = m_table.count();
    if (m_plan.order == QuizPlan::Order::EachOnce) {
        if (m_asked >= count) {
            stop();
            return false;
        }
        m_current = m_order[m_asked + 1];
    } else {
        if (count == 0) {
            stop();
            return false;
        }
        m_current = RndInt(count);
    }
    ++m_asked;
    openQuestion();
    return true;
}

void Quiz::openQuestion()
{
    m_tries = 1;
    m_answered = false;
    if (m_plan.clueCount > 0) {
        m_clueOrder = QList<qint16>(m_plan.clueCount + 1, 0);
        Shuffle(qint16(m_plan.clueCount), m_clueOrder);
    }
    m_choices.clear();
    m_correctChoice = 0;
    if (m_plan.multipleChoice)
        buildChoices();
}

void Quiz::replan(const QuizPlan &plan)
{
    m_plan = plan;
    if (asking())
        openQuestion();
}

bool Quiz::advance()
{
    if (!m_answered)
        return isRunning();
    return nextQuestion();
}

void Quiz::reveal()
{
    if (asking())
        m_answered = true;
}

bool Quiz::asking() const
{
    return isRunning() && m_plan.order != QuizPlan::Order::Browse && m_tries > 0 && !m_answered;
}

Outcome Quiz::submitText(const QString &typed)
{
    if (!asking())
        return {};
    const Match match = CheckAnswer(typed, expected());
    if (!IsRight(match))
        return wrongTry(match);
    m_answered = true;
    ++m_right;
    return {true, match, {}};
}

Outcome Quiz::pickChoice(int choice)
{
    if (!asking() || m_choices.isEmpty() || choice < 1 || choice > m_choices.size())
        return {};
    if (choice != m_correctChoice)
        return wrongTry(Match::Wrong);
    m_answered = true;
    ++m_right;
    return {true, Match::Exact, {}};
}

Reaction Quiz::requestClue()
{
    if (!asking() || m_plan.clueCount == 0)
        return {};
    ++m_tries;
    return reactionToTry();
}

Outcome Quiz::wrongTry(Match match)
{
    // Kept within 16 bits however often a pupil presses Enter.
    if (m_tries < std::numeric_limits<qint16>::max())
        ++m_tries;
    return {true, match, reactionToTry()};
}

Reaction Quiz::reactionToTry()
{
    Reaction reaction;
    if (m_plan.clueCount > 0) {
        if (m_tries <= m_plan.clueCount)
            reaction = {Reaction::Clue, m_clueOrder.value(m_tries)};
        else
            reaction = {Reaction::Reveal, 0};
    } else if (m_plan.revealTry > 0 && m_tries >= m_plan.revealTry) {
        reaction = {Reaction::Reveal, 0};
    } else if (m_plan.hintTry > 0 && m_tries == m_plan.hintTry) {
        reaction = {Reaction::Hint, 0};
    }
    if (reaction.kind == Reaction::Reveal)
        m_answered = true;
    return reaction;
}

void Quiz::buildChoices()
{
    const int count = m_table.count();
    QList<qint16> drawn(count + 1, 0);
    Shuffle(qint16(count), drawn);
    const int offered = qMin(4, count);
    m_choices.clear();
    for (int i = 1; i <= offered; ++i)
        m_choices.append(drawn[i]);
    m_correctChoice = int(m_choices.indexOf(m_current)) + 1;
    if (m_correctChoice == 0 && offered > 0) {
        m_correctChoice = RndInt(offered);
        m_choices[m_correctChoice - 1] = m_current;
    }
}

void Quiz::setChoices(const QList<int> &records)
{
    m_choices = records;
    m_correctChoice = int(m_choices.indexOf(m_current)) + 1;
}

QString Quiz::choiceText(int choice) const
{
    return m_table.text(m_choices.value(choice - 1), m_plan.answerField);
}
