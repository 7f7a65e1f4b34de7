// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Exercise.h"

#include <QList>
#include <QString>

// What one speed test gave: the passage, the time typed, speed, accuracy and missed keys.
struct TestResult {
    QString title;
    int minutes = 1;
    double seconds = 0;
    double wordsPerMinute = 0;
    double accuracy = 100;
    QString missed; // the most missed characters, most first, as typed (space shown as "Space")
};

// A timed test on a passage: the clock starts with the first key, and the test ends when the
// time is up or the passage is typed to its end, whichever comes first.
class SpeedTest {
public:
    static constexpr int LineWidth = 40;

    // The passage as lines to type; every line but the last ends in the space that joins it to
    // the next, so the pupil types it as in running text.
    static QStringList linesFor(const QString &passage);

    void start(const QString &title, int minutes, const QString &passage);
    Exercise &exercise() { return m_exercise; }
    const Exercise &exercise() const { return m_exercise; }
    int minutes() const { return m_minutes; }
    // Whole seconds left, rounded up; all of them before the first key.
    int secondsLeft(qint64 now) const;
    // Ends the test when its time is up; true when it did so now.
    bool checkTime(qint64 now);
    TestResult result(qint64 now) const;

private:
    Exercise m_exercise;
    QString m_title;
    int m_minutes = 1;
};

// The speed tests of one sitting, in order.
class TestResults {
public:
    void add(const TestResult &result) { m_results.append(result); }
    const QList<TestResult> &all() const { return m_results; }
    bool isEmpty() const { return m_results.isEmpty(); }
    // The fastest test; of equally fast ones the more accurate, then the first.
    const TestResult *best() const;

private:
    QList<TestResult> m_results;
};
