// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QMargins>
#include <QRect>
#include <QString>

class QColor;
class QKeyEvent;
class QPushButton;
class QWidget;

// Puts a window in the middle of its screen: ((screen size - window size) / 2), fitted to the
// screen's free area first (see FitInto).
void CentreOnScreen(QWidget *window);
// Makes a window fit `area` with its frame: where its layout needs more room than there is,
// its lettering, pictures and spacing shrink (never below half); then it is sized to fit and
// centred, its title bar never above the area. `frame` is the room the title bar and borders
// take; without it, the window's own frame, or a typical one before it has been shown.
void FitInto(QWidget *window, const QRect &area, const QMargins &frame);
void FitInto(QWidget *window, const QRect &area);
// How much FitInto has shrunk a window's contents (1 when it did not need to).
double FitScale(const QWidget *window);
// A window's first placement: full screen when the pupil chose it (F11), else centred.
void PlaceOnScreen(QWidget *window);
// F11: full screen on or off, remembered for the next windows and the next start.
void ToggleFullScreen(QWidget *window);
// Sets a widget's object name, the name tests and accessibility tools find it by.
template <typename T> T *Named(T *widget, const QString &name)
{
    widget->setObjectName(name);
    return widget;
}
// The name of element `index` of a control array: "cmdChoice_3".
inline QString ArrayName(const char *name, int index)
{
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index);
}
// Tells screen readers of a result that matters ("Good!", a verdict): the text becomes the
// widget's accessible description and an alert event carries it, as a label change alone does not.
void Announce(QWidget *source, const QString &text);
// Whether a message box can be seen and closed: not on a platform without a screen.
bool CanShowMessages();
// Makes a widget's type larger by a factor, for young readers.
void ScaleFont(QWidget *widget, double factor, bool bold = false);
// Enter on a focused button presses it, as the space bar does: outside dialogs Qt's buttons
// leave Enter to their window. Returns whether the key was used.
bool PressFocusedButton(QWidget *window, QKeyEvent *event);
// The colours of a bright button in each of its states, all from its one strong colour.
struct BrightColours {
    QColor face, text, border, hover, focus, disabledFace, disabledText, disabledBorder;
};
BrightColours BrightColoursOf(const QColor &colour);
// The bright, rounded look of the program's big buttons: a strong colour, lettering that
// stays readable on it, a thick yellow ring when focused and grey when disabled.
void StyleBrightButton(QPushButton *button, const QColor &colour, int radius = 12);
// A named bright button of an activity's button row ("#2E7D32" style colours): Enter presses it
// when focused, and it keeps one row's height however the window grows.
QPushButton *MakeBrightButton(const QString &caption, const QString &name, const char *colour,
                              QWidget *parent);
// A named bright button in its parent's lettering made bold, at least `minHeight` tall, that
// grows with its row: Enter presses it when focused, so a window works from the keyboard alone.
QPushButton *MakeBoldBrightButton(const QString &caption, const QString &name, const char *colour,
                                  QWidget *parent, int minHeight = 40);
// The same look as style sheet text for the buttons `selector` picks ("#cmdChoice_3"), so a
// window of many such buttons can style them all with one sheet, read once.
QString BrightButtonStyle(const QString &selector, const QColor &colour, int radius = 12);
