// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MonthMath.h"

#include <QStringList>
#include <QWidget>

class QPainter;

// How a month is drawn: its heading, the weekday headings, the fonts, and what to point out.
struct MonthLook {
    QString title;
    QStringList dayHeads; // Sunday first
    QString titleFamily = QStringLiteral("Comic Sans MS");
    QString numberFamily = QStringLiteral("Comic Sans MS");
    bool colour = true;
    int today = 0;         // the day ringed as today, 0 for none
    int highlightRow = -1; // a week row drawn in yellow
};

// Draws a month in an area of (rows + 2) equal row heights: the heading, the weekday names,
// then one row per week with each day number in its weekday's column, weekends tinted.
void PaintMonth(QPainter &painter, const QRectF &area, const MonthLayout &month,
                const MonthLook &look);

// The month on display; it scales with its area.
class MonthPicture : public QWidget {
    Q_OBJECT
public:
    explicit MonthPicture(QWidget *parent = nullptr);
    void setMonth(const MonthLayout &month, const MonthLook &look);
    const MonthLayout &month() const { return m_month; }
    const MonthLook &look() const { return m_look; }
    QSize sizeHint() const override { return {560, 440}; }
    QSize minimumSizeHint() const override { return {240, 150}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    MonthLayout m_month;
    MonthLook m_look;
};
