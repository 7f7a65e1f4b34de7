// SPDX-License-Identifier: GPL-3.0-or-later
#include "BalloonWords.h"

#include "shell/core/Shuffle.h"

#include <limits>

Q_LOGGING_CATEGORY(lcBalloon, "lumbridle.balloon")

bool BalloonWords::isPlayable(const QString &word)
{
    if (word.isEmpty() || word.size() > LongestWord)
        return false;
    bool letter = false;
    for (QChar c : word) {
        if (c >= u'A' && c <= u'Z')
            letter = true;
        else if (c != u'-' && c != u'\'')
            return false;
    }
    return letter;
}

const QList<BalloonWord> &BalloonWords::grade(int grade) const
{
    static const QList<BalloonWord> none;
    return grade >= 1 && grade <= Grades ? m_grades[size_t(grade - 1)] : none;
}

bool BalloonWords::load(const QString &path)
{
    WriteReader reader(QString::fromLatin1(FileName));
    reader.load(path);
    return read(reader);
}

bool BalloonWords::parse(const QByteArray &content)
{
    WriteReader reader(QString::fromLatin1(FileName));
    reader.parse(content);
    return read(reader);
}

bool BalloonWords::read(WriteReader &reader)
{
    m_error = FileError();
    std::array<QList<BalloonWord>, Grades> grades;
    auto fail = [this](int line, int item, const QString &problem) {
        m_error = FileError{QString::fromLatin1(FileName), line, item, problem};
        qCWarning(lcBalloon) << "cannot use" << m_error.message();
        return false;
    };
    for (qsizetype line = 1; !reader.failed() && line <= reader.lineCount(); ++line) {
        qint16 grade = 0;
        BalloonWord entry;
        if (!reader.beginLine(3) || !reader.readInt16(grade) || !reader.readText(entry.word) ||
            !reader.readText(entry.hint))
            break;
        if (grade < 1 || grade > Grades)
            return fail(int(line), 1, QStringLiteral("grade %1 is not between 1 and 6").arg(grade));
        // A word the pupil cannot type, or a hint that is empty, would make a round unwinnable
        // or a hint button that shows nothing.
        if (!isPlayable(entry.word))
            return fail(int(line), 2,
                        QStringLiteral("\"%1\" is not a word to play").arg(entry.word));
        if (entry.hint.trimmed().isEmpty())
            return fail(int(line), 3, QStringLiteral("the hint is empty"));
        grades[size_t(grade - 1)].append(entry);
    }
    if (!reader.failed())
        reader.expectEnd();
    if (reader.failed()) {
        m_error = reader.error();
        qCWarning(lcBalloon) << "cannot read" << m_error.message();
        return false;
    }
    for (int g = 1; g <= Grades; ++g)
        if (grades[size_t(g - 1)].isEmpty())
            return fail(0, 0, QStringLiteral("there are no words for grade %1").arg(g));
    m_grades = grades;
    return true;
}

int BalloonPicker::next(int grade, int count)
{
    if (grade < 1 || grade > BalloonWords::Grades || count < 1)
        return -1;
    count = qMin(count, int(std::numeric_limits<qint16>::max()));
    Deck &deck = m_decks[size_t(grade - 1)];
    if (deck.order.size() != count + 1 || deck.position >= count) {
        deck.order.resize(count + 1);
        Shuffle(qint16(count), deck.order, m_random);
        deck.position = 0;
        // The list starts over: the word just played goes to the back of the new order.
        if (count > 1 && deck.order[1] - 1 == deck.last)
            std::swap(deck.order[1], deck.order[count]);
    }
    deck.last = deck.order[++deck.position] - 1;
    return deck.last;
}
