// SPDX-License-Identifier: GPL-3.0-or-later
#include "CardView.h"

#include "shell/core/DataPath.h"

#include <array>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QSvgRenderer>

namespace {

constexpr double Aspect = 5.0 / 7.0; // width to height of a playing card

// The four suit pictures, read once per data folder and drawn at any size.
QSvgRenderer *SuitPicture(int suit)
{
    static std::array<QPointer<QSvgRenderer>, 4> pictures;
    static QString folder;
    if (folder != DataPath()) {
        folder = DataPath();
        for (auto &picture : pictures)
            delete picture.data();
        pictures.fill(nullptr);
    }
    if (suit < 0 || suit > 3)
        return nullptr;
    if (!pictures[size_t(suit)]) {
        const char *files[] = {"spades.svg", "hearts.svg", "clubs.svg", "diamonds.svg"};
        pictures[size_t(suit)] =
            new QSvgRenderer(DataFile(QLatin1String(files[suit])), QCoreApplication::instance());
    }
    return pictures[size_t(suit)];
}

void PaintPip(QPainter &painter, const QRectF &box, int suit)
{
    QSvgRenderer *picture = SuitPicture(suit);
    if (picture && picture->isValid()) {
        picture->render(&painter, box);
        return;
    }
    // Without the picture the suit's own sign still tells the suits apart.
    painter.save();
    const QChar signs[] = {QChar(0x2660), QChar(0x2665), QChar(0x2663), QChar(0x2666)};
    QFont font = painter.font();
    font.setPixelSize(qMax(4, int(box.height())));
    painter.setFont(font);
    painter.setPen(CardLook::IsRed(suit) ? QColor("#D50000") : QColor("#1B1B1F"));
    painter.drawText(box, Qt::AlignCenter, QString(signs[qBound(0, suit, 3)]));
    painter.restore();
}

} // namespace

namespace CardLook {

QColor BackColour(int choice)
{
    const char *colours[] = {"#FF5555", "#5555FF", "#55FF55", "#FF55FF", "#FFFF55"};
    return QColor(QLatin1String(colours[qBound(0, choice, 4)]));
}

QString SuitName(int suit)
{
    switch (suit) {
    case 0:
        return QCoreApplication::translate("CardLook", "Spades");
    case 1:
        return QCoreApplication::translate("CardLook", "Hearts");
    case 2:
        return QCoreApplication::translate("CardLook", "Clubs");
    default:
        return QCoreApplication::translate("CardLook", "Diamonds");
    }
}

bool IsRed(int suit)
{
    return suit == 1 || suit == 3;
}

QString Spoken(const QString &rank, int suit)
{
    QString name = rank;
    if (rank == QLatin1String("A"))
        name = QCoreApplication::translate("CardLook", "Ace");
    else if (rank == QLatin1String("K"))
        name = QCoreApplication::translate("CardLook", "King");
    else if (rank == QLatin1String("Q"))
        name = QCoreApplication::translate("CardLook", "Queen");
    else if (rank == QLatin1String("J"))
        name = QCoreApplication::translate("CardLook", "Jack");
    return QCoreApplication::translate("CardLook", "%1 of %2").arg(name, SuitName(suit));
}

QRectF Fit(const QRectF &area)
{
    double width = area.width();
    double height = width / Aspect;
    if (height > area.height()) {
        height = area.height();
        width = height * Aspect;
    }
    return {area.center().x() - width / 2, area.center().y() - height / 2, width, height};
}

void PaintFace(QPainter &painter, const QRectF &card, const QString &rank, int suit)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = card.width() * 0.09;
    painter.setPen(QPen(QColor("#546E7A"), qMax(1.0, card.width() / 60)));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card, radius, radius);

    const QColor ink = IsRed(suit) ? QColor("#C62828") : QColor("#1B1B1F");
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setBold(true);
    font.setPixelSize(qMax(6, int(card.height() * (rank.size() > 1 ? 0.2 : 0.23))));
    // The rank with a small pip under it in the top left corner, and again upright in the
    // bottom right (pip above), so a young reader never meets an upside-down 6 that looks a 9.
    const QRectF corner(card.width() * 0.02, card.height() * 0.015, card.width() * 0.3,
                        card.height() * 0.22);
    const double pip = card.width() * 0.17;
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(corner.translated(card.topLeft()), Qt::AlignCenter, rank);
    PaintPip(
        painter,
        QRectF(card.left() + corner.center().x() - pip / 2, card.top() + corner.bottom(), pip, pip),
        suit);
    const QRectF lower(card.right() - corner.right(), card.bottom() - corner.bottom(),
                       corner.width(), corner.height());
    painter.drawText(lower, Qt::AlignCenter, rank);
    PaintPip(painter, QRectF(lower.center().x() - pip / 2, lower.top() - pip, pip, pip), suit);
    const double big = card.width() * 0.46;
    PaintPip(painter, QRectF(card.center().x() - big / 2, card.center().y() - big / 2, big, big),
             suit);
    painter.restore();
}

