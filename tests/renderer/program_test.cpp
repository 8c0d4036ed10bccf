#include "pages/emf_writer.h"
#include "pages/metafile.h"
#include "renderer/layout.h"
#include "renderer/outputs.h"
#include "renderer/page_checks.h"
#include "renderer/program_run.h"
#include "renderer/sample_report.h"
#include "runtime/picture_box.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ferna;
using ferna::testing::Outcome;
using ferna::testing::pdfText;
using ferna::testing::runProgram;
using ferna::testing::runRenderer;
using ferna::testing::SampleReport;

namespace {

class Renderer : public ::testing::Test {
protected:
    /// A report of at least two pages.
    QString job(const QString& mode = QStringLiteral("-2"), int firstPage = 12) {
        sample.anchorSection(sample.calculation(20, 2, 3));
        return sample.write(mode, firstPage);
    }
    QString reply() const {
        const QStringList lines = readLines(sample.path(QStringLiteral("W_X.txt")));
        return lines.size() == 1 ? lines[0] : QStringLiteral("%1 lines").arg(lines.size());
    }
    QString path(const char* name) const { return sample.path(QString::fromUtf8(name)); }
    bool exists(const char* name) const { return QFile::exists(path(name)); }

    QTemporaryDir folder;
    SampleReport sample{folder.path()};
};

TEST_F(Renderer, LeavesTheScreenPictureAndTheReply) {
    const Outcome run = runRenderer({job()});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, QString());
    const Metafile picture = Metafile::fromFile(path("$a1.emf"));
    EXPECT_EQ(picture.sizeMm(), QSizeF(210, 2 * 297));
    EXPECT_EQ(reply(), QStringLiteral(" 1 , 14 "));
}

TEST_F(Renderer, TheScreenPictureHasTheSameBytesEachTime) {
    for (const char* name : {"a.bmp", "b.bmp"}) { // their vectors are read beside the fonts
        PictureBox picture(QSize(200, 100), 6);
        picture.setScale({0, 0}, {200, 100});
        picture.circle({100, 50}, 40);
        picture.text({20, 15}, QStringLiteral("Ø 24"));
        picture.saveBitmap(path(name), 50);
        sample.raw(QStringLiteral("5, 110., 85., 50., 25."));
        sample.raw(path(name));
    }
    const QString file = job();
    wyd::Complaints complaints;
    const QByteArray drawnHere = pages::emfOfAllPages(renderer::compose(readJob(file), complaints));
    EXPECT_FALSE(drawnHere.isEmpty());
    for (int time = 0; time < 8; ++time) {
        ASSERT_EQ(runRenderer({file}).exitCode, 0);
        EXPECT_TRUE(readFileWhole(path("$a1.emf")) == drawnHere) << time;
    }
}

TEST_F(Renderer, TheReplyOfANegativePageNumberKeepsItsSign) {
    EXPECT_EQ(runRenderer({job(QStringLiteral("-2"), -5)}).exitCode, 0);
    EXPECT_EQ(reply(), QStringLiteral(" 1 ,-3 "));
}

TEST_F(Renderer, TheReplyNeverLeavesThe16BitsOfAPageNumber) {
    EXPECT_EQ(runRenderer({job(QStringLiteral("-2"), 32767)}).exitCode, 0);
    EXPECT_EQ(reply(), QStringLiteral(" 1 , 32767 "));
}

TEST_F(Renderer, FindsBesideTheJobWhatIsNamedWithoutAFolder) {
    const QString strange = folder.filePath(QStringLiteral("юзер"));
    ASSERT_TRUE(QDir().mkpath(strange));
    sample = SampleReport(strange);
    QImage(20, 20, QImage::Format_RGB32).save(sample.path(QStringLiteral("a.bmp")));
    sample.raw(QStringLiteral("5, 10., 35., 52.9, 34.7"));
    sample.raw(QStringLiteral("a.bmp"));
    sample.line(85, QStringLiteral("jeden"));
    sample.write(QStringLiteral("-2"), 1);
    writeFileWhole(sample.jobPath(), "-2, 1.0, 0.5, 1.0, 1\r\nFERNAPr.wyd\r\nFERNAPr1.wyd\r\n");
    const Outcome run = runRenderer({sample.jobPath()});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, QString());
    EXPECT_TRUE(exists("$a1.emf"));
}

