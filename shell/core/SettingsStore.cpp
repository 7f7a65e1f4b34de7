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

bool dataFolderWritable()
{
    const QFileInfo folder(DataPath());
    const QFileInfo file(DataFile(QLatin1String(SettingsFile::FileName)));
    return folder.isWritable() && (!file.exists() || file.isWritable());
}
} // namespace

QString readPath()
{
    if (!dataFolderWritable() && QFileInfo::exists(userCopy()))
        return userCopy();
    return DataFile(QLatin1String(SettingsFile::FileName));
}

QString writePath()
{
    if (dataFolderWritable())
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
