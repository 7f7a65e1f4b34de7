// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/QuizWindowTesting.h"
#include "support/TestDoubles.h"

#include "geography/FlagButton.h"
#include "geography/frmGeo.h"
#include "GeoQuizTesting.h"

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

using namespace QuizWindowTesting;

namespace {
QPoint pointOf(const frmGeo &window, int state)
{
    return window.mapPoint(QPointF(window.states().number(state, UsStates::MapX),
                                   window.states().number(state, UsStates::MapY)));
}
} // namespace

// The US Geography window's flows through the seams: browsing the states, one question of
// every mode typed and picked, the answer and clue buttons, the map, the end of a quiz,
// Stop and Exit, and a missing file of states.
class tst_frmgeo : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }
    void reviewByButtonsKeysAndMap();
    void oneQuestionOfEveryMode_data();
    void oneQuestionOfEveryMode();
    void answerAndClueButtons();
    void findOnTheMapByClickAndArrows();
    void quizEndsAfterTheLastState();
    void stopThenExit();
    void missingFileOfStates();
};

void tst_frmgeo::reviewByButtonsKeysAndMap()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmGeo window;
    showActive(window);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    // Straight from a quiz to the review: the quiz's answer box goes.
    choose(window, 0, Capitals, 0);
    QVERIFY(window.txtAnswer->isVisible());
    random.values = {49.5 / 50}; // the 50th state, Wyoming
    QTest::mouseClick(window.cmdChoice[0], Qt::LeftButton);
    QVERIFY(!window.txtAnswer->isVisible());
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography-Review States"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(window.lblName->text(), QStringLiteral("Wyoming"));
    QCOMPARE(window.lblNumber->text(), QStringLiteral("44th State"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("WYmap.svg"));
    QCOMPARE(fileName(window.imgFlag), QStringLiteral("WYflag.png"));
    QVERIFY(!window.lblFact[2]->text().isEmpty());

    // After 50 comes 1; before it, 50 again; the arrow keys do the same on any button.
    QTest::mouseClick(window.cmdNext, Qt::LeftButton);
    QCOMPARE(window.lblName->text(), QStringLiteral("Alabama"));
    QTest::keyClick(window.cmdNext, Qt::Key_Left);
    QCOMPARE(window.lblName->text(), QStringLiteral("Wyoming"));
    QTest::keyClick(window.cmdHelp, Qt::Key_Right);
    QTest::keyClick(window.cmdNext, Qt::Key_Down);
    // Alaska lights its inset and loads no map of its own; the next state puts it back.
    QCOMPARE(window.lblName->text(), QStringLiteral("Alaska"));
    QCOMPARE(fileName(window.picAK), QStringLiteral("akyellow.bmp"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("usmap.svg"));
    QTest::mouseClick(window.cmdNext, Qt::LeftButton);
    QCOMPARE(fileName(window.picAK), QStringLiteral("akblue.bmp"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("AZmap.svg"));

    // A click shows the state under the pointer: east Texas, nearer Louisiana's point.
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint({530, 450}));
    QCOMPARE(window.lblName->text(), QStringLiteral("Texas"));
    const QPoint onHawaii = window.picHI->mapFrom(window.picMap, window.mapPoint({330, 570}));
    QTest::mouseClick(window.picHI, Qt::LeftButton, {}, onHawaii);
    QCOMPARE(window.lblName->text(), QStringLiteral("Hawaii"));
    QCOMPARE(fileName(window.picHI), QStringLiteral("hiyellow.bmp"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("usmap.svg"));
    QVERIFY(env.sound.played().isEmpty());
    QTest::mouseClick(window.cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("usgeography")});
}

void tst_frmgeo::oneQuestionOfEveryMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("answerType");
    QTest::addColumn<int>("direction");
    for (int type = 0; type <= 1; ++type) {
        const char *how = type ? "picked" : "typed";
        QTest::addRow("capitals, name the capital, %s", how) << 2 << type << 0;
        QTest::addRow("capitals, name the state, %s", how) << 2 << type << 1;
        QTest::addRow("name the state, %s", how) << 3 << type << 0;
        QTest::addRow("find, name the state, %s", how) << 4 << type << 0;
        QTest::addRow("flags, pick the flag, %s", how) << 5 << type << 0;
        QTest::addRow("flags, name the state, %s", how) << 5 << type << 1;
    }
}

