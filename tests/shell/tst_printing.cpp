// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Printing.h"
#include "support/TestDoubles.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {
QString pdfText(const QString &path)
{
    QProcess tool;
    tool.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!tool.waitForFinished(30000) || tool.exitCode() != 0)
        return {};
    // Runs of blanks come back as one; page ends stay as form feeds.
    QString text = QString::fromUtf8(tool.readAllStandardOutput());
    text.replace(QRegularExpression(QStringLiteral("[ \\t]+")), QStringLiteral(" "));
    return text;
}
} // namespace

class PrintingTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        InitTestProgram();
        QVERIFY2(!QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty(),
                 "pdftotext (poppler-utils) is needed to read printed pages back");
    }

    void charactersPerLineFollowTheFont()
    {
        PrintDocument document(QStringLiteral("T"));
        const int courier = document.charsPerLine();
        // Courier New 12 on a 6.5 inch line holds 65 characters.
        QVERIFY2(courier >= 64 && courier <= 66, qPrintable(QString::number(courier)));
        document.setFont(QStringLiteral("Courier New"), 24);
        QVERIFY(document.charsPerLine() <= courier / 2 + 1);
    }

    void longTextsFlowOverPagesWithContinuedTitles()
    {
        PrintDocument document(
            QStringLiteral("Solution-Case Number 2012343 (Advanced Level)"),
            QStringLiteral("Solution-Case Number 2012343 (Advanced Level)-Continued"));
        QString longText;
        for (int i = 1; i <= 400; ++i)
            longText += QStringLiteral("word%1 ").arg(i);
        document.addText(longText);
        document.addBlankLine();
        bool drawn = false;
        document.addDrawing(300, [&drawn](QPainter &, const QRect &) { drawn = true; });
        const auto pages = document.layOut();
        QVERIFY(pages.size() >= 2);
        QString flowed;
        for (qsizetype p = 0; p < pages.size(); ++p) {
            const auto &page = pages[p];
            QCOMPARE(page[0].text, PrintDocument::creditLine());
            QCOMPARE(page[1].text, QString());
            QCOMPARE(page[2].text, p == 0 ? document.title() : document.continuedTitle());
            QCOMPARE(page[0].y, PrintDocument::Top);
            for (const auto &item : page) {
                QVERIFY(item.y >= PrintDocument::Top);
                QVERIFY(item.y + item.height <= PrintDocument::Bottom);
                QVERIFY(item.text.size() <= document.charsPerLine());
            }
            for (qsizetype i = 4; i < page.size(); ++i)
                if (!page[i].text.isEmpty())
                    flowed += page[i].text + u' ';
        }
        // Every word arrives once, in order, none cut.
        QCOMPARE(flowed.split(u' ', Qt::SkipEmptyParts).join(u' '), longText.trimmed());
        const auto &last = pages.last().last();
        QVERIFY(last.drawing);
        QCOMPARE(last.height, 300);
        Q_UNUSED(drawn);
    }

    void pdfHoldsWhatWasPrinted()
    {
        QTemporaryDir dir;
        PrintDocument document(QStringLiteral("Clues-Case Number 1000001 (Beginner Level)"));
        document.addText(QStringLiteral("Clue 1:  Liam Chen has curly red hair."));
        for (int i = 0; i < 90; ++i)
            document.addLine(QStringLiteral("line %1").arg(i));
        document.addDrawing(100, [](QPainter &painter, const QRect &area) {
            painter.drawRect(area);
            painter.drawText(area, Qt::AlignCenter, QStringLiteral("Suspect"));
        });
        const QString path = dir.filePath(QStringLiteral("out.pdf"));
        QVERIFY(WritePdf(document, path));
        const QString text = pdfText(path);
        QVERIFY2(text.contains(QStringLiteral("Clues-Case Number 1000001 (Beginner Level)")),
                 qPrintable(text.left(400)));
        QVERIFY(text.contains(PrintDocument::creditLine()));
        QVERIFY(text.contains(QStringLiteral("Clue 1: Liam Chen has curly red hair.")));
        QVERIFY(text.contains(QStringLiteral("line 89")));
        QVERIFY(text.contains(QStringLiteral("Suspect")));
        QCOMPARE(text.count(u'\f'), document.layOut().size());

        QVERIFY(!WritePdf(document, dir.filePath(QStringLiteral("no/such/folder/out.pdf"))));
    }

    void printingGoesThroughTheDialogs()
    {
        TestEnvironment env;
        QTemporaryDir dir;
        env.dialogs.pdfFolder = dir.path();
        PrintDocument document(QStringLiteral("Description-Case Number 2000015 (Expert Level)"));
        document.addText(QStringLiteral("Six girls were in the library together."));
        QVERIFY(PrintWithPreview(nullptr, document));
        QCOMPARE(env.dialogs.printed, QStringList{document.title()});
        QCOMPARE(env.dialogs.pdfFiles.size(), 1);
        QVERIFY(pdfText(env.dialogs.pdfFiles[0]).contains(QStringLiteral("library together")));
    }
};

QTEST_MAIN(PrintingTest)
#include "tst_printing.moc"
