// SPDX-License-Identifier: GPL-3.0-or-later
#include "mathrace/Problem.h"
#include "mathrace/Race.h"
#include "support/TestDoubles.h"

#include <cmath>
#include <QSet>
#include <QTest>

// The problem generator and the race state, without any window.
class tst_mathrace_rules : public QObject {
    Q_OBJECT
private slots:
    void generatorStaysInRange_data();
    void generatorStaysInRange();
    void largestOneGivesTheOnlyProblems();
    void captionsKeepTheSignBlank();
    void drawsFollowTheRandomNumbers();
    void mixedTypeDrawsEveryKind();
    void stepsRoundHalfToEven();
    void gasDrainsAfterTheFirstSecond();
    void answerEarnsTheGasLeft();
    void turnsGoRoundAndTheRaceEndsAfterTheRound();
    void damagedSettingsArePlayable();
};

namespace {
Settings::MathRace Players(int count, qint16 type = Addition, qint16 largest = 5, qint16 clock = 1)
{
    Settings::MathRace s;
    s.players = qint16(count);
    for (auto &p : s.player) {
        p.type = type;
        p.largest = largest;
        p.clock = clock;
    }
    return s;
}

// Answers the current problem at once (full gas) and returns the steps gained.
qint16 AnswerQuickly(Race &race)
{
    race.seeProblem();
    return race.answer(race.problem().answer).value_or(-1);
}

// Lets the current player's gas run out.
void RunOutOfGas(Race &race)
{
    race.seeProblem();
    while (race.tick() != Race::TickResult::OutOfGas) {
    }
}
} // namespace

void tst_mathrace_rules::generatorStaysInRange_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("largest");
    const char *names[] = {"", "addition", "subtraction", "multiplication", "division"};
    for (int kind = Addition; kind <= Division; ++kind)
        for (int largest : {1, 2, 5, 12, 100, 144, 32767})
            QTest::addRow("%s M=%d", names[kind], largest) << kind << largest;
}

void tst_mathrace_rules::generatorStaysInRange()
{
    QFETCH(int, kind);
    QFETCH(int, largest);
    Randomize(largest * 10 + kind);
    const int rootBound = int(std::floor(std::sqrt(double(largest)))) + 1;
    QSet<int> answers;
    for (int draw = 0; draw < 20000; ++draw) {
        const Problem p = Problem_Type(qint16(kind), qint16(largest));
        QCOMPARE(p.kind, kind);
        QVERIFY2(p.answer >= 0, qPrintable(p.caption()));
        answers.insert(p.answer);
        switch (kind) {
        case Addition:
            QVERIFY(p.answer >= 1 && p.answer <= largest);
            QVERIFY(p.first >= 1 && p.first <= p.answer);
            QVERIFY(p.second >= 0 && p.second <= p.answer - 1);
            QCOMPARE(p.first + p.second, int(p.answer));
            break;
        case Subtraction:
            QVERIFY(p.first >= 1 && p.first <= largest);
            QVERIFY(p.second >= 1 && p.second <= p.first);
            QCOMPARE(p.first - p.second, int(p.answer));
            QVERIFY(p.answer <= p.first - 1);
            break;
        case Multiplication:
            QVERIFY(p.first >= 1 && p.second >= 1);
            QCOMPARE(p.first * p.second, int(p.answer));
            QVERIFY2(p.answer <= largest, qPrintable(p.caption()));
            QVERIFY(p.first <= rootBound);
            break;
        case Division:
            QVERIFY(p.second >= 1 && p.answer >= 1);
            QVERIFY2(p.first <= largest, qPrintable(p.caption()));
            // A whole answer: the dividend is always the product of divisor and answer.
            QCOMPARE(p.answer * p.second, int(p.first));
            QVERIFY2(p.answer <= rootBound, qPrintable(p.caption()));
            break;
        }
    }
    // Small ranges are covered from end to end: the top of the range is reached too. (A
    // large difference needs both draws at their ends, so subtraction is checked on small M.)
    if ((kind == Addition && largest <= 144) || (kind == Subtraction && largest <= 12)) {
        const int top = kind == Addition ? largest : largest - 1;
        const int bottom = kind == Addition ? 1 : 0;
        for (int value = bottom; value <= top; ++value)
            QVERIFY2(answers.contains(value), qPrintable(QString::number(value)));
    }
    if (largest >= 12 && largest <= 144 && kind == Multiplication)
        QVERIFY(answers.contains(largest) || answers.contains(largest - 1));
}

