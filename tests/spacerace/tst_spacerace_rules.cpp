// SPDX-License-Identifier: GPL-3.0-or-later
#include "spacerace/RocketRace.h"
#include "spacerace/WordList.h"
#include "support/TestDoubles.h"

#include <algorithm>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

// The word list and its file, and the race, without any window.
class tst_spacerace_rules : public QObject {
    Q_OBJECT
private slots:
    void listFileRoundTrip_data();
    void listFileRoundTrip();
    void damagedFilesAreRefused_data();
    void damagedFilesAreRefused();
    void filesOnDisk();
    void namesAndKeys();
    void advance_data();
    void advance();
    void wrongLettersCostSteps();
    void scramblerGivesAwayTheFirstTwoLetters();
    void scrambleNeverShowsTheWord();
    void flashesAndMarks();
    void ordersAreReshuffledAfterEveryWord();
    void raceEndsAfterTheRoundWithSharedWins();
};

namespace {
QStringList Words(int count)
{
    static const char *const pool[] = {
        "CAT",   "DOG",  "SUN",   "MOON",  "STAR",  "ROCKET", "PLANET", "COMET", "ORBIT", "SPACE",
        "EARTH", "MARS", "VENUS", "LIGHT", "NIGHT", "CLOUD",  "STORM",  "RIVER", "OCEAN", "FOREST"};
    QStringList words;
    for (int i = 0; i < count; ++i)
        words.append(QString::fromLatin1(pool[i]));
    return words;
}

Settings::SpaceRace Game(int players, qint16 game)
{
    Settings::SpaceRace s;
    s.players = qint16(players);
    s.gameType = game;
    return s;
}

// Types the rest of the current word without a mistake, in small letters.
RocketRace::KeyResult SpellRest(RocketRace &race)
{
    RocketRace::KeyResult last = RocketRace::KeyResult::Ignored;
    if (race.phase() == RocketRace::Phase::Waiting)
        race.flash();
    const QString rest = race.word().mid(race.typed().size());
    for (const QChar c : rest)
        last = race.key(c.toLower());
    return last;
}
} // namespace

void tst_spacerace_rules::listFileRoundTrip_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("three words") << 3;
    QTest::newRow("twelve words") << 12;
    QTest::newRow("twenty words") << 20;
}

void tst_spacerace_rules::listFileRoundTrip()
{
    QFETCH(int, count);
    WordList list;
    list.words = Words(count);
    const QByteArray file = list.format();
    QCOMPARE(file.count('\n'), count + 1);
    if (count == 3)
        QCOMPARE(file, QByteArray("3\n\"CAT\"\n\"DOG\"\n\"SUN\"\n"));
    FileError error;
    const std::optional<WordList> back = WordList::parse(file, "/lists/week1.srl", &error);
    QVERIFY2(back, qPrintable(error.message()));
    QCOMPARE(back->words, list.words);
    QCOMPARE(back->name, QStringLiteral("week1"));
    QVERIFY(back->saved);
}

void tst_spacerace_rules::damagedFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("problem");
    QTest::newRow("too many words") << QByteArray("21\n\"CAT\"\n") << 1 << "0 to 20";
    QTest::newRow("huge count") << QByteArray("99999\n") << 1 << "outside";
    QTest::newRow("a digit in a word") << QByteArray("2\n\"CAT\"\n\"D0G\"\n") << 3 << "D0G";
    QTest::newRow("a missing line") << QByteArray("3\n\"CAT\"\n\"DOG\"\n") << 4 << "missing";
    QTest::newRow("a line too many") << QByteArray("1\n\"CAT\"\n\"DOG\"\n") << 3 << "more lines";
    QTest::newRow("an empty word") << QByteArray("1\n\"\"\n") << 2 << "empty";
    QTest::newRow("sixteen letters") << QByteArray("1\n\"ABCDEFGHIJKLMNOP\"\n") << 2 << "15";
    QTest::newRow("an empty file") << QByteArray() << 1 << "missing";
}

