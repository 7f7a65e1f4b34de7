// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UsStates.h"

#include "quiz/widgets/QuizWindow.h"

#include <QList>

class FlagButton;
class PictureBox;
class QGroupBox;
class QLabel;
class QRadioButton;

// US Geography: browse the fifty states on the map with their facts, or play the four
// quizzes (capitals, a state from its clues, a state on the map, flags), typed or picked.
class frmGeo : public QuizWindow {
    Q_OBJECT
public:
    explicit frmGeo(QWidget *parent = nullptr);
    ~frmGeo() override;

    // For the tests and the screenshot tool.
    const QuizTable &states() const { return m_table; }
    // Where a point of the map (in map units) is inside picMap, for clicking on it.
    QPoint mapPoint(QPointF mapUnits) const;

    PictureBox *picMap;
    PictureBox *picAK;
    PictureBox *picHI;
    QWidget *fraFlags;
    QList<FlagButton *> imgFlagGame; // 1..4 at indices 0..3
    QLabel *lblAbbr;
    QLabel *lblNick;
    QLabel *lblNumber;
    QLabel *lblAdmit;
    QLabel *lblCapital;
    QLabel *lblRegion;
    PictureBox *imgFlag;
    QLabel *Label1;
    QGroupBox *fraWhich1;
    QList<QRadioButton *> optWhich1;
    QGroupBox *fraWhich2;
    QList<QRadioButton *> optWhich2;
    QGroupBox *fraWhich3;
    QList<QRadioButton *> optWhich3;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QGroupBox *buildWays(const QString &caption, const QString &name, const char *optionName,
                         const QStringList &captions, QList<QRadioButton *> &options, int setting);
    void placeInsets();
    void resetInsets();
    void imgFlagGame_Click(int choice);
    void mapClicked(QPointF mapUnits);

    int direction(int mode) const;
    bool multipleChoice() const;
    void setAnswerWidgets();
    void showAllItems();
    void showMapOf(int record);
    void pointAt(int record);

    QString modeTitle(int mode) const override;
    QuizPlan planFor(int mode) const override;
    QString cannotStart(const QString &error) const override;
    void clearItems() override;
    void showIdlePictures() override;
    void hideModeControls() override;
    void showModeOptions(int mode) override;
    void showReview() override;
    void showItem(int item) override;
    void askQuestion() override;
    QString showHint() override;
    void showAnswer() override;
    bool choicesOffered() const override;
    void markRight(int choice) override;

    MapClick m_mapClick;
    UsStates::MapGeometry m_geometry;
    int m_pointed = 0; // the state chosen with the arrow keys on the map, in Find State
};
