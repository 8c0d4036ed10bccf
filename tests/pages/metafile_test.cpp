#include "pages/drawing.h"
#include "pages/emf_writer.h"
#include "pages/metafile.h"
#include "pages/page_painter.h"
#include "renderer/page_checks.h"
#include "renderer/sample_report.h"
#include "runtime/run_time_error.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtEndian>

#include <cmath>

using namespace ferna;
using namespace ferna::renderer;
using ferna::testing::SampleReport;

namespace {

constexpr double pixelsPerMm = 5;

class MetafileOfAReport : public ::testing::Test {
protected:
    void SetUp() override {
        double y = sample.calculation(20, 2, 3);
        y = sample.plateSection(y, {1, 4});
        sample.anchorSection(y);
        wyd::Complaints complaints;
        report = compose(readJob(sample.write(QStringLiteral("-2"), 1)), complaints);
        ASSERT_TRUE(complaints.lines().isEmpty());
        ASSERT_GE(report.pages.size(), 2U);
    }

    static QImage blank(QSizeF mm) {
        QImage image((mm * pixelsPerMm).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        return image;
    }

    static QImage played(const Metafile& file) {
        QImage image = blank(file.sizeMm());
        QPainter painter(&image);
        file.paint(painter, QRectF(image.rect()));
        return image;
    }

    QImage painted(const pages::Page& page) const {
        QImage image = blank(pages::sheet);
        QPainter painter(&image);
        painter.scale(pixelsPerMm / drawing::unitsPerMm, pixelsPerMm / drawing::unitsPerMm);
        paintPage(painter, page);
        return image;
    }

    /// Part of the pixels that differ by more than a shade.
    static double difference(const QImage& a, const QImage& b) {
        EXPECT_EQ(a.size(), b.size());
        int differing = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                differing += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 64 ? 1 : 0;
        return static_cast<double>(differing) / (a.width() * a.height());
    }

    static int dark(const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        return count;
    }

    QTemporaryDir folder;
    SampleReport sample{folder.path()};
    pages::Report report;
};

TEST_F(MetafileOfAReport, PlayedItLooksLikeThePagePaintedDirectly) {
    for (const pages::Page& page : report.pages) {
        const QImage direct = painted(page);
        ASSERT_GT(dark(direct), 5000) << "something is drawn at all";
        const Metafile file = Metafile::fromBytes(emfOfPage(report, page));
        EXPECT_EQ(file.sizeMm(), pages::sheet);
        EXPECT_LT(difference(direct, played(file)), 0.0005);
    }
}

TEST_F(MetafileOfAReport, TheScreenPictureHasAllPagesUnderOneAnother) {
    const Metafile file = Metafile::fromBytes(emfOfAllPages(report));
    const auto pages = static_cast<int>(report.pages.size());
    EXPECT_EQ(file.sizeMm(), QSizeF(210, 297 * pages));
    const QImage all = played(file);
    const int height = static_cast<int>(pages::sheet.height() * pixelsPerMm);
    for (int i = 0; i < pages; ++i) {
        const QImage one = all.copy(0, i * height, all.width(), height);
        EXPECT_LT(difference(painted(report.pages[static_cast<std::size_t>(i)]), one), 0.002);
    }
}

TEST_F(MetafileOfAReport, ItIsPaintedOnWhiteIntoAnyPlace) {
    const Metafile file = Metafile::fromBytes(emfOfPage(report, report.pages[0]));
    QImage image(300, 400, QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    file.paint(painter, QRectF(50, 60, 210, 297));
    painter.end();
    EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(290, 390), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(55, 350), QColor(Qt::white));
}

TEST_F(MetafileOfAReport, TheHeaderCountsBytesRecordsAndObjects) {
    const QByteArray bytes = emfOfPage(report, report.pages[0]);
    const auto u32 = [&](qsizetype at) {
        return qFromLittleEndian<quint32>(bytes.constData() + at);
    };
    EXPECT_EQ(u32(48), static_cast<quint32>(bytes.size()));
    quint32 records = 0;
    for (qsizetype at = 0; at < bytes.size(); at += u32(at + 4))
        ++records;
    EXPECT_EQ(u32(52), records);
    EXPECT_EQ(u32(24 + 8), 21000U) << "frame in 0.01 mm";
    EXPECT_EQ(u32(72), 21000U) << "device units";
    EXPECT_EQ(u32(80), 210U) << "device in mm";
}

TEST_F(MetafileOfAReport, EveryTextCarriesTheWidthsOfItsLetters) {
    const QByteArray bytes = emfOfPage(report, report.pages[0]);
    const auto u32 = [&](qsizetype at) {
        return qFromLittleEndian<quint32>(bytes.constData() + at);
    };
    std::size_t texts = 0;
    for (qsizetype at = 0; at < bytes.size(); at += u32(at + 4)) {
        if (u32(at) != 84)
            continue;
        const pages::Text& text = report.pages[0].texts.at(texts++);
        ASSERT_EQ(u32(at + 44), static_cast<quint32>(text.text.size()));
        int width = 0;
        for (qsizetype i = 0; i < text.text.size(); ++i)
            width += static_cast<int>(u32(at + u32(at + 72) + 4 * i));
        EXPECT_NEAR(width, text.widthMm() * 100, 0.5);
        EXPECT_GT(width, 0);
    }
    EXPECT_EQ(texts, report.pages[0].texts.size());
}

TEST_F(MetafileOfAReport, AFileCutShortAnywhereIsRefused) {
    const QByteArray bytes = emfOfPage(report, report.pages[0]);
    for (qsizetype length = 0; length < bytes.size();
         length += length < 2000 ? 13 : bytes.size() / 57)
        EXPECT_THROW(Metafile::fromBytes(bytes.first(length)), RunTimeError) << length;
}

TEST_F(MetafileOfAReport, DamagedBytesNeverReachOutsideTheFile) {
    // Under the address sanitizer a read outside ends the test.
    pages::Report small = report;
    small.pages.resize(1);
    for (pages::Picture& picture : small.pages[0].pictures)
        picture.image = picture.image.scaled(20, 20);
    const QByteArray bytes = emfOfPage(small, small.pages[0]);
    QRandomGenerator random(20260517);
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) {}); // of letters without a font
    int painted = 0;
    for (int round = 0; round < 400; ++round) {
        QByteArray damaged = bytes;
        for (int i = 0; i < 1 + round % 20; ++i)
            damaged[static_cast<qsizetype>(random.bounded(static_cast<quint32>(bytes.size())))] =
                static_cast<char>(random.bounded(256));
        try {
            const Metafile file = Metafile::fromBytes(damaged);
            QImage image(105, 148, QImage::Format_RGB32);
            QPainter painter(&image);
            file.paint(painter, QRectF(image.rect()));
            ++painted;
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.number(), error::DeviceIO);
        }
    }
    qInstallMessageHandler(before);
    EXPECT_GT(painted, 50) << "the damage of most rounds is inside records";
}

