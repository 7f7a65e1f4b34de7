// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmHMath.h"

#include "DotPicture.h"
#include "MasteryView.h"
#include "SheetView.h"
#include "WorksheetPaper.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

enum Part { ReviewPart, PracticePart, WorksheetPart };

QPushButton *MakeButton(const QString &caption, const QString &name, const char *colour,
                        QWidget *parent, int points = 14)
{
    auto *button = Named(new QPushButton(caption, parent), name);
    // Enter presses the button that has the focus, so everything works from the keyboard.
    button->setAutoDefault(true);
    button->setMinimumHeight(40);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPointSize(points);
    font.setBold(true);
    button->setFont(font);
    button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    StyleBrightButton(button, QColor(QLatin1String(colour)));
    return button;
}

QLabel *MakeLabel(const QString &name, QWidget *parent)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

QString PanelStyle(const char *name, const char *background, const char *border)
{
    return QStringLiteral("#%1 { background: %2; border: 3px solid %3; border-radius: 14px; }")
        .arg(QLatin1String(name), QLatin1String(background), QLatin1String(border));
}

QRadioButton *MakeOption(const QString &caption, const QString &name, QWidget *parent)
{
    auto *option = Named(new QRadioButton(caption, parent), name);
    option->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    return option;
}

} // namespace

frmHMath::frmHMath(QWidget *parent)
    : ActivityWindow(QStringLiteral("mathtutor"), parent), m_round(TheMastery())
{
    setObjectName(QStringLiteral("frmHMath"));
    setWindowTitle(tr("Higher Math"));
    applyLook(QColor(0xF1, 0xF8, 0xE9));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));

    // The facts every part uses: the operation and the range of families.
    auto *options = Named(new QFrame(this), QStringLiteral("fraFacts"));
    options->setStyleSheet(PanelStyle("fraFacts", "#FFFFFF", "#A5D6A7"));
    optMultiply = MakeOption(tr("&Times ×"), QStringLiteral("optMultiply"), options);
    optDivide = MakeOption(tr("&Divide ÷"), QStringLiteral("optDivide"), options);
    auto *lblLow = new QLabel(tr("Facts &from"), options);
    auto *lblHigh = new QLabel(tr("t&o"), options);
    for (QLabel *label : {lblLow, lblHigh})
        label->setTextFormat(Qt::PlainText);
    spnLow = Named(new QSpinBox(options), QStringLiteral("spnLow"));
    spnHigh = Named(new QSpinBox(options), QStringLiteral("spnHigh"));
    for (QSpinBox *spin : {spnLow, spnHigh}) {
        spin->setRange(FactRange::Lowest, FactRange::Highest);
        spin->setMinimumWidth(64);
        ScaleFont(spin, 1.1, true);
    }
    spnLow->setAccessibleName(tr("Lowest fact"));
    spnHigh->setAccessibleName(tr("Highest fact"));
    lblLow->setBuddy(spnLow);
    lblHigh->setBuddy(spnHigh);
    auto *optionRow = new QHBoxLayout(options);
    optionRow->setContentsMargins(12, 4, 12, 4);
    optionRow->addWidget(optMultiply);
    optionRow->addWidget(optDivide);
    optionRow->addSpacing(16);
    optionRow->addWidget(lblLow);
    optionRow->addWidget(spnLow);
    optionRow->addWidget(lblHigh);
    optionRow->addWidget(spnHigh);
    optionRow->addStretch();

    cmdReview = MakeButton(tr("&Review"), QStringLiteral("cmdReview"), "#1565C0", this, 16);
    cmdPractice = MakeButton(tr("&Practice"), QStringLiteral("cmdPractice"), "#2E7D32", this, 16);
    cmdWorksheets =
        MakeButton(tr("&Worksheets"), QStringLiteral("cmdWorksheets"), "#6A1B9A", this, 16);
    for (QPushButton *button : {cmdReview, cmdPractice, cmdWorksheets})
        button->setMinimumHeight(52);

    stkParts = Named(new QStackedWidget(this), QStringLiteral("stkParts"));
    stkParts->addWidget(makeReviewPage());
    stkParts->addWidget(makePracticePage());
    stkParts->addWidget(makeWorksheetPage());
    // Made after the parts, so Tab reaches them before the end buttons.
    cmdHelp = MakeButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", this);
    cmdExit = MakeButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", this);
    cmdExit->setAccessibleName(tr("Exit"));

    auto *side = new QVBoxLayout;
    side->setSpacing(8);
    side->addWidget(cmdReview);
    side->addWidget(cmdPractice);
    side->addWidget(cmdWorksheets);
    side->addStretch();
    side->addWidget(cmdHelp);
    side->addWidget(cmdExit);

    auto *main = new QVBoxLayout;
    main->setSpacing(8);
    main->addWidget(options);
    main->addWidget(stkParts, 1);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    layout->addLayout(side);
    layout->addLayout(main, 1);

    // The last choices, brought into range: the settings file may hold anything.
    const auto &values = TheSettings().mathTutor.values;
    const Operation op = values[0] == 1 ? Operation::Divide : Operation::Multiply;
    int low = qBound(int(FactRange::Lowest), int(values[1]), int(FactRange::Highest));
    int high = qBound(int(FactRange::Lowest), int(values[2]), int(FactRange::Highest));
    if (low > high)
        std::swap(low, high);
    if (op == Operation::Divide && high == 0)
        high = 1;
    if (values[0] != qint16(op) || values[1] != low || values[2] != high)
        qCInfo(lcMathTutor) << "settings" << values[0] << values[1] << values[2]
                            << "brought into range as" << int(op) << low << high;
    m_settingControls = true;
    (op == Operation::Divide ? optDivide : optMultiply)->setChecked(true);
    spnLow->setValue(low);
    spnHigh->setValue(high);
    optCount[0]->setChecked(true);
    optStacked->setChecked(true);
    m_settingControls = false;
    m_sheet = m_sheet.withNewSheet(CurrentRandomSource());
    storeSettings();
    onOperationChanged();

    connect(optMultiply, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            onOperationChanged();
    });
    connect(optDivide, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            onOperationChanged();
    });
    connect(spnLow, &QSpinBox::valueChanged, this, [this] { onRangeChanged(spnLow); });
    connect(spnHigh, &QSpinBox::valueChanged, this, [this] { onRangeChanged(spnHigh); });
    connect(cmdReview, &QPushButton::clicked, this, [this] { showPart(ReviewPart); });
    connect(cmdPractice, &QPushButton::clicked, this, [this] { showPart(PracticePart); });
    connect(cmdWorksheets, &QPushButton::clicked, this, [this] { showPart(WorksheetPart); });
    connect(cmdHelp, &QPushButton::clicked, this, &frmHMath::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmHMath::onExit);

    resize(1024, 720);
    showPart(ReviewPart);
}

