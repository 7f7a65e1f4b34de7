// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

class QSvgRenderer;

// Shows a picture file (SVG, PNG, BMP or GIF) as large as its area allows, keeping its shape,
// so pictures stay sharp at any window size.
class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(QWidget *parent = nullptr);
    // Loads a picture; false (and an empty box) when the file is missing or unreadable.
    bool load(const QString &file);
    // Shows a picture made in the program (a changed copy of a file's picture).
    void setImage(const QImage &image, const QString &file = {});
    void clear();
    QString file() const { return m_file; }
    bool isEmpty() const;
    QSize pictureSize() const;
    // Where the picture is drawn inside the box (for mapping clicks to picture units).
    QRectF pictureRect() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString m_file;
    QImage m_image;
    QSvgRenderer *m_svg = nullptr;
    QPixmap m_drawn; // the picture drawn at its current size, so repaints only copy it
};
