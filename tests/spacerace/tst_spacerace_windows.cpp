// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Settings.h"
#include "shell/widgets/Gauge.h"
#include "shell/WindowUtil.h"
#include "spacerace/frmSRace.h"
#include "spacerace/optSRace.h"
#include "spacerace/SkyView.h"
#include "spacerace/WordBox.h"
#include "spacerace/WordListPaper.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

// The race window and the options window, driven as a pupil or a teacher would.
class tst_spacerace_windows : public QObject {
    Q_OBJECT
private slots:
    void init() { SetSharedList(WordList()); }
    void flasherRaceByKeyboard();
    void scramblerTurnLost();
    void newStopAndExit();
    void wordBoxesFilterKeys();
    void saveOpenAndNewList();
    void failedOpenAndSaveKeepTheList();
    void printingTheList();
    void leavingTheOptions();
    void optionsChoicesGoToTheSettings();
};

namespace {

template <typename T> struct Shown {
    QPointer<T> w = new T;
    Shown()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the window did not become active");
    }
    // A race window that closed has deleted itself.
    ~Shown() { delete w; }
};

void Press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

void Type(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void UseList(const QStringList &words, bool saved = true)
{
    WordList list;
    list.name = QStringLiteral("week1");
    list.words = words;
    list.saved = saved;
    SetSharedList(list);
}

QString Rest(const frmSRace *w)
{
    return w->race().word().mid(w->race().typed().size());
}

} // namespace

