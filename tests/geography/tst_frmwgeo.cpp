// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/QuizWindowTesting.h"
#include "support/TestDoubles.h"

#include "geography/FlagButton.h"
#include "geography/frmWGeo.h"
#include "geography/WorldMap.h"
#include "GeoQuizTesting.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace QuizWindowTesting;

namespace {
QPointF placeOf(const frmWGeo &window, int country)
{
    return QPointF(window.countries().number(country, WorldCountries::MapX),
                   window.countries().number(country, WorldCountries::MapY));
}
} // namespace

// The World Geography window's flows through the seams: browsing the countries with the
// pointer, clicks on small countries, one question of every mode, the map quiz, the end of a
// quiz and a missing file of countries.
class tst_frmwgeo : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InitTestProgram(); }
    void reviewByButtonsKeysAndMap();
    void oneQuestionOfEveryMode_data();
    void oneQuestionOfEveryMode();
    void findOnTheMap();
    void quizEndsAfterTheLastCountry();
    void missingFileOfCountries();
};

void tst_frmwgeo::reviewByButtonsKeysAndMap()
{
    TestEnvironment env;
    ScriptedRandom random;
    SetRandomSource(&random);
    frmWGeo window;
    showActive(window);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("World Geography"));
    random.values = {11.5 / 100}; // Int(Rnd * 100) + 1 = 12, Brazil
    QTest::mouseClick(window.cmdChoice[0], Qt::LeftButton);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("World Geography-Review Countries"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("&Stop"));
    QCOMPARE(window.lblName->text(), QStringLiteral("Brazil"));
    QCOMPARE(fileName(window.imgFlag), QStringLiteral("flag012.png"));
    QCOMPARE(window.lblCapital->text(), QStringLiteral("Capital-Brasilia"));
    QCOMPARE(window.lblRegion->text(), QStringLiteral("South America"));
    QCOMPARE(window.lblProducts->text(), window.countries().text(12, WorldCountries::Products));
    QVERIFY(!window.lblFact[2]->text().isEmpty());
    // The world map stays; the pointer marks the country's map point.
    QCOMPARE(fileName(window.picMap), QStringLiteral("world.svg"));
    QCOMPARE(window.picMap->pointer(), std::optional<QPointF>(placeOf(window, 12)));

    // Before 1 comes 100; keys on any button step too.
    for (int i = 0; i < 11; ++i)
        QTest::keyClick(window.cmdNext, Qt::Key_Left);
    QCOMPARE(window.lblName->text(), QStringLiteral("Afghanistan"));
    QTest::mouseClick(window.cmdPrevious, Qt::LeftButton);
    QCOMPARE(window.lblName->text(), QStringLiteral("Zimbabwe"));
    QCOMPARE(fileName(window.imgFlag), QStringLiteral("flag100.png"));
    QCOMPARE(fileName(window.picMap), QStringLiteral("world.svg"));

    // A click inside Denmark shows it, with its region by name alone.
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint(placeOf(window, 22)));
    QCOMPARE(window.lblName->text(), QStringLiteral("Denmark"));
    QCOMPARE(window.lblRegion->text(), QStringLiteral("Scandanavia"));
    // Just off the Dominican Republic's coast, where Haiti's map point is nearer: a small
    // country is still found by a click beside its outline.
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint({256, 218}));
    QCOMPARE(window.lblName->text(), QStringLiteral("Dominican Republic"));
    QCOMPARE(window.picMap->accessibleDescription(), QStringLiteral("Dominican Republic"));
    QVERIFY(env.sound.played().isEmpty());
    QTest::mouseClick(window.cmdHelp, Qt::LeftButton);
    QCOMPARE(env.help.topics, QStringList{QStringLiteral("worldgeography")});
    QTest::mouseClick(window.cmdExit, Qt::LeftButton);
    QCOMPARE(window.fraChoice->title(), QStringLiteral("World Geography"));
    QVERIFY(!window.picMap->pointer());
}

