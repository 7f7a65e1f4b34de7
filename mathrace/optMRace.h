// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>

class QButtonGroup;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class QScrollBar;

// The race options: how many players, and for each one a name, the kind of problems, the
// largest number and how fast the gas runs out. Every change goes straight into the shared
// settings; there is no cancel.
class optMRace : public QDialog {
    Q_OBJECT
public:
    // The largest number runs from 1 to 144, so the times tables up to 12 x 12 fit.
    static constexpr int LargestMin = 1;
    static constexpr int LargestMax = 144;
    static constexpr int NameLength = 20;

    explicit optMRace(QWidget *parent = nullptr);

    QList<QRadioButton *> optPlayers;
    QList<QGroupBox *> Frame2;
    QList<QLineEdit *> txtName;
    QList<QRadioButton *> optType;
    QList<QScrollBar *> hsbMax;
    QList<QLabel *> lblMax;
    QList<QRadioButton *> optClock;
    QPushButton *cmdOK;

public slots:
    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QGroupBox *makePlayerFrame(int player);
    void loadSettings();
    void onPlayersChosen(int index);
    QVBoxLayout *choiceColumn(QWidget *frame, const QString &heading, const char *const captions[],
                              int count, int player, const char *arrayName,
                              QList<QRadioButton *> &buttons, void (optMRace::*chosen)(int));
    void onTypeChosen(int index);
    void onMaxMoved(int index, int value);
    void onClockChosen(int index);
    void storeNames();
};
