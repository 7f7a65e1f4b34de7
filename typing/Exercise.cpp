// SPDX-License-Identifier: GPL-3.0-or-later
#include "Exercise.h"

#include <algorithm>

double WordsPerMinute(int characters, qint64 milliseconds)
{
    // Under a second the figure would be wild; the pupil has barely begun.
    if (milliseconds < 1000 || characters <= 0)
        return 0.0;
    return (characters / 5.0) / (double(milliseconds) / 60000.0);
}

void Exercise::start(const QStringList &lines)
{
    *this = Exercise();
    for (const QString &line : lines)
        if (!line.isEmpty())
            m_lines.append(line);
    m_finished = m_lines.isEmpty();
}

QString Exercise::currentLine() const
{
    return m_line < m_lines.size() ? m_lines[m_line] : QString();
}

QChar Exercise::expected() const
{
    if (m_finished || m_line >= m_lines.size())
        return {};
    return m_lines[m_line].at(m_position);
}

Exercise::Outcome Exercise::type(QChar c, qint64 now)
{
    // Tab and Enter are keys a pupil may hit by mistake; other control codes are not typing.
    const bool control = c.category() == QChar::Other_Control && c != u'\t' && c != u'\n';
    if (!isRunning() || c.isNull() || control)
        return Outcome::Ignored;
    if (!m_started) {
        m_started = true;
        m_startTick = now;
    }
    const QChar want = expected();
    if (c != want) {
        ++m_wrong;
        ++m_missed[want];
        m_pendingWrong = c;
        if (!m_missedInLine.contains(m_position))
            m_missedInLine.append(m_position);
        return Outcome::Wrong;
    }
    ++m_right;
    m_pendingWrong = QChar();
    if (++m_position < m_lines[m_line].size())
        return Outcome::Right;
    m_position = 0;
    m_missedInLine.clear();
    if (++m_line < m_lines.size())
        return Outcome::LineDone;
    finish(now);
    return Outcome::Finished;
}

void Exercise::finish(qint64 now)
{
    if (m_finished)
        return;
    m_finished = true;
    if (!m_started) {
        m_started = true;
        m_startTick = now;
    }
    m_endTick = std::max(now, m_startTick);
}

double Exercise::accuracy() const
{
    const int total = m_right + m_wrong;
    return total == 0 ? 100.0 : 100.0 * m_right / total;
}

qint64 Exercise::elapsed(qint64 now) const
{
    if (!m_started)
        return 0;
    return std::max<qint64>(0, (m_finished ? m_endTick : now) - m_startTick);
}

double Exercise::wordsPerMinute(qint64 now) const
{
    return WordsPerMinute(m_right, elapsed(now));
}

QList<QPair<QChar, int>> Exercise::mostMissed(int count) const
{
    QList<QPair<QChar, int>> list;
    for (auto it = m_missed.cbegin(); it != m_missed.cend(); ++it)
        list.append({it.key(), it.value()});
    std::stable_sort(list.begin(), list.end(),
                     [](const auto &a, const auto &b) { return a.second > b.second; });
    if (list.size() > count)
        list.resize(std::max(0, count));
    return list;
}
