// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmType.h"

#include "Certificate.h"
#include "DrillMaker.h"
#include "KeyboardView.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/WindowUtil.h"
#include "SpeedChart.h"
#include "TypingLineView.h"

#include <QCheckBox>
#include <QDate>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Accuracy a lesson needs before the next one is offered: most keys right, a slip allowed.
constexpr double PassAccuracy = 90.0;

QLabel *MakeLabel(const QString &name, QWidget *parent)
{
    auto *label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString KeyName(QChar c)
{
    if (c == u' ')
        return QCoreApplication::translate("frmType", "Space");
    return QString(c.isLetter() ? c.toUpper() : c);
}

// "G (left pointer finger)", and "Shift with the right little finger" for a capital.
QString KeyAndFinger(QChar c)
{
    const Key *key = Keyboard::keyFor(c);
    if (!key)
        return KeyName(c);
    QString text = QCoreApplication::translate("frmType", "%1 (%2)")
                       .arg(KeyName(c), Keyboard::fingerName(key->finger));
    if (const Key *shift = Keyboard::shiftKeyFor(c))
        text += QCoreApplication::translate("frmType", ", holding Shift with your %1")
                    .arg(Keyboard::fingerName(shift->finger));
    return text;
}

} // namespace

frmType::frmType(QWidget *parent) : ActivityWindow(QStringLiteral("typing"), parent)
{
    setObjectName(QStringLiteral("frmType"));
    setWindowTitle(tr("Keyboarding"));
    applyLook(QColor(0xE8, 0xF5, 0xE9));

    m_tadaSound = DataFile(QStringLiteral("tada.wav"));
    if (!m_texts.load(DataFile(QString::fromLatin1(TypingTexts::FileName))))
        m_loadError = m_texts.error().message();
    // Damaged values are set right in the shared settings too, so they are saved right.
    m_settings = TypingSettings::fromValues(TheSettings().typing.values);
    TheSettings().typing.values = m_settings.values();
    m_passed = QList<bool>(Lessons::all().size(), false);

    lstLessons = Named(new QListWidget(this), QStringLiteral("lstLessons"));
    lstLessons->setAccessibleName(tr("Lessons"));
    lstLessons->setMinimumSize(200, 48);
    for (int i = 0; i < Lessons::all().size(); ++i)
        lstLessons->addItem(tr("%1. %2").arg(i + 1).arg(Lessons::all()[i].title));
    cmdStart = MakeBrightButton(tr("Start &Lesson"), QStringLiteral("cmdStart"), "#2E7D32", this);
    cmdStart->setAccessibleName(tr("Start the lesson"));

    fraTest = Named(new QGroupBox(tr("Speed test"), this), QStringLiteral("fraTest"));
    fraTest->setAccessibleName(tr("Speed test"));
    auto *testBox = new QGridLayout(fraTest);
    testBox->setContentsMargins(8, 2, 8, 4);
    testBox->setVerticalSpacing(2);
    const QString minutes[] = {tr("&1 minute"), tr("&2 minutes")};
    for (int i = 0; i < 2; ++i) {
        auto *option = Named(new QRadioButton(minutes[i], fraTest), ArrayName("optMinutes", i));
        option->setAccessibleName(i == 0 ? tr("One-minute test") : tr("Two-minute test"));
        testBox->addWidget(option, 0, i);
        optMinutes.append(option);
    }
    optMinutes[0]->setChecked(true);
    cmdTest = MakeBrightButton(tr("Speed &Test"), QStringLiteral("cmdTest"), "#1565C0", fraTest);
    cmdTest->setAccessibleName(tr("Start a speed test"));
    testBox->addWidget(cmdTest, 1, 0, 1, 2);

    fraRows = Named(new QGroupBox(tr("Practise these rows"), this), QStringLiteral("fraRows"));
    fraRows->setAccessibleName(tr("Rows the drills use"));
    // Two by two, so the side column stays short enough for a small screen at 200 %.
    auto *rowBox = new QGridLayout(fraRows);
    rowBox->setContentsMargins(8, 2, 8, 4);
    rowBox->setSpacing(1);
    const QString rows[] = {tr("To&p row"), tr("H&ome row"), tr("&Bottom row"), tr("&Number row")};
    for (int i = 0; i < 4; ++i) {
        auto *check = Named(new QCheckBox(rows[i], fraRows), ArrayName("chkRow", i));
        check->setAccessibleName(QString(rows[i]).remove(u'&'));
        rowBox->addWidget(check, i / 2, i % 2);
        chkRow.append(check);
    }
    chkGuide = Named(new QCheckBox(tr("Finger &guide"), this), QStringLiteral("chkGuide"));
    chkGuide->setAccessibleName(tr("Show the keyboard and hands"));
    chkShift =
        Named(new QCheckBox(tr("Capitals and marks (Shi&ft)"), this), QStringLiteral("chkShift"));
    chkShift->setAccessibleName(tr("Capitals and marks with Shift"));

    pnlPages = Named(new QStackedWidget(this), QStringLiteral("pnlPages"));
    auto *typingPage = new QWidget(pnlPages);
    lblTitle = MakeLabel(QStringLiteral("lblTitle"), typingPage);
    lblTitle->setAccessibleName(tr("Lesson"));
    lblTitle->setStyleSheet(QStringLiteral("color: #1B5E20;"));
    lblMessage = MakeLabel(QStringLiteral("lblMessage"), typingPage);
    lblMessage->setAccessibleName(tr("Message"));
    lblMessage->setStyleSheet(QStringLiteral("color: #1A237E;"));
    txtType = Named(new TypingLineView(typingPage), QStringLiteral("txtType"));
    txtType->setAccessibleName(tr("Typing line"));
    lblStats = MakeLabel(QStringLiteral("lblStats"), typingPage);
    lblStats->setAccessibleName(tr("Speed and accuracy"));
    lblStats->setAlignment(Qt::AlignCenter);
    lblStats->setStyleSheet(
        QStringLiteral("QLabel { color: #4A148C; background: #F3E5F5; border: 2px solid #CE93D8;"
                       " border-radius: 10px; padding: 2px 8px; }"));
    picKeyboard = Named(new KeyboardView(typingPage), QStringLiteral("picKeyboard"));
    picKeyboard->setAccessibleName(tr("Keyboard and hands"));
    auto *typingLayout = new QVBoxLayout(typingPage);
    typingLayout->setContentsMargins(0, 0, 0, 0);
    typingLayout->setSpacing(6);
    typingLayout->addWidget(lblTitle);
    typingLayout->addWidget(lblMessage);
    typingLayout->addWidget(txtType, 2);
    typingLayout->addWidget(lblStats);
    typingLayout->addWidget(picKeyboard, 5);
    // Hiding the guide leaves the typing line in its place.
    QSizePolicy keep = picKeyboard->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    picKeyboard->setSizePolicy(keep);

    auto *resultsPage = new QWidget(pnlPages);
    auto *resultsTitle = MakeLabel(QStringLiteral("lblResults"), resultsPage);
    resultsTitle->setText(tr("Your speed tests today"));
    resultsTitle->setAccessibleName(tr("Results"));
    grdResults = Named(new QTableWidget(0, 5, resultsPage), QStringLiteral("grdResults"));
    grdResults->setAccessibleName(tr("Speed test results"));
    grdResults->setHorizontalHeaderLabels(
        {tr("Passage"), tr("Minutes"), tr("Words a minute"), tr("Accuracy"), tr("Missed most")});
    grdResults->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdResults->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdResults->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    grdResults->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    picChart = Named(new SpeedChart(resultsPage), QStringLiteral("picChart"));
    picChart->setAccessibleName(tr("Chart of speed over the tests"));
    auto *nameLabel = new QLabel(tr("Your na&me for the certificate:"), resultsPage);
    nameLabel->setTextFormat(Qt::PlainText);
    txtName = Named(new QLineEdit(resultsPage), QStringLiteral("txtName"));
    txtName->setAccessibleName(tr("Your name for the certificate"));
    txtName->setMaxLength(40);
    nameLabel->setBuddy(txtName);
    cmdPrint = MakeBrightButton(tr("&Print Certificate"), QStringLiteral("cmdPrint"), "#6A1B9A",
                                resultsPage);
    cmdPrint->setAccessibleName(tr("Print a certificate"));
    auto *nameRow = new QHBoxLayout;
    nameRow->addWidget(nameLabel);
    nameRow->addWidget(txtName, 1);
    nameRow->addWidget(cmdPrint);
    auto *resultsLayout = new QVBoxLayout(resultsPage);
    resultsLayout->setContentsMargins(0, 0, 0, 0);
    resultsLayout->addWidget(resultsTitle);
    resultsLayout->addWidget(grdResults, 2);
    resultsLayout->addWidget(picChart, 3);
    resultsLayout->addLayout(nameRow);
    pnlPages->addWidget(typingPage);
    pnlPages->addWidget(resultsPage);

    cmdResults = MakeBrightButton(tr("&Results"), QStringLiteral("cmdResults"), "#EF6C00", this);
    cmdResults->setAccessibleName(tr("Results and certificate"));
    cmdHelp = MakeBrightButton(tr("&Help"), QStringLiteral("cmdHelp"), "#00838F", this);
    cmdHelp->setAccessibleName(tr("Help"));
    cmdExit = MakeBrightButton(exitCaption(false), QStringLiteral("cmdExit"), "#C62828", this);
    cmdExit->setAccessibleName(tr("Exit or stop"));

    Timer1 = Named(new QTimer(this), QStringLiteral("Timer1"));
    Timer1->setInterval(250);

    auto *side = new QVBoxLayout;
    side->setSpacing(6);
    side->addWidget(lstLessons, 1);
    side->addWidget(cmdStart);
    side->addWidget(fraTest);
    side->addWidget(fraRows);
    side->addWidget(chkGuide);
    side->addWidget(chkShift);
    auto *top = new QHBoxLayout;
    top->setSpacing(10);
    top->addLayout(side, 0);
    top->addWidget(pnlPages, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdResults);
    buttons->addStretch();
    buttons->addWidget(cmdHelp);
    buttons->addWidget(cmdExit);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->setSpacing(6);
    layout->addLayout(top, 1);
    layout->addLayout(buttons);

    const QList<QWidget *> order{lstLessons, cmdStart,  optMinutes[0], optMinutes[1], cmdTest,
                                 chkRow[0],  chkRow[1], chkRow[2],     chkRow[3],     chkGuide,
                                 chkShift,   txtType,   grdResults,    txtName,       cmdPrint,
                                 cmdResults, cmdHelp,   cmdExit};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);

    // Showing the settings is not changing them.
    chkRow[0]->setChecked(m_settings.topRow);
    chkRow[1]->setChecked(m_settings.homeRow);
    chkRow[2]->setChecked(m_settings.bottomRow);
    chkRow[3]->setChecked(m_settings.numberRow);
    chkGuide->setChecked(m_settings.guide);
    chkShift->setChecked(m_settings.shift);
    picKeyboard->setVisible(m_settings.guide);

    connect(lstLessons, &QListWidget::currentRowChanged, this, &frmType::onLessonChosen);
    connect(lstLessons, &QListWidget::itemActivated, this, [this] { onStartLesson(); });
    connect(cmdStart, &QPushButton::clicked, this, &frmType::onStartLesson);
    connect(cmdTest, &QPushButton::clicked, this, &frmType::onStartTest);
    for (int i = 0; i < 2; ++i)
        connect(optMinutes[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on && m_mode == Mode::Idle)
                say(i == 0 ? tr("A speed test lasts 1 minute. Press Speed Test to start.")
                           : tr("A speed test lasts 2 minutes. Press Speed Test to start."));
        });
    for (QCheckBox *check : chkRow + QList<QCheckBox *>{chkGuide, chkShift})
        connect(check, &QCheckBox::toggled, this, &frmType::onSettingChanged);
    connect(txtType, &TypingLineView::typed, this, &frmType::typeChar);
    connect(cmdResults, &QPushButton::clicked, this, &frmType::onResults);
    connect(cmdPrint, &QPushButton::clicked, this, &frmType::onPrint);
    connect(cmdHelp, &QPushButton::clicked, this, [this] { openHelp(); });
    connect(cmdExit, &QPushButton::clicked, this, &frmType::onExit);
    connect(Timer1, &QTimer::timeout, this, &frmType::onTick);

    QSize size(1024, 720);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableGeometry().size() * 0.95);
    resize(size);
    refreshLessons();
    lstLessons->setCurrentRow(0);
    refreshResults();
    setRunning(false);
    fitFonts();
    lstLessons->setFocus();
}

