// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmPres.h"

#include "QuizPortrait.h"

#include "quiz/widgets/QuizPanels.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/widgets/PictureBox.h"
#include "shell/WindowUtil.h"

#include <QApplication>
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
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

using namespace Presidents;

namespace {
enum Page { PortraitPage, RowPage };

QString frameStyle()
{
    return QuizPanels::frameStyle("#1A237E", "#9FA8DA");
}

QString choiceStyle(const char *background, const char *border)
{
    return QuizPanels::choiceStyle(background, border, "#C5CAE9");
}

// The panel of the president to name is dashed and pale; the others are plain.
QString panelStyle(bool missing)
{
    return missing ? QStringLiteral("QGroupBox { border: 3px dashed #E65100; border-radius: 10px;"
                                    " background: #FFF3E0; }")
                   : QStringLiteral("QGroupBox { border: 2px solid #9FA8DA; border-radius: 10px;"
                                    " background: #FFFFFF; }");
}

// Text from the data file shown on a button: an ampersand there is a letter, not a mnemonic.
} // namespace

frmPres::frmPres(QWidget *parent) : ActivityWindow(QStringLiteral("presidents"), parent)
{
    setObjectName(QStringLiteral("frmPres"));
    setWindowTitle(tr("US Presidents"));
    applyLook(QColor(0xE8, 0xEA, 0xF6));

    buildControls();

    if (!m_presidents.load(DataFile(QString::fromLatin1(FileName)), Layout())) {
        m_loadError = m_presidents.error().message();
    } else if (const FileError dates = CheckDates(m_presidents); dates.isSet()) {
        qCWarning(lcPresidents) << "cannot read" << dates.message();
        m_loadError = dates.message();
        m_presidents = QuizTable();
    }
    m_dingSound = DataFile(QStringLiteral("ding.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));

    showIdle();
    resize(1024, 720);
    // A small screen gets a smaller window, with smaller type.
    if (const QScreen *shown = screen()) {
        const QSize room = shown->availableGeometry().size() - QSize(16, 48);
        if (!room.isEmpty())
            resize(size().boundedTo(room).expandedTo(minimumSize()));
    }
}

frmPres::~frmPres() = default;

void frmPres::buildControls()
{
    auto label = [this](const QString &name, const QString &spoken, double scale,
                        bool bold = false) {
        auto *text = Named(new QLabel(this), name);
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        text->setAccessibleName(spoken);
        text->setStyleSheet(QStringLiteral("color: #102027;"));
        // Long facts wrap instead of widening the window.
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        m_typeScale.append({text, scale, bold});
        return text;
    };
    auto button = [this](const QString &caption, const QString &name, const char *colour) {
        auto *b = Named(new QPushButton(caption, this), name);
        b->setAutoDefault(true);
        b->setAccessibleName(QString(caption).remove(u'&'));
        StyleBrightButton(b, QColor(QLatin1String(colour)));
        m_typeScale.append({b, 1.0, false});
        return b;
    };

    // Page 1: one president's portrait and facts.
    auto *portraitPage = new QWidget(this);
    imgPres = Named(new PictureBox(portraitPage), QStringLiteral("imgPres"));
    imgPres->setAccessibleName(tr("Portrait of the president"));
    imgPres->setMinimumSize(96, 120);
    imgPres->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    lblName = label(QStringLiteral("lblName"), tr("President"), 1.6, true);
    lblName->setStyleSheet(QStringLiteral("color: #1A237E;"));
    lblNumber = label(QStringLiteral("lblNumber"), tr("Number"), 1.2, true);
    lblNumber->setStyleSheet(QStringLiteral("color: #B71C1C;"));
    lblDate = label(QStringLiteral("lblDate"), tr("Born on"), 1.0);
    lblPlace = label(QStringLiteral("lblPlace"), tr("Born in"), 1.0);
    lblTerm = label(QStringLiteral("lblTerm"), tr("Years as president"), 1.1, true);
    lblParty = label(QStringLiteral("lblParty"), tr("Party"), 1.0);
    lblParty->setStyleSheet(QStringLiteral("color: #4A148C;"));
    for (int i = 0; i < Facts; ++i)
        lblFact.append(label(ArrayName("lblFact", i), tr("Fact %1").arg(i + 1), 0.95));
    auto *info = new QVBoxLayout;
    info->setSpacing(4);
    for (QLabel *item : {lblName, lblNumber, lblTerm, lblDate, lblPlace, lblParty})
        info->addWidget(item);
    info->addStretch(1);
    auto *portraitGrid = new QGridLayout(portraitPage);
    portraitGrid->setContentsMargins(0, 0, 0, 0);
    portraitGrid->addWidget(imgPres, 0, 0);
    portraitGrid->addLayout(info, 0, 1);
    portraitGrid->setColumnStretch(0, 2);
    portraitGrid->setColumnStretch(1, 3);
    auto *facts = new QVBoxLayout;
    facts->setSpacing(2);
    for (QLabel *fact : std::as_const(lblFact))
        facts->addWidget(fact);
    portraitGrid->addLayout(facts, 1, 0, 1, 2);
    portraitGrid->setRowStretch(0, 1);

    // Page 2: the row of three for "Who Is Missing?".
    auto *rowPage = new QWidget(this);
    auto *row = new QHBoxLayout(rowPage);
    row->setContentsMargins(0, 0, 0, 0);
    for (int k = 1; k <= 3; ++k) {
        auto *panel = Named(new QGroupBox(rowPage), ArrayName("fraWho", k));
        panel->setStyleSheet(panelStyle(false));
        auto *number = label(ArrayName("lblWNum", k), tr("Number, place %1").arg(k), 1.05, true);
        number->setAlignment(Qt::AlignCenter);
        auto *picture = Named(new PictureBox(panel), ArrayName("imgWho", k));
        picture->setAccessibleName(tr("Portrait, place %1").arg(k));
        picture->setMinimumSize(36, 45);
        picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        auto *name = label(ArrayName("lblWho", k), tr("Name, place %1").arg(k), 1.1, true);
        name->setAlignment(Qt::AlignCenter);
        auto *term = label(ArrayName("lblWTerm", k), tr("Years, place %1").arg(k), 1.0);
        term->setAlignment(Qt::AlignCenter);
        auto *panelLayout = new QVBoxLayout(panel);
        panelLayout->setContentsMargins(4, 4, 4, 4);
        panelLayout->setSpacing(2);
        panelLayout->addWidget(number);
        panelLayout->addWidget(picture, 1);
        panelLayout->addWidget(name);
        panelLayout->addWidget(term);
        row->addWidget(panel, 1);
        fraWho.append(panel);
        lblWNum.append(number);
        imgWho.append(picture);
        lblWho.append(name);
        lblWTerm.append(term);
    }

    picArea = Named(new QuizPanels::PictureStack(this), QStringLiteral("picArea"));
    // The pictures take the height the question and its answers leave: asking for their own
    // would push the answers out of sight on a small screen.
    picArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    picArea->setMinimumHeight(130);
    picArea->addWidget(portraitPage);
    picArea->addWidget(rowPage);

    lblPrompt = label(QStringLiteral("lblPrompt"), tr("Question"), 1.05, true);
    lblPrompt->setStyleSheet(QStringLiteral("color: #E65100;"));
    txtAnswer = Named(new QLineEdit(this), QStringLiteral("txtAnswer"));
    txtAnswer->setAccessibleName(tr("Your answer"));
    txtAnswer->setMaxLength(60);
    txtAnswer->setPlaceholderText(tr("Type here, then Enter"));
    txtAnswer->setStyleSheet(QStringLiteral("QLineEdit { background: #FFFFFF; border: 3px solid"
                                            " #9FA8DA; border-radius: 8px; padding: 4px; }"
                                            "QLineEdit:focus { border-color: #FFC107; }"));
    m_typeScale.append({txtAnswer, 1.2, false});
    connect(txtAnswer, &QLineEdit::returnPressed, this, &frmPres::txtAnswer_Enter);

    auto *choices = new QGridLayout;
    for (int i = 1; i <= 4; ++i) {
        auto *choice = Named(new QPushButton(this), ArrayName("lblanswer", i));
        choice->setAutoDefault(true);
        choice->setStyleSheet(choiceStyle("#FFFFFF", "#9FA8DA"));
        m_typeScale.append({choice, 1.1, false});
        connect(choice, &QPushButton::clicked, this, [this, i] { lblanswer_Click(i); });
        choices->addWidget(choice, (i - 1) / 2, (i - 1) % 2);
        lblanswer.append(choice);
    }

    lblResult = label(QStringLiteral("lblResult"), tr("Result"), 1.2, true);
    lblScore = label(QStringLiteral("lblScore"), tr("Score"), 0.9);
    lblScore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    cmdSee = button(tr("&Answer"), QStringLiteral("cmdSee"), "#2E7D32");
    cmdClue = button(tr("&Clue"), QStringLiteral("cmdClue"), "#00838F");
    fraNext = Named(new QWidget(this), QStringLiteral("fraNext"));
    cmdPrevious = button(QStringLiteral("\u25C0"), QStringLiteral("cmdPrevious"), "#283593");
    cmdPrevious->setAccessibleName(tr("Previous president"));
    cmdNext = button(QStringLiteral("\u25B6"), QStringLiteral("cmdNext"), "#283593");
    cmdNext->setAccessibleName(tr("Next president"));
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

    fraChoice = Named(new QGroupBox(tr("US Presidents"), this), QStringLiteral("fraChoice"));
    fraChoice->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoice, 1.05, true});
    auto *play = new QVBoxLayout(fraChoice);
    play->setSpacing(8);
    play->addWidget(picArea, 1);
    play->addWidget(lblPrompt);
    play->addLayout(answerRow);
    play->addWidget(lblResult);
    play->addLayout(actions);

    fraChoices = Named(new QGroupBox(tr("Choices"), this), QStringLiteral("fraChoices"));
    fraChoices->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoices, 1.0, true});
    auto *modes = new QVBoxLayout(fraChoices);
    const QStringList captions{tr("&Review Presidents"), tr("&Name the President"),
                               tr("&Who Is Missing?")};
    const char *colours[] = {"#283593", "#EF6C00", "#2E7D32"};
    for (int i = 0; i < 3; ++i) {
        auto *mode = button(captions[i], ArrayName("cmdChoice", i), colours[i]);
        connect(mode, &QPushButton::clicked, this, [this, i] { cmdChoice_Click(i); });
        modes->addWidget(mode);
        cmdChoice.append(mode);
    }

    fraType = Named(new QGroupBox(tr("Answer Type"), this), QStringLiteral("fraType"));
    fraType->setStyleSheet(frameStyle());
    m_typeScale.append({fraType, 0.95, true});
    auto *typeLayout = new QVBoxLayout(fraType);
    typeLayout->setSpacing(2);
    const int chosen = qBound(0, int(TheSettings().presidents.answerType), 1);
    const QStringList types{tr("Type-In"), tr("Multiple Choice")};
    for (int i = 0; i < types.size(); ++i) {
        auto *option = Named(new QRadioButton(types[i], fraType), ArrayName("optType", i));
        option->setAccessibleName(tr("Answer Type") + QStringLiteral(": ") + types[i]);
        option->setChecked(i == chosen);
        m_typeScale.append({option, 0.95, false});
        connect(option, &QRadioButton::toggled, this, [this, i](bool on) {
            if (on)
                optType_Changed(i);
        });
        typeLayout->addWidget(option);
        optType.append(option);
    }

    cmdHelp = button(tr("&Help"), QStringLiteral("cmdHelp"), "#546E7A");
    cmdExit = button(exitCaption(false), QStringLiteral("cmdExit"), "#B71C1C");

    m_sidePanel = QuizPanels::sidePanel(this, {fraChoices, fraType}, cmdHelp, cmdExit);
    QuizPanels::layOut(this, QuizPanels::playPanel(this, fraChoice), m_sidePanel);

    // Buttons would take the arrow keys to move the focus; in review they step through.
    const auto buttons = findChildren<QPushButton *>();
    for (QPushButton *b : buttons)
        b->installEventFilter(this);

    connect(cmdSee, &QPushButton::clicked, this, &frmPres::cmdSee_Click);
    connect(cmdClue, &QPushButton::clicked, this, &frmPres::cmdClue_Click);
    connect(cmdPrevious, &QPushButton::clicked, this, [this] {
        m_quiz.step(-1);
        showReview();
    });
    connect(cmdNext, &QPushButton::clicked, this, [this] {
        m_quiz.step(1);
        showReview();
    });
    connect(cmdHelp, &QPushButton::clicked, this, &frmPres::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmPres::cmdExit_Click);
}

