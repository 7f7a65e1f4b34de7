// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "geography/WorldCountries.h"

#include "shell/core/DataPath.h"

#include <QtTest>

// The countries' file, their display texts and flags, the pointer on the world map and
// where clicks on the map land.
class tst_world_rules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void countriesTextsAndFlags();
    void damagedFiles_data();
    void damagedFiles();
    void regionNames();
    void pointerStaysOnTheMap();
    void mapClicks_data();
    void mapClicks();

private:
    QByteArray m_file;
    QuizTable m_countries;
    std::optional<WorldCountries::WorldShapesFile> m_shapes;
};

void tst_world_rules::initTestCase()
{
    InitTestProgram();
    SetDataPath(BuiltDataPath());
    QFile file(DataFile(QString::fromLatin1(WorldCountries::FileName)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_file = file.readAll();
    QVERIFY2(m_countries.parse(m_file, WorldCountries::Layout()),
             qPrintable(m_countries.error().message()));
    m_shapes = WorldCountries::LoadShapes(
        m_countries, DataFile(QString::fromLatin1(WorldCountries::WorldShapes)));
    QVERIFY(m_shapes);
}

void tst_world_rules::countriesTextsAndFlags()
{
    using namespace WorldCountries;
    QCOMPARE(m_countries.count(), 100);
    QCOMPARE(m_shapes->size, QSizeF(1000, 520));
    const int denmark = 22;
    QCOMPARE(m_countries.text(denmark, Name), QStringLiteral("Denmark"));
    QCOMPARE(m_countries.number(denmark, Region), qint16(6));
    QCOMPARE(RegionText(m_countries, denmark), QStringLiteral("Scandanavia"));
    QCOMPARE(CapitalText(m_countries, denmark), QStringLiteral("Capital-Copenhagen"));
    // Every country lies in one of the thirteen regions and has its flag beside the file.
    for (int r = 1; r <= 100; ++r) {
        QVERIFY2(!RegionText(m_countries, r).isEmpty(), qPrintable(m_countries.text(r, Name)));
        QVERIFY2(QFile::exists(DataFile(FlagFile(r))), qPrintable(FlagFile(r)));
    }
    QCOMPARE(FlagFile(7), QStringLiteral("flag007.png"));
    QCOMPARE(FlagFile(12), QStringLiteral("flag012.png"));
    QCOMPARE(FlagFile(100), QStringLiteral("flag100.png"));
    // A shapes file that is not ours gives no map.
    QVERIFY(!LoadShapes(m_countries, DataFile(QString::fromLatin1(FileName))));
}

void tst_world_rules::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("item");
    const QByteArray lastLine = m_file.mid(m_file.lastIndexOf("\"Zimbabwe\""));
    const QByteArray allButLast = m_file.left(m_file.size() - lastLine.size());
    // Region numbers index the table of thirteen: 0 and 14 are not regions.
    QByteArray region = lastLine;
    region.replace(",13,", ",14,");
    QTest::newRow("region 14") << allButLast + region << 100 << 6;
    region = lastLine;
    region.replace(",13,", ",0,");
    QTest::newRow("region 0") << allButLast + region << 100 << 6;
    QTest::newRow("cut short") << allButLast << 100 << 0;
    QTest::newRow("a country too many") << m_file + lastLine << 101 << 0;
    QByteArray blank = m_file;
    blank.replace("\"Afghanistan\"", "\"  \"");
    QTest::newRow("blank name") << blank << 1 << 1;
}

void tst_world_rules::damagedFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QFETCH(int, item);
    QuizTable table;
    QVERIFY(!table.parse(content, WorldCountries::Layout()));
    QCOMPARE(table.error().line, line);
    if (item > 0)
        QCOMPARE(table.error().item, item);
    QCOMPARE(table.count(), 0);
}

void tst_world_rules::regionNames()
{
    const QStringList names{"North America",  "Central America", "South America", "Western Europe",
                            "Eastern Europe", "Scandanavia",     "Eurasia",       "Middle East",
                            "Western Asia",   "Eastern Asia",    "Oceania",       "Northern Africa",
                            "Southern Africa"};
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(WorldCountries::RegionName(i + 1), names[i]);
    QCOMPARE(WorldCountries::RegionName(0), QString());
    QCOMPARE(WorldCountries::RegionName(14), QString());
}

// Wherever the country lies, even at the map's corners, the whole pointer is on the map: a
// shaft of 125 units at 45 degrees with its tip on the place.
void tst_world_rules::pointerStaysOnTheMap()
{
    using namespace WorldCountries;
    const QRectF map(QPointF(0, 0), m_shapes->size);
    QList<QPointF> places{{0, 0}, {1000, 0}, {0, 520}, {1000, 520}, {500, 260}};
    for (int r = 1; r <= m_countries.count(); ++r)
        places.append(QPointF(m_countries.number(r, MapX), m_countries.number(r, MapY)));
    for (const QPointF &place : std::as_const(places)) {
        const QList<QLineF> lines = PointerLines(place, m_shapes->size);
        QVERIFY(!lines.isEmpty());
        const QLineF shaft = lines.first();
        QCOMPARE(shaft.p1(), place);
        QVERIFY(qAbs(shaft.length() - PointerLength) < 1e-9);
        QVERIFY(qAbs(qAbs(shaft.dx()) - qAbs(shaft.dy())) < 1e-9);
        for (const QLineF &line : lines)
            QVERIFY2(map.contains(line.p1()) && map.contains(line.p2()),
                     qPrintable(QStringLiteral("%1,%2").arg(place.x()).arg(place.y())));
    }
}

void tst_world_rules::mapClicks_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<double>("reach");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("country");

    QTest::newRow("inside Brazil") << QPointF(300, 330) << 0.0 << 1 << 12;
    // Nearer the Dominican Republic's coast than anything, but nearer Haiti's map point.
    QTest::newRow("just off the Dominican Republic") << QPointF(256, 218) << 4.0 << 1 << 23;
    QTest::newRow("same spot, outlines only") << QPointF(256, 218) << 0.0 << 1 << 35;
    QTest::newRow("just off South Korea") << QPointF(812, 138) << 4.0 << 1 << 81;
    QTest::newRow("on Kuwait's outline") << QPointF(601, 170) << 4.0 << 1 << 50;
    QTest::newRow("mid-Atlantic: the nearest point") << QPointF(380, 250) << 4.0 << 1 << 78;
    QTest::newRow("farther than 1000 units") << QPointF(-2000, -2000) << 4.0 << 17 << 17;
}

void tst_world_rules::mapClicks()
{
    QFETCH(QPointF, at);
    QFETCH(double, reach);
    QFETCH(int, current);
    QFETCH(int, country);
    QCOMPARE(m_shapes->click.recordAt(at, current, reach), country);
}

QTEST_GUILESS_MAIN(tst_world_rules)
#include "tst_world_rules.moc"
