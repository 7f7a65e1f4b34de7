// SPDX-License-Identifier: GPL-3.0-or-later
// Opens every activity of the menu and plays it like a pupil who presses anything: random
// clicks on the controls, keys, typed text and timer ticks, with message boxes, file dialogs
// and printing answered at random. After every action the window must still stand, no modal
// window may be left open, and Exit must bring the menu back.
// LUMBRIDLE_MONKEY_ACTIONS (per window) or LUMBRIDLE_MONKEY_TOTAL (shared by all windows) and
// LUMBRIDLE_MONKEY_SEED set the run; a failure names the seed and action that replay it.
#include "Activities.h"
#include "shell/ActivityWindow.h"
#include "shell/core/Random.h"
#include "shell/frmMenu.h"
#include "shell/WindowUtil.h"
#include "support/TestDoubles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {
int setting(const char *name, int fallback)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok && value > 0 ? value : fallback;
}

// Seeds from the clock become the run's own, so a failing run replays; a case number
// (Stop Thief, worksheets) stays the number it is.
class ReplayableRandom final : public RandomSource {
public:
    explicit ReplayableRandom(qint64 seed) : m_runSeed(seed), m_generator(seed) {}
    double next() override { return m_generator.next(); }
    void seed(qint64 seed) override
    {
        m_generator.seed(seed > 100'000'000'000LL ? m_runSeed + ++m_clockSeeds : seed);
    }

private:
    qint64 m_runSeed;
    qint64 m_clockSeeds = 0;
    Generator m_generator;
};

const int Keys[] = {
    Qt::Key_A,      Qt::Key_E,       Qt::Key_S,         Qt::Key_Z,     Qt::Key_0,
    Qt::Key_5,      Qt::Key_9,       Qt::Key_Return,    Qt::Key_Enter, Qt::Key_Escape,
    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_F1,
    Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Up,        Qt::Key_Down,  Qt::Key_Minus,
    Qt::Key_Period, Qt::Key_Delete,  Qt::Key_Home,      Qt::Key_End,   Qt::Key_H};
} // namespace

class MonkeyTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        InitTestProgram();
        // The offscreen platform says what it cannot do at every window shown; thousands of
        // such lines would hide what matters.
        static const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
                if (!message.startsWith(QLatin1String("This plugin does not support")))
                    previous(type, context, message);
            });
    }

    void everyWindowSurvivesRandomPlay_data()
    {
        QTest::addColumn<int>("index");
        for (const ActivityEntry &entry : Activities())
            if (entry.open)
                QTest::newRow(qPrintable(entry.helpTopic)) << entry.index;
    }

    void everyWindowSurvivesRandomPlay()
    {
        QFETCH(int, index);
        qsizetype windows = 0;
        for (const ActivityEntry &entry : Activities())
            windows += entry.open ? 1 : 0;
        const int total = setting("LUMBRIDLE_MONKEY_TOTAL", 0);
        const int actions = total ? int((total + windows - 1) / windows)
                                  : setting("LUMBRIDLE_MONKEY_ACTIONS", 1500);
        const qint64 seed = setting("LUMBRIDLE_MONKEY_SEED", 20261122) + index;

        TestEnvironment env;
        QTemporaryDir files;
        ReplayableRandom activityRandom(seed);
        SetRandomSource(&activityRandom);
        Generator monkey(seed);
        auto pick = [&monkey](qsizetype n) { return qsizetype(monkey.next() * double(n)); };
        // A damaged file and whatever the activity saved are what the pupil opens.
        QFile damaged(files.filePath(QStringLiteral("damaged.dat")));
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("3\n\"ONE\",\"TW\nO\"\x01\xff,-99999999999999\n");
        damaged.close();

        env.dialogs.onMessage = [&](const MessageRequest &request) {
            QList<QMessageBox::StandardButton> offered;
            for (int bit = 1; bit; bit <<= 1)
                if (request.buttons & bit)
                    offered.append(QMessageBox::StandardButton(bit));
            return offered.isEmpty() ? QMessageBox::Ok : offered[pick(offered.size())];
        };
        env.dialogs.onRun = [&](QDialog &dialog) {
            // A few random actions inside the modal window, then it is accepted or cancelled.
            dialog.show();
            for (int i = 0; i < 12 && dialog.isVisible(); ++i)
                act(&dialog, pick);
            const int result = pick(2) ? QDialog::Accepted : QDialog::Rejected;
            if (dialog.isVisible())
                result == QDialog::Accepted ? dialog.accept() : dialog.reject();
            dialog.hide();
            return dialog.result();
        };

        frmMenu menu(Activities());
        menu.show();
        QPointer<ActivityWindow> window;
        auto open = [&] {
            env.dialogs.openAnswers = {damaged.fileName(), files.filePath(QStringLiteral("saved"))};
            env.dialogs.saveAnswers = {files.filePath(QStringLiteral("saved"))};
            env.dialogs.printAccepted = pick(2);
            auto *button = menu.findChild<QAbstractButton *>(ArrayName("cmdChoice", index));
            QVERIFY(button && button->isEnabled());
            button->click();
            QApplication::processEvents();
            window = nullptr;
            for (QWidget *top : QApplication::topLevelWidgets())
                if (auto *activity = qobject_cast<ActivityWindow *>(top);
                    activity && activity->isVisible())
                    window = activity;
            QVERIFY2(window, "the menu opened no window");
        };
        open();
        if (QTest::currentTestFailed())
            return;

        int exits = 0;
        for (int action = 1; action <= actions; ++action) {
            const QByteArray where = QByteArray("seed ") + QByteArray::number(seed) + ", action " +
                                     QByteArray::number(action);
            act(window, pick);
            QApplication::processEvents();
            QVERIFY2(!QApplication::activeModalWidget(), where + ": a modal window was left open");
            if (!window || !window->isVisible()) {
                // The pupil left the activity (Exit, or a game switched to another one).
                QApplication::processEvents();
                QWidget *next = nullptr;
                for (QWidget *top : QApplication::topLevelWidgets())
                    if (qobject_cast<ActivityWindow *>(top) && top->isVisible())
                        next = top;
                if (next) {
                    window = qobject_cast<ActivityWindow *>(next);
                    continue;
                }
                QVERIFY2(menu.isVisible(), where + ": the menu did not come back");
                ++exits;
                open();
                if (QTest::currentTestFailed())
                    return;
            }
        }
        // Leaving for good: unsaved work is let go, as a pupil answering No would.
        env.dialogs.onMessage = [](const MessageRequest &request) {
            return request.buttons & QMessageBox::No ? QMessageBox::No : QMessageBox::Ok;
        };
        if (window)
            window->close();
        QApplication::processEvents();
        QVERIFY(menu.isVisible());
        SetRandomSource(nullptr);
        qInfo("%d actions (seed %lld): %d exits to the menu, %lld message boxes, %lld sounds, "
              "%lld modal windows, %lld printouts",
              actions, seed, exits, qlonglong(env.dialogs.messages.size()),
              qlonglong(env.sound.events.size()), qlonglong(env.dialogs.ranWindows.size()),
              qlonglong(env.dialogs.printed.size()));
    }

private:
    template <typename Pick> static void act(QWidget *window, Pick &pick)
    {
        if (!window)
            return;
        const qsizetype kind = pick(10);
        if (kind < 5) {
            // A click somewhere on a visible, enabled control.
            QList<QWidget *> targets;
            for (QWidget *child : window->findChildren<QWidget *>())
                if (child->isVisible() && child->isEnabled() && child->width() > 0 &&
                    child->height() > 0 && child->window() == window)
                    targets.append(child);
            if (targets.isEmpty())
                return;
            QWidget *target = targets[pick(targets.size())];
            const QPoint at(int(pick(target->width())), int(pick(target->height())));
            if (auto *button = qobject_cast<QAbstractButton *>(target); button && pick(2))
                button->click();
            else
                QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, at);
        } else if (kind < 8) {
            QWidget *focus = QApplication::focusWidget();
            if (!focus || focus->window() != window)
                focus = window;
            const int key = Keys[pick(std::size(Keys))];
            QTest::keyClick(focus, Qt::Key(key), pick(8) ? Qt::NoModifier : Qt::AltModifier);
        } else if (kind < 9) {
            if (auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
                QTest::keyClicks(edit, pick(2) ? QStringLiteral("12") : QStringLiteral("Ab'-9"));
        } else {
            // A tick of one of the window's running timers, as if time had passed.
            QList<QTimer *> timers;
            for (QTimer *timer : window->findChildren<QTimer *>())
                if (timer->isActive())
                    timers.append(timer);
            if (!timers.isEmpty()) {
                QTimer *timer = timers[pick(timers.size())];
                QTimerEvent tick(timer->timerId());
                QCoreApplication::sendEvent(timer, &tick);
            }
        }
    }
};

QTEST_MAIN(MonkeyTest)
#include "tst_monkey.moc"