void PaintBack(QPainter &painter, const QRectF &card, const QColor &colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = card.width() * 0.09;
    painter.setPen(QPen(QColor("#546E7A"), qMax(1.0, card.width() / 60)));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card, radius, radius);
    const double margin = card.width() * 0.08;
    const QRectF inner = card.adjusted(margin, margin, -margin, -margin);
    QPainterPath clip;
    clip.addRoundedRect(inner, radius * 0.6, radius * 0.6);
    painter.setClipPath(clip);
    painter.fillRect(inner, colour);
    // A lattice of diamonds in a deeper shade of the same colour.
    painter.setPen(QPen(colour.darker(135), qMax(1.0, card.width() / 40)));
    const double step = qMax(4.0, card.width() / 6);
    for (double x = inner.left() - inner.height(); x < inner.right(); x += step) {
        painter.drawLine(QPointF(x, inner.top()), QPointF(x + inner.height(), inner.bottom()));
        painter.drawLine(QPointF(x, inner.bottom()), QPointF(x + inner.height(), inner.top()));
    }
    painter.setClipping(false);
    painter.setPen(QPen(colour.darker(150), qMax(1.0, card.width() / 50)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(inner, radius * 0.6, radius * 0.6);
    painter.restore();
}

} // namespace CardLook

CardView::CardView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QSizePolicy keep = sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    setSizePolicy(keep);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    hide();
}

void CardView::showFace(const QString &rank, int suit)
{
    m_faceUp = true;
    m_rank = rank;
    m_suit = suit;
    setAccessibleDescription(CardLook::Spoken(rank, suit));
    show();
    update();
}

void CardView::showBack(const QColor &colour)
{
    m_faceUp = false;
    m_back = colour;
    setAccessibleDescription(tr("Face down"));
    show();
    update();
}

void CardView::hideCard()
{
    hide();
    setAccessibleDescription(QString());
}

QRectF CardView::cardRect() const
{
    const double margin = qMax(2.0, width() * 0.04);
    return CardLook::Fit(QRectF(rect()).adjusted(margin, margin, -margin, -margin));
}

void CardView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF card = cardRect();
    if (m_faceUp)
        CardLook::PaintFace(painter, card, m_rank, m_suit);
    else
        CardLook::PaintBack(painter, card, m_back);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor("#FFD600"), qMax(3.0, card.width() / 18)));
        painter.setBrush(Qt::NoBrush);
        const double grow = qMax(2.0, card.width() / 30);
        painter.drawRoundedRect(card.adjusted(-grow, -grow, grow, grow), card.width() * 0.1,
                                card.width() * 0.1);
    }
}

void CardView::mousePressEvent(QMouseEvent *event)
{
    // Only the card itself answers, not the felt around it.
    if (event->button() == Qt::LeftButton && cardRect().contains(event->position()))
        emit clicked();
    else
        QWidget::mousePressEvent(event);
}

void CardView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            emit clicked();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
