// SPDX-License-Identifier: GPL-3.0-or-later
#include "candy/Contest.h"

#include <QTest>

// The contest's rules without any window: sales, recovery, sharing, the other class, replay.
class tst_candy_rules : public QObject {
    Q_OBJECT
private slots:
    void teamsComeIntoRange_data();
    void teamsComeIntoRange();
    void totalsAddUp_data();
    void totalsAddUp();
    void noDayWithoutEveryTeamOnAStreet();
    void recentBuyersBuyLessAndRecover();
    void teamsOnOneStreetShareIt();
    void planningWins();
    void aSeedReplaysTheContest();
};

namespace {

using Side = Contest::Side;

// A thoughtful pupil: reads the map (how recently each street bought, the weather), learns
// from the reports how fond of candy each street is, and sends each team to a different one
// of the best streets.
class Planner {
public:
    explicit Planner(const Contest &contest) : m_liking(contest.streets().size(), 1.1) {}

    QList<int> plan(const Contest &contest)
    {
        QList<int> chosen;
        for (int t = 0; t < contest.teams(); ++t) {
            int best = -1;
            for (int s = 0; s < contest.streets().size(); ++s)
                if (!chosen.contains(s) && (best < 0 || value(contest, s) > value(contest, best)))
                    best = s;
            chosen.append(best);
        }
        m_expected.clear();
        for (int s : std::as_const(chosen))
            m_expected[s] = contest.outlook(s, true);
        return chosen;
    }

    void learn(const Contest &contest, const Contest::DayReport &report)
    {
        for (auto [street, expected] : m_expected.asKeyValueRange()) {
            int visited = 0;
            for (const Contest::TeamDay &t : report.ours)
                if (t.street == street)
                    visited += t.houses;
            const double share =
                expected * visited / double(contest.streets()[street].houses.size());
            if (share > 1)
                m_liking[street] = report.streetOurs[street] / share;
        }
    }

private:
    double value(const Contest &contest, int s) const
    {
        return contest.outlook(s, true) * m_liking[s];
    }
    QList<double> m_liking;
    QMap<int, double> m_expected;
};

void Send(Contest &contest, const QList<int> &streets)
{
    for (int t = 0; t < streets.size(); ++t)
        QVERIFY(contest.assign(t, streets[t]));
}

// Plays a whole contest; `strategy` says where our teams go each morning.
template <typename Strategy> Contest Play(int teams, qint64 seed, Strategy strategy)
{
    Contest contest(teams, seed);
    while (!contest.isOver()) {
        const QList<int> rival = contest.planRival();
        Send(contest, strategy(contest));
        const auto report = contest.sellDay(rival);
        if (!report)
            qFatal("a fully assigned day did not sell");
    }
    return contest;
}

double AverageBoxes(const QList<int> &counts)
{
    double sum = 0;
    for (int c : counts)
        sum += c;
    return sum / double(counts.size());
}

} // namespace

void tst_candy_rules::teamsComeIntoRange_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("teams");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("negative") << -32768 << 1;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("reference") << 3 << 3;
    QTest::newRow("five") << 5 << 5;
    QTest::newRow("six") << 6 << 5;
    QTest::newRow("huge") << 32767 << 5;
}

void tst_candy_rules::teamsComeIntoRange()
{
    QFETCH(int, asked);
    QFETCH(int, teams);
    QCOMPARE(Contest::clampTeams(asked), teams);
    const Contest contest(asked, 7);
    QCOMPARE(contest.teams(), teams);
    QCOMPARE(contest.day(), 1);
}

void tst_candy_rules::totalsAddUp_data()
{
    QTest::addColumn<int>("teams");
    QTest::addColumn<qint64>("seed");
    for (int teams = Contest::MinTeams; teams <= Contest::MaxTeams; ++teams)
        for (qint64 seed : {1, 99, 123456})
            QTest::addRow("%d teams, seed %lld", teams, seed) << teams << seed;
}

