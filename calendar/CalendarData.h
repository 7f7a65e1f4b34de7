// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/WriteFormat.h"

#include <array>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcCalendar)

// The names and counts of "calendar.dat": eighteen records of (span, name, count), seven more
// names, then the position words. Records 1-12 are the months (name and days in a normal
// year), records 13-18 the "How many" facts (span, unit, count); names 19-25 are the weekdays
// from Sunday; position word 0 is "last", 1-18 "first" to "eighteenth".
class CalendarData {
public:
    static constexpr auto FileName = "calendar.dat";
    static constexpr int Records = 18;
    static constexpr int Names = 25;
    static constexpr int FirstDayName = 19;
    static constexpr int Positions = 19;

    bool load(const QString &path);
    bool parse(const QByteArray &content);
    const FileError &error() const { return m_error; }

    // Record 1 to 18.
    QString span(int record) const { return m_spans.at(record - 1); }
    qint16 count(int record) const { return m_counts.at(record - 1); }
    // Position 1 to 25 of the name table.
    QString name(int position) const { return m_names.at(position - 1); }
    QString monthName(int month) const { return name(month); }
    // 1 = Sunday ... 7 = Saturday.
    QString dayName(int weekday) const { return name(FirstDayName + weekday - 1); }
    qint16 daysInMonth(int month) const { return count(month); }
    // 0 = "last", 1 = "first", ...
    QString position(int index) const { return m_positions.at(index); }

private:
    bool read(WriteReader &reader);
    bool check();

    std::array<QString, Records> m_spans;
    std::array<QString, Names> m_names;
    std::array<qint16, Records> m_counts{};
    std::array<QString, Positions> m_positions;
    FileError m_error;
};
