// SPDX-License-Identifier: GPL-3.0-or-later
// Kills a process at many moments while it saves a file over and over, and checks that the
// file on disk is always one whole version, old or new: never empty, never half of each.
// Each saver is one row of a table: a file that the program saves is one more line there.
#include "graphs/Graph.h"
#include "shell/core/Settings.h"
#include "shell/core/WriteFormat.h"
#include "spacerace/WordList.h"
#include "support/TestDoubles.h"

#include <csignal>
#include <cstdio>
#include <functional>
#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {
struct Saver {
    const char *name;
    std::function<QByteArray(int version)> content;
    std::function<bool(const QString &path, int version)> save;
};

Settings settingsVersion(int version)
{
    Settings settings;
    settings.stopThief.level = qint16(version + 1);
    for (auto &player : settings.mathRace.player)
        player.name = version ? QStringLiteral("Second") : QStringLiteral("First player");
    return settings;
}

// About half a megabyte, so a kill often lands in the middle of the write.
WordList listVersion(int version)
{
    WordList list;
    list.words = version ? QStringList{QStringLiteral("MOON"), QStringLiteral("ROCKET")}
                         : QStringList(20, QStringLiteral("SPACESHIP"));
    return list;
}

Graph graphVersion(int version)
{
    Graph graph;
    graph.title = version ? QStringLiteral("Rain in May") : QStringLiteral("Pets in our class");
    for (int i = 0; i < 12 - 8 * version; ++i)
        graph.points.append({QStringLiteral("Day %1").arg(i + 1), float(i), qint16(i % 12)});
    return graph;
}

QByteArray largeVersion(int version)
{
    static const QByteArray versions[2] = {
        [] {
            WriteWriter out;
            for (int line = 0; line < 30000; ++line)
                out.text(QStringLiteral("old")).number(qint64(line)).endLine();
            return out.data();
        }(),
        [] {
            WriteWriter out;
            for (int line = 0; line < 30000; ++line)
                out.text(QStringLiteral("NEW WORD")).number(qint64(line)).endLine();
            return out.data();
        }()};
    return versions[version];
}

const QList<Saver> &Savers()
{
    static const QList<Saver> savers = {
        {"settings", [](int v) { return SettingsFile::format(settingsVersion(v)); },
         [](const QString &path, int v) { return SettingsFile::write(path, settingsVersion(v)); }},
        {"word list", [](int v) { return listVersion(v).format(); },
         [](const QString &path, int v) { return listVersion(v).write(path); }},
        {"graph file", [](int v) { return GraphFile::format(graphVersion(v)); },
         [](const QString &path, int v) { return GraphFile::write(path, graphVersion(v)); }},
        {"large file", largeVersion,
         [](const QString &path, int v) { return SaveFileAtomically(path, largeVersion(v)); }},
    };
    return savers;
}

// The child: saves the two versions in turn until it is killed.
int saveForever(const QByteArray &name, const QString &path)
{
    for (const Saver &saver : Savers()) {
        if (name != saver.name)
            continue;
        saver.content(0);
        saver.content(1);
        std::puts("saving");
        std::fflush(stdout);
        for (int version = 1;; version ^= 1)
            if (!saver.save(path, version))
                return 3;
    }
    return 2;
}
} // namespace

class AtomicSaveTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }

    void aKilledSaveLeavesAWholeFile_data()
    {
        QTest::addColumn<QString>("saver");
        for (const Saver &saver : Savers())
            QTest::newRow(saver.name) << QString::fromLatin1(saver.name);
    }

    void aKilledSaveLeavesAWholeFile()
    {
        QFETCH(QString, saver);
        const Saver *chosen = nullptr;
        for (const Saver &each : Savers())
            if (saver == QLatin1String(each.name))
                chosen = &each;
        const QByteArray versions[2] = {chosen->content(0), chosen->content(1)};
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("saved"));
        QVERIFY(SaveFileAtomically(path, versions[0]));

        int kills = 0;
        int seenNew = 0;
        QRandomGenerator moments(7);
        for (int round = 0; round < 60; ++round) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--save-forever"), saver, path});
            QVERIFY(child.waitForReadyRead(20000));
            QThread::usleep(moments.bounded(20000));
            ::kill(pid_t(child.processId()), SIGKILL);
            QVERIFY(child.waitForFinished(20000));
            ++kills;
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray now = file.readAll();
            QVERIFY2(now == versions[0] || now == versions[1],
                     qPrintable(
                         QStringLiteral("after kill %1 the file holds %2 bytes of neither version")
                             .arg(kills)
                             .arg(now.size())));
            seenNew += now == versions[1];
        }
        QVERIFY2(seenNew > 0, "the child never finished a save: the kills proved nothing");
    }
};

int main(int argc, char *argv[])
{
    if (argc == 4 && QByteArray(argv[1]) == "--save-forever") {
        QCoreApplication app(argc, argv);
        return saveForever(argv[2], QString::fromLocal8Bit(argv[3]));
    }
    QCoreApplication app(argc, argv);
    AtomicSaveTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_atomic_save.moc"
