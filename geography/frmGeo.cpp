// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmGeo.h"

#include "FlagButton.h"

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
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {
enum Page { MapPage, FlagPage };
enum Setting { AnswerType, CapitalsWay, FindWay, FlagsWay };

QString frameStyle()
{
    return QuizPanels::frameStyle("#0D47A1", "#90CAF9");
}

QString choiceStyle(const char *background, const char *border)
{
    return QuizPanels::choiceStyle(background, border, "#BBDEFB");
}

// Text from the data file shown on a button: an ampersand there is a letter, not a mnemonic.
} // namespace

frmGeo::frmGeo(QWidget *parent) : ActivityWindow(QStringLiteral("usgeography"), parent)
{
    setObjectName(QStringLiteral("frmGeo"));
    setWindowTitle(tr("US Geography"));
    applyLook(QColor(0xE3, 0xF2, 0xFD));

    buildControls();

    if (m_states.load(DataFile(QString::fromLatin1(UsStates::FileName)), UsStates::Layout()))
        m_mapClick = UsStates::LoadMapClick(m_states, DataPath());
    else
        m_loadError = m_states.error().message();
    if (const auto geometry = UsStates::LoadGeometry(DataFile(QStringLiteral("usmap.json"))))
        m_geometry = *geometry;
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

frmGeo::~frmGeo() = default;

void frmGeo::buildControls()
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

    lblName = label(QStringLiteral("lblName"), tr("State"), 1.6, true);
    lblName->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    lblAbbr = label(QStringLiteral("lblAbbr"), tr("Abbreviation"), 1.2, true);
    lblNick = label(QStringLiteral("lblNick"), tr("Nickname"), 1.0);
    lblNick->setStyleSheet(QStringLiteral("color: #6A1B9A; font-style: italic;"));
    lblNumber = label(QStringLiteral("lblNumber"), tr("Order of joining"), 1.0);
    lblAdmit = label(QStringLiteral("lblAdmit"), tr("Date admitted"), 1.0);
    lblCapital = label(QStringLiteral("lblCapital"), tr("Capital"), 1.1, true);
    lblRegion = label(QStringLiteral("lblRegion"), tr("Region"), 1.0);
    for (int i = 0; i < 3; ++i)
        lblFact.append(label(ArrayName("lblFact", i), tr("Fact %1").arg(i + 1), 0.95));
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

    lblPrompt = label(QStringLiteral("lblPrompt"), tr("Question"), 1.05, true);
    lblPrompt->setStyleSheet(QStringLiteral("color: #E65100;"));
    txtAnswer = Named(new QLineEdit(this), QStringLiteral("txtAnswer"));
    txtAnswer->setAccessibleName(tr("Your answer"));
    txtAnswer->setMaxLength(60);
    txtAnswer->setStyleSheet(QStringLiteral("QLineEdit { background: #FFFFFF; border: 3px solid"
                                            " #90CAF9; border-radius: 8px; padding: 4px; }"
                                            "QLineEdit:focus { border-color: #FFC107; }"));
    m_typeScale.append({txtAnswer, 1.2, false});
    connect(txtAnswer, &QLineEdit::returnPressed, this, &frmGeo::txtAnswer_Enter);

    auto *choices = new QGridLayout;
    for (int i = 1; i <= 4; ++i) {
        auto *choice = Named(new QPushButton(this), ArrayName("lblanswer", i));
        choice->setAutoDefault(true);
        choice->setStyleSheet(choiceStyle("#FFFFFF", "#90CAF9"));
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
    cmdPrevious = button(QStringLiteral("\u25C0"), QStringLiteral("cmdPrevious"), "#1565C0");
    cmdPrevious->setAccessibleName(tr("Previous state"));
    cmdNext = button(QStringLiteral("\u25B6"), QStringLiteral("cmdNext"), "#1565C0");
    cmdNext->setAccessibleName(tr("Next state"));
    Label1 = label(QStringLiteral("Label1"), tr("Map hint"), 0.95);
    Label1->setText(tr("Click on state or use arrows."));
    auto *nextLayout = new QHBoxLayout(fraNext);
    nextLayout->setContentsMargins(0, 0, 0, 0);
    nextLayout->addWidget(cmdPrevious);
    nextLayout->addWidget(cmdNext);

    auto *actions = new QHBoxLayout;
    actions->addWidget(cmdSee);
    actions->addWidget(cmdClue);
    actions->addWidget(fraNext);
    actions->addWidget(Label1, 1);
    actions->addWidget(lblScore, 1);

    auto *answerRow = new QHBoxLayout;
    answerRow->addWidget(txtAnswer, 1);
    answerRow->addLayout(choices, 2);

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
    play->addLayout(answerRow, 3, 0, 1, 2);
    play->addWidget(lblResult, 4, 0, 1, 2);
    play->setRowStretch(0, 1);
    play->addLayout(actions, 6, 0, 1, 2);

    fraChoices = Named(new QGroupBox(tr("Choices"), this), QStringLiteral("fraChoices"));
    fraChoices->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoices, 1.0, true});
    auto *modes = new QVBoxLayout(fraChoices);
    const QStringList captions{tr("&Review States"), tr("State Ca&pitals"), tr("&Name the State"),
                               tr("&Find the State"), tr("State F&lags")};
    const char *colours[] = {"#1565C0", "#6A1B9A", "#EF6C00", "#2E7D32", "#C62828"};
    for (int i = 0; i < 5; ++i) {
        auto *mode = button(captions[i], ArrayName("cmdChoice", i), colours[i]);
        connect(mode, &QPushButton::clicked, this, [this, i] { cmdChoice_Click(i); });
        modes->addWidget(mode);
        cmdChoice.append(mode);
    }

    fraType = buildOptions(tr("Answer Type"), QStringLiteral("fraType"),
                           {tr("Type-In"), tr("Multiple Choice")}, optType, AnswerType);
    fraWhich1 = buildOptions(tr("Choose"), QStringLiteral("fraWhich1"),
                             {tr("Name Capital"), tr("Name State")}, optWhich1, CapitalsWay);
    fraWhich2 = buildOptions(tr("Choose"), QStringLiteral("fraWhich2"),
                             {tr("Name State"), tr("Find State")}, optWhich2, FindWay);
    fraWhich3 = buildOptions(tr("Choose"), QStringLiteral("fraWhich3"),
                             {tr("Pick Flag"), tr("Name State")}, optWhich3, FlagsWay);

    cmdHelp = button(tr("&Help"), QStringLiteral("cmdHelp"), "#546E7A");
    cmdExit = button(exitCaption(false), QStringLiteral("cmdExit"), "#B71C1C");

    m_sidePanel = QuizPanels::sidePanel(
        this, {fraChoices, fraType, fraWhich1, fraWhich2, fraWhich3}, cmdHelp, cmdExit);
    QuizPanels::layOut(this, QuizPanels::playPanel(this, fraChoice), m_sidePanel);

    // Buttons would take the arrow keys to move the focus; in review they visit the states.
    const auto buttons = findChildren<QPushButton *>();
    for (QPushButton *b : buttons)
        b->installEventFilter(this);

    connect(cmdSee, &QPushButton::clicked, this, &frmGeo::cmdSee_Click);
    connect(cmdClue, &QPushButton::clicked, this, &frmGeo::cmdClue_Click);
    connect(cmdPrevious, &QPushButton::clicked, this, [this] {
        m_quiz.step(-1);
        showReview();
    });
    connect(cmdNext, &QPushButton::clicked, this, [this] {
        m_quiz.step(1);
        showReview();
    });
    connect(cmdHelp, &QPushButton::clicked, this, &frmGeo::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmGeo::cmdExit_Click);
}

