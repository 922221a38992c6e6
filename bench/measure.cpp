#include "measure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace bench {

double secondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

double ratio(int rounds, const std::function<void()> &work, const std::function<void()> &reference)
{
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        const double reading = secondsOf(reference);
        ratios.push_back(secondsOf(work) / reading);
    }
    return median(ratios);
}

bool report(const std::string &what, double figure, double limit)
{
    const bool good = figure <= limit;
    std::printf("%-72s %6.2f  (limit %.1f)%s\n", what.c_str(), figure, limit, good ? "" : "  TOO MUCH");
    std::fflush(stdout);
    return good;
}

} // namespace bench
