// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "geography/FlagButton.h"
#include "geography/frmGeo.h"

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

// The US Geography window's flows through the seams: the idle window, browsing the states,
// one question of every mode typed and picked, the answer and clue buttons, the map, the end
// of a quiz, Stop and Exit, and a missing file of states.
class tst_frmgeo : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }
    void opensIdle();
    void reviewByButtonsKeysAndMap();
    void oneQuestionOfEveryMode_data();
    void oneQuestionOfEveryMode();
    void soundAlikeShowsTheSpelling();
    void answerButtonRevealsThenMovesOn();
    void cluesUntilTheAnswer();
    void findOnTheMapByClickAndArrows();
    void quizEndsAfterTheLastState();
    void changingTheAnswerTypeMidQuestion();
    void stopThenExit();
    void missingFileOfStates();

private:
    static void showActive(frmGeo &window);
    static void choose(frmGeo &window, int answerType, int mode, int direction);
    template <typename Picture> static QString fileName(const Picture *box)
    {
        return QFileInfo(box->file()).fileName();
    }
};

// Keys and focus need the window to be the active one, as it is on a desktop.
void tst_frmgeo::showActive(frmGeo &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    if (!QTest::qWaitForWindowActive(&window))
        qWarning("the geography window did not become active");
}

void tst_frmgeo::choose(frmGeo &window, int answerType, int mode, int direction)
{
    window.optType[answerType]->setChecked(true);
    if (mode == Capitals)
        window.optWhich1[direction]->setChecked(true);
    if (mode == FindIt)
        window.optWhich2[direction]->setChecked(true);
    if (mode == Flags)
        window.optWhich3[direction]->setChecked(true);
    QTest::mouseClick(window.cmdChoice[mode - 1], Qt::LeftButton);
}

void tst_frmgeo::opensIdle()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    QCOMPARE(window.windowTitle(), QStringLiteral("US Geography"));
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography"));
    QCOMPARE(window.fraChoices->title(), QStringLiteral("Choices"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.Label1->text(), QStringLiteral("Click on state or use arrows."));
    const QStringList captions{"Review States", "State Capitals", "Name the State",
                               "Find the State", "State Flags"};
    for (int i = 0; i < 5; ++i)
        QCOMPARE(window.findChild<QPushButton *>(QStringLiteral("cmdChoice_%1").arg(i))
                     ->text()
                     .remove(u'&'),
                 captions[i]);
    QCOMPARE(window.fraType->title(), QStringLiteral("Answer Type"));
    QCOMPARE(window.fraWhich2->title(), QStringLiteral("Choose"));
    QCOMPARE(window.optWhich3[1]->text(), QStringLiteral("Name State"));
    // The reference settings: multiple choice, name the capital, find the state, pick the flag.
    QVERIFY(window.optType[1]->isChecked());
    QVERIFY(window.optWhich1[0]->isChecked());
    QVERIFY(window.optWhich2[1]->isChecked());
    QVERIFY(window.optWhich3[0]->isChecked());
    QVERIFY(!window.quiz().isRunning());
    QCOMPARE(fileName(window.picMap), QStringLiteral("usmap.svg"));
    QCOMPARE(fileName(window.picAK), QStringLiteral("akblue.bmp"));
    const QList<QWidget *> idle{window.txtAnswer, window.cmdSee, window.cmdClue, window.fraNext,
                                window.fraWhich1};
    for (QWidget *hidden : idle)
        QVERIFY2(!hidden->isVisible(), qPrintable(hidden->objectName()));
    QTest::mouseClick(window.cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("usgeography")});
}

