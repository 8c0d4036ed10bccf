#include "sheet/pages.h"

#include "runtime/lengths.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace ferna::sheet {

namespace {

constexpr double paperWidth = 210 * perMm;
constexpr double paperHeight = 297 * perMm;
constexpr double left = 20 * perMm;
constexpr double right = 15 * perMm;
constexpr double top = 19 * perMm;
constexpr double bottom = 17 * perMm; // with the foot in it
constexpr double width = paperWidth - left - right;
constexpr double foot = paperHeight - bottom;

Slice titleSlice(const Sheet& sheet) {
    const TextBlock title(sheet.title, {.size = points(15), .bold = true}, width);
    Slice made;
    made.height = title.height() + 1.5 * perMm;
    made.draw = [title](QPainter& painter, QPointF at) { title.draw(painter, at); };
    return made;
}

/// The height that slices from `first` on need to stand on one page: up to the first that may be
/// the last of its page.
double heightOfGroup(const std::vector<std::shared_ptr<const Slice>>& slices, std::size_t first) {
    double height = 0;
    for (std::size_t i = first; i < slices.size(); ++i) {
        height += slices[i]->height + (i > first ? slices[i]->before : 0);
        if (!slices[i]->withNext)
            break;
    }
    return height;
}

} // namespace

Pages::Pages(const Sheet& sheet) : sheet_(sheet) {
    Slices slices{titleSlice(sheet)};
    Slices rest = slicesOf(sheet.blocks, width, {sheet.search, sheet.exact});
    std::move(rest.begin(), rest.end(), std::back_inserter(slices));
    flow(std::move(slices));
}

void Pages::flow(Slices slices) {
    std::vector<std::shared_ptr<const Slice>> all;
    for (Slice& slice : slices)
        all.push_back(std::make_shared<const Slice>(std::move(slice)));
    pages_.emplace_back();
    double y = top;
    bool kept = false; // the slice belongs to a group that has its place
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Slice& slice = *all[i];
        Page* page = &pages_.back();
        const double needed = kept ? slice.height : heightOfGroup(all, i);
        if (!page->empty() && y + slice.before + needed > foot) {
            pages_.emplace_back();
            page = &pages_.back();
            y = top;
            if (slice.head) {
                page->push_back({slice.head, y});
                y += slice.head->height;
            }
        }
        if (!page->empty() && page->back().slice != slice.head)
            y += slice.before;
        page->push_back({all[i], y});
        y += slice.height;
        kept = slice.withNext;
    }
}

void Pages::drawMargins(QPainter& painter, int page) const {
    const TextStyle small{.size = points(7), .grey = true};
    const QString number = QString(sheet_.pageOf)
                               .replace(QStringLiteral("%1"), QString::number(page))
                               .replace(QStringLiteral("%2"), QString::number(count()));
    const TextBlock pageOf(rich(number), small);
    constexpr double footLine = paperHeight - 12 * perMm;
    painter.setPen(QPen(QColor(0x88, 0x88, 0x88), 0.12 * perMm));
    painter.drawLine(QPointF(left, footLine - perMm), QPointF(left + width, footLine - perMm));
    TextBlock(sheet_.made, small).draw(painter, {left, footLine});
    pageOf.draw(painter, {left + width - pageOf.width(), footLine});
    const TextBlock subject(sheet_.subject, small);
    constexpr double headLine = 11 * perMm;
    if (page > 1)
        TextBlock(sheet_.title, small).draw(painter, {left, headLine});
    subject.draw(painter, {left + width - std::min(subject.width(), 0.5 * width), headLine});
}

void Pages::draw(QPainter& painter, int page) const {
    drawMargins(painter, page);
    for (const Placed& placed : pages_.at(static_cast<std::size_t>(page - 1)))
        placed.slice->draw(painter, {left, placed.y});
}

QImage Pages::image(int page, double dotsPerInch) const {
    const double scale = dotsPerInch / mmPerInch / perMm;
    QImage image((QSizeF(paperWidth, paperHeight) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    draw(painter, page);
    return image;
}

QByteArray Pages::pdf() const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    constexpr int dotsPerInch = 1200;
    writer.setResolution(dotsPerInch);
    writer.setTitle(sheet_.title);
    writer.setCreator(sheet_.program);
    QPainter painter(&writer);
    constexpr double scale = dotsPerInch / mmPerInch / perMm;
    for (int page = 1; page <= count(); ++page) {
        if (page > 1)
            writer.newPage();
        painter.save();
        painter.scale(scale, scale);
        draw(painter, page);
        painter.restore();
    }
    painter.end();
    return bytes;
}

} // namespace ferna::sheet
