// SPDX-License-Identifier: GPL-3.0-or-later
#include "GeoQuizWindow.h"

#include "FlagButton.h"

#include "shell/core/DataPath.h"
#include "shell/widgets/PictureBox.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

namespace {
enum Page { MapPage, FlagPage };
enum Setting { AnswerType, CapitalsWay, FindWay, FlagsWay };
} // namespace

GeoQuizWindow::GeoQuizWindow(const QString &helpTopic, const QuizLook &look,
                             Settings::Geography Settings::*settings, const GeographyFields &fields,
                             QWidget *parent)
    : QuizWindow(helpTopic, look, parent), m_settings(settings), m_fields(fields)
{
}

void GeoQuizWindow::buildFlagPage()
{
    fraFlags = Named(new QWidget(picArea), QStringLiteral("fraFlags"));
    auto *flagGrid = new QGridLayout(fraFlags);
    flagGrid->setContentsMargins(0, 0, 0, 0);
    for (int i = 1; i <= 4; ++i) {
        auto *flag = Named(new FlagButton(fraFlags), ArrayName("imgFlagGame", i));
        flag->setAccessibleName(tr("Flag %1").arg(i));
        connect(flag, &FlagButton::clicked, this, [this, i] { imgFlagGame_Click(i); });
        flagGrid->addWidget(flag, (i - 1) / 2, (i - 1) % 2);
        imgFlagGame.append(flag);
    }
    picArea->addWidget(fraFlags);
}

void GeoQuizWindow::buildMapHint(const QString &text, QHBoxLayout *actions)
{
    Label1 = addLabel(QStringLiteral("Label1"), tr("Map hint"), 0.95);
    Label1->setText(text);
    actions->insertWidget(3, Label1, 1);
}

void GeoQuizWindow::buildWays(const QString &namePlace, const QString &findPlace)
{
    fraType = buildWay(tr("Answer Type"), QStringLiteral("fraType"), "optType",
                       {tr("Type-In"), tr("Multiple Choice")}, optType, AnswerType);
    fraWhich1 = buildWay(tr("Choose"), QStringLiteral("fraWhich1"), "optWhich1",
                         {tr("Name Capital"), namePlace}, optWhich1, CapitalsWay);
    fraWhich2 = buildWay(tr("Choose"), QStringLiteral("fraWhich2"), "optWhich2",
                         {namePlace, findPlace}, optWhich2, FindWay);
    fraWhich3 = buildWay(tr("Choose"), QStringLiteral("fraWhich3"), "optWhich3",
                         {tr("Pick Flag"), namePlace}, optWhich3, FlagsWay);
}

QGroupBox *GeoQuizWindow::buildWay(const QString &caption, const QString &name,
                                   const char *optionName, const QStringList &captions,
                                   QList<QRadioButton *> &options, int setting)
{
    const int checked = qBound(0, int((TheSettings().*m_settings).values[setting]), 1);
    return buildOptions(caption, name, optionName, captions, checked, options,
                        [this, setting](int index) {
                            (TheSettings().*m_settings).values[setting] = qint16(index);
                            optionChanged();
                        });
}

int GeoQuizWindow::direction(int mode) const
{
    const auto &values = (TheSettings().*m_settings).values;
    switch (mode) {
    case Capitals:
        return qBound(0, int(values[CapitalsWay]), 1);
    case FindIt:
        return qBound(0, int(values[FindWay]), 1);
    case Flags:
        return qBound(0, int(values[FlagsWay]), 1);
    default:
        return 0;
    }
}

bool GeoQuizWindow::multipleChoice() const
{
    return (TheSettings().*m_settings).values[AnswerType] == 1;
}

QuizPlan GeoQuizWindow::planFor(int mode) const
{
    return StandardPlan(QuizMode(mode), multipleChoice(), direction(mode), m_fields);
}

void GeoQuizWindow::showModeOptions(int mode)
{
    fraWhich1->setVisible(mode == Capitals);
    fraWhich2->setVisible(mode == FindIt);
    fraWhich3->setVisible(mode == Flags);
}

