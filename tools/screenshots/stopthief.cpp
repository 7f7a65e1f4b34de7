// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Stop Thief: the window as it opens, a case on each tab, the level and case number
// frames, hints, the accusation and the solution.
#include "Scene.h"

#include "stopthief/frmThief.h"
#include "support/TestDoubles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {

frmThief *WithCase(const QString &number, int tab = 0)
{
    auto *window = new frmThief;
    window->cmdOld->click();
    window->txtCNum->setText(number);
    window->cmdOKCN->click();
    window->SSTab1->setCurrentIndex(tab);
    return window;
}

int ButtonOf(const frmThief *window, bool thief)
{
    const Case *c = window->currentCase();
    for (int i = 0; i < Case::Suspects; ++i)
        if (c->isThief(c->displayList[i]) == thief)
            return i;
    return 0;
}

} // namespace

QList<Scene> stopthiefScenes()
{
    return {
        {QStringLiteral("stopthief-start"), [] { return new frmThief; }},
        {QStringLiteral("stopthief-case"), [] { return WithCase(QStringLiteral("2123452")); }},
        {QStringLiteral("stopthief-clues"), [] { return WithCase(QStringLiteral("1299995"), 1); }},
        {QStringLiteral("stopthief-suspects"),
         [] {
             frmThief *window = WithCase(QStringLiteral("2000014"), 2);
             const Case *c = window->currentCase();
             // A pupil part-way through: two suspects crossed off, a few values noted.
             for (int s = 0; s < Case::Suspects; ++s) {
                 if (c->displayList[s] == c->name(5) || c->displayList[s] == c->name(4))
                     window->findChild<QCheckBox *>(QStringLiteral("chkRuledOut_%1").arg(s))
                         ->setChecked(true);
                 auto *note = window->findChild<QComboBox *>(QStringLiteral("cboNote_%1_0").arg(s));
                 if (s % 2 == 0)
                     note->setCurrentIndex(note->findText(c->value(
                         1, int(std::find(c->names.cbegin(), c->names.cend(), c->displayList[s]) -
                                c->names.cbegin()) +
                                1)));
             }
             return window;
         }},
        {QStringLiteral("stopthief-newcase"),
         [] {
             auto *window = new frmThief;
             window->cmdNew->click();
             return window;
         }},
        {QStringLiteral("stopthief-oldcase"),
         [] {
             auto *window = new frmThief;
             window->cmdOld->click();
             window->txtCNum->setText(QStringLiteral("21234"));
             return window;
         }},
        {QStringLiteral("stopthief-hints"),
         [] {
             frmThief *window = WithCase(QStringLiteral("2000014"), 1);
             window->cmdHints->click();
             window->cmdHint->click();
             return window;
         }},
        {QStringLiteral("stopthief-right"),
         [] {
             frmThief *window = WithCase(QStringLiteral("2123452"), 1);
             window->cmdSuspect[ButtonOf(window, true)]->click();
             return window;
         }},
        {QStringLiteral("stopthief-wrong"),
         [] {
             frmThief *window = WithCase(QStringLiteral("1000001"), 1);
             window->cmdSuspect[ButtonOf(window, false)]->click();
             return window;
         }},
        {QStringLiteral("stopthief-solution"),
         [] {
             frmThief *window = WithCase(QStringLiteral("1299995"), 1);
             window->cmdSoln->click();
             return window;
         }},
    };
}
