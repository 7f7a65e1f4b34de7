// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "presidents/Presidents.h"

#include "shell/core/DataPath.h"
#include "shell/core/Random.h"

#include <QtTest>

using namespace Presidents;

// The presidents' file, the texts and portraits of a presidency, and the questions of
// Who Is Missing?.
class tst_presidents_rules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void fileAndTexts();
    void portraitFiles_data();
    void portraitFiles();
    void numberTexts_data();
    void numberTexts();
    void dates_data();
    void dates();
    void whoIsMissingKeepsItsPromises();
    void whoIsMissingFollowsTheSteps();
    void distinctChoices();

private:
    QByteArray m_file;
    QuizTable m_presidents;
};

void tst_presidents_rules::initTestCase()
{
    InitTestProgram();
    SetDataPath(BuiltDataPath());
    QFile file(DataFile(QString::fromLatin1(FileName)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_file = file.readAll();
    QVERIFY2(m_presidents.parse(m_file, Layout()), qPrintable(m_presidents.error().message()));
    QVERIFY(!CheckDates(m_presidents).isSet());
}

void tst_presidents_rules::fileAndTexts()
{
    // The count comes from the file, whatever it is.
    QCOMPARE(m_presidents.count(), 47);
    QuizTable shorter;
    QVERIFY(shorter.parse(m_file.left(m_file.indexOf("\"Joe Biden\"")), Layout()));
    QCOMPARE(shorter.count(), 45);
    QCOMPARE(TermText(shorter, 45), QStringLiteral("2017 - Now"));
    QVERIFY(!shorter.parse(m_file.left(m_file.indexOf("\"James Madison\"")), Layout()));
    QCOMPARE(shorter.error().line, 0);

    QCOMPARE(BirthDateText(m_presidents, 1), QStringLiteral("February 22, 1732"));
    QCOMPARE(BirthPlaceText(m_presidents, 1), QStringLiteral("Westmoreland County, Virginia"));
    QCOMPARE(TermText(m_presidents, 1), QStringLiteral("1789 - 1797"));
    QCOMPARE(TermText(m_presidents, 46), QStringLiteral("2021 - 2025"));
    QCOMPARE(TermText(m_presidents, 47), QStringLiteral("2025 - Now"));
    QCOMPARE(PartyText(m_presidents, 2), QStringLiteral("Federalist Party"));
    QVERIFY(SamePerson(m_presidents, 22, 24));
    QVERIFY(SamePerson(m_presidents, 47, 45));
    QVERIFY(!SamePerson(m_presidents, 22, 22));
    QVERIFY(!SamePerson(m_presidents, 2, 6));
    for (int n = 1; n <= m_presidents.count(); ++n)
        QVERIFY2(QFile::exists(DataFile(PortraitFile(n))), qPrintable(PortraitFile(n)));

    // A month of 13 is a reported range error, not a crash or a blank.
    QByteArray damaged = m_file;
    damaged.replace("\"02/22/1732\"", "\"13/22/1732\"");
    QuizTable table;
    QVERIFY(table.parse(damaged, Layout()));
    const FileError error = CheckDates(table);
    QVERIFY(error.isSet());
    QCOMPARE(error.line, 1);
    QCOMPARE(error.item, int(BirthDate));
    QVERIFY(error.message().contains(QStringLiteral("uspres.dat")));
}

void tst_presidents_rules::portraitFiles_data()
{
    QTest::addColumn<int>("presidency");
    QTest::addColumn<QString>("file");
    QTest::newRow("1") << 1 << "presi002.gif";
    QTest::newRow("22") << 22 << "presi023.gif";
    QTest::newRow("23") << 23 << "presi024.gif";
    QTest::newRow("24, the same man as 22") << 24 << "presi023.gif";
    QTest::newRow("25") << 25 << "presi025.gif";
    QTest::newRow("47") << 47 << "presi047.gif";
}

void tst_presidents_rules::portraitFiles()
{
    QFETCH(int, presidency);
    QFETCH(QString, file);
    QCOMPARE(PortraitFile(presidency), file);
}

void tst_presidents_rules::numberTexts_data()
{
    QTest::addColumn<int>("presidency");
    QTest::addColumn<QString>("text");
    const QList<std::pair<int, const char *>> cases{
        {1, "1st President"},   {2, "2nd President"},   {3, "3rd President"},
        {4, "4th President"},   {11, "11th President"}, {12, "12th President"},
        {13, "13th President"}, {21, "21st President"}, {22, "22nd President"},
        {23, "23rd President"}, {41, "41st President"}, {42, "42nd President"},
        {43, "43rd President"}, {47, "47th President"}};
    for (const auto &[presidency, text] : cases)
        QTest::addRow("%d", presidency) << presidency << QString::fromLatin1(text);
}

void tst_presidents_rules::numberTexts()
{
    QFETCH(int, presidency);
    QFETCH(QString, text);
    QCOMPARE(NumberText(presidency), text);
}

void tst_presidents_rules::dates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("text");
    QTest::newRow("leading zero dropped") << "07/04/1872"
                                          << "July 4, 1872";
    QTest::newRow("one-digit day") << "12/5/1782"
                                   << "December 5, 1782";
    QTest::newRow("two-digit day") << "10/27/1858"
                                   << "October 27, 1858";
    QTest::newRow("other separators") << "01-29-1843"
                                      << "January 29, 1843";
    QTest::newRow("month 13") << "13/01/1900"
                              << "";
    QTest::newRow("month 0") << "00/01/1900"
                             << "";
    QTest::newRow("day 32") << "01/32/1900"
                            << "";
    QTest::newRow("no year") << "01/02/19"
                             << "";
    QTest::newRow("letters") << "ab/cd/efgh"
                             << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("huge") << "99999999999/1/1900"
                          << "";
}

void tst_presidents_rules::dates()
{
    QFETCH(QString, date);
    QFETCH(QString, text);
    QCOMPARE(DateText(date), text);
    QCOMPARE(MonthName(2), QStringLiteral("February "));
    QCOMPARE(MonthName(13), QString());
}

// Over every presidency and many draws: the row lies inside the records, four different
// presidencies are offered, exactly one of them the missing one, never one from the row and
// never two terms of one person.
void tst_presidents_rules::whoIsMissingKeepsItsPromises()
{
    const int count = m_presidents.count();
    QSet<int> positions;
    for (int seed = 1; seed <= 60; ++seed) {
        Randomize(seed);
        for (int c = 1; c <= count; ++c) {
            const WhoIsMissing who = BuildWhoIsMissing(m_presidents, c);
            const QString where = QStringLiteral("c %1 seed %2").arg(c).arg(seed);
            QVERIFY2(who.row[0] >= 1 && who.row[2] <= count, qPrintable(where));
            QVERIFY2(who.row[1] == who.row[0] + 1 && who.row[2] == who.row[0] + 2,
                     qPrintable(where));
            QVERIFY2(who.row[who.position - 1] == c, qPrintable(where));
            positions.insert(who.position);
            QCOMPARE(who.choices[who.correct - 1], c);
            int found = 0;
            for (int i = 0; i < 4; ++i) {
                const int n = who.choices[i];
                QVERIFY2(n >= 1 && n <= count, qPrintable(where));
                found += n == c;
                QVERIFY2(n == c || n < who.row[0] || n > who.row[2], qPrintable(where));
                for (int j = i + 1; j < 4; ++j) {
                    QVERIFY2(n != who.choices[j], qPrintable(where));
                    QVERIFY2(!SamePerson(m_presidents, n, who.choices[j]), qPrintable(where));
                }
            }
            QCOMPARE(found, 1);
        }
    }
    QCOMPARE(positions, (QSet<int>{1, 2, 3}));
}

// The construction step by step, with the draws scripted: m, then the four swaps.
void tst_presidents_rules::whoIsMissingFollowsTheSteps()
{
    ScriptedRandom random;
    SetRandomSource(&random);
    // No swaps move anything: each i swaps with itself.
    const QList<double> keep{0.0, 0.25, 0.5, 0.75};
    // c = 10 at place 2: row 9..11, s = 7, candidates 7, 8, (9-11), 12.
    random.values = QList<double>{0.4} + keep;
    WhoIsMissing who = BuildWhoIsMissing(m_presidents, 10);
    QCOMPARE(who.position, 2);
    QCOMPARE(who.row, (std::array<int, 3>{9, 10, 11}));
    QCOMPARE(who.choices, (std::array<int, 4>{10, 7, 8, 12}));
    QCOMPARE(who.correct, 1);
    // c = 1 asked at place 3 moves to place 1: row 1..3, s = 1, candidates 4, 5, 6.
    random.values = QList<double>{0.9} + keep;
    who = BuildWhoIsMissing(m_presidents, 1);
    QCOMPARE(who.position, 1);
    QCOMPARE(who.choices, (std::array<int, 4>{1, 4, 5, 6}));
    // c = 47 asked at place 1 moves to place 3: row 45..47, s = 42, candidates 42, 43, 44.
    random.values = QList<double>{0.0} + keep;
    who = BuildWhoIsMissing(m_presidents, 47);
    QCOMPARE(who.position, 3);
    QCOMPARE(who.row, (std::array<int, 3>{45, 46, 47}));
    QCOMPARE(who.choices, (std::array<int, 4>{47, 42, 43, 44}));
    // c = 24 at place 1: row 24..26, candidates 22, 23, 27; 22 is 24's own first term and
    // gives way to s + 6 = 28.
    random.values = QList<double>{0.0} + keep;
    who = BuildWhoIsMissing(m_presidents, 24);
    QCOMPARE(who.choices, (std::array<int, 4>{24, 28, 23, 27}));
    // c = 45 at place 3: row 43..45, s = 42, candidates 42, 46, 47; 47 gives way to s - 1.
    random.values = QList<double>{0.9} + keep;
    who = BuildWhoIsMissing(m_presidents, 45);
    QCOMPARE(who.choices, (std::array<int, 4>{45, 42, 46, 41}));
    // The swaps: i = 1 with 4, then 2 with 1, 3 with 3, 4 with 2.
    random.values = {0.4, 0.9, 0.0, 0.5, 0.3};
    who = BuildWhoIsMissing(m_presidents, 10);
    QCOMPARE(who.choices, (std::array<int, 4>{7, 10, 8, 12}));
    QCOMPARE(who.correct, 2);
    SetRandomSource(nullptr);
}

void tst_presidents_rules::distinctChoices()
{
    Randomize(7);
    // Cleveland's second term beside his first, asked about the first: the second goes.
    const QList<int> choices = DistinctChoices(m_presidents, {5, 22, 24, 30}, 22);
    QCOMPARE(choices.size(), 4);
    QCOMPARE(choices[1], 22);
    QVERIFY(choices[2] != 24);
    QSet<QString> names;
    for (const int n : choices)
        names.insert(m_presidents.text(n, Name));
    QCOMPARE(names.size(), 4);
    QCOMPARE(DistinctChoices(m_presidents, {1, 2, 3, 4}, 3), (QList<int>{1, 2, 3, 4}));
}

QTEST_GUILESS_MAIN(tst_presidents_rules)
#include "tst_presidents_rules.moc"
