// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorldCountries.h"

#include "quiz/widgets/QuizWindow.h"

#include <QList>

class FlagButton;
class PictureBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class WorldMap;

// World Geography: browse a hundred countries on the world map with their facts, or play the
// four quizzes (capitals, a country from its clues, a country on the map, flags), typed or
// picked.
class frmWGeo : public QuizWindow {
    Q_OBJECT
public:
    explicit frmWGeo(QWidget *parent = nullptr);
    ~frmWGeo() override;

    // For the tests and the screenshot tool.
    const QuizTable &countries() const { return m_table; }
    // Where a point of the map (in map units) is inside picMap, for clicking on it.
    QPoint mapPoint(QPointF mapUnits) const;

    WorldMap *picMap;
    QWidget *fraFlags;
    QList<FlagButton *> imgFlagGame; // 1..4 at indices 0..3
    QLabel *lblCapital;
    QLabel *lblRegion;
    QLabel *lblProducts;
    PictureBox *imgFlag;
    QLabel *Label1;
    QGroupBox *fraWhich1;
    QList<QRadioButton *> optWhich1;
    QGroupBox *fraWhich2;
    QList<QRadioButton *> optWhich2;
    QGroupBox *fraWhich3;
    QList<QRadioButton *> optWhich3;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QGroupBox *buildWays(const QString &caption, const QString &name, const char *optionName,
                         const QStringList &captions, QList<QRadioButton *> &options, int setting);
    void imgFlagGame_Click(int choice);
    void mapClicked(QPointF mapUnits);

    int direction(int mode) const;
    bool multipleChoice() const;
    void setAnswerWidgets();
    void showAllItems();
    void showPointerAt(int record);
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
    int m_pointed = 0; // the country chosen with the arrow keys on the map, in Find the Country
};
