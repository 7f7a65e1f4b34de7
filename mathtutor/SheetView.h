// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Worksheet.h"

#include <QWidget>

// A worksheet on screen as it will print: the page, or its answer key, scaled to the area.
class SheetView : public QWidget {
    Q_OBJECT
public:
    explicit SheetView(QWidget *parent = nullptr);
    void setSheet(const Worksheet &sheet);
    void setShowKey(bool key);
    bool showsKey() const { return m_key; }
    const QList<MathFact> &problems() const { return m_problems; }
    QSize sizeHint() const override { return {340, 440}; }
    QSize minimumSizeHint() const override { return {120, 155}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Worksheet m_sheet;
    QList<MathFact> m_problems;
    bool m_key = false;
};