QWidget *frmHMath::makeReviewPage()
{
    auto *page = Named(new QFrame, QStringLiteral("fraReview"));
    page->setStyleSheet(PanelStyle("fraReview", "#FFFFFF", "#90CAF9"));
    auto *lblFamily = new QLabel(tr("Fami&ly:"), page);
    lblFamily->setTextFormat(Qt::PlainText);
    spnFamily = Named(new QSpinBox(page), QStringLiteral("spnFamily"));
    spnFamily->setSuffix(tr("s"));
    spnFamily->setAccessibleName(tr("Family"));
    spnFamily->setMinimumWidth(80);
    ScaleFont(spnFamily, 1.2, true);
    lblFamily->setBuddy(spnFamily);

    picDots = Named(new DotPicture(page), QStringLiteral("picDots"));
    picDots->setAccessibleName(tr("Dot picture"));
    lblFact = MakeLabel(QStringLiteral("lblFact"), page);
    lblFact->setAccessibleName(tr("MathFact"));
    lblFact->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    lblPartners = MakeLabel(QStringLiteral("lblPartners"), page);
    lblPartners->setAccessibleName(tr("Partner facts"));
    lblPartners->setStyleSheet(QStringLiteral("color: #4A148C;"));
    ScaleFont(lblPartners, 1.0, true);
    cmdBack = MakeButton(tr("◀ &Back"), QStringLiteral("cmdBack"), "#EF6C00", page);
    cmdAnswer = MakeButton(tr("&Answer"), QStringLiteral("cmdAnswer"), "#2E7D32", page);
    cmdNext = MakeButton(tr("&Next ▶"), QStringLiteral("cmdNext"), "#1565C0", page);

    auto *top = new QHBoxLayout;
    top->addWidget(lblFamily);
    top->addWidget(spnFamily);
    top->addStretch();
    auto *words = new QVBoxLayout;
    words->addStretch();
    words->addWidget(lblFact);
    words->addWidget(lblPartners);
    words->addStretch();
    auto *middle = new QHBoxLayout;
    middle->addWidget(picDots, 1);
    middle->addLayout(words, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdBack);
    buttons->addWidget(cmdAnswer);
    buttons->addWidget(cmdNext);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(12, 8, 12, 10);
    layout->addLayout(top);
    layout->addLayout(middle, 1);
    layout->addLayout(buttons);

    connect(spnFamily, &QSpinBox::valueChanged, this, [this] {
        m_reviewOther = 0;
        m_answerShown = false;
        showReview();
    });
    connect(cmdBack, &QPushButton::clicked, this, [this] { stepReview(-1); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { stepReview(1); });
    connect(cmdAnswer, &QPushButton::clicked, this, &frmHMath::onShowAnswer);
    return page;
}

QWidget *frmHMath::makePracticePage()
{
    auto *page = Named(new QFrame, QStringLiteral("fraPractice"));
    page->setStyleSheet(PanelStyle("fraPractice", "#FFFFFF", "#A5D6A7"));
    lblProgress = MakeLabel(QStringLiteral("lblProgress"), page);
    lblProgress->setAccessibleName(tr("Progress"));
    lblProblem = MakeLabel(QStringLiteral("lblProblem"), page);
    lblProblem->setAccessibleName(tr("Problem"));
    lblProblem->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblProblem->setWordWrap(false);
    lblProblem->setStyleSheet(QStringLiteral("color: #0D47A1;"));
    txtAnswer = Named(new QLineEdit(page), QStringLiteral("txtAnswer"));
    txtAnswer->setAccessibleName(tr("Answer"));
    // The largest answer is 144: three digits and nothing else.
    txtAnswer->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,3}")), txtAnswer));
    txtAnswer->setMaxLength(3);
    txtAnswer->setAlignment(Qt::AlignCenter);
    txtAnswer->setStyleSheet(
        QStringLiteral("QLineEdit { background: #FFFDE7; color: #B71C1C; border: 3px solid #FFB300;"
                       " border-radius: 10px; padding: 2px 6px; }"
                       "QLineEdit:focus { border: 4px solid #F57C00; }"
                       "QLineEdit:disabled { background: #ECEFF1; border-color: #CFD8DC; }"));
    lblMessage = MakeLabel(QStringLiteral("lblMessage"), page);
    lblMessage->setAccessibleName(tr("Message"));
    lblMessage->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    ScaleFont(lblMessage, 1.0, true);
    lblMessage->setStyleSheet(
        QStringLiteral("QLabel { background: #FFF9C4; color: #1A237E; border: 3px solid #FBC02D;"
                       " border-radius: 14px; padding: 6px; }"));
    cmdStart = MakeButton(tr("&Start Round"), QStringLiteral("cmdStart"), "#2E7D32", page);
    picMastery = Named(new MasteryView(TheMastery(), page), QStringLiteral("picMastery"));

    auto *legend = new QHBoxLayout;
    const std::array<std::pair<Mastery, QString>, 3> keys{
        std::pair{Mastery::NotSeen, tr("Not yet seen")},
        std::pair{Mastery::Practising, tr("Practising")}, std::pair{Mastery::Known, tr("Known")}};
    for (const auto &[state, caption] : keys) {
        auto *key = new QLabel(caption, page);
        key->setTextFormat(Qt::PlainText);
        key->setAlignment(Qt::AlignCenter);
        ScaleFont(key, 0.8);
        key->setStyleSheet(QStringLiteral("background: %1; border: 1px solid #90A4AE;"
                                          " border-radius: 6px; padding: 1px 4px;")
                               .arg(MasteryView::colour(state).name()));
        legend->addWidget(key);
    }

    auto *sum = new QHBoxLayout;
    sum->addStretch();
    sum->addWidget(lblProblem);
    sum->addWidget(txtAnswer);
    sum->addStretch();
    auto *left = new QVBoxLayout;
    left->addWidget(lblProgress);
    left->addLayout(sum);
    left->addWidget(lblMessage, 1);
    left->addWidget(cmdStart, 0, Qt::AlignHCenter);
    auto *right = new QVBoxLayout;
    right->addWidget(picMastery, 1);
    right->addLayout(legend);
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(12, 8, 12, 10);
    layout->addLayout(left, 3);
    layout->addLayout(right, 2);

    txtAnswer->setEnabled(false);
    txtAnswer->hide();
    lblProblem->hide();
    lblMessage->setText(tr("Press Start Round to practise 20 facts.\n"
                           "Answer within 3 seconds and a fact turns green!"));
    connect(cmdStart, &QPushButton::clicked, this, &frmHMath::onStart);
    connect(txtAnswer, &QLineEdit::returnPressed, this, &frmHMath::onAnswer);
    return page;
}

