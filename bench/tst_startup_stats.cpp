// SPDX-License-Identifier: GPL-3.0-or-later
#include "StartupStats.h"

#include <cmath>
#include <QTest>

// The figures the start-up benchmark prints: medians, the probes' reports and the goal ratios.
class tst_StartupStats : public QObject {
    Q_OBJECT
private slots:
    void median_data();
    void median();
    void medianOfNothing();
    void shownAt_data();
    void shownAt();
    void ratio();
};

void tst_StartupStats::median_data()
{
    QTest::addColumn<std::vector<double>>("values");
    QTest::addColumn<double>("expected");
    QTest::newRow("one") << std::vector<double>{42.5} << 42.5;
    QTest::newRow("odd, unsorted") << std::vector<double>{9, 1, 5} << 5.0;
    QTest::newRow("even takes the mean of the middle two")
        << std::vector<double>{80, 100, 90, 300} << 95.0;
    QTest::newRow("one slow outlier does not move it")
        << std::vector<double>{100, 101, 99, 5000, 100} << 100.0;
    QTest::newRow("repeated values") << std::vector<double>{7, 7, 7, 7} << 7.0;
}

void tst_StartupStats::median()
{
    QFETCH(std::vector<double>, values);
    QFETCH(double, expected);
    const auto result = StartupStats::median(values);
    QVERIFY(result.has_value());
    QCOMPARE(*result, expected);
}

void tst_StartupStats::medianOfNothing()
{
    QVERIFY(!StartupStats::median({}).has_value());
}

void tst_StartupStats::shownAt_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<qlonglong>("expected"); // -1: no report
    QTest::newRow("alone") << QByteArray("shown 123456789\n") << 123456789LL;
    QTest::newRow("no newline at the end") << QByteArray("shown 5") << 5LL;
    QTest::newRow("after other output") << QByteArray("hello\nshown 77\n") << 77LL;
    QTest::newRow("the first report counts") << QByteArray("shown 1\nshown 2\n") << 1LL;
    QTest::newRow("nothing") << QByteArray() << -1LL;
    QTest::newRow("crashed before the window") << QByteArray("loading fonts\n") << -1LL;
    QTest::newRow("no number") << QByteArray("shown \n") << -1LL;
    QTest::newRow("not a number") << QByteArray("shown soon\n") << -1LL;
    QTest::newRow("trailing junk") << QByteArray("shown 12ms\n") << -1LL;
    QTest::newRow("negative") << QByteArray("shown -4\n") << -1LL;
    QTest::newRow("too large") << QByteArray("shown 99999999999999999999999\n") << -1LL;
    QTest::newRow("tag inside a line") << QByteArray("not shown 12\n") << -1LL;
}

void tst_StartupStats::shownAt()
{
    QFETCH(QByteArray, output);
    QFETCH(qlonglong, expected);
    const auto result =
        StartupStats::shownAt(std::string_view(output.constData(), std::size_t(output.size())));
    if (expected < 0) {
        QVERIFY(!result.has_value());
    } else {
        QVERIFY(result.has_value());
        QCOMPARE(*result, expected);
    }
}

void tst_StartupStats::ratio()
{
    const auto within = StartupStats::ratio(120, 100, 1.3);
    QVERIFY(within.valid);
    QCOMPARE(within.value, 1.2);
    QVERIFY(within.met);

    const auto onTheGoal = StartupStats::ratio(150, 100, 1.5);
    QVERIFY(onTheGoal.met);

    const auto beyond = StartupStats::ratio(131, 100, 1.3);
    QVERIFY(beyond.valid);
    QVERIFY(!beyond.met);

    QVERIFY(StartupStats::ratio(1, 2, 1.3).met);
    QVERIFY(!StartupStats::ratio(100, 0, 1.3).valid);
    QVERIFY(!StartupStats::ratio(100, -1, 1.3).valid);
    QVERIFY(!StartupStats::ratio(100, std::nan(""), 1.3).valid);
}

QTEST_APPLESS_MAIN(tst_StartupStats)
#include "tst_startup_stats.moc"
