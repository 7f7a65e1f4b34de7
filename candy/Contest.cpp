// SPDX-License-Identifier: GPL-3.0-or-later
#include "Contest.h"

#include <algorithm>
#include <QCoreApplication>

Q_LOGGING_CATEGORY(lcCandy, "lumbridle.candy")

namespace {

// The neighbourhood: each street's houses by kind, A an apartment, s a small house, B a big
// house. Ninety-nine homes; the mixes differ so that streets reward different days.
struct StreetPlan {
    const char *name;
    const char *homes;
};
constexpr StreetPlan Plan[] = {
    {QT_TRANSLATE_NOOP("Contest", "Maple Street"), "ssBsssBssssBss"},
    {QT_TRANSLATE_NOOP("Contest", "Oak Street"), "BBBBBBBBBB"},
    {QT_TRANSLATE_NOOP("Contest", "Cherry Lane"), "AAAAAAAAAAAAAAAA"},
    {QT_TRANSLATE_NOOP("Contest", "Pine Street"), "sssssssssssssss"},
    {QT_TRANSLATE_NOOP("Contest", "Willow Way"), "AAAAAAAAssssss"},
    {QT_TRANSLATE_NOOP("Contest", "Birch Road"), "BsBsBsBsBsBs"},
    {QT_TRANSLATE_NOOP("Contest", "Elm Street"), "sssAAAAAAAAAAAAsss"},
};

double ChanceToBuy(Contest::Kind kind)
{
    switch (kind) {
    case Contest::Kind::Apartment:
        return 0.55;
    case Contest::Kind::SmallHouse:
        return 0.6;
    case Contest::Kind::BigHouse:
        return 0.65;
    }
    return 0.5;
}

// Chances of 1, 2 and 3 boxes once a house has decided to buy.
struct BoxOdds {
    double one;
    double two;
};
BoxOdds Odds(Contest::Kind kind)
{
    switch (kind) {
    case Contest::Kind::Apartment:
        return {0.75, 0.25};
    case Contest::Kind::SmallHouse:
        return {0.5, 0.4};
    case Contest::Kind::BigHouse:
        return {0.3, 0.4};
    }
    return {1, 0};
}

} // namespace

Contest::Contest(int teams, qint64 seed) : m_teams(clampTeams(teams)), m_seed(seed), m_random(seed)
{
    buildNeighbourhood();
    m_assignment = QList<int>(m_teams, -1);
    drawWeather();
}

int Contest::clampTeams(int value)
{
    return qBound(MinTeams, value, MaxTeams);
}

void Contest::buildNeighbourhood()
{
    for (const StreetPlan &plan : Plan) {
        Street street;
        street.name = QCoreApplication::translate("Contest", plan.name);
        // Some streets love candy and some do not; nobody knows which until they sell there.
        street.liking = 0.4 + 1.2 * m_random.next();
        for (const char *c = plan.homes; *c; ++c) {
            House house;
            house.kind = *c == 'A'   ? Kind::Apartment
                         : *c == 'B' ? Kind::BigHouse
                                     : Kind::SmallHouse;
            house.street = int(m_streets.size());
            street.houses.append(int(m_houses.size()));
            m_houses.append(house);
        }
        m_streets.append(street);
    }
}

void Contest::drawWeather()
{
    const double r = m_random.next();
    m_weather = r < 0.5 ? Weather::Sunny : r < 0.8 ? Weather::Cloudy : Weather::Rainy;
}

bool Contest::assign(int team, int street)
{
    if (isOver() || team < 0 || team >= m_teams || street < -1 || street >= m_streets.size())
        return false;
    m_assignment[team] = street;
    return true;
}

int Contest::assignment(int team) const
{
    return team >= 0 && team < m_teams ? m_assignment[team] : -1;
}

bool Contest::allAssigned() const
{
    return std::all_of(m_assignment.begin(), m_assignment.end(), [](int s) { return s >= 0; });
}

double Contest::expectedBoxes(Kind kind)
{
    const BoxOdds odds = Odds(kind);
    const double perSale = odds.one + 2 * odds.two + 3 * (1 - odds.one - odds.two);
    return ChanceToBuy(kind) * perSale;
}

