// SPDX-License-Identifier: GPL-3.0-or-later
#include "lemonade/frmLemon.h"
#include "lemonade/LemonStand.h"
#include "lemonade/ProfitChart.h"
#include "lemonade/SummerPapers.h"
#include "support/TestDoubles.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

// The lemonade stand's window, played as a pupil would with keys and clicks.
class tst_lemonade_windows : public QObject {
    Q_OBJECT
private slots:
    void opensReadyToStart();
    void aShortSummerByKeyboard();
    void shoppingBeyondTheMoneyIsRefused();
    void stopEndsTheSummerEarly();
    void aPupilWhoRunsOutOfMoneyFinishesKindly();
    void theSeasonPapers();
};

namespace {

struct Window {
    frmLemon *w = new frmLemon;
    explicit Window(qint64 seed = 11)
    {
        w->show();
        QApplication::setActiveWindow(w);
        if (!QTest::qWaitForWindowActive(w))
            qWarning("the lemonade window did not become active");
        // After the window, which seeds from the clock, so the summer is always the same.
        Randomize(seed);
    }
    ~Window()
    {
        w->setAttribute(Qt::WA_DeleteOnClose, false);
        delete w;
    }
    // Types a number into a spin box as a pupil would, replacing what was there.
    void type(QSpinBox *spin, int value) const
    {
        spin->setFocus();
        spin->selectAll();
        QTest::keyClicks(spin, QString::number(value));
    }
    void plan(int bags, int stacks, int posters, int price) const
    {
        type(w->spnLemons, bags);
        type(w->spnCups, stacks);
        type(w->spnPosters, posters);
        type(w->spnPrice, price);
    }
};

} // namespace

void tst_lemonade_windows::opensReadyToStart()
{
    TestEnvironment env;
    Window win;
    frmLemon *w = win.w;
    QCOMPARE(w->page(), frmLemon::Page::Start);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(QApplication::focusWidget(), w->cmdNew);
    QVERIFY(w->optLong->isChecked());
    QCOMPARE(w->lblMoney->text(), QStringLiteral("A summer of 10 weeks"));
    for (QWidget *control : w->findChildren<QWidget *>())
        if (control->focusPolicy() != Qt::NoFocus && !control->objectName().isEmpty() &&
            !control->objectName().startsWith(QLatin1String("qt_")))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    for (QLabel *label : {w->lblForecast, w->lblReasons, w->lblTotal, w->lblCost, w->lblTip})
        QCOMPARE(label->textFormat(), Qt::PlainText);
    QTest::keyClick(w, Qt::Key_F1);
    QTest::mouseClick(w->cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList({"lemonade", "lemonade"}));
    // The option reacts to its change, however it was made.
    w->optShort->setChecked(true);
    QCOMPARE(w->lblMoney->text(), QStringLiteral("A summer of 5 weeks"));
    QTest::mouseClick(w->cmdExit, Qt::LeftButton);
    QVERIFY(!w->isVisible());
}

