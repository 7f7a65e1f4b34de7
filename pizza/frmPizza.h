// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Evening.h"
#include "shell/ActivityWindow.h"

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;
class QTimer;
class TownMap;

// The pizza place for one evening: orders come in by telephone, the pupil bakes batches,
// loads the car and drives it to the houses and back, and at "11:00" (or on Stop) the sales
// report shows how the evening went. The evening itself lives in Evening; this window owns
// the four timers that drive it and shows what it says.
class frmPizza : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmPizza(QWidget *parent = nullptr);

    const Evening &evening() const { return m_evening; }
    bool isPaused() const { return m_paused; }

    TownMap *picPizza;
    QLabel *lblClock;
    QListWidget *lstPizza;
    QSpinBox *spnBake;
    QLabel *lblBake;
    QPushButton *cmdBake;
    QLabel *lblOven;
    QGroupBox *fraLoad;
    QLabel *lblReady;
    QPushButton *cmdLoad;
    QLabel *lblCarPizzas;
    QSpinBox *spnX;
    QSpinBox *spnY;
    QLabel *lblXY;
    QPushButton *cmdGo;
    QPushButton *cmdReturn;
    QLabel *lblCar;
    QPushButton *cmdNew;
    QPushButton *cmdPause;
    QPushButton *cmdExit;
    QPushButton *cmdHelp;
    QTimer *timClock;
    QTimer *timPhone;
    QTimer *timBake;
    QTimer *timCar;

public slots:
    // The four timers' ticks, public so tests and the screenshot tool can run an evening
    // without waiting for real time.
    void timClock_Timer();
    void timPhone_Timer();
    void timBake_Timer();
    void timCar_Timer();

private:
    void buildControls();
    void cmdNew_Click();
    void cmdPause_Click();
    void cmdExit_Click();
    void cmdBake_Click();
    void cmdLoad_Click();
    void cmdGo_Click();
    void cmdReturn_Click();
    void pickHouse(QPoint house);
    void destinationChanged();
    void endDay();
    void fillOrders();
    void showCarLoad();
    void showCar(const QString &text);
    void updateControls();

    Evening m_evening;
    bool m_paused = false;
    bool m_filling = false;
    QList<QTimer *> m_pausedTimers;
    QString m_phoneSound;
    QString m_carBeepSound;
    QString m_dingSound;
    QString m_tadaSound;
};
