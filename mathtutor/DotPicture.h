// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// A fact drawn as rows of dots: 3 × 4 is three rows of four. Each row has its own colour so
// the rows read as the equal groups of a division. The dots grow and shrink with the area.
class DotPicture : public QWidget {
    Q_OBJECT
public:
    explicit DotPicture(QWidget *parent = nullptr);
    void setRows(int rows, int perRow);
    int rows() const { return m_rows; }
    int perRow() const { return m_perRow; }
    QSize sizeHint() const override { return {360, 260}; }
    QSize minimumSizeHint() const override { return {120, 90}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_rows = 0;
    int m_perRow = 0;
};
