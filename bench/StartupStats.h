// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

// The arithmetic of the start-up benchmark, kept apart from process handling so it can be tested.
namespace StartupStats {

// The middle value, or the mean of the two middle values of an even count; nullopt when empty.
std::optional<double> median(std::vector<double> values);

// The steady-clock nanoseconds of the first "shown <ns>" line a probe printed; nullopt when
// there is none or its number is malformed (a probe that crashed before its window appeared).
std::optional<long long> shownAt(std::string_view output);

// measured / baseline and whether it stays within the goal; not valid when the baseline is not
// positive.
struct Ratio {
    double value = 0;
    bool met = false;
    bool valid = false;
};
Ratio ratio(double measured, double baseline, double goal);

} // namespace StartupStats
