// SPDX-License-Identifier: GPL-3.0-or-later
#include "CasePapers.h"

#include "CaseNumber.h"

#include "shell/core/TextWrap.h"

#include <QPainter>

namespace {

PrintDocument document(const QString &paper, const Case &c)
{
    return PrintDocument(CasePapers::title(paper, c), CasePapers::title(paper, c, true));
}

// The table a pupil fills in with a pencil: one row per suspect, the five attributes in the
// middle and a last column to mark the thief.
void drawTable(QPainter &painter, const QRect &area, const Case &c, const QFont &fine)
{
    constexpr int NameWidth = 170;
    constexpr int ThiefWidth = 60;
    const int rows = Case::Suspects + 1;
    const int rowHeight = area.height() / rows;
    const int valueWidth = (area.width() - NameWidth - ThiefWidth) / Case::Attributes;
    QList<int> edges{area.left(), area.left() + NameWidth};
    for (int k = 1; k <= Case::Attributes; ++k)
        edges.append(edges.last() + valueWidth);
    edges.append(area.right());

    QStringList headings{QStringLiteral("Suspect")};
    for (const QString &title : c.titles)
        headings.append(title);
    headings.append(QStringLiteral("Thief"));

    painter.save();
    painter.setPen(QPen(Qt::black, 1.5));
    painter.setBrush(QColor(0xE0, 0xE0, 0xE0));
    painter.drawRect(QRect(area.left(), area.top(), area.width(), rowHeight));
    painter.setBrush(Qt::NoBrush);
    for (int r = 0; r <= rows; ++r)
        painter.drawLine(area.left(), area.top() + r * rowHeight, area.right(),
                         area.top() + r * rowHeight);
    for (const int x : edges)
        painter.drawLine(x, area.top(), x, area.top() + rows * rowHeight);

    // Text is set at ten times the scale, as page units are too coarse for a letter's size.
    const int f = PrintDocument::Fine;
    painter.scale(1.0 / f, 1.0 / f);
    QFont headingFont = fine;
    headingFont.setBold(true);
    headingFont.setPixelSize(fine.pixelSize() * 5 / 6);
    for (int column = 0; column < headings.size(); ++column) {
        painter.setFont(headingFont);
        const QRect cell(edges[column] * f, area.top() * f, (edges[column + 1] - edges[column]) * f,
                         rowHeight * f);
        painter.drawText(cell, Qt::AlignCenter, headings[column]);
    }
    painter.setFont(fine);
    for (int s = 0; s < Case::Suspects; ++s) {
        const QRect cell((edges[0] + 8) * f, (area.top() + (s + 1) * rowHeight) * f,
                         (NameWidth - 12) * f, rowHeight * f);
        painter.drawText(cell, Qt::AlignLeft | Qt::AlignVCenter, c.displayList[s]);
    }
    painter.restore();
}

} // namespace

QString CasePapers::title(const QString &paper, const Case &c, bool continued)
{
    return paper + QStringLiteral("-Case Number ") + c.number + QStringLiteral(" (") +
           CaseNumber::levelCaption(c.level) +
           (continued ? QStringLiteral(" Level)-Continued") : QStringLiteral(" Level)"));
}

PrintDocument CasePapers::caseDocument(const Case &c)
{
    PrintDocument paper = document(QStringLiteral("Description"), c);
    paper.addText(c.caseText);
    return paper;
}

PrintDocument CasePapers::cluesDocument(const Case &c)
{
    PrintDocument paper = document(QStringLiteral("Clues"), c);
    paper.addText(c.noTwoSentence + QStringLiteral("There are 14 clues:"));
    paper.addBlankLine();
    // Long clues continue under their own text, not under "Clue", so each stands out.
    for (int i = 1; i <= Case::Clues; ++i) {
        const QString head = QStringLiteral("Clue %1:  ").arg(i);
        const QStringList lines =
            WordWrap(c.listedClue(i).text + u'.', paper.charsPerLine() - int(head.size()));
        for (qsizetype l = 0; l < lines.size(); ++l)
            paper.addLine((l == 0 ? head : QString(head.size(), u' ')) + lines[l]);
    }
    paper.addBlankLine();
    const QFont fine = paper.fineFont();
    paper.addDrawing(6 * 45, [c, fine](QPainter &painter, const QRect &area) {
        drawTable(painter, area, c, fine);
    });
    return paper;
}

PrintDocument CasePapers::solutionDocument(const Case &c)
{
    PrintDocument paper = document(QStringLiteral("Solution"), c);
    paper.addText(c.solution.text());
    return paper;
}
