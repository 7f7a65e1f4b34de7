// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "graphs/ChartGeometry.h"
#include "graphs/Graph.h"
#include "graphs/GraphFolder.h"
#include "graphs/Lesson.h"

#include "shell/core/DataPath.h"

#include <numeric>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

// The graph record, its file, the scale and data checks, the chart geometry and the lesson.
class tst_graphs_rules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void newGraph();
    void roundTrip_data();
    void roundTrip();
    void writtenForm();
    void damagedFiles_data();
    void damagedFiles();
    void mangledFilesNeverCrash();
    void checks_data();
    void checks();
    void numbers_data();
    void numbers();
    void names_data();
    void names();
    void ticks_data();
    void ticks();
    void barsAndPoints();
    void pie_data();
    void pie();
    void lessonFiles();
    void folderList();
};

namespace {
Graph sample(int count, const QString &label = QStringLiteral("Day, \"one\""))
{
    Graph graph;
    graph.type = Graph::BarChart;
    graph.title = QStringLiteral("Rain, in \"inches\"");
    graph.grid = true;
    graph.yMin = -2.5f;
    graph.yMax = 1e6f;
    graph.divisions = 7;
    graph.piePercent = true;
    for (int i = 0; i < count; ++i)
        graph.points.append(
            GraphPoint{label + QString::number(i), 0.1f * float(i) - 2.5f, qint16(11 - i)});
    return graph;
}
} // namespace

void tst_graphs_rules::initTestCase()
{
    InitTestProgram();
    SetDataPath(BuiltDataPath());
}

void tst_graphs_rules::newGraph()
{
    const Graph graph;
    QCOMPARE(graph.title, QStringLiteral("Graph/Chart Title"));
    QCOMPARE(graph.xTitle, QStringLiteral("Horizontal Title"));
    QCOMPARE(graph.yTitle, QStringLiteral("Vertical Title"));
    QCOMPARE(graph.yMin, 0.0f);
    QCOMPARE(graph.yMax, 10.0f);
    QCOMPARE(graph.divisions, qint16(10));
    QVERIFY(graph.points.isEmpty());
    QCOMPARE(QLatin1String(GraphRules::NewName), QLatin1String("NEW"));
    QCOMPARE(Graph::typeName(Graph::PieChart), QStringLiteral("Pie Chart"));
}

void tst_graphs_rules::roundTrip_data()
{
    QTest::addColumn<Graph>("graph");
    QTest::newRow("no points") << sample(0);
    QTest::newRow("one point") << sample(1);
    QTest::newRow("twelve points") << sample(12);
    QTest::newRow("empty labels") << sample(3, QString());
    Graph line;
    line.points = {{QStringLiteral("2019"), 27.25f, 1}, {QStringLiteral("a,b,,c"), 0.3f, 0}};
    QTest::newRow("line graph") << line;
}

void tst_graphs_rules::roundTrip()
{
    QFETCH(Graph, graph);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("g.tsg"));
    QVERIFY(GraphFile::write(path, graph));
    FileError error;
    const auto back = GraphFile::read(path, &error);
    QVERIFY2(back, qPrintable(error.message()));
    QCOMPARE(*back, graph);
}

void tst_graphs_rules::writtenForm()
{
    // A pie chart's unused scale is read as it was saved, however odd.
    const auto pie = GraphFile::parse("2\n\"T\"\n\"X\"\n\"Y\"\n0,5,5,0\n0\n0\n");
    QVERIFY(pie);
    QCOMPARE(pie->yMin, 5.0f);
    QCOMPARE(pie->divisions, qint16(1));

    Graph graph;
    graph.type = Graph::PieChart;
    graph.points = {{QStringLiteral("Walk, \"fast\""), 0.1f, 3}};
    graph.piePercent = true;
    QCOMPARE(GraphFile::format(graph),
             QByteArray("2\n\"Graph/Chart Title\"\n\"Horizontal Title\"\n\"Vertical Title\"\n"
                        "0,0,10,10\n1\n\"Walk, \"\"fast\"\"\",0.1,3\n1\n"));
}

