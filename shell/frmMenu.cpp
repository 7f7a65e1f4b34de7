// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmMenu.h"

#include "Accessibility.h"
#include "ActivityWindow.h"
#include "Preferences.h"
#include "Services.h"
#include "shell/core/DataPath.h"
#include "shell/core/SettingsStore.h"
#include "Startup.h"
#include "widgets/BrightButton.h"
#include "widgets/PictureBox.h"
#include "WindowUtil.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

Q_DECLARE_LOGGING_CATEGORY(lcShell)

namespace {
constexpr int Columns = 5;
constexpr int ChoiceCount = 15;
// Point sizes at the window's first size; the lettering grows and shrinks with the window.
constexpr int TitleSize = 40;
constexpr int ChoiceSize = 15;

// The program's name in bright letters, one colour each, above a friendly invitation in the
// lettering of the buttons. Painted directly: a rich-text label would lay out a whole document
// and load one more font before the menu's first paint. Its text, for screen readers, is the
// name and the invitation.
class TitleBanner : public QLabel {
public:
    TitleBanner(const QString &invitation, QWidget *parent)
        : QLabel(parent), m_invitation(invitation)
    {
        setTextFormat(Qt::PlainText);
        setText(Name + u'\n' + invitation);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics name(font());
        const QFontMetrics invitation(invitationFont());
        return {qMax(name.horizontalAdvance(Name), invitation.horizontalAdvance(m_invitation)),
                name.height() + invitation.height()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        static constexpr const char *Colours[] = {"#E53935", "#FB8C00", "#F9A825",
                                                  "#43A047", "#1E88E5", "#8E24AA"};
        QPainter painter(this);
        const QFontMetrics name(font());
        const QFontMetrics invitation(invitationFont());
        const int top = (height() - name.height() - invitation.height()) / 2;
        // Each letter where the whole word would put it, kerning included.
        const int left = (width() - name.horizontalAdvance(Name)) / 2;
        for (qsizetype i = 0; i < Name.size(); ++i) {
            painter.setPen(QColor(QLatin1String(Colours[i % 6])));
            painter.drawText(left + name.horizontalAdvance(Name.left(i)), top + name.ascent(),
                             Name.at(i));
        }
        painter.setFont(invitationFont());
        painter.setPen(QColor(0x0D, 0x47, 0xA1));
        painter.drawText(QRect(0, top + name.height(), width(), invitation.height()),
                         Qt::AlignCenter, m_invitation);
    }

private:
    // The name's lettering scaled to the buttons' size: the same font the buttons load.
    QFont invitationFont() const
    {
        QFont small = font();
        small.setPointSizeF(font().pointSizeF() * ChoiceSize / TitleSize);
        return small;
    }

    static inline const QString Name = QStringLiteral("Lumbridle");
    QString m_invitation;
};

// Bright colours, dark enough that white lettering stays easy to read.
constexpr const char *ButtonColours[ChoiceCount] = {
    "#1565C0", "#C62828", "#4527A0", "#2E7D32", "#D84315", "#F9A825", "#AD1457", "#37474F",
    "#00838F", "#6A1B9A", "#1E88E5", "#283593", "#558B2F", "#00695C", "#E65100"};
} // namespace

frmMenu::frmMenu(const QList<ActivityEntry> &activities, QWidget *parent)
    : QWidget(parent), m_activities(activities)
{
    setObjectName(QStringLiteral("frmMenu"));
    InstallAccessibility();
    setWindowTitle(QStringLiteral("Lumbridle, Version 5.0"));
    setAutoFillBackground(true);
    QPalette background = palette();
    QLinearGradient sky(0, 0, 0, 1);
    sky.setCoordinateMode(QGradient::ObjectMode);
    sky.setColorAt(0, QColor("#B3E5FC"));
    sky.setColorAt(1, QColor("#FFF9C4"));
    background.setBrush(QPalette::Window, sky);
    setPalette(background);

    Image1 = Named(new PictureBox(this), QStringLiteral("Image1"));
    Image1->setMinimumHeight(150);

    m_title = Named(new TitleBanner(tr("Pick an activity!"), this), QStringLiteral("lblTitle"));
    QFont titleFont(QStringLiteral("Comic Sans MS"));
    titleFont.setPointSize(TitleSize);
    titleFont.setBold(true);
    m_title->setFont(titleFont);

    QFont choiceFont(QStringLiteral("Comic Sans MS"));
    choiceFont.setPointSize(ChoiceSize);
    choiceFont.setBold(true);
    auto *grid = new QGridLayout;
    grid->setSpacing(12);
    for (int i = 0; i < ChoiceCount; ++i) {
        const auto entry = std::find_if(m_activities.cbegin(), m_activities.cend(),
                                        [i](const ActivityEntry &e) { return e.index == i; });
        auto *button =
            Named(new BrightButton(QColor(ButtonColours[i]), this), ArrayName("cmdChoice", i));
        button->setText(entry != m_activities.cend() ? entry->caption : QString());
        button->setAccessibleName(SpokenCaption(button->text()));
        button->setFont(choiceFont);
        button->setMinimumSize(150, 64);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        button->setEnabled(entry != m_activities.cend() && entry->open);
        if (!button->isEnabled())
            button->setToolTip(tr("This activity is not in this version yet."));
        connect(button, &QPushButton::clicked, this, [this, i] { openActivity(i); });
        grid->addWidget(button, i / Columns, i % Columns);
        m_choices.append(button);
    }

    // The plainer buttons below in one calm colour, so the activities stand out above them.
    const QColor calm(0x54, 0x6E, 0x7A);
    cmdHelp = Named(new BrightButton(calm, this, 10), QStringLiteral("cmdHelp"));
    cmdHelp->setText(tr("&Help"));
    cmdSound = Named(new BrightButton(calm, this, 10), QStringLiteral("cmdSound"));
    cmdSound->setCheckable(true);
    // Read as what it is: a switch called Sound, on (checked) while sounds play.
    cmdSound->setAccessibleName(tr("Sound"));
    cmdExit = Named(new BrightButton(calm, this, 10), QStringLiteral("cmdExit"));
    cmdExit->setText(tr("E&xit"));
    for (QPushButton *button : {cmdHelp, cmdSound, cmdExit}) {
        // The lettering of the activity buttons: one size and weight fewer to load at start.
        button->setFont(choiceFont);
        button->setMinimumHeight(44);
        button->setMinimumWidth(130);
    }
    connect(cmdHelp, &QPushButton::clicked, this, [this] { ShowHelpContents(this); });
    connect(cmdSound, &QPushButton::toggled, this, [this](bool on) {
        Preferences::get().muted = !on;
        if (!on)
            StopSound();
        updateSoundButton();
    });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    cmdSound->setChecked(!Preferences::get().muted);
    updateSoundButton();

    auto *top = new QHBoxLayout;
    top->addWidget(Image1, 3);
    top->addWidget(m_title, 2);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(cmdHelp);
    bottom->addWidget(cmdSound);
    bottom->addStretch();
    bottom->addWidget(cmdExit);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(14);
    layout->addLayout(top, 2);
    layout->addLayout(grid, 3);
    layout->addLayout(bottom);
    resize(1000, 700);
}

void frmMenu::updateSoundButton()
{
    cmdSound->setText(cmdSound->isChecked() ? tr("Sound &on") : tr("Sound &off"));
    cmdSound->setToolTip(tr("Turn all sounds on or off, for a quiet classroom."));
}

void frmMenu::openActivity(int index)
{
    const auto entry = std::find_if(m_activities.cbegin(), m_activities.cend(),
                                    [index](const ActivityEntry &e) { return e.index == index; });
    if (entry == m_activities.cend() || !entry->open || m_current)
        return;
    hide();
    ActivityWindow *window = entry->open();
    if (!window) {
        qCWarning(lcShell) << "activity" << index << "has nothing to open";
        return;
    }
    adopt(window);
    window->show();
}

void frmMenu::adopt(ActivityWindow *window)
{
    m_current = window;
    connect(window, &ActivityWindow::closed, this, &frmMenu::activityClosed);
    connect(window, &ActivityWindow::replaced, this, &frmMenu::adopt);
}

void frmMenu::activityClosed()
{
    m_current = nullptr;
    if (!m_closing)
        show();
}

void frmMenu::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_centred) {
        m_centred = true;
        PlaceOnScreen(this);
    }
}

