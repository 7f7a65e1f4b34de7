// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Graphs & Charts: the empty builder, each kind of graph from the lesson files, the
// format steps, a lesson step and the printed page.
#include "Scene.h"

#include "graphs/frmGraphs.h"
#include "graphs/GraphPaper.h"

#include "shell/core/DataPath.h"

#include <QCheckBox>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

frmGraphs *WithLessonFile(const QString &file, int step)
{
    auto *window = new frmGraphs;
    if (const auto graph = GraphFile::read(DataFile(file)))
        window->showGraph(*graph);
    window->goToStep(step);
    return window;
}

// The printed page as a picture: the document's pages painted on an image of a letter page.
QWidget *PrintedPage(const QString &file)
{
    const auto graph = GraphFile::read(DataFile(file));
    const PrintDocument paper =
        GraphPaper::document(graph.value_or(Graph()), file.section(u'.', 0, 0));
    const QSize page = paper.pageSize();
    QImage image(page * 1.6, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setWindow(QRect(QPoint(0, 0), page));
    painter.setViewport(image.rect());
    const QFontMetricsF metrics(paper.fineFont());
    for (const auto &item : paper.layOut().value(0)) {
        painter.save();
        if (item.drawing) {
            painter.setFont(paper.font());
            item.drawing(painter,
                         QRect(PrintDocument::Left, item.y, paper.textWidth(), item.height));
        } else if (!item.text.isEmpty()) {
            painter.scale(1.0 / PrintDocument::Fine, 1.0 / PrintDocument::Fine);
            painter.setFont(paper.fineFont());
            painter.drawText(QPointF(PrintDocument::Left * PrintDocument::Fine,
                                     item.y * PrintDocument::Fine + metrics.ascent()),
                             item.text);
        }
        painter.restore();
    }
    painter.end();
    auto *label = new QLabel;
    label->setPixmap(QPixmap::fromImage(image));
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("background: #9E9E9E;"));
    return label;
}

} // namespace

QList<Scene> graphsScenes()
{
    return {
        {QStringLiteral("graphs-start"), [] { return new frmGraphs; }},
        {QStringLiteral("graphs-line"),
         [] { return WithLessonFile(QStringLiteral("line.tsx"), 3); }},
        {QStringLiteral("graphs-bar"),
         [] { return WithLessonFile(QStringLiteral("bar1.tsx"), 3); }},
        {QStringLiteral("graphs-bar-scale"),
         [] { return WithLessonFile(QStringLiteral("bar2.tsx"), 2); }},
        {QStringLiteral("graphs-pie"),
         [] { return WithLessonFile(QStringLiteral("pie1.tsx"), 3); }},
        {QStringLiteral("graphs-kind"),
         [] { return WithLessonFile(QStringLiteral("pie2.tsx"), 0); }},
        {QStringLiteral("graphs-titles"),
         [] { return WithLessonFile(QStringLiteral("line.tsx"), 1); }},
        {QStringLiteral("graphs-lesson"),
         [] {
             auto *window = new frmGraphs;
             window->cmdLearn->click();
             for (int i = 0; i < 3; ++i)
                 window->cmdChange->click();
             return window;
         }},
        {QStringLiteral("graphs-lesson-pie"),
         [] {
             auto *window = new frmGraphs;
             window->cmdLearn->click();
             while (window->lessonStep() < 14)
                 window->cmdChange->click();
             return window;
         }},
        {QStringLiteral("graphs-printed"), [] { return PrintedPage(QStringLiteral("bar2.tsx")); },
         QSize(1760, 1360)},
        {QStringLiteral("graphs-printed-pie"),
         [] { return PrintedPage(QStringLiteral("pie2.tsx")); }, QSize(1760, 1360)},
    };
}
