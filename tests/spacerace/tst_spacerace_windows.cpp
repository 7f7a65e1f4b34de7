// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Settings.h"
#include "shell/frmResults.h"
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
    void init();
    void opensReadyForANewGame();
    void newGameNeedsWords();
    void flasherRaceByKeyboard();
    void flashTimeFollowsTheSpeed();
    void scramblerTurnLostAndGiveAways();
    void stopAndTheUnsavedListQuestion();
    void wordBoxesFilterKeys();
    void saveOpenAndNewList();
    void failedOpenAndSaveKeepTheList();
    void printingTheList();
    void leavingTheOptions();
    void optionsChoicesGoToTheSettings();
    void optionsFromTheRaceWindow();
};

namespace {

struct Window {
    QPointer<frmSRace> w = new frmSRace;
    Window()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the race window did not become active");
    }
    // A window that closed has deleted itself.
    ~Window() { delete w; }
    QString message() const { return w->lblMessage->text(); }
};

struct Options {
    optSRace *o = new optSRace;
    Options()
    {
        o->show();
        QApplication::setActiveWindow(o);
        if (!QTest::qWaitForWindowActive(o))
            qWarning("the options window did not become active");
    }
    ~Options() { delete o; }
    WordBox *box(int number) const { return o->txtWord[number - 1]; }
};

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

void UseList(const QStringList &words, bool saved = true)
{
    WordList list;
    list.name = QStringLiteral("week1");
    list.words = words;
    list.saved = saved;
    SetSharedList(list);
}

// The rest of the current word, as the race expects it.
QString Rest(const frmSRace *w)
{
    return w->race().word().mid(w->race().typed().size());
}

QString Unsaved(const QString &name)
{
    return QStringLiteral("Current Word List: %1\nThis list will be lost if it has not been "
                          "saved.\nDo you wish to continue?")
        .arg(name);
}

} // namespace

void tst_spacerace_windows::init()
{
    SetSharedList(WordList());
}

void tst_spacerace_windows::opensReadyForANewGame()
{
    TestEnvironment env;
    UseList({QStringLiteral("CAT")});
    Window win;
    for (const char *name :
         {"picSky", "lblTitle", "lblWord", "lblFlash", "lblanswer", "lblMessage", "lblNames",
          "cmdOK", "cmdNew", "cmdOptions", "cmdExit", "cmdHelp", "picRocket_1", "picMoon_4"})
        QVERIFY2(win.w->findChild<QObject *>(name), name);
    QCOMPARE(win.w->windowTitle(), QStringLiteral("Space Race, List Name: week1"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(!win.w->cmdOK->isEnabled());
    QCOMPARE(QApplication::focusWidget(), win.w->cmdNew);
    QCOMPARE(win.w->lblNames->text(), QStringLiteral("1-Player 1  2-Player 2  "));
    QVERIFY(win.w->picSky->rocket(2)->isVisible());
    QVERIFY(win.w->picSky->rocket(3)->isHidden());
    QCOMPARE(win.w->lblMessage->textFormat(), Qt::PlainText);
    QCOMPARE(win.w->lblWord->textFormat(), Qt::PlainText);
    QTest::mouseClick(win.w->cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{"spacerace"});
}

void tst_spacerace_windows::newGameNeedsWords()
{
    TestEnvironment env;
    Window win;
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].title, QStringLiteral("New Game"));
    QCOMPARE(env.dialogs.messages[0].text,
             QStringLiteral("No words in spelling list.\nChoose 'Options' to Enter/Load list."));
    QVERIFY(!win.w->race().isRunning());
    QVERIFY(win.w->cmdNew->isEnabled());
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
}

