// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarData.h"

#include <QList>
#include <QWidget>

// The pages of the lesson on the parts of a calendar: one idea each, with its picture.
struct LessonPage {
    enum Picture { ThisMonth, Week, Weekend, WeekRow, Months, MonthLengths, Leap, Seasons, Year };
    QString title;
    QString text;
    Picture picture = ThisMonth;
};

QList<LessonPage> LessonPages();

// Draws the picture of a lesson page: a drawn month, the week, the twelve months, the
// seasons, or February in a normal and a leap year. Everything scales with the area.
class LessonPicture : public QWidget {
    Q_OBJECT
public:
    LessonPicture(const CalendarData &data, QWidget *parent = nullptr);
    void setPicture(LessonPage::Picture picture, int month, int year, int today);
    LessonPage::Picture picture() const { return m_picture; }
    QSize sizeHint() const override { return {520, 360}; }
    QSize minimumSizeHint() const override { return {240, 110}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintWeek(QPainter &painter, const QRectF &area, bool weekend);
    void paintMonths(QPainter &painter, const QRectF &area, bool lengths);
    void paintSeasons(QPainter &painter, const QRectF &area);
    void paintLeap(QPainter &painter, const QRectF &area);
    void paintYear(QPainter &painter, const QRectF &area);
    void paintMonth(QPainter &painter, const QRectF &area, int month, int year, int today, int row);

    CalendarData m_data; // a copy, as the picture may outlive the window's own
    LessonPage::Picture m_picture = LessonPage::ThisMonth;
    int m_month = 1;
    int m_year = 2000;
    int m_today = 0;
};
