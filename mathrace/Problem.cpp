// SPDX-License-Identifier: GPL-3.0-or-later
#include "Problem.h"

#include "shell/core/Random.h"

#include <cmath>

namespace {

// A whole number from 1 up to x, or up to the next whole number above x when x is not whole.
qint16 Draw(double x)
{
    return qint16(std::floor(Rnd() * x) + 1);
}

QChar OperatorSign(qint16 kind)
{
    switch (kind) {
    case Subtraction:
        return u'-';
    case Multiplication:
        return u'x';
    case Division:
        return u'/';
    default:
        return u'+';
    }
}

} // namespace

QString SignedText(int number)
{
    return number < 0 ? QString::number(number) : QLatin1Char(' ') + QString::number(number);
}

QString Problem::caption() const
{
    return SignedText(first) + QLatin1Char(' ') + OperatorSign(kind) + SignedText(second) +
           QLatin1String(" =");
}

qint16 ChooseKind(qint16 type)
{
    if (type >= Addition && type <= Division)
        return type;
    return Draw(4);
}

Problem Problem_Type(qint16 kind, qint16 largest)
{
    // A damaged settings file may hold zero or less; every draw below needs a range from 1.
    const qint16 m = qMax<qint16>(largest, 1);
    Problem p;
    p.kind = kind;
    switch (kind) {
    case Subtraction: {
        const qint16 top = Draw(m);
        const qint16 taken = Draw(top);
        p.first = top;
        p.second = taken;
        p.answer = qint16(top - taken);
        break;
    }
    case Multiplication:
    case Division: {
        const qint16 c = Draw(m);
        const qint16 a = Draw(std::sqrt(double(c)));
        const qint16 b = qint16(c / a);
        // a x b never exceeds c, so neither the product nor the dividend can leave 16 bits.
        const qint16 product = qint16(a * b);
        if (kind == Multiplication) {
            p.first = a;
            p.second = b;
            p.answer = product;
        } else {
            p.first = product;
            p.second = b;
            p.answer = a;
        }
        break;
    }
    default: {
        p.kind = Addition;
        const qint16 total = Draw(m);
        const qint16 first = Draw(total);
        p.first = first;
        p.second = qint16(total - first);
        p.answer = total;
        break;
    }
    }
    return p;
}