void frmPres::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to ask about.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("US Presidents"),
                   tr("US Presidents cannot start because its file of presidents is missing "
                      "or damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

void frmPres::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    fitType();
}

double frmPres::typeFactor() const
{
    return QuizPanels::typeFactor(this);
}

// The type follows the window, so everything fits a small screen and reads well on a big one.
void frmPres::fitType()
{
    const double factor = typeFactor();
    QuizPanels::scaleType(this, m_typeScale, factor);
    for (QLabel *name : std::as_const(lblWho))
        if (name->text() == QLatin1String("?"))
            styleName(name, true);
    QuizPanels::sizeOptions(optType, factor);
    QuizPanels::fitSidePanel(m_sidePanel);
}

bool frmPres::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_quiz.mode() == ReviewMode &&
        qobject_cast<QPushButton *>(watched)) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            cmdPrevious->click();
            return true;
        case Qt::Key_Right:
        case Qt::Key_Down:
            cmdNext->click();
            return true;
        default:
            break;
        }
    }
    return ActivityWindow::eventFilter(watched, event);
}

void frmPres::keyPressEvent(QKeyEvent *event)
{
    if (m_quiz.mode() == ReviewMode) {
        switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            cmdPrevious->click();
            return;
        case Qt::Key_Right:
        case Qt::Key_Down:
            cmdNext->click();
            return;
        default:
            break;
        }
    }
    ActivityWindow::keyPressEvent(event);
}