void frmMenu::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Lettering grows with the window, so the buttons read as well on a large screen.
    // Never larger than the screen allowed (FitScale) on a small or highly scaled screen.
    const double fit = FitScale(this);
    const double scale = qBound(fit, qMin(width() / 1000.0, height() / 700.0), 2.5 * fit);
    const auto resize = [](QWidget *widget, double size) {
        QFont font = widget->font();
        if (qFuzzyCompare(font.pointSizeF(), size))
            return; // an unchanged font would still re-lay the buttons out
        font.setPointSizeF(size);
        widget->setFont(font);
    };
    for (QPushButton *button : std::as_const(m_choices))
        resize(button, ChoiceSize * scale);
    resize(m_title, TitleSize * scale);
}

void frmMenu::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    // The buttons come first: the picture and the program's icon are drawn right after the
    // first frame, which they would otherwise hold back by several milliseconds.
    if (!m_pictureAsked) {
        m_pictureAsked = true;
        QTimer::singleShot(0, this, [this] {
            Image1->load(DataFile(QStringLiteral("menu.svg")));
            LoadProgramIcon();
        });
    }
}

void frmMenu::closeEvent(QCloseEvent *event)
{
    m_closing = true;
    if (m_current)
        m_current->close();
    FileError error;
    if (!SettingsStore::save(&error))
        qCWarning(lcShell) << "settings not saved:" << error.message();
    Preferences::get().save();
    event->accept();
    QCoreApplication::quit();
}

void frmMenu::keyPressEvent(QKeyEvent *event)
{
    // Arrow keys walk the grid of activity buttons, for pupils who play by keyboard.
    const int at = int(m_choices.indexOf(qobject_cast<QPushButton *>(focusWidget())));
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Right:
        step = 1;
        break;
    case Qt::Key_Up:
        step = -Columns;
        break;
    case Qt::Key_Down:
        step = Columns;
        break;
    case Qt::Key_F1:
        ShowHelpContents(this);
        return;
    case Qt::Key_F11:
        ToggleFullScreen(this);
        return;
    default:
        break;
    }
    if (PressFocusedButton(this, event))
        return;
    if (at >= 0 && step != 0) {
        for (int next = at + step; next >= 0 && next < ChoiceCount; next += step)
            if (m_choices[next]->isEnabled()) {
                m_choices[next]->setFocus(Qt::TabFocusReason);
                return;
            }
        return;
    }
    QWidget::keyPressEvent(event);
}