void tst_spacerace_windows::flasherRaceByKeyboard()
{
    TestEnvironment env;
    Settings::SpaceRace &settings = TheSettings().spaceRace;
    settings.gameType = 1;
    settings.speed = 0;
    settings.names = {QStringLiteral("Ana"), QStringLiteral("Ben"), QString(), QString()};
    UseList({QStringLiteral("MOON"), QStringLiteral("STAR"), QStringLiteral("MARS")});
    QStringList shown;
    env.dialogs.onRun = [&](QDialog &dialog) {
        shown << dialog.windowTitle() << dialog.findChild<QLabel *>("Label1_1")->text();
        for (int i = 0; i < 3; ++i)
            shown << dialog.findChild<QLabel *>(ArrayName("lblWin", i))->text();
        return int(QDialog::Accepted);
    };
    Shown<frmSRace> win;
    QCOMPARE(win.w->windowTitle(), QStringLiteral("Space Race, List Name: week1"));
    Press(Qt::Key_Return); // New Game
    QCOMPARE(win.w->lblTitle->text(), QStringLiteral("Flasher"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(!win.w->cmdNew->isEnabled() && !win.w->cmdOptions->isEnabled());
    QCOMPARE(win.w->lblNames->text(), QStringLiteral("1-Ana  2-Ben  "));
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Ana:\n"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdOK);

    // Letters before the flash do nothing; the flash shows the word for 0.1 s, then stars.
    Type(QStringLiteral("Q"));
    QVERIFY(env.sound.played().isEmpty());
    Press(Qt::Key_Return);
    QCOMPARE(env.clock.delays, QList<double>({0.1f}));
    QVERIFY(win.w->lblWord->text().isEmpty());
    QCOMPARE(win.w->lblFlash->text(), QStringLiteral("****"));

    // Letters go to the race although a button has the focus; a wrong one plays to its end.
    const QString word = win.w->race().word();
    Type(word.left(1).toLower());
    QCOMPARE(win.w->lblFlash->text(), word.left(1) + QStringLiteral("***"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play ding.wav async"));
    Press(Qt::Key_Backspace);
    QCOMPARE(env.sound.events.last(), QStringLiteral("play uhoh.wav wait"));
    Press(Qt::Key_Return); // the second and last flash
    QVERIFY(!win.w->cmdOK->isEnabled());
    Press(Qt::Key_Return);
    QCOMPARE(win.w->race().flashes(), qint16(2));

    const int padTop = win.w->picSky->rocket(1)->y();
    Type(Rest(win.w));
    QCOMPARE(win.w->race().position(1), qint16(7));
    QVERIFY(win.w->picSky->rocket(1)->y() < padTop);
    QVERIFY(env.sound.events.contains(QStringLiteral("play rocket.wav async")));
    QCOMPARE(env.clock.delays.last(), 1.0);
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Ben:\n"));

    // Every word clean from here: both reach the moon in the same round.
    for (int turn = 0; turn < 100 && win.w->race().isRunning(); ++turn) {
        Press(Qt::Key_Return);
        Type(Rest(win.w));
    }
    QCOMPARE(shown, QStringList({"Space Race Results", "These player(s) reached the moon:", "Ana",
                                 "Ben", ""}));
    QCOMPARE(win.w->race().position(1), qint16(77));
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Game Over"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdNew);
    QVERIFY(win.w->picSky->rocket(1)->y() <= win.w->picSky->moonTop() + 1);

    // The flash lasts (speed + 1) / 10 seconds; a damaged speed is held at 20.
    settings.speed = 99;
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    QCOMPARE(float(env.clock.delays.last()), 2.1f);
}

void tst_spacerace_windows::scramblerTurnLost()
{
    TestEnvironment env;
    UseList({QStringLiteral("PLANET")});
    Shown<frmSRace> win;
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(win.w->lblTitle->text(), QStringLiteral("Scrambler"));
    QVERIFY(win.w->lblanswer->isVisible() && win.w->lblFlash->isHidden());
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Player 1:\nUnscramble Word"));
    QVERIFY(win.w->lblWord->text() != QStringLiteral("PLANET"));

    Type(QStringLiteral("X7")); // a wrong letter gives the first away; a digit does nothing
    QCOMPARE(win.w->lblanswer->text(), QStringLiteral("P"));
    Type(QStringLiteral("XX"));
    QCOMPARE(env.sound.played().count(QStringLiteral("uhoh.wav")), 3);
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Sorry ...\n"));
    QCOMPARE(win.w->lblWord->text(), QStringLiteral("PLANET"));
    QCOMPARE(win.w->lblanswer->text(), QStringLiteral("PLANET"));
    QCOMPARE(win.w->cmdOK->text(), QStringLiteral("Next &Player"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdOK);
    Press(Qt::Key_Return);
    QVERIFY(!win.w->cmdOK->isEnabled());
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Player 2:\nUnscramble Word"));
    QVERIFY(win.w->lblanswer->text().isEmpty());
}

void tst_spacerace_windows::newStopAndExit()
{
    TestEnvironment env;
    Shown<frmSRace> win;
    QSignalSpy closed(win.w, &ActivityWindow::closed);
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.value(0).title, QStringLiteral("New Game"));
    QCOMPARE(env.dialogs.messages.value(0).text,
             QStringLiteral("No words in spelling list.\nChoose 'Options' to Enter/Load list."));
    QVERIFY(!win.w->race().isRunning());

    // Options change the list and the players; the window follows on its return.
    env.dialogs.onRun = [&env](QDialog &dialog) {
        auto *options = qobject_cast<optSRace *>(&dialog);
        options->optPlayers[2]->setChecked(true);
        options->txtWord[0]->setFocus();
        QTest::keyClicks(options->txtWord[0], QStringLiteral("comet"));
        env.dialogs.answers = {QMessageBox::Yes}; // leave with the list unsaved
        QTest::mouseClick(options->cmdOK, Qt::LeftButton);
        return options->result();
    };
    QTest::mouseClick(win.w->cmdOptions, Qt::LeftButton);
    QCOMPARE(win.w->lblNames->text(), QStringLiteral("1-Player 1  2-Player 2  3-Player 3  "));
    QVERIFY(win.w->picSky->rocket(3)->isVisible());
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(win.w->race().word(), QStringLiteral("COMET"));
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton); // Stop
    QCOMPARE(win.w->lblMessage->text(), QStringLiteral("Game Over"));
    QVERIFY(win.w->cmdNew->isEnabled() && win.w->cmdOptions->isEnabled());
    QVERIFY(closed.isEmpty());

    env.dialogs.messages.clear();
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton); // No, the default, keeps it open
    const MessageRequest question = env.dialogs.messages.value(0);
    QCOMPARE(question.title, QStringLiteral("Space Race"));
    QCOMPARE(question.text, QStringLiteral("Current List: NONE\nList has not been saved.\n"
                                           "Do you still want to leave Space Race?"));
    QCOMPARE(question.icon, QMessageBox::Question);
    QCOMPARE(question.defaultButton, QMessageBox::No);
    QVERIFY(closed.isEmpty());
    env.dialogs.answers = {QMessageBox::Yes};
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.size(), 1);
}

void tst_spacerace_windows::wordBoxesFilterKeys()
{
    TestEnvironment env;
    Shown<optSRace> opt;
    QList<WordBox *> &box = opt.w->txtWord;
    QCOMPARE(QApplication::focusWidget(), box[0]);
    Type(QStringLiteral("don't-1 x"));
    QCOMPARE(box[0]->text(), QStringLiteral("DON'T-X"));
    QCOMPARE(env.sound.beeps(), 2);
    Press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), box[1]);
    Type(QStringLiteral("abcdefghijklmnopqrs"));
    QCOMPARE(box[1]->text().size(), WordList::MaxLetters);
    box[19]->setFocus();
    Press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), box[0]);
    Press(Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), box[19]);
    box[4]->insert(QStringLiteral("42")); // pasted text that is not a word stays out
    QVERIFY(box[4]->text().isEmpty());

    // Typed words make the list, closed up, and mark it unsaved.
    QCOMPARE(SharedList().words, QStringList({"DON'T-X", "ABCDEFGHIJKLMNO"}));
    QVERIFY(!SharedList().saved);
    QCOMPARE(TheSettings().spaceRaceWordCount, qint16(2));
}

