// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Settings.h"
#include "shell/core/WriteFormat.h"

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {
const QByteArray Reference = "1,6\n"
                             "0,1,9\n"
                             "2\n"
                             "\"Player 1\",\"Player 2\",\"Player 3\",\"Player 4\"\n"
                             "2,10\n"
                             "2\n"
                             "\"Player 1\",1,5,1\n"
                             "\"Player 2\",1,5,1\n"
                             "\"Player 3\",1,5,1\n"
                             "\"Player 4\",1,5,1\n"
                             "1,0,1,0\n"
                             "0\n"
                             "3\n"
                             "2\n"
                             "1,1,1,0,1,0\n"
                             "0,0,0,0\n"
                             "3,0\n"
                             "0\n";

QByteArray replaceLine(int line, const QByteArray &with)
{
    QList<QByteArray> lines = Reference.split('\n');
    lines[line - 1] = with;
    return lines.join('\n');
}
} // namespace

class FileFormatTest : public QObject {
    Q_OBJECT
private slots:
    void readsItemsAcrossLinesAndQuotes()
    {
        WriteReader in(QStringLiteral("t.dat"));
        QVERIFY(in.parse("\"a, b\", 12 ,\"say \"\"hi\"\"\"\r\n-7,plain words,\"\"\n3.5\n\n"));
        QString text;
        qint16 number = 0;
        double real = 0;
        QVERIFY(in.readText(text));
        QCOMPARE(text, QStringLiteral("a, b"));
        QVERIFY(in.readInt16(number));
        QCOMPARE(number, qint16(12));
        QVERIFY(in.readText(text));
        QCOMPARE(text, QStringLiteral("say \"hi\""));
        QVERIFY(in.readInt16(number));
        QCOMPARE(number, qint16(-7));
        QVERIFY(in.readText(text));
        QCOMPARE(text, QStringLiteral("plain words"));
        QVERIFY(in.readText(text));
        QCOMPARE(text, QString());
        QVERIFY(in.readNumber(real));
        QCOMPARE(real, 3.5);
        QVERIFY(in.atEnd());
        QVERIFY(in.expectEnd());
        QVERIFY(!in.readText(text));
        QCOMPARE(in.error().message(),
                 QStringLiteral("t.dat, line 4: the file ends where a text was expected"));
    }

    void roundsHalfToEven()
    {
        WriteReader in;
        QVERIFY(in.parse("2.5,3.5,-2.5,412.49,-0.5"));
        const qint16 expected[] = {2, 4, -2, 412, 0};
        for (qint16 want : expected) {
            qint16 got = 99;
            QVERIFY(in.readRoundedInt16(got));
            QCOMPARE(got, want);
        }
    }

    void realNumbersFollowThePlainForm()
    {
        for (const char *good : {"3.5", "-.5", "2.", "+7", "1e3", "1.5E-2", "0"}) {
            WriteReader in;
            double value = 0;
            QVERIFY2(in.parse(good) && in.readNumber(value), good);
            QCOMPARE(value, QByteArray(good).toDouble());
        }
        for (const char *bad : {"1e", ".", "+", "1.2.3", "e5", "1e1234", "0x10", "1,5e", "inf",
                                "nan", "1 2"}) {
            WriteReader in;
            double value = 0;
            bool ok = in.parse(bad);
            while (ok && !in.atEnd())
                ok = in.readNumber(value);
            QVERIFY2(!ok, bad);
        }
    }

