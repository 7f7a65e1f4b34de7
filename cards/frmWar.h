// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CardTable.h"
#include "War.h"

#include <array>

class CardView;

// War against the computer: a click (or Space, or Enter) on the pupil's face-down pile turns
// a card from each pile; the higher card takes both and a tie starts a war.
class frmWar : public CardTable {
    Q_OBJECT
public:
    explicit frmWar(QWidget *parent = nullptr);

    const War &war() const { return m_war; }
    // Seconds between the two cards of a pair, so the pupil sees them turn one after the other.
    static constexpr float TurnPause = 0.6f;

    // Slot 0 is the pupil's pile, 11 the computer's; 1 to 5 the pupil's turned cards and
    // 6 to 10 the computer's.
    std::array<CardView *, 12> shpBack{};
    std::array<QLabel *, 3> lblMatch{}; // 1 the pupil's card count, 2 the computer's
    std::array<QLabel *, 3> lblP{};
    QLabel *lblMessage;

public slots:
    // One round, as a click on the pupil's pile plays it.
    void playRound();

protected:
    void newGame() override;
    void stopGame() override;

private:
    void showTableCard(int slot);
    void showCounts();
    void clearTable();
    void gameOver();

    War m_war;
    QColor m_back;
    QString m_conwin, m_boing, m_tada, m_ding, m_chimes, m_wow;
};
