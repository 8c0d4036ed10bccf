#pragma once

#include "pages/page.h"

namespace ferna::renderer {

/// A bitmap's vector twin as filled outlines, in mm from the corner of `rect`, into which the whole
/// picture is drawn. None where the bitmap has no twin, or one that is another picture's.
std::vector<pages::Outline> vectorsOf(const QString& bitmap, const QRectF& rect);

} // namespace ferna::renderer
