// SPDX-License-Identifier: GPL-3.0-or-later
#include "CandyPapers.h"

#include "CandyMap.h"
#include "SalesChart.h"

#include "shell/Printing.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

QString Tr(const char *text)
{
    return QCoreApplication::translate("CandyPapers", text);
}

// A line of the printed tables: the text left, the figures in columns of fixed width.
QString Columns(const QString &first, const QStringList &rest, int firstWidth = 22, int width = 16)
{
    QString line = first.leftJustified(firstWidth, u' ', true);
    for (const QString &cell : rest)
        line += cell.rightJustified(width, u' ');
    return line;
}

void DrawStar(QPainter &painter, QPointF centre, double radius)
{
    QPainterPath star;
    for (int i = 0; i < 10; ++i) {
        const double r = i % 2 == 0 ? radius : radius * 0.45;
        const double angle = -M_PI / 2 + i * M_PI / 5;
        const QPointF p(centre.x() + r * std::cos(angle), centre.y() + r * std::sin(angle));
        if (i == 0)
            star.moveTo(p);
        else
            star.lineTo(p);
    }
    star.closeSubpath();
    painter.drawPath(star);
}

// The largest size up to `pixels` at which the text fits the width.
QFont Fitted(QFont font, int pixels, const QString &text, double width)
{
    font.setPixelSize(qMax(4, pixels));
    while (font.pixelSize() > 4 && QFontMetricsF(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

} // namespace

QString CandyPapers::money(qint64 dollars)
{
    const QString digits = QString::number(dollars < 0 ? -dollars : dollars);
    QString grouped;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            grouped += u',';
        grouped += digits[i];
    }
    return (dollars < 0 ? QStringLiteral("-$") : QStringLiteral("$")) + grouped;
}

QString CandyPapers::boxes(qint64 count)
{
    return (count == 1 ? Tr("1 box") : Tr("%1 boxes").arg(count)) +
           QStringLiteral(" (%1)").arg(money(Contest::money(count)));
}

QString CandyPapers::verdict(const Contest &contest)
{
    if (!contest.isOver())
        return {};
    switch (contest.winner()) {
    case Contest::Winner::Ours:
        return Tr("%1 won the Candy Drive!").arg(Contest::sideName(Contest::Side::Ours));
    case Contest::Winner::Theirs:
        return Tr("The %1 won the Candy Drive this time.")
            .arg(Contest::sideName(Contest::Side::Theirs));
    case Contest::Winner::Tie:
        return Tr("A tie! Both classes sold the same number of boxes.");
    }
    return {};
}

QString CandyPapers::dayLine(const Contest::DayReport &report)
{
    return Columns(Tr("Day %1, %2").arg(report.day).arg(Contest::weatherName(report.weather)),
                   {QString::number(report.boxesOurs), QString::number(report.boxesTheirs)});
}

void CandyPapers::drawCertificate(QPainter &painter, const QRectF &area, const Contest &contest)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = qMin(area.width(), area.height()) / 100.0;
    // A double border in candy colours.
    painter.setPen(QPen(QColor(0xEC, 0x40, 0x7A), 2.2 * unit));
    painter.setBrush(QColor(0xFF, 0xFD, 0xF5));
    painter.drawRoundedRect(area.adjusted(unit, unit, -unit, -unit), 3 * unit, 3 * unit);
    painter.setPen(QPen(QColor(0x42, 0xA5, 0xF5), 0.8 * unit, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(4.5 * unit, 4.5 * unit, -4.5 * unit, -4.5 * unit),
                            2 * unit, 2 * unit);

    const bool won = contest.winner() == Contest::Winner::Ours;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xC1, 0x07));
    for (double x : {0.12, 0.88})
        DrawStar(painter, QPointF(area.left() + area.width() * x, area.top() + 14 * unit),
                 6 * unit);
    // Wrapped sweets along the bottom.
    const QColor sweets[] = {QColor(0xE9, 0x1E, 0x63), QColor(0x8E, 0x24, 0xAA),
                             QColor(0x43, 0xA0, 0x47), QColor(0xFB, 0x8C, 0x00)};
    for (int i = 0; i < 4; ++i) {
        const QPointF c(area.left() + area.width() * (0.2 + 0.2 * i), area.bottom() - 12 * unit);
        painter.setBrush(sweets[i]);
        painter.drawEllipse(c, 4 * unit, 3 * unit);
        QPolygonF left({c + QPointF(-3.5 * unit, 0), c + QPointF(-7.5 * unit, -2.5 * unit),
                        c + QPointF(-7.5 * unit, 2.5 * unit)});
        QPolygonF right({c + QPointF(3.5 * unit, 0), c + QPointF(7.5 * unit, -2.5 * unit),
                         c + QPointF(7.5 * unit, 2.5 * unit)});
        painter.drawPolygon(left);
        painter.drawPolygon(right);
    }

    const QString title = won ? Tr("Candy Drive Champions") : Tr("Candy Drive Certificate");
    QFont heading(QStringLiteral("Comic Sans MS"));
    heading.setBold(true);
    // Between the two stars.
    painter.setFont(Fitted(heading, int(9 * unit), title, area.width() * 0.76 - 15 * unit));
    painter.setPen(QColor(0xAD, 0x14, 0x57));
    painter.drawText(QRectF(area.left(), area.top() + 7 * unit, area.width(), 14 * unit),
                     Qt::AlignCenter, title);

    QFont body(QStringLiteral("Comic Sans MS"));
    body.setPixelSize(qMax(5, int(5.4 * unit)));
    painter.setFont(body);
    painter.setPen(QColor(0x1A, 0x23, 0x7E));
    const int ours = contest.totalBoxes(Contest::Side::Ours);
    QString text;
    switch (contest.winner()) {
    case Contest::Winner::Ours:
        text = Tr("This certifies that %1 won the school Candy Drive, selling %2 boxes of candy "
                  "in %3 days and raising %4 for the school.");
        break;
    case Contest::Winner::Theirs:
        text = Tr("This certifies that %1 worked hard in the school Candy Drive, selling %2 "
                  "boxes of candy in %3 days and raising %4 for the school.");
        break;
    case Contest::Winner::Tie:
        text = Tr("This certifies that %1 tied for first place in the school Candy Drive, "
                  "selling %2 boxes of candy in %3 days and raising %4 for the school.");
        break;
    }
    text = text.arg(Contest::sideName(Contest::Side::Ours))
               .arg(ours)
               .arg(contest.reports().size())
               .arg(money(Contest::money(ours)));
    painter.drawText(QRectF(area.left() + 14 * unit, area.top() + 24 * unit,
                            area.width() - 28 * unit, area.height() - 46 * unit),
                     Qt::AlignCenter | Qt::TextWordWrap, text);

    const QString score = Tr("%1: %2 boxes    %3: %4 boxes")
                              .arg(Contest::sideName(Contest::Side::Ours))
                              .arg(ours)
                              .arg(Contest::sideName(Contest::Side::Theirs))
                              .arg(contest.totalBoxes(Contest::Side::Theirs));
    QFont scoreFont = body;
    scoreFont.setBold(true);
    painter.setFont(Fitted(scoreFont, body.pixelSize(), score, area.width() - 16 * unit));
    painter.setPen(QColor(0x2E, 0x7D, 0x32));
    painter.drawText(QRectF(area.left(), area.bottom() - 26 * unit, area.width(), 8 * unit),
                     Qt::AlignCenter, score);
    painter.restore();
}

