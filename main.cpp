// SPDX-License-Identifier: GPL-3.0-or-later
#include "Activities.h"
#include "shell/frmMenu.h"
#include "shell/Startup.h"

#include <cstdio>
#include <QApplication>
#include <QDir>

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const StartOptions options = ParseCommandLine(arguments);
    // Answered before any window system is needed, so they work over ssh and in scripts.
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "lumbridle: %s\n\n%s", qPrintable(options.error),
                     qPrintable(UsageText()));
        return 2;
    }
    if (options.help) {
        std::fputs(qPrintable(UsageText()), stdout);
        return 0;
    }
    if (options.version) {
        std::puts("Lumbridle 5.0");
        return 0;
    }
    if (!options.dataDir.isEmpty() && !QDir(options.dataDir).exists()) {
        std::fprintf(stderr, "lumbridle: the data folder %s does not exist\n",
                     qPrintable(options.dataDir));
        return 2;
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumbridle"));
    QApplication::setApplicationVersion(QStringLiteral("5.0"));
    if (!PrepareStart(options.dataDir))
        return 1;
    frmMenu menu(Activities());
    menu.show();
    CloseOnTerminate(&menu);
    return app.exec();
}
