// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "geography/UsStates.h"

#include "shell/core/DataPath.h"

#include <QtTest>

// The states' file, their display texts and pictures, and where clicks on the map land.
class tst_geography_rules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void statesTextsAndPictures();
    void orderTexts_data();
    void orderTexts();
    void mapClicks_data();
    void mapClicks();

private:
    QuizTable m_states;
    MapClick m_click;
};

void tst_geography_rules::initTestCase()
{
    InitTestProgram();
    SetDataPath(BuiltDataPath());
    QVERIFY2(m_states.load(DataFile(QString::fromLatin1(UsStates::FileName)), UsStates::Layout()),
             qPrintable(m_states.error().message()));
    m_click = UsStates::LoadMapClick(m_states, DataPath());
}

void tst_geography_rules::statesTextsAndPictures()
{
    QCOMPARE(m_states.count(), 50);
    QCOMPARE(m_states.number(50, UsStates::MapX), qint16(300));
    // A file cut short is refused where it ends.
    QFile file(DataFile(QString::fromLatin1(UsStates::FileName)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    QuizTable shorter;
    QVERIFY(!shorter.parse(whole.left(whole.indexOf("\"WY\"")), UsStates::Layout()));
    QCOMPARE(shorter.error().line, 50);
    const int texas = 43;
    QCOMPARE(UsStates::CapitalText(m_states, texas), QStringLiteral("Capital-Austin"));
    QCOMPARE(UsStates::RegionText(m_states, texas), QStringLiteral("Southwest Region"));
    QCOMPARE(UsStates::AdmittedText(m_states, texas), QStringLiteral("Admitted-December 29, 1845"));
    QCOMPARE(UsStates::OrderText(m_states.number(texas, UsStates::Order)),
             QStringLiteral("28th State"));
    // Alaska and Hawaii have no map of their own: their insets light up instead.
    QCOMPARE(UsStates::MapFile(m_states, UsStates::Alaska), QString());
    QCOMPARE(UsStates::MapFile(m_states, UsStates::Hawaii), QString());
    QCOMPARE(UsStates::MapFile(m_states, texas), QStringLiteral("TXmap.svg"));
    QCOMPARE(UsStates::FlagFile(m_states, UsStates::Hawaii), QStringLiteral("HIflag.png"));
    const auto geometry = UsStates::LoadGeometry(DataFile(QStringLiteral("usmap.json")));
    QVERIFY(geometry);
    QCOMPARE(geometry->size, QSizeF(960, 600));
    QVERIFY(geometry->alaska.contains(QPointF(141, 501)));
    QVERIFY(geometry->hawaii.contains(QPointF(324, 568)));
    QVERIFY(!UsStates::LoadGeometry(DataFile(QStringLiteral("usgeo.dat"))));
}

void tst_geography_rules::orderTexts_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("text");
    const QList<std::pair<int, const char *>> cases{
        {1, "1st State"},   {2, "2nd State"},   {3, "3rd State"},   {4, "4th State"},
        {11, "11th State"}, {12, "12th State"}, {13, "13th State"}, {21, "21st State"},
        {22, "22nd State"}, {23, "23rd State"}, {50, "50th State"}};
    for (const auto &[order, text] : cases)
        QTest::addRow("%d", order) << order << QString::fromLatin1(text);
}

void tst_geography_rules::orderTexts()
{
    QFETCH(int, order);
    QFETCH(QString, text);
    QCOMPARE(UsStates::OrderText(order), text);
}

void tst_geography_rules::mapClicks_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("state");

    // East Texas lies nearer Louisiana's point, but a click there is in Texas.
    QTest::newRow("inside Texas, near Louisiana") << QPointF(530, 450) << 1 << 43;
    QTest::newRow("on Alaska's inset") << QPointF(100, 520) << 1 << 2;
    QTest::newRow("on Hawaii's inset") << QPointF(330, 570) << 1 << 11;
    QTest::newRow("Gulf of Mexico: Alabama is nearest") << QPointF(620, 480) << 43 << 1;
    QTest::newRow("Pacific: California is nearest") << QPointF(60, 400) << 1 << 5;
    // Delaware's and New Jersey's points are equally far from this spot in the bay.
    QTest::newRow("between Delaware and New Jersey") << QPointF(846, 246) << 50 << 8;
    QTest::newRow("farther than 1000 units") << QPointF(-1000, -1000) << 17 << 17;
}

void tst_geography_rules::mapClicks()
{
    QFETCH(QPointF, at);
    QFETCH(int, current);
    QFETCH(int, state);
    QCOMPARE(m_click.recordAt(at, current), state);
}

QTEST_GUILESS_MAIN(tst_geography_rules)
#include "tst_geography_rules.moc"
