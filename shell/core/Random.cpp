// SPDX-License-Identifier: GPL-3.0-or-later
#include "Random.h"

#include <QDateTime>
#include <QElapsedTimer>

namespace {

std::uint64_t splitMix(std::uint64_t &x)
{
    std::uint64_t z = (x += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

std::uint64_t rotl(std::uint64_t x, int k)
{
    return (x << k) | (x >> (64 - k));
}

Generator &ownGenerator()
{
    static Generator generator(1);
    return generator;
}

RandomSource *installed = nullptr;

} // namespace

void Generator::seed(qint64 seed)
{
    auto x = static_cast<std::uint64_t>(seed);
    for (auto &word : m_state)
        word = splitMix(x);
}

double Generator::next()
{
    const std::uint64_t result = rotl(m_state[1] * 5, 7) * 9;
    const std::uint64_t t = m_state[1] << 17;
    m_state[2] ^= m_state[0];
    m_state[3] ^= m_state[1];
    m_state[1] ^= m_state[2];
    m_state[0] ^= m_state[3];
    m_state[2] ^= t;
    m_state[3] = rotl(m_state[3], 45);
    // The top 53 bits fill a double's mantissa exactly, so the result is never 1.0.
    return static_cast<double>(result >> 11) * 0x1.0p-53;
}

RandomSource &CurrentRandomSource()
{
    return installed ? *installed : ownGenerator();
}

void SetRandomSource(RandomSource *source)
{
    installed = source;
}

double Rnd()
{
    return CurrentRandomSource().next();
}

int RndInt(int n)
{
    return static_cast<int>(Rnd() * n) + 1;
}

void Randomize(qint64 seed)
{
    CurrentRandomSource().seed(seed);
}

void RandomizeFromClock()
{
    // Two windows opened within the same millisecond still get different sequences.
    static qint64 calls = 0;
    Randomize(QDateTime::currentMSecsSinceEpoch() * 1000 + ++calls);
}
