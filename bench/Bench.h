#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <vector>

namespace pelmira::bench {

/// Milliseconds that one call takes.
template <typename Function>
double milliseconds(Function&& function)
{
    const auto start = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

inline double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The machine-readable last lines of a benchmark.
inline void printFigure(const char* name, double value)
{
    std::printf("figure %s %.3f\n", name, value);
}

} // namespace pelmira::bench
