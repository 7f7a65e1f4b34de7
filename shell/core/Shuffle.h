// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Random.h"

#include <QList>

// Fills elements 1..n of `order` with a random permutation of 1..n (Fisher-Yates from the top).
// Element 0 is never touched; the list must already hold at least n + 1 elements.
void Shuffle(qint16 n, QList<qint16> &order, RandomSource &random = CurrentRandomSource());
