// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmConc.h"

#include "CardView.h"
#include "ConcBoard.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmConc::frmConc(QWidget *parent)
    : CardTable(ConcentrationGame, QStringLiteral("cards-concentration"), parent)
{
    setObjectName(QStringLiteral("frmConc"));
    setWindowTitle(tr("Deckhand-Concentration"));
    m_conwin = DataFile(QStringLiteral("conwin.wav"));
    m_boing = DataFile(QStringLiteral("boing.wav"));
    m_tada = DataFile(QStringLiteral("tada.wav"));

    picBoard = Named(new ConcBoard(m_game, this), QStringLiteral("picBoard"));
    picBoard->setAccessibleName(tr("Cards face down"));
    connect(picBoard, &ConcBoard::picked, this, &frmConc::pickPlace);

    for (int slot = 1; slot <= 2; ++slot) {
        shpCard[size_t(slot)] = Named(new CardView(this), ArrayName("shpCard", slot));
        shpCard[size_t(slot)]->setAccessibleName(slot == 1 ? tr("First card") : tr("Second card"));
    }
    lblMessage = makeLabel(QStringLiteral("lblMessage"));
    lblMessage->setStyleSheet(QStringLiteral("QLabel { color: #FFEB3B; }"));
    lblMessage->setWordWrap(true);
    lblMessage->setMinimumWidth(140);
    scaleWithWindow(lblMessage, 1.5);
    QFont bold = lblMessage->font();
    bold.setBold(true);
    lblMessage->setFont(bold);

    auto *counts = new QGridLayout;
    counts->setVerticalSpacing(2);
    counts->setRowStretch(0, 1);
    counts->setRowStretch(3, 1);
    const QString captions[] = {tr("Guesses"), tr("Matches")};
    for (int i = 0; i < 2; ++i) {
        lblP[size_t(i)] = makeLabel(ArrayName("lblP", i), captions[i]);
        lblMatch[size_t(i)] = makeLabel(ArrayName("lblMatch", i), QStringLiteral("0"));
        lblMatch[size_t(i)]->setAccessibleName(captions[i]);
        lblMatch[size_t(i)]->setStyleSheet(
            QStringLiteral("QLabel { background: #FFF9C4; color: #1A237E; border-radius: 10px;"
                           " padding: 2px 10px; }"));
        scaleWithWindow(lblP[size_t(i)], 1.1);
        scaleWithWindow(lblMatch[size_t(i)], 1.4);
        lblMatch[size_t(i)]->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        counts->addWidget(lblP[size_t(i)], 1, i);
        counts->addWidget(lblMatch[size_t(i)], 2, i);
    }

    Frame1 = Named(new QGroupBox(tr("Match Type"), this), QStringLiteral("Frame1"));
    Frame1->setStyleSheet(QStringLiteral(
        "QGroupBox { color: white; border: 2px solid #A5D6A7; border-radius: 10px;"
        " margin-top: 14px; padding: 8px 6px 4px 6px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; }"));
    auto *types = new QVBoxLayout(Frame1);
    const QString typeCaptions[] = {tr("Value"), tr("Suit")};
    for (int i = 0; i < 2; ++i) {
        optType[size_t(i)] =
            Named(new QRadioButton(typeCaptions[i], Frame1), ArrayName("optType", i));
        optType[size_t(i)]->setAccessibleName(tr("Match by %1").arg(typeCaptions[i]));
        QPalette light = optType[size_t(i)]->palette();
        light.setColor(QPalette::Active, QPalette::WindowText, Qt::white);
        light.setColor(QPalette::Inactive, QPalette::WindowText, Qt::white);
        light.setColor(QPalette::Disabled, QPalette::WindowText, QColor("#C8E6C9"));
        optType[size_t(i)]->setPalette(light);
        scaleWithWindow(optType[size_t(i)], 1.0);
        types->addWidget(optType[size_t(i)]);
        connect(optType[size_t(i)], &QRadioButton::toggled, this, [i](bool on) {
            if (on)
                TheSettings().cards.concentration = qint16(i);
        });
    }
    // A damaged setting reads as matching by value.
    optType[TheSettings().cards.concentration == 1 ? 1 : 0]->setChecked(true);
    scaleWithWindow(Frame1, 1.0);
    sideLayout()->insertWidget(3, Frame1);

    auto *below = new QHBoxLayout;
    below->setSpacing(12);
    below->addWidget(shpCard[1], 2);
    below->addWidget(shpCard[2], 2);
    below->addWidget(lblMessage, 3);
    below->addLayout(counts, 2);
    tableLayout()->addWidget(picBoard, 3);
    tableLayout()->addLayout(below, 2);

    lblMessage->setText(tr("Press New Game to play!"));
    setTabOrder(picBoard, cmdNew);
    setTabOrder(cmdNew, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);
    setTabOrder(cmdExit, optType[0]);
    setTabOrder(optType[0], optType[1]);
    setTabOrder(optType[1], cmdGame[0]);
    setTabOrder(cmdGame[0], cmdGame[1]);
    picBoard->setEnabled(false);
    cmdNew->setFocus();
}

