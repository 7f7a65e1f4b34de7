// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowUtil.h"

#include "Preferences.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

void CentreOnScreen(QWidget *window)
{
    QScreen *screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    const QSize size = window->frameGeometry().size();
    window->move(area.left() + (area.width() - size.width()) / 2,
                 area.top() + (area.height() - size.height()) / 2);
}

void PlaceOnScreen(QWidget *window)
{
    if (Preferences::get().fullScreen)
        window->setWindowState(window->windowState() | Qt::WindowFullScreen);
    else
        CentreOnScreen(window);
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

void StyleBrightButton(QPushButton *button, const QColor &colour, int radius)
{
    const bool darkText = colour.lightness() > 150;
    button->setStyleSheet(
        QStringLiteral("QPushButton { background: %1; color: %2; border: 3px solid %3;"
                       " border-radius: %5px; padding: 6px 14px; }"
                       "QPushButton:hover { background: %4; }"
                       "QPushButton:pressed { background: %3; padding-top: 9px; }"
                       "QPushButton:focus { border: 5px solid #FFD600; }"
                       "QPushButton:disabled { background: #CFD8DC; color: #78909C;"
                       " border-color: #B0BEC5; }")
            .arg(colour.name(), darkText ? QStringLiteral("#212121") : QStringLiteral("white"),
                 colour.darker(140).name(), colour.lighter(115).name())
            .arg(radius));
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
