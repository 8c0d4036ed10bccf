// Where pages put their ink, in millimetres on the sheet, in every output that has pages.
#include "pages/metafile.h"
#include "renderer/outputs.h"
#include "renderer/page_checks.h"
#include "renderer/paper/printing.h"
#include "renderer/program_run.h"
#include "renderer/sheet_ink.h"
#include "runtime/text_file.h"

#include <QPainter>
#include <QPrinter>
#include <QtEndian>

using namespace ferna;
using namespace ferna::renderer;
using namespace ferna::testing;

namespace {

class PageGeometry : public ::testing::Test {
protected:
    PageGeometry() { sampleOfGeometry(sample); }

    QString path(const char* name) const { return sample.path(QLatin1String(name)); }
    QString job() const { return sample.write(QStringLiteral("-2"), 1); }

    pages::Report report() const {
        wyd::Complaints complaints;
        pages::Report result = compose(readJob(job()), complaints);
        EXPECT_TRUE(complaints.lines().isEmpty());
        return result;
    }

    /// The first page of a PDF as others draw it.
    QImage page(const QString& pdf) const {
        const Outcome run =
            runProgram(QStringLiteral("pdftoppm"),
                       {QStringLiteral("-r"), QStringLiteral("254"), QStringLiteral("-png"),
                        QStringLiteral("-singlefile"), pdf, path("strona")});
        EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
        return QImage(path("strona.png"));
    }

    QTemporaryDir folder;
    SampleReport sample{folder.path()};
};

TEST_F(PageGeometry, OfThePdf) {
    ASSERT_EQ(runRenderer({QStringLiteral("--pdf"), path("a.pdf"), job()}).exitCode, 0);
    expectGeometryOfTheSample(page(path("a.pdf")));
}

TEST_F(PageGeometry, OfThePrint) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("druk.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFullPage(true);
    printOn(printer, report());
    expectGeometryOfTheSample(page(path("druk.pdf")));
}

TEST_F(PageGeometry, OfTheMetafile) {
    ASSERT_EQ(runRenderer({QStringLiteral("--emf"), path("a.emf"), job()}).exitCode, 0);
    const Metafile file = Metafile::fromFile(path("a.emf"));
    QImage drawn((file.sizeMm() * inkPixelsPerMm).toSize(), QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    file.paint(painter, QRectF(drawn.rect()));
    painter.end();
    expectGeometryOfTheSample(drawn);
}

// Read from the bytes, so that writer and player cannot agree on something wrong.
TEST_F(PageGeometry, OfTheRecordsOfTheMetafile) {
    ASSERT_EQ(runRenderer({QStringLiteral("--emf"), path("a.emf"), job()}).exitCode, 0);
    const QByteArray bytes = readFileWhole(path("a.emf"));
    const auto at = [&bytes](qsizetype offset) {
        return qFromLittleEndian<qint32>(bytes.constData() + offset);
    };
    EXPECT_EQ(QRect(QPoint(at(8), at(12)), QPoint(at(16), at(20))),
              QRect(QPoint(0, 0), QPoint(21000, 29700)))
        << "bounds, 0.01 mm";
    EXPECT_EQ(QRect(QPoint(at(24), at(28)), QPoint(at(32), at(36))),
              QRect(QPoint(0, 0), QPoint(21000, 29700)))
        << "frame, 0.01 mm";
    QList<QPoint> texts;
    QList<QRect> pictures;
    constexpr int stretchDiBits = 81;
    constexpr int extTextOutW = 84;
    for (qsizetype record = 0; record + 8 <= bytes.size(); record += at(record + 4)) {
        ASSERT_GE(at(record + 4), 8);
        if (at(record) == extTextOutW)
            texts += QPoint(at(record + 36), at(record + 40));
        else if (at(record) == stretchDiBits)
            pictures += QRect(at(record + 24), at(record + 28), at(record + 72), at(record + 76));
    }
    EXPECT_TRUE(texts.contains(QPoint(2300, 950))) << "first title line";
    EXPECT_TRUE(texts.contains(QPoint(2300, 2400))) << "project";
    EXPECT_TRUE(texts.contains(QPoint(2700, 12500))) << "body line";
    EXPECT_TRUE(texts.contains(QPoint(2700, 13500))) << "underlined line";
    EXPECT_TRUE(texts.contains(QPoint(16700, 2850))) << "page number";
    EXPECT_EQ(pictures, QList<QRect>{QRect(3000, 4000, 5290, 3470)});
}

} // namespace
