// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Services.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>

class QThread;
class SoundWorker;
class HelpWindow;

// Sounds through Qt Multimedia on a thread of their own, so a pause on the window's thread
// never holds a sound back. Silent, never an error, when there is no audio device or the
// sound is muted.
class QtSound final : public SoundService {
public:
    QtSound();
    ~QtSound() override;
    void stop() override;
    void play(const QString &file, bool wait) override;
    void beep() override;

    // Length of a PCM wave file in seconds, 0 when it cannot be read.
    static double waveSeconds(const QString &file);

private:
    bool ready();

    QThread *m_thread = nullptr;
    SoundWorker *m_worker = nullptr;
    bool m_checked = false;
    bool m_hasDevice = false;
};

// Real time for pauses and tick counts.
class SystemClock final : public ClockService {
public:
    SystemClock() { m_started.start(); }
    qint64 ticks() override { return m_started.elapsed(); }
    void delay(double seconds) override;

private:
    QElapsedTimer m_started;
};

// Qt's own message boxes, file dialogs and print preview.
class QtDialogs final : public DialogService {
public:
    QMessageBox::StandardButton message(QWidget *parent, const MessageSpec &spec) override;
    QString openFileName(QWidget *parent, const QString &caption, const QString &folder,
                         const QString &filter) override;
    QString saveFileName(QWidget *parent, const QString &caption, const QString &folder,
                         const QString &filter) override;
    bool print(QWidget *parent, const PrintDocument &document) override;
    int run(QDialog &dialog) override;
};

// Help pages from the data folder in one help window that is reused.
class HelpBrowserService final : public HelpService {
public:
    void showTopic(QWidget *parent, const QString &topic) override;
    void showContents(QWidget *parent) override;

private:
    HelpWindow *window();
    QPointer<HelpWindow> m_window;
};
