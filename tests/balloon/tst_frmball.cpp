// SPDX-License-Identifier: GPL-3.0-or-later
#include "balloon/ClownPicture.h"
#include "balloon/frmBall.h"
#include "balloon/WordBoxes.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/frmInput.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// The balloon window played as pupils would, by keys and clicks, through the test doubles.
class tst_frmball : public QObject {
    Q_OBJECT
private slots:
    void opensWithAWordOfTheGrade();
    void keyboardRoundToAWin();
    void missesEndInALossAndRepeatsCostNothing();
    void hintCostsABalloonButNotTheLast();
    void friendTypesTheWord_data();
    void friendTypesTheWord();
    void gradeChangeSwapsOnlyAnUntouchedWord();
    void stopGivesUpThenExitCloses();
    void missingWordFileClosesTheWindow();
};

namespace {

struct Window {
    frmBall *w;
    explicit Window(qint16 source = 1, qint16 grade = 1)
    {
        TheSettings().balloon.values = {source, grade};
        w = new frmBall;
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the balloon window did not become active");
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
    // Types a letter where the keyboard focus is, as a pupil would.
    void type(QChar letter) const
    {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : w, letter.toLatin1());
    }
    QString word() const { return w->round().word(); }
    // Letters that are not in the word, in a fixed order.
    QString misses(int count) const
    {
        QString letters;
        for (QChar c : QStringLiteral("QZJXVKWYBFGHMPUDCLNORSTAEI"))
            if (letters.size() < count && !word().contains(c))
                letters += c;
        return letters;
    }
};

QStringList GradeWords(int grade)
{
    BalloonWords words;
    words.load(DataFile(QString::fromLatin1(BalloonWords::FileName)));
    QStringList list;
    for (const BalloonWord &entry : words.grade(grade))
        list.append(entry.word);
    return list;
}

} // namespace

void tst_frmball::opensWithAWordOfTheGrade()
{
    TestEnvironment env;
    Window win(1, 4);
    QVERIFY(GradeWords(4).contains(win.word()));
    QVERIFY(win.w->optGrade[3]->isChecked());
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(win.w->picClown->balloons(), 6);
    QTest::mouseClick(win.w->cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{"balloon"});

    // Values from a damaged settings file are set right, in the window and in the settings.
    Window damaged(9, 0);
    QVERIFY(damaged.w->optGrade[0]->isChecked());
    QCOMPARE(TheSettings().balloon.values, (std::array<qint16, 2>{1, 1}));
}

void tst_frmball::keyboardRoundToAWin()
{
    TestEnvironment env;
    Window win(1, 2);
    const QString word = win.word();
    // Small letters work as well as capitals.
    for (QChar c : word.toLower())
        if (c.isLetter())
            win.type(c);
    QVERIFY(win.w->round().isWon());
    QCOMPARE(win.w->picWord->spoken(),
             QStringList(word.split(QString(), Qt::SkipEmptyParts)).join(u' '));
    QCOMPARE(win.w->picClown->mood(), ClownPicture::Mood::Juggling);
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
    QCOMPARE(win.w->lblScore->text(), QStringLiteral("Words won: 1 of 1"));
    QCOMPARE(win.w->lblMessage->accessibleDescription(), win.w->lblMessage->text());
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(!win.w->cmdLetter[0]->isEnabled());

    // Enter on the focused New Word button brings the next word of the same grade.
    QCOMPARE(QApplication::focusWidget(), win.w->cmdNew);
    QTest::keyClick(win.w->cmdNew, Qt::Key_Return);
    QVERIFY(win.word() != word);
    QVERIFY(GradeWords(2).contains(win.word()));
    QCOMPARE(win.w->picClown->mood(), ClownPicture::Mood::Waiting);
}

void tst_frmball::missesEndInALossAndRepeatsCostNothing()
{
    TestEnvironment env;
    Window win(1, 1);
    const QString misses = win.misses(6);
    QTest::mouseClick(win.w->cmdLetter[misses[0].unicode() - 'A'], Qt::LeftButton);
    QVERIFY(!win.w->cmdLetter[misses[0].unicode() - 'A']->isEnabled());
    // Typing a letter again is pointed out and costs nothing.
    win.type(misses[0].toLower());
    QVERIFY(win.w->lblMessage->text().contains(QStringLiteral("already tried %1").arg(misses[0])));
    QCOMPARE(win.w->picClown->balloons(), 5);
    for (int i = 1; i < 5; ++i)
        win.type(misses[i]);
    QCOMPARE(env.sound.played().count(QStringLiteral("pop.wav")), 5);
    QCOMPARE(win.w->picClown->balloons(), 1);
    QVERIFY(win.w->picClown->isAnimating());
    win.type(misses[5]);
    QVERIFY(win.w->round().isLost());
    QCOMPARE(win.w->picClown->mood(), ClownPicture::Mood::Shrugging);
    QCOMPARE(env.sound.played().last(), QStringLiteral("uhoh.wav"));
    // The word is shown in full and the tried letters are listed.
    QVERIFY(!win.w->picWord->spoken().contains(u'_'));
    QVERIFY(win.w->lblMessage->text().contains(win.word()));
    QVERIFY(win.w->lblTried->text().contains(misses.back()));
    QCOMPARE(win.w->lblScore->text(), QStringLiteral("Words won: 0 of 1"));

    // Closing the window stops the balloon floating away and every sound.
    win.w->close();
    QVERIFY(!win.w->picClown->isAnimating());
    QCOMPARE(env.sound.events.last(), QStringLiteral("stop"));
}

