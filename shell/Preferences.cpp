// SPDX-License-Identifier: GPL-3.0-or-later
#include "Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

Preferences &Preferences::get()
{
    static Preferences preferences;
    return preferences;
}

QString Preferences::path()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/preferences.ini");
}

void Preferences::load()
{
    QSettings file(path(), QSettings::IniFormat);
    muted = file.value(QStringLiteral("sound/muted"), false).toBool();
    fullScreen = file.value(QStringLiteral("window/fullScreen"), false).toBool();
}

bool Preferences::save() const
{
    QDir().mkpath(QFileInfo(path()).absolutePath());
    QSettings file(path(), QSettings::IniFormat);
    file.setValue(QStringLiteral("sound/muted"), muted);
    file.setValue(QStringLiteral("window/fullScreen"), fullScreen);
    file.sync();
    return file.status() == QSettings::NoError;
}
