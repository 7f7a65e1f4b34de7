// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BalloonRound.h"
#include "BalloonWords.h"
#include "shell/ActivityWindow.h"

#include <QList>

class ClownPicture;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class WordBoxes;

// The balloon game window: the clown, the word boxes, the alphabet, the choice of grade and
// of who picks the word, and the running score. The round itself lives in BalloonRound.
class frmBall : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmBall(QWidget *parent = nullptr);

    const BalloonRound &round() const { return m_round; }
    const BalloonScore &score() const { return m_score; }

    ClownPicture *picClown;
    WordBoxes *picWord;
    QLabel *lblMessage;
    QLabel *lblHint;
    QLabel *lblTried;
    QLabel *lblScore;
    QList<QPushButton *> cmdLetter;
    QGroupBox *fraGrade;
    QList<QRadioButton *> optGrade;
    QGroupBox *fraSource;
    QList<QRadioButton *> optSource;
    QPushButton *cmdHint;
    QPushButton *cmdNew;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;

    // Guesses a letter, as typing it or clicking its button does.
    void guessLetter(QChar letter);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void onNew();
    void onHint();
    void onExit();
    void onGrade(int grade);
    void onSource(qint16 source);

    // Asks a friend for the secret word; false when none was given.
    bool askFriend();
    void startRound();
    void finishRound();
    void endUnfinished();
    void showSettings();
    void refreshLetters();
    void say(const QString &text);
    void fitFonts();

    BalloonWords m_words;
    BalloonPicker m_picker;
    BalloonRound m_round;
    BalloonScore m_score;
    bool m_fromFriend = false;
    QString m_loadError;
    QString m_dingSound;
    QString m_popSound;
    QString m_tadaSound;
    QString m_uhOhSound;
};
