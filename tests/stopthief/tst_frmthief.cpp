// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "stopthief/CasePapers.h"
#include "stopthief/frmThief.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

// The detective window's flows: new and old cases, the confirmations, hints, accusation with
// promotion and demotion, the solution, printing and a missing word file.
class tst_frmthief : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void startsWithOnlyTheDesk();
    void newCaseAtTheChosenLevel();
    void confirmationsWhileACaseIsOpen();
    void oldCaseNumbersAreChecked();
    void accusationAtBeginner();
    void accusationAtExpert();
    void hintsComeStepByStep();
    void solutionEndsTheCase();
    void printedPapers();
    void missingWordFileClosesTheWindow();
    void helpAndExit();

private:
    static void loadCase(frmThief &window, const QString &number);
    static int suspectButton(const frmThief &window, bool thief);
};

void tst_frmthief::initTestCase()
{
    InitTestProgram();
}

void tst_frmthief::loadCase(frmThief &window, const QString &number)
{
    QTest::mouseClick(window.cmdOld, Qt::LeftButton);
    window.txtCNum->setText(number);
    QTest::mouseClick(window.cmdOKCN, Qt::LeftButton);
    QVERIFY(window.currentCase());
    QCOMPARE(window.currentCase()->number, number);
}

int tst_frmthief::suspectButton(const frmThief &window, bool thief)
{
    const Case *c = window.currentCase();
    for (int i = 0; i < Case::Suspects; ++i)
        if (c->isThief(c->displayList[i]) == thief)
            return i;
    return -1;
}

void tst_frmthief::startsWithOnlyTheDesk()
{
    TestEnvironment env;
    TheSettings().stopThief.level = 4;
    frmThief window;
    window.show();
    QCOMPARE(window.windowTitle(), QStringLiteral("Stop Thief!"));
    QVERIFY(window.fraChoice->isVisible());
    const QList<QWidget *> hiddenFrames{window.fraDiff,     window.fraCase,  window.fraAccuse,
                                        window.fraOver,     window.fraSolve, window.fraHints,
                                        window.fraSolution, window.fraPrint};
    for (QWidget *hidden : hiddenFrames)
        QVERIFY2(!hidden->isVisible(), qPrintable(hidden->objectName()));
    QVERIFY(!window.SSTab1->isEnabled());
    QVERIFY(!window.currentCase());
    QVERIFY(window.optDiff[3]->isChecked());
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.SSTab1->count(), 3);
    QCOMPARE(window.findChild<QRadioButton *>(QStringLiteral("optDiff_4"))->text(),
             QStringLiteral("Expe&rt"));
    QVERIFY(window.findChild<QPushButton *>(QStringLiteral("cmdSuspect_4")));
}

