// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

// The answer box: takes digits, Backspace and Enter and drops every other key without a
// sound. Pasted or dropped text gets in only when it is a whole number that fits 16 bits.
class AnswerBox : public QLineEdit {
    Q_OBJECT
public:
    static constexpr int MaxDigits = 5;

    explicit AnswerBox(QWidget *parent = nullptr);
    // The number typed; an empty box counts as 0.
    int value() const;

signals:
    void enterPressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
