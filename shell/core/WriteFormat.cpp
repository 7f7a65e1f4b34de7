// SPDX-License-Identifier: GPL-3.0-or-later
#include "WriteFormat.h"

#include <cmath>
#include <limits>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

namespace {
// A number as the file form writes it: optional sign, digits, and for real numbers an
// optional decimal point and exponent. Hand-written because it runs at every start.
bool isPlainNumber(const QString &text, bool real)
{
    qsizetype i = 0;
    const qsizetype n = text.size();
    auto digits = [&] {
        const qsizetype start = i;
        while (i < n && text[i] >= u'0' && text[i] <= u'9')
            ++i;
        return i - start;
    };
    if (i < n && (text[i] == u'+' || text[i] == u'-'))
        ++i;
    qsizetype count = digits();
    if (real && i < n && text[i] == u'.') {
        ++i;
        count += digits();
    }
    if (count == 0)
        return false;
    if (real && i < n && (text[i] == u'e' || text[i] == u'E')) {
        ++i;
        if (i < n && (text[i] == u'+' || text[i] == u'-'))
            ++i;
        const qsizetype exponent = digits();
        if (exponent == 0 || exponent > 3)
            return false;
    }
    return i == n;
}
} // namespace

QString FileError::message() const
{
    QString where = file;
    if (line > 0)
        where += QStringLiteral(", line %1").arg(line);
    if (item > 0)
        where += QStringLiteral(", item %1").arg(item);
    return where.isEmpty() ? problem : where + QStringLiteral(": ") + problem;
}

WriteReader::WriteReader(const QString &fileName) : m_fileName(fileName) {}

bool WriteReader::load(const QString &path)
{
    if (m_fileName.isEmpty())
        m_fileName = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(0, 0, QStringLiteral("the file cannot be opened (%1)").arg(file.errorString()));
    // Data and settings files are a few hundred kilobytes at most; anything far larger is not ours.
    if (file.size() > 16 * 1024 * 1024)
        return fail(0, 0, QStringLiteral("the file is far too large"));
    return parse(file.readAll());
}

bool WriteReader::parse(const QByteArray &content)
{
    m_lines.clear();
    m_line = m_item = 0;
    m_lineLimit = -1;
    const QString text = QString::fromUtf8(content);
    QList<QStringView> rows = QStringView(text).split(u'\n');
    while (!rows.isEmpty() && rows.last().trimmed().isEmpty())
        rows.removeLast();
    for (qsizetype i = 0; i < rows.size(); ++i) {
        QStringView row = rows[i];
        if (row.endsWith(u'\r'))
            row.chop(1);
        // A carriage return inside a line breaks nothing: it reads as the blank the writer
        // puts in its place, so a file read and written again reads the same.
        QString line = row.toString();
        line.replace(u'\r', u' ');
        QList<WriteItem> items;
        if (!parseLine(line, int(i + 1), items))
            return false;
        m_lines.append(items);
    }
    return true;
}

bool WriteReader::parseLine(const QString &text, int lineNumber, QList<WriteItem> &items)
{
    if (text.trimmed().isEmpty())
        return true;
    qsizetype i = 0;
    const qsizetype n = text.size();
    auto skipBlanks = [&] {
        while (i < n && (text[i] == u' ' || text[i] == u'\t'))
            ++i;
    };
    while (true) {
        const int itemNumber = int(items.size() + 1);
        skipBlanks();
        WriteItem item;
        if (i < n && text[i] == u'"') {
            item.quoted = true;
            ++i;
            bool closed = false;
            while (i < n) {
                if (text[i] == u'"') {
                    if (i + 1 < n && text[i + 1] == u'"') {
                        item.text += u'"';
                        i += 2;
                        continue;
                    }
                    ++i;
                    closed = true;
                    break;
                }
                item.text += text[i++];
            }
            if (!closed)
                return fail(lineNumber, itemNumber, QStringLiteral("a quoted text is not closed"));
            skipBlanks();
            if (i < n && text[i] != u',')
                return fail(lineNumber, itemNumber,
                            QStringLiteral("something follows a quoted text without a comma"));
        } else {
            const qsizetype start = i;
            while (i < n && text[i] != u',')
                ++i;
            item.text = text.mid(start, i - start).trimmed();
            if (item.text.contains(u'"'))
                return fail(lineNumber, itemNumber, QStringLiteral("a stray quote mark"));
        }
        items.append(item);
        if (i >= n)
            return true;
        ++i; // the comma
    }
}

bool WriteReader::atEnd() const
{
    if (m_lineLimit >= 0)
        return m_item >= m_lineLimit;
    qsizetype line = m_line;
    qsizetype item = m_item;
    while (line < m_lines.size() && item >= m_lines[line].size()) {
        ++line;
        item = 0;
    }
    return line >= m_lines.size();
}

bool WriteReader::beginLine(qsizetype items)
{
    if (failed())
        return false;
    if (m_lineLimit >= 0) {
        if (m_item < m_lineLimit)
            return fail(int(m_line + 1), int(m_item + 1), QStringLiteral("an item was not read"));
        ++m_line;
    } else if (m_item > 0) {
        ++m_line;
    }
    m_item = 0;
    m_lineLimit = items;
    if (m_line >= m_lines.size())
        return fail(int(m_line + 1), 0, QStringLiteral("the line is missing"));
    const qsizetype found = m_lines[m_line].size();
    if (found < items)
        return fail(int(m_line + 1), int(found + 1),
                    QStringLiteral("the line has %1 items instead of %2").arg(found).arg(items));
    if (found > items)
        return fail(int(m_line + 1), int(items + 1),
                    QStringLiteral("the line has %1 items instead of %2").arg(found).arg(items));
    return true;
}

