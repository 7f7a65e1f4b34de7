// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/ActivityWindow.h"

#include <array>

class QBoxLayout;
class QGroupBox;
class QLabel;
class QPushButton;

// Which card game: the number kept in the card game setting.
enum CardGame { WarGame = 1, ConcentrationGame = 2, BlackjackGame = 3 };

// Opens the window of a card game, or nothing for a number that names none.
ActivityWindow *OpenCardGame(int game);

// The frame the three card games share: a green table for the game's cards and, beside it,
// "&New Game", "&Help", "E&xit"/"&Stop" and "Other Card Games" with a button for each of the
// other two games, which keeps the choice and opens that game in this one's place.
class CardTable : public ActivityWindow {
    Q_OBJECT
public:
    CardTable(CardGame game, const QString &helpTopic, QWidget *parent = nullptr);

    bool isRunning() const { return m_running; }

    QPushButton *cmdNew;
    QPushButton *cmdExit;
    QPushButton *cmdHelp;
    QGroupBox *fraGame;
    std::array<QPushButton *, 2> cmdGame{};

protected:
    virtual void newGame() = 0;
    // Ends the running game where it stands ("&Stop").
    virtual void stopGame();
    void setRunning(bool running);

    // The game's table on the left, and room for its own controls above the shared buttons.
    QBoxLayout *tableLayout() const { return m_table; }
    QBoxLayout *sideLayout() const { return m_side; }
    // Labels whose lettering grows with the window, by the given factor of the base size.
    void scaleWithWindow(QWidget *widget, double factor);
    QPushButton *makeButton(const QString &caption, const QString &name, const char *colour);
    QLabel *makeLabel(const QString &name, const QString &text = QString());

    void resizeEvent(QResizeEvent *event) override;

private:
    void switchTo(CardGame game);

    QBoxLayout *m_table;
    QBoxLayout *m_side;
    QList<std::pair<QWidget *, double>> m_scaled;
    bool m_running = false;
};
