#include "report/zone_sketch.h"
#include "runtime/picture_twin.h"
#include "support/column_base.h"
#include "support/folder.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// A plate of 600 x 400 mm with a zone given by hand.
Stan zoneBy(Integer shape, Integer signs, Single a, Single b, Single c, Single d) {
    Stan stan;
    stan.plyta.Dlugosc_plyty = 60;
    stan.plyta.Szerokosc_plyty = 40;
    stan.obciazenia.Klasa_znaku(1) = signs;
    stan.wyniki.Typ_strefy_przyp(1) = shape;
    stan.wyniki.Przec_a(1) = a;
    stan.wyniki.Przec_b(1) = b;
    stan.wyniki.Przec_c(1) = c;
    stan.wyniki.Przec_d(1) = d;
    return stan;
}

QImage sketchOf(const Stan& stan) {
    PictureBox picture(QSize(630, 420)); // a millimetre is a pixel
    drawZone(picture, stan, 1);
    return picture.image();
}

/// Share of hatched pixels around a point in mm.
double greyAround(const QImage& image, double x, double y) {
    int grey = 0;
    constexpr int reach = 12;
    for (int i = -reach; i <= reach; ++i)
        for (int j = -reach; j <= reach; ++j) {
            const QColor colour = image.pixelColor(qRound(315 + x) + i, qRound(210 - y) + j);
            grey += colour.saturation() < 40 && colour.value() > 150 && colour.value() < 235;
        }
    return grey / double((2 * reach + 1) * (2 * reach + 1));
}

bool isRed(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 100 && colour.blue() < 100;
}

TEST(ZoneSketch, HatchesTheTriangleAtTheCompressedCorner) {
    const QImage image = sketchOf(zoneBy(1, 1, 5, 20, 30, -5));
    EXPECT_GT(greyAround(image, 250, 150), 0.15);
    EXPECT_EQ(greyAround(image, -200, -100), 0);
}

TEST(ZoneSketch, HatchesTheMirroredCornersOfTheOtherSignClasses) {
    EXPECT_GT(greyAround(sketchOf(zoneBy(1, 2, 5, -20, 30, 5)), 250, -150), 0.15);
    EXPECT_GT(greyAround(sketchOf(zoneBy(1, 3, -5, 20, -30, -5)), -250, 150), 0.15);
}

TEST(ZoneSketch, HatchesTheTrapeziumsAndThePlateLessATriangle) {
    EXPECT_GT(greyAround(sketchOf(zoneBy(2, 1, -30, 2, 30, -3)), 100, 120), 0.15);
    EXPECT_GT(greyAround(sketchOf(zoneBy(3, 1, 2, 20, -3, -20)), 200, -100), 0.15);
    const QImage image = sketchOf(zoneBy(4, 1, -30, -5, -10, -20));
    EXPECT_GT(greyAround(image, 250, 150), 0.15);
    EXPECT_GT(greyAround(image, 100, -120), 0.15);
    EXPECT_EQ(greyAround(image, -280, -180), 0);
}

TEST(ZoneSketch, HatchesTheOtherNumbersOfTheTableLikeTheirShapes) {
    EXPECT_EQ(sketchOf(zoneBy(7, 1, -30, 2, 30, -3)), sketchOf(zoneBy(2, 1, -30, 2, 30, -3)));
    EXPECT_EQ(sketchOf(zoneBy(6, 1, 2, 20, -3, -20)), sketchOf(zoneBy(3, 1, 2, 20, -3, -20)));
    EXPECT_NE(sketchOf(zoneBy(6, 1, 2, 20, -3, -20)), sketchOf(zoneBy(7, 1, 2, 20, -3, -20)));
}

TEST(ZoneSketch, HatchesTheHalfBehindTheDiagonalOfThePlateLessATriangle) {
    // A far corner cut off by little: the lines between the ends of the axis alone would leave the
    // compressed corner to the last of them.
    const QImage image = sketchOf(zoneBy(4, 4, 30, -10, 20, 20));
    EXPECT_GT(greyAround(image, -270, -40), 0.15);
    EXPECT_GT(greyAround(image, -100, -170), 0.15);
    EXPECT_EQ(greyAround(image, 282, 170), 0);
}

TEST(ZoneSketch, KeepsTheDepartureOfTheTriangleOfTheFourthClass) {
    // B stands at (-300, 150). Its end of the hatch lines moves by (B/2 - d) * -0.5, 2.5 mm a line,
    // and stops at 100; in the sister classes it moves by 17.5 mm and reaches the corner.
    const QImage fourth = sketchOf(zoneBy(1, 4, -5, -20, -30, 15));
    EXPECT_GT(greyAround(fourth, -286, 110), 0.5) << "crowded";
    const QImage first = sketchOf(zoneBy(1, 1, 5, 20, 30, -15));
    EXPECT_LT(greyAround(first, 286, -110), 0.35);
    EXPECT_GT(greyAround(first, 286, 100), 0.1);
}

