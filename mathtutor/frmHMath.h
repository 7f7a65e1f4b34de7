// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PracticeRound.h"
#include "Worksheet.h"

#include "shell/ActivityWindow.h"

class DotPicture;
class MasteryView;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QStackedWidget;
class SheetView;

// Higher Math: the multiplication and division facts of a range of families, to review with
// pictures of dots, to practise in rounds of 20 with a mastery grid, and as printed worksheets.
class frmHMath : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmHMath(QWidget *parent = nullptr);

    Operation operation() const;
    const PracticeRound &round() const { return m_round; }
    const Worksheet &worksheet() const { return m_sheet; }
    MathFact reviewFact() const;

    QRadioButton *optMultiply;
    QRadioButton *optDivide;
    QSpinBox *spnLow;
    QSpinBox *spnHigh;
    QPushButton *cmdReview;
    QPushButton *cmdPractice;
    QPushButton *cmdWorksheets;
    QStackedWidget *stkParts;

    // Review
    QSpinBox *spnFamily;
    DotPicture *picDots;
    QLabel *lblFact;
    QLabel *lblPartners;
    QPushButton *cmdBack;
    QPushButton *cmdAnswer;
    QPushButton *cmdNext;

    // Practice
    QLabel *lblProblem;
    QLineEdit *txtAnswer;
    QLabel *lblMessage;
    QLabel *lblProgress;
    MasteryView *picMastery;
    QPushButton *cmdStart;

    // Worksheets
    QRadioButton *optCount[3];
    QRadioButton *optStacked;
    QRadioButton *optInARow;
    QCheckBox *chkKey;
    QLineEdit *txtNumber;
    QPushButton *cmdMake;
    QPushButton *cmdNewSheet;
    QPushButton *cmdPrint;
    SheetView *picSheet;

    QPushButton *cmdHelp;
    QPushButton *cmdExit;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void sizeFonts();
    QWidget *makeReviewPage();
    QWidget *makePracticePage();
    QWidget *makeWorksheetPage();
    void showPart(int part);
    void onRangeChanged(QSpinBox *changed);
    void onOperationChanged();
    void storeSettings();

    void showReview();
    void stepReview(int step);
    void onShowAnswer();

    void onStart();
    void showTurn();
    void onAnswer();
    void finishRound(bool stopped);
    void setRoundRunning(bool running);

    void updateSheet();
    void onSheetOptionChanged();
    void onMake();
    void onNewSheet();
    void onPrint();

    void onExit();

    PracticeRound m_round;
    Worksheet m_sheet;
    qint16 m_reviewOther = 0;
    bool m_answerShown = false;
    // While the controls are set from a worksheet number, their changes must not remake it.
    bool m_settingControls = false;
    QString m_tadaSound;
    QString m_uhOhSound;
};