void tst_spacerace_windows::saveOpenAndNewList()
{
    TestEnvironment env;
    QTemporaryDir folder;
    Shown<optSRace> opt;
    QCOMPARE(opt.w->windowTitle(), QStringLiteral("Space Race, List Name: NONE"));
    for (const char *word : {"cat", "dog", "sun"}) {
        Type(QString::fromLatin1(word));
        Press(Qt::Key_Return);
    }
    env.dialogs.saveAnswers = {folder.filePath(QStringLiteral("week1"))};
    QTest::mouseClick(opt.w->cmdSave, Qt::LeftButton);
    QFile saved(folder.filePath(QStringLiteral("week1.srl")));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), QByteArray("3\n\"CAT\"\n\"DOG\"\n\"SUN\"\n"));
    QVERIFY(SharedList().saved);
    QCOMPARE(opt.w->windowTitle(), QStringLiteral("Space Race, List Name: week1"));
    QCOMPARE(TheSettings().spaceRaceListName, QStringLiteral("week1"));

    QTest::mouseClick(opt.w->cmdNew, Qt::LeftButton); // a saved list goes without a question
    QVERIFY(env.dialogs.messages.isEmpty());
    QVERIFY(SharedList().isEmpty() && opt.w->txtWord[0]->text().isEmpty());
    QCOMPARE(SharedList().name, QStringLiteral("NONE"));

    // Words typed and not saved: New and Open ask first, and No keeps everything.
    Type(QStringLiteral("star"));
    env.dialogs.answers = {QMessageBox::No, QMessageBox::No, QMessageBox::Yes};
    QTest::mouseClick(opt.w->cmdNew, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Enter New List"));
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("Current Word List: NONE\nThis list will be lost if it has not been "
                            "saved.\nDo you wish to continue?"));
    env.dialogs.openAnswers = {saved.fileName()};
    QTest::mouseClick(opt.w->cmdOpen, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Open Word List"));
    QCOMPARE(env.dialogs.openAnswers.size(), 1); // the open dialog never came
    QCOMPARE(SharedList().words, QStringList{"STAR"});

    QTest::mouseClick(opt.w->cmdOpen, Qt::LeftButton);
    QCOMPARE(SharedList().words, QStringList({"CAT", "DOG", "SUN"}));
    QVERIFY(SharedList().saved);
    QCOMPARE(opt.w->txtWord[2]->text(), QStringLiteral("SUN"));
    QCOMPARE(opt.w->windowTitle(), QStringLiteral("Space Race, List Name: week1"));
}