TEST_F(Renderer, WritesAPdfWithItsTextOnTheRightPages) {
    const Outcome run = runRenderer({QStringLiteral("--pdf"), path("raport.pdf"), job()});
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    const QString first = pdfText(path("raport.pdf"), 1);
    const QString second = pdfText(path("raport.pdf"), 2);
    EXPECT_TRUE(first.contains(QStringLiteral("Długość płyty x =")));
    EXPECT_TRUE(first.contains(QStringLiteral("Strona 12")));
    EXPECT_TRUE(first.contains(QStringLiteral("Hala magazynowa – Żółkiew, oś B/7")));
    EXPECT_TRUE(second.contains(QStringLiteral("Strona 13")));
    EXPECT_TRUE(second.contains(QStringLiteral("docisku min. ωd = 1,063")));
    EXPECT_TRUE(second.contains(QStringLiteral("Dobrana kotwa")));
    EXPECT_FALSE(first.contains(QStringLiteral("Dobrana kotwa")));
    EXPECT_EQ(reply(), QStringLiteral(" 1 , 14 "));

    const QString info = runProgram(QStringLiteral("pdfinfo"), {path("raport.pdf")}).output;
    EXPECT_TRUE(info.contains(QStringLiteral("Zakotwienie słupów stalowych")));
    EXPECT_TRUE(info.contains(QStringLiteral("Żółkiew"))) << "the project's name";
    EXPECT_TRUE(info.contains(QStringLiteral("Pages:           2")));
    EXPECT_TRUE(info.contains(QStringLiteral("(A4)")));
    const QStringList fonts =
        runProgram(QStringLiteral("pdffonts"), {path("raport.pdf")}).output.split(u'\n');
    ASSERT_GE(fonts.size(), 3);
    EXPECT_TRUE(fonts[2].contains(QStringLiteral("Liberation")));
    EXPECT_TRUE(fonts[2].contains(QStringLiteral("TrueType")));
    EXPECT_TRUE(fonts[2].simplified().contains(QStringLiteral("yes"))) << "embedded";
}

TEST_F(Renderer, LearnsTheLanguageOfTheReportByTheCallOrByItsEnvironment) {
    const QString file = job();
    ASSERT_TRUE(QFile::remove(path("Ferogo2.bmp")));
    QProcessEnvironment german = QProcessEnvironment::systemEnvironment();
    german.insert(QStringLiteral("WYD_DRK_JEZYK"), QStringLiteral("de-DE"));
    const QStringList pdf{QStringLiteral("--pdf"), path("raport.pdf")};
    EXPECT_EQ(runRenderer(pdf + QStringList{file}, german).exitCode, 0);
    EXPECT_TRUE(pdfText(path("raport.pdf"), 1).contains(u"Bild fehlt: Ferogo2.bmp"));
    const QStringList english{QStringLiteral("--jezyk"), QStringLiteral("en-GB")};
    EXPECT_EQ(runRenderer(pdf + english + QStringList{file}, german).exitCode, 0);
    EXPECT_TRUE(pdfText(path("raport.pdf"), 1).contains(u"picture missing: Ferogo2.bmp"));
}

