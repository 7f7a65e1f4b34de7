// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataPath.h"

#include <QDir>
#include <QFileInfo>

namespace {
QString &dataPath()
{
    static QString path;
    return path;
}

bool &installedPath()
{
    static bool installed = false;
    return installed;
}
} // namespace

bool DataPathIsInstalled()
{
    return installedPath();
}

void SetDataPathInstalled(bool installed)
{
    installedPath() = installed;
}

DataLocation LocateData(const QString &programFolder)
{
    const QDir program(programFolder);
    if (QFileInfo::exists(program.filePath(QStringLiteral("lumbridle52.ini"))))
        return {program.absolutePath(), false};
    const QString shared = QDir::cleanPath(program.filePath(QStringLiteral("../share/lumbridle")));
    if (QFileInfo(shared).isDir())
        return {shared, true};
    return {program.absolutePath(), false};
}

QString DataPath()
{
    return dataPath();
}

void SetDataPath(const QString &folder)
{
    QString path = QDir::cleanPath(QDir(folder).absolutePath());
    if (!path.endsWith(u'/'))
        path += u'/';
    dataPath() = path;
}

QString DataFile(const QString &name)
{
    return dataPath() + name;
}