    void rejectsBadItems_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");
        QTest::newRow("too big") << QByteArray("32768")
                                 << "f, line 1, item 1: the number 32768 is "
                                    "outside -32768 to 32767";
        QTest::newRow("too small") << QByteArray("1,-32769")
                                   << "f, line 1, item 2: the number -32769 is outside -32768 to "
                                      "32767";
        QTest::newRow("huge") << QByteArray("99999999999999999999999")
                              << "f, line 1, item 1: the number 99999999999999999999999 is "
                                 "outside -32768 to 32767";
        QTest::newRow("text for number")
            << QByteArray("\"5\"") << "f, line 1, item 1: a whole number was expected";
        QTest::newRow("fraction") << QByteArray("1.5")
                                  << "f, line 1, item 1: a whole number was expected";
        QTest::newRow("empty item")
            << QByteArray("1,,2") << "f, line 1, item 2: a whole number was expected";
        QTest::newRow("unterminated")
            << QByteArray("1\n\"open") << "f, line 2, item 1: a quoted text is not closed";
        QTest::newRow("junk after quote") << QByteArray("\"a\"b")
                                          << "f, line 1, item 1: something follows a quoted text "
                                             "without a comma";
        QTest::newRow("stray quote")
            << QByteArray("ab\"c") << "f, line 1, item 1: a stray quote mark";
    }
    void rejectsBadItems()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, message);
        WriteReader in(QStringLiteral("f"));
        qint16 value = 0;
        bool ok = in.parse(content);
        while (ok && !in.atEnd())
            ok = in.readInt16(value);
        QVERIFY(!ok);
        QCOMPARE(in.error().message(), message);
    }

    void writerAndReaderRoundTrip()
    {
        const QStringList texts{QStringLiteral("plain"),           QStringLiteral("with, comma"),
                                QStringLiteral("with \"quotes\""), QString(),
                                QStringLiteral(" pad "),           QStringLiteral("Zoë, Renée")};
        WriteWriter out;
        for (const QString &text : texts)
            out.text(text);
        out.endLine().number(qint64(-32768)).number(qint64(32767)).number(0.25).endLine();
        WriteReader in;
        QVERIFY(in.parse(out.data()));
        QVERIFY(in.beginLine(texts.size()));
        for (const QString &text : texts) {
            QString read;
            QVERIFY(in.readText(read));
            QCOMPARE(read, text);
        }
        qint16 low = 0, high = 0;
        double quarter = 0;
        QVERIFY(in.beginLine(3) && in.readInt16(low) && in.readInt16(high) &&
                in.readNumber(quarter) && in.expectEnd());
        QCOMPARE(low, qint16(-32768));
        QCOMPARE(high, qint16(32767));
        QCOMPARE(quarter, 0.25);
    }

    void referenceSettingsReadAndWriteBackIdentically()
    {
        FileError error;
        const auto settings = SettingsFile::parse(Reference, &error);
        QVERIFY2(settings, qPrintable(error.message()));
        QCOMPARE(*settings, Settings());
        QCOMPARE(SettingsFile::format(*settings), Reference);
        QCOMPARE(settings->cards.game, qint16(3));
        QCOMPARE(settings->mathRace.player[3].name, QStringLiteral("Player 4"));
        QCOMPARE(settings->stopThief.level, qint16(2));
    }

    void settingsKeepTextsWithCommasAndQuotes()
    {
        Settings changed;
        changed.mathRace.player[0].name = QStringLiteral("Anna, the \"Fast\"");
        changed.spaceRace.names[2] = QStringLiteral("O'Neil, Jr.");
        changed.mathRace.player[1].largest = 32767;
        changed.usGeography.values[3] = -32768;
        const auto back = SettingsFile::parse(SettingsFile::format(changed));
        QVERIFY(back);
        QCOMPARE(*back, changed);
    }

    void damagedSettingsAreRejectedWhole_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("where");
        QTest::newRow("empty file") << QByteArray() << "line 1: the line is missing";
        QList<QByteArray> lines = Reference.split('\n');
        QTest::newRow("one line too few") << lines.mid(0, 17).join('\n') + '\n'
                                          << "line 18: the line is missing";
        QTest::newRow("missing item") << replaceLine(1, "1")
                                      << "line 1, item 2: the line has 1 "
                                         "items instead of 2";
        QTest::newRow("extra item") << replaceLine(14, "2,3")
                                    << "line 14, item 2: the line has 2 "
                                       "items instead of 1";
        QTest::newRow("text for number")
            << replaceLine(6, "\"two\"") << "line 6, item 1: a whole number was expected";
        QTest::newRow("number for name ok but bad type") << replaceLine(8, "\"P2\",x,5,1")
                                                         << "line 8, item 2: a whole number was "
                                                            "expected";
        QTest::newRow("out of 16 bits") << replaceLine(7, "\"Player 1\",1,40000,1")
                                        << "line 7, item 3: the number 40000 is outside -32768 to "
                                           "32767";
        QTest::newRow("unterminated quote")
            << replaceLine(4, "\"Player 1,\"Player 2\",\"P3\",\"P4\"")
            << "line 4, item 1: something follows a quoted text";
        QTest::newRow("open quote at end") << replaceLine(4, "\"A\",\"B\",\"C\",\"D")
                                           << "line 4, item 4: a quoted text is not closed";
    }
    void damagedSettingsAreRejectedWhole()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, where);
        FileError error;
        QVERIFY(!SettingsFile::parse(content, &error));
        QVERIFY2(error.message().contains(where), qPrintable(error.message()));
        QVERIFY(error.message().startsWith(QLatin1String("lumbridle52.ini")));
    }

    void linesAfterTheEighteenthAreIgnored()
    {
        for (const QByteArray &tail : {QByteArray("7\n"), QByteArray("\"not closed\n,,x,\n\n"),
                                       QByteArray("\x00\xff", 2)}) {
            FileError error;
            const auto settings = SettingsFile::parse(Reference + tail, &error);
            QVERIFY2(settings, qPrintable(error.message()));
            QCOMPARE(*settings, Settings());
        }
        // The 18th line itself stays as strict as the rest.
        QVERIFY(!SettingsFile::parse(replaceLine(18, "0,1") + "\n"));
        QVERIFY(SettingsFile::parse(Reference.chopped(1)));
    }

    void failedSaveLeavesTheOldFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("lumbridle52.ini"));
        QVERIFY(SettingsFile::write(path, Settings()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), Reference);
        file.close();

        // A folder standing where the new file should go makes the save fail at the last step:
        // the error is reported, nothing is left behind and the other file is untouched.
        QVERIFY(QDir().mkpath(dir.filePath(QStringLiteral("blocked/inside"))));
        FileError error;
        QVERIFY(!SaveFileAtomically(dir.filePath(QStringLiteral("blocked")), "x", &error));
        QVERIFY(error.isSet());
        QVERIFY(error.message().startsWith(QDir(dir.path()).absoluteFilePath("blocked") +
                                           QLatin1String(": the file cannot be")));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"lumbridle52.ini"});
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), Reference);
    }

    // A disk that fills while saving: the write must fail, the old file must stay whole and
    // no temporary file may be left. Both ways of running out of room are tried.
    void fullDiskKeepsTheOldFile_data()
    {
        QTest::addColumn<bool>("smallFileSystem");
        QTest::newRow("small file system") << true;
        QTest::newRow("file size limit") << false;
    }
    void fullDiskKeepsTheOldFile()
    {
        QFETCH(bool, smallFileSystem);
        QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("disk"));
        QVERIFY(QDir().mkpath(folder));
        if (smallFileSystem &&
            ::mount("tmpfs", folder.toLocal8Bit().constData(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("mounting a small file system needs the right to mount");
        const QString path = folder + QStringLiteral("/lumbridle52.ini");
        QVERIFY(SettingsFile::write(path, Settings()));

        Settings changed;
        changed.mathRace.player[0].name = QString(3000, u'x'); // more than the room left
        rlimit oldLimit{};
        ::getrlimit(RLIMIT_FSIZE, &oldLimit);
        const auto oldSignal = std::signal(SIGXFSZ, SIG_IGN);
        if (smallFileSystem) {
            QFile filler(folder + QStringLiteral("/filler"));
            QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            const QByteArray block(512, 'f');
            while (filler.write(block) == block.size()) {
            }
        } else {
            rlimit small = oldLimit;
            small.rlim_cur = 1024;
            ::setrlimit(RLIMIT_FSIZE, &small);
        }
        FileError error;
        const bool saved = SettingsFile::write(path, changed, &error);
        ::setrlimit(RLIMIT_FSIZE, &oldLimit);
        std::signal(SIGXFSZ, oldSignal);

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray kept = file.readAll();
        file.close();
        const QStringList left = QDir(folder).entryList(QDir::Files);
        if (smallFileSystem)
            ::umount(folder.toLocal8Bit().constData());
        QVERIFY(!saved);
        QVERIFY(error.message().contains(QLatin1String("cannot be written")));
        QCOMPARE(kept, Reference);
        QCOMPARE(left.filter(QStringLiteral("lumbridle52")), QStringList{"lumbridle52.ini"});
    }
};

QTEST_GUILESS_MAIN(FileFormatTest)
#include "tst_fileformat.moc"
