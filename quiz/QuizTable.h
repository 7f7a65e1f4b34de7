// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/WriteFormat.h"

#include <QList>
#include <QLoggingCategory>
#include <QString>
#include <QStringList>

Q_DECLARE_LOGGING_CATEGORY(lcQuiz)

// The records a quiz asks about, as its data file holds them: one line per record, every
// field kept as its text, and the fields named as numbers also kept as 16-bit whole numbers.
// Records and fields are numbered from 1, as the data files are described.
class QuizTable {
public:
    struct Layout {
        QString fileName;
        // A fixed number of records, or 0 for as many as the file holds (at least minRecords).
        int records = 0;
        int fields = 0;
        // Read as numbers and rounded half to even into 16 bits (map points, orders).
        QList<int> numberFields;
        // Must not be empty: a blank answer could never be given.
        QList<int> requiredFields;
        // Number fields that index a table of the activity's own must lie in its range.
        struct Range {
            int field = 0;
            int low = 0;
            int high = 0;
        };
        QList<Range> ranges{};
        int minRecords = 1;
    };

    bool load(const QString &path, const Layout &layout);
    bool parse(const QByteArray &content, const Layout &layout);
    const FileError &error() const { return m_error; }

    int count() const { return int(m_texts.size()); }
    // The field as read; empty outside the table.
    QString text(int record, int field) const;
    // A number field; 0 outside the table or for a field not read as a number.
    qint16 number(int record, int field) const;

private:
    bool read(WriteReader &reader, const Layout &layout);

    QList<QStringList> m_texts;
    QList<QList<qint16>> m_numbers;
    FileError m_error;
};