void tst_candy_rules::totalsAddUp()
{
    QFETCH(int, teams);
    QFETCH(qint64, seed);
    // Teams crowd the first streets, so shared streets are counted too.
    const Contest contest = Play(teams, seed, [](const Contest &c) {
        QList<int> streets;
        for (int t = 0; t < c.teams(); ++t)
            streets.append((t + c.day()) % 3);
        return streets;
    });
    QCOMPARE(contest.reports().size(), Contest::Days);
    QCOMPARE(contest.day(), Contest::Days + 1);
    int runningOurs = 0;
    int runningTheirs = 0;
    for (const Contest::DayReport &r : contest.reports()) {
        int byTeam = 0;
        int byStreet = 0;
        int visited = 0;
        for (const Contest::TeamDay &t : r.ours) {
            byTeam += t.boxes;
            visited += t.houses;
            QVERIFY(t.boxes <= t.houses * Contest::MaxBoxesPerHouse);
        }
        for (int s : r.streetOurs)
            byStreet += s;
        QCOMPARE(byTeam, r.boxesOurs);
        QCOMPARE(byStreet, r.boxesOurs);
        int theirTeams = 0;
        int theirStreets = 0;
        for (const Contest::TeamDay &t : r.theirs) {
            theirTeams += t.boxes;
            visited += t.houses;
        }
        for (int s : r.streetTheirs)
            theirStreets += s;
        QCOMPARE(theirTeams, r.boxesTheirs);
        QCOMPARE(theirStreets, r.boxesTheirs);
        // Every house on a street with a team is visited once, by exactly one team.
        int homes = 0;
        for (int s = 0; s < contest.streets().size(); ++s) {
            const bool worked =
                std::any_of(r.ours.begin(), r.ours.end(), [s](auto &t) { return t.street == s; }) ||
                std::any_of(r.theirs.begin(), r.theirs.end(),
                            [s](auto &t) { return t.street == s; });
            if (worked)
                homes += int(contest.streets()[s].houses.size());
        }
        QCOMPARE(visited, homes);
        runningOurs += r.boxesOurs;
        runningTheirs += r.boxesTheirs;
        QCOMPARE(r.totalOurs, runningOurs);
        QCOMPARE(r.totalTheirs, runningTheirs);
    }
    QCOMPARE(contest.totalBoxes(Side::Ours), runningOurs);
    QCOMPARE(Contest::money(runningOurs), qint64(runningOurs) * Contest::BoxPrice);
    QCOMPARE(contest.winner(), runningOurs > runningTheirs   ? Contest::Winner::Ours
                               : runningOurs < runningTheirs ? Contest::Winner::Theirs
                                                             : Contest::Winner::Tie);
}

void tst_candy_rules::noDayWithoutEveryTeamOnAStreet()
{
    Contest contest(3, 5);
    const QList<int> rival = contest.planRival();
    QCOMPARE(rival.size(), 3);
    QVERIFY(!contest.allAssigned());
    QVERIFY(!contest.sellDay(rival));
    QVERIFY(contest.assign(0, 2));
    QVERIFY(contest.assign(1, 4));
    QVERIFY(!contest.sellDay(rival));
    // Teams and streets that do not exist are refused and change nothing.
    QVERIFY(!contest.assign(3, 1));
    QVERIFY(!contest.assign(-1, 1));
    QVERIFY(!contest.assign(2, int(contest.streets().size())));
    QVERIFY(!contest.assign(2, -2));
    QCOMPARE(contest.assignment(2), -1);
    QVERIFY(!contest.allAssigned());
    QVERIFY(contest.assign(2, 4));
    // The other class needs one real street per team too.
    QVERIFY(!contest.sellDay(rival.mid(0, 2)));
    QVERIFY(!contest.sellDay({0, 1, 99}));
    QCOMPARE(contest.day(), 1);
    for (const Contest::House &h : contest.houses())
        QCOMPARE(h.lastBought, 0);
    QVERIFY(contest.sellDay(rival));
    // The next morning every team waits at the school again.
    QCOMPARE(contest.day(), 2);
    QVERIFY(!contest.allAssigned());
    QCOMPARE(contest.assignment(0), -1);
    // The rival's streets are always real ones, never two teams on one street.
    for (int d = 0; d < 20; ++d) {
        const QList<int> plan = contest.planRival();
        for (int s : plan) {
            QVERIFY(s >= 0 && s < contest.streets().size());
            QCOMPARE(plan.count(s), 1);
        }
    }
}

void tst_candy_rules::recentBuyersBuyLessAndRecover()
{
    QCOMPARE(Contest::recovery(0), 0.0);
    for (int d = 1; d < 6; ++d)
        QVERIFY(Contest::recovery(d) > Contest::recovery(d - 1));
    QCOMPARE(Contest::recovery(5), 1.0);
    QCOMPARE(Contest::recovery(30), 1.0);

    // One team sells a street on day 1, then again after `rest` days; the other class stays
    // away. Sales on the second visit grow with the rest, up to a fresh street's.
    constexpr int Street = 0;
    constexpr int Far = 2;
    auto secondVisit = [](int rest, qint64 seed, bool firstVisit) {
        Contest contest(1, seed);
        for (int d = 0; d <= rest; ++d) {
            contest.assign(0, d == 0 && firstVisit ? Street : d == rest ? Street : Far + d % 2);
            contest.sellDay({Far + 2});
        }
        return contest.reports().last().boxesOurs;
    };
    QList<double> averages;
    for (int rest : {1, 2, 3, 5}) {
        QList<int> counts;
        for (qint64 seed = 0; seed < 300; ++seed)
            counts.append(secondVisit(rest, seed, true));
        averages.append(AverageBoxes(counts));
    }
    QList<int> fresh;
    for (qint64 seed = 0; seed < 300; ++seed)
        fresh.append(secondVisit(1, seed, false));
    const double freshAverage = AverageBoxes(fresh);
    QVERIFY2(averages[0] < 0.75 * freshAverage,
             qPrintable(QStringLiteral("%1 vs %2").arg(averages[0]).arg(freshAverage)));
    for (int i = 1; i < averages.size(); ++i)
        QVERIFY2(averages[i] > averages[i - 1],
                 qPrintable(QStringLiteral("rest step %1: %2").arg(i).arg(averages[i])));
    QVERIFY(averages.last() > 0.85 * freshAverage);

    // The map's outlook falls for a street that just bought and rises again with the days.
    Contest contest(1, 11);
    const double before = contest.outlook(Street, false);
    contest.assign(0, Street);
    contest.sellDay({Far});
    const double after = contest.outlook(Street, false);
    QVERIFY(after < before);
    contest.assign(0, Far + 1);
    contest.sellDay({Far});
    QVERIFY(contest.outlook(Street, false) > after);
}