QGroupBox *frmGeo::buildOptions(const QString &caption, const QString &name,
                                const QStringList &captions, QList<QRadioButton *> &options,
                                int setting)
{
    auto *frame = Named(new QGroupBox(caption, this), name);
    frame->setStyleSheet(frameStyle());
    m_typeScale.append({frame, 0.95, true});
    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(2);
    const int chosen = qBound(0, int(TheSettings().usGeography.values[setting]), 1);
    const QString optionName = name == QLatin1String("fraType")
                                   ? QStringLiteral("optType")
                                   : QStringLiteral("optWhich") + name.right(1);
    for (int i = 0; i < captions.size(); ++i) {
        auto *option = Named(new QRadioButton(captions[i], frame),
                             ArrayName(optionName.toLatin1().constData(), i));
        option->setAccessibleName(caption + QStringLiteral(": ") + captions[i]);
        option->setChecked(i == chosen);
        m_typeScale.append({option, 0.95, false});
        connect(option, &QRadioButton::toggled, this, [this, setting, i](bool on) {
            if (!on)
                return;
            TheSettings().usGeography.values[setting] = qint16(i);
            optionChanged();
        });
        layout->addWidget(option);
        options.append(option);
    }
    return frame;
}

void frmGeo::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    placeInsets();
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to ask about.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("US Geography"),
                   tr("US Geography cannot start because its file of states is missing or "
                      "damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

void frmGeo::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    fitType();
}

