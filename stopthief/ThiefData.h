// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/WriteFormat.h"

#include <array>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcStopThief)

// The words one group of children (boys or girls) is made of: a table of 10 columns of 11
// entries (first names, last names, then eight attributes), three places and three things.
struct WordGroup {
    static constexpr int Columns = 10;
    static constexpr int Rows = 11;
    static constexpr int FirstNames = 0;
    static constexpr int LastNames = 1;
    static constexpr int FirstAttribute = 2;
    // Row 0 of an attribute column is its verb phrase, rows 1-9 its values, row 10 its noun.
    static constexpr int VerbRow = 0;
    static constexpr int NounRow = 10;

    std::array<std::array<QString, Rows>, Columns> words; // [column][row]
    std::array<QString, 3> places;
    std::array<QString, 3> things;
};

// The word tables of "thief.dat": the boys' group, then the girls', each read column by column
// and followed by its places and stolen things. Loaded once when the detective window opens.
class ThiefData {
public:
    static constexpr auto FileName = "thief.dat";
    static constexpr int Boys = 1;
    static constexpr int Girls = 2;

    bool load(const QString &path);
    bool parse(const QByteArray &content);
    const FileError &error() const { return m_error; }

    // Group 1 is the boys, group 2 the girls.
    const WordGroup &group(int group) const { return m_groups.at(group - 1); }

private:
    bool read(WriteReader &reader);
    bool check();

    std::array<WordGroup, 2> m_groups;
    FileError m_error;
};
