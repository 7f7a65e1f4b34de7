// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseSolver.h"

#include <algorithm>
#include <array>
#include <optional>
#include <QHash>
#include <QRegularExpression>

namespace {

constexpr int N = 5;

// What a reader of the case knows: the suspects' names and every phrase "verb value". The
// label of a value is only a tag for it; the solver never takes it for its owner.
struct Vocabulary {
    QList<QPair<QString, int>> names;      // name, suspect 0-4
    QHash<QString, QPair<int, int>> facts; // phrase -> attribute 0-4, value label 0-4
};

Vocabulary vocabularyOf(const Case &c)
{
    Vocabulary v;
    for (int s = 1; s <= N; ++s)
        v.names.append({c.name(s), s - 1});
    for (int k = 1; k <= N; ++k)
        for (int s = 1; s <= N; ++s)
            v.facts.insert(c.fact(k, s), {k - 1, s - 1});
    return v;
}

struct Constraint {
    enum Kind { Name, Link, Unlink, Thief } kind = Name;
    int suspect = -1;
    int k1 = -1, l1 = -1, k2 = -1, l2 = -1;
};

std::optional<Constraint> readClue(const QString &text, const Vocabulary &v, QString &problem)
{
    auto factOf = [&v](const QString &phrase) -> std::optional<QPair<int, int>> {
        const auto it = v.facts.constFind(phrase);
        return it == v.facts.cend() ? std::nullopt : std::optional(*it);
    };
    static const QString thief = QStringLiteral("The thief ");
    static const QString who = QStringLiteral("The suspect who ");
    static const QString notOne = QStringLiteral(" is not the one who ");
    QList<Constraint> readings;
    if (text.startsWith(thief)) {
        if (const auto f = factOf(text.mid(thief.size())))
            readings.append({Constraint::Thief, -1, f->first, f->second});
    } else if (text.startsWith(who)) {
        const QString rest = text.mid(who.size());
        for (auto it = v.facts.cbegin(); it != v.facts.cend(); ++it) {
            if (!rest.startsWith(it.key()))
                continue;
            const QString after = rest.mid(it.key().size());
            if (after.startsWith(notOne)) {
                if (const auto f = factOf(after.mid(notOne.size())))
                    readings.append(
                        {Constraint::Unlink, -1, it->first, it->second, f->first, f->second});
            }
            if (after.startsWith(u' ')) {
                if (const auto f = factOf(after.mid(1)))
                    readings.append(
                        {Constraint::Link, -1, it->first, it->second, f->first, f->second});
            }
        }
    } else {
        for (const auto &[name, suspect] : v.names) {
            if (text.startsWith(name + u' ')) {
                if (const auto f = factOf(text.mid(name.size() + 1)))
                    readings.append({Constraint::Name, suspect, f->first, f->second});
            }
        }
    }
    if (readings.size() != 1) {
        problem = QStringLiteral("the clue \"%1\" reads in %2 ways").arg(text).arg(readings.size());
        return std::nullopt;
    }
    const Constraint &r = readings.first();
    if ((r.kind == Constraint::Link || r.kind == Constraint::Unlink) && r.k1 == r.k2) {
        problem = QStringLiteral("the clue \"%1\" joins two values of one attribute").arg(text);
        return std::nullopt;
    }
    return r;
}

// All 120 orders of five values; row p gives the value label of each suspect.
struct Permutations {
    qint8 label[120][N];
    Permutations()
    {
        std::array<qint8, N> p{0, 1, 2, 3, 4};
        int i = 0;
        do
            std::copy(p.cbegin(), p.cend(), label[i++]);
        while (std::next_permutation(p.begin(), p.end()));
    }
};

// Shares out the values attribute by attribute, testing each clue as soon as the attributes
// it speaks of are shared out. Plain arrays keep it quick in unoptimised sanitizer builds.
class Search {
public:
    explicit Search(const QList<Constraint> &constraints)
    {
        static const Permutations all;
        m_all = &all;
        int depthOf[N] = {};
        for (int d = 0; d < N; ++d)
            depthOf[Order[d]] = d;
        for (int k = 0; k < N; ++k) {
            for (int p = 0; p < 120; ++p) {
                bool fits = true;
                for (const Constraint &c : constraints)
                    if (c.kind == Constraint::Name && c.k1 == k && all.label[p][c.suspect] != c.l1)
                        fits = false;
                if (fits)
                    m_allowed[k][m_allowedCount[k]++] = p;
            }
        }
        for (const Constraint &c : constraints) {
            if (c.kind == Constraint::Link || c.kind == Constraint::Unlink) {
                const int d = std::max(depthOf[c.k1], depthOf[c.k2]);
                m_checks[d][m_checkCount[d]++] = c;
            }
            if (c.kind == Constraint::Thief)
                m_thief = c;
        }
    }

