// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/QuizWindowTesting.h"
#include "support/TestDoubles.h"

#include "presidents/frmPres.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/widgets/PictureBox.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace Presidents;
using namespace QuizWindowTesting;

// The US Presidents window's flows through the seams: the review in order, a president named
// from clues, a row with one missing, typed and picked, Stop and Exit, and a damaged file.
class tst_frmpres : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }
    void reviewInOrder();
    void nameThePresidentByClues();
    void whoIsMissingTyped();
    void whoIsMissingPicked();
    void damagedFile_data();
    void damagedFile();
};

void tst_frmpres::reviewInOrder()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmPres window;
    showActive(window);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Presidents"));
    random.values = {46.5 / 47}; // the last presidency
    QTest::mouseClick(window.cmdChoice[0], Qt::LeftButton);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Presidents-Review Presidents"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(window.lblNumber->text(), QStringLiteral("47th President"));
    QCOMPARE(window.lblTerm->text(), QStringLiteral("2025 - Now"));
    QCOMPARE(fileName(window.imgPres), QStringLiteral("presi047.gif"));
    QVERIFY(!window.lblFact[3]->text().isEmpty());
    // After the last comes the first; the arrow keys step on any button.
    QTest::mouseClick(window.cmdNext, Qt::LeftButton);
    QCOMPARE(window.lblName->text(), QStringLiteral("George Washington"));
    QCOMPARE(window.lblDate->text(), QStringLiteral("February 22, 1732"));
    QCOMPARE(window.lblPlace->text(), QStringLiteral("Westmoreland County, Virginia"));
    QCOMPARE(fileName(window.imgPres), QStringLiteral("presi002.gif"));
    QTest::keyClick(window.cmdNext, Qt::Key_Left);
    QCOMPARE(window.lblNumber->text(), QStringLiteral("47th President"));
    for (int i = 0; i < 23; ++i)
        QTest::keyClick(window.cmdHelp, Qt::Key_Right);
    QCOMPARE(window.lblNumber->text(), QStringLiteral("23rd President"));
    QCOMPARE(fileName(window.imgPres), QStringLiteral("presi024.gif"));
    QTest::keyClick(window.cmdNext, Qt::Key_Down);
    QCOMPARE(window.lblName->text(), QStringLiteral("Grover Cleveland"));
    QCOMPARE(fileName(window.imgPres), QStringLiteral("presi023.gif"));
    QVERIFY(env.sound.played().isEmpty());
    QTest::mouseClick(window.cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("presidents")});
    QTest::mouseClick(window.cmdExit, Qt::LeftButton);
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(window.lblNumber->text().isEmpty());
}

void tst_frmpres::nameThePresidentByClues()
{
    TestEnvironment env;
    frmPres window;
    showActive(window);
    window.optType[0]->setChecked(true);
    QTest::mouseClick(window.cmdChoice[1], Qt::LeftButton);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Presidents-Name the President"));
    const Quiz &quiz = window.quiz();
    QVERIFY(window.lblName->text().isEmpty());
    QVERIFY(window.txtAnswer->hasFocus());
    // Nine wrong answers bring out the other nine clues; the tenth shows the answer.
    for (int i = 0; i < 9; ++i)
        typeAnswer(window, QStringLiteral("Nobody"));
    QVERIFY(!quiz.isAnswered());
    QVERIFY(window.lblName->text().isEmpty());
    QVERIFY(!window.lblParty->text().isEmpty() && !window.lblFact[3]->text().isEmpty());
    QVERIFY(!window.imgPres->isEmpty());
    typeAnswer(window, QStringLiteral("Nobody"));
    QCOMPARE(quiz.tries(), 11);
    QVERIFY(quiz.isAnswered());
    QCOMPARE(window.lblName->text(), quiz.expected());
    QCOMPARE(env.sound.played().count(QStringLiteral("uhoh.wav")), 10);
    QTest::keyClick(window.cmdSee, Qt::Key_Return);

    // Multiple choice mid-question: the same president, four different names to pick from.
    const int asked = quiz.currentRecord();
    window.optType[1]->setChecked(true);
    QCOMPARE(quiz.currentRecord(), asked);
    QSet<QString> names;
    for (QPushButton *choice : std::as_const(window.lblanswer))
        names.insert(choice->text());
    QCOMPARE(names.size(), 4);
    QTest::mouseClick(window.lblanswer[quiz.correctChoice() - 1], Qt::LeftButton);
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right!"));
    QCOMPARE(TheSettings().presidents.answerType, qint16(1));
}

