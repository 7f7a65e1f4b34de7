// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmResults.h"

#include "Fonts.h"

#include "shell/core/DataPath.h"
#include "Services.h"
#include "widgets/PictureBox.h"
#include "WindowUtil.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmResults::frmResults(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmResults"));
    setFont(FriendlyFont());
    setAutoFillBackground(true);
    setStyleSheet(QStringLiteral("frmResults { background: #FFFDE7; }"));
    auto *trophy = Named(new PictureBox(this), QStringLiteral("imgTrophy"));
    trophy->load(DataFile(QStringLiteral("trophy.svg")));
    trophy->setFixedSize(110, 110);

    auto *headings = new QVBoxLayout;
    for (int i = 0; i < 2; ++i) {
        auto *label = Named(new QLabel(this), ArrayName("Label1", i));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        ScaleFont(label, i == 0 ? 1.8 : 1.35, true);
        label->setStyleSheet(i == 0 ? QStringLiteral("color: #C62828;")
                                    : QStringLiteral("color: #1A237E;"));
        headings->addWidget(label);
        Label1.append(label);
    }
    auto *top = new QHBoxLayout;
    top->addWidget(trophy);
    top->addLayout(headings, 1);

    m_rows = new QVBoxLayout;
    m_rows->setSpacing(6);
    cmdOK = Named(new QPushButton(tr("OK"), this), QStringLiteral("cmdOK"));
    ScaleFont(cmdOK, 1.4, true);
    cmdOK->setMinimumSize(140, 48);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(14);
    layout->addLayout(top);
    layout->addLayout(m_rows);
    layout->addStretch();
    layout->addWidget(cmdOK, 0, Qt::AlignCenter);
    setRows(4);
    resize(520, 420);
}

void frmResults::setRows(qint16 rows)
{
    for (int i = int(lblWin.size()); i < rows; ++i) {
        auto *label = Named(new QLabel(this), ArrayName("lblWin", i));
        label->setTextFormat(Qt::PlainText); // players' names, as typed
        ScaleFont(label, 1.7, true);
        label->setStyleSheet(QStringLiteral("color: #2E7D32;"));
        label->setAlignment(Qt::AlignCenter);
        m_rows->addWidget(label);
        lblWin.append(label);
    }
}

void frmResults::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    CentreOnScreen(this);
    cmdOK->setFocus();
}

void ShowResults(const QString &title, const QString &line1, const QString &line2, qint16 count,
                 const QList<qint16> &flags, const QStringList &names, qint16 rows)
{
    frmResults results;
    results.setRows(qMax<qint16>(rows, count));
    results.setWindowTitle(title);
    results.Label1[0]->setText(line1);
    results.Label1[1]->setText(line2);
    int k = 0;
    for (int i = 0; i < count; ++i)
        if (flags.value(i) != 0)
            results.lblWin[k++]->setText(names.value(i));
    RunModal(results);
}