PrintDocument CandyPapers::document(const Contest &contest)
{
    PrintDocument paper(Tr("Candy Drive Certificate and Report"), Tr("Candy Drive Report"));
    paper.addDrawing(480, [contest](QPainter &painter, const QRect &area) {
        drawCertificate(painter, QRectF(area), contest);
    });
    paper.addBlankLine();
    paper.addLine(verdict(contest));
    paper.addBlankLine();
    const QString ours = Contest::sideName(Contest::Side::Ours);
    const QString theirs = Contest::sideName(Contest::Side::Theirs);
    paper.addLine(Columns(Tr("Boxes sold"), {ours, theirs}));
    for (const Contest::DayReport &r : contest.reports())
        paper.addLine(dayLine(r));
    paper.addLine(
        Columns(Tr("Total boxes"), {QString::number(contest.totalBoxes(Contest::Side::Ours)),
                                    QString::number(contest.totalBoxes(Contest::Side::Theirs))}));
    paper.addLine(Columns(Tr("Money raised"),
                          {money(Contest::money(contest.totalBoxes(Contest::Side::Ours))),
                           money(Contest::money(contest.totalBoxes(Contest::Side::Theirs)))}));
    paper.addBlankLine();

    // Each of our teams over the whole contest, then each street.
    paper.addLine(Columns(Tr("Our teams"), {Tr("Houses"), Tr("Boxes")}));
    for (int t = 0; t < contest.teams(); ++t) {
        int houses = 0;
        int sold = 0;
        for (const Contest::DayReport &r : contest.reports()) {
            houses += r.ours.value(t).houses;
            sold += r.ours.value(t).boxes;
        }
        paper.addLine(Columns(Contest::teamName(Contest::Side::Ours, t),
                              {QString::number(houses), QString::number(sold)}));
    }
    paper.addBlankLine();
    paper.addLine(Columns(Tr("Streets"), {ours, theirs}));
    for (int s = 0; s < contest.streets().size(); ++s) {
        int mine = 0;
        int other = 0;
        for (const Contest::DayReport &r : contest.reports()) {
            mine += r.streetOurs.value(s);
            other += r.streetTheirs.value(s);
        }
        paper.addLine(
            Columns(contest.streets()[s].name, {QString::number(mine), QString::number(other)}));
    }
    paper.addBlankLine();
    const QList<Contest::DayReport> reports = contest.reports();
    paper.addDrawing(330, [reports](QPainter &painter, const QRect &area) {
        SalesChart::paint(painter, QRectF(area), reports, 0,
                          QFont(QStringLiteral("Comic Sans MS")));
    });
    return paper;
}
