// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/DataPath.h"
#include "support/TestDoubles.h"
#include "typing/DrillMaker.h"
#include "typing/Exercise.h"
#include "typing/Keyboard.h"
#include "typing/Lessons.h"
#include "typing/SpeedTest.h"
#include "typing/TypingTexts.h"

#include <QTest>

// The keyboard map, the lessons, the drills made from them, the scoring of typing and the
// text file the drills and tests are made from.
class tst_typing_rules : public QObject {
    Q_OBJECT
private slots:
    void everyKeyHasAFingerAndARow_data();
    void everyKeyHasAFingerAndARow();
    void lessonsTeachEveryKeyOnce();
    void drillsUseOnlyTaughtKeysOnRowsSwitchedOn();
    void rowFlagsChangeTheDrills();
    void settingsComeIntoRange();
    void scriptedTyping_data();
    void scriptedTyping();
    void wrongKeyIsCountedAndTheRightKeyMovesOn();
    void speedTestEndsOnTime();
    void readerRefusesDamagedLines_data();
    void readerRefusesDamagedLines();
    void textsFitWhatMayBeTyped_data();
    void textsFitWhatMayBeTyped();
    void bestResultIsFastestThenMostAccurate();
};

namespace {

TypingTexts ShippedTexts()
{
    TypingTexts texts;
    if (!texts.load(BuiltDataPath() + u'/' + QString::fromLatin1(TypingTexts::FileName)))
        qWarning("%s", qPrintable(texts.error().message()));
    return texts;
}

TypingSettings Rows(bool top, bool home, bool bottom, bool number, bool shift)
{
    TypingSettings s;
    s.topRow = top;
    s.homeRow = home;
    s.bottomRow = bottom;
    s.numberRow = number;
    s.shift = shift;
    return s;
}

} // namespace

void tst_typing_rules::everyKeyHasAFingerAndARow_data()
{
    QTest::addColumn<QChar>("c");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("finger");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<int>("shiftFinger");
    const int none = -1;
    QTest::newRow("a") << QChar(u'a') << int(KeyRow::Home) << int(Finger::LeftPinky) << false
                       << none;
    QTest::newRow("f") << QChar(u'f') << int(KeyRow::Home) << int(Finger::LeftIndex) << false
                       << none;
    QTest::newRow("g") << QChar(u'g') << int(KeyRow::Home) << int(Finger::LeftIndex) << false
                       << none;
    QTest::newRow("h") << QChar(u'h') << int(KeyRow::Home) << int(Finger::RightIndex) << false
                       << none;
    QTest::newRow(";") << QChar(u';') << int(KeyRow::Home) << int(Finger::RightPinky) << false
                       << none;
    QTest::newRow("'") << QChar(u'\'') << int(KeyRow::Home) << int(Finger::RightPinky) << false
                       << none;
    QTest::newRow("e") << QChar(u'e') << int(KeyRow::Top) << int(Finger::LeftMiddle) << false
                       << none;
    QTest::newRow("y") << QChar(u'y') << int(KeyRow::Top) << int(Finger::RightIndex) << false
                       << none;
    QTest::newRow("b") << QChar(u'b') << int(KeyRow::Bottom) << int(Finger::LeftIndex) << false
                       << none;
    QTest::newRow(",") << QChar(u',') << int(KeyRow::Bottom) << int(Finger::RightMiddle) << false
                       << none;
    QTest::newRow("5") << QChar(u'5') << int(KeyRow::Number) << int(Finger::LeftIndex) << false
                       << none;
    QTest::newRow("6") << QChar(u'6') << int(KeyRow::Number) << int(Finger::RightIndex) << false
                       << none;
    QTest::newRow("0") << QChar(u'0') << int(KeyRow::Number) << int(Finger::RightPinky) << false
                       << none;
    QTest::newRow("space") << QChar(u' ') << int(KeyRow::Space) << int(Finger::Thumbs) << false
                           << none;
    // Shift is held by the other hand's little finger.
    QTest::newRow("A") << QChar(u'A') << int(KeyRow::Home) << int(Finger::LeftPinky) << true
                       << int(Finger::RightPinky);
    QTest::newRow("P") << QChar(u'P') << int(KeyRow::Top) << int(Finger::RightPinky) << true
                       << int(Finger::LeftPinky);
    QTest::newRow("?") << QChar(u'?') << int(KeyRow::Bottom) << int(Finger::RightPinky) << true
                       << int(Finger::LeftPinky);
    QTest::newRow("!") << QChar(u'!') << int(KeyRow::Number) << int(Finger::LeftPinky) << true
                       << int(Finger::RightPinky);
    QTest::newRow("\"") << QChar(u'"') << int(KeyRow::Home) << int(Finger::RightPinky) << true
                        << int(Finger::LeftPinky);
}

