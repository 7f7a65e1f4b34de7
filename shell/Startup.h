// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// What the command line asks for.
struct StartOptions {
    QString dataDir; // empty: the program's own folder
    bool help = false;
    bool version = false;
    QString error; // an unknown option or a missing folder name
};

StartOptions ParseCommandLine(const QStringList &arguments);
QString UsageText();

// Everything before the menu appears: fonts, the data folder, our preferences and the settings
// file. A missing or damaged settings file shows "File missing/incomplete - Reinstall program"
// and returns false, with no value substituted.
// The message and its reason (with the file's full path) also go to standard error, and the box
// is shown only where someone can close it.
bool PrepareStart(const QString &dataDir);

// Gives every window the program's icon. The menu calls it just after its first paint: the
// icon's picture needs the picture plugin, and nobody should wait for it.
void LoadProgramIcon();

class QWidget;
// A logout or `kill` (SIGTERM, SIGHUP, SIGINT) closes `menu` as its own close button does, so
// the settings changed in this sitting are saved before the program ends.
void CloseOnTerminate(QWidget *menu);
