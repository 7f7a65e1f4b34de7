// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenFit.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace {
constexpr double Step = 0.88;
constexpr int Steps = 8;
constexpr double SmallestPoints = 7;
constexpr int SmallestPixels = 9;
} // namespace

namespace {
// The screen's free area less room for the frame and title bar the window manager adds.
QSize Room(const QWidget *window)
{
    QScreen *screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry().size() - QSize(8, 40) : QSize();
}
} // namespace

void ResizeWithinScreen(QWidget *window, const QSize &wanted)
{
    const QSize room = Room(window);
    window->resize(room.isValid() ? wanted.boundedTo(room) : wanted);
}

void ShrinkToScreen(QWidget *window)
{
    const QSize room = Room(window);
    if (!room.isValid() || !window->layout())
        return;
    for (int step = 0; step < Steps; ++step) {
        window->layout()->activate();
        const QSize need = window->layout()->totalMinimumSize();
        if (need.width() <= room.width() && need.height() <= room.height())
            break;
        QList<QWidget *> widgets = window->findChildren<QWidget *>();
        widgets.prepend(window);
        for (QWidget *widget : std::as_const(widgets)) {
            // Widgets without a font of their own follow their parent's.
            if (!widget->testAttribute(Qt::WA_SetFont))
                continue;
            QFont font = widget->font();
            if (font.pointSizeF() > 0)
                font.setPointSizeF(qMax(SmallestPoints, font.pointSizeF() * Step));
            else
                font.setPixelSize(qMax(SmallestPixels, int(font.pixelSize() * Step)));
            widget->setFont(font);
        }
    }
}
