// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// Where and why a file could not be read or written, worded for a message box.
struct FileError {
    QString file;
    int line = 0; // 1-based; 0 when the whole file is at fault
    int item = 0; // 1-based within the line; 0 when the whole line is at fault
    QString problem;

    bool isSet() const { return !problem.isEmpty(); }
    QString message() const;
};

// One item of a line: its text as written (quotes removed) and whether it was quoted.
struct WriteItem {
    QString text;
    bool quoted = false;
};

// Reads the comma-separated "write" form that every file of the program uses: texts in double
// quotes (a doubled quote stands for one), numbers plain. Items are read one after another,
// either as a stream that runs on across line ends or line by line with an exact item count.
// The first failure is kept with its line and item and every later read fails too.
class WriteReader {
public:
    explicit WriteReader(const QString &fileName = {});

    bool load(const QString &path);
    bool parse(const QByteArray &content);

    qsizetype lineCount() const { return m_lines.size(); }
    bool atEnd() const;

    // Line by line: the next line must hold exactly `items` items; reads then stay on it.
    bool beginLine(qsizetype items);

    bool readText(QString &out);
    bool readInt16(qint16 &out);
    bool readNumber(double &out);
    // A number rounded half to even into a 16-bit whole number (map coordinates and the like).
    bool readRoundedInt16(qint16 &out);
    // Everything has been read: extra lines or items are an error.
    bool expectEnd();

    const FileError &error() const { return m_error; }
    bool failed() const { return m_error.isSet(); }
    // Every item of every line as read, for checks that look at a file whole.
    const QList<QList<WriteItem>> &lines() const { return m_lines; }

private:
    const WriteItem *take(const char *what);
    bool fail(int line, int item, const QString &problem);
    bool parseLine(const QString &text, int lineNumber, QList<WriteItem> &items);

    QString m_fileName;
    QList<QList<WriteItem>> m_lines;
    qsizetype m_line = 0;
    qsizetype m_item = 0;
    qsizetype m_lineLimit = -1; // items allowed on the current line in line-by-line reading
    FileError m_error;
};

// Writes the same form: items joined by commas, texts quoted with inner quotes doubled.
class WriteWriter {
public:
    WriteWriter &text(const QString &value);
    WriteWriter &number(qint64 value);
    WriteWriter &number(double value);
    WriteWriter &endLine();
    QByteArray data() const { return m_data; }

private:
    void separate();

    QByteArray m_data;
    bool m_lineStarted = false;
};

// The one routine every save goes through (settings, word lists, graph files): replaces a file
// in one step, so a crash or a full disk never leaves half a file or an empty one. On failure
// the old file stays as it was and the error names the file's full path.
bool SaveFileAtomically(const QString &path, const QByteArray &data, FileError *error = nullptr);
