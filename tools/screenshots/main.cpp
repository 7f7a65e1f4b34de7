// SPDX-License-Identifier: GPL-3.0-or-later
// lumbridle_screenshots OUTDIR [NAME-FILTER]: writes OUTDIR/<scene>.png for every scene, at
// its own size and again at full HD (<scene>-fullhd.png), then as it opens on two common screens
// at 100, 150 and 200 % scaling (<scene>-1366x768-200.png): fitted to the screen's free area
// and drawn at the scale's pixel density.
#include "Scene.h"
#include "shell/WindowUtil.h"
#include "support/TestDoubles.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        // A screen larger than any picture taken, so no window shrinks to fit the screen
        // before it is fitted to the screens pictured below.
        const QByteArray config = QDir::tempPath().toLocal8Bit() + "/lumbridle-screens.json";
        if (FILE *file = std::fopen(config.constData(), "w")) {
            std::fputs("{\"screens\": [{\"name\": \"big\", \"x\": 0, \"y\": 0, \"width\": 3840,"
                       " \"height\": 2160, \"logicalDpi\": 96, \"logicalBaseDpi\": 96}]}",
                       file);
            std::fclose(file);
            qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config);
        } else {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
    }
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
    scenes += cardsScenes();
    scenes += calendarScenes();
    scenes += graphsScenes();
    scenes += typingScenes();
    scenes += mathtutorScenes();
    scenes += worldgeoScenes();
    scenes += presidentsScenes();
    scenes += lemonadeScenes();
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
    for (const Scene &scene : std::as_const(scenes)) {
        if (!filter.isEmpty() && !scene.name.contains(filter))
            continue;
        for (const QSize screen : {QSize(1366, 768), QSize(1920, 1080)}) {
            for (const int percent : {100, 150, 200}) {
                TestEnvironment environment;
                QWidget *window = scene.make();
                if (!window)
                    continue;
                const double scale = percent / 100.0;
                // The free area in the window's own units, below a 48-pixel task bar.
                const QRect area(0, 0, int(screen.width() / scale),
                                 int((screen.height() - 48) / scale));
                window->resize(scene.size);
                window->show();
                QApplication::processEvents();
                FitInto(window, area, QMargins(4, 34, 4, 4));
                QApplication::processEvents();
                window->grab();
                QApplication::processEvents();
                // The whole screen, with the window where it opens, so a cut-off would show.
                QPixmap shot(screen);
                shot.setDevicePixelRatio(scale);
                shot.fill(QColor(0x37, 0x47, 0x4F));
                QPainter painter(&shot);
                window->render(&painter, window->geometry().topLeft());
                painter.end();
                const QString file = QStringLiteral("%1/%2-%3x%4-%5.png")
                                         .arg(out, scene.name)
                                         .arg(screen.width())
                                         .arg(screen.height())
                                         .arg(percent);
                if (shot.save(file)) {
                    std::printf("%s\n", qPrintable(file));
                    ++written;
                }
                window->setAttribute(Qt::WA_DeleteOnClose, false);
                delete window;
            }
        }
    }
    return written > 0 ? 0 : 1;
}
