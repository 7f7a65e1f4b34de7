// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Lessons.h"
#include "TypingTexts.h"

#include "shell/core/Random.h"

#include <QStringList>

// Makes the lines of a lesson's drill from only the characters the lesson allows: groups of the
// new keys, groups of every key learned so far, real words, then a short sentence.
class DrillMaker {
public:
    static constexpr int LineLength = 36;

    DrillMaker(const TypingTexts &texts, RandomSource &random = CurrentRandomSource())
        : m_texts(texts), m_random(random)
    {
    }

    // The drill of a lesson with the given settings; empty when the lesson is closed.
    QStringList make(int lesson, const TypingSettings &settings);

private:
    int draw(int n); // 0 to n - 1
    QString group(const QString &from, int length);
    QString groupsLine(const QString &first, const QString &second);
    QString newKeyLine(const QString &keys, const QString &known);
    QString wordsLine(const QStringList &words, const QString &newKeys);
    QString sentence(const QSet<QChar> &allowed, const QStringList &words, const QString &newKeys);

    const TypingTexts &m_texts;
    RandomSource &m_random;
};
