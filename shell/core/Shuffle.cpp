// SPDX-License-Identifier: GPL-3.0-or-later
#include "Shuffle.h"

void Shuffle(qint16 n, QList<qint16> &order, RandomSource &random)
{
    Q_ASSERT(n < 1 || order.size() > n);
    for (qint16 i = 1; i <= n; ++i)
        order[i] = i;
    for (qint16 j = n; j >= 2; --j) {
        const auto k = static_cast<qint16>(static_cast<int>(random.next() * j) + 1);
        std::swap(order[k], order[j]);
    }
}
