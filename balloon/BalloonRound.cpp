// SPDX-License-Identifier: GPL-3.0-or-later
#include "BalloonRound.h"

#include "BalloonWords.h"

#include <QRegularExpression>

namespace {
const QString Blank = QStringLiteral("___");
}

int BalloonRound::slot(QChar letter)
{
    const QChar upper = letter.toUpper();
    return upper >= u'A' && upper <= u'Z' ? upper.unicode() - u'A' : -1;
}

void BalloonRound::start(const QString &word, const QString &hint)
{
    *this = BalloonRound();
    if (!BalloonWords::isPlayable(word))
        return;
    m_word = word;
    m_hint = hint;
    // The hint must never give the answer away, even if a list has it written in.
    m_hint.replace(
        QRegularExpression(QStringLiteral("\\b%1\\b").arg(QRegularExpression::escape(word)),
                           QRegularExpression::CaseInsensitiveOption),
        Blank);
}

BalloonRound::Guess BalloonRound::guess(QChar letter)
{
    const int index = slot(letter);
    if (index < 0)
        return Guess::NotALetter;
    if (!isRunning())
        return Guess::Over;
    if (m_tried[size_t(index)])
        return Guess::AlreadyTried;
    m_tried[size_t(index)] = true;
    if (m_word.contains(QChar(u'A' + index)))
        return Guess::Right;
    ++m_misses;
    return Guess::Wrong;
}

BalloonRound::Hint BalloonRound::askHint()
{
    if (!isRunning())
        return Hint::Over;
    if (m_hint.isEmpty())
        return Hint::NoHint;
    if (m_hintGiven)
        return Hint::AlreadyGiven;
    // The last balloon is kept for a last guess: a hint must never lose the round.
    if (balloons() <= 1)
        return Hint::LastBalloon;
    m_hintGiven = true;
    return Hint::Given;
}

void BalloonRound::giveUp()
{
    if (isRunning())
        m_gaveUp = true;
}

bool BalloonRound::isWon() const
{
    if (m_word.isEmpty())
        return false;
    for (QChar c : m_word)
        if (slot(c) >= 0 && !m_tried[size_t(slot(c))])
            return false;
    return true;
}

QString BalloonRound::tried() const
{
    QString letters;
    for (int i = 0; i < 26; ++i)
        if (m_tried[size_t(i)])
            letters += QChar(u'A' + i);
    return letters;
}

QString BalloonRound::wrongLetters() const
{
    QString letters;
    for (QChar c : tried())
        if (!m_word.contains(c))
            letters += c;
    return letters;
}

bool BalloonRound::wasTried(QChar letter) const
{
    const int index = slot(letter);
    return index >= 0 && m_tried[size_t(index)];
}

bool BalloonRound::isShown(int index) const
{
    if (index < 0 || index >= m_word.size())
        return false;
    const int letter = slot(m_word.at(index));
    return letter < 0 || m_tried[size_t(letter)] || isLost() || m_gaveUp;
}

QString BalloonRound::shown() const
{
    QString text;
    for (int i = 0; i < m_word.size(); ++i)
        text += isShown(i) ? m_word.at(i) : QChar(u'_');
    return text;
}

BalloonSettings BalloonSettings::fromValues(const std::array<qint16, 2> &values)
{
    BalloonSettings settings;
    settings.source = values[0] == FriendTypes ? FriendTypes : ComputerPicks;
    settings.grade = qBound(qint16(1), values[1], qint16(BalloonWords::Grades));
    return settings;
}
