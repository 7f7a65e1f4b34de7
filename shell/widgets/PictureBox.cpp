// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureBox.h"

#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

PictureBox::PictureBox(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

bool PictureBox::load(const QString &file)
{
    clear();
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        m_svg = new QSvgRenderer(file, this);
        if (!m_svg->isValid()) {
            clear();
            return false;
        }
    } else {
        QImageReader reader(file);
        m_image = reader.read();
        if (m_image.isNull())
            return false;
    }
    m_file = file;
    m_drawn = QPixmap();
    updateGeometry();
    update();
    return true;
}

void PictureBox::setImage(const QImage &image, const QString &file)
{
    clear();
    m_image = image;
    m_file = file;
    updateGeometry();
    update();
}

void PictureBox::clear()
{
    delete m_svg;
    m_svg = nullptr;
    m_image = QImage();
    m_drawn = QPixmap();
    m_file.clear();
    update();
}

bool PictureBox::isEmpty() const
{
    return !m_svg && m_image.isNull();
}

QSize PictureBox::pictureSize() const
{
    if (m_svg)
        return m_svg->viewBox().size();
    return m_image.size();
}

QSize PictureBox::sizeHint() const
{
    const QSize size = pictureSize();
    return size.isEmpty() ? QSize(100, 100) : size.boundedTo(QSize(480, 480));
}

QRectF PictureBox::pictureRect() const
{
    const QSizeF picture = pictureSize();
    if (picture.isEmpty())
        return {};
    const QSizeF fitted = picture.scaled(QSizeF(size()), Qt::KeepAspectRatio);
    return QRectF(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2),
                  fitted);
}

void PictureBox::resizeEvent(QResizeEvent *event)
{
    m_drawn = QPixmap();
    QWidget::resizeEvent(event);
}

void PictureBox::paintEvent(QPaintEvent *)
{
    if (isEmpty())
        return;
    const QRectF target = pictureRect();
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (target.size() * ratio).toSize();
    if (pixels.isEmpty())
        return;
    // Drawn maps are kept for the whole program, so a window opened again (or another window
    // showing the same map at the same size) shows at once instead of drawing it anew.
    const QString key = m_svg ? QStringLiteral("picture:%1:%2x%3")
                                    .arg(m_file)
                                    .arg(pixels.width())
                                    .arg(pixels.height())
                              : QString();
    if (m_drawn.size() != pixels && !key.isEmpty() && QPixmapCache::find(key, &m_drawn))
        m_drawn.setDevicePixelRatio(ratio);
    if (m_drawn.size() != pixels) {
        m_drawn = QPixmap(pixels);
        m_drawn.fill(Qt::transparent);
        QPainter drawing(&m_drawn);
        drawing.setRenderHint(QPainter::Antialiasing);
        drawing.setRenderHint(QPainter::SmoothPixmapTransform);
        if (m_svg)
            m_svg->render(&drawing, QRectF(QPointF(0, 0), QSizeF(pixels)));
        else
            drawing.drawImage(QRectF(QPointF(0, 0), QSizeF(pixels)), m_image);
        m_drawn.setDevicePixelRatio(ratio);
        if (!key.isEmpty())
            QPixmapCache::insert(key, m_drawn);
    }
    QPainter painter(this);
    painter.drawPixmap(target.topLeft(), m_drawn);
}
