// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar window's flows: browsing months, the lesson, a quiz and a reading round with
// their score and sounds, printing, a damaged names file, help and exit.
#include "support/TestDoubles.h"

#include "calendar/CalendarPrint.h"
#include "calendar/frmCal.h"
#include "calendar/LessonPicture.h"
#include "calendar/MonthPicture.h"

#include "shell/core/DataPath.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

class tst_frmcal : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }
    void opensOnThisMonth();
    void browsingMonthsAndYears();
    void lessonTurnsPages();
    void quizRoundWithScore();
    void readingRoundAboutTheShownMonth();
    void printing();
    void damagedFileClosesTheWindow();
    void helpAndExit();

private:
    static void answer(QLineEdit *box, const QString &text)
    {
        box->setText(text);
        QTest::keyClick(box, Qt::Key_Return);
    }
};

void tst_frmcal::opensOnThisMonth()
{
    TestEnvironment env;
    frmCal window;
    window.show();
    const auto start =
        MonthMath::startFrom(QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy")));
    QCOMPARE(window.month(), start.month);
    QCOMPARE(window.year(), start.year);
    QCOMPARE(window.mode(), frmCal::Display);
    QVERIFY(window.cmdMenu[frmCal::Display]->isChecked());
    QVERIFY(window.fraDisplay->isVisible());
    QVERIFY(window.picCalendar->isVisible());
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.picCalendar->look().today, QDate::currentDate().day());
    QCOMPARE(window.cmdStartReview->text(), QStringLiteral("&Start Review"));
    QCOMPARE(window.cmdStartReading->text(), QStringLiteral("&Start Quiz"));
    // Every control a pupil reaches can be named by a screen reader.
    for (QWidget *control : window.findChildren<QWidget *>())
        if (control->focusPolicy() != Qt::NoFocus && qobject_cast<QAbstractButton *>(control))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    // Every part fits a small laptop screen at 200 % scaling, with no text cut off.
    window.resize(683, 384);
    for (QPushButton *part : window.cmdMenu) {
        part->click();
        QApplication::processEvents();
        const QSize smallest = window.minimumSizeHint();
        QVERIFY2(smallest.width() <= 683 && smallest.height() <= 384, qPrintable(part->text()));
        for (QLabel *label : window.findChildren<QLabel *>())
            if (label->isVisible() && label->wordWrap())
                QVERIFY2(label->height() >= label->heightForWidth(label->width()),
                         qPrintable(part->text() + u' ' + label->objectName()));
    }
}

void tst_frmcal::browsingMonthsAndYears()
{
    TestEnvironment env;
    frmCal window;
    window.setToday(QDate(2024, 2, 10));
    window.show();
    window.showMonth(2, 2024);
    QCOMPARE(window.shownMonth().days, 29);
    QCOMPARE(window.spnMonth->text(), QStringLiteral("February"));
    QCOMPARE(window.lblYear->text(), QStringLiteral("2024"));
    QCOMPARE(window.picCalendar->look().today, 10);
    QCOMPARE(window.picCalendar->look().title, QStringLiteral("February 2024"));

    window.hsbYear->setValue(2100);
    QCOMPARE(window.shownMonth().days, 28);
    QCOMPARE(window.picCalendar->look().today, 0);

    // The months run on into the next year and back, by keys as by the arrows.
    window.showMonth(12, 2026);
    window.spnMonth->setFocus();
    QTest::keyClick(window.spnMonth, Qt::Key_Up);
    QCOMPARE(window.month(), 1);
    QCOMPARE(window.year(), 2027);
    QCOMPARE(window.picCalendar->month().firstWeekday, 6);
    QTest::keyClick(window.spnMonth, Qt::Key_Down);
    QCOMPARE(window.month(), 12);
    QCOMPARE(window.year(), 2026);
    QCOMPARE(window.picCalendar->month().rows, 5);

    // ...but not past the first or the last year shown.
    window.showMonth(1, 1583);
    QTest::keyClick(window.spnMonth, Qt::Key_Down);
    QCOMPARE(window.month(), 1);
    QCOMPARE(window.year(), 1583);
    window.showMonth(12, 2199);
    QTest::keyClick(window.spnMonth, Qt::Key_Up);
    QCOMPARE(window.month(), 12);
    QCOMPARE(window.year(), 2199);
    window.showMonth(40, 99999);
    QCOMPARE(window.month(), 12);
    QCOMPARE(window.year(), 2199);
}