bool frmPres::multipleChoice() const
{
    return TheSettings().presidents.answerType == 1;
}

QuizPlan frmPres::planFor(int mode) const
{
    QuizPlan plan = PlanFor(Mode(mode));
    // Who Is Missing? builds its choices itself; Name the President lets the engine draw them.
    plan.multipleChoice = mode == NameMode && multipleChoice();
    return plan;
}

void frmPres::cmdChoice_Click(int index)
{
    startMode(index + 1);
}

void frmPres::cmdExit_Click()
{
    if (m_quiz.isRunning())
        stopMode();
    else
        close();
}

void frmPres::startMode(int mode)
{
    if (m_presidents.count() == 0)
        return;
    static const char *const captions[] = {QT_TR_NOOP("US Presidents-Review Presidents"),
                                           QT_TR_NOOP("US Presidents-Name the President"),
                                           QT_TR_NOOP("US Presidents-Who Is Missing?")};
    // A mode button pressed during another mode starts afresh from the idle window.
    showIdle();
    m_quiz.start(mode, planFor(mode));
    fraChoice->setTitle(tr(captions[mode - 1]));
    setRunningCaption(cmdExit, true);
    cmdExit->setAccessibleName(tr("Stop"));
    if (mode == ReviewMode) {
        showReview();
        cmdNext->setFocus();
        return;
    }
    m_quiz.nextQuestion();
    prepareChoices(true);
    showQuestion();
}

