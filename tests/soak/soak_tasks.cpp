// Many random tasks through the core in one process:
//   soak_tasks [--tasks N] [--seconds S] [--from FIRST]
// ends after N tasks (a million unless told) or S seconds, prints a table, and fails where a task
// hangs, a value is not finite or the memory grows.
#include "soak/process_memory.h"
#include "support/decimal_comma.h"
#include "support/task_tally.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

using namespace ferna;
using namespace ferna::testing;

namespace {

constexpr unsigned longestTask = 120; // seconds
volatile std::uint64_t underWay = 0;

void tellTheHang(int) {
    char text[64];
    const int length = std::snprintf(text, sizeof text, "task %llu hangs\n",
                                     static_cast<unsigned long long>(underWay));
    [[maybe_unused]] const auto written = write(2, text, static_cast<std::size_t>(length));
    _exit(1);
}

struct Wanted {
    std::uint64_t tasks = 1'000'000;
    double seconds = std::numeric_limits<double>::infinity();
    std::uint64_t first = 1;
};

Wanted readCall(int argc, char** argv) {
    Wanted wanted;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--tasks") == 0)
            wanted.tasks = std::strtoull(argv[i + 1], nullptr, 10);
        else if (std::strcmp(argv[i], "--seconds") == 0)
            wanted.seconds = std::strtod(argv[i + 1], nullptr);
        else if (std::strcmp(argv[i], "--from") == 0)
            wanted.first = std::strtoull(argv[i + 1], nullptr, 10);
    }
    return wanted;
}

/// One line of the table: the numbers of both kinds of task, each with its share of a whole.
void row(const char* what, const Tally& o, const Tally& n, long Tally::*part, long Tally::*whole) {
    const auto share = [&](const Tally& t) {
        return t.*whole == 0 ? 0.0
                             : 100.0 * static_cast<double>(t.*part) / static_cast<double>(t.*whole);
    };
    std::printf("%-38s %10ld %7.2f %% %10ld %7.2f %%\n", what, o.*part, share(o), n.*part,
                share(n));
}

void table(const Tally& o, const Tally& n) {
    std::printf("\n%-38s %20s %20s\n", "", "ordinary", "nasty");
    row("tasks", o, n, &Tally::tasks, &Tally::tasks);
    row("  with the last anchor moved", o, n, &Tally::moved, &Tally::tasks);
    row("  without a solution", o, n, &Tally::unsolved, &Tally::tasks);
    row("  refused by a validation", o, n, &Tally::refused, &Tally::tasks);
    row("  with a run-time error", o, n, &Tally::errors, &Tally::tasks);
    for (const int number : {5, 6, 9, 11, 13}) {
        const auto of = [number](const Tally& t) {
            const auto found = t.byNumber.find(number);
            return found == t.byNumber.end() ? 0 : found->second;
        };
        if (of(o) + of(n) > 0)
            std::printf("    error %-28d %10ld %20ld\n", number, of(o), of(n));
    }
    row("cases", o, n, &Tally::cases, &Tally::cases);
    row("  whole plate compressed", o, n, &Tally::wholePlate, &Tally::cases);
    row("  with a neutral line", o, n, &Tally::outside, &Tally::cases);
    row("  retried with a scaled moment", o, n, &Tally::scaled, &Tally::cases);
    row("  at the limit of evaluations", o, n, &Tally::atTheLimit, &Tally::cases);
    std::printf("%-38s %9.3f s (no. %llu) %9.3f s (no. %llu)\n", "longest task", o.longest,
                static_cast<unsigned long long>(o.longestTask), n.longest,
                static_cast<unsigned long long>(n.longestTask));
}

} // namespace

int main(int argc, char** argv) {
    const Wanted wanted = readCall(argc, argv);
    const WithDecimalSign comma(u',');
    std::signal(SIGALRM, tellTheHang);
    Tally ordinary;
    Tally nasty;
    MemoryCurve memory;
    long notFinite = 0;
    const auto start = std::chrono::steady_clock::now();
    const auto elapsed = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    double nextRow = 0;
    std::uint64_t done = 0;
    std::printf("%12s %10s %12s %10s\n", "tasks", "s", "tasks/s", "MB");
    for (; done < wanted.tasks && elapsed() < wanted.seconds; ++done) {
        const std::uint64_t number = wanted.first + done;
        underWay = number;
        alarm(longestTask);
        if (!compute(number, isNasty(number) ? nasty : ordinary)) {
            ++notFinite;
            std::printf("task %llu left a value that is not finite\n",
                        static_cast<unsigned long long>(number));
        }
        if (elapsed() >= nextRow) {
            memory.sample(static_cast<double>(done));
            const double seconds = elapsed();
            if (static_cast<long>(nextRow) % 30 == 0) {
                std::printf("%12llu %10.1f %12.1f %10.2f\n",
                            static_cast<unsigned long long>(done + 1), seconds,
                            static_cast<double>(done + 1) / seconds, memory.last());
                std::fflush(stdout);
            }
            nextRow += 1;
        }
    }
    alarm(0);
    table(ordinary, nasty);
    const double growth = memory.slope() * static_cast<double>(done) / 2;
    std::printf("\n%llu tasks in %.1f s, %.1f a second; %.2f MB at the end, growth over the "
                "second half %.3f MB; not finite: %ld\n",
                static_cast<unsigned long long>(done), elapsed(),
                static_cast<double>(done) / elapsed(), memory.last(), growth, notFinite);
    constexpr double mostGrowth = 2; // MB: the noise of the heap
    const bool flat = growth < mostGrowth;
    if (!flat)
        std::printf("the memory grows\n");
    return notFinite == 0 && flat ? 0 : 1;
}
