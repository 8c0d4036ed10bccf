#include "capacity/chart.h"
#include "capacity/chart_frame.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"

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

ChartPoint pointOf(const equilibrium::Load& load, const char16_t* name) {
    const auto used = base().used(load, {});
    return {load, QString::fromUtf16(name), used ? used->worst() : HUGE_VAL};
}

const std::vector<ChartPoint> points{pointOf({300, 60, 20}, u"KO-1"),
                                     pointOf({300, -90, 0}, u"KO-2"),
                                     pointOf({500, 20, 5}, u"KO-3")};

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
    far.push_back({{300, 9000, 0}, QStringLiteral("KO-4"), 50});
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
    const pages::Picture picture = pictureOf(chartOf(base(), ChartPlane::M1M2, 300, {}, points));
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
