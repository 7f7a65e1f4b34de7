// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmSRace.h"

#include "optSRace.h"
#include "ScreenFit.h"
#include "shell/core/DataPath.h"
#include "shell/frmResults.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"
#include "SkyView.h"
#include "WordList.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

QPushButton *MakeButton(const QString &caption, const QString &name, const char *colour,
                        QWidget *parent)
{
    auto *button = Named(new QPushButton(caption, parent), name);
    // Enter presses the button that has the focus, so the race runs from the keyboard alone.
    button->setAutoDefault(true);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPointSize(14);
    font.setBold(true);
    button->setFont(font);
    StyleBrightButton(button, QColor(QLatin1String(colour)));
    return button;
}

QLabel *BigLabel(const QString &name, const char *colour, QWidget *parent)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(colour)));
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

} // namespace

frmSRace::frmSRace(QWidget *parent) : ActivityWindow(QStringLiteral("spacerace"), parent)
{
    setObjectName(QStringLiteral("frmSRace"));
    applyLook(QColor(0xE8, 0xEA, 0xF6));

    m_dingSound = DataFile(QStringLiteral("ding.wav"));
    m_rocketSound = DataFile(QStringLiteral("rocket.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));

    picSky = Named(new SkyView(this), QStringLiteral("picSky"));
    // The sky takes the keyboard while a word is spelt, so Enter cannot press a button then.
    picSky->setFocusPolicy(Qt::ClickFocus);

    lblTitle = Named(new QLabel(this), QStringLiteral("lblTitle"));
    lblTitle->setTextFormat(Qt::PlainText);
    lblTitle->setAlignment(Qt::AlignCenter);
    ScaleFont(lblTitle, 1.7, true);
    lblTitle->setStyleSheet(QStringLiteral("color: #283593;"));

    lblMessage = Named(new QLabel(this), QStringLiteral("lblMessage"));
    lblMessage->setTextFormat(Qt::PlainText);
    lblMessage->setAlignment(Qt::AlignCenter);
    lblMessage->setWordWrap(true);
    ScaleFont(lblMessage, 1.15, true);

    lblNames = Named(new QLabel(this), QStringLiteral("lblNames"));
    lblNames->setTextFormat(Qt::PlainText);
    lblNames->setAlignment(Qt::AlignCenter);
    lblNames->setWordWrap(true);
    ScaleFont(lblNames, 1.1, true);
    lblNames->setStyleSheet(QStringLiteral("color: #1A237E;"));

    m_wordPanel = Named(new QFrame(this), QStringLiteral("fraWord"));
    m_wordPanel->setStyleSheet(QStringLiteral(
        "#fraWord { background: white; border: 3px solid #9FA8DA; border-radius: 16px; }"));
    lblWord = BigLabel(QStringLiteral("lblWord"), "#0D47A1", m_wordPanel);
    lblWord->setAccessibleName(tr("Word"));
    lblFlash = BigLabel(QStringLiteral("lblFlash"), "#B71C1C", m_wordPanel);
    lblFlash->setAccessibleName(tr("Letters typed"));
    lblanswer = BigLabel(QStringLiteral("lblanswer"), "#B71C1C", m_wordPanel);
    lblanswer->setAccessibleName(tr("Letters typed"));
    lblanswer->hide();
    auto *panelLayout = new QVBoxLayout(m_wordPanel);
    panelLayout->setContentsMargins(12, 6, 12, 6);
    panelLayout->setSpacing(0);
    panelLayout->addWidget(lblWord);
    panelLayout->addWidget(lblFlash);
    panelLayout->addWidget(lblanswer);

    cmdOK = MakeButton(tr("&Flash Word"), QStringLiteral("cmdOK"), "#2E7D32", this);
    cmdNew = MakeButton(tr("&New Game"), QStringLiteral("cmdNew"), "#1565C0", this);
    cmdOptions = MakeButton(tr("&Options"), QStringLiteral("cmdOptions"), "#6A1B9A", this);
    cmdHelp = MakeButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", this);
    cmdExit = MakeButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", this);

    auto *side = new QVBoxLayout;
    side->setSpacing(8);
    side->addWidget(lblTitle);
    side->addWidget(lblMessage, 1);
    side->addWidget(cmdOK);
    side->addSpacing(6);
    // Two by two, so the window stays short enough for a small screen at large scaling.
    auto *gameButtons = new QGridLayout;
    gameButtons->setSpacing(8);
    gameButtons->addWidget(cmdNew, 0, 0);
    gameButtons->addWidget(cmdOptions, 0, 1);
    gameButtons->addWidget(cmdHelp, 1, 0);
    gameButtons->addWidget(cmdExit, 1, 1);
    side->addLayout(gameButtons);

    auto *top = new QHBoxLayout;
    top->setSpacing(12);
    top->addWidget(picSky, 1);
    top->addLayout(side);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->addLayout(top, 1);
    layout->addWidget(lblNames);
    layout->addWidget(m_wordPanel);

    setTabOrder(cmdOK, cmdNew);
    setTabOrder(cmdNew, cmdOptions);
    setTabOrder(cmdOptions, cmdHelp);
    setTabOrder(cmdHelp, cmdExit);

    connect(cmdOK, &QPushButton::clicked, this, &frmSRace::onOk);
    connect(cmdNew, &QPushButton::clicked, this, &frmSRace::onNew);
    connect(cmdOptions, &QPushButton::clicked, this, &frmSRace::onOptions);
    connect(cmdExit, &QPushButton::clicked, this, &frmSRace::onExit);
    connect(cmdHelp, &QPushButton::clicked, this, &frmSRace::onHelp);

    // The window sees the keys before its controls, as letters belong to the race.
    const auto children = findChildren<QWidget *>();
    for (QWidget *child : children)
        child->installEventFilter(this);

    cmdOK->setEnabled(false);
    setMessage(tr("Press\nNew Game\nto start!"));
    showChoices();
    ResizeWithinScreen(this, QSize(1024, 720));
    sizeWord();
    cmdNew->setFocus();
}

void frmSRace::sizeWord()
{
    // Fifteen letters must fit across the panel, and the word grows with the window.
    QFont big = font();
    big.setBold(true);
    big.setFamily(QStringLiteral("Courier New"));
    const int byWidth = m_wordPanel->width() > 100 ? (m_wordPanel->width() - 40) / 16 * 10 / 6 : 40;
    // Before the window first fits its screen, its height may be more than the screen has.
    const int tall = screen() ? qMin(height(), screen()->availableGeometry().height()) : height();
    big.setPixelSize(qBound(16, qMin(tall / 15, byWidth), 90));
    for (QLabel *label : {lblWord, lblFlash, lblanswer})
        label->setFont(big);
    // The turn's message and the game's name grow with the window too.
    QFont message = lblMessage->font();
    message.setPixelSize(qBound(12, tall / 28, 40));
    lblMessage->setFont(message);
    QFont title = lblTitle->font();
    title.setPixelSize(qBound(16, tall / 22, 52));
    lblTitle->setFont(title);
    lblWord->setMinimumHeight(QFontMetrics(big).height());
    lblFlash->setMinimumHeight(QFontMetrics(big).height());
    lblanswer->setMinimumHeight(QFontMetrics(big).height());
}

void frmSRace::showEvent(QShowEvent *event)
{
    if (!m_fitted) {
        m_fitted = true;
        ShrinkToScreen(this);
        sizeWord();
    }
    ActivityWindow::showEvent(event);
}

void frmSRace::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    sizeWord();
}

void frmSRace::setMessage(const QString &text)
{
    lblMessage->setText(text);
    const int player = m_race.isRunning() ? m_race.currentPlayer() : 0;
    const QColor border = player > 0 ? SkyView::rocketColour(player) : QColor(0xFB, 0xC0, 0x2D);
    lblMessage->setStyleSheet(
        QStringLiteral("QLabel { background: #FFF9C4; color: #1A237E; border: 4px solid %1;"
                       " border-radius: 14px; padding: 6px; }")
            .arg(border.name()));
}

void frmSRace::showChoices()
{
    // Before a game the window shows what the next one will be: the list, the game, the players.
    const WordList &list = SharedList();
    setWindowTitle(optSRace::caption(list.name));
    const Settings::SpaceRace &settings = TheSettings().spaceRace;
    lblTitle->setText(settings.gameType == 1 ? tr("Flasher") : tr("Scrambler"));
    cmdOK->setText(settings.gameType == 1 ? tr("&Flash Word") : tr("Next &Player"));
    lblFlash->setVisible(settings.gameType == 1);
    lblanswer->setVisible(settings.gameType != 1);
    lblWord->setText(tr("List: %1").arg(list.name));
    const QString words = list.count() == 1 ? tr("1 word") : tr("%1 words").arg(list.count());
    lblFlash->setText(list.isEmpty() ? QString() : words);
    lblanswer->setText(lblFlash->text());
    showLineUp(qBound(1, int(settings.players), int(RocketRace::MaxPlayers)),
               QStringList(settings.names.begin(), settings.names.end()));
}

void frmSRace::showLineUp(int players, const QStringList &names)
{
    picSky->hideAll();
    picSky->setPlayers(players);
    QString line;
    for (int i = 0; i < players; ++i)
        line += QStringLiteral("%1-%2  ").arg(i + 1).arg(names.value(i));
    lblNames->setText(line);
}

bool frmSRace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && typeKey(static_cast<QKeyEvent *>(event)))
        return true;
    return ActivityWindow::eventFilter(watched, event);
}

