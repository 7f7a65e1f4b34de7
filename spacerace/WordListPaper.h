// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Printing.h"

class WordList;

// The printed spelling list: the credit line, "List: " and the list's name, then one line
// per word, "1 - CAT", in a typewriter face.
PrintDocument WordListPaper(const WordList &list);