void tst_graphs_rules::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray head = "1\n\"T\"\n\"X\"\n\"Y\"\n";
    QByteArray thirteen = head + "0,0,10,10\n13\n";
    for (int i = 0; i < 13; ++i)
        thirteen += "\"p\",1,0\n";
    QTest::newRow("thirteen points") << thirteen + "0\n";
    QTest::newRow("negative count") << head + "0,0,10,10\n-1\n0\n";
    QTest::newRow("unknown kind") << QByteArray("3\n\"T\"\n\"X\"\n\"Y\"\n0,0,10,10\n0\n0\n");
    QTest::newRow("fewer points than counted") << head + "0,0,10,10\n2\n\"a\",1,0\n0\n";
    QTest::newRow("no last line") << head + "0,0,10,10\n1\n\"a\",1,0\n";
    QTest::newRow("a line too many") << head + "0,0,10,10\n0\n0\n0\n";
    QTest::newRow("colour twelve") << head + "0,0,10,10\n1\n\"a\",1,12\n0\n";
    QTest::newRow("text for a value") << head + "0,0,10,10\n1\n\"a\",\"1\",0\n0\n";
    QTest::newRow("minimum not below maximum") << head + "0,5,5,10\n0\n0\n";
    QTest::newRow("no divisions") << head + "0,0,10,0\n0\n0\n";
    QTest::newRow("grid flag two") << head + "2,0,10,10\n0\n0\n";
    QTest::newRow("value too large") << head + "0,0,10,10\n1\n\"a\",1e9,0\n0\n";
    QTest::newRow("maximum too large") << head + "0,0,1e39,10\n0\n0\n";
    QTest::newRow("open quote") << QByteArray("1\n\"T\n\"X\"\n\"Y\"\n0,0,10,10\n0\n0\n");
    QTest::newRow("scale on two lines") << head + "0,0\n10,10\n0\n0\n";
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not text") << QByteArray("\x01\x02\xff\xfe", 4);
}

void tst_graphs_rules::damagedFiles()
{
    QFETCH(QByteArray, content);
    FileError error;
    QVERIFY(!GraphFile::parse(content, &error));
    QVERIFY(error.isSet());
}

void tst_graphs_rules::mangledFilesNeverCrash()
{
    const QByteArray good = GraphFile::format(sample(12));
    Generator random(77);
    for (int round = 0; round < 3000; ++round) {
        QByteArray bad = good;
        for (int changes = 1 + int(random.next() * 4); changes > 0; --changes) {
            const int at = int(random.next() * bad.size());
            const char byte = "0123456789,\"\n-.e x"[int(random.next() * 19)];
            if (random.next() < 0.3)
                bad.remove(at, 1);
            else
                bad[at] = byte;
        }
        // Whatever is read back is a graph that can be written and read again unchanged.
        if (const auto graph = GraphFile::parse(bad)) {
            QVERIFY(graph->points.size() <= Graph::MaxPoints);
            QCOMPARE(GraphFile::parse(GraphFile::format(*graph)), graph);
        }
    }
}

void tst_graphs_rules::checks_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const QString scale = QStringLiteral("Scale Error");
    const QString range = QStringLiteral("Data Range Error");
    QTest::newRow("fits") << 0 << 0.0 << 10.0 << QList<double>{0, 10, 4.5} << QString()
                          << QString();
    QTest::newRow("equal ends") << 0 << 5.0 << 5.0 << QList<double>{} << scale
                                << QStringLiteral("Minimum must be smaller than Maximum.");
    QTest::newRow("ends swapped") << 1 << 9.0 << -9.0 << QList<double>{} << scale
                                  << QStringLiteral("Minimum must be smaller than Maximum.");
    QTest::newRow("below") << 1 << 0.0 << 10.0 << QList<double>{3, -3.25, 11} << range
                           << QStringLiteral("Minimum Data Value =-3.3\nAdjust Minimum on Scale");
    QTest::newRow("above") << 0 << -5.0 << 10.0 << QList<double>{12, -9} << range
                           << QStringLiteral("Maximum Data Value =12\nAdjust Maximum on Scale");
    QTest::newRow("pie has no scale")
        << 2 << 0.0 << 10.0 << QList<double>{50, 20} << QString() << QString();
    QTest::newRow("pie below zero") << 2 << 0.0 << 10.0 << QList<double>{5, -1} << range
                                    << QStringLiteral("A pie chart cannot show a part less than "
                                                      "zero: -1\nUse a line graph or a bar chart "
                                                      "instead.");
}

