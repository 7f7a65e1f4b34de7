// SPDX-License-Identifier: GPL-3.0-or-later
#include "candy/CandyMap.h"
#include "candy/CandyPapers.h"
#include "candy/frmCandy.h"
#include "candy/frmDayReport.h"
#include "candy/WeatherSign.h"
#include "shell/core/Settings.h"
#include "shell/Printing.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

// The candy drive window and its reports, driven as a pupil would with keys and the mouse.
class tst_candy_windows : public QObject {
    Q_OBJECT
private slots:
    void teamSetting_data();
    void teamSetting();
    void wholeContestByKeyboard();
    void markersDragOntoStreets();
    void stopAsksFirst();
};

namespace {

struct Window {
    frmCandy *w = new frmCandy;
    Window()
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the candy window did not become active");
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
    // Starts a contest whose draws are always the same.
    void start() const
    {
        Randomize(77);
        QTest::keyClick(w->cmdNew, Qt::Key_Return);
    }
};

} // namespace

void tst_candy_windows::teamSetting_data()
{
    QTest::addColumn<qint16>("stored");
    QTest::addColumn<int>("teams");
    QTest::newRow("reference") << qint16(3) << 3;
    QTest::newRow("one") << qint16(1) << 1;
    QTest::newRow("zero") << qint16(0) << 1;
    QTest::newRow("negative") << qint16(-32768) << 1;
    QTest::newRow("too many") << qint16(9) << 5;
}

void tst_candy_windows::teamSetting()
{
    QFETCH(qint16, stored);
    QFETCH(int, teams);
    TestEnvironment env;
    TheSettings().candy.value = stored;
    Window win;
    frmCandy *w = win.w;
    QVERIFY(w->optTeams[teams - 1]->isChecked());
    QCOMPARE(TheSettings().candy.value, qint16(teams));
    for (int t = 0; t < Contest::MaxTeams; ++t)
        QCOMPARE(w->cboStreet[t]->isVisible(), t < teams);
    // Before a contest only the count, New Contest, Help and Exit do anything.
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    for (QWidget *idle : QList<QWidget *>{w->cmdSell, w->cmdReport, w->cmdPrint, w->cboStreet[0]})
        QVERIFY2(!idle->isEnabled(), qPrintable(idle->objectName()));
    QCOMPARE(QApplication::focusWidget(), w->cmdNew);
    for (QWidget *control : w->findChildren<QWidget *>())
        if (qobject_cast<QPushButton *>(control) || qobject_cast<QComboBox *>(control) ||
            qobject_cast<QRadioButton *>(control))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    QTest::keyClick(w, Qt::Key_F1);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("candy")});

    // Choosing another count is kept in the settings and shows that many teams.
    const int other = teams == 5 ? 2 : 5;
    w->optTeams[other - 1]->setChecked(true);
    QCOMPARE(TheSettings().candy.value, qint16(other));
    QCOMPARE(w->cboStreet[4]->isVisible(), other == 5);
    win.start();
    QCOMPARE(w->contest()->teams(), other);
    // The count cannot change in the middle of a contest.
    QVERIFY(!w->optTeams[0]->isEnabled());
}

