// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseBuilder.h"

#include "shell/core/Shuffle.h"

#include <functional>
#include <utility>

namespace {

// Attribute titles of columns 2 to 9 of each group's word table.
const std::array<std::array<const char *, 8>, 2> GroupTitles{{
    {"Hair", "Shirt", "Bike", "Height", "Weight", "Sneakers", "Friend", "Jacket"},
    {"Hair", "Blouse", "Stereo", "Height", "Weight", "Socks", "Friend", "Backpack"},
}};

int truncated(double value)
{
    return static_cast<int>(value);
}

} // namespace

QString Case::fact(int attribute, int suspect) const
{
    return verbs.at(attribute - 1) + u' ' + value(attribute, suspect);
}

QStringList Solution::step(qsizetype h) const
{
    if (h < 0 || h >= hintEnds.size())
        return {};
    const qsizetype first = h == 0 ? 0 : hintEnds[h - 1] + 1;
    return sentences.mid(first, hintEnds[h] - first + 1);
}

Case CaseBuilder::build(const CaseNumber &number)
{
    Case c;
    c.number = number.text;
    c.group = number.group;
    c.seed = number.seed;
    c.level = number.level;

    // One deterministic seeding of our own generator from the case seed takes the place of
    // re-seeding with the negative seed and then initialising with the seed itself.
    m_random.seed(number.seed);

    const WordGroup &group = m_data.group(number.group);
    const bool boys = number.group == ThiefData::Boys;
    c.groupWord = boys ? QStringLiteral(" boys") : QStringLiteral(" girls");
    c.pronoun = boys ? QStringLiteral(" he ") : QStringLiteral(" she ");
    const auto &titles = GroupTitles[boys ? 0 : 1];
    // Entries are used up by emptying them in this copy, never in the loaded table.
    auto words = group.words;

    const int victimFirst = truncated(11 * draw());
    const int victimLast = truncated(11 * draw());
    c.victim =
        words[WordGroup::FirstNames][victimFirst] + u' ' + words[WordGroup::LastNames][victimLast];
    words[WordGroup::FirstNames][victimFirst].clear();
    words[WordGroup::LastNames][victimLast].clear();

    auto take = [&words](int column, const std::function<int()> &row) {
        int r = row();
        while (words[column][r].isEmpty())
            r = row();
        return std::exchange(words[column][r], QString());
    };
    auto anyNameRow = [this] { return truncated(11 * draw()); };
    for (QString &name : c.names) {
        const QString first = take(WordGroup::FirstNames, anyNameRow);
        name = first + u' ' + take(WordGroup::LastNames, anyNameRow);
    }

    c.displayList = c.names;
    for (int swap = 0; swap < 10; ++swap) {
        const int a = truncated(5 * draw());
        const int b = truncated(5 * draw());
        std::swap(c.displayList[a], c.displayList[b]);
    }

    c.place = group.places[truncated(3 * draw())];
    c.thing = group.things[truncated(3 * draw())];

    const auto &list = c.displayList;
    c.description = QStringLiteral("Six") + c.groupWord + QStringLiteral(", ") + c.victim +
                    QStringLiteral(", ") + list[0] + QStringLiteral(", ") + list[1] +
                    QStringLiteral(", ") + list[2] + QStringLiteral(", ") + list[3] +
                    QStringLiteral(", and ") + list[4] + QStringLiteral(" were in ") + c.place +
                    QStringLiteral(" together.") + QStringLiteral(" After school, ") + c.victim +
                    QStringLiteral(" discovered ") + c.thing + QStringLiteral(" was missing.  ") +
                    QStringLiteral("The only time ") + c.thing +
                    QStringLiteral(" could have been taken is while") + c.pronoun +
                    QStringLiteral("was in ") + c.place + QStringLiteral(", so one of the other") +
                    c.groupWord + QStringLiteral(" must have taken it.");

    auto valueRow = [this] { return truncated(9 * draw() + 1); };
    for (int k = 0; k < Case::Attributes; ++k) {
        int column = truncated(8 * draw() + 2);
        while (words[column][WordGroup::VerbRow].isEmpty())
            column = truncated(8 * draw() + 2);
        c.verbs[k] = std::exchange(words[column][WordGroup::VerbRow], QString());
        for (int s = 0; s < Case::Suspects; ++s)
            c.values[k][s] = take(column, valueRow);
        c.nouns[k] = words[column][WordGroup::NounRow];
        c.titles[k] = QString::fromLatin1(titles[column - WordGroup::FirstAttribute]);
    }

    c.investigation =
        QStringLiteral("The teachers have investigated. They have questioned the witnesses and "
                       "people who know the suspects. They have collected physical evidence "
                       "from ") +
        c.place + QStringLiteral(".  ") +
        QStringLiteral(" They have collected 14 clues, but have not been able to solve the "
                       "crime.  ") +
        QStringLiteral("Therefore, they have called in the school's best detective. That's "
                       "YOU! Now, read the clues and try to stop the thief!");
    c.caseText = c.description + QStringLiteral("\n\n") + c.investigation;

    // Levels 3 and 4 swap on purpose: the chain to suspect 2 is shorter than the one to 3.
    c.thiefPosition = static_cast<qint16>(6 - c.level);
    if (c.level == 3)
        --c.thiefPosition;
    else if (c.level == 4)
        ++c.thiefPosition;
    c.thief = c.name(c.thiefPosition);
    c.thiefPhrase = c.fact(4, c.thiefPosition);

    auto nameClue = [&c](int suspect, int attribute) {
        const Fact f{qint16(attribute), qint16(suspect)};
        return Clue{Clue::Kind::Name, qint16(suspect), f, {}, c.name(suspect) + u' ' + c.fact(f)};
    };
    auto pairClue = [&c](Clue::Kind kind, Fact a, Fact b) {
        const QString joint =
            kind == Clue::Kind::Link ? QStringLiteral(" ") : QStringLiteral(" is not the one who ");
        return Clue{kind, 0, a, b,
                    QStringLiteral("The suspect who ") + c.fact(a) + joint + c.fact(b)};
    };
    auto drawnPair = [&](Clue::Kind kind, Fact a, Fact b) {
        if (draw() < 0.5)
            std::swap(a, b);
        return pairClue(kind, a, b);
    };
    c.clues[0] = nameClue(1, 2);
    c.clues[1] = nameClue(2, 5);
    c.clues[2] = nameClue(3, 1);
    c.clues[3] = nameClue(4, 3);
    c.clue5Flag = draw() < 0.5;
    c.clues[4] = c.clue5Flag || c.level == 1 ? nameClue(5, 1) : nameClue(5, 4);
    c.clues[5] = drawnPair(Clue::Kind::Link, {2, 4}, {4, 4});
    c.clues[6] = draw() < 0.5 ? pairClue(Clue::Kind::Unlink, {1, 4}, {5, 2})
                              : pairClue(Clue::Kind::Link, {1, 4}, {5, 4});
    c.clues[7] = drawnPair(Clue::Kind::Link, {1, 4}, {2, 4});
    c.clues[8] = drawnPair(Clue::Kind::Link, {1, 2}, {2, 2});
    c.clues[9] = drawnPair(Clue::Kind::Link, {2, 2}, {4, 2});
    c.clues[10] = drawnPair(Clue::Kind::Link, {1, 5}, {4, 5});
    c.clues[11] = drawnPair(Clue::Kind::Unlink, {1, 1}, {4, 3});
    c.clues[12] = drawnPair(Clue::Kind::Unlink, {2, 5}, {3, 2});
    c.clues[13] = Clue{Clue::Kind::Thief,
                       0,
                       Fact{4, c.thiefPosition},
                       {},
                       QStringLiteral("The thief ") + c.thiefPhrase};

    c.noTwoSentence = QStringLiteral("No two suspects have the same ") + c.nouns[0] +
                      QStringLiteral(", ") + c.nouns[1] + QStringLiteral(", ") + c.nouns[2] +
                      QStringLiteral(", ") + c.nouns[3] + QStringLiteral(", or ") + c.nouns[4] +
                      QStringLiteral(".  ");

    c.order = QList<qint16>(Case::Clues + 1, 0);
    Shuffle(Case::Clues, c.order, m_random);
    c.clueList = c.noTwoSentence + QStringLiteral("There are 14 clues:\n\n");
    for (int i = 1; i <= Case::Clues; ++i)
        c.clueList += QStringLiteral("Clue %1:  %2.\n").arg(i).arg(c.listedClue(i).text);
    c.clueList += QStringLiteral("\n          --- END OF CLUES ---");

    c.solution = BuildSolution(c);
    return c;
}
