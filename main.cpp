// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ActivityTable.h"
#include "shell/DataPath.h"
#include "shell/Fonts.h"
#include "shell/frmMenu.h"
#include "shell/Preferences.h"
#include "shell/Services.h"
#include "shell/Settings.h"
#include "shell/SettingsStore.h"

#include <cstdio>
#include <cstring>
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcMain, "lumbridle.main")

namespace {

const char Usage[] = "Usage: lumbridle [--data-dir DIR]\n"
                     "Learning activities for young pupils.\n\n"
                     "  --data-dir DIR  read data files, pictures and sounds from DIR\n"
                     "                  (default: the folder of the program)\n"
                     "  --help          show this text\n"
                     "  --version       show the version\n";

} // namespace

int main(int argc, char *argv[])
{
    // Answered before any window system is needed, so they work over ssh and in scripts.
    QString dataDir;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            std::fputs(Usage, stdout);
            return 0;
        }
        if (!std::strcmp(argv[i], "--version")) {
            std::puts("Lumbridle 5.0");
            return 0;
        }
        if (!std::strcmp(argv[i], "--data-dir") && i + 1 < argc) {
            dataDir = QString::fromLocal8Bit(argv[++i]);
        } else if (!std::strncmp(argv[i], "--data-dir=", 11)) {
            dataDir = QString::fromLocal8Bit(argv[i] + 11);
        } else if (argv[i][0] == '-' && std::strncmp(argv[i], "-platform", 9) &&
                   std::strcmp(argv[i], "-style")) {
            std::fprintf(stderr, "lumbridle: unknown option %s\n\n%s", argv[i], Usage);
            return 2;
        }
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumbridle"));
    QApplication::setOrganizationName(QStringLiteral("Lumbridle"));
    QApplication::setApplicationVersion(QStringLiteral("5.0"));
    InstallFontSubstitutes();

    if (dataDir.isEmpty())
        dataDir = QCoreApplication::applicationDirPath();
    if (!QDir(dataDir).exists()) {
        std::fprintf(stderr, "lumbridle: the data folder %s does not exist\n", qPrintable(dataDir));
        return 2;
    }
    SetDataPath(dataDir);
    QApplication::setWindowIcon(QIcon(DataFile(QStringLiteral("lumbridle.svg"))));
    Preferences::get().load();

    FileError error;
    if (!SettingsStore::load(&error)) {
        qCCritical(lcMain).noquote() << error.message();
        MsgBox(nullptr, QStringLiteral("Lumbridle"),
               QString::fromLatin1(SettingsFile::BrokenMessage), QMessageBox::Critical);
        return 1;
    }

    frmMenu menu(Activities());
    menu.show();
    return app.exec();
}
