// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Choosing a mode the way a pupil does in either geography window.
#include "geography/GeoQuizWindow.h"

#include <QPushButton>
#include <QRadioButton>
#include <QTest>

// The answer type, then the mode's direction (where it has one), then the mode's button.
inline void choose(GeoQuizWindow &window, int answerType, int mode, int direction)
{
    window.optType[answerType]->setChecked(true);
    const QList<QList<QRadioButton *>> ways{window.optWhich1, window.optWhich2, window.optWhich3};
    if (mode == Capitals || mode == FindIt || mode == Flags)
        ways[mode == Capitals ? 0 : mode == FindIt ? 1 : 2][direction]->setChecked(true);
    QTest::mouseClick(window.cmdChoice[mode - 1], Qt::LeftButton);
}