const Exercise &frmType::exercise() const
{
    return m_mode == Mode::Test ? m_test.exercise() : m_lesson;
}

int frmType::lessonIndex() const
{
    return lstLessons->currentRow();
}

void frmType::showEvent(QShowEvent *event)
{
    ActivityWindow::showEvent(event);
    if (!m_loadError.isEmpty()) {
        const QString error = std::exchange(m_loadError, QString());
        // Told once the window is up, then back to the menu: there is nothing to type.
        QTimer::singleShot(0, this, [this, error] {
            MsgBox(this, tr("Keyboarding"),
                   tr("Keyboarding cannot start because its lesson file is missing or "
                      "damaged.\n\n%1\n\nPlease reinstall the program.")
                       .arg(error),
                   QMessageBox::Critical);
            close();
        });
    }
}

void frmType::say(const QString &text)
{
    lblMessage->setText(text);
    Announce(lblMessage, text);
}

void frmType::refreshLessons()
{
    for (int i = 0; i < lstLessons->count(); ++i) {
        QListWidgetItem *item = lstLessons->item(i);
        const bool open = Lessons::isOpen(i, m_settings);
        QString text = tr("%1. %2").arg(i + 1).arg(Lessons::all()[i].title);
        if (m_passed[i])
            text += QStringLiteral("  \u2714");
        item->setText(text);
        item->setForeground(open ? QColor(0x1B, 0x5E, 0x20) : QColor(0x9E, 0x9E, 0x9E));
        item->setToolTip(open ? QString()
                              : tr("Switch on this lesson's row (or Shift) to practise it."));
    }
}

