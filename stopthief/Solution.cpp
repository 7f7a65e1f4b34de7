// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseBuilder.h"

namespace {

// "a", "a and b" are never needed: the lists here have three or four parts.
QString series(const QStringList &parts)
{
    return parts.mid(0, parts.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(", and ") +
           parts.last();
}

// Writes the argument stage by stage; each stage is one hint step.
class Argument {
public:
    explicit Argument(const Case &c) : m_c(c), m_pronoun(c.pronoun.trimmed()) {}

    Solution write();

private:
    QString name(int s) const { return m_c.name(s); }
    QString fact(int k, int s) const { return m_c.fact(k, s); }
    QString says(int s, int k) const { return name(s) + u' ' + fact(k, s); }
    QString thiefEnding(bool isThief) const
    {
        return isThief ? QStringLiteral(" is the thief.") : QStringLiteral(" is not the thief.");
    }
    void add(const QString &sentence) { m_solution.sentences.append(sentence); }
    void endStep() { m_solution.hintEnds.append(qint16(m_solution.sentences.size() - 1)); }

    void suspectFive();
    void chainToFour();
    void chainToTwo();
    void firstAttributeRoundUp();
    void thiefIsOrIsNotThree();

    const Case &m_c;
    const QString m_pronoun;
    Solution m_solution;
};

// Stage 1: suspect 5's value of attribute 4 comes straight from the name clues.
void Argument::suspectFive()
{
    const int n = m_c.thiefPosition;
    if (m_c.level == 1) {
        add(QStringLiteral("Since ") + says(5, 1) + QStringLiteral(", ") + m_pronoun +
            QStringLiteral(" must be the one who ") + fact(4, 5) + QStringLiteral(". Therefore, ") +
            name(5) + thiefEnding(true));
    } else if (m_c.clue5Flag) {
        add(QStringLiteral("Since ") + says(5, 1) + QStringLiteral(", ") + m_pronoun +
            QStringLiteral(" must be the one who ") + fact(4, 5) + u'.');
        add(QStringLiteral("Since the thief ") + fact(4, n) + QStringLiteral(", ") + name(5) +
            thiefEnding(false));
    } else {
        add(QStringLiteral("Since the thief ") + fact(4, n) + QStringLiteral(", and ") +
            says(5, 4) + QStringLiteral(", ") + name(5) + thiefEnding(false));
    }
    endStep();
}

// Stage 2: one suspect has the first, second and fourth values of suspect 4; everyone else
// is ruled out, so that suspect is number 4.
void Argument::chainToFour()
{
    const bool linked = m_c.clues[6].kind == Clue::Kind::Link;
    QStringList facts{fact(1, 4), fact(2, 4), fact(4, 4)};
    if (linked)
        facts.append(fact(5, 4));
    add(QStringLiteral("Therefore, one suspect ") + series(facts) + u'.');
    QStringList others{says(1, 2)};
    if (linked)
        others.append(says(2, 5));
    others.append(says(3, 1));
    others.append(m_c.clue5Flag ? says(5, 1) : says(5, 4));
    add(QStringLiteral("But ") + series(others) + u'.');
    if (!linked)
        add(QStringLiteral("Since ") + says(2, 5) + QStringLiteral(", ") + m_pronoun +
            QStringLiteral(" is not the suspect who ") + fact(1, 4) + u'.');
    add(QStringLiteral("Therefore, that one suspect is ") + name(4) + QStringLiteral(", and ") +
        m_pronoun + thiefEnding(m_c.thiefPosition == 4));
    endStep();
}

// Stage 3: the same one link further, to suspect 2.
void Argument::chainToTwo()
{
    add(QStringLiteral("Therefore, one suspect ") + series({fact(1, 2), fact(2, 2), fact(4, 2)}) +
        u'.');
    add(QStringLiteral("But ") +
        series({says(1, 2), says(3, 1), says(4, 4), m_c.clue5Flag ? says(5, 1) : says(5, 4)}) +
        u'.');
    add(QStringLiteral("Therefore, that one suspect is ") + name(2) + QStringLiteral(", and ") +
        m_pronoun + thiefEnding(m_c.thiefPosition == 2));
    endStep();
}

// Stage 4: with four values of attribute 1 placed, suspect 1 has the last one, and the clue
// that keeps it apart from suspect 3's value of attribute 4 places that value too.
void Argument::firstAttributeRoundUp()
{
    if (!m_c.clue5Flag)
        add(QStringLiteral("Since ") + says(5, 4) + QStringLiteral(", ") + m_pronoun +
            QStringLiteral(" must be the one who ") + fact(1, 5) + u'.');
    add(series({says(2, 1), says(3, 1), says(4, 1), says(5, 1)}) + u'.');
    add(QStringLiteral("Therefore, ") + name(1) + QStringLiteral(" is the one who ") + fact(1, 1) +
        u'.');
    add(QStringLiteral("This means that ") + name(1) + QStringLiteral(" is not the suspect who ") +
        fact(4, 3) + u'.');
    add(QStringLiteral("Since ") + series({says(2, 4), says(4, 4), says(5, 4)}) +
        QStringLiteral(", ") + name(3) + QStringLiteral(" must be the one who ") + fact(4, 3) +
        u'.');
    if (m_c.level == 4)
        thiefIsOrIsNotThree();
    endStep();
}

void Argument::thiefIsOrIsNotThree()
{
    add(QStringLiteral("Since the thief ") + fact(4, m_c.thiefPosition) + QStringLiteral(", ") +
        name(3) + thiefEnding(m_c.thiefPosition == 3));
}

Solution Argument::write()
{
    suspectFive();
    if (m_c.level >= 2)
        chainToFour();
    if (m_c.level >= 3)
        chainToTwo();
    if (m_c.level >= 4)
        firstAttributeRoundUp();
    if (m_c.level >= 5) {
        thiefIsOrIsNotThree();
        add(QStringLiteral("By process of elimination, ") + m_c.thief + thiefEnding(true));
        endStep();
    }
    return m_solution;
}

} // namespace

Solution BuildSolution(const Case &c)
{
    return Argument(c).write();
}
