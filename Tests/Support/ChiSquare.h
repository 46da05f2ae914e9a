#pragma once

#include <cmath>
#include <numeric>
#include <vector>

namespace TQFoundation::Testing {

/// Pearson's chi-square test of whether \a counts, at least two, are draws of a uniform distribution. A uniform one
/// fails less than once in a million tests, by the bound of Laurent and Massart, "Adaptive Estimation of a Quadratic
/// Functional by Model Selection", 2000, lemma 1.
inline bool isUniform(const std::vector<int> &counts)
{
    const double expected = std::accumulate(counts.begin(), counts.end(), 0.0) / static_cast<double>(counts.size());
    double chiSquare = 0;
    for (const int count : counts)
        chiSquare += (count - expected) * (count - expected) / expected;
    const double freedom = static_cast<double>(counts.size()) - 1;
    const double exponent = std::log(1e6);
    return chiSquare < freedom + 2 * std::sqrt(freedom * exponent) + 2 * exponent;
}

} // namespace TQFoundation::Testing
