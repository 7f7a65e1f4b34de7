// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseSolver.h"
#include "support/TestDoubles.h"

#include "stopthief/CaseBuilder.h"

#include "shell/core/DataPath.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

// The case number, the word tables, the case builder and the written solution, checked over
// thousands of cases by a solver that knows nothing but the clue texts.
class tst_stopthief_rules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void shippedWordTables();
    void damagedDataFile_data();
    void damagedDataFile();
    void sameNumberSameCase();
    void caseOneMillionAndOne();
    void thiefPositionByLevel_data();
    void thiefPositionByLevel();
    void storyAndClueListTexts();
    void distinctValuesAndNames();
    void newCaseNumbers();
    void validationMessages_data();
    void validationMessages();
    void everyCaseHasOneThief();
    void solverNoticesFaults();

private:
    Case build(const QString &number);
    ThiefData m_data;
};

void tst_stopthief_rules::initTestCase()
{
    SetDataPath(BuiltDataPath());
    QVERIFY2(m_data.load(DataFile(QStringLiteral("thief.dat"))),
             qPrintable(m_data.error().message()));
}

Case tst_stopthief_rules::build(const QString &number)
{
    const auto parsed = CaseNumber::parse(number);
    if (!parsed)
        qFatal("not a case number: %s", qPrintable(number));
    CaseBuilder builder(m_data);
    return builder.build(*parsed);
}

// Every sentence joins a verb and a value, so a value must read after its verb, no phrase may
// be shared by two attributes (the solver could not tell them apart) and no value may be a
// suspect's first name (a best friend called like a suspect would confuse the reader).
void tst_stopthief_rules::shippedWordTables()
{
    for (int g = ThiefData::Boys; g <= ThiefData::Girls; ++g) {
        const WordGroup &words = m_data.group(g);
        const QSet<QString> firstNames(words.words[0].cbegin(), words.words[0].cend());
        QCOMPARE(firstNames.size(), WordGroup::Rows);
        QSet<QString> facts;
        QSet<QString> nouns;
        for (int column = WordGroup::FirstAttribute; column < WordGroup::Columns; ++column) {
            const auto &entries = words.words[column];
            nouns.insert(entries[WordGroup::NounRow]);
            for (int row = 1; row <= 9; ++row) {
                QVERIFY2(!firstNames.contains(entries[row]), qPrintable(entries[row]));
                QVERIFY(entries[row] == entries[row].trimmed());
                const QString fact = entries[WordGroup::VerbRow] + u' ' + entries[row];
                QVERIFY2(!facts.contains(fact), qPrintable(fact));
                facts.insert(fact);
            }
        }
        QCOMPARE(facts.size(), 8 * 9);
        QCOMPARE(nouns.size(), 8);
        for (const QString &place : words.places)
            QVERIFY2(place.startsWith(QLatin1String("the ")), qPrintable(place));
        const QString possessive =
            g == ThiefData::Boys ? QStringLiteral("his ") : QStringLiteral("her ");
        for (const QString &thing : words.things)
            QVERIFY2(thing.startsWith(possessive), qPrintable(thing));
    }
    QCOMPARE(m_data.group(1).words[0][0], QStringLiteral("Carlos"));
    QCOMPARE(m_data.group(2).things[2], QStringLiteral("her new watch"));
}

void tst_stopthief_rules::damagedDataFile_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing file") << "missing"
                                  << "thief.dat: the file cannot be opened";
    QTest::newRow("last line lost")
        << "drop last line"
        << "thief.dat, line 24: the file ends where a text was expected";
    QTest::newRow("one field too many")
        << "extra field"
        << "thief.dat, line 24, item 4: the file has more items than expected";
    QTest::newRow("quote not closed") << "broken quote"
                                      << "thief.dat, line 3, item 11: a quoted text is not closed";
    QTest::newRow("empty value") << "empty value"
                                 << "thief.dat: in the girls' words, column 3, row 2 is empty";
    QTest::newRow("value twice")
        << "repeated value"
        << "thief.dat: in the boys' words, column 2, row 2 repeats \"a buzz cut\"";
}

