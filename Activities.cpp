// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of the activities the menu opens.
#include "Activities.h"

#include "shell/Settings.h"

#ifdef LUMBRIDLE_HAS_MATHRACE
#include "mathrace/frmMRace.h"
#endif
#ifdef LUMBRIDLE_HAS_STOPTHIEF
#include "stopthief/frmThief.h"
#endif

namespace {
template <typename Window> std::function<ActivityWindow *()> opens()
{
    return [] { return new Window; };
}
} // namespace

QList<ActivityEntry> Activities()
{
    return {
        {0, QStringLiteral("World Geography"), {}, QStringLiteral("worldgeography")},
        {1, QStringLiteral("Balloon Man"), {}, QStringLiteral("balloon")},
        {2, QStringLiteral("Space Race"), {}, QStringLiteral("spacerace")},
        {3, QStringLiteral("Higher Math"), {}, QStringLiteral("mathtutor")},
#ifdef LUMBRIDLE_HAS_MATHRACE
        {4, QStringLiteral("\tMath Race"), opens<frmMRace>(), QStringLiteral("mathrace")},
#else
        {4, QStringLiteral("\tMath Race"), {}, QStringLiteral("mathrace")},
#endif
        {5, QStringLiteral("Lemonade Stand"), {}, QStringLiteral("lemonade")},
        {6, QStringLiteral("Candy Drive"), {}, QStringLiteral("candy")},
#ifdef LUMBRIDLE_HAS_STOPTHIEF
        {7, QStringLiteral("Stop Thief!"), opens<frmThief>(), QStringLiteral("stopthief")},
#else
        {7, QStringLiteral("Stop Thief!"), {}, QStringLiteral("stopthief")},
#endif
        {8, QStringLiteral("Graphs && Charts"), {}, QStringLiteral("graphs")},
        {9, QStringLiteral("Calendar"), {}, QStringLiteral("calendar")},
        {10, QStringLiteral("US Geography"), {}, QStringLiteral("usgeography")},
        {11, QStringLiteral("US Presidents"), {}, QStringLiteral("presidents")},
        {12, QStringLiteral("Keyboarding"), {}, QStringLiteral("typing")},
        // The card games open the one last played: 1 War, 2 Concentration, 3 Blackjack.
        {13, QStringLiteral("\tDeckhand"), {}, QStringLiteral("cards")},
        {14, QStringLiteral("Pizza Place"), {}, QStringLiteral("pizza")},
    };
}