void tst_frmpres::whoIsMissingTyped()
{
    TestEnvironment env;
    frmPres window;
    showActive(window);
    window.optType[0]->setChecked(true);
    QTest::mouseClick(window.cmdChoice[2], Qt::LeftButton);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Presidents-Who Is Missing?"));
    const WhoIsMissing &who = window.whoIsMissing();
    const int hidden = who.position - 1;
    QCOMPARE(window.quiz().currentRecord(), who.missing);
    QCOMPARE(window.lblWho[hidden]->text(), QStringLiteral("?"));
    QVERIFY(window.imgWho[hidden]->isEmpty());
    QVERIFY(window.lblWTerm[hidden]->text().isEmpty());
    const int shown = (hidden + 1) % 3;
    QCOMPARE(window.lblWho[shown]->text(), window.presidents().text(who.row[shown], Name));
    QCOMPARE(window.lblWNum[hidden]->text(), NumberText(who.missing));
    // The first wrong try gives the years as a hint; the third shows the answer.
    typeAnswer(window, QStringLiteral("Nobody"));
    QCOMPARE(window.lblWTerm[hidden]->text(), TermText(window.presidents(), who.missing));
    typeAnswer(window, QStringLiteral("Nobody"));
    QVERIFY(!window.quiz().isAnswered());
    typeAnswer(window, QStringLiteral("Nobody"));
    QVERIFY(window.quiz().isAnswered());
    QCOMPARE(window.lblWho[hidden]->text(), window.presidents().text(who.missing, Name));
    QCOMPARE(fileName(window.imgWho[hidden]), PortraitFile(who.missing));
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    // A right answer, typed.
    typeAnswer(window, window.quiz().expected());
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right!"));
    QCOMPARE(env.sound.played().mid(env.sound.played().size() - 2),
             (QStringList{"ding.wav", "tada.wav"}));
    QTest::mouseClick(window.cmdExit, Qt::LeftButton);
    QCOMPARE(window.lblResult->text(),
             QStringLiteral("You got 1 of 2 right. Well done for trying!"));
}

void tst_frmpres::whoIsMissingPicked()
{
    TestEnvironment env;
    auto *window = new frmPres;
    QPointer<frmPres> alive(window);
    QSignalSpy closed(window, &ActivityWindow::closed);
    showActive(*window);
    window->optType[1]->setChecked(true);
    QTest::mouseClick(window->cmdChoice[2], Qt::LeftButton);
    for (int question = 0; question < 5; ++question) {
        const WhoIsMissing &who = window->whoIsMissing();
        QCOMPARE(window->quiz().correctChoice(), who.correct);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(window->lblanswer[i]->text(), window->presidents().text(who.choices[i], Name));
        // A wrong pick by keyboard, then the right one.
        QPushButton *wrong = window->lblanswer[who.correct % 4];
        wrong->setFocus();
        QTest::keyClick(wrong, Qt::Key_Return);
        QVERIFY(!window->quiz().isAnswered());
        QTest::mouseClick(window->lblanswer[who.correct - 1], Qt::LeftButton);
        QVERIFY(window->quiz().isAnswered());
        QVERIFY(window->cmdSee->hasFocus());
        QTest::keyClick(window->cmdSee, Qt::Key_Return);
    }
    QCOMPARE(window->quiz().rightAnswers(), 5);
    QTest::mouseClick(window->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 0);
    QTest::mouseClick(window->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(alive.isNull());
}

void tst_frmpres::damagedFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QFile file(BuiltDataPath() + QStringLiteral("/uspres.dat"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray month13 = file.readAll();
    month13.replace("\"02/22/1732\"", "\"13/22/1732\"");
    QTest::newRow("month 13") << month13;
}

void tst_frmpres::damagedFile()
{
    QFETCH(QByteArray, content);
    TestEnvironment env;
    QTemporaryDir folder;
    if (!content.isEmpty()) {
        QFile file(folder.filePath(QStringLiteral("uspres.dat")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    SetDataPath(folder.path());
    auto *window = new frmPres;
    QPointer<frmPres> alive(window);
    window->show();
    QTRY_VERIFY(alive.isNull());
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages[0].text.contains(QStringLiteral("uspres.dat")));
}

QTEST_MAIN(tst_frmpres)
#include "tst_frmpres.moc"
