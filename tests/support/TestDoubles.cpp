// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestDoubles.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Fonts.h"
#include "shell/Preferences.h"
#include "shell/Printing.h"

#include <QCoreApplication>
#include <QDialog>
#include <QFileInfo>
#include <QStandardPaths>

void RecordingSound::play(const QString &file, bool wait)
{
    events.append(QStringLiteral("play %1 %2")
                      .arg(QFileInfo(file).fileName(),
                           wait ? QStringLiteral("wait") : QStringLiteral("async")));
}

QStringList RecordingSound::played() const
{
    QStringList files;
    for (const QString &event : events)
        if (event.startsWith(QLatin1String("play ")))
            files.append(event.section(u' ', 1, 1));
    return files;
}

void VirtualClock::delay(double seconds)
{
    delays.append(seconds);
    if (seconds > 0)
        now += qint64(seconds * 1000);
}

QMessageBox::StandardButton ScriptedDialogs::message(QWidget *, const MessageRequest &request)
{
    messages.append(request);
    if (!answers.isEmpty())
        return answers.takeFirst();
    if (onMessage)
        return onMessage(request);
    return request.defaultButton != QMessageBox::NoButton ? request.defaultButton : QMessageBox::Ok;
}

QString ScriptedDialogs::openFileName(QWidget *, const QString &, const QString &, const QString &)
{
    return openAnswers.isEmpty() ? QString() : openAnswers.takeFirst();
}

QString ScriptedDialogs::saveFileName(QWidget *, const QString &, const QString &, const QString &)
{
    return saveAnswers.isEmpty() ? QString() : saveAnswers.takeFirst();
}

bool ScriptedDialogs::print(QWidget *, const PrintDocument &document)
{
    printed.append(document.title());
    if (!pdfFolder.isEmpty()) {
        const QString path = QStringLiteral("%1/printed-%2.pdf").arg(pdfFolder).arg(printed.size());
        if (WritePdf(document, path))
            pdfFiles.append(path);
    }
    return printAccepted;
}

int ScriptedDialogs::run(QDialog &dialog)
{
    ranWindows.append(dialog.objectName());
    return onRun ? onRun(dialog) : QDialog::Accepted;
}

QString BuiltDataPath()
{
    const QByteArray fromBuild = qgetenv("LUMBRIDLE_DATA_DIR");
    return fromBuild.isEmpty() ? QCoreApplication::applicationDirPath()
                               : QString::fromLocal8Bit(fromBuild);
}

void InitTestProgram()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    QStandardPaths::setTestModeEnabled(true);
    InstallFontSubstitutes();
}

TestEnvironment::TestEnvironment()
{
    InitTestProgram();
    SetDataPath(BuiltDataPath());
    TheSettings() = Settings();
    Preferences::get() = Preferences();
    Services::install(&sound);
    Services::install(&clock);
    Services::install(&dialogs);
    Services::install(&help);
    Randomize(2024);
}

TestEnvironment::~TestEnvironment()
{
    Services::install(static_cast<SoundService *>(nullptr));
    Services::install(static_cast<ClockService *>(nullptr));
    Services::install(static_cast<DialogService *>(nullptr));
    Services::install(static_cast<HelpService *>(nullptr));
    SetRandomSource(nullptr);
}
