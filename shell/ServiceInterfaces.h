// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QString>

class PrintDocument;
class QDialog;
class QWidget;

// The process-wide services every window reaches through the plain functions below. Each has
// a real implementation and a test double; tests install theirs with Services::install.

// Plays wave files: stop the current sound, play a file to its end or in the background.
class SoundService {
public:
    virtual ~SoundService() = default;
    virtual void stop() = 0;
    virtual void play(const QString &file, bool wait) = 0;
    virtual void beep() = 0;
    // How long PlaySound waits for a file played to its end: 0 when it will not be heard.
    virtual double length(const QString &file)
    {
        Q_UNUSED(file);
        return 0;
    }
};

// Milliseconds since some start, and a pause that shows the latest screen and then waits
// without handling input or timers.
class ClockService {
public:
    virtual ~ClockService() = default;
    virtual qint64 ticks() = 0;
    virtual void delay(double seconds) = 0;
};

// What a message box says and offers.
struct MessageRequest {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::Information;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    // Shown behind the box's "Show Details..." button: the technical reason, a file's path.
    QString details{};
};

// Message boxes and the standard file and print dialogs.
class DialogService {
public:
    virtual ~DialogService() = default;
    virtual QMessageBox::StandardButton message(QWidget *parent, const MessageRequest &request) = 0;
    virtual QString openFileName(QWidget *parent, const QString &caption, const QString &folder,
                                 const QString &filter) = 0;
    virtual QString saveFileName(QWidget *parent, const QString &caption, const QString &folder,
                                 const QString &filter) = 0;
    // Shows the document in a print preview from which it can be printed or saved as PDF;
    // returns false when the user closes it without printing.
    virtual bool print(QWidget *parent, const PrintDocument &document) = 0;
    // Shows a window of ours modally (results, word entry, options) and returns its result.
    virtual int run(QDialog &dialog) = 0;
};

// The help window: a topic of one activity, or the contents page.
class HelpService {
public:
    virtual ~HelpService() = default;
    virtual void showTopic(QWidget *parent, const QString &topic) = 0;
    virtual void showContents(QWidget *parent) = 0;
};
