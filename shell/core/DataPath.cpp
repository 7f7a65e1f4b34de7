// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataPath.h"

#include <QDir>

namespace {
QString &dataPath()
{
    static QString path;
    return path;
}
} // namespace

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
