// SPDX-License-Identifier: GPL-3.0-or-later
#include "optSRace.h"

#include "RocketRace.h"
#include "ScreenFit.h"
#include "shell/core/DataPath.h"
#include "shell/core/Settings.h"
#include "shell/Services.h"
#include "shell/widgets/Gauge.h"
#include "shell/WindowUtil.h"
#include "SkyView.h"
#include "WordBox.h"
#include "WordListPaper.h"

#include <QButtonGroup>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {
constexpr int Rows = 5; // the boxes stand in four columns of five, numbered down each column
const auto Filter = "Word Lists (*.srl)";

QFont BaseFont(double scale = 1, bool bold = false)
{
    QFont f(QStringLiteral("Comic Sans MS"));
    f.setPointSizeF(13 * scale);
    f.setBold(bold);
    return f;
}

QPushButton *ListButton(const QString &caption, const QString &name, QWidget *parent)
{
    auto *button = Named(new QPushButton(caption, parent), name);
    button->setFont(BaseFont(1, true));
    button->setAutoDefault(true);
    StyleBrightButton(button, QColor(0x6A, 0x1B, 0x9A), 10);
    return button;
}
} // namespace

optSRace::optSRace(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("optSRace"));
    setFont(BaseFont());
    setStyleSheet(QStringLiteral(
        "optSRace { background: #E8EAF6; }"
        "QGroupBox { background: white; border: 2px solid #9FA8DA; border-radius: 12px;"
        " margin-top: 1.2em; padding: 4px 8px; font-weight: bold; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 0 6px;"
        " color: #1A237E; }"
        "QLineEdit { border: 2px solid #9FA8DA; border-radius: 6px; padding: 1px 4px;"
        " background: #FFFDE7; }"
        "QLineEdit:focus { border: 3px solid #F57C00; }"
        "QLineEdit:disabled { background: #ECEFF1; color: #90A4AE; }"
        "QRadioButton { spacing: 6px; }"
        "QRadioButton::indicator { width: 18px; height: 18px; }"));

    const char *titles[] = {"Spelling List", "Players", "Game", "Flash Time", "Word List"};
    for (int i = 0; i < 5; ++i)
        Frame.append(
            Named(new QGroupBox(tr(titles[i]), this), QStringLiteral("Frame%1").arg(i + 1)));

    buildListFrame(Frame[0]);

    // Players: how many, and their names.
    auto *playersGroup = new QButtonGroup(this);
    auto *counts = new QHBoxLayout;
    for (int i = 0; i < RocketRace::MaxPlayers; ++i) {
        const QString text = i == 0 ? tr("&1 Player") : tr("&%1 Players").arg(i + 1);
        auto *button = Named(new QRadioButton(text, Frame[1]), ArrayName("optPlayers", i));
        button->setAccessibleName(i == 0 ? tr("1 Player") : tr("%1 Players").arg(i + 1));
        playersGroup->addButton(button, i);
        counts->addWidget(button);
        optPlayers.append(button);
    }
    auto *names = new QGridLayout;
    names->setHorizontalSpacing(8);
    names->setVerticalSpacing(4);
    for (int i = 0; i < RocketRace::MaxPlayers; ++i) {
        auto *name = Named(new QLineEdit(Frame[1]), ArrayName("txtName", i));
        name->setMaxLength(NameLength);
        name->setAccessibleName(tr("Name of player %1").arg(i + 1));
        name->setStyleSheet(QStringLiteral("QLineEdit { color: %1; }")
                                .arg(SkyView::rocketColour(i + 1).darker(130).name()));
        auto *number = new QLabel(QString::number(i + 1), Frame[1]);
        number->setBuddy(name);
        number->setTextFormat(Qt::PlainText);
        names->addWidget(number, i / 2, (i % 2) * 2);
        names->addWidget(name, i / 2, (i % 2) * 2 + 1);
        txtName.append(name);
    }
    auto *playersLayout = new QVBoxLayout(Frame[1]);
    playersLayout->setSpacing(4);
    playersLayout->addLayout(counts);
    playersLayout->addLayout(names);

    // The game.
    auto *gameGroup = new QButtonGroup(this);
    auto *gameLayout = new QVBoxLayout(Frame[2]);
    const QString games[] = {tr("&Flasher"), tr("S&crambler")};
    const QString gameNames[] = {tr("Flasher"), tr("Scrambler")};
    for (int i = 0; i < 2; ++i) {
        auto *button = Named(new QRadioButton(games[i], Frame[2]), ArrayName("optGame", i));
        button->setAccessibleName(gameNames[i]);
        gameGroup->addButton(button, i);
        gameLayout->addWidget(button);
        optGame.append(button);
    }
    gameLayout->addStretch();

    // How long Flasher shows a word.
    spnSpeed = Named(new QSpinBox(Frame[3]), QStringLiteral("spnSpeed"));
    spnSpeed->setRange(0, SpeedMax);
    spnSpeed->setAccessibleName(tr("Flash time"));
    spnSpeed->setMinimumWidth(70);
    pnlSpeed = Named(new Gauge(Frame[3]), QStringLiteral("pnlSpeed"));
    pnlSpeed->setOrientation(Qt::Horizontal);
    pnlSpeed->setAccessibleName(tr("Speed"));
    pnlSpeed->setMinimumWidth(90);
    lblSpeed = Named(new QLabel(Frame[3]), QStringLiteral("lblSpeed"));
    lblSpeed->setTextFormat(Qt::PlainText);
    lblSpeed->setFont(BaseFont(0.9));
    auto *speedLabel = new QLabel(tr("Spee&d"), Frame[3]);
    speedLabel->setBuddy(spnSpeed);
    speedLabel->setTextFormat(Qt::PlainText);
    auto *speedRow = new QHBoxLayout;
    speedRow->addWidget(speedLabel);
    speedRow->addWidget(spnSpeed);
    speedRow->addWidget(pnlSpeed, 1);
    auto *speedLayout = new QVBoxLayout(Frame[3]);
    speedLayout->setSpacing(2);
    speedLayout->addLayout(speedRow);
    speedLayout->addWidget(lblSpeed);

    // The list's own buttons.
    cmdNew = ListButton(tr("&New List"), QStringLiteral("cmdNew"), Frame[4]);
    cmdOpen = ListButton(tr("&Open List"), QStringLiteral("cmdOpen"), Frame[4]);
    cmdSave = ListButton(tr("&Save List"), QStringLiteral("cmdSave"), Frame[4]);
    cmdPrint = ListButton(tr("&Print List"), QStringLiteral("cmdPrint"), Frame[4]);
    auto *listButtons = new QVBoxLayout(Frame[4]);
    for (QPushButton *button : {cmdNew, cmdOpen, cmdSave, cmdPrint})
        listButtons->addWidget(button);
    listButtons->addStretch();

    cmdOK = Named(new QPushButton(tr("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setFont(BaseFont(1.2, true));
    cmdOK->setMinimumWidth(100);
    cmdOK->setDefault(true);
    StyleBrightButton(cmdOK, QColor(0x2E, 0x7D, 0x32));

    auto *lower = new QHBoxLayout;
    lower->setSpacing(8);
    lower->addWidget(Frame[1], 3);
    lower->addWidget(Frame[2], 1);
    auto *speedAndOk = new QVBoxLayout;
    speedAndOk->addWidget(Frame[3]);
    speedAndOk->addWidget(cmdOK, 0, Qt::AlignRight);
    lower->addLayout(speedAndOk, 2);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 10);
    layout->setSpacing(6);
    // The list's buttons stand beside the list, keeping the window short for small screens.
    auto *upper = new QHBoxLayout;
    upper->setSpacing(8);
    upper->addWidget(Frame[0], 1);
    upper->addWidget(Frame[4]);
    layout->addLayout(upper);
    layout->addLayout(lower);
    layout->addStretch();

    // Style sheets break the passing of fonts from frame to contents; give each its own.
    const auto children = findChildren<QWidget *>();
    for (QWidget *child : children)
        if (!child->testAttribute(Qt::WA_SetFont))
            child->setFont(BaseFont());

    // The values of the settings, brought into the ranges the window can show.
    Settings::SpaceRace &race = TheSettings().spaceRace;
    race.players = qint16(qBound(1, int(race.players), int(RocketRace::MaxPlayers)));
    race.gameType = qint16(qBound(1, int(race.gameType), 2));
    race.speed = qint16(qBound(0, int(race.speed), int(SpeedMax)));
    for (int i = 0; i < RocketRace::MaxPlayers; ++i)
        txtName[i]->setText(race.names[size_t(i)]);
    optPlayers[race.players - 1]->setChecked(true);
    onPlayers(race.players - 1);
    optGame[race.gameType - 1]->setChecked(true);
    onGame(race.gameType - 1);
    spnSpeed->setValue(race.speed);
    onSpeed(race.speed);

    connect(playersGroup, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            onPlayers(id);
    });
    connect(gameGroup, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            onGame(id);
    });
    connect(spnSpeed, &QSpinBox::valueChanged, this, &optSRace::onSpeed);
    connect(cmdNew, &QPushButton::clicked, this, &optSRace::onNew);
    connect(cmdOpen, &QPushButton::clicked, this, &optSRace::onOpen);
    connect(cmdSave, &QPushButton::clicked, this, &optSRace::onSave);
    connect(cmdPrint, &QPushButton::clicked, this, &optSRace::onPrint);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    showList();
    txtWord[0]->setFocus();
}