void tst_mathrace_rules::largestOneGivesTheOnlyProblems()
{
    Randomize(7);
    const QString expected[] = {{}, " 1 + 0 =", " 1 - 1 =", " 1 x 1 =", " 1 / 1 ="};
    const int answers[] = {0, 1, 0, 1, 1};
    for (int kind = Addition; kind <= Division; ++kind) {
        for (int draw = 0; draw < 200; ++draw) {
            const Problem p = Problem_Type(qint16(kind), 1);
            QCOMPARE(p.caption(), expected[kind]);
            QCOMPARE(int(p.answer), answers[kind]);
        }
    }
    // A largest number below 1 (a damaged settings file) plays as 1.
    QCOMPARE(Problem_Type(Addition, 0).caption(), QStringLiteral(" 1 + 0 ="));
    QCOMPARE(Problem_Type(Subtraction, -40).caption(), QStringLiteral(" 1 - 1 ="));
}

void tst_mathrace_rules::captionsKeepTheSignBlank()
{
    QCOMPARE((Problem{Addition, 3, 2, 5}.caption()), QStringLiteral(" 3 + 2 ="));
    QCOMPARE((Problem{Subtraction, 10, 4, 6}.caption()), QStringLiteral(" 10 - 4 ="));
    QCOMPARE((Problem{Multiplication, 12, 12, 144}.caption()), QStringLiteral(" 12 x 12 ="));
    QCOMPARE((Problem{Division, 96, 16, 6}.caption()), QStringLiteral(" 96 / 16 ="));
    QCOMPARE((Problem{Addition, 7, 0, 7}.caption()), QStringLiteral(" 7 + 0 ="));
    QCOMPARE(SignedText(0), QStringLiteral(" 0"));
    QCOMPARE(SignedText(-7), QStringLiteral("-7"));
    QCOMPARE(SignedText(32767), QStringLiteral(" 32767"));
}

void tst_mathrace_rules::drawsFollowTheRandomNumbers()
{
    ScriptedRandom r;
    SetRandomSource(&r);
    // Addition, M = 5: total Int(0.5 x 5) + 1 = 3, first Int(0.4 x 3) + 1 = 2.
    r.values = {0.5, 0.4};
    QCOMPARE(Problem_Type(Addition, 5), (Problem{Addition, 2, 1, 3}));
    // Subtraction, M = 20: top Int(0.99 x 20) + 1 = 20, taken Int(0 x 20) + 1 = 1.
    r.values = {0.99, 0.0};
    QCOMPARE(Problem_Type(Subtraction, 20), (Problem{Subtraction, 20, 1, 19}));
    // Division, M = 100: c = 100, a = Int(0.5 x 10) + 1 = 6, b = Int(100 / 6) = 16.
    r.values = {0.99, 0.5};
    QCOMPARE(Problem_Type(Division, 100), (Problem{Division, 96, 16, 6}));
    // Multiplication, M = 10: c = Int(0.75 x 10) + 1 = 8, a = Int(0.99 x 2.83) + 1 = 3,
    // b = Int(8 / 3) = 2: a may exceed the root of c when c is not a square.
    r.values = {0.75, 0.99};
    QCOMPARE(Problem_Type(Multiplication, 10), (Problem{Multiplication, 3, 2, 6}));
    QVERIFY(r.values.isEmpty());
    SetRandomSource(nullptr);
}

