// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuizWindow.h"

#include "shell/core/DataPath.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

QuizWindow::QuizWindow(const QString &helpTopic, const QuizLook &look, QWidget *parent)
    : ActivityWindow(helpTopic, parent), m_look(look),
      m_dingSound(DataFile(QStringLiteral("ding.wav"))),
      m_tadaSound(DataFile(QStringLiteral("tada.wav"))),
      m_uhOhSound(DataFile(QStringLiteral("uhoh.wav")))
{
}

QString QuizWindow::frameStyle() const
{
    return QuizPanels::frameStyle(m_look.ink, m_look.border);
}

QString QuizWindow::choiceStyle(const char *background, const char *border) const
{
    return QuizPanels::choiceStyle(background, border, m_look.pressed);
}

QLabel *QuizWindow::addLabel(const QString &name, const QString &spoken, double scale, bool bold)
{
    auto *text = Named(new QLabel(this), name);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setAccessibleName(spoken);
    text->setStyleSheet(QStringLiteral("color: #102027;"));
    // Long facts wrap instead of widening the window.
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_typeScale.append({text, scale, bold});
    return text;
}

QPushButton *QuizWindow::addButton(const QString &caption, const QString &name, const char *colour)
{
    auto *b = Named(new QPushButton(caption, this), name);
    b->setAutoDefault(true);
    b->setAccessibleName(QString(caption).remove(u'&'));
    StyleBrightButton(b, QColor(QLatin1String(colour)));
    m_typeScale.append({b, 1.0, false});
    return b;
}

QuizWindow::AnswerRows QuizWindow::buildAnswerControls(const char *arrowColour,
                                                       const QString &previousName,
                                                       const QString &nextName)
{
    lblPrompt = addLabel(QStringLiteral("lblPrompt"), tr("Question"), 1.05, true);
    lblPrompt->setStyleSheet(QStringLiteral("color: #E65100;"));
    txtAnswer = Named(new QLineEdit(this), QStringLiteral("txtAnswer"));
    txtAnswer->setAccessibleName(tr("Your answer"));
    txtAnswer->setMaxLength(60);
    txtAnswer->setStyleSheet(QStringLiteral("QLineEdit { background: #FFFFFF; border: 3px solid"
                                            " %1; border-radius: 8px; padding: 4px; }"
                                            "QLineEdit:focus { border-color: #FFC107; }")
                                 .arg(QLatin1String(m_look.border)));
    m_typeScale.append({txtAnswer, 1.2, false});
    connect(txtAnswer, &QLineEdit::returnPressed, this, &QuizWindow::txtAnswer_Enter);

    auto *choices = new QGridLayout;
    for (int i = 1; i <= 4; ++i) {
        auto *choice = Named(new QPushButton(this), ArrayName("lblanswer", i));
        choice->setAutoDefault(true);
        choice->setStyleSheet(choiceStyle("#FFFFFF", m_look.border));
        m_typeScale.append({choice, 1.1, false});
        connect(choice, &QPushButton::clicked, this, [this, i] { lblanswer_Click(i); });
        choices->addWidget(choice, (i - 1) / 2, (i - 1) % 2);
        lblanswer.append(choice);
    }

    lblResult = addLabel(QStringLiteral("lblResult"), tr("Result"), 1.2, true);
    lblScore = addLabel(QStringLiteral("lblScore"), tr("Score"), 0.9);
    lblScore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    cmdSee = addButton(tr("&Answer"), QStringLiteral("cmdSee"), "#2E7D32");
    cmdClue = addButton(tr("&Clue"), QStringLiteral("cmdClue"), "#00838F");
    fraNext = Named(new QWidget(this), QStringLiteral("fraNext"));
    cmdPrevious = addButton(QStringLiteral("\u25C0"), QStringLiteral("cmdPrevious"), arrowColour);
    cmdPrevious->setAccessibleName(previousName);
    cmdNext = addButton(QStringLiteral("\u25B6"), QStringLiteral("cmdNext"), arrowColour);
    cmdNext->setAccessibleName(nextName);
    auto *nextLayout = new QHBoxLayout(fraNext);
    nextLayout->setContentsMargins(0, 0, 0, 0);
    nextLayout->addWidget(cmdPrevious);
    nextLayout->addWidget(cmdNext);

    auto *actions = new QHBoxLayout;
    actions->addWidget(cmdSee);
    actions->addWidget(cmdClue);
    actions->addWidget(fraNext);
    actions->addWidget(lblScore, 1);

    auto *answerRow = new QHBoxLayout;
    answerRow->addWidget(txtAnswer, 1);
    answerRow->addLayout(choices, 2);
    return {answerRow, actions};
}

