// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The folder that holds every data file, picture, sound and help page, with a trailing "/".
QString DataPath();
void SetDataPath(const QString &folder);
// DataPath() followed by the file name.
QString DataFile(const QString &name);