void frmSRace::keyPressEvent(QKeyEvent *event)
{
    if (typeKey(event))
        return;
    ActivityWindow::keyPressEvent(event);
}

bool frmSRace::typeKey(const QKeyEvent *event)
{
    if (m_race.phase() != RocketRace::Phase::Typing)
        return false;
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    QChar key;
    if (event->key() == Qt::Key_Backspace)
        key = u'\b';
    else if (event->text().size() == 1)
        key = event->text()[0];
    switch (m_race.key(key)) {
    case RocketRace::KeyResult::Ignored:
        return false;
    case RocketRace::KeyResult::Right:
        showTyped();
        PlaySound(m_dingSound, SND_ASYNC);
        break;
    case RocketRace::KeyResult::WordDone:
        showTyped();
        PlaySound(m_dingSound, SND_ASYNC);
        wordDone();
        break;
    case RocketRace::KeyResult::Wrong:
        PlaySound(m_uhOhSound, SND_SYNC);
        // Scrambler may have given a letter away.
        showTyped();
        break;
    case RocketRace::KeyResult::TurnLost:
        PlaySound(m_uhOhSound, SND_SYNC);
        turnLost();
        break;
    }
    return true;
}

void frmSRace::showTyped()
{
    if (m_race.game() == RocketRace::Game::Scrambler)
        lblanswer->setText(m_race.typed());
    else
        lblFlash->setText(m_race.hidden());
}

