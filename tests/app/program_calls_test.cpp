#include "renderer/program_run.h"
#include "support/places.h"

#include <gtest/gtest.h>

using ferna::testing::Outcome;
using ferna::testing::runProgram;

namespace {

Outcome call(const char* program, const QStringList& arguments) {
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* screen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(screen));
    return runProgram(places::bin("/") + QLatin1String(program), arguments, environment);
}

class Programs : public ::testing::TestWithParam<const char*> {};

TEST_P(Programs, TellTheirOptionsAndVersionWithoutAScreen) {
    for (const QString& option : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        const Outcome help = call(GetParam(), {option});
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_EQ(help.errors, QString());
        EXPECT_TRUE(help.output.contains(QLatin1String(GetParam())));
        EXPECT_TRUE(help.output.contains(u"--version"));
    }
    for (const QString& option : {QStringLiteral("--version"), QStringLiteral("-v")})
        EXPECT_EQ(call(GetParam(), {option}).output,
                  QLatin1String(GetParam()) + QStringLiteral(" " FERNA_VERSION "\n"));
}

INSTANTIATE_TEST_SUITE_P(All, Programs, ::testing::Values("ferna", "ferna-wsad", "Wyd_drk"));

TEST(Program, WithoutAScreenSaysSoAndNamesTheCompanion) {
    const Outcome run = call("ferna", {});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
              QStringLiteral("ferna: program wymaga ekranu; bez okien liczy ferna-wsad\n"));
}

TEST(Program, RefusesAnArgumentThatItDoesNotKnow) {
    const Outcome run = call("ferna", {QStringLiteral("-platform"), QStringLiteral("offscreen"),
                                       QStringLiteral("zadanie.ferna"), QStringLiteral("drugie")});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.contains(u"nieznany argument \"drugie\""));
    const Outcome option = call("ferna", {QStringLiteral("-platform"), QStringLiteral("offscreen"),
                                          QStringLiteral("--nie-ma")});
    EXPECT_EQ(option.exitCode, 2);
    EXPECT_TRUE(option.errors.contains(u"nieznany argument \"--nie-ma\""));
}

} // namespace