void tst_candy_windows::wholeContestByKeyboard()
{
    TestEnvironment env;
    QTemporaryDir pdfs;
    env.dialogs.pdfFolder = pdfs.path();
    TheSettings().candy.value = 2;
    Window win;
    frmCandy *w = win.w;
    win.start();
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(w->lblDay->text(), QStringLiteral("Day 1 of 10"));
    QCOMPARE(QApplication::focusWidget(), w->cboStreet[0]);

    QList<QMap<QString, QString>> shown;
    env.dialogs.onRun = [&shown](QDialog &dialog) {
        auto *report = qobject_cast<frmDayReport *>(&dialog);
        QMap<QString, QString> page;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            if (!label->isHidden())
                page[label->objectName()] = label->text();
        page[QStringLiteral("teams")] = QString::number(report->tblTeams->rowCount());
        page[QStringLiteral("previous")] = report->cmdPrevious->isEnabled() ? "on" : "off";
        // The pupil leafs back to the first day and forward again.
        while (report->cmdPrevious->isEnabled())
            QTest::mouseClick(report->cmdPrevious, Qt::LeftButton);
        page[QStringLiteral("first")] = report->lblTitle->text();
        while (report->cmdNext->isEnabled())
            QTest::mouseClick(report->cmdNext, Qt::LeftButton);
        shown.append(page);
        QTest::keyClick(report->cmdOK, Qt::Key_Return);
        return dialog.result();
    };

    for (int day = 1; day <= Contest::Days; ++day) {
        // Team 1 stays at school: the day cannot start and the message says who waits.
        QTest::keyClick(w->cboStreet[1], Qt::Key_Down);
        QVERIFY(!w->cmdSell->isEnabled());
        QVERIFY(w->lblMessage->text().contains(QStringLiteral("Team 1")));
        QTest::mouseClick(w->cmdSell, Qt::LeftButton);
        QCOMPARE(w->contest()->reports().size(), day - 1);
        // Arrow keys walk the lists; the two teams take different streets each day.
        for (int i = 0; i < day % 3 + 2; ++i)
            QTest::keyClick(w->cboStreet[0], Qt::Key_Down);
        QCOMPARE(w->contest()->assignment(0), day % 3 + 1);
        QCOMPARE(w->contest()->assignment(1), 0);
        QVERIFY(w->cmdSell->isEnabled());
        w->cmdSell->setFocus();
        QTest::keyClick(w->cmdSell, Qt::Key_Return);
        QCOMPARE(w->contest()->reports().size(), day);
        const Contest::DayReport &r = w->contest()->reports().last();
        const QMap<QString, QString> &page = shown.last();
        QVERIFY(page[QStringLiteral("lblTitle")].startsWith(
            QStringLiteral("Day %1 of 10 - ").arg(day)));
        QVERIFY(page[QStringLiteral("first")].startsWith(QStringLiteral("Day 1 of 10 - ")));
        QCOMPARE(page[QStringLiteral("teams")], QStringLiteral("4"));
        QCOMPARE(page[QStringLiteral("previous")],
                 day > 1 ? QStringLiteral("on") : QStringLiteral("off"));
        QVERIFY(page[QStringLiteral("lblTotals")].contains(
            QStringLiteral("%1 boxes ($%2)").arg(r.totalOurs).arg(r.totalOurs * 2)));
        QCOMPARE(page.contains(QStringLiteral("lblWinner")), day == Contest::Days);
        if (day < Contest::Days) {
            // A new morning: both teams back at school, the next day's number shown.
            QCOMPARE(w->cboStreet[0]->currentIndex(), 0);
            QCOMPARE(w->lblDay->text(), QStringLiteral("Day %1 of 10").arg(day + 1));
            QCOMPARE(w->picWeather->weather(), std::optional(w->contest()->weather()));
            QCOMPARE(w->picWeather->accessibleName(),
                     Contest::weatherName(w->contest()->weather()));
            QCOMPARE(QApplication::focusWidget(), w->cboStreet[0]);
        }
    }
    QCOMPARE(env.dialogs.ranWindows.size(), Contest::Days);
    QCOMPARE(env.sound.played().count(QStringLiteral("ding.wav")), Contest::Days);
    const bool won = w->contest()->winner() == Contest::Winner::Ours;
    QVERIFY(
        env.sound.played().contains(won ? QStringLiteral("tada.wav") : QStringLiteral("uhoh.wav")));
    QCOMPARE(shown.last()[QStringLiteral("lblWinner")], CandyPapers::verdict(*w->contest()));
    QCOMPARE(w->lblWeather->text(), CandyPapers::verdict(*w->contest()));
    QVERIFY(w->lblOurs->text().endsWith(
        CandyPapers::boxes(w->contest()->totalBoxes(Contest::Side::Ours))));

    // The contest is over: the teams rest, the certificate can be printed.
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(!w->cmdSell->isEnabled());
    QVERIFY(!w->cboStreet[0]->isEnabled());
    QVERIFY(w->optTeams[0]->isEnabled());
    QCOMPARE(QApplication::focusWidget(), w->cmdPrint);
    QTest::keyClick(w->cmdPrint, Qt::Key_Return);
    QCOMPARE(env.dialogs.printed,
             QStringList{QStringLiteral("Candy Drive Certificate and Report")});
    QCOMPARE(env.dialogs.pdfFiles.size(), 1);

    // The printed report's totals are those of the days.
    QStringList lines;
    for (const auto &page : CandyPapers::document(*w->contest()).layOut())
        for (const PrintDocument::Placed &placed : page)
            lines.append(placed.text.simplified());
    const int ours = w->contest()->totalBoxes(Contest::Side::Ours);
    const int theirs = w->contest()->totalBoxes(Contest::Side::Theirs);
    QVERIFY(lines.contains(QStringLiteral("Total boxes %1 %2").arg(ours).arg(theirs)));
    QVERIFY(lines.contains(QStringLiteral("Money raised %1 %2")
                               .arg(CandyPapers::money(ours * 2), CandyPapers::money(theirs * 2))));
    QVERIFY(lines.contains(CandyPapers::verdict(*w->contest())));
    QCOMPARE(CandyPapers::money(1234567), QStringLiteral("$1,234,567"));
    QCOMPARE(CandyPapers::boxes(1), QStringLiteral("1 box ($2)"));

    // A new contest starts again from day 1.
    win.start();
    QCOMPARE(w->contest()->day(), 1);
    QCOMPARE(w->lblOurs->text(), QStringLiteral("Our Class: 0 boxes ($0)"));
    QVERIFY(!w->cmdPrint->isEnabled());
    QVERIFY(!w->cmdReport->isEnabled());
}

