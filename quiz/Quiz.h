// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Answers.h"
#include "QuizTable.h"

#include <QList>

// How one mode of a quiz asks its questions. The five geography modes have a ready plan
// (StandardPlan); other quizzes fill one in themselves.
struct QuizPlan {
    enum class Order {
        Browse,   // no questions: the pupil steps through the records
        EachOnce, // a shuffled order of every record; the quiz ends after the last
        AtRandom, // each question draws a record at random; the quiz never ends by itself
    };
    Order order = Order::EachOnce;
    int answerField = 1;         // the field typed or picked, also the choices' text
    bool multipleChoice = false; // four records to pick from instead of typing
    int clueCount = 0;           // > 0: a clue order; each try shows one, the answer after all
    int hintTry = 0;             // the try on which the activity shows its hint (0: none)
    int revealTry = 0;           // from this try on a wrong answer shows the answer (0: never)

    bool operator==(const QuizPlan &) const = default;
};

// The five modes the geography quizzes share, numbered as their buttons, and the two
// directions each asking mode can take (the index of its chosen option).
enum QuizMode { Idle = 0, Review = 1, Capitals = 2, NameIt = 3, FindIt = 4, Flags = 5 };
namespace Direction {
inline constexpr int NameCapital = 0, CapitalToPlace = 1; // Capitals
inline constexpr int NamePlace = 0, FindOnMap = 1;        // FindIt
inline constexpr int PickFlag = 0, FlagToPlace = 1;       // Flags
} // namespace Direction

// Where a geography table keeps the place's name and capital, and how many clues it shows.
struct GeographyFields {
    int name = 1;
    int capital = 2;
    int clues = 0;
};

QuizPlan StandardPlan(QuizMode mode, bool multipleChoice, int direction,
                      const GeographyFields &fields);

// What a wrong try (or a request for a clue) calls for.
struct Reaction {
    enum Kind { Nothing, Hint, Clue, Reveal };
    Kind kind = Nothing;
    int clue = 0; // the clue to show, for Clue
    bool operator==(const Reaction &) const = default;
};

// The result of an answer: whether it was taken at all (not once the question is answered),
// how it matched, and for a wrong one what to show next.
struct Outcome {
    bool counted = false;
    Match match = Match::Wrong;
    Reaction reaction;
    bool right() const { return counted && IsRight(match); }
};

// The question engine of the quiz activities (US Geography, World Geography, the Presidents):
// the mode flow, the question order, the tries, the clue order, multiple choice and answer
// checking, over the records of a QuizTable. It knows no widgets and shows nothing itself.
//
// How an activity plugs in:
//  1. Read its data file into a QuizTable (through the shared reader) and give it to a Quiz.
//  2. When a mode button is pressed, call start() with the mode's plan (StandardPlan for the
//     geography modes, or a plan of its own), then nextQuestion(); show currentRecord() its
//     own way: clueOrder() in clue modes, choices() in multiple choice.
//  3. Hand typed answers to submitText() and picked choices to pickChoice(); show what the
//     Outcome calls for (the hint, the next clue or the answer). requestClue() for a Clue button.
//  4. reveal() when the pupil asks for the answer; advance() for the next question. When
//     nextQuestion() or advance() returns false, every record has been asked: the quiz is idle.
//  Records a quiz builds itself (a question around a row of records) can set their choices
//  with setChoices() after nextQuestion().
class Quiz {
public:
    explicit Quiz(const QuizTable &table) : m_table(table) {}

    void start(int mode, const QuizPlan &plan);
    // The pupil changed how to answer: an open question is asked again the new way; an
    // answered one keeps its answer and the next question follows the new plan.
    void replan(const QuizPlan &plan);
    void stop();
    bool isRunning() const { return m_mode != Idle; }
    int mode() const { return m_mode; }
    const QuizPlan &plan() const { return m_plan; }

    // Browsing: the record shown, a step forward or back (wrapping at both ends), a record picked.
    int currentRecord() const { return m_current; }
    void step(int delta);
    void select(int record);

    // Asking: false when the quiz has just ended because every record was asked.
    bool nextQuestion();
    bool advance();
    void reveal();
    bool isAnswered() const { return m_answered; }
    int tries() const { return m_tries; }
    int questionNumber() const { return m_asked; }
    int rightAnswers() const { return m_right; }

    QString expected() const { return m_table.text(m_current, m_plan.answerField); }
    Outcome submitText(const QString &typed);
    // `choice` is 1..4.
    Outcome pickChoice(int choice);
    Reaction requestClue();

    // Elements 1..clueCount are the clue numbers in the order they are shown (element 0 unused).
    const QList<qint16> &clueOrder() const { return m_clueOrder; }
    // The records offered in multiple choice, 1..4 at indices 0..3, and the right one's place.
    const QList<int> &choices() const { return m_choices; }
    int correctChoice() const { return m_correctChoice; }
    QString choiceText(int choice) const;
    void setChoices(const QList<int> &records);

private:
    bool asking() const;
    Outcome wrongTry(Match match);
    Reaction reactionToTry();
    void buildChoices();
    void openQuestion();

    const QuizTable &m_table;
    int m_mode = Idle;
    QuizPlan m_plan;
    int m_current = 1;
    QList<qint16> m_order;
    int m_asked = 0;
    int m_right = 0;
    int m_tries = 0;
    bool m_answered = false;
    QList<qint16> m_clueOrder;
    QList<int> m_choices;
    int m_correctChoice = 0;
};
