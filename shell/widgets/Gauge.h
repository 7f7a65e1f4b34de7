// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// A sunken 3-D panel filled to a percentage, with a caption: a fuel or time gauge. The fill
// runs green when full through yellow to red as the level falls.
class Gauge : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int percent READ percent WRITE setPercent NOTIFY percentChanged)
public:
    explicit Gauge(QWidget *parent = nullptr);

    int percent() const { return m_percent; }
    // Values outside 0 to 100 are held at the nearer end.
    void setPercent(int percent);
    QString caption() const { return m_caption; }
    void setCaption(const QString &caption);
    Qt::Orientation orientation() const { return m_orientation; }
    // Vertical gauges fill from the bottom, horizontal ones from the left.
    void setOrientation(Qt::Orientation orientation);

    // The colour of the fill at a level: green at 100, yellow at 50, red at 0.
    static QColor levelColour(int percent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void percentChanged(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect panelRect() const;
    void updateAccessibleText();

    int m_percent = 0;
    QString m_caption;
    Qt::Orientation m_orientation = Qt::Vertical;
};