void tst_spacerace_windows::flasherRaceByKeyboard()
{
    TestEnvironment env;
    Settings::SpaceRace &settings = TheSettings().spaceRace;
    settings.gameType = 1;
    settings.speed = 0;
    settings.names = {QStringLiteral("Ana"), QStringLiteral("Ben"), QString(), QString()};
    UseList({QStringLiteral("MOON"), QStringLiteral("STAR"), QStringLiteral("MARS")});
    QStringList winners;
    QStringList lines;
    env.dialogs.onRun = [&](QDialog &dialog) {
        lines = {dialog.windowTitle(), dialog.findChild<QLabel *>("Label1_0")->text(),
                 dialog.findChild<QLabel *>("Label1_1")->text()};
        for (int i = 0; i < 4; ++i)
            winners.append(dialog.findChild<QLabel *>(ArrayName("lblWin", i))->text());
        return int(QDialog::Accepted);
    };
    Window win;
    Press(Qt::Key_Return); // New Game
    QCOMPARE(win.w->lblTitle->text(), QStringLiteral("Flasher"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(!win.w->cmdNew->isEnabled() && !win.w->cmdOptions->isEnabled());
    QVERIFY(win.w->lblFlash->isVisible() && win.w->lblanswer->isHidden());
    QCOMPARE(win.message(), QStringLiteral("Ana:\n"));
    QCOMPARE(win.w->cmdOK->text(), QStringLiteral("&Flash Word"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdOK);

    // Letters before the flash do nothing; the flash shows the word, then stars.
    Type(QStringLiteral("Q"));
    QVERIFY(env.sound.played().isEmpty());
    Press(Qt::Key_Return);
    QCOMPARE(env.clock.delays, QList<double>({0.1f}));
    QVERIFY(win.w->lblWord->text().isEmpty());
    QCOMPARE(win.w->lblFlash->text(), QStringLiteral("****"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdOK);

    // Letters go to the race even with the button focused; a wrong one waits for its sound.
    const QString word = win.w->race().word();
    Type(word.left(1).toLower());
    QCOMPARE(win.w->lblFlash->text(), word.left(1) + QStringLiteral("***"));
    QCOMPARE(env.sound.events.last(), QStringLiteral("play ding.wav async"));
    Press(Qt::Key_Backspace);
    QCOMPARE(env.sound.events.last(), QStringLiteral("play uhoh.wav wait"));
    QCOMPARE(win.w->race().wrongLetters(), qint16(1));
    Press(Qt::Key_Return); // the second and last flash
    QVERIFY(!win.w->cmdOK->isEnabled());
    QCOMPARE(win.w->race().flashes(), qint16(2));
    QCOMPARE(win.w->lblFlash->text(), word.left(1) + QStringLiteral("***"));
    Press(Qt::Key_Return);
    QCOMPARE(win.w->race().flashes(), qint16(2));

    const int padTop = win.w->picSky->rocket(1)->y();
    Type(Rest(win.w));
    QCOMPARE(win.w->race().position(1), qint16(7));
    QCOMPARE(win.w->picSky->position(1), 7);
    QVERIFY(win.w->picSky->rocket(1)->y() < padTop);
    QVERIFY(env.sound.events.contains(QStringLiteral("play rocket.wav async")));
    QCOMPARE(env.clock.delays.last(), 1.0);
    QCOMPARE(win.message(), QStringLiteral("Ben:\n")); // the next turn has begun

    // The rest of the race: every word clean, both reach the moon in the same round.
    for (int turn = 0; turn < 100 && win.w->race().isRunning(); ++turn) {
        Press(Qt::Key_Return);
        Type(Rest(win.w));
    }
    QCOMPARE(lines, QStringList({"Space Race Results", "The game is over.",
                                 "These player(s) reached the moon:"}));
    QCOMPARE(winners, QStringList({"Ana", "Ben", "", ""}));
    QCOMPARE(win.w->race().position(1), qint16(77));
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
    QCOMPARE(win.message(), QStringLiteral("Game Over"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdNew);
    QVERIFY(win.w->picSky->rocket(1)->y() <= win.w->picSky->moonTop() + 1);
}

void tst_spacerace_windows::flashTimeFollowsTheSpeed()
{
    TestEnvironment env;
    TheSettings().spaceRace.gameType = 1;
    UseList({QStringLiteral("CAT")});
    Window win;
    for (const qint16 speed : {qint16(10), qint16(20), qint16(99)}) {
        TheSettings().spaceRace.speed = speed;
        env.clock.delays.clear();
        QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
        QTest::mouseClick(win.w->cmdOK, Qt::LeftButton);
        QCOMPARE(env.clock.delays.size(), 1);
        QCOMPARE(float(env.clock.delays[0]), speed == 10 ? 1.1f : 2.1f);
        QTest::mouseClick(win.w->cmdExit, Qt::LeftButton); // Stop
    }
}

void tst_spacerace_windows::scramblerTurnLostAndGiveAways()
{
    TestEnvironment env;
    TheSettings().spaceRace.gameType = 2;
    UseList({QStringLiteral("PLANET")});
    Window win;
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(win.w->lblTitle->text(), QStringLiteral("Scrambler"));
    QVERIFY(win.w->lblanswer->isVisible() && win.w->lblFlash->isHidden());
    QCOMPARE(win.message(), QStringLiteral("Player 1:\nUnscramble Word"));
    QVERIFY(win.w->lblWord->text() != QStringLiteral("PLANET"));
    QCOMPARE(win.w->lblWord->text().size(), 6);
    QVERIFY(!win.w->cmdOK->isEnabled());

    Type(QStringLiteral("X"));
    QCOMPARE(win.w->lblanswer->text(), QStringLiteral("P"));
    Type(QStringLiteral("7")); // not a letter: nothing happens
    QCOMPARE(win.w->race().wrongLetters(), qint16(1));
    Type(QStringLiteral("XX"));
    QCOMPARE(env.sound.played().count(QStringLiteral("uhoh.wav")), 3);
    QCOMPARE(win.message(), QStringLiteral("Sorry ...\n"));
    QCOMPARE(win.w->lblWord->text(), QStringLiteral("PLANET"));
    QCOMPARE(win.w->lblanswer->text(), QStringLiteral("PLANET"));
    QCOMPARE(win.w->cmdOK->text(), QStringLiteral("Next &Player"));
    QCOMPARE(QApplication::focusWidget(), win.w->cmdOK);
    Type(QStringLiteral("P")); // typing has stopped
    QCOMPARE(win.w->race().phase(), RocketRace::Phase::TurnLost);

    Press(Qt::Key_Return);
    QVERIFY(!win.w->cmdOK->isEnabled());
    QCOMPARE(win.message(), QStringLiteral("Player 2:\nUnscramble Word"));
    QVERIFY(win.w->lblanswer->text().isEmpty());
    QCOMPARE(win.w->race().position(1), qint16(0));
}

void tst_spacerace_windows::stopAndTheUnsavedListQuestion()
{
    TestEnvironment env;
    UseList({QStringLiteral("CAT")}, false);
    Window win;
    QSignalSpy closed(win.w, &ActivityWindow::closed);
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton); // Stop
    QVERIFY(!win.w->race().isRunning());
    QCOMPARE(win.message(), QStringLiteral("Game Over"));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(win.w->cmdNew->isEnabled() && win.w->cmdOptions->isEnabled());
    QVERIFY(closed.isEmpty());

    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton); // No, the default, keeps it open
    QCOMPARE(env.dialogs.messages.size(), 1);
    const MessageRequest &question = env.dialogs.messages[0];
    QCOMPARE(question.title, QStringLiteral("Space Race"));
    QCOMPARE(question.text, QStringLiteral("Current List: week1\nList has not been saved.\n"
                                           "Do you still want to leave Space Race?"));
    QCOMPARE(question.icon, QMessageBox::Question);
    QCOMPARE(question.defaultButton, QMessageBox::No);
    QVERIFY(win.w->isVisible());
    QVERIFY(closed.isEmpty());
    env.dialogs.answers = {QMessageBox::Yes};
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.size(), 1);

    // A saved list leaves without a question.
    UseList({QStringLiteral("CAT")}, true);
    Window saved;
    QSignalSpy savedClosed(saved.w, &ActivityWindow::closed);
    QTest::mouseClick(saved.w->cmdExit, Qt::LeftButton);
    QCOMPARE(savedClosed.size(), 1);
    QCOMPARE(env.dialogs.messages.size(), 2);
}

void tst_spacerace_windows::wordBoxesFilterKeys()
{
    TestEnvironment env;
    Options opt;
    QCOMPARE(QApplication::focusWidget(), opt.box(1));
    Type(QStringLiteral("don't-1 x"));
    QCOMPARE(opt.box(1)->text(), QStringLiteral("DON'T-X"));
    QCOMPARE(env.sound.beeps(), 2);
    Press(Qt::Key_Backspace);
    QCOMPARE(opt.box(1)->text(), QStringLiteral("DON'T-"));
    Press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), opt.box(2));
    Type(QStringLiteral("abcdefghijklmnopqrs"));
    QCOMPARE(opt.box(2)->text().size(), WordList::MaxLetters);
    opt.box(20)->setFocus();
    Press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), opt.box(1));
    Press(Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), opt.box(20));

    // Pasted text gets in only when it is all letters.
    opt.box(5)->setFocus();
    opt.box(5)->clear();
    opt.box(5)->insert(QStringLiteral("moon"));
    QCOMPARE(opt.box(5)->text(), QStringLiteral("MOON"));
    opt.box(5)->insert(QStringLiteral("42"));
    QCOMPARE(opt.box(5)->text(), QStringLiteral("MOON"));

    // Typed words make the list, closed up, and mark it unsaved.
    QCOMPARE(SharedList().words, QStringList({"DON'T-", "ABCDEFGHIJKLMNO", "MOON"}));
    QVERIFY(!SharedList().saved);
    QCOMPARE(TheSettings().spaceRaceWordCount, qint16(3));
}

