// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmMRace.h"

#include "AnswerBox.h"
#include "optMRace.h"
#include "RaceTrack.h"
#include "shell/core/DataPath.h"
#include "shell/frmResults.h"
#include "shell/Services.h"
#include "shell/widgets/Gauge.h"
#include "shell/WindowUtil.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QPushButton *MakeButton(const QString &caption, const QString &name, const char *colour,
                        QWidget *parent)
{
    auto *button = Named(new QPushButton(caption, parent), name);
    // Enter presses the button that has the focus, so the race runs from the keyboard alone.
    button->setAutoDefault(true);
    button->setMinimumSize(150, 46);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPointSize(14);
    font.setBold(true);
    button->setFont(font);
    StyleBrightButton(button, QColor(QLatin1String(colour)));
    return button;
}

} // namespace

frmMRace::frmMRace(QWidget *parent) : ActivityWindow(QStringLiteral("mathrace"), parent)
{
    setObjectName(QStringLiteral("frmMRace"));
    setWindowTitle(tr("Math Race"));
    applyLook(QColor(0xE1, 0xF5, 0xFE));

    m_carSound = DataFile(QStringLiteral("car.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));

    picTrack = Named(new RaceTrack(this), QStringLiteral("picTrack"));
    picTrack->setFinish(Race::Finish);

    pnlGas = Named(new Gauge(this), QStringLiteral("pnlGas"));
    pnlGas->setCaption(tr("Gas"));
    pnlGas->setPercent(Race::FullGas);
    ScaleFont(pnlGas, 1.1, true);

    lblNames = Named(new QLabel(this), QStringLiteral("lblNames"));
    lblNames->setTextFormat(Qt::RichText);
    lblNames->setAlignment(Qt::AlignCenter);
    lblNames->setWordWrap(true);

    lblMessage = Named(new QLabel(this), QStringLiteral("lblMessage"));
    lblMessage->setTextFormat(Qt::PlainText);
    lblMessage->setAlignment(Qt::AlignCenter);
    lblMessage->setWordWrap(true);
    lblMessage->setMinimumWidth(230);
    lblMessage->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    ScaleFont(lblMessage, 1.15, true);
    lblMessage->setStyleSheet(
        QStringLiteral("QLabel { background: #FFF9C4; color: #1A237E; border: 3px solid #FBC02D;"
                       " border-radius: 14px; padding: 8px; }"));

    auto *problemPanel = Named(new QFrame(this), QStringLiteral("fraProblem"));
    problemPanel->setStyleSheet(QStringLiteral(
        "#fraProblem { background: white; border: 3px solid #90CAF9; border-radius: 16px; }"));

    lblProblem = Named(new QLabel(problemPanel), QStringLiteral("lblProblem"));
    lblProblem->setTextFormat(Qt::PlainText);
    lblProblem->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblProblem->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    QFont problemFont = font();
    problemFont.setBold(true);
    lblProblem->setFont(problemFont);
    // The problem comes and goes each turn; its place stays so nothing else jumps about.
    QSizePolicy keep = lblProblem->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    lblProblem->setSizePolicy(keep);

    txtAnswer = Named(new AnswerBox(problemPanel), QStringLiteral("txtAnswer"));
    txtAnswer->setFont(problemFont);
    txtAnswer->setAlignment(Qt::AlignCenter);
    txtAnswer->setAccessibleName(tr("Answer"));
    txtAnswer->setStyleSheet(
        QStringLiteral("QLineEdit { background: #FFFDE7; color: #B71C1C; border: 3px solid #FFB300;"
                       " border-radius: 10px; padding: 2px 6px; }"
                       "QLineEdit:focus { border: 4px solid #F57C00; }"
                       "QLineEdit:disabled { background: #ECEFF1; border-color: #CFD8DC; }"));

    cmdOK = MakeButton(tr("&See Problem"), QStringLiteral("cmdOK"), "#2E7D32", problemPanel);
    cmdOK->setMinimumWidth(200);
    cmdErase = MakeButton(tr("&Erase"), QStringLiteral("cmdErase"), "#EF6C00", problemPanel);
    cmdNew = MakeButton(tr("&New Race"), QStringLiteral("cmdNew"), "#1565C0", this);
    cmdOptions = MakeButton(tr("&Options"), QStringLiteral("cmdOptions"), "#6A1B9A", this);
    cmdHelp = MakeButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", this);
    cmdExit = MakeButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", this);

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));

    auto *sum = new QHBoxLayout;
    sum->setSpacing(16);
    sum->addStretch();
    sum->addWidget(lblProblem);
    sum->addWidget(txtAnswer);
    sum->addStretch();
    auto *turnButtons = new QHBoxLayout;
    turnButtons->setSpacing(16);
    turnButtons->addStretch();
    turnButtons->addWidget(cmdOK);
    turnButtons->addWidget(cmdErase);
    turnButtons->addStretch();
    auto *panelLayout = new QVBoxLayout(problemPanel);
    panelLayout->setContentsMargins(16, 10, 16, 12);
    panelLayout->addLayout(sum, 1);
    panelLayout->addLayout(turnButtons);

    auto *raceButtons = new QVBoxLayout;
    raceButtons->setSpacing(8);
    raceButtons->addWidget(cmdNew);
    raceButtons->addWidget(cmdOptions);
    raceButtons->addWidget(cmdHelp);
    raceButtons->addWidget(cmdExit);
    raceButtons->addStretch();

    auto *top = new QHBoxLayout;
    top->setSpacing(10);
    top->addWidget(picTrack, 1);
    top->addWidget(pnlGas);

    auto *bottom = new QHBoxLayout;
    bottom->setSpacing(12);
    bottom->addWidget(lblMessage);
    bottom->addWidget(problemPanel, 1);
    bottom->addLayout(raceButtons);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->addLayout(top, 3);
    layout->addWidget(lblNames);
    layout->addLayout(bottom, 0);

    setTabOrder(cmdOK, txtAnswer);
    setTabOrder(txtAnswer, cmdErase);
    setTabOrder(cmdErase, cmdNew);
    setTabOrder(cmdNew, cmdOptions);
    setTabOrder(cmdOptions, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);

    connect(cmdOK, &QPushButton::clicked, this, &frmMRace::onOk);
    connect(cmdErase, &QPushButton::clicked, this, &frmMRace::onErase);
    connect(cmdNew, &QPushButton::clicked, this, &frmMRace::onNew);
    connect(cmdOptions, &QPushButton::clicked, this, &frmMRace::onOptions);
    connect(cmdExit, &QPushButton::clicked, this, &frmMRace::onExit);
    connect(cmdHelp, &QPushButton::clicked, this, &frmMRace::onHelp);
    connect(txtAnswer, &AnswerBox::enterPressed, this, &frmMRace::onAnswer);
    connect(Timer1, &QTimer::timeout, this, &frmMRace::timer1Tick);

    txtAnswer->setEnabled(false);
    cmdOK->setEnabled(false);
    cmdErase->setEnabled(false);
    lblMessage->setText(tr("Press\nNew Race\nto start!"));
    showLineUp();
    resize(1024, 720);
    sizeProblem();
    cmdNew->setFocus();
}

