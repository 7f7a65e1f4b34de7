// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmThief.h"

#include "CaseCover.h"
#include "CasePapers.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QCheckBox>
#include <QCollator>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

enum Paper { CasePaper, CluesPaper, SolutionPaper };

QString frameStyle(const char *background)
{
    // No font in the style: a font set there would replace the window's in every child.
    return QStringLiteral("QGroupBox { color: #1A237E; border: 2px solid #9FA8DA;"
                          " border-radius: 10px; margin-top: 14px; padding: 10px 8px 8px 8px;"
                          " background: %1; }"
                          "QGroupBox::title { subcontrol-origin: margin; left: 12px;"
                          " padding: 0 4px; }")
        .arg(QLatin1String(background));
}

QGroupBox *makeFrame(const QString &caption, const QString &name, QWidget *parent)
{
    auto *frame = Named(new QGroupBox(caption, parent), name);
    frame->setStyleSheet(frameStyle("#FFFFFF"));
    frame->setFont(parent->font());
    return frame;
}

// Children of a styled frame do not take the window's type from it, so they get it here.
void setType(QWidget *widget, const QWidget *from, double points, bool bold = false)
{
    QFont type = from->font();
    type.setPointSizeF(points);
    type.setBold(bold);
    widget->setFont(type);
}

QTextEdit *makeReader(const QString &name, double points, QWidget *parent)
{
    auto *text = Named(new QTextEdit(parent), name);
    text->setReadOnly(true);
    // Read-only boxes still take the focus, so the pupil can scroll them with the keys.
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setTabChangesFocus(true);
    text->setStyleSheet(QStringLiteral("QTextEdit { background: #FFFFFF; color: #212121;"
                                       " border: 2px solid #C5CAE9; border-radius: 8px;"
                                       " padding: 6px; }"));
    setType(text, parent->window(), points);
    return text;
}

void setStrikeOut(QLabel *label, bool on)
{
    QFont font = label->font();
    font.setStrikeOut(on);
    label->setFont(font);
    label->setStyleSheet(on ? QStringLiteral("color: #9E9E9E;")
                            : QStringLiteral("color: #1A237E;"));
}

} // namespace

frmThief::frmThief(QWidget *parent) : ActivityWindow(QStringLiteral("stopthief"), parent)
{
    setObjectName(QStringLiteral("frmThief"));
    setWindowTitle(tr("Stop Thief!"));
    applyLook(QColor(0xFF, 0xF8, 0xE1));

    buildControls();

    if (m_data.load(DataFile(QString::fromLatin1(ThiefData::FileName))))
        m_builder = std::make_unique<CaseBuilder>(m_data);
    else
        m_loadError = m_data.error().message();
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));

    setLevel(level());
    showStartState();
    resize(1024, 720);
}

frmThief::~frmThief() = default;

