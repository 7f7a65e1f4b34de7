// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextWrap.h"

QStringList WordWrap(const QString &text, int width)
{
    width = qMax(1, width);
    QStringList lines;
    QString normalised = text;
    normalised.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QString &paragraph : normalised.split(u'\n')) {
        // Blanks inside a line are kept as written ("Clue 1:  ..."), and so is the indent of a
        // paragraph's first line; only the blanks where a line breaks are dropped.
        QString line;
        bool firstLine = true;
        qsizetype i = 0;
        const qsizetype n = paragraph.size();
        while (i < n) {
            const qsizetype spacesStart = i;
            while (i < n && paragraph[i] == u' ')
                ++i;
            const QString spaces = paragraph.mid(spacesStart, i - spacesStart);
            const qsizetype wordStart = i;
            while (i < n && paragraph[i] != u' ')
                ++i;
            const QString word = paragraph.mid(wordStart, i - wordStart);
            if (word.isEmpty())
                break;
            const QString candidate =
                line.isEmpty() ? (firstLine ? spaces : QString()) + word : line + spaces + word;
            if (candidate.size() <= width) {
                line = candidate;
                continue;
            }
            if (!line.isEmpty()) {
                lines.append(line);
                firstLine = false;
            }
            line = word;
            while (line.size() > width) {
                lines.append(line.left(width));
                firstLine = false;
                line = line.mid(width);
            }
        }
        lines.append(line);
    }
    return lines;
}
