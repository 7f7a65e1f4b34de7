// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmGeo.h"

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

constexpr QuizLook Look{"#0D47A1", "#90CAF9", "#BBDEFB"};
} // namespace

frmGeo::frmGeo(QWidget *parent)
    : GeoQuizWindow(QStringLiteral("usgeography"), Look, &Settings::usGeography,
                    UsStates::QuizFields(), parent)
{
    setObjectName(QStringLiteral("frmGeo"));
    setWindowTitle(tr("US Geography"));
    applyLook(QColor(0xE3, 0xF2, 0xFD));

    buildControls();

    if (m_table.load(DataFile(QString::fromLatin1(UsStates::FileName)), UsStates::Layout()))
        m_mapClick = UsStates::LoadMapClick(m_table, DataPath());
    else
        m_loadError = m_table.error().message();
    if (const auto geometry = UsStates::LoadGeometry(DataFile(QStringLiteral("usmap.json"))))
        m_geometry = *geometry;
    openIdle();
}

frmGeo::~frmGeo() = default;

void frmGeo::buildControls()
{
    // The map, with Alaska and Hawaii as insets on it, and the four flags of the flag quiz.
    picArea = Named(new QuizPanels::PictureStack(this), QStringLiteral("picArea"));
    // The pictures take the height the texts leave: asking for their own would make the game
    // scroll on a small screen.
    picArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    picArea->setMinimumHeight(80);
    picArea->setStyleSheet(QStringLiteral("#picArea { border: 3px solid transparent; }"));
    picMap = Named(new PictureBox(picArea), QStringLiteral("picMap"));
    picMap->setAccessibleName(tr("Map of the United States"));
    // The map takes the keyboard only where its arrow keys mean something (finding a state).
    picMap->setFocusPolicy(Qt::NoFocus);
    picMap->setMinimumSize(160, 100);
    picMap->setCursor(Qt::PointingHandCursor);
    picMap->installEventFilter(this);
    picAK = Named(new PictureBox(picMap), QStringLiteral("picAK"));
    picAK->setAccessibleName(tr("Alaska"));
    picHI = Named(new PictureBox(picMap), QStringLiteral("picHI"));
    picHI->setAccessibleName(tr("Hawaii"));
    for (PictureBox *inset : {picAK, picHI})
        inset->installEventFilter(this);
    picArea->addWidget(picMap);
    m_map = picMap;

    buildFlagPage();

    lblName = addLabel(QStringLiteral("lblName"), tr("State"), 1.6, true);
    lblName->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    lblAbbr = addLabel(QStringLiteral("lblAbbr"), tr("Abbreviation"), 1.2, true);
    lblNick = addLabel(QStringLiteral("lblNick"), tr("Nickname"), 1.0);
    lblNick->setStyleSheet(QStringLiteral("color: #6A1B9A; font-style: italic;"));
    lblNumber = addLabel(QStringLiteral("lblNumber"), tr("Order of joining"), 1.0);
    lblAdmit = addLabel(QStringLiteral("lblAdmit"), tr("Date admitted"), 1.0);
    lblCapital = addLabel(QStringLiteral("lblCapital"), tr("Capital"), 1.1, true);
    lblRegion = addLabel(QStringLiteral("lblRegion"), tr("Region"), 1.0);
    for (int i = 0; i < 3; ++i)
        lblFact.append(addLabel(ArrayName("lblFact", i), tr("Fact %1").arg(i + 1), 0.95));
    imgFlag = Named(new PictureBox(this), QStringLiteral("imgFlag"));
    imgFlag->setAccessibleName(tr("Flag of the state"));
    imgFlag->setMinimumSize(90, 60);
    // The flag takes the room beside the map that the texts leave, and never asks for more.
    imgFlag->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    auto *info = new QVBoxLayout;
    info->setSpacing(4);
    for (QLabel *item : {lblName, lblAbbr, lblNick, lblNumber, lblAdmit, lblCapital, lblRegion})
        info->addWidget(item);
    info->addWidget(imgFlag, 1);

    auto *facts = new QVBoxLayout;
    facts->setSpacing(2);
    for (QLabel *fact : std::as_const(lblFact))
        facts->addWidget(fact);

    const AnswerRows rows = buildAnswerControls("#1565C0", tr("Previous state"), tr("Next state"));
    buildMapHint(tr("Click on state or use arrows."), rows.actions);

    fraChoice = Named(new QGroupBox(tr("US Geography"), this), QStringLiteral("fraChoice"));
    fraChoice->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoice, 1.05, true});
    auto *play = new QGridLayout(fraChoice);
    play->setSpacing(8);
    play->addWidget(picArea, 0, 0);
    play->addLayout(info, 0, 1);
    play->setColumnStretch(0, 3);
    play->setColumnStretch(1, 1);
    play->addLayout(facts, 1, 0, 1, 2);
    play->addWidget(lblPrompt, 2, 0, 1, 2);
    play->addLayout(rows.answer, 3, 0, 1, 2);
    play->addWidget(lblResult, 4, 0, 1, 2);
    play->setRowStretch(0, 1);
    play->addLayout(rows.actions, 6, 0, 1, 2);

    buildModes({tr("&Review States"), tr("State Ca&pitals"), tr("&Name the State"),
                tr("&Find the State"), tr("State F&lags")},
               {"#1565C0", "#6A1B9A", "#EF6C00", "#2E7D32", "#C62828"});

    buildWays(tr("Name State"), tr("Find State"));

    finishControls({fraChoices, fraType, fraWhich1, fraWhich2, fraWhich3});
}