void tst_typing_rules::everyKeyHasAFingerAndARow()
{
    QFETCH(QChar, c);
    QFETCH(int, row);
    QFETCH(int, finger);
    QFETCH(bool, shift);
    QFETCH(int, shiftFinger);
    const Key *key = Keyboard::keyFor(c);
    QVERIFY(key);
    QCOMPARE(int(key->row), row);
    QCOMPARE(int(key->finger), finger);
    QCOMPARE(Keyboard::needsShift(c), shift);
    const Key *shiftKey = Keyboard::shiftKeyFor(c);
    QCOMPARE(shiftKey ? int(shiftKey->finger) : -1, shiftFinger);

    // The whole map: every printable character has exactly one key, and no two keys overlap
    // on a row or leave the keyboard.
    for (char16_t u = 32; u < 127; ++u) {
        int found = 0;
        for (const Key &k : Keyboard::keys())
            found += (k.plain == QChar(u) || k.shifted == QChar(u)) ? 1 : 0;
        QVERIFY2(found == 1, qPrintable(QStringLiteral("character %1").arg(QChar(u))));
    }
    for (const Key &k : Keyboard::keys()) {
        QVERIFY(!Keyboard::fingerName(k.finger).isEmpty());
        QVERIFY(k.x >= 0 && k.x + k.width <= Keyboard::Width);
        for (const Key &other : Keyboard::keys())
            if (&other != &k && other.row == k.row)
                QVERIFY(other.x + other.width <= k.x || k.x + k.width <= other.x);
    }
    QVERIFY(!Keyboard::keyFor(QChar(u'\u00E9')));
    QVERIFY(!Keyboard::keyFor(QChar()));
}

void tst_typing_rules::lessonsTeachEveryKeyOnce()
{
    const QList<TypingLesson> &lessons = Lessons::all();
    QCOMPARE(lessons.first().newKeys, QStringLiteral("asdf"));
    QCOMPARE(lessons[1].newKeys, QStringLiteral("jkl;"));
    QSet<QChar> seen;
    for (const TypingLesson &lesson : lessons) {
        QVERIFY(!lesson.newKeys.isEmpty());
        for (QChar c : lesson.newKeys) {
            QVERIFY2(!seen.contains(c), qPrintable(QString(c)));
            QVERIFY(Keyboard::keyFor(c));
            // Shift comes last: only lessons that say so use it.
            if (Keyboard::needsShift(c))
                QVERIFY(lesson.usesShift);
            seen.insert(c);
        }
    }
    for (QChar c = u'a'; c <= u'z'; c = QChar(c.unicode() + 1)) {
        QVERIFY(seen.contains(c));
        QVERIFY(seen.contains(c.toUpper()));
    }
    for (QChar c : QStringLiteral("0123456789.,'?!"))
        QVERIFY(seen.contains(c));
    QCOMPARE(Lessons::taughtUpTo(-1), QSet<QChar>{QChar(u' ')});
    QCOMPARE(Lessons::newKeysAllowed(999, TypingSettings()), QString());
}

