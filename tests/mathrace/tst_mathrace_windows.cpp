// SPDX-License-Identifier: GPL-3.0-or-later
#include "mathrace/AnswerBox.h"
#include "mathrace/frmMRace.h"
#include "mathrace/optMRace.h"
#include "mathrace/RaceTrack.h"
#include "shell/frmResults.h"
#include "shell/core/Settings.h"
#include "shell/widgets/Gauge.h"
#include "shell/widgets/PictureBox.h"
#include "shell/WindowUtil.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QKeyEvent>
#include <QLayout>
#include <QTextDocument>

// The race window and the options window, driven as a pupil would with keys and clicks.
class tst_mathrace_windows : public QObject {
    Q_OBJECT
private slots:
    void opensReadyForANewRace();
    void keyboardRaceToASharedWin();
    void loneFinisherIsTheOnlyWinner();
    void runningOutOfGasShowsTheAnswer();
    void lateAnswerEarnsOneStep();
    void answerBoxTakesOnlyDigits();
    void stopWhileRunningAndExit();
    void optionsOnlyWhileIdle();
    void optionsTakeEffectAsMade();
    void optionsBringDamagedValuesIntoRange();
    void gaugeShowsTheLevel();
    void enterQueuedDuringThePauseIsDropped();
    void markupInNamesIsShownLiterally();
};

namespace {

struct Window {
    frmMRace *w = new frmMRace;
    Window()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the race window did not become active");
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
    template <typename T> T *get(const QString &name) const
    {
        T *child = w->findChild<T *>(name);
        if (!child)
            qFatal("no control %s", qPrintable(name));
        return child;
    }
    QPushButton *button(const char *name) const { return get<QPushButton>(name); }
    QString message() const { return w->lblMessage->text(); }
    int answer() const { return w->race().problem().answer; }
};

// Presses a key where the keyboard focus is, as a pupil would.
void Press(Qt::Key key)
{
    QWidget *focus = QApplication::focusWidget();
    QVERIFY(focus);
    QTest::keyClick(focus, key);
}

void Type(const QString &text)
{
    QWidget *focus = QApplication::focusWidget();
    QVERIFY(focus);
    QTest::keyClicks(focus, text);
}

struct Results {
    QString title;
    QStringList lines;
    QStringList winners;
    int shown = 0;
};

void CaptureResults(TestEnvironment &env, Results &results)
{
    env.dialogs.onRun = [&results](QDialog &dialog) {
        ++results.shown;
        results.title = dialog.windowTitle();
        results.lines = {dialog.findChild<QLabel *>("Label1_0")->text(),
                         dialog.findChild<QLabel *>("Label1_1")->text()};
        for (int i = 0; i < 4; ++i)
            results.winners.append(dialog.findChild<QLabel *>(ArrayName("lblWin", i))->text());
        return int(QDialog::Accepted);
    };
}

} // namespace

void tst_mathrace_windows::opensReadyForANewRace()
{
    TestEnvironment env;
    Window win;
    for (const char *name :
         {"picTrack", "pnlGas", "lblNames", "lblMessage", "lblProblem", "txtAnswer", "cmdOK",
          "cmdErase", "cmdNew", "cmdOptions", "cmdExit", "cmdHelp", "Timer1"})
        QVERIFY2(win.w->findChild<QObject *>(name), name);
    for (int car = 1; car <= 4; ++car) {
        auto *picture = win.get<PictureBox>(ArrayName("picCar", car));
        QVERIFY(!picture->isEmpty());
        QCOMPARE(picture->isVisible(), car <= 2);
        QVERIFY(win.get<QWidget>(ArrayName("picWin", car))->isHidden());
    }
    QCOMPARE(win.button("cmdExit")->text(), QStringLiteral("E&xit"));
    QCOMPARE(win.button("cmdOK")->text(), QStringLiteral("&See Problem"));
    QVERIFY(!win.button("cmdOK")->isEnabled());
    QVERIFY(!win.w->txtAnswer->isEnabled());
    QVERIFY(win.button("cmdNew")->isEnabled());
    QCOMPARE(QApplication::focusWidget(), win.button("cmdNew"));
    QCOMPARE(win.w->picTrack->name(2), QStringLiteral("Player 2"));
    QCOMPARE(win.w->pnlGas->caption(), QStringLiteral("Gas"));

    QTest::mouseClick(win.button("cmdHelp"), Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{"mathrace"});
}

