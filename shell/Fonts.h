// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Maps the font names the windows ask for to metric-compatible free fonts where the
// originals are not installed, so text keeps its size and place.
void InstallFontSubstitutes();

#include <QFont>
// The friendly lettering every window of the program uses, at a given size.
QFont FriendlyFont(double pointSize = 14);