void tst_frmcal::lessonTurnsPages()
{
    TestEnvironment env;
    frmCal window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::mouseClick(window.cmdMenu[frmCal::Parts], Qt::LeftButton);
    QCOMPARE(window.mode(), frmCal::Parts);
    QVERIFY(window.fraParts->isVisible());
    QVERIFY(!window.picCalendar->isVisible());
    QVERIFY(!window.cmdNext->isEnabled());
    QCOMPARE(window.lblLesson->textFormat(), Qt::PlainText);

    QTest::mouseClick(window.cmdStartReview, Qt::LeftButton);
    const QList<LessonPage> pages = LessonPages();
    QCOMPARE(window.lessonPage(), 0);
    QCOMPARE(window.lblLessonTitle->text(), pages[0].title);
    QVERIFY(!window.cmdBack->isEnabled());
    QVERIFY(window.cmdNext->hasFocus());
    // The pages cover every part of the calendar a pupil needs.
    QString all;
    for (const LessonPage &page : pages)
        all += page.text;
    for (const char *topic : {"month", "week", "day", "leap year", "season", "weekday", "weekend"})
        QVERIFY2(all.contains(QLatin1String(topic)), topic);

    for (int i = 1; i < pages.size(); ++i) {
        QTest::keyClick(&window, Qt::Key_Return);
        QTRY_COMPARE(window.lessonPage(), i);
    }
    QCOMPARE(window.lblLesson->text(), pages.last().text);
    QCOMPARE(window.lblPage->text(), QStringLiteral("Page 9 of 9"));
    QVERIFY(!window.cmdNext->isEnabled());
    QVERIFY(window.cmdBack->hasFocus());
    QTest::mouseClick(window.cmdBack, Qt::LeftButton);
    QCOMPARE(window.lessonPage(), pages.size() - 2);
    QCOMPARE(window.findChild<LessonPicture *>()->picture(), pages[pages.size() - 2].picture);
}

void tst_frmcal::quizRoundWithScore()
{
    TestEnvironment env;
    frmCal window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    ScriptedRandom random;
    SetRandomSource(&random);
    QTest::mouseClick(window.cmdMenu[frmCal::Quiz], Qt::LeftButton);
    QVERIFY(!window.picCalendar->isVisible());
    QVERIFY(!window.txtQAnswer->isEnabled());

    random.values = {0.0, 0.0}; // kind 1, the first day
    QTest::mouseClick(window.cmdStartQuiz, Qt::LeftButton);
    QVERIFY(window.roundRunning());
    QCOMPARE(window.cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(window.lblQuestion->text().endsWith(
        QStringLiteral("\nWhat is the first day of the week?")));
    QVERIFY(window.txtQAnswer->hasFocus());
    QCOMPARE(env.sound.played(), QStringList{"ding.wav"});

    // Enter on an empty box is no try.
    answer(window.txtQAnswer, QStringLiteral("  "));
    QCOMPARE(window.round().asked(), 1);
    QCOMPARE(env.sound.played().size(), 1);

    random.values = {15.5 / 40}; // kind 16, February in a normal year
    answer(window.txtQAnswer, QStringLiteral("sunday"));
    QCOMPARE(window.lblVerdict->text(), QStringLiteral("Right! Sunday is correct."));
    QCOMPARE(window.lblVerdict->accessibleDescription(), window.lblVerdict->text());
    QCOMPARE(window.lblScore->text(), QStringLiteral("Score: 1 right out of 1"));
    QCOMPARE(env.clock.delays.last(), 1.0);
    QVERIFY(window.lblQuestion->text().contains(QStringLiteral("Question 2 of 10:\n")));
    QVERIFY(window.lblQuestion->text().endsWith(
        QStringLiteral("How many days are in February (normal year)?")));

    answer(window.txtQAnswer, QStringLiteral("29"));
    QCOMPARE(window.lblVerdict->text(), QStringLiteral("Not quite. Try again!"));
    QCOMPARE(window.round().asked(), 2);
    answer(window.txtQAnswer, QStringLiteral("30"));
    QCOMPARE(window.lblVerdict->text(), QStringLiteral("The answer is 28."));
    QCOMPARE(window.lblScore->text(), QStringLiteral("Score: 1 right out of 2"));
    QCOMPARE(env.sound.played(),
             (QStringList{"ding.wav", "tada.wav", "ding.wav", "uhoh.wav", "uhoh.wav", "ding.wav"}));

    // Stop ends the round but not the window.
    QTest::mouseClick(window.cmdExit, Qt::LeftButton);
    QVERIFY(window.isVisible());
    QVERIFY(!window.roundRunning());
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.lblQuestion->text(),
             QStringLiteral("You stopped the quiz. You got 1 right out of 2."));
    QVERIFY(!window.txtQAnswer->isEnabled());

    // A whole round of ten ends with the score.
    QTest::mouseClick(window.cmdStartQuiz, Qt::LeftButton);
    for (int i = 0; i < QuizRound::Length; ++i) {
        QVERIFY(window.roundRunning());
        const Question &q = window.round().question();
        answer(window.txtQAnswer, i < 8 ? q.accepted.value(0, q.answer) : QStringLiteral("?"));
        if (i >= 8)
            answer(window.txtQAnswer, QStringLiteral("?"));
    }
    QVERIFY(!window.roundRunning());
    QCOMPARE(window.lblQuestion->text(), QStringLiteral("You got 8 right out of 10!\nGreat work!"));
    QCOMPARE(window.lblQuestion->accessibleDescription(), window.lblQuestion->text());
    QCOMPARE(env.sound.played().last(), QStringLiteral("tada.wav"));

    // Leaving for another part stops a round on the way.
    QTest::mouseClick(window.cmdStartQuiz, Qt::LeftButton);
    QTest::mouseClick(window.cmdMenu[frmCal::Display], Qt::LeftButton);
    QVERIFY(!window.roundRunning());
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
}