void tst_typing_rules::drillsUseOnlyTaughtKeysOnRowsSwitchedOn()
{
    const TypingTexts texts = ShippedTexts();
    const QList<TypingSettings> choices{
        Rows(true, true, true, true, true),     Rows(true, true, true, false, false),
        Rows(false, true, false, false, false), Rows(true, false, true, true, true),
        Rows(false, false, true, false, true),
    };
    for (const TypingSettings &settings : choices) {
        for (int lesson = 0; lesson < Lessons::all().size(); ++lesson) {
            const QSet<QChar> allowed = Lessons::allowedKeys(lesson, settings);
            const QSet<QChar> taught = Lessons::taughtUpTo(lesson);
            const QString fresh = Lessons::newKeysAllowed(lesson, settings);
            for (qint64 seed = 1; seed <= 40; ++seed) {
                Generator random(seed);
                DrillMaker maker(texts, random);
                const QStringList drill = maker.make(lesson, settings);
                QCOMPARE(drill.isEmpty(), fresh.isEmpty());
                const QString all = drill.join(u' ');
                for (QChar c : all) {
                    const Key *key = Keyboard::keyFor(c);
                    const QString where = QStringLiteral("lesson %1, seed %2, '%3' in \"%4\"")
                                              .arg(lesson + 1)
                                              .arg(seed)
                                              .arg(c)
                                              .arg(all);
                    QVERIFY2(taught.contains(c) && allowed.contains(c), qPrintable(where));
                    QVERIFY2(key && settings.rowOn(key->row), qPrintable(where));
                    QVERIFY2(settings.shift || !Keyboard::needsShift(c), qPrintable(where));
                }
                // The lesson practises its own new keys, and lines stay short enough to read.
                if (!drill.isEmpty()) {
                    QVERIFY(std::any_of(fresh.begin(), fresh.end(),
                                        [&](QChar c) { return all.contains(c); }));
                    QVERIFY(drill.size() >= 3);
                    for (const QString &line : drill)
                        QVERIFY2(line.size() <=
                                     DrillMaker::LineLength + TypingTexts::LongestSentence,
                                 qPrintable(line));
                }
            }
        }
    }
}

void tst_typing_rules::rowFlagsChangeTheDrills()
{
    const TypingTexts texts = ShippedTexts();
    const auto drillOf = [&](int lesson, const TypingSettings &settings) {
        Generator random(7);
        DrillMaker maker(texts, random);
        return maker.make(lesson, settings).join(u' ');
    };
    const TypingSettings usual = TypingSettings::fromValues({1, 1, 1, 0, 1, 0});
    // "N and M" (lesson 9) with every letter row uses top-row letters too; without the top row
    // it does not, and the top-row lessons close.
    const QString withTop = drillOf(8, usual);
    QVERIFY(std::any_of(withTop.begin(), withTop.end(),
                        [](QChar c) { return QStringLiteral("qwertyuiop").contains(c); }));
    const TypingSettings noTop = TypingSettings::fromValues({0, 1, 1, 0, 1, 0});
    const QString withoutTop = drillOf(8, noTop);
    QVERIFY(!withoutTop.isEmpty());
    QVERIFY(std::none_of(withoutTop.begin(), withoutTop.end(),
                         [](QChar c) { return QStringLiteral("qwertyuiop").contains(c); }));
    QVERIFY(!Lessons::isOpen(3, noTop));
    // The number row is off by default, so the number lessons open only when it is switched on.
    QVERIFY(!Lessons::isOpen(13, usual));
    const TypingSettings numbers = TypingSettings::fromValues({1, 1, 1, 1, 1, 0});
    QVERIFY(Lessons::isOpen(13, numbers));
    QVERIFY(drillOf(13, numbers).contains(u'3'));
    // Shift opens the capitals lesson, whose drills then hold capitals.
    QVERIFY(!Lessons::isOpen(15, usual));
    const TypingSettings shift = TypingSettings::fromValues({1, 1, 1, 0, 1, 1});
    const QString capitals = drillOf(15, shift);
    QVERIFY(std::any_of(capitals.begin(), capitals.end(), [](QChar c) { return c.isUpper(); }));
    QVERIFY(drillOf(16, shift).contains(u'?'));
    // With no row at all nothing can be drilled.
    QVERIFY(drillOf(0, TypingSettings::fromValues({0, 0, 0, 0, 1, 1})).isEmpty());
}

void tst_typing_rules::settingsComeIntoRange()
{
    const TypingSettings usual = TypingSettings::fromValues({1, 1, 1, 0, 1, 0});
    QCOMPARE(usual.values(), (std::array<qint16, 6>{1, 1, 1, 0, 1, 0}));
    const TypingSettings flipped = TypingSettings::fromValues({0, 0, 0, 1, 0, 1});
    QCOMPARE(flipped.values(), (std::array<qint16, 6>{0, 0, 0, 1, 0, 1}));
    // Damaged values read as the usual choice, item by item.
    const TypingSettings damaged = TypingSettings::fromValues({2, -1, 0, 32767, -32768, 1});
    QCOMPARE(damaged.values(), (std::array<qint16, 6>{1, 1, 0, 0, 1, 1}));
}

