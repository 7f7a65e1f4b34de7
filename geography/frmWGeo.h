// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorldCountries.h"

#include "GeoQuizWindow.h"

#include <QList>

class PictureBox;
class QLabel;
class WorldMap;

// World Geography: browse a hundred countries on the world map with their facts, or play the
// four quizzes (capitals, a country from its clues, a country on the map, flags), typed or
// picked.
class frmWGeo : public GeoQuizWindow {
    Q_OBJECT
public:
    explicit frmWGeo(QWidget *parent = nullptr);
    ~frmWGeo() override;

    // For the tests and the screenshot tool.
    const QuizTable &countries() const { return m_table; }
    // Where a point of the map (in map units) is inside picMap, for clicking on it.
    QPoint mapPoint(QPointF mapUnits) const;

    WorldMap *picMap;
    QLabel *lblCapital;
    QLabel *lblRegion;
    QLabel *lblProducts;
    PictureBox *imgFlag;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
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
};
