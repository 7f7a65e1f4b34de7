// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of the Calendar: the month on display, lesson pages, a quiz and a reading question,
// and the printed month as it comes out on paper.
#include "Scene.h"

#include "calendar/CalendarPrint.h"
#include "calendar/frmCal.h"
#include "support/TestDoubles.h"

#include "shell/core/Random.h"

#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

namespace {

frmCal *CalendarAt(int month, int year)
{
    auto *window = new frmCal;
    window->setToday(QDate(2026, 11, 22));
    window->showMonth(month, year);
    Randomize(2026);
    return window;
}

// A letter page drawn the way the printer draws it, scaled to the window.
class PrintedPage : public QWidget {
public:
    explicit PrintedPage(PrintDocument document) : m_document(std::move(document))
    {
        setWindowTitle(m_document.title());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0x60, 0x7D, 0x8B));
        const double scale = qMin((width() - 40.0) / PrintDocument::PageWidth,
                                  (height() - 40.0) / PrintDocument::PageHeight);
        const QSizeF size(PrintDocument::PageWidth * scale, PrintDocument::PageHeight * scale);
        painter.translate((width() - size.width()) / 2, (height() - size.height()) / 2);
        painter.scale(scale, scale);
        painter.fillRect(QRect(0, 0, PrintDocument::PageWidth, PrintDocument::PageHeight),
                         Qt::white);
        painter.setRenderHint(QPainter::Antialiasing);
        const QFontMetricsF metrics(m_document.fineFont());
        const auto pages = m_document.layOut();
        for (const auto &item : pages.first()) {
            painter.save();
            if (item.drawing) {
                item.drawing(painter, QRect(PrintDocument::Left, item.y, PrintDocument::TextWidth,
                                            item.height));
            } else {
                painter.scale(1.0 / PrintDocument::Fine, 1.0 / PrintDocument::Fine);
                painter.setFont(m_document.fineFont());
                painter.drawText(QPointF(PrintDocument::Left * PrintDocument::Fine,
                                         item.y * PrintDocument::Fine + metrics.ascent()),
                                 item.text);
            }
            painter.restore();
        }
    }

private:
    PrintDocument m_document;
};

} // namespace

QList<Scene> calendarScenes()
{
    return {
        {QStringLiteral("calendar-display"), [] { return CalendarAt(11, 2026); }},
        {QStringLiteral("calendar-lesson"),
         [] {
             frmCal *window = CalendarAt(11, 2026);
             window->cmdMenu[frmCal::Parts]->click();
             window->cmdStartReview->click();
             return window;
         }},
        {QStringLiteral("calendar-seasons"),
         [] {
             frmCal *window = CalendarAt(11, 2026);
             window->cmdMenu[frmCal::Parts]->click();
             window->cmdStartReview->click();
             for (int page = 0; page < 7; ++page)
                 window->cmdNext->click();
             return window;
         }},
        {QStringLiteral("calendar-quiz"),
         [] {
             frmCal *window = CalendarAt(11, 2026);
             window->cmdMenu[frmCal::Quiz]->click();
             window->cmdStartQuiz->click();
             window->txtQAnswer->setText(window->round().question().answer);
             emit window->txtQAnswer->returnPressed();
             return window;
         }},
        {QStringLiteral("calendar-reading"),
         [] {
             frmCal *window = CalendarAt(3, 2027);
             window->cmdMenu[frmCal::Reading]->click();
             window->cmdStartReading->click();
             window->txtAnswer->setText(QStringLiteral("Monday"));
             emit window->txtAnswer->returnPressed();
             return window;
         }},
        // The smallest screen the window must fit: 1366 x 768 at 200 %.
        {QStringLiteral("calendar-reading-small"),
         [] {
             frmCal *window = CalendarAt(8, 2026);
             window->cmdMenu[frmCal::Reading]->click();
             window->cmdStartReading->click();
             return window;
         },
         QSize(683, 384)},
        {QStringLiteral("calendar-printed"),
         [] {
             frmCal *window = CalendarAt(9, 2026);
             auto *page =
                 new PrintedPage(CalendarPrint::document(window->data(), window->shownMonth()));
             window->setAttribute(Qt::WA_DeleteOnClose, false);
             delete window;
             return static_cast<QWidget *>(page);
         },
         QSize(850, 1100)},
    };
}