QWidget *frmHMath::makeWorksheetPage()
{
    auto *page = Named(new QFrame, QStringLiteral("fraWorksheets"));
    page->setStyleSheet(PanelStyle("fraWorksheets", "#FFFFFF", "#CE93D8"));
    auto *counts = Named(new QGroupBox(tr("Problems"), page), QStringLiteral("fraCount"));
    auto *countRow = new QHBoxLayout(counts);
    auto *countGroup = new QButtonGroup(page);
    for (int i = 0; i < 3; ++i) {
        const int n = Worksheet::Counts[size_t(i)];
        optCount[i] = MakeOption(QStringLiteral("&%1").arg(n), ArrayName("optCount", i), counts);
        optCount[i]->setAccessibleName(tr("%1 problems").arg(n));
        countGroup->addButton(optCount[i]);
        countRow->addWidget(optCount[i]);
    }
    auto *layouts = Named(new QGroupBox(tr("Layout"), page), QStringLiteral("fraLayout"));
    optStacked = MakeOption(tr("Stac&ked"), QStringLiteral("optStacked"), layouts);
    optInARow = MakeOption(tr("&In a row"), QStringLiteral("optInARow"), layouts);
    auto *layoutRow = new QHBoxLayout(layouts);
    layoutRow->addWidget(optStacked);
    layoutRow->addWidget(optInARow);

    chkKey = Named(new QCheckBox(tr("Print the answer &key too"), page), QStringLiteral("chkKey"));
    chkKey->setAccessibleName(tr("Print the answer key too"));
    chkKey->setChecked(true);
    auto *chkShowKey =
        Named(new QCheckBox(tr("Show the ke&y here"), page), QStringLiteral("chkShowKey"));
    chkShowKey->setAccessibleName(tr("Show the key here"));

    auto *lblNumber = new QLabel(tr("Worksheet &number:"), page);
    lblNumber->setTextFormat(Qt::PlainText);
    txtNumber = Named(new QLineEdit(page), QStringLiteral("txtNumber"));
    txtNumber->setAccessibleName(tr("Worksheet number"));
    txtNumber->setMaxLength(20);
    ScaleFont(txtNumber, 1.1, true);
    lblNumber->setBuddy(txtNumber);
    cmdMake = MakeButton(tr("&Make"), QStringLiteral("cmdMake"), "#1565C0", page, 12);
    cmdNewSheet = MakeButton(tr("N&ew Sheet"), QStringLiteral("cmdNewSheet"), "#EF6C00", page, 12);
    cmdPrint = MakeButton(tr("Pr&int..."), QStringLiteral("cmdPrint"), "#6A1B9A", page, 12);
    picSheet = Named(new SheetView(page), QStringLiteral("picSheet"));

    auto *numberRow = new QHBoxLayout;
    numberRow->addWidget(txtNumber, 1);
    numberRow->addWidget(cmdMake);
    auto *sheetButtons = new QHBoxLayout;
    sheetButtons->addWidget(cmdNewSheet);
    sheetButtons->addWidget(cmdPrint);
    // Side by side, so the page still fits a small screen at double size.
    auto *choices = new QHBoxLayout;
    choices->addWidget(counts);
    choices->addWidget(layouts);
    auto *left = new QVBoxLayout;
    left->addLayout(choices);
    left->addWidget(chkKey);
    left->addWidget(chkShowKey);
    left->addStretch();
    left->addWidget(lblNumber);
    left->addLayout(numberRow);
    left->addLayout(sheetButtons);
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(12, 8, 12, 10);
    layout->addLayout(left);
    layout->addWidget(picSheet, 1);

    for (QRadioButton *option : {optCount[0], optCount[1], optCount[2], optStacked, optInARow})
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                onSheetOptionChanged();
        });
    connect(chkShowKey, &QCheckBox::toggled, picSheet, &SheetView::setShowKey);
    connect(txtNumber, &QLineEdit::returnPressed, this, &frmHMath::onMake);
    connect(cmdMake, &QPushButton::clicked, this, &frmHMath::onMake);
    connect(cmdNewSheet, &QPushButton::clicked, this, &frmHMath::onNewSheet);
    connect(cmdPrint, &QPushButton::clicked, this, &frmHMath::onPrint);
    return page;
}

