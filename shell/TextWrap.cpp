// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextWrap.h"

QStringList WordWrap(const QString &text, int width)
{
    width = qMax(1, width);
    QStringList lines;
    QString normalised = text;
    normalised.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QString &paragraph : normalised.split(u'\n')) {
        QString line;
        for (QString word : paragraph.split(u' ', Qt::SkipEmptyParts)) {
            while (word.size() > width) {
                if (!line.isEmpty()) {
                    lines.append(line);
                    line.clear();
                }
                lines.append(word.left(width));
                word = word.mid(width);
            }
            if (line.isEmpty())
                line = word;
            else if (line.size() + 1 + word.size() <= width)
                line += u' ' + word;
            else {
                lines.append(line);
                line = word;
            }
        }
        lines.append(line);
    }
    return lines;
}