void tst_frmgeo::reviewByButtonsKeysAndMap()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmGeo window;
    showActive(window);
    // Straight from a quiz to the review: the quiz's answer box goes.
    choose(window, 0, Capitals, 0);
    QVERIFY(window.txtAnswer->isVisible());
    random.values = {49.5 / 50}; // the 50th state, Wyoming
    QTest::mouseClick(window.cmdChoice[0], Qt::LeftButton);
    QVERIFY(!window.txtAnswer->isVisible());
    QVERIFY(!window.cmdSee->isVisible());
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography-Review States"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(window.lblName->text(), QStringLiteral("Wyoming"));
    QCOMPARE(window.lblNumber->text(), QStringLiteral("44th State"));
    QCOMPARE(window.lblCapital->text(), QStringLiteral("Capital-Cheyenne"));
    QCOMPARE(window.lblRegion->text(), QStringLiteral("Rocky Mountain Region"));
    QVERIFY(window.lblAdmit->text().startsWith(QStringLiteral("Admitted-July 10, 1890")));
    QCOMPARE(fileName(window.picMap), QStringLiteral("WYmap.svg"));
    QCOMPARE(fileName(window.imgFlag), QStringLiteral("WYflag.png"));
    for (QLabel *fact : std::as_const(window.lblFact))
        QVERIFY(!fact->text().isEmpty());
    QVERIFY(window.fraNext->isVisible());
    QVERIFY(window.Label1->isVisible());

    // After 50 comes 1, Alabama; before it, 50 again; the arrow keys do the same.
    QTest::mouseClick(window.cmdNext, Qt::LeftButton);
    QCOMPARE(window.lblName->text(), QStringLiteral("Alabama"));
    QTest::keyClick(&window, Qt::Key_Left);
    QCOMPARE(window.lblName->text(), QStringLiteral("Wyoming"));
    QTest::keyClick(window.cmdNext, Qt::Key_Right);
    QTest::keyClick(window.cmdNext, Qt::Key_Right);
    // Alaska lights its inset and loads no map of its own; the next state puts it back.
    QCOMPARE(window.lblName->text(), QStringLiteral("Alaska"));
    QCOMPARE(fileName(window.picAK), QStringLiteral("akyellow.bmp"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("usmap.svg"));
    QTest::mouseClick(window.cmdNext, Qt::LeftButton);
    QCOMPARE(fileName(window.picAK), QStringLiteral("akblue.bmp"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("AZmap.svg"));

    // A click on the map shows the state under the pointer, Hawaii's inset included.
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint({530, 450}));
    QCOMPARE(window.lblName->text(), QStringLiteral("Texas"));
    const QPoint onHawaii = window.picHI->mapFrom(window.picMap, window.mapPoint({330, 570}));
    QTest::mouseClick(window.picHI, Qt::LeftButton, {}, onHawaii);
    QCOMPARE(window.lblName->text(), QStringLiteral("Hawaii"));
    QCOMPARE(fileName(window.picHI), QStringLiteral("hiyellow.bmp"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("usmap.svg"));
    QVERIFY(env.sound.played().isEmpty());
}

void tst_frmgeo::oneQuestionOfEveryMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("answerType");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("shown"); // what the question shows: a label's object name

    for (int type = 0; type <= 1; ++type) {
        const char *how = type ? "picked" : "typed";
        QTest::addRow("capitals, name the capital, %s", how) << 2 << type << 0 << "lblName";
        QTest::addRow("capitals, name the state, %s", how) << 2 << type << 1 << "lblCapital";
        QTest::addRow("name the state, %s", how) << 3 << type << 0 << "";
        QTest::addRow("find, name the state, %s", how) << 4 << type << 0 << "picMap";
        QTest::addRow("flags, pick the flag, %s", how) << 5 << type << 0 << "lblCapital";
        QTest::addRow("flags, name the state, %s", how) << 5 << type << 1 << "imgFlag";
    }
}