// A damaged file is refused with a message that names the file and the place of the fault.
void tst_stopthief_rules::damagedDataFile()
{
    QFETCH(QString, change);
    QFETCH(QString, message);
    QFile shipped(DataFile(QStringLiteral("thief.dat")));
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    QList<QByteArray> lines = shipped.readAll().split('\n');
    while (lines.last().isEmpty())
        lines.removeLast();
    QCOMPARE(lines.size(), 24);
    if (change == QLatin1String("drop last line"))
        lines.removeLast();
    else if (change == QLatin1String("extra field"))
        lines.last() += ",\"her pencil case\"";
    else if (change == QLatin1String("broken quote"))
        lines[2].replace("\"hairstyle\"", "\"hairstyle");
    else if (change == QLatin1String("empty value"))
        lines[12 + 3].replace("\"a flowered blouse\"", "\"\"");
    else if (change == QLatin1String("repeated value"))
        lines[2].replace("\"curly hair\"", "\"a buzz cut\"");

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("thief.dat"));
    if (change != QLatin1String("missing")) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(lines.join('\n') + '\n');
    }
    ThiefData data;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^cannot ")));
    QVERIFY(!data.load(path));
    QVERIFY2(data.error().message().startsWith(message), qPrintable(data.error().message()));
}

// The number alone makes the case: two builders, in any order and whatever else was drawn in
// between, give the same texts; the pinned names keep cases handed out stable across builds.
void tst_stopthief_rules::sameNumberSameCase()
{
    CaseBuilder first(m_data);
    CaseBuilder second(m_data);
    const Case a = first.build(*CaseNumber::parse(QStringLiteral("2123452")));
    second.build(*CaseNumber::parse(QStringLiteral("1000005")));
    Randomize(99);
    Rnd();
    const Case b = second.build(*CaseNumber::parse(QStringLiteral("2123452")));
    QCOMPARE(b.caseText, a.caseText);
    QCOMPARE(b.clueList, a.clueList);
    QCOMPARE(b.displayList, a.displayList);
    QCOMPARE(b.solution.sentences, a.solution.sentences);
    QCOMPARE(b.thief, a.thief);

    QCOMPARE(a.victim, QStringLiteral("Zoe Kim"));
    QCOMPARE(a.thief, QStringLiteral("Emma Mensah"));
    QCOMPARE(a.listedClue(1).text, QStringLiteral("Aisha Novak owns a gold stereo"));

    // Neighbouring seeds, and the same seed for the other group, make other cases.
    QStringList texts{a.caseText + a.clueList};
    for (const auto *number : {"2123462", "1123452", "2123442", "2123451"}) {
        const Case other = build(QString::fromLatin1(number));
        texts.append(other.caseText + other.clueList);
    }
    QCOMPARE(QSet<QString>(texts.cbegin(), texts.cend()).size(), texts.size());
}

void tst_stopthief_rules::caseOneMillionAndOne()
{
    const Case c = build(QStringLiteral("1000001"));
    QCOMPARE(c.group, qint16(1));
    QCOMPARE(c.seed, qint16(0));
    QCOMPARE(c.level, qint16(1));
    QCOMPARE(c.groupWord, QStringLiteral(" boys"));
    QCOMPARE(c.pronoun, QStringLiteral(" he "));
    QVERIFY(c.description.startsWith(QLatin1String("Six boys, ")));
    QCOMPARE(c.thiefPosition, qint16(5));
    QCOMPARE(c.thief, c.names[4]);
    // The thief is fifth in generation order, wherever the shuffled list puts him.
    QCOMPARE(c.thief, QStringLiteral("Carlos Rossi"));
    QVERIFY(c.displayList[4] != c.thief);
    // At the first level clue 5 always names suspect 5 with the first attribute.
    QCOMPARE(c.clues[4].text, c.names[4] + u' ' + c.fact(1, 5));
    QCOMPARE(c.clues[13].text, QStringLiteral("The thief ") + c.fact(4, 5));
    QCOMPARE(c.solution.sentences,
             QStringList{QStringLiteral("Since Carlos Rossi owns a corduroy jacket, he must be "
                                        "the one who rides a red bike. Therefore, Carlos Rossi "
                                        "is the thief.")});
}

void tst_stopthief_rules::thiefPositionByLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("position");
    QTest::newRow("Beginner") << 1 << 5;
    QTest::newRow("Novice") << 2 << 4;
    QTest::newRow("Experienced") << 3 << 2;
    QTest::newRow("Advanced") << 4 << 3;
    QTest::newRow("Expert") << 5 << 1;
}