void tst_frmwgeo::oneQuestionOfEveryMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("answerType");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("caption");
    for (int type = 0; type <= 1; ++type) {
        const char *how = type ? "picked" : "typed";
        QTest::addRow("capitals, name the capital, %s", how)
            << 2 << type << 0 << "World Geography-Country Capitals";
        QTest::addRow("capitals, name the country, %s", how)
            << 2 << type << 1 << "World Geography-Country Capitals";
        QTest::addRow("name the country, %s", how)
            << 3 << type << 0 << "World Geography-Name the Country";
        QTest::addRow("find, name the country, %s", how)
            << 4 << type << 0 << "World Geography-Find the Country";
        QTest::addRow("flags, pick the flag, %s", how)
            << 5 << type << 0 << "World Geography-Country Flags";
        QTest::addRow("flags, name the country, %s", how)
            << 5 << type << 1 << "World Geography-Country Flags";
    }
}

void tst_frmwgeo::oneQuestionOfEveryMode()
{
    QFETCH(int, mode);
    QFETCH(int, answerType);
    QFETCH(int, direction);
    QFETCH(QString, caption);
    TestEnvironment env;
    frmWGeo window;
    // Every window draws from the clock as it opens; a fixed seed makes a failure repeatable.
    Randomize(2024);
    showActive(window);
    choose(window, answerType, mode, direction);
    QCOMPARE(window.fraChoice->title(), caption);
    const Quiz &quiz = window.quiz();
    const int country = quiz.currentRecord();
    const QString name = window.countries().text(country, WorldCountries::Name);
    QCOMPARE(window.lblName->text(), mode == Capitals && direction == 0 ? name : QString());
    // The pointer is the question when naming the marked country; in naming by clues the map
    // is one of the clues and may come first.
    const bool mapClue = mode == NameIt && quiz.clueOrder().value(1) == WorldCountries::MapItem;
    QCOMPARE(window.picMap->pointer().has_value(), mode == FindIt || mapClue);
    QVERIFY(window.picMap->accessibleDescription().isEmpty());
    if (mode == Flags && direction == 1)
        QCOMPARE(fileName(window.imgFlag), WorldCountries::FlagFile(country));
    QCOMPARE(window.cmdClue->isVisible(), mode == NameIt);

    const bool flagPick = mode == Flags && direction == 0;
    const bool picked = flagPick || answerType == 1;
    QCOMPARE(window.picArea->currentWidget() == window.fraFlags, flagPick);
    QCOMPARE(window.txtAnswer->isVisible(), !picked);
    const int right = quiz.correctChoice();
    if (flagPick)
        QCOMPARE(fileName(window.imgFlagGame[right - 1]), WorldCountries::FlagFile(country));
    else if (picked)
        QCOMPARE(window.lblanswer[right - 1]->text(), quiz.expected());

    auto pick = [&](int choice) {
        QWidget *target = flagPick ? static_cast<QWidget *>(window.imgFlagGame[choice - 1])
                                   : window.lblanswer[choice - 1];
        target->setFocus();
        QTest::keyClick(target, Qt::Key_Return);
    };
    if (picked)
        pick(right % 4 + 1);
    else
        typeAnswer(window, QStringLiteral("Xyz"));
    QCOMPARE(env.sound.played(), (QStringList{"ding.wav", "uhoh.wav"}));
    QCOMPARE(window.lblResult->accessibleDescription(), window.lblResult->text());
    // The hints of a second try: the map in capitals, the region in finding.
    if (mode == Capitals && direction == 1)
        QCOMPARE(window.picMap->pointer(), std::optional<QPointF>(placeOf(window, country)));
    if (mode == FindIt)
        QCOMPARE(window.lblRegion->text(), WorldCountries::RegionText(window.countries(), country));
    if (picked)
        pick(right);
    else
        typeAnswer(window, quiz.expected());
    QCOMPARE(env.sound.played().mid(2), (QStringList{"ding.wav", "tada.wav"}));
    QCOMPARE(window.lblResult->text(), QStringLiteral("Right!"));
    QCOMPARE(window.lblName->text(), name);
    QCOMPARE(window.cmdSee->text(), QStringLiteral("&Next"));
    QVERIFY(window.cmdSee->hasFocus());
    QTest::keyClick(window.cmdSee, Qt::Key_Return);
    QCOMPARE(quiz.questionNumber(), 2);
}

