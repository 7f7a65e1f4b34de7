// SPDX-License-Identifier: GPL-3.0-or-later
#include "FlagButton.h"

#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>

FlagButton::FlagButton(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

bool FlagButton::load(const QString &file)
{
    m_image = QImageReader(file).read();
    m_file = m_image.isNull() ? QString() : file;
    update();
    return !m_image.isNull();
}

void FlagButton::setMark(Mark mark)
{
    m_mark = mark;
    update();
}

void FlagButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF area = QRectF(rect()).adjusted(6, 6, -6, -6);
    QColor ring(0xB0, 0xBE, 0xC5);
    if (m_mark == Right)
        ring = QColor(0x2E, 0x7D, 0x32);
    else if (m_mark == Wrong)
        ring = QColor(0xC6, 0x28, 0x28);
    if (hasFocus())
        ring = m_mark == None ? QColor(0xFF, 0xC1, 0x07) : ring.lighter(120);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? QColor(0xE3, 0xF2, 0xFD) : QColor(Qt::white));
    painter.drawRoundedRect(area, 10, 10);
    if (!m_image.isNull()) {
        const QSizeF fitted =
            QSizeF(m_image.size()).scaled(area.size() - QSizeF(20, 20), Qt::KeepAspectRatio);
        const QRectF target(area.center() - QPointF(fitted.width() / 2, fitted.height() / 2),
                            fitted);
        painter.drawImage(target, m_image);
        painter.setPen(QPen(QColor(0x90, 0xA4, 0xAE), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(target);
    }
    const bool marked = m_mark != None || hasFocus();
    painter.setPen(QPen(ring, marked ? 6 : 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area, 10, 10);
}

void FlagButton::keyPressEvent(QKeyEvent *event)
{
    // Enter picks the flag at once, as the space bar does.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}
