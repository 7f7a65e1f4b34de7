// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/WriteFormat.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// A passage for a speed test: its title and its text on one line.
struct Passage {
    QString title;
    QString text;
};

// The words, sentences and speed-test passages of "typing.dat". Each line starts with its
// kind: "words" and any number of words in small letters; "sentence" and one sentence;
// "passage", a title and the passage. Every character must be one a key of the map types.
class TypingTexts {
public:
    static constexpr auto FileName = "typing.dat";
    static constexpr int LongestWord = 20;
    static constexpr int LongestSentence = 60;
    static constexpr int LongestPassage = 2000;

    bool load(const QString &path);
    bool parse(const QByteArray &content);
    const FileError &error() const { return m_error; }

    const QStringList &words() const { return m_words; }
    const QStringList &sentences() const { return m_sentences; }
    const QList<Passage> &passages() const { return m_passages; }

    // Whether every character of the text is typed by a key of the map.
    static bool isTypeable(const QString &text);

private:
    bool read(const WriteReader &reader);
    bool fail(int line, int item, const QString &problem);

    QStringList m_words;
    QStringList m_sentences;
    QList<Passage> m_passages;
    FileError m_error;
    QString m_fileName;
};

// How a text is made to fit what a pupil may type: without Shift it is put in small letters and
// loses its end mark when that needs a key not yet allowed. Empty when a character is still
// not allowed.
QString FitText(const QString &text, const QSet<QChar> &allowed);
// A passage as a speed test shows it: whole with Shift on; without Shift in small letters and
// without the marks that need Shift.
QString PassageForTest(const QString &text, bool shift);