void tst_frmgeo::oneQuestionOfEveryMode()
{
    QFETCH(int, mode);
    QFETCH(int, answerType);
    QFETCH(int, direction);
    QFETCH(QString, shown);
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, answerType, mode, direction);
    const Quiz &quiz = window.quiz();
    QCOMPARE(quiz.mode(), mode);
    QCOMPARE(window.cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Answer"));
    QCOMPARE(window.cmdClue->isVisible(), mode == NameIt);
    const int state = quiz.currentRecord();
    const QString name = window.states().text(state, UsStates::Name);
    if (shown == QLatin1String("lblName"))
        QCOMPARE(window.lblName->text(), name);
    else if (shown == QLatin1String("lblCapital") && mode == Flags)
        QCOMPARE(window.lblCapital->text(), name);
    else if (shown == QLatin1String("lblCapital"))
        QCOMPARE(window.lblCapital->text(), UsStates::CapitalText(window.states(), state));
    else if (shown == QLatin1String("picMap") && state != UsStates::Alaska &&
             state != UsStates::Hawaii)
        QCOMPARE(fileName(window.picMap), UsStates::MapFile(window.states(), state));
    else if (shown == QLatin1String("imgFlag"))
        QCOMPARE(fileName(window.imgFlag), UsStates::FlagFile(window.states(), state));
    if (shown != QLatin1String("lblName"))
        QVERIFY(window.lblName->text().isEmpty());

    const bool flagPick = mode == Flags && direction == 0;
    const bool picked = flagPick || answerType == 1;
    QCOMPARE(window.picArea->currentWidget() == window.fraFlags, flagPick);
    QCOMPARE(window.txtAnswer->isVisible(), !picked);
    QCOMPARE(window.lblanswer[0]->isVisible(), picked && !flagPick);
    const int right = quiz.correctChoice();
    if (picked) {
        for (int i = 1; i <= 4; ++i) {
            const QString expected =
                flagPick ? UsStates::FlagFile(window.states(), quiz.choices()[i - 1])
                         : quiz.choiceText(i);
            QCOMPARE(flagPick ? fileName(window.imgFlagGame[i - 1]) : quiz.choiceText(i), expected);
        }
    }

    // A wrong answer first, then the right one, all from the keyboard.
    if (picked) {
        QWidget *wrong = flagPick ? static_cast<QWidget *>(window.imgFlagGame[right % 4])
                                  : window.lblanswer[right % 4];
        wrong->setFocus();
        QTest::keyClick(wrong, Qt::Key_Return);
        if (flagPick)
            QCOMPARE(window.imgFlagGame[right % 4]->mark(), FlagButton::Wrong);
    } else {
        QTest::keyClicks(window.txtAnswer, QStringLiteral("Xyz"));
        QTest::keyClick(window.txtAnswer, Qt::Key_Return);
        QVERIFY(window.txtAnswer->text().isEmpty());
    }
    QCOMPARE(env.sound.played(), (QStringList{"ding.wav", "uhoh.wav"}));
    QCOMPARE(quiz.tries(), 2);
    QVERIFY(!quiz.isAnswered());
    QVERIFY(!window.lblResult->text().isEmpty());
    QCOMPARE(window.lblResult->accessibleDescription(), window.lblResult->text());
    if (mode == Capitals && direction == 1)
        QCOMPARE(fileName(window.picMap).isEmpty(), false);
    if (mode == FindIt)
        QCOMPARE(window.lblNick->text(), UsStates::RegionText(window.states(), state));

    if (picked) {
        QWidget *choice = flagPick ? static_cast<QWidget *>(window.imgFlagGame[right - 1])
                                   : window.lblanswer[right - 1];
        choice->setFocus();
        QTest::keyClick(choice, Qt::Key_Return);
    } else {
        QTest::keyClicks(window.txtAnswer, quiz.expected());
        QTest::keyClick(window.txtAnswer, Qt::Key_Return);
    }
    QCOMPARE(env.sound.played().mid(2), (QStringList{"ding.wav", "tada.wav"}));
    QVERIFY(quiz.isAnswered());
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right!"));
    QCOMPARE(window.lblName->text(), name);
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Next"));
    QVERIFY(window.cmdSee->hasFocus());
    QCOMPARE(quiz.rightAnswers(), 1);

    // Answers after the right one are not taken; Enter on Next moves to question 2.
    QTest::keyClicks(window.txtAnswer, QStringLiteral("Ohio"));
    QTest::keyClick(window.txtAnswer, Qt::Key_Return);
    QCOMPARE(env.sound.played().size(), 4);
    QTest::keyClick(window.cmdSee, Qt::Key_Return);
    QCOMPARE(quiz.questionNumber(), 2);
    QCOMPARE(quiz.tries(), 1);
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Answer"));
    QVERIFY(window.lblResult->text().isEmpty());
    QVERIFY(quiz.isRunning());
}

void tst_frmgeo::soundAlikeShowsTheSpelling()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmGeo window;
    showActive(window);
    // Record 42, Tennessee, asked by its clues; the clue order is left as drawn.
    random.values = {41.5 / 50};
    choose(window, 0, NameIt, 0);
    QCOMPARE(window.quiz().expected(), QStringLiteral("Tennessee"));
    QTest::keyClicks(window.txtAnswer, QStringLiteral("tenesee"));
    QTest::keyClick(window.txtAnswer, Qt::Key_Return);
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right! It is spelled Tennessee."));
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
}

void tst_frmgeo::answerButtonRevealsThenMovesOn()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, 1, Capitals, 0);
    const Quiz &quiz = window.quiz();
    const int state = quiz.currentRecord();
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    QVERIFY(quiz.isAnswered());
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Next"));
    QCOMPARE(window.lblCapital->text(), UsStates::CapitalText(window.states(), state));
    // With multiple choice the answer is written in the answer box too.
    QCOMPARE(window.txtAnswer->text(), window.states().text(state, UsStates::Capital));
    QCOMPARE(quiz.rightAnswers(), 0);
    QVERIFY(env.sound.played().isEmpty());
    // A choice picked now counts for nothing.
    QTest::mouseClick(window.lblanswer[quiz.correctChoice() - 1], Qt::LeftButton);
    QVERIFY(env.sound.played().isEmpty());
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    QCOMPARE(quiz.questionNumber(), 2);
    QVERIFY(quiz.currentRecord() != state);
}