void frmSRace::onNew()
{
    if (m_race.isRunning())
        return;
    const WordList &list = SharedList();
    if (list.isEmpty()) {
        MsgBox(this, tr("New Game"),
               tr("No words in spelling list.\nChoose 'Options' to Enter/Load list."),
               QMessageBox::Information);
        return;
    }
    m_race.start(list.words, TheSettings().spaceRace);
    if (!m_race.isRunning())
        return;
    const bool flasher = m_race.game() == RocketRace::Game::Flasher;
    lblTitle->setText(flasher ? tr("Flasher") : tr("Scrambler"));
    lblFlash->setVisible(flasher);
    lblanswer->setVisible(!flasher);
    cmdNew->setEnabled(false);
    cmdOptions->setEnabled(false);
    setRunningCaption(cmdExit, true);
    showLineUp(m_race.players(), m_race.names());
    presentWord();
}

void frmSRace::presentWord()
{
    const QString name = m_race.name(m_race.currentPlayer());
    lblWord->clear();
    if (m_race.game() == RocketRace::Game::Scrambler) {
        lblanswer->setText(m_race.typed());
        setMessage(name + QStringLiteral(":\n") + tr("Unscramble Word"));
        lblWord->setText(m_race.scrambled());
        cmdOK->setText(tr("Next &Player"));
        cmdOK->setEnabled(false);
        picSky->setFocus();
    } else {
        lblFlash->clear();
        setMessage(name + QStringLiteral(":\n"));
        cmdOK->setText(tr("&Flash Word"));
        cmdOK->setEnabled(true);
        cmdOK->setFocus();
    }
}

