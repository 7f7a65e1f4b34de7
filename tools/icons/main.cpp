// SPDX-License-Identifier: GPL-3.0-or-later
// lumbridle_icons SVG OUTDIR SIZE...: draws the program's icon at each size as OUTDIR/SIZE.png,
// so the desktop's icon theme gets sharp pictures without a converter outside Qt.
#include <cstdio>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 4) {
        std::fputs("usage: lumbridle_icons SVG OUTDIR SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "lumbridle_icons: cannot read %s\n", argv[1]);
        return 1;
    }
    const QString out = QString::fromLocal8Bit(argv[2]);
    for (int i = 3; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        if (size < 1 || size > 4096) {
            std::fprintf(stderr, "lumbridle_icons: bad size %s\n", argv[i]);
            return 2;
        }
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
        painter.end();
        const QString file = QStringLiteral("%1/%2.png").arg(out).arg(size);
        if (!image.save(file)) {
            std::fprintf(stderr, "lumbridle_icons: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
