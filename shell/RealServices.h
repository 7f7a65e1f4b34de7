// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ServiceInterfaces.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>

#include <memory>

class HelpWindow;
class SoundBackend;

// Sounds through the audio module, loaded with the first sound that plays. Silent, never an
// error, when the module or an audio device is missing or the sound is muted.
class QtSound final : public SoundService {
public:
    QtSound();
    ~QtSound() override;
    void stop() override;
    void play(const QString &file, bool wait) override;
    void beep() override;
    // 0 when nothing will be heard (muted, no device, no file), else the file's length.
    double length(const QString &file) override;

    // Length of a PCM wave file in seconds, 0 when it cannot be read.
    static double waveSeconds(const QString &file);
    // Where the audio module is looked for: beside the program.
    static QString modulePath();

private:
    SoundBackend *backend();

    std::unique_ptr<SoundBackend> m_backend;
    bool m_loaded = false;
};

// Real time for pauses and tick counts. The pause handles nothing while it waits.
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
    QMessageBox::StandardButton message(QWidget *parent, const MessageRequest &request) override;
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