void tst_typing_rules::scriptedTyping_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("gap"); // ms between keys
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("wrong");
    QTest::addColumn<double>("accuracy");
    QTest::addColumn<double>("wpm");
    QTest::addColumn<bool>("finished");
    // 26 keys 2.4 s apart: 25 gaps make one minute; 25 right keys after the first, but the
    // first counts too: 26 / 5 = 5.2 words in a minute.
    QTest::newRow("one minute, no slips")
        << QStringList{QStringLiteral("abcdefghijklm"), QStringLiteral("nopqrstuvwxyz")}
        << QStringLiteral("abcdefghijklmnopqrstuvwxyz") << 2400 << 26 << 0 << 100.0 << 5.2 << true;
    // Four wrong keys among 20: 80 %; 16 right in 19 gaps of 1 s.
    QTest::newRow("slips count against accuracy")
        << QStringList{QStringLiteral("sad lad asks")} << QStringLiteral("sxad lzad asxkzs") << 1000
        << 12 << 4 << 75.0 << (12 / 5.0) / (15 / 60.0) << true;
    QTest::newRow("half done") << QStringList{QStringLiteral("fff jjj")} << QStringLiteral("fff")
                               << 500 << 3 << 0 << 100.0 << 0.0 << false;
    QTest::newRow("control keys are ignored")
        << QStringList{QStringLiteral("ab")}
        << QStringLiteral("a\x08\x1b"
                          "b")
        << 30000 << 2 << 0 << 100.0 << (2 / 5.0) / 1.5 << true;
    QTest::newRow("nothing typed") << QStringList{QStringLiteral("ab")} << QString() << 1000 << 0
                                   << 0 << 100.0 << 0.0 << false;
}

void tst_typing_rules::scriptedTyping()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, keys);
    QFETCH(int, gap);
    QFETCH(int, right);
    QFETCH(int, wrong);
    QFETCH(double, accuracy);
    QFETCH(double, wpm);
    QFETCH(bool, finished);
    Exercise exercise;
    exercise.start(lines);
    qint64 now = 5000;
    for (QChar c : keys) {
        exercise.type(c, now);
        now += gap;
    }
    QCOMPARE(exercise.rightKeys(), right);
    QCOMPARE(exercise.wrongKeys(), wrong);
    QCOMPARE(exercise.accuracy(), accuracy);
    QCOMPARE(exercise.isFinished(), finished);
    if (finished) {
        // Once finished the clock stops: later moments give the same speed.
        QCOMPARE(exercise.wordsPerMinute(now + 999999), wpm);
        QCOMPARE(exercise.type(u'a', now), Exercise::Outcome::Ignored);
    } else if (right == 0) {
        QCOMPARE(exercise.wordsPerMinute(now), 0.0);
    }
}

void tst_typing_rules::wrongKeyIsCountedAndTheRightKeyMovesOn()
{
    Exercise exercise;
    exercise.start({QStringLiteral("as"), QString(), QStringLiteral("d")});
    QCOMPARE(exercise.lines().size(), 2); // empty lines are dropped
    QCOMPARE(exercise.expected(), QChar(u'a'));
    QCOMPARE(exercise.type(u's', 0), Exercise::Outcome::Wrong);
    QCOMPARE(exercise.type(u'x', 10), Exercise::Outcome::Wrong);
    QCOMPARE(exercise.position(), 0);
    QCOMPARE(exercise.pendingWrong(), QChar(u'x'));
    QCOMPARE(exercise.missedInLine(), QList<int>{0});
    QCOMPARE(exercise.type(u'a', 20), Exercise::Outcome::Right);
    QVERIFY(exercise.pendingWrong().isNull());
    QCOMPARE(exercise.type(u'd', 30), Exercise::Outcome::Wrong);
    QCOMPARE(exercise.type(u's', 40), Exercise::Outcome::LineDone);
    QVERIFY(exercise.missedInLine().isEmpty());
    QCOMPARE(exercise.type(u'D', 50), Exercise::Outcome::Wrong); // case matters
    QCOMPARE(exercise.type(u'd', 60), Exercise::Outcome::Finished);
    QCOMPARE(exercise.wrongKeys(), 4);
    QCOMPARE(exercise.rightKeys(), 3);
    // Most missed first; ties in character order.
    const QList<QPair<QChar, int>> missed = exercise.mostMissed(5);
    QCOMPARE(missed.size(), 3);
    QCOMPARE(missed[0], qMakePair(QChar(u'a'), 2));
    QCOMPARE(missed[1], qMakePair(QChar(u'd'), 1));
    QCOMPARE(missed[2], qMakePair(QChar(u's'), 1));
    QCOMPARE(exercise.mostMissed(1).size(), 1);
    QCOMPARE(exercise.mostMissed(-3).size(), 0);
}

