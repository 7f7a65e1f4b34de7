// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Blackjack.h"
#include "CardTable.h"

#include <array>

class CardView;
class QStackedLayout;

// Blackjack for points against the computer: each hand is worth 10 points and a blackjack 15;
// the pupil hits or stays, then the computer draws to 17 or more.
class frmBlack : public CardTable {
    Q_OBJECT
public:
    explicit frmBlack(QWidget *parent = nullptr);

    const Blackjack &game() const { return m_game; }
    // The next hands are dealt from this deck (the screenshots and tests stack it).
    BlackjackDeck &deck() { return m_game.deck(); }

    QGroupBox *fraPlay;
    QPushButton *cmdHit;
    QPushButton *cmdStay;
    QPushButton *cmdDeal;
    QLabel *lblResults;
    std::array<QLabel *, 2> Label2{}; // "Computer's Cards:" and "Your Cards:"
    QLabel *Label3;
    QLabel *lblWinnings;
    std::array<CardView *, Blackjack::MaxCards> shpDealer{};
    std::array<CardView *, Blackjack::MaxCards> shpPlayer{};
    CardView *shpBack;

public slots:
    void New_Hand();

protected:
    void newGame() override;
    void stopGame() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void onHit();
    void onStay();
    void showHands();
    void End_Hand();
    void handOutcome(Blackjack::Outcome outcome);

    Blackjack m_game;
    QStackedLayout *m_holeCard;
};
