// SPDX-License-Identifier: GPL-3.0-or-later
#include "DrillMaker.h"

#include <algorithm>

namespace {

// Capitalises a word when the word's first letter may be typed with Shift.
QString withCapital(const QString &word, const QSet<QChar> &allowed)
{
    if (word.isEmpty() || !allowed.contains(word.front().toUpper()))
        return word;
    return word.front().toUpper() + word.mid(1);
}

QString appendWord(const QString &line, const QString &word)
{
    return line.isEmpty() ? word : line + u' ' + word;
}

} // namespace

int DrillMaker::draw(int n)
{
    return qBound(0, int(m_random.next() * n), n - 1);
}

QString DrillMaker::group(const QString &from, int length)
{
    QString text;
    for (int i = 0; i < length; ++i)
        text += from.at(draw(int(from.size())));
    return text;
}

QString DrillMaker::groupsLine(const QString &first, const QString &second)
{
    QString line;
    while (true) {
        const QString &pool = (second.isEmpty() || draw(2) == 0) ? first : second;
        const QString next = group(pool, 3 + draw(3));
        if (appendWord(line, next).size() > LineLength)
            return line;
        line = appendWord(line, next);
    }
}

QString DrillMaker::newKeyLine(const QString &keys, const QString &known)
{
    // Each new key three times on its own, then mixed with keys the pupil already knows.
    QString line;
    for (QChar c : keys) {
        const QString next = QString(3, c);
        if (appendWord(line, next).size() > LineLength)
            return line;
        line = appendWord(line, next);
    }
    const QString pool = known.isEmpty() ? keys : known;
    while (true) {
        QString next;
        const int length = 3 + draw(2);
        for (int i = 0; i < length; ++i)
            next +=
                (i % 2 == 0) ? keys.at(draw(int(keys.size()))) : pool.at(draw(int(pool.size())));
        if (appendWord(line, next).size() > LineLength)
            return line;
        line = appendWord(line, next);
    }
}

QString DrillMaker::wordsLine(const QStringList &words, const QString &newKeys)
{
    QStringList fresh;
    for (const QString &word : words)
        if (std::any_of(word.begin(), word.end(), [&](QChar c) { return newKeys.contains(c); }))
            fresh.append(word);
    QString line;
    for (int tries = 0; tries < 40 && !words.isEmpty(); ++tries) {
        // Half the words use a new key, when there are such words, so the new keys get practice.
        const QStringList &pool = (!fresh.isEmpty() && draw(2) == 0) ? fresh : words;
        const QString next = pool.at(draw(int(pool.size())));
        if (appendWord(line, next).size() > LineLength)
            break;
        line = appendWord(line, next);
    }
    return line;
}

QString DrillMaker::sentence(const QSet<QChar> &allowed, const QStringList &words,
                             const QString &newKeys)
{
    QStringList fitting;
    QStringList fresh;
    for (const QString &text : m_texts.sentences()) {
        const QString fitted = FitText(text, allowed);
        if (fitted.isEmpty())
            continue;
        fitting.append(fitted);
        if (std::any_of(fitted.begin(), fitted.end(), [&](QChar c) { return newKeys.contains(c); }))
            fresh.append(fitted);
    }
    // A sentence that uses a new key is worth more than one that does not.
    if (!fresh.isEmpty())
        return fresh.at(draw(int(fresh.size())));
    if (!fitting.isEmpty())
        return fitting.at(draw(int(fitting.size())));
    // No written sentence fits so few keys yet: a string of real words stands in for one.
    if (words.size() < 3)
        return {};
    QString line = wordsLine(words, QString());
    line = withCapital(line, allowed);
    if (allowed.contains(QChar(u'.')))
        line += u'.';
    return line;
}

QStringList DrillMaker::make(int lesson, const TypingSettings &settings)
{
    const QString newKeys = Lessons::newKeysAllowed(lesson, settings);
    if (newKeys.isEmpty())
        return {};
    const QSet<QChar> allowed = Lessons::allowedKeys(lesson, settings);
    QString known;
    for (QChar c : allowed)
        if (c != u' ' && !newKeys.contains(c))
            known += c;
    std::sort(known.begin(), known.end());
    QString everything = known + newKeys;
    // Capitals are practised on words; as single letters they would fill the groups.
    QString plainKeys;
    for (QChar c : everything)
        if (!c.isUpper())
            plainKeys += c;
    if (plainKeys.isEmpty())
        plainKeys = everything;

    QStringList words;
    for (const QString &word : m_texts.words()) {
        const QString fitted = FitText(word, allowed);
        if (!fitted.isEmpty())
            words.append(fitted);
    }

    QStringList lines;
    const bool capitalsLesson =
        std::all_of(newKeys.begin(), newKeys.end(), [](QChar c) { return c.isUpper(); });
    if (capitalsLesson && !words.isEmpty()) {
        // Shift is practised on words that start with a capital.
        for (int l = 0; l < 2; ++l) {
            QString line;
            for (int tries = 0; tries < 40; ++tries) {
                const QString next = withCapital(words.at(draw(int(words.size()))), allowed);
                if (appendWord(line, next).size() > LineLength)
                    break;
                line = appendWord(line, next);
            }
            lines.append(line);
        }
    } else {
        lines.append(newKeyLine(newKeys, known.isEmpty() ? QString() : plainKeys));
        lines.append(groupsLine(plainKeys, newKeys));
    }
    const bool numbersLesson =
        std::all_of(newKeys.begin(), newKeys.end(), [](QChar c) { return c.isDigit(); });
    if (numbersLesson && !words.isEmpty()) {
        // Numbers are practised as they are met in reading: a number, then a word.
        QString digits;
        for (QChar c : plainKeys)
            if (c.isDigit())
                digits += c;
        QString line;
        for (int tries = 0; tries < 20; ++tries) {
            const QString pair = group(tries % 2 == 0 ? newKeys : digits, 1 + draw(3)) + u' ' +
                                 words.at(draw(int(words.size())));
            if (appendWord(line, pair).size() > LineLength)
                break;
            line = appendWord(line, pair);
        }
        lines.append(line);
    } else if (words.size() >= 3) {
        QString line = wordsLine(words, newKeys);
        // Marks that end a sentence are practised at the end of a word.
        for (QChar c : newKeys)
            if (!c.isLetterOrNumber() && c != u'\'' && !line.isEmpty() &&
                line.size() < LineLength - 4)
                line = appendWord(line, words.at(draw(int(words.size()))) + c);
        lines.append(line);
    } else {
        lines.append(groupsLine(plainKeys, QString()));
    }
    const QString last = sentence(allowed, words, newKeys);
    lines.append(last.isEmpty() ? groupsLine(plainKeys, newKeys) : last);
    lines.removeAll(QString());
    return lines;
}
