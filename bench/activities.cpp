// SPDX-License-Identifier: GPL-3.0-or-later
// bench_activities [--runs N] [--idle SECONDS]: opens every activity of the menu's table in turn
// and prints, per activity, the median time from the menu button's click to the activity
// window's first paint, and the processor time the open window uses while nobody touches it.
// Every activity added to the table is measured with no change here.
#include "Activities.h"
#include "shell/Accessibility.h"
#include "shell/ActivityWindow.h"
#include "shell/frmMenu.h"
#include "shell/Startup.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <QApplication>
#include <QEventLoop>
#include <QPushButton>
#include <QTimer>

namespace {

double nowMs()
{
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

double cpuMs()
{
    timespec spent{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
    return spent.tv_sec * 1000.0 + spent.tv_nsec / 1e6;
}

// Ends a loop once the watched window has been painted and the pass that painted it is over.
class PaintWaiter : public QObject {
public:
    explicit PaintWaiter(QEventLoop *loop) : m_loop(loop) {}
    double paintedAt = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && paintedAt == 0) {
            QMetaObject::invokeMethod(
                this,
                [this] {
                    paintedAt = nowMs();
                    m_loop->quit();
                },
                Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop *m_loop;
};

// Clicks the menu's button and waits for the activity window's first paint; returns the
// milliseconds between, or a negative number when nothing opened.
double openOnce(frmMenu &menu, int index)
{
    QEventLoop loop;
    PaintWaiter waiter(&loop);
    const double clicked = nowMs();
    menu.cmdChoice(index)->click();
    ActivityWindow *window = menu.currentActivity();
    if (!window)
        return -1;
    window->installEventFilter(&waiter);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    loop.exec();
    window->removeEventFilter(&waiter);
    return waiter.paintedAt > 0 ? waiter.paintedAt - clicked : -1;
}

void settle(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int runs = 15;
    int idleSeconds = 5;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::string(argv[i]) == "--runs")
            runs = std::max(1, std::atoi(argv[i + 1]));
        else if (std::string(argv[i]) == "--idle")
            idleSeconds = std::max(0, std::atoi(argv[i + 1]));
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lumbridle"));
    QApplication::setOrganizationName(QStringLiteral("Lumbridle"));
    if (!PrepareStart(QString()))
        return 1;
    frmMenu menu(Activities());
    menu.show();
    settle(200);

    bool allOpened = true;
    for (const ActivityEntry &entry : Activities()) {
        if (!entry.open)
            continue;
        QList<double> times;
        for (int run = 0; run < runs; ++run) {
            const double ms = openOnce(menu, entry.index);
            if (ms < 0)
                break;
            times.append(ms);
            const bool last = run + 1 == runs;
            if (last && idleSeconds > 0)
                break; // the last opening stays open to be watched idle
            menu.currentActivity()->close();
            settle(20);
        }
        if (times.size() != runs) {
            std::printf("%-20s did not open\n", qPrintable(SpokenCaption(entry.caption)));
            allOpened = false;
            continue;
        }
        double idleCpu = 0;
        if (idleSeconds > 0) {
            settle(300); // what runs once after opening is not idling
            const double before = cpuMs();
            settle(idleSeconds * 1000);
            idleCpu = cpuMs() - before;
            menu.currentActivity()->close();
            settle(20);
        }
        std::sort(times.begin(), times.end());
        std::printf("%-20s open %6.1f ms (median of %d, fastest %.1f, slowest %.1f)"
                    "   idle CPU %5.1f ms over %d s\n",
                    qPrintable(SpokenCaption(entry.caption)), times[times.size() / 2], runs,
                    times.first(), times.last(), idleCpu, idleSeconds);
        std::fflush(stdout);
    }
    return allOpened ? 0 : 1;
}
