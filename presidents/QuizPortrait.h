// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

// The portrait as a clue of "Name the President": our drawn cards carry the president's
// initials and name, which would give the answer away, so those are covered with a question
// mark; the number and the years stay, as clues of their own. Any other picture (a school's
// real portrait under the same file name) is returned as it is.
QImage QuizPortrait(const QImage &portrait);
