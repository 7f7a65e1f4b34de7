// SPDX-License-Identifier: GPL-3.0-or-later
#include "Gauge.h"

#include "shell/Accessibility.h"

#include <QAccessible>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {
const QColor Full(0x2E, 0xB8, 0x3A);
const QColor Half(0xFF, 0xD6, 0x00);
const QColor Empty(0xE5, 0x39, 0x35);

QColor Blend(const QColor &from, const QColor &to, double t)
{
    return QColor::fromRgbF(float(from.redF() + (to.redF() - from.redF()) * t),
                            float(from.greenF() + (to.greenF() - from.greenF()) * t),
                            float(from.blueF() + (to.blueF() - from.blueF()) * t));
}
} // namespace

Gauge::Gauge(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    updateAccessibleText();
}

void Gauge::setPercent(int percent)
{
    percent = qBound(0, percent, 100);
    if (percent == m_percent)
        return;
    m_percent = percent;
    updateAccessibleText();
    update();
    emit percentChanged(percent);
}

void Gauge::setCaption(const QString &caption)
{
    m_caption = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

void Gauge::setOrientation(Qt::Orientation orientation)
{
    m_orientation = orientation;
    setSizePolicy(orientation == Qt::Vertical
                      ? QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding)
                      : QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred));
    updateGeometry();
    update();
}

QColor Gauge::levelColour(int percent)
{
    const int level = qBound(0, percent, 100);
    return level >= 50 ? Blend(Half, Full, (level - 50) / 50.0) : Blend(Empty, Half, level / 50.0);
}

void Gauge::updateAccessibleText()
{
    InstallAccessibility();
    setAccessibleDescription(tr("%1 percent").arg(m_percent));
    QAccessibleValueChangeEvent changed(this, m_percent);
    QAccessible::updateAccessibility(&changed);
}

QSize Gauge::sizeHint() const
{
    const QFontMetrics fm = fontMetrics();
    const int captionWidth = fm.horizontalAdvance(m_caption) + 16;
    if (m_orientation == Qt::Vertical)
        return {qMax(70, captionWidth), 220};
    return {260, fm.height() * 2 + 24};
}

QSize Gauge::minimumSizeHint() const
{
    const QFontMetrics fm = fontMetrics();
    if (m_orientation == Qt::Vertical)
        return {qMax(40, fm.horizontalAdvance(m_caption) + 8), fm.height() * 2 + 60};
    return {120, fm.height() * 2 + 12};
}

QRect Gauge::panelRect() const
{
    const int captionHeight = m_caption.isEmpty() ? 0 : fontMetrics().height() + 6;
    QRect r = rect().adjusted(2, 2 + captionHeight, -2, -2);
    if (m_orientation == Qt::Vertical) {
        // A tall narrow tube reads as a gauge better than a block as wide as the column.
        const int width = qMin(r.width(), qMax(36, r.height() / 4));
        r.setLeft(r.center().x() - width / 2);
        r.setWidth(width);
    }
    return r;
}

void Gauge::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);

    if (!m_caption.isEmpty()) {
        QFont bold = font();
        bold.setBold(true);
        p.setFont(bold);
        p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                 QPalette::WindowText));
        p.drawText(QRect(0, 0, width(), fontMetrics().height() + 6), Qt::AlignCenter, m_caption);
    }

    const QRect panel = panelRect();
    if (panel.width() < 6 || panel.height() < 6)
        return;

    // A sunken bevel: dark on the top and left, light on the bottom and right.
    const QRectF outer = QRectF(panel).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x42, 0x42, 0x42));
    p.drawRoundedRect(outer, 6, 6);
    const QRectF well = outer.adjusted(3, 3, -3, -3);
    p.setBrush(QColor(0xF5, 0xF5, 0xF5));
    p.drawRoundedRect(well.adjusted(1, 1, 1, 1), 4, 4);
    p.setBrush(QColor(0x30, 0x30, 0x30));
    p.drawRoundedRect(well, 4, 4);

    QRectF fill = well.adjusted(2, 2, -2, -2);
    if (m_orientation == Qt::Vertical)
        fill.setTop(fill.bottom() - fill.height() * m_percent / 100.0);
    else
        fill.setWidth(fill.width() * m_percent / 100.0);
    if (m_percent > 0 && fill.width() > 0 && fill.height() > 0) {
        const QColor colour = levelColour(m_percent);
        QLinearGradient shine(fill.topLeft(),
                              m_orientation == Qt::Vertical ? fill.topRight() : fill.bottomLeft());
        shine.setColorAt(0, colour.lighter(135));
        shine.setColorAt(0.45, colour);
        shine.setColorAt(1, colour.darker(125));
        p.setBrush(shine);
        p.drawRoundedRect(fill, 3, 3);
    }

    // Tick marks every tenth, so a pupil can count the drains left.
    p.setPen(QPen(QColor(255, 255, 255, 110), 1));
    for (int i = 1; i < 10; ++i) {
        if (m_orientation == Qt::Vertical) {
            const double y = well.bottom() - 2 - (well.height() - 4) * i / 10.0;
            p.drawLine(QPointF(well.left() + 3, y), QPointF(well.left() + well.width() / 3, y));
        } else {
            const double x = well.left() + 2 + (well.width() - 4) * i / 10.0;
            p.drawLine(QPointF(x, well.top() + 3), QPointF(x, well.top() + well.height() / 3));
        }
    }
}
