// SPDX-License-Identifier: GPL-3.0-or-later
// The word lists as shipped: read straight from the file, item by item, so a fault in the
// program's own reader cannot hide a fault in the words.
#include "balloon/BalloonWords.h"
#include "shell/core/WriteFormat.h"
#include "support/TestDoubles.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

class tst_balloon_words : public QObject {
    Q_OBJECT
private slots:
    void everyGradeHasGoodWords();
};

void tst_balloon_words::everyGradeHasGoodWords()
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

QTEST_GUILESS_MAIN(tst_balloon_words)
#include "tst_balloon_words.moc"
