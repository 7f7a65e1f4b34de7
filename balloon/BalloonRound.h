// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QString>

// One round of the balloon game: a hidden word, the letters tried so far and the balloons the
// clown still holds. A wrong letter or a hint costs a balloon; the round is won when every
// letter shows and lost when the last balloon has gone.
class BalloonRound {
public:
    static constexpr int Balloons = 6;

    enum class Guess { Right, Wrong, AlreadyTried, NotALetter, Over };
    enum class Hint { Given, AlreadyGiven, LastBalloon, NoHint, Over };

    // Starts a round; a word that cannot be played leaves no round running.
    void start(const QString &word, const QString &hint = {});

    Guess guess(QChar letter);
    Hint askHint();
    // Ends the round unfinished and shows the whole word.
    void giveUp();

    bool isRunning() const { return !m_word.isEmpty() && !m_gaveUp && !isWon() && !isLost(); }
    // Whether the pupil has done anything yet: tried a letter or taken the hint.
    bool isTouched() const { return m_misses > 0 || m_hintGiven || !tried().isEmpty(); }
    bool isWon() const;
    bool isLost() const { return !m_word.isEmpty() && balloons() == 0; }

    QString word() const { return m_word; }
    // The hint with the word blanked out, or empty when the word came without one.
    QString hint() const { return m_hint; }
    bool hintGiven() const { return m_hintGiven; }
    int balloons() const { return Balloons - m_misses - (m_hintGiven ? 1 : 0); }
    int misses() const { return m_misses; }
    // Every letter tried, in alphabetical order, and those of them not in the word.
    QString tried() const;
    QString wrongLetters() const;
    bool wasTried(QChar letter) const;
    // Whether the character at `index` of the word shows: "-" and "'" always do.
    bool isShown(int index) const;
    // The word as the pupil sees it: hidden letters as "_".
    QString shown() const;

private:
    static int slot(QChar letter);

    QString m_word;
    QString m_hint;
    std::array<bool, 26> m_tried{};
    int m_misses = 0;
    bool m_hintGiven = false;
    bool m_gaveUp = false;
};

// What "lumbridle52.ini" line 1 holds: where the word comes from, then the grade.
struct BalloonSettings {
    static constexpr qint16 ComputerPicks = 1;
    static constexpr qint16 FriendTypes = 2;

    qint16 source = ComputerPicks;
    qint16 grade = 1;

    // Values outside their range (a hand-edited or damaged file) are brought into it: an
    // unknown source means the computer picks, a grade goes to the nearest of 1 to 6.
    static BalloonSettings fromValues(const std::array<qint16, 2> &values);
    std::array<qint16, 2> values() const { return {source, grade}; }
};

// The words won and played in this sitting.
struct BalloonScore {
    int won = 0;
    int played = 0;
    void record(bool win)
    {
        ++played;
        if (win)
            ++won;
    }
};
