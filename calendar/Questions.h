// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarData.h"
#include "MonthMath.h"

#include "shell/core/Random.h"

#include <QStringList>

// One question: its text (starting with a line break, as the question box shows it), the
// answer shown to the pupil and every typed answer that counts.
struct Question {
    int kind = 0;
    QString text;
    QString answer;
    QStringList accepted; // text answers; empty for a number
    int number = 0;       // the answer when it is a number
    bool numeric = false;
    QString dateWord; // a month name that may come before a typed date ("May 12")

    // Lenient about case, blanks and a final stop; text answers also count when they sound
    // alike; numbers may carry "st", "nd", "rd" or "th".
    bool accepts(const QString &typed) const;
};

// Makes the quiz questions (kinds 1-40) from the file's names and the reading questions
// (kinds 1-9) about one month on display.
class QuestionMaker {
public:
    static constexpr int QuizKinds = 40;
    static constexpr int ReadingKinds = 9;

    // Without a source of its own it draws from the process-wide one of the moment.
    explicit QuestionMaker(const CalendarData &data, RandomSource *random = nullptr);

    Question quiz(int kind);
    Question randomQuiz();
    Question reading(int kind, const MonthLayout &month);
    Question randomReading(const MonthLayout &month);

    // The season a month falls in (winter is December to February), and its three months.
    static int seasonOf(int month);
    static QString seasonName(int season);
    static QList<int> seasonMonths(int season);

private:
    double next() { return (m_random ? *m_random : CurrentRandomSource()).next(); }
    int draw(int n);
    Question textAnswer(int kind, const QString &text, const QString &answer,
                        QStringList accepted = {});
    static Question numberAnswer(int kind, const QString &text, int number);
    QString day(int weekday) const { return m_data.dayName((weekday - 1 + 700) % 7 + 1); }
    QString month(int month) const { return m_data.monthName((month - 1 + 1200) % 12 + 1); }

    const CalendarData &m_data;
    RandomSource *m_random;
};

// A round of questions with a running score: two tries per question, then the answer is shown.
class QuizRound {
public:
    static constexpr int Length = 10;
    static constexpr int Tries = 2;
    enum class Outcome { Right, TryAgain, Missed };

    void start();
    void ask(const Question &question);
    Outcome submit(const QString &typed);

    const Question &question() const { return m_question; }
    bool waitingForAnswer() const { return m_waiting; }
    int asked() const { return m_asked; }
    int right() const { return m_right; }
    // Whether each question settled so far was answered right, in order.
    const QList<bool> &results() const { return m_results; }
    bool isOver() const { return m_asked >= Length && !m_waiting; }

private:
    Question m_question;
    bool m_waiting = false;
    int m_asked = 0;
    int m_right = 0;
    int m_tries = 0;
    QList<bool> m_results;
};
