// Widths, ends and letters of the drawings that the report shows, by their pixels.
#include "input/anchor_layout.h"
#include "input/plate_drawing.h"
#include "report/zone_sketch.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;

namespace {

/// How much of the paper's white is gone along a run of pixels: the width of a black line across.
double inkAcross(const QImage& image, QPoint from, QPoint step, int pixels, int (*light)(QRgb)) {
    double ink = 0;
    for (int i = 0; i < pixels; ++i)
        ink += (255 - light(image.pixel(from + i * step))) / 255.0;
    return ink;
}

/// Runs of pixels that are not white along a row, and how many pixels they have.
struct Dashes {
    int runs = 0;
    int pixels = 0;
};

Dashes dashesOf(const QImage& image, int y, int from, int to) {
    Dashes dashes;
    bool before = false;
    for (int x = from; x < to; ++x) {
        const bool dark = qRed(image.pixel(x, y)) < 200;
        dashes.runs += dark && !before ? 1 : 0;
        dashes.pixels += dark ? 1 : 0;
        before = dark;
    }
    return dashes;
}

class ZoneLines : public ::testing::Test {
protected:
    /// The sketch of a plate of 600 x 400 mm in which a millimetre is a pixel; the axis goes from
    /// (50, 200) to (300, -50).
    static QImage sketch(Integer shape) {
        Stan stan;
        stan.plyta.Dlugosc_plyty = 60;
        stan.plyta.Szerokosc_plyty = 40;
        stan.obciazenia.Klasa_znaku(1) = 1;
        stan.wyniki.Typ_strefy_przyp(1) = shape;
        stan.wyniki.Przec_a(1) = 5;
        stan.wyniki.Przec_b(1) = 20;
        stan.wyniki.Przec_c(1) = 30;
        stan.wyniki.Przec_d(1) = -5;
        PictureBox picture(QSize(630, 420));
        drawZone(picture, stan, 1);
        return picture.image();
    }

    static bool isRed(QRgb c) { return qRed(c) > 200 && qGreen(c) < 100; }

    // A shape outside the table keeps its whole hatch on the axis, so the plate is white.
    const QImage image = sketch(9);
};

TEST_F(ZoneLines, TheOutlineIsTwoPixelsWideOnThePlatesEdge) {
    for (const QPoint& start : {QPoint(10, 300), QPoint(610, 300)}) {
        EXPECT_NEAR(inkAcross(image, start, {1, 0}, 10, qRed), 2, 0.1);
        EXPECT_NEAR(inkAcross(image, start, {1, 0}, 10, qGreen), 2, 0.1) << "black";
    }
    for (const QPoint& start : {QPoint(100, 5), QPoint(100, 405)})
        EXPECT_NEAR(inkAcross(image, start, {0, 1}, 10, qRed), 2, 0.1);
    EXPECT_LT(qRed(image.pixel(14, 300)), 20);
    EXPECT_LT(qRed(image.pixel(15, 300)), 20);
}

TEST_F(ZoneLines, TheAxesAreThinDashesAndDotsPastThePlate) {
    EXPECT_NEAR(inkAcross(image, {3, 205}, {0, 1}, 10, qRed), 1, 0.1) << "left of the plate";
    const auto middle = [this](int x) { return image.pixel(x, 210); };
    EXPECT_GT(qBlue(middle(3)), qRed(middle(3)) + 30) << "cyan";
    EXPECT_NEAR(inkAcross(image, {310, 3}, {1, 0}, 10, qRed), 1, 0.1) << "above the plate";
    const Dashes dashes = dashesOf(image, 210, 20, 320); // 20 periods of 8 on, 3 off, 1 on, 3 off
    EXPECT_NEAR(dashes.runs, 40, 2);
    EXPECT_NEAR(dashes.pixels, 180, 25);
}

TEST_F(ZoneLines, TheAxisIsAThinRedLineOverAHatchOfThreePixels) {
    int red = 0;
    int dark = 0;
    for (int y = 125; y < 146; ++y) { // across the line at x = 175, y = 75 mm
        red += isRed(image.pixel(315 + 175, y)) ? 1 : 0;
        dark += qGreen(image.pixel(315 + 175, y)) < 200 ? 1 : 0;
    }
    EXPECT_GE(red, 1);
    EXPECT_LE(red, 2);
    EXPECT_GE(dark, 4); // 3 pixels across are 4.2 along the column
    EXPECT_LE(dark, 6);
}

TEST_F(ZoneLines, TheHatchLinesAreThreePixelsWide) {
    const QImage hatched = sketch(2); // its lines end on the plate's upper edge
    double widest = 0;
    for (int y = 60; y < 180; ++y)
        widest =
            qMax(widest, inkAcross(hatched, {315 + 270, y}, {0, 1}, 4, qRed) * 255 / (255 - 0xC0));
    EXPECT_GT(widest, 2.5);
}

TEST_F(ZoneLines, AAndBStandAtThreeQuartersOfTheWayToTheirPoints) {
    for (const auto& [letter, place] : {std::pair{QStringLiteral("A"), QPointF(37.5, 150)},
                                        std::pair{QStringLiteral("B"), QPointF(225, -37.5)}}) {
        PictureBox expected(QSize(630, 420));
        expected.setScale({-315, 210}, {315, -210});
        expected.setColour(qb::LightRed);
        expected.setLetterHeight(zoneLetterHeight);
        expected.setBold(true);
        expected.setRim(true);
        expected.text(place, letter);
        const QImage alone = expected.image();
        const QRect box(qRound(315 + place.x()) - 2, qRound(210 - place.y()) - 2, 26, 32);
        int letterPixels = 0;
        for (int y = box.top(); y <= box.bottom(); ++y)
            for (int x = box.left(); x <= box.right(); ++x) {
                EXPECT_EQ(isRed(image.pixel(x, y)), isRed(alone.pixel(x, y)))
                    << letter.toStdString() << ' ' << x << ' ' << y;
                letterPixels += isRed(alone.pixel(x, y)) ? 1 : 0;
            }
        EXPECT_GT(letterPixels, 10);
    }
}

class PlateLines : public ::testing::Test {
protected:
    static constexpr int side = 800;
    static constexpr double pixelsPerMm = side / (1.3 * 1200);

