// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"
#include "shell/Services.h"

#include <functional>
#include <QList>
#include <QStringList>

// Records every sound call in order: "stop", "play ding.wav wait", "play car.wav async", "beep".
class RecordingSound final : public SoundService {
public:
    void stop() override { events.append(QStringLiteral("stop")); }
    void play(const QString &file, bool wait) override;
    void beep() override { events.append(QStringLiteral("beep")); }
    // Only the files played, by their names without folder.
    QStringList played() const;
    int beeps() const { return int(events.count(QStringLiteral("beep"))); }

    QStringList events;
};

// Time that moves only when the program pauses: every Delay returns at once and is recorded.
class VirtualClock final : public ClockService {
public:
    qint64 ticks() override { return now; }
    void delay(double seconds) override;

    qint64 now = 0;
    QList<double> delays;
};

// Answers message boxes and dialogs from a script and records what was shown.
class ScriptedDialogs final : public DialogService {
public:
    QMessageBox::StandardButton message(QWidget *parent, const MessageRequest &request) override;
    QString openFileName(QWidget *, const QString &, const QString &, const QString &) override;
    QString saveFileName(QWidget *, const QString &, const QString &, const QString &) override;
    bool print(QWidget *parent, const PrintDocument &document) override;
    int run(QDialog &dialog) override;

    // Answers for the next message boxes, in order; without one, onMessage's answer, else the
    // default button (or Ok).
    QList<QMessageBox::StandardButton> answers;
    std::function<QMessageBox::StandardButton(const MessageRequest &)> onMessage;
    QStringList openAnswers;
    QStringList saveAnswers;
    QList<MessageRequest> messages;
    // Titles of the documents sent to print; each is also written as a PDF to pdfFolder.
    QStringList printed;
    QString pdfFolder;
    QStringList pdfFiles;
    bool printAccepted = true;
    // Called with every modal window instead of running it; its result is returned.
    std::function<int(QDialog &)> onRun;
    QStringList ranWindows;
};

// Records the help topics asked for; the contents page is recorded as "contents".
class RecordingHelp final : public HelpService {
public:
    void showTopic(QWidget *, const QString &topic) override { topics.append(topic); }
    void showContents(QWidget *) override { topics.append(QStringLiteral("contents")); }
    QStringList topics;
};

// Hands out given numbers first, then continues from a seeded generator.
class ScriptedRandom final : public RandomSource {
public:
    double next() override { return values.isEmpty() ? m_rest.next() : values.takeFirst(); }
    void seed(qint64 seed) override { m_rest.seed(seed); }
    QList<double> values;

private:
    Generator m_rest{12345};
};

// Installs every double for the life of one test function and sets the data folder from
// the build; puts the real services back when it goes.
class TestEnvironment {
public:
    TestEnvironment();
    ~TestEnvironment();
    TestEnvironment(const TestEnvironment &) = delete;
    TestEnvironment &operator=(const TestEnvironment &) = delete;

    RecordingSound sound;
    VirtualClock clock;
    ScriptedDialogs dialogs;
    RecordingHelp help;
};

// The data folder of the build (the copy of data/ beside the programs).
QString BuiltDataPath();
// Settles once per test program: offscreen-safe fonts and a private configuration folder.
void InitTestProgram();