void QuizWindow::buildModes(const QStringList &captions, const QList<const char *> &colours)
{
    fraChoices = Named(new QGroupBox(tr("Choices"), this), QStringLiteral("fraChoices"));
    fraChoices->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoices, 1.0, true});
    auto *modes = new QVBoxLayout(fraChoices);
    for (int i = 0; i < captions.size(); ++i) {
        auto *mode = addButton(captions[i], ArrayName("cmdChoice", i), colours[i]);
        connect(mode, &QPushButton::clicked, this, [this, i] { startMode(i + 1); });
        modes->addWidget(mode);
        cmdChoice.append(mode);
    }
}

QGroupBox *QuizWindow::buildOptions(const QString &caption, const QString &name,
                                    const char *optionName, const QStringList &captions,
                                    int checked, QList<QRadioButton *> &options,
                                    std::function<void(int)> chosen)
{
    auto *frame = Named(new QGroupBox(caption, this), name);
    frame->setStyleSheet(frameStyle());
    m_typeScale.append({frame, 0.95, true});
    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(2);
    for (int i = 0; i < captions.size(); ++i) {
        auto *option = Named(new QRadioButton(captions[i], frame), ArrayName(optionName, i));
        option->setAccessibleName(caption + QStringLiteral(": ") + captions[i]);
        option->setChecked(i == checked);
        m_typeScale.append({option, 0.95, false});
        connect(option, &QRadioButton::toggled, this, [chosen, i](bool on) {
            if (on)
                chosen(i);
        });
        layout->addWidget(option);
        options.append(option);
    }
    return frame;
}

void QuizWindow::finishControls(const QList<QWidget *> &frames)
{
    cmdHelp = addButton(tr("&Help"), QStringLiteral("cmdHelp"), "#546E7A");
    cmdExit = addButton(exitCaption(false), QStringLiteral("cmdExit"), "#B71C1C");

    m_sidePanel = QuizPanels::sidePanel(this, frames, cmdHelp, cmdExit);
    QuizPanels::layOut(this, QuizPanels::playPanel(this, fraChoice), m_sidePanel);

    // Buttons would take the arrow keys to move the focus; in review they step through.
    const auto buttons = findChildren<QPushButton *>();
    for (QPushButton *b : buttons)
        b->installEventFilter(this);

    connect(cmdSee, &QPushButton::clicked, this, &QuizWindow::cmdSee_Click);
    connect(cmdClue, &QPushButton::clicked, this, &QuizWindow::cmdClue_Click);
    connect(cmdPrevious, &QPushButton::clicked, this, [this] {
        m_quiz.step(-1);
        showReview();
    });
    connect(cmdNext, &QPushButton::clicked, this, [this] {
        m_quiz.step(1);
        showReview();
    });
    connect(cmdHelp, &QPushButton::clicked, this, &QuizWindow::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &QuizWindow::cmdExit_Click);
}

void QuizWindow::openIdle()
{
    showIdle();
    resize(1024, 720);
    // A small screen gets a smaller window, with smaller type.
    if (const QScreen *shown = screen()) {
        const QSize room = shown->availableGeometry().size() - QSize(16, 48);
        if (!room.isEmpty())
            resize(size().boundedTo(room).expandedTo(minimumSize()));
    }
}

void QuizWindow::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to ask about.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, modeTitle(Idle), cannotStart(error), QMessageBox::Critical);
            close();
        });
    }
}

void QuizWindow::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    fitType();
}

// The type follows the window, so everything fits a small screen and reads well on a big one.
void QuizWindow::fitType()
{
    const double factor = QuizPanels::typeFactor(this);
    QuizPanels::scaleType(this, m_typeScale, factor);
    QuizPanels::sizeOptions(findChildren<QRadioButton *>(), factor);
    QuizPanels::fitSidePanel(m_sidePanel);
}

