// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UsStates.h"

#include "shell/ActivityWindow.h"

#include "quiz/widgets/QuizPanels.h"

#include <QList>

class FlagButton;
class PictureBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QStackedWidget;

// US Geography: browse the fifty states on the map with their facts, or play the four
// quizzes (capitals, a state from its clues, a state on the map, flags), typed or picked.
class frmGeo : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmGeo(QWidget *parent = nullptr);
    ~frmGeo() override;

    // For the tests and the screenshot tool.
    const Quiz &quiz() const { return m_quiz; }
    const QuizTable &states() const { return m_states; }
    // Where a point of the map (in map units) is inside picMap, for clicking on it.
    QPoint mapPoint(QPointF mapUnits) const;

    QGroupBox *fraChoice;
    QGroupBox *fraChoices;
    QList<QPushButton *> cmdChoice;
    QStackedWidget *picArea;
    PictureBox *picMap;
    PictureBox *picAK;
    PictureBox *picHI;
    QWidget *fraFlags;
    QList<FlagButton *> imgFlagGame; // 1..4 at indices 0..3
    QLabel *lblName;
    QLabel *lblAbbr;
    QLabel *lblNick;
    QLabel *lblNumber;
    QLabel *lblAdmit;
    QLabel *lblCapital;
    QLabel *lblRegion;
    QList<QLabel *> lblFact;
    PictureBox *imgFlag;
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
    QLabel *Label1;
    QGroupBox *fraType;
    QList<QRadioButton *> optType;
    QGroupBox *fraWhich1;
    QList<QRadioButton *> optWhich1;
    QGroupBox *fraWhich2;
    QList<QRadioButton *> optWhich2;
    QGroupBox *fraWhich3;
    QList<QRadioButton *> optWhich3;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QGroupBox *buildOptions(const QString &caption, const QString &name,
                            const QStringList &captions, QList<QRadioButton *> &options,
                            int setting);
    void placeInsets();
    void fitType();

    void cmdChoice_Click(int index);
    void cmdExit_Click();
    void cmdSee_Click();
    void cmdClue_Click();
    void txtAnswer_Enter();
    void lblanswer_Click(int choice);
    void imgFlagGame_Click(int choice);
    void optionChanged();
    void mapClicked(QPointF mapUnits);

    QuizPlan planFor(int mode) const;
    int direction(int mode) const;
    bool multipleChoice() const;
    void startMode(int mode);
    void stopMode();
    void showIdle();
    void showQuestion();
    void showReview();
    void setAnswerWidgets();
    void clearItems();
    void resetInsets();
    void showItem(int item);
    void showAllItems();
    void showMapOf(int record);
    void react(const Outcome &outcome, const QString &given);
    void revealAnswer();
    void setResult(const QString &text, bool good);
    void updateScore();
    void pointAt(int record);

    QuizTable m_states;
    Quiz m_quiz{m_states};
    MapClick m_mapClick;
    UsStates::MapGeometry m_geometry;
    QString m_loadError;
    int m_pointed = 0; // the state chosen with the arrow keys on the map, in Find State
    QString m_dingSound;
    QString m_tadaSound;
    QString m_uhOhSound;
    // Every text widget and its size against the window's base type, for fitType().
    QList<QuizPanels::TypeScale> m_typeScale;
    QScrollArea *m_sidePanel = nullptr;
};