Operation frmHMath::operation() const
{
    return optDivide->isChecked() ? Operation::Divide : Operation::Multiply;
}

void frmHMath::showPart(int part)
{
    if (m_round.isRunning())
        return;
    stkParts->setCurrentIndex(part);
    // The part on show is the one whose button stands out.
    const std::array<QPushButton *, 3> buttons{cmdReview, cmdPractice, cmdWorksheets};
    for (int i = 0; i < 3; ++i) {
        QFont font = buttons[size_t(i)]->font();
        font.setUnderline(i == part);
        buttons[size_t(i)]->setFont(font);
    }
    if (part == ReviewPart)
        cmdNext->setFocus();
    else if (part == PracticePart)
        cmdStart->setFocus();
    else
        cmdPrint->setFocus();
}

void frmHMath::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    sizeFonts();
}

void frmHMath::sizeFonts()
{
    // The fact is what a young pupil must read at a glance, so it grows with the window,
    // as far as the longest fact ("144 ÷ 12 = 12") still fits beside its picture or its box.
    QFont big = lblFact->font();
    big.setBold(true);
    big.setPixelSize(qBound(24, qMin(height() / 11, width() / 22), 100));
    lblFact->setFont(big);
    big.setPixelSize(qBound(24, qMin(height() / 9, width() / 20), 110));
    lblProblem->setFont(big);
    txtAnswer->setFont(big);
    txtAnswer->setFixedWidth(QFontMetrics(big).horizontalAdvance(QStringLiteral("000")) + 28);
    // The words around the facts grow too, more gently.
    for (QLabel *label : {lblMessage, lblPartners, lblProgress}) {
        QFont words = label->font();
        words.setPixelSize(qBound(16, height() / (label == lblProgress ? 36 : 28), 40));
        label->setFont(words);
    }
}

