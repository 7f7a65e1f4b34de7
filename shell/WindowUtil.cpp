// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowUtil.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QKeyEvent>
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
