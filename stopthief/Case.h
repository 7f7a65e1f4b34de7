// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QList>
#include <QString>
#include <QStringList>

// One piece of knowledge about a suspect: attribute `attribute` (1-5) has the value that
// belongs to suspect `suspect` (1-5, generation order).
struct Fact {
    qint16 attribute = 0;
    qint16 suspect = 0;
    bool operator==(const Fact &) const = default;
};

// One of the fourteen clues: a suspect named with a fact, two facts of one suspect (link),
// two facts of two different suspects (unlink), or the fact that marks the thief.
struct Clue {
    enum class Kind { Name, Link, Unlink, Thief };
    Kind kind = Kind::Name;
    qint16 suspect = 0; // name clues: the suspect named
    Fact first;
    Fact second;  // link and unlink clues only
    QString text; // without a final full stop
};

// The written elimination argument: sentences in order, split into hint steps. Step h
// (0-based) ends with the sentence at index hintEnds[h].
struct Solution {
    QStringList sentences;
    QList<qint16> hintEnds;

    QString text() const { return sentences.join(QStringLiteral("\n\n")); }
    qsizetype steps() const { return hintEnds.size(); }
    // The sentences of step h (0-based): those after the end of step h - 1, up to its own end.
    QStringList step(qsizetype h) const;
};

// Everything a case number makes: the story, five suspects with five attributes each, the
// fourteen clues in the order they are listed, the thief and the solution. Suspects and
// attributes are numbered 1 to 5 in the accessors, as the clue scheme counts them.
struct Case {
    static constexpr int Suspects = 5;
    static constexpr int Attributes = 5;
    static constexpr int Clues = 14;

    QString number;
    qint16 group = 1;
    qint16 seed = 0;
    qint16 level = 1;
    QString groupWord; // " boys" or " girls"
    QString pronoun;   // " he " or " she "

    QString victim;
    std::array<QString, Suspects> names;       // generation order
    std::array<QString, Suspects> displayList; // the order the pupil sees them in
    QString place;
    QString thing;

    std::array<QString, Attributes> verbs;
    std::array<QString, Attributes> nouns;
    std::array<QString, Attributes> titles;
    std::array<std::array<QString, Suspects>, Attributes> values; // [attribute][suspect]

    qint16 thiefPosition = 0; // in generation order
    QString thief;
    QString thiefPhrase;
    bool clue5Flag = false;

    std::array<Clue, Clues> clues; // as the scheme numbers them
    QList<qint16> order;           // elements 1..14: the clue listed at each position

    QString description;
    QString investigation;
    QString caseText;
    QString noTwoSentence;
    QString clueList;
    Solution solution;

    QString name(int suspect) const { return names.at(suspect - 1); }
    QString value(int attribute, int suspect) const
    {
        return values.at(attribute - 1).at(suspect - 1);
    }
    // The phrase of a fact: verb, one blank, value.
    QString fact(int attribute, int suspect) const;
    QString fact(const Fact &f) const { return fact(f.attribute, f.suspect); }
    // The clue listed at position 1..14.
    const Clue &listedClue(int position) const { return clues.at(order.at(position) - 1); }
    bool isThief(const QString &suspectName) const { return suspectName == thief; }
};