void frmPres::stopMode()
{
    const int asked = m_quiz.questionNumber();
    const int right = m_quiz.rightAnswers();
    const bool quiz = m_quiz.mode() != ReviewMode;
    m_quiz.stop();
    showIdle();
    if (quiz && asked > 0)
        setResult(tr("You got %1 of %2 right. Well done for trying!").arg(right).arg(asked), true);
    cmdChoice[0]->setFocus();
}

void frmPres::showIdle()
{
    fraChoice->setTitle(tr("US Presidents"));
    setRunningCaption(cmdExit, false);
    cmdExit->setAccessibleName(tr("Exit"));
    clearItems();
    picArea->setCurrentIndex(PortraitPage);
    // The idle window shows the first president, the start of the story.
    imgPres->load(DataFile(PortraitFile(1)));
    lblPrompt->setText(tr("Pick a game from the Choices on the right."));
    lblResult->clear();
    lblScore->clear();
    txtAnswer->hide();
    for (QPushButton *choice : std::as_const(lblanswer))
        choice->hide();
    cmdSee->hide();
    cmdClue->hide();
    fraNext->hide();
    cmdChoice[0]->setFocus();
}

void frmPres::clearItems()
{
    for (QLabel *item : {lblName, lblNumber, lblDate, lblPlace, lblTerm, lblParty})
        item->clear();
    for (QLabel *fact : std::as_const(lblFact))
        fact->clear();
    imgPres->clear();
}