void tst_frmwgeo::findOnTheMap()
{
    TestEnvironment env;
    frmWGeo window;
    showActive(window);
    choose(window, 0, FindIt, 1);
    const Quiz &quiz = window.quiz();
    QVERIFY(window.Label1->isVisible());
    QVERIFY(window.txtAnswer->isReadOnly());
    // A click on the country asked is right; a click elsewhere is not.
    const int first = quiz.currentRecord();
    const int other = first == 94 ? 14 : 94;
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint(placeOf(window, other)));
    QCOMPARE(window.lblResult->text(),
             QStringLiteral("Not %1. Try again.")
                 .arg(window.countries().text(other, WorldCountries::Name)));
    QTest::mouseClick(window.picMap, Qt::LeftButton, {}, window.mapPoint(placeOf(window, first)));
    QCOMPARE(quiz.rightAnswers(), 1);
    QTest::mouseClick(window.cmdSee, Qt::LeftButton);

    // The arrow keys move the pointer from country to country; Enter chooses.
    const int next = quiz.currentRecord();
    QVERIFY(window.picMap->hasFocus());
    for (int i = 0; i < next; ++i)
        QTest::keyClick(window.picMap, Qt::Key_Right);
    QCOMPARE(window.picMap->pointer(), std::optional<QPointF>(placeOf(window, next)));
    QCOMPARE(window.txtAnswer->text(), quiz.expected());
    QTest::keyClick(window.picMap, Qt::Key_Return);
    QCOMPARE(quiz.rightAnswers(), 2);
}

void tst_frmwgeo::quizEndsAfterTheLastCountry()
{
    TestEnvironment env;
    frmWGeo window;
    showActive(window);
    choose(window, 1, Capitals, 0);
    const Quiz &quiz = window.quiz();
    QSet<int> asked;
    for (int i = 0; i < 100; ++i) {
        QVERIFY(quiz.isRunning());
        asked.insert(quiz.currentRecord());
        if (i % 4 == 0)
            QTest::mouseClick(window.lblanswer[quiz.correctChoice() - 1], Qt::LeftButton);
        else
            QTest::mouseClick(window.cmdSee, Qt::LeftButton);
        QTest::mouseClick(window.cmdSee, Qt::LeftButton);
    }
    QCOMPARE(asked.size(), 100);
    QVERIFY(!quiz.isRunning());
    QCOMPARE(window.fraChoice->title(), QStringLiteral("World Geography"));
    QCOMPARE(window.cmdExit->text(), QStringLiteral("E&xit"));
    QCOMPARE(window.lblResult->text(),
             QStringLiteral("You got 25 of 100 right. Well done for trying!"));
    QCOMPARE(TheSettings().worldGeography.values[0], qint16(1));
}

void tst_frmwgeo::missingFileOfCountries()
{
    TestEnvironment env;
    QTemporaryDir empty;
    SetDataPath(empty.path());
    auto *window = new frmWGeo;
    QPointer<frmWGeo> alive(window);
    window->show();
    QTRY_VERIFY(alive.isNull());
    QCOMPARE(env.dialogs.messages.size(), 1);
    QCOMPARE(env.dialogs.messages[0].icon, QMessageBox::Critical);
    QVERIFY(env.dialogs.messages[0].text.contains(QStringLiteral("wgeo.dat")));
}

QTEST_MAIN(tst_frmwgeo)
#include "tst_frmwgeo.moc"