bool QuizWindow::stepByKey(int key)
{
    if (m_quiz.mode() != Review)
        return false;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        cmdPrevious->click();
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        cmdNext->click();
        return true;
    default:
        return false;
    }
}

bool QuizWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && qobject_cast<QPushButton *>(watched) &&
        stepByKey(static_cast<QKeyEvent *>(event)->key()))
        return true;
    return ActivityWindow::eventFilter(watched, event);
}

void QuizWindow::keyPressEvent(QKeyEvent *event)
{
    if (stepByKey(event->key()))
        return;
    ActivityWindow::keyPressEvent(event);
}

void QuizWindow::cmdExit_Click()
{
    if (m_quiz.isRunning())
        stopMode();
    else
        close();
}

void QuizWindow::startMode(int mode)
{
    if (m_table.count() == 0)
        return;
    // A mode button pressed during another mode starts afresh from the idle window.
    showIdle();
    m_quiz.start(mode, planFor(mode));
    fraChoice->setTitle(modeTitle(mode));
    setRunningCaption(cmdExit, true);
    cmdExit->setAccessibleName(tr("Stop"));
    showModeOptions(mode);
    lblResult->clear();
    if (mode == Review) {
        showReview();
        cmdNext->setFocus();
        return;
    }
    m_quiz.nextQuestion();
    prepareQuestion(true);
    showQuestion();
}

void QuizWindow::stopMode()
{
    const int asked = m_quiz.questionNumber();
    const int right = m_quiz.rightAnswers();
    const bool quiz = m_quiz.mode() != Review;
    m_quiz.stop();
    showIdle();
    if (quiz && asked > 0)
        setResult(tr("You got %1 of %2 right. Well done for trying!").arg(right).arg(asked), true);
    cmdChoice[0]->setFocus();
}

void QuizWindow::showIdle()
{
    fraChoice->setTitle(modeTitle(Idle));
    setRunningCaption(cmdExit, false);
    cmdExit->setAccessibleName(tr("Exit"));
    clearItems();
    showIdlePictures();
    lblPrompt->setText(tr("Pick a game from the Choices on the right."));
    lblResult->clear();
    lblScore->clear();
    txtAnswer->hide();
    for (QPushButton *choice : std::as_const(lblanswer))
        choice->hide();
    cmdSee->hide();
    cmdClue->hide();
    fraNext->hide();
    hideModeControls();
    cmdChoice[0]->setFocus();
}

void QuizWindow::showQuestion()
{
    clearItems();
    lblResult->clear();
    txtAnswer->clear();
    cmdSee->setText(tr("&Answer"));
    cmdSee->setAccessibleName(tr("Answer"));
    cmdSee->show();
    cmdClue->setVisible(m_quiz.plan().clueCount > 0);
    cmdClue->setEnabled(true);
    fraNext->hide();
    askQuestion();
    updateScore();
}

void QuizWindow::showChoices(bool shown)
{
    for (int i = 0; i < lblanswer.size(); ++i) {
        QPushButton *choice = lblanswer[i];
        choice->setVisible(shown);
        choice->setStyleSheet(choiceStyle("#FFFFFF", m_look.border));
        const QString text = shown ? m_quiz.choiceText(i + 1) : QString();
        choice->setText(QuizPanels::asButtonText(text));
        choice->setAccessibleName(text);
    }
}

void QuizWindow::updateScore()
{
    const int asked = m_quiz.questionNumber();
    if (m_quiz.plan().order == QuizPlan::Order::EachOnce)
        lblScore->setText(tr("Question %1 of %2   Right: %3")
                              .arg(asked)
                              .arg(m_table.count())
                              .arg(m_quiz.rightAnswers()));
    else
        lblScore->setText(tr("Question %1   Right: %2").arg(asked).arg(m_quiz.rightAnswers()));
}

void QuizWindow::setResult(const QString &text, bool good)
{
    lblResult->setStyleSheet(good ? QStringLiteral("color: #2E7D32;")
                                  : QStringLiteral("color: #C62828;"));
    lblResult->setText(text);
    Announce(lblResult, text);
}