void tst_candy_windows::markersDragOntoStreets()
{
    TestEnvironment env;
    TheSettings().candy.value = 3;
    Window win;
    frmCandy *w = win.w;
    CandyMap *map = w->picMap;
    // No markers to drag before the contest starts.
    QCOMPARE(map->markerAt(map->markerCentre(0)), -1);
    win.start();
    auto drag = [map](int team, QPointF to) {
        const QPoint from = map->markerCentre(team).toPoint();
        QTest::mousePress(map, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, map->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(map, &move);
        QTest::mouseRelease(map, Qt::LeftButton, {}, to.toPoint());
    };
    for (int t = 0; t < 3; ++t)
        QCOMPARE(map->markerAt(map->markerCentre(t)), t);
    drag(1, map->streetArea(4).center());
    QCOMPARE(w->contest()->assignment(1), 4);
    QCOMPARE(w->cboStreet[1]->currentText(), w->contest()->streets()[4].name);
    QCOMPARE(map->streetAt(map->markerCentre(1)), 4);
    // A second team on the same street stands beside the first.
    drag(2, map->streetArea(4).topLeft() + QPointF(4, 4));
    QCOMPARE(w->contest()->assignment(2), 4);
    QVERIFY(QLineF(map->markerCentre(1), map->markerCentre(2)).length() > 10);
    drag(0, map->streetArea(6).center());
    QVERIFY(w->cmdSell->isEnabled());
    // Let go over the school, a marker goes back there and the day cannot start.
    drag(2, QPointF(map->width() * 0.75, map->height() * 0.5));
    QCOMPARE(w->contest()->assignment(2), -1);
    QCOMPARE(w->cboStreet[2]->currentIndex(), 0);
    QVERIFY(!w->cmdSell->isEnabled());
    QCOMPARE(map->streetText(0),
             w->contest()->streets()[0].name + QStringLiteral(": 11 small houses, 3 big houses"));
    QCOMPARE(map->streetText(-1), QString());
    // Every street can be found where it is drawn, at any size.
    for (QSize size : {QSize(300, 240), QSize(1400, 900)}) {
        map->resize(size);
        for (int s = 0; s < w->contest()->streets().size(); ++s)
            QCOMPARE(map->streetAt(map->streetArea(s).center()), s);
    }
}

void tst_candy_windows::stopAsksFirst()
{
    TestEnvironment env;
    Window win;
    frmCandy *w = win.w;
    win.start();
    w->cboStreet[0]->setCurrentIndex(1);
    w->cboStreet[1]->setCurrentIndex(2);
    w->cboStreet[2]->setCurrentIndex(3);
    w->cmdSell->click();
    env.dialogs.answers = {QMessageBox::No, QMessageBox::Yes};
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Question);
    QVERIFY(w->isRunning());
    QCOMPARE(w->contest()->reports().size(), 1);
    QVERIFY(w->isVisible());
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QVERIFY(!w->isRunning());
    QVERIFY(!w->contest());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->cmdNew->isEnabled());
    QVERIFY(!w->cmdReport->isEnabled());
    QVERIFY(w->isVisible());
    // Exit, now that nothing runs, closes the window without asking.
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QCOMPARE(env.dialogs.messages.size(), 2);
    QVERIFY(!w->isVisible());
}

QTEST_MAIN(tst_candy_windows)
#include "tst_candy_windows.moc"