void optSRace::buildListFrame(QGroupBox *frame)
{
    Label1 = Named(new QLabel(tr("Type one word in each box. Enter goes to the next box."), frame),
                   QStringLiteral("Label1"));
    Label1->setTextFormat(Qt::PlainText);
    Label1->setWordWrap(true);
    Label1->setFont(BaseFont(0.9));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    for (int i = 0; i < WordList::MaxWords; ++i) {
        auto *number =
            Named(new QLabel(QString::number(i + 1), frame), ArrayName("lblIndex", i + 1));
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setTextFormat(Qt::PlainText);
        number->setStyleSheet(QStringLiteral("color: #3949AB;"));
        auto *box = Named(new WordBox(frame), ArrayName("txtWord", i + 1));
        box->setAccessibleName(tr("Word %1").arg(i + 1));
        box->setMinimumWidth(60);
        box->setFont(BaseFont(1.2, true));
        number->setBuddy(box);
        const int row = i % Rows;
        const int column = i / Rows;
        grid->addWidget(number, row, column * 2);
        grid->addWidget(box, row, column * 2 + 1);
        grid->setColumnStretch(column * 2 + 1, 1);
        connect(box, &QLineEdit::textEdited, this, &optSRace::onWordEdited);
        connect(box, &WordBox::enterPressed, this, [this, i] { moveFrom(i, 1); });
        connect(box, &WordBox::stepPressed, this, [this, i](int step) { moveFrom(i, step); });
        txtWord.append(box);
        lblIndex.append(number);
    }
    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(4);
    layout->addWidget(Label1);
    layout->addLayout(grid);
}

