// SPDX-License-Identifier: GPL-3.0-or-later
#include "WordBox.h"

#include "shell/Services.h"
#include "WordList.h"

#include <QKeyEvent>
#include <QValidator>

namespace {

// Upper-cases what is typed or pasted and refuses anything a word cannot hold.
class WordValidator final : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString &input, int &) const override
    {
        if (input.size() > WordList::MaxLetters)
            return Invalid;
        for (QChar &c : input) {
            const QChar kept = WordList::boxKey(c);
            if (kept.isNull())
                return Invalid;
            c = kept;
        }
        return Acceptable;
    }
};

} // namespace

WordBox::WordBox(QWidget *parent) : QLineEdit(parent)
{
    setMaxLength(WordList::MaxLetters);
    setValidator(new WordValidator(this));
    setInputMethodHints(Qt::ImhUppercaseOnly | Qt::ImhNoPredictiveText);
}

void WordBox::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        event->accept();
        emit enterPressed();
        return;
    }
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        event->accept();
        emit stepPressed(key == Qt::Key_Up ? -1 : 1);
        return;
    }
    // Editing keys and shortcuts (copy, paste, undo) work as in any box; the validator
    // guards what they put in.
    const bool editing = key == Qt::Key_Backspace || key == Qt::Key_Delete || key == Qt::Key_Left ||
                         key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
    const bool shortcut = event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier);
    if (editing || shortcut) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // Function keys and Escape belong to the window (help, full screen, closing).
    if ((key >= Qt::Key_F1 && key <= Qt::Key_F35) || key == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    // Alt with a letter is a button's mnemonic, not a letter of the word.
    if (event->modifiers() & Qt::AltModifier) {
        event->ignore();
        return;
    }
    const QString text = event->text();
    if (text.size() == 1 && !WordList::boxKey(text[0]).isNull()) {
        if (text[0] != WordList::boxKey(text[0])) {
            // A small letter goes in as its capital.
            insert(QString(WordList::boxKey(text[0])));
            event->accept();
            return;
        }
        QLineEdit::keyPressEvent(event);
        return;
    }
    // Modifier keys alone (Shift before a capital) are no mistake.
    if (key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
        key == Qt::Key_Meta || key == Qt::Key_AltGr || key == Qt::Key_CapsLock) {
        event->ignore();
        return;
    }
    event->accept();
    Beep();
}