// The type follows the window, so everything fits a small screen and reads well on a big one.
void frmGeo::fitType()
{
    const double factor = QuizPanels::typeFactor(this);
    QuizPanels::scaleType(this, m_typeScale, factor);
    QuizPanels::sizeOptions(findChildren<QRadioButton *>(), factor);
    QuizPanels::fitSidePanel(m_sidePanel);
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
    // The map shows a ring while the arrow keys work on it.
    if (watched == picMap &&
        (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        picArea->setStyleSheet(
            QStringLiteral("#picArea { border: 3px solid %1; border-radius: 6px; }")
                .arg(event->type() == QEvent::FocusIn ? QStringLiteral("#FFC107")
                                                      : QStringLiteral("transparent")));
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
    if (watched == picMap && event->type() == QEvent::KeyPress && m_quiz.mode() == FindIt &&
        direction(FindIt) == Direction::FindOnMap) {
        auto *key = static_cast<QKeyEvent *>(event);
        const int count = m_states.count();
        switch (key->key()) {
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
    if (event->type() == QEvent::KeyPress && m_quiz.mode() == Review &&
        (watched == picMap || qobject_cast<QPushButton *>(watched))) {
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

void frmGeo::keyPressEvent(QKeyEvent *event)
{
    if (m_quiz.mode() == Review) {
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

int frmGeo::direction(int mode) const
{
    const auto &values = TheSettings().usGeography.values;
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

bool frmGeo::multipleChoice() const
{
    return TheSettings().usGeography.values[AnswerType] == 1;
}

QuizPlan frmGeo::planFor(int mode) const
{
    return StandardPlan(QuizMode(mode), multipleChoice(), direction(mode), UsStates::QuizFields());
}

void frmGeo::cmdChoice_Click(int index)
{
    startMode(index + 1);
}

void frmGeo::cmdExit_Click()
{
    if (m_quiz.isRunning())
        stopMode();
    else
        close();
}

void frmGeo::startMode(int mode)
{
    if (m_states.count() == 0)
        return;
    static const char *const captions[] = {
        QT_TR_NOOP("US Geography-Review States"), QT_TR_NOOP("US Geography-State Capitals"),
        QT_TR_NOOP("US Geography-Name the State"), QT_TR_NOOP("US Geography-Find the State"),
        QT_TR_NOOP("US Geography-State Flags")};
    // A mode button pressed during another mode starts afresh from the idle window.
    showIdle();
    m_quiz.start(mode, planFor(mode));
    fraChoice->setTitle(tr(captions[mode - 1]));
    setRunningCaption(cmdExit, true);
    cmdExit->setAccessibleName(tr("Stop"));
    fraWhich1->setVisible(mode == Capitals);
    fraWhich2->setVisible(mode == FindIt);
    fraWhich3->setVisible(mode == Flags);
    lblResult->clear();
    if (mode == Review) {
        showReview();
        cmdNext->setFocus();
        return;
    }
    m_quiz.nextQuestion();
    showQuestion();
}

void frmGeo::stopMode()
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

void frmGeo::showIdle()
{
    fraChoice->setTitle(tr("US Geography"));
    setRunningCaption(cmdExit, false);
    cmdExit->setAccessibleName(tr("Exit"));
    clearItems();
    resetInsets();
    picArea->setCurrentIndex(MapPage);
    lblPrompt->setText(tr("Pick a game from the Choices on the right."));
    lblResult->clear();
    lblScore->clear();
    txtAnswer->hide();
    for (QPushButton *choice : std::as_const(lblanswer))
        choice->hide();
    cmdSee->hide();
    cmdClue->hide();
    fraNext->hide();
    Label1->hide();
    fraWhich1->hide();
    fraWhich2->hide();
    fraWhich3->hide();
    picMap->setFocusPolicy(Qt::NoFocus);
    cmdChoice[0]->setFocus();
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
    m_pointed = 0;
}

void frmGeo::resetInsets()
{
    picAK->load(DataFile(UsStates::AlaskaInset(false)));
    picHI->load(DataFile(UsStates::HawaiiInset(false)));
}

void frmGeo::showMapOf(int record)
{
    resetInsets();
    if (record == UsStates::Alaska) {
        picMap->load(DataFile(QString::fromLatin1(UsStates::CountryMap)));
        picAK->load(DataFile(UsStates::AlaskaInset(true)));
    } else if (record == UsStates::Hawaii) {
        picMap->load(DataFile(QString::fromLatin1(UsStates::CountryMap)));
        picHI->load(DataFile(UsStates::HawaiiInset(true)));
    } else {
        picMap->load(DataFile(UsStates::MapFile(m_states, record)));
    }
    // Screen readers hear which state is lit, except while that is the question.
    const bool asking = m_quiz.isRunning() && m_quiz.mode() != Review && !m_quiz.isAnswered();
    picMap->setAccessibleDescription(asking ? QString() : m_states.text(record, UsStates::Name));
}

void frmGeo::showItem(int item)
{
    const int r = m_quiz.currentRecord();
    using namespace UsStates;
    switch (item) {
    case MapItem:
        showMapOf(r);
        break;
    case FlagItem:
        imgFlag->load(DataFile(FlagFile(m_states, r)));
        break;
    case AbbreviationItem:
        lblAbbr->setText(m_states.text(r, Abbreviation));
        break;
    case NicknameItem:
        lblNick->setText(m_states.text(r, Nickname));
        lblNick->show();
        break;
    case OrderItem:
        lblNumber->setText(OrderText(m_states.number(r, Order)));
        break;
    case AdmittedItem:
        lblAdmit->setText(AdmittedText(m_states, r));
        break;
    case CapitalItem:
        lblCapital->setText(CapitalText(m_states, r));
        break;
    case RegionItem:
        lblRegion->setText(RegionText(m_states, r));
        break;
    case Fact1Item:
    case Fact2Item:
    case Fact3Item:
        lblFact[item - Fact1Item]->setText(m_states.text(r, FirstFact + item - Fact1Item));
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
    resetInsets();
    lblName->setText(m_states.text(m_quiz.currentRecord(), UsStates::Name));
    showAllItems();
    lblPrompt->clear(); // Label1 says how to move around
    lblScore->setText(tr("State %1 of %2").arg(m_quiz.currentRecord()).arg(m_states.count()));
    fraNext->show();
    Label1->show();
    picMap->setFocusPolicy(Qt::NoFocus);
}

void frmGeo::setAnswerWidgets()
{
    const QuizPlan &plan = m_quiz.plan();
    const int mode = m_quiz.mode();
    const bool onMap = mode == FindIt && direction(FindIt) == Direction::FindOnMap;
    const bool flagPick = mode == Flags && direction(Flags) == Direction::PickFlag;
    picArea->setCurrentIndex(flagPick ? FlagPage : MapPage);
    const bool choicesShown = plan.multipleChoice && !flagPick;
    txtAnswer->setVisible(!choicesShown && !flagPick);
    txtAnswer->setReadOnly(onMap);
    txtAnswer->setPlaceholderText(onMap ? tr("Click on the map") : tr("Type here, then Enter"));
    for (int i = 0; i < lblanswer.size(); ++i) {
        QPushButton *choice = lblanswer[i];
        choice->setVisible(choicesShown);
        choice->setStyleSheet(choiceStyle("#FFFFFF", "#90CAF9"));
        const QString text = choicesShown ? m_quiz.choiceText(i + 1) : QString();
        choice->setText(QuizPanels::asButtonText(text));
        choice->setAccessibleName(text);
    }
    for (int i = 0; i < imgFlagGame.size(); ++i) {
        FlagButton *flag = imgFlagGame[i];
        flag->setMark(FlagButton::None);
        if (flagPick)
            flag->load(DataFile(UsStates::FlagFile(m_states, m_quiz.choices().value(i))));
    }
    Label1->setVisible(onMap);
    picMap->setFocusPolicy(onMap ? Qt::StrongFocus : Qt::NoFocus);
    if (onMap)
        picMap->setFocus();
    else if (flagPick)
        imgFlagGame[0]->setFocus();
    else if (choicesShown)
        lblanswer[0]->setFocus();
    else
        txtAnswer->setFocus();
}

void frmGeo::showQuestion()
{
    const int r = m_quiz.currentRecord();
    clearItems();
    resetInsets();
    lblResult->clear();
    txtAnswer->clear();
    cmdSee->setText(tr("&Answer"));
    cmdSee->setAccessibleName(tr("Answer"));
    cmdSee->show();
    cmdClue->setVisible(m_quiz.mode() == NameIt);
    cmdClue->setEnabled(true);
    fraNext->hide();
    const QString name = m_states.text(r, UsStates::Name);
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
    updateScore();
}

void frmGeo::updateScore()
{
    const int asked = m_quiz.questionNumber();
    if (m_quiz.plan().order == QuizPlan::Order::EachOnce)
        lblScore->setText(tr("Question %1 of %2   Right: %3")
                              .arg(asked)
                              .arg(m_states.count())
                              .arg(m_quiz.rightAnswers()));
    else
        lblScore->setText(tr("Question %1   Right: %2").arg(asked).arg(m_quiz.rightAnswers()));
}

void frmGeo::setResult(const QString &text, bool good)
{
    lblResult->setStyleSheet(good ? QStringLiteral("color: #2E7D32;")
                                  : QStringLiteral("color: #C62828;"));
    lblResult->setText(text);
    Announce(lblResult, text);
}

void frmGeo::txtAnswer_Enter()
{
    if (!m_quiz.isRunning() || m_quiz.mode() == Review || m_quiz.isAnswered())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const QString given = txtAnswer->text();
    react(m_quiz.submitText(given), given);
}

void frmGeo::lblanswer_Click(int choice)
{
    if (!m_quiz.isRunning() || m_quiz.isAnswered() || m_quiz.choices().isEmpty())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const Outcome outcome = m_quiz.pickChoice(choice);
    if (!outcome.right())
        lblanswer[choice - 1]->setStyleSheet(choiceStyle("#FFEBEE", "#C62828"));
    react(outcome, m_quiz.choiceText(choice));
}

void frmGeo::imgFlagGame_Click(int choice)
{
    if (!m_quiz.isRunning() || m_quiz.isAnswered() || m_quiz.choices().isEmpty())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const Outcome outcome = m_quiz.pickChoice(choice);
    if (!outcome.right())
        imgFlagGame[choice - 1]->setMark(FlagButton::Wrong);
    react(outcome, QString());
}

void frmGeo::react(const Outcome &outcome, const QString &given)
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
    case Reaction::Hint:
        if (m_quiz.mode() == Capitals) {
            showItem(UsStates::MapItem);
            setResult(wrong + tr(" Look at the map for a hint, then try again."), false);
        } else {
            lblNick->setText(UsStates::RegionText(m_states, m_quiz.currentRecord()));
            lblNick->show();
            setResult(wrong + tr(" Here is a hint: the region. Try again."), false);
        }
        break;
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

void frmGeo::revealAnswer()
{
    m_quiz.reveal();
    const int r = m_quiz.currentRecord();
    const int mode = m_quiz.mode();
    lblName->setText(m_states.text(r, UsStates::Name));
    showItem(UsStates::CapitalItem);
    if (mode == NameIt)
        showAllItems();
    else if (picArea->currentIndex() == MapPage)
        showItem(UsStates::MapItem);
    if (mode == Flags)
        showItem(UsStates::FlagItem);
    const int right = m_quiz.correctChoice();
    if (right > 0 && m_quiz.plan().multipleChoice) {
        if (picArea->currentIndex() == FlagPage) {
            imgFlagGame[right - 1]->setMark(FlagButton::Right);
        } else {
            lblanswer[right - 1]->setStyleSheet(choiceStyle("#E8F5E9", "#2E7D32"));
            txtAnswer->setText(m_quiz.expected());
        }
    }
    cmdSee->setText(tr("&Next"));
    cmdSee->setAccessibleName(tr("Next"));
    cmdClue->setEnabled(false);
    cmdSee->setFocus();
}

void frmGeo::cmdSee_Click()
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
    showQuestion();
}

void frmGeo::cmdClue_Click()
{
    const Reaction reaction = m_quiz.requestClue();
    if (reaction.kind == Reaction::Clue) {
        showItem(reaction.clue);
    } else if (reaction.kind == Reaction::Reveal) {
        revealAnswer();
        setResult(tr("That was the last clue. The answer is %1.").arg(m_quiz.expected()), true);
    }
}

void frmGeo::optionChanged()
{
    const int mode = m_quiz.mode();
    if (mode == Idle || mode == Review)
        return;
    const bool wasOpen = !m_quiz.isAnswered();
    m_quiz.replan(planFor(mode));
    // An open question is asked again the new way; an answered one waits for Next.
    if (wasOpen)
        showQuestion();
}

void frmGeo::pointAt(int record)
{
    m_pointed = record;
    showMapOf(record);
    txtAnswer->setText(m_states.text(record, UsStates::Name));
}

void frmGeo::mapClicked(QPointF mapUnits)
{
    const int mode = m_quiz.mode();
    if (mode == Review) {
        m_quiz.select(m_mapClick.recordAt(mapUnits, m_quiz.currentRecord()));
        showReview();
        return;
    }
    if (mode != FindIt || direction(FindIt) != Direction::FindOnMap || m_quiz.isAnswered())
        return;
    const int record = m_mapClick.recordAt(mapUnits, m_quiz.currentRecord());
    m_pointed = record;
    txtAnswer->setText(m_states.text(record, UsStates::Name));
    txtAnswer_Enter();
}
