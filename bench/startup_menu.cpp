// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own start-up, as main() does it without the command line: fonts, data folder
// beside the program, preferences, settings file, then the menu, timed to its first paint.
#include "Activities.h"
#include "FirstPaint.h"
#include "shell/frmMenu.h"
#include "shell/Startup.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumbridle"));
    QApplication::setApplicationVersion(QStringLiteral("5.0"));
    if (!PrepareStart(QString()))
        return 1;
    frmMenu menu(Activities());
    ReportFirstPaint(&menu);
    menu.show();
    return app.exec();
}
