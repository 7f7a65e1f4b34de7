// SPDX-License-Identifier: GPL-3.0-or-later
#include "Services.h"

#include "RealServices.h"

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
    Services::sound().play(file, flags == SND_SYNC);
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
