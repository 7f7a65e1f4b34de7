// SPDX-License-Identifier: GPL-3.0-or-later
// The portrait shown as a clue must not name its president; a real portrait stays whole.
#include "presidents/QuizPortrait.h"
#include "support/TestDoubles.h"

#include <QTest>

class QuizPortraitTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }

    void drawnCardsLoseNameAndInitialsButKeepTheirNumber()
    {
        for (const char *file : {"presi002.gif", "presi016.gif", "presi023.gif", "presi047.gif"}) {
            const QImage card(BuiltDataPath() + u'/' + QLatin1String(file));
            QVERIFY2(!card.isNull(), file);
            const QImage clue = QuizPortrait(card).convertToFormat(QImage::Format_RGB32);
            const QImage before = card.convertToFormat(QImage::Format_RGB32);
            // The name line is plain paper now, apart from the dashed line drawn in its place.
            int inkLeft = 0;
            for (int y = 216; y < 232; ++y)
                for (int x = 20; x < 220; ++x)
                    inkLeft += qGray(clue.pixel(x, y)) < 128;
            QCOMPARE(inkLeft, 0);
            // The initials' place changed; the number line at the top did not.
            QVERIFY2(clue.copy(70, 100, 100, 60) != before.copy(70, 100, 100, 60), file);
            QCOMPARE(clue.copy(20, 20, 200, 26), before.copy(20, 20, 200, 26));
        }
    }

    void otherPicturesStayAsTheyAre()
    {
        const QImage flag(BuiltDataPath() + QStringLiteral("/flag016.png"));
        QCOMPARE(QuizPortrait(flag), flag);
        QImage photo(240, 300, QImage::Format_RGB32);
        photo.fill(QColor(90, 70, 60));
        QCOMPARE(QuizPortrait(photo), photo);
    }
};

QTEST_MAIN(QuizPortraitTest)
#include "tst_quizportrait.moc"
