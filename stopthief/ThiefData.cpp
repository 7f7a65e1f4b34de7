// SPDX-License-Identifier: GPL-3.0-or-later
#include "ThiefData.h"

#include <QSet>

Q_LOGGING_CATEGORY(lcStopThief, "lumbridle.stopthief")

namespace {

QString groupName(int group)
{
    return group == ThiefData::Boys ? QStringLiteral("boys") : QStringLiteral("girls");
}

} // namespace

bool ThiefData::load(const QString &path)
{
    WriteReader reader(QString::fromLatin1(FileName));
    reader.load(path);
    return read(reader);
}

bool ThiefData::parse(const QByteArray &content)
{
    WriteReader reader(QString::fromLatin1(FileName));
    reader.parse(content);
    return read(reader);
}

bool ThiefData::read(WriteReader &reader)
{
    m_error = FileError();
    std::array<WordGroup, 2> groups;
    for (WordGroup &group : groups) {
        for (auto &column : group.words)
            for (QString &entry : column)
                reader.readText(entry);
        for (QString &place : group.places)
            reader.readText(place);
        for (QString &thing : group.things)
            reader.readText(thing);
    }
    reader.expectEnd();
    if (reader.failed()) {
        m_error = reader.error();
        qCWarning(lcStopThief) << "cannot read" << m_error.message();
        return false;
    }
    m_groups = groups;
    if (!check()) {
        qCWarning(lcStopThief) << "cannot use" << m_error.message();
        return false;
    }
    return true;
}

// An empty entry would make the case builder draw for ever, and two equal entries in one
// column would give a puzzle with two answers, so both are refused with their place named.
bool ThiefData::check()
{
    auto fail = [this](int group, const QString &where, const QString &problem) {
        m_error = FileError{
            QString::fromLatin1(FileName), 0, 0,
            QStringLiteral("in the %1' words, %2 %3").arg(groupName(group), where, problem)};
        return false;
    };
    for (int g = Boys; g <= Girls; ++g) {
        const WordGroup &words = group(g);
        for (int c = 0; c < WordGroup::Columns; ++c) {
            QSet<QString> seen;
            for (int r = 0; r < WordGroup::Rows; ++r) {
                const QString entry = words.words[c][r].trimmed();
                const QString where = QStringLiteral("column %1, row %2").arg(c).arg(r);
                if (entry.isEmpty())
                    return fail(g, where, QStringLiteral("is empty"));
                const bool drawn = c <= WordGroup::LastNames ||
                                   (r != WordGroup::VerbRow && r != WordGroup::NounRow);
                if (!drawn)
                    continue;
                if (seen.contains(entry))
                    return fail(g, where, QStringLiteral("repeats \"%1\"").arg(entry));
                seen.insert(entry);
            }
        }
        for (int i = 0; i < 3; ++i) {
            if (words.places[i].trimmed().isEmpty())
                return fail(g, QStringLiteral("place %1").arg(i + 1), QStringLiteral("is empty"));
            if (words.things[i].trimmed().isEmpty())
                return fail(g, QStringLiteral("stolen thing %1").arg(i + 1),
                            QStringLiteral("is empty"));
        }
    }
    return true;
}
