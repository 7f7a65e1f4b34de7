// SPDX-License-Identifier: GPL-3.0-or-later
#include "SpeedTest.h"

#include "shell/core/TextWrap.h"

#include <QCoreApplication>

QStringList SpeedTest::linesFor(const QString &passage)
{
    QStringList lines = WordWrap(passage.simplified(), LineWidth - 1);
    for (qsizetype i = 0; i + 1 < lines.size(); ++i)
        lines[i] += u' ';
    return lines;
}

void SpeedTest::start(const QString &title, int minutes, const QString &passage)
{
    m_title = title;
    m_minutes = qBound(1, minutes, 2);
    m_exercise.start(linesFor(passage));
}

int SpeedTest::secondsLeft(qint64 now) const
{
    const qint64 total = qint64(m_minutes) * 60000;
    const qint64 left = std::max<qint64>(0, total - m_exercise.elapsed(now));
    return int((left + 999) / 1000);
}

bool SpeedTest::checkTime(qint64 now)
{
    if (!m_exercise.isStarted() || m_exercise.isFinished())
        return false;
    const qint64 end = m_exercise.elapsed(now) - qint64(m_minutes) * 60000;
    if (end < 0)
        return false;
    // A late tick still ends the test at its exact length.
    m_exercise.finish(now - end);
    return true;
}

TestResult SpeedTest::result(qint64 now) const
{
    TestResult r;
    r.title = m_title;
    r.minutes = m_minutes;
    r.seconds = m_exercise.elapsed(now) / 1000.0;
    r.wordsPerMinute = m_exercise.wordsPerMinute(now);
    r.accuracy = m_exercise.accuracy();
    QStringList missed;
    for (const auto &[c, count] : m_exercise.mostMissed(3))
        missed.append(c == u' ' ? QCoreApplication::translate("SpeedTest", "Space") : QString(c));
    r.missed = missed.join(QStringLiteral(" "));
    return r;
}

const TestResult *TestResults::best() const
{
    const TestResult *best = nullptr;
    for (const TestResult &r : m_results)
        if (!best || r.wordsPerMinute > best->wordsPerMinute ||
            (r.wordsPerMinute == best->wordsPerMinute && r.accuracy > best->accuracy))
            best = &r;
    return best;
}
