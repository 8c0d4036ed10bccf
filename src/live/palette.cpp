#include "live/palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ferna::live {

namespace {

constexpr std::array<QRgb, 9> viridis{0xff440154, 0xff472d7b, 0xff3b528b, 0xff2c728e, 0xff21918c,
                                      0xff28ae80, 0xff5ec962, 0xffaddc30, 0xfffde725};
constexpr auto intervals = static_cast<Double>(viridis.size() - 1);

/// Without colour, at the same lightness.
QColor grey(const QColor& colour) {
    const int level = qGray(colour.rgb());
    return {level, level, level, colour.alpha()};
}

QColor between(QRgb a, QRgb b, Double share) {
    const auto mixed = [share](int of, int to) {
        return static_cast<int>(std::lround(of + share * (to - of)));
    };
    return {mixed(qRed(a), qRed(b)), mixed(qGreen(a), qGreen(b)), mixed(qBlue(a), qBlue(b))};
}

} // namespace

Palette paletteOf(Theme theme, bool greyed) {
    Palette palette = theme == Theme::Light ? Palette{.paper = QColor(0xff, 0xff, 0xff),
                                                      .plate = QColor(0xf1, 0xf2, 0xf4),
                                                      .ink = QColor(0x1b, 0x1d, 0x20),
                                                      .quiet = QColor(0x5c, 0x62, 0x6b),
                                                      .tension = QColor(0xc0, 0x39, 0x06),
                                                      .line = QColor(0x1b, 0x1d, 0x20),
                                                      .chosen = QColor(0x0b, 0x5c, 0xd6),
                                                      .label = QColor(0xff, 0xff, 0xff, 0xdc)}
                                            : Palette{.paper = QColor(0x1d, 0x1f, 0x22),
                                                      .plate = QColor(0x2e, 0x31, 0x36),
                                                      .ink = QColor(0xee, 0xef, 0xf1),
                                                      .quiet = QColor(0xa3, 0xaa, 0xb4),
                                                      .tension = QColor(0xff, 0x9a, 0x57),
                                                      .line = QColor(0xff, 0xff, 0xff),
                                                      .chosen = QColor(0x6c, 0xb2, 0xff),
                                                      .label = QColor(0x1d, 0x1f, 0x22, 0xdc)};
    if (greyed)
        for (QColor* colour : {&palette.tension, &palette.chosen})
            *colour = grey(*colour);
    return palette;
}

QColor pressureColour(Double share, Theme theme, bool greyed) {
    const Double inTheme = theme == Theme::Light ? 1 - share : share;
    const Double along = std::clamp(inTheme, 0.0, 1.0) * intervals;
    const Double below = std::min(std::floor(along), intervals - 1);
    const auto i = static_cast<std::size_t>(below);
    const QColor colour = between(viridis.at(i), viridis.at(i + 1), along - below);
    return greyed ? grey(colour) : colour;
}

QGradientStops pressureStops(Double from, Double to, Theme theme, bool greyed) {
    QGradientStops stops{{0, pressureColour(from, theme, greyed)}};
    for (Double i = 1; i < intervals; ++i)
        if (const Double share = i / intervals; share > from && share < to)
            stops += {(share - from) / (to - from), pressureColour(share, theme, greyed)};
    return stops << QGradientStop{1, pressureColour(to, theme, greyed)};
}

} // namespace ferna::live
