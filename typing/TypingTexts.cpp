// SPDX-License-Identifier: GPL-3.0-or-later
#include "TypingTexts.h"

#include "Keyboard.h"

#include <QFileInfo>

bool TypingTexts::load(const QString &path)
{
    m_fileName = QFileInfo(path).fileName();
    WriteReader reader(m_fileName);
    if (!reader.load(path)) {
        m_error = reader.error();
        return false;
    }
    return read(reader);
}

bool TypingTexts::parse(const QByteArray &content)
{
    WriteReader reader(m_fileName.isEmpty() ? QString::fromLatin1(FileName) : m_fileName);
    if (!reader.parse(content)) {
        m_error = reader.error();
        return false;
    }
    return read(reader);
}

bool TypingTexts::fail(int line, int item, const QString &problem)
{
    m_error.file = m_fileName.isEmpty() ? QString::fromLatin1(FileName) : m_fileName;
    m_error.line = line;
    m_error.item = item;
    m_error.problem = problem;
    m_words.clear();
    m_sentences.clear();
    m_passages.clear();
    return false;
}

bool TypingTexts::read(const WriteReader &reader)
{
    m_error = {};
    m_words.clear();
    m_sentences.clear();
    m_passages.clear();
    const QList<QList<WriteItem>> &lines = reader.lines();
    for (qsizetype l = 0; l < lines.size(); ++l) {
        const QList<WriteItem> &items = lines[l];
        const int line = int(l + 1);
        if (items.isEmpty())
            continue;
        for (qsizetype i = 0; i < items.size(); ++i)
            if (!items[i].quoted)
                return fail(line, int(i + 1), QStringLiteral("a text in quotes was expected"));
        const QString kind = items[0].text;
        if (kind == u"words") {
            for (qsizetype i = 1; i < items.size(); ++i) {
                const QString &word = items[i].text;
                const bool small = !word.isEmpty() && word.size() <= LongestWord &&
                                   std::all_of(word.begin(), word.end(), [](QChar c) {
                                       return (c >= u'a' && c <= u'z') || c == u'\'';
                                   });
                if (!small)
                    return fail(line, int(i + 1),
                                QStringLiteral("a word must be small letters a to z"));
                m_words.append(word);
            }
        } else if (kind == u"sentence") {
            if (items.size() != 2)
                return fail(line, 0, QStringLiteral("a sentence line holds one sentence"));
            const QString &text = items[1].text;
            if (text.trimmed().isEmpty() || text.size() > LongestSentence || !isTypeable(text) ||
                text != text.simplified())
                return fail(line, 2,
                            QStringLiteral("the sentence is empty, too long or holds "
                                           "a character no key types"));
            m_sentences.append(text);
        } else if (kind == u"passage") {
            if (items.size() != 3)
                return fail(line, 0, QStringLiteral("a passage line holds a title and a text"));
            const QString &text = items[2].text;
            if (items[1].text.trimmed().isEmpty() || items[1].text.size() > 60)
                return fail(line, 2, QStringLiteral("the title is empty or too long"));
            if (text.trimmed().isEmpty() || text.size() > LongestPassage || !isTypeable(text) ||
                text != text.simplified())
                return fail(line, 3,
                            QStringLiteral("the passage is empty, too long or holds "
                                           "a character no key types"));
            m_passages.append({items[1].text, text});
        } else {
            return fail(line, 1, QStringLiteral("unknown kind of line"));
        }
    }
    if (m_words.isEmpty() || m_passages.isEmpty())
        return fail(0, 0, QStringLiteral("there are no words or no passages"));
    return true;
}

bool TypingTexts::isTypeable(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return Keyboard::keyFor(c) != nullptr; });
}

QString FitText(const QString &text, const QSet<QChar> &allowed)
{
    QString fitted = text;
    const bool capitals =
        std::any_of(allowed.begin(), allowed.end(), [](QChar c) { return c.isUpper(); });
    if (!capitals)
        fitted = fitted.toLower();
    while (!fitted.isEmpty() && QStringLiteral(".?!").contains(fitted.back()) &&
           !allowed.contains(fitted.back()))
        fitted.chop(1);
    for (QChar c : std::as_const(fitted))
        if (!allowed.contains(c))
            return {};
    return fitted;
}

QString PassageForTest(const QString &text, bool shift)
{
    if (shift)
        return text;
    QString plain;
    for (QChar c : text.toLower())
        if (!Keyboard::needsShift(c))
            plain += c;
    return plain.simplified();
}
