// SPDX-License-Identifier: GPL-3.0-or-later
#include "Facts.h"

#include "shell/core/Shuffle.h"

Q_LOGGING_CATEGORY(lcMathTutor, "lumbridle.mathtutor", QtInfoMsg)

QString OperationSign(Operation op)
{
    return op == Operation::Multiply ? QStringLiteral("×") : QStringLiteral("÷");
}

QString MathFact::text() const
{
    return QStringLiteral("%1 %2 %3").arg(left()).arg(OperationSign(op)).arg(right());
}

QString MathFact::withAnswer() const
{
    return QStringLiteral("%1 = %2").arg(text()).arg(answer());
}

QString FactRange::problem(Operation op, int low, int high)
{
    if (low < Lowest || high > Highest || low > Highest || high < Lowest)
        return QStringLiteral("The facts go from 0 to 12.");
    if (low > high)
        return QStringLiteral("The lowest fact must not be above the highest.");
    if (op == Operation::Divide && high == 0)
        return QStringLiteral("Nothing can be divided by 0. Choose facts above 0.");
    return {};
}

QList<qint16> FactRange::families(Operation op, int low, int high)
{
    QList<qint16> list;
    if (!problem(op, low, high).isEmpty())
        return list;
    for (int f = low; f <= high; ++f)
        if (op == Operation::Multiply || f != 0)
            list.append(qint16(f));
    return list;
}

std::optional<QList<MathFact>> FactRange::facts(Operation op, int low, int high)
{
    if (!problem(op, low, high).isEmpty())
        return std::nullopt;
    QList<MathFact> list;
    for (const qint16 f : families(op, low, high))
        for (qint16 other = Lowest; other <= Highest; ++other)
            list.append(MathFact{op, f, other});
    return list;
}

QList<MathFact> DrawFacts(const QList<MathFact> &pool, int count, RandomSource &random)
{
    QList<MathFact> drawn;
    if (pool.isEmpty() || count <= 0)
        return drawn;
    const auto size = qint16(qMin<qsizetype>(pool.size(), 32000));
    QList<qint16> order(size + 1);
    while (drawn.size() < count) {
        Shuffle(size, order, random);
        // A new pass must not start with the fact the last one ended on.
        if (!drawn.isEmpty() && size > 1 && pool[order[1] - 1] == drawn.last())
            std::swap(order[1], order[2]);
        for (qint16 i = 1; i <= size && drawn.size() < count; ++i)
            drawn.append(pool[order[i] - 1]);
    }
    return drawn;
}

QList<MathFact> Partners(const MathFact &fact)
{
    // The same fact family seen four ways: a × b, b × a, ab ÷ a and ab ÷ b.
    const qint16 a = fact.family;
    const qint16 b = fact.other;
    const QList<MathFact> all{{Operation::Multiply, a, b},
                              {Operation::Multiply, b, a},
                              {Operation::Divide, a, b},
                              {Operation::Divide, b, a}};
    QList<MathFact> partners;
    for (const MathFact &f : all) {
        if (f.op == Operation::Divide && f.family == 0)
            continue;
        // 7 × 7 has no separate turn-around; compare what is written, not how it was built.
        const bool same = f.text() == fact.text();
        bool seen = same;
        for (const MathFact &p : partners)
            seen = seen || p.text() == f.text();
        if (!seen)
            partners.append(f);
    }
    return partners;
}
