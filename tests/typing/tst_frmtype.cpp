// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "support/TestDoubles.h"
#include "typing/Certificate.h"
#include "typing/frmType.h"
#include "typing/KeyboardView.h"
#include "typing/TypingLineView.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

// The keyboarding window played by keys and clicks through the test doubles and virtual clock.
class tst_frmtype : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { InitTestProgram(); }
    void opensWithTheSettingsShown();
    void lessonTypedToTheEndOpensTheNext();
    void everyKeyReachesTheTypingLine();
    void speedTestOnTheVirtualClock();
    void rowSwitchesAreKeptAndCloseLessons();
    void stopLeavesNoResultThenExitCloses();
    void certificatePrintsTheBestTest();
    void missingTextFileClosesTheWindow();
};

namespace {

struct Window {
    frmType *w;
    explicit Window(std::array<qint16, 6> values = {1, 1, 1, 0, 1, 0})
    {
        TheSettings().typing.values = values;
        w = new frmType;
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the keyboarding window did not become active");
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
    // Presses a key where the keyboard focus is, as a pupil would.
    void key(QChar c) const
    {
        QWidget *focus = QApplication::focusWidget();
        // Qt's key codes are the characters' own codes, capitals for letters.
        const auto code = Qt::Key(c.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, focus ? focus : w, code, QString(c), Qt::NoModifier);
    }
    // Types the rest of the exercise, right key after right key, the clock moving `gap` ms each.
    void typeAll(VirtualClock &clock, int gap) const
    {
        for (int guard = 0;
             guard < 5000 && !w->exercise().isFinished() && w->mode() != frmType::Mode::Idle;
             ++guard) {
            key(w->exercise().expected());
            clock.now += gap;
        }
    }
};

} // namespace

void tst_frmtype::opensWithTheSettingsShown()
{
    TestEnvironment env;
    Window window({0, 1, 1, 1, 0, 1});
    frmType *w = window.w;
    QCOMPARE(w->objectName(), QStringLiteral("frmType"));
    QCOMPARE(w->lstLessons->count(), 17);
    QCOMPARE(w->lessonIndex(), 0);
    QVERIFY(!w->chkRow[0]->isChecked());
    QVERIFY(w->chkRow[1]->isChecked() && w->chkRow[2]->isChecked() && w->chkRow[3]->isChecked());
    QVERIFY(!w->chkGuide->isChecked());
    QVERIFY(w->picKeyboard->isHidden());
    QVERIFY(w->chkShift->isChecked());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->lblTitle->text().contains(QStringLiteral("A S D F")));
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("left little finger")));
    QVERIFY(!w->cmdPrint->isEnabled());
    for (QWidget *child : w->findChildren<QWidget *>())
        if (qobject_cast<QPushButton *>(child) || qobject_cast<QCheckBox *>(child) ||
            qobject_cast<QRadioButton *>(child))
            QVERIFY2(!child->accessibleName().isEmpty(), qPrintable(child->objectName()));
    for (QLabel *label : w->findChildren<QLabel *>())
        if (label->buddy() == nullptr)
            QCOMPARE(label->textFormat(), Qt::PlainText);
    QTest::keyClick(w, Qt::Key_F1);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("typing")});
}

void tst_frmtype::lessonTypedToTheEndOpensTheNext()
{
    TestEnvironment env;
    Window window;
    frmType *w = window.w;
    QTest::mouseClick(w->cmdStart, Qt::LeftButton);
    QCOMPARE(w->mode(), frmType::Mode::Lesson);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(w->txtType->hasFocus());
    QVERIFY(!w->lstLessons->isEnabled());
    // The keyboard lights the key to type next.
    QCOMPARE(w->picKeyboard->nextKey(), w->exercise().expected());
    for (QChar c : w->exercise().lines().join(QString()))
        QVERIFY(QStringLiteral("asdf ").contains(c));

    // A wrong key beeps, is counted, and the pupil stays on the same character.
    const QChar first = w->exercise().expected();
    window.key(first == u'a' ? u's' : u'a');
    QCOMPARE(env.sound.beeps(), 1);
    QCOMPARE(w->exercise().wrongKeys(), 1);
    QCOMPARE(w->exercise().position(), 0);
    window.key(first);
    QCOMPARE(w->exercise().position(), 1);

    env.clock.now += 1000;
    window.typeAll(env.clock, 300);
    QCOMPARE(w->mode(), frmType::Mode::Idle);
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
    QCOMPARE(env.sound.beeps(), 1);
    QVERIFY(w->lessonPassed(0));
    QCOMPARE(w->lessonIndex(), 1);
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("Good! Lesson 2 is next.")));
    QVERIFY(w->lstLessons->item(0)->text().contains(QStringLiteral("\u2714")));
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));

    // A sloppy lesson does not pass.
    QTest::mouseClick(w->cmdStart, Qt::LeftButton);
    for (int i = 0; i < 40; ++i)
        window.key(u'`');
    window.typeAll(env.clock, 300);
    QVERIFY(!w->lessonPassed(1));
    QCOMPARE(w->lessonIndex(), 1);
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("Try it again")));
}

