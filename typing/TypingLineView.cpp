// SPDX-License-Identifier: GPL-3.0-or-later
#include "TypingLineView.h"

#include "Exercise.h"

#include <QKeyEvent>
#include <QPainter>

namespace {
// Keys that belong to the window even while typing: help, and the way out.
bool belongsToWindow(const QKeyEvent *event)
{
    return event->key() == Qt::Key_F1 || event->key() == Qt::Key_Escape ||
           event->key() == Qt::Key_F11 ||
           (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}
} // namespace

TypingLineView::TypingLineView(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void TypingLineView::showExercise(const Exercise *exercise)
{
    m_exercise = exercise;
    update();
}

void TypingLineView::setPrompt(const QString &prompt)
{
    m_prompt = prompt;
    update();
}

bool TypingLineView::event(QEvent *event)
{
    // Plain keys must not be taken as shortcuts while the pupil types.
    if (m_capturing && event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (!belongsToWindow(key)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool TypingLineView::focusNextPrevChild(bool next)
{
    // Tab is a key to type while capturing, not a move to the next control.
    return m_capturing ? false : QWidget::focusNextPrevChild(next);
}

void TypingLineView::keyPressEvent(QKeyEvent *event)
{
    if (!m_capturing || belongsToWindow(event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    QString text = event->text();
    if (event->key() == Qt::Key_Tab)
        text = QStringLiteral("\t");
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        text = QStringLiteral("\n");
    // Keys without a character (Shift alone, arrows, Backspace) neither help nor count.
    if (text.size() != 1 || event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete)
        return;
    emit typed(text.at(0));
}

void TypingLineView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(2, 2, -2, -2);
    painter.setPen(
        QPen(hasFocus() && m_capturing ? QColor(0xFF, 0xD6, 0x00) : QColor(0x90, 0xA4, 0xAE),
             hasFocus() && m_capturing ? 4 : 2));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(area, 12, 12);
    if (!m_exercise || m_exercise->lines().isEmpty()) {
        QFont big = font();
        big.setBold(true);
        big.setPixelSize(std::max(10, int(area.height() * 0.42)));
        painter.setFont(big);
        painter.setPen(QColor(0x4A, 0x14, 0x8C));
        painter.drawText(area, Qt::AlignCenter, m_prompt);
        return;
    }

    const QString line =
        m_exercise->isFinished() ? m_exercise->lines().last() : m_exercise->currentLine();
    const int position = m_exercise->isFinished() ? int(line.size()) : m_exercise->position();
    // One fixed-width cell per character, as large as the width and the two rows allow.
    const int columns = std::max<int>(int(line.size()), 20) + 2;
    const double cell = std::min((area.width() - 16) / columns, area.height() / 3.2 / 1.1);
    QFont mono(QStringLiteral("Liberation Mono"));
    mono.setStyleHint(QFont::Monospace);
    mono.setBold(true);
    mono.setPixelSize(std::max(8, int(cell * 1.55)));
    painter.setFont(mono);
    const double charWidth = std::max(QFontMetricsF(mono).horizontalAdvance(QLatin1Char('M')), 1.0);
    const double rowHeight = cell * 2.0;
    const double x0 = area.left() + (area.width() - charWidth * line.size()) / 2.0;
    const double targetY = area.top() + area.height() * 0.12;
    const double typedY = targetY + rowHeight * 1.15;

    for (int i = 0; i < line.size(); ++i) {
        const QRectF box(x0 + i * charWidth, targetY, charWidth, rowHeight);
        const bool missed = m_exercise->missedInLine().contains(i);
        if (i == position && !m_exercise->isFinished()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0xFF, 0xEE, 0x58));
            painter.drawRoundedRect(box.adjusted(0, 2, 0, -2), 4, 4);
        }
        painter.setPen(i < position ? QColor(0x2E, 0x7D, 0x32) : QColor(0x1A, 0x23, 0x7E));
        // A space to type is shown as a small dot, so the pupil sees it is there.
        const QString shown = line[i] == u' ' ? QStringLiteral("\u00B7") : QString(line[i]);
        painter.drawText(box, Qt::AlignCenter, shown);
        if (missed) {
            painter.setPen(QPen(QColor(0xD5, 0x00, 0x00), std::max(2.0, cell / 8)));
            painter.drawLine(QPointF(box.left() + 2, box.bottom() - 1),
                             QPointF(box.right() - 2, box.bottom() - 1));
        }
    }
    painter.setPen(QColor(0x2E, 0x7D, 0x32));
    for (int i = 0; i < position && i < line.size(); ++i)
        painter.drawText(QRectF(x0 + i * charWidth, typedY, charWidth, rowHeight), Qt::AlignCenter,
                         QString(line[i]));
    const QChar wrong = m_exercise->pendingWrong();
    if (!wrong.isNull() && !m_exercise->isFinished()) {
        const QRectF box(x0 + position * charWidth, typedY, charWidth, rowHeight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xFF, 0xCD, 0xD2));
        painter.drawRoundedRect(box, 4, 4);
        painter.setPen(QColor(0xD5, 0x00, 0x00));
        const QString shown =
            wrong.isPrint() && wrong != u' ' ? QString(wrong) : QStringLiteral("\u00D7");
        painter.drawText(box, Qt::AlignCenter, shown);
    }
    painter.setPen(QPen(QColor(0xB0, 0xBE, 0xC5), 1, Qt::DashLine));
    painter.drawLine(QPointF(x0, typedY + rowHeight),
                     QPointF(x0 + charWidth * line.size(), typedY + rowHeight));
}