void tst_spacerace_windows::saveOpenAndNewList()
{
    TestEnvironment env;
    QTemporaryDir folder;
    Options opt;
    QCOMPARE(opt.o->windowTitle(), QStringLiteral("Space Race, List Name: NONE"));
    for (const char *word : {"cat", "dog", "sun"}) {
        Type(QString::fromLatin1(word));
        Press(Qt::Key_Return);
    }
    env.dialogs.saveAnswers = {folder.filePath(QStringLiteral("week1"))};
    QTest::mouseClick(opt.o->cmdSave, Qt::LeftButton);
    QFile saved(folder.filePath(QStringLiteral("week1.srl")));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), QByteArray("3\n\"CAT\"\n\"DOG\"\n\"SUN\"\n"));
    QCOMPARE(SharedList().name, QStringLiteral("week1"));
    QVERIFY(SharedList().saved);
    QCOMPARE(opt.o->windowTitle(), QStringLiteral("Space Race, List Name: week1"));
    QCOMPARE(TheSettings().spaceRaceListName, QStringLiteral("week1"));

    // A saved list is dropped without a question.
    QTest::mouseClick(opt.o->cmdNew, Qt::LeftButton);
    QVERIFY(env.dialogs.messages.isEmpty());
    QVERIFY(SharedList().isEmpty());
    QCOMPARE(SharedList().name, QStringLiteral("NONE"));
    QVERIFY(opt.box(1)->text().isEmpty());

    // Words typed and not saved: New and Open ask first, and No keeps everything.
    opt.box(4)->setFocus();
    Type(QStringLiteral("star"));
    env.dialogs.answers = {QMessageBox::No};
    QTest::mouseClick(opt.o->cmdNew, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Enter New List"));
    QCOMPARE(env.dialogs.messages.last().text, Unsaved(QStringLiteral("NONE")));
    QCOMPARE(SharedList().words, QStringList{"STAR"});
    env.dialogs.openAnswers = {saved.fileName()};
    env.dialogs.answers = {QMessageBox::No};
    QTest::mouseClick(opt.o->cmdOpen, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Open Word List"));
    QCOMPARE(env.dialogs.openAnswers.size(), 1); // the dialog never opened
    QCOMPARE(SharedList().words, QStringList{"STAR"});

    env.dialogs.answers = {QMessageBox::Yes};
    QTest::mouseClick(opt.o->cmdOpen, Qt::LeftButton);
    QCOMPARE(SharedList().words, QStringList({"CAT", "DOG", "SUN"}));
    QVERIFY(SharedList().saved);
    QCOMPARE(opt.box(3)->text(), QStringLiteral("SUN"));
    QVERIFY(opt.box(4)->text().isEmpty());
    QCOMPARE(opt.o->windowTitle(), QStringLiteral("Space Race, List Name: week1"));
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
    Options opt;
    env.dialogs.openAnswers = {damaged.fileName(), folder.filePath(QStringLiteral("gone.srl"))};
    QTest::mouseClick(opt.o->cmdOpen, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY2(env.dialogs.messages[0].text.contains(QLatin1String("broken.srl, line 3")),
             qPrintable(env.dialogs.messages[0].text));
    QTest::mouseClick(opt.o->cmdOpen, Qt::LeftButton);
    QVERIFY(env.dialogs.messages[1].text.contains(QLatin1String("gone.srl")));
    QCOMPARE(SharedList().words, QStringList{"MOON"});
    QCOMPARE(SharedList().name, QStringLiteral("week1"));
    QCOMPARE(opt.box(1)->text(), QStringLiteral("MOON"));

    opt.box(2)->setFocus();
    Type(QStringLiteral("sun"));
    env.dialogs.saveAnswers = {folder.filePath(QStringLiteral("no/such/folder/x.srl"))};
    QTest::mouseClick(opt.o->cmdSave, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Save Word List"));
    QCOMPARE(env.dialogs.messages.last().icon, QMessageBox::Critical);
    QCOMPARE(SharedList().name, QStringLiteral("week1"));
    QVERIFY(!SharedList().saved);

    // An empty list is not saved at all.
    SetSharedList(WordList());
    env.dialogs.saveAnswers = {folder.filePath(QStringLiteral("empty.srl"))};
    QTest::mouseClick(opt.o->cmdSave, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().text, QStringLiteral("Your spelling list has no words."));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("empty.srl"))));
}