void QuizWindow::txtAnswer_Enter()
{
    if (!m_quiz.isRunning() || m_quiz.mode() == Review || m_quiz.isAnswered())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const QString given = txtAnswer->text();
    react(m_quiz.submitText(given), given);
}

void QuizWindow::pick(int choice, const QString &given, const std::function<void()> &markWrong)
{
    if (!m_quiz.isRunning() || m_quiz.isAnswered() || m_quiz.choices().isEmpty())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const Outcome outcome = m_quiz.pickChoice(choice);
    if (!outcome.right())
        markWrong();
    react(outcome, given);
}

void QuizWindow::lblanswer_Click(int choice)
{
    pick(choice, m_quiz.choiceText(choice), [this, choice] {
        lblanswer[choice - 1]->setStyleSheet(choiceStyle("#FFEBEE", "#C62828"));
    });
}

void QuizWindow::react(const Outcome &outcome, const QString &given)
{
    if (!outcome.counted)
        return;
    if (outcome.right()) {
        PlaySound(m_tadaSound, SND_ASYNC);
        revealAnswer();
        if (outcome.match == Match::SoundsAlike)
            setResult(tr("Right! It is spelled %1.").arg(m_quiz.expected()), true);
        else
            setResult(tr("Right!"), true);
        updateScore();
        return;
    }
    PlaySound(m_uhOhSound, SND_ASYNC);
    txtAnswer->clear();
    const QString wrong =
        given.trimmed().isEmpty() ? tr("Not quite.") : tr("Not %1.").arg(given.trimmed());
    switch (outcome.reaction.kind) {
    case Reaction::Hint: {
        const QString hint = showHint();
        setResult(wrong + hint, false);
        break;
    }
    case Reaction::Clue:
        showItem(outcome.reaction.clue);
        setResult(wrong + tr(" Here is another clue."), false);
        break;
    case Reaction::Reveal:
        revealAnswer();
        setResult(wrong + tr(" The answer is %1.").arg(m_quiz.expected()), false);
        break;
    case Reaction::Nothing:
        setResult(wrong + tr(" Try again."), false);
        break;
    }
    if (!m_quiz.isAnswered() && txtAnswer->isVisible() && !txtAnswer->isReadOnly())
        txtAnswer->setFocus();
}

void QuizWindow::markRight(int choice)
{
    lblanswer[choice - 1]->setStyleSheet(choiceStyle("#E8F5E9", "#2E7D32"));
    txtAnswer->setText(m_quiz.expected());
}

void QuizWindow::revealAnswer()
{
    m_quiz.reveal();
    showAnswer();
    const int right = m_quiz.correctChoice();
    if (right > 0 && choicesOffered())
        markRight(right);
    cmdSee->setText(tr("&Next"));
    cmdSee->setAccessibleName(tr("Next"));
    cmdClue->setEnabled(false);
    cmdSee->setFocus();
}

void QuizWindow::cmdSee_Click()
{
    if (!m_quiz.isRunning() || m_quiz.mode() == Review)
        return;
    if (!m_quiz.isAnswered()) {
        revealAnswer();
        setResult(tr("The answer is %1.").arg(m_quiz.expected()), true);
        return;
    }
    cmdSee->setText(tr("&Answer"));
    cmdSee->setAccessibleName(tr("Answer"));
    if (!m_quiz.advance()) {
        stopMode();
        return;
    }
    prepareQuestion(true);
    showQuestion();
}

void QuizWindow::cmdClue_Click()
{
    const Reaction reaction = m_quiz.requestClue();
    if (reaction.kind == Reaction::Clue) {
        showItem(reaction.clue);
    } else if (reaction.kind == Reaction::Reveal) {
        revealAnswer();
        setResult(tr("That was the last clue. The answer is %1.").arg(m_quiz.expected()), true);
    }
}

void QuizWindow::optionChanged()
{
    const int mode = m_quiz.mode();
    if (mode == Idle || mode == Review)
        return;
    const bool wasOpen = !m_quiz.isAnswered();
    m_quiz.replan(planFor(mode));
    // An open question is asked again the new way, about the same record; an answered one
    // waits for Next.
    if (wasOpen) {
        prepareQuestion(false);
        showQuestion();
    }
}
