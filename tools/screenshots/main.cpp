// SPDX-License-Identifier: GPL-3.0-or-later
// lumbridle_screenshots OUTDIR [NAME-FILTER]: writes OUTDIR/<scene>.png for every scene, at
// its own size and again at full HD (<scene>-fullhd.png).
#include "Scene.h"
#include "support/TestDoubles.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumbridle"));
    if (argc < 2) {
        std::fputs("usage: lumbridle_screenshots OUTDIR [NAME-FILTER]\n", stderr);
        return 2;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    const QString filter = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    QDir().mkpath(out);

    // One line per activity.
    QList<Scene> scenes;
    scenes += shellScenes();
    scenes += mathraceScenes();
    scenes += stopthiefScenes();
    scenes += balloonScenes();
    scenes += pizzaScenes();
    scenes += spaceraceScenes();
    scenes += geographyScenes();
    scenes += candyScenes();
    int written = 0;
    for (const Scene &scene : std::as_const(scenes)) {
        if (!filter.isEmpty() && !scene.name.contains(filter))
            continue;
        for (const QSize size : {scene.size, QSize(1920, 1080)}) {
            TestEnvironment environment;
            QWidget *window = scene.make();
            if (!window)
                continue;
            window->resize(size);
            window->show();
            QApplication::processEvents();
            // A first paint lets windows finish what they draw after it (the menu's picture).
            window->grab();
            QApplication::processEvents();
            const QString suffix = size == scene.size ? QString() : QStringLiteral("-fullhd");
            const QString file = QStringLiteral("%1/%2%3.png").arg(out, scene.name, suffix);
            if (window->grab().save(file)) {
                std::printf("%s\n", qPrintable(file));
                ++written;
            }
            window->setAttribute(Qt::WA_DeleteOnClose, false);
            delete window;
            if (size == QSize(1920, 1080) || scene.size == QSize(1920, 1080))
                break;
        }
    }
    return written > 0 ? 0 : 1;
}