QString optSRace::caption(const QString &listName)
{
    return QStringLiteral("Space Race, List Name: ") + listName;
}

int optSRace::speedPercent(int speed)
{
    return (SpeedMax - qBound(0, speed, SpeedMax)) * 100 / SpeedMax;
}

QString optSRace::listsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = QDir(documents.isEmpty() ? QDir::homePath() : documents)
                               .filePath(QStringLiteral("Lumbridle"));
    QDir().mkpath(folder);
    return folder;
}

void optSRace::renewCaption()
{
    setWindowTitle(caption(SharedList().name));
}

void optSRace::showList()
{
    const WordList &list = SharedList();
    for (int i = 0; i < WordList::MaxWords; ++i)
        txtWord[i]->setText(list.words.value(i));
    renewCaption();
}

void optSRace::onWordEdited()
{
    // Blank boxes are closed up in the list; the boxes keep their places while typing.
    WordList list = SharedList();
    list.words.clear();
    for (const WordBox *box : std::as_const(txtWord))
        if (!box->text().isEmpty())
            list.words.append(box->text());
    list.saved = false;
    SetSharedList(list);
}

void optSRace::moveFrom(int box, int step)
{
    const int next = (box + step + WordList::MaxWords) % WordList::MaxWords;
    txtWord[next]->setFocus();
    txtWord[next]->selectAll();
}

void optSRace::onPlayers(int index)
{
    TheSettings().spaceRace.players = qint16(index + 1);
    for (int i = 0; i < RocketRace::MaxPlayers; ++i)
        txtName[i]->setEnabled(i <= index);
}

