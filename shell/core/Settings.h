// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WriteFormat.h"

#include <array>
#include <optional>
#include <QString>

// Every activity's last choices, as kept in "lumbridle52.ini": one group per activity, the
// values exactly as stored (16-bit whole numbers and texts), read at start and written at exit.
struct Settings {
    struct Balloon {
        std::array<qint16, 2> values{1, 6};
        bool operator==(const Balloon &) const = default;
    } balloon;
    struct MathTutor {
        std::array<qint16, 3> values{0, 1, 9};
        bool operator==(const MathTutor &) const = default;
    } mathTutor;
    struct SpaceRace {
        qint16 players = 2;
        std::array<QString, 4> names{"Player 1", "Player 2", "Player 3", "Player 4"};
        qint16 gameType = 2;
        qint16 speed = 10;
        bool operator==(const SpaceRace &) const = default;
    } spaceRace;
    struct MathRacePlayer {
        QString name;
        qint16 type = 1;
        qint16 largest = 5;
        qint16 clock = 1;
        bool operator==(const MathRacePlayer &) const = default;
    };
    struct MathRace {
        qint16 players = 2;
        std::array<MathRacePlayer, 4> player{MathRacePlayer{"Player 1"}, MathRacePlayer{"Player 2"},
                                             MathRacePlayer{"Player 3"},
                                             MathRacePlayer{"Player 4"}};
        bool operator==(const MathRace &) const = default;
    } mathRace;
    // Answer type, then the direction chosen for capitals, finding and flags.
    struct Geography {
        std::array<qint16, 4> values{};
        bool operator==(const Geography &) const = default;
    };
    Geography usGeography{{1, 0, 1, 0}};
    struct Presidents {
        qint16 answerType = 0;
        bool operator==(const Presidents &) const = default;
    } presidents;
    struct CandyDrive {
        qint16 value = 3;
        bool operator==(const CandyDrive &) const = default;
    } candy;
    struct StopThief {
        qint16 level = 2;
        bool operator==(const StopThief &) const = default;
    } stopThief;
    struct Typing {
        std::array<qint16, 6> values{1, 1, 1, 0, 1, 0}; // four keyboard rows, then two more
        bool operator==(const Typing &) const = default;
    } typing;
    Geography worldGeography{{0, 0, 0, 0}};
    struct Cards {
        qint16 game = 3; // 1 War, 2 Concentration, 3 Blackjack
        qint16 concentration = 0;
        bool operator==(const Cards &) const = default;
    } cards;
    struct Graphs {
        qint16 value = 0;
        bool operator==(const Graphs &) const = default;
    } graphs;

    // Not kept in the file: the current Space Race list, reset at every start.
    QString spaceRaceListName = QStringLiteral("NONE");
    qint16 spaceRaceWordCount = 0;

    bool operator==(const Settings &) const = default;
};

// Reading and writing the 18 lines of the settings file. Reading is all or nothing: on any
// failure no value is returned and the error says where the file is damaged (with the file's
// full path when it was read from disk). Lines after the 18th are ignored.
namespace SettingsFile {
inline constexpr auto FileName = "lumbridle52.ini";
inline constexpr auto BrokenMessage = "File missing/incomplete - Reinstall program";
inline constexpr int LineCount = 18;

std::optional<Settings> parse(const QByteArray &content, FileError *error = nullptr);
std::optional<Settings> read(const QString &path, FileError *error = nullptr);
QByteArray format(const Settings &settings);
bool write(const QString &path, const Settings &settings, FileError *error = nullptr);
} // namespace SettingsFile

// The settings shared by every window for the life of the program.
Settings &TheSettings();
