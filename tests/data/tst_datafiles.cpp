// SPDX-License-Identifier: GPL-3.0-or-later
// Every data file the program ships parses with the shared reader and holds what the
// activities rely on: counts, orders, pictures, and map points inside their own shapes.
#include "shell/core/WriteFormat.h"
#include "support/TestDoubles.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPolygonF>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

using Record = QStringList;

// What in a record's facts gives its answer away in a "Name the ..." quiz: a name (or capital)
// whole, any word of four letters or more from it, or a short code (an abbreviation, initials)
// as a whole word. Names and their words match in any case; codes only as written.
QStringList giveaways(const Record &record, const QList<int> &facts, const QStringList &names,
                      const QStringList &codes = {})
{
    QStringList found;
    auto wholeWord = [](const QString &word, Qt::CaseSensitivity cs) {
        return QRegularExpression(
            QStringLiteral("(?<![\\w])%1(?![\\w])").arg(QRegularExpression::escape(word)),
            cs == Qt::CaseInsensitive ? QRegularExpression::CaseInsensitiveOption
                                      : QRegularExpression::NoPatternOption);
    };
    for (int f : facts) {
        const QString &fact = record[f];
        for (const QString &name : names) {
            QStringList words{name};
            const auto parts = name.split(QRegularExpression(QStringLiteral("[^\\w']+")));
            for (const QString &part : parts)
                if (part.size() >= 4)
                    words.append(part);
            for (const QString &word : words)
                if (fact.contains(wholeWord(word, Qt::CaseInsensitive)))
                    found.append(QStringLiteral("\"%1\" in: %2").arg(word, fact));
        }
        for (const QString &code : codes)
            if (!code.isEmpty() && fact.contains(wholeWord(code, Qt::CaseSensitive)))
                found.append(QStringLiteral("\"%1\" in: %2").arg(code, fact));
    }
    return found;
}

// Reads a file of records with a fixed number of items each; numbers are kept as written.
QList<Record> readRecords(const QString &name, int items, QString *problem)
{
    WriteReader in(name);
    QList<Record> records;
    if (!in.load(BuiltDataPath() + u'/' + name)) {
        *problem = in.error().message();
        return {};
    }
    for (qsizetype line = 0; line < in.lineCount(); ++line) {
        Record record;
        if (!in.beginLine(items)) {
            *problem = in.error().message();
            return {};
        }
        for (int i = 0; i < items; ++i) {
            QString text;
            in.readText(text);
            record.append(text);
        }
        records.append(record);
    }
    return records;
}

// Shapes as lists of rings of whole-number points; a point is inside by the even-odd rule.
QList<QPolygonF> rings(const QJsonArray &array)
{
    QList<QPolygonF> result;
    for (const QJsonValue &ring : array) {
        QPolygonF polygon;
        for (const QJsonValue &point : ring.toArray())
            polygon.append(
                QPointF(point.toArray().at(0).toDouble(), point.toArray().at(1).toDouble()));
        result.append(polygon);
    }
    return result;
}

bool inside(const QList<QPolygonF> &shape, QPointF point)
{
    int crossings = 0;
    for (const QPolygonF &ring : shape)
        if (ring.containsPoint(point, Qt::OddEvenFill))
            ++crossings;
    return crossings % 2 == 1;
}

QJsonDocument json(const QString &name)
{
    QFile file(BuiltDataPath() + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll());
}

bool exists(const QString &name)
{
    return QFileInfo::exists(BuiltDataPath() + u'/' + name);
}

qint16 whole(const QString &text, bool *ok)
{
    const int value = text.toInt(ok);
    *ok = *ok && value >= -32768 && value <= 32767;
    return qint16(value);
}

} // namespace

