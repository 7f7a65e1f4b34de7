// SPDX-License-Identifier: GPL-3.0-or-later
#include "Printing.h"

#include "shell/core/TextWrap.h"

#include <cmath>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

PrintDocument::PrintDocument(const QString &title, const QString &continuedTitle)
    : m_title(title), m_continued(continuedTitle)
{
    setFont(QStringLiteral("Courier New"), 12);
}

QSize PrintDocument::pageSize() const
{
    return m_landscape ? QSize(PageHeight, PageWidth) : QSize(PageWidth, PageHeight);
}

QString PrintDocument::creditLine()
{
    return QStringLiteral("Lumbridle 5.0 - learning games for curious minds");
}

void PrintDocument::setFont(const QString &family, int points)
{
    m_fineFont = QFont(family);
    m_fineFont.setStyleHint(QFont::TypeWriter);
    // Page units are hundredths of an inch, a point is a 72nd.
    m_fineFont.setPixelSize(qMax(1, qRound(points * 100.0 * Fine / 72.0)));
}

QFont PrintDocument::font() const
{
    QFont coarse = m_fineFont;
    coarse.setPixelSize(qMax(1, qRound(double(m_fineFont.pixelSize()) / Fine)));
    return coarse;
}

double PrintDocument::lineSpacing() const
{
    return QFontMetricsF(m_fineFont).lineSpacing() / Fine;
}

int PrintDocument::charsPerLine() const
{
    const double width = QFontMetricsF(m_fineFont).horizontalAdvance(QLatin1Char('H')) / Fine;
    return width > 0 ? qMax(1, int(std::floor(textWidth() / width))) : 65;
}

void PrintDocument::addText(const QString &text)
{
    m_blocks.append(Block{text, true, 0, {}});
}

void PrintDocument::addLine(const QString &line)
{
    m_blocks.append(Block{line, false, 0, {}});
}

void PrintDocument::addBlankLine()
{
    addLine(QString());
}

void PrintDocument::addDrawing(int height, Drawing drawing)
{
    m_blocks.append(Block{QString(), false, height, std::move(drawing)});
}

QList<QList<PrintDocument::Placed>> PrintDocument::layOut() const
{
    const int lineHeight = qCeil(lineSpacing());
    const int width = charsPerLine();
    QList<QList<Placed>> pages;
    int y = 0;
    auto startPage = [&] {
        pages.append(QList<Placed>());
        y = Top;
        const QString title = pages.size() == 1 ? m_title : continuedTitle();
        for (const QString &line : {creditLine(), QString(), title, QString()}) {
            pages.last().append(Placed{y, line, lineHeight, {}});
            y += lineHeight;
        }
    };
    startPage();
    auto place = [&](Placed item) {
        if (y + item.height > bottom())
            startPage();
        item.y = y;
        pages.last().append(item);
        y += item.height;
    };
    for (const Block &block : m_blocks) {
        if (block.drawing) {
            place(Placed{0, QString(), block.height, block.drawing});
        } else if (block.wrap) {
            for (const QString &line : WordWrap(block.text, width))
                place(Placed{0, line, lineHeight, {}});
        } else {
            place(Placed{0, block.text, lineHeight, {}});
        }
    }
    return pages;
}

void RenderDocument(const PrintDocument &document, QPagedPaintDevice &device)
{
    QPainter painter(&device);
    if (!painter.isActive())
        return;
    const auto pages = document.layOut();
    for (qsizetype p = 0; p < pages.size(); ++p) {
        if (p > 0)
            device.newPage();
        painter.setWindow(QRect(QPoint(0, 0), document.pageSize()));
        painter.setViewport(0, 0, device.width(), device.height());
        painter.setPen(Qt::black);
        const QFontMetricsF metrics(document.fineFont());
        for (const auto &item : pages[p]) {
            if (item.drawing) {
                painter.save();
                painter.setFont(document.font());
                item.drawing(painter,
                             QRect(PrintDocument::Left, item.y, document.textWidth(), item.height));
                painter.restore();
            } else if (!item.text.isEmpty()) {
                painter.save();
                painter.scale(1.0 / PrintDocument::Fine, 1.0 / PrintDocument::Fine);
                painter.setFont(document.fineFont());
                painter.drawText(QPointF(PrintDocument::Left * PrintDocument::Fine,
                                         item.y * PrintDocument::Fine + metrics.ascent()),
                                 item.text);
                painter.restore();
            }
        }
    }
}

bool WritePdf(const PrintDocument &document, const QString &path)
{
    {
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(QPageSize::Letter));
        writer.setPageOrientation(document.landscape() ? QPageLayout::Landscape
                                                       : QPageLayout::Portrait);
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(600);
        writer.setTitle(document.title());
        writer.setCreator(QStringLiteral("Lumbridle 5.0"));
        RenderDocument(document, writer);
    }
    QFile written(path);
    return written.exists() && written.size() > 0;
}