TEST(ZoneSketch, LeavesTheHatchOnTheAxisForAShapeOutsideTheTable) {
    const QImage image = sketchOf(zoneBy(9, 1, 5, 20, 30, -5));
    EXPECT_GT(greyAround(image, 175, 75), 0) << "under the red line of the axis";
    EXPECT_EQ(greyAround(image, 270, 170), 0);
    EXPECT_EQ(greyAround(image, 215, 110), 0) << "nor close by, where a first hatch line would be";
    EXPECT_EQ(greyAround(image, -200, -100), 0);
}

TEST(ZoneSketch, MarksThePointsOfTheAxisInRed) {
    const QImage image = sketchOf(zoneBy(1, 1, 5, 20, 30, -5));
    EXPECT_TRUE(isRed(image.pixelColor(315 + 50, 210 - 195)));
    EXPECT_TRUE(isRed(image.pixelColor(315 + 295, 210 + 50)));
    EXPECT_TRUE(isRed(image.pixelColor(315 + 50 + 18, 210 - 195))) << "a disc of 20 mm";
    EXPECT_FALSE(isRed(image.pixelColor(315 + 50 + 23, 210 - 195)));
    // The letters stand at three quarters of the way from the middle, right of and below the point.
    const auto redAround = [&image](double x, double y) {
        int red = 0;
        for (int i = 0; i < 14; ++i)
            for (int j = 0; j < 20; ++j)
                red += isRed(image.pixelColor(qRound(315 + x) + i, qRound(210 - y) + j));
        return red;
    };
    EXPECT_GT(redAround(0.75 * 50, 0.75 * 200), 10);
    EXPECT_GT(redAround(0.75 * 300, 0.75 * -50), 10);
}

/// The rows of a picture that have red in them, from the left edge to `right`.
int rowsWithRed(const QImage& image, int left, int right) {
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        bool red = false;
        for (int x = left; x < right; ++x)
            red = red || isRed(image.pixelColor(x, y));
        rows += red ? 1 : 0;
    }
    return rows;
}

TEST(ZoneSketch, ItsLettersAreReadOnTheDiscsOfASmallPlate) {
    // On a plate of 120 x 80 mm the letter B lies on the disc of its point, 20 mm about (60, -10).
    Stan stan = zoneBy(2, 1, -6, 1, 6, -1);
    stan.plyta.Dlugosc_plyty = 12;
    stan.plyta.Szerokosc_plyty = 8;
    PictureBox picture(QSize(378, 252)); // 3 pixels a millimetre
    drawZone(picture, stan, 1);
    const QImage image = picture.image();
    const QPoint letter(189 + 3 * 45, 126 + 3 * 7); // its box begins at three quarters of the way
    int white = 0;
    int red = 0;
    for (int x = letter.x() - 3; x < letter.x() + 20; ++x)
        for (int y = letter.y(); y < letter.y() + 26; ++y) {
            white += image.pixelColor(x, y) == Qt::white ? 1 : 0;
            red += isRed(image.pixelColor(x, y)) ? 1 : 0;
        }
    EXPECT_GT(white, 60) << "the rim";
    EXPECT_GT(red, 60) << "the letter";
}

TEST(ZoneSketch, ItsLettersStayInsideThePicture) {
    // The point B in the lower right corner of a flat plate: its letter would begin three quarters
    // of the way down and end below the picture.
    Stan stan = zoneBy(2, 1, -30, 2, 30, -3);
    stan.plyta.Szerokosc_plyty = 6;
    PictureBox picture(QSize(630, 63));
    drawZone(picture, stan, 1);
    const QImage image = picture.image();
    EXPECT_GE(rowsWithRed(image, 535, 560), 17)
        << "the whole letter, " << zoneLetterHeight << " pixels with its accents";
}

TEST(ZoneSketch, IsSavedAtPrintQualityWithTheLineOfItsCase) {
    Stan stan = zoneBy(3, 1, -1.23F, 20, 4.56F, -20);
    numberedCatalogue(stan);
    Raport raport;
    const Folder folder;
    Rysuj_strefe(raport, stan, 1, folder.path(zoneSketchFile(1)));
    const QImage saved(folder.path(QStringLiteral("fernasz1.bmp")));
    constexpr double printedInches = 41.1 / 25.4;
    EXPECT_GE(saved.width() / printedInches, 600);
    EXPECT_NEAR(saved.width() * 1000.0 / saved.dotsPerMeterX(), 41.1, 0.2) << "its natural width";
    EXPECT_EQ(raport.Wiersze_strefy(0), QStringLiteral("<45>-13,200), B(45,-200)"));
    EXPECT_TRUE(isTwinOf(folder.read(QStringLiteral("fernasz1.svg")),
                         folder.read(QStringLiteral("fernasz1.bmp"))))
        << "with its vectors";
}

} // namespace
