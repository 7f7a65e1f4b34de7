// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

class Exercise;

// The typing line: the text to type above, what has been typed below. Typed characters turn
// green, the next one sits in a yellow box, a wrong key shows in red until the right one comes,
// and characters that were missed keep a red mark. While it captures, every key but F1 and
// Escape comes here (Tab and Enter too) and is passed on as typed text.
class TypingLineView : public QWidget {
    Q_OBJECT
public:
    explicit TypingLineView(QWidget *parent = nullptr);

    void showExercise(const Exercise *exercise);
    // Big text shown while there is nothing to type, such as a lesson's new keys.
    void setPrompt(const QString &prompt);
    void setCapturing(bool on) { m_capturing = on; }
    bool isCapturing() const { return m_capturing; }

    QSize sizeHint() const override { return {600, 130}; }
    QSize minimumSizeHint() const override { return {300, 80}; }

signals:
    void typed(QChar c);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;

private:
    const Exercise *m_exercise = nullptr;
    QString m_prompt;
    bool m_capturing = false;
};