void tst_frmcal::readingRoundAboutTheShownMonth()
{
    TestEnvironment env;
    frmCal window;
    window.show();
    window.showMonth(2, 2015);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    ScriptedRandom random;
    SetRandomSource(&random);
    QTest::mouseClick(window.cmdMenu[frmCal::Reading], Qt::LeftButton);
    QVERIFY(window.picCalendar->isVisible());
    QCOMPARE(window.shownMonth().rows, 4);

    random.values = {2.5 / 9, 0.3, 0.99}; // kind 3: the last Tuesday
    QTest::mouseClick(window.cmdStartReading, Qt::LeftButton);
    QVERIFY(window.lblRQuestion->text().endsWith(
        QStringLiteral("\nWhat is the date of the last Tuesday in February?")));
    // The month stays put while its questions are asked.
    QVERIFY(!window.spnMonth->isEnabled());
    QVERIFY(!window.hsbYear->isEnabled());
    answer(window.txtAnswer, QStringLiteral("February 24th"));
    QCOMPARE(window.lblRVerdict->text(), QStringLiteral("Right! 24 is correct."));
    QCOMPARE(window.lblRScore->text(), QStringLiteral("Score: 1 right out of 1"));
    for (int i = 1; i < QuizRound::Length; ++i) {
        const Question &q = window.round().question();
        QVERIFY2(q.text.contains(QStringLiteral("February")), qPrintable(q.text));
        answer(window.txtAnswer, q.accepted.value(0, q.answer));
    }
    QCOMPARE(window.lblRQuestion->text(),
             QStringLiteral("You got 10 right out of 10!\nPerfect! You are a calendar expert!"));
    QVERIFY(window.spnMonth->isEnabled());
    QVERIFY(window.hsbYear->isEnabled());
}

void tst_frmcal::printing()
{
    TestEnvironment env;
    QTemporaryDir folder;
    env.dialogs.pdfFolder = folder.path();
    frmCal window;
    window.show();
    window.showMonth(11, 2026);

    env.dialogs.answers = {QMessageBox::Cancel};
    QTest::mouseClick(window.cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].title, QStringLiteral("Print Calendar"));
    QCOMPARE(env.dialogs.messages[0].text,
             QStringLiteral("Make sure printer is on-line and ready."));
    QVERIFY(env.dialogs.printed.isEmpty());

    env.dialogs.answers = {QMessageBox::Ok};
    QTest::mouseClick(window.cmdPrint, Qt::LeftButton);
    QCOMPARE(env.dialogs.printed, QStringList{"Calendar for November 2026"});
    QCOMPARE(env.dialogs.pdfFiles.size(), 1);
    QVERIFY(QFileInfo(env.dialogs.pdfFiles[0]).size() > 1000);

    // The month fills one page, below the credit line and the title.
    const PrintDocument page = CalendarPrint::document(window.data(), window.shownMonth());
    const auto pages = page.layOut();
    QCOMPARE(pages.size(), 1);
    QCOMPARE(pages[0][0].text, PrintDocument::creditLine());
    QCOMPARE(pages[0].last().height, CalendarPrint::MonthHeight);
    QVERIFY(pages[0].last().y + pages[0].last().height <= PrintDocument::Bottom);
}

void tst_frmcal::damagedFileClosesTheWindow()
{
    TestEnvironment env;
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("calendar.dat")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\"January\",\"January\",31\n\"February (normal year)\",\"February\",\"x\"\n");
    file.close();
    SetDataPath(folder.path());

    QPointer<frmCal> window = new frmCal;
    QSignalSpy closed(window.data(), &ActivityWindow::closed);
    window->show();
    QTRY_COMPARE(closed.count(), 1);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages[0].text.contains(QStringLiteral("calendar.dat")));
    QTRY_VERIFY(window.isNull());
}

void tst_frmcal::helpAndExit()
{
    TestEnvironment env;
    QPointer<frmCal> window = new frmCal;
    window->show();
    QTest::mouseClick(window->cmdHelp, Qt::LeftButton);
    QTest::keyClick(window, Qt::Key_F1);
    QCOMPARE(env.help.topics, (QStringList{"calendar", "calendar"}));
    QSignalSpy closed(window.data(), &ActivityWindow::closed);
    QTest::mouseClick(window->cmdExit, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(window.isNull());
}

QTEST_MAIN(tst_frmcal)
#include "tst_frmcal.moc"