void tst_mathrace_windows::keyboardRaceToASharedWin()
{
    TestEnvironment env;
    TheSettings().mathRace.player[0].name = QStringLiteral("Anna");
    TheSettings().mathRace.player[1].name = QStringLiteral("Ben");
    TheSettings().mathRace.player[1].type = 3;
    TheSettings().mathRace.player[1].largest = 144;
    Results results;
    CaptureResults(env, results);
    Window win;

    Press(Qt::Key_Return); // New Race
    QCOMPARE(win.button("cmdExit")->text(), QStringLiteral("&Stop"));
    QVERIFY(!win.button("cmdNew")->isEnabled());
    QVERIFY(!win.button("cmdOptions")->isEnabled());
    for (int round = 1; round <= 8; ++round) {
        for (int player = 1; player <= 2; ++player) {
            const QString name = player == 1 ? QStringLiteral("Anna") : QStringLiteral("Ben");
            QCOMPARE(win.message(), QStringLiteral("Player %1:\n%2").arg(player).arg(name));
            QCOMPARE(QApplication::focusWidget(), win.button("cmdOK"));
            QVERIFY(win.w->lblProblem->isHidden());
            QCOMPARE(win.w->pnlGas->percent(), 100);
            Press(Qt::Key_Return); // See Problem
            QVERIFY(win.w->lblProblem->isVisible());
            QCOMPARE(win.w->lblProblem->text(), win.w->race().problem().caption());
            QCOMPARE(
                win.message(),
                QStringLiteral("Player %1:\n%2\nType Answer\nPress <Enter>").arg(player).arg(name));
            QCOMPARE(QApplication::focusWidget(), win.w->txtAnswer);
            QVERIFY(win.w->Timer1->isActive());
            QCOMPARE(win.w->Timer1->interval(), 1000);
            if (player == 2)
                QVERIFY(win.w->lblProblem->text().contains(QLatin1String(" x ")));
            Type(QString::number(win.answer()));
            const int carsBefore = int(env.sound.played().count(QStringLiteral("car.wav")));
            Press(Qt::Key_Enter);
            QCOMPARE(int(env.sound.played().count(QStringLiteral("car.wav"))), carsBefore + 1);
            QCOMPARE(int(win.w->race().position(player)), qMin(round * 10, 80));
            if (results.shown)
                break;
        }
    }
    // Both cars reached the finish in round eight: both share the win.
    QCOMPARE(results.shown, 1);
    QCOMPARE(results.title, QStringLiteral("Math Race Results"));
    QCOMPARE(results.lines,
             QStringList({"The game is over.", "These player(s) finished the race:"}));
    QCOMPARE(results.winners, QStringList({"Anna", "Ben", "", ""}));
    QVERIFY(env.sound.events.contains(QStringLiteral("play car.wav async")));
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
    // A one-second pause after every right answer, and one before the results.
    QCOMPARE(int(env.clock.delays.size()), 17);
    QVERIFY(win.w->findChild<QWidget *>("picWin_1")->isVisible());
    QVERIFY(win.w->findChild<QWidget *>("picWin_2")->isVisible());
    QVERIFY(win.w->findChild<QWidget *>("picWin_3")->isHidden());
    QCOMPARE(env.sound.beeps(), 0);

    // After the results the race has stopped and a new one can start from the keyboard.
    QCOMPARE(win.message(), QStringLiteral("\nGame Over\n"));
    QCOMPARE(win.button("cmdExit")->text(), QStringLiteral("E&xit"));
    QCOMPARE(QApplication::focusWidget(), win.button("cmdNew"));
    Press(Qt::Key_Space);
    QVERIFY(win.w->race().isRunning());
    QCOMPARE(win.w->race().position(1), qint16(0));
    QVERIFY(win.w->findChild<QWidget *>("picWin_1")->isHidden());
}