void tst_frmthief::newCaseAtTheChosenLevel()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmThief window;
    window.show();
    QTest::mouseClick(window.cmdNew, Qt::LeftButton);
    QVERIFY(env.dialogs.messages.isEmpty());
    QVERIFY(window.fraDiff->isVisible());
    QVERIFY(!window.fraChoice->isVisible());
    QVERIFY(window.optDiff[1]->isChecked()); // the reference level, Novice
    // A screen reader or switch toggles the option without a click; the level follows.
    QAccessibleInterface *expert = QAccessible::queryAccessibleInterface(window.optDiff[4]);
    expert->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(TheSettings().stopThief.level, qint16(5));
    QCOMPARE(expert->text(QAccessible::Name), QStringLiteral("Expert"));
    QTest::mouseClick(window.optDiff[3], Qt::LeftButton, {}, QPoint(10, 10));
    QCOMPARE(TheSettings().stopThief.level, qint16(4));

    random.values = {0.7, 42.5 / 30001};
    QTest::mouseClick(window.cmdOK, Qt::LeftButton);
    const Case *c = window.currentCase();
    QVERIFY(c);
    QCOMPARE(c->number, QStringLiteral("2000424"));
    QVERIFY(window.caseInProgress());
    QVERIFY(!window.fraDiff->isVisible());
    QVERIFY(window.fraChoice->isVisible());
    QVERIFY(window.fraAccuse->isVisible());
    QVERIFY(window.fraSolve->isVisible());
    QVERIFY(window.fraPrint->isVisible());
    QVERIFY(window.SSTab1->isEnabled());
    QCOMPARE(window.lblDescribe->text(), QStringLiteral("Case Number 2000424 (Advanced Level)"));
    QCOMPARE(window.txtCase->toPlainText(), c->caseText);
    QCOMPARE(window.txtClues->toPlainText(), c->clueList);
    for (int i = 0; i < Case::Suspects; ++i)
        QCOMPARE(window.cmdSuspect[i]->text(), c->displayList[i]);
    // Each note card and its controls say whose they are.
    const QString first = c->displayList[0];
    QCOMPARE(window.findChild<QWidget *>("fraSuspectCard_0")->accessibleName(), first);
    QCOMPARE(window.findChild<QWidget *>("chkRuledOut_0")->accessibleName(),
             first + QStringLiteral(" is not the thief"));
    QVERIFY(window.findChild<QWidget *>("cboNote_0_1")->accessibleName().endsWith(first));
    // The notes on the suspects tab follow the shuffled list too.
    QCOMPARE(window.findChild<QLabel *>(QStringLiteral("lblNoteName_2"))->text(),
             c->displayList[2]);

    // After a promotion the next case is made at the new level.
    QTest::mouseClick(window.cmdSuspect[suspectButton(window, true)], Qt::LeftButton);
    QCOMPARE(TheSettings().stopThief.level, qint16(5));
    QTest::mouseClick(window.cmdNew, Qt::LeftButton);
    QVERIFY(window.optDiff[4]->isChecked());
    random.values = {0.1, 0.0};
    QTest::keyClick(window.optDiff[4], Qt::Key_Return);
    QCOMPARE(window.currentCase()->number, QStringLiteral("1000005"));
    QVERIFY(window.fraChoice->isVisible());
}

