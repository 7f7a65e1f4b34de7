// SPDX-License-Identifier: GPL-3.0-or-later
#include "mathtutor/DotPicture.h"
#include "mathtutor/frmHMath.h"
#include "mathtutor/MasteryView.h"
#include "mathtutor/SheetView.h"
#include "shell/core/Settings.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

// The Higher Math window driven as a pupil or a teacher would, through the test seams.
class tst_mathtutor_windows : public QObject {
    Q_OBJECT
private slots:
    void init();
    void opensWithTheLastChoicesInRange_data();
    void opensWithTheLastChoicesInRange();
    void reviewStepsThroughTheFamilies();
    void practiceRoundByKeyboard();
    void stopEndsTheRoundAndExitCloses();
    void worksheetNumberRebuildsTheSheet();
    void printedWorksheetHoldsProblemsAndKey();
};

namespace {

struct Window {
    frmHMath *w = new frmHMath;
    Window()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the Higher Math window did not become active");
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
};

void TypeAnswer(frmHMath *w, const QString &text)
{
    QCOMPARE(QApplication::focusWidget(), w->txtAnswer);
    QTest::keyClicks(w->txtAnswer, text);
    QTest::keyClick(w->txtAnswer, Qt::Key_Return);
}

QString PdfText(const QString &pdf)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (tool.isEmpty())
        qFatal("pdftotext (poppler-utils) is needed to read the printed worksheet back");
    QProcess process;
    process.start(tool, {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    process.waitForFinished(30000);
    static const QRegularExpression blanks(QStringLiteral("[ \\t]+"));
    return QString::fromUtf8(process.readAllStandardOutput()).replace(blanks, QStringLiteral(" "));
}

} // namespace

void tst_mathtutor_windows::init()
{
    TheSettings().mathTutor.values = {0, 1, 9};
    TheMastery().clear();
}

void tst_mathtutor_windows::opensWithTheLastChoicesInRange_data()
{
    QTest::addColumn<int>("op");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<bool>("divide");
    QTest::addColumn<int>("shownLow");
    QTest::addColumn<int>("shownHigh");
    QTest::newRow("reference") << 0 << 1 << 9 << false << 1 << 9;
    QTest::newRow("division of 0s only") << 1 << 0 << 0 << true << 0 << 1;
    QTest::newRow("out of range") << 7 << 15 << -3 << false << 0 << 12;
    QTest::newRow("upside down") << 1 << 9 << 2 << true << 2 << 9;
}

void tst_mathtutor_windows::opensWithTheLastChoicesInRange()
{
    QFETCH(int, op);
    QFETCH(int, low);
    QFETCH(int, high);
    TestEnvironment env;
    TheSettings().mathTutor.values = {qint16(op), qint16(low), qint16(high)};
    Window win;
    QTEST(win.w->optDivide->isChecked(), "divide");
    QTEST(win.w->spnLow->value(), "shownLow");
    QTEST(win.w->spnHigh->value(), "shownHigh");
    QCOMPARE(win.w->cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(win.w->stkParts->currentIndex(), 0);
    // What is shown is what is kept, and later changes are kept too.
    QCOMPARE(TheSettings().mathTutor.values[1], qint16(win.w->spnLow->value()));
    win.w->optDivide->setChecked(true);
    win.w->spnHigh->setValue(0);
    QCOMPARE(TheSettings().mathTutor.values,
             (std::array<qint16, 3>{1, 0, 1})); // nothing is divided by 0
    win.w->optMultiply->setChecked(true);
    win.w->spnLow->setValue(5);
    QCOMPARE(TheSettings().mathTutor.values, (std::array<qint16, 3>{0, 5, 5}));
    QCOMPARE(win.w->worksheet().low, qint16(5));

    // A 1366 x 768 screen at 200 % leaves 683 x 384, less a title bar.
    QVERIFY(win.w->minimumSizeHint().width() <= 683);
    QVERIFY2(win.w->minimumSizeHint().height() <= 344,
             qPrintable(QString::number(win.w->minimumSizeHint().height())));
    QTest::keyClick(win.w, Qt::Key_F1);
    QCOMPARE(env.help.topics, QStringList{"mathtutor"});
}

void tst_mathtutor_windows::reviewStepsThroughTheFamilies()
{
    TestEnvironment env;
    Window win;
    frmHMath *w = win.w;
    w->spnLow->setValue(3);
    w->spnHigh->setValue(4);
    QCOMPARE(w->spnFamily->minimum(), 3);
    QCOMPARE(w->spnFamily->maximum(), 4);
    QCOMPARE(w->lblFact->text(), QStringLiteral("3 × 0 = ?"));
    QVERIFY(!w->cmdBack->isEnabled());
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(w->cmdNext, Qt::Key_Return);
    QCOMPARE(w->lblFact->text(), QStringLiteral("3 × 4 = ?"));
    QCOMPARE(w->picDots->rows(), 3);
    QCOMPARE(w->picDots->perRow(), 4);

    // A mnemonic presses its button the way a click would, a moment later.
    QTest::keyClick(w, Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(w->lblFact->text(), QStringLiteral("3 × 4 = 12"));
    QCOMPARE(w->lblFact->accessibleDescription(), QStringLiteral("3 × 4 = 12"));
    QCOMPARE(w->lblPartners->text(),
             QStringLiteral("Partner facts:\n4 × 3 = 12\n12 ÷ 3 = 4\n12 ÷ 4 = 3"));
    QCOMPARE(QApplication::focusWidget(), w->cmdNext);

    // Past 3 × 12 come the 4s; the end of the range stops the steps.
    for (int i = 0; i < 9; ++i)
        w->cmdNext->click();
    QCOMPARE(w->lblFact->text(), QStringLiteral("4 × 0 = ?"));
    for (int i = 0; i < 20; ++i)
        w->cmdNext->click();
    QCOMPARE(w->lblFact->text(), QStringLiteral("4 × 12 = ?"));
    QVERIFY(!w->cmdNext->isEnabled());

    // Division shows the same dots as equal rows, and never a division by 0.
    w->optDivide->setChecked(true);
    w->spnLow->setValue(0);
    QCOMPARE(w->spnFamily->minimum(), 1);
    w->spnFamily->setValue(1);
    w->cmdAnswer->click();
    QCOMPARE(w->lblFact->text(), QStringLiteral("0 ÷ 1 = 0"));
    QVERIFY(!w->lblPartners->text().contains(QStringLiteral("÷ 0")));
    QCOMPARE(w->picDots->rows(), 1);
    QCOMPARE(w->picDots->perRow(), 0);
}

void tst_mathtutor_windows::practiceRoundByKeyboard()
{
    TestEnvironment env;
    Window win;
    frmHMath *w = win.w;
    w->spnLow->setValue(6);
    w->spnHigh->setValue(7);
    QTest::keyClick(w, Qt::Key_P, Qt::AltModifier);
    QTRY_COMPARE(w->stkParts->currentIndex(), 1);
    QCOMPARE(QApplication::focusWidget(), w->cmdStart);
    Randomize(11);
    QTest::keyClick(w->cmdStart, Qt::Key_Return);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(!w->spnLow->isEnabled());
    QVERIFY(!w->cmdWorksheets->isEnabled());

    // Only digits get into the answer, three at most; an empty answer is no answer.
    QTest::keyClicks(w->txtAnswer, QStringLiteral("1a-2x34"));
    QCOMPARE(w->txtAnswer->text(), QStringLiteral("123"));
    w->txtAnswer->clear();
    QTest::keyClick(w->txtAnswer, Qt::Key_Return);
    QCOMPARE(w->round().answered(), 0);

    const MathFact missed = w->round().current();
    QCOMPARE(w->lblProblem->text(), missed.text() + QStringLiteral(" ="));
    TypeAnswer(w, QString::number(missed.answer() + 1));
    QCOMPARE(env.sound.played(), QStringList{"uhoh.wav"});
    QVERIFY(w->lblMessage->text().contains(missed.withAnswer()));
    QCOMPARE(w->lblMessage->accessibleDescription(), w->lblMessage->text());
    QCOMPARE(TheMastery().at(missed), Mastery::Practising);

    // The rest answered right on the clock, the third slowly; the missed fact comes back.
    int turns = 0;
    MathFact slow;
    while (w->round().isRunning() && turns < 40) {
        const MathFact fact = w->round().current();
        if (turns == 2)
            slow = fact;
        env.clock.now += turns == 2 ? 3500 : 1200;
        TypeAnswer(w, QString::number(fact.answer()));
        ++turns;
    }
    QCOMPARE(turns, PracticeRound::Length);
    QCOMPARE(env.sound.played().count(QStringLiteral("tada.wav")), PracticeRound::Length);
    QCOMPARE(TheMastery().at(missed), Mastery::Known);
    QCOMPARE(TheMastery().at(slow), Mastery::Practising);
    QCOMPARE(TheMastery().count(Operation::Multiply, Mastery::Known), 19);

    const QString summary = w->lblMessage->text();
    QVERIFY2(summary.startsWith(QStringLiteral("Round over!")), qPrintable(summary));
    QVERIFY(summary.contains(QStringLiteral("Right the first time: 19 of 20")));
    QVERIFY(summary.contains(QStringLiteral("Facts to practise:\n") + missed.withAnswer()));
    QCOMPARE(w->lblMessage->accessibleDescription(), summary);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(!w->txtAnswer->isEnabled());
    QVERIFY(w->spnLow->isEnabled());
    QCOMPARE(QApplication::focusWidget(), w->cmdStart);
    // A pause after each answer shows it before the next fact.
    QCOMPARE(env.clock.delays.size(), PracticeRound::Length + 1);
}

void tst_mathtutor_windows::stopEndsTheRoundAndExitCloses()
{
    TestEnvironment env;
    Window win;
    frmHMath *w = win.w;
    w->cmdPractice->click();
    w->cmdStart->click();
    QVERIFY(w->round().isRunning());
    w->cmdWorksheets->click();
    QCOMPARE(w->stkParts->currentIndex(), 1);
    QTest::keyClick(w, Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!w->round().isRunning());
    QVERIFY(w->lblMessage->text().startsWith(QStringLiteral("Round stopped.")));
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->isVisible());
    w->cmdExit->click();
    QVERIFY(!w->isVisible());
}

void tst_mathtutor_windows::worksheetNumberRebuildsTheSheet()
{
    TestEnvironment env;
    Window win;
    frmHMath *w = win.w;
    w->cmdWorksheets->click();
    w->optDivide->setChecked(true);
    w->spnLow->setValue(2);
    w->spnHigh->setValue(11);
    w->optCount[1]->setChecked(true);
    w->optInARow->setChecked(true);
    const QString number = w->txtNumber->text();
    QVERIFY2(number.startsWith(QStringLiteral("223-0211-")), qPrintable(number));
    const QList<MathFact> sheet = w->picSheet->problems();
    QCOMPARE(sheet.size(), 30);
    QCOMPARE(sheet, Worksheet::parse(number)->problems());

    // Another sheet, other settings, then the number typed back brings it all back.
    env.dialogs.answers.clear();
    w->cmdNewSheet->click();
    w->optMultiply->setChecked(true);
    w->optStacked->setChecked(true);
    w->optCount[2]->setChecked(true);
    QVERIFY(w->picSheet->problems() != sheet);
    w->txtNumber->clear();
    QTest::keyClicks(w->txtNumber, number);
    QTest::keyClick(w->txtNumber, Qt::Key_Return);
    QCOMPARE(w->picSheet->problems(), sheet);
    QCOMPARE(w->txtNumber->text(), number);
    QVERIFY(w->optDivide->isChecked() && w->optInARow->isChecked() && w->optCount[1]->isChecked());
    QCOMPARE(TheSettings().mathTutor.values, (std::array<qint16, 3>{1, 2, 11}));
    QVERIFY(env.dialogs.messages.isEmpty());

    // A wrong number is explained and changes nothing.
    w->txtNumber->setText(QStringLiteral("212-0000-1234"));
    w->cmdMake->click();
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].title, QStringLiteral("Worksheet Number"));
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages[0].text.contains(QStringLiteral("divided by 0")));
    QCOMPARE(w->picSheet->problems(), sheet);
    QCOMPARE(w->worksheet().number(), number);
    QCOMPARE(QApplication::focusWidget(), w->txtNumber);
}

