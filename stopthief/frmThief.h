// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CaseBuilder.h"

#include "shell/ActivityWindow.h"

#include <memory>
#include <optional>
#include <QList>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTextEdit;
class QVBoxLayout;

// The detective's window: start a new case at the detective level or re-load one by its
// number, read the story and the clues, take notes on the suspects, ask for hints, accuse a
// suspect (and be promoted or demoted), see the solution and print the case papers.
class frmThief : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmThief(QWidget *parent = nullptr);
    ~frmThief() override;

    // The case on screen, if any; for the tests and the screenshot tool.
    const Case *currentCase() const { return m_case ? &*m_case : nullptr; }
    bool caseInProgress() const { return m_inProgress; }

    QWidget *picCover;
    QTabWidget *SSTab1;
    QLabel *lblDescribe;
    QTextEdit *txtCase;
    QTextEdit *txtClues;
    QGroupBox *fraChoice;
    QPushButton *cmdNew;
    QPushButton *cmdOld;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;
    QGroupBox *fraDiff;
    QList<QRadioButton *> optDiff;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    QGroupBox *fraCase;
    QLineEdit *txtCNum;
    QPushButton *cmdOKCN;
    QPushButton *cmdCancelCN;
    QGroupBox *fraAccuse;
    QList<QPushButton *> cmdSuspect;
    QGroupBox *fraOver;
    QLabel *lblOver;
    QGroupBox *fraSolve;
    QPushButton *cmdHints;
    QPushButton *cmdSoln;
    QGroupBox *fraHints;
    QTextEdit *txtHints;
    QPushButton *cmdHint;
    QPushButton *cmdHintOK;
    QGroupBox *fraSolution;
    QTextEdit *txtSolution;
    QWidget *fraPrint;
    QLabel *lblPrintCase;
    QPushButton *cmdPrintCase;
    QPushButton *cmdPrintClues;
    QPushButton *cmdPrintSoln;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QWidget *buildSuspectsTab();
    void fillSuspectNotes();
    void setClueIndents();
    void showStartState();
    void setLevel(int level);
    int level() const;
    // A level's caption with its keyboard letter.
    static QString levelMnemonic(int level);
    bool confirmLeavingCase(const QString &title, const QString &question);
    void buildCase(const QString &number);

    void cmdNew_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdOld_Click();
    void cmdOKCN_Click();
    void cmdCancelCN_Click();
    void cmdHints_Click();
    void cmdHint_Click();
    void cmdHintOK_Click();
    void cmdSuspect_Click(int index);
    void cmdSoln_Click();
    void printPaper(const QString &title, int paper);

    ThiefData m_data;
    QString m_loadError;
    std::unique_ptr<CaseBuilder> m_builder;
    std::optional<Case> m_case;
    bool m_inProgress = false;
    qint16 m_hintsShown = 0;
    QString m_hintText;
    QString m_uhOhSound;
    QString m_tadaSound;

    QVBoxLayout *m_notesLayout = nullptr;
};
