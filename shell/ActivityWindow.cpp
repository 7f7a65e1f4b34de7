// SPDX-License-Identifier: GPL-3.0-or-later
#include "ActivityWindow.h"

#include "Accessibility.h"
#include "Fonts.h"
#include "shell/core/Random.h"
#include "Services.h"
#include "WindowUtil.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

ActivityWindow::ActivityWindow(const QString &helpTopic, QWidget *parent)
    : QWidget(parent, Qt::Window), m_helpTopic(helpTopic)
{
    setAttribute(Qt::WA_DeleteOnClose);
    InstallAccessibility();
    RandomizeFromClock();
}

QString ActivityWindow::exitCaption(bool running)
{
    return running ? QStringLiteral("&Stop") : QStringLiteral("E&xit");
}

void ActivityWindow::setRunningCaption(QPushButton *button, bool running)
{
    button->setText(exitCaption(running));
}

void ActivityWindow::openHelp()
{
    ShowHelp(this, m_helpTopic);
}

void ActivityWindow::replaceWith(ActivityWindow *next)
{
    m_next = next;
    close();
    next->show();
}

void ActivityWindow::applyLook(const QColor &background)
{
    setFont(FriendlyFont(14));
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, background);
    setPalette(colours);
}

void ActivityWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_centred) {
        m_centred = true;
        PlaceOnScreen(this);
    }
}

void ActivityWindow::closeEvent(QCloseEvent *event)
{
    const auto timers = findChildren<QTimer *>();
    for (QTimer *timer : timers)
        timer->stop();
    StopSound();
    event->accept();
    if (m_next)
        emit replaced(m_next);
    else
        emit closed();
}

void ActivityWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F11) {
        ToggleFullScreen(this);
        return;
    }
    if (event->key() == Qt::Key_F1) {
        openHelp();
        return;
    }
    if (PressFocusedButton(this, event))
        return;
    QWidget::keyPressEvent(event);
}