TEST_F(Renderer, WritesOneFileAPageOfTheOtherFormats) {
    const QString file = job();
    for (const char* format : {"svg", "png", "emf"}) {
        const QString name = QStringLiteral("raport.") + QLatin1String(format);
        const Outcome run =
            runRenderer({QStringLiteral("--") + QLatin1String(format), sample.path(name), file});
        EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
        EXPECT_FALSE(QFile::exists(sample.path(name)));
        for (const char* page : {"-strona-1-z-2.", "-strona-2-z-2."})
            EXPECT_TRUE(QFile::exists(sample.path(QStringLiteral("raport") + QLatin1String(page)
                                                  + QLatin1String(format))));
    }
    EXPECT_EQ(Metafile::fromFile(path("raport-strona-2-z-2.emf")).sizeMm(), QSizeF(210, 297));
    EXPECT_EQ(QImage(path("raport-strona-1-z-2.png")).size(), QSize(1240, 1754)) << "150 dpi";
    EXPECT_TRUE(QString::fromUtf8(readFileWhole(path("raport-strona-1-z-2.svg")))
                    .contains(QStringLiteral("Szerokość płyty y =")));
}

TEST_F(Renderer, AOnePageReportKeepsTheGivenName) {
    sample.line(85, QStringLiteral("jeden"));
    const QString file = sample.write(QStringLiteral("-2"), 1);
    EXPECT_EQ(runRenderer({QStringLiteral("--png"), path("a.png"), QStringLiteral("--dpi"),
                           QStringLiteral("100"), file})
                  .exitCode,
              0);
    EXPECT_EQ(QImage(path("a.png")).size(), QSize(827, 1169));
    EXPECT_FALSE(exists("a-strona-1-z-1.png"));
}

TEST_F(Renderer, NamesAMalformedRecordAndDrawsTheRest) {
    sample.line(85, QStringLiteral("przed"));
    sample.raw(QStringLiteral("14,x,0.,1"));
    sample.line(89.5, QStringLiteral("po"));
    const Outcome run = runRenderer(
        {QStringLiteral("--pdf"), path("a.pdf"), sample.write(QStringLiteral("-2"), 1)});
    EXPECT_EQ(run.exitCode, 0);
    // The frame has 11 line records, 8 texts of two lines and its end.
    EXPECT_EQ(
        run.errors,
        QStringLiteral("Wyd_drk: %1, wiersz 31: \"x\" to nie liczba\n").arg(path("FERNAPr.wyd")));
    EXPECT_TRUE(pdfText(path("a.pdf"), 1).contains(QStringLiteral("po")));
}

TEST_F(Renderer, AFailureNamesTheFileInOneLineAndLeavesAReply) {
    const QString file = job();
    ASSERT_TRUE(QFile::remove(path("FERNAPr.wyd")));
    const Outcome run = runRenderer({file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors.count(u'\n'), 1);
    EXPECT_TRUE(run.errors.contains(path("FERNAPr.wyd"))) << run.errors.toStdString();
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 "));
    EXPECT_FALSE(exists("$a1.emf"));
}

TEST_F(Renderer, AMissingJobLeavesAReplyToo) {
    const Outcome run = runRenderer({path("W_KK.txt")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(path("W_KK.txt")));
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 1 "));
}

TEST_F(Renderer, ARunThatIsCutShortLeavesTheReplyOfAFailure) {
    const QString pipe = path("strony.png");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(pipe).constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    sample.line(85, QStringLiteral("jeden"));
    QProcess run; // waits for ever with its page, as nobody reads it
    run.start(places::bin("/Wyd_drk"),
              {QStringLiteral("--dpi"), QStringLiteral("600"), QStringLiteral("--png"), pipe,
               sample.write(QStringLiteral("-2"), 12)});
    pollfd page{reader, POLLIN, 0};
    ASSERT_EQ(::poll(&page, 1, 20000), 1) << "the page is being written";
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 "));
    run.kill();
    ASSERT_TRUE(run.waitForFinished());
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 "));
    ::close(reader);
}

TEST_F(Renderer, AFileThatIsNoJobGetsNoReplyBesideIt) {
    for (const char* text : {"notatki\r\n", "", "7, 1.0, 0.5, 1.0, 1\r\na\r\nb\r\n"}) {
        writeFileWhole(path("notatki.txt"), text);
        const Outcome run = runRenderer({path("notatki.txt")});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.errors.contains(QStringLiteral("notatki.txt")));
        EXPECT_FALSE(exists("W_X.txt")) << text;
    }
}

TEST_F(Renderer, APipeIsNeitherAJobNorACommandFileNorAPicture) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("łącze")).constData(), 0600), 0);
    const Outcome asJob = runRenderer({path("łącze")});
    EXPECT_EQ(asJob.exitCode, 1);
    EXPECT_TRUE(asJob.errors.contains(QStringLiteral("zwykły plik"))) << asJob.errors.toStdString();
    sample.raw(QStringLiteral("5, 10., 35., 52.9, 34.7"));
    sample.raw(path("łącze"));
    const Outcome asPicture = runRenderer({sample.write(QStringLiteral("-2"), 1)});
    EXPECT_EQ(asPicture.exitCode, 0);
    EXPECT_TRUE(asPicture.errors.contains(QStringLiteral("nie można wczytać rysunku")));
    const QString job = this->job();
    QFile::remove(path("FERNAPr.wyd"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("FERNAPr.wyd")).constData(), 0600), 0);
    EXPECT_TRUE(runRenderer({job}).errors.contains(QStringLiteral("zwykły plik")));
}

