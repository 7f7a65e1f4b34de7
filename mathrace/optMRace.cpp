// SPDX-License-Identifier: GPL-3.0-or-later
#include "optMRace.h"

#include "Problem.h"
#include "Race.h"
#include "RaceTrack.h"
#include "shell/core/Settings.h"
#include "shell/WindowUtil.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {
const char *const TypeCaptions[] = {"Addition", "Subtraction", "Multiplication", "Division",
                                    "Mixed"};
const char *const ClockCaptions[] = {"Slow", "Medium", "Fast"};
constexpr int Types = 5;
constexpr int Clocks = 3;

QFont BaseFont(double scale = 1, bool bold = false)
{
    QFont f(QStringLiteral("Comic Sans MS"));
    f.setPointSizeF(14 * scale);
    f.setBold(bold);
    return f;
}

QLabel *Heading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(BaseFont(1, true));
    // Through the palette, so a heading greys out with its frame.
    QPalette colours = label->palette();
    colours.setColor(QPalette::Active, QPalette::WindowText, QColor(0x0D, 0x47, 0xA1));
    colours.setColor(QPalette::Inactive, QPalette::WindowText, QColor(0x0D, 0x47, 0xA1));
    label->setPalette(colours);
    return label;
}
} // namespace

optMRace::optMRace(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("optMRace"));
    setWindowTitle(tr("Math Race Options"));
    setFont(BaseFont());
    // Each player's frame is headed in the colour of that player's car.
    QString titles;
    for (int i = 0; i < Race::MaxPlayers; ++i)
        titles += QStringLiteral("#Frame2_%1::title { color: %2; }")
                      .arg(i)
                      .arg(RaceTrack::carColour(i + 1).darker(115).name());
    setStyleSheet(
        titles +
        QStringLiteral(
            "optMRace { background: #E3F2FD; }"
            "QGroupBox { background: white; border: 2px solid #90CAF9; border-radius: 12px;"
            " margin-top: 1.3em; padding: 6px 10px; font-weight: bold; }"
            "QGroupBox:disabled { background: #ECEFF1; border-color: #CFD8DC; }"
            "QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 0 6px;"
            " color: #0D47A1; }"
            "QScrollBar:horizontal { height: 28px; }"
            "QRadioButton { spacing: 8px; }"
            "QRadioButton::indicator { width: 20px; height: 20px; }"));

    auto *playersBox =
        Named(new QGroupBox(tr("How many players?"), this), QStringLiteral("fraPlayers"));
    auto *playersRow = new QHBoxLayout(playersBox);
    auto *playersGroup = new QButtonGroup(this);
    for (int i = 0; i < Race::MaxPlayers; ++i) {
        const QString caption = i == 0 ? tr("&1 Player") : tr("&%1 Players").arg(i + 1);
        auto *button = Named(new QRadioButton(caption, playersBox), ArrayName("optPlayers", i));
        playersGroup->addButton(button, i);
        playersRow->addWidget(button);
        optPlayers.append(button);
    }
    playersRow->setSpacing(36);
    playersRow->addStretch();

    auto *grid = new QGridLayout;
    grid->setSpacing(10);
    for (int i = 0; i < Race::MaxPlayers; ++i)
        grid->addWidget(makePlayerFrame(i), i / 2, i % 2);

    cmdOK = Named(new QPushButton(tr("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setFont(BaseFont(1.15, true));
    cmdOK->setMinimumSize(140, 48);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    // The count of players comes first, at the top and first in the tab order: a teacher
    // decides it before anything else.
    layout->setContentsMargins(14, 8, 14, 12);
    layout->setSpacing(8);
    layout->addWidget(playersBox);
    layout->addLayout(grid, 1);
    layout->addWidget(cmdOK, 0, Qt::AlignRight);

    // Style sheets break the passing of fonts from frame to contents; give each its own.
    const auto children = findChildren<QWidget *>();
    for (QWidget *child : children)
        if (!child->testAttribute(Qt::WA_SetFont))
            child->setFont(BaseFont());

    loadSettings();
    connect(playersGroup, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            onPlayersChosen(id);
    });
    Settings::MathRace &race = TheSettings().mathRace;
    const int players = qBound(1, int(race.players), int(Race::MaxPlayers));
    optPlayers[players - 1]->setChecked(true);
    onPlayersChosen(players - 1);
    cmdOK->setFocus();
}

QGroupBox *optMRace::makePlayerFrame(int player)
{
    auto *frame =
        Named(new QGroupBox(tr("Player %1").arg(player + 1), this), ArrayName("Frame2", player));
    auto *name = Named(new QLineEdit(frame), ArrayName("txtName", player));
    name->setMaxLength(NameLength);
    name->setAccessibleName(tr("Name of player %1").arg(player + 1));
    txtName.append(name);

    QVBoxLayout *typeColumn = choiceColumn(frame, tr("Problems"), TypeCaptions, Types, player,
                                           "optType", optType, &optMRace::onTypeChosen);
    typeColumn->addStretch();
    QVBoxLayout *clockColumn = choiceColumn(frame, tr("Clock"), ClockCaptions, Clocks, player,
                                            "optClock", optClock, &optMRace::onClockChosen);

    auto *bar = Named(new QScrollBar(Qt::Horizontal, frame), ArrayName("hsbMax", player));
    bar->setRange(LargestMin, LargestMax);
    bar->setSingleStep(1);
    // Big steps: a click beside the handle or Page Up moves a whole times table.
    bar->setPageStep(12);
    bar->setMinimumWidth(150);
    bar->setFocusPolicy(Qt::StrongFocus);
    // Right, Up and the wheel turned up make the number bigger.
    bar->setInvertedControls(false);
    bar->setAccessibleName(tr("Largest number for player %1").arg(player + 1));
    hsbMax.append(bar);
    auto *value = Named(new QLabel(frame), ArrayName("lblMax", player));
    value->setTextFormat(Qt::PlainText);
    value->setFont(BaseFont(1.3, true));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    QPalette red = value->palette();
    red.setColor(QPalette::Active, QPalette::WindowText, QColor(0xC6, 0x28, 0x28));
    red.setColor(QPalette::Inactive, QPalette::WindowText, QColor(0xC6, 0x28, 0x28));
    value->setPalette(red);
    lblMax.append(value);
    connect(bar, &QScrollBar::valueChanged, this, [this, player](int v) { onMaxMoved(player, v); });

    clockColumn->addSpacing(6);
    clockColumn->addWidget(Heading(tr("Largest number"), frame));
    auto *barRow = new QHBoxLayout;
    // The ends are labelled, so a young pupil sees which way is bigger.
    auto *low = Named(new QLabel(QString::number(LargestMin), frame), ArrayName("lblMaxLow", player));
    auto *high = Named(new QLabel(QString::number(LargestMax), frame), ArrayName("lblMaxHigh", player));
    for (QLabel *end : {low, high})
        end->setTextFormat(Qt::PlainText);
    barRow->addWidget(low);
    barRow->addWidget(bar, 1);
    barRow->addWidget(high);
    barRow->addSpacing(8);
    barRow->addWidget(value);
    clockColumn->addLayout(barRow);
    clockColumn->addStretch();

    auto *nameRow = new QHBoxLayout;
    auto *nameLabel = Heading(tr("Name"), frame);
    nameLabel->setBuddy(name);
    nameRow->addWidget(nameLabel);
    nameRow->addWidget(name, 1);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(18);
    columns->addLayout(typeColumn);
    columns->addLayout(clockColumn, 1);

    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(6);
    layout->addLayout(nameRow);
    layout->addLayout(columns);
    Frame2.append(frame);
    return frame;
}

void optMRace::loadSettings()
{
    Settings::MathRace &race = TheSettings().mathRace;
    for (int i = 0; i < Race::MaxPlayers; ++i) {
        Settings::MathRacePlayer &p = race.player[size_t(i)];
        Frame2[i]->setEnabled(false);
        txtName[i]->setText(p.name);
        // What the window shows is what the race uses, so values it cannot show are brought
        // into its ranges here.
        const int type = qBound(int(Addition), int(p.type), int(MixedType));
        optType[i * Types + type - 1]->setChecked(true);
        p.type = qint16(type);
        const int largest = qBound(LargestMin, int(p.largest), LargestMax);
        hsbMax[i]->setValue(largest);
        onMaxMoved(i, largest);
        const int clock = qBound(1, int(p.clock), Clocks);
        optClock[i * Clocks + clock - 1]->setChecked(true);
        p.clock = qint16(clock);
    }
}

void optMRace::onPlayersChosen(int index)
{
    TheSettings().mathRace.players = qint16(index + 1);
    for (int i = 0; i < Race::MaxPlayers; ++i)
        Frame2[i]->setEnabled(i <= index);
}

void optMRace::onTypeChosen(int index)
{
    TheSettings().mathRace.player[size_t(index / Types)].type = qint16(index % Types + 1);
}

void optMRace::onMaxMoved(int index, int value)
{
    TheSettings().mathRace.player[size_t(index)].largest = qint16(value);
    lblMax[index]->setText(QString::number(value));
}

void optMRace::onClockChosen(int index)
{
    TheSettings().mathRace.player[size_t(index / Clocks)].clock = qint16(index % Clocks + 1);
}

void optMRace::storeNames()
{
    Settings::MathRace &race = TheSettings().mathRace;
    for (int i = 0; i < Race::MaxPlayers; ++i) {
        // A blank name would leave an empty lane and an empty line in the results.
        const QString name = txtName[i]->text();
        race.player[size_t(i)].name = name.trimmed().isEmpty() ? tr("Player %1").arg(i + 1) : name;
    }
}

void optMRace::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    CentreOnScreen(this);
}

void optMRace::done(int result)
{
    // Closing by the frame or Escape keeps every change too: there is nothing to cancel.
    storeNames();
    QDialog::done(result);
}

QVBoxLayout *optMRace::choiceColumn(QWidget *frame, const QString &heading,
                                    const char *const captions[], int count, int player,
                                    const char *arrayName, QList<QRadioButton *> &buttons,
                                    void (optMRace::*chosen)(int))
{
    // One player's column of option buttons; button k is element player * count + k.
    auto *group = new QButtonGroup(frame);
    auto *column = new QVBoxLayout;
    column->setSpacing(1);
    column->addWidget(Heading(heading, frame));
    for (int k = 0; k < count; ++k) {
        const int index = player * count + k;
        auto *button = Named(new QRadioButton(tr(captions[k]), frame), ArrayName(arrayName, index));
        group->addButton(button, index);
        column->addWidget(button);
        buttons.append(button);
    }
    connect(group, &QButtonGroup::idToggled, this, [this, chosen](int id, bool checked) {
        if (checked)
            (this->*chosen)(id);
    });
    return column;
}