void frmPres::showItem(int item)
{
    const int n = m_quiz.currentRecord();
    switch (item) {
    case PortraitItem:
        if (m_quiz.mode() == NameMode)
            imgPres->setImage(QuizPortrait(QImage(DataFile(PortraitFile(n)))),
                              DataFile(PortraitFile(n)));
        else
            imgPres->load(DataFile(PortraitFile(n)));
        break;
    case NumberItem:
        lblNumber->setText(NumberText(n));
        break;
    case BirthDateItem:
        lblDate->setText(BirthDateText(m_presidents, n));
        break;
    case BirthPlaceItem:
        lblPlace->setText(BirthPlaceText(m_presidents, n));
        break;
    case TermItem:
        lblTerm->setText(TermText(m_presidents, n));
        break;
    case PartyItem:
        lblParty->setText(PartyText(m_presidents, n));
        break;
    case Fact1Item:
    case Fact2Item:
    case Fact3Item:
    case Fact4Item:
        lblFact[item - Fact1Item]->setText(m_presidents.text(n, FirstFact + item - Fact1Item));
        break;
    default:
        break;
    }
}

void frmPres::showAllItems()
{
    for (int item = 1; item <= Items; ++item)
        showItem(item);
}

void frmPres::showReview()
{
    clearItems();
    picArea->setCurrentIndex(PortraitPage);
    lblName->setText(m_presidents.text(m_quiz.currentRecord(), Name));
    showAllItems();
    lblPrompt->setText(tr("Use the arrows to meet the presidents in order."));
    lblScore->setText(
        tr("President %1 of %2").arg(m_quiz.currentRecord()).arg(m_presidents.count()));
    fraNext->show();
}

void frmPres::prepareChoices(bool newQuestion)
{
    const int current = m_quiz.currentRecord();
    if (m_quiz.mode() == WhoMode) {
        if (newQuestion)
            m_who = BuildWhoIsMissing(m_presidents, current);
        m_quiz.setChoices(QList<int>(m_who.choices.begin(), m_who.choices.end()));
    } else if (m_quiz.plan().multipleChoice) {
        m_quiz.setChoices(DistinctChoices(m_presidents, m_quiz.choices(), current));
    }
}

void frmPres::showWhoRow()
{
    for (int k = 0; k < 3; ++k) {
        const int n = m_who.row[k];
        const bool hidden = k + 1 == m_who.position && !m_quiz.isAnswered();
        fraWho[k]->setStyleSheet(panelStyle(k + 1 == m_who.position));
        lblWNum[k]->setText(NumberText(n));
        lblWho[k]->setText(hidden ? QStringLiteral("?") : m_presidents.text(n, Name));
        styleName(lblWho[k], hidden);
        lblWho[k]->setAccessibleDescription(hidden ? tr("Who is missing here?") : QString());
        lblWTerm[k]->setText(hidden ? QString() : TermText(m_presidents, n));
        if (hidden)
            imgWho[k]->clear();
        else
            imgWho[k]->load(DataFile(PortraitFile(n)));
    }
}

// A big question mark where the missing name belongs; the style's size wins over the type.
void frmPres::styleName(QLabel *name, bool missing)
{
    name->setStyleSheet(
        missing ? QStringLiteral("color: #E65100; font-size: %1pt;").arg(qRound(32 * typeFactor()))
                : QStringLiteral("color: #102027;"));
}

void frmPres::setAnswerWidgets()
{
    const bool choicesShown = multipleChoice();
    txtAnswer->setVisible(!choicesShown);
    for (int i = 0; i < lblanswer.size(); ++i) {
        QPushButton *choice = lblanswer[i];
        choice->setVisible(choicesShown);
        choice->setStyleSheet(choiceStyle("#FFFFFF", "#9FA8DA"));
        const QString text = choicesShown ? m_quiz.choiceText(i + 1) : QString();
        choice->setText(QuizPanels::asButtonText(text));
        choice->setAccessibleName(text);
    }
    if (choicesShown)
        lblanswer[0]->setFocus();
    else
        txtAnswer->setFocus();
}