void tst_frmgeo::cluesUntilTheAnswer()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, 1, NameIt, 0);
    const Quiz &quiz = window.quiz();
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography-Name the State"));
    for (int i = 2; i <= 11; ++i) {
        QTest::mouseClick(window.cmdClue, Qt::LeftButton);
        QCOMPARE(quiz.tries(), i);
        QVERIFY(!quiz.isAnswered());
    }
    QVERIFY(window.lblName->text().isEmpty());
    QVERIFY(!window.lblAbbr->text().isEmpty());
    QVERIFY(!window.lblRegion->text().isEmpty());
    QVERIFY(!window.lblFact[2]->text().isEmpty());
    QTest::mouseClick(window.cmdClue, Qt::LeftButton);
    QVERIFY(quiz.isAnswered());
    QCOMPARE(window.lblName->text(), quiz.expected());
    QCOMPARE(window.txtAnswer->text(), quiz.expected());
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Next"));
    QVERIFY(!window.cmdClue->isEnabled());
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    QVERIFY(window.cmdClue->isEnabled());
    QCOMPARE(quiz.tries(), 1);
}

void tst_frmgeo::findOnTheMapByClickAndArrows()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, 1, FindIt, 1);
    const Quiz &quiz = window.quiz();
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography-Find the State"));
    QVERIFY(window.Label1->isVisible());
    QVERIFY(!window.lblanswer[0]->isVisible());
    QVERIFY(window.txtAnswer->isReadOnly());
    const QuizTable &states = window.states();
    const int state = quiz.currentRecord();
    // Three clicks on the wrong state, Maine's point (or Texas's when Maine is asked).
    const int other = state == 19 ? 43 : 19;
    const QPointF wrongPlace(states.number(other, UsStates::MapX),
                             states.number(other, UsStates::MapY));
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint(wrongPlace));
    // With multiple choice the fourth try shows the answer.
    QVERIFY(quiz.isAnswered());
    QCOMPARE(env.sound.played().count(QStringLiteral("uhoh.wav")), 3);
    QVERIFY(window.lblResult->text().endsWith(
        QStringLiteral("The answer is %1.").arg(states.text(state, UsStates::Name))));
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);

    // The next state is found by the arrow keys and Enter on the map.
    const int next = quiz.currentRecord();
    QVERIFY(window.picMap->hasFocus());
    for (int i = 0; i < next; ++i)
        QTest::keyClick(window.picMap, Qt::Key_Right);
    QCOMPARE(window.txtAnswer->text(), states.text(next, UsStates::Name));
    QTest::keyClick(window.picMap, Qt::Key_Return);
    QVERIFY(quiz.isAnswered());
    QCOMPARE(quiz.rightAnswers(), 1);
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right!"));

    // And a click inside the outline of the state asked is right.
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    const int third = quiz.currentRecord();
    QTest::mouseClick(window.picMap, Qt::LeftButton, {},
                      window.mapPoint(QPointF(states.number(third, UsStates::MapX),
                                              states.number(third, UsStates::MapY))));
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
        if (i % 5 == 0) {
            QTest::keyClicks(window.txtAnswer, quiz.expected());
            QTest::keyClick(window.txtAnswer, Qt::Key_Return);
        } else {
            QTest::mouseClick(window.cmdSee, Qt::LeftButton);
        }
        QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    }
    QCOMPARE(asked.size(), 50);
    QVERIFY(!quiz.isRunning());
    QCOMPARE(window.fraChoice->title(), QStringLiteral("US Geography"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.lblResult->text(),
             QStringLiteral("You got 10 of 50 right. Well done for trying!"));
    QVERIFY(!window.txtAnswer->isVisible());
    QVERIFY(window.isVisible());
}

void tst_frmgeo::changingTheAnswerTypeMidQuestion()
{
    TestEnvironment env;
    frmGeo window;
    showActive(window);
    choose(window, 0, Capitals, 1);
    const int state = window.quiz().currentRecord();
    QVERIFY(window.fraWhich1->isVisible());
    QVERIFY(!window.fraWhich2->isVisible());
    window.optType[1]->click();
    QCOMPARE(TheSettings().usGeography.values[0], qint16(1));
    QCOMPARE(window.quiz().currentRecord(), state);
    QVERIFY(window.lblanswer[3]->isVisible());
    QVERIFY(!window.txtAnswer->isVisible());
    // Keyboard: the arrows move between the two directions, which asks the other way.
    window.optWhich1[1]->setFocus();
    QTest::keyClick(window.optWhich1[1], Qt::Key_Up);
    QVERIFY(window.optWhich1[0]->isChecked());
    QCOMPARE(TheSettings().usGeography.values[1], qint16(0));
    QCOMPARE(window.lblName->text(), window.states().text(state, UsStates::Name));
    QCOMPARE(window.quiz().expected(), window.states().text(state, UsStates::Capital));
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
    QCOMPARE(window->lblResult->text(),
             QStringLiteral("You got 0 of 1 right. Well done for trying!"));
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
