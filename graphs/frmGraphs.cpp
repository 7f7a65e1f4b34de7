// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmGraphs.h"

#include "ChartPainter.h"
#include "ChartView.h"
#include "ColourSwatch.h"
#include "frmGraphFile.h"
#include "GraphFolder.h"
#include "GraphPaper.h"

#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTextEdit>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcGraphs, "lumbridle.graphs")

namespace {

const QString NewName = QString::fromLatin1(GraphRules::NewName);

QLineEdit *makeBox(const QString &name, const QString &accessible, int maxLength, QWidget *parent)
{
    auto *box = Named(new QLineEdit(parent), name);
    box->setAccessibleName(accessible);
    box->setMaxLength(maxLength);
    box->setStyleSheet(
        QStringLiteral("QLineEdit { background: white; border: 2px solid #90A4AE;"
                       " border-radius: 6px; padding: 2px 6px; }"
                       "QLineEdit:focus { border: 3px solid #FFB300; }"
                       "QLineEdit:disabled { background: #ECEFF1; color: #78909C; }"));
    return box;
}

// Number boxes take digits, one "." and a leading "-" (or digits alone); other keys beep.
void makeNumberBox(QLineEdit *box, bool whole)
{
    const QString pattern = whole ? QStringLiteral("[0-9]*") : QStringLiteral("-?[0-9]*\\.?[0-9]*");
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), box));
    box->setAlignment(Qt::AlignRight);
    QObject::connect(box, &QLineEdit::inputRejected, box, [] { Beep(); });
}

// Every label here shows words, never markup, even where a typed name could end up in one.
QLabel *makeNote(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel *makeCaption(const QString &text, QWidget *buddy, QWidget *parent)
{
    auto *label = makeNote(text, parent);
    label->setBuddy(buddy);
    label->setStyleSheet(QStringLiteral("color: #1A237E; font-weight: bold;"));
    return label;
}

// A small picture of each kind of graph beside its option.
QIcon kindIcon(int type)
{
    QPixmap picture(96, 72);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x37, 0x47, 0x4F), 3));
    if (type == Graph::PieChart) {
        const QRectF pie(22, 4, 64, 64);
        const int spans[] = {150, 120, 90};
        int start = 90;
        for (int i = 0; i < 3; ++i) {
            painter.setBrush(ChartPainter::colour(i * 3));
            painter.drawPie(pie, start * 16, -spans[i] * 16);
            start -= spans[i];
        }
    } else {
        painter.drawLine(12, 4, 12, 66);
        painter.drawLine(12, 66, 92, 66);
        const double heights[] = {24, 44, 34, 56};
        QPolygonF line;
        for (int i = 0; i < 4; ++i) {
            const double x = 26 + i * 19;
            if (type == Graph::BarChart) {
                painter.setBrush(ChartPainter::colour(i));
                painter.drawRect(QRectF(x - 7, 66 - heights[i], 14, heights[i]));
            }
            line.append(QPointF(x, 66 - heights[i]));
        }
        if (type == Graph::LineGraph) {
            painter.drawPolyline(line);
            painter.setBrush(ChartPainter::colour(1));
            for (const QPointF &point : std::as_const(line))
                painter.drawEllipse(point, 5, 5);
        }
    }
    return QIcon(picture);
}

// Inside the styled frame a palette is not enough: the style sheet paints the page white.
void paintWhite(QScrollArea *scroll)
{
    scroll->setStyleSheet(
        QStringLiteral("#qt_scrollarea_viewport,"
                       " #qt_scrollarea_viewport > QWidget { background: white; }"));
}

// On a small screen (or at a large scaling) a step scrolls instead of pushing the window
// past the screen's edge.
QScrollArea *scrolling(QWidget *page, const QString &name)
{
    auto *scroll = new QScrollArea;
    scroll->setAccessibleName(name);
    // Tab goes straight to the boxes inside, and the page scrolls to show each one.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(page);
    paintWhite(scroll);
    return scroll;
}

// A number as a pupil would type it into a number box: no exponent, no trailing zeros.
QString plainNumber(float value)
{
    QString text = QString::number(double(value), 'f', 6);
    while (text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

float boxValue(const QLineEdit *box)
{
    return float(GraphRules::parseValue(box->text()).value_or(0.0));
}

} // namespace

frmGraphs::frmGraphs(QWidget *parent) : ActivityWindow(QStringLiteral("graphs"), parent)
{
    setObjectName(QStringLiteral("frmGraphs"));
    applyLook(QColor(0xE3, 0xF2, 0xFD));
    m_lesson = Lesson::steps();
    buildControls();

    Graph fresh;
    fresh.type = qint16(qBound(0, int(TheSettings().graphs.value), Graph::Types - 1));
    showGraph(fresh);
    m_name = NewName;
    setCaption();
    optType[fresh.type]->setFocus();

    QSize size(1180, 740);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableGeometry().size() * 0.95);
    resize(size);
}

frmGraphs::~frmGraphs() = default;

