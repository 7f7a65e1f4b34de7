// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QFont>
#include <QList>
#include <QSize>
#include <QString>

class QPagedPaintDevice;
class QPainter;

// A document for the printer on a letter page of 850 x 1100 logical units (hundredths of an
// inch), or 1100 x 850 when turned to landscape: a credit line, the title, then the body; further pages repeat the header with the
// continued title. The body is text wrapped at a fixed number of characters per line and
// drawings that keep their place on one page.
class PrintDocument {
public:
    static constexpr int PageWidth = 850;
    static constexpr int PageHeight = 1100;
    static constexpr int Left = 100;
    static constexpr int Top = 50;
    static constexpr int Bottom = 1030;
    static constexpr int TextWidth = 650;

    using Drawing = std::function<void(QPainter &painter, const QRect &area)>;

    explicit PrintDocument(const QString &title, const QString &continuedTitle = {});

    // A landscape page keeps the margins; the text and drawings get the extra width.
    void setLandscape(bool on) { m_landscape = on; }
    bool landscape() const { return m_landscape; }
    QSize pageSize() const;
    int bottom() const { return pageSize().height() - (PageHeight - Bottom); }
    int textWidth() const { return pageSize().width() - (PageWidth - TextWidth); }

    QString title() const { return m_title; }
    QString continuedTitle() const { return m_continued.isEmpty() ? m_title : m_continued; }
    static QString creditLine();

    // The printing font: a family and a size in points turned into page units.
    void setFont(const QString &family, int points);
    QFont font() const;
    // The same font ten times larger, for text drawn at a tenth of the scale: page units
    // are too coarse for the exact size of a 12-point letter.
    QFont fineFont() const { return m_fineFont; }
    static constexpr int Fine = 10;
    double lineSpacing() const;
    // Characters per line: Int(650 / width of "H") in the printing font.
    int charsPerLine() const;

    // Text broken at blanks into lines of at most charsPerLine() characters.
    void addText(const QString &text);
    void addLine(const QString &line);
    void addBlankLine();
    // A drawing of a given height in page units, moved to a new page when it does not fit.
    void addDrawing(int height, Drawing drawing);

    // One laid-out page: the lines and drawings at their places.
    struct Placed {
        int y = 0;
        QString text;
        int height = 0;
        Drawing drawing;
    };
    QList<QList<Placed>> layOut() const;

private:
    struct Block {
        QString text;
        bool wrap = false;
        int height = 0;
        Drawing drawing;
    };
    QString m_title;
    QString m_continued;
    QFont m_fineFont;
    QList<Block> m_blocks;
    bool m_landscape = false;
};

// Paints every page of the document on a printer or PDF writer.
void RenderDocument(const PrintDocument &document, QPagedPaintDevice &device);
// Writes the document as a PDF file; false when the file cannot be written.
bool WritePdf(const PrintDocument &document, const QString &path);