void tst_typing_rules::speedTestEndsOnTime()
{
    const QString passage = QStringLiteral("The cat sat on the mat and the dog sat on the log. "
                                           "Then they both had a long nap in the warm sun.");
    const QStringList lines = SpeedTest::linesFor(passage);
    QVERIFY(lines.size() >= 2);
    QCOMPARE(lines.join(QString()), passage);
    for (const QString &line : lines)
        QVERIFY(line.size() <= SpeedTest::LineWidth);

    SpeedTest test;
    test.start(QStringLiteral("Cat"), 1, passage);
    QCOMPARE(test.secondsLeft(0), 60);
    QVERIFY(!test.checkTime(999999)); // the clock waits for the first key
    qint64 now = 10000;
    for (int i = 0; i < 25; ++i) {
        test.exercise().type(test.exercise().expected(), now);
        now += 1000;
    }
    test.exercise().type(u'#', now); // "d" of "and" is the 26th character
    QCOMPARE(test.secondsLeft(10000 + 59001), 1);
    QVERIFY(!test.checkTime(10000 + 59999));
    // A late tick ends the test at exactly one minute.
    QVERIFY(test.checkTime(10000 + 75000));
    QVERIFY(test.exercise().isFinished());
    QVERIFY(!test.checkTime(10000 + 80000));
    const TestResult result = test.result(10000 + 90000);
    QCOMPARE(result.seconds, 60.0);
    QCOMPARE(result.wordsPerMinute, 5.0); // 25 right keys in a minute
    QCOMPARE(result.accuracy, 25 * 100.0 / 26);
    QCOMPARE(result.missed, QStringLiteral("d"));
    QCOMPARE(test.exercise().type(u'x', 10000 + 91000), Exercise::Outcome::Ignored);

    // A passage typed to its end before the time is up is timed to its last key.
    SpeedTest quick;
    quick.start(QStringLiteral("Short"), 2, QStringLiteral("ab cd"));
    QCOMPARE(quick.minutes(), 2);
    for (QChar c : QStringLiteral("ab cd"))
        quick.exercise().type(c, now += 3000);
    QVERIFY(quick.exercise().isFinished());
    QCOMPARE(quick.result(now + 50000).seconds, 12.0);
    QCOMPARE(quick.result(now).wordsPerMinute, 5.0); // 5 keys, 12 s
}

void tst_typing_rules::readerRefusesDamagedLines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("item");
    const QByteArray ok = "\"words\",\"sad\",\"lad\"\n\"passage\",\"T\",\"A cat.\"\n";
    QTest::newRow("good") << ok << -1 << -1;
    QTest::newRow("unquoted word") << QByteArray("\"words\",\"sad\",12\n") << 1 << 3;
    QTest::newRow("capital in a word") << QByteArray("\"words\",\"Sad\"\n") << 1 << 2;
    QTest::newRow("empty word") << QByteArray("\"words\",\"\"\n") << 1 << 2;
    QTest::newRow("unknown kind") << ok + "\"poem\",\"x\"\n" << 3 << 1;
    QTest::newRow("sentence with a tab") << ok + "\"sentence\",\"a\tb\"\n" << 3 << 2;
    QTest::newRow("sentence with an accent") << ok + "\"sentence\",\"caf\xC3\xA9\"\n" << 3 << 2;
    QTest::newRow("two sentences on a line") << ok + "\"sentence\",\"a\",\"b\"\n" << 3 << 0;
    QTest::newRow("passage without title") << QByteArray("\"passage\",\"a b\"\n") << 1 << 0;
    QTest::newRow("passage with doubled blanks")
        << QByteArray("\"passage\",\"T\",\"a  b\"\n") << 1 << 3;
    QTest::newRow("no passages") << QByteArray("\"words\",\"sad\"\n") << 0 << 0;
    QTest::newRow("broken quote") << QByteArray("\"words\",\"sad\n") << 1 << 2;
    QTest::newRow("too long a passage")
        << "\"words\",\"a\"\n\"passage\",\"T\",\"" + QByteArray(2001, 'a') + "\"\n"
        << 2 << 3;
}