void tst_spacerace_rules::damagedFilesAreRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QFETCH(QString, problem);
    FileError error;
    QVERIFY(!WordList::parse(content, QStringLiteral("week1.srl"), &error));
    QCOMPARE(error.line, line);
    QVERIFY2(error.message().contains(problem), qPrintable(error.message()));
    QVERIFY(error.message().startsWith(QLatin1String("week1.srl")));
}

void tst_spacerace_rules::filesOnDisk()
{
    QTemporaryDir folder;
    QFile hand(folder.filePath(QStringLiteral("hand.srl")));
    QVERIFY(hand.open(QIODevice::WriteOnly));
    hand.write("2\r\n\"don't\"\r\n  \"Jump-rope\"  \r\n");
    hand.close();
    std::optional<WordList> back = WordList::read(hand.fileName());
    QVERIFY(back);
    QCOMPARE(back->words, QStringList({"DON'T", "JUMP-ROPE"})); // small letters become capitals

    FileError error;
    QVERIFY(!WordList::read(folder.filePath(QStringLiteral("missing.srl")), &error));
    QVERIFY(error.message().contains(QLatin1String("cannot be opened")));
    QVERIFY(!back->write(folder.filePath(QStringLiteral("no/such/folder/x.srl")), &error));

    // The lists that come with the program are whole, with twenty different words.
    QDir data(BuiltDataPath());
    const QStringList lists = data.entryList({QStringLiteral("*.srl")}, QDir::Files);
    QVERIFY(lists.size() >= 4);
    for (const QString &name : lists) {
        back = WordList::read(data.filePath(name), &error);
        QVERIFY2(back, qPrintable(error.message()));
        QCOMPARE(QSet<QString>(back->words.begin(), back->words.end()).size(), 20);
    }
}

void tst_spacerace_rules::namesAndKeys()
{
    QCOMPARE(WordList::nameFromPath("week1.srl"), QStringLiteral("week1"));
    QCOMPARE(WordList::nameFromPath("/home/pupil/Lumbridle/week1.srl"), QStringLiteral("week1"));
    QCOMPARE(WordList::nameFromPath("C:\\Lists\\Term 2\\week1.SRL"), QStringLiteral("week1"));
    QCOMPARE(WordList::nameFromPath(""), QStringLiteral("NONE"));
    QCOMPARE(WordList::withExtension("a/b"), QStringLiteral("a/b.srl"));
    QCOMPARE(WordList::withExtension("a/b.SRL"), QStringLiteral("a/b.SRL"));

    const QList<QPair<QChar, QChar>> keys = {
        {u'a', u'A'},    {u'z', u'Z'},    {u'Q', u'Q'},    {u'-', u'-'},          {u'\'', u'\''},
        {u'1', QChar()}, {u' ', QChar()}, {u'"', QChar()}, {QChar(0xE9), QChar()}};
    for (const auto &[typed, kept] : keys)
        QCOMPARE(WordList::boxKey(typed), kept);
}

void tst_spacerace_rules::advance_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("wrong");
    QTest::addColumn<int>("expected");
    QTest::newRow("clean") << 0 << 0 << 10;
    QTest::newRow("one wrong") << 0 << 1 << 7;
    QTest::newRow("two wrong") << 0 << 2 << 3;
    QTest::newRow("one wrong after 7") << 7 << 1 << 14; // 13.67
    QTest::newRow("two wrong after 3") << 3 << 2 << 6;  // 6.33
}

void tst_spacerace_rules::advance()
{
    QFETCH(int, position);
    QFETCH(int, wrong);
    QFETCH(int, expected);
    QCOMPARE(int(RocketRace::advance(qint16(position), qint16(wrong))), expected);
}