void frmType::onLessonChosen()
{
    if (m_mode != Mode::Idle)
        return;
    showIntro();
}

void frmType::showIntro()
{
    const int index = lessonIndex();
    if (index < 0 || index >= Lessons::all().size())
        return;
    const TypingLesson &lesson = Lessons::all()[index];
    lblTitle->setText(tr("Lesson %1: %2").arg(index + 1).arg(lesson.title));
    const QString keys = Lessons::newKeysAllowed(index, m_settings);
    picKeyboard->setNextKey(QChar());
    m_lesson = Exercise();
    txtType->showExercise(nullptr);
    txtType->setPrompt(QString());
    lblStats->setText(tr("Fingers rest on the home row: A S D F and J K L ;"));
    if (keys.isEmpty()) {
        picKeyboard->setLessonKeys(lesson.newKeys.toLower());
        lblMessage->setText(
            lesson.usesShift && !m_settings.shift
                ? tr("This lesson needs Shift. Tick \"Capitals and marks\" to practise it.")
                : tr("This lesson's keys are on a row that is switched off. Tick the row under "
                     "\"Practise these rows\" to practise it."));
        cmdStart->setEnabled(false);
        return;
    }
    picKeyboard->setLessonKeys(keys.toLower());
    cmdStart->setEnabled(true);
    QStringList shown;
    for (QChar c : keys)
        shown.append(KeyName(c));
    // All capitals would crowd the line: a few stand for the lesson.
    txtType->setPrompt(shown.size() > 6 ? QStringLiteral("A B C ... Z")
                                        : shown.join(QStringLiteral("   ")));
    if (lesson.usesShift && keys.front().isUpper()) {
        lblMessage->setText(
            tr("Capitals: hold Shift with the little finger of the other hand, then press the "
               "letter. Press Start Lesson when you are ready."));
        return;
    }
    QStringList parts;
    for (QChar c : keys)
        parts.append(KeyAndFinger(c));
    lblMessage->setText(tr("New keys: %1. Look at the ringed keys, then press Start Lesson.")
                            .arg(parts.join(QStringLiteral("; "))));
}

