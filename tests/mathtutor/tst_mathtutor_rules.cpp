// SPDX-License-Identifier: GPL-3.0-or-later
#include "mathtutor/Facts.h"
#include "mathtutor/Mastery.h"
#include "mathtutor/PracticeRound.h"
#include "mathtutor/Worksheet.h"

#include <QSet>
#include <QTest>

// The rules of the facts tutor: fact sets, partners, the practice round and its mastery grid,
// and worksheets rebuilt from their numbers.
class tst_mathtutor_rules : public QObject {
    Q_OBJECT
private slots:
    void factRanges_data();
    void factRanges();
    void everyFactIsWholeAndNeverDividesByZero();
    void partners_data();
    void partners();
    void drawnFactsRepeatOnlyWhenThePoolIsSmall();
    void missedFactComesBackUntilAnsweredRight();
    void knownOnlyWithinThreeSeconds_data();
    void knownOnlyWithinThreeSeconds();
    void worksheetNumbers_data();
    void worksheetNumbers();
    void worksheetNumberRebuildsTheSameSheet();
};

using Op = Operation;
Q_DECLARE_METATYPE(Operation)

void tst_mathtutor_rules::factRanges_data()
{
    QTest::addColumn<Operation>("op");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<int>("count"); // -1: refused
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    auto row = [](const char *name, Operation op, int low, int high, int count,
                  const char *first = "", const char *last = "") {
        QTest::newRow(name) << op << low << high << count << QString(first) << QString(last);
    };
    row("the 0s", Op::Multiply, 0, 0, 13, "0 × 0", "0 × 12");
    row("the 12s", Op::Multiply, 12, 12, 13, "12 × 0", "12 × 12");
    row("all", Op::Multiply, 0, 12, 169, "0 × 0", "12 × 12");
    row("reference", Op::Multiply, 1, 9, 117, "1 × 0", "9 × 12");
    row("divide all", Op::Divide, 0, 12, 156, "0 ÷ 1", "144 ÷ 12");
    row("divide 0 to 1", Op::Divide, 0, 1, 13, "0 ÷ 1", "12 ÷ 1");
    row("divide by 0 only", Op::Divide, 0, 0, -1);
    row("lowest above highest", Op::Multiply, 5, 4, -1);
    row("below 0", Op::Multiply, -1, 3, -1);
    row("above 12", Op::Divide, 2, 13, -1);
}

void tst_mathtutor_rules::factRanges()
{
    QFETCH(Operation, op);
    QFETCH(int, low);
    QFETCH(int, high);
    QFETCH(int, count);
    const auto facts = FactRange::facts(op, low, high);
    QCOMPARE(FactRange::problem(op, low, high).isEmpty(), count >= 0);
    if (count < 0) {
        QVERIFY(!facts);
        QVERIFY(FactRange::families(op, low, high).isEmpty());
        return;
    }
    QVERIFY(facts);
    QCOMPARE(facts->size(), count);
    QTEST(facts->first().text(), "first");
    QTEST(facts->last().text(), "last");
}

void tst_mathtutor_rules::everyFactIsWholeAndNeverDividesByZero()
{
    for (int low = 0; low <= 12; ++low) {
        for (int high = low; high <= 12; ++high) {
            for (const Operation op : {Op::Multiply, Op::Divide}) {
                const auto facts = FactRange::facts(op, low, high);
                if (op == Op::Divide && high == 0) {
                    QVERIFY(!facts);
                    continue;
                }
                QVERIFY(facts);
                for (const MathFact &f : *facts) {
                    QVERIFY(f.family >= low && f.family <= high);
                    if (op == Op::Multiply) {
                        QCOMPARE(f.answer(), f.left() * f.right());
                    } else {
                        QVERIFY2(f.right() != 0, qPrintable(f.text()));
                        QCOMPARE(f.left() % f.right(), 0);
                        QCOMPARE(f.answer() * f.right(), f.left());
                    }
                }
            }
        }
    }
}

void tst_mathtutor_rules::partners_data()
{
    QTest::addColumn<Operation>("op");
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("other");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("7 × 8") << Op::Multiply << 7 << 8
                           << QStringList{"8 × 7 = 56", "56 ÷ 7 = 8", "56 ÷ 8 = 7"};
    QTest::newRow("56 ÷ 7") << Op::Divide << 7 << 8
                            << QStringList{"7 × 8 = 56", "8 × 7 = 56", "56 ÷ 8 = 7"};
    QTest::newRow("a square") << Op::Multiply << 7 << 7 << QStringList{"49 ÷ 7 = 7"};
    QTest::newRow("times 0") << Op::Multiply << 5 << 0 << QStringList{"0 × 5 = 0", "0 ÷ 5 = 0"};
    QTest::newRow("0 ÷ 5") << Op::Divide << 5 << 0 << QStringList{"5 × 0 = 0", "0 × 5 = 0"};
    QTest::newRow("0 × 0") << Op::Multiply << 0 << 0 << QStringList{};
    QTest::newRow("1 × 1") << Op::Multiply << 1 << 1 << QStringList{"1 ÷ 1 = 1"};
}

