// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WordList.h"

#include <QDialog>
#include <QList>

class Gauge;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class WordBox;

// The Space Race options: the spelling list (typed in twenty boxes, new, open, save, print),
// the players and their names, the game and how long a word is flashed. Every choice goes
// straight into the shared settings and the shared list.
class optSRace : public QDialog {
    Q_OBJECT
public:
    static constexpr int NameLength = 20;
    static constexpr int SpeedMax = 20;

    explicit optSRace(QWidget *parent = nullptr);

    // "Space Race, List Name: " and the list's name.
    static QString caption(const QString &listName);
    // The gauge's fill for a speed: (20 - speed) x 100 / 20 percent, full at the shortest flash.
    static int speedPercent(int speed);
    // Where word lists are opened from and saved to: the pupil's own "Lumbridle" folder.
    static QString listsFolder();

    // Boxes 1 to 20 are elements 0 to 19 (named txtWord_1 to txtWord_20).
    QList<WordBox *> txtWord;
    QList<QLabel *> lblIndex;
    QList<QLineEdit *> txtName;
    QList<QRadioButton *> optPlayers;
    QList<QRadioButton *> optGame;
    QSpinBox *spnSpeed;
    Gauge *pnlSpeed;
    QLabel *lblSpeed;
    QPushButton *cmdNew;
    QPushButton *cmdOpen;
    QPushButton *cmdSave;
    QPushButton *cmdPrint;
    QPushButton *cmdOK;
    QList<QGroupBox *> Frame; // Frame1 to Frame5 are elements 0 to 4
    QLabel *Label1;

public slots:
    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildListFrame(QGroupBox *frame);
    void onNew();
    void onOpen();
    void onSave();
    void onPrint();
    void onSpeed(int speed);
    void onPlayers(int index);
    void onGame(int index);
    void onWordEdited();
    void moveFrom(int box, int step);
    // Asks before dropping words that were never saved; false when the answer is No.
    bool mayDropList(const QString &title);
    bool mayLeave();
    // Shows the shared list in the boxes, closed up from box 1.
    void showList();
    void renewCaption();
};