void tst_frmball::hintCostsABalloonButNotTheLast()
{
    TestEnvironment env;
    Window win(1, 5);
    QVERIFY(win.w->lblHint->isHidden());
    QTest::mouseClick(win.w->cmdHint, Qt::LeftButton);
    QVERIFY(win.w->lblHint->isVisible());
    QVERIFY(win.w->lblHint->text().contains(QStringLiteral("___")));
    QVERIFY(!win.w->lblHint->text().contains(win.word(), Qt::CaseInsensitive));
    QCOMPARE(win.w->picClown->balloons(), 5);
    QVERIFY(!win.w->cmdHint->isEnabled());

    Window other(1, 5);
    for (QChar c : other.misses(5))
        other.type(c);
    QCOMPARE(other.w->picClown->balloons(), 1);
    QTest::mouseClick(other.w->cmdHint, Qt::LeftButton);
    QVERIFY(other.w->lblHint->isHidden());
    QCOMPARE(other.w->picClown->balloons(), 1);
    QVERIFY(other.w->lblMessage->text().contains(QStringLiteral("no hint")));
}

void tst_frmball::friendTypesTheWord_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("cancel");
    QTest::addColumn<QString>("played"); // empty: the computer picks
    QTest::newRow("a typed word") << "don't-stop" << false << "DON'T-STOP";
    QTest::newRow("an empty word") << "" << false << "";
    QTest::newRow("cancel") << "kite" << true << "";
    QTest::newRow("marks only") << "-'-" << false << "";
}

void tst_frmball::friendTypesTheWord()
{
    QFETCH(QString, typed);
    QFETCH(bool, cancel);
    QFETCH(QString, played);
    TestEnvironment env;
    env.dialogs.onRun = [&](QDialog &dialog) {
        auto *input = qobject_cast<frmInput *>(&dialog);
        QTest::keyClicks(input->txtWord, typed);
        QTest::mouseClick(cancel ? input->cmdCancel : input->cmdOK, Qt::LeftButton);
        return dialog.result();
    };
    Window win(2, 3);
    // A friend's word waits for New Word rather than opening a window unasked.
    QVERIFY(!win.w->round().isRunning());
    QVERIFY(env.dialogs.ranWindows.isEmpty());
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(env.dialogs.ranWindows, QStringList{"frmInput"});
    QVERIFY(win.w->round().isRunning());
    if (played.isEmpty()) {
        QCOMPARE(TheSettings().balloon.values[0], qint16(1));
        QVERIFY(win.w->optSource[0]->isChecked());
        QVERIFY(GradeWords(3).contains(win.word()));
        QVERIFY(win.w->cmdHint->isEnabled());
    } else {
        QCOMPARE(win.word(), played);
        QCOMPARE(TheSettings().balloon.values[0], qint16(2));
        QVERIFY(win.w->optSource[1]->isChecked());
        QVERIFY(!win.w->cmdHint->isEnabled());
    }
}

void tst_frmball::gradeChangeSwapsOnlyAnUntouchedWord()
{
    TestEnvironment env;
    Window win(1, 1);
    QTest::mouseClick(win.w->optGrade[5], Qt::LeftButton);
    QCOMPARE(TheSettings().balloon.values[1], qint16(6));
    QVERIFY(GradeWords(6).contains(win.word()));
    const QString started = win.word();
    win.type(started.at(0));
    // Arrow keys move through the grades as well.
    win.w->optGrade[5]->setFocus();
    QTest::keyClick(win.w->optGrade[5], Qt::Key_Left);
    QVERIFY(win.w->optGrade[4]->isChecked());
    QCOMPARE(TheSettings().balloon.values[1], qint16(5));
    QCOMPARE(win.word(), started);
}

void tst_frmball::stopGivesUpThenExitCloses()
{
    TestEnvironment env;
    Window win(1, 2);
    QSignalSpy closed(win.w, &ActivityWindow::closed);
    // A word only looked at is not counted when it is skipped...
    QTest::mouseClick(win.w->cmdNew, Qt::LeftButton);
    QCOMPARE(win.w->score().played, 0);
    // ...but one the pupil worked on is.
    win.type(win.misses(1).at(0));
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.size(), 0);
    QCOMPARE(win.w->lblScore->text(), QStringLiteral("Words won: 0 of 1"));
    QVERIFY(!win.w->picWord->spoken().contains(u'_'));
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QTest::mouseClick(win.w->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.size(), 1);
}

void tst_frmball::missingWordFileClosesTheWindow()
{
    TestEnvironment env;
    QTemporaryDir empty;
    SetDataPath(empty.path());
    QPointer<frmBall> window = new frmBall;
    QSignalSpy closed(window.data(), &ActivityWindow::closed);
    window->show();
    QTRY_VERIFY(!window || !window->isVisible());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages[0].text.contains(QLatin1String("balloon.dat")));
    delete window;
}

QTEST_MAIN(tst_frmball)
#include "tst_frmball.moc"
