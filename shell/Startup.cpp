// SPDX-License-Identifier: GPL-3.0-or-later
#include "Startup.h"

#include "Fonts.h"
#include "Preferences.h"
#include "Services.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/core/SettingsStore.h"

#include <csignal>
#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLoggingCategory>
#include <QPointer>
#include <QSocketNotifier>
#include <sys/socket.h>
#include <unistd.h>

Q_DECLARE_LOGGING_CATEGORY(lcShell)

StartOptions ParseCommandLine(const QStringList &arguments)
{
    StartOptions options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            options.help = true;
        } else if (argument == QLatin1String("--version")) {
            options.version = true;
        } else if (argument == QLatin1String("--data-dir")) {
            if (i + 1 >= arguments.size()) {
                options.error = QStringLiteral("--data-dir needs the name of a folder");
                break;
            }
            options.dataDir = arguments[++i];
        } else if (argument.startsWith(QLatin1String("--data-dir="))) {
            options.dataDir = argument.mid(11);
        } else if (argument == QLatin1String("-platform") || argument == QLatin1String("-style")) {
            ++i; // Qt's own options, with their value
        } else {
            options.error = QStringLiteral("unknown option %1").arg(argument);
            break;
        }
    }
    return options;
}

QString UsageText()
{
    return QStringLiteral("Usage: lumbridle [--data-dir DIR]\n"
                          "Learning activities for young pupils.\n\n"
                          "  --data-dir DIR  read data files, pictures and sounds from DIR\n"
                          "                  (default: the folder of the program)\n"
                          "  --help          show this text\n"
                          "  --version       show the version\n");
}

void LoadProgramIcon()
{
    if (QApplication::windowIcon().isNull())
        QApplication::setWindowIcon(QIcon(DataFile(QStringLiteral("lumbridle.svg"))));
}

bool PrepareStart(const QString &dataDir)
{
    InstallFontSubstitutes();
    // One friendly face for everything: the same lettering in every window, and one font
    // fewer to find and load before the menu's first paint.
    QApplication::setFont(FriendlyFont(QApplication::font().pointSizeF()));
    if (dataDir.isEmpty()) {
        const DataLocation location = LocateData(QCoreApplication::applicationDirPath());
        SetDataPath(location.folder);
        SetDataPathInstalled(location.installed);
    } else {
        SetDataPath(dataDir);
        SetDataPathInstalled(false);
    }
    Preferences::get().load();
    TheSettings().spaceRaceListName = QStringLiteral("NONE");
    TheSettings().spaceRaceWordCount = 0;

    FileError error;
    if (!SettingsStore::load(&error)) {
        // Written first and always: with no screen to show the box on, this is all anyone sees.
        std::fprintf(stderr, "lumbridle: %s\nlumbridle: %s\n", SettingsFile::BrokenMessage,
                     qPrintable(error.message()));
        std::fflush(stderr);
        MsgBox(nullptr, MessageRequest{QStringLiteral("Lumbridle"),
                                       QString::fromLatin1(SettingsFile::BrokenMessage),
                                       QMessageBox::Critical, QMessageBox::Ok,
                                       QMessageBox::NoButton, error.message()});
        return false;
    }
    return true;
}

namespace {
int terminateSocket[2] = {-1, -1};

// A signal handler may only write to a descriptor; the event loop reads it.
extern "C" void onTerminate(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(terminateSocket[0], &byte, 1);
}
} // namespace

void CloseOnTerminate(QWidget *menu)
{
    if (terminateSocket[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM, 0, terminateSocket) != 0) {
        qCWarning(lcShell) << "cannot watch for logout: settings are saved only from the menu";
        return;
    }
    auto *notifier = new QSocketNotifier(terminateSocket[1], QSocketNotifier::Read, menu);
    QObject::connect(notifier, &QSocketNotifier::activated, menu,
                     [notifier, window = QPointer<QWidget>(menu)] {
                         char byte = 0;
                         [[maybe_unused]] const auto got = ::read(terminateSocket[1], &byte, 1);
                         notifier->setEnabled(false);
                         if (window)
                             window->close();
                     });
    struct sigaction action = {};
    action.sa_handler = onTerminate;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        ::sigaction(signal, &action, nullptr);
}
