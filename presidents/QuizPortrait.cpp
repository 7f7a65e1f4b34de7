// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuizPortrait.h"

#include <QFont>
#include <QPainter>

namespace {
// The drawn cards' size and colours (tools/assets/lib/portraits.mjs).
constexpr QSize CardSize(240, 300);
const QColor Paper(0xf6, 0xf1, 0xe4);
const QColor Cameo(0xdd, 0xe5, 0xee);
const QColor Ink(0x1f, 0x2f, 0x4f);

bool near(QColor a, QColor b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 24;
}

// A card of ours: its size, plain paper beside the cameo and the cameo's pale middle edge.
bool isDrawnCard(const QImage &image)
{
    return image.size() == CardSize && near(image.pixelColor(24, 70), Paper) &&
           near(image.pixelColor(215, 190), Paper) && near(image.pixelColor(120, 70), Cameo);
}
} // namespace

QImage QuizPortrait(const QImage &portrait)
{
    if (!isDrawnCard(portrait))
        return portrait;
    QImage card = portrait.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Cameo);
    painter.drawEllipse(QPointF(120, 128), 56, 68);
    painter.setBrush(Paper);
    painter.drawRect(QRect(16, 212, 208, 34));
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPixelSize(72);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Ink);
    painter.drawText(QRect(64, 60, 112, 136), Qt::AlignCenter, QStringLiteral("?"));
    painter.setPen(QPen(Ink, 2, Qt::DashLine));
    painter.drawLine(QPointF(60, 238), QPointF(180, 238));
    return card;
}
