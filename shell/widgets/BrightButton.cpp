// SPDX-License-Identifier: GPL-3.0-or-later
#include "BrightButton.h"

#include "shell/WindowUtil.h"

#include <QPainter>
#include <QStyle>

namespace {
// The same room around the lettering as the style-sheet buttons: padding 6 by 14 pixels inside
// a 3-pixel border, and a thicker focus ring drawn over that border.
constexpr int Border = 3;
constexpr int FocusBorder = 5;
constexpr int PadX = 14;
constexpr int PadY = 6;
constexpr int PressedShift = 3;
} // namespace

BrightButton::BrightButton(const QColor &colour, QWidget *parent, int radius)
    : QPushButton(parent), m_colour(colour), m_radius(radius)
{
    setAttribute(Qt::WA_Hover);
}

void BrightButton::setColour(const QColor &colour)
{
    m_colour = colour;
    update();
}

QSize BrightButton::sizeHint() const
{
    const QSize lettering = fontMetrics().size(Qt::TextShowMnemonic, text().trimmed());
    return lettering + QSize(2 * (PadX + Border), 2 * (PadY + Border) + PressedShift);
}

QSize BrightButton::minimumSizeHint() const
{
    return sizeHint();
}

void BrightButton::paintEvent(QPaintEvent *)
{
    const BrightColours c = BrightColoursOf(m_colour);
    const bool enabled = isEnabled();
    const bool down = isDown() || isChecked();
    const bool focused = hasFocus();
    const int border = focused && enabled ? FocusBorder : Border;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The face is filled over a larger shape in the border's colour: two fills, which cost far
    // less than stroking a curved outline, and a window's first paint feels it.
    const QRectF outer = rect();
    const QRectF inner = outer.adjusted(border, border, -border, -border);
    const double radius = qMin<double>(m_radius, qMin(outer.width(), outer.height()) / 2);
    const double innerRadius = qMax(0.0, radius - border);
    painter.setPen(Qt::NoPen);
    painter.setBrush(!enabled ? c.disabledBorder : focused ? c.focus : c.border);
    painter.drawRoundedRect(outer, radius, radius);
    painter.setBrush(!enabled ? c.disabledFace : down ? c.border : underMouse() ? c.hover : c.face);
    painter.drawRoundedRect(inner, innerRadius, innerRadius);

    // Lettering centred in the padded inside, lowered a little while pressed.
    QRect room = rect().adjusted(Border + PadX, Border + PadY, -(Border + PadX), -(Border + PadY));
    if (down)
        room.translate(0, PressedShift);
    const int flags =
        Qt::AlignCenter | Qt::TextSingleLine |
        (style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) ? Qt::TextShowMnemonic
                                                                         : Qt::TextHideMnemonic);
    painter.setPen(enabled ? c.text : c.disabledText);
    painter.drawText(room, flags, text().trimmed());
}