void tst_graphs_rules::checks()
{
    QFETCH(int, type);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(QList<double>, values);
    QFETCH(QString, title);
    QFETCH(QString, text);
    Graph graph;
    graph.type = qint16(type);
    graph.yMin = float(minimum);
    graph.yMax = float(maximum);
    for (const double v : values)
        graph.points.append(GraphPoint{QStringLiteral("x"), float(v), 0});
    auto problem = GraphRules::scaleProblem(minimum, maximum);
    if (!problem)
        problem = GraphRules::dataRangeProblem(graph);
    if (!problem)
        problem = GraphRules::pieProblem(graph);
    QCOMPARE(problem ? problem->title : QString(), title);
    QCOMPARE(problem ? problem->text : QString(), text);
}

void tst_graphs_rules::numbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << QString() << true << 0.0 << QStringLiteral("0");
    QTest::newRow("minus alone") << QStringLiteral("-") << true << 0.0 << QStringLiteral("0");
    QTest::newRow("point alone") << QStringLiteral(".") << true << 0.0 << QStringLiteral("0");
    QTest::newRow("whole") << QStringLiteral("47") << true << 47.0 << QStringLiteral("47");
    QTest::newRow("tenths") << QStringLiteral("-3.5") << true << -3.5 << QStringLiteral("-3.5");
    QTest::newRow("rounded") << QStringLiteral("2.25") << true << 2.25 << QStringLiteral("2.3");
    QTest::newRow("nearly whole") << QStringLiteral("6.96") << true << 6.96 << QStringLiteral("7");
    QTest::newRow("tiny") << QStringLiteral("-0.04") << true << -0.04 << QStringLiteral("0");
    QTest::newRow("big") << QStringLiteral("123456789") << true << 123456789.0
                         << QStringLiteral("123456789");
    QTest::newRow("two points") << QStringLiteral("1.2.3") << false << 0.0 << QString();
    QTest::newRow("inner minus") << QStringLiteral("1-2") << false << 0.0 << QString();
    QTest::newRow("two minus") << QStringLiteral("--1") << false << 0.0 << QString();
    QTest::newRow("exponent") << QStringLiteral("1e5") << false << 0.0 << QString();
    QTest::newRow("letters") << QStringLiteral("ten") << false << 0.0 << QString();
}

void tst_graphs_rules::numbers()
{
    QFETCH(QString, typed);
    QFETCH(bool, valid);
    QFETCH(double, value);
    QFETCH(QString, shown);
    const auto parsed = GraphRules::parseValue(typed);
    QCOMPARE(parsed.has_value(), valid);
    if (valid) {
        QCOMPARE(*parsed, value);
        QCOMPARE(GraphRules::formatValue(*parsed), shown);
    }
}

void tst_graphs_rules::names_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("My Pets") << QStringLiteral("My Pets");
    QTest::newRow("blanks and extension")
        << QStringLiteral("  rain   days.TSG ") << QStringLiteral("rain days");
    QTest::newRow("slash") << QStringLiteral("a/b") << QString();
    QTest::newRow("backslash") << QStringLiteral("..\\x") << QString();
    QTest::newRow("hidden") << QStringLiteral(".x") << QString();
    QTest::newRow("reserved") << QStringLiteral("new") << QString();
    QTest::newRow("empty") << QStringLiteral("  ") << QString();
    QTest::newRow("too long") << QString(41, u'a') << QString();
}

