// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmInput.h"

#include "Fonts.h"

#include "Services.h"
#include "shell/core/Settings.h"
#include "WindowUtil.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

QString &InputWord()
{
    static QString word;
    return word;
}

void WordEdit::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    // Keys that type nothing (arrows, Home, Delete, shortcuts) keep their usual meaning.
    if (event->key() == Qt::Key_Backspace || text.isEmpty() ||
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) ||
        event->key() == Qt::Key_Delete) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const QChar c = text.size() == 1 ? text.at(0) : QChar();
    if (c == u'-' || c == u'\'' || (c >= u'A' && c <= u'Z')) {
        QLineEdit::keyPressEvent(event);
    } else if (c >= u'a' && c <= u'z') {
        insert(QString(QChar(c.unicode() - 32)));
    } else {
        Beep();
    }
}

frmInput::frmInput(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmInput"));
    setWindowTitle(tr("Secret Word"));
    setFont(FriendlyFont());
    Label1 = Named(new QLabel(tr("Type a word for your partner to guess, then click OK."), this),
                   QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    Label1->setTextFormat(Qt::PlainText);
    ScaleFont(Label1, 1.4);
    txtWord = Named(new WordEdit(this), QStringLiteral("txtWord"));
    ScaleFont(txtWord, 2.0, true);
    txtWord->setAccessibleName(tr("Secret word"));
    txtWord->setMaxLength(30);
    // A pasted text goes through the same rule as typing.
    connect(txtWord, &QLineEdit::textChanged, this, [this](const QString &text) {
        QString clean;
        for (QChar c : text.toUpper())
            if (c == u'-' || c == u'\'' || (c >= u'A' && c <= u'Z'))
                clean += c;
        if (clean != text) {
            txtWord->setText(clean);
            return;
        }
        InputWord() = text;
    });
    cmdOK = Named(new QPushButton(tr("OK"), this), QStringLiteral("cmdOK"));
    cmdCancel = Named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));
    for (QPushButton *button : {cmdOK, cmdCancel}) {
        ScaleFont(button, 1.3, true);
        button->setMinimumSize(120, 44);
        button->setAutoDefault(false);
    }
    connect(cmdOK, &QPushButton::clicked, this, &frmInput::finish);
    connect(cmdCancel, &QPushButton::clicked, this, [this] {
        InputWord().clear();
        finish();
    });

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(16);
    layout->addWidget(Label1);
    layout->addWidget(txtWord);
    layout->addLayout(buttons);
    resize(520, 220);
    txtWord->clear();
    InputWord().clear();
}

void frmInput::finish()
{
    if (m_finished)
        return;
    m_finished = true;
    if (InputWord().isEmpty())
        TheSettings().balloon.values[0] = 1;
    accept();
}

void frmInput::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    CentreOnScreen(this);
    txtWord->setFocus();
}

void frmInput::closeEvent(QCloseEvent *event)
{
    finish();
    event->accept();
}

void frmInput::reject()
{
    // Escape works like Cancel.
    InputWord().clear();
    finish();
}