void tst_frmthief::confirmationsWhileACaseIsOpen()
{
    TestEnvironment env;
    frmThief window;
    window.show();
    loadCase(window, QStringLiteral("2123452"));

    env.dialogs.answers = {QMessageBox::No};
    QTest::mouseClick(window.cmdNew, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 1);
    const MessageRequest asked = env.dialogs.messages.last();
    QCOMPARE(asked.title, QStringLiteral("New Case"));
    QCOMPARE(asked.text, QStringLiteral("You have not finished the current case.  Do you still "
                                        "want to start a new case?"));
    QCOMPARE(asked.icon, QMessageBox::Question);
    QCOMPARE(asked.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(asked.defaultButton, QMessageBox::No);
    QVERIFY(!window.fraDiff->isVisible());
    QVERIFY(window.fraChoice->isVisible());

    env.dialogs.answers = {QMessageBox::Yes};
    QTest::mouseClick(window.cmdNew, Qt::LeftButton);
    QVERIFY(window.fraDiff->isVisible());
    QTest::mouseClick(window.cmdCancel, Qt::LeftButton);
    QVERIFY(!window.fraDiff->isVisible());
    QCOMPARE(window.currentCase()->number, QStringLiteral("2123452"));

    env.dialogs.answers = {QMessageBox::No};
    QTest::mouseClick(window.cmdOld, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Old Case"));
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("You have not finished the current case.  Do you still want to "
                            "re-load an old case?"));
    QCOMPARE(env.dialogs.messages.last().defaultButton, QMessageBox::No);
    QVERIFY(!window.fraCase->isVisible());
    QCOMPARE(env.dialogs.messages.size(), 3);

    // Once the case is over nothing is asked.
    QTest::mouseClick(window.cmdSoln, Qt::LeftButton);
    QTest::mouseClick(window.cmdOld, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 3);
    QVERIFY(window.fraCase->isVisible());
    QTest::mouseClick(window.cmdCancelCN, Qt::LeftButton);
    QVERIFY(!window.fraCase->isVisible());
    QVERIFY(window.fraChoice->isVisible());
}

void tst_frmthief::oldCaseNumbersAreChecked()
{
    TestEnvironment env;
    frmThief window;
    window.show();
    QTest::mouseClick(window.cmdOld, Qt::LeftButton);
    QVERIFY(window.fraCase->isVisible());
    QTest::keyClicks(window.txtCNum, QStringLiteral("1a2 x-3"));
    QCOMPARE(window.txtCNum->text(), QStringLiteral("123"));
    QCOMPARE(env.sound.beeps(), 4);
    QTest::keyClick(window.txtCNum, Qt::Key_Backspace);
    QCOMPARE(window.txtCNum->text(), QStringLiteral("12"));
    QTest::keyClick(window.txtCNum, Qt::Key_Tab);
    QCOMPARE(env.sound.beeps(), 4);

    const QList<QPair<QString, QString>> typed{
        {"12", "Case number must have seven digits.  Try again."},
        {"3999999", "First digit must be a 1 or 2.  Try again."},
        {"1300010", "Middle 5 digits must be between 00000 and 30000.  Try again."},
        {"2000006", "Last digit must be 1, 2, 3, 4, or 5.  Try again."},
    };
    for (const auto &[number, message] : typed) {
        window.txtCNum->setText(number);
        QTest::keyClick(window.txtCNum, Qt::Key_Return);
        const MessageRequest shown = env.dialogs.messages.last();
        QCOMPARE(shown.title, QStringLiteral("Invalid Case Number"));
        QCOMPARE(shown.text, message);
        QCOMPARE(shown.icon, QMessageBox::Information);
        QVERIFY(window.fraCase->isVisible());
        QVERIFY(!window.currentCase());
    }
    QCOMPARE(env.dialogs.messages.size(), 4);

    QTest::keyClick(window.txtCNum, Qt::Key_Escape);
    QVERIFY(!window.fraCase->isVisible());
    QVERIFY(window.fraChoice->isVisible());
    QTest::mouseClick(window.cmdOld, Qt::LeftButton);
    QVERIFY(window.txtCNum->text().isEmpty());
    QTest::keyClicks(window.txtCNum, QStringLiteral("1000001"));
    QTest::keyClick(window.txtCNum, Qt::Key_Enter);
    QVERIFY(window.currentCase());
    QCOMPARE(window.currentCase()->thief, window.currentCase()->names[4]);
    // Re-loading a case sets the level to its last digit.
    QCOMPARE(TheSettings().stopThief.level, qint16(1));
    QVERIFY(window.optDiff[0]->isChecked());
    QVERIFY(!window.fraCase->isVisible());
}

void tst_frmthief::accusationAtBeginner()
{
    TestEnvironment env;
    frmThief window;
    window.show();
    loadCase(window, QStringLiteral("1000001"));
    const Case c = *window.currentCase();
    const int wrong = suspectButton(window, false);
    QTest::mouseClick(window.cmdSuspect[wrong], Qt::LeftButton);
    QCOMPARE(env.sound.played(), QStringList{QStringLiteral("uhoh.wav")});
    QCOMPARE(window.lblOver->text(),
             QStringLiteral("Sorry, you have accused the wrong suspect - ") + c.displayList[wrong] +
                 QStringLiteral(" is not the thief.  Check the solution for the correct "
                                "suspect.\n\nYou remain a Beginner Detective."));
    QCOMPARE(TheSettings().stopThief.level, qint16(1));
    QVERIFY(window.fraOver->isVisible());
    QVERIFY(!window.fraAccuse->isVisible());
    QVERIFY(window.fraSolve->isVisible());
    QVERIFY(!window.caseInProgress());

    loadCase(window, QStringLiteral("1000001"));
    QTest::mouseClick(window.cmdSuspect[suspectButton(window, true)], Qt::LeftButton);
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));
    QCOMPARE(window.lblOver->text(),
             QStringLiteral("Correct!  Congratulations.  ") + c.thief +
                 QStringLiteral(" is the thief, has apologized to ") + c.victim +
                 QStringLiteral(", and returned ") + c.thing +
                 QStringLiteral(".\n\nYou have been promoted to Novice Detective."));
    QCOMPARE(TheSettings().stopThief.level, qint16(2));
    QVERIFY(window.optDiff[1]->isChecked());
}