void tst_typing_rules::readerRefusesDamagedLines()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QFETCH(int, item);
    TypingTexts texts;
    const bool ok = texts.parse(content);
    QCOMPARE(ok, line < 0);
    if (ok) {
        QCOMPARE(texts.words(), (QStringList{QStringLiteral("sad"), QStringLiteral("lad")}));
        QCOMPARE(texts.passages().size(), 1);
        return;
    }
    QCOMPARE(texts.error().line, line);
    if (item > 0 || line == 0)
        QCOMPARE(texts.error().item, item);
    QVERIFY(texts.words().isEmpty() && texts.passages().isEmpty());

    // The shipped file reads, with plenty for every lesson.
    const TypingTexts shipped = ShippedTexts();
    QVERIFY(shipped.words().size() > 200);
    QVERIFY(shipped.sentences().size() > 30);
    QVERIFY(shipped.passages().size() >= 5);
    QCOMPARE(QSet<QString>(shipped.words().begin(), shipped.words().end()).size(),
             shipped.words().size());
    for (const Passage &passage : shipped.passages())
        QVERIFY2(passage.text.size() > 400, qPrintable(passage.title));
}

void tst_typing_rules::textsFitWhatMayBeTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("lesson");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QString>("fitted");
    QTest::newRow("home row, no period yet")
        << QStringLiteral("A lad asks Dad.") << 1 << false << QStringLiteral("a lad asks dad");
    QTest::newRow("a key not yet taught")
        << QStringLiteral("A red sled.") << 2 << false << QString();
    QTest::newRow("period taught") << QStringLiteral("Six kids fix the taxi.") << 11 << false
                                   << QStringLiteral("six kids fix the taxi.");
    QTest::newRow("capitals with shift")
        << QStringLiteral("Max can mix.") << 15 << true << QStringLiteral("Max can mix.");
    QTest::newRow("question mark later")
        << QStringLiteral("Can you come?") << 15 << true << QStringLiteral("Can you come");
    QTest::newRow("mark inside needs its key")
        << QStringLiteral("Look: a cat.") << 15 << true << QString();
}

void tst_typing_rules::textsFitWhatMayBeTyped()
{
    QFETCH(QString, text);
    QFETCH(int, lesson);
    QFETCH(bool, shift);
    QFETCH(QString, fitted);
    TypingSettings settings = Rows(true, true, true, true, shift);
    QCOMPARE(FitText(text, Lessons::allowedKeys(lesson, settings)), fitted);
    // Speed tests without Shift drop capitals and the marks that need it.
    QCOMPARE(PassageForTest(QStringLiteral("Look out! \"Hi,\" said Sam."), false),
             QStringLiteral("look out hi, said sam."));
    QCOMPARE(PassageForTest(QStringLiteral("Look out!"), true), QStringLiteral("Look out!"));
}

void tst_typing_rules::bestResultIsFastestThenMostAccurate()
{
    TestResults results;
    QVERIFY(!results.best());
    results.add({QStringLiteral("A"), 1, 60, 20, 90, {}});
    results.add({QStringLiteral("B"), 2, 120, 24, 85, {}});
    results.add({QStringLiteral("C"), 1, 60, 24, 97, {}});
    results.add({QStringLiteral("D"), 1, 60, 24, 97, {}});
    QCOMPARE(results.best()->title, QStringLiteral("C"));
}

QTEST_GUILESS_MAIN(tst_typing_rules)
#include "tst_typing_rules.moc"