    PlateLines() {
        stan.plyta.Dlugosc_plyty = 120;
        stan.plyta.Szerokosc_plyty = 80;
        stan.plyta.Liczba_srub = 1;
        storeAnchorAt(stan.plyta, 1, 400, 200, 80);
        PictureBox picture(QSize(side, side));
        drawPlate(picture, stan.plyta);
        image = picture.image();
    }
    static int column(double x) { return qRound(side / 2 + x * pixelsPerMm); }
    static int row(double y) { return qRound(side / 2 - y * pixelsPerMm); }

    Stan stan;
    QImage image;
};

TEST_F(PlateLines, TheOutlineIsTwoPixelsWide) {
    for (const int x : {-600, 600})
        EXPECT_NEAR(inkAcross(image, {column(x) - 5, row(100)}, {1, 0}, 10, qRed), 2, 0.1) << x;
    for (const int y : {-400, 400})
        EXPECT_NEAR(inkAcross(image, {column(100), row(y) - 5}, {0, 1}, 10, qRed), 2, 0.1) << y;
}

TEST_F(PlateLines, ScaleBarAndAnchorsAreOnePixelWide) {
    const int bar = qRound(side / 2 + 0.92 * side / 2);
    const int start = qRound(side / 2 - 0.94 * side / 2);
    EXPECT_NEAR(inkAcross(image, {start + 25, bar - 4}, {0, 1}, 8, qRed), 1, 0.1);
    EXPECT_NEAR(inkAcross(image, {column(400 - 40) - 4, row(200)}, {1, 0}, 8, qRed), 0.9, 0.3);
}

TEST_F(PlateLines, TheAxesAreOnePixelWideDottedAndEndAtNineTenths) {
    const int end = qRound(0.9 * side / 2);
    const Dashes dots = dashesOf(image, side / 2, side / 2 + 8, side / 2 + 250);
    EXPECT_NEAR(dots.runs, 242 / 3, 4) << "a dot and two pixels of paper";
    EXPECT_EQ(dashesOf(image, side / 2, side / 2 + end + 3, side).pixels, 0);
    EXPECT_EQ(dashesOf(image, side / 2, 0, side / 2 - end - 3).pixels, 0);
    EXPECT_GT(dashesOf(image, side / 2, side / 2 - end, side / 2 - end + 20).pixels, 3);
    double ink = 0; // of three rows over a period, so that a dot is met whole
    for (int x = 0; x < 30; ++x)
        ink += inkAcross(image, {side / 2 + 100 + x, side / 2 - 3}, {0, 1}, 6, qRed);
    EXPECT_NEAR(ink, 10, 1.5) << "ten dots of a pixel";
}

} // namespace