void frmPres::showQuestion()
{
    clearItems();
    lblResult->clear();
    txtAnswer->clear();
    cmdSee->setText(tr("&Answer"));
    cmdSee->setAccessibleName(tr("Answer"));
    cmdSee->show();
    cmdClue->setVisible(m_quiz.mode() == NameMode);
    cmdClue->setEnabled(true);
    fraNext->hide();
    if (m_quiz.mode() == NameMode) {
        picArea->setCurrentIndex(PortraitPage);
        showItem(m_quiz.clueOrder().value(1));
        lblPrompt->setText(tr("Who is this president? Read the clue, or ask for another."));
    } else {
        picArea->setCurrentIndex(RowPage);
        showWhoRow();
        lblPrompt->setText(tr("Three presidents in a row, but one is missing. Who is it?"));
    }
    setAnswerWidgets();
    updateScore();
}

void frmPres::updateScore()
{
    lblScore->setText(
        tr("Question %1   Right: %2").arg(m_quiz.questionNumber()).arg(m_quiz.rightAnswers()));
}

void frmPres::setResult(const QString &text, bool good)
{
    lblResult->setStyleSheet(good ? QStringLiteral("color: #2E7D32;")
                                  : QStringLiteral("color: #C62828;"));
    lblResult->setText(text);
    Announce(lblResult, text);
}

void frmPres::txtAnswer_Enter()
{
    if (!m_quiz.isRunning() || m_quiz.mode() == ReviewMode || m_quiz.isAnswered())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const QString given = txtAnswer->text();
    react(m_quiz.submitText(given), given);
}

void frmPres::lblanswer_Click(int choice)
{
    if (!m_quiz.isRunning() || m_quiz.isAnswered() || m_quiz.choices().isEmpty())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const Outcome outcome = m_quiz.pickChoice(choice);
    if (!outcome.right())
        lblanswer[choice - 1]->setStyleSheet(choiceStyle("#FFEBEE", "#C62828"));
    react(outcome, m_quiz.choiceText(choice));
}

void frmPres::react(const Outcome &outcome, const QString &given)
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
        // The missing president's years in office.
        const int k = m_who.position - 1;
        lblWTerm[k]->setText(TermText(m_presidents, m_who.missing));
        setResult(wrong + tr(" Here is a hint: the years in office. Try again."), false);
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
    if (!m_quiz.isAnswered() && txtAnswer->isVisible())
        txtAnswer->setFocus();
}

void frmPres::revealAnswer()
{
    m_quiz.reveal();
    if (m_quiz.mode() == NameMode) {
        lblName->setText(m_quiz.expected());
        showAllItems();
    } else {
        showWhoRow();
    }
    const int right = m_quiz.correctChoice();
    if (right > 0 && multipleChoice()) {
        lblanswer[right - 1]->setStyleSheet(choiceStyle("#E8F5E9", "#2E7D32"));
        txtAnswer->setText(m_quiz.expected());
    }
    cmdSee->setText(tr("&Next"));
    cmdSee->setAccessibleName(tr("Next"));
    cmdClue->setEnabled(false);
    cmdSee->setFocus();
}

void frmPres::cmdSee_Click()
{
    if (!m_quiz.isRunning() || m_quiz.mode() == ReviewMode)
        return;
    if (!m_quiz.isAnswered()) {
        revealAnswer();
        setResult(tr("The answer is %1.").arg(m_quiz.expected()), true);
        return;
    }
    if (!m_quiz.advance()) {
        stopMode();
        return;
    }
    prepareChoices(true);
    showQuestion();
}

void frmPres::cmdClue_Click()
{
    const Reaction reaction = m_quiz.requestClue();
    if (reaction.kind == Reaction::Clue) {
        showItem(reaction.clue);
    } else if (reaction.kind == Reaction::Reveal) {
        revealAnswer();
        setResult(tr("That was the last clue. The answer is %1.").arg(m_quiz.expected()), true);
    }
}

void frmPres::optType_Changed(int index)
{
    TheSettings().presidents.answerType = qint16(index);
    const int mode = m_quiz.mode();
    if (mode == Idle || mode == ReviewMode)
        return;
    const bool wasOpen = !m_quiz.isAnswered();
    m_quiz.replan(planFor(mode));
    // An open question is asked again the new way, about the same president; an answered
    // one waits for Next.
    if (wasOpen) {
        prepareChoices(false);
        showQuestion();
    }
}