void frmType::onStartLesson()
{
    if (m_mode != Mode::Idle || !cmdStart->isEnabled())
        return;
    const int index = lessonIndex();
    DrillMaker maker(m_texts);
    const QStringList drill = maker.make(index, m_settings);
    if (drill.isEmpty())
        return;
    m_lesson.start(drill);
    beginTyping(Mode::Lesson);
    say(tr("Type the line. The yellow key is next. Wrong key? Just type the right one."));
}

void frmType::onStartTest()
{
    if (m_mode != Mode::Idle || m_texts.passages().isEmpty())
        return;
    const int count = int(m_texts.passages().size());
    int pick = RndInt(count) - 1;
    // Not the same passage twice in a row, so a retest is a real test.
    if (count > 1 && pick == m_lastPassage)
        pick = (pick + 1 + (RndInt(count - 1) - 1)) % count;
    m_lastPassage = pick;
    const Passage &passage = m_texts.passages()[pick];
    const int minutes = optMinutes[1]->isChecked() ? 2 : 1;
    m_test.start(passage.title, minutes, PassageForTest(passage.text, m_settings.shift));
    lblTitle->setText(tr("Speed test: %1").arg(passage.title));
    beginTyping(Mode::Test);
    say(tr("Start typing when you are ready: the clock starts with your first key."));
}

