// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;

// Picks a graph file by name: from the list to open one, or typed (or picked) to save one.
class frmGraphFile : public QDialog {
    Q_OBJECT
public:
    enum Mode { Open, Save };
    frmGraphFile(Mode mode, const QStringList &names, const QString &current,
                 QWidget *parent = nullptr);
    QString chosenName() const;

    QLabel *lblPrompt;
    QComboBox *cboFiles;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
};
