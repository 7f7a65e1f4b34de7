// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Exercise.h"
#include "Lessons.h"
#include "shell/ActivityWindow.h"
#include "SpeedTest.h"
#include "TypingTexts.h"

#include <QList>

class KeyboardView;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTableWidget;
class QTimer;
class SpeedChart;
class TypingLineView;

// The keyboarding window: the lessons from the home row to the whole keyboard, the typing
// line, the keyboard with its finger guide, timed speed tests and the results of the sitting
// with a certificate to print.
class frmType : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmType(QWidget *parent = nullptr);

    enum class Mode { Idle, Lesson, Test };
    Mode mode() const { return m_mode; }
    const Exercise &exercise() const;
    const TestResults &results() const { return m_results; }
    int lessonIndex() const;
    bool lessonPassed(int index) const { return m_passed.value(index); }

    QListWidget *lstLessons;
    QPushButton *cmdStart;
    QGroupBox *fraTest;
    QList<QRadioButton *> optMinutes;
    QPushButton *cmdTest;
    QGroupBox *fraRows;
    QList<QCheckBox *> chkRow;
    QCheckBox *chkGuide;
    QCheckBox *chkShift;
    QStackedWidget *pnlPages;
    QLabel *lblTitle;
    QLabel *lblMessage;
    TypingLineView *txtType;
    QLabel *lblStats;
    KeyboardView *picKeyboard;
    QTableWidget *grdResults;
    SpeedChart *picChart;
    QLineEdit *txtName;
    QPushButton *cmdPrint;
    QPushButton *cmdResults;
    QPushButton *cmdHelp;
    QPushButton *cmdExit;
    QTimer *Timer1;

    // One character typed into the typing line, as the keyboard does.
    void typeChar(QChar c);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void onLessonChosen();
    void onStartLesson();
    void onStartTest();
    void onTick();
    void onExit();
    void onResults();
    void onPrint();
    void onSettingChanged();

    void beginTyping(Mode mode);
    void finishLesson();
    void finishTest();
    void stopTyping(const QString &message);
    void setRunning(bool running);
    void refreshLessons();
    void refreshTyping();
    void refreshStats();
    void refreshResults();
    void showIntro();
    void say(const QString &text);
    void fitFonts();

    TypingTexts m_texts;
    TypingSettings m_settings;
    Mode m_mode = Mode::Idle;
    Exercise m_lesson;
    SpeedTest m_test;
    TestResults m_results;
    QList<bool> m_passed;
    int m_lastPassage = -1;
    QString m_loadError;
    QString m_tadaSound;
};
