// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorksheetPaper.h"

#include <cmath>
#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

// The printed words, translated like every other text the pupil reads.
QString tr(const char *text)
{
    return QCoreApplication::translate("WorksheetPaper", text);
}

constexpr double Fine = PrintDocument::Fine;

// Text in page units, set at ten times the scale: page units are too coarse for type.
void put(QPainter &painter, const QRectF &box, int flags, const QString &text, double size,
         bool bold = false)
{
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPixelSize(qMax(1, qRound(size * Fine)));
    font.setBold(bold);
    painter.save();
    painter.scale(1.0 / Fine, 1.0 / Fine);
    painter.setFont(font);
    painter.drawText(
        QRectF(box.x() * Fine, box.y() * Fine, box.width() * Fine, box.height() * Fine), flags,
        text);
    painter.restore();
}

void line(QPainter &painter, double x1, double y1, double x2, double y2, double width = 2)
{
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

// 7 above × 8, a rule, and room for the answer; a division as 7 )56 with room on top.
void drawStacked(QPainter &painter, const QRectF &cell, const MathFact &fact, bool key)
{
    const double s = std::min({cell.height() / 4.2, cell.width() / 4.0, 44.0});
    const double right = cell.right() - cell.width() * 0.18;
    const double numberWidth = s * 2.2;
    if (fact.op == Operation::Multiply) {
        const double top = cell.top() + cell.height() * 0.12;
        put(painter, QRectF(right - numberWidth * 1.4, top, numberWidth * 1.4, s * 1.25),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(fact.left()), s);
        put(painter, QRectF(right - numberWidth * 1.4, top + s * 1.2, numberWidth * 1.4, s * 1.25),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(fact.right()), s);
        // The sign at the left of the rule, a little larger: in most type it is small.
        put(painter, QRectF(right - numberWidth * 1.3, top + s * 1.2, s, s * 1.25),
            Qt::AlignLeft | Qt::AlignVCenter, OperationSign(fact.op), s * 1.2);
        const double rule = top + s * 2.55;
        line(painter, right - numberWidth * 1.3, rule, right, rule, 2.5);
        if (key)
            put(painter,
                QRectF(right - numberWidth * 1.4, rule + s * 0.1, numberWidth * 1.4, s * 1.25),
                Qt::AlignRight | Qt::AlignVCenter, QString::number(fact.answer()), s, true);
        return;
    }
    const double answerTop = cell.top() + cell.height() * 0.14;
    const double bar = answerTop + s * 1.3;
    const double bracket = right - numberWidth - s * 0.3;
    if (key)
        put(painter, QRectF(right - numberWidth, answerTop, numberWidth, s * 1.25),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(fact.answer()), s, true);
    line(painter, bracket, bar, right + s * 0.15, bar, 2.5);
    // The curved side of the division bracket.
    QPainterPath curve(QPointF(bracket, bar));
    curve.quadTo(QPointF(bracket + s * 0.35, bar + s * 0.7), QPointF(bracket, bar + s * 1.4));
    painter.setPen(QPen(Qt::black, 2.5, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(curve);
    put(painter, QRectF(right - numberWidth, bar + s * 0.1, numberWidth, s * 1.25),
        Qt::AlignRight | Qt::AlignVCenter, QString::number(fact.left()), s);
    put(painter, QRectF(bracket - numberWidth - s * 0.2, bar + s * 0.1, numberWidth, s * 1.25),
        Qt::AlignRight | Qt::AlignVCenter, QString::number(fact.right()), s);
}

// "7 × 8 = ____", or with the answer written in on the key.
void drawInARow(QPainter &painter, const QRectF &cell, const MathFact &fact, bool key)
{
    const double s = std::min(cell.height() * 0.7, 34.0);
    const QString sum = fact.text() + QStringLiteral(" =");
    const QRectF box(cell.left(), cell.top(), cell.width(), cell.height());
    if (key) {
        put(painter, box, Qt::AlignLeft | Qt::AlignVCenter, fact.withAnswer(), s, true);
        return;
    }
    put(painter, box, Qt::AlignLeft | Qt::AlignVCenter, sum, s);
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPixelSize(qRound(s * Fine));
    const double width = QFontMetricsF(font).horizontalAdvance(sum + QStringLiteral(" ")) / Fine;
    const double base = cell.center().y() + s * 0.45;
    line(painter, cell.left() + width, base, qMin(cell.right() - 10, cell.left() + width + s * 3),
         base);
}

} // namespace

QString WorksheetPaper::title(const Worksheet &sheet)
{
    return tr("%1 Facts %2 to %3 - Worksheet %4")
        .arg(sheet.op == Operation::Multiply ? tr("Multiplication") : tr("Division"))
        .arg(sheet.low)
        .arg(sheet.high)
        .arg(sheet.number());
}

QString WorksheetPaper::keyTitle(const Worksheet &sheet)
{
    return tr("Answer Key - Worksheet ") + sheet.number();
}

QSize WorksheetPaper::grid(const Worksheet &sheet)
{
    const int columns = sheet.layout == Worksheet::Layout::Stacked ? 5 : 2;
    return {columns, (sheet.count + columns - 1) / columns};
}

int WorksheetPaper::bodyHeight(const PrintDocument &document)
{
    // Four header lines (credit, blank, title, blank) come before the body on every page.
    return PrintDocument::Bottom - PrintDocument::Top - 4 * int(std::ceil(document.lineSpacing()));
}

PrintDocument WorksheetPaper::document(const Worksheet &sheet, bool withKey)
{
    // The key's page gets its own heading, as the header repeats on a page that follows.
    PrintDocument paper(title(sheet), keyTitle(sheet));
    const QList<MathFact> problems = sheet.problems();
    const int height = bodyHeight(paper);
    paper.addDrawing(height, [sheet, problems](QPainter &painter, const QRect &area) {
        draw(painter, area, sheet, problems, false);
    });
    if (withKey)
        paper.addDrawing(height, [sheet, problems](QPainter &painter, const QRect &area) {
            draw(painter, area, sheet, problems, true);
        });
    return paper;
}

void WorksheetPaper::draw(QPainter &painter, const QRectF &area, const Worksheet &sheet,
                          const QList<MathFact> &problems, bool key)
{
    painter.save();
    painter.setPen(Qt::black);
    constexpr double Head = 60;
    constexpr double Foot = 40;
    if (key) {
        put(painter, QRectF(area.left(), area.top(), area.width(), Head),
            Qt::AlignLeft | Qt::AlignVCenter, tr("ANSWER KEY"), 24, true);
    } else {
        put(painter, QRectF(area.left(), area.top(), area.width(), Head),
            Qt::AlignLeft | Qt::AlignVCenter,
            tr("Name: ______________________  Date: ____________"), 20);
    }
    put(painter, QRectF(area.left(), area.bottom() - Foot, area.width(), Foot), Qt::AlignCenter,
        tr("Worksheet number %1 makes this same sheet again.").arg(sheet.number()), 13);

    const QSize cells = grid(sheet);
    const QRectF field(area.left(), area.top() + Head + 10, area.width(),
                       area.height() - Head - Foot - 20);
    const double width = field.width() / cells.width();
    const double height = field.height() / cells.height();
    for (qsizetype i = 0; i < problems.size(); ++i) {
        const int column = int(i % cells.width());
        const int row = int(i / cells.width());
        const QRectF cell(field.left() + column * width, field.top() + row * height, width, height);
        const double label = std::min(height * 0.45, 18.0);
        const bool stacked = sheet.layout == Worksheet::Layout::Stacked;
        const QRectF numberBox = stacked ? QRectF(cell.left(), cell.top() + 4, 40, label * 1.4)
                                         : QRectF(cell.left(), cell.top(), 50, cell.height());
        put(painter, numberBox, Qt::AlignLeft | (stacked ? Qt::AlignTop : Qt::AlignVCenter),
            QStringLiteral("%1.").arg(i + 1), label);
        const QRectF problemBox = stacked ? cell : cell.adjusted(50, 0, 0, 0);
        if (stacked)
            drawStacked(painter, problemBox, problems[i], key);
        else
            drawInARow(painter, problemBox, problems[i], key);
    }
    painter.restore();
}