void tst_mathrace_rules::mixedTypeDrawsEveryKind()
{
    ScriptedRandom r;
    SetRandomSource(&r);
    r.values = {0.0, 0.2499, 0.25, 0.5, 0.9999};
    QCOMPARE(ChooseKind(MixedType), qint16(1));
    QCOMPARE(ChooseKind(MixedType), qint16(1));
    QCOMPARE(ChooseKind(MixedType), qint16(2));
    QCOMPARE(ChooseKind(MixedType), qint16(3));
    QCOMPARE(ChooseKind(MixedType), qint16(4));
    // Types 1 to 4 draw nothing.
    r.values = {0.9};
    for (qint16 type = 1; type <= 4; ++type)
        QCOMPARE(ChooseKind(type), type);
    QCOMPARE(r.values.size(), 1);
    SetRandomSource(nullptr);

    Randomize(99);
    int seen[5] = {};
    for (int i = 0; i < 4000; ++i)
        ++seen[ChooseKind(MixedType)];
    for (int kind = 1; kind <= 4; ++kind)
        QVERIFY2(seen[kind] > 800 && seen[kind] < 1200, qPrintable(QString::number(seen[kind])));
}

void tst_mathrace_rules::stepsRoundHalfToEven()
{
    const int cases[][2] = {{100, 10}, {90, 9}, {10, 1}, {0, 0},  {4, 0},  {5, 0},
                            {6, 1},    {15, 2}, {25, 2}, {35, 4}, {44, 4}, {46, 5}};
    for (const auto &c : cases)
        QCOMPARE(int(Race::stepsFor(qint16(c[0]))), c[1]);
    QCOMPARE(Race::drainInterval(1), 1500);
    QCOMPARE(Race::drainInterval(2), 1000);
    QCOMPARE(Race::drainInterval(3), 500);
}

void tst_mathrace_rules::gasDrainsAfterTheFirstSecond()
{
    for (qint16 clock = 1; clock <= 3; ++clock) {
        Race race;
        race.start(Players(1, Addition, 5, clock));
        QCOMPARE(race.phase(), Race::Phase::Ready);
        QCOMPARE(race.gas(), Race::FullGas);
        // Nothing drains while the problem is still hidden.
        QCOMPARE(race.tick(), Race::TickResult::Ignored);
        race.seeProblem();
        QCOMPARE(race.timerInterval(), 1000);
        QCOMPARE(race.tick(), Race::TickResult::Started);
        QCOMPARE(race.gas(), Race::FullGas);
        QCOMPARE(race.timerInterval(), (4 - clock) * 500);
        for (int drain = 1; drain <= 9; ++drain) {
            QCOMPARE(race.tick(), Race::TickResult::Drained);
            QCOMPARE(int(race.gas()), 100 - drain * 10);
        }
        QCOMPARE(race.tick(), Race::TickResult::OutOfGas);
        QCOMPARE(race.gas(), qint16(0));
        QCOMPARE(race.phase(), Race::Phase::OutOfGas);
        QCOMPARE(race.tick(), Race::TickResult::Ignored);
        // The answer shown after a time-out earns nothing.
        QVERIFY(!race.answer(race.problem().answer));
        QCOMPARE(race.position(1), qint16(0));
    }
}

void tst_mathrace_rules::answerEarnsTheGasLeft()
{
    Race race;
    race.start(Players(2));
    QVERIFY(!race.answer(race.problem().answer)); // not before the problem is seen
    race.seeProblem();
    QVERIFY(!race.answer(race.problem().answer + 1));
    QCOMPARE(race.phase(), Race::Phase::FirstSecond);
    QCOMPARE(race.answer(race.problem().answer), std::optional<qint16>(10));
    QCOMPARE(race.position(1), qint16(10));
    QCOMPARE(race.phase(), Race::Phase::Answered);
    QVERIFY(!race.answer(race.problem().answer)); // one answer per turn

    QCOMPARE(race.nextTurn(), Race::TurnResult::NextTurn);
    QCOMPARE(race.currentPlayer(), qint16(2));
    race.seeProblem();
    race.tick();
    for (int drain = 0; drain < 9; ++drain)
        race.tick();
    QCOMPARE(race.gas(), qint16(10));
    QVERIFY(!race.answer(-1));
    QVERIFY(!race.answer(100000));
    QCOMPARE(race.answer(race.problem().answer), std::optional<qint16>(1));
    QCOMPARE(race.position(2), qint16(1));
    QCOMPARE(race.position(1), qint16(10));
}