const WriteItem *WriteReader::take(const char *what)
{
    if (failed())
        return nullptr;
    if (m_lineLimit >= 0) {
        if (m_line >= m_lines.size() || m_item >= m_lineLimit) {
            fail(int(m_line + 1), int(m_item + 1),
                 QStringLiteral("%1 is missing").arg(QLatin1String(what)));
            return nullptr;
        }
        return &m_lines[m_line][m_item++];
    }
    while (m_line < m_lines.size() && m_item >= m_lines[m_line].size()) {
        ++m_line;
        m_item = 0;
    }
    if (m_line >= m_lines.size()) {
        fail(int(m_line + 1), 0,
             QStringLiteral("the file ends where %1 was expected").arg(QLatin1String(what)));
        return nullptr;
    }
    return &m_lines[m_line][m_item++];
}

bool WriteReader::readText(QString &out)
{
    const WriteItem *item = take("a text");
    if (!item)
        return false;
    out = item->text;
    return true;
}

bool WriteReader::readNumber(double &out)
{
    const WriteItem *item = take("a number");
    if (!item)
        return false;
    if (item->quoted || !isPlainNumber(item->text, true))
        return fail(int(m_line + 1), int(m_item), QStringLiteral("a number was expected"));
    bool ok = false;
    out = item->text.toDouble(&ok);
    if (!ok || !std::isfinite(out))
        return fail(int(m_line + 1), int(m_item), QStringLiteral("the number is out of range"));
    return true;
}

bool WriteReader::readInt16(qint16 &out)
{
    const WriteItem *item = take("a whole number");
    if (!item)
        return false;
    if (item->quoted || !isPlainNumber(item->text, false))
        return fail(int(m_line + 1), int(m_item), QStringLiteral("a whole number was expected"));
    bool ok = false;
    const qlonglong value = item->text.toLongLong(&ok);
    if (!ok || value < std::numeric_limits<qint16>::min() ||
        value > std::numeric_limits<qint16>::max())
        return fail(int(m_line + 1), int(m_item),
                    QStringLiteral("the number %1 is outside -32768 to 32767").arg(item->text));
    out = static_cast<qint16>(value);
    return true;
}

bool WriteReader::readRoundedInt16(qint16 &out)
{
    double value = 0;
    if (!readNumber(value))
        return false;
    const double rounded = std::nearbyint(value); // the default rounding mode is half to even
    if (rounded < std::numeric_limits<qint16>::min() ||
        rounded > std::numeric_limits<qint16>::max())
        return fail(int(m_line + 1), int(m_item),
                    QStringLiteral("the number is outside -32768 to 32767"));
    out = static_cast<qint16>(rounded);
    return true;
}

bool WriteReader::expectEnd()
{
    if (failed())
        return false;
    if (m_lineLimit >= 0) {
        if (m_item < m_lineLimit)
            return fail(int(m_line + 1), int(m_item + 1), QStringLiteral("an item was not read"));
        if (m_line + 1 < m_lines.size())
            return fail(int(m_line + 2), 0,
                        QStringLiteral("the file has more lines than expected"));
        return true;
    }
    if (!atEnd())
        return fail(int(m_line + 1), int(m_item + 1),
                    QStringLiteral("the file has more items than expected"));
    return true;
}

bool WriteReader::fail(int line, int item, const QString &problem)
{
    if (!failed())
        m_error = FileError{m_fileName, line, item, problem};
    return false;
}

void WriteWriter::separate()
{
    if (m_lineStarted)
        m_data += ',';
    m_lineStarted = true;
}

WriteWriter &WriteWriter::text(const QString &value)
{
    separate();
    QString quoted = value;
    quoted.replace(u'"', QStringLiteral("\"\""));
    // A line break inside a text would split the record; a blank keeps it readable.
    quoted.replace(u'\r', u' ').replace(u'\n', u' ');
    m_data += '"' + quoted.toUtf8() + '"';
    return *this;
}

WriteWriter &WriteWriter::number(qint64 value)
{
    separate();
    m_data += QByteArray::number(value);
    return *this;
}

WriteWriter &WriteWriter::number(double value)
{
    separate();
    // The shortest form that reads back as the same number.
    m_data += QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    return *this;
}

WriteWriter &WriteWriter::endLine()
{
    m_data += '\n';
    m_lineStarted = false;
    return *this;
}

bool SaveFileAtomically(const QString &path, const QByteArray &data, FileError *error)
{
    QSaveFile file(path);
    auto failWith = [&](const QString &problem) {
        if (error)
            *error = FileError{QFileInfo(path).absoluteFilePath(), 0, 0, problem};
        file.cancelWriting();
        return false;
    };
    // Unbuffered, so a full disk fails the write itself: a buffered write fails only inside
    // commit(), which does not always say so, and the empty file would replace the good one.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return failWith(QStringLiteral("the file cannot be written (%1)").arg(file.errorString()));
    if (file.write(data) != data.size() || !file.flush() || file.error() != QFileDevice::NoError)
        return failWith(QStringLiteral("the file cannot be written (%1)").arg(file.errorString()));
    if (!file.commit())
        return failWith(QStringLiteral("the file cannot be saved (%1)").arg(file.errorString()));
    return true;
}
