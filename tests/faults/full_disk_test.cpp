// Nothing is lost and nothing looks like success where the disk is full.
#include "design/configuration.h"
#include "faults/small_disk.h"
#include "renderer/program_run.h"
#include "report/text_writer.h"
#include "report/wyd_writer.h"
#include "runtime/picture_box.h"
#include "runtime/text_file.h"
#include "support/column_base.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <sys/resource.h>

#include <csignal>

using namespace ferna;
using namespace ferna::testing;

namespace {

class FullDisk : public ::testing::Test {
protected:
    void SetUp() override {
        if (!disk.isThere())
            GTEST_SKIP() << "only the superuser can have a disk of his own";
    }

    QByteArray contents(const char* name) const { return readFileWhole(disk.path(name)); }

    void computeReport() {
        base.fourAnchors(250, 150).loads(320, 60, 5);
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
        Wypelnij_wiersze(raport, base.stan);
    }

    SmallDisk disk;
    ColumnBase base;
    Raport raport;
};

TEST_F(FullDisk, KeepsTheLastTaskAndTellsWhy) {
    Stan stan;
    stan.opcje.Nazwa_projektu = QStringLiteral("Hala A");
    writeFileWhole(disk.path("W_X.txt"), "0, 1\r\n");
    Zapisz_cfg(stan, disk.path("Ferna.cfg"), disk.path("W_X.txt"));
    const QByteArray before = contents("Ferna.cfg");
    disk.fill();
    const QStringList names = disk.names();
    stan.opcje.Nazwa_projektu = QStringLiteral("Hala B");
    const auto failure =
        errorOf([&] { Zapisz_cfg(stan, disk.path("Ferna.cfg"), disk.path("W_X.txt")); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::DiskFull);
    EXPECT_TRUE(failure->text().contains(disk.path("Ferna.cfg"))) << failure->text().toStdString();
    EXPECT_EQ(contents("Ferna.cfg"), before);
    EXPECT_EQ(disk.names(), names) << "no half of a new file is left";
}

TEST_F(FullDisk, IsToldOfEveryFileOfAReport) {
    ASSERT_NO_FATAL_FAILURE(computeReport());
    disk.fill();
    EXPECT_EQ(errorNumberOf(
                  [&] { textReport(reportModel(base.stan, raport)).commit(disk.path("a.txt")); }),
              error::DiskFull);
    EXPECT_EQ(errorNumberOf([&] { Buduj_wyd(reportModel(base.stan, raport), disk.folder()); }),
              error::DiskFull);
    EXPECT_EQ(errorNumberOf([&] { PictureBox(QSize(265, 176)).saveBitmap(disk.path("a.bmp")); }),
              error::DiskFull);
    EXPECT_EQ(disk.names().size(), 1) << "the file that fills the disk";
}

TEST_F(FullDisk, EndsTheRendererWithAMessageAndWithoutAPicture) {
    ASSERT_NO_FATAL_FAILURE(computeReport());
    Buduj_wyd(reportModel(base.stan, raport), disk.folder());
    writeFileWhole(disk.path("W_KK.txt"),
                   "-2, 1.0, 0.5, 1.0, 1\r\nFERNAPr.wyd\r\nFERNAPr1.wyd\r\n");
    disk.fill();
    const Outcome run = runRenderer({disk.path("W_KK.txt")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("Dysk jest pełny"))) << run.errors.toStdString();
    EXPECT_FALSE(disk.names().contains(QStringLiteral("$a1.emf")));
}

TEST_F(FullDisk, AReadOnlyOneIsToldAndKeepsTheOldFile) {
    writeFileWhole(disk.path("a.txt"), "stary");
    disk.makeReadOnly();
    const auto failure = errorOf([&] { writeFileWhole(disk.path("a.txt"), "nowy"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PermissionDenied);
    EXPECT_TRUE(failure->text().contains(disk.path("a.txt")));
    EXPECT_EQ(contents("a.txt"), QByteArray("stary"));
}

class FullDiskOfTheCompanion : public FullDisk {
protected:
    const QString program = places::bin("/ferna-wsad");
    const QString task = places::data("/przyklady/slup-hali.json");
};

TEST_F(FullDiskOfTheCompanion, IsAFailureOfTheRun) {
    disk.fill();
    for (const char* option : {"--wynik", "--raport"}) {
        const Outcome run = runProgram(
            program, {QLatin1String(option),
                      disk.path(*option == '-' && option[2] == 'w' ? "a.json" : "a.txt"), task});
        EXPECT_EQ(run.exitCode, 2) << option;
        EXPECT_TRUE(run.errors.contains(QStringLiteral("Disk full"))) << run.errors.toStdString();
    }
    EXPECT_EQ(disk.names().size(), 1);
}

TEST(FullOutput, OfTheCompanionIsAFailureOfTheRun) {
    const QString program = places::bin("/ferna-wsad");
    for (const char* call : {"$0 $1 > /dev/full", "tr -d '\\n' < $1 | $0 --linie > /dev/full"}) {
        const Outcome run = runProgram(QStringLiteral("/bin/sh"),
                                       {QStringLiteral("-c"), QLatin1String(call), program,
                                        places::data("/przyklady/slup-hali.json")});
        EXPECT_EQ(run.exitCode, 2) << call;
        EXPECT_TRUE(run.errors.contains(QStringLiteral("standard output")))
            << run.errors.toStdString();
    }
}

/// A file cannot grow beyond so many bytes for as long as this lives: also without a small disk.
class ShortFiles {
public:
    explicit ShortFiles(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~ShortFiles() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    ShortFiles(const ShortFiles&) = delete;
    ShortFiles& operator=(const ShortFiles&) = delete;

private:
    rlimit before_{};
};

TEST(FileThatCannotGrow, LeavesTheOldOne) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.txt"));
    writeFileWhole(path, "stary");
    {
        const ShortFiles limit(4096);
        EXPECT_NE(errorNumberOf([&] { writeFileWhole(path, QByteArray(100'000, 'x')); }), 0);
    }
    EXPECT_EQ(readFileWhole(path), QByteArray("stary"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

} // namespace