void frmGraphs::buildControls()
{
    picGraph = Named(new ChartView(this), QStringLiteral("picGraph"));
    picGraph->setAccessibleName(tr("Chart"));

    fraLearn = Named(new QGroupBox(tr("Graph Lesson"), this), QStringLiteral("fraLearn"));
    fraLearn->setStyleSheet(QStringLiteral(
        "QGroupBox { color: #4A148C; font-weight: bold; border: 3px solid #CE93D8;"
        " border-radius: 10px; margin-top: 14px; padding: 8px; background: #F3E5F5; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }"));
    // Its own lettering, or a styled frame would keep its size when a small screen shrinks
    // the window's.
    fraLearn->setFont(font());
    txtLearn = Named(new QTextEdit(fraLearn), QStringLiteral("txtLearn"));
    txtLearn->setReadOnly(true);
    txtLearn->setTabChangesFocus(true);
    txtLearn->setAcceptRichText(false);
    txtLearn->setAccessibleName(tr("Lesson"));
    txtLearn->setStyleSheet(QStringLiteral("QTextEdit { background: white; color: #212121;"
                                           " border: 2px solid #CE93D8; border-radius: 8px;"
                                           " padding: 4px; font-weight: normal; }"));
    QFont lessonType = font();
    lessonType.setPointSizeF(15);
    txtLearn->setFont(lessonType);
    cmdChange =
        MakeBoldBrightButton(tr("Contin&ue"), QStringLiteral("cmdChange"), "#6A1B9A", fraLearn, 42);
    cmdStopLearn = MakeBoldBrightButton(tr("&Quit Lesson"), QStringLiteral("cmdStopLearn"),
                                        "#546E7A", fraLearn, 42);
    auto *learnButtons = new QVBoxLayout;
    learnButtons->addWidget(cmdChange);
    learnButtons->addWidget(cmdStopLearn);
    learnButtons->addStretch();
    auto *learnLayout = new QHBoxLayout(fraLearn);
    learnLayout->addWidget(txtLearn, 1);
    learnLayout->addLayout(learnButtons);
    fraLearn->hide();

    fraFormat = Named(new QGroupBox(tr("Make Your Graph"), this), QStringLiteral("fraFormat"));
    fraFormat->setStyleSheet(QStringLiteral(
        "QGroupBox { color: #0D47A1; font-weight: bold; border: 2px solid #90CAF9;"
        " border-radius: 10px; margin-top: 14px; padding: 6px; background: #FFFFFF; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }"));
    fraFormat->setFont(font());
    auto *stepGroup = new QButtonGroup(this);
    auto *stepRow = new QHBoxLayout;
    const QStringList stepNames{tr("&1 Kind"), tr("&2 Titles"), tr("&3 Scale"), tr("&4 Data")};
    for (int i = 0; i < stepNames.size(); ++i) {
        auto *step = Named(new QPushButton(stepNames[i], fraFormat), ArrayName("cmdStep", i));
        step->setCheckable(true);
        step->setAccessibleName(tr("Step %1").arg(QString(stepNames[i]).remove(u'&')));
        step->setMinimumHeight(38);
        // A radius above half the height turns the pill square, and a small screen shrinks the
        // step buttons to about 24 pixels.
        step->setStyleSheet(QStringLiteral(
            "QPushButton { background: #E3F2FD; color: #0D47A1; border: 2px solid #90CAF9;"
            " border-radius: 11px; padding: 4px 10px; font-weight: bold; }"
            "QPushButton:checked { background: #1565C0; color: white; border-color: #0D47A1; }"
            "QPushButton:focus { border: 4px solid #FFD600; }"));
        stepGroup->addButton(step, i);
        stepRow->addWidget(step);
        cmdStep.append(step);
    }
    connect(stepGroup, &QButtonGroup::idClicked, this, &frmGraphs::goToStep);

    pages = Named(new QStackedWidget(fraFormat), QStringLiteral("pages"));
    pages->addWidget(scrolling(buildKindPage(), cmdStep[Lesson::KindPage]->accessibleName()));
    pages->addWidget(scrolling(buildTitlesPage(), cmdStep[Lesson::TitlesPage]->accessibleName()));
    pages->addWidget(scrolling(buildScalePage(), cmdStep[Lesson::ScalePage]->accessibleName()));
    pages->addWidget(buildDataPage()); // its rows scroll by themselves
    cmdFormatOK = MakeBoldBrightButton(tr("N&ext >"), QStringLiteral("cmdFormatOK"), "#1565C0",
                                       fraFormat, 42);
    auto *formatLayout = new QVBoxLayout(fraFormat);
    formatLayout->addLayout(stepRow);
    formatLayout->addWidget(pages, 1);
    formatLayout->addWidget(cmdFormatOK, 0, Qt::AlignRight);
    // A styled frame does not hand the window's lettering down to its children.
    const auto children = fraFormat->findChildren<QWidget *>();
    for (QWidget *child : children)
        if (!child->testAttribute(Qt::WA_SetFont))
            child->setFont(font());

    auto *buttons = Named(new QWidget(this), QStringLiteral("fraButtons"));
    cmdNewGraph =
        MakeBoldBrightButton(tr("&New"), QStringLiteral("cmdNewGraph"), "#2E7D32", buttons, 42);
    cmdOpenGraph =
        MakeBoldBrightButton(tr("&Open"), QStringLiteral("cmdOpenGraph"), "#00838F", buttons, 42);
    cmdSaveGraph =
        MakeBoldBrightButton(tr("&Save"), QStringLiteral("cmdSaveGraph"), "#1565C0", buttons, 42);
    cmdClear =
        MakeBoldBrightButton(tr("&Clear"), QStringLiteral("cmdClear"), "#EF6C00", buttons, 42);
    cmdPrint =
        MakeBoldBrightButton(tr("&Print"), QStringLiteral("cmdPrint"), "#5D4037", buttons, 42);
    cmdLearn =
        MakeBoldBrightButton(tr("Lea&rn"), QStringLiteral("cmdLearn"), "#6A1B9A", buttons, 42);
    cmdHelp = MakeBoldBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#455A64", buttons, 42);
    cmdBuildDone = MakeBoldBrightButton(exitCaption(false), QStringLiteral("cmdBuildDone"),
                                        "#C62828", buttons, 42);
    cmdLearn->setAccessibleName(tr("Learn about graphs"));
    auto *buttonGrid = new QGridLayout(buttons);
    buttonGrid->setContentsMargins(0, 0, 0, 0);
    const QList<QPushButton *> all{cmdNewGraph, cmdOpenGraph, cmdSaveGraph, cmdClear,
                                   cmdPrint,    cmdLearn,     cmdHelp,      cmdBuildDone};
    for (int i = 0; i < all.size(); ++i)
        buttonGrid->addWidget(all[i], i / 4, i % 4);

    auto *left = new QVBoxLayout;
    left->addWidget(picGraph, 3);
    left->addWidget(fraLearn, 2);
    auto *right = new QVBoxLayout;
    right->addWidget(fraFormat, 1);
    right->addWidget(buttons);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->setSpacing(12);
    layout->addLayout(left, 3);
    layout->addLayout(right, 2);

    connect(cmdFormatOK, &QPushButton::clicked, this, &frmGraphs::cmdFormatOK_Click);
    connect(cmdNewGraph, &QPushButton::clicked, this, &frmGraphs::cmdNewGraph_Click);
    connect(cmdOpenGraph, &QPushButton::clicked, this, &frmGraphs::cmdOpenGraph_Click);
    connect(cmdSaveGraph, &QPushButton::clicked, this, &frmGraphs::cmdSaveGraph_Click);
    connect(cmdClear, &QPushButton::clicked, this, &frmGraphs::cmdClear_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmGraphs::cmdPrint_Click);
    connect(cmdLearn, &QPushButton::clicked, this, &frmGraphs::cmdLearn_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmGraphs::openHelp);
    connect(cmdBuildDone, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdChange, &QPushButton::clicked, this, &frmGraphs::cmdChange_Click);
    connect(cmdStopLearn, &QPushButton::clicked, this, &frmGraphs::cmdStopLearn_Click);
    goToStep(0);
}

