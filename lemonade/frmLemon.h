// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/ActivityWindow.h"
#include "Summer.h"

class LemonStand;
class ProfitChart;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QStackedWidget;
class QTimer;

// The lemonade stand for a summer: each week the pupil reads the forecast, buys lemons and
// cups, sets a price and posters, watches the customers and reads the sales report; at the
// end come the totals, a chart of the weeks and a certificate to print. The rules live in
// Summer; this window shows them and owns the timer of the selling picture.
class frmLemon : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmLemon(QWidget *parent = nullptr);

    // The pages of the right-hand panel, in the order of a week.
    enum class Page { Start, Plan, Selling, Report, End };

    const Summer &summer() const { return m_summer; }
    bool isPlaying() const { return m_playing; }
    Page page() const;
    // Frames of the selling picture, public so tests can play them without waiting.
    static constexpr int SellingFrames = 60;
    static constexpr int FrameMs = 50;

    LemonStand *picStand;
    QLabel *lblWeek;
    QLabel *lblMoney;
    QLabel *lblStock;
    QStackedWidget *stkPages;
    QLabel *lblForecast;
    QLabel *lblPrices;
    QSpinBox *spnLemons;
    QSpinBox *spnCups;
    QSpinBox *spnPosters;
    QSpinBox *spnPrice;
    QLabel *lblCost;
    QLabel *lblTip;
    QPushButton *cmdSell;
    QLabel *lblSelling;
    QPushButton *cmdSkip;
    QLabel *lblWeather;
    QLabel *lblCame;
    QLabel *lblSold;
    QLabel *lblSaidNo;
    QLabel *lblThirsty;
    QLabel *lblSpoiled;
    QLabel *lblCupsLeft;
    QLabel *lblMoneyBefore;
    QLabel *lblSpent;
    QLabel *lblSpentDetail;
    QLabel *lblTaken;
    QLabel *lblProfit;
    QLabel *lblMoneyNow;
    QLabel *lblReasons;
    QPushButton *cmdNext;
    QLabel *lblTotal;
    QLabel *lblBest;
    QLabel *lblWorst;
    QLabel *lblAdvice;
    ProfitChart *picChart;
    QLineEdit *txtName;
    QPushButton *cmdPrint;
    QRadioButton *optLong;
    QRadioButton *optShort;
    QPushButton *cmdNew;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;
    QTimer *timSell;

public slots:
    // One frame of the customers walking; public so tests and the screenshot tool can drive it.
    void timSell_Timer();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildControls();
    QWidget *buildStartPage();
    QWidget *buildPlanPage();
    QWidget *buildSellingPage();
    QWidget *buildReportPage();
    QWidget *buildEndPage();
    void cmdNew_Click();
    void cmdSell_Click();
    void cmdSkip_Click();
    void cmdNext_Click();
    void cmdPrint_Click();
    void cmdExit_Click();
    Plan currentPlan() const;
    void showPlan();
    void showCost();
    void showReport();
    void showEnd();
    void showStatus();
    void setPage(Page page, QWidget *focus);
    void updateControls();

    QLabel *m_profitCaption = nullptr;
    QWidget *m_panel = nullptr;

    Summer m_summer;
    bool m_playing = false;
    int m_frame = 0;
    QString m_tadaSound;
    QString m_uhohSound;
    QString m_dingSound;
};