void tst_spacerace_windows::printingTheList()
{
    TestEnvironment env;
    QTemporaryDir folder;
    env.dialogs.pdfFolder = folder.path();
    Options opt;
    QTest::mouseClick(opt.o->cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("No words in list - can't be printed!"));
    QVERIFY(env.dialogs.printed.isEmpty());

    UseList({QStringLiteral("CAT"), QStringLiteral("DOG")});
    env.dialogs.answers = {QMessageBox::Cancel, QMessageBox::Ok};
    QTest::mouseClick(opt.o->cmdPrint, Qt::LeftButton);
    QVERIFY(env.dialogs.printed.isEmpty());
    QTest::mouseClick(opt.o->cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Print Word List"));
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("Make sure printer is on-line and ready."));
    QCOMPARE(env.dialogs.printed, QStringList{"List: week1"});
    QCOMPARE(env.dialogs.pdfFiles.size(), 1);

    WordList twenty;
    for (int i = 1; i <= 20; ++i)
        twenty.words.append(QStringLiteral("WORD"));
    const PrintDocument paper = WordListPaper(twenty);
    QCOMPARE(paper.font().family(), QStringLiteral("Courier New"));
    const auto pages = paper.layOut();
    QCOMPARE(pages.size(), 1); // twenty words fit one page
    QStringList lines;
    for (const auto &placed : pages[0])
        lines.append(placed.text);
    QVERIFY(lines.contains(PrintDocument::creditLine()));
    QVERIFY(lines.contains(QStringLiteral("List: NONE")));
    QVERIFY(lines.contains(QStringLiteral("1 - WORD")));
    QVERIFY(lines.contains(QStringLiteral("20 - WORD")));
}

