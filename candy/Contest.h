// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Random.h"

#include <optional>
#include <QList>
#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcCandy)

// The two-week candy contest: the neighbourhood of named streets and their houses, the
// pupil's teams and the other class's, the weather, and every day's sales. The window sends
// teams to streets and asks it to sell the day; everything random comes from the contest's
// own generator, so a seed and the same choices always give the same contest.
class Contest {
public:
    static constexpr int Days = 10;
    static constexpr int MinTeams = 1;
    static constexpr int MaxTeams = 5;
    static constexpr int DefaultTeams = 3;
    static constexpr int BoxPrice = 2; // dollars
    static constexpr int MaxBoxesPerHouse = 3;

    enum class Kind { Apartment, SmallHouse, BigHouse };
    enum class Weather { Sunny, Cloudy, Rainy };
    enum class Side { Ours, Theirs };
    enum class Winner { Ours, Theirs, Tie };

    struct House {
        Kind kind = Kind::SmallHouse;
        int street = 0;
        int lastBought = 0; // the day it last bought, 0 when it never has
        Side lastBuyer = Side::Ours;
    };
    struct Visit {
        int day = 0;
        Side side = Side::Ours;
    };
    struct Street {
        QString name;
        QList<int> houses; // indexes into houses()
        double liking = 1; // how fond of candy the street is; found out only by selling there
        QList<Visit> visits;
    };
    // What one team did on one day.
    struct TeamDay {
        int team = 0; // 0-based
        int street = 0;
        int houses = 0; // houses visited
        int boxes = 0;
    };
    struct DayReport {
        int day = 0;
        Weather weather = Weather::Sunny;
        QList<TeamDay> ours;
        QList<TeamDay> theirs;
        QList<int> streetOurs; // boxes by street
        QList<int> streetTheirs;
        int boxesOurs = 0;
        int boxesTheirs = 0;
        int totalOurs = 0; // boxes so far, this day included
        int totalTheirs = 0;
    };

    Contest(int teams, qint64 seed);

    // The number of teams a setting asks for, brought into 1 to 5.
    static int clampTeams(int value);
    static qint64 money(qint64 boxes) { return boxes * BoxPrice; }

    int teams() const { return m_teams; }
    qint64 seed() const { return m_seed; }
    // The day being planned, 1 to 10; 11 once the contest is over.
    int day() const { return int(m_reports.size()) + 1; }
    bool isOver() const { return m_reports.size() >= Days; }
    // Today's weather, known in the morning.
    Weather weather() const { return m_weather; }
    const QList<Street> &streets() const { return m_streets; }
    const QList<House> &houses() const { return m_houses; }
    const QList<DayReport> &reports() const { return m_reports; }

    // Sends a team (0-based) to a street, or back to the school with -1. False for a team or
    // street that does not exist, or once the contest is over.
    bool assign(int team, int street);
    int assignment(int team) const;
    bool allAssigned() const;

    // Where the other class sends its teams today: sensible (streets that have not bought
    // lately, one team to a street) but not perfect (it guesses, and cannot know which streets
    // like candy best or how rain spoils house-to-house selling).
    QList<int> planRival();
    // Sells the day with our teams where assigned and the other class's where given: every
    // house on a street is visited by one of the teams there, shared out in turn. Nothing is
    // sold (and nothing changes) unless every team of ours and theirs is on a real street.
    std::optional<DayReport> sellDay(const QList<int> &rivalPlan);

    int totalBoxes(Side side) const;
    Winner winner() const;

    // How much a house of a kind is likely to buy on one visit, before anything else counts.
    static double expectedBoxes(Kind kind);
    // How far a house has got over its last purchase, 0 to 1, by the days since it bought.
    static double recovery(int daysSince);
    static double weatherFactor(Kind kind, Weather weather);
    // What a pupil can read off the map for a street today: the boxes its houses would buy
    // from one team, by their kinds and how recently they bought, with or without the weather.
    double outlook(int street, bool withWeather) const;
    double houseRecovery(int house) const;

    static QString weatherName(Weather weather);
    static QString kindName(Kind kind);
    static QString sideName(Side side);
    static QString teamName(Side side, int team);

private:
    void buildNeighbourhood();
    void drawWeather();
    int sellHouse(House &house, double liking);

    int m_teams;
    qint64 m_seed;
    Generator m_random;
    Weather m_weather = Weather::Sunny;
    QList<Street> m_streets;
    QList<House> m_houses;
    QList<int> m_assignment;
    QList<DayReport> m_reports;
};