void tst_spacerace_rules::wrongLettersCostSteps()
{
    TestEnvironment env;
    RocketRace race;
    race.start({QStringLiteral("PLANET")}, Game(1, 1));
    QCOMPARE(race.key(u'P'), RocketRace::KeyResult::Ignored); // not flashed yet
    race.flash();
    QCOMPARE(race.key(u'p'), RocketRace::KeyResult::Right);
    QCOMPARE(race.key(u'7'), RocketRace::KeyResult::Ignored);
    QCOMPARE(race.key(u'\b'), RocketRace::KeyResult::Wrong); // Backspace is a wrong letter
    QCOMPARE(race.hidden(), QStringLiteral("P*****"));       // Flasher gives nothing away
    QCOMPARE(SpellRest(race), RocketRace::KeyResult::WordDone);
    QCOMPARE(race.position(1), qint16(7));
    QCOMPARE(race.key(u'X'), RocketRace::KeyResult::Ignored); // typing has stopped

    race.nextTurn();
    race.flash();
    QCOMPARE(race.key(u'X'), RocketRace::KeyResult::Wrong);
    QCOMPARE(race.key(u'\b'), RocketRace::KeyResult::Wrong);
    QCOMPARE(race.key(u'Z'), RocketRace::KeyResult::TurnLost);
    QCOMPARE(race.key(u'P'), RocketRace::KeyResult::Ignored);
    QCOMPARE(race.position(1), qint16(7));
}

void tst_spacerace_rules::scramblerGivesAwayTheFirstTwoLetters()
{
    TestEnvironment env;
    RocketRace race;
    race.start({QStringLiteral("PLANET")}, Game(1, 2));
    QCOMPARE(race.key(u'X'), RocketRace::KeyResult::Wrong);
    QCOMPARE(race.typed(), QStringLiteral("P"));
    QCOMPARE(race.key(u'X'), RocketRace::KeyResult::Wrong);
    QCOMPARE(race.typed(), QStringLiteral("PL"));
    QCOMPARE(SpellRest(race), RocketRace::KeyResult::WordDone);
    QCOMPARE(race.position(1), qint16(3));

    race.nextTurn(); // past the second letter nothing more is given away
    race.key(u'P');
    race.key(u'L');
    race.key(u'X');
    QCOMPARE(race.typed(), QStringLiteral("PL"));

    // The last letter is the pupil's to type, even in a word of two.
    race.start({QStringLiteral("AT")}, Game(1, 2));
    race.key(u'X');
    race.key(u'X');
    QCOMPARE(race.typed(), QStringLiteral("A"));
    QCOMPARE(race.key(u't'), RocketRace::KeyResult::WordDone);
}

void tst_spacerace_rules::scrambleNeverShowsTheWord()
{
    QStringList words = Words(20) << QStringLiteral("AB") << QStringLiteral("NOON");
    for (qint64 seed = 1; seed <= 300; ++seed) {
        Generator random(seed);
        for (const QString &word : std::as_const(words)) {
            QString shown = RocketRace::scramble(word, random);
            QVERIFY2(shown != word, qPrintable(word));
            QString sorted = word;
            std::sort(shown.begin(), shown.end());
            std::sort(sorted.begin(), sorted.end());
            QCOMPARE(shown, sorted);
        }
    }
    // Words that cannot be shown any other way are shown as they are, without a hang.
    Generator random(7);
    QCOMPARE(RocketRace::scramble(QStringLiteral("A"), random), QStringLiteral("A"));
    QCOMPARE(RocketRace::scramble(QStringLiteral("ZZZ"), random), QStringLiteral("ZZZ"));
    // A generator that keeps drawing the word's own order still ends with a changed word.
    ScriptedRandom stuck;
    stuck.values = QList<double>(1000, 0.999);
    QCOMPARE(RocketRace::scramble(QStringLiteral("CAT"), stuck), QStringLiteral("ATC"));
}

