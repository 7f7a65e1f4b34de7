// SPDX-License-Identifier: GPL-3.0-or-later
#include "StartupStats.h"

#include <algorithm>
#include <charconv>

namespace StartupStats {

std::optional<double> median(std::vector<double> values)
{
    if (values.empty())
        return std::nullopt;
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    if (values.size() % 2 == 1)
        return values[middle];
    return (values[middle - 1] + values[middle]) / 2;
}

std::optional<long long> shownAt(std::string_view output)
{
    constexpr std::string_view Tag = "shown ";
    std::size_t start = 0;
    while (start < output.size()) {
        std::size_t end = output.find('\n', start);
        if (end == std::string_view::npos)
            end = output.size();
        const std::string_view line = output.substr(start, end - start);
        if (line.substr(0, Tag.size()) == Tag) {
            const std::string_view digits = line.substr(Tag.size());
            long long value = 0;
            const auto [rest, error] =
                std::from_chars(digits.data(), digits.data() + digits.size(), value);
            if (error != std::errc() || rest != digits.data() + digits.size() || value < 0)
                return std::nullopt;
            return value;
        }
        start = end + 1;
    }
    return std::nullopt;
}

Ratio ratio(double measured, double baseline, double goal)
{
    if (!(baseline > 0))
        return {};
    const double value = measured / baseline;
    return {value, value <= goal, true};
}

} // namespace StartupStats
