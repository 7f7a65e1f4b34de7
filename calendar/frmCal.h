// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarData.h"
#include "LessonPicture.h"
#include "MonthMath.h"
#include "Questions.h"

#include "shell/ActivityWindow.h"

#include <QDate>
#include <QList>

class MonthPicture;
class QButtonGroup;
class QGroupBox;
class ScoreDots;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QSpinBox;

// The calendar window: a lesson on the parts of a calendar, a quiz of calendar questions,
// questions read off the month on display, any month from 1583 to 2199, and printing.
class frmCal : public ActivityWindow {
    Q_OBJECT
public:
    enum Mode { Parts, Quiz, Reading, Display };

    explicit frmCal(QWidget *parent = nullptr);

    // The day ringed as today (the system's date unless a test or a picture sets another).
    void setToday(const QDate &today);
    void showMonth(int month, int year);
    int month() const { return m_layout.month; }
    int year() const { return m_layout.year; }
    const MonthLayout &shownMonth() const { return m_layout; }
    Mode mode() const { return m_mode; }
    bool roundRunning() const { return m_running; }
    const QuizRound &round() const { return m_round; }
    int lessonPage() const { return m_page; }
    const CalendarData &data() const { return m_data; }

    MonthPicture *picCalendar;
    QSpinBox *spnMonth;
    QScrollBar *hsbYear;
    QLabel *lblYear;
    QList<QPushButton *> cmdMenu;
    QPushButton *cmdPrint;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;
    QWidget *pnlPanels;

    QGroupBox *fraParts;
    QLabel *lblLessonTitle;
    QLabel *lblLesson;
    LessonPicture *picLesson;
    QLabel *lblPage;
    QPushButton *cmdStartReview;
    QPushButton *cmdBack;
    QPushButton *cmdNext;

    QGroupBox *fraQuiz;
    QLabel *lblQuestion;
    QLineEdit *txtQAnswer;
    QPushButton *cmdStartQuiz;
    QLabel *lblScore;
    QLabel *lblVerdict;

    QGroupBox *fraReading;
    QLabel *lblRQuestion;
    QLineEdit *txtAnswer;
    QPushButton *cmdStartReading;
    QLabel *lblRScore;
    QLabel *lblRVerdict;

    QGroupBox *fraDisplay;
    QLabel *lblDisplay;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // The controls of the quiz or the reading panel, which work alike.
    struct QuizPanel {
        QLabel *question;
        QLineEdit *answer;
        QPushButton *start;
        QLabel *score;
        QLabel *verdict;
        ScoreDots *dots;
    };

    void buildControls();
    QGroupBox *buildQuizPanel(const QString &title, const QString &name, const QString &intro,
                              QuizPanel &panel, const QString &answerName);
    void setMode(Mode mode);
    void refreshMonth();
    void showLessonPage(int page);
    QuizPanel &activePanel();
    void startRound();
    void askNext();
    void submitAnswer();
    void endRound(bool stopped);
    void setRunning(bool running);
    void updateScore();
    void cmdExit_Click();
    void cmdPrint_Click();
    void sizeType();

    CalendarData m_data;
    QString m_loadError;
    QuestionMaker m_maker;
    QuizRound m_round;
    MonthLayout m_layout;
    QDate m_today;
    Mode m_mode = Display;
    bool m_running = false;
    int m_page = -1;
    QString m_lastQuestion;
    QuizPanel m_quiz{};
    QuizPanel m_reading{};
    QButtonGroup *m_menuGroup = nullptr;
    QList<LessonPage> m_pages;
    QString m_dingSound;
    QString m_uhOhSound;
    QString m_tadaSound;
};
