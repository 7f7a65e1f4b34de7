// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmWGeo.h"

#include "FlagButton.h"
#include "WorldMap.h"

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
constexpr double NearClickPixels = 5;

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

frmWGeo::frmWGeo(QWidget *parent) : ActivityWindow(QStringLiteral("worldgeography"), parent)
{
    setObjectName(QStringLiteral("frmWGeo"));
    setWindowTitle(tr("World Geography"));
    applyLook(QColor(0xE0, 0xF2, 0xF1));

    buildControls();

    using namespace WorldCountries;
    picMap->load(DataFile(QString::fromLatin1(MapPicture)));
    if (!m_countries.load(DataFile(QString::fromLatin1(FileName)), Layout())) {
        m_loadError = m_countries.error().message();
    } else if (const auto shapes =
                   LoadShapes(m_countries, DataFile(QString::fromLatin1(WorldShapes)))) {
        m_mapClick = shapes->click;
        picMap->setMapSize(shapes->size);
    } else {
        // Without the outlines a click still finds the nearest country by its point.
        QList<QPoint> points;
        for (int r = 1; r <= m_countries.count(); ++r)
            points.append(QPoint(m_countries.number(r, MapX), m_countries.number(r, MapY)));
        m_mapClick.setPoints(points);
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

frmWGeo::~frmWGeo() = default;

void frmWGeo::buildControls()
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

    // The world map, which stays loaded, and the four flags of the flag quiz.
    picArea = Named(new QuizPanels::PictureStack(this), QStringLiteral("picArea"));
    // The pictures take the height the texts leave: asking for their own would make the game
    // scroll on a small screen.
    picArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    picArea->setMinimumHeight(80);
    picArea->setStyleSheet(QStringLiteral("#picArea { border: 3px solid transparent; }"));
    picMap = Named(new WorldMap(picArea), QStringLiteral("picMap"));
    picMap->setAccessibleName(tr("Map of the world"));
    // The map takes the keyboard only where its arrow keys mean something (finding a country).
    picMap->setFocusPolicy(Qt::NoFocus);
    picMap->setMinimumSize(160, 100);
    picMap->setCursor(Qt::PointingHandCursor);
    picMap->installEventFilter(this);
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

    lblName = label(QStringLiteral("lblName"), tr("Country"), 1.6, true);
    lblName->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    lblCapital = label(QStringLiteral("lblCapital"), tr("Capital"), 1.1, true);
    lblRegion = label(QStringLiteral("lblRegion"), tr("Region"), 1.1);
    lblRegion->setStyleSheet(QStringLiteral("color: #6A1B9A;"));
    for (int i = 0; i < 3; ++i)
        lblFact.append(label(ArrayName("lblFact", i), tr("Fact %1").arg(i + 1), 0.95));
    lblProducts = label(QStringLiteral("lblProducts"), tr("Main products"), 1.0);
    lblProducts->setStyleSheet(QStringLiteral("color: #4E342E;"));
    imgFlag = Named(new PictureBox(this), QStringLiteral("imgFlag"));
    imgFlag->setAccessibleName(tr("Flag of the country"));
    imgFlag->setMinimumSize(90, 60);
    // The flag takes the room beside the map that the texts leave, and never asks for more.
    imgFlag->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    auto *info = new QVBoxLayout;
    info->setSpacing(4);
    for (QLabel *item : {lblName, lblCapital, lblRegion, lblProducts})
        info->addWidget(item);
    info->addStretch(1);

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
    connect(txtAnswer, &QLineEdit::returnPressed, this, &frmWGeo::txtAnswer_Enter);

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
    cmdPrevious->setAccessibleName(tr("Previous country"));
    cmdNext = button(QStringLiteral("\u25B6"), QStringLiteral("cmdNext"), "#1565C0");
    cmdNext->setAccessibleName(tr("Next country"));
    Label1 = label(QStringLiteral("Label1"), tr("Map hint"), 0.95);
    Label1->setText(tr("Click on a country or use arrows."));
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

    fraChoice = Named(new QGroupBox(tr("World Geography"), this), QStringLiteral("fraChoice"));
    fraChoice->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoice, 1.05, true});
    auto *play = new QGridLayout(fraChoice);
    play->setSpacing(8);
    // The map is wide: it takes the whole width, with the country's texts and flag below.
    play->addWidget(picArea, 0, 0, 1, 2);
    play->addLayout(info, 1, 0);
    play->addWidget(imgFlag, 1, 1);
    play->setColumnStretch(0, 3);
    play->setColumnStretch(1, 1);
    play->addLayout(facts, 2, 0, 1, 2);
    play->addWidget(lblPrompt, 3, 0, 1, 2);
    play->addLayout(answerRow, 4, 0, 1, 2);
    play->addWidget(lblResult, 5, 0, 1, 2);
    play->setRowStretch(0, 3);
    play->setRowStretch(1, 1);
    play->addLayout(actions, 6, 0, 1, 2);

    fraChoices = Named(new QGroupBox(tr("Choices"), this), QStringLiteral("fraChoices"));
    fraChoices->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoices, 1.0, true});
    auto *modes = new QVBoxLayout(fraChoices);
    const QStringList captions{tr("&Review Countries"), tr("Country Ca&pitals"),
                               tr("&Name the Country"), tr("&Find the Country"),
                               tr("Country F&lags")};
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
                             {tr("Name Capital"), tr("Name Country")}, optWhich1, CapitalsWay);
    fraWhich2 = buildOptions(tr("Choose"), QStringLiteral("fraWhich2"),
                             {tr("Name Country"), tr("Find Country")}, optWhich2, FindWay);
    fraWhich3 = buildOptions(tr("Choose"), QStringLiteral("fraWhich3"),
                             {tr("Pick Flag"), tr("Name Country")}, optWhich3, FlagsWay);

    cmdHelp = button(tr("&Help"), QStringLiteral("cmdHelp"), "#546E7A");
    cmdExit = button(exitCaption(false), QStringLiteral("cmdExit"), "#B71C1C");

    m_sidePanel = QuizPanels::sidePanel(
        this, {fraChoices, fraType, fraWhich1, fraWhich2, fraWhich3}, cmdHelp, cmdExit);
    QuizPanels::layOut(this, QuizPanels::playPanel(this, fraChoice), m_sidePanel);

    // Buttons would take the arrow keys to move the focus; in review they visit the countries.
    const auto buttons = findChildren<QPushButton *>();
    for (QPushButton *b : buttons)
        b->installEventFilter(this);

    connect(cmdSee, &QPushButton::clicked, this, &frmWGeo::cmdSee_Click);
    connect(cmdClue, &QPushButton::clicked, this, &frmWGeo::cmdClue_Click);
    connect(cmdPrevious, &QPushButton::clicked, this, [this] {
        m_quiz.step(-1);
        showReview();
    });
    connect(cmdNext, &QPushButton::clicked, this, [this] {
        m_quiz.step(1);
        showReview();
    });
    connect(cmdHelp, &QPushButton::clicked, this, &frmWGeo::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmWGeo::cmdExit_Click);
}