void tst_lemonade_windows::aShortSummerByKeyboard()
{
    TestEnvironment env;
    QTemporaryDir pdfs;
    env.dialogs.pdfFolder = pdfs.path();
    Window win;
    frmLemon *w = win.w;
    QTest::keyClick(w, Qt::Key_5, Qt::AltModifier);
    QTRY_VERIFY(w->optShort->isChecked());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(w->isPlaying());
    QCOMPARE(w->page(), frmLemon::Page::Plan);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("&Stop"));
    QVERIFY(!w->cmdNew->isEnabled() && !w->optLong->isEnabled());
    QCOMPARE(w->lblWeek->text(), QStringLiteral("Week 1 of 5"));
    QCOMPARE(w->lblMoney->text(), QStringLiteral("Money: $20.00"));
    QCOMPARE(QApplication::focusWidget(), w->spnLemons);

    for (int week = 1; week <= Summer::ShortSummer; ++week) {
        const Summer &s = w->summer();
        QCOMPARE(w->lblForecast->text(), QStringLiteral("Forecast for week %1: %2, %3°F")
                                             .arg(week)
                                             .arg(WeatherName(s.forecast()))
                                             .arg(s.forecastTemperature()));
        QCOMPARE(w->picStand->weather(), s.forecast());
        win.plan(3, 4, 1, FairPrice(s.forecastTemperature()));
        const qint64 cost = 3 * s.bagPrice() + 4 * s.stackPrice() + 50;
        QVERIFY2(w->lblCost->text().startsWith(
                     QStringLiteral("Shopping costs %1.").arg(WeekReport::money(cost))),
                 qPrintable(w->lblCost->text()));
        const qint64 before = s.money();
        QTest::keyClick(w, Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(w->page(), frmLemon::Page::Selling);
        QVERIFY(w->timSell->isActive());
        const WeekReport r = s.reports().last();
        QCOMPARE(w->picStand->weather(), r.weather);
        QCOMPARE(w->picStand->walkers() > 0, r.came > 0);
        // While the customers come, the panel shows what the shopping left.
        QCOMPARE(w->lblMoney->text(), QStringLiteral("Money: ") + WeekReport::money(before - cost));
        if (week % 2) {
            QCOMPARE(QApplication::focusWidget(), w->cmdSkip);
            QTest::keyClick(w->cmdSkip, Qt::Key_Return);
        } else {
            for (int i = 0; i < frmLemon::SellingFrames; ++i)
                w->timSell_Timer();
            QCOMPARE(w->lblSelling->text().section(u'\n', -1),
                     QStringLiteral("Cups sold: %1").arg(r.sold));
        }
        QVERIFY(!w->timSell->isActive());
        QCOMPARE(w->page(), frmLemon::Page::Report);
        QCOMPARE(w->lblSold->text(), QString::number(r.sold));
        QCOMPARE(w->lblCame->text(), QString::number(r.came));
        QCOMPARE(w->lblMoneyBefore->text(), WeekReport::money(before));
        QCOMPARE(w->lblSpent->text(), WeekReport::money(cost));
        QCOMPARE(w->lblTaken->text(), WeekReport::money(qint64(r.sold) * r.price));
        QCOMPARE(w->lblMoneyNow->text(), WeekReport::money(before - cost + r.taken));
        QCOMPARE(w->lblMoney->text(), QStringLiteral("Money: ") + w->lblMoneyNow->text());
        QCOMPARE(w->lblReasons->text(), r.reasons().join(u'\n'));
        QCOMPARE(w->lblProfit->accessibleDescription().left(12),
                 r.profit() < 0 ? QStringLiteral("Loss this we") : QStringLiteral("Profit this "));
        QCOMPARE(env.sound.played().last(),
                 r.profit() > 0 ? QStringLiteral("tada.wav") : QStringLiteral("uhoh.wav"));
        QCOMPARE(w->cmdNext->text(), week < Summer::ShortSummer
                                         ? QStringLiteral("Next &Week")
                                         : QStringLiteral("See the &End of Summer"));
        QCOMPARE(QApplication::focusWidget(), w->cmdNext);
        QTest::keyClick(w->cmdNext, Qt::Key_Return);
    }

    QCOMPARE(w->page(), frmLemon::Page::End);
    QVERIFY(!w->isPlaying());
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->cmdNew->isEnabled());
    const Summer &s = w->summer();
    QCOMPARE(w->picChart->profits().size(), Summer::ShortSummer);
    QCOMPARE(w->picChart->profits()[s.bestWeek()], s.reports()[s.bestWeek()].profit());
    QVERIFY(w->lblTotal->text().endsWith(WeekReport::money(s.totalProfit())));
    QVERIFY(w->lblBest->text().startsWith(
        QStringLiteral("Best week: week %1, ").arg(s.bestWeek() + 1)));

    QCOMPARE(QApplication::focusWidget(), w->txtName);
    QTest::keyClicks(w->txtName, QStringLiteral("<b>Sam</b>"));
    QTest::keyClick(w->txtName, Qt::Key_Return);
    QCOMPARE(env.dialogs.printed, QStringList{QStringLiteral("Lemonade Stand: My Summer")});
    QCOMPARE(env.dialogs.pdfFiles.size(), 1);
    QVERIFY(QFileInfo(env.dialogs.pdfFiles.first()).size() > 1000);

    // A new summer starts afresh with the chosen length.
    w->optLong->setChecked(true);
    QTest::mouseClick(w->cmdNew, Qt::LeftButton);
    QCOMPARE(w->lblWeek->text(), QStringLiteral("Week 1 of 10"));
    QCOMPARE(w->summer().money(), Summer::StartMoney);
    QVERIFY(w->txtName->text().isEmpty());
}

void tst_lemonade_windows::shoppingBeyondTheMoneyIsRefused()
{
    TestEnvironment env;
    Window win;
    frmLemon *w = win.w;
    w->cmdNew->click();
    const Weather forecast = w->summer().forecast();
    win.plan(9, 20, 10, 50);
    QVERIFY(w->lblCost->text().endsWith(QStringLiteral("but you have only $20.00!")));
    // Typed numbers beyond the limits are not taken.
    win.type(w->spnLemons, 999);
    QVERIFY(w->spnLemons->value() <= Summer::MaxBags);
    win.type(w->spnLemons, 9);
    w->cmdSell->click();
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].title, QStringLiteral("Open the Stand"));
    QVERIFY(env.dialogs.messages[0].text.contains(QStringLiteral("you have only $20.00")));
    QCOMPARE(w->page(), frmLemon::Page::Plan);
    QCOMPARE(w->summer().week(), 1);
    QCOMPARE(w->summer().money(), Summer::StartMoney);
    QCOMPARE(w->summer().forecast(), forecast);
    QVERIFY(!w->timSell->isActive());

    win.plan(2, 2, 0, 30);
    w->cmdSell->click();
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(w->page(), frmLemon::Page::Selling);
}