void GeoQuizWindow::showIdlePictures()
{
    picArea->setCurrentIndex(MapPage);
}

void GeoQuizWindow::hideModeControls()
{
    Label1->hide();
    fraWhich1->hide();
    fraWhich2->hide();
    fraWhich3->hide();
    m_map->setFocusPolicy(Qt::NoFocus);
}

void GeoQuizWindow::setAnswerWidgets()
{
    const int mode = m_quiz.mode();
    const bool onMap = mode == FindIt && direction(FindIt) == Direction::FindOnMap;
    const bool flagPick = mode == Flags && direction(Flags) == Direction::PickFlag;
    picArea->setCurrentIndex(flagPick ? FlagPage : MapPage);
    const bool choicesShown = m_quiz.plan().multipleChoice && !flagPick;
    txtAnswer->setVisible(!choicesShown && !flagPick);
    txtAnswer->setReadOnly(onMap);
    txtAnswer->setPlaceholderText(onMap ? tr("Click on the map") : tr("Type here, then Enter"));
    showChoices(choicesShown);
    for (int i = 0; i < imgFlagGame.size(); ++i) {
        FlagButton *flag = imgFlagGame[i];
        flag->setMark(FlagButton::None);
        if (flagPick)
            flag->load(DataFile(flagFile(m_quiz.choices().value(i))));
    }
    Label1->setVisible(onMap);
    m_map->setFocusPolicy(onMap ? Qt::StrongFocus : Qt::NoFocus);
    if (onMap)
        m_map->setFocus();
    else if (flagPick)
        imgFlagGame[0]->setFocus();
    else if (choicesShown)
        lblanswer[0]->setFocus();
    else
        txtAnswer->setFocus();
}

void GeoQuizWindow::imgFlagGame_Click(int choice)
{
    pick(choice, QString(),
         [this, choice] { imgFlagGame[choice - 1]->setMark(FlagButton::Wrong); });
}

bool GeoQuizWindow::choicesOffered() const
{
    return m_quiz.plan().multipleChoice;
}

void GeoQuizWindow::markRight(int choice)
{
    if (picArea->currentIndex() == FlagPage)
        imgFlagGame[choice - 1]->setMark(FlagButton::Right);
    else
        QuizWindow::markRight(choice);
}

void GeoQuizWindow::pointAt(int record)
{
    m_pointed = record;
    showOnMap(record);
    txtAnswer->setText(m_table.text(record, m_fields.name));
}

void GeoQuizWindow::mapClicked(QPointF mapUnits, double reach)
{
    const int mode = m_quiz.mode();
    if (mode == Review) {
        m_quiz.select(m_mapClick.recordAt(mapUnits, m_quiz.currentRecord(), reach));
        showReview();
        return;
    }
    if (mode != FindIt || direction(FindIt) != Direction::FindOnMap || m_quiz.isAnswered())
        return;
    const int record = m_mapClick.recordAt(mapUnits, m_quiz.currentRecord(), reach);
    m_pointed = record;
    txtAnswer->setText(m_table.text(record, m_fields.name));
    txtAnswer_Enter();
}

bool GeoQuizWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_map)
        return QuizWindow::eventFilter(watched, event);
    // The map shows a ring while the arrow keys work on it.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        picArea->setStyleSheet(
            QStringLiteral("#picArea { border: 3px solid %1; border-radius: 6px; }")
                .arg(event->type() == QEvent::FocusIn ? QStringLiteral("#FFC107")
                                                      : QStringLiteral("transparent")));
    if (event->type() != QEvent::KeyPress)
        return QuizWindow::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (m_quiz.mode() == FindIt && direction(FindIt) == Direction::FindOnMap) {
        const int count = m_table.count();
        switch (key) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            pointAt(m_pointed <= 1 ? count : m_pointed - 1);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Down:
            pointAt(m_pointed >= count ? 1 : m_pointed + 1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (m_pointed > 0 && !m_quiz.isAnswered())
                txtAnswer_Enter();
            return true;
        default:
            break;
        }
    }
    return stepByKey(key) || QuizWindow::eventFilter(watched, event);
}
