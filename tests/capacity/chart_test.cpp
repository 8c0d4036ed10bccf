#include "capacity/chart.h"
#include "capacity/chart_frame.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace ferna {

namespace {

Strength base(bool tensionSideAlone = false) {
    std::vector<equilibrium::Anchor> anchors;
    for (const double x : {-250.0, 250.0})
        for (const double y : {-150.0, 150.0})
            anchors.push_back({x, y, 353});
    return {600,
            400,
            6.5,
            anchors,
            {.Rb = 9, .fd = 205, .fd2 = 191, .fv = 168, .tensionSideAlone = tensionSideAlone}};
}

ChartPoint point(const equilibrium::Load& load, const char16_t* name, const Shear& shear = {}) {
    return pointOf(base(), {QString::fromUtf16(name), load, shear});
}

const std::vector<ChartPoint> points{point({300, 60, 20}, u"KO-1"), point({300, -90, 0}, u"KO-2"),
                                     point({500, 20, 5}, u"KO-3")};

TEST(ChartPoint, IsUsedAsFarAsItsWorstCheckAndMayGrowByItsLoadFactor) {
    const Strength strength = base();
    const ChartPoint one = point({100, 60, 10}, u"KO-1", {60, 0});
    EXPECT_EQ(one.used, strength.used({100, 60, 10}, {60, 0})->worst());
    EXPECT_EQ(one.factor, loadFactor(strength, {100, 60, 10}, {60, 0}));
    const double k = one.factor;
    EXPECT_NEAR(strength.used({100 * k, 60 * k, 10 * k}, {60 * k, 0})->worst(), 1, 1e-9);
    setDecimalSign(u',');
    EXPECT_EQ(factorWords(1.2345), QStringLiteral("1,23"));
    EXPECT_EQ(factorWords(HUGE_VAL), QStringLiteral("dowolnie wiele"));
    // A column that tips over.
    const ChartPoint over =
        pointOf({600, 400, 6.5, {}, {.Rb = 9, .fd = 205, .fd2 = 191, .fv = 168}},
                {QStringLiteral("KO-2"), {10, 60, 0}, {}});
    EXPECT_TRUE(std::isinf(over.used));
    EXPECT_EQ(over.factor, 0);
}

// The interaction is a sum of squares: used by 0.80 it lets the load grow by 1.12, the pressure
// used by 0.85 by 1.18.
TEST(Chart, TheNearestIsTheOneThatCanGrowLeastAndNotTheMostUsed) {
    std::vector<ChartPoint> two{point({0, 1, 0}, u"KO-1"), point({0, 1, 0}, u"KO-2")};
    two[0].used = 0.85;
    two[0].factor = 1 / 0.85;
    two[1].used = 0.80;
    two[1].factor = 1 / std::sqrt(0.80);
    EXPECT_EQ(nearestToLine(chartOf(base(), ChartPlane::M1M2, 300, {}, two)), 1);
    two[1].factor = two[0].factor;
    EXPECT_EQ(nearestToLine(chartOf(base(), ChartPlane::M1M2, 300, {}, two)), 0) << "the first";
}

TEST(Chart, NamesItsPlaneAndTheHorizontalForceBesideTheLine) {
    setDecimalSign(u',');
    const Chart moments = chartOf(base(), ChartPlane::M1M2, 300.5, {3, 4}, points);
    EXPECT_EQ(titleOf(moments),
              QStringLiteral("Nośność w płaszczyźnie M1-M2 przy N = 300,5\u00a0kN"));
    EXPECT_EQ(shearWords(moments),
              QStringLiteral("Siła pozioma V = 5\u00a0kN przez wszystkie kotwy, gdy tarcie jej "
                             "nie przenosi."));
    EXPECT_EQ(
        shearWords(chartOf(base(true), ChartPlane::NM1, 0, {3, 4}, {})),
        QStringLiteral("Siła pozioma V = 5\u00a0kN nie ogranicza linii: ścinanie kotew jednej "
                       "strony sprawdza się w każdym punkcie osobno."));
    const Chart axial = chartOf(base(), ChartPlane::NM2, 0, {}, {});
    EXPECT_EQ(titleOf(axial), QStringLiteral("Nośność w płaszczyźnie N-M2 przy M1 = 0"));
    EXPECT_EQ(shearWords(axial), QStringLiteral("Bez siły poziomej."));
    EXPECT_EQ(usedWords(0.62349), QStringLiteral("62,3\u00a0%"));
    EXPECT_EQ(usedWords(HUGE_VAL), QStringLiteral("brak równowagi"));
}

TEST(Chart, KnowsTheMostUsedPointAndThoseInItsPlane) {
    const Chart chart = chartOf(base(), ChartPlane::M1M2, 300, {}, points);
    EXPECT_EQ(nearestToLine(chart), 1);
    EXPECT_TRUE(liesInPlane(chart, points[0].load));
    EXPECT_FALSE(liesInPlane(chart, points[2].load)) << "another N";
    const Chart axial = chartOf(base(), ChartPlane::NM1, 0, {}, points);
    EXPECT_FALSE(liesInPlane(axial, points[0].load));
    EXPECT_TRUE(liesInPlane(axial, points[1].load));
    EXPECT_EQ(nearestToLine(chartOf(base(), ChartPlane::M1M2, 300, {}, {})), -1);
}

TEST(ChartScale, HasRoundTicksAndNoughtOnIt) {
    const ChartScale scale = scaleOf(-37, 81, 6);
    EXPECT_EQ(scale.step, 50);
    EXPECT_EQ(scale.ticks(), (std::vector<double>{0, 50}));
    EXPECT_LT(scale.least, -37);
    EXPECT_GT(scale.most, 81);
    EXPECT_EQ(scaleOf(10, 81, 10).ticks().front(), 0);
    EXPECT_EQ(scaleOf(0, 0, 5).ticks().size(), 3U);
    EXPECT_EQ(scaleOf(0, 0.0123, 5).step, 0.005);
}

// 160 x 130 mm with letters of 2.6 mm, in units of 0.01 mm.
const QRectF sheet(0, 0, 16'000, 13'000);
constexpr qreal letter = 260;

TEST(ChartFrame, LaysTheFieldBetweenTitleAndLegend) {
    const Chart chart = chartOf(base(), ChartPlane::M1M2, 300, {}, points);
    const ChartFrame frame(sheet, chart, letter);
    EXPECT_NEAR(frame.field().left() / 100, 2.6 + 11.7, 0.01);
    EXPECT_NEAR(frame.field().right() / 100, 160 - 5.2, 0.01);
    EXPECT_GT(frame.field().top(), frame.title().bottom() + letter);
    EXPECT_GT(frame.legend().top(), frame.field().bottom() + 3 * letter);
    // The origin lies where both scales are 0, and a load on the line inside the field.
    const QPointF origin = frame.at({});
    EXPECT_NEAR((origin.x() - frame.field().left()) / frame.field().width(),
                -frame.across().least / (frame.across().most - frame.across().least), 1e-12);
    for (const LinePoint& point : chart.line.points)
        EXPECT_TRUE(frame.field().contains(frame.at(point.load)));
    EXPECT_LT(frame.at({300, 0, 10}).y(), origin.y()) << "M2 upwards";
}

TEST(ChartFrame, KeepsAFarPointFromMakingTheLineSmall) {
    std::vector<ChartPoint> far = points;
    far.push_back({{300, 9000, 0}, QStringLiteral("KO-4"), 50, 0.02});
    const Chart chart = chartOf(base(), ChartPlane::M1M2, 300, {}, far);
    const ChartFrame frame(sheet, chart, letter);
    EXPECT_LT(frame.across().most, 500);
    EXPECT_TRUE(frame.isOutside(far[3]));
    EXPECT_EQ(frame.atPoint(far[3]).x(), frame.field().right());
    EXPECT_FALSE(frame.isOutside(far[0]));
}

TEST(Chart, FindsThePointUnderAPlace) {
    const Chart chart = chartOf(base(), ChartPlane::M1M2, 300, {}, points);
    const ChartFrame frame(sheet, chart, letter);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(pointAt(sheet, chart, letter,
                          frame.at(points[static_cast<std::size_t>(i)].load) + QPointF(100, 0)),
                  i);
    EXPECT_EQ(pointAt(sheet, chart, letter, {0, 0}), -1);
}

QImage drawn(const Chart& chart) {
    QImage image(1600, 1300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawChart(painter, image.rect(), chart, 26);
    return image;
}

TEST(Chart, DrawsTheLineWhereItsLoadsLieAndPointsInTheirColours) {
    const Chart chart = chartOf(base(), ChartPlane::M1M2, 300, {}, points);
    const ChartFrame frame(QRectF(0, 0, 1600, 1300), chart, 26);
    const QImage image = drawn(chart);
    for (const std::size_t k : {10U, 130U, 250U, 350U}) {
        const QPoint place = frame.at(chart.line.points[k].load).toPoint();
        const QColor here = image.pixelColor(place);
        EXPECT_LT(here.lightness(), 140) << k;
    }
    EXPECT_EQ(image.pixelColor(frame.at(points[0].load).toPoint()), QColor(0x2b, 0x8a, 0x5a))
        << "used below a half";
    EXPECT_EQ(image.pixelColor(frame.at(points[2].load).toPoint()), QColor(Qt::white))
        << "a ring: its N is another one";
}

TEST(Chart, OfThousandsOfPointsTheMostUsedOnesAreSeen) {
    std::vector<ChartPoint> many;
    for (int i = 0; i < 40'000; ++i) {
        const double part = (i % 200) / 200.0;
        many.push_back({{300, 60 * part, 20.0 * (i / 200) / 200}, QStringLiteral("KO"), 0.3, 3});
    }
    const ChartPoint worst{{300, 30, 10}, QStringLiteral("KO-X"), 1.4, 0.7};
    many.insert(many.begin() + 17, worst); // drawn long before its neighbours, were it by order
    Chart chart = chartOf(base(), ChartPlane::M1M2, 300, {}, many);
    const ChartFrame frame(QRectF(0, 0, 1600, 1300), chart, 26);
    const QImage image = drawn(chart);
    // Beside the cross of a load that is used above its limits, its own red.
    const QPoint at = frame.at(worst.load).toPoint() + QPoint(8, 0);
    EXPECT_EQ(image.pixelColor(at), QColor(0xc0, 0x00, 0x20));
    // As many as the area of the field, and not as many as there are.
    QElapsedTimer clock;
    clock.start();
    drawn(chart);
    const qint64 thousands = clock.restart();
    chart.points.resize(1000);
    drawn(chart);
    EXPECT_LT(thousands, 20 * std::max<qint64>(clock.elapsed(), 10));
}

TEST(Chart, WithoutALineSaysWhy) {
    const QImage empty = drawn(chartOf(base(), ChartPlane::M1M2, 9999, {}, {}));
    const QImage bare = drawn(Chart{});
    int red = 0;
    for (int y = 0; y < empty.height(); ++y)
        for (int x = 0; x < empty.width(); ++x)
            red += empty.pixelColor(x, y) == QColor(0xb0, 0x00, 0x20) ? 1 : 0;
    EXPECT_GT(red, 100);
    EXPECT_FALSE(bare.isNull());
}

TEST(Chart, IsSavedAsPngSvgAndPdf) {
    const QTemporaryDir folder;
    const pages::DrawnPicture picture =
        pictureOf(chartOf(base(), ChartPlane::M1M2, 300, {}, points));
    const auto saved = [&](const char* ending) {
        const QString path = folder.filePath(QStringLiteral("nosnosc.") + QLatin1String(ending));
        pages::savePicture(picture, path);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QImage image = QImage::fromData(saved("PNG"), "PNG");
    EXPECT_EQ(image.width(), qRound(160 / 25.4 * 300));
    EXPECT_EQ(image.height(), qRound(130 / 25.4 * 300));
    EXPECT_NEAR(image.dotsPerMeterX(), 11811, 1);
    EXPECT_TRUE(saved("svg").contains("viewBox=\"0 0 16000 13000\""));
    const QByteArray pdf = saved("pdf");
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    // 160 mm = 453.5 points
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 453") || pdf.contains("/MediaBox [0 0 454"))
        << pdf.left(400).toStdString();
    EXPECT_THROW(pages::savePicture(picture, folder.filePath(QStringLiteral("x.bmp"))),
                 RunTimeError);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("x.bmp"))));
}

} // namespace

} // namespace ferna
