// SPDX-License-Identifier: GPL-3.0-or-later
#include "CardTable.h"

#include "frmBlack.h"
#include "frmConc.h"
#include "frmWar.h"
#include "shell/core/Settings.h"
#include "shell/WindowUtil.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>

ActivityWindow *OpenCardGame(int game)
{
    switch (game) {
    case WarGame:
        return new frmWar;
    case ConcentrationGame:
        return new frmConc;
    case BlackjackGame:
        return new frmBlack;
    default:
        return nullptr;
    }
}

CardTable::CardTable(CardGame game, const QString &helpTopic, QWidget *parent)
    : ActivityWindow(helpTopic, parent)
{
    applyLook(QColor("#1B5E20"));
    QPalette felt = palette();
    QRadialGradient light(0.4, 0.4, 0.9);
    light.setCoordinateMode(QGradient::ObjectMode);
    light.setColorAt(0, QColor("#388E3C"));
    light.setColorAt(1, QColor("#1B5E20"));
    felt.setBrush(QPalette::Window, light);
    felt.setColor(QPalette::WindowText, Qt::white);
    setPalette(felt);

    cmdNew = makeButton(tr("&New Game"), QStringLiteral("cmdNew"), "#1565C0");
    cmdHelp = makeButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F");
    cmdExit = makeButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828");

    fraGame = Named(new QGroupBox(tr("Other Card Games"), this), QStringLiteral("fraGame"));
    fraGame->setStyleSheet(QStringLiteral(
        "QGroupBox { color: white; border: 2px solid #A5D6A7; border-radius: 10px;"
        " margin-top: 14px; padding: 10px 6px 6px 6px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; }"));
    // Each window names the other two games, in the order War, Concentration, Blackjack.
    const std::array<std::pair<CardGame, QString>, 3> games{
        std::pair{WarGame, tr("&War")}, std::pair{ConcentrationGame, tr("&Concentration")},
        std::pair{BlackjackGame, tr("&Blackjack")}};
    scaleWithWindow(fraGame, 1.0);
    auto *gameButtons = new QVBoxLayout(fraGame);
    gameButtons->setSpacing(6);
    int index = 0;
    for (const auto &[other, caption] : games) {
        if (other == game)
            continue;
        QPushButton *button =
            makeButton(caption, ArrayName("cmdGame", index), index == 0 ? "#6A1B9A" : "#EF6C00");
        button->setParent(fraGame);
        connect(button, &QPushButton::clicked, this, [this, to = other] { switchTo(to); });
        gameButtons->addWidget(button);
        cmdGame[size_t(index++)] = button;
    }

    m_side = new QVBoxLayout;
    m_side->setSpacing(8);
    m_side->addWidget(cmdNew);
    m_side->addWidget(cmdHelp);
    m_side->addWidget(cmdExit);
    m_side->addStretch(1);
    m_side->addWidget(fraGame);

    m_table = new QVBoxLayout;
    m_table->setSpacing(6);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->setSpacing(14);
    layout->addLayout(m_table, 1);
    layout->addLayout(m_side);

    connect(cmdNew, &QPushButton::clicked, this, [this] {
        if (!m_running)
            newGame();
    });
    connect(cmdHelp, &QPushButton::clicked, this, &CardTable::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, [this] {
        if (m_running)
            stopGame();
        else
            close();
    });
    resize(1024, 720);
}

QPushButton *CardTable::makeButton(const QString &caption, const QString &name, const char *colour)
{
    auto *button = Named(new QPushButton(caption, this), name);
    // Enter presses the focused button, so every game runs from the keyboard alone.
    button->setAutoDefault(true);
    button->setMinimumSize(150, 40);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QFont bold = font();
    bold.setBold(true);
    button->setFont(bold);
    StyleBrightButton(button, QColor(QLatin1String(colour)));
    m_scaled.append({button, 1.0});
    return button;
}

QLabel *CardTable::makeLabel(const QString &name, const QString &text)
{
    auto *label = Named(new QLabel(text, this), name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void CardTable::scaleWithWindow(QWidget *widget, double factor)
{
    m_scaled.append({widget, factor});
    QFont font = widget->font();
    font.setPointSizeF(14 * factor);
    widget->setFont(font);
}

void CardTable::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    // Lettering on the table grows with the window, as the cards do.
    const double scale = qBound(0.7, qMin(width() / 1024.0, height() / 720.0), 2.5);
    for (const auto &[widget, factor] : std::as_const(m_scaled)) {
        QFont font = widget->font();
        font.setPointSizeF(14 * factor * scale);
        widget->setFont(font);
    }
}

void CardTable::setRunning(bool running)
{
    m_running = running;
    setRunningCaption(cmdExit, running);
    fraGame->setVisible(!running);
}

void CardTable::stopGame()
{
    setRunning(false);
    cmdNew->setFocus();
}

void CardTable::switchTo(CardGame game)
{
    if (m_running)
        return;
    TheSettings().cards.game = qint16(game);
    replaceWith(OpenCardGame(game));
}
