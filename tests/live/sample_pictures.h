#pragma once

#include "live/picture.h"

#include <QImage>

#include <vector>

namespace ferna::testing {

/// A picture of the collection that is compared and looked at.
struct SamplePicture {
    const char* name;
    live::PictureValues values;
    live::PictureOptions options;
};

/// Plates from 100 x 100 to 2000 x 300 mm with 1 to 20 anchors, one case and envelopes, whole
/// plates in compression, columns that tip over, greyed ones.
std::vector<SamplePicture> samplePictures();

/// The values of a plate, its anchors (x, y, diameter in mm) and its cases (kN, kNm), with n = 8
/// and limits of usual materials. `which`: the number of the case, from 1; 0 for the envelope.
struct SampleBase {
    double length;
    double width;
    std::vector<std::array<int, 3>> anchors;
    std::vector<equilibrium::Load> loads;
};
live::PictureValues valuesOf(const SampleBase& base, int which);

/// A picture as an image, `ratio` pixels a unit.
QImage imageOf(const live::PictureValues& values, const live::PictureOptions& options, qreal ratio);

} // namespace ferna::testing
