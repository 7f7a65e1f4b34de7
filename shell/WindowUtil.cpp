// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowUtil.h"

#include "Preferences.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

namespace {
constexpr const char *FitScaleProperty = "lumbridleFitScale";

// Scales every explicitly set font, minimum and fixed size and layout spacing by `factor`.
void shrinkContents(QWidget *window, double factor)
{
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    widgets.prepend(window);
    QList<QPair<QWidget *, QFont>> fonts;
    for (QWidget *widget : std::as_const(widgets)) {
        if (widget != window && !widget->testAttribute(Qt::WA_SetFont))
            continue;
        QFont font = widget->font();
        if (font.pointSizeF() > 0)
            font.setPointSizeF(qMax(6.0, font.pointSizeF() * factor));
        else if (font.pixelSize() > 0)
            font.setPixelSize(qMax(8, int(font.pixelSize() * factor)));
        fonts.append({widget, font});
    }
    // Set after all are read, so a parent's new font is not scaled again through its children.
    for (const auto &[widget, font] : std::as_const(fonts))
        widget->setFont(font);
    // Never below what the widget needs for its (already smaller) lettering and style padding,
    // or its text would be clipped.
    auto scaled = [factor](QWidget *widget, const QSize &size) {
        const QSize hint =
            qobject_cast<QAbstractButton *>(widget) ? widget->minimumSizeHint() : QSize(0, 0);
        return QSize(size.width() > 0 ? qMax(int(size.width() * factor), hint.width()) : 0,
                     size.height() > 0 ? qMax(int(size.height() * factor), hint.height()) : 0);
    };
    for (QWidget *widget : std::as_const(widgets)) {
        const QSize min = widget->minimumSize();
        const QSize max = widget->maximumSize();
        if (!min.isEmpty() && min == max)
            widget->setFixedSize(scaled(widget, min));
        else if (min.width() > 0 || min.height() > 0)
            widget->setMinimumSize(scaled(widget, min));
        if (QLayout *layout = widget->layout()) {
            const QMargins m = layout->contentsMargins();
            layout->setContentsMargins(int(m.left() * factor), int(m.top() * factor),
                                       int(m.right() * factor), int(m.bottom() * factor));
            const auto layouts = layout->findChildren<QLayout *>();
            for (QLayout *inner : layouts)
                if (inner->spacing() > 0)
                    inner->setSpacing(int(inner->spacing() * factor));
            if (layout->spacing() > 0)
                layout->setSpacing(int(layout->spacing() * factor));
        }
    }
}

// The least room the window's layout needs; `changed` after fonts and sizes were scaled.
QSize needed(QWidget *window, bool changed)
{
    if (QLayout *layout = window->layout()) {
        if (changed)
            layout->invalidate();
        layout->activate();
    }
    return window->minimumSizeHint().expandedTo(window->minimumSize());
}
} // namespace

void FitInto(QWidget *window, const QRect &area)
{
    QMargins frame;
    if (window->isVisible())
        frame = QMargins(window->geometry().left() - window->frameGeometry().left(),
                         window->geometry().top() - window->frameGeometry().top(),
                         window->frameGeometry().right() - window->geometry().right(),
                         window->frameGeometry().bottom() - window->geometry().bottom());
    if (frame.isNull() && QGuiApplication::platformName() != QLatin1String("offscreen"))
        frame = QMargins(4, 34, 4, 4); // a typical title bar, before the real one is known
    FitInto(window, area, frame);
}

void FitInto(QWidget *window, const QRect &area, const QMargins &frame)
{
    const QSize room = area.size().shrunkBy(frame);
    double scale = FitScale(window);
    // Measured once when it fits, as it does on most screens: this runs before every first paint.
    QSize need = needed(window, false);
    for (int round = 0; round < 8 && scale > 0.5; ++round) {
        if (round > 0)
            need = needed(window, true);
        if (need.width() <= room.width() && need.height() <= room.height())
            break;
        const double factor = qMax(0.5 / scale, 0.96 * qMin(double(room.width()) / need.width(),
                                                            double(room.height()) / need.height()));
        shrinkContents(window, qMin(factor, 0.97));
        scale *= qMin(factor, 0.97);
    }
    if (scale < FitScale(window))
        need = needed(window, true);
    window->setProperty(FitScaleProperty, scale);
    const QSize size = window->size().boundedTo(room).expandedTo(need.boundedTo(room));
    const QSize outer = size.grownBy(frame);
    // The inside of the window is placed, so the title bar lands inside the area too.
    window->setGeometry(
        QRect(QPoint(area.left() + qMax(0, (area.width() - outer.width()) / 2) + frame.left(),
                     area.top() + qMax(0, (area.height() - outer.height()) / 2) + frame.top()),
              size));
}