double Contest::recovery(int daysSince)
{
    if (daysSince <= 0)
        return 0;
    static constexpr double Steps[] = {0.1, 0.3, 0.55, 0.8};
    return daysSince <= 4 ? Steps[daysSince - 1] : 1.0;
}

double Contest::weatherFactor(Kind kind, Weather weather)
{
    switch (weather) {
    case Weather::Sunny:
        return 1;
    case Weather::Cloudy:
        return 0.9;
    case Weather::Rainy:
        // Apartment doors are indoors, out of the rain; people in houses do not come out.
        return kind == Kind::Apartment ? 0.85 : 0.5;
    }
    return 1;
}

double Contest::houseRecovery(int house) const
{
    if (house < 0 || house >= m_houses.size())
        return 1;
    const House &h = m_houses[house];
    return h.lastBought == 0 ? 1.0 : recovery(day() - h.lastBought);
}

double Contest::outlook(int street, bool withWeather) const
{
    if (street < 0 || street >= m_streets.size())
        return 0;
    double sum = 0;
    for (int index : m_streets[street].houses) {
        const House &h = m_houses[index];
        sum += expectedBoxes(h.kind) * houseRecovery(index) *
               (withWeather ? weatherFactor(h.kind, m_weather) : 1.0);
    }
    return sum;
}

QList<int> Contest::planRival()
{
    const int streets = int(m_streets.size());
    // Each street's worth as the other class guesses it: it knows where it sold itself, not
    // where we did. The draws are made whatever the pupil has chosen, so the pupil's choices
    // cannot change the rival's.
    QList<double> guess(streets);
    for (int s = 0; s < streets; ++s) {
        double worth = 0;
        for (int index : m_streets[s].houses) {
            const House &h = m_houses[index];
            worth +=
                expectedBoxes(h.kind) * (h.lastBuyer == Side::Theirs ? houseRecovery(index) : 1.0);
        }
        guess[s] = worth * (0.6 + 0.8 * m_random.next());
    }
    QList<int> plan;
    for (int t = 0; t < m_teams; ++t) {
        const double habit = m_random.next();
        const double whim = m_random.next();
        const int pick = int(m_random.next() * streets);
        QList<int> free;
        for (int s = 0; s < streets; ++s)
            if (!plan.contains(s))
                free.append(s);
        int chosen = free.first();
        const int yesterday = m_reports.isEmpty() ? -1 : m_reports.last().theirs[t].street;
        if (habit < 0.35 && free.contains(yesterday)) {
            // Children like going back to the street they know.
            chosen = yesterday;
        } else if (whim < 0.2) {
            chosen = free[pick % free.size()];
        } else {
            for (int s : free)
                if (guess[s] > guess[chosen])
                    chosen = s;
        }
        plan.append(chosen);
    }
    return plan;
}

int Contest::sellHouse(House &house, double liking)
{
    const double chance =
        qMin(0.95, ChanceToBuy(house.kind) * liking *
                       (house.lastBought == 0 ? 1.0 : recovery(day() - house.lastBought)) *
                       weatherFactor(house.kind, m_weather));
    const double buys = m_random.next();
    const double howMany = m_random.next();
    if (buys >= chance)
        return 0;
    const BoxOdds odds = Odds(house.kind);
    return howMany < odds.one ? 1 : howMany < odds.one + odds.two ? 2 : 3;
}

