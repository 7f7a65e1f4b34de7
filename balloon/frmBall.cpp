// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmBall.h"

#include "ClownPicture.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/frmInput.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"
#include "WordBoxes.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QLabel *MakeLabel(const QString &name, QWidget *parent)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// Tried letters keep their colour once disabled: green when in the word, grey when not.
const char *LetterStyle =
    "QPushButton { background: white; color: #0D47A1; border: 2px solid #64B5F6;"
    " border-radius: 8px; padding: 0px; }"
    "QPushButton:hover { background: #E3F2FD; }"
    "QPushButton:focus { border: 4px solid #FFD600; }"
    "QPushButton:disabled { background: #ECEFF1; color: #B0BEC5; border-color: #CFD8DC; }"
    "QPushButton[found=\"true\"]:disabled { background: #C8E6C9; color: #1B5E20;"
    " border-color: #66BB6A; }";

} // namespace

frmBall::frmBall(QWidget *parent) : ActivityWindow(QStringLiteral("balloon"), parent)
{
    setObjectName(QStringLiteral("frmBall"));
    setWindowTitle(tr("Balloon Man"));
    applyLook(QColor(0xFF, 0xF8, 0xE1));

    m_dingSound = DataFile(QStringLiteral("ding.wav"));
    m_popSound = DataFile(QStringLiteral("pop.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));
    if (!m_words.load(DataFile(QString::fromLatin1(BalloonWords::FileName))))
        m_loadError = m_words.error().message();

    picClown = Named(new ClownPicture(this), QStringLiteral("picClown"));
    picWord = Named(new WordBoxes(this), QStringLiteral("picWord"));
    picWord->setMinimumHeight(36);

    lblMessage = MakeLabel(QStringLiteral("lblMessage"), this);
    lblMessage->setAlignment(Qt::AlignCenter);
    lblMessage->setStyleSheet(QStringLiteral("color: #1A237E;"));
    lblMessage->setAccessibleName(tr("Message"));
    lblHint = MakeLabel(QStringLiteral("lblHint"), this);
    lblHint->setAlignment(Qt::AlignCenter);
    lblHint->setAccessibleName(tr("Hint"));
    lblHint->setStyleSheet(
        QStringLiteral("QLabel { color: #4A148C; background: #F3E5F5; border: 2px solid #CE93D8;"
                       " border-radius: 10px; padding: 2px 8px; }"));
    QSizePolicy keep = lblHint->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    lblHint->setSizePolicy(keep);
    lblHint->hide();
    lblTried = MakeLabel(QStringLiteral("lblTried"), this);
    lblTried->setAccessibleName(tr("Letters tried"));
    lblTried->setStyleSheet(QStringLiteral("color: #BF360C;"));
    lblScore = MakeLabel(QStringLiteral("lblScore"), this);
    lblScore->setAlignment(Qt::AlignCenter);
    lblScore->setWordWrap(false);
    lblScore->setAccessibleName(tr("Score"));
    lblScore->setStyleSheet(
        QStringLiteral("QLabel { color: #1B5E20; background: #E8F5E9; border: 2px solid #81C784;"
                       " border-radius: 10px; padding: 2px 10px; }"));

    auto *letters = Named(new QWidget(this), QStringLiteral("fraLetters"));
    letters->setStyleSheet(QString::fromLatin1(LetterStyle));
    letters->setAccessibleName(tr("Alphabet"));
    auto *letterGrid = new QGridLayout(letters);
    letterGrid->setContentsMargins(0, 0, 0, 0);
    letterGrid->setSpacing(4);
    for (int i = 0; i < 26; ++i) {
        const QChar letter(u'A' + i);
        auto *button = Named(new QPushButton(QString(letter), letters), ArrayName("cmdLetter", i));
        button->setAccessibleName(tr("Letter %1").arg(letter));
        button->setMinimumSize(24, 28);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, letter] { guessLetter(letter); });
        letterGrid->addWidget(button, i / 13, i % 13);
        cmdLetter.append(button);
    }

    fraGrade = Named(new QGroupBox(tr("Grade"), this), QStringLiteral("fraGrade"));
    fraGrade->setAccessibleName(tr("Grade"));
    auto *gradeGrid = new QGridLayout(fraGrade);
    gradeGrid->setContentsMargins(8, 2, 8, 2);
    gradeGrid->setVerticalSpacing(2);
    for (int g = 1; g <= BalloonWords::Grades; ++g) {
        auto *option =
            Named(new QRadioButton(tr("&%1").arg(g), fraGrade), ArrayName("optGrade", g - 1));
        option->setAccessibleName(tr("Grade %1").arg(g));
        connect(option, &QRadioButton::toggled, this, [this, g](bool on) {
            if (on)
                onGrade(g);
        });
        gradeGrid->addWidget(option, (g - 1) / 3, (g - 1) % 3);
        optGrade.append(option);
    }
    fraSource = Named(new QGroupBox(tr("Who picks the word?"), this), QStringLiteral("fraSource"));
    fraSource->setAccessibleName(tr("Who picks the word?"));
    auto *sourceBox = new QVBoxLayout(fraSource);
    sourceBox->setContentsMargins(8, 2, 8, 2);
    sourceBox->setSpacing(2);
    const QString sources[] = {tr("The &computer"), tr("A &friend")};
    for (int i = 0; i < 2; ++i) {
        auto *option = Named(new QRadioButton(sources[i], fraSource), ArrayName("optSource", i));
        option->setAccessibleName(i == 0 ? tr("The computer picks the word")
                                         : tr("A friend types the word"));
        const qint16 source = qint16(i + 1);
        connect(option, &QRadioButton::toggled, this, [this, source](bool on) {
            if (on)
                onSource(source);
        });
        sourceBox->addWidget(option);
        optSource.append(option);
    }

    cmdNew = MakeBrightButton(tr("&New Word"), QStringLiteral("cmdNew"), "#1565C0", this);
    cmdHint = MakeBrightButton(tr("H&int"), QStringLiteral("cmdHint"), "#8E24AA", this);
    cmdHint->setToolTip(tr("A sentence that uses the word. It costs one balloon."));
    cmdHelp = MakeBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", this);
    cmdExit = MakeBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", this);
    cmdNew->setAccessibleName(tr("New word"));
    cmdHint->setAccessibleName(tr("Hint, costs one balloon"));
    cmdHelp->setAccessibleName(tr("Help"));
    cmdExit->setAccessibleName(tr("Exit or stop"));

    auto *side = new QVBoxLayout;
    side->setSpacing(6);
    side->addWidget(fraGrade);
    side->addWidget(fraSource);
    side->addStretch();

    auto *top = new QHBoxLayout;
    top->addWidget(picClown, 1);
    top->addLayout(side);

    auto *status = new QHBoxLayout;
    status->addWidget(lblMessage, 3);
    status->addWidget(lblTried, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdHint);
    buttons->addStretch();
    buttons->addWidget(lblScore);
    buttons->addStretch();
    buttons->addWidget(cmdHelp);
    buttons->addWidget(cmdExit);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->setSpacing(5);
    layout->addLayout(top, 5);
    layout->addWidget(picWord, 1);
    layout->addLayout(status);
    layout->addWidget(lblHint);
    layout->addWidget(letters, 1);
    layout->addLayout(buttons);

    QList<QWidget *> order{cmdNew, cmdHint};
    for (QPushButton *button : std::as_const(cmdLetter))
        order.append(button);
    order << optGrade.first() << optSource.first() << cmdHelp << cmdExit;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);

    connect(cmdNew, &QPushButton::clicked, this, &frmBall::onNew);
    connect(cmdHint, &QPushButton::clicked, this, &frmBall::onHint);
    connect(cmdHelp, &QPushButton::clicked, this, [this] { openHelp(); });
    connect(cmdExit, &QPushButton::clicked, this, &frmBall::onExit);

    // Damaged values are set right in the shared settings too, so they are saved right.
    TheSettings().balloon.values =
        BalloonSettings::fromValues(TheSettings().balloon.values).values();
    showSettings();
    lblScore->setText(tr("Words won: %1 of %2").arg(0).arg(0));
    refreshLetters();
    cmdHint->setEnabled(false);
    // Opens as large as is comfortable, but never larger than the screen (a small laptop at
    // 200 % has little room), with type to match.
    QSize size(1024, 720);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableGeometry().size() * 0.95);
    resize(size);
    fitFonts();
    if (m_loadError.isEmpty() &&
        TheSettings().balloon.values[0] == BalloonSettings::ComputerPicks) {
        startRound();
    } else {
        say(tr("Press New Word. Then a friend types a secret word while you look away."));
    }
    cmdNew->setFocus();
}

