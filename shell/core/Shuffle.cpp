// SPDX-License-Identifier: GPL-3.0-or-later
#include "Shuffle.h"

#include <limits>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcCore, "lumbridle.core")

bool Shuffle(qint16 n, QList<qint16> &order, RandomSource &random)
{
    // The filling loop counts to n + 1 before it stops, which 16 bits cannot hold for 32767.
    if (n == std::numeric_limits<qint16>::max()) {
        qCCritical(lcCore) << "Shuffle: overflow, a count of" << n << "is too large";
        return false;
    }
    if (n > 0 && order.size() <= n) {
        qCCritical(lcCore) << "Shuffle: the list holds" << order.size() << "elements, not" << n + 1;
        return false;
    }
    for (int i = 1; i <= n; ++i)
        order[i] = qint16(i);
    for (int j = n; j >= 2; --j) {
        const int k = int(random.next() * j) + 1;
        std::swap(order[k], order[j]);
    }
    return true;
}
