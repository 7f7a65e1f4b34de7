// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

// One box of the spelling list: takes capitals, "-" and "'", turns small letters into
// capitals and refuses every other key with a beep. Enter asks for the next box. Pasted text
// gets in only when every character is one the box takes.
class WordBox : public QLineEdit {
    Q_OBJECT
public:
    explicit WordBox(QWidget *parent = nullptr);

signals:
    void enterPressed();
    // Up and Down move between the boxes as Enter does.
    void stepPressed(int step);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