QWidget *frmGraphs::buildKindPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *prompt = makeNote(tr("What kind of graph do you want to make?"), page);
    prompt->setWordWrap(true);
    layout->addWidget(prompt);
    const QStringList captions{tr("&Line Graph"), tr("&Bar Chart"), tr("P&ie Chart")};
    const QStringList hints{tr("shows how something changes over time"),
                            tr("compares groups with bars"), tr("shows the parts of one whole")};
    auto *group = new QButtonGroup(this);
    for (int i = 0; i < Graph::Types; ++i) {
        auto *option = Named(new QRadioButton(captions[i], page), ArrayName("optType", i));
        option->setAccessibleName(Graph::typeName(i));
        option->setAccessibleDescription(hints[i]);
        option->setStyleSheet(
            QStringLiteral("QRadioButton { font-weight: bold; padding: 4px; }"
                           "QRadioButton::indicator { width: 22px; height: 22px; }"));
        option->installEventFilter(this);
        option->setIcon(kindIcon(i));
        option->setIconSize(QSize(64, 48));
        group->addButton(option, i);
        auto *hint = makeNote(hints[i], page);
        hint->setWordWrap(true);
        hint->setStyleSheet(QStringLiteral("color: #546E7A; margin-left: 104px;"));
        layout->addWidget(option);
        layout->addWidget(hint);
        connect(option, &QRadioButton::toggled, this, [this, i](bool on) {
            if (!on || m_filling)
                return;
            if (!inLesson())
                TheSettings().graphs.value = qint16(i);
            updateStepCaptions();
            edited();
        });
        optType.append(option);
    }
    layout->addStretch();
    return page;
}

QWidget *frmGraphs::buildTitlesPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    txtTitle = makeBox(QStringLiteral("txtTitle"), tr("Graph title"), 60, page);
    txtXTitle = makeBox(QStringLiteral("txtXTitle"), tr("Horizontal title"), 40, page);
    txtYTitle = makeBox(QStringLiteral("txtYTitle"), tr("Vertical title"), 40, page);
    layout->addWidget(makeCaption(tr("Graph &title:"), txtTitle, page));
    layout->addWidget(txtTitle);
    layout->addWidget(makeCaption(tr("Hori&zontal title (under the labels):"), txtXTitle, page));
    layout->addWidget(txtXTitle);
    layout->addWidget(makeCaption(tr("&Vertical title (beside the scale):"), txtYTitle, page));
    layout->addWidget(txtYTitle);
    layout->addStretch();
    for (QLineEdit *box : {txtTitle, txtXTitle, txtYTitle}) {
        connect(box, &QLineEdit::textEdited, this, &frmGraphs::edited);
        box->installEventFilter(this);
    }
    return page;
}

