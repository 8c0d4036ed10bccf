#include "runtime/run_time_error.h"
#include "runtime/text_file.h"
#include "support/decimal_comma.h"
#include "support/printing.h"
#include "task/kept_tasks.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <random>

using namespace ferna;
using ferna::testing::WithDecimalSign;

namespace {

struct Kept : ::testing::Test {
    /// A task that is told from others by its N.
    static std::string taskOf(int N) {
        return R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Kotwy": [{"x": 1, "y": 2, "fi": 20}],
            "Przypadki": [{"N": )"
               + std::to_string(N) + R"(, "M1": 0, "M2": 0, "Vx": 0, "Vy": 0}]})";
    }

    QStringList loads() const {
        QStringList all;
        for (const KeptTask& kept : KeptTasks(path()).all())
            all += kept.task.fields.loads[0].N;
        return all;
    }

    QString path() const { return folder.filePath(QStringLiteral("odzyskiwanie")); }

    WithDecimalSign comma{u','};
    QTemporaryDir folder;
};

TEST_F(Kept, TheLastKeepingOfATaskIsThereAndNoOther) {
    {
        KeptTasks tasks(path());
        for (int N = 1; N <= 5; ++N)
            tasks.keep(taskOf(N));
    }
    EXPECT_EQ(loads(), QStringList{QStringLiteral("5")});
    EXPECT_EQ(QDir(path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(Kept, TenTasksStayTheLastOneFirst) {
    KeptTasks tasks(path());
    for (int N = 1; N <= 13; ++N) {
        tasks.keep(taskOf(N));
        tasks.beginAnother();
        ::usleep(2000); // their names begin with the millisecond
    }
    const QStringList all = loads();
    ASSERT_EQ(all.size(), 10);
    EXPECT_EQ(all.front(), QStringLiteral("13"));
    EXPECT_EQ(all.back(), QStringLiteral("4"));
}

TEST_F(Kept, WithoutAFolderThereAreNone) {
    EXPECT_EQ(loads(), QStringList());
    EXPECT_FALSE(QDir(path()).exists()) << "a start that keeps nothing leaves nothing";
}

TEST_F(Kept, OfATaskWhoseLastFileThePowerCutHasEmptiedTheOneBeforeCounts) {
    QDir().mkpath(path());
    writeFileWhole(path() + QStringLiteral("/20260101-120000-000-1.9.ferna"),
                   QByteArray::fromStdString(taskOf(9)));
    writeFileWhole(path() + QStringLiteral("/20260101-120000-000-1.10.ferna"), {});
    EXPECT_EQ(loads(), QStringList{QStringLiteral("9")});
}

TEST_F(Kept, AFolderThatTakesNothingIsTold) {
    writeFileWhole(path(), "a file stands in its place");
    KeptTasks tasks(path());
    EXPECT_THROW(tasks.keep(taskOf(1)), RunTimeError);
    EXPECT_THROW(tasks.keep(taskOf(2)), RunTimeError);
}

TEST_F(Kept, TakesLessThanFiveMilliseconds) {
    KeptTasks tasks(path());
    std::vector<qint64> times;
    for (int N = 1; N <= 200; ++N) {
        const std::string text = taskOf(N);
        QElapsedTimer clock;
        clock.start();
        tasks.keep(text);
        times.push_back(clock.nsecsElapsed());
    }
    std::nth_element(times.begin(), times.begin() + 100, times.end());
    RecordProperty("median_us", static_cast<int>(times[100] / 1000));
    EXPECT_LT(times[100], 5'000'000);
}

/// Keeps one task after another and tells each through the pipe, until it is killed.
[[noreturn]] void keepWithoutEnd(const QString& path, int pipe, int first) {
    KeptTasks tasks(path);
    for (int N = first;; ++N) {
        tasks.keep(Kept::taskOf(N));
        (void)!::write(pipe, &N, sizeof N);
    }
}

TEST_F(Kept, KillsAtAnyMomentLoseNothingThatWasKept) {
    const int kills = std::getenv("FERNA_LONG") != nullptr ? 500 : 60;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> moment(500, 6000); // us
    int last = 0;
    for (int kill = 0; kill < kills; ++kill) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0)
            keepWithoutEnd(path(), ends[1], last + 1);
        ::close(ends[1]);
        ::usleep(static_cast<useconds_t>(moment(random)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        for (int N = 0; ::read(ends[0], &N, sizeof N) == sizeof N;)
            last = N;
        ::close(ends[0]);
        const QStringList all = loads();
        const int kept = all.isEmpty() ? 0 : all.front().toInt();
        ASSERT_GE(kept, last) << "after kill " << kill;
        ASSERT_LE(kept, last + 1) << "after kill " << kill;
        last = kept;
    }
    EXPECT_GT(last, kills) << "the kills have come in the middle of the work";
}

TEST_F(Kept, TheOfferSaysWhatTheTaskIsAndWhenItWasKept) {
    KeptTask kept{{}, QDateTime(QDate(2026, 3, 12), QTime(18, 32)), readTask(parsed(taskOf(1)))};
    const auto offer = [&](int daysLater) { return offerOf(kept, kept.when.addDays(daysLater)); };
    EXPECT_EQ(offer(0), QStringLiteral("Ostatnie zadanie: płyta 600 × 400, 1 kotwa, 1 przypadek, "
                                       "dziś 18:32"));
    kept.task.fields.txtNaz_proj = QStringLiteral("Hala B");
    EXPECT_EQ(offer(1), QStringLiteral("Ostatnie zadanie: Hala B, 1 kotwa, 1 przypadek, "
                                       "wczoraj 18:32"));
    kept.task.Nazwa_stopy = QStringLiteral("F-1");
    kept.task.stan.plyta.Liczba_srub = 12;
    kept.task.stan.obciazenia.Liczba_przyp = 6;
    EXPECT_EQ(offer(2), QStringLiteral("Ostatnie zadanie: F-1, 12 kotew, 6 przypadków, "
                                       "12.03.2026 18:32"));
}

} // namespace
