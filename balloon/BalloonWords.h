// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"
#include "shell/core/WriteFormat.h"

#include <array>
#include <QList>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcBalloon)

// One word to guess and the sentence that hints at it, with "___" where the word goes.
struct BalloonWord {
    QString word;
    QString hint;
};

// The word lists of "balloon.dat", one per grade 1 to 6. Each line holds a grade, a word in
// capitals and its hint sentence. Loaded once when the balloon window opens.
class BalloonWords {
public:
    static constexpr auto FileName = "balloon.dat";
    static constexpr int Grades = 6;
    // Longer words would not fit their boxes on a small screen.
    static constexpr int LongestWord = 30;

    bool load(const QString &path);
    bool parse(const QByteArray &content);
    const FileError &error() const { return m_error; }

    // The words of a grade from 1 to 6; an empty list for any other grade.
    const QList<BalloonWord> &grade(int grade) const;

    // Whether a word can be played: capitals, "-" and "'" only, at least one letter, not too long.
    static bool isPlayable(const QString &word);

private:
    bool read(WriteReader &reader);

    std::array<QList<BalloonWord>, Grades> m_grades;
    FileError m_error;
};

// Draws the words of each grade in a shuffled order, so none comes back before the whole
// list has been played; a new round of the list never starts with the word just played.
class BalloonPicker {
public:
    explicit BalloonPicker(RandomSource &random = CurrentRandomSource()) : m_random(random) {}

    // The index (from 0) of the next word of a grade whose list holds `count` words, or -1
    // when the list is empty.
    int next(int grade, int count);

private:
    struct Deck {
        QList<qint16> order; // element 0 unused, as Shuffle leaves it
        int position = 0;
        int last = -1;
    };
    RandomSource &m_random;
    std::array<Deck, BalloonWords::Grades> m_decks;
};
