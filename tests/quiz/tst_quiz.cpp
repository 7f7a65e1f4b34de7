// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "quiz/MapClick.h"
#include "quiz/Quiz.h"

#include <QSet>
#include <QtTest>

Q_DECLARE_METATYPE(Match)

namespace {
// Eight places of three fields (name, capital, a number): enough for four choices and
// small enough to ask every one.
QByteArray places()
{
    return "\"Ohio\",\"Columbus\",1\n\"Iowa\",\"Des Moines\",2\n\"Utah\",\"Salt Lake City\",3\n"
           "\"Texas\",\"Austin\",4\n\"Maine\",\"Augusta\",5\n\"Idaho\",\"Boise\",6\n"
           "\"Nevada\",\"Carson City\",7\n\"Oregon\",\"Salem\",8\n";
}

QuizTable::Layout layout(int records = 8)
{
    return {QStringLiteral("places.dat"), records, 3, {3}, {1, 2}};
}

const GeographyFields Fields{1, 2, 5};
} // namespace

// The question engine: its table reader, answer checking, the flow of every mode, multiple
// choice, clue orders and the map click rules.
class tst_quiz : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }
    void tableReading_data();
    void tableReading();
    void answerChecking_data();
    void answerChecking();
    void ordinals_data();
    void ordinals();
    void wrongTryReactions_data();
    void wrongTryReactions();
    void clueRequestsShareTheTries();
    void eachRecordOnceThenTheEnd();
    void randomModeNeverEnds();
    void choicesHoldTheAnswerOnce();
    void choiceOverwritesARandomPlace();
    void clueOrderCoversEveryClue();
    void answeredQuestionsIgnoreAnswers();
    void replanReasksAnOpenQuestion();
    void browsingWraps();
    void outlines();
    void nearestPoint_data();
    void nearestPoint();
};

void tst_quiz::tableReading_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("errorLine");
    QTest::addColumn<int>("errorItem");

    QTest::newRow("good") << places() << 0 << 0;
    QTest::newRow("one record short")
        << places().left(places().lastIndexOf("\"Oregon\"")) << 8 << 0;
    QTest::newRow("a record too many") << places() + "\"Alaska\",\"Juneau\",9\n" << 9 << 0;
    QTest::newRow("a field missing")
        << QByteArray(places()).replace("\"Utah\",\"Salt Lake City\",3", "\"Utah\",3") << 3 << 3;
    QTest::newRow("a number that is a word")
        << QByteArray(places()).replace("\"Texas\",\"Austin\",4", "\"Texas\",\"Austin\",four") << 4
        << 3;
    QTest::newRow("a number beyond 16 bits")
        << QByteArray(places()).replace("\"Maine\",\"Augusta\",5", "\"Maine\",\"Augusta\",40000")
        << 5 << 3;
    QTest::newRow("an empty answer")
        << QByteArray(places()).replace("\"Idaho\",\"Boise\"", "\"Idaho\",\"  \"") << 6 << 2;
    QTest::newRow("an unclosed quote")
        << QByteArray(places()).replace("\"Salem\"", "\"Salem") << 8 << 2;
    QTest::newRow("empty file") << QByteArray() << 1 << 0;
}

void tst_quiz::tableReading()
{
    QFETCH(QByteArray, content);
    QFETCH(int, errorLine);
    QFETCH(int, errorItem);
    QuizTable table;
    const bool read = table.parse(content, layout());
    QCOMPARE(read, errorLine == 0);
    if (!read) {
        QCOMPARE(table.error().line, errorLine);
        QCOMPARE(table.error().item, errorItem);
        QCOMPARE(table.count(), 0);
        return;
    }
    QCOMPARE(table.count(), 8);
    QCOMPARE(table.text(3, 2), QStringLiteral("Salt Lake City"));
    QCOMPARE(table.number(8, 3), qint16(8));
    QCOMPARE(table.text(8, 3), QStringLiteral("8"));
    // Outside the table there is nothing, never a crash.
    QCOMPARE(table.text(0, 1), QString());
    QCOMPARE(table.text(9, 1), QString());
    QCOMPARE(table.text(1, 4), QString());
    QCOMPARE(table.number(1, 1), qint16(0));

    // Map points are rounded half to even, and a failed read keeps the table as it was.
    QVERIFY(table.parse("\"A\",\"a\",2.5\n\"B\",\"b\",3.5\n\"C\",\"c\",-0.5\n", layout(3)));
    QCOMPARE(table.number(1, 3), qint16(2));
    QCOMPARE(table.number(2, 3), qint16(4));
    QCOMPARE(table.number(3, 3), qint16(0));
    QVERIFY(!table.parse("\"A\",\"a\",1\n", layout(3)));
    QCOMPARE(table.count(), 3);
}

