// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmWGeo.h"

#include "WorldMap.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/widgets/PictureBox.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
enum Page { MapPage, FlagPage };
constexpr double NearClickPixels = 5;

constexpr QuizLook Look{"#0D47A1", "#90CAF9", "#BBDEFB"};
} // namespace

frmWGeo::frmWGeo(QWidget *parent)
    : GeoQuizWindow(QStringLiteral("worldgeography"), Look, &Settings::worldGeography,
                    WorldCountries::QuizFields(), parent)
{
    setObjectName(QStringLiteral("frmWGeo"));
    setWindowTitle(tr("World Geography"));
    applyLook(QColor(0xE0, 0xF2, 0xF1));

    buildControls();

    using namespace WorldCountries;
    picMap->load(DataFile(QString::fromLatin1(MapPicture)));
    if (!m_table.load(DataFile(QString::fromLatin1(FileName)), Layout())) {
        m_loadError = m_table.error().message();
    } else if (const auto shapes =
                   LoadShapes(m_table, DataFile(QString::fromLatin1(WorldShapes)))) {
        m_mapClick = shapes->click;
        picMap->setMapSize(shapes->size);
    } else {
        // Without the outlines a click still finds the nearest country by its point.
        QList<QPoint> points;
        for (int r = 1; r <= m_table.count(); ++r)
            points.append(QPoint(m_table.number(r, MapX), m_table.number(r, MapY)));
        m_mapClick.setPoints(points);
    }
    openIdle();
}

frmWGeo::~frmWGeo() = default;

void frmWGeo::buildControls()
{
    // The world map, which stays loaded, and the four flags of the flag quiz.
    picArea = Named(new QuizPanels::PictureStack(this), QStringLiteral("picArea"));
    // The pictures take the height the texts leave: asking for their own would make the game
    // scroll on a small screen.
    picArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    picArea->setMinimumHeight(80);
    picArea->setStyleSheet(QStringLiteral("#picArea { border: 3px solid transparent; }"));
    picMap = Named(new WorldMap(picArea), QStringLiteral("picMap"));
    picMap->setAccessibleName(tr("Map of the world"));
    // The map takes the keyboard only where its arrow keys mean something (finding a country).
    picMap->setFocusPolicy(Qt::NoFocus);
    picMap->setMinimumSize(160, 100);
    picMap->setCursor(Qt::PointingHandCursor);
    picMap->installEventFilter(this);
    picArea->addWidget(picMap);
    m_map = picMap;

    buildFlagPage();

    lblName = addLabel(QStringLiteral("lblName"), tr("Country"), 1.6, true);
    lblName->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    lblCapital = addLabel(QStringLiteral("lblCapital"), tr("Capital"), 1.1, true);
    lblRegion = addLabel(QStringLiteral("lblRegion"), tr("Region"), 1.1);
    lblRegion->setStyleSheet(QStringLiteral("color: #6A1B9A;"));
    for (int i = 0; i < 3; ++i)
        lblFact.append(addLabel(ArrayName("lblFact", i), tr("Fact %1").arg(i + 1), 0.95));
    lblProducts = addLabel(QStringLiteral("lblProducts"), tr("Main products"), 1.0);
    lblProducts->setStyleSheet(QStringLiteral("color: #4E342E;"));
    imgFlag = Named(new PictureBox(this), QStringLiteral("imgFlag"));
    imgFlag->setAccessibleName(tr("Flag of the country"));
    imgFlag->setMinimumSize(90, 60);
    // The flag takes the room beside the map that the texts leave, and never asks for more.
    imgFlag->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    auto *info = new QVBoxLayout;
    info->setSpacing(4);
    for (QLabel *item : {lblName, lblCapital, lblRegion, lblProducts})
        info->addWidget(item);
    info->addStretch(1);

    auto *facts = new QVBoxLayout;
    facts->setSpacing(2);
    for (QLabel *fact : std::as_const(lblFact))
        facts->addWidget(fact);

    const AnswerRows rows =
        buildAnswerControls("#1565C0", tr("Previous country"), tr("Next country"));
    buildMapHint(tr("Click on a country or use arrows."), rows.actions);

    fraChoice = Named(new QGroupBox(tr("World Geography"), this), QStringLiteral("fraChoice"));
    fraChoice->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoice, 1.05, true});
    auto *play = new QGridLayout(fraChoice);
    play->setSpacing(8);
    // The map is wide: it takes the whole width, with the country's texts and flag below.
    play->addWidget(picArea, 0, 0, 1, 2);
    play->addLayout(info, 1, 0);
    play->addWidget(imgFlag, 1, 1);
    play->setColumnStretch(0, 3);
    play->setColumnStretch(1, 1);
    play->addLayout(facts, 2, 0, 1, 2);
    play->addWidget(lblPrompt, 3, 0, 1, 2);
    play->addLayout(rows.answer, 4, 0, 1, 2);
    play->addWidget(lblResult, 5, 0, 1, 2);
    play->setRowStretch(0, 3);
    play->setRowStretch(1, 1);
    play->addLayout(rows.actions, 6, 0, 1, 2);

    buildModes({tr("&Review Countries"), tr("Country Ca&pitals"), tr("&Name the Country"),
                tr("&Find the Country"), tr("Country F&lags")},
               {"#1565C0", "#6A1B9A", "#EF6C00", "#2E7D32", "#C62828"});

    buildWays(tr("Name Country"), tr("Find Country"));

    finishControls({fraChoices, fraType, fraWhich1, fraWhich2, fraWhich3});
}

QPoint frmWGeo::mapPoint(QPointF mapUnits) const
{
    return picMap->toWidget(mapUnits).toPoint();
}