void tst_stopthief_rules::thiefPositionByLevel()
{
    QFETCH(int, level);
    QFETCH(int, position);
    for (const auto *middle : {"00000", "00042", "17171", "30000"}) {
        for (const char group : {'1', '2'}) {
            const Case c =
                build(QLatin1Char(group) + QLatin1String(middle) + QString::number(level));
            QCOMPARE(c.level, qint16(level));
            QCOMPARE(c.thiefPosition, qint16(position));
            QCOMPARE(c.thief, c.name(position));
            QCOMPARE(c.thiefPhrase, c.verbs[3] + u' ' + c.value(4, position));
            QCOMPARE(c.clues[13].text, QStringLiteral("The thief ") + c.thiefPhrase);
            QCOMPARE(c.solution.steps(), qsizetype(level));
        }
    }
}

// The exact story, investigation and clue list around the drawn words.
void tst_stopthief_rules::storyAndClueListTexts()
{
    const Case c = build(QStringLiteral("2123452"));
    const auto &l = c.displayList;
    QCOMPARE(c.description,
             QStringLiteral("Six girls, Zoe Kim, ") + l[0] + ", " + l[1] + ", " + l[2] + ", " +
                 l[3] + ", and " + l[4] +
                 " were in the science lab together. After school, Zoe Kim discovered her lunch "
                 "money was missing.  The only time her lunch money could have been taken is "
                 "while she was in the science lab, so one of the other girls must have taken "
                 "it.");
    QCOMPARE(c.investigation,
             QStringLiteral("The teachers have investigated. They have questioned the witnesses "
                            "and people who know the suspects. They have collected physical "
                            "evidence from the science lab.   They have collected 14 clues, but "
                            "have not been able to solve the crime.  Therefore, they have called "
                            "in the school's best detective. That's YOU! Now, read the clues and "
                            "try to stop the thief!"));
    QCOMPARE(c.caseText, c.description + "\n\n" + c.investigation);
    QCOMPARE(c.noTwoSentence, QStringLiteral("No two suspects have the same ") + c.nouns[0] + ", " +
                                  c.nouns[1] + ", " + c.nouns[2] + ", " + c.nouns[3] + ", or " +
                                  c.nouns[4] + ".  ");
    QCOMPARE(c.titles[1], QStringLiteral("Hair"));
    QCOMPARE(c.nouns[1], QStringLiteral("hairstyle"));

    QStringList lines = c.clueList.split(u'\n');
    QCOMPARE(lines.size(), 1 + 1 + 14 + 1 + 1);
    QCOMPARE(lines[0], c.noTwoSentence + QStringLiteral("There are 14 clues:"));
    QCOMPARE(lines[1], QString());
    QSet<int> listed;
    for (int i = 1; i <= 14; ++i) {
        listed.insert(c.order[i]);
        QCOMPARE(lines[1 + i],
                 QStringLiteral("Clue %1:  %2.").arg(i).arg(c.clues[c.order[i] - 1].text));
    }
    QCOMPARE(listed.size(), 14);
    QCOMPARE(lines[16], QString());
    QCOMPARE(lines[17], QStringLiteral("          --- END OF CLUES ---"));

    // Each clue says what the scheme says, in the words of the case.
    for (const Clue &clue : c.clues) {
        QString expected;
        switch (clue.kind) {
        case Clue::Kind::Name:
            expected = c.name(clue.suspect) + u' ' + c.fact(clue.first);
            break;
        case Clue::Kind::Link:
            expected = "The suspect who " + c.fact(clue.first) + u' ' + c.fact(clue.second);
            break;
        case Clue::Kind::Unlink:
            expected = "The suspect who " + c.fact(clue.first) + " is not the one who " +
                       c.fact(clue.second);
            break;
        case Clue::Kind::Thief:
            expected = "The thief " + c.fact(clue.first);
            break;
        }
        QCOMPARE(clue.text, expected);
    }
}