void frmGeo::showEvent(QShowEvent *event)
{
    QuizWindow::showEvent(event);
    placeInsets();
}

void frmGeo::placeInsets()
{
    const QRectF picture = picMap->pictureRect();
    if (picture.isEmpty())
        return;
    const double scale = picture.width() / m_geometry.size.width();
    auto place = [&](PictureBox *inset, const QRectF &area) {
        inset->setGeometry(
            QRectF(picture.topLeft() + area.topLeft() * scale, area.size() * scale).toRect());
    };
    place(picAK, m_geometry.alaska);
    place(picHI, m_geometry.hawaii);
}

QPoint frmGeo::mapPoint(QPointF mapUnits) const
{
    const QRectF picture = picMap->pictureRect();
    const double scale = picture.width() / m_geometry.size.width();
    return (picture.topLeft() + mapUnits * scale).toPoint();
}

bool frmGeo::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == picMap && event->type() == QEvent::Resize)
        placeInsets();
    const bool onMap = watched == picMap || watched == picAK || watched == picHI;
    if (onMap && event->type() == QEvent::MouseButtonPress) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton)
            return true;
        const QPointF at = static_cast<QWidget *>(watched)->mapTo(picMap, mouse->position());
        const QRectF picture = picMap->pictureRect();
        if (picture.isEmpty())
            return true;
        const double scale = m_geometry.size.width() / picture.width();
        mapClicked((at - picture.topLeft()) * scale);
        return true;
    }
    return GeoQuizWindow::eventFilter(watched, event);
}

QString frmGeo::flagFile(int record) const
{
    return UsStates::FlagFile(m_table, record);
}

QString frmGeo::modeTitle(int mode) const
{
    static const char *const captions[] = {QT_TR_NOOP("US Geography"),
                                           QT_TR_NOOP("US Geography-Review States"),
                                           QT_TR_NOOP("US Geography-State Capitals"),
                                           QT_TR_NOOP("US Geography-Name the State"),
                                           QT_TR_NOOP("US Geography-Find the State"),
                                           QT_TR_NOOP("US Geography-State Flags")};
    return tr(captions[mode]);
}

QString frmGeo::cannotStart(const QString &error) const
{
    return tr("US Geography cannot start because its file of states is missing or "
              "damaged.\n\n%1\n\nPlease reinstall the program.")
        .arg(error);
}

void frmGeo::clearItems()
{
    for (QLabel *item : {lblName, lblAbbr, lblNick, lblNumber, lblAdmit, lblCapital, lblRegion})
        item->clear();
    for (QLabel *fact : std::as_const(lblFact))
        fact->clear();
    lblNick->show();
    imgFlag->clear();
    picMap->load(DataFile(QString::fromLatin1(UsStates::CountryMap)));
    resetInsets();
    m_pointed = 0;
}

void frmGeo::resetInsets()
{
    picAK->load(DataFile(UsStates::AlaskaInset(false)));
    picHI->load(DataFile(UsStates::HawaiiInset(false)));
}

