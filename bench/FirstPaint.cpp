// SPDX-License-Identifier: GPL-3.0-or-later
#include "FirstPaint.h"

#include <chrono>
#include <cstdio>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

// Watches one window for its first paint event, then reports and quits.
class FirstPaintWatcher : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            // Queued, so the clock is read after the whole window, children included, is painted
            // and flushed to the screen in this same pass.
            QMetaObject::invokeMethod(
                this, [] { report(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void report()
    {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("shown %lld\n",
                    static_cast<long long>(
                        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
        std::fflush(stdout);
        // Leaves without closing the window: closing the menu would write the settings file.
        QCoreApplication::exit(0);
    }

    bool m_seen = false;
};

} // namespace

void ReportFirstPaint(QWidget *window)
{
    window->installEventFilter(new FirstPaintWatcher(window));
}
