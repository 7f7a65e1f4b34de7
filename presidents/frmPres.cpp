// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmPres.h"

#include "QuizPortrait.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/widgets/PictureBox.h"
#include "shell/WindowUtil.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Presidents;

namespace {
enum Page { PortraitPage, RowPage };

// The panel of the president to name is dashed and pale; the others are plain.
QString panelStyle(bool missing)
{
    return missing ? QStringLiteral("QGroupBox { border: 3px dashed #E65100; border-radius: 10px;"
                                    " background: #FFF3E0; }")
                   : QStringLiteral("QGroupBox { border: 2px solid #9FA8DA; border-radius: 10px;"
                                    " background: #FFFFFF; }");
}

constexpr QuizLook Look{"#1A237E", "#9FA8DA", "#C5CAE9"};
} // namespace

frmPres::frmPres(QWidget *parent) : QuizWindow(QStringLiteral("presidents"), Look, parent)
{
    setObjectName(QStringLiteral("frmPres"));
    setWindowTitle(tr("US Presidents"));
    applyLook(QColor(0xE8, 0xEA, 0xF6));

    buildControls();

    if (!m_table.load(DataFile(QString::fromLatin1(FileName)), Layout())) {
        m_loadError = m_table.error().message();
    } else if (const FileError dates = CheckDates(m_table); dates.isSet()) {
        qCWarning(lcPresidents) << "cannot read" << dates.message();
        m_loadError = dates.message();
        m_table = QuizTable();
    }
    openIdle();
}

frmPres::~frmPres() = default;

void frmPres::buildControls()
{
    // Page 1: one president's portrait and facts.
    auto *portraitPage = new QWidget(this);
    imgPres = Named(new PictureBox(portraitPage), QStringLiteral("imgPres"));
    imgPres->setAccessibleName(tr("Portrait of the president"));
    imgPres->setMinimumSize(96, 120);
    imgPres->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    lblName = addLabel(QStringLiteral("lblName"), tr("President"), 1.6, true);
    lblName->setStyleSheet(QStringLiteral("color: #1A237E;"));
    lblNumber = addLabel(QStringLiteral("lblNumber"), tr("Number"), 1.2, true);
    lblNumber->setStyleSheet(QStringLiteral("color: #B71C1C;"));
    lblDate = addLabel(QStringLiteral("lblDate"), tr("Born on"), 1.0);
    lblPlace = addLabel(QStringLiteral("lblPlace"), tr("Born in"), 1.0);
    lblTerm = addLabel(QStringLiteral("lblTerm"), tr("Years as president"), 1.1, true);
    lblParty = addLabel(QStringLiteral("lblParty"), tr("Party"), 1.0);
    lblParty->setStyleSheet(QStringLiteral("color: #4A148C;"));
    for (int i = 0; i < Facts; ++i)
        lblFact.append(addLabel(ArrayName("lblFact", i), tr("Fact %1").arg(i + 1), 0.95));
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
        auto *number = addLabel(ArrayName("lblWNum", k), tr("Number, place %1").arg(k), 1.05, true);
        number->setAlignment(Qt::AlignCenter);
        auto *picture = Named(new PictureBox(panel), ArrayName("imgWho", k));
        picture->setAccessibleName(tr("Portrait, place %1").arg(k));
        picture->setMinimumSize(36, 45);
        picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        auto *name = addLabel(ArrayName("lblWho", k), tr("Name, place %1").arg(k), 1.1, true);
        name->setAlignment(Qt::AlignCenter);
        auto *term = addLabel(ArrayName("lblWTerm", k), tr("Years, place %1").arg(k), 1.0);
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

    const AnswerRows rows =
        buildAnswerControls("#283593", tr("Previous president"), tr("Next president"));
    txtAnswer->setPlaceholderText(tr("Type here, then Enter"));

    fraChoice = Named(new QGroupBox(tr("US Presidents"), this), QStringLiteral("fraChoice"));
    fraChoice->setStyleSheet(frameStyle());
    m_typeScale.append({fraChoice, 1.05, true});
    auto *play = new QVBoxLayout(fraChoice);
    play->setSpacing(8);
    play->addWidget(picArea, 1);
    play->addWidget(lblPrompt);
    play->addLayout(rows.answer);
    play->addWidget(lblResult);
    play->addLayout(rows.actions);

    buildModes({tr("&Review Presidents"), tr("&Name the President"), tr("&Who Is Missing?")},
               {"#283593", "#EF6C00", "#2E7D32"});
    fraType = buildOptions(tr("Answer Type"), QStringLiteral("fraType"), "optType",
                           {tr("Type-In"), tr("Multiple Choice")},
                           qBound(0, int(TheSettings().presidents.answerType), 1), optType,
                           [this](int index) {
                               TheSettings().presidents.answerType = qint16(index);
                               optionChanged();
                           });
    finishControls({fraChoices, fraType});
}

