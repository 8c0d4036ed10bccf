#include "design/language.h"
#include "desktop/last_task.h"
#include "runtime/text_file.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::errorNumberOf;
using ferna::testing::Folder;

namespace {

/// A program folder at the start, and what the engineer was asked there.
class LastTask : public ::testing::Test {
protected:
    LastTask() {
        for (const char* name : {"Ferna.cfg", "Ferpl.txt", "Fergb.txt"})
            home.write(QLatin1String(name), delivered(name));
        // a task of the engineer's own
        home.write(QStringLiteral("Ferna.cfg"),
                   delivered("Ferna.cfg").replace("Projekt", "Hala B"));
    }

    static QByteArray delivered(const char* name) {
        return Folder::bytesOf(Folder::delivered(QLatin1String(name)));
    }
    QByteArray of(const char* name) const { return home.read(QLatin1String(name)); }
    void damage(const char* name, const QByteArray& bytes) const {
        home.write(QLatin1String(name), bytes);
    }
    /// A start at which the delivered file is taken (or not) wherever it is offered.
    bool start(bool take = true) {
        asked.clear();
        return restoreLastTask(stan, home.path(QStringLiteral(".")), places::data(),
                               [&](const DamagedFile& file) {
                                   asked.push_back(file);
                                   return take;
                               });
    }

    static QByteArray cutTo60Lines(const QByteArray& catalogue) {
        return catalogue.split('\n').mid(0, 60).join('\n');
    }
    static QByteArray inUtf8(const char* name) {
        return readLines(Folder::delivered(QLatin1String(name))).join(u'\n').toUtf8();
    }

    Folder home;
    Stan stan;
    std::vector<DamagedFile> asked;
};

TEST_F(LastTask, IsReadWithoutAQuestionWhereNothingIsDamaged) {
    EXPECT_TRUE(start());
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(stan.opcje.Nazwa_projektu, QStringLiteral("Hala B"));
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.59F);
    EXPECT_EQ(stan.Teksty(10), readLines(Folder::delivered(QStringLiteral("Ferpl.txt")))[9]);
}

TEST_F(LastTask, ADamagedCatalogueIsBlamedItselfAndTheTaskStays) {
    const QByteArray task = of("Ferna.cfg");
    for (const QByteArray& damaged : {cutTo60Lines(delivered("Ferpl.txt")), inUtf8("Ferpl.txt")}) {
        damage("Ferpl.txt", damaged);
        EXPECT_TRUE(start());
        ASSERT_EQ(asked.size(), 1U);
        EXPECT_EQ(asked[0].name, QStringLiteral("Ferpl.txt"));
        EXPECT_FALSE(asked[0].isTask);
        EXPECT_TRUE(asked[0].why.text().contains(QStringLiteral("Ferpl.txt, wiersz ")));
        EXPECT_EQ(home.read(asked[0].keptAs), damaged);
        EXPECT_EQ(of("Ferpl.txt"), delivered("Ferpl.txt"));
        EXPECT_EQ(of("Ferna.cfg"), task);
        EXPECT_EQ(stan.opcje.Nazwa_projektu, QStringLiteral("Hala B"));
    }
    EXPECT_FALSE(home.names().contains(QStringLiteral("Ferna.cfg.uszkodzony")));
}

TEST_F(LastTask, TheCatalogueInForceIsTheOneThatIsReplaced) {
    damage("Ferna.cfg", of("Ferna.cfg").replace(" 0            Jezyk", " 2            Jezyk"));
    damage("Fergb.txt", "short");
    EXPECT_TRUE(start());
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].name, QStringLiteral("Fergb.txt"));
    EXPECT_EQ(of("Fergb.txt"), delivered("Fergb.txt"));
    EXPECT_EQ(stan.opcje.Nr_jezyka, 2);
}

TEST_F(LastTask, ADamagedConfigurationIsBlamedItselfAndTheCatalogueStays) {
    damage("Ferna.cfg", "1 Norma\r\nno number\r\n");
    damage("Ferpl.txt", of("Ferpl.txt") + "my own remark\r\n");
    EXPECT_TRUE(start());
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].name, QStringLiteral("Ferna.cfg"));
    EXPECT_TRUE(asked[0].isTask);
    EXPECT_EQ(asked[0].keptAs, QStringLiteral("Ferna.cfg.uszkodzony"));
    EXPECT_EQ(of("Ferna.cfg.uszkodzony"), "1 Norma\r\nno number\r\n");
    EXPECT_EQ(of("Ferna.cfg"), delivered("Ferna.cfg"));
    EXPECT_TRUE(of("Ferpl.txt").endsWith("my own remark\r\n"));
}

TEST_F(LastTask, BothDamagedAreAskedForOneByOne) {
    damage("Ferna.cfg", "");
    damage("Ferpl.txt", "");
    EXPECT_TRUE(start());
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0].name, QStringLiteral("Ferna.cfg"));
    EXPECT_EQ(asked[1].name, QStringLiteral("Ferpl.txt"));
    EXPECT_EQ(stan.opcje.Nazwa_projektu, QStringLiteral("Projekt"));
}

TEST_F(LastTask, WhereTheEngineerDeclinesNothingIsWritten) {
    for (const char* name : {"Ferna.cfg", "Ferpl.txt"}) {
        const QByteArray before = of(name);
        damage(name, "damaged");
        const QStringList files = home.names();
        EXPECT_FALSE(start(false));
        EXPECT_EQ(asked.size(), 1U);
        EXPECT_EQ(of(name), "damaged");
        EXPECT_EQ(home.names(), files);
        damage(name, before);
    }
}

TEST_F(LastTask, AKeptFileIsNeverOverwritten) {
    const QStringList kept{QStringLiteral("Ferna.cfg.uszkodzony"),
                           QStringLiteral("Ferna.cfg.uszkodzony.2"),
                           QStringLiteral("Ferna.cfg.uszkodzony.3")};
    for (const QString& name : kept) {
        damage("Ferna.cfg", "damaged, to be kept as " + name.toUtf8());
        EXPECT_TRUE(start());
        ASSERT_EQ(asked.size(), 1U);
        EXPECT_EQ(asked[0].keptAs, name);
    }
    for (const QString& name : kept)
        EXPECT_EQ(home.read(name), "damaged, to be kept as " + name.toUtf8());
}

TEST_F(LastTask, AMissingFileLeavesNothingToKeep) {
    for (const char* name : {"Ferna.cfg", "Ferpl.txt"}) {
        ASSERT_TRUE(QFile::remove(home.path(QLatin1String(name))));
        EXPECT_TRUE(start());
        ASSERT_EQ(asked.size(), 1U) << name;
        EXPECT_EQ(asked[0].name, QLatin1String(name));
        EXPECT_EQ(asked[0].keptAs, QString());
        EXPECT_EQ(of(name), delivered(name));
    }
    EXPECT_EQ(home.names().filter(QStringLiteral("uszkodzony")), QStringList());
}

TEST_F(LastTask, WithoutADeliveredFileTheDamagedOneStaysWhereItIs) {
    damage("Ferpl.txt", "damaged");
    const Folder nothing;
    EXPECT_EQ(errorNumberOf([&] {
                  restoreLastTask(stan, home.path(QStringLiteral(".")),
                                  nothing.path(QStringLiteral(".")),
                                  [](const DamagedFile&) { return true; });
              }),
              error::FileNotFound);
    EXPECT_EQ(of("Ferpl.txt"), "damaged");
    EXPECT_FALSE(home.names().contains(QStringLiteral("Ferpl.txt.uszkodzony")));
}

} // namespace
