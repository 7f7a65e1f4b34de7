// SPDX-License-Identifier: GPL-3.0-or-later
#include "WordListPaper.h"

#include "WordList.h"

PrintDocument WordListPaper(const WordList &list)
{
    PrintDocument paper(QStringLiteral("List: ") + list.name);
    // Large enough to copy from at a desk; twenty words still fit on one page.
    paper.setFont(QStringLiteral("Courier New"), 18);
    for (qsizetype i = 0; i < list.words.size(); ++i)
        paper.addLine(QString::number(i + 1) + QStringLiteral(" - ") + list.words[i]);
    return paper;
}