void tst_frmthief::accusationAtExpert()
{
    TestEnvironment env;
    frmThief window;
    window.show();
    loadCase(window, QStringLiteral("2017775"));
    const Case c = *window.currentCase();
    QCOMPARE(c.thief, c.names[0]);
    QTest::mouseClick(window.cmdSuspect[suspectButton(window, true)], Qt::LeftButton);
    QVERIFY(window.lblOver->text().endsWith(QLatin1String(".\n\nYou remain an Expert Detective!")));
    QCOMPARE(TheSettings().stopThief.level, qint16(5));
    // A second accusation of the same case changes nothing.
    window.cmdSuspect[0]->click();
    QCOMPARE(env.sound.played(), QStringList{QStringLiteral("tada.wav")});

    loadCase(window, QStringLiteral("2017775"));
    const int wrong = suspectButton(window, false);
    QTest::mouseClick(window.cmdSuspect[wrong], Qt::LeftButton);
    QCOMPARE(window.lblOver->text(),
             QStringLiteral("Sorry, you have accused the wrong suspect - ") + c.displayList[wrong] +
                 QStringLiteral(" is not the thief.  Check the solution for the correct "
                                "suspect.\n\nYou have been demoted to Advanced Detective."));
    QCOMPARE(TheSettings().stopThief.level, qint16(4));
    QVERIFY(window.optDiff[3]->isChecked());
}

void tst_frmthief::hintsComeStepByStep()
{
    TestEnvironment env;
    frmThief window;
    window.show();
    loadCase(window, QStringLiteral("1299995"));
    const Solution solution = window.currentCase()->solution;
    QCOMPARE(solution.steps(), 5);
    QTest::mouseClick(window.cmdHints, Qt::LeftButton);
    QVERIFY(window.fraHints->isVisible());
    QString expected;
    for (const QString &sentence : solution.step(0))
        expected += sentence + QStringLiteral("\n\n");
    QCOMPARE(window.txtHints->toPlainText(), expected);
    for (int h = 1; h < solution.steps(); ++h) {
        QVERIFY(window.cmdHint->isEnabled());
        QTest::mouseClick(window.cmdHint, Qt::LeftButton);
        for (const QString &sentence : solution.step(h))
            expected += sentence + QStringLiteral("\n\n");
        QCOMPARE(window.txtHints->toPlainText(), expected);
    }
    QVERIFY(!window.cmdHint->isEnabled());
    window.cmdHint->click();
    QCOMPARE(window.txtHints->toPlainText(), expected);
    for (const QString &sentence : solution.sentences)
        QCOMPARE(expected.count(sentence), 1);

    QTest::mouseClick(window.cmdHintOK, Qt::LeftButton);
    QVERIFY(!window.fraHints->isVisible());
    // Opening the hints again shows what was there, without another step.
    QTest::mouseClick(window.cmdHints, Qt::LeftButton);
    QCOMPARE(window.txtHints->toPlainText(), expected);
    QVERIFY(window.caseInProgress());

    loadCase(window, QStringLiteral("1299995"));
    QVERIFY(window.txtHints->toPlainText().isEmpty());
    QVERIFY(!window.fraHints->isVisible());
}

void tst_frmthief::solutionEndsTheCase()
{
    TestEnvironment env;
    frmThief window;
    window.show();
    loadCase(window, QStringLiteral("2000014"));
    QTest::mouseClick(window.cmdSoln, Qt::LeftButton);
    QCOMPARE(window.txtSolution->toPlainText(), window.currentCase()->solution.text());
    QCOMPARE(window.fraSolution->title(), QStringLiteral("Solution-Case Number 2000014"));
    QVERIFY(window.fraSolution->isVisible());
    QVERIFY(!window.fraAccuse->isVisible());
    QVERIFY(!window.fraHints->isVisible());
    QVERIFY(!window.fraSolve->isVisible());
    QVERIFY(!window.caseInProgress());
    QCOMPARE(TheSettings().stopThief.level, qint16(4));
    QVERIFY(env.sound.played().isEmpty());
}