void tst_spacerace_windows::leavingTheOptions()
{
    TestEnvironment env;
    {
        Options opt;
        QTest::mouseClick(opt.o->cmdOK, Qt::LeftButton);
        QCOMPARE(env.dialogs.messages.last().text,
                 QStringLiteral("Your spelling list has no words."));
        QVERIFY(!opt.o->isVisible());
    }
    UseList({QStringLiteral("CAT")}, false);
    Options opt;
    env.dialogs.answers = {QMessageBox::No};
    QTest::mouseClick(opt.o->cmdOK, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Space Race Options"));
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("Current List: week1\nList has not been saved.\n"
                            "Do you still want to leave the options screen?"));
    QVERIFY(opt.o->isVisible());
    // Escape asks the same.
    env.dialogs.answers = {QMessageBox::Yes};
    Press(Qt::Key_Escape);
    QVERIFY(!opt.o->isVisible());
}

void tst_spacerace_windows::optionsChoicesGoToTheSettings()
{
    TestEnvironment env;
    Settings::SpaceRace &settings = TheSettings().spaceRace;
    settings.players = 7; // out of range in the file: shown and kept as 4
    settings.speed = 19;
    UseList({QStringLiteral("CAT")});
    Options opt;
    QVERIFY(opt.o->optPlayers[3]->isChecked());
    QCOMPARE(settings.players, qint16(4));
    QVERIFY(opt.o->optGame[1]->isChecked());
    QVERIFY(!opt.o->Frame[3]->isEnabled()); // the flash time is Flasher's

    opt.o->optPlayers[1]->setChecked(true);
    QCOMPARE(settings.players, qint16(2));
    QVERIFY(opt.o->txtName[1]->isEnabled() && !opt.o->txtName[2]->isEnabled());
    opt.o->optGame[0]->setChecked(true);
    QCOMPARE(settings.gameType, qint16(1));
    QVERIFY(opt.o->Frame[3]->isEnabled());

    opt.o->spnSpeed->setFocus();
    for (int i = 0; i < 5; ++i)
        Press(Qt::Key_Up);
    QCOMPARE(settings.speed, qint16(20));
    QCOMPARE(opt.o->pnlSpeed->percent(), 0);
    for (int i = 0; i < 25; ++i)
        Press(Qt::Key_Down);
    QCOMPARE(settings.speed, qint16(0));
    QCOMPARE(opt.o->pnlSpeed->percent(), 100);
    QCOMPARE(optSRace::speedPercent(10), 50);

    opt.o->txtName[0]->setText(QStringLiteral("Zoe"));
    opt.o->txtName[1]->setText(QStringLiteral("   "));
    QTest::mouseClick(opt.o->cmdOK, Qt::LeftButton);
    QCOMPARE(settings.names[0], QStringLiteral("Zoe"));
    QCOMPARE(settings.names[1], QStringLiteral("Player 2"));
}

void tst_spacerace_windows::optionsFromTheRaceWindow()
{
    TestEnvironment env;
    Window win;
    env.dialogs.onRun = [&env](QDialog &dialog) {
        auto *options = qobject_cast<optSRace *>(&dialog);
        options->optPlayers[2]->setChecked(true);
        options->txtWord[0]->setText(QStringLiteral("COMET"));
        Q_EMIT options->txtWord[0]->textEdited(QStringLiteral("COMET"));
        env.dialogs.answers = {QMessageBox::Yes};
        QTest::mouseClick(options->cmdOK, Qt::LeftButton);
        return options->result();
    };
    QTest::mouseClick(win.w->cmdOptions, Qt::LeftButton);
    QCOMPARE(env.dialogs.ranWindows, QStringList{"optSRace"});
    QCOMPARE(win.w->lblNames->text(), QStringLiteral("1-Player 1  2-Player 2  3-Player 3  "));
    QVERIFY(win.w->picSky->rocket(3)->isVisible());
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(win.w->race().word(), QStringLiteral("COMET"));
    QVERIFY(!win.w->cmdOptions->isEnabled());
}

QTEST_MAIN(tst_spacerace_windows)
#include "tst_spacerace_windows.moc"