void frmBall::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there are no words to play.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("Balloon Man"),
                   tr("Balloon Man cannot start because its word file is missing or "
                      "damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

void frmBall::showSettings()
{
    const BalloonSettings settings = BalloonSettings::fromValues(TheSettings().balloon.values);
    // Showing the choice is not making it: no round starts from here.
    for (QRadioButton *option : std::as_const(optGrade))
        option->blockSignals(true);
    for (QRadioButton *option : std::as_const(optSource))
        option->blockSignals(true);
    optGrade[settings.grade - 1]->setChecked(true);
    optSource[settings.source - 1]->setChecked(true);
    for (QRadioButton *option : std::as_const(optGrade))
        option->blockSignals(false);
    for (QRadioButton *option : std::as_const(optSource))
        option->blockSignals(false);
}

void frmBall::say(const QString &text)
{
    lblMessage->setText(text);
    Announce(lblMessage, text);
}

void frmBall::onNew()
{
    if (m_round.isRunning())
        endUnfinished();
    startRound();
}

void frmBall::startRound()
{
    QString word;
    QString hint;
    const bool asked = TheSettings().balloon.values[0] == BalloonSettings::FriendTypes;
    bool fromFriend = asked;
    if (fromFriend && askFriend()) {
        word = InputWord();
    } else {
        fromFriend = false;
        const int grade = BalloonSettings::fromValues(TheSettings().balloon.values).grade;
        const QList<BalloonWord> &list = m_words.grade(grade);
        const int index = m_picker.next(grade, int(list.size()));
        if (index < 0)
            return;
        word = list[index].word;
        hint = list[index].hint;
    }
    m_round.start(word, hint);
    m_fromFriend = fromFriend;
    picClown->setMood(ClownPicture::Mood::Waiting);
    picClown->setBalloons(m_round.balloons());
    picWord->showRound(m_round);
    lblHint->clear();
    lblHint->hide();
    lblTried->clear();
    cmdHint->setEnabled(!m_round.hint().isEmpty());
    refreshLetters();
    setRunningCaption(cmdExit, true);
    if (asked && !fromFriend)
        say(tr("No secret word was typed, so the computer picked one. Guess a letter!"));
    else if (!fromFriend)
        say(tr("Guess a letter! Type it or click it."));
    else if (word.size() == 1)
        say(tr("Your friend's word has one box. Guess a letter!"));
    else
        say(tr("Your friend's word has %1 boxes. Guess a letter!").arg(word.size()));
}

bool frmBall::askFriend()
{
    frmInput input(this);
    RunModal(input);
    const bool given = BalloonWords::isPlayable(InputWord());
    // A word of only "-" and "'" has nothing to guess, so it counts as no word.
    if (!given)
        TheSettings().balloon.values[0] = BalloonSettings::ComputerPicks;
    showSettings();
    return given;
}

void frmBall::guessLetter(QChar letter)
{
    const BalloonRound::Guess result = m_round.guess(letter);
    const QChar upper = letter.toUpper();
    switch (result) {
    case BalloonRound::Guess::NotALetter:
    case BalloonRound::Guess::Over:
        return;
    case BalloonRound::Guess::AlreadyTried:
        say(tr("You already tried %1. It costs nothing, so try another letter!").arg(upper));
        return;
    case BalloonRound::Guess::Right:
        if (!m_round.isWon()) {
            PlaySound(m_dingSound, SND_ASYNC);
            say(tr("Yes! %1 is in the word.").arg(upper));
        }
        break;
    case BalloonRound::Guess::Wrong:
        picClown->releaseBalloon();
        if (!m_round.isLost()) {
            PlaySound(m_popSound, SND_ASYNC);
            say(tr("No %1 in this word. A balloon floats away!").arg(upper));
        }
        break;
    }
    picWord->showRound(m_round);
    lblTried->setText(
        tr("Tried: %1").arg(m_round.tried().split(QString(), Qt::SkipEmptyParts).join(u' ')));
    refreshLetters();
    if (!m_round.isRunning())
        finishRound();
}

void frmBall::onHint()
{
    switch (m_round.askHint()) {
    case BalloonRound::Hint::Given:
        picClown->releaseBalloon();
        PlaySound(m_popSound, SND_ASYNC);
        lblHint->setText(m_round.hint());
        lblHint->show();
        cmdHint->setEnabled(false);
        say(tr("Here is your hint. It cost one balloon."));
        Announce(lblHint, m_round.hint());
        break;
    case BalloonRound::Hint::LastBalloon:
        say(tr("Only one balloon is left, so there is no hint now. You can do it!"));
        break;
    case BalloonRound::Hint::AlreadyGiven:
    case BalloonRound::Hint::NoHint:
    case BalloonRound::Hint::Over:
        break;
    }
}

void frmBall::finishRound()
{
    const bool won = m_round.isWon();
    m_score.record(won);
    lblScore->setText(tr("Words won: %1 of %2").arg(m_score.won).arg(m_score.played));
    if (won) {
        picClown->setMood(ClownPicture::Mood::Juggling);
        PlaySound(m_tadaSound, SND_ASYNC);
        say(tr("You got it! The word is %1.").arg(m_round.word()));
    } else {
        picClown->setMood(ClownPicture::Mood::Shrugging);
        PlaySound(m_uhOhSound, SND_ASYNC);
        say(tr("Oh, the balloons are all gone! The word was %1.").arg(m_round.word()));
    }
    if (!m_round.hint().isEmpty()) {
        // Once the word is no secret the sentence shows it in place, in capitals as in the
        // boxes, so the pupil sees the spelling at work.
        lblHint->setText(QString(m_round.hint()).replace(QStringLiteral("___"), m_round.word()));
        lblHint->show();
    }
    picWord->showRound(m_round);
    cmdHint->setEnabled(false);
    refreshLetters();
    setRunningCaption(cmdExit, false);
    cmdNew->setFocus();
}

void frmBall::endUnfinished()
{
    // A word the pupil worked on counts as played; one only looked at does not.
    if (m_round.isTouched())
        m_score.record(false);
    m_round.giveUp();
    lblScore->setText(tr("Words won: %1 of %2").arg(m_score.won).arg(m_score.played));
    picWord->showRound(m_round);
    cmdHint->setEnabled(false);
    refreshLetters();
    setRunningCaption(cmdExit, false);
}

void frmBall::onExit()
{
    if (!m_round.isRunning()) {
        close();
        return;
    }
    endUnfinished();
    say(tr("Stopped. The word was %1.").arg(m_round.word()));
    cmdNew->setFocus();
}

void frmBall::onGrade(int grade)
{
    TheSettings().balloon.values[1] = qint16(grade);
    // A word nobody has started on yet is swapped for one of the new grade at once.
    if (m_round.isRunning() && !m_round.isTouched() && !m_fromFriend) {
        startRound();
        say(tr("Grade %1! Guess a letter.").arg(grade));
    } else {
        say(tr("The next word will be from grade %1.").arg(grade));
    }
}

void frmBall::onSource(qint16 source)
{
    TheSettings().balloon.values[0] = source;
    say(source == BalloonSettings::FriendTypes
            ? tr("Press New Word. Then a friend types a secret word while you look away.")
            : tr("Press New Word for a word from the list."));
}

void frmBall::refreshLetters()
{
    const bool running = m_round.isRunning();
    for (int i = 0; i < 26; ++i) {
        QPushButton *button = cmdLetter[i];
        const QChar letter(u'A' + i);
        const bool tried = m_round.wasTried(letter);
        const bool found = tried && m_round.word().contains(letter);
        button->setEnabled(running && !tried);
        if (button->property("found").toBool() != found) {
            button->setProperty("found", found);
            button->style()->unpolish(button);
            button->style()->polish(button);
        }
    }
}

void frmBall::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    const bool plain =
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (plain && text.size() == 1 && text.at(0).isLetter() && text.at(0).unicode() < 128) {
        guessLetter(text.at(0));
        return;
    }
    ActivityWindow::keyPressEvent(event);
}