bool frmWGeo::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == picMap && event->type() == QEvent::MouseButtonPress) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton || picMap->pictureRect().isEmpty())
            return true;
        // A click a few pixels off a small country's coast still finds it.
        mapClicked(picMap->toMap(mouse->position()), NearClickPixels * picMap->unitsPerPixel());
        return true;
    }
    return GeoQuizWindow::eventFilter(watched, event);
}

QString frmWGeo::flagFile(int record) const
{
    return WorldCountries::FlagFile(record);
}

QString frmWGeo::modeTitle(int mode) const
{
    static const char *const captions[] = {QT_TR_NOOP("World Geography"),
                                           QT_TR_NOOP("World Geography-Review Countries"),
                                           QT_TR_NOOP("World Geography-Country Capitals"),
                                           QT_TR_NOOP("World Geography-Name the Country"),
                                           QT_TR_NOOP("World Geography-Find the Country"),
                                           QT_TR_NOOP("World Geography-Country Flags")};
    return tr(captions[mode]);
}

QString frmWGeo::cannotStart(const QString &error) const
{
    return tr("World Geography cannot start because its file of countries is missing or "
              "damaged.\n\n%1\n\nPlease reinstall the program.")
        .arg(error);
}

void frmWGeo::clearItems()
{
    for (QLabel *item : {lblName, lblCapital, lblRegion, lblProducts})
        item->clear();
    for (QLabel *fact : std::as_const(lblFact))
        fact->clear();
    imgFlag->clear();
    picMap->clearPointer();
    picMap->setAccessibleDescription(QString());
    m_pointed = 0;
}

void frmWGeo::showOnMap(int record)
{
    using namespace WorldCountries;
    picMap->setPointer(QPointF(m_table.number(record, MapX), m_table.number(record, MapY)));
    // Screen readers hear which country is marked, except while that is the question.
    const bool asking = m_quiz.isRunning() && m_quiz.mode() != Review && !m_quiz.isAnswered();
    picMap->setAccessibleDescription(asking ? QString() : m_table.text(record, Name));
}

void frmWGeo::showItem(int item)
{
    const int r = m_quiz.currentRecord();
    using namespace WorldCountries;
    switch (item) {
    case MapItem:
        showOnMap(r);
        break;
    case FlagItem:
        imgFlag->load(DataFile(FlagFile(r)));
        break;
    case CapitalItem:
        lblCapital->setText(CapitalText(m_table, r));
        break;
    case RegionItem:
        lblRegion->setText(RegionText(m_table, r));
        break;
    case Fact1Item:
    case Fact2Item:
    case Fact3Item:
        lblFact[item - Fact1Item]->setText(m_table.text(r, FirstFact + item - Fact1Item));
        break;
    case ProductsItem:
        lblProducts->setText(m_table.text(r, Products));
        break;
    default:
        break;
    }
}

void frmWGeo::showAllItems()
{
    for (int item = 1; item <= WorldCountries::Items; ++item)
        showItem(item);
}

void frmWGeo::showReview()
{
    clearItems();
    lblName->setText(m_table.text(m_quiz.currentRecord(), WorldCountries::Name));
    showAllItems();
    lblPrompt->clear(); // Label1 says how to move around
    lblScore->setText(tr("Country %1 of %2").arg(m_quiz.currentRecord()).arg(m_table.count()));
    fraNext->show();
    Label1->show();
    picMap->setFocusPolicy(Qt::NoFocus);
}

void frmWGeo::askQuestion()
{
    using namespace WorldCountries;
    const int r = m_quiz.currentRecord();
    const QString name = m_table.text(r, Name);
    switch (m_quiz.mode()) {
    case Capitals:
        if (direction(Capitals) == Direction::NameCapital) {
            lblName->setText(name);
            lblPrompt->setText(tr("What is the capital of this country?"));
        } else {
            showItem(CapitalItem);
            lblPrompt->setText(tr("Which country has this capital?"));
        }
        break;
    case NameIt:
        showItem(m_quiz.clueOrder().value(1));
        lblPrompt->setText(tr("Which country is it? Read the clue, or ask for another."));
        break;
    case FindIt:
        if (direction(FindIt) == Direction::NamePlace) {
            showItem(MapItem);
            lblPrompt->setText(tr("Which country is the arrow pointing at?"));
        } else {
            lblName->setText(name);
            lblPrompt->setText(tr("Find this country on the map and click on it."));
        }
        break;
    case Flags:
        if (direction(Flags) == Direction::PickFlag) {
            lblCapital->setText(name);
            lblPrompt->setText(tr("Which flag belongs to this country? Click on it."));
        } else {
            showItem(FlagItem);
            lblPrompt->setText(tr("Which country has this flag?"));
        }
        break;
    default:
        break;
    }
    setAnswerWidgets();
}

QString frmWGeo::showHint()
{
    if (m_quiz.mode() == Capitals) {
        showItem(WorldCountries::MapItem);
        return tr(" Look at the map for a hint, then try again.");
    }
    showItem(WorldCountries::RegionItem);
    return tr(" Here is a hint: the region. Try again.");
}

void frmWGeo::showAnswer()
{
    const int r = m_quiz.currentRecord();
    const int mode = m_quiz.mode();
    lblName->setText(m_table.text(r, WorldCountries::Name));
    showItem(WorldCountries::CapitalItem);
    if (mode == NameIt)
        showAllItems();
    else if (picArea->currentIndex() == MapPage)
        showItem(WorldCountries::MapItem);
    if (mode == Flags)
        showItem(WorldCountries::FlagItem);
}