void frmType::beginTyping(Mode mode)
{
    m_mode = mode;
    pnlPages->setCurrentIndex(0);
    cmdResults->setText(tr("&Results"));
    picKeyboard->setLessonKeys(QString());
    setRunning(true);
    refreshTyping();
    refreshStats();
    Timer1->start();
    txtType->setFocus();
}

void frmType::setRunning(bool running)
{
    setRunningCaption(cmdExit, running);
    txtType->setCapturing(running);
    for (QWidget *widget : {static_cast<QWidget *>(lstLessons), static_cast<QWidget *>(fraTest),
                            static_cast<QWidget *>(fraRows), static_cast<QWidget *>(chkShift),
                            static_cast<QWidget *>(cmdResults)})
        widget->setEnabled(!running);
    cmdStart->setEnabled(!running && Lessons::isOpen(lessonIndex(), m_settings));
}

void frmType::typeChar(QChar c)
{
    if (m_mode == Mode::Idle)
        return;
    Exercise &exercise = m_mode == Mode::Test ? m_test.exercise() : m_lesson;
    const qint64 now = TickCount();
    if (m_mode == Mode::Test && m_test.checkTime(now)) {
        finishTest();
        return;
    }
    switch (exercise.type(c, now)) {
    case Exercise::Outcome::Ignored:
        return;
    case Exercise::Outcome::Wrong:
        Beep();
        // A capital where a small letter belongs is most often Caps Lock left on.
        if (c.isUpper() && c.toLower() == exercise.expected())
            say(tr("Is Caps Lock on? Press it once and type the small letter."));
        break;
    case Exercise::Outcome::Right:
    case Exercise::Outcome::LineDone:
        break;
    case Exercise::Outcome::Finished:
        if (m_mode == Mode::Test)
            finishTest();
        else
            finishLesson();
        return;
    }
    if (m_mode == Mode::Test && exercise.rightKeys() + exercise.wrongKeys() == 1)
        lblMessage->setText(tr("The clock is running. Keep your eyes on the text!"));
    refreshTyping();
    refreshStats();
}

void frmType::refreshTyping()
{
    const Exercise &current = exercise();
    txtType->showExercise(m_mode == Mode::Idle && current.lines().isEmpty() ? nullptr : &current);
    picKeyboard->setNextKey(m_mode == Mode::Idle ? QChar() : current.expected());
}

void frmType::refreshStats()
{
    if (m_mode == Mode::Idle)
        return;
    const Exercise &current = exercise();
    const qint64 now = TickCount();
    QString text = tr("Speed: %1 words a minute    Accuracy: %2%")
                       .arg(qRound(current.wordsPerMinute(now)))
                       .arg(qRound(current.accuracy()));
    if (m_mode == Mode::Test) {
        const int left = m_test.secondsLeft(now);
        text += tr("    Time left: %1:%2").arg(left / 60).arg(left % 60, 2, 10, QLatin1Char('0'));
    } else {
        text += tr("    Line %1 of %2")
                    .arg(std::min(current.lineIndex() + 1, int(current.lines().size())))
                    .arg(current.lines().size());
    }
    lblStats->setText(text);
}