void frmConc::newGame()
{
    setRunning(true);
    Frame1->setEnabled(false);
    m_game.start(optType[1]->isChecked() ? Concentration::BySuit : Concentration::ByValue);
    shpCard[1]->hideCard();
    shpCard[2]->hideCard();
    lblMatch[0]->setText(QStringLiteral("0"));
    lblMatch[1]->setText(QStringLiteral("0"));
    lblMessage->setText(QStringLiteral("Pick a Card"));
    picBoard->setEnabled(true);
    picBoard->setCursor(1);
    picBoard->update();
    picBoard->setFocus();
}

void frmConc::showPicked(int slot, int place)
{
    const Deck::ConcentrationCard card = m_game.card(place);
    shpCard[size_t(slot)]->showFace(Deck::ConcentrationText(card.value), card.suit);
}

void frmConc::pickPlace(int place)
{
    const Concentration::Pick result = m_game.pick(place);
    if (result == Concentration::Pick::Ignored)
        return;
    lblMatch[0]->setText(QString::number(m_game.guesses()));
    picBoard->update();
    if (result == Concentration::Pick::First) {
        showPicked(1, place);
        shpCard[2]->hideCard();
        lblMessage->setText(QStringLiteral("Pick Another Card"));
        Announce(lblMessage, shpCard[1]->accessibleDescription());
        return;
    }
    showPicked(2, place);
    if (result == Concentration::Pick::NoMatch) {
        PlaySound(m_boing, SND_ASYNC);
        Announce(lblMessage, tr("%1: no match.").arg(shpCard[2]->accessibleDescription()));
        Delay(1);
        shpCard[1]->hideCard();
        shpCard[2]->hideCard();
        lblMessage->setText(QStringLiteral("Pick a Card"));
        return;
    }
    PlaySound(m_conwin, SND_ASYNC);
    Announce(lblMessage, tr("%1: a match!").arg(shpCard[2]->accessibleDescription()));
    Delay(1);
    lblMatch[1]->setText(QString::number(m_game.matches()));
    picBoard->update();
    if (result == Concentration::Pick::AllMatched) {
        stopGame();
        PlaySound(m_tada, SND_SYNC);
        return;
    }
    lblMessage->setText(QStringLiteral("Pick A Card"));
}

void frmConc::stopGame()
{
    m_game.stop();
    CardTable::stopGame();
    Frame1->setEnabled(true);
    picBoard->setEnabled(false);
    lblMessage->setText(QStringLiteral("Game Over"));
    Announce(
        lblMessage,
        tr("Game Over: %1 matches in %2 guesses.").arg(m_game.matches()).arg(m_game.guesses()));
}