void tst_mathrace_windows::loneFinisherIsTheOnlyWinner()
{
    TestEnvironment env;
    TheSettings().mathRace.players = 3;
    Results results;
    CaptureResults(env, results);
    Window win;
    QTest::mouseClick(win.button("cmdNew"), Qt::LeftButton);
    while (!results.shown) {
        QTest::mouseClick(win.button("cmdOK"), Qt::LeftButton);
        if (win.w->race().currentPlayer() == 2) {
            QTest::keyClicks(win.w->txtAnswer, QString::number(win.answer()));
            QTest::keyClick(win.w->txtAnswer, Qt::Key_Return);
            continue;
        }
        // Players 1 and 3 let the gas run out.
        while (win.w->race().phase() != Race::Phase::OutOfGas)
            win.w->timer1Tick();
        QTest::mouseClick(win.button("cmdOK"), Qt::LeftButton);
    }
    QCOMPARE(results.winners, QStringList({"Player 2", "", "", ""}));
    QCOMPARE(win.w->race().position(2), qint16(80));
    QCOMPARE(win.w->race().position(3), qint16(0));
}

void tst_mathrace_windows::runningOutOfGasShowsTheAnswer()
{
    TestEnvironment env;
    TheSettings().mathRace.player[0].clock = 2;
    Window win;
    QTest::mouseClick(win.button("cmdNew"), Qt::LeftButton);
    QTest::mouseClick(win.button("cmdOK"), Qt::LeftButton);
    QVERIFY(win.button("cmdErase")->isEnabled());
    win.w->timer1Tick();
    QCOMPARE(win.w->Timer1->interval(), 1000);
    QCOMPARE(win.w->pnlGas->percent(), 100);
    QCOMPARE(env.sound.beeps(), 0);
    for (int drain = 1; drain <= 9; ++drain) {
        QVERIFY(QMetaObject::invokeMethod(win.w->Timer1, "timeout"));
        QCOMPARE(win.w->pnlGas->percent(), 100 - drain * 10);
    }
    QCOMPARE(env.sound.beeps(), 9);
    QVERIFY(env.sound.played().isEmpty());
    win.w->timer1Tick();
    QCOMPARE(env.sound.beeps(), 10);
    QCOMPARE(win.w->pnlGas->percent(), 0);
    QVERIFY(!win.w->Timer1->isActive());
    QCOMPARE(env.sound.events.last(), QStringLiteral("play uhoh.wav wait"));
    QCOMPARE(win.message(), QStringLiteral("Sorry ...\nHere's the answer .."));
    QCOMPARE(win.w->txtAnswer->text(), QString::number(win.answer()));
    QVERIFY(!win.button("cmdErase")->isEnabled());
    QCOMPARE(win.button("cmdOK")->text(), QStringLiteral("&Next Player"));
    QCOMPARE(QApplication::focusWidget(), win.button("cmdOK"));
    // The shown answer cannot be sent as the player's own.
    QTest::keyClick(win.w->txtAnswer, Qt::Key_Return);
    QCOMPARE(win.w->race().position(1), qint16(0));
    QCOMPARE(win.w->txtAnswer->text(), QString::number(win.answer()));

    Press(Qt::Key_Return);
    QCOMPARE(win.w->race().currentPlayer(), qint16(2));
    QCOMPARE(win.message(), QStringLiteral("Player 2:\nPlayer 2"));
    QVERIFY(win.w->txtAnswer->text().isEmpty());
    QVERIFY(!win.w->txtAnswer->isEnabled());
    QCOMPARE(win.w->pnlGas->percent(), 100);
    QCOMPARE(win.w->picTrack->position(1), 0);
}