void tst_quiz::answerChecking_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<Match>("match");

    QTest::newRow("exact") << "Tennessee"
                           << "Tennessee" << Match::Exact;
    QTest::newRow("small letters") << "tennessee"
                                   << "Tennessee" << Match::SameLetters;
    QTest::newRow("capitals and blanks") << " NEW YORK "
                                         << "New York" << Match::SameLetters;
    QTest::newRow("spelt as it sounds") << "Tenesee"
                                        << "Tennessee" << Match::SoundsAlike;
    QTest::newRow("sounds alike, small letters") << "masachusets"
                                                 << "Massachusetts" << Match::SoundsAlike;
    QTest::newRow("doubled letters") << "Missisipi"
                                     << "Mississippi" << Match::SoundsAlike;
    QTest::newRow("another state") << "Texas"
                                   << "Tennessee" << Match::Wrong;
    QTest::newRow("same first letter") << "Tallahassee"
                                       << "Topeka" << Match::Wrong;
    QTest::newRow("first letter counts") << "Kansas"
                                         << "Cansas" << Match::Wrong;
    QTest::newRow("nothing typed") << ""
                                   << "Ohio" << Match::Wrong;
    QTest::newRow("only blanks") << "   "
                                 << "Ohio" << Match::Wrong;
}

void tst_quiz::answerChecking()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QFETCH(Match, match);
    QCOMPARE(CheckAnswer(typed, expected), match);
    QCOMPARE(IsRight(CheckAnswer(typed, expected)), match != Match::Wrong);
}

void tst_quiz::ordinals_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("suffix");
    const QList<std::pair<int, const char *>> cases{
        {1, "st"},  {2, "nd"},  {3, "rd"},  {4, "th"},  {11, "th"}, {12, "th"},  {13, "th"},
        {21, "st"}, {22, "nd"}, {23, "rd"}, {43, "rd"}, {50, "th"}, {111, "th"}, {101, "st"}};
    for (const auto &[number, suffix] : cases)
        QTest::addRow("%d", number) << number << QString::fromLatin1(suffix);
}

void tst_quiz::ordinals()
{
    QFETCH(int, number);
    QFETCH(QString, suffix);
    QCOMPARE(OrdinalSuffix(number), suffix);
}

void tst_quiz::wrongTryReactions_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("multipleChoice");
    QTest::addColumn<int>("direction");
    // What each wrong answer calls for in turn: n nothing, h hint, c clue, r the answer.
    QTest::addColumn<QString>("reactions");

    QTest::newRow("capitals, name the capital") << int(Capitals) << false << 0 << "nnr";
    QTest::newRow("capitals, name the state") << int(Capitals) << false << 1 << "hnr";
    QTest::newRow("capitals, picked") << int(Capitals) << true << 1 << "hnr";
    // Five clues: the first is shown with the question, four more, then the answer.
    QTest::newRow("clues, typed") << int(NameIt) << false << 0 << "ccccr";
    QTest::newRow("clues, picked") << int(NameIt) << true << 0 << "ccccr";
    QTest::newRow("find, name the state") << int(FindIt) << false << 0 << "hnnnnn";
    QTest::newRow("find, picked name") << int(FindIt) << true << 0 << "hnnnnn";
    QTest::newRow("find on the map, typed") << int(FindIt) << false << 1 << "nnnnnn";
    QTest::newRow("find on the map, picked") << int(FindIt) << true << 1 << "nnr";
    QTest::newRow("flags, pick a flag") << int(Flags) << false << 0 << "nnnnnn";
    QTest::newRow("flags, name the state") << int(Flags) << true << 1 << "nnnnnn";
}

