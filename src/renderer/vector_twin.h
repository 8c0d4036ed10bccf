#pragma once

#include "pages/page.h"

#include <QStringList>

#include <future>
#include <map>
#include <memory>
#include <thread>

class QSvgRenderer;

namespace ferna::renderer {

/// A bitmap's vector twin.
struct Twin {
    /// None where the bitmap has none, one that is another picture's, or a damaged one.
    std::shared_ptr<QSvgRenderer> sketch;
    QSize pixels; ///< of the bitmap, where it has a twin
};

/// The twin of a file; none where the file is no picture. Needs Qt to be started.
Twin twinOfFile(const QString& bitmap);

/// A twin as filled outlines, in mm from the corner of `rect`, into which the whole picture is
/// drawn. None where there is no twin.
std::vector<pages::Outline> outlinesOf(const Twin& twin, const QRectF& rect);

/// The twins of a report's pictures. A mark of all its bytes ties a bitmap to its twin, and a twin
/// is a page of XML, so they are looked for and read on a thread of their own as soon as the report
/// is read; meanwhile the fonts may be found.
class Twins {
public:
    /// Begins to look for the twins of these files.
    explicit Twins(const QStringList& bitmaps);

    /// The twin of a file, of these or of another; waits until it has been looked for.
    Twin of(const QString& bitmap) const;

private:
    std::map<QString, std::shared_future<Twin>> found_;
    std::jthread searching_;
};

} // namespace ferna::renderer