void tst_frmgeo::oneQuestionOfEveryMode()
{
    QFETCH(int, mode);
    QFETCH(int, answerType);
    QFETCH(int, direction);
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, answerType, mode, direction);
    const Quiz &quiz = window.quiz();
    const int state = quiz.currentRecord();
    const QString name = window.states().text(state, UsStates::Name);
    // Only the capitals question names the state; the others ask for it.
    QCOMPARE(window.lblName->text(), mode == Capitals && direction == 0 ? name : QString());
    if (mode == Flags && direction == 1)
        QCOMPARE(fileName(window.imgFlag), UsStates::FlagFile(window.states(), state));
    QCOMPARE(window.cmdClue->isVisible(), mode == NameIt);

    const bool flagPick = mode == Flags && direction == 0;
    const bool picked = flagPick || answerType == 1;
    QCOMPARE(window.picArea->currentWidget() == window.fraFlags, flagPick);
    QCOMPARE(window.txtAnswer->isVisible(), !picked);
    QCOMPARE(window.lblanswer[0]->isVisible(), picked && !flagPick);
    const int right = quiz.correctChoice();
    if (flagPick)
        QCOMPARE(fileName(window.imgFlagGame[right - 1]),
                 UsStates::FlagFile(window.states(), state));
    else if (picked)
        QCOMPARE(window.lblanswer[right - 1]->text(), quiz.expected());

    // A wrong answer, then the right one, all from the keyboard.
    auto pick = [&](int choice) {
        QWidget *target = flagPick ? static_cast<QWidget *>(window.imgFlagGame[choice - 1])
                                   : window.lblanswer[choice - 1];
        target->setFocus();
        QTest::keyClick(target, Qt::Key_Return);
    };
    if (picked)
        pick(right % 4 + 1);
    else
        typeAnswer(window, QStringLiteral("Xyz"));
    QCOMPARE(env.sound.played(), (QStringList{"ding.wav", "uhoh.wav"}));
    QCOMPARE(quiz.tries(), 2);
    QVERIFY(window.txtAnswer->text().isEmpty());
    QCOMPARE(window.lblResult->accessibleDescription(), window.lblResult->text());
    if (mode == FindIt)
        QCOMPARE(window.lblNick->text(), UsStates::RegionText(window.states(), state));
    if (picked)
        pick(right);
    else
        typeAnswer(window, quiz.expected());
    QCOMPARE(env.sound.played().mid(2), (QStringList{"ding.wav", "tada.wav"}));
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right!"));
    QCOMPARE(window.lblName->text(), name);
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Next"));
    QVERIFY(window.cmdSee->hasFocus());

    // Answers after the right one are not taken; Enter on Next moves to question 2.
    typeAnswer(window, QStringLiteral("Ohio"));
    QCOMPARE(env.sound.played().size(), 4);
    QTest::keyClick(window.cmdSee, Qt::Key_Return);
    QCOMPARE(quiz.questionNumber(), 2);
    QVERIFY(window.lblResult->text().isEmpty());
}

