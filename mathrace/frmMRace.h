// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Race.h"
#include "shell/ActivityWindow.h"

class AnswerBox;
class Gauge;
class QLabel;
class QPushButton;
class QTimer;
class RaceTrack;

// The race window: the track with the cars, the gas gauge, the problem and the answer box.
// It owns the timer and the controls; the race itself (turns, gas, positions) lives in Race.
class frmMRace : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmMRace(QWidget *parent = nullptr);

    const Race &race() const { return m_race; }

    RaceTrack *picTrack;
    Gauge *pnlGas;
    QLabel *lblNames;
    QLabel *lblMessage;
    QLabel *lblProblem;
    AnswerBox *txtAnswer;
    QPushButton *cmdOK;
    QPushButton *cmdErase;
    QPushButton *cmdNew;
    QPushButton *cmdOptions;
    QPushButton *cmdExit;
    QPushButton *cmdHelp;
    QTimer *Timer1;

public slots:
    // One tick of Timer1: the first second ends, or the gas drains by a tenth.
    void timer1Tick();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void sizeProblem();
    void onOk();
    void onErase();
    void onNew();
    void onOptions();
    void onExit();
    void onHelp();
    void onAnswer();

    void startTurn();
    void nextTurn();
    void finishRace();
    void stopRace();
    void showLineUp();
    void updateStandings();

    Race m_race;
    QString m_carSound;
    QString m_uhOhSound;
    QString m_tadaSound;
};
