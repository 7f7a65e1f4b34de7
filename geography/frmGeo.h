// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UsStates.h"

#include "GeoQuizWindow.h"

#include <QList>

class PictureBox;
class QLabel;

// US Geography: browse the fifty states on the map with their facts, or play the four
// quizzes (capitals, a state from its clues, a state on the map, flags), typed or picked.
class frmGeo : public GeoQuizWindow {
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
    QLabel *lblAbbr;
    QLabel *lblNick;
    QLabel *lblNumber;
    QLabel *lblAdmit;
    QLabel *lblCapital;
    QLabel *lblRegion;
    PictureBox *imgFlag;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    void placeInsets();
    void resetInsets();
    void showAllItems();

    QString flagFile(int record) const override;
    void showOnMap(int record) override;
    QString modeTitle(int mode) const override;
    QString cannotStart(const QString &error) const override;
    void clearItems() override;
    void showReview() override;
    void showItem(int item) override;
    void askQuestion() override;
    QString showHint() override;
    void showAnswer() override;

    UsStates::MapGeometry m_geometry;
};