void optSRace::onGame(int index)
{
    TheSettings().spaceRace.gameType = qint16(index + 1);
    // The flash time matters to Flasher only.
    Frame[3]->setEnabled(index == 0);
}

void optSRace::onSpeed(int speed)
{
    TheSettings().spaceRace.speed = qint16(speed);
    pnlSpeed->setPercent(speedPercent(speed));
    lblSpeed->setText(tr("Flasher shows a word for %1 seconds.")
                          .arg(QString::number((speed + 1) / 10.0, 'f', 1)));
}

bool optSRace::mayDropList(const QString &title)
{
    const WordList &list = SharedList();
    if (!list.hasUnsavedWords())
        return true;
    const QString question = tr("Current Word List: %1\nThis list will be lost if it has not "
                                "been saved.\nDo you wish to continue?")
                                 .arg(list.name);
    return MsgBox(this, title, question, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                  QMessageBox::No) == QMessageBox::Yes;
}

void optSRace::onNew()
{
    if (!mayDropList(tr("Enter New List")))
        return;
    SetSharedList(WordList());
    showList();
    txtWord[0]->setFocus();
}

void optSRace::onOpen()
{
    const QString title = tr("Open Word List");
    if (!mayDropList(title))
        return;
    // The pupil's own lists first; until there are any, the lists that come with the program.
    QString folder = listsFolder();
    if (QDir(folder).entryList({QStringLiteral("*.srl")}, QDir::Files).isEmpty())
        folder = DataPath();
    const QString path = Services::dialogs().openFileName(this, title, folder, tr(Filter));
    if (path.isEmpty())
        return;
    FileError error;
    const std::optional<WordList> list = WordList::read(path, &error);
    if (!list) {
        MsgBox(this, title, tr("This word list could not be opened:\n%1").arg(error.message()),
               QMessageBox::Critical);
        return;
    }
    SetSharedList(*list);
    showList();
}

void optSRace::onSave()
{
    const QString title = tr("Save Word List");
    if (SharedList().isEmpty()) {
        MsgBox(this, title, tr("Your spelling list has no words."), QMessageBox::Information);
        return;
    }
    QString path = Services::dialogs().saveFileName(this, title, listsFolder(), tr(Filter));
    if (path.isEmpty())
        return;
    path = WordList::withExtension(path);
    WordList list = SharedList();
    FileError error;
    if (!list.write(path, &error)) {
        MsgBox(this, title, tr("This word list could not be saved:\n%1").arg(error.message()),
               QMessageBox::Critical);
        return;
    }
    list.name = WordList::nameFromPath(path);
    list.saved = true;
    SetSharedList(list);
    showList();
}

void optSRace::onPrint()
{
    const QString title = tr("Print Word List");
    const WordList &list = SharedList();
    if (list.isEmpty()) {
        MsgBox(this, title, tr("No words in list - can't be printed!"), QMessageBox::Information);
        return;
    }
    if (MsgBox(this, title, tr("Make sure printer is on-line and ready."), QMessageBox::Information,
               QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok)
        return;
    PrintWithPreview(this, WordListPaper(list));
}

bool optSRace::mayLeave()
{
    const WordList &list = SharedList();
    const QString title = tr("Space Race Options");
    if (list.isEmpty()) {
        MsgBox(this, title, tr("Your spelling list has no words."), QMessageBox::Information);
        return true;
    }
    if (!list.saved) {
        const QString question = tr("Current List: %1\nList has not been saved.\nDo you still "
                                    "want to leave the options screen?")
                                     .arg(list.name);
        return MsgBox(this, title, question, QMessageBox::Question,
                      QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
    }
    return true;
}

void optSRace::done(int result)
{
    // Closing by the frame or Escape asks the same as OK: the options have no cancel.
    if (!mayLeave())
        return;
    Settings::SpaceRace &race = TheSettings().spaceRace;
    for (int i = 0; i < RocketRace::MaxPlayers; ++i) {
        // A blank name would leave an empty line under the rockets and in the results.
        const QString name = txtName[i]->text().trimmed();
        race.names[size_t(i)] = name.isEmpty() ? tr("Player %1").arg(i + 1) : name;
    }
    QDialog::done(result);
}

void optSRace::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    ShrinkToScreen(this);
    CentreOnScreen(this);
}