    void run(CaseSolver::Result &result) { step(0, result); }

private:
    void step(int depth, CaseSolver::Result &result)
    {
        if (depth == N) {
            ++result.assignments;
            result.thieves.insert(m_owner[m_thief.k1][m_thief.l1] + 1);
            return;
        }
        const int k = Order[depth];
        int *owner = m_owner[k];
        const Constraint *checks = m_checks[depth];
        const int checkCount = m_checkCount[depth];
        for (int a = 0; a < m_allowedCount[k]; ++a) {
            const qint8 *label = m_all->label[m_allowed[k][a]];
            for (int x = 0; x < N; ++x)
                owner[label[x]] = x;
            bool fits = true;
            for (int i = 0; i < checkCount && fits; ++i) {
                const Constraint &c = checks[i];
                const bool same = m_owner[c.k1][c.l1] == m_owner[c.k2][c.l2];
                fits = same == (c.kind == Constraint::Link);
            }
            if (fits)
                step(depth + 1, result);
        }
    }

    // The two most linked attributes first, then the thief's: most branches end early.
    static constexpr int Order[N] = {0, 1, 3, 4, 2};
    const Permutations *m_all = nullptr;
    int m_allowed[N][120] = {};
    int m_allowedCount[N] = {};
    Constraint m_checks[N][Case::Clues];
    int m_checkCount[N] = {};
    Constraint m_thief;
    int m_owner[N][N] = {}; // [attribute][value label] -> suspect
};

} // namespace

CaseSolver::Result CaseSolver::solve(const Case &c)
{
    Result result;
    const Vocabulary vocabulary = vocabularyOf(c);
    static const QRegularExpression line(QStringLiteral("^Clue (\\d+):  (.*)\\.$"));
    QList<Constraint> constraints;
    int thiefClues = 0;
    for (const QString &row : c.clueList.split(u'\n')) {
        const auto match = line.match(row);
        if (!match.hasMatch())
            continue;
        const auto constraint = readClue(match.captured(2), vocabulary, result.problem);
        if (!constraint)
            return result;
        thiefClues += constraint->kind == Constraint::Thief;
        constraints.append(*constraint);
    }
    if (constraints.size() != Case::Clues || thiefClues != 1) {
        result.problem =
            QStringLiteral("%1 clues, %2 about the thief").arg(constraints.size()).arg(thiefClues);
        return result;
    }
    Search(constraints).run(result);
    return result;
}

namespace {

// A sentence cut into the names, phrases, pronoun and joining words it is made of.
struct Token {
    enum Kind { Name, Fact, Pronoun, Piece } kind;
    QString text;
    int suspect = -1;               // names
    int attribute = -1, label = -1; // facts
};

const QStringList &pieces()
{
    static const QStringList list{QStringLiteral("Since the thief"),
                                  QStringLiteral("must be the one who"),
                                  QStringLiteral("is not the suspect who"),
                                  QStringLiteral("This means that"),
                                  QStringLiteral("is the one who"),
                                  QStringLiteral("Therefore,"),
                                  QStringLiteral(". Therefore,"),
                                  QStringLiteral("."),
                                  QStringLiteral(", so"),
                                  QStringLiteral("Since"),
                                  QStringLiteral(","),
                                  QStringLiteral(", and"),
                                  QStringLiteral("But"),
                                  QStringLiteral("Therefore, one suspect"),
                                  QStringLiteral("Therefore, that one suspect is"),
                                  QStringLiteral("is the thief."),
                                  QStringLiteral("is not the thief."),
                                  QStringLiteral("By process of elimination,")};
    return list;
}

// Names, phrases and joining words by their first letter, so each place in a sentence tries
// only a few.
using TokenIndex = QHash<QChar, QList<Token>>;

TokenIndex indexOf(const Vocabulary &v)
{
    TokenIndex byFirst;
    for (const auto &[name, suspect] : v.names)
        byFirst[name[0]].append({Token::Name, name, suspect});
    for (auto it = v.facts.cbegin(); it != v.facts.cend(); ++it)
        byFirst[it.key()[0]].append({Token::Fact, it.key(), -1, it->first, it->second});
    for (const QString &piece : pieces())
        byFirst[piece[0]].append({Token::Piece, piece});
    return byFirst;
}

std::optional<QList<Token>> tokenise(const QString &sentence, const TokenIndex &byFirst,
                                     const QString &pronoun, QString &problem)
{
    QList<Token> tokens;
    qsizetype i = 0;
    while (true) {
        while (i < sentence.size() && sentence[i] == u' ')
            ++i;
        if (i >= sentence.size())
            return tokens;
        const QStringView rest = QStringView(sentence).mid(i);
        const Token *best = nullptr;
        const auto candidates = byFirst.constFind(sentence[i]);
        if (candidates != byFirst.cend())
            for (const Token &t : *candidates)
                if ((!best || t.text.size() > best->text.size()) && rest.startsWith(t.text))
                    best = &t;
        const Token pronounToken{Token::Pronoun, pronoun};
        if (!best && rest.startsWith(pronoun + u' '))
            best = &pronounToken;
        if (!best) {
            problem = QStringLiteral("cannot read \"%1\"").arg(rest.toString());
            return std::nullopt;
        }
        tokens.append(*best);
        i += best->text.size();
    }
}

} // namespace

