#include "support/decimal_comma.h"
#include "support/task_tally.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <mutex>
#include <thread>

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST(Search, EndsWhateverTheTaskIsAndLeavesNoValueThatIsNotFinite) {
#ifdef FERNA_SANITIZE
    std::uint64_t count = 300;
#else
    std::uint64_t count = 5000;
#endif
    if (std::getenv("FERNA_LONG") != nullptr)
        count = 100'000;
    const WithDecimalSign comma(u',');
    const auto start = std::chrono::steady_clock::now();
    std::atomic<std::uint64_t> next = 1;
    std::mutex mutex;
    Tally ordinary;
    Tally nasty;
    const auto work = [&] {
        Tally ownOrdinary;
        Tally ownNasty;
        for (std::uint64_t number = next++; number <= count; number = next++)
            EXPECT_TRUE(compute(number, isNasty(number) ? ownNasty : ownOrdinary))
                << "task " << number;
        const std::lock_guard lock(mutex);
        ordinary.add(ownOrdinary);
        nasty.add(ownNasty);
    };
    {
        const std::jthread second(work);
        work();
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::cout << "ordinary: " << ordinary << "\nnasty: " << nasty << "\n"
              << took.count() << " s on 2 threads\n";
    Tally total = ordinary;
    total.add(nasty);
    EXPECT_EQ(total.tasks, static_cast<long>(count));
    // The series must keep reaching every corner of the search, or this test says nothing.
    EXPECT_GT(total.wholePlate, total.cases / 20);
    EXPECT_GT(total.outside, total.cases / 4);
    EXPECT_GT(total.scaled, 0);
    EXPECT_GT(total.moved, 0);
    EXPECT_GT(total.unsolved, 0);
    EXPECT_LT(total.refused, total.tasks / 10);
}

} // namespace
