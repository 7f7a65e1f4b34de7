// SPDX-License-Identifier: GPL-3.0-or-later
#include "Services.h"

#include "RealServices.h"

#include <QCoreApplication>
#include <QEvent>

namespace {
SoundService *soundOverride = nullptr;
ClockService *clockOverride = nullptr;
DialogService *dialogsOverride = nullptr;
HelpService *helpOverride = nullptr;
} // namespace

namespace Services {
void install(SoundService *sound)
{
    soundOverride = sound;
}
void install(ClockService *clock)
{
    clockOverride = clock;
}
void install(DialogService *dialogs)
{
    dialogsOverride = dialogs;
}
void install(HelpService *help)
{
    helpOverride = help;
}

namespace {
// The installed double, or the real service made on first use.
template <typename Real, typename Service> Service &chosen(Service *override)
{
    static Real real;
    return override ? *override : real;
}
} // namespace

SoundService &sound()
{
    return chosen<QtSound>(soundOverride);
}
ClockService &clock()
{
    return chosen<SystemClock>(clockOverride);
}
DialogService &dialogs()
{
    return chosen<QtDialogs>(dialogsOverride);
}
HelpService &help()
{
    return chosen<HelpBrowserService>(helpOverride);
}
} // namespace Services

void PlaySound(const QString &file, qint16 flags)
{
    if (file.isEmpty())
        return;
    Services::sound().stop();
    const bool wait = flags == SND_SYNC;
    Services::sound().play(file, wait);
    // Waiting for a sound is a pause like any other: the same frozen screen, the same dropped keys.
    if (const double length = wait ? Services::sound().length(file) : 0; length > 0)
        Delay(float(length));
}

void StopSound()
{
    Services::sound().stop();
}

void Beep()
{
    Services::sound().beep();
}

void Delay(float seconds)
{
    Services::clock().delay(seconds);
    if (seconds > 0)
        DropQueuedInput();
}

namespace {
// Swallows input events while it is installed on the application.
class InputDropper final : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
            return true;
        default:
            return false;
        }
    }
};
} // namespace

void DropQueuedInput()
{
    if (!QCoreApplication::instance())
        return;
    InputDropper dropper;
    QCoreApplication::instance()->installEventFilter(&dropper);
    // Timers stay queued: a clock tick must not run in the middle of the caller's turn. Input is
    // read from the window system in one pass and delivered in the next, hence several.
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers |
                                        QEventLoop::ExcludeSocketNotifiers);
    QCoreApplication::instance()->removeEventFilter(&dropper);
}

qint64 TickCount()
{
    return Services::clock().ticks();
}

QMessageBox::StandardButton MsgBox(QWidget *parent, const QString &title, const QString &text,
                                   QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
                                   QMessageBox::StandardButton defaultButton)
{
    return Services::dialogs().message(parent,
                                       MessageRequest{title, text, icon, buttons, defaultButton});
}

QMessageBox::StandardButton MsgBox(QWidget *parent, const MessageRequest &request)
{
    return Services::dialogs().message(parent, request);
}

void ShowHelp(QWidget *parent, const QString &topic)
{
    Services::help().showTopic(parent, topic);
}

void ShowHelpContents(QWidget *parent)
{
    Services::help().showContents(parent);
}

bool PrintWithPreview(QWidget *parent, const PrintDocument &document)
{
    return Services::dialogs().print(parent, document);
}

int RunModal(QDialog &dialog)
{
    return Services::dialogs().run(dialog);
}
