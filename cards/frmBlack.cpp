// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmBlack.h"

#include "CardView.h"
#include "shell/core/DataPath.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {
// The computer's cards are shown in this colour of back while they lie face down.
const int BackChoice = 1;
} // namespace

frmBlack::frmBlack(QWidget *parent)
    : CardTable(BlackjackGame, QStringLiteral("cards-blackjack"), parent)
{
    setObjectName(QStringLiteral("frmBlack"));
    setWindowTitle(tr("Deckhand-Blackjack"));

    for (int i = 0; i < Blackjack::MaxCards; ++i) {
        shpDealer[size_t(i)] = Named(new CardView(this), ArrayName("shpDealer", i));
        shpDealer[size_t(i)]->setAccessibleName(tr("Computer's card %1").arg(i + 1));
        shpPlayer[size_t(i)] = Named(new CardView(this), ArrayName("shpPlayer", i));
        shpPlayer[size_t(i)]->setAccessibleName(tr("Your card %1").arg(i + 1));
    }
    shpBack = Named(new CardView(this), QStringLiteral("shpBack"));
    shpBack->setAccessibleName(tr("Computer's hidden card"));
    shpBack->showBack(CardLook::BackColour(BackChoice));

    Label2[0] = makeLabel(QStringLiteral("Label2_0"), tr("Computer's Cards:"));
    Label2[1] = makeLabel(QStringLiteral("Label2_1"), tr("Your Cards:"));
    for (QLabel *label : Label2) {
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        scaleWithWindow(label, 1.2);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
    lblResults = makeLabel(QStringLiteral("lblResults"));
    lblResults->setAccessibleName(tr("Result of the hand"));
    lblResults->setStyleSheet(QStringLiteral("QLabel { color: #FFEB3B; }"));
    scaleWithWindow(lblResults, 1.7);
    QFont bold = lblResults->font();
    bold.setBold(true);
    lblResults->setFont(bold);
    Label3 = makeLabel(QStringLiteral("Label3"), tr("Points"));
    scaleWithWindow(Label3, 1.1);
    lblWinnings = makeLabel(QStringLiteral("lblWinnings"), QStringLiteral("Even"));
    lblWinnings->setAccessibleName(tr("Points"));
    lblWinnings->setStyleSheet(
        QStringLiteral("QLabel { background: #FFF9C4; color: #1A237E; border-radius: 10px;"
                       " padding: 2px 12px; }"));
    scaleWithWindow(lblWinnings, 1.4);

    fraPlay = Named(new QGroupBox(this), QStringLiteral("fraPlay"));
    fraPlay->setStyleSheet(QStringLiteral("QGroupBox { border: none; }"));
    cmdHit = makeButton(tr("&Hit"), QStringLiteral("cmdHit"), "#2E7D32");
    cmdStay = makeButton(tr("&Stay"), QStringLiteral("cmdStay"), "#F9A825");
    cmdDeal = makeButton(tr("&Deal"), QStringLiteral("cmdDeal"), "#AD1457");
    cmdHit->setToolTip(tr("Take another card (H)"));
    cmdStay->setToolTip(tr("Keep your cards; the computer plays (S)"));
    cmdDeal->setToolTip(tr("Deal the next hand (D)"));
    auto *play = new QHBoxLayout(fraPlay);
    play->setContentsMargins(0, 0, 0, 0);
    for (QPushButton *button : {cmdHit, cmdStay, cmdDeal}) {
        button->setParent(fraPlay);
        play->addWidget(button);
    }
    connect(cmdHit, &QPushButton::clicked, this, &frmBlack::onHit);
    connect(cmdStay, &QPushButton::clicked, this, &frmBlack::onStay);
    connect(cmdDeal, &QPushButton::clicked, this, &frmBlack::New_Hand);

    // The hidden card lies over the computer's first card until the pupil stays.
    auto *holeCard = new QWidget(this);
    m_holeCard = new QStackedLayout(holeCard);
    m_holeCard->addWidget(shpDealer[0]);
    m_holeCard->addWidget(shpBack);
    QSizePolicy keep = holeCard->sizePolicy();
    keep.setHorizontalPolicy(QSizePolicy::Expanding);
    keep.setVerticalPolicy(QSizePolicy::Expanding);
    holeCard->setSizePolicy(keep);

    auto *computerRow = new QHBoxLayout;
    auto *playerRow = new QHBoxLayout;
    computerRow->addWidget(holeCard, 1);
    for (int i = 0; i < Blackjack::MaxCards; ++i) {
        if (i > 0)
            computerRow->addWidget(shpDealer[size_t(i)], 1);
        playerRow->addWidget(shpPlayer[size_t(i)], 1);
    }
    auto *score = new QHBoxLayout;
    score->addWidget(lblResults, 3);
    score->addWidget(Label3);
    score->addWidget(lblWinnings, 1);

    tableLayout()->addWidget(Label2[0]);
    tableLayout()->addLayout(computerRow, 4);
    tableLayout()->addLayout(score, 1);
    tableLayout()->addWidget(Label2[1]);
    tableLayout()->addLayout(playerRow, 4);
    tableLayout()->addWidget(fraPlay);

    fraPlay->hide();
    Label2[0]->setVisible(false);
    Label2[1]->setVisible(false);
    m_holeCard->setCurrentWidget(shpDealer[0]);
    shpDealer[0]->hideCard();
    lblResults->setText(tr("Press New Game to play!"));

    setTabOrder(cmdHit, cmdStay);
    setTabOrder(cmdStay, cmdDeal);
    setTabOrder(cmdDeal, cmdNew);
    setTabOrder(cmdNew, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);
    setTabOrder(cmdExit, cmdGame[0]);
    setTabOrder(cmdGame[0], cmdGame[1]);
    cmdNew->setFocus();
}

void frmBlack::newGame()
{
    setRunning(true);
    fraPlay->show();
    Label2[0]->show();
    Label2[1]->show();
    lblWinnings->setText(QStringLiteral("Even"));
    handOutcome(m_game.newGame());
}

void frmBlack::New_Hand()
{
    if (!isRunning() || !m_game.handOver())
        return;
    handOutcome(m_game.newHand());
}

void frmBlack::onHit()
{
    if (!isRunning())
        return;
    handOutcome(m_game.hit());
}

void frmBlack::onStay()
{
    if (!isRunning())
        return;
    handOutcome(m_game.stay());
}

void frmBlack::showHands()
{
    const BlackjackDeck &deck = m_game.deck();
    const auto show = [&deck](const std::array<CardView *, Blackjack::MaxCards> &views,
                              const Blackjack::Hand &hand) {
        for (int i = 0; i < Blackjack::MaxCards; ++i) {
            if (i < hand.cards()) {
                const auto slot = size_t(hand.held[i]);
                views[size_t(i)]->showFace(deck.text[slot], deck.suit[slot]);
            } else {
                views[size_t(i)]->hideCard();
            }
        }
    };
    show(shpDealer, m_game.computer());
    show(shpPlayer, m_game.player());
    if (m_game.holeCardHidden()) {
        m_holeCard->setCurrentWidget(shpBack);
        shpBack->show();
        // Shown under the back, the card would otherwise stand on its own beside the layout.
        shpDealer[0]->hide();
    } else {
        m_holeCard->setCurrentWidget(shpDealer[0]);
        shpBack->hide();
    }
}

void frmBlack::handOutcome(Blackjack::Outcome outcome)
{
    showHands();
    if (outcome != Blackjack::Outcome::Playing) {
        End_Hand();
        return;
    }
    lblResults->clear();
    cmdHit->setEnabled(m_game.player().cards() < Blackjack::MaxCards);
    cmdStay->setEnabled(true);
    cmdDeal->setEnabled(false);
    cmdHit->setFocus();
}

void frmBlack::End_Hand()
{
    const Blackjack::Ending ending = Blackjack::ending(m_game.outcome());
    PlaySound(DataFile(ending.sound), SND_ASYNC);
    lblResults->setText(ending.message);
    lblWinnings->setText(Blackjack::winningsText(m_game.winnings()));
    Announce(lblResults, QStringLiteral("%1 %2").arg(ending.message, lblWinnings->text()));
    cmdHit->setEnabled(false);
    cmdStay->setEnabled(false);
    cmdDeal->setEnabled(true);
    cmdDeal->setFocus();
}

void frmBlack::stopGame()
{
    CardTable::stopGame();
    fraPlay->hide();
}

void frmBlack::keyPressEvent(QKeyEvent *event)
{
    // H, S and D play without Alt, as the buttons' letters say.
    if (isRunning() && event->modifiers() == Qt::NoModifier) {
        QPushButton *button = nullptr;
        switch (event->key()) {
        case Qt::Key_H:
            button = cmdHit;
            break;
        case Qt::Key_S:
            button = cmdStay;
            break;
        case Qt::Key_D:
            button = cmdDeal;
            break;
        default:
            break;
        }
        if (button) {
            if (button->isEnabled())
                button->click();
            return;
        }
    }
    CardTable::keyPressEvent(event);
}