void tst_mathtutor_rules::partners()
{
    QFETCH(Operation, op);
    QFETCH(int, family);
    QFETCH(int, other);
    QStringList got;
    for (const MathFact &p : Partners(MathFact{op, qint16(family), qint16(other)}))
        got.append(p.withAnswer());
    QTEST(got, "expected");
}

void tst_mathtutor_rules::drawnFactsRepeatOnlyWhenThePoolIsSmall()
{
    Generator random(99);
    for (const auto &[low, high, count] : {std::tuple{0, 0, 13}, std::tuple{1, 9, 50},
                                           std::tuple{3, 3, 50}, std::tuple{0, 12, 30}}) {
        const QList<MathFact> pool = *FactRange::facts(Op::Multiply, low, high);
        for (int trial = 0; trial < 20; ++trial) {
            const QList<MathFact> drawn = DrawFacts(pool, count, random);
            QCOMPARE(drawn.size(), count);
            QHash<QString, int> times;
            for (qsizetype i = 0; i < drawn.size(); ++i) {
                QVERIFY(++times[drawn[i].text()] <= (count + pool.size() - 1) / pool.size());
                QVERIFY2(i == 0 || !(drawn[i] == drawn[i - 1]), "the same fact twice in a row");
            }
        }
    }
    QVERIFY(DrawFacts({}, 20, random).isEmpty());
}

void tst_mathtutor_rules::missedFactComesBackUntilAnsweredRight()
{
    MasteryGrid grid;
    PracticeRound round(grid);
    Generator random(4);
    QVERIFY(!round.start({}, random, 0));
    QCOMPARE(round.answer(0, 0), PracticeRound::Result::Ignored);

    QVERIFY(round.start(*FactRange::facts(Op::Divide, 6, 8), random, 0));
    const MathFact missed = round.current();
    // Missed twice: wrong at once, and wrong again when it first comes back.
    QCOMPARE(round.answer(missed.answer() + 1, 100), PracticeRound::Result::Wrong);
    QCOMPARE(grid.at(missed), Mastery::Practising);
    int turn = 1;
    int wrongAgain = 0;
    int rightAt = -1;
    int sinceMiss = 0;
    qint64 now = 0;
    while (round.isRunning()) {
        QVERIFY2(turn < 40, "the round does not end");
        const MathFact fact = round.current();
        round.showCurrent(now);
        ++sinceMiss;
        if (fact == missed && wrongAgain == 0) {
            QCOMPARE(sinceMiss, PracticeRound::ComeBackAfter + 1);
            ++wrongAgain;
            sinceMiss = 0;
            QCOMPARE(round.answer(fact.answer() + 2, now + 10), PracticeRound::Result::Wrong);
        } else {
            if (fact == missed)
                rightAt = turn;
            QCOMPARE(round.answer(fact.answer(), now + 10), PracticeRound::Result::Right);
        }
        now += 5000;
        ++turn;
    }
    QVERIFY(rightAt > 0);
    QVERIFY(round.isOver());
    QCOMPARE(round.answered(), PracticeRound::Length + 2);
    QCOMPARE(round.rightFirstTime(), PracticeRound::Length - 1);
    QCOMPARE(round.missed(), QList<MathFact>{missed});
    QCOMPARE(grid.at(missed), Mastery::Known);
    QCOMPARE(round.answer(0, now), PracticeRound::Result::Ignored);
}

void tst_mathtutor_rules::knownOnlyWithinThreeSeconds_data()
{
    QTest::addColumn<int>("before"); // the fact's state before: 0 not seen, 1 practising, 2 known
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<bool>("right");
    QTest::addColumn<int>("after");
    QTest::newRow("at once") << 0 << qint64(0) << true << 2;
    QTest::newRow("three seconds") << 0 << qint64(3000) << true << 2;
    QTest::newRow("just too slow") << 0 << qint64(3001) << true << 1;
    QTest::newRow("quick but wrong") << 0 << qint64(500) << false << 1;
    QTest::newRow("clock went back") << 0 << qint64(-5) << true << 1;
    QTest::newRow("practising, quick") << 1 << qint64(2900) << true << 2;
    QTest::newRow("known stays known when slow") << 2 << qint64(9000) << true << 2;
    QTest::newRow("known forgotten") << 2 << qint64(100) << false << 1;
}

