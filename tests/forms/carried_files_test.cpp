// The files that the program carries within itself.
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

QString carried(const char* name) {
    return QStringLiteral(":/dane/") + QString::fromLatin1(name);
}

TEST(CarriedFiles, AreReadWholeAndAreTheDeliveredOnes) {
    for (const char* name :
         {"Ferna.cfg", "Ferpl.txt", "Ferp2.txt", "Fergb.txt", "Ferfr.txt", "Ferge.txt"}) {
        const QByteArray bytes = readFileWhole(carried(name));
        EXPECT_FALSE(bytes.isEmpty()) << name;
        EXPECT_EQ(bytes, readFileWhole(places::data("/") + QString::fromLatin1(name))) << name;
    }
}

TEST(CarriedFiles, AreReadLineByLineToo) {
    EXPECT_EQ(readLines(carried("Ferpl.txt")).size(), 66);
}

TEST(CarriedFiles, ThatAreMissingOrAFolderAreToldAsMissing) {
    EXPECT_EQ(errorNumberOf([] { readFileWhole(carried("brak.txt")); }), error::FileNotFound);
    EXPECT_EQ(errorNumberOf([] { readFileWhole(QStringLiteral(":/dane")); }), error::FileNotFound);
}

} // namespace
