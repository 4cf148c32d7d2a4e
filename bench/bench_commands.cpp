// Two commands as whole processes, in turns: bench_commands NAME ROUNDS 'COMMAND' 'FLOOR'
// Prints the ratio of their medians and the largest resident size of each.

#include "rounds.h"

#include <cstdlib>
#include <string>

#include <sys/resource.h>

namespace {

struct Run {
    double milliseconds = 0;
    double megabytes = 0;
};

Run run(const char* command)
{
    Run result;
    const auto work = [&] {
        const pid_t child = fork();
        if (child == 0) {
            execl("/bin/sh", "sh", "-c", (std::string("exec ") + command).c_str(), nullptr);
            _exit(127);
        }
        int status = 0;
        rusage usage{};
        wait4(child, &status, 0, &usage);
        result.megabytes = static_cast<double>(usage.ru_maxrss) / 1024;
        if (status != 0)
            std::fprintf(stderr, "\"%s\" ended with status %d\n", command, status);
    };
    result.milliseconds = tessera::bench::timed(work);
    return result;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 5) {
        std::fputs("Usage: bench_commands NAME ROUNDS COMMAND FLOOR\n", stderr);
        return 2;
    }
    std::vector<double> times[2];
    std::vector<double> sizes[2];
    const int rounds = std::atoi(argv[2]);
    for (int round = 0; round <= rounds; ++round) {
        for (int i = 0; i < 2; ++i) {
            const Run one = run(argv[3 + i]);
            if (round == 0)
                continue; // warms up
            times[i].push_back(one.milliseconds);
            sizes[i].push_back(one.megabytes);
        }
    }
    using tessera::bench::median;
    std::printf("%s: ratio %.2f (%.0f ms / %.0f ms), resident %.1f MB / %.1f MB\n", argv[1],
                median(times[0]) / median(times[1]), median(times[0]), median(times[1]), median(sizes[0]),
                median(sizes[1]));
    return 0;
}