std::optional<Contest::DayReport> Contest::sellDay(const QList<int> &rivalPlan)
{
    const int streets = int(m_streets.size());
    if (isOver() || !allAssigned() || rivalPlan.size() != m_teams)
        return std::nullopt;
    for (int s : rivalPlan)
        if (s < 0 || s >= streets)
            return std::nullopt;

    DayReport report;
    report.day = day();
    report.weather = m_weather;
    report.streetOurs = QList<int>(streets, 0);
    report.streetTheirs = QList<int>(streets, 0);
    for (int t = 0; t < m_teams; ++t) {
        report.ours.append(TeamDay{t, m_assignment[t], 0, 0});
        report.theirs.append(TeamDay{t, rivalPlan[t], 0, 0});
    }

    for (int s = 0; s < streets; ++s) {
        // The teams on this street, both classes', take its houses in turn from a random door.
        struct Seller {
            Side side;
            TeamDay *team;
        };
        QList<Seller> here;
        for (int t = 0; t < m_teams; ++t) {
            if (report.ours[t].street == s)
                here.append(Seller{Side::Ours, &report.ours[t]});
            if (report.theirs[t].street == s)
                here.append(Seller{Side::Theirs, &report.theirs[t]});
        }
        if (here.isEmpty())
            continue;
        QList<int> doors = m_streets[s].houses;
        for (qsizetype i = doors.size() - 1; i > 0; --i)
            doors.swapItemsAt(i, qsizetype(m_random.next() * double(i + 1)));
        const qsizetype first = qsizetype(m_random.next() * double(here.size()));
        for (qsizetype i = 0; i < doors.size(); ++i) {
            const Seller &seller = here[(first + i) % here.size()];
            House &house = m_houses[doors[i]];
            const int boxes = sellHouse(house, m_streets[s].liking);
            ++seller.team->houses;
            seller.team->boxes += boxes;
            if (boxes > 0) {
                house.lastBought = report.day;
                house.lastBuyer = seller.side;
            }
            (seller.side == Side::Ours ? report.streetOurs : report.streetTheirs)[s] += boxes;
        }
        Street &street = m_streets[s];
        for (const Seller &seller : std::as_const(here)) {
            const bool noted =
                std::any_of(street.visits.begin(), street.visits.end(), [&](const Visit &v) {
                    return v.day == report.day && v.side == seller.side;
                });
            if (!noted)
                street.visits.append(Visit{report.day, seller.side});
        }
    }
    for (const TeamDay &t : std::as_const(report.ours))
        report.boxesOurs += t.boxes;
    for (const TeamDay &t : std::as_const(report.theirs))
        report.boxesTheirs += t.boxes;
    report.totalOurs = totalBoxes(Side::Ours) + report.boxesOurs;
    report.totalTheirs = totalBoxes(Side::Theirs) + report.boxesTheirs;
    m_reports.append(report);

    // A new morning: the teams wait at the school for their streets.
    m_assignment.fill(-1);
    if (!isOver())
        drawWeather();
    return report;
}

int Contest::totalBoxes(Side side) const
{
    if (m_reports.isEmpty())
        return 0;
    return side == Side::Ours ? m_reports.last().totalOurs : m_reports.last().totalTheirs;
}

Contest::Winner Contest::winner() const
{
    const int ours = totalBoxes(Side::Ours);
    const int theirs = totalBoxes(Side::Theirs);
    return ours > theirs ? Winner::Ours : ours < theirs ? Winner::Theirs : Winner::Tie;
}

QString Contest::weatherName(Weather weather)
{
    switch (weather) {
    case Weather::Sunny:
        return QCoreApplication::translate("Contest", "Sunny");
    case Weather::Cloudy:
        return QCoreApplication::translate("Contest", "Cloudy");
    case Weather::Rainy:
        return QCoreApplication::translate("Contest", "Rainy");
    }
    return {};
}

QString Contest::kindName(Kind kind)
{
    switch (kind) {
    case Kind::Apartment:
        return QCoreApplication::translate("Contest", "Apartment");
    case Kind::SmallHouse:
        return QCoreApplication::translate("Contest", "Small house");
    case Kind::BigHouse:
        return QCoreApplication::translate("Contest", "Big house");
    }
    return {};
}

QString Contest::sideName(Side side)
{
    return side == Side::Ours ? QCoreApplication::translate("Contest", "Our Class")
                              : QCoreApplication::translate("Contest", "Other Class");
}

QString Contest::teamName(Side side, int team)
{
    // Our teams are numbered, the other class's lettered, so the two never look alike.
    return side == Side::Ours
               ? QCoreApplication::translate("Contest", "Team %1").arg(team + 1)
               : QCoreApplication::translate("Contest", "Team %1").arg(QChar(u'A' + team));
}
