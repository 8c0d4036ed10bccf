#include "renderer/drawing_list.h"

#include "pages/bitmap_file.h"
#include "pages/drawing.h"
#include "pages/text_measure.h"
#include "protocol/renderer_files.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace ferna::renderer {

namespace {

/// How many records from `first` on repeat the frame: those up to the record that closes it, or,
/// where that one is missing, as many as agree with the frame file.
std::size_t repeatedFrame(const std::vector<wyd::Record>& records, std::size_t first,
                          std::size_t end, const std::vector<wyd::Record>& frame) {
    for (std::size_t i = first; i < end; ++i)
        if (std::holds_alternative<wyd::FrameEndRecord>(records[i].content))
            return i + 1 - first;
    std::size_t same = 0;
    while (first + same < end && same < frame.size()
           && records[first + same].content == frame[same].content)
        ++same;
    return same;
}

std::size_t segmentEnd(const std::vector<wyd::Record>& records, std::size_t first) {
    while (first < records.size()
           && !std::holds_alternative<wyd::NewPageRecord>(records[first].content))
        ++first;
    return first;
}

QString fileOf(const wyd::PictureRecord& picture, const QString& commandFile) {
    return wyd::pathOfLine(QFileInfo(commandFile).absolutePath(), picture.path);
}

/// What stands in place of a picture that cannot be read, before its name.
QString missingPicture(const QString& language) {
    static const QHash<QString, QString> words{
        {QStringLiteral("en"), QStringLiteral("picture missing: ")},
        {QStringLiteral("fr"), QStringLiteral("image manquante : ")},
        {QStringLiteral("de"), QStringLiteral("Bild fehlt: ")}};
    return words.value(language.section(u'-', 0, 0).toLower(), QStringLiteral("brak rysunku "));
}

/// The box of both; other than Qt's, one without width or height counts too.
QRectF united(const QRectF& a, const QRectF& b) {
    return {QPointF(qMin(a.left(), b.left()), qMin(a.top(), b.top())),
            QPointF(qMax(a.right(), b.right()), qMax(a.bottom(), b.bottom()))};
}

} // namespace

QStringList pictureFiles(const QString& path, const std::vector<wyd::Record>& records) {
    QStringList files;
    for (const wyd::Record& record : records)
        if (const auto* picture = std::get_if<wyd::PictureRecord>(&record.content))
            files += fileOf(*picture, path);
    return files;
}

QRectF Chain::box() const {
    QRectF all;
    for (const pages::Text& text : texts)
        all |= text.box();
    return all;
}

bool Chain::leavesInk() const {
    return std::any_of(texts.begin(), texts.end(),
                       [](const pages::Text& t) { return t.leavesInk(); });
}

bool TextLine::leavesInk() const {
    return std::any_of(chains.begin(), chains.end(), [](const Chain& c) { return c.leavesInk(); });
}

bool TextLine::underlined() const {
    return !chains.empty() && chains.front().texts.front().underline;
}

QString TextLine::words() const {
    return chains.empty() ? QString() : chains.front().texts.front().text;
}

void Block::translate(double dy) {
    rect.translate(0, dy);
    picture.rect.translate(0, dy);
    for (pages::Line& line : lines)
        line.line.translate(0, dy);
    for (pages::Text& text : texts)
        text.baseline.ry() += dy;
}

void Block::scale(double factor) {
    const auto scaled = [&](QPointF p) { return rect.topLeft() + (p - rect.topLeft()) * factor; };
    picture.scale(factor);
    for (pages::Line& line : lines)
        line.line = QLineF(scaled(line.line.p1()), scaled(line.line.p2()));
    for (pages::Text& text : texts)
        scaleText(text, scaled(text.baseline), factor);
    rect.setSize(rect.size() * factor);
}

Segment RecordInterpreter::frame(const std::vector<wyd::Record>& records) {
    for (const wyd::Record& record : records)
        interpret(record);
    return std::exchange(segment_, {});
}

std::vector<Segment> RecordInterpreter::body(const std::vector<wyd::Record>& records,
                                             const std::vector<wyd::Record>& frameRecords) {
    std::vector<Segment> segments;
    std::size_t first = 0;
    for (;;) {
        const std::size_t end = segmentEnd(records, first);
        const std::size_t bodyFirst = first + repeatedFrame(records, first, end, frameRecords);
        for (std::size_t i = first; i < end; ++i) {
            if (i == bodyFirst)
                segment_ = {};
            interpret(records[i]);
        }
        if (bodyFirst == end)
            segment_ = {};
        newLine_ = true;
        segments.push_back(std::exchange(segment_, {}));
        if (end == records.size())
            return segments;
        first = end + 1;
    }
}

void RecordInterpreter::interpret(const wyd::Record& record) {
    if (const auto* move = std::get_if<wyd::PenRecord>(&record.content)) {
        pen(*move);
        return;
    }
    figureOpen_ = false;
    if (const auto* words = std::get_if<wyd::TextRecord>(&record.content))
        text(*words);
    else if (const auto* bitmap = std::get_if<wyd::PictureRecord>(&record.content))
        picture(*bitmap, record.line);
}

