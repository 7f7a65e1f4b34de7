// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "QuizPanels.h"

#include "quiz/Quiz.h"
#include "shell/ActivityWindow.h"

#include <functional>
#include <QList>

class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QStackedWidget;

// A quiz window's colours: the frames' ink and border (also the answer box's and the choice
// buttons' border), and a choice button while it is pressed.
struct QuizLook {
    const char *ink;
    const char *border;
    const char *pressed;
};

// What the three quiz windows share around the Quiz engine: the answer box, the four choice
// buttons, Answer / Next and Clue, the result and score lines, the mode buttons, Stop / Exit
// and the end-of-mode summary. Each window shows its own records, pictures and hints.
class QuizWindow : public ActivityWindow {
    Q_OBJECT
public:
    // For the tests and the screenshot tool.
    const Quiz &quiz() const { return m_quiz; }

    QGroupBox *fraChoice = nullptr;
    QGroupBox *fraChoices = nullptr;
    QList<QPushButton *> cmdChoice;
    QStackedWidget *picArea = nullptr;
    QLabel *lblName = nullptr;
    QList<QLabel *> lblFact;
    QLabel *lblPrompt = nullptr;
    QLineEdit *txtAnswer = nullptr;
    QList<QPushButton *> lblanswer; // 1..4 at indices 0..3
    QLabel *lblResult = nullptr;
    QLabel *lblScore = nullptr;
    QPushButton *cmdSee = nullptr;
    QPushButton *cmdClue = nullptr;
    QWidget *fraNext = nullptr;
    QPushButton *cmdPrevious = nullptr;
    QPushButton *cmdNext = nullptr;
    QGroupBox *fraType = nullptr;
    QList<QRadioButton *> optType;
    QPushButton *cmdHelp = nullptr;
    QPushButton *cmdExit = nullptr;

protected:
    QuizWindow(const QString &helpTopic, const QuizLook &look, QWidget *parent);

    // Building. Tab follows the order controls are made in, so a window calls these where
    // its controls come in that order.
    QLabel *addLabel(const QString &name, const QString &spoken, double scale, bool bold = false);
    QPushButton *addButton(const QString &caption, const QString &name, const char *colour);
    QString frameStyle() const;
    // The question, the answer box and choices, the result, Answer, Clue, the arrows that step
    // through the records in review, and the score. Returns the answer row and the row of
    // actions, for the window to place and to add its own hint to.
    struct AnswerRows {
        QHBoxLayout *answer;
        QHBoxLayout *actions;
    };
    AnswerRows buildAnswerControls(const char *arrowColour, const QString &previousName,
                                   const QString &nextName);
    // The frame of mode buttons; button i starts mode i + 1.
    void buildModes(const QStringList &captions, const QList<const char *> &colours);
    // A frame of two or more options, named `optionName`_0, _1, ...; `chosen` is told the
    // option the pupil picks.
    QGroupBox *buildOptions(const QString &caption, const QString &name, const char *optionName,
                            const QStringList &captions, int checked,
                            QList<QRadioButton *> &options, std::function<void(int)> chosen);
    // Help and Exit, the side column holding `frames`, the layout and the shared handlers.
    void finishControls(const QList<QWidget *> &frames);
    // Shows the idle window, sized to the screen.
    void openIdle();

    // What each window does its own way.
    virtual QString modeTitle(int mode) const = 0; // Idle: the window's name
    virtual QuizPlan planFor(int mode) const = 0;
    virtual QString cannotStart(const QString &error) const = 0;
    virtual void clearItems() = 0;
    virtual void showIdlePictures() = 0;
    virtual void hideModeControls() {}
    virtual void showModeOptions(int /*mode*/) {}
    virtual void showReview() = 0;
    virtual void showItem(int item) = 0;
    // After a new question is drawn (or asked again the new way): choices the window builds.
    virtual void prepareQuestion(bool /*newQuestion*/) {}
    // Shows the question and the widgets to answer it with, and gives one of them the focus.
    virtual void askQuestion() = 0;
    // Shows the mode's hint after a wrong try; returns what the result line adds.
    virtual QString showHint() = 0;
    // Shows the record once its answer is given or revealed.
    virtual void showAnswer() = 0;
    // Whether the engine's right choice is on screen to be marked.
    virtual bool choicesOffered() const = 0;
    virtual void markRight(int choice);

    // The shared flow.
    void startMode(int mode);
    void stopMode();
    void showIdle();
    void showQuestion();
    void showChoices(bool shown);
    void updateScore();
    void setResult(const QString &text, bool good);
    void txtAnswer_Enter();
    // Takes choice 1..4; a wrong one is marked where it was picked by `markWrong`.
    void pick(int choice, const QString &given, const std::function<void()> &markWrong);
    void optionChanged();
    virtual void fitType();
    // In review the arrow keys step through the records: true when `key` did.
    bool stepByKey(int key);

    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QuizTable m_table;
    Quiz m_quiz{m_table};
    QString m_loadError;
    // Every text widget and its size against the window's base type, for fitType().
    QList<QuizPanels::TypeScale> m_typeScale;

private:
    void cmdExit_Click();
    void cmdSee_Click();
    void cmdClue_Click();
    void lblanswer_Click(int choice);
    void react(const Outcome &outcome, const QString &given);
    void revealAnswer();
    QString choiceStyle(const char *background, const char *border) const;

    QuizLook m_look;
    QScrollArea *m_sidePanel = nullptr;
    QString m_dingSound;
    QString m_tadaSound;
    QString m_uhOhSound;
};
