// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

// Breaks a text into lines of at most `width` characters at blanks, keeping its own line
// breaks; a word longer than a whole line is cut so that nothing runs off the page.
QStringList WordWrap(const QString &text, int width);
