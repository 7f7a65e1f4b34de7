// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/core/SettingsStore.h"
#include "shell/Startup.h"
#include "support/TestDoubles.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class StartupTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { InitTestProgram(); }

    void commandLine()
    {
        const auto parse = [](QStringList words) {
            words.prepend(QStringLiteral("lumbridle"));
            return ParseCommandLine(words);
        };
        QVERIFY(parse({}).dataDir.isEmpty());
        QVERIFY(parse({}).error.isEmpty());
        QCOMPARE(parse({"--data-dir", "/srv/x"}).dataDir, QStringLiteral("/srv/x"));
        QCOMPARE(parse({"--data-dir=/srv/y"}).dataDir, QStringLiteral("/srv/y"));
        QVERIFY(parse({"--help"}).help);
        QVERIFY(parse({"--version"}).version);
        QCOMPARE(parse({"-platform", "offscreen"}).error, QString());
        QCOMPARE(parse({"--data-dir"}).error,
                 QStringLiteral("--data-dir needs the name of a folder"));
        QCOMPARE(parse({"--colour"}).error, QStringLiteral("unknown option --colour"));
    }

    void programAnswersWithoutAWindowSystem()
    {
        QProcess program;
        program.start(QStringLiteral(LUMBRIDLE_PROGRAM), {QStringLiteral("--version")});
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(program.readAllStandardOutput().trimmed(), QByteArray("Lumbridle 5.0"));

        program.start(QStringLiteral(LUMBRIDLE_PROGRAM), {QStringLiteral("--help")});
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(program.readAllStandardOutput().contains("--data-dir DIR"));

        program.start(QStringLiteral(LUMBRIDLE_PROGRAM), {QStringLiteral("--fast")});
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitCode(), 2);
        QVERIFY(program.readAllStandardError().contains("unknown option --fast"));

        program.start(QStringLiteral(LUMBRIDLE_PROGRAM),
                      {QStringLiteral("--data-dir"), QStringLiteral("/no/such/folder")});
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitCode(), 2);
    }

    void goodSettingsAreReadAndTheSpaceRaceListIsReset()
    {
        TestEnvironment env;
        QTemporaryDir dir;
        Settings stored;
        stored.stopThief.level = 5;
        stored.cards.game = 1;
        QVERIFY(SettingsFile::write(dir.filePath(QStringLiteral("lumbridle52.ini")), stored));
        TheSettings().spaceRaceListName = QStringLiteral("spelling.srl");
        TheSettings().spaceRaceWordCount = 12;
        QVERIFY(PrepareStart(dir.path()));
        QCOMPARE(DataPath(), dir.path() + u'/');
        QCOMPARE(TheSettings().stopThief.level, qint16(5));
        QCOMPARE(TheSettings().cards.game, qint16(1));
        QCOMPARE(TheSettings().spaceRaceListName, QStringLiteral("NONE"));
        QCOMPARE(TheSettings().spaceRaceWordCount, qint16(0));
        QVERIFY(env.dialogs.messages.isEmpty());
    }

    // A build tree keeps data and settings beside the program; an installed program reads its
    // data from ../share/lumbridle and keeps settings in the user's folder, even where the
    // installed folder could be written (as root can).
    void installedDataIsFoundAndSettingsGoToTheUser()
    {
        QTemporaryDir prefix;
        QVERIFY(QDir(prefix.path()).mkpath(QStringLiteral("bin")));
        QVERIFY(QDir(prefix.path()).mkpath(QStringLiteral("share/lumbridle")));
        const QString shared = prefix.filePath(QStringLiteral("share/lumbridle"));
        const DataLocation installed = LocateData(prefix.filePath(QStringLiteral("bin")));
        QCOMPARE(installed.folder, shared);
        QVERIFY(installed.installed);

        QTemporaryDir tree;
        QFile ini(tree.filePath(QStringLiteral("lumbridle52.ini")));
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.close();
        const DataLocation built = LocateData(tree.path());
        QCOMPARE(built.folder, QDir(tree.path()).absolutePath());
        QVERIFY(!built.installed);

        TestEnvironment env;
        SetDataPath(shared);
        SetDataPathInstalled(true);
        QVERIFY(!SettingsStore::writePath().startsWith(shared));
        QCOMPARE(SettingsStore::readPath(), shared + QStringLiteral("/lumbridle52.ini"));
        SetDataPathInstalled(false);
        QCOMPARE(SettingsStore::writePath(), shared + QStringLiteral("/lumbridle52.ini"));
    }

    void damagedOrMissingSettingsStopTheStart_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("present");
        const QByteArray good = SettingsFile::format(Settings());
        QTest::newRow("missing") << QByteArray() << false;
        QTest::newRow("empty") << QByteArray() << true;
        QTest::newRow("one line short")
            << good.left(good.lastIndexOf('\n', good.size() - 2) + 1) << true;
        QTest::newRow("binary junk") << QByteArray("\x00\xff\xfe garbage", 12) << true;
        QTest::newRow("out of range") << QByteArray(good).replace("3,0\n", "70000,0\n") << true;
    }
    void damagedOrMissingSettingsStopTheStart()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, present);
        TestEnvironment env;
        QTemporaryDir dir;
        if (present) {
            QFile file(dir.filePath(QStringLiteral("lumbridle52.ini")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        TheSettings().graphs.value = 77; // no value may be replaced by a default
        QVERIFY(!PrepareStart(dir.path()));
        QCOMPARE(env.dialogs.messages.size(), 1);
        QCOMPARE(env.dialogs.messages[0].text,
                 QStringLiteral("File missing/incomplete - Reinstall program"));
        QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
        QVERIFY(env.dialogs.messages[0].details.startsWith(dir.path()));
        QCOMPARE(TheSettings().graphs.value, qint16(77));
    }

    // With no screen (offscreen here) the program must not wait on a box nobody can close:
    // it says what is wrong, with the file's full path, and ends with an error status.
    void damagedSettingsEndTheProgramWithoutAScreen()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("lumbridle52.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("1,6\n");
        file.close();
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(LUMBRIDLE_PROGRAM), {QStringLiteral("--data-dir"), dir.path()});
        QVERIFY(program.waitForFinished(20000));
        QVERIFY(program.exitCode() != 0);
        const QByteArray said = program.readAllStandardError();
        QVERIFY2(said.contains("File missing/incomplete - Reinstall program"), said.constData());
        QVERIFY2(said.contains(QFile::encodeName(file.fileName()) + ", line 2"), said.constData());
    }

    void deliveredSettingsFileHoldsTheReferenceValues()
    {
        const auto delivered = SettingsFile::read(BuiltDataPath() + "/lumbridle52.ini");
        QVERIFY(delivered);
        QCOMPARE(*delivered, Settings());
    }
};

QTEST_MAIN(StartupTest)
#include "tst_startup.moc"