QWidget *frmGraphs::buildScalePage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    txtYMin = makeBox(QStringLiteral("txtYMin"), tr("Scale minimum"), 9, page);
    txtYmax = makeBox(QStringLiteral("txtYmax"), tr("Scale maximum"), 9, page);
    txtYDiv = makeBox(QStringLiteral("txtYDiv"), tr("Divisions"), 3, page);
    makeNumberBox(txtYMin, false);
    makeNumberBox(txtYmax, false);
    makeNumberBox(txtYDiv, true);
    chkYGrid = Named(new QCheckBox(tr("&Grid Lines"), page), QStringLiteral("chkYGrid"));
    chkYGrid->setAccessibleName(tr("Grid Lines"));
    chkYGrid->setStyleSheet(QStringLiteral("QCheckBox::indicator { width: 22px; height: 22px; }"));
    auto *intro = makeNote(tr("The scale is the row of numbers up the side of the graph."), page);
    intro->setWordWrap(true);
    grid->addWidget(intro, 0, 0, 1, 3);
    grid->addWidget(makeCaption(tr("&Minimum (bottom):"), txtYMin, page), 1, 0);
    grid->addWidget(txtYMin, 1, 1);
    grid->addWidget(makeCaption(tr("M&aximum (top):"), txtYmax, page), 2, 0);
    grid->addWidget(txtYmax, 2, 1);
    grid->addWidget(makeCaption(tr("&Divisions:"), txtYDiv, page), 3, 0);
    grid->addWidget(txtYDiv, 3, 1);
    grid->addWidget(chkYGrid, 4, 0, 1, 2);
    lblScaleStep = Named(new QLabel(page), QStringLiteral("lblScaleStep"));
    lblScaleStep->setWordWrap(true);
    lblScaleStep->setTextFormat(Qt::PlainText);
    lblScaleStep->setStyleSheet(QStringLiteral("color: #2E7D32; font-weight: bold;"));
    grid->addWidget(lblScaleStep, 6, 0, 1, 3);
    lblPieScale = Named(makeNote(tr("A pie chart has no scale: its slices are parts of the "
                                    "whole."),
                                 page),
                        QStringLiteral("lblPieScale"));
    lblPieScale->setWordWrap(true);
    lblPieScale->setStyleSheet(QStringLiteral("color: #6A1B9A; font-weight: bold;"));
    grid->addWidget(lblPieScale, 5, 0, 1, 3);
    grid->setRowStretch(7, 1);
    grid->setColumnStretch(2, 1);
    for (QLineEdit *box : {txtYMin, txtYmax, txtYDiv}) {
        box->setMaximumWidth(170);
        connect(box, &QLineEdit::textChanged, this, &frmGraphs::describeScale);
        connect(box, &QLineEdit::textEdited, this, &frmGraphs::edited);
        box->installEventFilter(this);
    }
    connect(chkYGrid, &QCheckBox::toggled, this, [this] {
        if (!m_filling)
            edited();
    });
    return page;
}

