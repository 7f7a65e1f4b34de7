// SPDX-License-Identifier: GPL-3.0-or-later
#include "Settings.h"

#include <QFile>

namespace SettingsFile {

namespace {

template <std::size_t N> bool readLine(WriteReader &in, std::array<qint16, N> &values)
{
    if (!in.beginLine(N))
        return false;
    for (auto &value : values)
        if (!in.readInt16(value))
            return false;
    return true;
}

bool readOne(WriteReader &in, qint16 &value)
{
    return in.beginLine(1) && in.readInt16(value);
}

template <std::size_t N> void writeLine(WriteWriter &out, const std::array<qint16, N> &values)
{
    for (qint16 value : values)
        out.number(qint64(value));
    out.endLine();
}

} // namespace

std::optional<Settings> parse(const QByteArray &content, FileError *error)
{
    // Only the 18 lines are read: whatever a person or a later version added below them is
    // not ours to judge, however it is written.
    QByteArray ours = content;
    qsizetype end = -1;
    for (int line = 0; line < LineCount; ++line) {
        end = ours.indexOf('\n', end + 1);
        if (end < 0)
            break;
    }
    if (end >= 0)
        ours.truncate(end + 1);
    WriteReader in(QString::fromLatin1(FileName));
    Settings s;
    bool ok = in.parse(ours) && readLine(in, s.balloon.values) &&
              readLine(in, s.mathTutor.values) && readOne(in, s.spaceRace.players) &&
              in.beginLine(4);
    for (auto &name : s.spaceRace.names)
        ok = ok && in.readText(name);
    ok = ok && in.beginLine(2) && in.readInt16(s.spaceRace.gameType) &&
         in.readInt16(s.spaceRace.speed) && readOne(in, s.mathRace.players);
    for (auto &player : s.mathRace.player)
        ok = ok && in.beginLine(4) && in.readText(player.name) && in.readInt16(player.type) &&
             in.readInt16(player.largest) && in.readInt16(player.clock);
    ok = ok && readLine(in, s.usGeography.values) && readOne(in, s.presidents.answerType) &&
         readOne(in, s.candy.value) && readOne(in, s.stopThief.level) &&
         readLine(in, s.typing.values) && readLine(in, s.worldGeography.values) &&
         in.beginLine(2) && in.readInt16(s.cards.game) && in.readInt16(s.cards.concentration) &&
         readOne(in, s.graphs.value) && in.expectEnd();
    if (!ok) {
        if (error)
            *error = in.error();
        return std::nullopt;
    }
    return s;
}

std::optional<Settings> read(const QString &path, FileError *error)
{
    // Errors name the full path: a damaged copy in the user's folder must be findable.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = FileError{path, 0, 0, QStringLiteral("the file cannot be opened")};
        return std::nullopt;
    }
    auto settings = parse(file.read(1024 * 1024), error);
    if (!settings && error)
        error->file = path;
    return settings;
}

QByteArray format(const Settings &s)
{
    WriteWriter out;
    writeLine(out, s.balloon.values);
    writeLine(out, s.mathTutor.values);
    out.number(qint64(s.spaceRace.players)).endLine();
    for (const auto &name : s.spaceRace.names)
        out.text(name);
    out.endLine();
    out.number(qint64(s.spaceRace.gameType)).number(qint64(s.spaceRace.speed)).endLine();
    out.number(qint64(s.mathRace.players)).endLine();
    for (const auto &player : s.mathRace.player)
        out.text(player.name)
            .number(qint64(player.type))
            .number(qint64(player.largest))
            .number(qint64(player.clock))
            .endLine();
    writeLine(out, s.usGeography.values);
    out.number(qint64(s.presidents.answerType)).endLine();
    out.number(qint64(s.candy.value)).endLine();
    out.number(qint64(s.stopThief.level)).endLine();
    writeLine(out, s.typing.values);
    writeLine(out, s.worldGeography.values);
    out.number(qint64(s.cards.game)).number(qint64(s.cards.concentration)).endLine();
    out.number(qint64(s.graphs.value)).endLine();
    return out.data();
}

bool write(const QString &path, const Settings &settings, FileError *error)
{
    return SaveFileAtomically(path, format(settings), error);
}

} // namespace SettingsFile

Settings &TheSettings()
{
    static Settings settings;
    return settings;
}