class DataFilesTest : public QObject {
    Q_OBJECT
private slots:
    void statesFile()
    {
        QString problem;
        const auto states = readRecords(QStringLiteral("usgeo.dat"), 15, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QCOMPARE(states.size(), 50);
        QCOMPARE(states[1][1], QStringLiteral("Alaska"));
        QCOMPARE(states[10][1], QStringLiteral("Hawaii"));
        const QSet<QString> regions{"New England",  "Mid-Atlantic", "Southeast",      "Midwest",
                                    "Great Plains", "Southwest",    "Rocky Mountain", "Pacific"};
        QSet<QString> names, abbreviations;
        QSet<int> orders;
        const QJsonObject frame = json(QStringLiteral("usmap.json")).object();
        QCOMPARE(frame.value(QStringLiteral("width")).toInt(), 960);
        for (qsizetype r = 0; r < states.size(); ++r) {
            const Record &s = states[r];
            const QStringList given = giveaways(s, {10, 11, 12}, {s[1], s[2]}, {s[0]});
            QVERIFY2(given.isEmpty(), qPrintable(given.join(u'\n')));
            const QString where = QStringLiteral("record %1 (%2)").arg(r + 1).arg(s[1]);
            QVERIFY2(r == 0 || states[r - 1][1] < s[1], qPrintable(where + ": not alphabetical"));
            QVERIFY2(s[0].size() == 2 && s[0] == s[0].toUpper(), qPrintable(where));
            QVERIFY2(!names.contains(s[1]) && !abbreviations.contains(s[0]), qPrintable(where));
            names.insert(s[1]);
            abbreviations.insert(s[0]);
            for (int f : {2, 3, 8, 10, 11, 12})
                QVERIFY2(!s[f].trimmed().isEmpty(), qPrintable(where));
            QVERIFY2(regions.contains(s[6]), qPrintable(where + ": region " + s[6]));
            QVERIFY2(QDate::fromString(s[7], QStringLiteral("MMMM d, yyyy")).isValid(),
                     qPrintable(where + ": date " + s[7]));
            bool ok = false;
            const int order = whole(s[9], &ok);
            QVERIFY2(ok && order >= 1 && order <= 50 && !orders.contains(order), qPrintable(where));
            orders.insert(order);
            QVERIFY2(exists(s[0] + QStringLiteral("flag.png")), qPrintable(where + ": flag"));
            const bool inset = s[0] == QLatin1String("AK") || s[0] == QLatin1String("HI");
            QVERIFY2(inset || exists(s[0] + QStringLiteral("map.svg")), qPrintable(where));
            const QPointF point(s[13].toDouble(&ok), s[14].toDouble());
            QVERIFY2(ok, qPrintable(where));
            const auto shape = rings(json(s[0] + QStringLiteral("outline.json")).array());
            QVERIFY2(!shape.isEmpty(), qPrintable(where + ": outline"));
            QVERIFY2(inside(shape, point), qPrintable(where + ": map point outside the state"));
        }
        for (const char *inset :
             {"akblue.bmp", "akyellow.bmp", "hiblue.bmp", "hiyellow.bmp", "usmap.svg"})
            QVERIFY2(exists(QLatin1String(inset)), inset);
    }

    void countriesFile()
    {
        QString problem;
        const auto countries = readRecords(QStringLiteral("wgeo.dat"), 12, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QCOMPARE(countries.size(), 100);
        const QJsonObject shapes = json(QStringLiteral("world.json"))
                                       .object()
                                       .value(QStringLiteral("countries"))
                                       .toObject();
        QSet<QString> names, capitals;
        QSet<int> regionsUsed;
        for (qsizetype r = 0; r < countries.size(); ++r) {
            const Record &c = countries[r];
            const QString where = QStringLiteral("record %1 (%2)").arg(r + 1).arg(c[0]);
            QVERIFY2(!names.contains(c[0]) && !capitals.contains(c[1]), qPrintable(where));
            names.insert(c[0]);
            capitals.insert(c[1]);
            bool ok = false;
            const int region = whole(c[5], &ok);
            QVERIFY2(ok && region >= 1 && region <= 13, qPrintable(where));
            regionsUsed.insert(region);
            for (int f : {2, 3, 4, 9})
                QVERIFY2(!c[f].trimmed().isEmpty(), qPrintable(where));
            // The facts are clues for naming the country: they must not name it.
            const QStringList given = giveaways(c, {2, 3, 4}, {c[0], c[1]});
            QVERIFY2(given.isEmpty(), qPrintable(given.join(u'\n')));
            for (int f : {2, 3, 4})
                QVERIFY2(!c[f].contains(c[0], Qt::CaseInsensitive),
                         qPrintable(where + ": a fact names the country"));
            QVERIFY2(exists(QStringLiteral("flag%1.png").arg(r + 1, 3, 10, QLatin1Char('0'))),
                     qPrintable(where + ": flag"));
            const QPointF point(c[10].toDouble(&ok), c[11].toDouble());
            QVERIFY2(ok, qPrintable(where));
            const auto shape = rings(shapes.value(QString::number(r + 1)).toArray());
            QVERIFY2(inside(shape, point), qPrintable(where + ": map point outside the country"));
        }
        QCOMPARE(regionsUsed.size(), 13);
        QCOMPARE(countries[0][0], QStringLiteral("Afghanistan"));
    }

    void presidentsFile()
    {
        QString problem;
        const auto presidents = readRecords(QStringLiteral("uspres.dat"), 11, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QCOMPARE(presidents.size(), 47);
        QCOMPARE(presidents[21][0], presidents[23][0]); // two separate terms, one person
        QCOMPARE(presidents[44][0], presidents[46][0]);
        QDate previousStart;
        for (qsizetype r = 0; r < presidents.size(); ++r) {
            const Record &p = presidents[r];
            const int n = int(r + 1);
            const QString where = QStringLiteral("presidency %1 (%2)").arg(n).arg(p[0]);
            const QDate born = QDate::fromString(p[2], QStringLiteral("MM/dd/yyyy"));
            const QDate start = QDate::fromString(p[5], QStringLiteral("MM/dd/yyyy"));
            QVERIFY2(born.isValid() && start.isValid(), qPrintable(where));
            QVERIFY2(born.addYears(35) <= start, qPrintable(where + ": too young"));
            QVERIFY2(!previousStart.isValid() || previousStart < start, qPrintable(where));
            previousStart = start;
            for (int f : {0, 3, 4, 6, 7, 8, 9, 10})
                QVERIFY2(!p[f].trimmed().isEmpty(), qPrintable(where));
            QString initials;
            for (const QString &part : p[1].split(u' ', Qt::SkipEmptyParts))
                if (part[0].isUpper())
                    initials += part[0];
            const QStringList given = giveaways(p, {7, 8, 9, 10}, {p[0], p[1]}, {initials});
            QVERIFY2(given.isEmpty(), qPrintable(given.join(u'\n')));
            const int picture = n < 24 ? n + 1 : n == 24 ? 23 : n;
            QVERIFY2(exists(QStringLiteral("presi%1.gif").arg(picture, 3, 10, QLatin1Char('0'))),
                     qPrintable(where + ": portrait"));
        }
        QCOMPARE(previousStart, QDate(2025, 1, 20));
    }

    void everyPictureLoads()
    {
        const QStringList names =
            QDir(BuiltDataPath()).entryList({"*.png", "*.gif", "*.bmp", "*.svg"}, QDir::Files);
        QVERIFY(names.size() >= 250);
        for (const QString &name : names) {
            QFile file(BuiltDataPath() + u'/' + name);
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray head = file.read(8);
            const bool known = head.startsWith("\x89PNG") || head.startsWith("GIF8") ||
                               head.startsWith("BM") || head.startsWith("<svg") ||
                               head.startsWith("<?xml");
            QVERIFY2(known, qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(DataFilesTest)
#include "tst_datafiles.moc"
