// SPDX-License-Identifier: GPL-3.0-or-later
// Replays every reader's kept inputs (the shipped files and the damaged cases in
// tests/fuzz/corpus/<reader>/) under the sanitizers of the test build.
#include "FuzzTargets.h"
#include "support/TestDoubles.h"

#include <QDir>
#include <QFile>
#include <QTest>

class FuzzCorpusTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }

    void everyKeptInputPassesItsReader_data()
    {
        QTest::addColumn<QString>("target");
        for (const FuzzTarget &target : FuzzTargets())
            QTest::newRow(target.name) << QString::fromLatin1(target.name);
    }

    void everyKeptInputPassesItsReader()
    {
        QFETCH(QString, target);
        const FuzzTarget *reader = FindFuzzTarget(target.toLatin1());
        QStringList files;
        for (const QString &seed : reader->seeds)
            files.append(BuiltDataPath() + u'/' + seed);
        const QDir kept(QStringLiteral(LUMBRIDLE_FUZZ_CORPUS) + u'/' + target);
        for (const QString &name : kept.entryList(QDir::Files))
            files.append(kept.filePath(name));
        QVERIFY2(!reader->seeds.isEmpty(), "every reader is seeded from a shipped file");
        for (const QString &path : std::as_const(files)) {
            QFile file(path);
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
            reader->check(file.readAll());
        }
    }
};

QTEST_GUILESS_MAIN(FuzzCorpusTest)
#include "tst_fuzz_corpus.moc"