void tst_stopthief_rules::distinctValuesAndNames()
{
    for (int seed = 0; seed <= 30000; seed += 97) {
        const Case c = build(QStringLiteral("%1%2%3")
                                 .arg(1 + seed % 2)
                                 .arg(seed, 5, 10, QLatin1Char('0'))
                                 .arg(1 + seed % 5));
        QSet<QString> firsts{c.victim.section(u' ', 0, 0)};
        QSet<QString> lasts{c.victim.section(u' ', 1)};
        for (const QString &name : c.names) {
            firsts.insert(name.section(u' ', 0, 0));
            lasts.insert(name.section(u' ', 1));
        }
        QCOMPARE(firsts.size(), 6);
        QCOMPARE(lasts.size(), 6);
        QCOMPARE(QSet<QString>(c.displayList.cbegin(), c.displayList.cend()),
                 QSet<QString>(c.names.cbegin(), c.names.cend()));
        QCOMPARE(QSet<QString>(c.titles.cbegin(), c.titles.cend()).size(), 5);
        QCOMPARE(QSet<QString>(c.nouns.cbegin(), c.nouns.cend()).size(), 5);
        for (const auto &column : c.values) {
            QCOMPARE(QSet<QString>(column.cbegin(), column.cend()).size(), 5);
            QVERIFY(std::find(column.cbegin(), column.cend(), QString()) == column.cend());
        }
    }
}

void tst_stopthief_rules::newCaseNumbers()
{
    ScriptedRandom scripted;
    SetRandomSource(&scripted);
    // Group draw, then the middle draw; 42 / 30001 lands on seed 42.
    scripted.values = {0.7, 42.5 / 30001, 0.0, 0.0, 0.4999, 0.9999999};
    QCOMPARE(CaseNumber::makeNew(3), QStringLiteral("2000423"));
    QCOMPARE(CaseNumber::makeNew(1), QStringLiteral("1000001"));
    QCOMPARE(CaseNumber::makeNew(5), QStringLiteral("1300005"));
    SetRandomSource(nullptr);

    QSet<int> groups;
    int padded = 0;
    for (int i = 0; i < 3000; ++i) {
        const QString number = CaseNumber::makeNew(qint16(1 + i % 5));
        QCOMPARE(number.size(), 7);
        QVERIFY2(CaseNumber::problem(number).isEmpty(), qPrintable(number));
        const auto parsed = CaseNumber::parse(number);
        QCOMPARE(parsed->level, qint16(1 + i % 5));
        QVERIFY(parsed->seed >= 0 && parsed->seed <= 30000);
        groups.insert(parsed->group);
        if (number[1] == u'0')
            ++padded;
    }
    QCOMPARE(groups, (QSet<int>{1, 2}));
    QVERIFY(padded > 0);
}

void tst_stopthief_rules::validationMessages_data()
{
    const QString seven = QStringLiteral("Case number must have seven digits.  Try again.");
    const QString first = QStringLiteral("First digit must be a 1 or 2.  Try again.");
    const QString middle =
        QStringLiteral("Middle 5 digits must be between 00000 and 30000.  Try again.");
    const QString last = QStringLiteral("Last digit must be 1, 2, 3, 4, or 5.  Try again.");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << "" << seven;
    QTest::newRow("six digits") << "100001" << seven;
    QTest::newRow("eight digits") << "10000011" << seven;
    // Every rule broken at once: the first in order is the one told.
    QTest::newRow("all wrong") << "3999999" << first;
    QTest::newRow("group 0") << "0000001" << first;
    QTest::newRow("middle and last wrong") << "1300010" << middle;
    QTest::newRow("30001") << "1300011" << middle;
    QTest::newRow("last 0") << "1300000" << last;
    QTest::newRow("last 6") << "2000006" << last;
    QTest::newRow("lowest") << "1000001" << QString();
    QTest::newRow("highest") << "2300005" << QString();
}

void tst_stopthief_rules::validationMessages()
{
    QFETCH(QString, typed);
    QFETCH(QString, message);
    QCOMPARE(CaseNumber::problem(typed), message);
    QCOMPARE(CaseNumber::parse(typed).has_value(), message.isEmpty());
    if (message.isEmpty())
        QCOMPARE(CaseNumber::parse(typed)->text, typed);
}

