#include "input/anchor_layout.h"
#include "input/plate_drawing.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;

namespace {

/// A drawing of the plate as pixels. The picture is square, so Hw = Hh = 0.65 x the longest extent.
class PlateDrawing : public ::testing::Test {
protected:
    static constexpr int side = 800;

    void plate(const QString& length, const QString& width) {
        fields.Text3 = length;
        fields.Text4 = width;
    }
    void plate(int length, int width) { plate(QString::number(length), QString::number(width)); }

    void anchor(int x, int y, int fi) {
        const int slot = ++stan.plyta.Liczba_srub;
        storeAnchorAt(stan.plyta, slot, x, y, CInt(fi));
    }

    void draw() {
        PictureBox picture(QSize(side, side));
        drawn = Rysuj_P3(picture, stan, fields, dialogs);
        image = picture.image();
    }

    static bool isDark(QRgb c) { return qRed(c) < 100 && qGreen(c) < 100 && qBlue(c) < 100; }
    static bool isCyan(QRgb c) { return qRed(c) < 160 && qGreen(c) - qRed(c) > 60; }
    static bool isRed(QRgb c) { return qRed(c) > 200 && qGreen(c) < 150 && qBlue(c) < 150; }

    template <typename Test>
    int count(const QRect& area, Test test) const {
        int pixels = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                pixels += image.rect().contains(x, y) && test(image.pixel(x, y)) ? 1 : 0;
        return pixels;
    }
    template <typename Test>
    int count(Test test) const {
        return count(image.rect(), test);
    }

    /// Length of the dark run of the scale bar in pixels, from the middle of one end circle to the
    /// middle of the other.
    double barLength() const {
        const int y = qRound(side / 2 + 0.92 * side / 2);
        int first = -1;
        int last = -1;
        for (int x = 0; x < side; ++x)
            if (isDark(image.pixel(x, y)) || isDark(image.pixel(x, y - 1))) {
                first = first < 0 ? x : first;
                last = x;
            }
        return last - first + 1 - 2 * 0.02 * side / 2;
    }

    /// Outline of the plate: the first and the last dark column on a row off the axis.
    std::pair<int, int> outline() const {
        const int y = qRound(side * 0.47);
        int first = -1;
        int last = -1;
        for (int x = 0; x < side; ++x)
            if (isDark(image.pixel(x, y))) {
                first = first < 0 ? x : first;
                last = x;
            }
        return {first, last};
    }

    double pixelsPerMm(double extent) const { return side / (1.3 * extent); }