void tst_frmtype::everyKeyReachesTheTypingLine()
{
    TestEnvironment env;
    Window window;
    frmType *w = window.w;
    QTest::mouseClick(w->cmdStart, Qt::LeftButton);
    // Tab, Enter, Backspace and Shift neither leave the typing line nor press a button.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(w->txtType->hasFocus());
    QCOMPARE(w->exercise().wrongKeys(), 1);
    QTest::keyClick(w->txtType, Qt::Key_Return);
    QCOMPARE(w->exercise().wrongKeys(), 2);
    QCOMPARE(w->mode(), frmType::Mode::Lesson);
    QTest::keyClick(w->txtType, Qt::Key_Backspace);
    QTest::keyClick(w->txtType, Qt::Key_Shift);
    QTest::keyClick(w->txtType, Qt::Key_Left);
    QCOMPARE(w->exercise().wrongKeys(), 2);
    QCOMPARE(w->exercise().position(), 0);
    // A key that no key of the map types is just a wrong key.
    window.key(QChar(u'\u00E9'));
    QCOMPARE(w->exercise().wrongKeys(), 3);
    // A capital for a small letter hints at Caps Lock.
    window.key(w->exercise().expected().toUpper());
    QCOMPARE(w->exercise().wrongKeys(), 4);
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("Caps Lock")));
    // Escape stops the lesson.
    QTest::keyClick(w->txtType, Qt::Key_Escape);
    QCOMPARE(w->mode(), frmType::Mode::Idle);
    QVERIFY(w->isVisible());
}

void tst_frmtype::speedTestOnTheVirtualClock()
{
    TestEnvironment env;
    Window window;
    frmType *w = window.w;
    QTest::mouseClick(w->optMinutes[1], Qt::LeftButton);
    QVERIFY(w->optMinutes[1]->isChecked());
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("2 minutes")));
    env.clock.now = 100000;
    QTest::mouseClick(w->cmdTest, Qt::LeftButton);
    QCOMPARE(w->mode(), frmType::Mode::Test);
    QVERIFY(w->Timer1->isActive());
    // Without Shift the passage comes in small letters.
    const QString text = w->exercise().lines().join(QString());
    QCOMPARE(text, text.toLower());
    QVERIFY(w->lblStats->text().contains(QStringLiteral("2:00")));

    // 100 right keys and 25 wrong ones, a little under a second apart from the first key on.
    for (int i = 0; i < 125; ++i) {
        window.key(i % 5 == 4 ? QChar(u'#') : w->exercise().expected());
        env.clock.now += 900;
    }
    QVERIFY(QMetaObject::invokeMethod(w->Timer1, "timeout"));
    QVERIFY(w->lblStats->text().contains(QStringLiteral("Time left: 0:")));
    env.clock.now = 100000 + 130000; // past two minutes
    QVERIFY(QMetaObject::invokeMethod(w->Timer1, "timeout"));
    QCOMPARE(w->mode(), frmType::Mode::Idle);
    QVERIFY(!w->Timer1->isActive());
    QCOMPARE(w->results().all().size(), 1);
    const TestResult result = w->results().all().first();
    QCOMPARE(result.minutes, 2);
    QCOMPARE(result.seconds, 120.0);
    QCOMPARE(result.wordsPerMinute, 10.0); // 100 characters = 20 words in 2 minutes
    QCOMPARE(result.accuracy, 80.0);
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("Time is up!")));
    QVERIFY(w->lblMessage->accessibleDescription().contains(QStringLiteral("10 words a minute")));

    // The results page shows the test in its table, and a key after the end does nothing.
    window.key(u'a');
    QCOMPARE(w->results().all().size(), 1);
    QTest::mouseClick(w->cmdResults, Qt::LeftButton);
    QCOMPARE(w->pnlPages->currentIndex(), 1);
    QCOMPARE(w->grdResults->rowCount(), 1);
    QCOMPARE(w->grdResults->item(0, 2)->text(), QStringLiteral("10"));
    QCOMPARE(w->grdResults->item(0, 3)->text(), QStringLiteral("80%"));
    QVERIFY(!w->grdResults->item(0, 4)->text().isEmpty());
    QVERIFY(w->cmdPrint->isEnabled());
    QTest::mouseClick(w->cmdResults, Qt::LeftButton);
    QCOMPARE(w->pnlPages->currentIndex(), 0);

    // With Shift on, the passage keeps its capitals.
    w->chkShift->setChecked(true);
    QTest::mouseClick(w->cmdTest, Qt::LeftButton);
    const QString shifted = w->exercise().lines().join(QString());
    QVERIFY(std::any_of(shifted.begin(), shifted.end(), [](QChar c) { return c.isUpper(); }));
}

