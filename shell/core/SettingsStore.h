// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WriteFormat.h"

#include <QString>

// Where the settings file is read from and written to: the data folder, or, when that folder
// is read-only (a system install), a copy in the user's configuration folder.
namespace SettingsStore {
QString readPath();
QString writePath();
// Reads the settings file into TheSettings(); on failure leaves them as they were.
bool load(FileError *error = nullptr);
// Writes TheSettings() back.
bool save(FileError *error = nullptr);
} // namespace SettingsStore