    Stan stan;
    InputFields fields;
    ScriptedDialogs dialogs;
    QImage image;
    bool drawn = false;
};

TEST_F(PlateDrawing, APlateOf1200IsFramedByItsLengthWithABarOf100) {
    plate(1200, 800);
    draw();
    EXPECT_TRUE(drawn);
    EXPECT_NEAR(barLength(), 100 * pixelsPerMm(1200), 2);
    EXPECT_NEAR(outline().first, side / 2 - 600 * pixelsPerMm(1200), 1.5);
    EXPECT_NEAR(outline().second, side / 2 + 600 * pixelsPerMm(1200), 1.5);
    // the upper edge stands at 400 mm
    const int top = qRound(side / 2 - 400 * pixelsPerMm(1200));
    EXPECT_GT(count(QRect(200, top - 2, 400, 4), isDark), 600);
}

TEST_F(PlateDrawing, ASmallPlateGetsABarOf50) {
    plate(153, 100);
    draw();
    EXPECT_NEAR(barLength(), 50 * pixelsPerMm(153), 2);
    plate(154, 100); // Hw = 100.1
    draw();
    EXPECT_NEAR(barLength(), 100 * pixelsPerMm(154), 2);
}

TEST_F(PlateDrawing, ABigPlateGetsABarOf1000) {
    plate(1538, 1000); // Hw = 999.7
    draw();
    EXPECT_NEAR(barLength(), 100 * pixelsPerMm(1538), 2);
    plate(1539, 1000);
    draw();
    EXPECT_NEAR(barLength(), 1000 * pixelsPerMm(1539), 2);
}

TEST_F(PlateDrawing, WithoutAnchorsThereAreBarAxesLettersAndPlate) {
    plate(1200, 800);
    draw();
    EXPECT_GT(count(isCyan), 300);
    EXPECT_GT(count(isDark), 1000);
    EXPECT_EQ(count(isRed), 0);
    // the letters of the axes: x at both ends, y at both
    const int middle = side / 2;
    EXPECT_GT(count(QRect(20, middle - 90, 40, 40), isCyan), 5);
    EXPECT_GT(count(QRect(side - 40, middle - 90, 40, 40), isCyan), 5);
    EXPECT_GT(count(QRect(middle + 4, 0, 20, 30), isCyan), 5);
    EXPECT_GT(count(QRect(middle + 4, 690, 20, 30), isCyan), 5);
}

TEST_F(PlateDrawing, TheAxesAreDottedAndEndAtNineTenths) {
    plate(1200, 800);
    draw();
    const int middle = side / 2;
    const int end = qRound(0.9 * side / 2);
    const QRect right(middle + 5, middle - 1, end - 10, 3);
    const int pixels = count(right, isCyan);
    EXPECT_GT(pixels, right.width() / 6);
    EXPECT_LT(pixels, right.width() * 3 * 2 / 3);
    EXPECT_EQ(count(QRect(middle + end + 3, middle - 1, 30, 3), isCyan), 0);
}

TEST_F(PlateDrawing, AnAnchorIsACircleOfItsDiameterWithItsNumber) {
    plate(1200, 1200);
    anchor(400, 300, 80);
    draw();
    const double scale = pixelsPerMm(1200);
    const int x = qRound(side / 2 + 400 * scale);
    const int y = qRound(side / 2 - 300 * scale);
    const int r = qRound(40 * scale);
    EXPECT_GT(count(QRect(x - r - 1, y - 2, 3, 5), isDark), 2);
    EXPECT_GT(count(QRect(x + r - 1, y - 2, 3, 5), isDark), 2);
    EXPECT_EQ(count(QRect(x - r / 2, y - r / 2, r, r), isDark), 0);
    EXPECT_GT(count(QRect(x + r, y, 12, 16), isRed), 3);
    EXPECT_EQ(count(QRect(0, 0, x, side), isRed), 0);
}

TEST_F(PlateDrawing, AnAnchorFarToTheRightMakesThePlateSmaller) {
    plate(1200, 1200);
    anchor(1000, 0, 20);
    draw();
    EXPECT_NEAR(outline().second, side / 2 + 600 * pixelsPerMm(2000), 1.5);
    EXPECT_NEAR(barLength(), 1000 * pixelsPerMm(2000), 2);
}

TEST_F(PlateDrawing, AnAnchorFarToTheLeftChangesNothingAndFallsOutOfThePicture) {
    plate(1200, 1200);
    draw();
    const QImage empty = image;
    anchor(-1000, 0, 20);
    draw();
    EXPECT_NEAR(outline().second, side / 2 + 600 * pixelsPerMm(1200), 1.5);
    EXPECT_EQ(image, empty);
}

TEST_F(PlateDrawing, TheHigherRelativeExtentFillsTheFrame) {
    plate(1200, 600);
    anchor(0, 900, 20); // LY = 1800
    draw();
    EXPECT_NEAR(outline().second, side / 2 + 600 * pixelsPerMm(1800), 1.5);
}

TEST_F(PlateDrawing, ASizeThatIsNoNumberIsToldAndLeavesThePictureEmpty) {
    stan.plyta.Dlug_plyty_mm = 700;
    for (const QString& wrong : {QStringLiteral("12oo"), QString()}) {
        plate(wrong, QStringLiteral("800"));
        draw();
        EXPECT_FALSE(drawn);
        ASSERT_FALSE(dialogs.messages.empty());
        EXPECT_EQ(dialogs.messages.back().text,
                  QStringLiteral("Podany ciąg znaków nie tworzy liczby"));
        EXPECT_EQ(dialogs.messages.back().style, MessageStyle::Exclamation);
        EXPECT_EQ(count([](QRgb c) { return c != 0xFFFFFFFF; }), 0);
    }
    EXPECT_EQ(stan.plyta.Dlug_plyty_mm, 700);
}

TEST_F(PlateDrawing, AWidthThatIsNoNumberLeavesTheLengthTaken) {
    plate(QStringLiteral("900"), QStringLiteral("b"));
    draw();
    EXPECT_EQ(stan.plyta.Dlugosc_plyty, 90.0F);
    EXPECT_EQ(stan.plyta.Szerokosc_plyty, 0.0F);
}

TEST_F(PlateDrawing, APlateWithoutExtentIsToldByTheNumberOfItsError) {
    plate(0, 800);
    draw();
    EXPECT_FALSE(drawn);
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("11K3!!"));
    EXPECT_EQ(dialogs.messages[0].title, QStringLiteral("Ferna 2005 Pr"));
    EXPECT_EQ(dialogs.messages[0].style, MessageStyle::Exclamation);
    plate(QStringLiteral("99999"), QStringLiteral("800"));
    draw();
    EXPECT_EQ(dialogs.messages.back().text, QStringLiteral("6K3!!"));
}

TEST_F(PlateDrawing, TheReadingTakesWholeMillimetres) {
    plate(QStringLiteral("1197"), QStringLiteral("600,7"));
    draw();
    EXPECT_EQ(stan.plyta.Dlug_plyty_mm, 1197);
    EXPECT_EQ(stan.plyta.Szer_plyty_mm, 600);
    EXPECT_EQ(stan.plyta.Szerokosc_plyty, 60.07F);
}

} // namespace
