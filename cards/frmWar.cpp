// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmWar.h"

#include "CardView.h"
#include "Deck.h"
#include "shell/core/DataPath.h"
#include "shell/core/Random.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

frmWar::frmWar(QWidget *parent) : CardTable(WarGame, QStringLiteral("cards-war"), parent)
{
    setObjectName(QStringLiteral("frmWar"));
    setWindowTitle(tr("Deckhand-War"));
    m_conwin = DataFile(QStringLiteral("conwin.wav"));
    m_boing = DataFile(QStringLiteral("boing.wav"));
    m_tada = DataFile(QStringLiteral("tada.wav"));
    m_ding = DataFile(QStringLiteral("ding.wav"));
    m_chimes = DataFile(QStringLiteral("chimes.wav"));
    m_wow = DataFile(QStringLiteral("wow.wav"));

    for (int slot = 0; slot < 12; ++slot)
        shpBack[size_t(slot)] = Named(new CardView(this), ArrayName("shpBack", slot));
    shpBack[0]->setAccessibleName(tr("Your pile"));
    shpBack[11]->setAccessibleName(tr("Computer's pile"));
    for (int slot = 1; slot <= 5; ++slot) {
        shpBack[size_t(slot)]->setAccessibleName(tr("Your card %1").arg(slot));
        shpBack[size_t(slot + 5)]->setAccessibleName(tr("Computer's card %1").arg(slot));
    }
    // The pile is what the pupil plays: it takes the focus, and Space or Enter turns it.
    shpBack[0]->setFocusPolicy(Qt::StrongFocus);
    shpBack[0]->setCursor(Qt::PointingHandCursor);
    connect(shpBack[0], &CardView::clicked, this, &frmWar::playRound);

    lblP[1] = makeLabel(QStringLiteral("lblP_1"), tr("You"));
    lblP[2] = makeLabel(QStringLiteral("lblP_2"), tr("Computer"));
    for (int side = 1; side <= 2; ++side) {
        lblMatch[size_t(side)] = makeLabel(ArrayName("lblMatch", side));
        lblMatch[size_t(side)]->setAccessibleName(side == 1 ? tr("Your cards")
                                                            : tr("Computer's cards"));
        lblMatch[size_t(side)]->setStyleSheet(
            QStringLiteral("QLabel { background: #FFF9C4; color: #1A237E; border-radius: 10px;"
                           " padding: 2px 10px; }"));
        // The counts appear with the first game; until then their boxes would stand empty.
        QSizePolicy keep = lblMatch[size_t(side)]->sizePolicy();
        keep.setRetainSizeWhenHidden(true);
        lblMatch[size_t(side)]->setSizePolicy(keep);
        lblMatch[size_t(side)]->hide();
        scaleWithWindow(lblP[size_t(side)], 1.3);
        scaleWithWindow(lblMatch[size_t(side)], 1.5);
        QFont bold = lblP[size_t(side)]->font();
        bold.setBold(true);
        lblP[size_t(side)]->setFont(bold);
    }
    lblMessage = makeLabel(QStringLiteral("lblMessage"));
    lblMessage->setStyleSheet(QStringLiteral("QLabel { color: #FFEB3B; }"));
    scaleWithWindow(lblMessage, 1.6);
    QFont bold = lblMessage->font();
    bold.setBold(true);
    lblMessage->setFont(bold);

    // The computer's row above, the pupil's below; each pile on the left with its name and count.
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(4);
    grid->addWidget(lblP[2], 0, 0);
    grid->addWidget(lblMatch[2], 1, 0, Qt::AlignHCenter);
    grid->addWidget(shpBack[11], 2, 0);
    grid->addWidget(lblMessage, 3, 0, 1, 6);
    grid->addWidget(shpBack[0], 4, 0);
    grid->addWidget(lblMatch[1], 5, 0, Qt::AlignHCenter);
    grid->addWidget(lblP[1], 6, 0);
    for (int slot = 1; slot <= 5; ++slot) {
        grid->addWidget(shpBack[size_t(slot + 5)], 0, slot, 3, 1);
        grid->addWidget(shpBack[size_t(slot)], 4, slot, 3, 1);
        grid->setColumnStretch(slot, 1);
    }
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(2, 3);
    grid->setRowStretch(4, 3);
    grid->setRowStretch(3, 1);
    tableLayout()->addLayout(grid);

    lblMessage->setText(tr("Press New Game\nto play!"));
    setTabOrder(shpBack[0], cmdNew);
    setTabOrder(cmdNew, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);
    setTabOrder(cmdExit, cmdGame[0]);
    setTabOrder(cmdGame[0], cmdGame[1]);
    cmdNew->setFocus();
}

