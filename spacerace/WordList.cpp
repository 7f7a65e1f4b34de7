// SPDX-License-Identifier: GPL-3.0-or-later
#include "WordList.h"

#include "shell/core/Settings.h"

#include <QFile>
#include <QFileInfo>

Q_LOGGING_CATEGORY(lcSpaceRace, "lumbridle.spacerace", QtInfoMsg)

namespace {
WordList &TheList()
{
    static WordList list;
    return list;
}
} // namespace

QByteArray WordList::format() const
{
    WriteWriter writer;
    writer.number(qint64(words.size())).endLine();
    for (const QString &word : words)
        writer.text(word).endLine();
    return writer.data();
}

std::optional<WordList> WordList::parse(const QByteArray &content, const QString &path,
                                        FileError *error)
{
    const QString fileName = QFileInfo(path).fileName();
    WriteReader reader(fileName);
    auto refuse = [&](int line, const QString &problem) -> std::optional<WordList> {
        if (error)
            *error = reader.failed() ? reader.error() : FileError{fileName, line, 0, problem};
        return std::nullopt;
    };
    if (!reader.parse(content))
        return refuse(0, {});
    qint16 count = 0;
    if (!reader.beginLine(1) || !reader.readInt16(count))
        return refuse(0, {});
    if (count < 0 || count > MaxWords)
        return refuse(1, QStringLiteral("the list says it has %1 words; a list holds 0 to %2")
                             .arg(count)
                             .arg(MaxWords));
    WordList list;
    for (int i = 0; i < count; ++i) {
        QString word;
        if (!reader.beginLine(1) || !reader.readText(word))
            return refuse(0, {});
        word = word.trimmed().toUpper();
        if (word.isEmpty())
            return refuse(i + 2, QStringLiteral("word %1 is empty").arg(i + 1));
        if (word.size() > MaxLetters)
            return refuse(
                i + 2,
                QStringLiteral("word %1 is longer than %2 letters").arg(i + 1).arg(MaxLetters));
        if (!isWord(word))
            return refuse(i + 2, QStringLiteral("word %1 (%2) holds something other than "
                                                "letters, \"-\" and \"'\"")
                                     .arg(i + 1)
                                     .arg(word));
        list.words.append(word);
    }
    if (!reader.expectEnd())
        return refuse(0, {});
    list.name = nameFromPath(path);
    list.saved = true;
    return list;
}

std::optional<WordList> WordList::read(const QString &path, FileError *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error =
                FileError{QFileInfo(path).fileName(), 0, 0,
                          QStringLiteral("the file cannot be opened (%1)").arg(file.errorString())};
        return std::nullopt;
    }
    // Twenty quoted words fit in a few hundred bytes; a large file is not a word list.
    if (file.size() > 64 * 1024) {
        if (error)
            *error = FileError{QFileInfo(path).fileName(), 0, 0,
                               QStringLiteral("the file is far too large for a word list")};
        return std::nullopt;
    }
    return parse(file.readAll(), path, error);
}

bool WordList::write(const QString &path, FileError *error) const
{
    return SaveFileAtomically(path, format(), error);
}

QString WordList::nameFromPath(const QString &path)
{
    QString name = path;
    const qsizetype cut = qMax(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\'));
    name = name.mid(cut + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot > 0)
        name.truncate(dot);
    return name.isEmpty() ? QString::fromLatin1(NoName) : name;
}

QString WordList::withExtension(const QString &path)
{
    const QString extension = QString::fromLatin1(Extension);
    return path.endsWith(extension, Qt::CaseInsensitive) ? path : path + extension;
}

QChar WordList::boxKey(QChar key)
{
    if (key >= u'a' && key <= u'z')
        return QChar(key.unicode() - 32);
    if ((key >= u'A' && key <= u'Z') || key == u'-' || key == u'\'')
        return key;
    return {};
}

bool WordList::isWord(const QString &word)
{
    if (word.isEmpty() || word.size() > MaxLetters)
        return false;
    for (const QChar c : word)
        if (boxKey(c) != c)
            return false;
    return true;
}

const WordList &SharedList()
{
    return TheList();
}

void SetSharedList(const WordList &list)
{
    TheList() = list;
    TheSettings().spaceRaceListName = list.name;
    TheSettings().spaceRaceWordCount = list.count();
}
