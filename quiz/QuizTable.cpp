// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuizTable.h"

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

bool QuizTable::read(WriteReader &reader, const Layout &layout)
{
    m_error = FileError();
    QList<QStringList> texts;
    QList<QList<qint16>> numbers;
    for (int r = 1; r <= layout.records && !reader.failed(); ++r) {
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