void tst_mathtutor_rules::knownOnlyWithinThreeSeconds()
{
    QFETCH(int, before);
    QFETCH(qint64, elapsed);
    QFETCH(bool, right);
    QFETCH(int, after);
    MasteryGrid grid;
    const MathFact fact{Op::Multiply, 4, 6};
    if (before > 0)
        grid.record(fact, before == 2, true);
    QCOMPARE(int(grid.at(fact)), before);
    PracticeRound round(grid);
    Generator random(1);
    QVERIFY(round.start({fact}, random, 0));
    round.showCurrent(10000);
    round.answer(right ? 24 : 25, 10000 + elapsed);
    QCOMPARE(int(grid.at(fact)), after);
    QCOMPARE(round.lastWasQuick(), right && elapsed >= 0 && elapsed <= PracticeRound::QuickMs);
    // The other operation's grid and the other cells are untouched.
    QCOMPARE(grid.at(Op::Divide, 4, 6), Mastery::NotSeen);
    QCOMPARE(grid.count(Op::Multiply, Mastery::NotSeen), 168);
}

void tst_mathtutor_rules::worksheetNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("number"); // empty when refused
    QTest::addColumn<QString>("complaint");
    auto row = [](const char *name, const char *typed, const char *number, const char *why) {
        QTest::newRow(name) << QString::fromUtf8(typed) << QString(number) << QString(why);
    };
    row("as printed", "112-0109-4127", "112-0109-4127", "");
    row("no dashes", "11201094127", "112-0109-4127", "");
    row("blanks", " 225 0012 0000 ", "225-0012-0000", "");
    row("division by 1 to 12", "213-0112-9999", "213-0112-9999", "");
    row("empty", "", "", "11 digits");
    row("too long", "112-0109-41270", "", "11 digits");
    row("letters", "11a-0109-4127", "", "11 digits");
    row("other digits", "١١٢٠١٠٩٤١٢٧", "", "11 digits");
    row("no such operation", "312-0109-4127", "", "first digit");
    row("no such layout", "132-0109-4127", "", "second digit");
    row("no such count", "114-0109-4127", "", "third digit");
    row("lowest above highest", "112-0901-4127", "", "not be above");
    row("beyond 12", "112-0113-4127", "", "from 0 to 12");
    row("divide by 0", "212-0000-4127", "", "divided by 0");
}

void tst_mathtutor_rules::worksheetNumbers()
{
    QFETCH(QString, typed);
    QFETCH(QString, number);
    QFETCH(QString, complaint);
    const auto sheet = Worksheet::parse(typed);
    QCOMPARE(bool(sheet), !number.isEmpty());
    if (sheet) {
        QCOMPARE(sheet->number(), number);
        QCOMPARE(Worksheet::parse(sheet->number()), sheet);
        QVERIFY(Worksheet::problem(typed).isEmpty());
    } else {
        QVERIFY2(Worksheet::problem(typed).contains(complaint),
                 qPrintable(Worksheet::problem(typed)));
    }
}

void tst_mathtutor_rules::worksheetNumberRebuildsTheSameSheet()
{
    const Worksheet sheet = *Worksheet::parse(QStringLiteral("225-0109-0042"));
    const QList<MathFact> problems = sheet.problems();
    QCOMPARE(problems.size(), 50);
    QCOMPARE(Worksheet::parse(sheet.number())->problems(), problems);
    QSet<QString> texts;
    for (const MathFact &f : problems) {
        QCOMPARE(f.op, Op::Divide);
        QVERIFY(f.family >= 1 && f.family <= 9);
        texts.insert(f.text());
    }
    QCOMPARE(texts.size(), 50);

    // Other sheet numbers and other kinds give other sheets.
    QSet<QString> sheets;
    Worksheet other = sheet;
    for (qint16 n = 0; n < 300; ++n) {
        other.sheet = n;
        QStringList list;
        for (const MathFact &f : other.problems())
            list.append(f.text());
        sheets.insert(list.join(u','));
    }
    QCOMPARE(sheets.size(), 300);
    Generator random(3);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(Worksheet::parse(sheet.withNewSheet(random).number())->problems().size(), 50);
}

QTEST_GUILESS_MAIN(tst_mathtutor_rules)
#include "tst_mathtutor_rules.moc"
