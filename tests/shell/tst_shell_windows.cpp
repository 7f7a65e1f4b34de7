// SPDX-License-Identifier: GPL-3.0-or-later
#include "Activities.h"
#include "shell/ActivityWindow.h"
#include "shell/core/DataPath.h"
#include "shell/frmInput.h"
#include "shell/frmMenu.h"
#include "shell/frmResults.h"
#include "shell/Preferences.h"
#include "shell/RealServices.h"
#include "shell/core/Settings.h"
#include "shell/WindowUtil.h"
#include "shell/widgets/BrightButton.h"
#include "support/TestDoubles.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

// A stand-in activity with a running timer, to see the menu hand over and take back.
class FakeActivity : public ActivityWindow {
public:
    explicit FakeActivity(const QString &name) : ActivityWindow(QStringLiteral("fake"))
    {
        setObjectName(name);
        timer = new QTimer(this);
        timer->start(1000);
        ++opened;
    }
    QTimer *timer;
    static inline int opened = 0;
};

ActivityOpener fake(const QString &name)
{
    return [name] { return new FakeActivity(name); };
}

QList<ActivityEntry> fakeTable()
{
    QList<ActivityEntry> table;
    for (int i = 0; i < 15; ++i)
        table.append({i, QStringLiteral("Activity %1").arg(i),
                      i == 5 ? ActivityOpener() : fake(QStringLiteral("activity%1").arg(i)),
                      QStringLiteral("topic%1").arg(i)});
    table[13].open = CardGameOpener(fake(QStringLiteral("war")), fake(QStringLiteral("conc")),
                                    fake(QStringLiteral("black")));
    return table;
}

} // namespace

class ShellWindowsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { InitTestProgram(); }

    void menuHasItsCaptionsAndDisablesMissingActivities()
    {
        TestEnvironment env;
        frmMenu menu(Activities());
        QCOMPARE(menu.windowTitle(), QStringLiteral("Lumbridle, Version 5.0"));
        const QStringList captions{
            "World Geography", "Balloon Man",   "Space Race",  "Higher Math",      "\tMath Race",
            "Lemonade Stand",  "Candy Drive",   "Stop Thief!", "Graphs && Charts", "Calendar",
            "US Geography",    "US Presidents", "Keyboarding", "\tDeckhand",       "Pizza Place"};
        const auto table = Activities();
        QCOMPARE(table.size(), 15);
        for (int i = 0; i < 15; ++i) {
            auto *button = menu.findChild<QPushButton *>(QStringLiteral("cmdChoice_%1").arg(i));
            QVERIFY(button);
            QCOMPARE(button->text(), captions[i]);
            QCOMPARE(table[i].index, i);
            QCOMPARE(button->isEnabled(), bool(table[i].open));
            QCOMPARE(button->font().family(), QStringLiteral("Comic Sans MS"));
        }
        QVERIFY(menu.findChild<QWidget *>(QStringLiteral("Image1")));
        QVERIFY(menu.findChild<QPushButton *>(QStringLiteral("cmdHelp")));
        QVERIFY(menu.findChild<QPushButton *>(QStringLiteral("cmdExit")));
    }

    void openingAnActivityHidesTheMenuUntilItCloses()
    {
        TestEnvironment env;
        frmMenu menu(fakeTable());
        menu.show();
        QTest::mouseClick(menu.cmdChoice(2), Qt::LeftButton);
        QVERIFY(menu.isHidden());
        QPointer<ActivityWindow> activity = menu.currentActivity();
        QVERIFY(activity);
        QCOMPARE(activity->objectName(), QStringLiteral("activity2"));
        QVERIFY(activity->isVisible());
        QTimer *timer = static_cast<FakeActivity *>(activity.data())->timer;
        QVERIFY(timer->isActive());

        // A second click while an activity is open opens nothing more.
        const int opened = FakeActivity::opened;
        menu.openActivity(3);
        QCOMPARE(FakeActivity::opened, opened);

        env.sound.events.clear();
        activity->close();
        QVERIFY(!timer->isActive());
        QCOMPARE(env.sound.events, QStringList{"stop"});
        QVERIFY(menu.isVisible());
        QTest::qWait(0);
        QVERIFY(!activity); // closed activities are gone; the next opening starts afresh

        // Enter on a focused button opens it, for pupils who play by keyboard.
        menu.cmdChoice(4)->setFocus();
        QTest::keyClick(&menu, Qt::Key_Return);
        QTRY_VERIFY(menu.currentActivity());
        QCOMPARE(menu.currentActivity()->objectName(), QStringLiteral("activity4"));
        menu.currentActivity()->close();

        QVERIFY(!menu.cmdChoice(5)->isEnabled());
        menu.openActivity(5);
        QVERIFY(menu.isVisible());
    }

    void deckhandFollowsTheCardGameSetting()
    {
        TestEnvironment env;
        const QStringList games{"", "war", "conc", "black"};
        for (qint16 choice : {1, 2, 3, 0, 4, -1}) {
            TheSettings().cards.game = choice;
            frmMenu menu(fakeTable());
            menu.show();
            menu.openActivity(13);
            QVERIFY(menu.isHidden());
            if (choice >= 1 && choice <= 3) {
                QVERIFY(menu.currentActivity());
                QCOMPARE(menu.currentActivity()->objectName(), games[choice]);
                menu.currentActivity()->close();
                QVERIFY(menu.isVisible());
            } else {
                QVERIFY2(!menu.currentActivity(), qPrintable(QString::number(choice)));
            }
        }
    }

    void leavingTheMenuWritesTheSettings()
    {
        TestEnvironment env;
        QTemporaryDir dir;
        SetDataPath(dir.path());
        TheSettings().mathRace.player[0].name = QStringLiteral("Anna, Kofi");
        TheSettings().stopThief.level = 4;
        frmMenu menu(fakeTable());
        menu.show();
        menu.openActivity(1);
        QPointer<ActivityWindow> activity = menu.currentActivity();
        menu.close();
        QVERIFY(!activity || !activity->isVisible());
        QVERIFY(menu.isHidden());
        const auto written =
            SettingsFile::read(dir.filePath(QLatin1String(SettingsFile::FileName)));
        QVERIFY(written);
        QCOMPARE(written->mathRace.player[0].name, QStringLiteral("Anna, Kofi"));
        QCOMPARE(written->stopThief.level, qint16(4));
    }

    void helpAndSoundSwitch()
    {
        TestEnvironment env;
        frmMenu menu(fakeTable());
        QTest::mouseClick(menu.findChild<QPushButton *>(QStringLiteral("cmdHelp")), Qt::LeftButton);
        QCOMPARE(env.help.topics, QStringList{"contents"});
        auto *sound = menu.findChild<QPushButton *>(QStringLiteral("cmdSound"));
        QVERIFY(!Preferences::get().muted);
        // A switch called Sound, checked while sounds play.
        QCOMPARE(sound->accessibleName(), QStringLiteral("Sound"));
        QVERIFY(sound->isChecked());
        QTest::mouseClick(sound, Qt::LeftButton);
        QVERIFY(Preferences::get().muted);
        QVERIFY(!sound->isChecked());
        QCOMPARE(sound->text(), QStringLiteral("Sound &off"));
        // The menu's buttons are read without the tab some captions begin with.
        frmMenu real(Activities());
        QCOMPARE(real.cmdChoice(4)->accessibleName(), QStringLiteral("Math Race"));
        QCOMPARE(real.cmdChoice(8)->accessibleName(), QStringLiteral("Graphs & Charts"));
        QTest::mouseClick(sound, Qt::LeftButton);
        QVERIFY(!Preferences::get().muted);
    }

    // The menu's buttons paint themselves: each state must show in the colours of its look,
    // the ring at the edge and the face just inside it.
    void brightButtonsShowTheirState_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QColor>("ring");
        QTest::addColumn<QColor>("face");
        const QColor red(0xC6, 0x28, 0x28);
        const BrightColours c = BrightColoursOf(red);
        QTest::newRow("resting") << "resting" << c.border << c.face;
        QTest::newRow("pressed") << "pressed" << c.border << c.border;
        QTest::newRow("focused") << "focused" << c.focus << c.face;
        QTest::newRow("disabled") << "disabled" << c.disabledBorder << c.disabledFace;
    }

    void brightButtonsShowTheirState()
    {
        QFETCH(QString, state);
        QFETCH(QColor, ring);
        QFETCH(QColor, face);
        QWidget window;
        auto *other = new QPushButton(QStringLiteral("Other"), &window);
        auto *button = new BrightButton(QColor(0xC6, 0x28, 0x28), &window);
        button->setText(QStringLiteral("\tMath Race"));
        button->setGeometry(0, 40, 200, 80);
        window.resize(220, 140);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        if (state == QLatin1String("pressed"))
            button->setDown(true);
        else if (state == QLatin1String("focused"))
            button->setFocus();
        else if (state == QLatin1String("disabled"))
            button->setEnabled(false);
        const QImage picture = button->grab().toImage();
        const int middle = picture.height() / 2;
        QCOMPARE(picture.pixelColor(1, middle).rgb(), ring.rgb());
        QCOMPARE(picture.pixelColor(8, middle).rgb(), face.rgb());
        // Room for the whole caption, without the tab it begins with, and the padding.
        QVERIFY(button->sizeHint().width() >=
                button->fontMetrics().horizontalAdvance(QStringLiteral("Math Race")) + 28);
    }

    // The program's icon is loaded just after the menu's first paint, not before it.
    void menuGivesTheProgramItsIconAfterItsFirstPaint()
    {
        TestEnvironment env;
        QApplication::setWindowIcon(QIcon());
        frmMenu menu(fakeTable());
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTRY_VERIFY(!QApplication::windowIcon().isNull());
        QVERIFY(!QApplication::windowIcon().pixmap(32).isNull());
    }

    void wordEntryTakesOnlyCapitalsHyphensAndApostrophes()
    {
        TestEnvironment env;
        frmInput input;
        input.show();
        QTest::keyClicks(input.txtWord, QStringLiteral("don't-stop"));
        QCOMPARE(input.txtWord->text(), QStringLiteral("DON'T-STOP"));
        QCOMPARE(InputWord(), QStringLiteral("DON'T-STOP"));
        QCOMPARE(env.sound.beeps(), 0);

        QTest::keyClicks(input.txtWord, QStringLiteral("7 x."));
        QTest::keyClick(input.txtWord, Qt::Key_Return);
        QCOMPARE(input.txtWord->text(), QStringLiteral("DON'T-STOPX"));
        QCOMPARE(env.sound.beeps(), 4);
        QTest::keyClick(input.txtWord, Qt::Key_Backspace);
        QCOMPARE(InputWord(), QStringLiteral("DON'T-STOP"));
        QVERIFY(input.isVisible()); // Enter was refused, it did not close the window

        // Pasted text follows the same rule.
        input.txtWord->clear();
        input.txtWord->insert(QStringLiteral("ab1c d"));
        QCOMPARE(input.txtWord->text(), QStringLiteral("ABCD"));
    }

    void wordEntryEndings()
    {
        TestEnvironment env;
        {
            TheSettings().balloon.values[0] = 0;
            frmInput input;
            QTest::keyClicks(input.txtWord, QStringLiteral("cat"));
            QTest::mouseClick(input.cmdOK, Qt::LeftButton);
            QCOMPARE(InputWord(), QStringLiteral("CAT"));
            QCOMPARE(TheSettings().balloon.values[0], qint16(0));
        }
        {
            frmInput input;
            QCOMPARE(InputWord(), QString()); // a new window starts empty
            QTest::mouseClick(input.cmdOK, Qt::LeftButton);
            QCOMPARE(TheSettings().balloon.values[0], qint16(1));
        }
        {
            TheSettings().balloon.values[0] = 0;
            frmInput input;
            QTest::keyClicks(input.txtWord, QStringLiteral("dog"));
            QTest::mouseClick(input.cmdCancel, Qt::LeftButton);
            QCOMPARE(InputWord(), QString());
            QCOMPARE(TheSettings().balloon.values[0], qint16(1));
        }
        {
            TheSettings().balloon.values[0] = 0;
            frmInput input;
            input.show();
            input.close(); // by the window frame
            QCOMPARE(TheSettings().balloon.values[0], qint16(1));
        }
    }

    void resultsListTheFinishersInOrder()
    {
        TestEnvironment env;
        QString title;
        QStringList labels;
        env.dialogs.onRun = [&](QDialog &dialog) {
            auto &results = static_cast<frmResults &>(dialog);
            title = results.windowTitle();
            for (QLabel *label : results.Label1)
                labels.append(label->text());
            for (QLabel *label : results.lblWin)
                labels.append(label->text());
            return int(QDialog::Accepted);
        };
        ShowResults(QStringLiteral("Math Race Results"), QStringLiteral("The game is over."),
                    QStringLiteral("These player(s) finished the race:"), 4, {1, 0, 7, 0},
                    {"Anna", "Ben", "Cleo", "Dev"}, 4);
        QCOMPARE(title, QStringLiteral("Math Race Results"));
        QCOMPARE(labels, (QStringList{"The game is over.", "These player(s) finished the race:",
                                      "Anna", "Cleo", "", ""}));
        QCOMPARE(env.dialogs.ranWindows, QStringList{"frmResults"});
    }

    void playSoundStopsFirstAndIgnoresEmptyNames()
    {
        TestEnvironment env;
        PlaySound(QString(), SND_ASYNC);
        QVERIFY(env.sound.events.isEmpty());
        PlaySound(DataFile(QStringLiteral("ding.wav")), SND_SYNC);
        PlaySound(DataFile(QStringLiteral("tada.wav")), SND_ASYNC);
        PlaySound(QString(), SND_SYNC);
        QCOMPARE(env.sound.events,
                 (QStringList{"stop", "play ding.wav wait", "stop", "play tada.wav async"}));
        Delay(1);
        Delay(0);
        QCOMPARE(env.clock.delays, (QList<double>{1.0, 0.0}));
        QCOMPARE(TickCount(), qint64(1000));
    }

    void realPauseHandlesNoTimersAndRealSoundNeverBlocks()
    {
        SetDataPath(BuiltDataPath());
        SystemClock clock;
        bool fired = false;
        QTimer::singleShot(0, [&] { fired = true; });
        QElapsedTimer elapsed;
        elapsed.start();
        clock.delay(0.05);
        QVERIFY(elapsed.elapsed() >= 50);
        QVERIFY(!fired);
        clock.delay(0);
        clock.delay(-3);
        QTest::qWait(1);
        QVERIFY(fired);

        QVERIFY(std::abs(QtSound::waveSeconds(DataFile(QStringLiteral("ding.wav"))) - 0.3) < 0.01);
        QCOMPARE(QtSound::waveSeconds(DataFile(QStringLiteral("lumbridle52.ini"))), 0.0);
        QCOMPARE(QtSound::waveSeconds(DataFile(QStringLiteral("missing.wav"))), 0.0);
        // Without an audio device, or for a missing file, playing is silent and returns.
        QtSound sound;
        sound.play(DataFile(QStringLiteral("missing.wav")), true);
        sound.stop();
        // The audio module is built beside the programs and loads; with no device it is silent.
        QVERIFY(QFileInfo::exists(QtSound::modulePath()));
        sound.play(DataFile(QStringLiteral("ding.wav")), false);
        sound.stop();
    }

    // The menu and every activity of the table fit the free area of common screens at 100,
    // 150 and 200 % scaling (a 48-pixel task bar at the bottom), title bar included.
    void everyWindowFitsTheScreen_data()
    {
        QTest::addColumn<int>("activity");
        QTest::addColumn<QRect>("area");
        QList<int> windows{-1};
        for (const ActivityEntry &entry : Activities())
            if (entry.open)
                windows.append(entry.index);
        for (const QSize screen : {QSize(1366, 768), QSize(1920, 1080)})
            for (const double scale : {1.0, 1.5, 2.0})
                for (int window : windows)
                    QTest::addRow("%s %dx%d at %d%%",
                                  window < 0 ? "menu" : qPrintable(QString::number(window)),
                                  screen.width(), screen.height(), int(scale * 100))
                        << window
                        << QRect(0, 0, int(screen.width() / scale),
                                 int((screen.height() - 48) / scale));
    }
    void everyWindowFitsTheScreen()
    {
        QFETCH(int, activity);
        QFETCH(QRect, area);
        TestEnvironment env;
        std::unique_ptr<QWidget> window;
        if (activity < 0)
            window = std::make_unique<frmMenu>(Activities());
        for (const ActivityEntry &entry : Activities())
            if (entry.index == activity)
                window.reset(entry.open());
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        const QMargins frame(4, 34, 4, 4);
        FitInto(window.get(), area, frame);
        const QRect outer = window->geometry().marginsAdded(frame);
        QVERIFY2(area.contains(outer), qPrintable(QStringLiteral("%1,%2 %3x%4")
                                                      .arg(outer.x())
                                                      .arg(outer.y())
                                                      .arg(outer.width())
                                                      .arg(outer.height())));
        const QSize need = window->minimumSizeHint();
        QVERIFY2(need.width() <= window->width() && need.height() <= window->height(),
                 qPrintable(QStringLiteral("needs %1x%2").arg(need.width()).arg(need.height())));
        // Centred: the room left is shared on both sides.
        QVERIFY(qAbs((outer.left() - area.left()) - (area.right() - outer.right())) <= 1);
        QVERIFY(qAbs((outer.top() - area.top()) - (area.bottom() - outer.bottom())) <= 1);
        QVERIFY(FitScale(window.get()) >= 0.5);
    }

    void activityExitCaption()
    {
        QCOMPARE(ActivityWindow::exitCaption(true), QStringLiteral("&Stop"));
        QCOMPARE(ActivityWindow::exitCaption(false), QStringLiteral("E&xit"));
    }
};

QTEST_MAIN(ShellWindowsTest)
#include "tst_shell_windows.moc"