void frmType::onTick()
{
    if (m_mode == Mode::Test && m_test.checkTime(TickCount())) {
        finishTest();
        return;
    }
    refreshStats();
}

void frmType::finishLesson()
{
    const qint64 now = TickCount();
    const int index = lessonIndex();
    const int speed = qRound(m_lesson.wordsPerMinute(now));
    const int accuracy = qRound(m_lesson.accuracy());
    Timer1->stop();
    refreshStats();
    m_mode = Mode::Idle;
    setRunning(false);
    txtType->showExercise(&m_lesson);
    picKeyboard->setNextKey(QChar());
    PlaySound(m_tadaSound, SND_ASYNC);
    QString text = tr("Lesson %1 done! Speed: %2 words a minute. Accuracy: %3%.")
                       .arg(index + 1)
                       .arg(speed)
                       .arg(accuracy);
    if (m_lesson.accuracy() >= PassAccuracy) {
        m_passed[index] = true;
        refreshLessons();
        int next = index + 1;
        while (next < Lessons::all().size() && !Lessons::isOpen(next, m_settings))
            ++next;
        if (next < Lessons::all().size()) {
            text += u' ' + tr("Good! Lesson %1 is next.").arg(next + 1);
            lstLessons->blockSignals(true);
            lstLessons->setCurrentRow(next);
            lstLessons->blockSignals(false);
            lblTitle->setText(tr("Lesson %1: %2").arg(next + 1).arg(Lessons::all()[next].title));
            cmdStart->setEnabled(true);
        } else {
            text += u' ' + tr("Good! That was the last lesson. Try a speed test!");
        }
    } else {
        text +=
            u' ' +
            tr("Try it again to reach %1% accuracy. Slow and steady!").arg(qRound(PassAccuracy));
    }
    say(text);
    cmdStart->setFocus();
}

void frmType::finishTest()
{
    const qint64 now = TickCount();
    Timer1->stop();
    const TestResult result = m_test.result(now);
    m_results.add(result);
    m_mode = Mode::Idle;
    setRunning(false);
    txtType->showExercise(&m_test.exercise());
    picKeyboard->setNextKey(QChar());
    refreshResults();
    PlaySound(m_tadaSound, SND_ASYNC);
    QString text = m_test.exercise().position() == 0 &&
                           m_test.exercise().lineIndex() >= m_test.exercise().lines().size()
                       ? tr("You typed the whole passage!")
                       : tr("Time is up!");
    text += u' ' + tr("Speed: %1 words a minute. Accuracy: %2%.")
                       .arg(qRound(result.wordsPerMinute))
                       .arg(qRound(result.accuracy));
    if (!result.missed.isEmpty())
        text += u' ' + tr("Keys to practise: %1.").arg(result.missed);
    lblStats->setText(tr("Speed: %1 words a minute    Accuracy: %2%")
                          .arg(qRound(result.wordsPerMinute))
                          .arg(qRound(result.accuracy)));
    say(text);
    cmdResults->setFocus();
}

void frmType::stopTyping(const QString &message)
{
    Timer1->stop();
    m_mode = Mode::Idle;
    setRunning(false);
    showIntro();
    say(message);
    lstLessons->setFocus();
}

void frmType::onExit()
{
    if (m_mode == Mode::Idle) {
        close();
        return;
    }
    stopTyping(m_mode == Mode::Test ? tr("Speed test stopped. It does not count.")
                                    : tr("Lesson stopped. Press Start Lesson to try again."));
}

void frmType::onResults()
{
    if (m_mode != Mode::Idle)
        return;
    const bool toResults = pnlPages->currentIndex() == 0;
    pnlPages->setCurrentIndex(toResults ? 1 : 0);
    cmdResults->setText(toResults ? tr("&Back to Typing") : tr("&Results"));
    if (toResults) {
        refreshResults();
        (m_results.isEmpty() ? static_cast<QWidget *>(grdResults) : static_cast<QWidget *>(txtName))
            ->setFocus();
    }
}

