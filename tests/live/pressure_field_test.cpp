#include "command/entered_equilibria.h"
#include "live/pressure_field.h"
#include "live/sample_pictures.h"
#include "support/random_tasks.h"

#include <QHash>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace ferna {
namespace {

using namespace live;
using namespace ferna::testing;

/// A picture of the field alone, so large that its pixels count.
PictureOptions large() {
    PictureOptions options;
    options.size = {1200, 1050};
    return options;
}

/// The pressure of a colour as a share of the largest: the nearest of many colours of the scale.
class ColourScale {
public:
    explicit ColourScale(Theme theme) {
        constexpr int steps = 4096;
        for (int i = 0; i <= steps; ++i)
            shares_.push_back(
                {pressureColour(Double{1} * i / steps, theme).rgb(), Double{1} * i / steps});
    }

    /// Of the middle of equal colours; NaN for a colour farther off the scale than `tolerance`.
    Double share(QRgb rgb, int tolerance = 4) {
        if (const auto known = known_.constFind(rgb); known != known_.constEnd())
            return *known;
        int least = tolerance;
        Double sum = 0;
        int count = 0;
        for (const auto& [colour, share] : shares_) {
            const int off = std::max({std::abs(qRed(colour) - qRed(rgb)),
                                      std::abs(qGreen(colour) - qGreen(rgb)),
                                      std::abs(qBlue(colour) - qBlue(rgb))});
            if (off < least) {
                least = off;
                sum = 0;
                count = 0;
            }
            if (off == least) {
                sum += share;
                ++count;
            }
        }
        const Double found = count > 0 && least < tolerance ? sum / count : std::nan("");
        known_.insert(rgb, found);
        return found;
    }

private:
    std::vector<std::pair<QRgb, Double>> shares_;
    QHash<QRgb, Double> known_;
};

/// What reads the colours of a theme. They know a colour again that they have seen.
struct Scales {
    explicit Scales(Theme of) : theme(of), inside(of), edges(of) {}

