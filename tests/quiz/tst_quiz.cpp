// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "quiz/MapClick.h"
#include "quiz/Quiz.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QtTest>

Q_DECLARE_METATYPE(Match)

namespace {
// Eight places of three fields (name, capital, a number): enough for four choices and few
// enough to ask every one.
const QByteArray Places =
    "\"Ohio\",\"Columbus\",1\n\"Iowa\",\"Des Moines\",2\n\"Utah\",\"Salt Lake City\",3\n"
    "\"Texas\",\"Austin\",4\n\"Maine\",\"Augusta\",5\n\"Idaho\",\"Boise\",6\n"
    "\"Nevada\",\"Carson City\",7\n\"Oregon\",\"Salem\",8\n";

QuizTable::Layout layout(int records = 8)
{
    return {QStringLiteral("places.dat"), records, 3, {3}, {1, 2}};
}

// Name, capital and five clues.
const GeographyFields Fields{1, 2, 5};
} // namespace

// The question engine: its table reader, answer checking, the flow of every mode, multiple
// choice, clue orders and the map click rules.
class tst_quiz : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_table.parse(Places, layout())); }
    void init() { Randomize(2024); }
    void cleanup() { SetRandomSource(nullptr); }
    void tableReading_data();
    void tableReading();
    void answerChecking_data();
    void answerChecking();
    void wrongTryReactions_data();
    void wrongTryReactions();
    void eachRecordOnceThenTheEnd();
    void randomModeNeverEnds();
    void choicesHoldTheAnswerOnce();
    void choiceOverwritesARandomPlace();
    void cluesAndAnsweredQuestions();
    void replanKeepsTheRecord();
    void outlinesBeforePoints();

private:
    QuizTable m_table;
};

void tst_quiz::tableReading_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("errorLine");
    QTest::addColumn<int>("errorItem");

    QTest::newRow("good") << Places << 0 << 0;
    QTest::newRow("one record short") << Places.left(Places.indexOf("\"Oregon\"")) << 8 << 0;
    QTest::newRow("a field missing")
        << QByteArray(Places).replace("\"Utah\",\"Salt Lake City\",", "\"Utah\",") << 3 << 3;
    QTest::newRow("a number beyond 16 bits")
        << QByteArray(Places).replace("\"Augusta\",5", "\"Augusta\",40000") << 5 << 3;
    QTest::newRow("an empty answer") << QByteArray(Places).replace("\"Boise\"", "\"  \"") << 6 << 2;
    QTest::newRow("empty file") << QByteArray() << 1 << 0;
}

void tst_quiz::tableReading()
{
    QFETCH(QByteArray, content);
    QFETCH(int, errorLine);
    QFETCH(int, errorItem);
    QuizTable table;
    QVERIFY(table.parse("\"A\",\"a\",2.5\n\"B\",\"b\",3.5\n\"C\",\"c\",-0.5\n", layout(3)));
    // Numbers are rounded half to even.
    QCOMPARE(table.number(1, 3), qint16(2));
    QCOMPARE(table.number(2, 3), qint16(4));
    QCOMPARE(table.number(3, 3), qint16(0));

    const bool read = table.parse(content, layout());
    QCOMPARE(read, errorLine == 0);
    if (!read) {
        QCOMPARE(table.error().line, errorLine);
        QCOMPARE(table.error().item, errorItem);
        // A failed read keeps the table as it was.
        QCOMPARE(table.count(), 3);
        return;
    }
    QCOMPARE(table.count(), 8);
    QCOMPARE(table.text(3, 2), QStringLiteral("Salt Lake City"));
    QCOMPARE(table.number(8, 3), qint16(8));
    // Outside the table there is nothing, never a crash.
    QCOMPARE(table.text(0, 1), QString());
    QCOMPARE(table.text(1, 4), QString());
    QCOMPARE(table.number(9, 3), qint16(0));
}

void tst_quiz::answerChecking_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<Match>("match");

    QTest::newRow("exact") << "Tennessee"
                           << "Tennessee" << Match::Exact;
    QTest::newRow("capitals and blanks") << " NEW YORK "
                                         << "New York" << Match::SameLetters;
    QTest::newRow("spelt as it sounds") << "Tenesee"
                                        << "Tennessee" << Match::SoundsAlike;
    QTest::newRow("sounds alike, small letters") << "masachusets"
                                                 << "Massachusetts" << Match::SoundsAlike;
    QTest::newRow("another state") << "Texas"
                                   << "Tennessee" << Match::Wrong;
    QTest::newRow("same first letter") << "Tallahassee"
                                       << "Topeka" << Match::Wrong;
    QTest::newRow("first letter counts") << "Kansas"
                                         << "Cansas" << Match::Wrong;
    QTest::newRow("nothing typed") << ""
                                   << "Ohio" << Match::Wrong;
}

