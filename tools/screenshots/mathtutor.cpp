// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Higher Math: review with its dot picture, practice part-way through a round and at
// its end with the mastery grid, the worksheet part, and a printed worksheet with its key.
#include "Scene.h"

#include "mathtutor/frmHMath.h"
#include "mathtutor/Mastery.h"
#include "mathtutor/WorksheetPaper.h"
#include "support/TestDoubles.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace {

// A pupil who has worked on the 2s to the 5s for a while.
void FillMastery()
{
    MasteryGrid &grid = TheMastery();
    grid.clear();
    for (qint16 family = 2; family <= 5; ++family)
        for (qint16 other = 0; other <= 12; ++other)
            grid.record(MathFact{Operation::Multiply, family, other}, (family + other) % 5 != 0,
                        (family * other) % 3 != 1);
}

frmHMath *Practising(bool finish)
{
    FillMastery();
    Randomize(7);
    auto *window = new frmHMath;
    window->spnLow->setValue(2);
    window->spnHigh->setValue(6);
    window->cmdPractice->click();
    window->cmdStart->click();
    const int turns = finish ? 40 : 6;
    for (int i = 0; i < turns && window->round().isRunning(); ++i) {
        const MathFact fact = window->round().current();
        window->txtAnswer->setText(QString::number(fact.answer() + (i % 4 == 1 ? 1 : 0)));
        emit window->txtAnswer->returnPressed();
    }
    if (!finish)
        window->txtAnswer->setText(QStringLiteral("4"));
    return window;
}

// A picture that keeps its shape as it fills the scene.
class PagesView : public QWidget {
public:
    explicit PagesView(QImage image) : m_image(std::move(image)) {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0x9E, 0x9E, 0x9E));
        const QSize size = m_image.size().scaled(this->size(), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(
            QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size),
            m_image);
    }

private:
    QImage m_image;
};

// The two printed pages side by side, as they come out of the printer.
QWidget *Printed(const QString &number)
{
    const Worksheet sheet = *Worksheet::parse(number);
    const QList<MathFact> problems = sheet.problems();
    const PrintDocument paper = WorksheetPaper::document(sheet, true);
    QImage image(3400, 2200, QImage::Format_RGB32);
    image.fill(QColor(0x9E, 0x9E, 0x9E));
    QPainter painter(&image);
    painter.scale(2, 2);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto pages = paper.layOut();
    for (int p = 0; p < 2; ++p) {
        painter.save();
        painter.translate(p * 850 + 10, 10);
        painter.scale(830.0 / 850, 1080.0 / 1100);
        painter.fillRect(QRect(0, 0, 850, 1100), Qt::white);
        for (const auto &item : pages[p]) {
            if (item.drawing) {
                item.drawing(painter, QRect(PrintDocument::Left, item.y, PrintDocument::TextWidth,
                                            item.height));
            } else if (!item.text.isEmpty()) {
                painter.save();
                painter.scale(0.1, 0.1);
                painter.setFont(paper.fineFont());
                painter.drawText(QPointF(PrintDocument::Left * 10, (item.y + 14) * 10), item.text);
                painter.restore();
            }
        }
        painter.restore();
    }
    painter.end();
    return new PagesView(image);
}

} // namespace

QList<Scene> mathtutorScenes()
{
    return {
        {QStringLiteral("mathtutor-review"),
         [] {
             auto *window = new frmHMath;
             window->optMultiply->setChecked(true);
             window->spnLow->setValue(1);
             window->spnHigh->setValue(9);
             window->spnFamily->setValue(3);
             for (int i = 0; i < 4; ++i)
                 window->cmdNext->click();
             return window;
         }},
        {QStringLiteral("mathtutor-review-answer"),
         [] {
             auto *window = new frmHMath;
             window->optDivide->setChecked(true);
             window->spnLow->setValue(1);
             window->spnHigh->setValue(12);
             window->spnFamily->setValue(7);
             for (int i = 0; i < 8; ++i)
                 window->cmdNext->click();
             window->cmdAnswer->click();
             return window;
         }},
        {QStringLiteral("mathtutor-practice"), [] { return Practising(false); }},
        {QStringLiteral("mathtutor-mastery"), [] { return Practising(true); }},
        {QStringLiteral("mathtutor-worksheets"),
         [] {
             auto *window = new frmHMath;
             window->cmdWorksheets->click();
             window->txtNumber->setText(QStringLiteral("112-0109-4127"));
             window->cmdMake->click();
             return window;
         }},
        {QStringLiteral("mathtutor-printed-stacked"),
         [] { return Printed(QStringLiteral("213-0212-0815")); }},
        {QStringLiteral("mathtutor-printed-row"),
         [] { return Printed(QStringLiteral("125-0112-2026")); }},
    };
}
