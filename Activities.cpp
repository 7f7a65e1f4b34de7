// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of the activities the menu opens.
#include "Activities.h"

#include "balloon/frmBall.h"
#include "calendar/frmCal.h"
#include "candy/frmCandy.h"
#include "cards/frmBlack.h"
#include "cards/frmConc.h"
#include "cards/frmWar.h"
#include "geography/frmGeo.h"
#include "geography/frmWGeo.h"
#include "graphs/frmGraphs.h"
#include "lemonade/frmLemon.h"
#include "mathrace/frmMRace.h"
#include "mathtutor/frmHMath.h"
#include "pizza/frmPizza.h"
#include "presidents/frmPres.h"
#include "spacerace/frmSRace.h"
#include "stopthief/frmThief.h"
#include "typing/frmType.h"

namespace {
template <typename Window> std::function<ActivityWindow *()> opens()
{
    return [] { return new Window; };
}
} // namespace

QList<ActivityEntry> Activities()
{
    return {
        {0, QStringLiteral("World Geography"), opens<frmWGeo>(), QStringLiteral("worldgeography")},
        {1, QStringLiteral("Balloon Man"), opens<frmBall>(), QStringLiteral("balloon")},
        {2, QStringLiteral("Space Race"), opens<frmSRace>(), QStringLiteral("spacerace")},
        {3, QStringLiteral("Higher Math"), opens<frmHMath>(), QStringLiteral("mathtutor")},
        {4, QStringLiteral("\tMath Race"), opens<frmMRace>(), QStringLiteral("mathrace")},
        {5, QStringLiteral("Lemonade Stand"), opens<frmLemon>(), QStringLiteral("lemonade")},
        {6, QStringLiteral("Candy Drive"), opens<frmCandy>(), QStringLiteral("candy")},
        {7, QStringLiteral("Stop Thief!"), opens<frmThief>(), QStringLiteral("stopthief")},
        {8, QStringLiteral("Graphs && Charts"), opens<frmGraphs>(), QStringLiteral("graphs")},
        {9, QStringLiteral("Calendar"), opens<frmCal>(), QStringLiteral("calendar")},
        {10, QStringLiteral("US Geography"), opens<frmGeo>(), QStringLiteral("usgeography")},
        {11, QStringLiteral("US Presidents"), opens<frmPres>(), QStringLiteral("presidents")},
        {12, QStringLiteral("Keyboarding"), opens<frmType>(), QStringLiteral("typing")},
        // The card games open the one last played: 1 War, 2 Concentration, 3 Blackjack.
        {13, QStringLiteral("\tDeckhand"),
         CardGameOpener(opens<frmWar>(), opens<frmConc>(), opens<frmBlack>()),
         QStringLiteral("cards")},
        {14, QStringLiteral("Pizza Place"), opens<frmPizza>(), QStringLiteral("pizza")},
    };
}
