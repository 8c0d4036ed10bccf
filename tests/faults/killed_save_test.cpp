// A program that is killed while it saves leaves the old file or the new one, never a mixture.
#include "design/configuration.h"
#include "desktop/program_folder.h"
#include "runtime/text_file.h"
#include "support/folder.h"
#include "support/random_tasks.h"
#include "support/run_time_errors.h"

#include <QLockFile>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// Runs `work` again and again in a process of its own and kills it after so many microseconds.
template <typename Work>
void killWhileWorking(unsigned microseconds, const Work& work) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        for (;;)
            work();
    usleep(microseconds);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "it was still saving";
}

Stan taskNamed(const QString& name, Integer page) {
    Stan stan;
    stan.opcje.Nazwa_projektu = name;
    stan.opcje.Nr_strony = page;
    stan.opcje.Nr_betonu = stan.opcje.Nr_stali = 1;
    return stan;
}

TEST(KilledSave, LeavesTheOldTaskOrTheNewOne) {
    const Folder folder;
    const QString path = folder.path(QStringLiteral("Ferna.cfg"));
    const QString reply = folder.write(QStringLiteral("W_X.txt"), "0, 1\r\n");
    Stan one = taskNamed(QStringLiteral("Hala A"), 1);
    Stan other = taskNamed(QString(20'000, u'B'), 32000);
    Zapisz_cfg(other, path, reply);
    const QByteArray otherBytes = readFileWhole(path);
    Zapisz_cfg(one, path, reply);
    const QByteArray oneBytes = readFileWhole(path);
    int ones = 0;
    Dice dice(20240309);
    constexpr int rounds = 200;
    for (int round = 0; round < rounds; ++round) {
        killWhileWorking(static_cast<unsigned>(dice.whole(500, 12'000)), [&] {
            Zapisz_cfg(one, path, reply);
            Zapisz_cfg(other, path, reply);
        });
        const QByteArray found = readFileWhole(path);
        ASSERT_TRUE(found == oneBytes || found == otherBytes)
            << "round " << round << ", " << found.size() << " bytes";
        ones += found == oneBytes;
    }
    std::cout << rounds << " kills: " << ones << " times the one task, " << rounds - ones
              << " times the other\n";
    EXPECT_GT(ones, 0);
    EXPECT_LT(ones, rounds) << "the kills must find the process at different places";
}

TEST(KilledProgram, LeavesItsFolderFree) {
    const Folder folder;
    const QString path = folder.path(QStringLiteral("."));
    killWhileWorking(100'000, [&] {
        static const auto lock = lockProgramFolder(path);
        usleep(1000);
    });
    EXPECT_TRUE(folder.names().contains(QStringLiteral("Ferna.lock"))) << "it had the folder";
    EXPECT_EQ(errorNumberOf([&] { lockProgramFolder(path); }), 0);
}

} // namespace