void frmThief::buildControls()
{
    lblDescribe = Named(new QLabel(this), QStringLiteral("lblDescribe"));
    lblDescribe->setWordWrap(true);
    lblDescribe->setTextFormat(Qt::PlainText);
    ScaleFont(lblDescribe, 1.3, true);
    lblDescribe->setStyleSheet(QStringLiteral("color: #1A237E;"));

    picCover = Named(new CaseCover(this), QStringLiteral("picCover"));
    SSTab1 = Named(new QTabWidget(this), QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(tr("Case papers"));
    SSTab1->setStyleSheet(QStringLiteral("QTabBar::tab { padding: 8px 18px; font-weight: bold; }"
                                         "QTabBar::tab:selected { background: #FFE082; }"));
    txtCase = makeReader(QStringLiteral("txtCase"), 17, this);
    txtClues = makeReader(QStringLiteral("txtClues"), 16, this);
    txtCase->setAccessibleName(tr("The case"));
    txtClues->setAccessibleName(tr("Clues"));
    SSTab1->addTab(txtCase, tr("The &Case"));
    SSTab1->addTab(txtClues, tr("C&lues"));
    SSTab1->addTab(buildSuspectsTab(), tr("S&uspects"));

    fraHints = makeFrame(tr("Hints"), QStringLiteral("fraHints"), this);
    txtHints = makeReader(QStringLiteral("txtHints"), 15, fraHints);
    txtHints->setAccessibleName(tr("Hints"));
    txtHints->setPlaceholderText(tr("Press Next Hint to see the first step of the solution."));
    cmdHint =
        MakeBoldBrightButton(tr("Next Hin&t"), QStringLiteral("cmdHint"), "#00838F", fraHints, 44);
    cmdHintOK = MakeBoldBrightButton(tr("Hi&de Hints"), QStringLiteral("cmdHintOK"), "#546E7A",
                                     fraHints, 44);
    auto *hintButtons = new QVBoxLayout;
    hintButtons->addWidget(cmdHint);
    hintButtons->addWidget(cmdHintOK);
    hintButtons->addStretch();
    auto *hintLayout = new QHBoxLayout(fraHints);
    hintLayout->addWidget(txtHints, 1);
    hintLayout->addLayout(hintButtons);

    fraSolution = makeFrame(tr("Solution"), QStringLiteral("fraSolution"), this);
    txtSolution = makeReader(QStringLiteral("txtSolution"), 15, fraSolution);
    txtSolution->setAccessibleName(tr("Solution"));
    auto *solutionLayout = new QVBoxLayout(fraSolution);
    solutionLayout->addWidget(txtSolution);

    fraChoice = makeFrame(tr("Detective's Desk"), QStringLiteral("fraChoice"), this);
    cmdNew =
        MakeBoldBrightButton(tr("&New Case"), QStringLiteral("cmdNew"), "#2E7D32", fraChoice, 44);
    cmdOld =
        MakeBoldBrightButton(tr("&Old Case"), QStringLiteral("cmdOld"), "#1565C0", fraChoice, 44);
    cmdHelp =
        MakeBoldBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#6A1B9A", fraChoice, 44);
    cmdExit = MakeBoldBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828",
                                   fraChoice, 44);
    auto *choiceLayout = new QGridLayout(fraChoice);
    choiceLayout->addWidget(cmdNew, 0, 0);
    choiceLayout->addWidget(cmdOld, 0, 1);
    choiceLayout->addWidget(cmdHelp, 1, 0);
    choiceLayout->addWidget(cmdExit, 1, 1);

    fraDiff = makeFrame(tr("Detective Level"), QStringLiteral("fraDiff"), this);
    auto *diffLayout = new QGridLayout(fraDiff);
    for (int i = 0; i < CaseNumber::Levels; ++i) {
        const QString caption = CaseNumber::levelCaption(i + 1);
        auto *option =
            Named(new QRadioButton(levelMnemonic(i + 1), fraDiff), ArrayName("optDiff", i));
        option->setAccessibleName(caption);
        option->installEventFilter(this);
        option->setStyleSheet(
            QStringLiteral("QRadioButton { padding: 4px; }"
                           "QRadioButton::indicator { width: 20px; height: 20px; }"));
        setType(option, this, 16);
        // The state change, not the click: screen readers and switch access toggle it.
        connect(option, &QRadioButton::toggled, this, [this, i](bool on) {
            if (on)
                setLevel(i + 1);
        });
        diffLayout->addWidget(option, i, 0, 1, 2);
        optDiff.append(option);
    }
    cmdOK = MakeBoldBrightButton(tr("OK"), QStringLiteral("cmdOK"), "#2E7D32", fraDiff, 44);
    cmdCancel =
        MakeBoldBrightButton(tr("Cancel"), QStringLiteral("cmdCancel"), "#546E7A", fraDiff, 44);
    diffLayout->addWidget(cmdOK, CaseNumber::Levels, 0);
    diffLayout->addWidget(cmdCancel, CaseNumber::Levels, 1);

    fraCase = makeFrame(tr("Old Case"), QStringLiteral("fraCase"), this);
    auto *prompt = new QLabel(tr("Type the seven-digit case number:"), fraCase);
    prompt->setWordWrap(true);
    prompt->setTextFormat(Qt::PlainText);
    setType(prompt, this, 14);
    txtCNum = Named(new QLineEdit(fraCase), QStringLiteral("txtCNum"));
    txtCNum->setAccessibleName(tr("Case number"));
    setType(txtCNum, this, 20, true);
    txtCNum->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), txtCNum));
    txtCNum->installEventFilter(this);
    prompt->setBuddy(txtCNum);
    cmdOKCN = MakeBoldBrightButton(tr("OK"), QStringLiteral("cmdOKCN"), "#2E7D32", fraCase, 44);
    cmdCancelCN =
        MakeBoldBrightButton(tr("Cancel"), QStringLiteral("cmdCancelCN"), "#546E7A", fraCase, 44);
    auto *caseLayout = new QGridLayout(fraCase);
    caseLayout->addWidget(prompt, 0, 0, 1, 2);
    caseLayout->addWidget(txtCNum, 1, 0, 1, 2);
    caseLayout->addWidget(cmdOKCN, 2, 0);
    caseLayout->addWidget(cmdCancelCN, 2, 1);

    fraAccuse = makeFrame(tr("Accuse a Suspect"), QStringLiteral("fraAccuse"), this);
    // Two to a row, so the desk stays short enough for a small or highly scaled screen.
    auto *accuseLayout = new QGridLayout(fraAccuse);
    for (int i = 0; i < Case::Suspects; ++i) {
        auto *button =
            MakeBoldBrightButton(QString(), ArrayName("cmdSuspect", i), "#EF6C00", fraAccuse, 44);
        connect(button, &QPushButton::clicked, this, [this, i] { cmdSuspect_Click(i); });
        accuseLayout->addWidget(button, i / 2, i % 2, 1,
                                i == Case::Suspects - 1 && i % 2 == 0 ? 2 : 1);
        cmdSuspect.append(button);
    }

    fraOver = makeFrame(tr("Case Closed"), QStringLiteral("fraOver"), this);
    lblOver = Named(new QLabel(fraOver), QStringLiteral("lblOver"));
    lblOver->setWordWrap(true);
    lblOver->setTextFormat(Qt::PlainText);
    lblOver->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setType(lblOver, this, 15, true);
    auto *overLayout = new QVBoxLayout(fraOver);
    overLayout->addWidget(lblOver);

    fraSolve = makeFrame(tr("Stuck?"), QStringLiteral("fraSolve"), this);
    cmdHints = MakeBoldBrightButton(tr("&Get a Hint"), QStringLiteral("cmdHints"), "#00838F",
                                    fraSolve, 44);
    cmdSoln =
        MakeBoldBrightButton(tr("&Solution"), QStringLiteral("cmdSoln"), "#455A64", fraSolve, 44);
    auto *solveLayout = new QHBoxLayout(fraSolve);
    solveLayout->addWidget(cmdHints);
    solveLayout->addWidget(cmdSoln);

    fraPrint = Named(new QWidget(this), QStringLiteral("fraPrint"));
    lblPrintCase = Named(new QLabel(tr("Print:"), fraPrint), QStringLiteral("lblPrintCase"));
    lblPrintCase->setTextFormat(Qt::PlainText);
    lblPrintCase->setStyleSheet(QStringLiteral("color: #1A237E; font-weight: bold;"));
    cmdPrintCase =
        MakeBoldBrightButton(tr("C&ase"), QStringLiteral("cmdPrintCase"), "#5D4037", fraPrint, 44);
    cmdPrintClues = MakeBoldBrightButton(tr("Clu&es"), QStringLiteral("cmdPrintClues"), "#5D4037",
                                         fraPrint, 44);
    cmdPrintSoln = MakeBoldBrightButton(tr("Solut&ion"), QStringLiteral("cmdPrintSoln"), "#5D4037",
                                        fraPrint, 44);
    auto *printLayout = new QHBoxLayout(fraPrint);
    printLayout->setContentsMargins(0, 0, 0, 0);
    printLayout->addWidget(lblPrintCase);
    printLayout->addWidget(cmdPrintCase);
    printLayout->addWidget(cmdPrintClues);
    printLayout->addWidget(cmdPrintSoln);

    auto *left = new QVBoxLayout;
    left->addWidget(lblDescribe);
    left->addWidget(picCover, 3);
    left->addWidget(SSTab1, 3);
    left->addWidget(fraHints, 2);

    auto *right = new QVBoxLayout;
    right->addWidget(fraChoice);
    right->addWidget(fraDiff);
    right->addWidget(fraCase);
    right->addWidget(fraAccuse);
    right->addWidget(fraOver);
    right->addWidget(fraSolve);
    // The solution takes the room the accusation frames leave once the case is over.
    right->addWidget(fraSolution, 1);
    right->addStretch(0);
    right->addWidget(fraPrint);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 12, 14, 12);
    layout->setSpacing(14);
    layout->addLayout(left, 3);
    layout->addLayout(right, 2);

    connect(cmdNew, &QPushButton::clicked, this, &frmThief::cmdNew_Click);
    connect(cmdOld, &QPushButton::clicked, this, &frmThief::cmdOld_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmThief::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdOK, &QPushButton::clicked, this, &frmThief::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmThief::cmdCancel_Click);
    connect(cmdOKCN, &QPushButton::clicked, this, &frmThief::cmdOKCN_Click);
    connect(cmdCancelCN, &QPushButton::clicked, this, &frmThief::cmdCancelCN_Click);
    connect(cmdHints, &QPushButton::clicked, this, &frmThief::cmdHints_Click);
    connect(cmdHint, &QPushButton::clicked, this, &frmThief::cmdHint_Click);
    connect(cmdHintOK, &QPushButton::clicked, this, &frmThief::cmdHintOK_Click);
    connect(cmdSoln, &QPushButton::clicked, this, &frmThief::cmdSoln_Click);
    connect(cmdPrintCase, &QPushButton::clicked, this,
            [this] { printPaper(tr("Print Case"), CasePaper); });
    connect(cmdPrintClues, &QPushButton::clicked, this,
            [this] { printPaper(tr("Print Clues"), CluesPaper); });
    connect(cmdPrintSoln, &QPushButton::clicked, this,
            [this] { printPaper(tr("Print Solution"), SolutionPaper); });
}

