// SPDX-License-Identifier: GPL-3.0-or-later
#include "balloon/BalloonRound.h"
#include "balloon/BalloonWords.h"
#include "shell/core/WriteFormat.h"
#include "support/TestDoubles.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

// The round, the word order, the settings, the word file reader and the shipped word lists.
class tst_balloon_rules : public QObject {
    Q_OBJECT
private slots:
    void roundPlays_data();
    void roundPlays();
    void hintCostsOneBalloon();
    void pickerUsesEveryWordBeforeRepeating_data();
    void pickerUsesEveryWordBeforeRepeating();
    void pickerKeepsGradesApart();
    void settingsComeIntoRange_data();
    void settingsComeIntoRange();
    void readerRefusesDamagedLines_data();
    void readerRefusesDamagedLines();
    void shippedListsHaveGoodWords();
};

namespace {

// One character per guess: R right, W wrong, A already tried, N not a letter, O round over.
QString Play(BalloonRound &round, const QString &guesses)
{
    QString results;
    for (QChar c : guesses) {
        switch (round.guess(c)) {
        case BalloonRound::Guess::Right:
            results += u'R';
            break;
        case BalloonRound::Guess::Wrong:
            results += u'W';
            break;
        case BalloonRound::Guess::AlreadyTried:
            results += u'A';
            break;
        case BalloonRound::Guess::NotALetter:
            results += u'N';
            break;
        case BalloonRound::Guess::Over:
            results += u'O';
            break;
        }
    }
    return results;
}

void Row(const char *name, const char *word, const char *guesses, const char *results,
         const char *shown, int balloons, const char *state, const char *wrong)
{
    QTest::newRow(name) << QString::fromLatin1(word) << QString::fromLatin1(guesses)
                        << QString::fromLatin1(results) << QString::fromLatin1(shown) << balloons
                        << QString::fromLatin1(state) << QString::fromLatin1(wrong);
}

QString State(const BalloonRound &round)
{
    if (round.isWon())
        return QStringLiteral("won");
    if (round.isLost())
        return QStringLiteral("lost");
    return round.isRunning() ? QStringLiteral("running") : QStringLiteral("none");
}

} // namespace

void tst_balloon_rules::roundPlays_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("guesses");
    QTest::addColumn<QString>("results");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("balloons");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("wrong");

    Row("marks shown from the start", "DON'T-STOP", "", "", "___'_-____", 6, "running", "");
    Row("one letter fills every box", "APPLE", "P", "R", "_PP__", 6, "running", "");
    Row("small letters count", "APPLE", "pz", "RW", "_PP__", 5, "running", "Z");
    Row("a repeat costs nothing", "APPLE", "ZzZpP", "WAARA", "_PP__", 5, "running", "Z");
    Row("digits and marks are no guess", "X-RAY", "7-' ", "NNNN", "_-___", 6, "running", "");
    Row("every letter wins", "X-RAY", "yarx", "RRRR", "X-RAY", 6, "won", "");
    Row("five misses still play", "CAT", "BDEFG", "WWWWW", "___", 1, "running", "BDEFG");
    Row("six misses lose and show the word", "CAT", "BDEFGHC", "WWWWWWO", "CAT", 0, "lost",
        "BDEFGH");
    Row("nothing after a win", "OX", "OXA", "RRO", "OX", 6, "won", "");
    Row("no word, no round", "C4T", "C", "O", "", 6, "none", "");
}

void tst_balloon_rules::roundPlays()
{
    QFETCH(QString, word);
    QFETCH(QString, guesses);
    BalloonRound round;
    round.start(word, QStringLiteral("A ___ here."));
    QTEST(Play(round, guesses), "results");
    QTEST(round.shown(), "shown");
    QTEST(round.balloons(), "balloons");
    QTEST(State(round), "state");
    QTEST(round.wrongLetters(), "wrong");
}