void frmMRace::sizeProblem()
{
    // The problem is what every player must read at a glance, so it grows with the window.
    QFont big = lblProblem->font();
    // On a small or highly scaled screen it may be smaller (FitScale), so the window fits.
    big.setPixelSize(qBound(int(40 * FitScale(this)), height() / 11, 120));
    lblProblem->setFont(big);
    txtAnswer->setFont(big);
    txtAnswer->setFixedWidth(QFontMetrics(big).horizontalAdvance(QStringLiteral("00000")) + 40);
}

void frmMRace::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    sizeProblem();
}

void frmMRace::showLineUp()
{
    const Settings::MathRace &settings = TheSettings().mathRace;
    QStringList names;
    for (const auto &player : settings.player)
        names.append(player.name);
    picTrack->reset();
    picTrack->setRacers(qBound(1, int(settings.players), int(Race::MaxPlayers)), names);
    updateStandings();
}

void frmMRace::updateStandings()
{
    QStringList parts;
    for (int car = 1; car <= picTrack->racers(); ++car) {
        const QString name = picTrack->name(car).toHtmlEscaped();
        const int left = Race::Finish - picTrack->position(car);
        const QString progress = left > 0 ? tr("%1 to go").arg(left) : tr("finished!");
        parts.append(QStringLiteral("<span style=\"color:%1\">&#9632;</span>&nbsp;<b>%2</b>: "
                                    "%3")
                         .arg(RaceTrack::carColour(car).name(), name, progress));
    }
    lblNames->setText(parts.join(QStringLiteral("&nbsp;&nbsp;&nbsp; ")));
}

void frmMRace::onNew()
{
    if (m_race.isRunning())
        return;
    m_race.start(TheSettings().mathRace);
    cmdNew->setEnabled(false);
    cmdOptions->setEnabled(false);
    setRunningCaption(cmdExit, true);
    picTrack->reset();
    picTrack->setRacers(m_race.players(), m_race.names());
    updateStandings();
    startTurn();
}

