// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Random.h"
#include "shell/core/Shuffle.h"
#include "shell/core/SoundCode.h"
#include "shell/core/TextWrap.h"
#include "shell/core/WaveFile.h"

#include <algorithm>
#include <QtEndian>
#include <QTest>

class SharedRoutinesTest : public QObject {
    Q_OBJECT
private slots:
    void shuffleIsAPermutationAndLeavesElementZero()
    {
        for (qint16 n : {2, 3, 5, 14, 50, 52, 100}) {
            for (qint64 seed : {0, 1, 42, 30000, -7}) {
                Generator random(seed);
                QList<qint16> order(n + 3, qint16(-99));
                Shuffle(n, order, random);
                QCOMPARE(order[0], qint16(-99));
                QCOMPARE(order[n + 1], qint16(-99));
                QList<qint16> sorted = order.mid(1, n);
                std::sort(sorted.begin(), sorted.end());
                for (qint16 i = 1; i <= n; ++i)
                    QCOMPARE(sorted[i - 1], i);
            }
        }
    }

    void shuffleOfNoneOrOneDrawsNothing()
    {
        ScriptedCounter counter;
        QList<qint16> one{7, 9};
        Shuffle(1, one, counter);
        QCOMPARE(one, (QList<qint16>{7, 1}));
        QList<qint16> none{7, 9};
        Shuffle(0, none, counter);
        QCOMPARE(none, (QList<qint16>{7, 9}));
        QCOMPARE(counter.draws, 0);
    }

    void shuffleUsesEveryOrderEvenly()
    {
        // All six orders of three should come up about equally often; a biased exchange
        // (drawing k from 1..N every time) would not.
        Generator random(99);
        QHash<QString, int> seen;
        QList<qint16> order(4);
        for (int i = 0; i < 60000; ++i) {
            Shuffle(3, order, random);
            ++seen[QStringLiteral("%1%2%3").arg(order[1]).arg(order[2]).arg(order[3])];
        }
        QCOMPARE(seen.size(), 6);
        for (int count : std::as_const(seen))
            QVERIFY2(count > 9400 && count < 10600, qPrintable(QString::number(count)));
    }

    void shuffleReportsACountThatWouldOverflow()
    {
        Generator random(5);
        QList<qint16> order(32768, qint16(-1));
        QVERIFY(!Shuffle(32767, order, random)); // its counter would pass 32767
        QVERIFY(std::all_of(order.cbegin(), order.cend(), [](qint16 v) { return v == -1; }));
        QList<qint16> shortList(5, qint16(-1));
        QVERIFY(!Shuffle(5, shortList, random));
        QCOMPARE(shortList, QList<qint16>(5, qint16(-1)));

        QVERIFY(Shuffle(32766, order, random));
        QList<qint16> sorted = order.mid(1, 32766);
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(sorted.first(), qint16(1));
        QCOMPARE(sorted.last(), qint16(32766));
        QVERIFY(std::adjacent_find(sorted.cbegin(), sorted.cend()) == sorted.cend());
        QCOMPARE(order[32767], qint16(-1));
    }

