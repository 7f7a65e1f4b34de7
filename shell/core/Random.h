// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QtGlobal>

// A source of uniform numbers in [0, 1). The process-wide one is swapped by tests for a
// scripted or seeded double; cases that must be reproducible own a Generator of their own.
class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual double next() = 0;
    virtual void seed(qint64 seed) = 0;
};

// Our own deterministic generator (xoshiro256** seeded through splitmix64), so a seed gives
// the same sequence on every platform and compiler.
class Generator final : public RandomSource {
public:
    explicit Generator(qint64 seed = 0) { Generator::seed(seed); }
    double next() override;
    void seed(qint64 seed) override;

private:
    std::uint64_t m_state[4] = {};
};

// One draw from the process-wide source, uniform in [0, 1).
double Rnd();
// A whole number from 1 to n, drawn as Int(Rnd * n) + 1.
int RndInt(int n);
// Re-seeds the process-wide source from a number (reproducible) or from the clock.
void Randomize(qint64 seed);
void RandomizeFromClock();

// Installs another process-wide source (tests); nullptr restores our own generator.
void SetRandomSource(RandomSource *source);
RandomSource &CurrentRandomSource();