QString CaseSolver::checkSolution(const Case &c)
{
    const TokenIndex index = indexOf(vocabularyOf(c));
    const QString pronoun = c.pronoun.trimmed();
    const int thief = c.thiefPosition - 1;
    auto has = [](int suspect, const Token &fact) { return fact.label == suspect; };
    QList<Token> oneSuspect; // the facts of the last "one suspect ..." sentence
    for (const QString &sentence : c.solution.sentences) {
        auto untrue = [&sentence](const QString &why) {
            return QStringLiteral("\"%1\": %2").arg(sentence, why);
        };
        if (sentence.contains(QLatin1String("  ")) || sentence.contains(QLatin1String(" ,")) ||
            sentence.contains(QLatin1String(" .")) || !sentence.endsWith(u'.') ||
            !sentence[0].isUpper())
            return untrue(QStringLiteral("badly joined"));
        QString problem;
        const auto read = tokenise(sentence, index, pronoun, problem);
        if (!read)
            return untrue(problem);
        const QList<Token> &t = *read;
        int claims = 0;
        int lastName = -1;
        for (qsizetype i = 0; i < t.size(); ++i) {
            const Token &token = t[i];
            const Token *next = i + 1 < t.size() ? &t[i + 1] : nullptr;
            auto subject = [&]() -> int {
                if (i == 0)
                    return -1;
                if (t[i - 1].kind == Token::Name)
                    return t[i - 1].suspect;
                if (t[i - 1].kind == Token::Pronoun)
                    return lastName;
                return -1;
            };
            if (token.kind == Token::Name) {
                lastName = token.suspect;
                if (next && next->kind == Token::Fact) {
                    ++claims;
                    if (!has(token.suspect, *next))
                        return untrue(token.text + QStringLiteral(" does not ") + next->text);
                }
            } else if (token.kind == Token::Pronoun && lastName < 0) {
                return untrue(QStringLiteral("the pronoun has no name before it"));
            } else if (token.kind == Token::Piece) {
                const QString &p = token.text;
                const int who = subject();
                if (p == QLatin1String("must be the one who") ||
                    p == QLatin1String("is the one who") ||
                    p == QLatin1String("is not the suspect who")) {
                    if (who < 0 || !next || next->kind != Token::Fact)
                        return untrue(QStringLiteral("\"%1\" without a suspect or a fact").arg(p));
                    ++claims;
                    if (has(who, *next) != (p != QLatin1String("is not the suspect who")))
                        return untrue(QStringLiteral("wrong about ") + c.name(who + 1));
                } else if (p == QLatin1String("is the thief.") ||
                           p == QLatin1String("is not the thief.")) {
                    if (who < 0)
                        return untrue(QStringLiteral("no suspect before \"%1\"").arg(p));
                    ++claims;
                    if ((who == thief) != (p == QLatin1String("is the thief.")))
                        return untrue(QStringLiteral("wrong about the thief"));
                } else if (p == QLatin1String("Since the thief")) {
                    if (!next || next->kind != Token::Fact)
                        return untrue(QStringLiteral("no fact after \"the thief\""));
                    ++claims;
                    if (!has(thief, *next))
                        return untrue(QStringLiteral("the thief does not ") + next->text);
                } else if (p == QLatin1String("Therefore, one suspect")) {
                    oneSuspect.clear();
                    for (qsizetype j = i + 1; j < t.size(); ++j) {
                        if (t[j].kind == Token::Fact)
                            oneSuspect.append(t[j]);
                        else if (t[j].kind != Token::Piece || t[j].text == QLatin1String("."))
                            break;
                    }
                    ++claims;
                    const int owner = oneSuspect.isEmpty() ? -1 : oneSuspect.first().label;
                    for (const Token &fact : oneSuspect)
                        if (owner < 0 || !has(owner, fact))
                            return untrue(QStringLiteral("no one suspect has all of these"));
                } else if (p == QLatin1String("Therefore, that one suspect is")) {
                    if (!next || next->kind != Token::Name)
                        return untrue(QStringLiteral("no name for \"that one suspect\""));
                    ++claims;
                    if (oneSuspect.isEmpty())
                        return untrue(QStringLiteral("no \"one suspect\" before"));
                    for (const Token &fact : oneSuspect)
                        if (!has(next->suspect, fact))
                            return untrue(next->text + QStringLiteral(" does not ") + fact.text);
                }
            }
        }
        if (claims == 0)
            return untrue(QStringLiteral("says nothing that can be checked"));
    }
    if (c.solution.sentences.isEmpty() ||
        !c.solution.sentences.last().endsWith(QLatin1String("is the thief.")))
        return QStringLiteral("the solution does not end by naming the thief");
    return {};
}
