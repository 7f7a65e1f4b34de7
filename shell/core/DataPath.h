// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The folder that holds every data file, picture, sound and help page, with a trailing "/".
QString DataPath();
void SetDataPath(const QString &folder);
// Whether DataPath() is a program's installed, shared data folder (../share/lumbridle): such
// a folder is never written to, even where the user could, so settings go to the user's own.
bool DataPathIsInstalled();
void SetDataPathInstalled(bool installed);
// The data folder of a program that lives in `programFolder`: that folder itself when it
// holds the settings file (a build tree or an unpacked copy), otherwise ../share/lumbridle
// beside it when that exists (an installed program), otherwise the program's folder again.
struct DataLocation {
    QString folder;
    bool installed = false;
};
DataLocation LocateData(const QString &programFolder);
// DataPath() followed by the file name.
QString DataFile(const QString &name);
