#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string_view>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace tessera::bench {

using Work = std::function<void()>;

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Milliseconds.
inline double timed(const Work& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The same in a process of its own, where every block of memory is a fresh one, as in a program that has
/// just started. In one process the allocator would soon hand out memory that is already in place.
inline double timedAfresh(const Work& work)
{
    int ends[2];
    double time = -1;
    if (pipe(ends) != 0)
        return time;
    const pid_t child = fork();
    if (child == 0) {
        const double own = timed(work);
        _exit(write(ends[1], &own, sizeof own) == sizeof own ? 0 : 1);
    }
    close(ends[1]);
    if (read(ends[0], &time, sizeof time) != sizeof time)
        time = -1;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return time;
}

/// Runs both in turns, so that a slow moment of the machine meets both, and prints
/// "name: ratio R (a ms / b ms)" of the medians. The first round only warms up.
inline double compare(std::string_view name, const Work& work, const Work& floor,
                      double (*clock)(const Work&) = timed, int rounds = 15)
{
    std::vector<double> works;
    std::vector<double> floors;
    for (int round = 0; round <= rounds; ++round) {
        const double a = clock(work);
        const double b = clock(floor);
        if (round == 0)
            continue;
        works.push_back(a);
        floors.push_back(b);
    }
    const double a = median(works);
    const double b = median(floors);
    std::printf("%.*s: ratio %.2f (%.2f ms / %.2f ms)\n", static_cast<int>(name.size()), name.data(), a / b,
                a, b);
    std::fflush(stdout);
    return a / b;
}

} // namespace tessera::bench
