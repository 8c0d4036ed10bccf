// Pictures that have their vectors beside them.
#include "pages/bitmap_file.h"
#include "pages/drawing.h"
#include "pages/emf_format.h"
#include "pages/emf_writer.h"
#include "pages/metafile.h"
#include "pages/page_painter.h"
#include "renderer/layout.h"
#include "renderer/outputs.h"
#include "renderer/sample_report.h"
#include "renderer/vector_twin.h"
#include "runtime/picture_box.h"
#include "runtime/picture_twin.h"
#include "support/folder.h"

#include <QPainter>
#include <QtEndian>

using namespace ferna;
using namespace ferna::renderer;
using ferna::testing::Folder;

namespace {

const QRectF place(10, 40, 50, 25); // mm

class VectorTwin : public ::testing::Test {
protected:
    VectorTwin() {
        // A box that fills the left half of the picture, a letter in the right one.
        PictureBox picture(QSize(100, 50), 6);
        picture.setScale({0, 0}, {100, 50});
        picture.setColour(qb::LightRed);
        picture.setWidth(2);
        picture.setStyle(PictureBox::Style::DashDot);
        picture.line({50, 0}, {50, 50});
        picture.setStyle(PictureBox::Style::Solid);
        picture.setFilled(true);
        picture.setFillColour(qb::Black);
        picture.circle({25, 25}, 20);
        picture.setRim(true);
        picture.setLetterHeight(20);
        picture.text({20, 15}, QStringLiteral("B"));
        picture.saveBitmap(bitmap, place.width());
    }

    pages::Report pageWith(std::vector<pages::Outline> outlines) const {
        pages::Page page;
        page.number = 1;
        page.pictures.push_back({place, QImage(bitmap), std::move(outlines)});
        pages::Report report;
        report.pages.push_back(std::move(page));
        return report;
    }

    static constexpr double pixelsPerMm = 8;

