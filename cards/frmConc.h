// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CardTable.h"
#include "Concentration.h"

#include <array>

class CardView;
class ConcBoard;
class QRadioButton;

// Concentration: 52 cards face down; the pupil turns two at a time and keeps them when they
// match by value or by suit, with every card turned and every match counted.
class frmConc : public CardTable {
    Q_OBJECT
public:
    explicit frmConc(QWidget *parent = nullptr);

    const Concentration &game() const { return m_game; }

    ConcBoard *picBoard;
    std::array<CardView *, 3> shpCard{}; // 1 the first card of a pair, 2 the second
    std::array<QLabel *, 2> lblMatch{};  // 0 the guesses, 1 the matches
    std::array<QLabel *, 2> lblP{};
    QLabel *lblMessage;
    QGroupBox *Frame1;
    std::array<QRadioButton *, 2> optType{};

public slots:
    // Turns the card at place 1 to 52, as a click on the grid does.
    void pickPlace(int place);

protected:
    void newGame() override;
    void stopGame() override;

private:
    void showPicked(int slot, int place);

    Concentration m_game;
    QString m_conwin, m_boing, m_tada;
};
