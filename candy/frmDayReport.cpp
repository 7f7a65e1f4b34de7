// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmDayReport.h"

#include "CandyMap.h"
#include "CandyPapers.h"
#include "SalesChart.h"

#include "shell/WindowUtil.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QLabel *MakeLabel(QWidget *parent, const QString &name, double scale, const char *colour)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(parent->window()->font());
    ScaleFont(label, scale, scale > 1);
    label->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(colour)));
    return label;
}

QTableWidget *MakeTable(QWidget *parent, const QString &name, const QStringList &headings)
{
    auto *table = Named(new QTableWidget(0, int(headings.size()), parent), name);
    table->setHorizontalHeaderLabels(headings);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setFocusPolicy(Qt::StrongFocus);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    QFont small = parent->window()->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    table->setFont(small);
    table->horizontalHeader()->setFont(small);
    table->setStyleSheet(QStringLiteral("QTableWidget { background: white; gridline-color: #E0E0E0;"
                                        " border: 2px solid #F8BBD0; border-radius: 6px; }"
                                        "QHeaderView::section { background: #FCE4EC;"
                                        " color: #880E4F; font-weight: bold; border: none;"
                                        " padding: 2px 6px; }"));
    return table;
}

void SetCell(QTableWidget *table, int row, int column, const QString &text,
             const QColor &colour = QColor())
{
    auto *item = new QTableWidgetItem(text);
    item->setTextAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    if (colour.isValid()) {
        item->setForeground(colour);
        QFont bold = table->font();
        bold.setBold(true);
        item->setFont(bold);
    }
    table->setItem(row, column, item);
}

// Tables show every row without scrolling of their own: the report scrolls as a whole.
void FitHeight(QTableWidget *table)
{
    int height = table->horizontalHeader()->sizeHint().height() + 2 * table->frameWidth() + 4;
    for (int r = 0; r < table->rowCount(); ++r)
        height += table->rowHeight(r);
    if (table->horizontalScrollBar()->isVisible())
        height += table->horizontalScrollBar()->sizeHint().height();
    table->setFixedHeight(height);
}

} // namespace

frmDayReport::frmDayReport(const Contest &contest, int day, QWidget *parent)
    : QDialog(parent), m_reports(contest.reports())
{
    setObjectName(QStringLiteral("frmDayReport"));
    setWindowTitle(tr("Candy Drive Report"));
    QFont base(QStringLiteral("Comic Sans MS"));
    base.setPointSize(14);
    setFont(base);
    setStyleSheet(QStringLiteral("frmDayReport { background: #FFF0F5; }"));
    for (const Contest::Street &street : contest.streets())
        m_streets.append(street.name);
    if (contest.isOver())
        m_winner = CandyPapers::verdict(contest);

    auto *page = new QWidget;
    page->setFont(font());
    lblTitle = MakeLabel(page, QStringLiteral("lblTitle"), 1.4, "#AD1457");
    lblTitle->setAlignment(Qt::AlignCenter);
    lblWinner = MakeLabel(page, QStringLiteral("lblWinner"), 1.3, "#1B5E20");
    lblWinner->setAlignment(Qt::AlignCenter);
    lblWinner->setStyleSheet(QStringLiteral("QLabel { color: #1B5E20; background: #FFF59D;"
                                            " border: 3px solid #FBC02D; border-radius: 10px;"
                                            " padding: 4px; }"));
    lblWinner->setAccessibleName(tr("Winner"));
    tblTeams = MakeTable(page, QStringLiteral("tblTeams"),
                         {tr("Team"), tr("Street"), tr("Houses"), tr("Boxes"), tr("Money")});
    tblTeams->setAccessibleName(tr("Boxes sold by each team"));
    tblStreets = MakeTable(page, QStringLiteral("tblStreets"),
                           {tr("Street"), Contest::sideName(Contest::Side::Ours),
                            Contest::sideName(Contest::Side::Theirs)});
    tblStreets->setAccessibleName(tr("Boxes sold on each street"));
    lblToday = MakeLabel(page, QStringLiteral("lblToday"), 1.0, "#263238");
    lblTotals = MakeLabel(page, QStringLiteral("lblTotals"), 1.05, "#0D47A1");
    picChart = Named(new SalesChart(page), QStringLiteral("picChart"));
    picChart->setAccessibleName(tr("Chart of the boxes sold each day"));
    picChart->setMinimumHeight(200);

    m_tables = new QBoxLayout(QBoxLayout::LeftToRight);
    QBoxLayout *tables = m_tables;
    tables->setSpacing(12);
    tables->addWidget(tblTeams, 3, Qt::AlignTop);
    tables->addWidget(tblStreets, 2, Qt::AlignTop);
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->setSpacing(8);
    pageLayout->addWidget(lblTitle);
    pageLayout->addWidget(lblWinner);
    pageLayout->addLayout(tables);
    pageLayout->addWidget(lblToday);
    pageLayout->addWidget(lblTotals);
    pageLayout->addWidget(picChart, 1);

    auto *scroller = new QScrollArea(this);
    scroller->setWidget(page);
    scroller->setAccessibleName(tr("Day report"));
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    scroller->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);

    cmdPrevious = Named(new QPushButton(tr("&Previous Day"), this), QStringLiteral("cmdPrevious"));
    cmdNext = Named(new QPushButton(tr("&Next Day"), this), QStringLiteral("cmdNext"));
    cmdOK = Named(new QPushButton(tr("&OK"), this), QStringLiteral("cmdOK"));
    cmdPrevious->setAccessibleName(tr("Show the report of the day before"));
    cmdNext->setAccessibleName(tr("Show the report of the day after"));
    cmdOK->setAccessibleName(tr("Close the report"));
    for (auto [button, colour] : {std::pair{cmdPrevious, "#6A1B9A"}, std::pair{cmdNext, "#6A1B9A"},
                                  std::pair{cmdOK, "#2E7D32"}}) {
        button->setAutoDefault(true);
        button->setMinimumHeight(44);
        QFont bold = font();
        bold.setBold(true);
        button->setFont(bold);
        StyleBrightButton(button, QColor(QLatin1String(colour)));
    }
    cmdOK->setDefault(true);
    connect(cmdPrevious, &QPushButton::clicked, this, [this] { showDay(m_day - 1); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { showDay(m_day + 1); });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdPrevious);
    buttons->addWidget(cmdNext);
    buttons->addStretch();
    buttons->addWidget(cmdOK);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(scroller, 1);
    layout->addLayout(buttons);
    resize(900, 720);
    showDay(day);
}

