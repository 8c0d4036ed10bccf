#include "batch/name_remarks.h"
#include "renderer/program_run.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::batch;
using namespace ferna::testing;

namespace {

QByteArray taskWith(const QByteArray& keys) {
    return "{" + keys
           + R"("Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,)"
             R"("Kotwy": [{"x": -250, "y": -150, "fi": 24}, {"x": 250, "y": 150, "fi": 24}],)"
             R"("Przypadki": [{"N": 50, "M1": 60, "M2": 20, "Vx": 1, "Vy": 0}]})";
}

QStringList remarksOf(const QByteArray& keys) {
    return nameRemarks(readTask(parsed(taskWith(keys).toStdString())));
}

TEST(NameRemarks, AreNoneForNamesThatGetIntoTheReportAsTheyAre) {
    EXPECT_EQ(remarksOf(R"("Nazwa_projektu": "Hala ż", "Nazwa_stopy": "F-1",)"), QStringList());
}

TEST(NameRemarks, NameTheKeyAndWhatIsLost) {
    EXPECT_EQ(
        remarksOf(
            R"("Nazwa_projektu": "Słup Ω", "Nazwa_stopy": "stopa pod słup pośredni osi 12/Φ",)"
            R"("Nr_stali": 7, "Stal": {"Stal_nazwa": "α", "Stal_fd": 300, "Stal_fi_max": 30,)"
            R"("Stal_Re": 355, "Stal_Rm": 470},)"
            R"("Blacha": {"Nr_stali_blachy": 6, "Blacha_nazwa": "β", "Blacha_fd": 300,)"
            R"("Blacha_t_max": 40, "Sprawdzenia": {}},)")
            .join(u'|'),
        QStringLiteral("Nazwa_projektu: code page 1250 of the reports lacks \"Ω\", they have \"?\" "
                       "in its place|"
                       "Nazwa_stopy: code page 1250 of the reports lacks \"Φ\", they have \"?\" in "
                       "its place|"
                       "Stal.Stal_nazwa: code page 1250 of the reports lacks \"α\", they have "
                       "\"?\" in its place|"
                       "Blacha.Blacha_nazwa: code page 1250 of the reports lacks \"β\", they have "
                       "\"?\" in its place"));
    EXPECT_EQ(remarksOf(R"("Nazwa_stopy": "stopa pod słup pośredni w osi 12/C",)").join(u'|'),
              QStringLiteral("Nazwa_stopy: cut to 32 characters, \"/C\" is left out"));
    EXPECT_EQ(remarksOf("\"Nazwa_projektu\": \"" + QByteArray(120, 'M') + "\",").join(u'|'),
              QStringLiteral("Nazwa_projektu: too long for its line of the title block, printed in "
                             "letters of 3.9 pt in place of 9.9 pt"));
}

TEST(NameRemarks, StandOnStandardErrorOnceWithTheKeyWhereAReportIsWritten) {
    const Folder folder;
    const QString task =
        folder.write(QStringLiteral("t.json"), taskWith(R"("Nazwa_projektu": "Słup Ω",)"));
    const QString program = places::bin("/ferna-wsad");
    EXPECT_EQ(
        runProgram(program, {task}).errors,
        QStringLiteral("ferna-wsad: uwaga: Nazwa projektu: raport nie pomieści znaków Ω, w ich "
                       "miejscu będzie \"?\". Wpisz nazwę bez nich.\n"));
    const Outcome run = runProgram(
        program, {QStringLiteral("--raport"), folder.path(QStringLiteral("r.txt")), task});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors,
              QStringLiteral("ferna-wsad: %1: Nazwa_projektu: code page 1250 of the reports lacks "
                             "\"Ω\", they have \"?\" in its place\n")
                  .arg(task));
}

} // namespace
