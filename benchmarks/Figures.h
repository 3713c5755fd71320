#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

// Figures of a benchmark, one line each.
namespace dravolin::bench {

[[nodiscard]] inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// Of the calling thread alone, so that a busy machine does not show.
[[nodiscard]] inline double threadProcessorSeconds()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

// Prints figures beside their limits and remembers whether one was above.
class Figures
{
public:
    void add(const char *name, double value, double limit, const char *unit, int digits = 3)
    {
        const bool fits = value <= limit;
        std::printf("%-64s %10.*f %-8s limit %g%s\n", name, digits, value, unit, limit,
                    fits ? "" : "   ABOVE");
        std::fflush(stdout);
        m_allFit = m_allFit && fits;
    }
    // Without a limit.
    static void note(const char *name, double value, const char *unit, int digits = 3)
    {
        std::printf("%-64s %10.*f %s\n", name, digits, value, unit);
        std::fflush(stdout);
    }
    [[nodiscard]] int exitCode() const { return m_allFit ? 0 : 1; }

private:
    bool m_allFit = true;
};

} // namespace dravolin::bench
