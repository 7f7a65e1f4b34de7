// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLineEdit>

class QLabel;
class QPushButton;

// The word the pupil typed in the word-entry window, shared with the activity that asked.
QString &InputWord();

// A text box that takes only capital letters, hyphens and apostrophes: small letters become
// capitals, every other key is refused with a beep.
class WordEdit : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

// The word-entry window: a pupil types a secret word for a partner to guess. An empty word,
// Cancel, or closing the window sets the first Balloon letters setting back to 1.
class frmInput : public QDialog {
    Q_OBJECT
public:
    explicit frmInput(QWidget *parent = nullptr);

    QLabel *Label1;
    WordEdit *txtWord;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void reject() override;

private:
    void finish();
    bool m_finished = false;
};
