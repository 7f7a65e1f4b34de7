// SPDX-License-Identifier: GPL-3.0-or-later
#include "Startup.h"

#include "shell/core/DataPath.h"
#include "Fonts.h"
#include "Preferences.h"
#include "Services.h"
#include "shell/core/Settings.h"
#include "shell/core/SettingsStore.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLoggingCategory>
#include <QTimer>

Q_DECLARE_LOGGING_CATEGORY(lcShell)

StartOptions ParseCommandLine(const QStringList &arguments)
{
    StartOptions options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            options.help = true;
        } else if (argument == QLatin1String("--version")) {
            options.version = true;
        } else if (argument == QLatin1String("--data-dir")) {
            if (i + 1 >= arguments.size()) {
                options.error = QStringLiteral("--data-dir needs the name of a folder");
                break;
            }
            options.dataDir = arguments[++i];
        } else if (argument.startsWith(QLatin1String("--data-dir="))) {
            options.dataDir = argument.mid(11);
        } else if (argument == QLatin1String("-platform") || argument == QLatin1String("-style")) {
            ++i; // Qt's own options, with their value
        } else {
            options.error = QStringLiteral("unknown option %1").arg(argument);
            break;
        }
    }
    return options;
}

QString UsageText()
{
    return QStringLiteral("Usage: lumbridle [--data-dir DIR]\n"
                          "Learning activities for young pupils.\n\n"
                          "  --data-dir DIR  read data files, pictures and sounds from DIR\n"
                          "                  (default: the folder of the program)\n"
                          "  --help          show this text\n"
                          "  --version       show the version\n");
}

bool PrepareStart(const QString &dataDir)
{
    InstallFontSubstitutes();
    // One friendly face for everything: the same lettering in every window, and one font
    // fewer to find and load before the menu's first paint.
    QApplication::setFont(FriendlyFont(QApplication::font().pointSizeF()));
    SetDataPath(dataDir.isEmpty() ? QCoreApplication::applicationDirPath() : dataDir);
    // The icon's picture loads once the menu is on screen: nobody waits for it.
    QTimer::singleShot(0, qApp, [] {
        QApplication::setWindowIcon(QIcon(DataFile(QStringLiteral("lumbridle.svg"))));
    });
    Preferences::get().load();
    TheSettings().spaceRaceListName = QStringLiteral("NONE");
    TheSettings().spaceRaceWordCount = 0;

    FileError error;
    if (!SettingsStore::load(&error)) {
        // Written first and always: with no screen to show the box on, this is all anyone sees.
        std::fprintf(stderr, "lumbridle: %s\nlumbridle: %s\n", SettingsFile::BrokenMessage,
                     qPrintable(error.message()));
        std::fflush(stderr);
        MsgBox(nullptr, MessageRequest{QStringLiteral("Lumbridle"),
                                           QString::fromLatin1(SettingsFile::BrokenMessage),
                                           QMessageBox::Critical, QMessageBox::Ok,
                                           QMessageBox::NoButton, error.message()});
        return false;
    }
    return true;
}