void tst_quiz::answerChecking()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QFETCH(Match, match);
    QCOMPARE(CheckAnswer(typed, expected), match);
}

void tst_quiz::wrongTryReactions_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("multipleChoice");
    QTest::addColumn<int>("direction");
    // What each wrong answer calls for in turn: n nothing, h hint, c clue, r the answer.
    QTest::addColumn<QString>("reactions");

    QTest::newRow("capitals, name the capital") << int(Capitals) << false << 0 << "nnr";
    QTest::newRow("capitals, name the state, picked") << int(Capitals) << true << 1 << "hnr";
    // Five clues: the first comes with the question, four more, then the answer.
    QTest::newRow("clues, typed") << int(NameIt) << false << 0 << "ccccr";
    QTest::newRow("clues, picked") << int(NameIt) << true << 0 << "ccccr";
    QTest::newRow("find, name the state") << int(FindIt) << false << 0 << "hnnnnn";
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
    Quiz quiz(m_table);
    const QuizPlan plan = StandardPlan(QuizMode(mode), multipleChoice, direction, Fields);
    quiz.start(mode, plan);
    QVERIFY(quiz.nextQuestion());
    for (qsizetype i = 0; i < reactions.size(); ++i) {
        const Outcome outcome = plan.multipleChoice ? quiz.pickChoice(quiz.correctChoice() % 4 + 1)
                                                    : quiz.submitText(QStringLiteral("Zzz"));
        QVERIFY(outcome.counted && !outcome.right());
        QCOMPARE(quiz.tries(), int(i + 2));
        const auto kind = Reaction::Kind(QStringLiteral("nhcr").indexOf(reactions[i]));
        QCOMPARE(outcome.reaction.kind, kind);
        if (kind == Reaction::Clue)
            QCOMPARE(outcome.reaction.clue, int(quiz.clueOrder()[i + 2]));
        QCOMPARE(quiz.isAnswered(), kind == Reaction::Reveal);
    }
    // Once shown, the answer counts for nothing; until then it is still right.
    const Outcome last = plan.multipleChoice ? quiz.pickChoice(quiz.correctChoice())
                                             : quiz.submitText(quiz.expected());
    QCOMPARE(last.right(), !reactions.endsWith(u'r'));
}

void tst_quiz::eachRecordOnceThenTheEnd()
{
    Quiz quiz(m_table);
    for (const QuizMode mode : {Capitals, FindIt, Flags}) {
        quiz.start(mode, StandardPlan(mode, mode == Flags, 0, Fields));
        QSet<int> asked;
        for (bool more = quiz.nextQuestion(); more; more = quiz.advance()) {
            QVERIFY(!asked.contains(quiz.currentRecord()));
            asked.insert(quiz.currentRecord());
            // Moving on needs an answer first.
            QVERIFY(quiz.advance());
            QCOMPARE(quiz.questionNumber(), int(asked.size()));
            if (asked.size() % 2)
                quiz.submitText(quiz.expected());
            else
                quiz.reveal();
        }
        QCOMPARE(asked.size(), 8);
        QCOMPARE(quiz.mode(), int(Idle));
        QCOMPARE(quiz.rightAnswers(), 4);
    }
}

void tst_quiz::randomModeNeverEnds()
{
    Quiz quiz(m_table);
    quiz.start(NameIt, StandardPlan(NameIt, false, 0, Fields));
    QSet<int> seen;
    for (int i = 0; i < 100; ++i) {
        QVERIFY(quiz.nextQuestion());
        seen.insert(quiz.currentRecord());
        quiz.reveal();
    }
    QVERIFY(quiz.isRunning());
    QCOMPARE(seen.size(), 8);
}

void tst_quiz::choicesHoldTheAnswerOnce()
{
    Quiz quiz(m_table);
    for (int round = 0; round < 50; ++round) {
        for (const QuizMode mode : {Capitals, NameIt, Flags}) {
            quiz.start(mode, StandardPlan(mode, true, 0, Fields));
            while (quiz.nextQuestion() && quiz.questionNumber() < 9) {
                const QList<int> &choices = quiz.choices();
                QCOMPARE(QSet<int>(choices.cbegin(), choices.cend()).size(), 4);
                QCOMPARE(choices.count(quiz.currentRecord()), 1);
                QCOMPARE(quiz.choiceText(quiz.correctChoice()), quiz.expected());
                quiz.reveal();
            }
        }
    }
}