    Theme theme;
    ColourScale inside;
    ColourScale edges; // where a pixel is covered in part its colour is rounded more
};

/// The pressures of the drawn field summed over its pixels, kN.
Double integralOfPixels(const PictureValues& values, Scales& scales) {
    const PictureOptions options = large();
    const Frame frame(values, options);
    QImage image(options.size.toSize(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawField(painter, values, frame, scales.theme);
    painter.end();
    Double sum = 0;
    QRgb before = 0;
    Double share = 0; // of that colour
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (const QRgb* pixel = row; pixel < row + image.width(); ++pixel) {
            if (const int alpha = qAlpha(*pixel); *pixel != before)
                share = alpha == 255 ? scales.inside.share(*pixel)
                        : alpha > 0  ? scales.edges.share(*pixel | 0xff000000, 256) * alpha / 255
                                     : 0;
            sum += share;
            before = *pixel;
        }
    }
    const Double squareMillimetres = 1 / (frame.scale() * frame.scale());
    return sum * squareMillimetres * governingCorner(values)->pressure / 1000;
}

/// A random task's case with an equilibrium that presses; none where the number has none.
std::optional<PictureValues> pressedCase(std::uint64_t number, Double& N) {
    ColumnBase base;
    Dice dice(number);
    ordinaryTask(base, dice);
    const auto exact = enteredBase(base.stan, base.fields);
    const auto anchors = enteredAnchors(base.stan.plyta);
    const auto load = enteredLoad(base.fields, 1);
    if (!exact || !anchors || !load)
        return std::nullopt;
    PictureValues values;
    values.length = base.fields.Text3.toDouble();
    values.width = base.fields.Text4.toDouble();
    for (const equilibrium::Anchor& anchor : *anchors)
        values.anchors.push_back({anchor.x, anchor.y, 24, anchor.area});
    values.cases.push_back({1, exact->solve(*load), {}});
    N = load->N;
    return values.cases[0].found.exists && governingCorner(values) ? std::optional(values)
                                                                   : std::nullopt;
}

TEST(PressureField, TheDrawnPressuresHoldTheLoadAndThePullOfTheAnchors) {
#ifdef FERNA_SANITIZE
    constexpr int tasks = 10;
#else
    constexpr int tasks = 200;
#endif
    Scales light(Theme::Light);
    Scales dark(Theme::Dark);
    int drawn = 0;
    Double worst = 0;
    for (std::uint64_t number = 1; drawn < tasks; ++number) {
        Double N = 0;
        const std::optional<PictureValues> values = pressedCase(number, N);
        if (!values)
            continue;
        ++drawn;
        Double pull = 0;
        for (const AnchorPull& anchor : pullsOf(*values))
            pull += anchor.force;
        Scales& scales = number % 2 == 0 ? light : dark;
        const Double off = std::fabs(integralOfPixels(*values, scales) / (N + pull) - 1);
        worst = std::max(worst, off);
        EXPECT_LT(off, 0.005) << "task " << number;
    }
    RecordProperty("worst_per_million", static_cast<int>(1e6 * worst));
}

TEST(PressureField, AnEnvelopeHasTheLargestPressureOfItsCasesEverywhere) {
    const SampleBase base{
        600, 400, {{-250, 0, 24}, {250, 0, 24}}, {{300, 60, 0}, {300, 0, 50}, {300, -30, -30}}};
    const PictureValues values = valuesOf(base, 0);
    const PictureOptions options = large();
    const Frame frame(values, options);
    QImage image(options.size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    drawField(painter, values, frame, Theme::Light);
    painter.end();
    ColourScale scale(Theme::Light);
    const Double most = governingCorner(values)->pressure;
    for (int x = -290; x <= 290; x += 20)
        for (int y = -190; y <= 190; y += 20) {
            const equilibrium::Point point{double(x), double(y)};
            Double pressure = 0;
            for (const PictureCase& one : values.cases)
                pressure = std::max(pressure, one.found.plane.at(point));
            const Double share = scale.share(image.pixel(frame.at(point).toPoint()));
            if (pressure > 0.01 * most) {
                EXPECT_NEAR(share * most, pressure, 0.01 * most) << x << ' ' << y;
            } else if (pressure == 0) {
                EXPECT_TRUE(std::isnan(share) || share < 0.01) << x << ' ' << y;
            }
        }
}

TEST(PressureField, EqualCasesOfAnEnvelopeAreDrawnOnce) {
    SampleBase base{600, 400, {{-250, 0, 24}}, {{300, 60, 0}, {300, 60, 0}}};
    EXPECT_EQ(fieldPieces(valuesOf(base, 0)).size(), 1U);
    base.loads[1] = {300, -60, 0};
    EXPECT_EQ(fieldPieces(valuesOf(base, 0)).size(), 2U);
}

TEST(PressureField, NothingIsDrawnWhereNothingIsPressed) {
    const SampleBase lifted{
        600, 400, {{-250, 100, 24}, {250, 100, 24}, {0, -100, 24}}, {{-100, 0, 0}}};
    const SampleBase falls{600, 400, {}, {{100, 40, 0}}};
    EXPECT_TRUE(fieldPieces(valuesOf(lifted, 1)).empty());
    EXPECT_TRUE(fieldPieces(valuesOf(falls, 1)).empty());
    EXPECT_FALSE(governingCorner(valuesOf(lifted, 1)));
}

/// Lightness of a colour as eyes see it, CIE 1976 L*, 0..100.
Double lightness(const QColor& colour) {
    const auto linear = [](Double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const Double Y = 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
                     + 0.0722 * linear(colour.blueF());
    return Y > 0.008856 ? 116 * std::cbrt(Y) - 16 : 903.3 * Y;
}

TEST(PressureColours, LightnessChangesInEvenSteps) {
    constexpr int steps = 16;
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const Double whole =
            lightness(pressureColour(1, theme)) - lightness(pressureColour(0, theme));
        EXPECT_EQ(whole < 0, theme == Theme::Light);
        EXPECT_GT(std::fabs(whole), 70);
        for (int i = 0; i < steps; ++i) {
            const Double step = lightness(pressureColour((i + 1.0) / steps, theme))
                                - lightness(pressureColour(1.0 * i / steps, theme));
            EXPECT_NEAR(step * steps / whole, 1, 0.4) << i;
        }
    }
}

TEST(PressureColours, AGreyedScaleHasNoColourAndTheSameOrder) {
    int before = -1;
    for (int i = 0; i <= 16; ++i) {
        const QColor colour = pressureColour(i / 16.0, Theme::Dark, true);
        EXPECT_EQ(colour.red(), colour.green());
        EXPECT_EQ(colour.red(), colour.blue());
        EXPECT_GT(colour.red(), before);
        before = colour.red();
    }
}

} // namespace
} // namespace ferna
