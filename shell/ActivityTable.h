// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QList>
#include <QString>

class ActivityWindow;

// One button of the menu: its caption, the window it opens and the activity's help topic.
// An entry without `open` is an activity not yet in the program; its button is disabled.
// `open` may return nullptr when there is nothing to open (the card games, by their setting).
struct ActivityEntry {
    int index = 0;
    QString caption;
    std::function<ActivityWindow *()> open;
    QString helpTopic;
};

// The fifteen activities, in menu order; defined once, beside main().
QList<ActivityEntry> Activities();

using ActivityOpener = std::function<ActivityWindow *()>;
// The card games share one button: it opens the game of the card game setting (1 War,
// 2 Concentration, 3 Blackjack); any other value opens nothing.
ActivityOpener CardGameOpener(ActivityOpener war, ActivityOpener concentration,
                              ActivityOpener blackjack);
