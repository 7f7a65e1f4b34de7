// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

// A square of colour that can be clicked or pressed from the keyboard: a point's colour and
// the paint box's choices. A marked swatch wears a dark ring.
class ColourSwatch : public QAbstractButton {
    Q_OBJECT
public:
    explicit ColourSwatch(QWidget *parent = nullptr);
    void setColourIndex(int index);
    int colourIndex() const { return m_index; }
    void setMarked(bool marked);
    bool isMarked() const { return m_marked; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_index = 0;
    bool m_marked = false;
};
