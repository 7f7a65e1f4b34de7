// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

// One file reader under test: its name (also its corpus folder, tests/fuzz/corpus/<name>/),
// the shipped files in data/ that seed it, and a check that feeds it one input. A check calls
// FuzzFail when the reader breaks a promise (a crash or a sanitizer report needs no call).
struct FuzzTarget {
    const char *name;
    QStringList seeds;
    void (*check)(const QByteArray &input);
};

// Every reader of the program; adding a reader is one line in FuzzTargets.cpp.
const QList<FuzzTarget> &FuzzTargets();
const FuzzTarget *FindFuzzTarget(const QByteArray &name);

// Reports a broken promise with the input's size and aborts, so the fuzzer keeps the input.
[[noreturn]] void FuzzFail(const char *what, const QByteArray &input);