void tst_spacerace_rules::flashesAndMarks()
{
    TestEnvironment env;
    RocketRace race;
    race.start({QStringLiteral("DON'T"), QStringLiteral("X-RAY")}, Game(1, 1));
    QVERIFY(race.flash());
    QVERIFY(race.flash());
    QVERIFY(!race.flash()); // twice at most
    // Marks no key can type are filled in as the pupil reaches them.
    const QString letters = QString(race.word()).remove(u'\'').remove(u'-');
    for (const QChar c : letters)
        race.key(c);
    QCOMPARE(race.phase(), RocketRace::Phase::WordDone);
    race.nextTurn();
    QVERIFY(race.flash()); // the next word may be flashed again
    // A one-letter word stands as it is in Scrambler, which never flashes.
    race.start({QStringLiteral("A")}, Game(1, 2));
    QCOMPARE(race.scrambled(), QStringLiteral("A"));
    QVERIFY(!race.flash());
    QCOMPARE(race.key(u'a'), RocketRace::KeyResult::WordDone);
}

void tst_spacerace_rules::ordersAreReshuffledAfterEveryWord()
{
    TestEnvironment env;
    ScriptedRandom random;
    // Two players, three words: at the start no swaps (1, 2, 3); at the reshuffle the
    // draws of 0 give 2, 3, 1.
    random.values = {0.99, 0.99, 0.99, 0.99, 0, 0, 0, 0};
    SetRandomSource(&random);
    RocketRace race;
    const QStringList words = Words(3);
    race.start(words, Game(2, 1));
    QStringList met[2];
    for (int turn = 0; turn < 6; ++turn) {
        met[race.currentPlayer() - 1].append(race.word());
        SpellRest(race);
        race.nextTurn();
    }
    QCOMPARE(met[0], words);
    QCOMPARE(met[1], words);
    QCOMPARE(race.wordTurn(), qint16(1));
    QCOMPARE(race.order(1), QList<qint16>({2, 3, 1}));
    QCOMPARE(race.order(2), QList<qint16>({2, 3, 1}));
    QCOMPARE(race.word(), words[1]);
}

void tst_spacerace_rules::raceEndsAfterTheRoundWithSharedWins()
{
    TestEnvironment env;
    RocketRace race;
    // Eight clean words reach the moon; two players do so in the same round.
    race.start(Words(5), Game(3, 2));
    int turns = 0;
    RocketRace::TurnResult result = RocketRace::TurnResult::NextTurn;
    while (result == RocketRace::TurnResult::NextTurn && turns < 100) {
        if (race.currentPlayer() == 3)
            for (int i = 0; i < 3; ++i)
                race.key(u'\b');
        else
            SpellRest(race);
        result = race.nextTurn();
        ++turns;
    }
    QCOMPARE(turns, 24);
    QCOMPARE(race.position(1), qint16(80));
    QCOMPARE(race.finishers(), QList<qint16>({1, 1, 0, 0}));
    QVERIFY(!race.isRunning());

    // A lone finisher lets the others finish the round, then wins alone.
    Settings::SpaceRace odd = Game(2, 1);
    odd.names[1] = QStringLiteral("  ");
    race.start(Words(2), odd);
    for (int round = 0; round < 8; ++round) {
        SpellRest(race);
        QCOMPARE(race.nextTurn(), RocketRace::TurnResult::NextTurn);
        race.flash();
        race.key(u'Q');
        SpellRest(race);
        result = race.nextTurn();
    }
    QCOMPARE(result, RocketRace::TurnResult::Over);
    QCOMPARE(race.position(2), qint16(56));
    QCOMPARE(race.finishers(), QList<qint16>({1, 0, 0, 0}));
    QCOMPARE(race.name(2), QStringLiteral("Player 2")); // a blank name gets its number

    // Settings damaged in the file still give a race it can play.
    odd.players = 9;
    odd.gameType = -3;
    race.start({QStringLiteral("cat"), QStringLiteral("d0g"), QStringLiteral("-'")}, odd);
    QCOMPARE(race.players(), qint16(4));
    QCOMPARE(race.game(), RocketRace::Game::Scrambler);
    QCOMPARE(race.word(), QStringLiteral("CAT"));
    QCOMPARE(race.order(1).size(), 1);
    race.start({}, odd);
    QVERIFY(!race.isRunning());
}

QTEST_GUILESS_MAIN(tst_spacerace_rules)
#include "tst_spacerace_rules.moc"
