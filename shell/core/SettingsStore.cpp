// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsStore.h"

#include "DataPath.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace SettingsStore {

namespace {
QString userCopy()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + u'/' +
           QLatin1String(SettingsFile::FileName);
}

// The installed data folder only seeds a user's first start; a build tree or a folder named
// with --data-dir keeps its settings beside the data while it can.
bool keepBesideData()
{
    if (DataPathIsInstalled())
        return false;
    const QFileInfo folder(DataPath());
    const QFileInfo file(DataFile(QLatin1String(SettingsFile::FileName)));
    return folder.isWritable() && (!file.exists() || file.isWritable());
}
} // namespace

QString readPath()
{
    if (!keepBesideData() && QFileInfo::exists(userCopy()))
        return userCopy();
    return DataFile(QLatin1String(SettingsFile::FileName));
}

QString writePath()
{
    if (keepBesideData())
        return DataFile(QLatin1String(SettingsFile::FileName));
    QDir().mkpath(QFileInfo(userCopy()).absolutePath());
    return userCopy();
}

bool load(FileError *error)
{
    const auto settings = SettingsFile::read(readPath(), error);
    if (!settings)
        return false;
    TheSettings() = *settings;
    return true;
}

bool save(FileError *error)
{
    return SettingsFile::write(writePath(), TheSettings(), error);
}

} // namespace SettingsStore
