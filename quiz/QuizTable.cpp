// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuizTable.h"

#include <limits>

Q_LOGGING_CATEGORY(lcQuiz, "lumbridle.quiz")

bool QuizTable::load(const QString &path, const Layout &layout)
{
    WriteReader reader(layout.fileName);
    reader.load(path);
    return read(reader, layout);
}

bool QuizTable::parse(const QByteArray &content, const Layout &layout)
{
    WriteReader reader(layout.fileName);
    reader.parse(content);
    return read(reader, layout);
}

namespace {
bool inRange(const QuizTable::Layout &layout, int field, qint16 value)
{
    for (const QuizTable::Layout::Range &range : layout.ranges)
        if (range.field == field && (value < range.low || value > range.high))
            return false;
    return true;
}
} // namespace

bool QuizTable::read(WriteReader &reader, const Layout &layout)
{
    m_error = FileError();
    QList<QStringList> texts;
    QList<QList<qint16>> numbers;
    int records = layout.records;
    if (records == 0) {
        records = int(qMin<qsizetype>(reader.lineCount(), std::numeric_limits<qint16>::max()));
        if (!reader.failed() && records < layout.minRecords)
            m_error =
                FileError{layout.fileName, 0, 0, QStringLiteral("the file holds too few records")};
    }
    for (int r = 1; r <= records && !reader.failed() && !m_error.isSet(); ++r) {
        reader.beginLine(layout.fields);
        QStringList fields;
        QList<qint16> values(layout.fields, 0);
        for (int f = 1; f <= layout.fields; ++f) {
            QString text;
            if (layout.numberFields.contains(f)) {
                qint16 value = 0;
                reader.readRoundedInt16(value);
                values[f - 1] = value;
                text = QString::number(value);
            } else {
                reader.readText(text);
            }
            if (!reader.failed() && layout.requiredFields.contains(f) && text.trimmed().isEmpty()) {
                m_error = FileError{layout.fileName, r, f, QStringLiteral("the item is empty")};
                break;
            }
            if (!reader.failed() && !inRange(layout, f, values[f - 1])) {
                m_error =
                    FileError{layout.fileName, r, f, QStringLiteral("the number is out of range")};
                break;
            }
            fields.append(text);
        }
        if (m_error.isSet())
            break;
        texts.append(fields);
        numbers.append(values);
    }
    if (!m_error.isSet()) {
        reader.expectEnd();
        if (reader.failed())
            m_error = reader.error();
    }
    if (m_error.isSet()) {
        qCWarning(lcQuiz) << "cannot read" << m_error.message();
        return false;
    }
    m_texts = texts;
    m_numbers = numbers;
    return true;
}

QString QuizTable::text(int record, int field) const
{
    if (record < 1 || record > count() || field < 1 || field > m_texts[record - 1].size())
        return {};
    return m_texts[record - 1][field - 1];
}

qint16 QuizTable::number(int record, int field) const
{
    if (record < 1 || record > count() || field < 1 || field > m_numbers[record - 1].size())
        return 0;
    return m_numbers[record - 1][field - 1];
}
