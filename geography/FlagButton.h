// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QImage>

// A flag to pick: the picture as large as the button allows, a frame, and a thick ring when
// it has the keyboard focus, so a flag can be chosen with Tab and Enter as well as the mouse.
class FlagButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit FlagButton(QWidget *parent = nullptr);
    bool load(const QString &file);
    QString file() const { return m_file; }
    // Green when it was the right flag, red when it was picked wrongly, none otherwise.
    enum Mark { None, Right, Wrong };
    void setMark(Mark mark);
    Mark mark() const { return m_mark; }
    QSize sizeHint() const override { return {240, 160}; }
    QSize minimumSizeHint() const override { return {60, 40}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_file;
    QImage m_image;
    Mark m_mark = None;
};
