// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Contest.h"
#include "shell/ActivityWindow.h"

#include <memory>

class CandyMap;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class WeatherSign;

// The candy drive: ten school days in which the pupil sends the class's teams to the streets
// of the neighbourhood each morning, against another class played by the computer. Each day
// ends with a report; the last with the winner and a certificate to print. The contest itself
// lives in Contest; this window shows it and passes on the pupil's choices.
class frmCandy : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmCandy(QWidget *parent = nullptr);

    // The contest being played or just finished; nullptr before the first.
    const Contest *contest() const { return m_contest.get(); }
    bool isRunning() const { return m_running; }

    CandyMap *picMap;
    QLabel *lblDay;
    WeatherSign *picWeather;
    QLabel *lblWeather;
    QLabel *lblOurs;
    QLabel *lblTheirs;
    QGroupBox *fraTeams;
    QList<QLabel *> lblTeam;
    QList<QComboBox *> cboStreet;
    QGroupBox *fraCount;
    QList<QRadioButton *> optTeams;
    QLabel *lblMessage;
    QPushButton *cmdSell;
    QPushButton *cmdReport;
    QPushButton *cmdPrint;
    QPushButton *cmdNew;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;

private:
    void buildControls();
    void cmdNew_Click();
    void cmdSell_Click();
    void cmdReport_Click();
    void cmdPrint_Click();
    void cmdExit_Click();
    void teamsChosen(int teams);
    void streetChosen(int team, int index);
    void teamDropped(int team, int street);
    void finishContest();
    void showMessage(const QString &text);
    void showMorning();
    void showScores();
    void updateControls();

    std::unique_ptr<Contest> m_contest;
    bool m_running = false;
    bool m_filling = false;
    QString m_dingSound;
    QString m_tadaSound;
    QString m_uhOhSound;
};