void tst_mathtutor_windows::printedWorksheetHoldsProblemsAndKey()
{
    TestEnvironment env;
    QTemporaryDir folder;
    env.dialogs.pdfFolder = folder.path();
    Window win;
    frmHMath *w = win.w;
    w->cmdWorksheets->click();
    for (const QString &number :
         {QStringLiteral("122-0012-0777"), QStringLiteral("215-0112-0031")}) {
        w->txtNumber->setText(number);
        w->cmdMake->click();
        w->cmdPrint->click();
    }
    w->chkKey->setChecked(false);
    w->cmdPrint->click();
    QCOMPARE(env.dialogs.printed,
             (QStringList{"Multiplication Facts 0 to 12 - Worksheet 122-0012-0777",
                          "Division Facts 1 to 12 - Worksheet 215-0112-0031",
                          "Division Facts 1 to 12 - Worksheet 215-0112-0031"}));
    QCOMPARE(env.dialogs.pdfFiles.size(), 3);

    // In a row: every problem on the sheet, and with its answer on the key's page.
    const QStringList pages = PdfText(env.dialogs.pdfFiles[0]).split(u'\f', Qt::SkipEmptyParts);
    QCOMPARE(pages.size(), 2);
    QVERIFY(pages[0].contains(QStringLiteral("Name:")));
    QVERIFY(pages[0].contains(QStringLiteral("Worksheet number 122-0012-0777")));
    QVERIFY(pages[1].contains(QStringLiteral("Answer Key - Worksheet 122-0012-0777")));
    QVERIFY(pages[1].contains(QStringLiteral("ANSWER KEY")));
    const QList<MathFact> problems = Worksheet::parse(QStringLiteral("122-0012-0777"))->problems();
    // The reader keeps or drops blanks between narrow figures as it likes, so allow either.
    auto holds = [](const QString &page, const QString &text) {
        QStringList letters;
        const QString bare = QString(text).remove(u' ');
        for (const QChar c : bare)
            letters.append(QRegularExpression::escape(QString(c)));
        const QRegularExpression alone(
            QStringLiteral("(?<![0-9])%1(?![0-9])").arg(letters.join(QStringLiteral(" ?"))));
        return page.contains(alone);
    };
    for (int i = 0; i < problems.size(); ++i) {
        const QString number = QStringLiteral("%1.").arg(i + 1);
        QVERIFY2(holds(pages[0], number + problems[i].text() + u'='),
                 qPrintable(problems[i].text()));
        QVERIFY2(holds(pages[1], number + problems[i].withAnswer()),
                 qPrintable(problems[i].withAnswer()));
        QVERIFY(!holds(pages[0], number + problems[i].withAnswer()));
    }

    // Stacked: all 50 on the first page, the key on the second; without the key one page.
    const QStringList stacked = PdfText(env.dialogs.pdfFiles[1]).split(u'\f', Qt::SkipEmptyParts);
    QCOMPARE(stacked.size(), 2);
    QVERIFY(stacked[0].contains(QStringLiteral("50.")) && stacked[1].contains("ANSWER KEY"));
    QCOMPARE(PdfText(env.dialogs.pdfFiles[2]).split(u'\f', Qt::SkipEmptyParts).size(), 1);
}

QTEST_MAIN(tst_mathtutor_windows)
#include "tst_mathtutor_windows.moc"