QString frmPres::modeTitle(int mode) const
{
    static const char *const captions[] = {QT_TR_NOOP("US Presidents"),
                                           QT_TR_NOOP("US Presidents-Review Presidents"),
                                           QT_TR_NOOP("US Presidents-Name the President"),
                                           QT_TR_NOOP("US Presidents-Who Is Missing?")};
    return tr(captions[mode]);
}

QString frmPres::cannotStart(const QString &error) const
{
    return tr("US Presidents cannot start because its file of presidents is missing "
              "or damaged.\n\n%1\n\nPlease reinstall the program.")
        .arg(error);
}

double frmPres::typeFactor() const
{
    return QuizPanels::typeFactor(this);
}

void frmPres::fitType()
{
    QuizWindow::fitType();
    for (QLabel *name : std::as_const(lblWho))
        if (name->text() == QLatin1String("?"))
            styleName(name, true);
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

void frmPres::showIdlePictures()
{
    picArea->setCurrentIndex(PortraitPage);
    // The idle window shows the first president, the start of the story.
    imgPres->load(DataFile(PortraitFile(1)));
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
        lblDate->setText(BirthDateText(m_table, n));
        break;
    case BirthPlaceItem:
        lblPlace->setText(BirthPlaceText(m_table, n));
        break;
    case TermItem:
        lblTerm->setText(TermText(m_table, n));
        break;
    case PartyItem:
        lblParty->setText(PartyText(m_table, n));
        break;
    case Fact1Item:
    case Fact2Item:
    case Fact3Item:
    case Fact4Item:
        lblFact[item - Fact1Item]->setText(m_table.text(n, FirstFact + item - Fact1Item));
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
    lblName->setText(m_table.text(m_quiz.currentRecord(), Name));
    showAllItems();
    lblPrompt->setText(tr("Use the arrows to meet the presidents in order."));
    lblScore->setText(tr("President %1 of %2").arg(m_quiz.currentRecord()).arg(m_table.count()));
    fraNext->show();
}

void frmPres::showWhoRow()
{
    for (int k = 0; k < 3; ++k) {
        const int n = m_who.row[k];
        const bool hidden = k + 1 == m_who.position && !m_quiz.isAnswered();
        fraWho[k]->setStyleSheet(panelStyle(k + 1 == m_who.position));
        lblWNum[k]->setText(NumberText(n));
        lblWho[k]->setText(hidden ? QStringLiteral("?") : m_table.text(n, Name));
        styleName(lblWho[k], hidden);
        lblWho[k]->setAccessibleDescription(hidden ? tr("Who is missing here?") : QString());
        lblWTerm[k]->setText(hidden ? QString() : TermText(m_table, n));
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

void frmPres::prepareQuestion(bool newQuestion)
{
    const int current = m_quiz.currentRecord();
    if (m_quiz.mode() == WhoMode) {
        if (newQuestion)
            m_who = BuildWhoIsMissing(m_table, current);
        m_quiz.setChoices(QList<int>(m_who.choices.begin(), m_who.choices.end()));
    } else if (m_quiz.plan().multipleChoice) {
        m_quiz.setChoices(DistinctChoices(m_table, m_quiz.choices(), current));
    }
}

void frmPres::askQuestion()
{
    if (m_quiz.mode() == NameMode) {
        picArea->setCurrentIndex(PortraitPage);
        showItem(m_quiz.clueOrder().value(1));
        lblPrompt->setText(tr("Who is this president? Read the clue, or ask for another."));
    } else {
        picArea->setCurrentIndex(RowPage);
        showWhoRow();
        lblPrompt->setText(tr("Three presidents in a row, but one is missing. Who is it?"));
    }
    const bool choicesShown = multipleChoice();
    txtAnswer->setVisible(!choicesShown);
    showChoices(choicesShown);
    if (choicesShown)
        lblanswer[0]->setFocus();
    else
        txtAnswer->setFocus();
}

QString frmPres::showHint()
{
    // The missing president's years in office.
    lblWTerm[m_who.position - 1]->setText(TermText(m_table, m_who.missing));
    return tr(" Here is a hint: the years in office. Try again.");
}

void frmPres::showAnswer()
{
    if (m_quiz.mode() == NameMode) {
        lblName->setText(m_quiz.expected());
        showAllItems();
    } else {
        showWhoRow();
    }
}

bool frmPres::choicesOffered() const
{
    // Who Is Missing? offers its own choices whenever the pupil picks rather than types.
    return multipleChoice();
}
