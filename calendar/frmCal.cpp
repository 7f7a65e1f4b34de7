// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmCal.h"

#include "CalendarPrint.h"
#include "LessonPicture.h"
#include "MonthPicture.h"
#include "ScoreDots.h"

#include "shell/core/DataPath.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QGroupBox *makeFrame(const QString &caption, const QString &name, QWidget *parent)
{
    auto *frame = Named(new QGroupBox(caption, parent), name);
    // No font in the style: a font set there would replace the window's in every child.
    frame->setStyleSheet(QStringLiteral("QGroupBox { color: #1A237E; border: 2px solid #9FA8DA;"
                                        " border-radius: 10px; margin-top: 14px;"
                                        " padding: 10px 8px 8px 8px; background: #FFFFFF; }"
                                        "QGroupBox::title { subcontrol-origin: margin; left: 12px;"
                                        " padding: 0 4px; }"));
    frame->setFont(parent->font());
    return frame;
}

QLabel *makeLabel(const QString &name, QWidget *parent, const char *colour = "#1A237E")
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(parent->font());
    label->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(colour)));
    return label;
}

// Shows the month's name in the spin box and turns the year over when it wraps past
// December or January, as a wall calendar does.
class MonthSpin : public QSpinBox {
public:
    MonthSpin(const CalendarData &data, QWidget *parent) : QSpinBox(parent)
    {
        // Its own copy: the spin box may still be asked for text while the window is torn down.
        for (int m = 1; m <= 12; ++m)
            m_names.append(data.monthName(m));
        setRange(1, 12);
        setWrapping(true);
    }
    // Turns the year by one; false at the first or last year, where the month stops too.
    std::function<bool(int)> yearTurned;
    void stepBy(int steps) override
    {
        const int target = value() + steps;
        if (yearTurned && (target > 12 || target < 1) && !yearTurned(target > 12 ? 1 : -1))
            return;
        QSpinBox::stepBy(steps);
    }

protected:
    QString textFromValue(int value) const override { return m_names.value(value - 1); }
    int valueFromText(const QString &text) const override
    {
        for (int m = 1; m <= 12; ++m)
            if (m_names[m - 1].compare(text.trimmed(), Qt::CaseInsensitive) == 0)
                return m;
        return value();
    }
    QValidator::State validate(QString &text, int &) const override
    {
        for (const QString &name : m_names) {
            if (name.compare(text.trimmed(), Qt::CaseInsensitive) == 0)
                return QValidator::Acceptable;
            if (name.startsWith(text.trimmed(), Qt::CaseInsensitive))
                return QValidator::Intermediate;
        }
        return QValidator::Invalid;
    }

private:
    QStringList m_names;
};

} // namespace

frmCal::frmCal(QWidget *parent)
    : ActivityWindow(QStringLiteral("calendar"), parent), m_maker(m_data),
      m_today(QDate::currentDate())
{
    setObjectName(QStringLiteral("frmCal"));
    setWindowTitle(tr("Calendar"));
    applyLook(QColor(0xE8, 0xF5, 0xE9));

    if (!m_data.load(DataFile(QString::fromLatin1(CalendarData::FileName))))
        m_loadError = m_data.error().message();
    m_dingSound = DataFile(QStringLiteral("ding.wav"));
    m_uhOhSound = DataFile(QStringLiteral("uhoh.wav"));
    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    m_pages = LessonPages();

    buildControls();
    const auto start = MonthMath::startFrom(m_today.toString(QStringLiteral("MM-dd-yyyy")));
    showMonth(start.month, start.year);
    cmdMenu[Display]->setChecked(true);
    setMode(Display);
    resize(1024, 720);
}

