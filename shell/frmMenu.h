// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ActivityTable.h"
#include "ActivityWindow.h"

#include <QPointer>
#include <QWidget>

class QPushButton;
class ActivityWindow;
class PictureBox;

// The start window and hub: fifteen activity buttons, help, the sound switch and exit.
// Opening an activity hides the menu until the activity closes; leaving the menu writes the
// settings and ends the program.
class frmMenu : public QWidget {
    Q_OBJECT
public:
    explicit frmMenu(const QList<ActivityEntry> &activities, QWidget *parent = nullptr);

    QPushButton *cmdChoice(int index) const { return m_choices.value(index); }
    ActivityWindow *currentActivity() const { return m_current; }

public slots:
    void openActivity(int index);

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void activityClosed();
    // Follows the activity window now open, also when it was opened in another's place.
    void adopt(ActivityWindow *window);
    void updateSoundButton();

    QList<ActivityEntry> m_activities;
    QList<QPushButton *> m_choices;
    PictureBox *Image1;
    QWidget *m_title;
    QPushButton *cmdHelp;
    QPushButton *cmdSound;
    QPushButton *cmdExit;
    QPointer<ActivityWindow> m_current;
    bool m_centred = false;
    bool m_pictureAsked = false;
    bool m_closing = false;
};