// For thousands of case numbers of every level: the clue texts alone leave exactly one suspect
// who can be the thief, the generator's thief; and every sentence of the written solution is
// true of the case and the hint steps never say a sentence twice.
void tst_stopthief_rules::everyCaseHasOneThief()
{
    QElapsedTimer timer;
    timer.start();
    constexpr int PerLevel = 2000;
    for (int level = 1; level <= 5; ++level) {
        QMap<qint64, int> assignmentCounts;
        for (int i = 0; i < PerLevel; ++i) {
            const int seed = (i * 7919 + level * 1237) % 30001;
            const QString number = QStringLiteral("%1%2%3")
                                       .arg(1 + i % 2)
                                       .arg(seed, 5, 10, QLatin1Char('0'))
                                       .arg(level);
            const Case c = build(number);
            const CaseSolver::Result result = CaseSolver::solve(c);
            QVERIFY2(result.problem.isEmpty(), qPrintable(number + ": " + result.problem));
            QVERIFY2(result.thieves == QSet<int>{c.thiefPosition},
                     qPrintable(number + QStringLiteral(": %1 suspects can be the thief")
                                             .arg(result.thieves.size())));
            QVERIFY(result.assignments > 0);
            ++assignmentCounts[result.assignments];

            const QString untrue = CaseSolver::checkSolution(c);
            QVERIFY2(untrue.isEmpty(), qPrintable(number + ": " + untrue));
            const Solution &s = c.solution;
            QVERIFY(s.sentences.size() <= 30);
            QCOMPARE(s.steps(), qsizetype(level));
            QStringList shown;
            for (qsizetype h = 0; h < s.steps(); ++h) {
                QVERIFY(!s.step(h).isEmpty());
                shown += s.step(h);
            }
            QCOMPARE(shown, s.sentences);
            QCOMPARE(QSet<QString>(shown.cbegin(), shown.cend()).size(), shown.size());
            QVERIFY(s.sentences.last().endsWith(QLatin1String("is the thief.")));
        }
        qInfo("level %d: %d cases; assignments the clues allow (count x cases): %s", level,
              PerLevel, qPrintable([&] {
                  QStringList parts;
                  for (auto it = assignmentCounts.cbegin(); it != assignmentCounts.cend(); ++it)
                      parts.append(QStringLiteral("%1 x %2").arg(it.key()).arg(it.value()));
                  return parts.join(QStringLiteral(", "));
              }()));
    }
    qInfo("checked %d cases in %lld ms", 5 * PerLevel, timer.elapsed());
}

// The checks above are only worth something if the solver and the reader of the solution do
// notice a clue too few, an unreadable clue and an untrue sentence.
void tst_stopthief_rules::solverNoticesFaults()
{
    const Case level2 = build(QStringLiteral("2123452"));
    QCOMPARE(CaseSolver::solve(level2).thieves, QSet<int>{4});

    // Without clue 7 suspect 2 could be the one with suspect 4's values too.
    Case lessened = level2;
    const QString clue7 = lessened.clues[6].text + u'.';
    const QString clue1 = lessened.clues[0].text + u'.';
    QVERIFY(lessened.clueList.contains(clue7));
    lessened.clueList.replace(clue7, clue1);
    QCOMPARE(CaseSolver::solve(lessened).thieves, (QSet<int>{2, 4}));

    Case garbled = level2;
    garbled.clueList.replace(clue7, QStringLiteral("The suspect who sings loudly."));
    QVERIFY(CaseSolver::solve(garbled).problem.contains(QLatin1String("sings loudly")));

    QVERIFY(CaseSolver::checkSolution(level2).isEmpty());
    Case wrongName = level2;
    wrongName.solution.sentences[0].replace(level2.name(5), level2.name(1));
    QVERIFY(!CaseSolver::checkSolution(wrongName).isEmpty());
    Case wrongThief = level2;
    wrongThief.solution.sentences.last().replace(level2.name(4), level2.name(3));
    QVERIFY(!CaseSolver::checkSolution(wrongThief).isEmpty());
    Case notConcluded = level2;
    notConcluded.solution.sentences.removeLast();
    QVERIFY(!CaseSolver::checkSolution(notConcluded).isEmpty());
    Case wrongOwner = level2;
    const QString ownFact = level2.fact(1, 4);
    const QString otherFact = level2.fact(1, 3);
    QVERIFY(wrongOwner.solution.sentences[1].contains(ownFact));
    wrongOwner.solution.sentences[1].replace(ownFact, otherFact);
    QVERIFY(!CaseSolver::checkSolution(wrongOwner).isEmpty());
}

QTEST_GUILESS_MAIN(tst_stopthief_rules)
#include "tst_stopthief_rules.moc"