void frmBall::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    fitFonts();
}

void frmBall::fitFonts()
{
    // Type grows with the window and shrinks on a small or much-scaled screen.
    const int base = qBound(11, qMin(height() / 34, width() / 48), 28);
    QFont plain = font();
    plain.setPixelSize(base);
    for (QWidget *widget : {static_cast<QWidget *>(fraGrade), static_cast<QWidget *>(fraSource),
                            static_cast<QWidget *>(lblTried), static_cast<QWidget *>(lblHint)})
        widget->setFont(plain);
    const int mark = qMax(12, base * 3 / 4);
    for (QRadioButton *option : optGrade + optSource) {
        option->setFont(plain);
        option->setStyleSheet(
            QStringLiteral("QRadioButton::indicator { width: %1px; height: %1px; }").arg(mark));
    }
    QFont bold = plain;
    bold.setBold(true);
    for (QWidget *widget : {static_cast<QWidget *>(lblScore), static_cast<QWidget *>(cmdNew),
                            static_cast<QWidget *>(cmdHint), static_cast<QWidget *>(cmdHelp),
                            static_cast<QWidget *>(cmdExit)})
        widget->setFont(bold);
    QFont big = bold;
    big.setPixelSize(qRound(base * 1.2));
    lblMessage->setFont(big);
    picWord->setFont(big);
    for (QPushButton *button : std::as_const(cmdLetter))
        button->setFont(big);
}
