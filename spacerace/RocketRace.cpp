// SPDX-License-Identifier: GPL-3.0-or-later
#include "RocketRace.h"

#include "shell/core/Shuffle.h"
#include "WordList.h"

#include <algorithm>
#include <cmath>

namespace {
bool IsLetter(QChar c)
{
    return c >= u'A' && c <= u'Z';
}
} // namespace

void RocketRace::start(const QStringList &words, const Settings::SpaceRace &settings)
{
    m_words.clear();
    // A word needs a letter to type: one of dashes and apostrophes alone could never be spelt.
    for (const QString &word : words)
        if (WordList::isWord(word.toUpper()) &&
            std::any_of(word.begin(), word.end(), [](QChar c) { return IsLetter(c.toUpper()); }))
            m_words.append(word.toUpper());
    if (m_words.isEmpty()) {
        qCWarning(lcSpaceRace) << "a race needs at least one word";
        m_phase = Phase::Idle;
        return;
    }
    // Values come from a file anyone can edit; the race keeps to the ranges it can play.
    m_players = qint16(qBound(1, int(settings.players), int(MaxPlayers)));
    m_game = settings.gameType == 1 ? Game::Flasher : Game::Scrambler;
    for (int i = 0; i < MaxPlayers; ++i) {
        const QString name = settings.names[size_t(i)].trimmed();
        m_names[size_t(i)] = name.isEmpty() ? QStringLiteral("Player %1").arg(i + 1) : name;
    }
    m_position.fill(0);
    shuffleOrders();
    m_current = 1;
    m_turn = 1;
    present();
}

void RocketRace::shuffleOrders()
{
    const qint16 count = qint16(m_words.size());
    for (int player = 0; player < m_players; ++player) {
        QList<qint16> &order = m_orders[size_t(player)];
        order = QList<qint16>(count + 1, 0);
        Shuffle(count, order);
    }
}

void RocketRace::present()
{
    const qint16 number = m_orders[size_t(m_current - 1)].value(m_turn, 1);
    m_word = m_words.value(number - 1);
    m_done = 0;
    m_wrong = 0;
    m_flashes = 0;
    m_scrambled.clear();
    if (m_game == Game::Scrambler) {
        m_scrambled = scramble(m_word);
        m_phase = Phase::Typing;
    } else {
        m_phase = Phase::Waiting;
    }
    skipMarks();
}

void RocketRace::skipMarks()
{
    while (m_done < m_word.size() && !IsLetter(m_word[m_done]))
        ++m_done;
}

bool RocketRace::canFlash() const
{
    return m_game == Game::Flasher && m_flashes < MaxFlashes &&
           (m_phase == Phase::Waiting || m_phase == Phase::Typing);
}

bool RocketRace::flash()
{
    if (!canFlash())
        return false;
    ++m_flashes;
    m_phase = Phase::Typing;
    return true;
}

RocketRace::KeyResult RocketRace::key(QChar key)
{
    if (m_phase != Phase::Typing)
        return KeyResult::Ignored;
    if (key >= u'a' && key <= u'z')
        key = QChar(key.unicode() - 32);
    if (!IsLetter(key) && key != u'\b')
        return KeyResult::Ignored;

    // Backspace never equals a letter, so it counts as a wrong letter.
    if (m_done < m_word.size() && key == m_word[m_done]) {
        ++m_done;
        skipMarks();
        if (m_done < m_word.size())
            return KeyResult::Right;
        qint16 &position = m_position[size_t(m_current - 1)];
        position = advance(position, m_wrong);
        m_phase = Phase::WordDone;
        return KeyResult::WordDone;
    }
    ++m_wrong;
    if (m_wrong >= WrongLimit) {
        m_phase = Phase::TurnLost;
        return KeyResult::TurnLost;
    }
    // The last letter is never given away: a word must end with a letter the pupil typed.
    if (m_game == Game::Scrambler && m_done < GiveAwayPlaces && m_done + 1 < m_word.size()) {
        ++m_done;
        skipMarks();
    }
    return KeyResult::Wrong;
}

RocketRace::TurnResult RocketRace::nextTurn()
{
    if (m_phase == Phase::Idle)
        return TurnResult::Over;
    if (m_current < m_players) {
        ++m_current;
        present();
        return TurnResult::NextTurn;
    }
    m_current = 1;
    ++m_turn;
    if (m_turn > m_words.size()) {
        m_turn = 1;
        shuffleOrders();
    }
    for (int player = 1; player <= m_players; ++player) {
        if (hasFinished(player)) {
            qCDebug(lcSpaceRace) << "race over; finishers" << finishers();
            m_phase = Phase::Idle;
            return TurnResult::Over;
        }
    }
    present();
    return TurnResult::NextTurn;
}

void RocketRace::stop()
{
    m_phase = Phase::Idle;
}

QString RocketRace::name(int player) const
{
    return player >= 1 && player <= MaxPlayers ? m_names[size_t(player - 1)] : QString();
}

QStringList RocketRace::names() const
{
    QStringList list;
    for (int player = 1; player <= MaxPlayers; ++player)
        list.append(name(player));
    return list;
}

qint16 RocketRace::position(int player) const
{
    return player >= 1 && player <= MaxPlayers ? m_position[size_t(player - 1)] : qint16(0);
}

QList<qint16> RocketRace::finishers() const
{
    QList<qint16> flags;
    for (int player = 1; player <= MaxPlayers; ++player)
        flags.append(player <= m_players && hasFinished(player) ? 1 : 0);
    return flags;
}

QString RocketRace::hidden() const
{
    return typed() + QString(m_word.size() - m_done, u'*');
}

QList<qint16> RocketRace::order(int player) const
{
    if (player < 1 || player > MaxPlayers)
        return {};
    return m_orders[size_t(player - 1)].mid(1);
}

qint16 RocketRace::advance(qint16 position, qint16 wrong)
{
    const double gained =
        (WrongLimit - qint16(qBound(0, int(wrong), int(WrongLimit)))) * 10.0 / 3.0;
    // The default rounding mode rounds half to even. A rocket never flies past the moon by
    // more than one word, far inside 16 bits.
    return qint16(std::nearbyint(qMin<double>(position, Moon) + gained));
}

QString RocketRace::scramble(const QString &word, RandomSource &random)
{
    if (word.size() < 2 || word.count(word.front()) == word.size())
        return word;
    const qint16 length = qint16(word.size());
    QList<qint16> order(length + 1, 0);
    QString result;
    // Almost every draw differs from the word; after many that do not, a turn by one place
    // surely does, as the letters are not all alike.
    for (int draw = 0; draw < 100; ++draw) {
        Shuffle(length, order, random);
        result.clear();
        for (int i = 1; i <= length; ++i)
            result += word[order[i] - 1];
        if (result != word)
            return result;
    }
    return word.mid(1) + word.front();
}