void tst_spacerace_windows::failedOpenAndSaveKeepTheList()
{
    TestEnvironment env;
    QTemporaryDir folder;
    QFile damaged(folder.filePath(QStringLiteral("broken.srl")));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("2\n\"CAT\"\n\"D0G\"\n");
    damaged.close();
    UseList({QStringLiteral("MOON")}, true);
    Shown<optSRace> opt;
    env.dialogs.openAnswers = {damaged.fileName()};
    QTest::mouseClick(opt.w->cmdOpen, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.value(0).icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages.value(0).text.contains(QLatin1String("broken.srl, line 3")));
    QCOMPARE(SharedList().words, QStringList{"MOON"});
    QCOMPARE(opt.w->txtWord[0]->text(), QStringLiteral("MOON"));

    opt.w->txtWord[1]->setFocus();
    Type(QStringLiteral("S"));
    env.dialogs.saveAnswers = {folder.filePath(QStringLiteral("no/such/folder/x.srl"))};
    QTest::mouseClick(opt.w->cmdSave, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Save Word List"));
    QCOMPARE(env.dialogs.messages.last().icon, QMessageBox::Critical);
    QCOMPARE(SharedList().name, QStringLiteral("week1"));
    QVERIFY(!SharedList().saved);
}

void tst_spacerace_windows::printingTheList()
{
    TestEnvironment env;
    QTemporaryDir folder;
    env.dialogs.pdfFolder = folder.path();
    Shown<optSRace> opt;
    QTest::mouseClick(opt.w->cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("No words in list - can't be printed!"));
    UseList({QStringLiteral("CAT"), QStringLiteral("DOG")});
    env.dialogs.answers = {QMessageBox::Cancel, QMessageBox::Ok};
    QTest::mouseClick(opt.w->cmdPrint, Qt::LeftButton);
    QVERIFY(env.dialogs.printed.isEmpty());
    QTest::mouseClick(opt.w->cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("Make sure printer is on-line and ready."));
    QCOMPARE(env.dialogs.printed, QStringList{"List: week1"});
    QCOMPARE(env.dialogs.pdfFiles.size(), 1);

    WordList twenty;
    twenty.words = QStringList(20, QStringLiteral("WORD"));
    const auto pages = WordListPaper(twenty).layOut();
    QCOMPARE(pages.size(), 1);
    QStringList lines;
    for (const auto &placed : pages[0])
        lines.append(placed.text);
    for (const QString &line : {PrintDocument::creditLine(), QStringLiteral("List: NONE"),
                                QStringLiteral("1 - WORD"), QStringLiteral("20 - WORD")})
        QVERIFY2(lines.contains(line), qPrintable(line));
}

void tst_spacerace_windows::leavingTheOptions()
{
    TestEnvironment env;
    {
        Shown<optSRace> opt;
        QTest::mouseClick(opt.w->cmdOK, Qt::LeftButton);
        QCOMPARE(env.dialogs.messages.last().text,
                 QStringLiteral("Your spelling list has no words."));
        QVERIFY(!opt.w->isVisible());
    }
    UseList({QStringLiteral("CAT")}, false);
    Shown<optSRace> opt;
    env.dialogs.answers = {QMessageBox::No, QMessageBox::Yes};
    QTest::mouseClick(opt.w->cmdOK, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Space Race Options"));
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("Current List: week1\nList has not been saved.\n"
                            "Do you still want to leave the options screen?"));
    QVERIFY(opt.w->isVisible());
    Press(Qt::Key_Escape); // asks the same; Yes leaves
    QVERIFY(!opt.w->isVisible());
}

void tst_spacerace_windows::optionsChoicesGoToTheSettings()
{
    TestEnvironment env;
    Settings::SpaceRace &settings = TheSettings().spaceRace;
    settings.players = 7; // out of range in the file: shown and kept as 4
    UseList({QStringLiteral("CAT")});
    Shown<optSRace> opt;
    QVERIFY(opt.w->optPlayers[3]->isChecked());
    QCOMPARE(settings.players, qint16(4));
    QVERIFY(!opt.w->Frame[3]->isEnabled()); // the flash time is Flasher's
    opt.w->optPlayers[1]->setChecked(true);
    QCOMPARE(settings.players, qint16(2));
    QVERIFY(opt.w->txtName[1]->isEnabled() && !opt.w->txtName[2]->isEnabled());
    opt.w->optGame[0]->setChecked(true);
    QCOMPARE(settings.gameType, qint16(1));
    QVERIFY(opt.w->Frame[3]->isEnabled());

    opt.w->spnSpeed->setFocus();
    for (int i = 0; i < 15; ++i)
        Press(Qt::Key_Up);
    QCOMPARE(settings.speed, qint16(20));
    QCOMPARE(opt.w->pnlSpeed->percent(), 0);
    for (int i = 0; i < 25; ++i)
        Press(Qt::Key_Down);
    QCOMPARE(settings.speed, qint16(0));
    QCOMPARE(opt.w->pnlSpeed->percent(), 100);

    opt.w->txtName[0]->setText(QStringLiteral("Zoe"));
    opt.w->txtName[1]->setText(QStringLiteral("   "));
    QTest::mouseClick(opt.w->cmdOK, Qt::LeftButton);
    QCOMPARE(settings.names[0], QStringLiteral("Zoe"));
    QCOMPARE(settings.names[1], QStringLiteral("Player 2"));
}

QTEST_MAIN(tst_spacerace_windows)
#include "tst_spacerace_windows.moc"
