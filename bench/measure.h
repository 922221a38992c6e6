#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Seconds that `work` takes.
double secondsOf(const std::function<void()> &work);

/// The middle of some figures.
double median(std::vector<double> figures);

/// Times `work` and `reference` in turn, `rounds` times, and gives the median of the ratios pair by pair.
double ratio(int rounds, const std::function<void()> &work, const std::function<void()> &reference);

/// Prints a ratio against its limit. False where it is above.
bool report(const std::string &what, double figure, double limit);

} // namespace bench
