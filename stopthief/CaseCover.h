// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// The cover of the case file shown before the first case: a magnifying glass over a trail of
// footprints and the four steps of a case, drawn to fit any size.
class CaseCover : public QWidget {
    Q_OBJECT
public:
    explicit CaseCover(QWidget *parent = nullptr);
    static QStringList steps();

protected:
    void paintEvent(QPaintEvent *event) override;
};