void frmHMath::storeSettings()
{
    TheSettings().mathTutor.values = {qint16(operation()), qint16(spnLow->value()),
                                      qint16(spnHigh->value())};
}

void frmHMath::onRangeChanged(QSpinBox *changed)
{
    if (m_settingControls)
        return;
    // The other end follows, so the lowest fact is never above the highest.
    m_settingControls = true;
    if (spnLow->value() > spnHigh->value()) {
        if (changed == spnLow)
            spnHigh->setValue(spnLow->value());
        else
            spnLow->setValue(spnHigh->value());
    }
    if (operation() == Operation::Divide && spnHigh->value() == 0)
        spnHigh->setValue(1);
    m_settingControls = false;
    storeSettings();
    const QList<qint16> families =
        FactRange::families(operation(), spnLow->value(), spnHigh->value());
    picMastery->setRange(families.first(), families.last());
    spnFamily->setRange(families.first(), families.last());
    updateSheet();
}

void frmHMath::onOperationChanged()
{
    if (m_settingControls)
        return;
    picMastery->setOperation(operation());
    onRangeChanged(spnHigh);
    m_answerShown = false;
    showReview();
}

MathFact frmHMath::reviewFact() const
{
    return MathFact{operation(), qint16(spnFamily->value()), m_reviewOther};
}