    static QImage blank() {
        QImage image((pages::sheet * pixelsPerMm).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        return image;
    }

    static QImage painted(const pages::Report& report) {
        QImage image = blank();
        QPainter painter(&image);
        painter.scale(pixelsPerMm / drawing::unitsPerMm, pixelsPerMm / drawing::unitsPerMm);
        paintPage(painter, report.pages.front());
        return image;
    }

    static QImage played(const QByteArray& emf) {
        QImage image = blank();
        QPainter painter(&image);
        Metafile::fromBytes(emf).paint(painter, QRectF(image.rect()));
        return image;
    }

    /// Pixels of the picture's place that differ by more than a shade.
    static int difference(const QImage& a, const QImage& b) {
        const QRect box =
            QRectF((place.topLeft() + pages::frameCorner) * pixelsPerMm, place.size() * pixelsPerMm)
                .toRect();
        int differing = 0;
        for (int y = box.top(); y <= box.bottom(); ++y)
            for (int x = box.left(); x <= box.right(); ++x)
                differing += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 96 ? 1 : 0;
        return differing;
    }

    static int records(const QByteArray& emf, quint32 type) {
        int found = 0;
        for (qsizetype at = 0; at + 8 <= emf.size();
             at += qFromLittleEndian<quint32>(emf.constData() + at + 4))
            found += qFromLittleEndian<quint32>(emf.constData() + at) == type ? 1 : 0;
        return found;
    }

    Folder folder;
    QString bitmap = folder.path(QStringLiteral("a.bmp"));
};

TEST_F(VectorTwin, LooksLikeItsBitmap) {
    const std::vector<pages::Outline> outlines = outlinesOf(twinOfFile(bitmap), place);
    ASSERT_EQ(outlines.size(), 6U)
        << "line, disc and its edge, the letter's rim and ground, the letter";
    const QImage asBitmap = painted(pageWith({}));
    EXPECT_LT(difference(painted(pageWith(outlines)), asBitmap), 40);
    EXPECT_GT(difference(blank(), asBitmap), 2000) << "the picture is not empty";
}

TEST_F(VectorTwin, FillsAPlaceOfAnotherProportionAsItsBitmapDoes) {
    const auto widthOf = [this](QSizeF size) {
        QRectF drawn;
        for (const pages::Outline& outline :
             outlinesOf(twinOfFile(bitmap), QRectF(QPointF(), size)))
            drawn |= outline.path.boundingRect();
        return drawn.width();
    };
    const double narrow = widthOf({50, 25});
    ASSERT_GT(narrow, 20);
    EXPECT_NEAR(widthOf({100, 25}), 2 * narrow, 0.5);
}

TEST_F(VectorTwin, IsDrawnInAMetafileWithoutABitmap) {
    const pages::Report report = pageWith(outlinesOf(twinOfFile(bitmap), place));
    const QByteArray emf = emfOfPage(report, report.pages.front());
    EXPECT_EQ(records(emf, emf::StretchDiBits), 0);
    EXPECT_GT(records(emf, emf::PolyPolygon), 3);
    EXPECT_LT(difference(played(emf), painted(report)), 40);
}

TEST_F(VectorTwin, IsDrawnInPdfAndSvgWithoutABitmap) {
    const pages::Report report = pageWith(outlinesOf(twinOfFile(bitmap), place));
    const QByteArray svg = outputFormat(QStringLiteral("svg"))->bytes(report, 0, 150);
    EXPECT_FALSE(svg.contains("<image"));
    EXPECT_TRUE(
        outputFormat(QStringLiteral("svg"))->bytes(pageWith({}), 0, 150).contains("<image"));
    const QByteArray pdf = outputFormat(QStringLiteral("pdf"))->bytes(report, 0, 150);
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
    EXPECT_TRUE(outputFormat(QStringLiteral("pdf"))
                    ->bytes(pageWith({}), 0, 150)
                    .contains("/Subtype /Image"));
}

TEST_F(VectorTwin, IsFoundAheadForEachFileThatHasOne) {
    const QString alone = folder.path(QStringLiteral("b.bmp"));
    const QString missing = folder.path(QStringLiteral("brak.bmp"));
    ASSERT_TRUE(QFile::copy(bitmap, alone));
    const Twins twins({bitmap, alone, bitmap, missing});
    for (int times = 0; times < 2; ++times) {
        EXPECT_NE(twins.of(bitmap).sketch, nullptr);
        EXPECT_EQ(twins.of(bitmap).pixels, QImage(bitmap).size());
        EXPECT_EQ(twins.of(alone).sketch, nullptr);
        EXPECT_EQ(twins.of(missing).sketch, nullptr);
    }
    EXPECT_NE(Twins({}).of(bitmap).sketch, nullptr) << "not asked for ahead";
}

TEST_F(VectorTwin, OfAFileThatIsNoPictureIsNone) {
    folder.write(QStringLiteral("a.bmp"), "BM no picture");
    folder.write(QStringLiteral("a.svg"), twinOf("<svg/>", "BM no picture"));
    EXPECT_EQ(twinOfFile(bitmap).sketch, nullptr);
}

TEST_F(VectorTwin, OfAnotherBitmapIsNotDrawn) {
    const QByteArray ours = folder.read(QStringLiteral("a.bmp"));
    for (const qsizetype byte : {qsizetype{0}, bitmapHeaders, ours.size() / 2, ours.size() - 1}) {
        QByteArray other = ours;
        other[byte] = static_cast<char>(~other[byte]);
        folder.write(QStringLiteral("a.bmp"), other);
        EXPECT_EQ(twinOfFile(bitmap).sketch, nullptr) << byte;
    }
    folder.write(QStringLiteral("a.bmp"), ours + '\0');
    EXPECT_EQ(twinOfFile(bitmap).sketch, nullptr) << "a byte more";
    folder.write(QStringLiteral("a.bmp"), ours);
    EXPECT_NE(twinOfFile(bitmap).sketch, nullptr);
}

TEST_F(VectorTwin, OfABitmapOfAnotherKindHasItsSize) {
    ASSERT_TRUE(QImage(30, 20, QImage::Format_Mono).save(bitmap));
    folder.write(QStringLiteral("a.svg"), twinOf("<svg/>", folder.read(QStringLiteral("a.bmp"))));
    EXPECT_EQ(twinOfFile(bitmap).pixels, QSize(30, 20));
}

TEST_F(VectorTwin, ThatIsDamagedLeavesTheBitmap) {
    const QByteArray bytes = folder.read(QStringLiteral("a.bmp"));
    for (const char* text : {"", "<svg", "no drawing"}) {
        folder.write(QStringLiteral("a.svg"), twinOf(text, bytes));
        EXPECT_TRUE(outlinesOf(twinOfFile(bitmap), place).empty()) << text;
    }
    QFile::remove(folder.path(QStringLiteral("a.svg")));
    EXPECT_TRUE(outlinesOf(twinOfFile(bitmap), place).empty());
}

TEST_F(VectorTwin, EndsAtThePicturesEdge) {
    QPainterPath path;
    path.addRect(-5, 10, 100, 5);
    pages::Report report = pageWith({{path, Qt::black}});
    const pages::Picture& picture = report.pages.front().pictures.front();
    EXPECT_EQ(picture.placed(picture.outlines.front()).boundingRect(),
              QRectF(place.left(), place.top() + 10, place.width(), 5));
}

} // namespace