void frmWar::newGame()
{
    setRunning(true);
    m_back = CardLook::BackColour(int(Rnd() * 5));
    for (CardView *slot : shpBack)
        slot->hideCard();
    m_war.deal();
    showCounts();
    shpBack[0]->showBack(m_back);
    shpBack[11]->showBack(m_back);
    lblMessage->setText(QStringLiteral("Click\nTop Pile"));
    shpBack[0]->setFocus();
}

void frmWar::showTableCard(int slot)
{
    const int card = m_war.tableCard(slot);
    if (card > 0)
        shpBack[size_t(slot)]->showFace(Deck::WarText(Deck::RankIndex(card)),
                                        Deck::SuitIndex(card));
}

void frmWar::showCounts()
{
    lblMatch[1]->show();
    lblMatch[2]->show();
    lblMatch[1]->setText(QString::number(m_war.count(War::Pupil)));
    lblMatch[2]->setText(QString::number(m_war.count(War::Computer)));
}

void frmWar::clearTable()
{
    for (int slot = 1; slot <= 10; ++slot)
        shpBack[size_t(slot)]->hideCard();
}

void frmWar::playRound()
{
    if (!isRunning() || m_war.isOver())
        return;
    const int slot = m_war.current();
    PlaySound(m_ding, SND_ASYNC);
    const bool turned = m_war.turnPair();
    showTableCard(slot);
    Delay(TurnPause);
    if (!turned) {
        gameOver();
        return;
    }
    PlaySound(m_ding, SND_ASYNC);
    showTableCard(slot + 5);
    Delay(TurnPause);

    switch (m_war.settle()) {
    case War::Result::PupilTakes:
        PlaySound(Rnd() < 0.5 ? m_conwin : m_wow, SND_ASYNC);
        Announce(lblMessage, tr("You take the cards."));
        Delay(0.5f);
        break;
    case War::Result::ComputerTakes:
        PlaySound(m_boing, SND_ASYNC);
        Announce(lblMessage, tr("The computer takes the cards."));
        Delay(0.5f);
        break;
    case War::Result::TakeBack:
        Announce(lblMessage, tr("Another tie: each side takes back its own cards."));
        Delay(0.5f);
        break;
    case War::Result::War: {
        PlaySound(m_chimes, SND_ASYNC);
        Announce(lblMessage, tr("A tie! War!"));
        const bool laid = m_war.layWar();
        for (int pair = slot + 1; pair < m_war.current(); ++pair) {
            if (m_war.tableCard(pair) > 0)
                shpBack[size_t(pair)]->showBack(m_back);
            if (m_war.tableCard(pair + 5) > 0)
                shpBack[size_t(pair + 5)]->showBack(m_back);
        }
        if (!laid) {
            Delay(TurnPause);
            gameOver();
        }
        return;
    }
    }
    clearTable();
    showCounts();
    if (m_war.isOver())
        gameOver();
}

void frmWar::gameOver()
{
    clearTable();
    showCounts();
    const bool pupilWon = m_war.winner() == War::Pupil;
    shpBack[pupilWon ? 11 : 0]->hideCard();
    PlaySound(m_tada, SND_SYNC);
    stopGame();
    Announce(lblMessage, pupilWon ? tr("Game Over. You have all 52 cards!")
                                  : tr("Game Over. The computer has all 52 cards."));
}

void frmWar::stopGame()
{
    CardTable::stopGame();
    lblMessage->setText(QStringLiteral("Game Over"));
}
