// Where the program may live: a folder that cannot be written, a folder with blanks and Polish
// letters, a folder that is in use, a system with another decimal sign.
#include "desktop/program_folder.h"
#include "faults/small_disk.h"
#include "protocol/renderer_files.h"
#include "renderer/program_run.h"
#include "runtime/text_file.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>

#include <unistd.h>

#include <functional>

using namespace ferna;
using namespace ferna::testing;

namespace {

const QStringList delivered{QStringLiteral("Ferpl.txt"), QStringLiteral("Ferna.cfg"),
                            QStringLiteral("W_X.txt")};

class ProgramFolder : public ::testing::Test {
protected:
    ~ProgramFolder() override { QDir::setCurrent(before); }

    static void deliverTo(const QString& folder) {
        for (const QString& file : delivered)
            writeFileWhole(folder + u'/' + file, readFileWhole(Folder::delivered(file)));
    }

    QString own() const { return home.path(QStringLiteral("dane użytkownika/ferna")); }

    const QString before = QDir::currentPath();
    Folder home;
};

TEST_F(ProgramFolder, IsTheInstalledOneWhereItCanBeWritten) {
    const Folder installed;
    deliverTo(installed.path(QStringLiteral(".")));
    const QString folder = installed.path(QStringLiteral("."));
    EXPECT_EQ(enterProgramFolder(folder, folder, own()), folder);
    EXPECT_FALSE(QFileInfo::exists(own()));
}

TEST_F(ProgramFolder, IsTheUsersOwnWhereTheInstalledOneIsReadOnly) {
    const SmallDisk disk;
    if (!disk.isThere())
        GTEST_SKIP() << "only the superuser can have a disk of his own";
    deliverTo(disk.folder());
    disk.makeReadOnly();
    EXPECT_EQ(enterProgramFolder(disk.folder(), disk.folder(), own()), own());
    EXPECT_EQ(QDir::currentPath(), own());
    for (const QString& file : delivered)
        EXPECT_EQ(readFileWhole(own() + u'/' + file), readFileWhole(Folder::delivered(file)));
    // The second start finds the task as it was left, and a file that has gone delivered again.
    writeFileWhole(own() + QStringLiteral("/Ferna.cfg"), "moje zadanie");
    QFile::remove(own() + QStringLiteral("/Ferpl.txt"));
    enterProgramFolder(disk.folder(), disk.folder(), own());
    EXPECT_EQ(readFileWhole(own() + QStringLiteral("/Ferna.cfg")), QByteArray("moje zadanie"));
    EXPECT_TRUE(QFileInfo::exists(own() + QStringLiteral("/Ferpl.txt")));
}

TEST_F(ProgramFolder, ThatCannotBeMadeIsNamed) {
    home.write(QStringLiteral("dane użytkownika"), "plik, nie folder");
    const auto failure = errorOf([&] {
        enterProgramFolder(home.path(QStringLiteral("nie ma")), home.path(QStringLiteral(".")),
                           own());
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PathNotFound);
    EXPECT_EQ(failure->detail(), own());
}

TEST_F(ProgramFolder, BelongsToOneOpenProgramAtATime) {
    const QString folder = home.path(QStringLiteral("."));
    auto first = lockProgramFolder(folder);
    const auto failure = errorOf([&] { lockProgramFolder(folder); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PermissionDenied);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("korzysta już otwarty program")));
    first.reset();
    EXPECT_EQ(errorNumberOf([&] { lockProgramFolder(folder); }), 0);
    EXPECT_EQ(home.names(), QStringList()) << "nothing is left of the lock";
}

class FolderLock : public ::testing::Test {
protected:
    /// A lock as a program on that computer leaves it.
    void leave(const QByteArray& host) { folder.write(name, "1234\nferna\n" + host + "\n"); }
    std::optional<RunTimeError>
    refusal(const std::function<bool(const FolderHolder&)>& takeOver = {}) {
        return errorOf([&] { lockProgramFolder(folder.path(QStringLiteral(".")), takeOver); });
    }

    const QString name = QStringLiteral("Ferna.lock");
    Folder folder;
};

TEST_F(FolderLock, ThatIsEmptyOrNoneIsTakenOver) {
    for (const char* content :
         {"", "\n\n\n", "\x00\xff", "notatka o zamku\nx\ny\n", "-5\nferna\nx\n"}) {
        folder.write(name, content);
        EXPECT_FALSE(refusal()) << content;
    }
}

TEST_F(FolderLock, WhoseProcessIsGoneOrAnotherOneNowIsTakenOver) {
    leave(QSysInfo::machineHostName().toUtf8());
    EXPECT_FALSE(refusal());
    folder.write(name, QByteArray::number(getpid()) + "\ntest_faults\n"
                           + QSysInfo::machineHostName().toUtf8() + "\n");
    EXPECT_FALSE(refusal()) << "the number belongs to another program by now";
}

TEST_F(FolderLock, OfAnotherComputerIsNamedAndOffered) {
    leave("inny-komputer");
    const auto failure = refusal();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PermissionDenied);
    for (const QString& part : {folder.path(name), QStringLiteral("inny-komputer"),
                                QStringLiteral("1234"), QStringLiteral("usuń ten plik")})
        EXPECT_TRUE(failure->text().contains(QFileInfo(part).fileName()))
            << failure->text().toStdString();
    int asked = 0;
    const auto answer = [&](bool take) {
        return [&asked, take](const FolderHolder& holder) {
            ++asked;
            EXPECT_EQ(holder.host, QStringLiteral("inny-komputer"));
            EXPECT_EQ(holder.process, 1234);
            return take;
        };
    };
    EXPECT_TRUE(refusal(answer(false)));
    EXPECT_FALSE(refusal(answer(true)));
    EXPECT_EQ(asked, 2);
}

