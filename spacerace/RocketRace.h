// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"
#include "shell/core/Settings.h"

#include <array>
#include <QList>
#include <QStringList>

// The state of one spelling race of one to four rockets: each player's own order of the
// words, the word of the turn, the letters typed and missed, and how far each rocket has
// flown. The window drives it with commands (start, flash, key, nextTurn, stop) and asks it
// what to show.
class RocketRace {
public:
    static constexpr qint16 MaxPlayers = 4;
    static constexpr qint16 Moon = 75;
    static constexpr qint16 WrongLimit = 3;
    static constexpr qint16 MaxFlashes = 2;
    // Scrambler gives away the letters at the first and second places.
    static constexpr qint16 GiveAwayPlaces = 2;

    enum class Game { Flasher = 1, Scrambler = 2 };
    enum class Phase {
        Idle,     // no race on
        Waiting,  // Flasher: the word has not been flashed yet
        Typing,   // letters are taken
        WordDone, // the word is spelt; the rocket has moved
        TurnLost, // three wrong letters; the word is shown
    };
    enum class KeyResult { Ignored, Right, Wrong, WordDone, TurnLost };
    enum class TurnResult { NextTurn, Over };

    // Starts a race over the words (at least one) with the players, names and game of the
    // settings; values outside their ranges are brought into them.
    void start(const QStringList &words, const Settings::SpaceRace &settings);
    // Flasher: the pupil asks to see the word; false when it has been flashed twice already.
    bool flash();
    // A key typed while the word is spelt: a letter (either case) or Backspace ('\b').
    KeyResult key(QChar key);
    // Ends the turn and presents the next word, or ends the race after a round in which
    // someone reached the moon.
    TurnResult nextTurn();
    void stop();

    bool isRunning() const { return m_phase != Phase::Idle; }
    Phase phase() const { return m_phase; }
    Game game() const { return m_game; }
    qint16 players() const { return m_players; }
    qint16 currentPlayer() const { return m_current; }
    qint16 wordTurn() const { return m_turn; }
    QString name(int player) const;
    QStringList names() const;
    qint16 position(int player) const;
    bool hasFinished(int player) const { return position(player) >= Moon; }
    // One flag per player 1 to 4 (non-zero = reached the moon by the end of the last round).
    QList<qint16> finishers() const;

    QString word() const { return m_word; }
    // Scrambler: the word's letters in the order shown.
    QString scrambled() const { return m_scrambled; }
    // The letters typed or given so far, and with one "*" for each letter still to type.
    QString typed() const { return m_word.left(m_done); }
    QString hidden() const;
    qint16 wrongLetters() const { return m_wrong; }
    qint16 flashes() const { return m_flashes; }
    bool canFlash() const;
    // The word numbers (1-based) in the order a player meets them.
    QList<qint16> order(int player) const;

    // A rocket's new position after a word with so many wrong letters: (3 - wrong) x 10 / 3
    // added as a real number and rounded half to even.
    static qint16 advance(qint16 position, qint16 wrong);
    // The word's letters in a random order other than the word's own; a word whose letters
    // cannot be reordered into anything else (one letter, or one letter repeated) as it is.
    static QString scramble(const QString &word, RandomSource &random = CurrentRandomSource());

private:
    void present();
    void shuffleOrders();
    // Letters that no key can type ("-", "'") are filled in as the pupil reaches them.
    void skipMarks();

    Phase m_phase = Phase::Idle;
    Game m_game = Game::Scrambler;
    QStringList m_words;
    qint16 m_players = 0;
    qint16 m_current = 1;
    qint16 m_turn = 1;
    std::array<QString, MaxPlayers> m_names;
    std::array<QList<qint16>, MaxPlayers> m_orders;
    std::array<qint16, MaxPlayers> m_position{};
    QString m_word;
    QString m_scrambled;
    qint16 m_done = 0; // letters typed or given
    qint16 m_wrong = 0;
    qint16 m_flashes = 0;
};