void tst_balloon_rules::hintCostsOneBalloon()
{
    BalloonRound round;
    round.start(QStringLiteral("CAT"), QStringLiteral("The cat naps; a catalog and a Cat."));
    // The word is blanked wherever it stands alone, never inside a longer word.
    QCOMPARE(round.hint(), QStringLiteral("The ___ naps; a catalog and a ___."));
    QCOMPARE(round.askHint(), BalloonRound::Hint::Given);
    QCOMPARE(round.balloons(), 5);
    QCOMPARE(round.askHint(), BalloonRound::Hint::AlreadyGiven);
    QCOMPARE(round.balloons(), 5);
    QCOMPARE(Play(round, QStringLiteral("BDEFG")), QStringLiteral("WWWWW"));
    QVERIFY(round.isLost());

    // The last balloon is never spent on a hint.
    round.start(QStringLiteral("CAT"), QStringLiteral("A ___ naps."));
    Play(round, QStringLiteral("BDEFG"));
    QCOMPARE(round.askHint(), BalloonRound::Hint::LastBalloon);
    QCOMPARE(round.balloons(), 1);

    round.start(QStringLiteral("CAT"));
    QCOMPARE(round.askHint(), BalloonRound::Hint::NoHint);
    QCOMPARE(round.balloons(), 6);
}

void tst_balloon_rules::pickerUsesEveryWordBeforeRepeating_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<qint64>("seed");
    QTest::newRow("one word") << 1 << qint64(1);
    QTest::newRow("two words") << 2 << qint64(2);
    QTest::newRow("seven words") << 7 << qint64(3);
    QTest::newRow("a grade's list") << 128 << qint64(4);
}

void tst_balloon_rules::pickerUsesEveryWordBeforeRepeating()
{
    QFETCH(int, count);
    QFETCH(qint64, seed);
    Generator random(seed);
    BalloonPicker picker(random);
    int last = -1;
    for (int pass = 0; pass < 20; ++pass) {
        QSet<int> seen;
        for (int i = 0; i < count; ++i) {
            const int index = picker.next(3, count);
            QVERIFY(index >= 0 && index < count);
            QVERIFY2(!seen.contains(index), "a word came back before the list was used up");
            if (count > 1)
                QVERIFY2(index != last, "the same word twice in a row");
            seen.insert(index);
            last = index;
        }
    }
}

void tst_balloon_rules::pickerKeepsGradesApart()
{
    Generator random(9);
    BalloonPicker picker(random);
    QSet<int> first;
    for (int i = 0; i < 5; ++i) {
        first.insert(picker.next(1, 10));
        picker.next(2, 10); // words of another grade use up nothing of grade 1
    }
    for (int i = 0; i < 5; ++i)
        QVERIFY(!first.contains(picker.next(1, 10)));
    QCOMPARE(picker.next(7, 10) + picker.next(1, 0), -2);
}

void tst_balloon_rules::settingsComeIntoRange_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("grade");
    QTest::addColumn<int>("wantSource");
    QTest::addColumn<int>("wantGrade");
    QTest::newRow("as delivered") << 1 << 6 << 1 << 6;
    QTest::newRow("no source") << 0 << 3 << 1 << 3;
    QTest::newRow("unknown source") << 3 << 3 << 1 << 3;
    QTest::newRow("grade too low") << 2 << 0 << 2 << 1;
    QTest::newRow("grade too high") << 1 << 7 << 1 << 6;
    QTest::newRow("extremes") << -32768 << 32767 << 1 << 6;
}

void tst_balloon_rules::settingsComeIntoRange()
{
    QFETCH(int, source);
    QFETCH(int, grade);
    const BalloonSettings settings = BalloonSettings::fromValues({qint16(source), qint16(grade)});
    QTEST(int(settings.source), "wantSource");
    QTEST(int(settings.grade), "wantGrade");
}