TEST_F(FolderLock, OfAnOpenProgramNamesItsFileAndItsProcess) {
    const auto first = lockProgramFolder(folder.path(QStringLiteral(".")));
    const auto failure = refusal([](const FolderHolder&) { return true; });
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->text().contains(name)) << failure->text().toStdString();
    EXPECT_TRUE(failure->text().contains(QString::number(getpid())));
    EXPECT_TRUE(failure->text().contains(QStringLiteral("zamknij go")));
}

/// The built programs with their data in a folder of another name, under another locale.
class Programs : public ::testing::Test {
protected:
    void install(const QString& folder) {
        QDir().mkpath(folder);
        const QDir built(places::bin());
        for (const QString& file : built.entryList(
                 {QStringLiteral("ferna-wsad"), QStringLiteral("Wyd_drk"), QStringLiteral("*.so"),
                  QStringLiteral("*.txt"), QStringLiteral("*.cfg"), QStringLiteral("*.bmp")},
                 QDir::Files))
            ASSERT_TRUE(QFile::copy(built.filePath(file), folder + u'/' + file))
                << file.toStdString();
    }

    /// The report of the delivered sample task under that name, and the program's own words.
    Outcome report(const QString& folder, const QString& file, const char* locale,
                   const QStringList& more = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"LANG", "LC_ALL", "LC_NUMERIC", "LANGUAGE"})
            environment.remove(QLatin1String(name));
        environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
        environment.insert(QStringLiteral("LOCPATH"), here.path(QStringLiteral("locale")));
        environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1700000000"));
        return runProgram(folder + QStringLiteral("/ferna-wsad"),
                          more
                              + QStringList{QStringLiteral("--raport"), file,
                                            places::data("/przyklady/"
                                                         "slup-hali.json")},
                          environment);
    }

    /// The Polish locale of the C library, made for this test.
    bool makePolishLocale() {
        QDir().mkpath(here.path(QStringLiteral("locale")));
        const QString path = here.path(QStringLiteral("locale/pl_PL.UTF-8"));
        runProgram(QStringLiteral("localedef"),
                   {QStringLiteral("-i"), QStringLiteral("pl_PL"), QStringLiteral("-f"),
                    QStringLiteral("UTF-8"), path});
        return QFileInfo(path).isDir();
    }

    Folder here;
};

TEST_F(Programs, WorkInAFolderWithBlanksAndPolishLetters) {
    const QString folder = here.path(QStringLiteral("Zażółć gęślą jaźń, \"2\" & 'ś'"));
    install(folder);
    for (const char* locale : {"C", "C.UTF-8"}) {
        const QString file =
            here.path(QStringLiteral("Stopa słupa Ż-1 (%1).pdf").arg(QLatin1String(locale)));
        const Outcome run = report(folder, file, locale);
        EXPECT_EQ(run.exitCode, 0) << locale << ' ' << run.errors.toStdString();
        EXPECT_TRUE(pdfText(file, 1).contains(QStringLiteral("Długość płyty x =")));
    }
}

TEST_F(Programs, GiveTheSameReportUnderALocaleWithACommaAndWithAPoint) {
    if (!makePolishLocale())
        GTEST_SKIP() << "no sources of locales";
    const QString folder = places::bin();
    const auto made = [&](const char* locale, const QStringList& more, const char* ending) {
        const QString file = here.path(QStringLiteral("raport.") + QLatin1String(ending));
        QFile::remove(file);
        const Outcome run = report(folder, file, locale, more);
        EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
        return run.output.toUtf8() + readFileWhole(file);
    };
    const QStringList comma{QStringLiteral("--dziesietny"), QStringLiteral(",")};
    const QStringList point{QStringLiteral("--dziesietny"), QStringLiteral(".")};
    for (const char* ending : {"txt", "rtf", "wyd", "emf"}) {
        const QByteArray expected = made("C.UTF-8", comma, ending);
        EXPECT_EQ(made("pl_PL.UTF-8", comma, ending), expected) << ending;
        EXPECT_EQ(made("pl_PL.UTF-8", {}, ending), expected) << ending << ", by the locale";
        EXPECT_EQ(made("pl_PL.UTF-8", point, ending), made("C.UTF-8", {}, ending)) << ending;
    }
}

} // namespace
