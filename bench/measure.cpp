#include "bench/measure.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <system_error>

namespace varnel::bench {

namespace {

using Clock = std::chrono::steady_clock;

double Since(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double DrainUntilEnd(int descriptor, Clock::time_point start) {
    char buffer[1 << 16];
    double first_byte = 0;
    while (read(descriptor, buffer, sizeof buffer) > 0)
        if (first_byte == 0) first_byte = Since(start);
    return first_byte;
}

Cost MeasureOnce(const std::function<void()>& child_work) {
    int pipe_ends[2];
    if (pipe(pipe_ends) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    std::fflush(nullptr);
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
    if (child == 0) {
        dup2(pipe_ends[1], STDOUT_FILENO);
        close(pipe_ends[0]);
        close(pipe_ends[1]);
        child_work();
        std::fflush(nullptr);
        _exit(0);
    }
    close(pipe_ends[1]);
    Cost cost;
    cost.first_byte = DrainUntilEnd(pipe_ends[0], start);
    close(pipe_ends[0]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    cost.seconds = Since(start);
    cost.peak_mebibytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
    cost.failed = !WIFEXITED(status) || WEXITSTATUS(status) != 0;
    return cost;
}

Cost MedianOf(const std::function<void()>& child_work, int runs) {
    std::vector<Cost> costs;
    for (int i = 0; i < runs; ++i) costs.push_back(MeasureOnce(child_work));
    const auto middle = costs.begin() + runs / 2;
    std::nth_element(costs.begin(), middle, costs.end(),
                     [](const Cost& a, const Cost& b) { return a.seconds < b.seconds; });
    Cost median = *middle;
    for (const auto& cost : costs) {
        median.peak_mebibytes = std::max(median.peak_mebibytes, cost.peak_mebibytes);
        median.failed = median.failed || cost.failed;
    }
    return median;
}

}  // namespace

Cost MeasureFunction(const std::function<void()>& work, int runs) {
    return MedianOf(
        [&] {
            try {
                work();
            } catch (const std::exception& error) {
                std::fprintf(stderr, "%s\n", error.what());
                _exit(1);
            }
        },
        runs);
}

Cost MeasureProgram(const std::vector<std::string>& arguments, int runs) {
    return MedianOf(
        [&] {
            std::vector<char*> raw;
            for (const auto& argument : arguments)
                raw.push_back(const_cast<char*>(argument.c_str()));
            raw.push_back(nullptr);
            execv(raw[0], raw.data());
            std::perror(raw[0]);
            _exit(127);
        },
        runs);
}

}  // namespace varnel::bench
