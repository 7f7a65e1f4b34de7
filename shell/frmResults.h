// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>

class QLabel;
class QPushButton;

// The common results window: a title, two heading lines and the names of the finishers.
class frmResults : public QDialog {
    Q_OBJECT
public:
    explicit frmResults(QWidget *parent = nullptr);
    // The number of finisher rows the window holds (4 for every race).
    void setRows(qint16 rows);

    QList<QLabel *> Label1;
    QList<QLabel *> lblWin;
    QPushButton *cmdOK;

protected:
    void showEvent(QShowEvent *event) override;

private:
    class QVBoxLayout *m_rows;
};

// Shows the results of a race modally: flags[i] non-zero marks names[i] as a finisher.
// Returns when the window is closed.
void ShowResults(const QString &title, const QString &line1, const QString &line2, qint16 count,
                 const QList<qint16> &flags, const QStringList &names, qint16 rows);