void tst_mathrace_windows::lateAnswerEarnsOneStep()
{
    TestEnvironment env;
    TheSettings().mathRace.player[0].clock = 3;
    Window win;
    QTest::mouseClick(win.button("cmdNew"), Qt::LeftButton);
    QTest::mouseClick(win.button("cmdOK"), Qt::LeftButton);
    win.w->timer1Tick();
    QCOMPARE(win.w->Timer1->interval(), 500);
    for (int drain = 0; drain < 9; ++drain)
        win.w->timer1Tick();
    QCOMPARE(win.w->pnlGas->percent(), 10);
    // A wrong answer clears the box and the gas keeps draining.
    QTest::keyClicks(win.w->txtAnswer, QString::number(win.answer() + 1));
    QTest::keyClick(win.w->txtAnswer, Qt::Key_Return);
    QVERIFY(win.w->txtAnswer->text().isEmpty());
    QCOMPARE(QApplication::focusWidget(), win.w->txtAnswer);
    QVERIFY(win.w->Timer1->isActive());
    QVERIFY(env.sound.played().isEmpty());

    const int carStart = win.w->picTrack->car(1)->x();
    QTest::keyClicks(win.w->txtAnswer, QString::number(win.answer()));
    QTest::keyClick(win.w->txtAnswer, Qt::Key_Return);
    QCOMPARE(win.w->race().position(1), qint16(1));
    QCOMPARE(win.w->picTrack->position(1), 1);
    QVERIFY(win.w->picTrack->car(1)->x() > carStart);
    QCOMPARE(env.sound.played(), QStringList{"car.wav"});
    QCOMPARE(env.clock.delays, QList<double>{1.0});
    QCOMPARE(win.w->race().currentPlayer(), qint16(2));
    QVERIFY(!win.w->Timer1->isActive());
}

void tst_mathrace_windows::answerBoxTakesOnlyDigits()
{
    TestEnvironment env;
    Window win;
    QTest::mouseClick(win.button("cmdNew"), Qt::LeftButton);
    QTest::mouseClick(win.button("cmdOK"), Qt::LeftButton);
    AnswerBox *box = win.w->txtAnswer;
    QTest::keyClicks(box, QStringLiteral("ab -+.,x/ Z"));
    QTest::keyClick(box, Qt::Key_Escape);
    QTest::keyClick(box, Qt::Key_Delete);
    QVERIFY(box->text().isEmpty());
    QTest::keyClicks(box, QStringLiteral("1a2"));
    QCOMPARE(box->text(), QStringLiteral("12"));
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(box->text(), QStringLiteral("1"));
    // Numbers stay within 16 bits, however many digits are typed.
    box->clear();
    QTest::keyClicks(box, QStringLiteral("99999999"));
    QCOMPARE(box->text(), QStringLiteral("9999"));
    box->clear();
    QTest::keyClicks(box, QStringLiteral("3276799"));
    QCOMPARE(box->text(), QStringLiteral("32767"));
    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY(box->text().isEmpty()); // wrong, as every answer here is 5 or less
    // Pasting by keys or menu lets in only whole numbers that fit.
    QApplication::clipboard()->setText(QStringLiteral("4"));
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QVERIFY(box->text().isEmpty());
    QApplication::clipboard()->setText(QStringLiteral("12ab"));
    box->paste();
    QVERIFY(box->text().isEmpty());
    QApplication::clipboard()->setText(QStringLiteral("123456789012345678901234567890"));
    box->paste();
    QVERIFY(box->text().isEmpty());
    QApplication::clipboard()->setText(QStringLiteral("42"));
    box->paste();
    QCOMPARE(box->text(), QStringLiteral("42"));
    QCOMPARE(env.sound.beeps(), 0);
    QVERIFY(env.sound.events.isEmpty());
    // Erase empties the box and leaves the focus there for the next try.
    QTest::mouseClick(win.button("cmdErase"), Qt::LeftButton);
    QVERIFY(box->text().isEmpty());
    QCOMPARE(QApplication::focusWidget(), box);
    // An empty box counts as 0.
    QCOMPARE(box->value(), 0);
}

