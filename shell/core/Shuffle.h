// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Random.h"

#include <QList>

// Fills elements 1..n of `order` with a random permutation of 1..n (Fisher-Yates from the top).
// Element 0 is never touched; the list must already hold at least n + 1 elements.
// A count whose 16-bit counter would overflow (32767) or a list too short is an error: it is
// logged, the list is left as it was and false is returned.
bool Shuffle(qint16 n, QList<qint16> &order, RandomSource &random = CurrentRandomSource());