TEST_F(Renderer, ALongLineIsDrawnCutAndNamedAtOnce) {
    sample.line(85, QString(200'000, u'x'));
    QElapsedTimer clock;
    clock.start();
    const Outcome run = runRenderer({sample.write(QStringLiteral("-2"), 1)});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("tekst obcięty do 1000 znaków")));
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST_F(Renderer, AFloodOfPicturesIsRefused) {
    QImage(10, 10, QImage::Format_RGB32).save(path("a.bmp"));
    QImage(2000, 2000, QImage::Format_Grayscale8).save(path("b.bmp")); // 16 MB as drawn
    const auto refusal = [&](const char* picture, int times) {
        sample = SampleReport(folder.path());
        for (int i = 0; i < times; ++i) {
            sample.raw(QStringLiteral("5, 10., 35., 52.9, 34.7"));
            sample.raw(path(picture));
        }
        const Outcome run = runRenderer({sample.write(QStringLiteral("-2"), 1)});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_FALSE(exists("$a1.emf"));
        return run.errors;
    };
    EXPECT_TRUE(refusal("a.bmp", 3000).contains(QStringLiteral("ponad 100 rysunków")));
    EXPECT_TRUE(refusal("b.bmp", 17).contains(QStringLiteral("rysunki mają razem ponad 256 MB")));
}

TEST_F(Renderer, AnOutputThatCannotBeWrittenIsNamed) {
    const Outcome run = runRenderer({QStringLiteral("--pdf"), path("brak/raport.pdf"), job()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(path("brak/raport.pdf"))) << run.errors.toStdString();
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 "));
}

TEST_F(Renderer, WithoutItsModuleDrawsThePictureAndNamesWhatAPdfLacks) {
    const QString alone = path("Wyd_drk");
    ASSERT_TRUE(QFile::copy(places::bin("/Wyd_drk"), alone));
    const QString file = job();
    EXPECT_EQ(runProgram(alone, {file}).exitCode, 0);
    EXPECT_TRUE(exists("$a1.emf"));
    const Outcome run = runProgram(alone, {QStringLiteral("--pdf"), path("raport.pdf"), file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors.count(u'\n'), 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("brak modułu druku i dokumentów PDF ")
                                    + path("libferna_paper.so")))
        << run.errors.toStdString();
    EXPECT_FALSE(exists("raport.pdf"));
}

TEST_F(Renderer, LoadsNoPrintingForThePictureOnTheScreen) {
    QProcessEnvironment told = QProcessEnvironment::systemEnvironment();
    told.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
    const auto loads = [&](const QStringList& arguments) {
        const QString files = runRenderer(arguments, told).errors;
        EXPECT_TRUE(files.contains(QStringLiteral("libQt6Gui.so")));
        return files.contains(QStringLiteral("libQt6Widgets.so"))
               || files.contains(QStringLiteral("libcups.so"));
    };
    const QString file = job();
    EXPECT_FALSE(loads({file}));
    EXPECT_TRUE(loads({QStringLiteral("--pdf"), path("raport.pdf"), file}));
}

TEST_F(Renderer, AnUnknownModeIsAFailure) {
    const Outcome run = runRenderer({job(QStringLiteral("7"))});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("nieznany tryb 7")));
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 1 "));
}

