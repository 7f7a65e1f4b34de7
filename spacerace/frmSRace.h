// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RocketRace.h"
#include "shell/ActivityWindow.h"

class QFrame;
class QLabel;
class QPushButton;
class SkyView;

// The race window: the sky with a rocket and a moon per player, the word flashed or
// scrambled, the letters typed so far and the race's buttons. Letters typed while a word is
// spelt go to the race, never to a control. The race itself lives in RocketRace.
class frmSRace : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmSRace(QWidget *parent = nullptr);

    const RocketRace &race() const { return m_race; }

    SkyView *picSky;
    QLabel *lblTitle;
    QLabel *lblWord;
    QLabel *lblFlash;
    QLabel *lblanswer;
    QLabel *lblMessage;
    QLabel *lblNames;
    QPushButton *cmdOK;
    QPushButton *cmdNew;
    QPushButton *cmdOptions;
    QPushButton *cmdExit;
    QPushButton *cmdHelp;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void sizeWord();
    // Takes a typed key while a word is spelt; false when the key is not one for the race.
    bool typeKey(const QKeyEvent *event);
    void onOk();
    void onNew();
    void onOptions();
    void onExit();
    void onHelp();

    void presentWord();
    void showTyped();
    void wordDone();
    void turnLost();
    void nextTurn();
    void finishRace();
    void stopRace();
    void showChoices();
    void showLineUp(int players, const QStringList &names);
    void setMessage(const QString &text);

    RocketRace m_race;
    QFrame *m_wordPanel;
    QString m_dingSound;
    QString m_rocketSound;
    QString m_uhOhSound;
    QString m_tadaSound;
    bool m_fitted = false;
};