    // A wave file's header decides how long a sound played to its end holds the program.
    void waveLengthTrustsOnlyAWholeHonestHeader_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<double>("seconds");
        // 8 kHz, mono, 8 bits: 8000 bytes a second.
        QTest::newRow("one second") << wave(8000, 1, 8, 8000, 8000) << 1.0;
        QTest::newRow("16-bit stereo, half a second") << wave(22050, 2, 16, 44100, 44100) << 0.5;
        QTest::newRow("byte rate of 1") << wave(8000, 1, 8, 8000, 8000, 1) << 0.0;
        QTest::newRow("byte rate that disagrees") << wave(8000, 1, 8, 8000, 8000, 4000) << 0.0;
        QTest::newRow("data longer than the file") << wave(8000, 1, 8, 800000, 4000) << 0.5;
        QTest::newRow("longer than any sound of ours") << wave(8000, 1, 8, 800000, 800000)
                                                       << 10.0;
        QByteArray cut = wave(8000, 1, 8, 8000, 0);
        QTest::newRow("format chunk four bytes short") << cut.left(12 + 8 + 12) << 0.0;
        QByteArray tiny = wave(8000, 1, 8, 8000, 10);
        tiny.replace(16, 4, QByteArray("\x0c\0\0\0", 4)); // a 12-byte format chunk
        QTest::newRow("format chunk too small") << tiny << 0.0;
        QByteArray noFormat = wave(8000, 1, 8, 8000, 8000);
        noFormat.replace(12, 4, "junk");
        QTest::newRow("data before any format") << noFormat << 0.0;
        QTest::newRow("not a wave") << QByteArray("RIFF\0\0\0\0AVI LIST") << 0.0;
        QTest::newRow("empty") << QByteArray() << 0.0;
    }
    void waveLengthTrustsOnlyAWholeHonestHeader()
    {
        QFETCH(QByteArray, file);
        QFETCH(double, seconds);
        QCOMPARE(WaveFile::seconds(file.left(4096), file.size()), seconds);
    }

    void generatorIsReproducibleAndInRange()
    {
        Generator a(12345), b(12345), c(12346);
        bool differs = false;
        for (int i = 0; i < 10000; ++i) {
            const double x = a.next();
            QVERIFY(x >= 0.0 && x < 1.0);
            QCOMPARE(x, b.next());
            differs = differs || x != c.next();
        }
        QVERIFY(differs);
        // The sequence is part of every Stop Thief case: it must never change between builds.
        Generator fixed(0);
        QCOMPARE(QString::number(fixed.next(), 'f', 12), QStringLiteral("0.601262999418"));
    }

    void soundCode_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("code");
        QTest::newRow("Smith") << "Smith"
                               << "S53";
        QTest::newRow("Tennessee") << "Tennessee"
                                   << "T52";
        QTest::newRow("Pfizer") << "Pfizer"
                                << "P126";
        QTest::newRow("Ashcraft") << "Ashcraft"
                                  << "A22613";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("one small letter") << "a"
                                          << "A";
        QTest::newRow("lower case") << "smith"
                                    << "S53";
        QTest::newRow("digit first") << "4th"
                                     << "43";
        QTest::newRow("blanks and marks skipped") << "New York"
                                                  << "N62";
        QTest::newRow("mark keeps previous code") << "Mc-Cain"
                                                  << "M25";
        QTest::newRow("vowel lets code repeat") << "Tutu"
                                                << "T3";
        QTest::newRow("no vowel between") << "Jackson"
                                          << "J25";
        QTest::newRow("long word not cut") << "Massachusetts"
                                           << "M22232";
        QTest::newRow("accented letters skipped") << "Québec"
                                                  << "Q12";
    }
    void soundCode()
    {
        QFETCH(QString, word);
        QFETCH(QString, code);
        QCOMPARE(SoundCode(word), code);
    }

    void soundCodeMatchesSoundAlikes()
    {
        QCOMPARE(SoundCode(QStringLiteral("Sacramento")), SoundCode(QStringLiteral("Sakramento")));
        QCOMPARE(SoundCode(QStringLiteral("Phoenix")), SoundCode(QStringLiteral("Pheonix")));
        QVERIFY(SoundCode(QStringLiteral("Boston")) != SoundCode(QStringLiteral("Austin")));
    }

    void wordWrapBreaksAtBlanks()
    {
        QCOMPARE(WordWrap(QStringLiteral("the quick brown fox jumps"), 10),
                 (QStringList{"the quick", "brown fox", "jumps"}));
        QCOMPARE(WordWrap(QStringLiteral("exactly ten"), 11), (QStringList{"exactly ten"}));
        QCOMPARE(WordWrap(QStringLiteral("one\n\ntwo"), 20), (QStringList{"one", "", "two"}));
        QCOMPARE(WordWrap(QStringLiteral("abcdefghijkl xy"), 5),
                 (QStringList{"abcde", "fghij", "kl xy"}));
        QCOMPARE(WordWrap(QString(), 5), (QStringList{""}));
        // Blanks inside a line and the indent of a paragraph stay as written.
        QCOMPARE(WordWrap(QStringLiteral("Clue 1:  Big feet.  The end"), 30),
                 (QStringList{"Clue 1:  Big feet.  The end"}));
        QCOMPARE(WordWrap(QStringLiteral("          --- END OF CLUES ---"), 65),
                 (QStringList{"          --- END OF CLUES ---"}));
        QCOMPARE(WordWrap(QStringLiteral("  one two  three"), 7),
                 (QStringList{"  one", "two", "three"}));
        for (const QString &line : WordWrap(QString(500, u'w') + QStringLiteral(" a b c"), 65))
            QVERIFY(line.size() <= 65);
    }

private:
    static QByteArray wave(quint32 rate, quint16 channels, quint16 bits, quint32 dataSize,
                           int dataHeld, quint32 byteRate = 0)
    {
        const quint16 block = quint16(channels * bits / 8);
        QByteArray out("RIFF\0\0\0\0WAVEfmt ", 16);
        auto put = [&out](auto value) {
            char bytes[sizeof value];
            qToLittleEndian(value, bytes);
            out.append(bytes, sizeof value);
        };
        put(quint32(16));
        put(quint16(1));
        put(channels);
        put(rate);
        put(byteRate ? byteRate : rate * block);
        put(block);
        put(bits);
        out.append("data");
        put(dataSize);
        out.append(QByteArray(dataHeld, '\x80'));
        return out;
    }

    // Counts draws, so a test can prove that nothing was drawn.
    class ScriptedCounter final : public RandomSource {
    public:
        double next() override
        {
            ++draws;
            return 0.5;
        }
        void seed(qint64) override {}
        int draws = 0;
    };
};

QTEST_GUILESS_MAIN(SharedRoutinesTest)
#include "tst_shared_routines.moc"
