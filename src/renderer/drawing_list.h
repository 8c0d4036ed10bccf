#pragma once

#include "pages/page.h"
#include "protocol/commands.h"
#include "renderer/vector_twin.h"

#include <QHash>

namespace ferna::renderer {

/// Texts that go on one behind the other from one explicit x.
struct Chain {
    std::vector<pages::Text> texts;
    bool pageNumber = false; ///< the frame's text that changes from page to page

    double left() const { return texts.front().baseline.x(); }
    QRectF box() const;
    bool leavesInk() const;
};

/// All texts of one baseline, subscripts included.
struct TextLine {
    double y = 0;
    std::vector<Chain> chains;
    std::optional<int> outline = {}; ///< level in the table of contents, where it is a heading

    bool leavesInk() const;
    bool underlined() const;
    /// The text at its left.
    QString words() const;
};

/// A picture, or straight lines drawn in one go.
struct Block {
    QRectF rect;
    pages::Picture picture; ///< empty for straight lines
    std::vector<pages::Line> lines;
    std::vector<pages::Text> texts; ///< the name in place of a missing picture

    void translate(double dy);
    /// Made smaller about its top left corner.
    void scale(double factor);
};

/// What stands on a sheet of unlimited height between two explicit new pages.
struct Segment {
    std::vector<TextLine> lines;
    std::vector<Block> blocks;
};

/// The files of the pictures of a command file with these records.
QStringList pictureFiles(const QString& path, const std::vector<wyd::Record>& records);

/// Turns records into positioned primitives. `lineWidthMm` is that of drawn lines. A picture that
/// cannot be read is named in `complaints` and an outline with its name stands in its place, with
/// words in `language` (BCP 47), Polish where it is another one or none.
class RecordInterpreter {
public:
    RecordInterpreter(QString path, double lineWidthMm, const Twins& twins,
                      wyd::Complaints& complaints, QString language = {})
        : path_(std::move(path)), lineWidthMm_(lineWidthMm), twins_(twins), complaints_(complaints),
          language_(std::move(language)) {}

    /// The frame file: one segment.
    Segment frame(const std::vector<wyd::Record>& records);
    /// The body file: a segment up to each new page. The frame that the body repeats at the start
    /// of each segment sets the text settings and is not drawn.
    std::vector<Segment> body(const std::vector<wyd::Record>& records,
                              const std::vector<wyd::Record>& frameRecords);

private:
    void interpret(const wyd::Record& record);
    void text(const wyd::TextRecord& record);
    void picture(const wyd::PictureRecord& record, int line);
    void pen(const wyd::PenRecord& record);
    void standIn(Block& block, const QString& file);
    QImage image(const QString& file, int line);

    QString path_;
    double lineWidthMm_;
    const Twins& twins_;
    wyd::Complaints& complaints_;
    QString language_;
    Segment segment_;
    QHash<QString, QImage> images_;
    qsizetype pictureBytes_ = 0; ///< as drawn: a picture that is placed twice counts twice

    // The settings that stay in force.
    double x_ = 0, lineY_ = 0, y_ = 0; ///< behind the last text; its line; with subscript
    int height_ = 350, weight_ = 400, font_ = wyd::textFont;
    bool underline_ = false;
    QPointF pen_;
    bool penDraws_ = false;
    bool figureOpen_ = false; ///< the last block is a figure that a pen record goes on with
    bool newLine_ = true;
    std::optional<double> pictureX_, pictureY_, pictureWidth_, pictureHeight_;
};

} // namespace ferna::renderer