void frmType::refreshResults()
{
    const QList<TestResult> &all = m_results.all();
    grdResults->setRowCount(int(all.size()));
    for (int row = 0; row < all.size(); ++row) {
        const TestResult &r = all[row];
        const QStringList cells{r.title, QString::number(r.minutes),
                                QString::number(qRound(r.wordsPerMinute)),
                                tr("%1%").arg(qRound(r.accuracy)), r.missed};
        for (int column = 0; column < cells.size(); ++column) {
            auto *item = new QTableWidgetItem(cells[column]);
            if (column > 0)
                item->setTextAlignment(Qt::AlignCenter);
            grdResults->setItem(row, column, item);
        }
    }
    picChart->setResults(all);
    cmdPrint->setEnabled(!m_results.isEmpty());
}

void frmType::onPrint()
{
    const TestResult *best = m_results.best();
    if (!best) {
        MsgBox(this, tr("Print Certificate"),
               tr("Take a speed test first, then print your certificate."),
               QMessageBox::Information);
        return;
    }
    PrintWithPreview(this, Certificate::make(txtName->text(), *best, QDate::currentDate()));
}

void frmType::onSettingChanged()
{
    if (m_mode != Mode::Idle && sender() != chkGuide)
        return;
    m_settings.topRow = chkRow[0]->isChecked();
    m_settings.homeRow = chkRow[1]->isChecked();
    m_settings.bottomRow = chkRow[2]->isChecked();
    m_settings.numberRow = chkRow[3]->isChecked();
    m_settings.guide = chkGuide->isChecked();
    m_settings.shift = chkShift->isChecked();
    TheSettings().typing.values = m_settings.values();
    picKeyboard->setVisible(m_settings.guide);
    refreshLessons();
    if (m_mode == Mode::Idle)
        showIntro();
}

void frmType::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_mode != Mode::Idle) {
        onExit();
        return;
    }
    // Keys that reach the window while a drill runs belong to the typing line.
    if (m_mode != Mode::Idle && event->key() != Qt::Key_F1 && event->key() != Qt::Key_F11 &&
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) {
        txtType->setFocus();
        const QString text = event->text();
        if (text.size() == 1 && event->key() != Qt::Key_Backspace)
            typeChar(event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ? QChar(u'\n')
                                                                                     : text.at(0));
        return;
    }
    ActivityWindow::keyPressEvent(event);
}

void frmType::resizeEvent(QResizeEvent *event)
{
    ActivityWindow::resizeEvent(event);
    fitFonts();
}

void frmType::fitFonts()
{
    // Type grows with the window and shrinks on a small or much-scaled screen.
    const int base = qBound(11, qMin(height() / 40, width() / 56), 26);
    QFont plain = font();
    plain.setPixelSize(base);
    for (QWidget *widget :
         {static_cast<QWidget *>(lstLessons), static_cast<QWidget *>(fraTest),
          static_cast<QWidget *>(fraRows), static_cast<QWidget *>(chkGuide),
          static_cast<QWidget *>(chkShift), static_cast<QWidget *>(grdResults),
          static_cast<QWidget *>(picChart), static_cast<QWidget *>(txtName),
          static_cast<QWidget *>(picKeyboard), static_cast<QWidget *>(lblMessage)})
        widget->setFont(plain);
    QFont bold = plain;
    bold.setBold(true);
    for (QWidget *widget : {static_cast<QWidget *>(cmdStart), static_cast<QWidget *>(cmdTest),
                            static_cast<QWidget *>(cmdResults), static_cast<QWidget *>(cmdHelp),
                            static_cast<QWidget *>(cmdExit), static_cast<QWidget *>(cmdPrint),
                            static_cast<QWidget *>(lblStats)})
        widget->setFont(bold);
    QFont big = bold;
    big.setPixelSize(qRound(base * 1.3));
    lblTitle->setFont(big);
    lstLessons->setMaximumWidth(qMax(220, width() / 4));
}
