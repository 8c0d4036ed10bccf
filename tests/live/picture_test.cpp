#include "live/checks_table.h"
#include "live/frame.h"
#include "live/label_places.h"
#include "live/live_values.h"
#include "live/picture.h"
#include "live/picture_files.h"
#include "live/sample_pictures.h"
#include "support/decimal_comma.h"
#include "support/picture_margin.h"
#include "support/places.h"
#include "support/random_tasks.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <cmath>

namespace ferna {
namespace {

using namespace live;
using namespace ferna::testing;

// ----- goldens -----

PictureOptions goldenOptions(Theme theme) {
    PictureOptions options;
    options.size = {480, 360};
    options.letter = 11;
    options.theme = theme;
    return options;
}

/// The share of pixels that differ by more than the rounding of an edge.
double differing(const QImage& a, const QImage& b) {
    constexpr int bearable = 48;
    if (a.size() != b.size())
        return 1;
    long off = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            off += std::abs(qRed(p) - qRed(q)) > bearable
                   || std::abs(qGreen(p) - qGreen(q)) > bearable
                   || std::abs(qBlue(p) - qBlue(q)) > bearable;
        }
    return static_cast<double>(off) / (1.0 * a.width() * a.height());
}

struct Golden {
    const char* sample;
    Theme theme;
    int scale; ///< per cent
};

class PictureGoldens : public ::testing::TestWithParam<Golden> {};

TEST_P(PictureGoldens, ThePictureIsTheOneThatWasLookedAt) {
    const WithDecimalSign comma(u',');
    const Golden& golden = GetParam();
    const std::vector<SamplePicture> samples = samplePictures();
    const auto sample = std::find_if(samples.begin(), samples.end(), [&](const SamplePicture& s) {
        return std::string_view(s.name) == golden.sample;
    });
    ASSERT_NE(sample, samples.end());
    const QImage image = imageOf(sample->values, goldenOptions(golden.theme), golden.scale / 100.0);
    const QString file = places::golden("/live/")
                         + QStringLiteral("%1-%2-%3.png")
                               .arg(QLatin1String(golden.sample), golden.theme == Theme::Light
                                                                      ? QStringLiteral("jasny")
                                                                      : QStringLiteral("ciemny"))
                               .arg(golden.scale);
    if (qEnvironmentVariableIsSet("FERNA_ACCEPT_GOLDEN")) {
        image.save(file);
        FAIL() << "written anew: " << file.toStdString();
    }
    EXPECT_LT(differing(image, QImage(file).convertToFormat(QImage::Format_RGB32)), 0.004)
        << file.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Live, PictureGoldens,
    ::testing::Values(Golden{"four", Theme::Light, 100}, Golden{"four", Theme::Light, 200},
                      Golden{"four", Theme::Dark, 100}, Golden{"four", Theme::Dark, 200},
                      Golden{"square-envelope", Theme::Light, 100},
                      Golden{"square-envelope", Theme::Light, 200},
                      Golden{"square-envelope", Theme::Dark, 100},
                      Golden{"square-envelope", Theme::Dark, 200},
                      Golden{"falls", Theme::Light, 100}, Golden{"falls", Theme::Dark, 100}));

// ----- what is drawn -----

TEST(Picture, NothingIsDrawnOutsideIt) {
    PictureOptions options;
    options.size = {360, 280};
#ifdef FERNA_SANITIZE
    constexpr std::uint64_t tasks = 20;
#else
    constexpr std::uint64_t tasks = 120;
#endif
    for (std::uint64_t number = 0; number < tasks; ++number) {
        ColumnBase base;
        randomTask(base, number % 2 == 0 ? number * 5 : number); // every second one a nasty one
        const LiveValues values = liveValues(base.stan, base.fields);
        ASSERT_TRUE(values.valid()) << number << ' ' << values.reason.toStdString();
        for (const int which : {0, 1}) {
            EXPECT_TRUE(staysInside(pictureOf(values, which), options)) << number << ' ' << which;
        }
    }
    for (const SamplePicture& sample : samplePictures())
        EXPECT_TRUE(staysInside(sample.values, sample.options)) << sample.name;
}

TEST(Picture, ThePlateIsTrueToScaleInTheMiddleAndYGoesUpwards) {
    const PictureValues values = samplePictures()[0].values; // 600 x 400
    const Frame frame(values, {});
    EXPECT_NEAR(frame.plate().width() / frame.plate().height(), 1.5, 1e-12);
    EXPECT_NEAR(frame.plate().width(), 600 * frame.scale(), 1e-9);
    EXPECT_LT(frame.at({0, 100}).y(), frame.at({0, 0}).y());
    EXPECT_GT(frame.at({100, 0}).x(), frame.at({0, 0}).x());
    const equilibrium::Point back = frame.mmAt(frame.at({123, -45}));
    EXPECT_NEAR(back.x, 123, 1e-9);
    EXPECT_NEAR(back.y, -45, 1e-9);
}

TEST(Picture, AnchorsAndEdgesAreFoundUnderThePointer) {
    const PictureValues values = samplePictures()[0].values;
    const Frame frame(values, {});
    for (std::size_t i = 0; i < values.anchors.size(); ++i)
        EXPECT_EQ(anchorAt(frame, values, frame.at({values.anchors[i].x, values.anchors[i].y})),
                  static_cast<int>(i) + 1);
    EXPECT_EQ(anchorAt(frame, values, frame.at({0, 0})), 0);
    EXPECT_EQ(edgeAt(frame, frame.at({300, 50})), Edge::Right);
    EXPECT_EQ(edgeAt(frame, frame.at({-300, 50})), Edge::Left);
    EXPECT_EQ(edgeAt(frame, frame.at({50, 200})), Edge::Top);
    EXPECT_EQ(edgeAt(frame, frame.at({50, -200})), Edge::Bottom);
    EXPECT_EQ(edgeAt(frame, frame.at({50, 50})), Edge::None);
}

TEST(Picture, WhatHoldsNoNumbersIsABackgroundWithTheReason) {
    PictureValues values;
    values.length = std::nan("");
    EXPECT_FALSE(values.drawable());
    PictureOptions options;
    options.greyed = true;
    options.reason = QStringLiteral("długość blachy: pole jest puste");
    const QImage image = imageOf(values, options, 1);
    EXPECT_EQ(image.pixelColor(5, 5), paletteOf(Theme::Light, true).paper);
    int ink = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            ink += image.pixelColor(x, y).lightness() < 100;
    EXPECT_GT(ink, 500);
}

TEST(Picture, AGreyedPictureHasNoColour) {
    for (const SamplePicture& sample : samplePictures())
        if (sample.options.greyed) {
            const QImage image = imageOf(sample.values, sample.options, 1);
            for (int y = 0; y < image.height(); y += 3)
                for (int x = 0; x < image.width(); x += 3) {
                    const QColor colour = image.pixelColor(x, y);
                    EXPECT_LT(std::abs(colour.red() - colour.blue()), 14) << x << ' ' << y;
                }
        }
}

TEST(Picture, LabelsLieFreeOfEachOtherWhereThereIsRoom) {
    std::vector<Label> labels;
    for (int i = 0; i < 20; ++i)
        labels.push_back({QPointF(50 + 15 * i, 150), 4, QSizeF(60, 25), {}});
    const QRectF room(0, 0, 600, 300);
    EXPECT_EQ(placeLabels(labels, room, {}, {}), 0);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_TRUE(room.contains(labels[i].place));
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(labels[i].place.intersects(labels[k].place)) << i << ' ' << k;
    }
}