QGroupBox *frmWGeo::buildOptions(const QString &caption, const QString &name,
                                 const QStringList &captions, QList<QRadioButton *> &options,
                                 int setting)
{
    auto *frame = Named(new QGroupBox(caption, this), name);
    frame->setStyleSheet(frameStyle());
    m_typeScale.append({frame, 0.95, true});
    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(2);
    const int chosen = qBound(0, int(TheSettings().worldGeography.values[setting]), 1);
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
            TheSettings().worldGeography.values[setting] = qint16(i);
            optionChanged();
        });
        layout->addWidget(option);
        options.append(option);
    }
    return frame;
}

void frmWGeo::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to ask about.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("World Geography"),
                   tr("World Geography cannot start because its file of countries is missing "
                      "or damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

void frmWGeo::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    fitType();
}

// The type follows the window, so everything fits a small screen and reads well on a big one.
void frmWGeo::fitType()
{
    const double factor = QuizPanels::typeFactor(this);
    QuizPanels::scaleType(this, m_typeScale, factor);
    QuizPanels::sizeOptions(findChildren<QRadioButton *>(), factor);
    QuizPanels::fitSidePanel(m_sidePanel);
}

QPoint frmWGeo::mapPoint(QPointF mapUnits) const
{
    return picMap->toWidget(mapUnits).toPoint();
}

