// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QStringList>

// The typing of a drill or a speed test, line by line: the key expected next, the keys typed
// right and wrong, and the speed and accuracy they give. A wrong key is counted and the pupil
// stays on the same character until the right key is typed. Times are clock ticks (ms).
class Exercise {
public:
    enum class Outcome { Ignored, Right, Wrong, LineDone, Finished };

    void start(const QStringList &lines);
    // A character typed at a moment. Control characters other than Tab and Enter ("\n"), and
    // keys typed once the exercise is finished, are ignored.
    Outcome type(QChar c, qint64 now);
    // Ends the exercise early (the time of a speed test ran out) at the given moment.
    void finish(qint64 now);

    bool isStarted() const { return m_started; }
    bool isFinished() const { return m_finished; }
    bool isRunning() const { return !m_lines.isEmpty() && !m_finished; }
    const QStringList &lines() const { return m_lines; }
    int lineIndex() const { return m_line; }
    int position() const { return m_position; }
    QString currentLine() const;
    // The character to type next; null when finished.
    QChar expected() const;
    // The wrong character just typed at the current position, or null.
    QChar pendingWrong() const { return m_pendingWrong; }
    // Positions of the current line where a wrong key was typed before the right one.
    const QList<int> &missedInLine() const { return m_missedInLine; }

    int rightKeys() const { return m_right; }
    int wrongKeys() const { return m_wrong; }
    // The share of keystrokes that were right, 0 to 100; 100 before any key.
    double accuracy() const;
    // Milliseconds from the first key to `now`, or to the end once finished.
    qint64 elapsed(qint64 now) const;
    // Words of five characters typed right per minute.
    double wordsPerMinute(qint64 now) const;
    // The characters most often missed, most first (ties in character order), at most `count`.
    QList<QPair<QChar, int>> mostMissed(int count) const;

private:
    QStringList m_lines;
    int m_line = 0;
    int m_position = 0;
    int m_right = 0;
    int m_wrong = 0;
    bool m_started = false;
    bool m_finished = false;
    qint64 m_startTick = 0;
    qint64 m_endTick = 0;
    QChar m_pendingWrong;
    QList<int> m_missedInLine;
    QMap<QChar, int> m_missed;
};

// Words per minute from characters typed right in a time: five characters make a word.
double WordsPerMinute(int characters, qint64 milliseconds);