void tst_lemonade_windows::stopEndsTheSummerEarly()
{
    TestEnvironment env;
    Window win;
    frmLemon *w = win.w;
    // Stopping before any week was sold goes back to the start.
    w->cmdNew->click();
    w->cmdExit->click();
    QCOMPARE(w->page(), frmLemon::Page::Start);
    QCOMPARE(w->cmdExit->text(), QStringLiteral("E&xit"));
    QVERIFY(w->isVisible());

    w->cmdNew->click();
    for (int week = 0; week < 2; ++week) {
        win.plan(2, 3, 0, 30);
        w->cmdSell->click();
        w->cmdSkip->click();
        w->cmdNext->click();
    }
    win.plan(1, 1, 0, 30);
    w->cmdSell->click();
    QVERIFY(w->timSell->isActive());
    QTest::keyClick(w, Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!w->timSell->isActive());
    QCOMPARE(w->page(), frmLemon::Page::End);
    QCOMPARE(w->picChart->profits().size(), 3);
    QCOMPARE(w->lblWeek->text(), QStringLiteral("The summer is over"));
    w->cmdExit->click();
    QVERIFY(!w->isVisible());
}

void tst_lemonade_windows::aPupilWhoRunsOutOfMoneyFinishesKindly()
{
    TestEnvironment env;
    Window win(23);
    frmLemon *w = win.w;
    w->cmdNew->click();
    // Far too dear and far too much: the money is soon gone.
    int weeks = 0;
    while (!w->summer().isBroke() && w->isPlaying()) {
        const Summer &s = w->summer();
        const int bags = int(qMin<qint64>(Summer::MaxBags, s.money() / s.bagPrice()));
        win.plan(bags, 0, 0, Summer::MaxPrice);
        if (s.cups() == 0 && bags > 0)
            win.plan(bags - 1, 1, 0, Summer::MaxPrice);
        w->cmdSell->click();
        w->cmdSkip->click();
        w->cmdNext->click();
        ++weeks;
    }
    QVERIFY(w->isPlaying());
    QVERIFY(weeks < Summer::LongSummer);
    QVERIFY(w->lblTip->isVisibleTo(w));
    QVERIFY(w->lblTip->text().contains(QStringLiteral("You can still finish the summer")));
    QVERIFY(w->lblForecast->accessibleDescription().contains(w->lblTip->text()));
    // With nothing bought, every week still runs to the end of the summer.
    while (w->isPlaying()) {
        win.plan(0, 0, 0, 25);
        w->cmdSell->click();
        QVERIFY(env.dialogs.messages.isEmpty());
        w->cmdSkip->click();
        w->cmdNext->click();
    }
    QCOMPARE(w->summer().reports().size(), Summer::LongSummer);
    QVERIFY(w->lblAdvice->text().startsWith(QStringLiteral("You ran out of money this summer.")));
    QVERIFY(w->lblTotal->text().startsWith(QStringLiteral("Total loss: -$")));
}

void tst_lemonade_windows::theSeasonPapers()
{
    TestEnvironment env;
    Randomize(5);
    Summer summer(Summer::ShortSummer);
    while (!summer.isOver())
        summer.runWeek(Plan{2, 3, 0, FairPrice(summer.forecastTemperature())});
    const PrintDocument paper = SummerPapers::document(summer, QStringLiteral("  Sam "));
    QStringList lines;
    int drawings = 0;
    for (const auto &page : paper.layOut())
        for (const auto &item : page) {
            lines << item.text;
            drawings += item.drawing ? 1 : 0;
        }
    QCOMPARE(drawings, 2);
    const QStringList weeks = lines.filter(QRegularExpression(QStringLiteral("^\\d+ ")));
    QCOMPARE(weeks.size(), summer.reports().size());
    for (int i = 0; i < weeks.size(); ++i)
        QVERIFY(weeks[i].endsWith(u' ' + WeekReport::money(summer.reports()[i].profit())));
    QVERIFY(
        lines.contains(QStringLiteral("Money at the end: ") + WeekReport::money(summer.money())));
    const QString achieved = SummerPapers::achievement(summer);
    QVERIFY(achieved.startsWith(QStringLiteral("for running a lemonade stand for 5 weeks and ")));
    QCOMPARE(achieved.contains(QStringLiteral("making a profit of")), summer.totalProfit() > 0);

    // The chart copes with no weeks, flat weeks and sums far beyond any summer.
    QImage image(300, 200, QImage::Format_ARGB32);
    QPainter painter(&image);
    for (const QList<qint64> &profits : {QList<qint64>{}, QList<qint64>{0, 0},
                                         QList<qint64>{std::numeric_limits<qint64>::max() / 4, -5}})
        ProfitChart::paint(painter, QRectF(0, 0, 300, 200), profits, QFont());
}

QTEST_MAIN(tst_lemonade_windows)
#include "tst_lemonade_windows.moc"
