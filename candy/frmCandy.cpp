// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmCandy.h"

#include "CandyMap.h"
#include "CandyPapers.h"
#include "frmDayReport.h"
#include "WeatherSign.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Printing.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <limits>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

QLabel *MakeValue(const QString &name, double scale, const char *colour, QWidget *parent)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(parent->font());
    ScaleFont(label, scale, scale > 1);
    label->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(colour)));
    return label;
}

QGroupBox *MakeFrame(const QString &title, const QString &name, QWidget *parent)
{
    auto *frame = Named(new QGroupBox(title, parent), name);
    frame->setFont(parent->font());
    frame->setStyleSheet(QStringLiteral(
        "QGroupBox { color: #AD1457; font-weight: bold; background: #FFFFFF;"
        " border: 2px solid #F8BBD0; border-radius: 10px; margin-top: 12px;"
        " padding: 6px 4px 2px 4px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }"));
    return frame;
}

} // namespace

frmCandy::frmCandy(QWidget *parent) : ActivityWindow(QStringLiteral("candy"), parent)
{
    setObjectName(QStringLiteral("frmCandy"));
    setWindowTitle(tr("Candy Drive"));
    applyLook(QColor(0xFC, 0xE4, 0xEC));
    m_dingSound = DataFile(QStringLiteral("ding.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));

    buildControls();
    // A damaged setting still gives a team count the contest can use, and is kept mended.
    const int teams = Contest::clampTeams(TheSettings().candy.value);
    TheSettings().candy.value = qint16(teams);
    optTeams[teams - 1]->setChecked(true);
    showMorning();
    resize(1024, 720);
    cmdNew->setFocus();
}

void frmCandy::buildControls()
{
    picMap = Named(new CandyMap(this), QStringLiteral("picMap"));
    picMap->setAccessibleName(tr("Map of the neighbourhood"));
    connect(picMap, &CandyMap::teamDropped, this, &frmCandy::teamDropped);

    auto *panel = new QWidget;
    QFont panelFont = font();
    panelFont.setPointSizeF(12.5);
    panel->setFont(panelFont);

    lblDay = MakeValue(QStringLiteral("lblDay"), 1.6, "#AD1457", panel);
    lblDay->setAlignment(Qt::AlignCenter);
    lblDay->setAccessibleName(tr("Day"));
    lblWeather = MakeValue(QStringLiteral("lblWeather"), 1.1, "#37474F", panel);
    lblWeather->setAlignment(Qt::AlignCenter);
    lblWeather->setAccessibleName(tr("Weather"));
    picWeather = Named(new WeatherSign(panel), QStringLiteral("picWeather"));
    lblOurs = MakeValue(QStringLiteral("lblOurs"), 1.0, "#1565C0", panel);
    lblOurs->setAccessibleName(Contest::sideName(Contest::Side::Ours));
    lblTheirs = MakeValue(QStringLiteral("lblTheirs"), 1.0, "#E65100", panel);
    lblTheirs->setAccessibleName(Contest::sideName(Contest::Side::Theirs));
    for (QLabel *score : {lblOurs, lblTheirs}) {
        QFont bold = score->font();
        bold.setBold(true);
        score->setFont(bold);
    }

    fraTeams = MakeFrame(tr("Send your teams"), QStringLiteral("fraTeams"), panel);
    auto *teamsGrid = new QGridLayout(fraTeams);
    teamsGrid->setVerticalSpacing(4);
    for (int t = 0; t < Contest::MaxTeams; ++t) {
        auto *label =
            Named(new QLabel(tr("Team &%1").arg(t + 1), fraTeams), ArrayName("lblTeam", t));
        label->setFont(panel->font());
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setMinimumWidth(84);
        label->setStyleSheet(QStringLiteral("QLabel { color: white; background: %1;"
                                            " border-radius: 12px; padding: 2px 8px;"
                                            " font-weight: bold; }"
                                            "QLabel:disabled { background: #BDBDBD; }")
                                 .arg(CandyMap::teamColour(t).name()));
        auto *combo = Named(new QComboBox(fraTeams), ArrayName("cboStreet", t));
        combo->setFont(panel->font());
        combo->setMinimumHeight(34);
        combo->setAccessibleName(tr("Street for team %1").arg(t + 1));
        label->setBuddy(combo);
        teamsGrid->addWidget(label, t, 0);
        teamsGrid->addWidget(combo, t, 1);
        teamsGrid->setColumnStretch(1, 1);
        connect(combo, &QComboBox::currentIndexChanged, this,
                [this, t](int index) { streetChosen(t, index); });
        lblTeam.append(label);
        cboStreet.append(combo);
    }

    // The frame's mnemonic puts the focus on its checked button; the arrows choose.
    fraCount = MakeFrame(tr("Number of tea&ms"), QStringLiteral("fraCount"), panel);
    auto *countRow = new QHBoxLayout(fraCount);
    auto *countGroup = new QButtonGroup(this);
    for (int i = 0; i < Contest::MaxTeams; ++i) {
        auto *option =
            Named(new QRadioButton(QString::number(i + 1), fraCount), ArrayName("optTeams", i));
        option->setFont(panel->font());
        option->setAccessibleName(i == 0 ? tr("1 team") : tr("%1 teams").arg(i + 1));
        countGroup->addButton(option, i + 1);
        countRow->addWidget(option);
        optTeams.append(option);
    }
    connect(countGroup, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            teamsChosen(id);
    });

    lblMessage = MakeValue(QStringLiteral("lblMessage"), 1.0, "#263238", panel);
    lblMessage->setAccessibleName(tr("What to do"));
    lblMessage->setMinimumHeight(QFontMetrics(lblMessage->font()).lineSpacing() * 3 + 8);
    lblMessage->setStyleSheet(QStringLiteral("QLabel { color: #263238; background: #FFF9C4;"
                                             " border: 2px solid #FBC02D; border-radius: 8px;"
                                             " padding: 4px; }"));

    cmdSell =
        MakeBoldBrightButton(tr("Start the &Day"), QStringLiteral("cmdSell"), "#2E7D32", panel);
    cmdSell->setAccessibleName(tr("Start the day: the teams go selling"));
    cmdSell->setMinimumHeight(48);
    cmdReport = MakeBoldBrightButton(tr("&Report"), QStringLiteral("cmdReport"), "#6A1B9A", panel);
    cmdReport->setAccessibleName(tr("Show the reports of the days sold"));
    cmdPrint = MakeBoldBrightButton(tr("&Print"), QStringLiteral("cmdPrint"), "#1565C0", panel);
    cmdPrint->setAccessibleName(tr("Print the certificate and the contest report"));
    cmdNew = MakeBoldBrightButton(tr("&New Contest"), QStringLiteral("cmdNew"), "#AD1457", panel);
    cmdNew->setAccessibleName(tr("Start a new contest"));
    cmdHelp = MakeBoldBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", panel);
    cmdHelp->setAccessibleName(tr("Help"));
    cmdExit = MakeBoldBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", panel);
    cmdExit->setAccessibleName(tr("Stop the contest or leave the candy drive"));
    connect(cmdSell, &QPushButton::clicked, this, &frmCandy::cmdSell_Click);
    connect(cmdReport, &QPushButton::clicked, this, &frmCandy::cmdReport_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmCandy::cmdPrint_Click);
    connect(cmdNew, &QPushButton::clicked, this, &frmCandy::cmdNew_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmCandy::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmCandy::cmdExit_Click);
    auto *buttons = new QGridLayout;
    buttons->setSpacing(6);
    buttons->addWidget(cmdReport, 0, 0);
    buttons->addWidget(cmdPrint, 0, 1);
    buttons->addWidget(cmdNew, 1, 0);
    buttons->addWidget(cmdHelp, 1, 1);
    buttons->addWidget(cmdExit, 2, 0, 1, 2);

    auto *panelLayout = new QVBoxLayout(panel);
    panelLayout->setContentsMargins(4, 0, 4, 0);
    panelLayout->setSpacing(6);
    panelLayout->addWidget(lblDay);
    auto *weatherRow = new QHBoxLayout;
    weatherRow->addWidget(picWeather);
    weatherRow->addWidget(lblWeather, 1);
    panelLayout->addLayout(weatherRow);
    panelLayout->addWidget(lblOurs);
    panelLayout->addWidget(lblTheirs);
    panelLayout->addWidget(fraTeams);
    panelLayout->addWidget(cmdSell);
    panelLayout->addWidget(lblMessage);
    panelLayout->addWidget(fraCount);
    panelLayout->addStretch();
    panelLayout->addLayout(buttons);

    // On a small or strongly magnified screen the controls scroll instead of being cut off.
    auto *scroller = new QScrollArea(this);
    scroller->setWidget(panel);
    scroller->setAccessibleName(tr("Teams and the day"));
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setMinimumWidth(qMax(330, panel->sizeHint().width() + 20));
    scroller->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    scroller->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    panel->setAutoFillBackground(false);
    scroller->viewport()->setAutoFillBackground(false);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    layout->addWidget(picMap, 1);
    layout->addWidget(scroller);

    QWidget *previous = cboStreet.first();
    for (QWidget *next :
         QList<QWidget *>{cboStreet[1], cboStreet[2], cboStreet[3], cboStreet[4], cmdSell,
                          optTeams[0], optTeams[1], optTeams[2], optTeams[3], optTeams[4],
                          cmdReport, cmdPrint, cmdNew, cmdHelp, cmdExit}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void frmCandy::teamsChosen(int teams)
{
    if (m_running)
        return;
    TheSettings().candy.value = qint16(Contest::clampTeams(teams));
    showMorning();
}

void frmCandy::cmdNew_Click()
{
    if (m_running)
        return;
    // The contest's own generator starts from a draw of the shared source, so a seeded
    // source replays the whole contest.
    const auto seed = qint64(Rnd() * double(std::numeric_limits<qint32>::max()));
    m_contest = std::make_unique<Contest>(Contest::clampTeams(TheSettings().candy.value), seed);
    m_running = true;
    setRunningCaption(cmdExit, true);
    showMorning();
    cboStreet.first()->setFocus();
}

void frmCandy::streetChosen(int team, int index)
{
    if (m_filling || !m_running || !m_contest)
        return;
    // The first entry of each list is the school, where a team waits.
    m_contest->assign(team, index - 1);
    picMap->update();
    updateControls();
}

void frmCandy::teamDropped(int team, int street)
{
    if (!m_running || team < 0 || team >= cboStreet.size())
        return;
    cboStreet[team]->setCurrentIndex(street + 1);
}

void frmCandy::cmdSell_Click()
{
    if (!m_running || !m_contest || !m_contest->allAssigned())
        return;
    const QList<int> rival = m_contest->planRival();
    const std::optional<Contest::DayReport> report = m_contest->sellDay(rival);
    if (!report)
        return;
    PlaySound(m_dingSound, SND_ASYNC);
    if (m_contest->isOver()) {
        finishContest();
    } else {
        showMorning();
    }
    Announce(lblOurs,
             tr("Day %1: %2 sold %3, %4 sold %5.")
                 .arg(report->day)
                 .arg(Contest::sideName(Contest::Side::Ours), CandyPapers::boxes(report->boxesOurs),
                      Contest::sideName(Contest::Side::Theirs),
                      CandyPapers::boxes(report->boxesTheirs)));
    frmDayReport dayReport(*m_contest, report->day, this);
    RunModal(dayReport);
    if (m_running)
        cboStreet.first()->setFocus();
    else
        cmdPrint->setFocus();
}

void frmCandy::finishContest()
{
    m_running = false;
    setRunningCaption(cmdExit, false);
    const bool won = m_contest->winner() == Contest::Winner::Ours;
    PlaySound(won ? m_tadaSound : m_uhOhSound, SND_ASYNC);
    showMorning();
}

void frmCandy::cmdReport_Click()
{
    if (!m_contest || m_contest->reports().isEmpty())
        return;
    frmDayReport dayReport(*m_contest, int(m_contest->reports().size()), this);
    RunModal(dayReport);
    cmdReport->setFocus();
}

void frmCandy::cmdPrint_Click()
{
    if (!m_contest || !m_contest->isOver())
        return;
    PrintWithPreview(this, CandyPapers::document(*m_contest));
    cmdPrint->setFocus();
}

void frmCandy::cmdExit_Click()
{
    if (!m_running) {
        close();
        return;
    }
    const auto answer = MsgBox(
        this, tr("Stop Contest"), tr("Stop this contest? The days sold so far will be lost."),
        QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    m_running = false;
    m_contest.reset();
    setRunningCaption(cmdExit, false);
    showMorning();
    cmdNew->setFocus();
}

// Shows the contest as it stands: the day and its weather, the scores, and the teams'
// lists back at the school for a new morning.
void frmCandy::showMorning()
{
    m_filling = true;
    QStringList choices{tr("At school")};
    if (m_contest)
        for (const Contest::Street &street : m_contest->streets())
            choices.append(street.name);
    for (int t = 0; t < cboStreet.size(); ++t) {
        QComboBox *combo = cboStreet[t];
        combo->clear();
        combo->addItems(choices);
        combo->setCurrentIndex(m_contest ? m_contest->assignment(t) + 1 : 0);
    }
    m_filling = false;

    picWeather->setWeather(m_running ? std::optional(m_contest->weather()) : std::nullopt);
    picWeather->setVisible(m_running);
    // Beside its picture the weather reads from the left; alone it stands in the middle.
    lblWeather->setAlignment(m_running ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    if (!m_contest) {
        lblDay->setText(tr("Candy Drive"));
        lblWeather->setText(tr("Ten school days to sell the most candy!"));
    } else if (m_running) {
        lblDay->setText(tr("Day %1 of %2").arg(m_contest->day()).arg(Contest::Days));
        lblWeather->setText(
            tr("Weather today: %1").arg(Contest::weatherName(m_contest->weather())));
    } else {
        lblDay->setText(tr("The contest is over"));
        lblWeather->setText(CandyPapers::verdict(*m_contest));
        Announce(lblWeather, lblWeather->text());
    }
    showScores();
    picMap->setContest(m_contest.get(), m_running);
    updateControls();
}

void frmCandy::showScores()
{
    const int ours = m_contest ? m_contest->totalBoxes(Contest::Side::Ours) : 0;
    const int theirs = m_contest ? m_contest->totalBoxes(Contest::Side::Theirs) : 0;
    lblOurs->setText(Contest::sideName(Contest::Side::Ours) + QStringLiteral(": ") +
                     CandyPapers::boxes(ours));
    lblTheirs->setText(Contest::sideName(Contest::Side::Theirs) + QStringLiteral(": ") +
                       CandyPapers::boxes(theirs));
}

void frmCandy::showMessage(const QString &text)
{
    if (lblMessage->text() == text)
        return;
    lblMessage->setText(text);
}

void frmCandy::updateControls()
{
    const int teams =
        m_contest ? m_contest->teams() : Contest::clampTeams(TheSettings().candy.value);
    for (int t = 0; t < cboStreet.size(); ++t) {
        const bool used = t < teams;
        lblTeam[t]->setVisible(used);
        cboStreet[t]->setVisible(used);
        lblTeam[t]->setEnabled(m_running);
        cboStreet[t]->setEnabled(m_running);
    }
    for (QRadioButton *option : std::as_const(optTeams))
        option->setEnabled(!m_running);
    fraCount->setEnabled(!m_running);
    const bool ready = m_running && m_contest->allAssigned();
    cmdSell->setEnabled(ready);
    cmdReport->setEnabled(m_contest && !m_contest->reports().isEmpty());
    cmdPrint->setEnabled(m_contest && m_contest->isOver());
    cmdNew->setEnabled(!m_running);

    if (!m_running) {
        showMessage(m_contest
                        ? tr("Press Print for your certificate, or New Contest to play again.")
                        : tr("Choose the number of teams, then press New Contest."));
        return;
    }
    QStringList waiting;
    for (int t = 0; t < m_contest->teams(); ++t)
        if (m_contest->assignment(t) < 0)
            waiting.append(Contest::teamName(Contest::Side::Ours, t));
    showMessage(waiting.isEmpty()
                    ? tr("Every team has a street. Press Start the Day!")
                    : tr("Drag each team to a street, or pick one from its list. Waiting: %1.")
                          .arg(waiting.join(QStringLiteral(", "))));
}