void tst_mathrace_rules::turnsGoRoundAndTheRaceEndsAfterTheRound()
{
    Randomize(5);
    Race race;
    race.start(Players(3));
    QVERIFY(race.isRunning());
    // Players 1 and 2 answer at once every turn; player 3 always runs out of gas.
    for (int round = 1; round <= 7; ++round) {
        QCOMPARE(race.currentPlayer(), qint16(1));
        QCOMPARE(AnswerQuickly(race), qint16(10));
        QCOMPARE(race.nextTurn(), Race::TurnResult::NextTurn);
        QCOMPARE(race.currentPlayer(), qint16(2));
        QCOMPARE(AnswerQuickly(race), qint16(10));
        QCOMPARE(race.nextTurn(), Race::TurnResult::NextTurn);
        QCOMPARE(race.currentPlayer(), qint16(3));
        RunOutOfGas(race);
        QCOMPARE(race.nextTurn(), Race::TurnResult::NextTurn);
    }
    QCOMPARE(race.position(1), qint16(70));
    QCOMPARE(race.position(3), qint16(0));
    QCOMPARE(AnswerQuickly(race), qint16(10));
    QVERIFY(race.hasFinished(1));
    // Reaching the finish does not end the round: the others still get their turn.
    QCOMPARE(race.nextTurn(), Race::TurnResult::NextTurn);
    QCOMPARE(race.currentPlayer(), qint16(2));
    QCOMPARE(race.finishers(), (QList<qint16>{1, 0, 0, 0}));
    QCOMPARE(AnswerQuickly(race), qint16(10));
    QCOMPARE(race.nextTurn(), Race::TurnResult::NextTurn);
    RunOutOfGas(race);
    QVERIFY(!race.isOver());
    QCOMPARE(race.nextTurn(), Race::TurnResult::Over);
    QVERIFY(race.isOver());
    QCOMPARE(race.finishers(), (QList<qint16>{1, 1, 0, 0}));
    QCOMPARE(race.currentPlayer(), qint16(1));
    race.stop();
    QVERIFY(!race.isRunning());
    QCOMPARE(race.position(1), qint16(80)); // the cars stay where they finished

    // A new race starts everyone from the start line.
    race.start(Players(1));
    QVERIFY(!race.isOver());
    QCOMPARE(race.position(1), qint16(0));
    QCOMPARE(race.position(2), qint16(0));
    QCOMPARE(race.finishers(), (QList<qint16>{0, 0, 0, 0}));
}

void tst_mathrace_rules::damagedSettingsArePlayable()
{
    Settings::MathRace s = Players(9, 12, -3, 7);
    Race race;
    race.start(s);
    QCOMPARE(race.players(), qint16(4));
    race.seeProblem();
    race.tick();
    QCOMPARE(race.timerInterval(), 500);
    // Type 12 plays as the mixture, largest -3 as 1: every problem is one of the four 1s.
    for (int turn = 0; turn < 40; ++turn) {
        QVERIFY(QStringList({" 1 + 0 =", " 1 - 1 =", " 1 x 1 =", " 1 / 1 ="})
                    .contains(race.problem().caption()));
        race.nextTurn();
    }
    s = Players(0);
    race.start(s);
    QCOMPARE(race.players(), qint16(1));
}

QTEST_MAIN(tst_mathrace_rules)
#include "tst_mathrace_rules.moc"