void frmGeo::showOnMap(int record)
{
    resetInsets();
    if (record == UsStates::Alaska) {
        picMap->load(DataFile(QString::fromLatin1(UsStates::CountryMap)));
        picAK->load(DataFile(UsStates::AlaskaInset(true)));
    } else if (record == UsStates::Hawaii) {
        picMap->load(DataFile(QString::fromLatin1(UsStates::CountryMap)));
        picHI->load(DataFile(UsStates::HawaiiInset(true)));
    } else {
        picMap->load(DataFile(UsStates::MapFile(m_table, record)));
    }
    // Screen readers hear which state is lit, except while that is the question.
    const bool asking = m_quiz.isRunning() && m_quiz.mode() != Review && !m_quiz.isAnswered();
    picMap->setAccessibleDescription(asking ? QString() : m_table.text(record, UsStates::Name));
}

void frmGeo::showItem(int item)
{
    const int r = m_quiz.currentRecord();
    using namespace UsStates;
    switch (item) {
    case MapItem:
        showOnMap(r);
        break;
    case FlagItem:
        imgFlag->load(DataFile(FlagFile(m_table, r)));
        break;
    case AbbreviationItem:
        lblAbbr->setText(m_table.text(r, Abbreviation));
        break;
    case NicknameItem:
        lblNick->setText(m_table.text(r, Nickname));
        lblNick->show();
        break;
    case OrderItem:
        lblNumber->setText(OrderText(m_table.number(r, Order)));
        break;
    case AdmittedItem:
        lblAdmit->setText(AdmittedText(m_table, r));
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
    default:
        break;
    }
}

void frmGeo::showAllItems()
{
    for (int item = 1; item <= UsStates::Items; ++item)
        showItem(item);
}

void frmGeo::showReview()
{
    clearItems();
    lblName->setText(m_table.text(m_quiz.currentRecord(), UsStates::Name));
    showAllItems();
    lblPrompt->clear(); // Label1 says how to move around
    lblScore->setText(tr("State %1 of %2").arg(m_quiz.currentRecord()).arg(m_table.count()));
    fraNext->show();
    Label1->show();
    picMap->setFocusPolicy(Qt::NoFocus);
}

void frmGeo::askQuestion()
{
    const int r = m_quiz.currentRecord();
    const QString name = m_table.text(r, UsStates::Name);
    switch (m_quiz.mode()) {
    case Capitals:
        if (direction(Capitals) == Direction::NameCapital) {
            lblName->setText(name);
            lblPrompt->setText(tr("What is the capital of this state?"));
        } else {
            showItem(UsStates::CapitalItem);
            lblPrompt->setText(tr("Which state has this capital?"));
        }
        break;
    case NameIt:
        showItem(m_quiz.clueOrder().value(1));
        lblPrompt->setText(tr("Which state is it? Read the clue, or ask for another."));
        break;
    case FindIt:
        if (direction(FindIt) == Direction::NamePlace) {
            showItem(UsStates::MapItem);
            lblNick->hide();
            lblPrompt->setText(tr("Which state is lit up on the map?"));
        } else {
            lblName->setText(name);
            lblPrompt->setText(tr("Find this state on the map and click on it."));
        }
        break;
    case Flags:
        if (direction(Flags) == Direction::PickFlag) {
            lblCapital->setText(name);
            lblPrompt->setText(tr("Which flag belongs to this state? Click on it."));
        } else {
            showItem(UsStates::FlagItem);
            lblPrompt->setText(tr("Which state has this flag?"));
        }
        break;
    default:
        break;
    }
    setAnswerWidgets();
}

QString frmGeo::showHint()
{
    if (m_quiz.mode() == Capitals) {
        showItem(UsStates::MapItem);
        return tr(" Look at the map for a hint, then try again.");
    }
    lblNick->setText(UsStates::RegionText(m_table, m_quiz.currentRecord()));
    lblNick->show();
    return tr(" Here is a hint: the region. Try again.");
}

void frmGeo::showAnswer()
{
    const int r = m_quiz.currentRecord();
    const int mode = m_quiz.mode();
    lblName->setText(m_table.text(r, UsStates::Name));
    showItem(UsStates::CapitalItem);
    if (mode == NameIt)
        showAllItems();
    else if (picArea->currentIndex() == MapPage)
        showItem(UsStates::MapItem);
    if (mode == Flags)
        showItem(UsStates::FlagItem);
}