void frmHMath::showReview()
{
    const MathFact fact = reviewFact();
    picDots->setRows(fact.family, fact.other);
    lblFact->setText(m_answerShown ? fact.withAnswer() : fact.text() + QStringLiteral(" = ?"));
    sizeFonts();
    if (m_answerShown) {
        QStringList lines{tr("Partner facts:")};
        for (const MathFact &partner : Partners(fact))
            lines.append(partner.withAnswer());
        lblPartners->setText(lines.join(u'\n'));
    } else {
        lblPartners->setText(tr("Say the answer out loud,\nthen press Answer to check."));
    }
    cmdAnswer->setEnabled(!m_answerShown);
    cmdBack->setEnabled(fact.family > spnFamily->minimum() || fact.other > 0);
    cmdNext->setEnabled(fact.family < spnFamily->maximum() || fact.other < FactRange::Highest);
}

void frmHMath::stepReview(int step)
{
    int family = spnFamily->value();
    int other = m_reviewOther + step;
    // Past the end of a family the next one begins, so the whole range can be stepped through.
    if (other > FactRange::Highest && family < spnFamily->maximum()) {
        ++family;
        other = 0;
    } else if (other < 0 && family > spnFamily->minimum()) {
        --family;
        other = FactRange::Highest;
    }
    other = qBound(0, other, int(FactRange::Highest));
    const QSignalBlocker quiet(spnFamily);
    spnFamily->setValue(family);
    m_reviewOther = qint16(other);
    m_answerShown = false;
    showReview();
    QPushButton *pressed = step > 0 ? cmdNext : cmdBack;
    (pressed->isEnabled() ? pressed : cmdAnswer)->setFocus();
}

void frmHMath::onShowAnswer()
{
    m_answerShown = true;
    showReview();
    Announce(lblFact, reviewFact().withAnswer());
    // At the last fact of the range there is no next one: Back is the way on.
    (cmdNext->isEnabled() ? cmdNext : cmdBack)->setFocus();
}

void frmHMath::setRoundRunning(bool running)
{
    setRunningCaption(cmdExit, running);
    cmdExit->setAccessibleName(running ? tr("Stop") : tr("Exit"));
    for (QWidget *w : std::initializer_list<QWidget *>{optMultiply, optDivide, spnLow, spnHigh,
                                                       cmdReview, cmdWorksheets, cmdStart})
        w->setEnabled(!running);
    txtAnswer->setEnabled(running);
    txtAnswer->setVisible(running);
    lblProblem->setVisible(running);
}

void frmHMath::onStart()
{
    if (m_round.isRunning())
        return;
    const auto pool = FactRange::facts(operation(), spnLow->value(), spnHigh->value());
    if (!pool || !m_round.start(*pool, CurrentRandomSource(), TickCount()))
        return;
    setRoundRunning(true);
    lblMessage->setText(tr("Type the answer and press Enter."));
    showTurn();
}

void frmHMath::showTurn()
{
    const MathFact fact = m_round.current();
    lblProblem->setText(fact.text() + QStringLiteral(" ="));
    lblProgress->setText(tr("Facts left: %1     Right first time: %2")
                             .arg(m_round.remaining())
                             .arg(m_round.rightFirstTime()));
    txtAnswer->clear();
    txtAnswer->setFocus();
    m_round.showCurrent(TickCount());
}

