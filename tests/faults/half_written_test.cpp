// A delivered file that is missing or cut short is told by its name, or makes no difference; it
// never becomes another task.
#include "design/configuration.h"
#include "design/language.h"
#include "design/start_up.h"
#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "renderer/program_run.h"
#include "report/results_session.h"
#include "report/wyd_writer.h"
#include "runtime/picture_box.h"
#include "runtime/text_file.h"
#include "support/column_base.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <QDateTime>

using namespace ferna;
using namespace ferna::testing;

namespace {

class HalfAFile : public ::testing::Test {
protected:
    HalfAFile() {
        for (const char* name : {"Ferpl.txt", "Ferna.cfg", "W_X.txt"})
            deliver(QLatin1String(name));
    }

    void deliver(const QString& name) const {
        folder.write(name, readFileWhole(Folder::delivered(name)));
    }
    QString path(const QString& name) const { return folder.path(name); }

    Folder folder;
};

TEST_F(HalfAFile, OfACatalogueIsRefusedOrLacksTheEndOfItsLastTextOnly) {
    const QByteArray whole = folder.read(QStringLiteral("Ferpl.txt"));
    Stan expected;
    Czytaj_teksty(expected, path(QStringLiteral("Ferpl.txt")));
    int read = 0;
    for (qsizetype length = 0; length < whole.size();
         length += length < whole.size() - 90 ? 7 : 1) {
        folder.write(QStringLiteral("Ferpl.txt"), whole.first(length));
        Stan stan;
        const auto failure =
            errorOf([&] { Czytaj_teksty(stan, path(QStringLiteral("Ferpl.txt"))); });
        if (failure) {
            EXPECT_EQ(failure->number(), error::InputPastEnd);
            EXPECT_TRUE(failure->text().contains(QStringLiteral("Ferpl.txt, wiersz ")));
            continue;
        }
        ++read;
        for (int n = 1; n < CatalogueLines; ++n)
            EXPECT_EQ(stan.Teksty(n), expected.Teksty(n));
        EXPECT_TRUE(expected.Teksty(CatalogueLines).startsWith(stan.Teksty(CatalogueLines)));
    }
    EXPECT_LT(read, 90);
}

TEST_F(HalfAFile, AMissingOneIsNamedAtTheStart) {
    for (const char* name : {"Ferna.cfg", "Ferpl.txt"}) {
        QFile::remove(path(QLatin1String(name)));
        Stan stan;
        const auto failure = errorOf([&] { startUp(stan, path(QStringLiteral("."))); });
        ASSERT_TRUE(failure) << name;
        EXPECT_EQ(failure->number(), error::FileNotFound);
        EXPECT_TRUE(failure->text().contains(QLatin1String(name)));
        deliver(QLatin1String(name));
    }
}

TEST_F(HalfAFile, AReplyWithoutItsNumbersLeavesThePageAlone) {
    Stan stan;
    stan.opcje.Nr_strony = 7;
    for (const char* reply :
         {"", " 1 ", " 1 ,", "jeden, dwa", "1, 2x", "1, 99999", "\xff\xfe", "1e999, 1", "nan, 3"}) {
        folder.write(wyd::replyFile, reply);
        const auto failure =
            errorOf([&] { takeNextPage(stan, readRendererReply(path(wyd::replyFile))); });
        ASSERT_TRUE(failure) << reply;
        EXPECT_TRUE(failure->text().contains(QStringLiteral("W_X.txt"))) << reply;
        EXPECT_EQ(stan.opcje.Nr_strony, 7);
    }
}

class HalfAPicture : public HalfAFile {
protected:
    HalfAPicture() {
        const QDir programs(places::bin());
        for (const QString& picture : programs.entryList({QStringLiteral("*.bmp")}))
            folder.write(picture, readFileWhole(programs.filePath(picture)));
        base.fourAnchors(250, 150).loads(320, 60, 5);
        EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
        PictureBox(QSize(265, 176)).saveBitmap(path(QStringLiteral("Ferrob.bmp")));
    }

    /// The screen picture of the report, through the renderer of this build.
    QByteArray picture() {
        ResultsSession session(
            base.stan, base.dialogs, path(QStringLiteral(".")), true,
            [] { return QDateTime(QDate(2024, 3, 9), QTime(14, 5)); },
            [this] {
                const Outcome run = ferna::testing::runRenderer({path(wyd::jobFile)});
                EXPECT_EQ(run.exitCode, 0);
                words = run.errors;
                return RendererReport{};
            });
        session.open();
        return session.screenPicture();
    }

    ColumnBase base;
    QString words;
};

TEST_F(HalfAPicture, WholePicturesAreDrawnWithoutAWord) {
    EXPECT_FALSE(picture().isEmpty());
    EXPECT_EQ(words, QString());
}

TEST_F(HalfAPicture, OfThePlateLeavesItsNameInTheReport) {
    const QByteArray whole = folder.read(QStringLiteral("Ferrob.bmp"));
    for (const qsizetype length : {qsizetype{0}, qsizetype{20}, whole.size() / 2}) {
        folder.write(QStringLiteral("Ferrob.bmp"), whole.first(length));
        EXPECT_FALSE(picture().isEmpty());
        EXPECT_TRUE(words.contains(QStringLiteral("nie można wczytać rysunku")))
            << length << ": " << words.toStdString();
    }
    QFile::remove(path(QStringLiteral("Ferrob.bmp")));
    EXPECT_FALSE(picture().isEmpty());
    EXPECT_TRUE(words.contains(QStringLiteral("brak pliku rysunku"))) << words.toStdString();
}

TEST_F(HalfAPicture, AMissingSketchIsToldByItsName) {
    for (int image = 1; image <= plateSketches; ++image) {
        const QString name = deliveredPlateSketch(image);
        QFile::remove(path(name));
        const auto failure = errorOf([&] {
            savePlateSketch(path(QStringLiteral(".")), image, QStringLiteral("Szkic.bmp"));
        });
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->number(), error::FileNotFound);
        EXPECT_TRUE(failure->text().contains(name));
    }
    QFile::remove(path(QStringLiteral("Ferogo2.bmp")));
    const auto failure = errorOf([&] { picture(); });
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("Ferogo2.bmp")));
}

} // namespace