void frmCal::buildControls()
{
    auto *top = new QHBoxLayout;
    const QStringList captions{tr("&Parts"), tr("&Quiz"), tr("&Reading"), tr("&Display")};
    const char *colours[] = {"#6A1B9A", "#1565C0", "#00838F", "#2E7D32"};
    m_menuGroup = new QButtonGroup(this);
    for (int i = 0; i < captions.size(); ++i) {
        auto *button = MakeBoldBrightButton(captions[i], ArrayName("cmdMenu", i), colours[i], this);
        button->setCheckable(true);
        button->setAccessibleName(QString(captions[i]).remove(u'&'));
        m_menuGroup->addButton(button, i);
        connect(button, &QPushButton::toggled, this, [this, i](bool on) {
            if (on)
                setMode(Mode(i));
        });
        top->addWidget(button);
        cmdMenu.append(button);
    }
    top->addStretch();
    cmdHelp = MakeBoldBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#5E35B1", this);
    cmdExit = MakeBoldBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", this);
    cmdHelp->setAccessibleName(tr("Help"));
    cmdExit->setAccessibleName(tr("Exit"));
    top->addWidget(cmdHelp);
    top->addWidget(cmdExit);

    // The month on display with its controls.
    auto *calendarColumn = Named(new QWidget(this), QStringLiteral("fraCalendar"));
    picCalendar = Named(new MonthPicture(calendarColumn), QStringLiteral("picCalendar"));
    picCalendar->setAccessibleName(tr("Calendar"));
    auto *monthSpin = new MonthSpin(m_data, calendarColumn);
    spnMonth = Named(monthSpin, QStringLiteral("spnMonth"));
    spnMonth->setAccessibleName(tr("Month"));
    spnMonth->setFont(font());
    spnMonth->setMinimumWidth(
        spnMonth->fontMetrics().horizontalAdvance(QStringLiteral("September")) + 50);
    auto *monthLabel = new QLabel(tr("&Month:"), calendarColumn);
    monthLabel->setBuddy(spnMonth);
    monthLabel->setTextFormat(Qt::PlainText);
    hsbYear = Named(new QScrollBar(Qt::Horizontal, calendarColumn), QStringLiteral("hsbYear"));
    hsbYear->setRange(MonthMath::FirstYear, MonthMath::LastYear);
    hsbYear->setPageStep(10);
    hsbYear->setFocusPolicy(Qt::StrongFocus);
    hsbYear->setMinimumWidth(120);
    hsbYear->setMinimumHeight(28);
    hsbYear->setAccessibleName(tr("Year"));
    auto *yearLabel = new QLabel(tr("&Year:"), calendarColumn);
    yearLabel->setBuddy(hsbYear);
    yearLabel->setTextFormat(Qt::PlainText);
    lblYear = makeLabel(QStringLiteral("lblYear"), calendarColumn);
    lblYear->setWordWrap(false);
    ScaleFont(lblYear, 1.1, true);
    lblYear->setMinimumWidth(lblYear->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 8);
    cmdPrint =
        MakeBoldBrightButton(tr("Prin&t"), QStringLiteral("cmdPrint"), "#5D4037", calendarColumn);
    cmdPrint->setAccessibleName(tr("Print the calendar"));
    auto *monthRow = new QHBoxLayout;
    monthRow->addWidget(monthLabel);
    monthRow->addWidget(spnMonth);
    monthRow->addStretch();
    monthRow->addWidget(cmdPrint);
    auto *yearRow = new QHBoxLayout;
    yearRow->addWidget(yearLabel);
    yearRow->addWidget(lblYear);
    yearRow->addWidget(hsbYear, 1);
    auto *controls = new QVBoxLayout;
    controls->setSpacing(4);
    controls->addLayout(monthRow);
    controls->addLayout(yearRow);
    auto *calendarLayout = new QVBoxLayout(calendarColumn);
    calendarLayout->setContentsMargins(0, 0, 0, 0);
    calendarLayout->addWidget(picCalendar, 1);
    calendarLayout->addLayout(controls);

    monthSpin->yearTurned = [this](int delta) {
        const int year = hsbYear->value() + delta;
        if (!hsbYear->isEnabled() || year < hsbYear->minimum() || year > hsbYear->maximum())
            return false;
        // The month changes right after, so the display is redrawn once, with both.
        const QSignalBlocker quiet(hsbYear);
        hsbYear->setValue(year);
        return true;
    };
    connect(spnMonth, &QSpinBox::valueChanged, this, [this] { refreshMonth(); });
    connect(hsbYear, &QScrollBar::valueChanged, this, [this] { refreshMonth(); });

    // The lesson.
    fraParts = makeFrame(tr("Parts of a Calendar"), QStringLiteral("fraParts"), this);
    lblLessonTitle = makeLabel(QStringLiteral("lblLessonTitle"), fraParts, "#6A1B9A");
    lblLesson = makeLabel(QStringLiteral("lblLesson"), fraParts, "#212121");
    picLesson = Named(new LessonPicture(m_data, fraParts), QStringLiteral("picLesson"));
    picLesson->setAccessibleName(tr("Lesson picture"));
    lblPage = makeLabel(QStringLiteral("lblPage"), fraParts, "#455A64");
    lblPage->setWordWrap(false);
    cmdStartReview = MakeBoldBrightButton(tr("&Start Review"), QStringLiteral("cmdStartReview"),
                                          "#6A1B9A", fraParts);
    cmdBack = MakeBoldBrightButton(tr("&Back"), QStringLiteral("cmdBack"), "#546E7A", fraParts);
    cmdNext = MakeBoldBrightButton(tr("&Next"), QStringLiteral("cmdNext"), "#2E7D32", fraParts);
    cmdStartReview->setAccessibleName(tr("Start Review"));
    cmdBack->setAccessibleName(tr("Back"));
    cmdNext->setAccessibleName(tr("Next"));
    auto *lessonButtons = new QHBoxLayout;
    lessonButtons->addWidget(cmdStartReview);
    lessonButtons->addStretch();
    lessonButtons->addWidget(cmdBack);
    lessonButtons->addWidget(cmdNext);
    auto *titleRow = new QHBoxLayout;
    titleRow->addWidget(lblLessonTitle, 1);
    titleRow->addWidget(lblPage, 0, Qt::AlignRight | Qt::AlignTop);
    auto *partsLayout = new QVBoxLayout(fraParts);
    partsLayout->setSpacing(4);
    partsLayout->addLayout(titleRow);
    partsLayout->addWidget(lblLesson);
    partsLayout->addWidget(picLesson, 1);
    partsLayout->addLayout(lessonButtons);
    connect(cmdStartReview, &QPushButton::clicked, this, [this] { showLessonPage(0); });
    connect(cmdBack, &QPushButton::clicked, this, [this] { showLessonPage(m_page - 1); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { showLessonPage(m_page + 1); });

    fraQuiz = buildQuizPanel(tr("Calendar Quiz"), QStringLiteral("fraQuiz"),
                             tr("Press Start Quiz for ten questions about days, weeks, months "
                                "and years."),
                             m_quiz, QStringLiteral("txtQAnswer"));
    lblQuestion = m_quiz.question;
    txtQAnswer = m_quiz.answer;
    cmdStartQuiz = m_quiz.start;
    lblScore = m_quiz.score;
    lblVerdict = m_quiz.verdict;
    fraReading = buildQuizPanel(
        tr("Reading a Calendar"), QStringLiteral("fraReading"),
        tr("Pick a month, then press Start Quiz. The questions are about that month."), m_reading,
        QStringLiteral("txtAnswer"));
    lblRQuestion = m_reading.question;
    txtAnswer = m_reading.answer;
    cmdStartReading = m_reading.start;
    lblRScore = m_reading.score;
    lblRVerdict = m_reading.verdict;
    m_reading.question->setObjectName(QStringLiteral("lblRQuestion"));
    m_reading.score->setObjectName(QStringLiteral("lblRScore"));
    m_reading.verdict->setObjectName(QStringLiteral("lblRVerdict"));
    m_reading.start->setObjectName(QStringLiteral("cmdStartReading"));

    fraDisplay = makeFrame(tr("Display"), QStringLiteral("fraDisplay"), this);
    lblDisplay = makeLabel(QStringLiteral("lblDisplay"), fraDisplay);
    lblDisplay->setText(tr("Choose a month and a year to see its calendar.\n\nToday has a red "
                           "ring. Weekends are blue.\n\nPress Print to print the month."));
    auto *displayLayout = new QVBoxLayout(fraDisplay);
    displayLayout->addWidget(lblDisplay);
    displayLayout->addStretch();

    // Only the chosen part is shown, and only it counts for the window's smallest size.
    pnlPanels = Named(new QWidget(this), QStringLiteral("pnlPanels"));
    auto *panels = new QVBoxLayout(pnlPanels);
    panels->setContentsMargins(0, 0, 0, 0);
    for (QWidget *panel : {static_cast<QWidget *>(fraParts), static_cast<QWidget *>(fraQuiz),
                           static_cast<QWidget *>(fraReading), static_cast<QWidget *>(fraDisplay)})
        panels->addWidget(panel);

    auto *main = new QHBoxLayout;
    main->setSpacing(14);
    main->addWidget(calendarColumn, 3);
    main->addWidget(pnlPanels, 2);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(6);
    layout->addLayout(top);
    layout->addLayout(main, 1);

    connect(cmdHelp, &QPushButton::clicked, this, &frmCal::openHelp);
    connect(cmdExit, &QPushButton::clicked, this, &frmCal::cmdExit_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmCal::cmdPrint_Click);
}

QGroupBox *frmCal::buildQuizPanel(const QString &title, const QString &name, const QString &intro,
                                  QuizPanel &panel, const QString &answerName)
{
    QGroupBox *frame = makeFrame(title, name, this);
    panel.question = makeLabel(QStringLiteral("lblQuestion"), frame);
    panel.question->setText(intro);
    panel.question->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    panel.answer = Named(new QLineEdit(frame), answerName);
    panel.answer->setMaxLength(40);
    panel.answer->setFont(font());
    panel.answer->setAccessibleName(tr("Answer"));
    panel.answer->setEnabled(false);
    auto *answerLabel = new QLabel(tr("&Answer:"), frame);
    answerLabel->setFont(font());
    answerLabel->setBuddy(panel.answer);
    answerLabel->setTextFormat(Qt::PlainText);
    panel.start =
        MakeBoldBrightButton(tr("&Start Quiz"), QStringLiteral("cmdStartQuiz"), "#1565C0", frame);
    panel.start->setAccessibleName(tr("Start Quiz"));
    panel.verdict = makeLabel(QStringLiteral("lblVerdict"), frame, "#2E7D32");
    ScaleFont(panel.verdict, 1.1, true);
    panel.dots = new ScoreDots(QuizRound::Length, frame);
    panel.dots->setObjectName(name + QStringLiteral("Dots"));
    panel.dots->setAccessibleName(tr("Answers so far"));
    panel.score = makeLabel(QStringLiteral("lblScore"), frame, "#455A64");
    ScaleFont(panel.score, 1.0, true);
    auto *answerRow = new QHBoxLayout;
    answerRow->addWidget(answerLabel);
    answerRow->addWidget(panel.answer, 1);
    answerRow->addStretch(0);
    auto *frameLayout = new QVBoxLayout(frame);
    frameLayout->setSpacing(4);
    frameLayout->addStretch(1);
    frameLayout->addWidget(panel.question);
    frameLayout->addSpacing(8);
    frameLayout->addLayout(answerRow);
    frameLayout->addSpacing(8);
    frameLayout->addWidget(panel.verdict);
    frameLayout->addStretch(2);
    frameLayout->addWidget(panel.dots);
    frameLayout->addWidget(panel.score);
    frameLayout->addWidget(panel.start);
    connect(panel.start, &QPushButton::clicked, this, &frmCal::startRound);
    connect(panel.answer, &QLineEdit::returnPressed, this, &frmCal::submitAnswer);
    return frame;
}

void frmCal::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to show.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("Calendar"),
                   tr("The Calendar cannot start because its file of names is missing or "
                      "damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

void frmCal::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    sizeType();
}

// The question and the lesson are what a pupil reads, so their type grows with the window
// and shrinks on a small screen.
void frmCal::sizeType()
{
    const int pixels = qBound(14, height() / 26, 44);
    for (QLabel *label : {m_quiz.question, m_reading.question, lblLesson}) {
        QFont type = label->font();
        type.setPixelSize(label == lblLesson ? pixels : pixels * 6 / 5);
        type.setBold(label != lblLesson);
        label->setFont(type);
    }
    QFont heading = lblLessonTitle->font();
    heading.setPixelSize(pixels * 3 / 2);
    heading.setBold(true);
    lblLessonTitle->setFont(heading);
    for (QLineEdit *box : {txtQAnswer, txtAnswer}) {
        QFont type = box->font();
        type.setPixelSize(pixels * 6 / 5);
        box->setFont(type);
        // Room for the longest answer, "September", and not a whole screen's width.
        box->setMaximumWidth(
            QFontMetrics(type).horizontalAdvance(QStringLiteral("September 30th")) + 24);
    }
    for (QLabel *label : {m_quiz.verdict, m_reading.verdict, m_quiz.score, m_reading.score}) {
        QFont type = label->font();
        type.setPixelSize(label == m_quiz.verdict || label == m_reading.verdict ? pixels
                                                                                : pixels * 4 / 5);
        type.setBold(true);
        label->setFont(type);
    }
}

void frmCal::setToday(const QDate &today)
{
    m_today = today;
    refreshMonth();
}

void frmCal::showMonth(int month, int year)
{
    const QSignalBlocker blockMonth(spnMonth);
    const QSignalBlocker blockYear(hsbYear);
    spnMonth->setValue(qBound(1, month, 12));
    hsbYear->setValue(qBound(MonthMath::FirstYear, year, MonthMath::LastYear));
    refreshMonth();
}

void frmCal::refreshMonth()
{
    m_layout = MonthLayout::of(m_data, spnMonth->value(), hsbYear->value());
    lblYear->setText(QString::number(m_layout.year));
    MonthLook look;
    look.title = QStringLiteral("%1 %2").arg(m_data.monthName(m_layout.month)).arg(m_layout.year);
    for (int d = 1; d <= 7; ++d)
        look.dayHeads.append(m_data.dayName(d).left(3));
    if (m_today.month() == m_layout.month && m_today.year() == m_layout.year)
        look.today = m_today.day();
    picCalendar->setMonth(m_layout, look);
    picCalendar->setAccessibleDescription(
        tr("%1 starts on a %2 and has %3 days.")
            .arg(look.title, m_data.dayName(m_layout.firstWeekday))
            .arg(m_layout.days));
    if (m_mode == Parts && m_page >= 0)
        showLessonPage(m_page);
}

void frmCal::setMode(Mode mode)
{
    if (m_running)
        endRound(true);
    m_mode = mode;
    const QList<QWidget *> panels{fraParts, fraQuiz, fraReading, fraDisplay};
    for (int i = 0; i < panels.size(); ++i)
        panels[i]->setVisible(i == mode);
    // The quiz would give its answers away beside a month, and the lesson brings its own.
    findChild<QWidget *>(QStringLiteral("fraCalendar"))
        ->setVisible(mode == Reading || mode == Display);
    switch (mode) {
    case Parts:
        m_page = -1;
        lblLessonTitle->setText(tr("Parts of a Calendar"));
        lblLesson->setText(tr("Learn about days, weeks, months, seasons and leap years. Press "
                              "Start Review to begin, and Next to turn the page."));
        picLesson->setPicture(LessonPage::ThisMonth, m_today.month(),
                              qBound(MonthMath::FirstYear, m_today.year(), MonthMath::LastYear),
                              m_today.day());
        lblPage->clear();
        cmdBack->setEnabled(false);
        cmdNext->setEnabled(false);
        cmdStartReview->setFocus();
        break;
    case Quiz:
    case Reading:
        activePanel().start->setFocus();
        break;
    case Display:
        spnMonth->setFocus();
        break;
    }
}

void frmCal::showLessonPage(int page)
{
    if (page < 0 || page >= m_pages.size())
        return;
    m_page = page;
    const LessonPage &shown = m_pages[page];
    lblLessonTitle->setText(shown.title);
    lblLesson->setText(shown.text);
    picLesson->setPicture(shown.picture, m_today.month(),
                          qBound(MonthMath::FirstYear, m_today.year(), MonthMath::LastYear),
                          m_today.day());
    picLesson->setAccessibleDescription(shown.title);
    lblPage->setText(tr("Page %1 of %2").arg(page + 1).arg(m_pages.size()));
    // Disabling the focused button would send the focus elsewhere, so move it first.
    const bool atEnd = page + 1 >= m_pages.size();
    const bool backFocus = atEnd && (cmdNext->hasFocus() || cmdStartReview->hasFocus());
    const bool nextFocus =
        !atEnd && (page == 0 || cmdStartReview->hasFocus() || cmdBack->hasFocus());
    cmdBack->setEnabled(true);
    cmdNext->setEnabled(true);
    if (backFocus)
        cmdBack->setFocus();
    if (nextFocus && (page == 0 || !cmdBack->hasFocus() || cmdStartReview->hasFocus()))
        cmdNext->setFocus();
    cmdBack->setEnabled(page > 0);
    cmdNext->setEnabled(!atEnd);
}

frmCal::QuizPanel &frmCal::activePanel()
{
    return m_mode == Reading ? m_reading : m_quiz;
}

void frmCal::startRound()
{
    if (m_mode != Quiz && m_mode != Reading)
        return;
    m_round.start();
    m_lastQuestion.clear();
    QuizPanel &panel = activePanel();
    panel.verdict->clear();
    setRunning(true);
    askNext();
}

void frmCal::askNext()
{
    QuizPanel &panel = activePanel();
    // A question just like the one before would feel like a mistake, so draw again.
    Question next;
    for (int attempt = 0; attempt < 5; ++attempt) {
        next = m_mode == Reading ? m_maker.randomReading(m_layout) : m_maker.randomQuiz();
        if (next.text != m_lastQuestion)
            break;
    }
    m_lastQuestion = next.text;
    m_round.ask(next);
    // The question's own leading line break puts it under its number.
    panel.question->setText(tr("Question %1 of %2:").arg(m_round.asked()).arg(QuizRound::Length) +
                            next.text);
    panel.answer->clear();
    panel.answer->setEnabled(true);
    panel.answer->setFocus();
    Announce(panel.question, next.text.trimmed());
    updateScore();
    PlaySound(m_dingSound, SND_ASYNC);
}

void frmCal::submitAnswer()
{
    QuizPanel &panel = activePanel();
    if (!m_running || !m_round.waitingForAnswer() || panel.answer->text().trimmed().isEmpty())
        return;
    const QuizRound::Outcome outcome = m_round.submit(panel.answer->text());
    QString verdict;
    switch (outcome) {
    case QuizRound::Outcome::Right: {
        PlaySound(m_tadaSound, SND_ASYNC);
        const Question &asked = m_round.question();
        // A question with several right answers has no one answer to repeat.
        verdict = asked.numeric || asked.accepted.value(0) == asked.answer
                      ? tr("Right! %1 is correct.").arg(asked.answer)
                      : tr("Right! Well done!");
        panel.verdict->setStyleSheet(QStringLiteral("color: #2E7D32;"));
        break;
    }
    case QuizRound::Outcome::TryAgain:
        PlaySound(m_uhOhSound, SND_ASYNC);
        verdict = tr("Not quite. Try again!");
        panel.verdict->setStyleSheet(QStringLiteral("color: #C62828;"));
        break;
    case QuizRound::Outcome::Missed:
        PlaySound(m_uhOhSound, SND_ASYNC);
        verdict = tr("The answer is %1.").arg(m_round.question().answer);
        panel.verdict->setStyleSheet(QStringLiteral("color: #C62828;"));
        break;
    }
    panel.verdict->setText(verdict);
    Announce(panel.verdict, verdict);
    updateScore();
    if (outcome == QuizRound::Outcome::TryAgain) {
        panel.answer->selectAll();
        return;
    }
    panel.answer->setEnabled(false);
    // A moment to read the verdict before the next question replaces this one.
    Delay(outcome == QuizRound::Outcome::Right ? 1.0f : 2.0f);
    if (!m_running)
        return;
    if (m_round.isOver())
        endRound(false);
    else
        askNext();
}

void frmCal::updateScore()
{
    QuizPanel &panel = activePanel();
    const int answered = m_round.asked() - (m_round.waitingForAnswer() ? 1 : 0);
    panel.score->setText(tr("Score: %1 right out of %2").arg(m_round.right()).arg(answered));
    panel.dots->setResults(m_round.results(), m_round.waitingForAnswer());
}

void frmCal::endRound(bool stopped)
{
    QuizPanel &panel = activePanel();
    setRunning(false);
    panel.answer->clear();
    panel.answer->setEnabled(false);
    const int answered = m_round.asked() - (m_round.waitingForAnswer() ? 1 : 0);
    QString message;
    if (stopped) {
        message = tr("You stopped the quiz. You got %1 right out of %2.")
                      .arg(m_round.right())
                      .arg(answered);
    } else {
        const int right = m_round.right();
        message = tr("You got %1 right out of %2!").arg(right).arg(QuizRound::Length) + u'\n' +
                  (right == QuizRound::Length ? tr("Perfect! You are a calendar expert!")
                   : right >= 7               ? tr("Great work!")
                                              : tr("Keep practicing and try again."));
        PlaySound(right >= 7 ? m_tadaSound : m_dingSound, SND_ASYNC);
    }
    panel.question->setText(message);
    Announce(panel.question, message);
    m_round.start();
    panel.start->setFocus();
}

void frmCal::setRunning(bool running)
{
    m_running = running;
    setRunningCaption(cmdExit, running);
    cmdExit->setAccessibleName(running ? tr("Stop") : tr("Exit"));
    activePanel().start->setEnabled(!running);
    // The reading questions are about the month on display, so it stays put meanwhile.
    spnMonth->setEnabled(!running);
    hsbYear->setEnabled(!running);
}

void frmCal::cmdExit_Click()
{
    if (m_running)
        endRound(true);
    else
        close();
}

void frmCal::cmdPrint_Click()
{
    const QString title = tr("Print Calendar");
    if (MsgBox(this, title, tr("Make sure printer is on-line and ready."), QMessageBox::Information,
               QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok)
        return;
    PrintWithPreview(this, CalendarPrint::document(m_data, m_layout));
}