void tst_quiz::wrongTryReactions()
{
    QFETCH(int, mode);
    QFETCH(bool, multipleChoice);
    QFETCH(int, direction);
    QFETCH(QString, reactions);
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    const QuizPlan plan = StandardPlan(QuizMode(mode), multipleChoice, direction, Fields);
    quiz.start(mode, plan);
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.tries(), 1);
    for (qsizetype i = 0; i < reactions.size(); ++i) {
        const Outcome outcome = plan.multipleChoice ? quiz.pickChoice(quiz.correctChoice() % 4 + 1)
                                                    : quiz.submitText(QStringLiteral("Zzz"));
        QVERIFY(outcome.counted);
        QVERIFY(!outcome.right());
        QCOMPARE(quiz.tries(), int(i + 2));
        const char expected = reactions[i].toLatin1();
        const Reaction::Kind kind = expected == 'h'   ? Reaction::Hint
                                    : expected == 'c' ? Reaction::Clue
                                    : expected == 'r' ? Reaction::Reveal
                                                      : Reaction::Nothing;
        QCOMPARE(outcome.reaction.kind, kind);
        if (kind == Reaction::Clue)
            QCOMPARE(outcome.reaction.clue, int(quiz.clueOrder()[i + 2]));
        QCOMPARE(quiz.isAnswered(), kind == Reaction::Reveal);
    }
    if (quiz.isAnswered())
        QVERIFY(!quiz.submitText(quiz.expected()).counted);
    else
        QVERIFY(plan.multipleChoice ? quiz.pickChoice(quiz.correctChoice()).right()
                                    : quiz.submitText(quiz.expected()).right());
}

void tst_quiz::clueRequestsShareTheTries()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    quiz.start(NameIt, StandardPlan(NameIt, false, 0, Fields));
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.requestClue(), (Reaction{Reaction::Clue, quiz.clueOrder()[2]}));
    QCOMPARE(quiz.submitText(QStringLiteral("Zzz")).reaction,
             (Reaction{Reaction::Clue, quiz.clueOrder()[3]}));
    QCOMPARE(quiz.requestClue().kind, Reaction::Clue);
    QCOMPARE(quiz.requestClue().kind, Reaction::Clue);
    QCOMPARE(quiz.requestClue().kind, Reaction::Reveal);
    QVERIFY(quiz.isAnswered());
    QCOMPARE(quiz.requestClue().kind, Reaction::Nothing);
    // A new question brings the clues back from the first.
    QVERIFY(quiz.advance());
    QCOMPARE(quiz.tries(), 1);
    QCOMPARE(quiz.requestClue().kind, Reaction::Clue);

    // Modes without clues give none.
    quiz.start(Capitals, StandardPlan(Capitals, false, 0, Fields));
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.requestClue().kind, Reaction::Nothing);
    QCOMPARE(quiz.tries(), 1);
}

void tst_quiz::eachRecordOnceThenTheEnd()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    for (const QuizMode mode : {Capitals, FindIt, Flags}) {
        for (const bool multipleChoice : {false, true}) {
            quiz.start(mode, StandardPlan(mode, multipleChoice, 0, Fields));
            QVERIFY(quiz.isRunning());
            QSet<int> asked;
            bool more = quiz.nextQuestion();
            while (more) {
                QVERIFY(!asked.contains(quiz.currentRecord()));
                asked.insert(quiz.currentRecord());
                QCOMPARE(quiz.questionNumber(), int(asked.size()));
                // Moving on needs an answer first.
                QVERIFY(quiz.advance());
                QCOMPARE(quiz.questionNumber(), int(asked.size()));
                if (asked.size() % 2)
                    quiz.submitText(quiz.expected());
                else
                    quiz.reveal();
                more = quiz.advance();
            }
            QCOMPARE(asked.size(), 8);
            QVERIFY(!quiz.isRunning());
            QCOMPARE(quiz.mode(), int(Idle));
            QCOMPARE(quiz.rightAnswers(), 4);
        }
    }
}

void tst_quiz::randomModeNeverEnds()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    quiz.start(NameIt, StandardPlan(NameIt, false, 0, Fields));
    QSet<int> seen;
    bool repeated = false;
    for (int i = 0; i < 200; ++i) {
        QVERIFY(quiz.nextQuestion());
        repeated = repeated || seen.contains(quiz.currentRecord());
        seen.insert(quiz.currentRecord());
        quiz.reveal();
    }
    QVERIFY(quiz.isRunning());
    QCOMPARE(seen.size(), 8);
    QVERIFY(repeated);
    quiz.stop();
    QVERIFY(!quiz.isRunning());
    QVERIFY(!quiz.nextQuestion());
}

