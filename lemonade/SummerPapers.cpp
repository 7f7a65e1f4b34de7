// SPDX-License-Identifier: GPL-3.0-or-later
#include "SummerPapers.h"

#include "ProfitChart.h"
#include "Summer.h"

#include <QCoreApplication>
#include <QPainter>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("SummerPapers", text);
}

// Page units are too coarse for exact letter sizes, so text is set at ten times the scale.
void DrawText(QPainter &painter, const QRectF &box, const QString &text, const QFont &base,
              double size, bool bold, const QColor &colour)
{
    constexpr int F = PrintDocument::Fine;
    painter.save();
    painter.scale(1.0 / F, 1.0 / F);
    QFont font = base;
    font.setPixelSize(qMax(1, int(size * F)));
    font.setBold(bold);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QRectF(box.x() * F, box.y() * F, box.width() * F, box.height() * F),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
    painter.restore();
}

void DrawLemon(QPainter &painter, QPointF centre, double size)
{
    painter.setPen(QPen(QColor(0xF9, 0xA8, 0x25), 2));
    painter.setBrush(QColor(0xFF, 0xEB, 0x3B));
    painter.drawEllipse(centre, size, size * 0.72);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x66, 0xBB, 0x6A));
    painter.drawEllipse(centre + QPointF(size * 0.5, -size * 0.78), size * 0.42, size * 0.2);
}

QString Padded(const QString &text, int width, bool right = false)
{
    return right ? text.rightJustified(width) : text.leftJustified(width);
}

} // namespace

QString SummerPapers::achievement(const Summer &summer)
{
    const int weeks = int(summer.reports().size());
    const QString ran = weeks == 1 ? tr("for running a lemonade stand for 1 week")
                                   : tr("for running a lemonade stand for %1 weeks").arg(weeks);
    if (summer.totalProfit() > 0)
        return ran + tr(" and making a profit of %1.").arg(WeekReport::money(summer.totalProfit()));
    return ran + tr(" and learning, week by week, how a business works.");
}

PrintDocument SummerPapers::document(const Summer &summer, const QString &name)
{
    PrintDocument paper(tr("Lemonade Stand: My Summer"),
                        tr("Lemonade Stand: My Summer (continued)"));
    const QFont base = paper.fineFont();
    // The certificate is lettered in the program's friendly type; the report keeps the
    // printing font, whose even letters line up the columns.
    QFont friendly(QStringLiteral("Comic Sans MS"));
    friendly.setPixelSize(base.pixelSize());
    const QString achieved = achievement(summer);
    const QString who = name.trimmed();

    paper.addDrawing(490, [friendly, achieved, who](QPainter &painter, const QRect &area) {
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF frame = QRectF(area).adjusted(4, 4, -4, -4);
        painter.setPen(QPen(QColor(0xF9, 0xA8, 0x25), 10));
        painter.setBrush(QColor(0xFF, 0xFD, 0xE7));
        painter.drawRoundedRect(frame, 24, 24);
        painter.setPen(QPen(QColor(0x43, 0xA0, 0x47), 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame.adjusted(18, 18, -18, -18), 16, 16);
        for (QPointF corner :
             {frame.topLeft() + QPointF(55, 55), frame.topRight() + QPointF(-55, 55),
              frame.bottomLeft() + QPointF(55, -55), frame.bottomRight() + QPointF(-55, -55)})
            DrawLemon(painter, corner, 22);

        const double x = frame.left() + 80;
        const double w = frame.width() - 160;
        DrawText(painter, QRectF(x, frame.top() + 40, w, 60), tr("Certificate"), friendly, 46, true,
                 QColor(0xE6, 0x51, 0x00));
        DrawText(painter, QRectF(x, frame.top() + 105, w, 40), tr("Lemonade Stand"), friendly, 26,
                 true, QColor(0x2E, 0x7D, 0x32));
        DrawText(painter, QRectF(x, frame.top() + 170, w, 30), tr("This certificate is given to"),
                 friendly, 18, false, Qt::black);
        if (who.isEmpty()) {
            painter.setPen(QPen(Qt::black, 1.5));
            painter.drawLine(QPointF(x + 60, frame.top() + 255),
                             QPointF(x + w - 60, frame.top() + 255));
        } else {
            DrawText(painter, QRectF(x, frame.top() + 205, w, 55), who, friendly, 32, true,
                     QColor(0x1A, 0x23, 0x7E));
        }
        DrawText(painter, QRectF(x, frame.top() + 280, w, 110), achieved, friendly, 20, false,
                 Qt::black);
        DrawText(painter, QRectF(x, frame.top() + 390, w, 40), tr("Well done, business owner!"),
                 friendly, 20, true, QColor(0xE6, 0x51, 0x00));
    });

    paper.addBlankLine();
    paper.addLine(tr("Season report"));
    paper.addBlankLine();
    const QList<WeekReport> &reports = summer.reports();
    paper.addLine(Padded(tr("Week"), 5) + Padded(tr("Weather"), 20) + Padded(tr("Price"), 6, true) +
                  Padded(tr("Sold"), 6, true) + Padded(tr("Profit"), 12, true));
    QList<qint64> profits;
    for (const WeekReport &r : reports) {
        profits << r.profit();
        paper.addLine(
            Padded(QString::number(r.week), 5) +
            Padded(WeatherName(r.weather) + QStringLiteral(" %1°").arg(r.temperature), 20) +
            Padded(QStringLiteral("%1c").arg(r.price), 6, true) +
            Padded(QString::number(r.sold), 6, true) +
            Padded(WeekReport::money(r.profit()), 12, true));
    }
    paper.addBlankLine();
    paper.addLine(tr("Money at the start: ") + WeekReport::money(Summer::StartMoney));
    paper.addLine(tr("Money at the end: ") + WeekReport::money(summer.money()));
    paper.addLine((summer.totalProfit() < 0 ? tr("Total loss: ") : tr("Total profit: ")) +
                  WeekReport::money(summer.totalProfit()));
    if (!reports.isEmpty()) {
        const WeekReport &best = reports[summer.bestWeek()];
        const WeekReport &worst = reports[summer.worstWeek()];
        paper.addLine(
            tr("Best week: week %1, %2").arg(best.week).arg(WeekReport::money(best.profit())));
        paper.addLine(
            tr("Worst week: week %1, %2").arg(worst.week).arg(WeekReport::money(worst.profit())));
        paper.addBlankLine();
        paper.addDrawing(300, [profits, base](QPainter &painter, const QRect &area) {
            constexpr int F = PrintDocument::Fine;
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(1.0 / F, 1.0 / F);
            QFont font = base;
            font.setPixelSize(base.pixelSize() * 5 / 6);
            ProfitChart::paint(
                painter, QRectF(area.x() * F, area.y() * F, area.width() * F, area.height() * F),
                profits, font);
        });
    }
    return paper;
}