void tst_graphs_rules::names()
{
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QCOMPARE(GraphRules::cleanName(typed), name);
}

void tst_graphs_rules::ticks_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("divisions");
    QTest::addColumn<QList<double>>("expected");
    QTest::newRow("0 to 10 by 1") << 0.0 << 10.0 << 10
                                  << QList<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("0 to 60 by 10") << 0.0 << 60.0 << 6 << QList<double>{0, 10, 20, 30, 40, 50, 60};
    QTest::newRow("across zero") << -5.0 << 5.0 << 4 << QList<double>{-5, -2.5, 0, 2.5, 5};
    QTest::newRow("thirds") << 0.0 << 1.0 << 3 << QList<double>{0, 1.0 / 3, 2.0 / 3, 1};
    QTest::newRow("no divisions") << 2.0 << 4.0 << 0 << QList<double>{2, 4};
}

void tst_graphs_rules::ticks()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, divisions);
    QFETCH(QList<double>, expected);
    const QList<double> got = ChartGeometry::ticks(minimum, maximum, divisions);
    QCOMPARE(got.size(), expected.size());
    for (qsizetype i = 0; i < got.size(); ++i)
        QVERIFY2(qAbs(got[i] - expected[i]) < 1e-12, qPrintable(QString::number(got[i])));
    // The top tick is the maximum exactly, so the top grid line meets the top of the axis.
    QCOMPARE(got.last(), maximum);
    // Written values keep a line apart: 50 divisions on a short axis are labelled sparsely.
    QCOMPARE(ChartGeometry::labelStride(500, 10, 30), 1);
    QCOMPARE(ChartGeometry::labelStride(500, 50, 30), 4);
    QCOMPARE(ChartGeometry::labelStride(0, 5, 30), 5);
}

void tst_graphs_rules::barsAndPoints()
{
    const QRectF plot(100, 50, 1200, 500);
    Graph graph;
    graph.points = {{QStringLiteral("a"), 2, 0},
                    {QStringLiteral("b"), 5, 1},
                    {QStringLiteral("c"), 10, 2},
                    {QStringLiteral("d"), 0, 3}};
    const QList<QRectF> bars = ChartGeometry::bars(plot, graph);
    QCOMPARE(bars.size(), 4);
    const QList<double> heights{100, 250, 500, 0};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(bars[i].bottom(), plot.bottom());
        QCOMPARE(bars[i].height(), heights[i]);
        QCOMPARE(bars[i].center().x(), 100 + 300 * (i + 0.5));
        QVERIFY(bars[i].width() < 300);
    }
    const QList<QPointF> points = ChartGeometry::linePoints(plot, graph);
    QCOMPARE(points[1], QPointF(550, 550 - 250));
    QCOMPARE(points[2].y(), plot.top());

    // Across zero, bars grow up and down from the zero line.
    graph.yMin = -10;
    graph.yMax = 10;
    graph.points = {{QStringLiteral("up"), 5, 0}, {QStringLiteral("down"), -5, 0}};
    const QList<QRectF> signedBars = ChartGeometry::bars(plot, graph);
    QCOMPARE(signedBars[0], QRectF(signedBars[0].left(), 175, signedBars[0].width(), 125));
    QCOMPARE(signedBars[1], QRectF(signedBars[1].left(), 300, signedBars[1].width(), 125));
    // A scale above zero starts its bars at the bottom.
    QCOMPARE(ChartGeometry::baseline(20, 60), 20.0);
    QCOMPARE(ChartGeometry::baseline(-60, -20), -20.0);
    QVERIFY(ChartGeometry::slantLabels(80, 120));
    QVERIFY(!ChartGeometry::slantLabels(200, 120));
}

