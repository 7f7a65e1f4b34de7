// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Presidents.h"

#include "shell/ActivityWindow.h"

#include "quiz/widgets/QuizPanels.h"

#include <QList>

class PictureBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QStackedWidget;

// US Presidents: browse the presidents in order with their portraits and facts, name a
// president from clues, or name the one missing from a row of three.
class frmPres : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmPres(QWidget *parent = nullptr);
    ~frmPres() override;

    // For the tests and the screenshot tool.
    const Quiz &quiz() const { return m_quiz; }
    const QuizTable &presidents() const { return m_presidents; }
    const Presidents::WhoIsMissing &whoIsMissing() const { return m_who; }

    QGroupBox *fraChoice;
    QGroupBox *fraChoices;
    QList<QPushButton *> cmdChoice;
    QStackedWidget *picArea;
    PictureBox *imgPres;
    QLabel *lblName;
    QLabel *lblNumber;
    QLabel *lblDate;
    QLabel *lblPlace;
    QLabel *lblTerm;
    QLabel *lblParty;
    QList<QLabel *> lblFact;
    QList<QGroupBox *> fraWho; // 1..3 at indices 0..2
    QList<QLabel *> lblWho;
    QList<PictureBox *> imgWho;
    QList<QLabel *> lblWTerm;
    QList<QLabel *> lblWNum;
    QLabel *lblPrompt;
    QLineEdit *txtAnswer;
    QList<QPushButton *> lblanswer; // 1..4 at indices 0..3
    QLabel *lblResult;
    QLabel *lblScore;
    QPushButton *cmdSee;
    QPushButton *cmdClue;
    QWidget *fraNext;
    QPushButton *cmdPrevious;
    QPushButton *cmdNext;
    QGroupBox *fraType;
    QList<QRadioButton *> optType;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    void fitType();
    double typeFactor() const;

    void cmdChoice_Click(int index);
    void cmdExit_Click();
    void cmdSee_Click();
    void cmdClue_Click();
    void txtAnswer_Enter();
    void lblanswer_Click(int choice);
    void optType_Changed(int index);

    bool multipleChoice() const;
    QuizPlan planFor(int mode) const;
    void startMode(int mode);
    void stopMode();
    void showIdle();
    void prepareChoices(bool newQuestion);
    void showQuestion();
    void showReview();
    void showWhoRow();
    void styleName(QLabel *name, bool missing);
    void setAnswerWidgets();
    void clearItems();
    void showItem(int item);
    void showAllItems();
    void react(const Outcome &outcome, const QString &given);
    void revealAnswer();
    void setResult(const QString &text, bool good);
    void updateScore();

    QuizTable m_presidents;
    Quiz m_quiz{m_presidents};
    Presidents::WhoIsMissing m_who;
    QString m_loadError;
    QString m_dingSound;
    QString m_tadaSound;
    QString m_uhOhSound;
    QList<QuizPanels::TypeScale> m_typeScale;
    QScrollArea *m_sidePanel = nullptr;
};