void tst_frmgeo::answerAndClueButtons()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmGeo window;
    showActive(window);
    // Tennessee asked by its clues; a sound-alike answer is right and shows the spelling.
    random.values = {41.5 / 50};
    choose(window, 0, NameIt, 0);
    typeAnswer(window, QStringLiteral("tenesee"));
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right! It is spelled Tennessee."));

    // Every clue, then the answer in the name and the answer box, and Clue rests till Next.
    window.optType[1]->click();
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    const Quiz &quiz = window.quiz();
    for (int i = 2; i <= 11; ++i)
        QTest::mouseClick(window.cmdClue, Qt::LeftButton);
    QVERIFY(window.lblName->text().isEmpty());
    QVERIFY(!window.lblAbbr->text().isEmpty() && !window.lblFact[2]->text().isEmpty());
    QTest::mouseClick(window.cmdClue, Qt::LeftButton);
    QVERIFY(quiz.isAnswered());
    QCOMPARE(window.lblName->text(), quiz.expected());
    QCOMPARE(window.txtAnswer->text(), quiz.expected());
    QVERIFY(!window.cmdClue->isEnabled());
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    QVERIFY(window.cmdClue->isEnabled());

    // Answer shows the answer without a sound or a point; a pick after it counts for nothing.
    env.sound.events.clear();
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Next"));
    QCOMPARE(window.lblName->text(), quiz.expected());
    QTest::mouseClick(window.lblanswer[quiz.correctChoice() - 1], Qt::LeftButton);
    QVERIFY(env.sound.played().isEmpty());
    QCOMPARE(quiz.rightAnswers(), 1);
}

void tst_frmgeo::findOnTheMapByClickAndArrows()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, 1, FindIt, 1);
    const Quiz &quiz = window.quiz();
    QVERIFY(window.Label1->isVisible());
    QVERIFY(!window.lblanswer[0]->isVisible());
    // Three clicks on another state; with multiple choice the fourth try shows the answer.
    const int state = quiz.currentRecord();
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(window.picMap, Qt::LeftButton, {},
                          pointOf(window, state == 19 ? 43 : 19));
    QVERIFY(quiz.isAnswered());
    QCOMPARE(env.sound.played().count(QStringLiteral("uhoh.wav")), 3);
    QVERIFY(window.lblResult->text().endsWith(
        QStringLiteral("The answer is %1.").arg(quiz.expected())));
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);

    // The next state is found by the arrow keys and Enter on the map.
    const int next = quiz.currentRecord();
    QVERIFY(window.picMap->hasFocus());
    for (int i = 0; i < next; ++i)
        QTest::keyClick(window.picMap, Qt::Key_Right);
    QCOMPARE(window.txtAnswer->text(), quiz.expected());
    QTest::keyClick(window.picMap, Qt::Key_Return);
    QCOMPARE(quiz.rightAnswers(), 1);

    // And a click on the state asked is right.
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, pointOf(window, quiz.currentRecord()));
    QCOMPARE(quiz.rightAnswers(), 2);
}

void tst_frmgeo::quizEndsAfterTheLastState()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, 0, Flags, 1);
    const Quiz &quiz = window.quiz();
    QSet<int> asked;
    for (int i = 0; i < 50; ++i) {
        QVERIFY(quiz.isRunning());
        asked.insert(quiz.currentRecord());
        if (i % 5 == 0)
            typeAnswer(window, quiz.expected());
        else
            QTest::mouseClick(window.cmdSee, Qt::LeftButton);
        QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    }
    QCOMPARE(asked.size(), 50);
    QVERIFY(!quiz.isRunning());
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.lblResult->text(),
             QStringLiteral("You got 10 of 50 right. Well done for trying!"));
}

void tst_frmgeo::stopThenExit()
{
    TestEnvironment env;
    auto *window = new frmGeo;
    QPointer<frmGeo> alive(window);
    QSignalSpy closed(window, &ActivityWindow::closed);
    showActive(*window);
    choose(*window, 0, Capitals, 0);
    QTest::mouseClick(window->cmdExit, Qt::LeftButton);
    QVERIFY(!window->quiz().isRunning());
    QCOMPARE(window->cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window->fraChoice->title(), QStringLiteral("US Geography"));
    QCOMPARE(closed.count(), 0);
    QTest::mouseClick(window->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(alive.isNull());
}

void tst_frmgeo::missingFileOfStates()
{
    TestEnvironment env;
    QTemporaryDir empty;
    SetDataPath(empty.path());
    auto *window = new frmGeo;
    QPointer<frmGeo> alive(window);
    window->show();
    QTRY_VERIFY(alive.isNull());
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages[0].text.contains(QStringLiteral("usgeo.dat")));
}

QTEST_MAIN(tst_frmgeo)
#include "tst_frmgeo.moc"
