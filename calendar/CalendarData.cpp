// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarData.h"

Q_LOGGING_CATEGORY(lcCalendar, "lumbridle.calendar")

namespace {
// The real lengths of the months: a file that says otherwise would teach wrong facts.
constexpr std::array<qint16, 12> RealMonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
} // namespace

bool CalendarData::load(const QString &path)
{
    WriteReader reader(QString::fromLatin1(FileName));
    reader.load(path);
    return read(reader);
}

bool CalendarData::parse(const QByteArray &content)
{
    WriteReader reader(QString::fromLatin1(FileName));
    reader.parse(content);
    return read(reader);
}

bool CalendarData::read(WriteReader &reader)
{
    m_error = FileError();
    for (int r = 0; r < Records; ++r) {
        reader.readText(m_spans[r]);
        reader.readText(m_names[r]);
        reader.readInt16(m_counts[r]);
    }
    for (int p = Records; p < Names; ++p)
        reader.readText(m_names[p]);
    for (QString &word : m_positions)
        reader.readText(word);
    reader.expectEnd();
    if (reader.failed()) {
        m_error = reader.error();
        qCWarning(lcCalendar) << "cannot read" << m_error.message();
        return false;
    }
    if (!check()) {
        qCWarning(lcCalendar) << "cannot use" << m_error.message();
        return false;
    }
    return true;
}

bool CalendarData::check()
{
    auto fail = [this](const QString &problem) {
        m_error = FileError{QString::fromLatin1(FileName), 0, 0, problem};
        return false;
    };
    for (int r = 1; r <= Records; ++r) {
        if (span(r).trimmed().isEmpty() || name(r).trimmed().isEmpty())
            return fail(QStringLiteral("record %1 has an empty text").arg(r));
        if (r <= 12 && count(r) != RealMonthDays[r - 1])
            return fail(QStringLiteral("month %1 cannot have %2 days").arg(r).arg(count(r)));
        if (r > 12 && count(r) < 1)
            return fail(QStringLiteral("record %1 needs a count above 0").arg(r));
    }
    for (int p = Records + 1; p <= Names; ++p)
        if (name(p).trimmed().isEmpty())
            return fail(QStringLiteral("name %1 is empty").arg(p));
    for (int p = 0; p < Positions; ++p)
        if (position(p).trimmed().isEmpty())
            return fail(QStringLiteral("position word %1 is empty").arg(p));
    return true;
}
