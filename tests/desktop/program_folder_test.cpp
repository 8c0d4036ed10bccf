#include "desktop/program_folder.h"
#include "support/folder.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::Folder;

namespace {

/// An installation that cannot be written in by the user, and the user's data folder.
class InstalledProgram : public ::testing::Test {
protected:
    void SetUp() override {
        install("Ferpl.txt", "katalog 1");
        install("Ferna.cfg", "konfiguracja 1");
        install("W_X.txt", " 0 , 1 ");
        install("rys3f.bmp", "rysunek 1");
        install("Ferna.qch", "pomoc 1");
    }
    void TearDown() override { QDir::setCurrent(before); }

    void install(const char* name, const char* bytes) {
        delivered.write(QString::fromLatin1(name), bytes);
    }
    void change(const char* name, const char* bytes) {
        ASSERT_FALSE(own.read(QString::fromLatin1(name)).isEmpty());
        own.write(QString::fromLatin1(name), bytes);
    }
    QByteArray of(const char* name) const { return own.read(QString::fromLatin1(name)); }
    QString start() {
        return enterProgramFolder(programs.path(QStringLiteral(".")),
                                  delivered.path(QStringLiteral(".")),
                                  own.path(QStringLiteral(".")));
    }

    const QString before = QDir::currentPath();
    Folder programs, delivered, own;
};

TEST_F(InstalledProgram, FillsTheUsersFolderAtTheFirstStartAndWorksThere) {
    const QString folder = start();
    EXPECT_EQ(QDir(folder).canonicalPath(), QDir(own.path(QStringLiteral("."))).canonicalPath());
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(folder).canonicalPath());
    EXPECT_EQ(of("Ferpl.txt"), "katalog 1");
    EXPECT_EQ(of("Ferna.cfg"), "konfiguracja 1");
    EXPECT_EQ(of("W_X.txt"), " 0 , 1 ");
    EXPECT_EQ(of("rys3f.bmp"), "rysunek 1");
    EXPECT_EQ(of("Ferna.qch"), "pomoc 1");
}

TEST_F(InstalledProgram, ANewerInstallationReplacesWhatAnEarlierOneBrought) {
    start();
    install("Ferpl.txt", "katalog 2");
    install("rys3f.bmp", "rysunek 2");
    install("Ferna.qch", "pomoc 2");
    install("Fergb.txt", "nowy");
    start();
    EXPECT_EQ(of("Ferpl.txt"), "katalog 2");
    EXPECT_EQ(of("rys3f.bmp"), "rysunek 2");
    EXPECT_EQ(of("Ferna.qch"), "pomoc 2");
    EXPECT_EQ(of("Fergb.txt"), "nowy");
    install("Ferpl.txt", "katalog 3");
    start();
    EXPECT_EQ(of("Ferpl.txt"), "katalog 3") << "and so does the one after it";
}

TEST_F(InstalledProgram, TheLastTaskAndTheReplyAreNeverReplaced) {
    start();
    install("Ferna.cfg", "konfiguracja 2");
    install("W_X.txt", " 0 , 2 ");
    start();
    EXPECT_EQ(of("Ferna.cfg"), "konfiguracja 1");
    EXPECT_EQ(of("W_X.txt"), " 0 , 1 ");
}

TEST_F(InstalledProgram, ACatalogueThatTheEngineerChangedStays) {
    start();
    change("Ferpl.txt", "katalog z własnymi słowami");
    install("Ferpl.txt", "katalog 2");
    start();
    EXPECT_EQ(of("Ferpl.txt"), "katalog z własnymi słowami");
}

TEST_F(InstalledProgram, AFileThatWasDeletedComesBack) {
    start();
    ASSERT_TRUE(QFile::remove(own.path(QStringLiteral("Ferpl.txt"))));
    start();
    EXPECT_EQ(of("Ferpl.txt"), "katalog 1");
}

TEST_F(InstalledProgram, AFirstStartThatWasCutShortStillCounts) {
    start();
    ASSERT_TRUE(QFile::remove(own.path(QStringLiteral("dostarczone.sha256"))));
    start(); // finds the files in place and takes them for what they are
    install("Ferpl.txt", "katalog 2");
    start();
    EXPECT_EQ(of("Ferpl.txt"), "katalog 2");
}

TEST_F(InstalledProgram, ABuildWorksInItsOwnFolder) {
    programs.write(QStringLiteral("Ferpl.txt"), "katalog");
    const QString folder = start();
    EXPECT_EQ(QDir(folder).canonicalPath(),
              QDir(programs.path(QStringLiteral("."))).canonicalPath());
    EXPECT_TRUE(own.names().isEmpty());
}

} // namespace
