// SPDX-License-Identifier: GPL-3.0-or-later
#include "LessonPicture.h"

#include "MonthPicture.h"
#include "Questions.h"

#include <cmath>
#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("LessonPicture", text);
}

QFont sized(double pixels, bool bold = true)
{
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPixelSize(qMax(1, qRound(pixels)));
    font.setBold(bold);
    return font;
}

// Winter, spring, summer, fall.
const QColor SeasonColours[] = {QColor(0x42, 0xA5, 0xF5), QColor(0x66, 0xBB, 0x6A),
                                QColor(0xFF, 0xB3, 0x00), QColor(0xEF, 0x6C, 0x00)};

void tile(QPainter &painter, const QRectF &box, const QColor &colour)
{
    painter.setPen(QPen(colour.darker(130), qMax(1.0, box.height() / 30)));
    painter.setBrush(colour);
    painter.drawRoundedRect(box, box.height() * 0.15, box.height() * 0.15);
}

void snowflake(QPainter &painter, QPointF centre, double r)
{
    painter.setPen(QPen(Qt::white, r / 6, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 6; ++i) {
        const double a = i * M_PI / 3;
        const QPointF tip = centre + QPointF(std::cos(a), std::sin(a)) * r;
        painter.drawLine(centre, tip);
        const QPointF mid = centre + QPointF(std::cos(a), std::sin(a)) * r * 0.6;
        for (const double side : {-0.6, 0.6})
            painter.drawLine(mid, mid + QPointF(std::cos(a + side), std::sin(a + side)) * r * 0.3);
    }
}

void flower(QPainter &painter, QPointF centre, double r)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xF4, 0x8F, 0xB1));
    for (int i = 0; i < 5; ++i) {
        const double a = i * 2 * M_PI / 5;
        painter.drawEllipse(centre + QPointF(std::cos(a), std::sin(a)) * r * 0.55, r * 0.42,
                            r * 0.42);
    }
    painter.setBrush(QColor(0xFF, 0xEB, 0x3B));
    painter.drawEllipse(centre, r * 0.35, r * 0.35);
}

void sun(QPainter &painter, QPointF centre, double r)
{
    painter.setPen(QPen(QColor(0xFF, 0xF5, 0x9D), r / 7, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 8; ++i) {
        const double a = i * M_PI / 4;
        painter.drawLine(centre + QPointF(std::cos(a), std::sin(a)) * r * 0.65,
                         centre + QPointF(std::cos(a), std::sin(a)) * r);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xF5, 0x9D));
    painter.drawEllipse(centre, r * 0.5, r * 0.5);
}

void leaf(QPainter &painter, QPointF centre, double r)
{
    QPainterPath shape;
    shape.moveTo(centre + QPointF(0, r));
    shape.cubicTo(centre + QPointF(-r, r * 0.2), centre + QPointF(-r * 0.5, -r * 0.8),
                  centre + QPointF(0, -r));
    shape.cubicTo(centre + QPointF(r * 0.5, -r * 0.8), centre + QPointF(r, r * 0.2),
                  centre + QPointF(0, r));
    painter.setPen(QPen(QColor(0x8D, 0x3B, 0x00), r / 10));
    painter.setBrush(QColor(0xD8, 0x43, 0x15));
    painter.drawPath(shape);
    painter.drawLine(centre + QPointF(0, r * 1.2), centre + QPointF(0, -r * 0.6));
}

} // namespace

