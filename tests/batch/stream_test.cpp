#include "batch/options.h"
#include "batch/ordered_workers.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

using namespace ferna::batch;

namespace {

TEST(OrderedWorkers, DeliverInTheOrderOfTheItemsWhateverTheThreads) {
    for (const int threads : {1, 2, 7}) {
        long given = 0;
        long expected = 0;
        std::atomic<long> underWay = 0;
        std::atomic<long> most = 0;
        runOrdered(
            threads,
            [&](std::string& item) {
                item = std::to_string(++given);
                return given <= 2000;
            },
            [&](const std::string& item, long number) {
                most = std::max<long>(most, ++underWay);
                if (number % 50 == 0) // the slow ones must not be overtaken
                    std::this_thread::sleep_for(std::chrono::microseconds(500));
                --underWay;
                return item + '/' + std::to_string(number);
            },
            [&](const std::string& result) {
                ++expected;
                EXPECT_EQ(result, std::to_string(expected) + '/' + std::to_string(expected));
            });
        EXPECT_EQ(expected, 2000);
        EXPECT_LE(most, threads);
    }
}

TEST(OrderedWorkers, KeepNoMoreThanAWindowInMemory) {
    long taken = 0;
    long delivered = 0;
    long ahead = 0;
    runOrdered(
        2,
        [&](std::string&) {
            ahead = std::max(ahead, taken - delivered);
            return ++taken <= 5000;
        },
        [](const std::string&, long number) {
            if (number == 1) // everything waits for the first
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
            return std::string("x");
        },
        [&](const std::string&) { ++delivered; });
    EXPECT_EQ(delivered, 5000);
    EXPECT_LE(ahead, 64);
}

TEST(OrderedWorkers, AnExceptionOfAWorkerReachesTheCaller) {
    for (const int threads : {1, 3})
        EXPECT_THROW(runOrdered(
                         threads, [](std::string&) { return true; },
                         [](const std::string&, long number) -> std::string {
                             if (number == 40)
                                 throw std::runtime_error("forty");
                             return {};
                         },
                         [](const std::string&) {}),
                     std::runtime_error);
}

QStringList words(const char* line) {
    return QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts);
}

TEST(Options, OfASingleTask) {
    const auto asked = readOptions(words(
        "--katalog k.txt --dziesietny , --raport a.txt --raport B.TXT --wynik w.json t.json"));
    const auto& options = std::get<Options>(asked);
    EXPECT_EQ(options.catalogue, QStringLiteral("k.txt"));
    EXPECT_EQ(options.decimalSign, QChar(u','));
    EXPECT_EQ(options.reports, words("a.txt B.TXT"));
    EXPECT_EQ(options.result, QStringLiteral("w.json"));
    EXPECT_EQ(options.task, QStringLiteral("t.json"));
    EXPECT_FALSE(options.lines);
}

TEST(Options, OfAStream) {
    const auto asked = readOptions(words("--linie --watki 4"));
    const auto& options = std::get<Options>(asked);
    EXPECT_TRUE(options.lines);
    EXPECT_EQ(options.threads, 4);
    EXPECT_FALSE(options.decimalSign);
}

TEST(Options, ABadCallLeavesWithTwo) {
    for (const char* line :
         {"", "a.json b.json", "--linie a.json", "--linie --wynik w.json", "--linie --raport a.txt",
          "--linie --watki 0", "--linie --watki 257", "--linie --watki x", "--watki 2 a.json",
          "--dziesietny ; a.json", "--dziesietny ,, a.json", "--raport a.xyz a.json",
          "--nic a.json", "--raport"}) {
        const auto asked = readOptions(words(line));
        ASSERT_TRUE(std::holds_alternative<Leave>(asked)) << line;
        EXPECT_EQ(std::get<Leave>(asked).exitCode, 2) << line;
        EXPECT_EQ(std::get<Leave>(asked).text.rfind("ferna-wsad: ", 0), 0U) << line;
    }
}

TEST(Options, HelpAndVersionLeaveWithNothing) {
    const auto help = readOptions(words("--help"));
    EXPECT_EQ(std::get<Leave>(help).exitCode, 0);
    EXPECT_NE(std::get<Leave>(help).text.find("--linie"), std::string::npos);
    EXPECT_EQ(std::get<Leave>(readOptions(words("--version"))).text,
              "ferna-wsad " FERNA_VERSION "\n");
}

} // namespace
