// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "quiz/MapClick.h"
#include "quiz/widgets/QuizWindow.h"
#include "shell/core/Settings.h"

#include <QList>

class FlagButton;
class PictureBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QRadioButton;

// What US Geography and World Geography share beyond the other quizzes: the settings of each
// mode's direction, the page of four flags to pick from, and finding a place on the map by
// clicking or with the arrow keys.
class GeoQuizWindow : public QuizWindow {
    Q_OBJECT
public:
    QWidget *fraFlags = nullptr;
    QList<FlagButton *> imgFlagGame; // 1..4 at indices 0..3
    QLabel *Label1 = nullptr;
    QGroupBox *fraWhich1 = nullptr;
    QList<QRadioButton *> optWhich1;
    QGroupBox *fraWhich2 = nullptr;
    QList<QRadioButton *> optWhich2;
    QGroupBox *fraWhich3 = nullptr;
    QList<QRadioButton *> optWhich3;

protected:
    GeoQuizWindow(const QString &helpTopic, const QuizLook &look,
                  Settings::Geography Settings::*settings, const GeographyFields &fields,
                  QWidget *parent);

    // Building: the flag page after the map in picArea, the map's hint in the row of actions,
    // and the answer type and directions (`namePlace`, `findPlace` name this quiz's places).
    void buildFlagPage();
    void buildMapHint(const QString &text, QHBoxLayout *actions);
    void buildWays(const QString &namePlace, const QString &findPlace);

    int direction(int mode) const;
    // Shows the answer widgets of the question, and gives the right one the focus.
    void setAnswerWidgets();
    // The pupil's pick on the map (in map units); `reach` lets a near miss count.
    void mapClicked(QPointF mapUnits, double reach = 0);

    virtual QString flagFile(int record) const = 0;
    // Lights `record` on the map.
    virtual void showOnMap(int record) = 0;

    QuizPlan planFor(int mode) const override;
    void showIdlePictures() override;
    void hideModeControls() override;
    void showModeOptions(int mode) override;
    bool choicesOffered() const override;
    void markRight(int choice) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    PictureBox *m_map = nullptr;
    MapClick m_mapClick;
    int m_pointed = 0; // the place chosen with the arrow keys on the map, in Find
private:
    QGroupBox *buildWay(const QString &caption, const QString &name, const char *optionName,
                        const QStringList &captions, QList<QRadioButton *> &options, int setting);
    bool multipleChoice() const;
    void pointAt(int record);
    void imgFlagGame_Click(int choice);

    Settings::Geography Settings::*m_settings;
    GeographyFields m_fields;
};
