#include "batch/options.h"
#include "batch/ordered_workers.h"
#include "batch/task_input.h"
#include "runtime/run_time_error.h"
#include "support/printing.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

using namespace ferna::batch;

namespace {

TEST(OrderedWorkers, DeliverInTheOrderOfTheItemsWhateverTheThreads) {
    for (const int threads : {1, 2, 7}) {
        long given = 0;
        long expected = 0;
        std::atomic<long> underWay = 0;
        std::atomic<long> most = 0;
        const Stream stream{[&](std::string& item) {
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
                                EXPECT_EQ(result, std::to_string(expected) + '/'
                                                      + std::to_string(expected));
                            }};
        runOrdered(threads, stream);
        EXPECT_EQ(expected, 2000);
        EXPECT_LE(most, threads);
    }
}

TEST(OrderedWorkers, KeepNoMoreThanAWindowInMemory) {
    long taken = 0;
    long delivered = 0;
    long ahead = 0;
    const Stream stream{[&](std::string&) {
                            ahead = std::max(ahead, taken - delivered);
                            return ++taken <= 5000;
                        },
                        [](const std::string&, long number) {
                            if (number == 1) // everything waits for the first
                                std::this_thread::sleep_for(std::chrono::milliseconds(50));
                            return std::string("x");
                        },
                        [&](const std::string&) { ++delivered; }};
    runOrdered(2, stream);
    EXPECT_EQ(delivered, 5000);
    EXPECT_LE(ahead, 64);
}

TEST(OrderedWorkers, AnExceptionOfAWorkerReachesTheCaller) {
    for (const int threads : {1, 3})
        EXPECT_THROW(runOrdered(threads, {[](std::string&) { return true; },
                                          [](const std::string&, long number) -> std::string {
                                              if (number == 40)
                                                  throw std::runtime_error("forty");
                                              return {};
                                          },
                                          [](const std::string&) {}}),
                     std::runtime_error);
}

// A client that sends a line and waits for its answer before it sends the next.
TEST(OrderedWorkers, DeliverAResultWhileTheNextItemIsWaitedFor) {
    for (const int threads : {1, 2, 4}) {
        std::mutex mutex;
        std::condition_variable answered;
        long sent = 0;
        long answers = 0;
        const Stream stream{[&](std::string& item) {
                                std::unique_lock lock(mutex);
                                const bool came =
                                    answered.wait_for(lock, std::chrono::seconds(10),
                                                      [&] { return answers == sent; });
                                EXPECT_TRUE(came) << "no answer to item " << sent;
                                item = std::to_string(++sent);
                                return came && sent <= 50;
                            },
                            [](const std::string& item, long) { return item; },
                            [&](const std::string& result) {
                                const std::lock_guard lock(mutex);
                                EXPECT_EQ(result, std::to_string(++answers));
                                answered.notify_all();
                            }};
        runOrdered(threads, stream);
        EXPECT_EQ(answers, 50);
    }
}

TEST(OrderedWorkers, AResultThatCannotBeDeliveredEndsTheWaitForInput) {
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0); // stays open: its next line never comes
    ASSERT_EQ(::write(pipe[1], "a\n", 2), 2);
    LineInput lines(pipe[0]);
    const Stream stream{[&](std::string& item) { return lines.next(item); },
                        [](const std::string& item, long) { return item; },
                        [](const std::string&) { throw std::runtime_error("full disk"); },
                        [&] { lines.cancel(); }};
    EXPECT_THROW(runOrdered(2, stream), std::runtime_error);
}

class Lines : public ::testing::Test {
protected:
    Lines() { EXPECT_EQ(::pipe(pipe_.data()), 0); }
    ~Lines() override {
        ::close(pipe_[0]);
        ::close(pipe_[1]);
    }

    void send(const std::string& text) {
        ASSERT_EQ(::write(pipe_[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    void end() { ::close(std::exchange(pipe_[1], -1)); }

    std::array<int, 2> pipe_{};
};

TEST_F(Lines, ComeOneByOneAlsoWithoutALastEnd) {
    LineInput lines(pipe_[0]);
    send("a\n\nb");
    send("c\nd");
    end();
    std::string line;
    for (const char* expected : {"a", "", "bc", "d"}) {
        ASSERT_TRUE(lines.next(line));
        EXPECT_EQ(line, expected);
    }
    EXPECT_FALSE(lines.next(line));
}

TEST_F(Lines, OfAMegabyteAreTheLongest) {
    LineInput lines(pipe_[0]);
    std::thread writer([this] {
        send(std::string(longestTask, 'x') + '\n');
        std::string tooLong(3 * longestTask, 'y');
        tooLong += "\nz\n";
        send(tooLong);
        end();
    });
    std::string line;
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(line.size(), longestTask);
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(line.size(), longestTask + 1) << "not more of it is kept";
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(line, "z");
    EXPECT_FALSE(lines.next(line));
    writer.join();
}

TEST(LinesOfAFolder, AreAnError) {
    const int folder = ::open("/", O_RDONLY);
    LineInput lines(folder);
    std::string line;
    EXPECT_THROW(lines.next(line), ferna::RunTimeError);
    ::close(folder);
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

TEST(Options, ABadCallSaysWhatIsWrong) {
    for (const auto& [line, why] :
         {std::pair{"--nic a.json", "Unknown option 'nic'."},
          {"--dziesietny ; a.json", "--dziesietny: expected , or . and not \";\""},
          {"--arkusz a.xyz a.json",
           "--arkusz a.xyz: expected a file ending in .pdf, .html, .odt, .docx"},
          {"--podglad a.xyz a.json", "--podglad a.xyz: expected a file ending in .svg, .png, .pdf"},
          {"--dobierz= a.json", "--dobierz: expected the name of a file"},
          {"--kombinacje= a.json", "--kombinacje: expected the name of a file"},
          {"--linie --watki x", "--watki: expected a whole number from 1 to 256 and not \"x\""},
          {"--watki 2 a.json", "--watki goes with --linie"},
          {"--kombinacje - -", "standard input cannot be both the task and the table"},
          {"", "expected one task file (see --help)"}})
        EXPECT_EQ(std::get<Leave>(readOptions(words(line))).text,
                  std::string("ferna-wsad: ") + why + '\n');
}

TEST(Options, HelpAndVersionLeaveWithNothing) {
    const auto help = readOptions(words("--help"));
    EXPECT_EQ(std::get<Leave>(help).exitCode, 0);
    EXPECT_NE(std::get<Leave>(help).text.find("--linie"), std::string::npos);
    EXPECT_EQ(std::get<Leave>(readOptions(words("--version"))).text,
              "ferna-wsad " FERNA_VERSION "\n");
}

} // namespace