TEST(Picture, IsTheSameAsSvg) {
    const SamplePicture sample = samplePictures()[0];
    const QByteArray svg = pictureBytes(QStringLiteral("a.svg"), sample.values, sample.options);
    QSvgRenderer renderer(svg);
    ASSERT_TRUE(renderer.isValid());
    QImage drawn(sample.options.size.toSize(), QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    renderer.render(&painter, QRectF(QPointF(), sample.options.size));
    painter.end();
    EXPECT_LT(differing(drawn, imageOf(sample.values, sample.options, 1)), 0.03);
    EXPECT_TRUE(svg.contains("linearGradient"));
    EXPECT_FALSE(svg.contains("<image"));
}

TEST(Picture, FilesAreChosenByTheirEnding) {
    EXPECT_TRUE(isPictureFile(QStringLiteral("x.SVG")));
    EXPECT_TRUE(isPictureFile(QStringLiteral("x.png")));
    EXPECT_TRUE(isPictureFile(QStringLiteral("x.pdf")));
    EXPECT_FALSE(isPictureFile(QStringLiteral("x.jpg")));
    const SamplePicture sample = samplePictures()[0];
    const QImage png = QImage::fromData(
        pictureBytes(QStringLiteral("a.png"), sample.values, sample.options), "PNG");
    EXPECT_EQ(png.size(), QSize(2000, 1500));
    EXPECT_EQ(png.text(QStringLiteral("Title")),
              u"Przypadek 1: N = 300 kN, M1 = 120 kNm, M2 = 0 kNm");
}

// ----- checks -----

TEST(Verdict, IsCloseFrom95PerCentAndExceededAbove100) {
    EXPECT_EQ(verdictOf(0.9499), Verdict::Kept);
    EXPECT_EQ(verdictOf(0.95), Verdict::Close);
    EXPECT_EQ(verdictOf(1.0), Verdict::Close);
    EXPECT_EQ(verdictOf(1.0001), Verdict::Exceeded);
    EXPECT_EQ(verdictOf(std::nan("")), Verdict::Exceeded);
    EXPECT_EQ(utilisationText(std::numeric_limits<double>::infinity()), u"ponad 999 %");
    EXPECT_EQ(verdictWord(Verdict::Close), u"bliski granicy");
}

TEST(Verdict, TheSignsDifferWithoutTheirColours) {
    std::vector<QImage> signs;
    for (const Verdict verdict : {Verdict::Kept, Verdict::Close, Verdict::Exceeded}) {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawVerdict(painter, QRectF(0, 0, 20, 20), verdict, Qt::black);
        painter.end();
        signs.push_back(image);
    }
    EXPECT_GT(differing(signs[0], signs[1]), 0.1);
    EXPECT_GT(differing(signs[0], signs[2]), 0.1);
    EXPECT_GT(differing(signs[1], signs[2]), 0.1);
}

TEST(ChecksTable, MarksAToldValueThatIsOffByMoreThanTwoPerCent) {
    EXPECT_FALSE(differ(0.981, 1.0));
    EXPECT_TRUE(differ(0.979, 1.0));
    EXPECT_TRUE(differ(1.0, 0.979));
    EXPECT_FALSE(differ(0, 0.0009));
    EXPECT_TRUE(differ(std::numeric_limits<double>::infinity(), 1));
    ColumnBase base;
    base.fourAnchors(250, 150).loads(300, 120, 0);
    const LiveValues values = liveValues(base.stan, base.fields);
    ToldChecks told;
    told[0] = values.cases[0].used;
    EXPECT_FALSE(checksTable(values, told)[0][1].differs);
    told[0]->tension *= 0.9;
    const CheckCell cell = checksTable(values, told)[0][1];
    EXPECT_TRUE(cell.differs);
    EXPECT_TRUE(cell.words.endsWith(u", różnica ponad 2 %"));
}

TEST(ChecksTable, ACaseWithoutEquilibriumSaysSoInEveryCheck) {
    ColumnBase base;
    base.loads(100, 60, 0); // concrete alone, the force outside the plate
    const LiveValues values = liveValues(base.stan, base.fields);
    ASSERT_TRUE(values.valid());
    const std::vector<CheckRow> rows = checksTable(values, {});
    for (const CheckCell& cell : rows[0]) {
        EXPECT_EQ(cell.exact, u"brak równowagi");
        EXPECT_EQ(cell.verdict, Verdict::Exceeded);
    }
}

TEST(ToldChecks, AreThoseOfTheResultLines) {
    ColumnBase base;
    base.fourAnchors(250, 150).loads(300, 120, 10, 150).loads(100, 90, 5, 60);
    notes::Record record;
    record.begin(notes::entered(base.stan, base.fields));
    base.host.afterCase = [&](int c) { record.caseEnded(base.stan, c); };
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const ToldChecks told = toldChecks(record, base.stan);
    const LiveValues exact = liveValues(base.stan, base.fields);
    for (std::size_t c = 0; c < 2; ++c) {
        ASSERT_TRUE(told[c]);
        for (const Check check : allChecks)
            EXPECT_NEAR(told[c]->of(check), exact.cases[c].used->of(check),
                        0.02 * exact.cases[c].used->of(check))
                << c << ' ' << static_cast<int>(check);
        EXPECT_GT(told[c]->interaction, 0);
    }
    EXPECT_FALSE(told[2]);
    EXPECT_FALSE(toldChecks(notes::Record(), base.stan)[0]);
}

TEST(LiveValues, SaysWhichFieldIsToBePutRight) {
    const auto reasonWith = [](const std::function<void(ColumnBase&)>& slip) {
        ColumnBase base;
        base.fourAnchors(250, 150).loads(300, 120, 0);
        slip(base);
        return liveValues(base.stan, base.fields).reason;
    };
    EXPECT_EQ(reasonWith([](ColumnBase&) {}), QString());
    EXPECT_EQ(reasonWith([](ColumnBase& b) { b.fields.loads[0].Vx = QStringLiteral("-"); }),
              u"Vx przypadku 1: „-” nie jest liczbą");
    EXPECT_EQ(reasonWith([](ColumnBase& b) { b.fields.Text4.clear(); }),
              u"szerokość blachy: pole jest puste");
    EXPECT_EQ(reasonWith([](ColumnBase& b) { b.fields.Text3 = QStringLiteral("0"); }),
              u"blacha nie ma wymiarów: 0 x 400 mm");
    EXPECT_EQ(reasonWith([](ColumnBase& b) { b.stan.plyta.Fi_kotwy(2) = 17; }),
              u"kotwa 2: średnicy 17 mm nie ma w szeregu");
    EXPECT_EQ(reasonWith([](ColumnBase& b) { b.fields.loads[0].N = QStringLiteral("1E101"); }),
              u"przypadek 1: takiego obciążenia nic nie przeniesie");
}

} // namespace
} // namespace ferna