void frmSRace::onOk()
{
    if (m_race.phase() == RocketRace::Phase::TurnLost) {
        cmdOK->setEnabled(false);
        nextTurn();
        return;
    }
    if (!m_race.flash())
        return;
    if (!m_race.canFlash()) {
        cmdOK->setEnabled(false);
        picSky->setFocus();
    }
    lblWord->setText(m_race.word());
    // A larger speed value shows the word longer: 0.1 second at 0, 2.1 seconds at 20.
    const int speed = qBound(0, int(TheSettings().spaceRace.speed), int(optSRace::SpeedMax));
    Delay(float(speed + 1) / 10.0f);
    lblWord->clear();
    showTyped();
}

void frmSRace::wordDone()
{
    const int player = m_race.currentPlayer();
    setMessage(tr("Good!") + u'\n');
    Announce(lblMessage, tr("Good!"));
    lblWord->setText(m_race.word());
    cmdOK->setEnabled(false);
    picSky->setPosition(player, m_race.position(player));
    PlaySound(m_rocketSound, SND_ASYNC);
    Delay(1);
    nextTurn();
}

void frmSRace::turnLost()
{
    setMessage(tr("Sorry ...") + u'\n');
    Announce(lblMessage, tr("Sorry ... The word is %1.").arg(m_race.word()));
    lblWord->setText(m_race.word());
    lblanswer->setText(m_race.word());
    lblFlash->setText(m_race.word());
    cmdOK->setText(tr("Next &Player"));
    cmdOK->setEnabled(true);
    cmdOK->setFocus();
}

void frmSRace::nextTurn()
{
    if (m_race.nextTurn() == RocketRace::TurnResult::NextTurn)
        presentWord();
    else
        finishRace();
}

void frmSRace::finishRace()
{
    Delay(1);
    PlaySound(m_tadaSound, SND_ASYNC);
    ShowResults(tr("Space Race Results"), tr("The game is over."),
                tr("These player(s) reached the moon:"), RocketRace::MaxPlayers, m_race.finishers(),
                m_race.names(), 4);
    stopRace();
}

void frmSRace::stopRace()
{
    m_race.stop();
    cmdNew->setEnabled(true);
    cmdOptions->setEnabled(true);
    setRunningCaption(cmdExit, false);
    cmdOK->setEnabled(false);
    lblFlash->clear();
    lblanswer->clear();
    setMessage(tr("Game Over"));
    cmdNew->setFocus();
}

void frmSRace::onExit()
{
    if (m_race.isRunning())
        stopRace();
    else
        close();
}

void frmSRace::closeEvent(QCloseEvent *event)
{
    const WordList &list = SharedList();
    if (list.hasUnsavedWords()) {
        const QString question = tr("Current List: %1\nList has not been saved.\nDo you still "
                                    "want to leave Space Race?")
                                     .arg(list.name);
        if (MsgBox(this, tr("Space Race"), question, QMessageBox::Question,
                   QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes) {
            event->ignore();
            return;
        }
    }
    // Closed by its frame in the middle of a game: the game ends with the window.
    if (m_race.isRunning())
        stopRace();
    ActivityWindow::closeEvent(event);
}

void frmSRace::onOptions()
{
    if (m_race.isRunning())
        return;
    optSRace options(this);
    RunModal(options);
    showChoices();
    cmdOptions->setFocus();
}

void frmSRace::onHelp()
{
    openHelp();
    if (m_race.phase() == RocketRace::Phase::Typing && !cmdOK->isEnabled())
        picSky->setFocus();
}
