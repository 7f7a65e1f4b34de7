// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ServiceInterfaces.h"

namespace Services {
// Installing nullptr puts the real implementation back. The caller keeps ownership.
void install(SoundService *sound);
void install(ClockService *clock);
void install(DialogService *dialogs);
void install(HelpService *help);

SoundService &sound();
ClockService &clock();
DialogService &dialogs();
HelpService &help();
} // namespace Services

// Flags of PlaySound: play to the end before returning, or return at once.
inline constexpr qint16 SND_SYNC = 0;
inline constexpr qint16 SND_ASYNC = 1;

// Plays a wave file (a full path, made with DataFile): an empty name does nothing at all;
// otherwise the current sound stops first. A missing file is silent.
void PlaySound(const QString &file, qint16 flags);
void StopSound();
void Beep();
// Pauses for the given seconds, showing the latest state of the screen first. Keys and clicks
// that arrived during the pause are dropped when it ends, so a double press cannot act on what
// comes next.
void Delay(float seconds);
// Drops the keys and clicks waiting to be handled; nothing else is handled or lost.
void DropQueuedInput();
qint64 TickCount();

QMessageBox::StandardButton
MsgBox(QWidget *parent, const QString &title, const QString &text, QMessageBox::Icon icon,
       QMessageBox::StandardButtons buttons = QMessageBox::Ok,
       QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
QMessageBox::StandardButton MsgBox(QWidget *parent, const MessageRequest &request);
void ShowHelp(QWidget *parent, const QString &topic);
void ShowHelpContents(QWidget *parent);
bool PrintWithPreview(QWidget *parent, const PrintDocument &document);
int RunModal(QDialog &dialog);