void tst_quiz::choiceOverwritesARandomPlace()
{
    ScriptedRandom random;
    SetRandomSource(&random);
    Quiz quiz(m_table);
    // Draws near 1 leave a shuffle as it was; a first draw of 0 swaps records 1 and 8.
    const QList<double> keep(7, 0.999);
    // Record 8 is not among the first four: the draw of 0.6 puts it in place 3.
    random.values = QList<double>{0.0} + QList<double>(6, 0.999) + keep + QList<double>{0.6};
    quiz.start(Capitals, StandardPlan(Capitals, true, 1, Fields));
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.choices(), (QList<int>{1, 2, 8, 4}));
    QCOMPARE(quiz.correctChoice(), 3);
    QVERIFY(random.values.isEmpty());

    // Record 2 is among them already: it keeps its place and nothing more is drawn.
    random.values = keep + QList<double>{0.0};
    quiz.reveal();
    QVERIFY(quiz.advance());
    QCOMPARE(quiz.choices(), (QList<int>{1, 2, 3, 4}));
    QCOMPARE(quiz.correctChoice(), 2);
    QCOMPARE(random.values.size(), 1);

    // A quiz may build its own choices; the right one is wherever the record is.
    quiz.setChoices({5, 6, 2, 7});
    QVERIFY(quiz.pickChoice(3).right());
}

void tst_quiz::cluesAndAnsweredQuestions()
{
    Quiz quiz(m_table);
    QVERIFY(!quiz.submitText(QStringLiteral("Ohio")).counted); // idle
    quiz.start(NameIt, StandardPlan(NameIt, false, 0, GeographyFields{1, 2, 11}));
    QSet<QList<qint16>> orders;
    for (int i = 0; i < 20; ++i) {
        QVERIFY(quiz.nextQuestion());
        QList<qint16> order = quiz.clueOrder().mid(1);
        orders.insert(order);
        std::sort(order.begin(), order.end());
        QCOMPARE(order, (QList<qint16>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
        // Asking for clues and wrong answers share the tries: ten more clues, then the answer.
        for (int clue = 2; clue <= 11; ++clue) {
            const Reaction shown =
                clue % 2 ? quiz.requestClue() : quiz.submitText(QStringLiteral("Zzz")).reaction;
            QCOMPARE(shown, (Reaction{Reaction::Clue, quiz.clueOrder()[clue]}));
        }
        QCOMPARE(quiz.requestClue().kind, Reaction::Reveal);
        QVERIFY(quiz.isAnswered());
        QCOMPARE(quiz.requestClue().kind, Reaction::Nothing);
        QVERIFY(!quiz.submitText(quiz.expected()).counted);
    }
    // A fresh order for each question.
    QVERIFY(orders.size() > 15);
    quiz.start(Capitals, StandardPlan(Capitals, true, 0, Fields));
    QVERIFY(quiz.nextQuestion());
    QCOMPARE(quiz.requestClue().kind, Reaction::Nothing);
    QVERIFY(!quiz.pickChoice(5).counted);
    QVERIFY(quiz.submitText(quiz.expected().toUpper()).right());
    QVERIFY(!quiz.pickChoice(quiz.correctChoice()).counted);
}

void tst_quiz::replanKeepsTheRecord()
{
    Quiz quiz(m_table);
    quiz.start(Capitals, StandardPlan(Capitals, false, 0, Fields));
    QVERIFY(quiz.nextQuestion());
    const int record = quiz.currentRecord();
    quiz.submitText(QStringLiteral("Zzz"));
    // An open question is asked again the new way...
    quiz.replan(StandardPlan(Capitals, true, 1, Fields));
    QCOMPARE(quiz.currentRecord(), record);
    QCOMPARE(quiz.tries(), 1);
    QCOMPARE(quiz.choices().count(record), 1);
    QCOMPARE(quiz.expected(), m_table.text(record, 1));
    // ...an answered one stays answered, and the next follows the new plan.
    quiz.reveal();
    quiz.replan(StandardPlan(Capitals, false, 0, Fields));
    QVERIFY(quiz.isAnswered());
    QVERIFY(quiz.advance());
    QVERIFY(quiz.choices().isEmpty());
}

void tst_quiz::outlinesBeforePoints()
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
    QVERIFY(!ParseOutline(QJsonDocument::fromJson("[[[1,2,3]]]").array()));
    QVERIFY(!LoadOutline(QStringLiteral("/no/such/outline.json")));

    // The outline wins over a nearer map point; outside every outline the points decide.
    MapClick click;
    click.setPoints({{100, 100}, {2, 2}});
    click.setOutline(1, *outline);
    QCOMPARE(click.recordAt({1, 1}, 2), 1);
    QCOMPARE(click.recordAt({4.5, 4.5}, 1), 2);
}

QTEST_GUILESS_MAIN(tst_quiz)
#include "tst_quiz.moc"