void tst_frmtype::rowSwitchesAreKeptAndCloseLessons()
{
    TestEnvironment env;
    Window window;
    frmType *w = window.w;
    w->lstLessons->setCurrentRow(3); // E and I, on the top row
    QVERIFY(w->cmdStart->isEnabled());
    w->chkRow[0]->setChecked(false);
    QCOMPARE(TheSettings().typing.values, (std::array<qint16, 6>{0, 1, 1, 0, 1, 0}));
    QVERIFY(!w->cmdStart->isEnabled());
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("switched off")));
    w->lstLessons->setCurrentRow(13); // numbers: the number row is off
    QVERIFY(!w->cmdStart->isEnabled());
    QTest::keyClick(w, Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(w->chkRow[3]->isChecked()); // a mnemonic clicks a moment later
    QVERIFY(w->cmdStart->isEnabled());
    QTest::mouseClick(w->cmdStart, Qt::LeftButton);
    const QString drill = w->exercise().lines().join(QString());
    QVERIFY(std::none_of(drill.begin(), drill.end(),
                         [](QChar c) { return QStringLiteral("qwertyuiop").contains(c); }));
    QVERIFY(std::any_of(drill.begin(), drill.end(), [](QChar c) { return c.isDigit(); }));
    // Settings cannot change under a running drill, but the guide can be hidden.
    QVERIFY(!w->fraRows->isEnabled());
    w->chkGuide->setChecked(false);
    QVERIFY(w->picKeyboard->isHidden());
    QCOMPARE(TheSettings().typing.values, (std::array<qint16, 6>{0, 1, 1, 1, 0, 0}));
}

void tst_frmtype::stopLeavesNoResultThenExitCloses()
{
    TestEnvironment env;
    Window window;
    frmType *w = window.w;
    QSignalSpy closed(w, &ActivityWindow::closed);
    QTest::mouseClick(w->cmdTest, Qt::LeftButton);
    window.key(w->exercise().expected());
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(w->mode(), frmType::Mode::Idle);
    QVERIFY(!w->Timer1->isActive());
    QVERIFY(w->results().isEmpty());
    QCOMPARE(closed.count(), 0);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
}

void tst_frmtype::certificatePrintsTheBestTest()
{
    TestEnvironment env;
    QTemporaryDir pdfs;
    env.dialogs.pdfFolder = pdfs.path();
    Window window;
    frmType *w = window.w;
    // Printing before any test only says what to do.
    w->cmdPrint->setEnabled(true);
    QTest::mouseClick(w->cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QVERIFY(env.dialogs.printed.isEmpty());

    QTest::mouseClick(w->cmdTest, Qt::LeftButton);
    env.clock.now += 1000;
    window.typeAll(env.clock, 50); // finishes the passage before the minute is up
    QCOMPARE(w->results().all().size(), 1);
    QVERIFY(w->lblMessage->text().contains(QStringLiteral("whole passage")));
    QTest::mouseClick(w->cmdResults, Qt::LeftButton);
    w->txtName->setText(QStringLiteral("<b>Ana</b>"));
    QTest::mouseClick(w->cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.printed, QStringList{QStringLiteral("Keyboarding Certificate")});
    QCOMPARE(env.dialogs.pdfFiles.size(), 1);

    const TestResult best = *w->results().best();
    QCOMPARE(Certificate::sentence(QStringLiteral("  Ana   Lee "), best),
             QStringLiteral("Ana Lee typed %1 words a minute with 100% accuracy in a 1-minute "
                            "speed test.")
                 .arg(qRound(best.wordsPerMinute)));
    QVERIFY(Certificate::sentence(QString(), best).startsWith(u"This keyboarder"));
    QCOMPARE(Certificate::make(QStringLiteral("Ana"), best, QDate(2026, 5, 1)).layOut().size(), 1);
}

void tst_frmtype::missingTextFileClosesTheWindow()
{
    TestEnvironment env;
    QTemporaryDir empty;
    SetDataPath(empty.path());
    QPointer<frmType> window = new frmType;
    QSignalSpy closed(window.data(), &ActivityWindow::closed);
    window->show();
    QTRY_COMPARE(closed.count(), 1);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages.first().icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages.first().text.contains(QStringLiteral("typing.dat")));
}

QTEST_MAIN(tst_frmtype)
#include "tst_frmtype.moc"