void frmMRace::startTurn()
{
    txtAnswer->setEnabled(false);
    txtAnswer->setReadOnly(false);
    lblProblem->hide();
    txtAnswer->clear();
    cmdErase->setEnabled(false);
    pnlGas->setPercent(m_race.gas());
    lblProblem->setText(m_race.problem().caption());
    const int player = m_race.currentPlayer();
    lblMessage->setText(
        QStringLiteral("Player%1:\n%2").arg(SignedText(player), m_race.name(player)));
    cmdOK->setText(tr("&See Problem"));
    cmdOK->setEnabled(true);
    cmdOK->setFocus();
}

void frmMRace::onOk()
{
    switch (m_race.phase()) {
    case Race::Phase::Ready:
        m_race.seeProblem();
        cmdOK->setEnabled(false);
        lblMessage->setText(lblMessage->text() + QStringLiteral("\nType Answer\nPress <Enter>"));
        cmdErase->setEnabled(true);
        lblProblem->show();
        txtAnswer->setEnabled(true);
        Timer1->start(m_race.timerInterval());
        onErase();
        break;
    case Race::Phase::OutOfGas:
        txtAnswer->setEnabled(false);
        cmdOK->setEnabled(false);
        nextTurn();
        break;
    default:
        break;
    }
}

void frmMRace::timer1Tick()
{
    switch (m_race.tick()) {
    case Race::TickResult::Started:
        Timer1->setInterval(m_race.timerInterval());
        break;
    case Race::TickResult::Drained:
        Beep();
        pnlGas->setPercent(m_race.gas());
        break;
    case Race::TickResult::OutOfGas:
        Beep();
        pnlGas->setPercent(m_race.gas());
        Timer1->stop();
        PlaySound(m_uhOhSound, SND_SYNC);
        lblMessage->setText(QStringLiteral("Sorry ...\nHere's the answer .."));
        Announce(lblMessage, tr("Sorry. The answer is %1.").arg(m_race.problem().answer));
        // The answer stays on show to be read, not typed over or sent as the player's own.
        txtAnswer->setReadOnly(true);
        txtAnswer->setText(QString::number(m_race.problem().answer));
        cmdErase->setEnabled(false);
        cmdOK->setText(tr("&Next Player"));
        cmdOK->setEnabled(true);
        cmdOK->setFocus();
        break;
    case Race::TickResult::Ignored:
        Timer1->stop();
        break;
    }
}

void frmMRace::onAnswer()
{
    const Race::Phase phase = m_race.phase();
    if (phase != Race::Phase::FirstSecond && phase != Race::Phase::Draining)
        return;
    const std::optional<qint16> steps = m_race.answer(txtAnswer->value());
    if (!steps) {
        onErase();
        return;
    }
    Timer1->stop();
    const int player = m_race.currentPlayer();
    lblMessage->setText(QStringLiteral("\nGood!"));
    Announce(lblMessage, tr("Good!"));
    PlaySound(m_carSound, SND_ASYNC);
    picTrack->setPosition(player, m_race.position(player));
    if (m_race.hasFinished(player))
        picTrack->setFlagShown(player, true);
    updateStandings();
    Delay(1);
    nextTurn();
}

void frmMRace::nextTurn()
{
    if (m_race.nextTurn() == Race::TurnResult::NextTurn)
        startTurn();
    else
        finishRace();
}

void frmMRace::finishRace()
{
    Delay(1);
    PlaySound(m_tadaSound, SND_ASYNC);
    ShowResults(tr("Math Race Results"), tr("The game is over."),
                tr("These player(s) finished the race:"), Race::MaxPlayers, m_race.finishers(),
                m_race.names(), 4);
    stopRace();
}

void frmMRace::onErase()
{
    txtAnswer->clear();
    txtAnswer->setFocus();
}

void frmMRace::stopRace()
{
    m_race.stop();
    Timer1->stop();
    cmdNew->setEnabled(true);
    cmdOptions->setEnabled(true);
    setRunningCaption(cmdExit, false);
    lblProblem->clear();
    txtAnswer->clear();
    txtAnswer->setReadOnly(false);
    txtAnswer->setEnabled(false);
    cmdErase->setEnabled(false);
    cmdOK->setEnabled(false);
    lblMessage->setText(QStringLiteral("\nGame Over\n"));
    // A stopped race has no fuel to show.
    pnlGas->setPercent(0);
    cmdNew->setFocus();
}

void frmMRace::onExit()
{
    if (m_race.isRunning())
        stopRace();
    else
        close();
}

void frmMRace::onOptions()
{
    if (m_race.isRunning())
        return;
    optMRace options(this);
    RunModal(options);
    showLineUp();
    cmdOptions->setFocus();
}

void frmMRace::onHelp()
{
    openHelp();
    if (txtAnswer->isEnabled())
        txtAnswer->setFocus();
}