void tst_candy_rules::teamsOnOneStreetShareIt()
{
    constexpr int Street = 6;
    const int homes = int(Contest(2, 1).streets()[Street].houses.size());
    QList<int> alone;
    QList<int> together;
    for (qint64 seed = 0; seed < 300; ++seed) {
        Contest one(2, seed);
        one.assign(0, Street);
        one.assign(1, 0);
        const auto single = one.sellDay({1, 2});
        QCOMPARE(single->ours[0].houses, homes);
        alone.append(single->ours[0].boxes);

        Contest two(2, seed);
        two.assign(0, Street);
        two.assign(1, Street);
        const auto shared = two.sellDay({1, 2});
        QCOMPARE(shared->ours[0].houses + shared->ours[1].houses, homes);
        QVERIFY(qAbs(shared->ours[0].houses - shared->ours[1].houses) <= 1);
        together.append(shared->boxesOurs);

        // A team of the other class on the same street takes its share of the doors.
        Contest rivals(1, seed);
        rivals.assign(0, Street);
        const auto split = rivals.sellDay({Street});
        QCOMPARE(split->ours[0].houses + split->theirs[0].houses, homes);
        QVERIFY(qAbs(split->ours[0].houses - split->theirs[0].houses) <= 1);
    }
    // A second team on the street sells hardly more than one alone: there are no more doors.
    QVERIFY(AverageBoxes(together) < 1.1 * AverageBoxes(alone));
}

void tst_candy_rules::planningWins()
{
    int planWins = 0;
    int beatsCrowd = 0;
    constexpr int Contests = 100;
    for (qint64 seed = 1; seed <= Contests; ++seed) {
        const int teams = int(seed % Contest::MaxTeams) + 1;
        Planner planner(Contest(teams, seed));
        Contest planned(teams, seed);
        while (!planned.isOver()) {
            const QList<int> rival = planned.planRival();
            Send(planned, planner.plan(planned));
            planner.learn(planned, *planned.sellDay(rival));
        }
        if (planned.winner() == Contest::Winner::Ours)
            ++planWins;
        // Every team on the one street that looks best on the first morning, every day.
        int first = -1;
        const Contest crowded = Play(teams, seed, [&first](const Contest &c) {
            if (first < 0) {
                first = 0;
                for (int s = 1; s < c.streets().size(); ++s)
                    if (c.outlook(s, true) > c.outlook(first, true))
                        first = s;
            }
            return QList<int>(c.teams(), first);
        });
        if (planned.totalBoxes(Side::Ours) > crowded.totalBoxes(Side::Ours))
            ++beatsCrowd;
    }
    qInfo("planning won %d of %d contests and outsold one crowded street %d times", planWins,
          Contests, beatsCrowd);
    QVERIFY(beatsCrowd >= Contests * 9 / 10);
    QVERIFY(planWins >= Contests * 7 / 10);
}

void tst_candy_rules::aSeedReplaysTheContest()
{
    auto spread = [](const Contest &c) {
        QList<int> streets;
        for (int t = 0; t < c.teams(); ++t)
            streets.append((t * 2 + c.day()) % int(c.streets().size()));
        return streets;
    };
    const Contest first = Play(4, 2024, spread);
    const Contest again = Play(4, 2024, spread);
    const Contest other = Play(4, 2025, spread);
    bool differs = false;
    for (int d = 0; d < Contest::Days; ++d) {
        const auto &a = first.reports()[d];
        const auto &b = again.reports()[d];
        QCOMPARE(a.weather, b.weather);
        QCOMPARE(a.streetOurs, b.streetOurs);
        QCOMPARE(a.streetTheirs, b.streetTheirs);
        for (int t = 0; t < 4; ++t) {
            QCOMPARE(a.theirs[t].street, b.theirs[t].street);
            QCOMPARE(a.ours[t].houses, b.ours[t].houses);
        }
        differs = differs || a.streetOurs != other.reports()[d].streetOurs;
    }
    for (int s = 0; s < first.streets().size(); ++s)
        QCOMPARE(first.streets()[s].liking, again.streets()[s].liking);
    QVERIFY(differs);
}

QTEST_GUILESS_MAIN(tst_candy_rules)
#include "tst_candy_rules.moc"