TEST_F(MetafileOfAReport, LettersPulledOutOfAllShapeAreLeftOut) {
    QByteArray bytes = emfOfPage(report, report.pages[0]);
    constexpr qsizetype deviceWidth = 100; // in micrometres
    for (quint32 times = 50; times <= 1000; times += 50) {
        qToLittleEndian<quint32>(210'000 * times, bytes.data() + deviceWidth);
        const Metafile file = Metafile::fromBytes(bytes);
        QImage image(120, 160, QImage::Format_RGB32);
        QPainter painter(&image);
        file.paint(painter, QRectF(image.rect())); // the font engine fell over them
    }
}

TEST(Metafile, ForeignBytesAreRefusedWithTheReason) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("BM"), QByteArray(5000, '\0'), QByteArray(5000, '\xff')}) {
        try {
            Metafile::fromBytes(bytes);
            FAIL() << "no error";
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.number(), error::DeviceIO);
            EXPECT_EQ(failure.detail(), QStringLiteral("to nie jest metaplik EMF"));
        }
    }
}

TEST(Metafile, AMissingFileIsNamed) {
    try {
        Metafile::fromFile(QStringLiteral("/nie/ma/$a1.emf"));
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::FileNotFound);
        EXPECT_TRUE(failure.detail().contains(QStringLiteral("$a1.emf")));
    }
}

} // namespace
