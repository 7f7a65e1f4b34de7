// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmGraphFile.h"

#include "shell/WindowUtil.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmGraphFile::frmGraphFile(Mode mode, const QStringList &names, const QString &current,
                           QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmGraphFile"));
    setWindowTitle(mode == Open ? tr("Open Graph/Chart") : tr("Save Graph/Chart"));
    QFont type(QStringLiteral("Comic Sans MS"));
    type.setPointSize(14);
    setFont(type);

    lblPrompt = Named(new QLabel(mode == Open ? tr("&Choose the graph/chart to open:")
                                              : tr("&Type a name for your graph/chart:"),
                                 this),
                      QStringLiteral("lblPrompt"));
    lblPrompt->setTextFormat(Qt::PlainText);
    cboFiles = Named(new QComboBox(this), QStringLiteral("cboFiles"));
    cboFiles->setAccessibleName(mode == Open ? tr("Graph/chart to open")
                                             : tr("Name of the graph/chart"));
    cboFiles->setMinimumContentsLength(24);
    cboFiles->setEditable(mode == Save);
    cboFiles->addItems(names);
    if (mode == Save) {
        cboFiles->setInsertPolicy(QComboBox::NoInsert);
        cboFiles->lineEdit()->setMaxLength(40);
        // The box a pupil types in is what a screen reader lands on, so it carries the name.
        cboFiles->lineEdit()->setAccessibleName(cboFiles->accessibleName());
        cboFiles->setEditText(current);
        cboFiles->lineEdit()->selectAll();
    } else if (const int at = int(names.indexOf(current)); at >= 0) {
        cboFiles->setCurrentIndex(at);
    }
    lblPrompt->setBuddy(cboFiles);

    cmdOK = Named(new QPushButton(mode == Open ? tr("&Open") : tr("&Save"), this),
                  QStringLiteral("cmdOK"));
    cmdCancel = Named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));
    cmdOK->setDefault(true);
    cmdOK->setAccessibleName(cmdOK->text().remove(u'&'));
    cmdCancel->setAccessibleName(tr("Cancel"));
    StyleBrightButton(cmdOK, QColor(0x2E, 0x7D, 0x32));
    StyleBrightButton(cmdCancel, QColor(0x54, 0x6E, 0x7A));
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblPrompt);
    layout->addWidget(cboFiles);
    layout->addSpacing(10);
    layout->addLayout(buttons);
    cboFiles->setFocus();
}

QString frmGraphFile::chosenName() const
{
    return cboFiles->currentText();
}