void tst_balloon_rules::readerRefusesDamagedLines_data()
{
    QByteArray good;
    for (int g = 1; g <= 6; ++g)
        good += QByteArray::number(g) + ",\"WORD\",\"A ___ here.\"\n";
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::newRow("all well") << good << -1;
    QTest::newRow("grade 7") << QByteArray("7,\"CAT\",\"A ___.\"\n") + good << 1;
    QTest::newRow("small letters") << good + "1,\"cat\",\"A ___.\"\n" << 7;
    QTest::newRow("marks only") << good + "1,\"-'\",\"A ___.\"\n" << 7;
    QTest::newRow("too long") << good + "1,\"" + QByteArray(31, 'A') + "\",\"A ___.\"\n" << 7;
    QTest::newRow("empty hint") << good + "1,\"CAT\",\" \"\n" << 7;
    QTest::newRow("no hint") << good + "1,\"CAT\"\n" << 7;
    QTest::newRow("grade as text") << good + "\"1\",\"CAT\",\"A ___.\"\n" << 7;
    QTest::newRow("a grade without words") << good.left(good.lastIndexOf("6,")) << 0;
    QTest::newRow("empty file") << QByteArray() << 0;
}

void tst_balloon_rules::readerRefusesDamagedLines()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    BalloonWords words;
    QCOMPARE(words.parse(content), line < 0);
    if (line >= 0) {
        QCOMPARE(words.error().line, line);
        QVERIFY(!words.error().message().isEmpty());
    } else {
        for (int g = 1; g <= 6; ++g)
            QCOMPARE(words.grade(g).size(), 1);
        QCOMPARE(words.grade(7).size(), 0);
    }
}

// The lists as shipped are read item by item with the shared reader, so a fault in the
// program's own word reader cannot hide a fault in the words.
void tst_balloon_rules::shippedListsHaveGoodWords()
{
    WriteReader in(QStringLiteral("balloon.dat"));
    QVERIFY2(in.load(BuiltDataPath() + QStringLiteral("/balloon.dat")),
             qPrintable(in.error().message()));
    const QRegularExpression spelling(QStringLiteral("^[A-Z'-]*[A-Z][A-Z'-]*$"));
    QList<QSet<QString>> grades(6);
    for (qsizetype line = 1; line <= in.lineCount(); ++line) {
        qint16 grade = 0;
        QString word;
        QString hint;
        QVERIFY(in.beginLine(3));
        QVERIFY(in.readInt16(grade) && in.readText(word) && in.readText(hint));
        const QString where = QStringLiteral("line %1 (%2)").arg(line).arg(word);
        QVERIFY2(grade >= 1 && grade <= 6, qPrintable(where));
        QVERIFY2(spelling.match(word).hasMatch(), qPrintable(where + QStringLiteral(": spelling")));
        QVERIFY2(!grades[grade - 1].contains(word),
                 qPrintable(where + QStringLiteral(": repeated")));
        grades[grade - 1].insert(word);
        QVERIFY2(hint.count(QStringLiteral("___")) == 1,
                 qPrintable(where + QStringLiteral(": the hint needs one blank")));
        // The word may not stand in its own hint, not even in other capitals.
        const QRegularExpression itself(
            QStringLiteral("(?<![A-Za-z'])%1(?![A-Za-z'])").arg(QRegularExpression::escape(word)),
            QRegularExpression::CaseInsensitiveOption);
        QVERIFY2(!itself.match(hint).hasMatch(),
                 qPrintable(where + QStringLiteral(": the hint gives the word away")));
    }
    QVERIFY(in.expectEnd());
    for (int g = 0; g < 6; ++g)
        QVERIFY2(
            grades[g].size() >= 120,
            qPrintable(QStringLiteral("grade %1 has %2 words").arg(g + 1).arg(grades[g].size())));

    BalloonWords words;
    QVERIFY2(words.load(BuiltDataPath() + QStringLiteral("/balloon.dat")),
             qPrintable(words.error().message()));
}

QTEST_GUILESS_MAIN(tst_balloon_rules)
#include "tst_balloon_rules.moc"