void tst_quiz::choicesHoldTheAnswerOnce()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    for (int round = 0; round < 40; ++round) {
        for (const QuizMode mode : {Capitals, NameIt, Flags}) {
            quiz.start(mode, StandardPlan(mode, true, 0, Fields));
            while (quiz.nextQuestion() && quiz.questionNumber() < 9) {
                const QList<int> &choices = quiz.choices();
                QCOMPARE(choices.size(), 4);
                QCOMPARE(QSet<int>(choices.cbegin(), choices.cend()).size(), 4);
                QCOMPARE(choices.count(quiz.currentRecord()), 1);
                QCOMPARE(choices[quiz.correctChoice() - 1], quiz.currentRecord());
                QCOMPARE(quiz.choiceText(quiz.correctChoice()), quiz.expected());
                quiz.reveal();
            }
        }
    }
}

void tst_quiz::choiceOverwritesARandomPlace()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    ScriptedRandom random;
    SetRandomSource(&random);
    Quiz quiz(table);
    // Draws near 1 leave a shuffle as it was; a first draw of 0 swaps records 1 and 8.
    const QList<double> keep(7, 0.999);
    const QList<double> eightFirst = QList<double>{0.0} + QList<double>(6, 0.999);
    // Record 8 is not among the first four: the draw of 0.6 puts it in place 3.
    random.values = eightFirst + keep + QList<double>{0.6};
    quiz.start(Capitals, StandardPlan(Capitals, true, 1, Fields));
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.currentRecord(), 8);
    QCOMPARE(quiz.choices(), (QList<int>{1, 2, 8, 4}));
    QCOMPARE(quiz.correctChoice(), 3);
    QVERIFY(random.values.isEmpty());

    // Record 2 is among them already: it keeps its place and nothing more is drawn.
    random.values = keep + QList<double>{0.0};
    quiz.reveal();
    QVERIFY(quiz.advance());
    QCOMPARE(quiz.currentRecord(), 2);
    QCOMPARE(quiz.choices(), (QList<int>{1, 2, 3, 4}));
    QCOMPARE(quiz.correctChoice(), 2);
    QCOMPARE(random.values.size(), 1);

    // A quiz may build its own choices; the right one is wherever the record is.
    quiz.setChoices({5, 6, 2, 7});
    QCOMPARE(quiz.correctChoice(), 3);
    QVERIFY(quiz.pickChoice(3).right());
}

void tst_quiz::clueOrderCoversEveryClue()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    quiz.start(NameIt, StandardPlan(NameIt, false, 0, GeographyFields{1, 2, 11}));
    QSet<QList<qint16>> orders;
    for (int i = 0; i < 30; ++i) {
        QVERIFY(quiz.nextQuestion());
        const QList<qint16> order = quiz.clueOrder().mid(1);
        QCOMPARE(order.size(), 11);
        QList<qint16> sorted = order;
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(sorted, (QList<qint16>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
        orders.insert(order);
        quiz.reveal();
    }
    // A fresh order for each question.
    QVERIFY(orders.size() > 25);
}

void tst_quiz::answeredQuestionsIgnoreAnswers()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    // Idle and browsing take no answers.
    QVERIFY(!quiz.submitText(QStringLiteral("Ohio")).counted);
    quiz.start(Review, StandardPlan(Review, true, 0, Fields));
    QVERIFY(!quiz.submitText(quiz.expected()).counted);
    QVERIFY(!quiz.pickChoice(1).counted);
    QVERIFY(!quiz.nextQuestion());

    quiz.start(Capitals, StandardPlan(Capitals, true, 0, Fields));
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.expected(), table.text(quiz.currentRecord(), 2));
    QVERIFY(!quiz.pickChoice(0).counted);
    QVERIFY(!quiz.pickChoice(5).counted);
    QVERIFY(quiz.submitText(quiz.expected().toUpper()).right());
    QVERIFY(!quiz.pickChoice(quiz.correctChoice()).counted);
    QVERIFY(!quiz.submitText(quiz.expected()).counted);
    QCOMPARE(quiz.rightAnswers(), 1);
}