namespace {

QString pdfText(const QString &pdf)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (tool.isEmpty())
        qFatal("pdftotext (poppler-utils) is needed to read the printed papers back");
    QProcess process;
    process.start(tool, {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString squeezed(QString text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return text.replace(blanks, QStringLiteral(" "));
}

} // namespace

void tst_frmthief::printedPapers()
{
    TestEnvironment env;
    QTemporaryDir folder;
    env.dialogs.pdfFolder = folder.path();
    frmThief window;
    window.show();
    loadCase(window, QStringLiteral("2123452"));
    const Case c = *window.currentCase();

    env.dialogs.answers = {QMessageBox::Cancel};
    QTest::mouseClick(window.cmdPrintCase, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Print Case"));
    QCOMPARE(env.dialogs.messages.last().text,
             QStringLiteral("Make sure printer is on-line and ready."));
    QCOMPARE(env.dialogs.messages.last().buttons, QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(env.dialogs.messages.last().icon, QMessageBox::Information);
    QVERIFY(env.dialogs.printed.isEmpty());

    env.dialogs.answers = {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
    QTest::mouseClick(window.cmdPrintCase, Qt::LeftButton);
    QTest::mouseClick(window.cmdPrintClues, Qt::LeftButton);
    QTest::mouseClick(window.cmdPrintSoln, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.last().title, QStringLiteral("Print Solution"));
    QCOMPARE(env.dialogs.printed,
             (QStringList{QStringLiteral("Description-Case Number 2123452 (Novice Level)"),
                          QStringLiteral("Clues-Case Number 2123452 (Novice Level)"),
                          QStringLiteral("Solution-Case Number 2123452 (Novice Level)")}));
    QCOMPARE(env.dialogs.pdfFiles.size(), 3);

    const QString story = squeezed(pdfText(env.dialogs.pdfFiles[0]));
    QVERIFY(story.contains(QLatin1String("Description-Case Number 2123452 (Novice Level)")));
    QVERIFY(story.contains(squeezed(c.description)));

    const QString clues = squeezed(pdfText(env.dialogs.pdfFiles[1]));
    QVERIFY(clues.contains(QLatin1String("Clues-Case Number 2123452 (Novice Level)")));
    for (int i = 1; i <= Case::Clues; ++i) {
        const QString line = QStringLiteral("Clue %1: %2.").arg(i).arg(c.listedClue(i).text);
        QVERIFY2(clues.contains(squeezed(line)), qPrintable(line));
    }
    QStringList headings{QStringLiteral("Suspect")};
    for (const QString &title : c.titles)
        headings.append(title);
    headings.append(QStringLiteral("Thief"));
    QVERIFY2(clues.contains(headings.join(u' ')), qPrintable(clues));
    for (const QString &name : c.displayList)
        QVERIFY(clues.contains(name));

    const QString solution = squeezed(pdfText(env.dialogs.pdfFiles[2]));
    for (const QString &sentence : c.solution.sentences)
        QVERIFY2(solution.contains(squeezed(sentence)), qPrintable(sentence));

    // A solution too long for one page carries on under the continued title.
    const PrintDocument paper = CasePapers::solutionDocument(c);
    QCOMPARE(paper.continuedTitle(),
             QStringLiteral("Solution-Case Number 2123452 (Novice Level)-Continued"));
    Case longer = c;
    for (int i = 0; i < 6; ++i)
        longer.solution.sentences += c.solution.sentences;
    const auto pages = CasePapers::solutionDocument(longer).layOut();
    QVERIFY(pages.size() >= 2);
    QCOMPARE(pages[1][2].text, paper.continuedTitle());
}

void tst_frmthief::missingWordFileClosesTheWindow()
{
    TestEnvironment env;
    QTemporaryDir empty;
    SetDataPath(empty.path());
    QPointer<frmThief> window = new frmThief;
    QSignalSpy closed(window.data(), &ActivityWindow::closed);
    window->show();
    QTRY_VERIFY(!window || !window->isVisible());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY2(env.dialogs.messages[0].text.contains(QLatin1String("thief.dat")),
             qPrintable(env.dialogs.messages[0].text));
    QTRY_VERIFY(!window);
}

void tst_frmthief::helpAndExit()
{
    TestEnvironment env;
    QPointer<frmThief> window = new frmThief;
    QSignalSpy closed(window.data(), &ActivityWindow::closed);
    window->show();
    QTest::mouseClick(window->cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("stopthief")});
    QTest::mouseClick(window->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.size(), 1);
    QTRY_VERIFY(!window);
}

QTEST_MAIN(tst_frmthief)
#include "tst_frmthief.moc"