TEST_F(Renderer, ABadCallSaysHowToCall) {
    const QString file = job();
    const QList<QStringList> calls{{},
                                   {file, QStringLiteral("zbędny")},
                                   {QStringLiteral("--doc"), path("a.doc"), file},
                                   {file, QStringLiteral("--pdf")},
                                   {QStringLiteral("--dpi"), QStringLiteral("5"), file}};
    for (const QStringList& call : calls) {
        const Outcome run = runRenderer(call);
        EXPECT_EQ(run.exitCode, 2) << call.join(u' ').toStdString();
        EXPECT_EQ(run.errors.count(u'\n'), 1);
        EXPECT_TRUE(run.errors.contains(QStringLiteral("Wywołanie: Wyd_drk")));
    }
    EXPECT_FALSE(exists("W_X.txt"));
}

TEST_F(Renderer, AModeWithADialogNeedsAScreen) {
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(QLatin1String(name));
    for (const char* mode : {"1", " 2", "3"}) {
        sample = SampleReport(folder.path());
        const Outcome run = runRenderer({job(QLatin1String(mode))}, bare);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.errors.contains(QStringLiteral("wymaga ekranu")));
        EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 "));
    }
}

TEST_F(Renderer, AnEarlierReplyOutlivesAPrintOrASaveThatDidNotComeAbout) {
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(QLatin1String(name));
    bare.insert(QStringLiteral("CUPS_SERVER"), path("no.sock")); // nothing to print on
    ASSERT_EQ(runRenderer({job()}).exitCode, 0);
    ASSERT_EQ(reply(), QStringLiteral(" 1 , 14 "));
    for (const char* mode : {"1", " 2", "-1"}) {
        sample = SampleReport(folder.path());
        EXPECT_EQ(runRenderer({job(QLatin1String(mode))}, bare).exitCode, 1) << mode;
        EXPECT_EQ(reply(), QStringLiteral(" 1 , 14 ")) << mode;
    }
    EXPECT_EQ(runRenderer({job(QStringLiteral("3"))}, bare).exitCode, 1);
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 ")) << "the screen picture is what the pages are of";
}

TEST_F(Renderer, TellsNothingWhereNoProgramListens) {
    EXPECT_EQ(runRenderer({job()}).output, QString());
}

TEST(PageFileNames, NumberStandsBeforeTheSuffix) {
    const auto& emf = *renderer::outputFormat(QStringLiteral("emf"));
    EXPECT_EQ(renderer::pageFileName(QStringLiteral("/r/Name.emf"), emf, 0, 1),
              QStringLiteral("/r/Name.emf"));
    EXPECT_EQ(renderer::pageFileName(QStringLiteral("/r/Name.emf"), emf, 0, 3),
              QStringLiteral("/r/Name-strona-1-z-3.emf"));
    EXPECT_EQ(renderer::pageFileName(QStringLiteral("/r/Name.EMF"), emf, 2, 3),
              QStringLiteral("/r/Name-strona-3-z-3.EMF"));
    EXPECT_EQ(renderer::pageFileName(QStringLiteral("/r/v1.2"), emf, 1, 3),
              QStringLiteral("/r/v1.2-strona-2-z-3.emf"));
}

} // namespace
