// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorldCountries.h"

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
class WorldMap;

// World Geography: browse a hundred countries on the world map with their facts, or play the
// four quizzes (capitals, a country from its clues, a country on the map, flags), typed or
// picked.
class frmWGeo : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmWGeo(QWidget *parent = nullptr);
    ~frmWGeo() override;

    // For the tests and the screenshot tool.
    const Quiz &quiz() const { return m_quiz; }
    const QuizTable &countries() const { return m_countries; }
    // Where a point of the map (in map units) is inside picMap, for clicking on it.
    QPoint mapPoint(QPointF mapUnits) const;

    QGroupBox *fraChoice;
    QGroupBox *fraChoices;
    QList<QPushButton *> cmdChoice;
    QStackedWidget *picArea;
    WorldMap *picMap;
    QWidget *fraFlags;
    QList<FlagButton *> imgFlagGame; // 1..4 at indices 0..3
    QLabel *lblName;
    QLabel *lblCapital;
    QLabel *lblRegion;
    QList<QLabel *> lblFact;
    QLabel *lblProducts;
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
    void showItem(int item);
    void showAllItems();
    void showPointerAt(int record);
    void react(const Outcome &outcome, const QString &given);
    void revealAnswer();
    void setResult(const QString &text, bool good);
    void updateScore();
    void pointAt(int record);

    QuizTable m_countries;
    Quiz m_quiz{m_countries};
    MapClick m_mapClick;
    QString m_loadError;
    int m_pointed = 0; // the country chosen with the arrow keys on the map, in Find the Country
    QString m_dingSound;
    QString m_tadaSound;
    QString m_uhOhSound;
    // Every text widget and its size against the window's base type, for fitType().
    QList<QuizPanels::TypeScale> m_typeScale;
    QScrollArea *m_sidePanel = nullptr;
};