QList<LessonPage> LessonPages()
{
    return {
        {tr("What is a calendar?"),
         tr("A calendar shows all the days of a month. Each box is one day, and its number is "
            "the date. The red ring shows today. We use a calendar to know what day it is and "
            "to count the days until a birthday or a holiday."),
         LessonPage::ThisMonth},
        {tr("Days"),
         tr("A day lasts from one morning to the next morning. Every day has a name, and there "
            "are seven day names: Sunday, Monday, Tuesday, Wednesday, Thursday, Friday and "
            "Saturday. After Saturday, the names start again with Sunday."),
         LessonPage::Week},
        {tr("Weekdays and the weekend"),
         tr("Monday, Tuesday, Wednesday, Thursday and Friday are the weekdays. Most children go "
            "to school on weekdays. Saturday and Sunday are the weekend. On a calendar, the "
            "weekend days are at the two ends of each row."),
         LessonPage::Weekend},
        {tr("Weeks"),
         tr("A week is seven days in a row, from Sunday to Saturday. On a calendar, each row is "
            "one week. A month has four whole weeks and a few days more."),
         LessonPage::WeekRow},
        {tr("Months"),
         tr("A year has twelve months. They always come in the same order, from January to "
            "December. After December, a new year begins with January again."),
         LessonPage::Months},
        {tr("How long is a month?"),
         tr("Months are not all the same length. April, June, September and November have 30 "
            "days. February has 28 days, or 29 in a leap year. All the other months have 31 "
            "days."),
         LessonPage::MonthLengths},
        {tr("Leap years"),
         tr("Most years have 365 days. Every fourth year is a leap year with 366 days: "
            "February gets one more day, February 29. The years 2024 and 2028 are leap years. "
            "A few years ending in 00, like 1900 and 2100, are not."),
         LessonPage::Leap},
        {tr("Seasons"),
         tr("A year has four seasons, three months each. Winter: December, January and "
            "February. Spring: March, April and May. Summer: June, July and August. Fall, also "
            "called autumn: September, October and November."),
         LessonPage::Seasons},
        {tr("A whole year"),
         tr("Put it all together: a year has 12 months, 52 weeks and 365 days, or 366 in a "
            "leap year. Your birthday comes once every year!"),
         LessonPage::Year},
    };
}

LessonPicture::LessonPicture(const CalendarData &data, QWidget *parent)
    : QWidget(parent), m_data(data)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LessonPicture::setPicture(LessonPage::Picture picture, int month, int year, int today)
{
    m_picture = picture;
    m_month = month;
    m_year = year;
    m_today = today;
    update();
}

void LessonPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(6, 6, -6, -6);
    switch (m_picture) {
    case LessonPage::ThisMonth:
        paintMonth(painter, area, m_month, m_year, m_today, -1);
        break;
    case LessonPage::Week:
        paintWeek(painter, area, false);
        break;
    case LessonPage::Weekend:
        paintWeek(painter, area, true);
        break;
    case LessonPage::WeekRow:
        paintMonth(painter, area, m_month, m_year, 0, 1);
        break;
    case LessonPage::Months:
        paintMonths(painter, area, false);
        break;
    case LessonPage::MonthLengths:
        paintMonths(painter, area, true);
        break;
    case LessonPage::Leap:
        paintLeap(painter, area);
        break;
    case LessonPage::Seasons:
        paintSeasons(painter, area);
        break;
    case LessonPage::Year:
        paintYear(painter, area);
        break;
    }
}

void LessonPicture::paintMonth(QPainter &painter, const QRectF &area, int month, int year,
                               int today, int row)
{
    const MonthLayout layout = MonthLayout::of(m_data, month, year);
    MonthLook look;
    look.title = QStringLiteral("%1 %2").arg(m_data.monthName(month)).arg(year);
    for (int d = 1; d <= 7; ++d)
        look.dayHeads.append(m_data.dayName(d).left(3));
    look.today = today;
    look.highlightRow = row;
    const double width = qMin(area.width(), area.height() * 1.4);
    const double height = qMin(area.height(), width / 1.05);
    PaintMonth(painter,
               QRectF(area.center().x() - width / 2, area.center().y() - height / 2, width, height),
               layout, look);
}