bool frmWGeo::eventFilter(QObject *watched, QEvent *event)
{
    // The map shows a ring while the arrow keys work on it.
    if (watched == picMap &&
        (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        picArea->setStyleSheet(
            QStringLiteral("#picArea { border: 3px solid %1; border-radius: 6px; }")
                .arg(event->type() == QEvent::FocusIn ? QStringLiteral("#FFC107")
                                                      : QStringLiteral("transparent")));
    if (watched == picMap && event->type() == QEvent::MouseButtonPress) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton || picMap->pictureRect().isEmpty())
            return true;
        mapClicked(picMap->toMap(mouse->position()));
        return true;
    }
    if (watched == picMap && event->type() == QEvent::KeyPress && m_quiz.mode() == FindIt &&
        direction(FindIt) == Direction::FindOnMap) {
        auto *key = static_cast<QKeyEvent *>(event);
        const int count = m_countries.count();
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

void frmWGeo::keyPressEvent(QKeyEvent *event)
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

int frmWGeo::direction(int mode) const
{
    const auto &values = TheSettings().worldGeography.values;
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

bool frmWGeo::multipleChoice() const
{
    return TheSettings().worldGeography.values[AnswerType] == 1;
}

QuizPlan frmWGeo::planFor(int mode) const
{
    return StandardPlan(QuizMode(mode), multipleChoice(), direction(mode),
                        WorldCountries::QuizFields());
}

void frmWGeo::cmdChoice_Click(int index)
{
    startMode(index + 1);
}

void frmWGeo::cmdExit_Click()
{
    if (m_quiz.isRunning())
        stopMode();
    else
        close();
}

void frmWGeo::startMode(int mode)
{
    if (m_countries.count() == 0)
        return;
    static const char *const captions[] = {QT_TR_NOOP("World Geography-Review Countries"),
                                           QT_TR_NOOP("World Geography-Country Capitals"),
                                           QT_TR_NOOP("World Geography-Name the Country"),
                                           QT_TR_NOOP("World Geography-Find the Country"),
                                           QT_TR_NOOP("World Geography-Country Flags")};
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

void frmWGeo::stopMode()
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

void frmWGeo::showIdle()
{
    fraChoice->setTitle(tr("World Geography"));
    setRunningCaption(cmdExit, false);
    cmdExit->setAccessibleName(tr("Exit"));
    clearItems();
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

void frmWGeo::clearItems()
{
    for (QLabel *item : {lblName, lblCapital, lblRegion, lblProducts})
        item->clear();
    for (QLabel *fact : std::as_const(lblFact))
        fact->clear();
    imgFlag->clear();
    picMap->clearPointer();
    picMap->setAccessibleDescription(QString());
    m_pointed = 0;
}

void frmWGeo::showPointerAt(int record)
{
    using namespace WorldCountries;
    picMap->setPointer(QPointF(m_countries.number(record, MapX), m_countries.number(record, MapY)));
    // Screen readers hear which country is marked, except while that is the question.
    const bool asking = m_quiz.isRunning() && m_quiz.mode() != Review && !m_quiz.isAnswered();
    picMap->setAccessibleDescription(asking ? QString() : m_countries.text(record, Name));
}

void frmWGeo::showItem(int item)
{
    const int r = m_quiz.currentRecord();
    using namespace WorldCountries;
    switch (item) {
    case MapItem:
        showPointerAt(r);
        break;
    case FlagItem:
        imgFlag->load(DataFile(FlagFile(r)));
        break;
    case CapitalItem:
        lblCapital->setText(CapitalText(m_countries, r));
        break;
    case RegionItem:
        lblRegion->setText(RegionText(m_countries, r));
        break;
    case Fact1Item:
    case Fact2Item:
    case Fact3Item:
        lblFact[item - Fact1Item]->setText(m_countries.text(r, FirstFact + item - Fact1Item));
        break;
    case ProductsItem:
        lblProducts->setText(m_countries.text(r, Products));
        break;
    default:
        break;
    }
}

void frmWGeo::showAllItems()
{
    for (int item = 1; item <= WorldCountries::Items; ++item)
        showItem(item);
}

void frmWGeo::showReview()
{
    clearItems();
    lblName->setText(m_countries.text(m_quiz.currentRecord(), WorldCountries::Name));
    showAllItems();
    lblPrompt->clear(); // Label1 says how to move around
    lblScore->setText(tr("Country %1 of %2").arg(m_quiz.currentRecord()).arg(m_countries.count()));
    fraNext->show();
    Label1->show();
    picMap->setFocusPolicy(Qt::NoFocus);
}

void frmWGeo::setAnswerWidgets()
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
            flag->load(DataFile(WorldCountries::FlagFile(m_quiz.choices().value(i))));
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

void frmWGeo::showQuestion()
{
    using namespace WorldCountries;
    const int r = m_quiz.currentRecord();
    clearItems();
    lblResult->clear();
    txtAnswer->clear();
    cmdSee->setText(tr("&Answer"));
    cmdSee->setAccessibleName(tr("Answer"));
    cmdSee->show();
    cmdClue->setVisible(m_quiz.mode() == NameIt);
    cmdClue->setEnabled(true);
    fraNext->hide();
    const QString name = m_countries.text(r, Name);
    switch (m_quiz.mode()) {
    case Capitals:
        if (direction(Capitals) == Direction::NameCapital) {
            lblName->setText(name);
            lblPrompt->setText(tr("What is the capital of this country?"));
        } else {
            showItem(CapitalItem);
            lblPrompt->setText(tr("Which country has this capital?"));
        }
        break;
    case NameIt:
        showItem(m_quiz.clueOrder().value(1));
        lblPrompt->setText(tr("Which country is it? Read the clue, or ask for another."));
        break;
    case FindIt:
        if (direction(FindIt) == Direction::NamePlace) {
            showItem(MapItem);
            lblPrompt->setText(tr("Which country is the arrow pointing at?"));
        } else {
            lblName->setText(name);
            lblPrompt->setText(tr("Find this country on the map and click on it."));
        }
        break;
    case Flags:
        if (direction(Flags) == Direction::PickFlag) {
            lblCapital->setText(name);
            lblPrompt->setText(tr("Which flag belongs to this country? Click on it."));
        } else {
            showItem(FlagItem);
            lblPrompt->setText(tr("Which country has this flag?"));
        }
        break;
    default:
        break;
    }
    setAnswerWidgets();
    updateScore();
}

void frmWGeo::updateScore()
{
    const int asked = m_quiz.questionNumber();
    if (m_quiz.plan().order == QuizPlan::Order::EachOnce)
        lblScore->setText(tr("Question %1 of %2   Right: %3")
                              .arg(asked)
                              .arg(m_countries.count())
                              .arg(m_quiz.rightAnswers()));
    else
        lblScore->setText(tr("Question %1   Right: %2").arg(asked).arg(m_quiz.rightAnswers()));
}

void frmWGeo::setResult(const QString &text, bool good)
{
    lblResult->setStyleSheet(good ? QStringLiteral("color: #2E7D32;")
                                  : QStringLiteral("color: #C62828;"));
    lblResult->setText(text);
    Announce(lblResult, text);
}

void frmWGeo::txtAnswer_Enter()
{
    if (!m_quiz.isRunning() || m_quiz.mode() == Review || m_quiz.isAnswered())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const QString given = txtAnswer->text();
    react(m_quiz.submitText(given), given);
}

void frmWGeo::lblanswer_Click(int choice)
{
    if (!m_quiz.isRunning() || m_quiz.isAnswered() || m_quiz.choices().isEmpty())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const Outcome outcome = m_quiz.pickChoice(choice);
    if (!outcome.right())
        lblanswer[choice - 1]->setStyleSheet(choiceStyle("#FFEBEE", "#C62828"));
    react(outcome, m_quiz.choiceText(choice));
}

void frmWGeo::imgFlagGame_Click(int choice)
{
    if (!m_quiz.isRunning() || m_quiz.isAnswered() || m_quiz.choices().isEmpty())
        return;
    PlaySound(m_dingSound, SND_SYNC);
    const Outcome outcome = m_quiz.pickChoice(choice);
    if (!outcome.right())
        imgFlagGame[choice - 1]->setMark(FlagButton::Wrong);
    react(outcome, QString());
}

void frmWGeo::react(const Outcome &outcome, const QString &given)
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
            showItem(WorldCountries::MapItem);
            setResult(wrong + tr(" Look at the map for a hint, then try again."), false);
        } else {
            showItem(WorldCountries::RegionItem);
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

void frmWGeo::revealAnswer()
{
    m_quiz.reveal();
    const int r = m_quiz.currentRecord();
    const int mode = m_quiz.mode();
    lblName->setText(m_countries.text(r, WorldCountries::Name));
    showItem(WorldCountries::CapitalItem);
    if (mode == NameIt)
        showAllItems();
    else if (picArea->currentIndex() == MapPage)
        showItem(WorldCountries::MapItem);
    if (mode == Flags)
        showItem(WorldCountries::FlagItem);
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

void frmWGeo::cmdSee_Click()
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

void frmWGeo::cmdClue_Click()
{
    const Reaction reaction = m_quiz.requestClue();
    if (reaction.kind == Reaction::Clue) {
        showItem(reaction.clue);
    } else if (reaction.kind == Reaction::Reveal) {
        revealAnswer();
        setResult(tr("That was the last clue. The answer is %1.").arg(m_quiz.expected()), true);
    }
}

void frmWGeo::optionChanged()
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

void frmWGeo::pointAt(int record)
{
    m_pointed = record;
    showPointerAt(record);
    txtAnswer->setText(m_countries.text(record, WorldCountries::Name));
}

void frmWGeo::mapClicked(QPointF mapUnits)
{
    // A click a few pixels off a small country's coast still finds it.
    const double reach = NearClickPixels * picMap->unitsPerPixel();
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
    txtAnswer->setText(m_countries.text(record, WorldCountries::Name));
    txtAnswer_Enter();
}
