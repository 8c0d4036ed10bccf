// Reports that show their pictures by the names of files, several in one folder.
#include "batch/report_pictures.h"
#include "renderer/program_run.h"
#include "runtime/codepage.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// A task with every section of the report, on a plate of a size of its own.
QByteArray taskOf(int length, const QString& project = QStringLiteral("Hala A")) {
    return QStringLiteral(
               R"({"Nazwa_projektu": "%1", "Dlug_plyty_mm": %2, "Szer_plyty_mm": 300,)"
               R"("Kotwy": [{"x": -120, "y": -100, "fi": 24}, {"x": 120, "y": -100, "fi": 24},)"
               R"({"x": -120, "y": 100, "fi": 24}, {"x": 120, "y": 100, "fi": 24}],)"
               R"("Przypadki": [{"N": 50, "M1": 20, "M2": 2, "Vx": 1, "Vy": 0}],)"
               R"("Blacha": {"Nr_stali_blachy": 2, "Grubosc": null,)"
               R"("Sprawdzenia": {"1": {"bs": 120, "ca": 60, "S": 100}}},)"
               R"("Kotwa": {"rodzaj": "F", "g": 50}})")
        .arg(project)
        .arg(length)
        .toUtf8();
}

class Reports : public ::testing::Test {
protected:
    /// Computes a task and writes its report there. Returns what was told beside it.
    QString report(const QByteArray& task, const QString& file) {
        const Outcome run =
            runProgram(places::bin("/ferna-wsad"), {QStringLiteral("--raport"), folder.path(file),
                                                    tasks.write(QStringLiteral("t.json"), task)});
        EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString() << run.output.toStdString();
        QStringList told; // by the program; the toolkit has words of its own on some machines
        for (const QString& line : run.errors.split(u'\n'))
            if (line.startsWith(u"ferna-wsad: "))
                told += line;
        return told.join(u'\n');
    }

    /// The pictures that a report names, without their folder.
    QStringList named(const QString& file) const {
        const QString text = *codepage::decoded(folder.read(file));
        const QRegularExpression name(QStringLiteral("[^/ \\r\\n]+\\.bmp"));
        QStringList names;
        for (auto match = name.globalMatch(text); match.hasNext();)
            names += match.next().captured();
        return names;
    }

    bool has(const QString& file) const { return QFile::exists(folder.path(file)); }

    Folder folder, tasks;
};

TEST_F(Reports, CommandFilesOfOneFolderShowTheirOwnPictures) {
    report(taskOf(600), QStringLiteral("a.wyd"));
    const QByteArray plateOfA = folder.read(QStringLiteral("a-Ferrob.bmp"));
    report(taskOf(900), QStringLiteral("b.wyd"));
    EXPECT_EQ(named(QStringLiteral("b.wyd")).join(u' '),
              QStringLiteral("b-Ferogo2.bmp b-Ferrob.bmp b-fernasz1.bmp b-Szkic1.bmp "
                             "b-Szkick.bmp"));
    for (const QString& file : {QStringLiteral("a.wyd"), QStringLiteral("b.wyd")})
        for (const QString& picture : named(file))
            EXPECT_TRUE(has(picture)) << picture.toStdString();
    EXPECT_EQ(folder.read(QStringLiteral("a-Ferrob.bmp")), plateOfA);
    EXPECT_NE(folder.read(QStringLiteral("b-Ferrob.bmp")), plateOfA);
    EXPECT_FALSE(has(QStringLiteral("Ferrob.bmp")));
}

TEST_F(Reports, ANameThatTheCodePageLacksStillHasPicturesOfItsOwn) {
    EXPECT_EQ(batch::picturePrefix(QStringLiteral("/x.y/Słup Ω.1.wyd")),
              QStringLiteral("Słup _03a9.1-"));
    const QString file = QStringLiteral("Ω.wyd");
    report(taskOf(600), file);
    ASSERT_EQ(named(file).size(), 5);
    for (const QString& picture : named(file))
        EXPECT_TRUE(has(picture)) << picture.toStdString();
}

TEST_F(Reports, AnRtfReportBringsThePicturesThatItsTextNames) {
    EXPECT_EQ(report(taskOf(600), QStringLiteral("a.rtf")), QString());
    const QStringList pictures = named(QStringLiteral("a.rtf"));
    EXPECT_EQ(pictures.join(u' '), QStringLiteral("Ferogo2.bmp Ferrob.bmp fernasz1.bmp Szkic1.bmp "
                                                  "Szkick.bmp"));
    EXPECT_EQ(folder.names().size(), 1 + pictures.size());
    for (const QString& picture : pictures)
        EXPECT_TRUE(has(picture)) << picture.toStdString();
}

TEST_F(Reports, AnRtfReportOfAnotherPlateLeavesThePicturesOfTheFirstAlone) {
    report(taskOf(600), QStringLiteral("a.rtf"));
    const QByteArray plateOfA = folder.read(QStringLiteral("Ferrob.bmp"));
    const QString told = report(taskOf(900), QStringLiteral("b.rtf"));
    EXPECT_EQ(told, QStringLiteral("ferna-wsad: %1: the pictures beside it belong to another "
                                   "report; with its own pictures the report is %2")
                        .arg(folder.path(QStringLiteral("b.rtf")),
                             folder.path(QStringLiteral("b-rysunki/b.rtf"))));
    EXPECT_EQ(folder.read(QStringLiteral("Ferrob.bmp")), plateOfA);
    EXPECT_NE(folder.read(QStringLiteral("b-rysunki/Ferrob.bmp")), plateOfA);
    EXPECT_EQ(folder.read(QStringLiteral("b-rysunki/b.rtf")), folder.read(QStringLiteral("b.rtf")));
    for (const QString& picture : named(QStringLiteral("b.rtf")))
        EXPECT_TRUE(has(QStringLiteral("b-rysunki/") + picture)) << picture.toStdString();
    // and so at every later run of either
    report(taskOf(700), QStringLiteral("a.rtf"));
    EXPECT_EQ(folder.read(QStringLiteral("Ferrob.bmp")), plateOfA);
    EXPECT_TRUE(has(QStringLiteral("a-rysunki/Ferrob.bmp")));
}

TEST_F(Reports, AnRtfReportThatLiesAloneReplacesItsPictures) {
    report(taskOf(600), QStringLiteral("a.rtf"));
    const QByteArray before = folder.read(QStringLiteral("Ferrob.bmp"));
    EXPECT_EQ(report(taskOf(900), QStringLiteral("a.rtf")), QString());
    EXPECT_NE(folder.read(QStringLiteral("Ferrob.bmp")), before);
    EXPECT_FALSE(has(QStringLiteral("a-rysunki")));
}

TEST_F(Reports, TheSamePicturesAreShared) {
    report(taskOf(600), QStringLiteral("a.rtf"));
    EXPECT_EQ(report(taskOf(600), QStringLiteral("b.rtf")), QString());
    EXPECT_FALSE(has(QStringLiteral("b-rysunki")));
}

TEST_F(Reports, AProjectNameThatIsValidInAnotherEncodingTooIsPrinted) {
    for (const QString& name : {QStringLiteral("Blachy zwężą"), QStringLiteral("Hala â€“ 2")}) {
        report(taskOf(600, name), QStringLiteral("a.pdf"));
        EXPECT_TRUE(pdfText(folder.path(QStringLiteral("a.pdf")), 1).contains(name))
            << name.toStdString();
    }
}

} // namespace