// Seven blocks in a ring-like row, with an arrow from Saturday back to Sunday.
void LessonPicture::paintWeek(QPainter &painter, const QRectF &area, bool weekend)
{
    const double width = area.width() / 7;
    const double height = qMin(area.height() * 0.45, width * 1.6);
    const double top = area.top() + (area.height() - height) * 0.35;
    for (int d = 1; d <= 7; ++d) {
        const bool end = d == 1 || d == 7;
        QColor colour = QColor::fromHsv((d - 1) * 45, 150, 235);
        if (weekend)
            colour = end ? QColor(0xEF, 0x6C, 0x00) : QColor(0x90, 0xCA, 0xF9);
        const QRectF box(area.left() + (d - 1) * width + 3, top, width - 6, height);
        tile(painter, box, colour);
        painter.setPen(QColor(0x1A, 0x23, 0x7E));
        painter.setFont(sized(qMin(width * 0.28, height * 0.35)));
        painter.drawText(box, Qt::AlignCenter, m_data.dayName(d).left(3));
    }
    painter.setFont(sized(qMin(area.height() * 0.1, area.width() / 20)));
    painter.setPen(QColor(0x1A, 0x23, 0x7E));
    const QRectF below(area.left(), top + height, area.width(), area.bottom() - top - height);
    if (weekend) {
        painter.drawText(below, Qt::AlignCenter, tr("weekend  -  5 weekdays  -  weekend"));
        return;
    }
    // The week goes round: after the last block comes the first again.
    painter.setPen(
        QPen(QColor(0xC6, 0x28, 0x28), qMax(2.0, height / 20), Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    const double y = top + height + below.height() * 0.25;
    const double x1 = area.left() + width * 6.5;
    const double x0 = area.left() + width * 0.5;
    QPainterPath back;
    back.moveTo(x1, top + height + 4);
    back.cubicTo(x1, y + below.height() * 0.3, x0, y + below.height() * 0.3, x0, top + height + 4);
    painter.drawPath(back);
    const double head = qMax(6.0, height / 8);
    painter.drawLine(QPointF(x0, top + height + 4), QPointF(x0 - head, top + height + 4 + head));
    painter.drawLine(QPointF(x0, top + height + 4), QPointF(x0 + head, top + height + 4 + head));
    painter.setPen(QColor(0xC6, 0x28, 0x28));
    painter.drawText(
        QRectF(area.left(), y + below.height() * 0.2, area.width(), below.height() * 0.45),
        Qt::AlignCenter, tr("and again!"));
}

void LessonPicture::paintMonths(QPainter &painter, const QRectF &area, bool lengths)
{
    const double width = area.width() / 4;
    const double height = area.height() / 3;
    for (int m = 1; m <= 12; ++m) {
        const QRectF box(area.left() + (m - 1) % 4 * width + 4,
                         area.top() + (m - 1) / 4 * height + 4, width - 8, height - 8);
        QColor colour = SeasonColours[QuestionMaker::seasonOf(m) - 1].lighter(150);
        if (lengths) {
            const int days = m_data.daysInMonth(m);
            colour = days == 31   ? QColor(0xA5, 0xD6, 0xA7)
                     : days == 30 ? QColor(0xFF, 0xE0, 0x82)
                                  : QColor(0xF4, 0x8F, 0xB1);
        }
        tile(painter, box, colour);
        painter.setPen(QColor(0x1A, 0x23, 0x7E));
        const double letters = qMin(box.height() * 0.28, box.width() / 6.5);
        painter.setFont(sized(letters * 0.8, false));
        painter.drawText(box.adjusted(6, 2, -6, 0), Qt::AlignLeft | Qt::AlignTop,
                         QString::number(m));
        painter.setFont(sized(letters));
        if (!lengths) {
            painter.drawText(box, Qt::AlignCenter, m_data.monthName(m));
            continue;
        }
        painter.drawText(box.adjusted(0, 0, 0, -box.height() * 0.3), Qt::AlignCenter,
                         m_data.monthName(m));
        const int days = m_data.daysInMonth(m);
        painter.drawText(box.adjusted(0, box.height() * 0.4, 0, 0), Qt::AlignCenter,
                         m == 2 ? tr("28 or 29") : tr("%1 days").arg(days));
    }
}

void LessonPicture::paintSeasons(QPainter &painter, const QRectF &area)
{
    const double width = area.width() / 2;
    const double height = area.height() / 2;
    for (int s = 1; s <= 4; ++s) {
        const QRectF box(area.left() + (s - 1) % 2 * width + 4,
                         area.top() + (s - 1) / 2 * height + 4, width - 8, height - 8);
        tile(painter, box, SeasonColours[s - 1]);
        const double r = qMin(box.height() * 0.3, box.width() * 0.14);
        const QPointF icon(box.left() + r * 1.4, box.center().y());
        switch (s) {
        case 1:
            snowflake(painter, icon, r);
            break;
        case 2:
            flower(painter, icon, r);
            break;
        case 3:
            sun(painter, icon, r);
            break;
        default:
            leaf(painter, icon, r * 0.9);
            break;
        }
        const QRectF words = box.adjusted(r * 2.8, 4, -6, -4);
        const QList<int> months = QuestionMaker::seasonMonths(s);
        QString seasonName = QuestionMaker::seasonName(s);
        seasonName[0] = seasonName[0].toUpper();
        painter.setPen(Qt::white);
        painter.setFont(sized(qMin(box.height() * 0.2, words.width() / 6)));
        painter.drawText(words.adjusted(0, 0, 0, -words.height() * 0.6), Qt::AlignCenter,
                         seasonName);
        painter.setPen(QColor(0x1A, 0x23, 0x7E));
        painter.setFont(sized(qMin(box.height() * 0.13, words.width() / 9.5)));
        QStringList names;
        for (const int m : months)
            names.append(m_data.monthName(m));
        painter.drawText(words.adjusted(0, words.height() * 0.4, 0, 0), Qt::AlignCenter,
                         names.join(u'\n'));
    }
}

void LessonPicture::paintLeap(QPainter &painter, const QRectF &area)
{
    const double gap = area.width() * 0.04;
    const double width = (area.width() - gap) / 2;
    const QRectF left(area.left(), area.top(), width, area.height());
    const QRectF right(area.left() + width + gap, area.top(), width, area.height());
    paintMonth(painter, left, 2, 2023, 0, -1);
    // The extra day of a leap year, ringed.
    paintMonth(painter, right, 2, 2024, 29, -1);
}

void LessonPicture::paintYear(QPainter &painter, const QRectF &area)
{
    const QStringList numbers{QStringLiteral("12"), QStringLiteral("52"), QStringLiteral("365")};
    const QStringList words{tr("months"), tr("weeks"), tr("days")};
    const QColor colours[] = {QColor(0x42, 0xA5, 0xF5), QColor(0x66, 0xBB, 0x6A),
                              QColor(0xFF, 0xB3, 0x00)};
    const double width = area.width() / 3;
    const double height = qMin(area.height() * 0.8, width * 1.2);
    for (int i = 0; i < 3; ++i) {
        const QRectF box(area.left() + i * width + 6, area.center().y() - height / 2, width - 12,
                         height);
        tile(painter, box, colours[i]);
        painter.setPen(Qt::white);
        painter.setFont(sized(qMin(box.height() * 0.35, box.width() * 0.3)));
        painter.drawText(box.adjusted(0, 0, 0, -box.height() * 0.3), Qt::AlignCenter, numbers[i]);
        painter.setPen(QColor(0x1A, 0x23, 0x7E));
        painter.setFont(sized(qMin(box.height() * 0.15, box.width() * 0.16)));
        painter.drawText(box.adjusted(0, box.height() * 0.45, 0, 0), Qt::AlignCenter, words[i]);
    }
}
