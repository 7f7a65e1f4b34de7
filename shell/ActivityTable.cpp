// SPDX-License-Identifier: GPL-3.0-or-later
#include "ActivityTable.h"

#include "shell/core/Settings.h"

ActivityOpener CardGameOpener(ActivityOpener war, ActivityOpener concentration,
                              ActivityOpener blackjack)
{
    return [war, concentration, blackjack]() -> ActivityWindow * {
        switch (TheSettings().cards.game) {
        case 1:
            return war ? war() : nullptr;
        case 2:
            return concentration ? concentration() : nullptr;
        case 3:
            return blackjack ? blackjack() : nullptr;
        default:
            return nullptr;
        }
    };
}