QWidget *frmGraphs::buildDataPage()
{
    auto *page = new QWidget;
    auto *outer = new QVBoxLayout(page);
    outer->setContentsMargins(0, 0, 0, 0);
    auto *scroll = Named(new QScrollArea(page), QStringLiteral("fraRows"));
    fraRows = scroll;
    scroll->setAccessibleName(tr("Data rows"));
    scroll->setFocusPolicy(Qt::NoFocus); // the boxes take the focus, the list follows them
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *rows = new QWidget(scroll);
    paintWhite(scroll);
    auto *grid = new QGridLayout(rows);
    grid->setVerticalSpacing(3);
    grid->setContentsMargins(2, 2, 8, 2);
    const QStringList headings{QString(), tr("Label"), tr("Value"), tr("Colour")};
    for (int c = 0; c < headings.size(); ++c) {
        auto *heading = makeNote(headings[c], rows);
        heading->setStyleSheet(QStringLiteral("color: #1A237E; font-weight: bold;"));
        grid->addWidget(heading, 0, c, c == 2 ? Qt::AlignRight : Qt::AlignLeft);
    }
    QFont rowType = font();
    rowType.setPointSizeF(13);
    for (int i = 0; i < Graph::MaxPoints; ++i) {
        auto *number = makeNote(QString::number(i + 1), rows);
        number->setStyleSheet(QStringLiteral("color: #78909C;"));
        auto *label = makeBox(ArrayName("txtXLabel", i), tr("Label %1").arg(i + 1), 30, rows);
        auto *value = makeBox(ArrayName("txtYValue", i), tr("Value %1").arg(i + 1), 9, rows);
        makeNumberBox(value, false);
        label->setFont(rowType);
        value->setFont(rowType);
        value->setMaximumWidth(110);
        auto *colour = Named(new ColourSwatch(rows), ArrayName("lblColor", i));
        colour->setAccessibleName(tr("Colour of row %1").arg(i + 1));
        grid->addWidget(number, i + 1, 0);
        grid->addWidget(label, i + 1, 1);
        grid->addWidget(value, i + 1, 2);
        grid->addWidget(colour, i + 1, 3);
        for (QLineEdit *box : {label, value}) {
            connect(box, &QLineEdit::textEdited, this, &frmGraphs::edited);
            box->installEventFilter(this);
        }
        colour->installEventFilter(this);
        connect(colour, &ColourSwatch::clicked, this, [this, i] { setColourRow(i); });
        txtXLabel.append(label);
        txtYValue.append(value);
        lblColor.append(colour);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(Graph::MaxPoints + 1, 1); // spare room goes under the rows
    scroll->setWidget(rows);
    outer->addWidget(scroll, 1);

    auto *paintBox = Named(new QWidget(page), QStringLiteral("fraColorChoice"));
    auto *paintLayout = new QGridLayout(paintBox);
    paintLayout->setContentsMargins(0, 0, 0, 0);
    paintLayout->setSpacing(2);
    auto *paintCaption = makeNote(tr("Paint box: click a row's colour, then a new one."), paintBox);
    paintCaption->setWordWrap(true);
    paintCaption->setStyleSheet(QStringLiteral("color: #546E7A;"));
    paintLayout->addWidget(paintCaption, 0, 0, 1, Graph::Colours);
    for (int j = 0; j < Graph::Colours; ++j) {
        auto *choice = Named(new ColourSwatch(paintBox), ArrayName("lblColorChoice", j));
        choice->setColourIndex(j);
        choice->setAccessibleName(ChartPainter::colourName(j));
        connect(choice, &ColourSwatch::clicked, this, [this, j] {
            if (!lblColor[m_colourRow]->isEnabled())
                return;
            lblColor[m_colourRow]->setColourIndex(j);
            for (ColourSwatch *other : std::as_const(lblColorChoice))
                other->setMarked(other->colourIndex() == j);
            edited();
        });
        // One row of colours leaves the data rows above one more line on a small screen.
        paintLayout->addWidget(choice, 1, j);
        lblColorChoice.append(choice);
    }
    outer->addWidget(paintBox);

    chkPiePercent =
        Named(new QCheckBox(tr("Show Percent&ages"), page), QStringLiteral("chkPiePercent"));
    chkPiePercent->setAccessibleName(tr("Show Percentages"));
    chkPiePercent->setStyleSheet(
        QStringLiteral("QCheckBox::indicator { width: 22px; height: 22px; }"));
    connect(chkPiePercent, &QCheckBox::toggled, this, [this] {
        if (!m_filling)
            edited();
    });
    outer->addWidget(chkPiePercent);
    lblDataHint = Named(new QLabel(page), QStringLiteral("lblDataHint"));
    lblDataHint->setWordWrap(true);
    lblDataHint->setTextFormat(Qt::PlainText);
    lblDataHint->setStyleSheet(QStringLiteral("color: #C62828; font-weight: bold;"));
    lblDataHint->hide();
    outer->addWidget(lblDataHint);
    return page;
}

int frmGraphs::formatStep() const
{
    return pages->currentIndex();
}

void frmGraphs::goToStep(int step)
{
    step = qBound(0, step, int(cmdStep.size()) - 1);
    pages->setCurrentIndex(step);
    cmdStep[step]->setChecked(true);
    updateStepCaptions();
}

void frmGraphs::updateStepCaptions()
{
    const bool last = formatStep() == pages->count() - 1;
    cmdFormatOK->setText(last ? tr("&Draw") : tr("N&ext >"));
    cmdFormatOK->setAccessibleName(last ? tr("Draw") : tr("Next step"));
    const bool pie = optType[Graph::PieChart]->isChecked();
    lblPieScale->setVisible(pie);
    lblScaleStep->setVisible(!pie);
    chkPiePercent->setVisible(pie);
}

// Says in words what the three scale numbers make, so the pupil sees the step of each line.
void frmGraphs::describeScale()
{
    const double minimum = boxValue(txtYMin);
    const double maximum = boxValue(txtYmax);
    const qint16 divisions = GraphRules::fixDivisions(txtYDiv->text().toLongLong());
    if (GraphRules::scaleProblem(minimum, maximum)) {
        lblScaleStep->setText(tr("The maximum must be bigger than the minimum."));
        return;
    }
    lblScaleStep->setText(tr("The scale goes from %1 to %2, and each line is %3 more than the "
                             "one under it.")
                              .arg(GraphRules::formatValue(minimum),
                                   GraphRules::formatValue(maximum),
                                   GraphRules::formatValue((maximum - minimum) / divisions)));
}

void frmGraphs::setColourRow(int row)
{
    m_colourRow = qBound(0, row, Graph::MaxPoints - 1);
    for (int i = 0; i < lblColor.size(); ++i)
        lblColor[i]->setMarked(i == m_colourRow);
    for (ColourSwatch *choice : std::as_const(lblColorChoice))
        choice->setMarked(choice->colourIndex() == lblColor[m_colourRow]->colourIndex());
}

Graph frmGraphs::graphFromControls() const
{
    Graph graph;
    for (int i = 0; i < optType.size(); ++i)
        if (optType[i]->isChecked())
            graph.type = qint16(i);
    graph.title = txtTitle->text();
    graph.xTitle = txtXTitle->text();
    graph.yTitle = txtYTitle->text();
    graph.grid = chkYGrid->isChecked();
    graph.yMin = boxValue(txtYMin);
    graph.yMax = boxValue(txtYmax);
    graph.divisions = GraphRules::fixDivisions(txtYDiv->text().toLongLong());
    graph.piePercent = chkPiePercent->isChecked();
    // Rows count up to the last one holding anything; empty values in between are zeros.
    int count = 0;
    for (int i = 0; i < Graph::MaxPoints; ++i)
        if (!txtXLabel[i]->text().trimmed().isEmpty() || !txtYValue[i]->text().trimmed().isEmpty())
            count = i + 1;
    for (int i = 0; i < count; ++i)
        graph.points.append(GraphPoint{txtXLabel[i]->text().trimmed(), boxValue(txtYValue[i]),
                                       qint16(lblColor[i]->colourIndex())});
    return graph;
}

void frmGraphs::showGraph(const Graph &graph)
{
    m_filling = true;
    optType[qBound(0, int(graph.type), Graph::Types - 1)]->setChecked(true);
    txtTitle->setText(graph.title);
    txtXTitle->setText(graph.xTitle);
    txtYTitle->setText(graph.yTitle);
    chkYGrid->setChecked(graph.grid);
    txtYMin->setText(plainNumber(graph.yMin));
    txtYmax->setText(plainNumber(graph.yMax));
    txtYDiv->setText(QString::number(graph.divisions));
    for (int i = 0; i < Graph::MaxPoints; ++i) {
        const bool used = i < graph.points.size();
        txtXLabel[i]->setText(used ? graph.points[i].label : QString());
        // Listed as "0.#": a pupil reads 2.5, not 2.4999999.
        txtYValue[i]->setText(used ? GraphRules::formatValue(graph.points[i].value) : QString());
        lblColor[i]->setColourIndex(used ? graph.points[i].colour : Graph::defaultColour(i));
    }
    chkPiePercent->setChecked(graph.piePercent);
    m_filling = false;
    setColourRow(0);
    updateStepCaptions();
    redraw();
    // The graph itself, even one that does not fit its scale: the note above says so.
    picGraph->setGraph(graph);
}

void frmGraphs::edited()
{
    if (m_filling)
        return;
    if (!inLesson())
        m_unsaved = true;
    redraw();
}

// The chart follows the boxes as the pupil types, as long as what they hold can be drawn;
// Draw and Next tell what is wrong otherwise.
void frmGraphs::redraw()
{
    const Graph graph = graphFromControls();
    QString hint;
    if (GraphRules::scaleProblem(graph.yMin, graph.yMax) && graph.type != Graph::PieChart)
        hint = tr("The scale's maximum must be bigger than its minimum.");
    else if (GraphRules::dataRangeProblem(graph))
        hint = tr("A number does not fit on the scale. Press Draw to find out which.");
    else if (GraphRules::pieProblem(graph))
        hint = tr("A pie chart cannot show a number below zero.");
    lblDataHint->setText(hint);
    lblDataHint->setVisible(!hint.isEmpty());
    if (hint.isEmpty())
        picGraph->setGraph(graph);
}

void frmGraphs::setCaption()
{
    setWindowTitle(m_name == NewName ? tr("Graphs & Charts")
                                     : tr("Graphs & Charts") + QStringLiteral(" - ") + m_name);
}

bool frmGraphs::checkScale()
{
    if (optType[Graph::PieChart]->isChecked())
        return true;
    const double minimum = boxValue(txtYMin);
    const double maximum = boxValue(txtYmax);
    if (const auto problem = GraphRules::scaleProblem(minimum, maximum)) {
        MsgBox(this, problem->title, problem->text, QMessageBox::Critical);
        goToStep(Lesson::ScalePage);
        txtYMin->setFocus();
        txtYMin->selectAll();
        return false;
    }
    const qint16 divisions = GraphRules::fixDivisions(txtYDiv->text().toLongLong());
    if (txtYDiv->text() != QString::number(divisions))
        txtYDiv->setText(QString::number(divisions));
    return true;
}

bool frmGraphs::checkData()
{
    const Graph graph = graphFromControls();
    auto problem = GraphRules::dataRangeProblem(graph);
    if (!problem)
        problem = GraphRules::pieProblem(graph);
    if (problem) {
        MsgBox(this, problem->title, problem->text, QMessageBox::Critical);
        Announce(picGraph, problem->text);
        return false;
    }
    picGraph->setGraph(graph);
    return true;
}

void frmGraphs::cmdFormatOK_Click()
{
    const int step = formatStep();
    if (step >= Lesson::ScalePage && !checkScale())
        return;
    if (step == Lesson::DataPage) {
        if (checkData())
            Announce(picGraph, tr("The graph is drawn."));
        return;
    }
    redraw();
    goToStep(step + 1);
    // The first box of the new step, so the pupil can type straight away.
    QWidget *next = step + 1 == Lesson::TitlesPage ? txtTitle
                    : step + 1 == Lesson::ScalePage
                        ? (optType[Graph::PieChart]->isChecked() ? cmdFormatOK
                                                                 : static_cast<QWidget *>(txtYMin))
                        : txtXLabel[0];
    if (next->isEnabled())
        next->setFocus();
}

bool frmGraphs::confirmDrop(const QString &title, const QString &question)
{
    if (!m_unsaved)
        return true;
    switch (MsgBox(this, title, question, QMessageBox::Question,
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return saveGraph();
    case QMessageBox::No:
        return true;
    default:
        return false;
    }
}

bool frmGraphs::saveGraph()
{
    const QString title = tr("Save Graph/Chart");
    if (!checkScale())
        return false;
    frmGraphFile dialog(frmGraphFile::Save, GraphFolder::names(),
                        m_name == NewName ? QString() : m_name, this);
    if (RunModal(dialog) != QDialog::Accepted)
        return false;
    const QString name = GraphRules::cleanName(dialog.chosenName());
    if (name.isEmpty()) {
        MsgBox(this, title,
               tr("Please type a name for your graph/chart, using letters and numbers. It cannot "
                  "be NEW or use any of these: / \\ : * ? \" < > |"),
               QMessageBox::Information);
        return false;
    }
    if (GraphFolder::exists(name) &&
        MsgBox(this, tr("Graph/Chart Already Exists"), tr("Overwrite existing graph/chart?"),
               QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
               QMessageBox::No) != QMessageBox::Yes)
        return false;
    FileError error;
    if (!GraphFolder::ensure() ||
        !GraphFile::write(GraphFolder::fileFor(name), graphFromControls(), &error)) {
        qCWarning(lcGraphs) << "saving in" << GraphFolder::path() << "failed:" << error.message();
        MsgBox(this, title, tr("Error Saving Graph/Chart"), QMessageBox::Critical);
        return false;
    }
    m_name = name;
    m_unsaved = false;
    setCaption();
    Announce(cmdSaveGraph, tr("Saved as %1.").arg(name));
    return true;
}

void frmGraphs::cmdNewGraph_Click()
{
    if (!confirmDrop(tr("New Graph/Chart"),
                     tr("Data in unsaved graph/chart will be lost.  Do you want to save your "
                        "current graph/chart before you start a new graph/chart?")))
        return;
    Graph fresh;
    fresh.type = qint16(qBound(0, int(TheSettings().graphs.value), Graph::Types - 1));
    showGraph(fresh);
    m_name = NewName;
    m_unsaved = false;
    setCaption();
    goToStep(Lesson::KindPage);
    optType[fresh.type]->setFocus();
}

void frmGraphs::cmdOpenGraph_Click()
{
    const QString title = tr("Open Graph/Chart");
    if (!confirmDrop(title, tr("Data in unsaved graph/chart will be lost.  Do you want to save "
                               "your current graph/chart before you open another one?")))
        return;
    const QStringList names = GraphFolder::names();
    if (names.isEmpty()) {
        MsgBox(this, title,
               tr("There are no saved graphs/charts yet. Make one and press Save first."),
               QMessageBox::Information);
        return;
    }
    frmGraphFile dialog(frmGraphFile::Open, names, m_name, this);
    if (RunModal(dialog) != QDialog::Accepted)
        return;
    const QString name = dialog.chosenName();
    FileError error;
    const auto graph = GraphFile::read(GraphFolder::fileFor(name), &error);
    if (!graph) {
        qCWarning(lcGraphs) << "opening failed:" << error.message();
        MsgBox(this, title, tr("Error Opening Graph/Chart"), QMessageBox::Critical);
        return;
    }
    showGraph(*graph);
    m_name = name;
    m_unsaved = false;
    setCaption();
    goToStep(Lesson::DataPage);
    Announce(picGraph, tr("Opened %1.").arg(name));
}

void frmGraphs::cmdSaveGraph_Click()
{
    saveGraph();
}

void frmGraphs::cmdClear_Click()
{
    if (!confirmDrop(tr("Clear Data"),
                     tr("Data in unsaved graph/chart will be lost.  Do you want to save your "
                        "current graph/chart before you clear the data?")))
        return;
    Graph graph = graphFromControls();
    graph.points.clear();
    showGraph(graph);
    m_unsaved = false;
    goToStep(Lesson::DataPage);
    txtXLabel[0]->setFocus();
}

void frmGraphs::cmdPrint_Click()
{
    if (graphFromControls().points.isEmpty()) {
        MsgBox(this, tr("Print Graph/Chart"),
               tr("There is nothing to print yet. Type some labels and numbers in the Data step "
                  "first."),
               QMessageBox::Information);
        return;
    }
    if (!checkScale() || !checkData())
        return;
    PrintWithPreview(this, GraphPaper::document(graphFromControls(), m_name));
}

void frmGraphs::closeEvent(QCloseEvent *event)
{
    if (inLesson())
        cmdStopLearn_Click();
    if (!confirmDrop(tr("Done Building"), tr("Data in unsaved graph/chart will be lost. Do you "
                                             "want save your graph/chart before you return to "
                                             "menu?"))) {
        event->ignore();
        return;
    }
    ActivityWindow::closeEvent(event);
}

void frmGraphs::cmdLearn_Click()
{
    m_stash = Stash{graphFromControls(), m_name, m_unsaved};
    m_lessonStep = 0;
    for (QPushButton *button :
         {cmdNewGraph, cmdOpenGraph, cmdSaveGraph, cmdClear, cmdPrint, cmdLearn})
        button->setEnabled(false);
    fraLearn->show();
    showLessonStep();
}

void frmGraphs::showLessonStep()
{
    const Lesson::Step &step = m_lesson[m_lessonStep];
    if (!step.file.isEmpty()) {
        FileError error;
        const auto graph = GraphFile::read(DataFile(step.file), &error);
        if (!graph) {
            qCWarning(lcGraphs) << "lesson file:" << error.message();
            MsgBox(this, tr("Open Graph/Chart"), tr("Error Opening Graph/Chart"),
                   QMessageBox::Critical);
            cmdStopLearn_Click();
            return;
        }
        showGraph(*graph);
        m_name = step.file;
        setCaption();
    }
    txtLearn->setPlainText(step.text);
    fraLearn->setTitle(
        tr("Graph Lesson: step %1 of %2").arg(m_lessonStep + 1).arg(m_lesson.size()));
    Announce(txtLearn, step.text);
    goToStep(step.page);
    enableForLesson(step.controls);
    const bool last = m_lessonStep + 1 >= m_lesson.size();
    cmdChange->setEnabled(!last);
    (last ? cmdStopLearn : cmdChange)->setFocus();
}

void frmGraphs::enableForLesson(int controls)
{
    const bool all = controls < 0;
    auto allowed = [&](int flag) { return all || (controls & flag) != 0; };
    for (QRadioButton *option : std::as_const(optType))
        option->setEnabled(allowed(Lesson::Type));
    for (QLineEdit *box : {txtTitle, txtXTitle, txtYTitle})
        box->setEnabled(allowed(Lesson::Titles));
    for (QLineEdit *box : {txtYMin, txtYmax, txtYDiv})
        box->setEnabled(allowed(Lesson::Scale));
    chkYGrid->setEnabled(allowed(Lesson::Scale | Lesson::Grid));
    for (int i = 0; i < Graph::MaxPoints; ++i) {
        txtXLabel[i]->setEnabled(allowed(Lesson::Data));
        txtYValue[i]->setEnabled(allowed(Lesson::Data));
        lblColor[i]->setEnabled(allowed(Lesson::Data | Lesson::Colours));
    }
    for (ColourSwatch *choice : std::as_const(lblColorChoice))
        choice->setEnabled(allowed(Lesson::Data | Lesson::Colours));
    chkPiePercent->setEnabled(allowed(Lesson::PiePercent));
    cmdFormatOK->setEnabled(
        allowed(Lesson::Draw | Lesson::Type | Lesson::Titles | Lesson::Scale | Lesson::Grid));
}

void frmGraphs::cmdChange_Click()
{
    if (!inLesson() || m_lessonStep + 1 >= m_lesson.size())
        return;
    ++m_lessonStep;
    showLessonStep();
}

void frmGraphs::cmdStopLearn_Click()
{
    if (!inLesson())
        return;
    m_lessonStep = -1;
    fraLearn->hide();
    enableForLesson(-1);
    for (QPushButton *button :
         {cmdNewGraph, cmdOpenGraph, cmdSaveGraph, cmdClear, cmdPrint, cmdLearn})
        button->setEnabled(true);
    if (m_stash) {
        showGraph(m_stash->graph);
        m_name = m_stash->name;
        m_unsaved = m_stash->unsaved;
        m_stash.reset();
    }
    setCaption();
    goToStep(Lesson::KindPage);
    cmdLearn->setFocus();
}

bool frmGraphs::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        for (int i = 0; i < Graph::MaxPoints; ++i)
            if (watched == txtXLabel[i] || watched == txtYValue[i] || watched == lblColor[i]) {
                setColourRow(i);
                // The arrow keys move the focus too, not only Tab: keep the row in sight.
                fraRows->ensureWidgetVisible(static_cast<QWidget *>(watched));
            }
        return ActivityWindow::eventFilter(watched, event);
    }
    if (event->type() != QEvent::KeyPress)
        return ActivityWindow::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const int labelRow = int(txtXLabel.indexOf(watched));
    const int valueRow = int(txtYValue.indexOf(watched));
    const int row = labelRow >= 0 ? labelRow : valueRow;
    if (const int swatch = int(lblColor.indexOf(watched)); swatch >= 0) {
        // Left and right try the colours one by one without going to the paint box.
        if (key->key() == Qt::Key_Left || key->key() == Qt::Key_Right) {
            const int step = key->key() == Qt::Key_Right ? 1 : Graph::Colours - 1;
            lblColorChoice[(lblColor[swatch]->colourIndex() + step) % Graph::Colours]->click();
            return true;
        }
        return ActivityWindow::eventFilter(watched, event);
    }
    if (row >= 0) {
        // The rows work like a table: Enter goes to the next box, the arrows up and down.
        QList<QLineEdit *> &column = labelRow >= 0 ? txtXLabel : txtYValue;
        if (enter) {
            if (labelRow >= 0)
                txtYValue[row]->setFocus();
            else if (row + 1 < Graph::MaxPoints)
                txtXLabel[row + 1]->setFocus();
            else
                cmdFormatOK->setFocus();
            redraw();
            return true;
        }
        if (key->key() == Qt::Key_Down && row + 1 < Graph::MaxPoints) {
            column[row + 1]->setFocus();
            return true;
        }
        if (key->key() == Qt::Key_Up && row > 0) {
            column[row - 1]->setFocus();
            return true;
        }
        return ActivityWindow::eventFilter(watched, event);
    }
    // Enter on a kind, as in a title or scale box, goes on to the next step.
    if (enter && (qobject_cast<QLineEdit *>(watched) || optType.contains(watched))) {
        if (cmdFormatOK->isEnabled())
            cmdFormatOK->click();
        return true;
    }
    return ActivityWindow::eventFilter(watched, event);
}