void frmDayReport::showDay(int day)
{
    if (m_reports.isEmpty())
        return;
    m_day = qBound(1, day, int(m_reports.size()));
    const Contest::DayReport &r = m_reports[m_day - 1];
    lblTitle->setText(
        tr("Day %1 of %2 - %3").arg(r.day).arg(Contest::Days).arg(Contest::weatherName(r.weather)));
    // The winner is named on the last day's page only.
    lblWinner->setText(m_winner);
    lblWinner->setVisible(!m_winner.isEmpty() && m_day == m_reports.size());

    tblTeams->setRowCount(int(r.ours.size() + r.theirs.size()));
    int row = 0;
    for (const auto &[side, teams] :
         {std::pair{Contest::Side::Ours, &r.ours}, std::pair{Contest::Side::Theirs, &r.theirs}}) {
        for (const Contest::TeamDay &t : *teams) {
            const QColor colour = side == Contest::Side::Ours
                                      ? CandyMap::teamColour(t.team).darker(120)
                                      : CandyMap::sideColour(side);
            SetCell(tblTeams, row, 0,
                    Contest::sideName(side) + QStringLiteral(", ") +
                        Contest::teamName(side, t.team),
                    colour);
            SetCell(tblTeams, row, 1, m_streets.value(t.street));
            SetCell(tblTeams, row, 2, QString::number(t.houses));
            SetCell(tblTeams, row, 3, QString::number(t.boxes));
            SetCell(tblTeams, row, 4, CandyPapers::money(Contest::money(t.boxes)));
            ++row;
        }
    }
    tblStreets->setRowCount(int(m_streets.size()));
    for (int s = 0; s < m_streets.size(); ++s) {
        SetCell(tblStreets, s, 0, m_streets[s]);
        const bool oursThere =
            std::any_of(r.ours.begin(), r.ours.end(), [s](const auto &t) { return t.street == s; });
        const bool theirsThere = std::any_of(r.theirs.begin(), r.theirs.end(),
                                             [s](const auto &t) { return t.street == s; });
        // A dash where a class sent nobody, so 0 boxes sold and no visit look different.
        SetCell(tblStreets, s, 1,
                oursThere ? QString::number(r.streetOurs.value(s)) : QStringLiteral("-"));
        SetCell(tblStreets, s, 2,
                theirsThere ? QString::number(r.streetTheirs.value(s)) : QStringLiteral("-"));
    }
    tblTeams->resizeColumnsToContents();
    tblStreets->resizeColumnsToContents();
    FitHeight(tblTeams);
    FitHeight(tblStreets);

    lblToday->setText(
        tr("Today %1 sold %2, and %3 sold %4.")
            .arg(Contest::sideName(Contest::Side::Ours), CandyPapers::boxes(r.boxesOurs),
                 Contest::sideName(Contest::Side::Theirs), CandyPapers::boxes(r.boxesTheirs)));
    lblTotals->setText(
        tr("So far: %1 %2, %3 %4.")
            .arg(Contest::sideName(Contest::Side::Ours), CandyPapers::boxes(r.totalOurs),
                 Contest::sideName(Contest::Side::Theirs), CandyPapers::boxes(r.totalTheirs)));
    lblToday->setAccessibleName(lblToday->text());
    lblTotals->setAccessibleName(lblTotals->text());
    picChart->setReports(m_reports.mid(0, m_day), m_day);
    cmdPrevious->setEnabled(m_day > 1);
    cmdNext->setEnabled(m_day < m_reports.size());
    if (!cmdPrevious->isEnabled() && cmdPrevious->hasFocus())
        cmdNext->setFocus();
    if (!cmdNext->isEnabled() && cmdNext->hasFocus())
        cmdOK->setFocus();
}

void frmDayReport::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    // On a narrow screen the two tables stand one above the other, each whole.
    const auto direction =
        width() < tblTeams->sizeHint().width() + tblStreets->sizeHint().width() + 80
            ? QBoxLayout::TopToBottom
            : QBoxLayout::LeftToRight;
    if (m_tables->direction() != direction) {
        m_tables->setDirection(direction);
        FitHeight(tblTeams);
        FitHeight(tblStreets);
    }
}

void frmDayReport::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    CentreOnScreen(this);
    cmdOK->setFocus();
    Announce(lblTotals, (lblWinner->isVisible() ? m_winner + u' ' : QString()) + lblToday->text() +
                            u' ' + lblTotals->text());
}