double FitScale(const QWidget *window)
{
    const QVariant scale = window->property(FitScaleProperty);
    return scale.isValid() ? scale.toDouble() : 1.0;
}

void CentreOnScreen(QWidget *window)
{
    QScreen *screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    FitInto(window, screen->availableGeometry());
}

void PlaceOnScreen(QWidget *window)
{
    if (Preferences::get().fullScreen) {
        // Full screen has no more room than the screen: the contents must fit it too.
        if (QScreen *screen =
                window->screen() ? window->screen() : QGuiApplication::primaryScreen())
            FitInto(window, screen->geometry(), QMargins(0, 0, 0, 0));
        window->setWindowState(window->windowState() | Qt::WindowFullScreen);
    } else {
        CentreOnScreen(window);
    }
}

void ToggleFullScreen(QWidget *window)
{
    Preferences::get().fullScreen = !window->isFullScreen();
    window->setWindowState(window->windowState() ^ Qt::WindowFullScreen);
}

void ScaleFont(QWidget *widget, double factor, bool bold)
{
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    widget->setFont(font);
}

bool PressFocusedButton(QWidget *window, QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return false;
    auto *button = qobject_cast<QAbstractButton *>(window->focusWidget());
    if (!button || !button->isEnabled() || !button->isVisible())
        return false;
    button->animateClick();
    return true;
}

BrightColours BrightColoursOf(const QColor &colour)
{
    const bool darkText = colour.lightness() > 150;
    return {colour,
            darkText ? QColor(0x21, 0x21, 0x21) : QColor(Qt::white),
            colour.darker(140),
            colour.lighter(115),
            QColor(0xFF, 0xD6, 0x00),
            QColor(0xCF, 0xD8, 0xDC),
            QColor(0x78, 0x90, 0x9C),
            QColor(0xB0, 0xBE, 0xC5)};
}

QString BrightButtonStyle(const QString &selector, const QColor &colour, int radius)
{
    const BrightColours c = BrightColoursOf(colour);
    return QStringLiteral("%1 { background: %2; color: %3; border: 3px solid %4;"
                          " border-radius: %5px; padding: 6px 14px; }"
                          "%1:hover { background: %6; }"
                          "%1:pressed { background: %4; padding-top: 9px; }"
                          "%1:focus { border: 5px solid %7; }"
                          "%1:disabled { background: %8; color: %9;")
               .arg(selector, c.face.name(), c.text.name(), c.border.name())
               .arg(radius)
               .arg(c.hover.name(), c.focus.name(), c.disabledFace.name(), c.disabledText.name()) +
           QStringLiteral(" border-color: %1; }").arg(c.disabledBorder.name());
}

void StyleBrightButton(QPushButton *button, const QColor &colour, int radius)
{
    button->setStyleSheet(BrightButtonStyle(QStringLiteral("QPushButton"), colour, radius));
}

void Announce(QWidget *source, const QString &text)
{
    source->setAccessibleDescription(text);
    QAccessibleEvent alert(source, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool CanShowMessages()
{
    // A box on the offscreen or minimal platform, or with no screen, could never be closed.
    const QString platform = QGuiApplication::platformName();
    return QGuiApplication::primaryScreen() && platform != QLatin1String("offscreen") &&
           platform != QLatin1String("minimal");
}

QPushButton *MakeBrightButton(const QString &caption, const QString &name, const char *colour,
                              QWidget *parent)
{
    auto *button = Named(new QPushButton(caption, parent), name);
    button->setAutoDefault(true);
    button->setMinimumSize(90, 30);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    StyleBrightButton(button, QColor(QLatin1String(colour)));
    return button;
}

QPushButton *MakeBoldBrightButton(const QString &caption, const QString &name, const char *colour,
                                  QWidget *parent, int minHeight)
{
    auto *button = Named(new QPushButton(caption, parent), name);
    button->setAutoDefault(true);
    button->setMinimumHeight(minHeight);
    QFont bold = parent->font();
    bold.setBold(true);
    button->setFont(bold);
    StyleBrightButton(button, QColor(QLatin1String(colour)));
    return button;
}
