// SPDX-License-Identifier: GPL-3.0-or-later
#include "AnswerBox.h"

#include <QKeyEvent>
#include <QValidator>

namespace {

// Accepts nothing but digits whose value fits a 16-bit whole number.
class AnswerValidator final : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString &input, int &) const override
    {
        if (input.size() > AnswerBox::MaxDigits)
            return Invalid;
        for (const QChar c : std::as_const(input))
            if (c < u'0' || c > u'9')
                return Invalid;
        return input.isEmpty() || input.toInt() <= 32767 ? Acceptable : Invalid;
    }
};

} // namespace

AnswerBox::AnswerBox(QWidget *parent) : QLineEdit(parent)
{
    setValidator(new AnswerValidator(this));
    setContextMenuPolicy(Qt::NoContextMenu);
    setDragEnabled(false);
    setAcceptDrops(false);
    setInputMethodHints(Qt::ImhDigitsOnly);
}

int AnswerBox::value() const
{
    bool ok = false;
    const int number = text().toInt(&ok);
    return ok ? number : 0;
}

void AnswerBox::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        event->accept();
        emit enterPressed();
        return;
    }
    const bool plain =
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (plain && (key == Qt::Key_Backspace || (key >= Qt::Key_0 && key <= Qt::Key_9))) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // Function keys belong to the window (help, full screen).
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35) {
        event->ignore();
        return;
    }
    // Every other key is swallowed here, so it neither reaches the text nor the window.
    event->accept();
}