void frmHMath::onAnswer()
{
    if (!m_round.isRunning() || txtAnswer->text().isEmpty())
        return;
    const MathFact fact = m_round.current();
    const auto result = m_round.answer(txtAnswer->text().toInt(), TickCount());
    if (result == PracticeRound::Result::Ignored)
        return;
    picMastery->refresh();
    QString message;
    if (result == PracticeRound::Result::Right) {
        PlaySound(m_tadaSound, SND_ASYNC);
        message = m_round.lastWasQuick() ? tr("Good! You know %1.").arg(fact.withAnswer())
                                         : tr("Good! Next time try to be quicker.");
    } else {
        PlaySound(m_uhOhSound, SND_ASYNC);
        message = tr("Not quite.\n%1\nIt will come back soon.").arg(fact.withAnswer());
    }
    lblMessage->setText(message);
    Announce(lblMessage, message);
    txtAnswer->setReadOnly(true);
    // Time to read the answer; keys pressed meanwhile are dropped, not typed into the next.
    Delay(result == PracticeRound::Result::Right ? 1 : 2.5f);
    txtAnswer->setReadOnly(false);
    if (!m_round.isRunning() && m_round.isOver())
        finishRound(false);
    else if (m_round.isRunning())
        showTurn();
}

void frmHMath::finishRound(bool stopped)
{
    m_round.stop();
    setRoundRunning(false);
    txtAnswer->clear();
    lblProblem->clear();
    QStringList lines;
    lines.append(stopped ? tr("Round stopped.") : tr("Round over!"));
    lines.append(tr("Right the first time: %1 of %2")
                     .arg(m_round.rightFirstTime())
                     .arg(PracticeRound::Length));
    if (m_round.missed().isEmpty()) {
        lines.append(stopped ? tr("No facts missed so far.") : tr("No facts missed. Super!"));
    } else {
        lines.append(tr("Facts to practise:"));
        QStringList facts;
        for (const MathFact &fact : m_round.missed())
            facts.append(fact.withAnswer());
        lines.append(facts.join(QStringLiteral(",  ")));
    }
    const QString summary = lines.join(u'\n');
    lblMessage->setText(summary);
    lblProgress->setText(
        tr("Known facts: %1").arg(TheMastery().count(operation(), Mastery::Known)));
    Announce(lblMessage, summary);
    cmdStart->setFocus();
}

void frmHMath::onSheetOptionChanged()
{
    if (!m_settingControls)
        updateSheet();
}

void frmHMath::updateSheet()
{
    if (m_settingControls)
        return;
    m_sheet.op = operation();
    m_sheet.low = qint16(spnLow->value());
    m_sheet.high = qint16(spnHigh->value());
    for (int i = 0; i < 3; ++i)
        if (optCount[i]->isChecked())
            m_sheet.count = Worksheet::Counts[size_t(i)];
    m_sheet.layout =
        optInARow->isChecked() ? Worksheet::Layout::InARow : Worksheet::Layout::Stacked;
    txtNumber->setText(m_sheet.number());
    picSheet->setSheet(m_sheet);
}

void frmHMath::onMake()
{
    const QString problem = Worksheet::problem(txtNumber->text());
    if (!problem.isEmpty()) {
        MsgBox(this, tr(WorksheetNumberTitle), problem, QMessageBox::Critical);
        txtNumber->setFocus();
        txtNumber->selectAll();
        return;
    }
    const Worksheet sheet = *Worksheet::parse(txtNumber->text());
    m_settingControls = true;
    (sheet.op == Operation::Divide ? optDivide : optMultiply)->setChecked(true);
    spnLow->setValue(sheet.low);
    spnHigh->setValue(sheet.high);
    for (int i = 0; i < 3; ++i)
        optCount[i]->setChecked(Worksheet::Counts[size_t(i)] == sheet.count);
    (sheet.layout == Worksheet::Layout::InARow ? optInARow : optStacked)->setChecked(true);
    m_settingControls = false;
    onOperationChanged();
    m_sheet = sheet;
    updateSheet();
    Announce(txtNumber, tr("Worksheet %1 is ready to print.").arg(sheet.number()));
    cmdPrint->setFocus();
}

void frmHMath::onNewSheet()
{
    m_sheet = m_sheet.withNewSheet(CurrentRandomSource());
    updateSheet();
}

void frmHMath::onPrint()
{
    PrintWithPreview(this, WorksheetPaper::document(m_sheet, chkKey->isChecked()));
}

void frmHMath::onExit()
{
    if (m_round.isRunning())
        finishRound(true);
    else
        close();
}