void tst_graphs_rules::pie_data()
{
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<QList<int>>("percents");
    QTest::newRow("thirds") << QList<double>{1, 1, 1} << QList<int>{34, 33, 33};
    QTest::newRow("way to school") << QList<double>{8, 10, 6, 4} << QList<int>{29, 36, 21, 14};
    QTest::newRow("one whole") << QList<double>{7} << QList<int>{100};
    QTest::newRow("with a zero") << QList<double>{0, 3, 1} << QList<int>{0, 75, 25};
    QTest::newRow("sevenths") << QList<double>{1, 1, 1, 1, 1, 1, 1}
                              << QList<int>{15, 15, 14, 14, 14, 14, 14};
    QTest::newRow("uneven twelve") << QList<double>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12.5}
                                   << QList<int>{1, 3, 4, 5, 6, 8, 9, 10, 11, 13, 14, 16};
}

void tst_graphs_rules::pie()
{
    QFETCH(QList<double>, values);
    QFETCH(QList<int>, percents);
    Graph graph;
    graph.type = Graph::PieChart;
    for (const double v : values)
        graph.points.append(GraphPoint{QStringLiteral("x"), float(v), 0});
    const auto slices = ChartGeometry::pieSlices(graph);
    QCOMPARE(slices.size(), values.size());
    int turned = 0;
    QList<int> got;
    for (const auto &slice : slices) {
        // Each slice starts where the one before it ended, clockwise from twelve o'clock.
        QCOMPARE(slice.start, 90 * 16 - turned);
        QVERIFY(slice.span <= 0);
        turned -= slice.span;
        got.append(slice.percent);
    }
    QCOMPARE(turned, ChartGeometry::FullTurn);
    QCOMPARE(got, percents);
    QCOMPARE(std::accumulate(got.cbegin(), got.cend(), 0), 100);
    // Nothing above zero: nothing to draw.
    for (auto &point : graph.points)
        point.value = 0;
    QVERIFY(ChartGeometry::pieSlices(graph).isEmpty());
}

void tst_graphs_rules::lessonFiles()
{
    const QStringList files = Lesson::files();
    const QList<int> kinds{Graph::LineGraph, Graph::BarChart, Graph::BarChart, Graph::PieChart,
                           Graph::PieChart};
    for (qsizetype i = 0; i < files.size(); ++i) {
        FileError error;
        const auto graph = GraphFile::read(DataFile(files[i]), &error);
        QVERIFY2(graph, qPrintable(error.message()));
        QCOMPARE(int(graph->type), kinds[i]);
        QVERIFY(!graph->points.isEmpty());
        // The lesson asks the pupil to read these charts: they must draw without complaint.
        QVERIFY(!GraphRules::dataRangeProblem(*graph));
        QVERIFY(!GraphRules::pieProblem(*graph));
    }
    QStringList opened;
    const auto steps = Lesson::steps();
    QVERIFY(steps.size() >= 10);
    QCOMPARE(steps.first().file, files.first());
    for (const auto &step : steps) {
        QVERIFY(!step.text.isEmpty());
        QVERIFY(step.page >= Lesson::KindPage && step.page <= Lesson::DataPage);
        if (!step.file.isEmpty())
            opened.append(step.file);
    }
    QCOMPARE(opened, files);
}

void tst_graphs_rules::folderList()
{
    QTemporaryDir temporary;
    GraphFolder::setPath(temporary.filePath(QStringLiteral("Lumbridle/Graphs")));
    QVERIFY(GraphFolder::names().isEmpty());
    QVERIFY(GraphFolder::ensure());
    for (const char *name : {"b.tsg", "A.tsg", "10.tsg", "2.tsg", "notes.txt"}) {
        QFile file(GraphFolder::path() + u'/' + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(GraphFolder::names(), (QStringList{"2", "10", "A", "b"}));
    QVERIFY(GraphFolder::exists(QStringLiteral("A")));
    QVERIFY(!GraphFolder::exists(QStringLiteral("notes")));
    GraphFolder::setPath({});
    QVERIFY(GraphFolder::path().endsWith(QLatin1String("/Lumbridle/Graphs")));
    QVERIFY(!GraphFolder::path().startsWith(
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
}

QTEST_GUILESS_MAIN(tst_graphs_rules)
#include "tst_graphs_rules.moc"
