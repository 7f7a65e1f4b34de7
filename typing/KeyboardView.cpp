// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyboardView.h"

#include <QPainter>
#include <QPainterPath>

KeyboardView::KeyboardView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void KeyboardView::setNextKey(QChar c)
{
    if (c == m_next)
        return;
    m_next = c;
    update();
}

void KeyboardView::setLessonKeys(const QString &keys)
{
    m_lessonKeys = keys;
    update();
}

QColor KeyboardView::fingerColour(Finger finger)
{
    // Both hands use the same colour for the same finger, so a pupil learns one colour per finger.
    switch (finger) {
    case Finger::LeftPinky:
    case Finger::RightPinky:
        return {0xF4, 0x8F, 0xB1};
    case Finger::LeftRing:
    case Finger::RightRing:
        return {0xFF, 0xB7, 0x4D};
    case Finger::LeftMiddle:
    case Finger::RightMiddle:
        return {0xFF, 0xF1, 0x76};
    case Finger::LeftIndex:
    case Finger::RightIndex:
        return {0x81, 0xC7, 0x84};
    case Finger::Thumbs:
        return {0x90, 0xCA, 0xF9};
    }
    return Qt::white;
}

void KeyboardView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    // The keyboard takes the upper part and the hands the lower, both centred; the key size is
    // the largest that lets both fit.
    const double unit = std::min(width() / double(Keyboard::Width) * 4.0, height() / 8.2);
    const double boardWidth = unit * Keyboard::Width / 4.0;
    const double boardHeight = unit * Keyboard::RowCount;
    const double left = (width() - boardWidth) / 2.0;
    const double top = 2;

    const Key *next = Keyboard::keyFor(m_next);
    const Key *shift = Keyboard::shiftKeyFor(m_next);

    QFont font = this->font();
    font.setBold(true);
    font.setPixelSize(std::max(8, int(unit * 0.38)));
    painter.setFont(font);
    for (const Key &key : Keyboard::keys()) {
        const QRectF box(left + key.x * unit / 4.0 + 1.5, top + int(key.row) * unit + 1.5,
                         key.width * unit / 4.0 - 3, unit - 3);
        const bool lit = &key == next || &key == shift;
        QColor fill = fingerColour(key.finger);
        // Other keys pale a little while one is lit, so the lit one stands out.
        if (!m_next.isNull() && !lit)
            fill = fill.lighter(118);
        painter.setPen(QPen(lit ? QColor(0xD5, 0x00, 0x00) : QColor(0x45, 0x5A, 0x64),
                            lit ? std::max(3.0, unit / 10) : 1.2));
        painter.setBrush(lit ? fill.darker(115) : fill);
        painter.drawRoundedRect(box, unit / 8, unit / 8);
        if (!key.plain.isNull() && m_lessonKeys.contains(key.plain)) {
            painter.setPen(QPen(QColor(0x4A, 0x14, 0x8C), std::max(2.0, unit / 14), Qt::DashLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(box.adjusted(3, 3, -3, -3), unit / 10, unit / 10);
        }
        painter.setPen(QColor(0x21, 0x21, 0x21));
        QString label = key.label;
        if (key.plain == u' ')
            label = tr("Space");
        else if (!key.plain.isNull() && !key.plain.isLetter() && key.shifted != key.plain)
            label = QString(key.shifted) + u'\n' + key.plain;
        if (key.plain.isNull() || key.plain == u' ') {
            QFont small = font;
            small.setPixelSize(std::max(7, int(unit * 0.26)));
            painter.setFont(small);
            painter.drawText(box, Qt::AlignCenter, label);
            painter.setFont(font);
        } else if (label.contains(u'\n')) {
            QFont small = font;
            small.setPixelSize(std::max(7, int(unit * 0.3)));
            painter.setFont(small);
            painter.drawText(box, Qt::AlignCenter, label);
            painter.setFont(font);
        } else {
            painter.drawText(box, Qt::AlignCenter, label);
        }
        // Little bumps on F and J let fingers find the home row without looking.
        if (key.plain == u'f' || key.plain == u'j')
            painter.drawLine(QPointF(box.center().x() - unit / 8, box.bottom() - unit / 7),
                             QPointF(box.center().x() + unit / 8, box.bottom() - unit / 7));
    }

    // Hands under the keyboard. The fingers that type the next key (and Shift) are lit; with
    // no key to type, the fingers of the lesson's ringed keys are.
    QList<Finger> lit;
    if (next)
        lit.append(next->finger);
    if (shift)
        lit.append(shift->finger);
    if (!next)
        for (QChar c : m_lessonKeys)
            if (const Key *key = Keyboard::keyFor(c))
                lit.append(key->finger);
    const double handTop = top + boardHeight + unit * 0.15;
    const double handHeight = height() - handTop - 2;
    if (handHeight < unit)
        return;
    const double handWidth = std::min(boardWidth * 0.36, handHeight * 1.15);
    const QRectF leftHand(width() / 2.0 - handWidth - unit * 0.6, handTop, handWidth, handHeight);
    const QRectF rightHand(width() / 2.0 + unit * 0.6, handTop, handWidth, handHeight);
    drawHand(painter, leftHand, true, lit);
    drawHand(painter, rightHand, false, lit);
}

void KeyboardView::drawHand(QPainter &painter, const QRectF &area, bool left,
                            const QList<Finger> &lit)
{
    // Fingers from the little finger inwards, with their heights as a share of the hand.
    static const double lengths[] = {0.33, 0.43, 0.48, 0.42};
    static const Finger leftFingers[] = {Finger::LeftPinky, Finger::LeftRing, Finger::LeftMiddle,
                                         Finger::LeftIndex};
    static const Finger rightFingers[] = {Finger::RightPinky, Finger::RightRing,
                                          Finger::RightMiddle, Finger::RightIndex};
    const double w = area.width();
    const double h = area.height();
    const double fingerWidth = w * 0.17;
    const double palmTop = area.top() + h * 0.45;
    const QRectF palm(area.left() + w * 0.04, palmTop, w * 0.76, h * 0.55);
    const QColor skin(0xFF, 0xE0, 0xC2);
    const QColor outline(0x8D, 0x6E, 0x63);
    const bool thumbLit = lit.contains(Finger::Thumbs);

    auto mirror = [&](const QRectF &r) {
        if (left)
            return r;
        return QRectF(area.left() + area.right() - r.right(), r.top(), r.width(), r.height());
    };
    for (int i = 0; i < 4; ++i) {
        const Finger finger = left ? leftFingers[i] : rightFingers[i];
        const double fh = h * lengths[i];
        const QRectF rect = mirror(QRectF(area.left() + w * 0.05 + i * (fingerWidth + w * 0.02),
                                          palmTop + h * 0.1 - fh, fingerWidth, fh + h * 0.1));
        const bool on = lit.contains(finger);
        painter.setPen(QPen(on ? QColor(0xD5, 0x00, 0x00) : outline, on ? 3 : 1.2));
        painter.setBrush(skin);
        painter.drawRoundedRect(rect, fingerWidth / 2, fingerWidth / 2);
        // The fingertip carries the finger's colour, the same as its keys.
        const QRectF tip(rect.left() + 2, rect.top() + 2, rect.width() - 4, fingerWidth * 0.9);
        painter.setPen(Qt::NoPen);
        painter.setBrush(on ? fingerColour(finger).darker(120) : fingerColour(finger));
        painter.drawEllipse(tip);
        if (on) {
            painter.setPen(QPen(QColor(0xD5, 0x00, 0x00), 3));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(tip.adjusted(-4, -4, 4, 4));
        }
    }
    painter.setPen(QPen(outline, 1.2));
    painter.setBrush(skin);
    painter.drawRoundedRect(mirror(palm), w * 0.12, w * 0.12);
    // The thumb reaches in towards the space bar.
    QRectF thumb(area.left() + w * 0.66, palmTop + h * 0.12, w * 0.3, fingerWidth);
    thumb = mirror(thumb);
    painter.setPen(QPen(thumbLit ? QColor(0xD5, 0x00, 0x00) : outline, thumbLit ? 3 : 1.2));
    painter.setBrush(thumbLit ? fingerColour(Finger::Thumbs).darker(115)
                              : fingerColour(Finger::Thumbs));
    painter.drawRoundedRect(thumb, fingerWidth / 2, fingerWidth / 2);
}