void tst_quiz::replanReasksAnOpenQuestion()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    quiz.start(Capitals, StandardPlan(Capitals, false, 0, Fields));
    QVERIFY(quiz.nextQuestion());
    const int record = quiz.currentRecord();
    quiz.submitText(QStringLiteral("Zzz"));
    QCOMPARE(quiz.tries(), 2);
    quiz.replan(StandardPlan(Capitals, true, 1, Fields));
    QCOMPARE(quiz.currentRecord(), record);
    QCOMPARE(quiz.tries(), 1);
    QCOMPARE(quiz.choices().count(record), 1);
    QCOMPARE(quiz.expected(), table.text(record, 1));

    // An answered question stays answered; the next one follows the new plan.
    quiz.reveal();
    quiz.replan(StandardPlan(Capitals, false, 0, Fields));
    QVERIFY(quiz.isAnswered());
    QVERIFY(quiz.advance());
    QVERIFY(quiz.choices().isEmpty());
    QCOMPARE(quiz.questionNumber(), 2);
}

void tst_quiz::browsingWraps()
{
    TestEnvironment env;
    QuizTable table;
    QVERIFY(table.parse(places(), layout()));
    Quiz quiz(table);
    ScriptedRandom random;
    SetRandomSource(&random);
    random.values = {0.99};
    quiz.start(Review, StandardPlan(Review, false, 0, Fields));
    QCOMPARE(quiz.currentRecord(), 8);
    quiz.step(1);
    QCOMPARE(quiz.currentRecord(), 1);
    quiz.step(-1);
    QCOMPARE(quiz.currentRecord(), 8);
    quiz.step(-9);
    QCOMPARE(quiz.currentRecord(), 7);
    quiz.select(3);
    QCOMPARE(quiz.currentRecord(), 3);
    quiz.select(9);
    quiz.select(0);
    QCOMPARE(quiz.currentRecord(), 3);
}

void tst_quiz::outlines()
{
    // A square with a square lake, and an island apart.
    const auto outline = ParseOutline(
        QJsonDocument::fromJson("[[[0,0],[10,0],[10,10],[0,10]],[[3,3],[6,3],[6,6],[3,6]],"
                                "[[20,20],[22,20],[21,23]]]")
            .array());
    QVERIFY(outline);
    QVERIFY(OutlineContains(*outline, {1, 1}));
    QVERIFY(!OutlineContains(*outline, {4.5, 4.5}));
    QVERIFY(OutlineContains(*outline, {21, 21}));
    QVERIFY(!OutlineContains(*outline, {15, 5}));
    QVERIFY(!ParseOutline(QJsonDocument::fromJson("[[[1,2,3]]]").array()));
    QVERIFY(!ParseOutline(QJsonDocument::fromJson("[[[\"a\",2]]]").array()));
    QVERIFY(!ParseOutline(QJsonValue(3)));
    QVERIFY(!LoadOutline(QStringLiteral("/no/such/outline.json")));

    // The outline wins over a nearer map point; outside every outline the points decide.
    MapClick click;
    click.setPoints({{100, 100}, {40, 40}});
    click.setOutline(1, *outline);
    QCOMPARE(click.recordAt({1, 1}, 2), 1);
    QCOMPARE(click.outlineAt({30, 30}), 0);
    QCOMPARE(click.recordAt({30, 30}, 1), 2);
}

void tst_quiz::nearestPoint_data()
{
    QTest::addColumn<QPoint>("clickAt");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("record");

    QTest::newRow("on a point") << QPoint(300, 100) << 1 << 3;
    QTest::newRow("nearer the second") << QPoint(180, 100) << 1 << 2;
    QTest::newRow("exactly between, lower wins") << QPoint(150, 100) << 3 << 1;
    QTest::newRow("between the third and its twin") << QPoint(300, 150) << 1 << 3;
    QTest::newRow("999 units away") << QPoint(100, -899) << 3 << 1;
    QTest::newRow("1000 units away keeps the current") << QPoint(100, -900) << 3 << 3;
    QTest::newRow("far outside") << QPoint(-30000, 30000) << 2 << 2;
}

void tst_quiz::nearestPoint()
{
    QFETCH(QPoint, clickAt);
    QFETCH(int, current);
    QFETCH(int, record);
    const QList<QPoint> points{{100, 100}, {200, 100}, {300, 100}, {300, 200}};
    QCOMPARE(NearestRecord(points, clickAt, current), record);
}

QTEST_GUILESS_MAIN(tst_quiz)
#include "tst_quiz.moc"
