// SPDX-License-Identifier: GPL-3.0-or-later
#include "Certificate.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>

namespace {
QString tr(const char *text)
{
    return QCoreApplication::translate("Certificate", text);
}
} // namespace

namespace Certificate {

QString sentence(const QString &name, const TestResult &best)
{
    const QString who = name.trimmed().isEmpty() ? tr("This keyboarder") : name.simplified();
    return tr("%1 typed %2 words a minute with %3% accuracy in a %4-minute speed test.")
        .arg(who)
        .arg(qRound(best.wordsPerMinute))
        .arg(qRound(best.accuracy))
        .arg(best.minutes);
}

PrintDocument make(const QString &name, const TestResult &best, const QDate &date)
{
    PrintDocument document(tr("Keyboarding Certificate"));
    document.setFont(QStringLiteral("Comic Sans MS"), 14);
    const QString text = sentence(name, best);
    const QString who = name.simplified();
    const QString when = QLocale().toString(date, QLocale::LongFormat);
    const QFont fine = document.fineFont();
    document.addDrawing(780, [text, who, when, fine](QPainter &painter, const QRect &area) {
        painter.save();
        painter.setPen(QPen(QColor(0x15, 0x65, 0xC0), 8));
        painter.drawRoundedRect(area.adjusted(4, 4, -4, -4), 30, 30);
        painter.setPen(QPen(QColor(0xFB, 0xC0, 0x2D), 3));
        painter.drawRoundedRect(area.adjusted(20, 20, -20, -20), 20, 20);
        const int f = PrintDocument::Fine;
        painter.scale(1.0 / f, 1.0 / f);
        auto box = [&](int y, int h) {
            return QRect((area.left() + 50) * f, (area.top() + y) * f, (area.width() - 100) * f,
                         h * f);
        };
        QFont title = fine;
        title.setBold(true);
        title.setPixelSize(fine.pixelSize() * 2);
        painter.setFont(title);
        painter.setPen(QColor(0x0D, 0x47, 0xA1));
        painter.drawText(box(70, 80), Qt::AlignCenter, tr("Certificate of Keyboarding"));
        QFont big = fine;
        big.setPixelSize(fine.pixelSize() * 3 / 2);
        painter.setFont(big);
        painter.setPen(Qt::black);
        painter.drawText(box(190, 40), Qt::AlignCenter, tr("Well done,"));
        QFont nameFont = big;
        nameFont.setBold(true);
        nameFont.setPixelSize(fine.pixelSize() * 2);
        painter.setFont(nameFont);
        painter.setPen(QColor(0xC6, 0x28, 0x28));
        painter.drawText(box(240, 70), Qt::AlignCenter | Qt::TextWordWrap,
                         who.isEmpty() ? tr("Keyboarder") : who);
        painter.setFont(big);
        painter.setPen(Qt::black);
        painter.drawText(box(350, 180), Qt::AlignCenter | Qt::TextWordWrap, text);
        painter.setFont(fine);
        painter.drawText(box(560, 100), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Fingers on the home row, eyes on the screen: keep on typing!"));
        painter.drawText(box(700, 40), Qt::AlignCenter, when);
        painter.restore();
    });
    return document;
}

} // namespace Certificate
