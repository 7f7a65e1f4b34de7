// SPDX-License-Identifier: GPL-3.0-or-later
// The yardstick for start-up: a plain Qt window with fifteen buttons and nothing of ours, timed
// the same way as the real menu.
#include "FirstPaint.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Fifteen buttons"));
    auto *grid = new QGridLayout(&window);
    for (int i = 0; i < 15; ++i)
        grid->addWidget(new QPushButton(QStringLiteral("Button %1").arg(i + 1), &window), i / 5,
                        i % 5);
    window.resize(1000, 700);
    ReportFirstPaint(&window);
    window.show();
    return app.exec();
}