void tst_mathrace_windows::stopWhileRunningAndExit()
{
    TestEnvironment env;
    Window win;
    QSignalSpy closed(win.w, &ActivityWindow::closed);
    QTest::mouseClick(win.button("cmdNew"), Qt::LeftButton);
    QTest::mouseClick(win.button("cmdOK"), Qt::LeftButton);
    win.w->timer1Tick();
    win.w->timer1Tick();
    QTest::keyClicks(win.w->txtAnswer, QStringLiteral("3"));
    QTest::mouseClick(win.button("cmdExit"), Qt::LeftButton);
    QVERIFY(!win.w->race().isRunning());
    QVERIFY(!win.w->Timer1->isActive());
    QCOMPARE(win.button("cmdExit")->text(), QStringLiteral("E&xit"));
    QVERIFY(win.button("cmdNew")->isEnabled());
    QVERIFY(win.button("cmdOptions")->isEnabled());
    QVERIFY(!win.button("cmdOK")->isEnabled());
    QVERIFY(!win.button("cmdErase")->isEnabled());
    QVERIFY(!win.w->txtAnswer->isEnabled());
    QVERIFY(win.w->txtAnswer->text().isEmpty());
    QVERIFY(win.w->lblProblem->text().isEmpty());
    QCOMPARE(win.message(), QStringLiteral("\nGame Over\n"));
    QCOMPARE(win.w->pnlGas->percent(), 0);
    QCOMPARE(closed.count(), 0);
    // A tick already on its way changes nothing.
    const int beeps = env.sound.beeps();
    win.w->timer1Tick();
    QCOMPARE(env.sound.beeps(), beeps);

    QTest::mouseClick(win.button("cmdExit"), Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QVERIFY(!win.w->isVisible());
}

void tst_mathrace_windows::optionsOnlyWhileIdle()
{
    TestEnvironment env;
    Window win;
    QTest::mouseClick(win.button("cmdNew"), Qt::LeftButton);
    QVERIFY(!win.button("cmdOptions")->isEnabled());
    QTest::keyClick(win.w, Qt::Key_O, Qt::AltModifier);
    QTest::qWait(300);
    QVERIFY(env.dialogs.ranWindows.isEmpty());
    QTest::mouseClick(win.button("cmdExit"), Qt::LeftButton);
    QTest::keyClick(win.w, Qt::Key_O, Qt::AltModifier);
    // A mnemonic presses its button a moment later, as a click the pupil can see.
    QTRY_COMPARE(env.dialogs.ranWindows, QStringList{"optMRace"});
    QCOMPARE(QApplication::focusWidget(), win.button("cmdOptions"));
}

void tst_mathrace_windows::optionsTakeEffectAsMade()
{
    TestEnvironment env;
    Window win;
    Settings::MathRace &race = TheSettings().mathRace;
    env.dialogs.onRun = [&race](QDialog &dialog) {
        auto *opt = qobject_cast<optMRace *>(&dialog);
        if (!opt)
            return int(QDialog::Rejected);
        // As loaded from the reference settings.
        if (!opt->optPlayers[1]->isChecked() || !opt->Frame2[1]->isEnabled() ||
            opt->Frame2[2]->isEnabled() || !opt->optType[0]->isChecked() ||
            !opt->optType[5]->isChecked() || opt->lblMax[0]->text() != QLatin1String("5") ||
            !opt->optClock[3]->isChecked() || opt->hsbMax[0]->minimum() != 1 ||
            opt->hsbMax[0]->maximum() != optMRace::LargestMax)
            return int(QDialog::Rejected);
        // A teacher decides the number of players first: it comes first in the tab order,
        // and the largest number moves by a whole times table at a time.
        QWidget *first = opt->nextInFocusChain();
        while (first != opt && !(first->focusPolicy() & Qt::TabFocus))
            first = first->nextInFocusChain();
        opt->layout()->activate();
        if (first != opt->optPlayers[0] || opt->hsbMax[0]->pageStep() != 12 ||
            opt->findChild<QWidget *>("fraPlayers")->y() >= opt->Frame2[0]->y())
            return int(QDialog::Rejected);
        opt->optPlayers[3]->click();
        opt->optType[7]->click();
        opt->optType[19]->click();
        opt->hsbMax[2]->setValue(144);
        opt->optClock[11]->click();
        opt->txtName[0]->setText(QStringLiteral("Zoe"));
        opt->txtName[3]->setText(QStringLiteral("  "));
        // Every change is in the settings before the window closes.
        if (race.players != 4 || race.player[1].type != 3 || race.player[3].type != 5 ||
            race.player[2].largest != 144 || opt->lblMax[2]->text() != QLatin1String("144") ||
            race.player[3].clock != 3 || !opt->Frame2[3]->isEnabled())
            return int(QDialog::Rejected);
        if (race.player[0].name != QLatin1String("Player 1"))
            return int(QDialog::Rejected);
        opt->optPlayers[0]->click();
        if (opt->Frame2[1]->isEnabled() || !opt->Frame2[0]->isEnabled() || race.players != 1)
            return int(QDialog::Rejected);
        opt->optPlayers[2]->click();
        QTest::mouseClick(opt->cmdOK, Qt::LeftButton);
        return opt->result();
    };
    QTest::mouseClick(win.button("cmdOptions"), Qt::LeftButton);
    QCOMPARE(env.dialogs.ranWindows, QStringList{"optMRace"});
    QCOMPARE(race.players, qint16(3));
    QCOMPARE(race.player[0].name, QStringLiteral("Zoe"));
    QCOMPARE(race.player[3].name, QStringLiteral("Player 4"));
    QCOMPARE(race.player[1].type, qint16(3));
    QCOMPARE(race.player[2].largest, qint16(144));
    QCOMPARE(race.player[3].clock, qint16(3));
    // The track shows the new line-up at once.
    QCOMPARE(win.w->picTrack->racers(), 3);
    QCOMPARE(win.w->picTrack->name(1), QStringLiteral("Zoe"));
    QVERIFY(win.w->lblNames->text().contains(QLatin1String("Zoe")));
    QVERIFY(win.w->findChild<QWidget *>("picCar_3")->isVisible());

    // Closing the options by the frame keeps the names typed, as there is no cancel.
    env.dialogs.onRun = [](QDialog &dialog) {
        auto *opt = qobject_cast<optMRace *>(&dialog);
        opt->txtName[1]->setText(QStringLiteral("Max"));
        opt->reject();
        return opt->result();
    };
    QTest::mouseClick(win.button("cmdOptions"), Qt::LeftButton);
    QCOMPARE(race.player[1].name, QStringLiteral("Max"));
}

void tst_mathrace_windows::optionsBringDamagedValuesIntoRange()
{
    TestEnvironment env;
    Settings::MathRace &race = TheSettings().mathRace;
    race.players = 7;
    race.player[0].type = 0;
    race.player[1].type = 9;
    race.player[0].largest = 500;
    race.player[1].largest = -2;
    race.player[2].clock = 0;
    optMRace opt;
    QVERIFY(opt.optPlayers[3]->isChecked());
    QCOMPARE(race.players, qint16(4));
    QVERIFY(opt.optType[0]->isChecked());
    QVERIFY(opt.optType[9]->isChecked());
    QCOMPARE(race.player[0].type, qint16(1));
    QCOMPARE(race.player[1].type, qint16(5));
    QCOMPARE(opt.lblMax[0]->text(), QStringLiteral("144"));
    QCOMPARE(race.player[0].largest, qint16(144));
    QCOMPARE(opt.lblMax[1]->text(), QStringLiteral("1"));
    QCOMPARE(race.player[1].largest, qint16(1));
    QVERIFY(opt.optClock[6]->isChecked());
    QCOMPARE(race.player[2].clock, qint16(1));
    // The scroll bar answers the keyboard too.
    opt.hsbMax[3]->setFocus();
    QTest::keyClick(opt.hsbMax[3], Qt::Key_Right);
    QCOMPARE(race.player[3].largest, qint16(6));
    QCOMPARE(opt.lblMax[3]->text(), QStringLiteral("6"));
}

void tst_mathrace_windows::gaugeShowsTheLevel()
{
    Gauge gauge;
    gauge.setPercent(150);
    QCOMPARE(gauge.percent(), 100);
    gauge.setPercent(-5);
    QCOMPARE(gauge.percent(), 0);
    const QColor full = Gauge::levelColour(100);
    const QColor half = Gauge::levelColour(50);
    const QColor empty = Gauge::levelColour(0);
    QVERIFY(full.green() > 2 * full.red());
    QVERIFY(half.red() > 200 && half.green() > 180 && half.blue() < 60);
    QVERIFY(empty.red() > 2 * empty.green());
    // As the gas drains the colour moves steadily from green towards red.
    for (int level = 100; level > 0; level -= 10)
        QVERIFY(Gauge::levelColour(level - 10).hueF() <= Gauge::levelColour(level).hueF());
    gauge.resize(80, 240);
    gauge.setCaption(QStringLiteral("Gas"));
    gauge.setPercent(40);
    const QImage picture = gauge.grab().toImage();
    // The bottom of the tube is filled, the top is not.
    const QColor low = picture.pixelColor(40, 225);
    const QColor high = picture.pixelColor(40, 60);
    QVERIFY2(low.red() > 150 && low.blue() < 100, qPrintable(low.name()));
    QVERIFY2(high.lightness() < 80, qPrintable(high.name()));
}

void tst_mathrace_windows::enterQueuedDuringThePauseIsDropped()
{
    TestEnvironment env;
    Window win;
    Press(Qt::Key_Return); // New Race
    Press(Qt::Key_Return); // See Problem
    Type(QString::number(win.answer()));
    // A second Enter, pressed while "Good!" is on show, waits in the queue behind the first.
    QCoreApplication::postEvent(win.w->windowHandle(),
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
    QCoreApplication::postEvent(win.w->windowHandle(),
                                new QKeyEvent(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier));
    Press(Qt::Key_Return);
    QTest::qWait(50);
    QCOMPARE(win.w->race().currentPlayer(), 2);
    QVERIFY(!win.w->Timer1->isActive()); // the next player's clock waits for them
    QCOMPARE(win.button("cmdOK")->text(), QStringLiteral("&See Problem"));
    QVERIFY(win.w->lblProblem->isHidden());
}

void tst_mathrace_windows::markupInNamesIsShownLiterally()
{
    TestEnvironment env;
    const QStringList names{"<b>Bo</b>", "<img src=/dev/zero>", "<i>x", "&amp;"};
    TheSettings().mathRace.players = 4;
    for (int i = 0; i < 4; ++i)
        TheSettings().mathRace.player[i].name = names[i];
    QStringList shown;
    env.dialogs.onRun = [&shown](QDialog &dialog) {
        for (int i = 0; i < 4; ++i) {
            auto *label = dialog.findChild<QLabel *>(ArrayName("lblWin", i));
            if (label->textFormat() == Qt::PlainText)
                shown.append(label->text());
        }
        return int(QDialog::Accepted);
    };
    Window win;
    // The standings are styled, so the names in them must be escaped to read as typed.
    QTextDocument standings;
    standings.setHtml(win.w->findChild<QLabel *>("lblNames")->text());
    for (const QString &name : names)
        QVERIFY2(standings.toPlainText().contains(name), qPrintable(standings.toPlainText()));
    ShowResults(QStringLiteral("Math Race Results"), QStringLiteral("The game is over."),
                QStringLiteral("These player(s) finished the race:"), 4, {1, 1, 1, 1}, names, 4);
    QCOMPARE(shown, names);
    TheSettings() = Settings();
}

QTEST_MAIN(tst_mathrace_windows)
#include "tst_mathrace_windows.moc"
