// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/WriteFormat.h"

#include <optional>
#include <QLoggingCategory>
#include <QStringList>

Q_DECLARE_LOGGING_CATEGORY(lcSpaceRace)

// A spelling list of up to twenty upper-case words with its name and whether it matches the
// file it was last opened from or saved to; and the ".srl" file that holds it: the count on
// the first line, then one quoted word a line.
class WordList {
public:
    static constexpr qint16 MaxWords = 20;
    static constexpr int MaxLetters = 15;
    static constexpr auto NoName = "NONE";
    static constexpr auto Extension = ".srl";

    QString name = QString::fromLatin1(NoName);
    QStringList words;
    bool saved = false;

    qint16 count() const { return qint16(words.size()); }
    bool isEmpty() const { return words.isEmpty(); }
    // Has words that would be lost: the list differs from every file.
    bool hasUnsavedWords() const { return !words.isEmpty() && !saved; }

    // The file's content: the count, then the words in order.
    QByteArray format() const;
    // Reads a whole file or nothing: a damaged file gives no list and an error naming the
    // line and the problem. The name comes from the file name; the list counts as saved.
    static std::optional<WordList> parse(const QByteArray &content, const QString &path,
                                         FileError *error = nullptr);
    static std::optional<WordList> read(const QString &path, FileError *error = nullptr);
    // Writes through the atomic save, so a failed write keeps the old file.
    bool write(const QString &path, FileError *error = nullptr) const;

    // The list's name from a file's path: without any folder (cut at "/" and at "\") and
    // without its extension.
    static QString nameFromPath(const QString &path);
    // The path with ".srl" added unless it already ends so.
    static QString withExtension(const QString &path);

    // What a key typed into a word box becomes: small letters turn into capitals; capitals,
    // "-" and "'" stay; anything else gives a null character (refused).
    static QChar boxKey(QChar key);
    // Whether a text can stand in the list: 1 to 15 characters that boxKey keeps as they are.
    static bool isWord(const QString &word);
};

// The list shared by the options and the race for the life of the program; changing it
// through SetSharedList also keeps the list's name and count in the shared settings.
const WordList &SharedList();
void SetSharedList(const WordList &list);