// The pupil's notebook: for each suspect, a box to cross the suspect off and one list per
// attribute to note what the clues have shown. Nothing here is checked; it is the pupil's.
QWidget *frmThief::buildSuspectsTab()
{
    auto *scroll = Named(new QScrollArea(this), QStringLiteral("picSuspects"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *page = new QWidget(scroll);
    page->setAutoFillBackground(true);
    QPalette paper = page->palette();
    paper.setColor(QPalette::Window, Qt::white);
    page->setPalette(paper);
    m_notesLayout = new QVBoxLayout(page);
    auto *help = new QLabel(tr("Use these notes while you read the clues: pick what you find out "
                               "about each suspect, and cross off suspects who cannot be the "
                               "thief."),
                            page);
    help->setWordWrap(true);
    help->setTextFormat(Qt::PlainText);
    help->setFont(font());
    help->setStyleSheet(QStringLiteral("color: #455A64;"));
    m_notesLayout->addWidget(help);
    m_notesLayout->addStretch();
    scroll->setWidget(page);
    return scroll;
}

void frmThief::fillSuspectNotes()
{
    while (m_notesLayout->count() > 2) {
        QLayoutItem *item = m_notesLayout->takeAt(1);
        delete item->widget();
        delete item;
    }
    if (!m_case)
        return;
    QCollator collator;
    collator.setNumericMode(true);
    QList<QStringList> choices;
    for (const auto &column : m_case->values) {
        QStringList values(column.cbegin(), column.cend());
        // Sorted, so the order of the lists gives nothing away.
        std::sort(values.begin(), values.end(), collator);
        choices.append(values);
    }
    for (int s = 0; s < Case::Suspects; ++s) {
        auto *card = Named(new QFrame, ArrayName("fraSuspectCard", s));
        card->setFont(font());
        card->setStyleSheet(QStringLiteral("#%1 { border: 2px solid #FFCC80; border-radius: 10px;"
                                           " background: #FFF3E0; }")
                                .arg(card->objectName()));
        auto *grid = new QGridLayout(card);
        auto *name = Named(new QLabel(m_case->displayList[s], card), ArrayName("lblNoteName", s));
        setType(name, this, 16, true);
        setStrikeOut(name, false);
        card->setAccessibleName(m_case->displayList[s]);
        name->setTextFormat(Qt::PlainText);
        auto *crossed =
            Named(new QCheckBox(tr("Not the thief"), card), ArrayName("chkRuledOut", s));
        crossed->setAccessibleName(tr("%1 is not the thief").arg(m_case->displayList[s]));
        crossed->setStyleSheet(
            QStringLiteral("QCheckBox::indicator { width: 20px; height: 20px; }"));
        setType(crossed, this, 13);
        connect(crossed, &QCheckBox::toggled, name, [name](bool on) { setStrikeOut(name, on); });
        grid->addWidget(name, 0, 0, 1, 2);
        grid->addWidget(crossed, 0, 2, Qt::AlignRight);
        for (int k = 0; k < Case::Attributes; ++k) {
            auto *combo = Named(new QComboBox(card), QStringLiteral("cboNote_%1_%2").arg(s).arg(k));
            combo->addItem(m_case->titles[k] + QStringLiteral("?"));
            combo->addItems(choices[k]);
            combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            combo->setMinimumContentsLength(10);
            combo->setAccessibleName(tr("%1 of %2").arg(m_case->titles[k], m_case->displayList[s]));
            setType(combo, this, 13);
            grid->addWidget(combo, 1 + k / 3, k % 3);
        }
        m_notesLayout->insertWidget(1 + s, card);
    }
}

void frmThief::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to play.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("Stop Thief!"),
                   tr("Stop Thief! cannot start because its word file is missing or "
                      "damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

bool frmThief::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return ActivityWindow::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const bool escape = key->key() == Qt::Key_Escape;
    if (watched == txtCNum) {
        if (enter || escape) {
            (enter ? cmdOKCN : cmdCancelCN)->click();
            return true;
        }
        // Keys that move the focus or edit the box stay free; typed characters must be digits.
        const QString text = key->text();
        const bool editing = key->matches(QKeySequence::Paste) ||
                             key->matches(QKeySequence::Copy) || key->matches(QKeySequence::Cut) ||
                             key->matches(QKeySequence::SelectAll) ||
                             key->matches(QKeySequence::Undo) || key->key() == Qt::Key_Delete ||
                             key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        if (text.isEmpty() || editing || key->key() == Qt::Key_Backspace ||
            (text.size() == 1 && text[0] >= u'0' && text[0] <= u'9'))
            return false;
        Beep();
        return true;
    }
    if ((enter || escape) && optDiff.contains(watched)) {
        (enter ? cmdOK : cmdCancel)->click();
        return true;
    }
    return ActivityWindow::eventFilter(watched, event);
}

int frmThief::level() const
{
    return qBound(1, int(TheSettings().stopThief.level), int(CaseNumber::Levels));
}

void frmThief::setLevel(int newLevel)
{
    TheSettings().stopThief.level = static_cast<qint16>(newLevel);
    optDiff[newLevel - 1]->setChecked(true);
}

QString frmThief::levelMnemonic(int level)
{
    // Letters that no other control of this window uses while the levels are on show.
    static const char *const captions[] = {"&Beginner", "&Novice", "Ex&perienced", "Ad&vanced",
                                           "Expe&rt"};
    return level >= 1 && level <= CaseNumber::Levels ? tr(captions[level - 1]) : QString();
}

void frmThief::showStartState()
{
    lblDescribe->setText(tr("Press New Case to get a case to solve, or Old Case to type the "
                            "number of a case you were given."));
    SSTab1->setEnabled(false);
    SSTab1->hide();
    picCover->show();
    fraDiff->hide();
    fraCase->hide();
    fraAccuse->hide();
    fraOver->hide();
    fraSolve->hide();
    fraHints->hide();
    fraSolution->hide();
    fraPrint->hide();
    fraChoice->show();
}

bool frmThief::confirmLeavingCase(const QString &title, const QString &question)
{
    if (!m_inProgress)
        return true;
    return MsgBox(this, title, question, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                  QMessageBox::No) == QMessageBox::Yes;
}

void frmThief::cmdNew_Click()
{
    if (!confirmLeavingCase(tr("New Case"), tr("You have not finished the current case.  Do you "
                                               "still want to start a new case?")))
        return;
    setLevel(level());
    fraChoice->hide();
    fraCase->hide();
    fraDiff->show();
    optDiff[level() - 1]->setFocus();
}

void frmThief::cmdOK_Click()
{
    txtCase->clear();
    txtClues->clear();
    buildCase(CaseNumber::makeNew(static_cast<qint16>(level())));
    fraDiff->hide();
    fraChoice->show();
    cmdNew->setFocus();
}

void frmThief::cmdCancel_Click()
{
    fraDiff->hide();
    fraChoice->show();
    cmdNew->setFocus();
}

void frmThief::cmdOld_Click()
{
    if (!confirmLeavingCase(tr("Old Case"), tr("You have not finished the current case.  Do you "
                                               "still want to re-load an old case?")))
        return;
    fraChoice->hide();
    fraDiff->hide();
    fraCase->show();
    txtCNum->clear();
    txtCNum->setFocus();
}

void frmThief::cmdOKCN_Click()
{
    const QString typed = txtCNum->text();
    const QString problem = CaseNumber::problem(typed);
    if (!problem.isEmpty()) {
        MsgBox(this, QString::fromLatin1(InvalidCaseTitle), problem, QMessageBox::Information);
        txtCNum->setFocus();
        txtCNum->selectAll();
        return;
    }
    buildCase(typed);
    fraCase->hide();
    fraChoice->show();
    cmdOld->setFocus();
}

void frmThief::cmdCancelCN_Click()
{
    fraCase->hide();
    fraChoice->show();
    cmdOld->setFocus();
}

void frmThief::buildCase(const QString &number)
{
    const auto parsed = CaseNumber::parse(number);
    if (!m_builder || !parsed)
        return;
    m_case = m_builder->build(*parsed);
    setLevel(parsed->level);

    lblDescribe->setText(tr("Case Number %1 (%2 Level)")
                             .arg(m_case->number, CaseNumber::levelCaption(m_case->level)));
    txtCase->setPlainText(m_case->caseText);
    txtClues->setPlainText(m_case->clueList);
    setClueIndents();
    fillSuspectNotes();
    SSTab1->setEnabled(true);
    picCover->hide();
    SSTab1->show();
    SSTab1->setCurrentIndex(0);

    for (int i = 0; i < Case::Suspects; ++i) {
        // A name is no mnemonic: an ampersand in one is doubled so that it shows as written.
        cmdSuspect[i]->setText(QString(m_case->displayList[i]).replace(u'&', QStringLiteral("&&")));
    }
    fraAccuse->show();
    lblOver->clear();
    fraOver->hide();
    fraSolve->show();
    txtHints->clear();
    m_hintText.clear();
    m_hintsShown = 0;
    cmdHint->setEnabled(true);
    fraHints->hide();
    txtSolution->clear();
    fraSolution->setTitle(tr("Solution"));
    fraSolution->hide();
    fraPrint->show();
    m_inProgress = true;
}

// Each clue continues under its own first word and stands a little apart from the next, so
// that a pupil finds clue 9 again at a glance; the text itself stays as listed.
void frmThief::setClueIndents()
{
    const QFontMetrics metrics(txtClues->font());
    const qreal indent = metrics.horizontalAdvance(QStringLiteral("Clue 10:  "));
    for (QTextBlock block = txtClues->document()->begin(); block.isValid(); block = block.next()) {
        if (!block.text().startsWith(QLatin1String("Clue ")))
            continue;
        QTextBlockFormat format = block.blockFormat();
        format.setLeftMargin(indent);
        format.setTextIndent(-indent);
        format.setBottomMargin(metrics.height() * 0.3);
        QTextCursor(block).setBlockFormat(format);
    }
}

void frmThief::cmdHints_Click()
{
    fraHints->show();
    if (m_hintsShown == 0)
        cmdHint_Click();
    cmdHint->setFocus();
}

void frmThief::cmdHint_Click()
{
    if (!m_case || m_hintsShown >= m_case->solution.steps())
        return;
    const qsizetype stepStart = m_hintText.size();
    for (const QString &sentence : m_case->solution.step(m_hintsShown))
        m_hintText += sentence + QStringLiteral("\n\n");
    txtHints->setPlainText(m_hintText);
    ++m_hintsShown;
    // The new step comes into view, not the end of the box.
    QTextCursor cursor(txtHints->document());
    cursor.setPosition(int(stepStart));
    txtHints->setTextCursor(cursor);
    QScrollBar *scroll = txtHints->verticalScrollBar();
    scroll->setValue(scroll->value() + txtHints->cursorRect().top());
    if (m_hintsShown >= m_case->solution.steps()) {
        cmdHint->setEnabled(false);
        cmdHintOK->setFocus();
    }
}

void frmThief::cmdHintOK_Click()
{
    fraHints->hide();
    cmdHints->setFocus();
}

void frmThief::cmdSuspect_Click(int index)
{
    if (!m_case || !m_inProgress)
        return;
    m_inProgress = false;
    const QString name = m_case->displayList[index];
    int rank = level();
    QString text;
    if (!m_case->isThief(name)) {
        PlaySound(m_uhOhSound, SND_ASYNC);
        text = QStringLiteral("Sorry, you have accused the wrong suspect - ") + name +
               QStringLiteral(" is not the thief.  Check the solution for the correct suspect.") +
               QStringLiteral("\n\n");
        if (rank <= 1) {
            text += QStringLiteral("You remain a Beginner Detective.");
        } else {
            setLevel(--rank);
            text += QStringLiteral("You have been demoted to ") + CaseNumber::levelCaption(rank) +
                    QStringLiteral(" Detective.");
        }
    } else {
        PlaySound(m_tadaSound, SND_ASYNC);
        text = QStringLiteral("Correct!  Congratulations.  ") + m_case->thief +
               QStringLiteral(" is the thief, has apologized to ") + m_case->victim +
               QStringLiteral(", and returned ") + m_case->thing + QStringLiteral(".") +
               QStringLiteral("\n\n");
        if (rank >= CaseNumber::Levels) {
            text += QStringLiteral("You remain an Expert Detective!");
        } else {
            setLevel(++rank);
            text += QStringLiteral("You have been promoted to ") + CaseNumber::levelCaption(rank) +
                    QStringLiteral(" Detective.");
        }
    }
    lblOver->setText(text);
    Announce(lblOver, text);
    fraOver->setTitle(m_case->isThief(name) ? tr("Case Solved!") : tr("Case Closed"));
    fraOver->setStyleSheet(frameStyle(m_case->isThief(name) ? "#E8F5E9" : "#FFEBEE"));
    fraAccuse->hide();
    fraHints->hide();
    fraOver->show();
    cmdSoln->setFocus();
}

void frmThief::cmdSoln_Click()
{
    if (!m_case)
        return;
    m_inProgress = false;
    txtSolution->setPlainText(m_case->solution.text());
    fraSolution->setTitle(QStringLiteral("Solution-Case Number ") + m_case->number);
    fraAccuse->hide();
    fraHints->hide();
    fraSolve->hide();
    fraSolution->show();
    cmdNew->setFocus();
}

void frmThief::printPaper(const QString &title, int paper)
{
    if (!m_case)
        return;
    if (MsgBox(this, title, QStringLiteral("Make sure printer is on-line and ready."),
               QMessageBox::Information, QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok)
        return;
    switch (paper) {
    case CasePaper:
        PrintWithPreview(this, CasePapers::caseDocument(*m_case));
        break;
    case CluesPaper:
        PrintWithPreview(this, CasePapers::cluesDocument(*m_case));
        break;
    default:
        PrintWithPreview(this, CasePapers::solutionDocument(*m_case));
        break;
    }
}