void RecordInterpreter::text(const wyd::TextRecord& record) {
    if (record.height)
        height_ = qMax(1, static_cast<int>(std::lround(*record.height * drawing::unitsPerMm)));
    underline_ = record.underline.value_or(underline_);
    weight_ = record.weight.value_or(weight_);
    font_ = record.font.value_or(font_);
    if (record.y && !record.y->relative) {
        newLine_ = newLine_ || record.y->value != lineY_;
        lineY_ = y_ = record.y->value;
    } else if (record.y) {
        y_ += record.y->value;
    }
    if (newLine_ || segment_.lines.empty())
        segment_.lines.push_back({lineY_, {}});
    newLine_ = false;

    pages::Text text;
    text.text = pages::lettersOf(record.text, font_ == wyd::symbolFont);
    text.baseline = QPointF(record.x.value_or(x_), y_);
    text.height = height_;
    text.weight = weight_;
    text.underline = underline_;
    measure(text);
    x_ = text.baseline.x() + text.widthMm();

    std::vector<Chain>& chains = segment_.lines.back().chains;
    if (record.x || record.pageNumber || chains.empty())
        chains.push_back({{}, record.pageNumber});
    chains.back().texts.push_back(std::move(text));
}

void RecordInterpreter::picture(const wyd::PictureRecord& record, int line) {
    // Every field is kept, also of a picture that lacks one.
    bool whole = true;
    const auto keep = [&whole](std::optional<double>& present, const std::optional<double>& given) {
        if (given)
            present = given;
        whole = whole && present.has_value();
    };
    keep(pictureX_, record.x);
    keep(pictureY_, record.y);
    keep(pictureWidth_, record.width);
    keep(pictureHeight_, record.height);
    if (!whole) {
        complaints_.add(path_, line, QStringLiteral("rysunek bez miejsca albo wymiarów"));
        return;
    }
    Block block;
    block.rect = {*pictureX_, *pictureY_, *pictureWidth_, *pictureHeight_};
    const QString file = fileOf(record, path_);
    const Twin twin = twins_.of(file);
    block.picture = {block.rect, {}, outlinesOf(twin, block.rect)};
    if (block.picture.isEmpty())
        block.picture.image = image(file, line);
    constexpr qsizetype bytesOfAPixel = 4;
    const QSize pixels = block.picture.outlines.empty() ? block.picture.image.size() : twin.pixels;
    pictureBytes_ += bytesOfAPixel * pixels.width() * pixels.height();
    if (pictureBytes_ > wyd::mostPictureBytes)
        throw RunTimeError(error::DeviceIO, QStringLiteral("%1, wiersz %2: rysunki mają razem "
                                                           "ponad %3 MB")
                                                .arg(QDir::toNativeSeparators(path_))
                                                .arg(line)
                                                .arg(wyd::mostPictureBytes / megabyte));
    if (block.picture.isEmpty())
        standIn(block, QFileInfo(QDir::fromNativeSeparators(record.path)).fileName());
    segment_.blocks.push_back(std::move(block));
}

QImage RecordInterpreter::image(const QString& file, int line) {
    const auto known = images_.constFind(file);
    if (known != images_.constEnd())
        return *known;
    QImage image = readPicture(file);
    if (image.isNull())
        complaints_.add(path_, line,
                        (QFileInfo::exists(file) ? QStringLiteral("nie można wczytać rysunku %1")
                                                 : QStringLiteral("brak pliku rysunku %1"))
                            .arg(QDir::toNativeSeparators(file)));
    images_.insert(file, image);
    return image;
}

void RecordInterpreter::standIn(Block& block, const QString& file) {
    const QRectF r = block.rect;
    const QPointF corners[] = {r.topLeft(), r.topRight(), r.bottomRight(), r.bottomLeft()};
    for (std::size_t i = 0; i < 4; ++i)
        block.lines.push_back({QLineF(corners[i], corners[(i + 1) % 4]), lineWidthMm_});
    pages::Text text;
    text.text = missingPicture(language_) + file;
    text.height = 280;
    measure(text);
    const double room = r.width() - 2;
    if (text.widthMm() > room && room > 0)
        scaleText(text, {}, room / text.widthMm());
    text.baseline = QPointF(r.left() + (r.width() - text.widthMm()) / 2, r.center().y());
    block.texts.push_back(std::move(text));
}

void RecordInterpreter::pen(const wyd::PenRecord& record) {
    const QPointF target(record.x.value_or(pen_.x()), record.y.value_or(pen_.y()));
    penDraws_ = record.draws.value_or(penDraws_);
    if (penDraws_) {
        if (!figureOpen_ || segment_.blocks.empty())
            segment_.blocks.emplace_back();
        figureOpen_ = true;
        Block& figure = segment_.blocks.back();
        const QLineF stroke(pen_, target);
        const QRectF box = QRectF(stroke.p1(), stroke.p2()).normalized();
        figure.rect = figure.lines.empty() ? box : united(figure.rect, box);
        figure.lines.push_back({stroke, lineWidthMm_});
    }
    pen_ = target;
}

} // namespace ferna::renderer
