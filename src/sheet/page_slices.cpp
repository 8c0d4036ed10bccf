#include "sheet/page_slices.h"

#include "runtime/format.h"
#include "sheet/html_math.h"

#include <QPainter>

namespace ferna::sheet {

namespace {

Slice textSlice(const TextBlock& text, double before, double indent = 0) {
    Slice made;
    made.height = text.height();
    made.before = before;
    made.draw = [text, indent](QPainter& painter, QPointF at) {
        text.draw(painter, at + QPointF(indent, 0));
    };
    return made;
}

Slices headingSlices(const Heading& heading, double width) {
    static constexpr std::array<double, 3> sizes{points(11.5), points(10), points(8.8)};
    static constexpr std::array<double, 3> blanks{4.6 * perMm, 3.4 * perMm, 2.2 * perMm};
    const auto level = static_cast<std::size_t>(heading.level - 1);
    Slice made = textSlice(TextBlock(heading.text, {.size = sizes.at(level), .bold = true}, width),
                           blanks.at(level));
    made.withNext = true;
    const bool ruled = heading.level == 1;
    if (ruled) {
        constexpr double gap = 0.5 * perMm;
        const double line = made.height + gap;
        made.draw = [draw = std::move(made.draw), line, width](QPainter& painter, QPointF at) {
            draw(painter, at);
            painter.setPen(QPen(Qt::black, 0.25 * perMm));
            painter.drawLine(at + QPointF(0, line), at + QPointF(width, line));
        };
        made.height = line + gap;
    }
    return {made};
}

/// A bar beside what must not be overlooked, and beside the program's own words.
Slices paragraphSlices(const Paragraph& paragraph, double width) {
    const bool barred = paragraph.tone == Tone::Warning || paragraph.tone == Tone::Quote;
    const double indent = paragraph.tone == Tone::Quote ? 6 * perMm : barred ? 3 * perMm : 0;
    const TextStyle style{.size = paragraph.tone == Tone::Small ? points(7.2) : points(8.5),
                          .bold = paragraph.tone == Tone::Warning,
                          .grey = paragraph.tone == Tone::Small};
    Slice made = textSlice(TextBlock(paragraph.text, style, width - indent), 1.3 * perMm, indent);
    made.withNext = paragraph.withNext;
    if (barred) {
        const QColor colour =
            paragraph.tone == Tone::Warning ? QColor(0xA0, 0, 0) : QColor(0x99, 0x99, 0x99);
        made.draw = [draw = std::move(made.draw), colour, indent,
                     height = made.height](QPainter& painter, QPointF at) {
            constexpr double bar = 0.8 * perMm;
            painter.fillRect(QRectF(at.x() + indent - 2.4 * perMm, at.y(), bar, height), colour);
            draw(painter, at);
        };
    }
    return {made};
}

Slices valuesSlices(const Values& values, double width) {
    QStringList parts;
    for (const Quantity* const number : values.numbers)
        parts += richSymbol(number->symbol) + QStringLiteral(" = ") + htmlNumber(number->text)
                 + (number->unit.isEmpty() ? QString() : QChar(0x00A0) + rich(number->unit));
    if (parts.isEmpty())
        return {};
    return {textSlice(TextBlock(parts.join(QStringLiteral(",   ")), {}, width), 1.3 * perMm)};
}

Slices pictureSlices(const Picture& picture, double width) {
    if (!picture.painting)
        return {};
    const double scale = std::min(1.0, width / (picture.width * perMm));
    Slice made;
    made.height = picture.height * perMm * scale;
    made.before = 1.2 * perMm;
    made.draw = [painting = picture.painting, scale](QPainter& painter, QPointF at) {
        painter.save();
        painter.translate(at);
        painter.scale(perMm * scale, perMm * scale);
        (*painting)(painter);
        painter.restore();
    };
    return {made};
}

Slices signatureSlices(const SignatureFields& fields, double width) {
    constexpr double blank = 11 * perMm; // to write in
    constexpr double gap = 6 * perMm;
    const double each = (width - gap * static_cast<double>(fields.names.size() - 1))
                        / static_cast<double>(fields.names.size());
    std::vector<TextBlock> texts;
    for (const QString& name : fields.names)
        texts.emplace_back(rich(name), TextStyle{.size = points(7.2), .grey = true});
    Slice made;
    made.height = blank + 4 * perMm;
    made.before = 1 * perMm;
    made.draw = [texts, each](QPainter& painter, QPointF at) {
        for (const TextBlock& text : texts) {
            painter.setPen(QPen(Qt::black, 0.15 * perMm));
            painter.drawLine(at + QPointF(0, blank), at + QPointF(each, blank));
            text.draw(painter, at + QPointF(0, blank + 0.4 * perMm));
            at.rx() += each + gap;
        }
    };
    return {made};
}

/// The same further to the right.
Slice shifted(Slice slice, double right) {
    slice.draw = [draw = std::move(slice.draw), right](QPainter& painter, QPointF at) {
        draw(painter, at + QPointF(right, 0));
    };
    if (slice.head)
        slice.head = std::make_shared<const Slice>(shifted(*slice.head, right));
    return slice;
}

/// A column beside another: its slices and where it stands.
struct SetColumn {
    Slices slices;
    double x;
};

/// The shorter column and as much of the longer one as stands beside it make one slice. What is
/// left of the longer one follows slice by slice, so that a page may end there.
Slices besideOneAnother(SetColumn shorter, SetColumn longer) {
    const double needed = heightOf(shorter.slices);
    Slices first;
    std::size_t taken = 0;
    while (taken < longer.slices.size()
           && (first.empty() || first.back().withNext || heightOf(first) < needed))
        first.push_back(longer.slices[taken++]);
    const bool withNext = !first.empty() && first.back().withNext;
    const Slice one = shifted(stacked(std::move(shorter.slices)), shorter.x);
    const Slice other = shifted(stacked(std::move(first)), longer.x);
    Slice made;
    made.height = std::max(one.height, other.height);
    made.before = 1 * perMm;
    made.withNext = withNext;
    made.draw = [one, other](QPainter& painter, QPointF at) {
        one.draw(painter, at);
        other.draw(painter, at);
    };
    Slices all{std::move(made)};
    for (; taken < longer.slices.size(); ++taken)
        all.push_back(shifted(std::move(longer.slices[taken]), longer.x));
    return all;
}

Slices besideSlices(const Beside& beside, double width, const ColumnNames& names) {
    constexpr double gap = 5 * perMm;
    const double leftWidth = (width - gap) * beside.leftShare;
    SetColumn left{slicesOf(beside.left, leftWidth, names), 0};
    SetColumn right{slicesOf(beside.right, width - gap - leftWidth, names), leftWidth + gap};
    if (heightOf(left.slices) > heightOf(right.slices))
        std::swap(left, right);
    return besideOneAnother(std::move(left), std::move(right));
}

} // namespace

AlignedNumber::AlignedNumber(const QString& text, const TextStyle& style) {
    qsizetype sign = text.indexOf(decimalSign());
    if (sign < 0)
        sign = text.indexOf(QStringLiteral("·10^"));
    const qsizetype end = sign < 0 ? text.size() : sign;
    left_ = TextBlock(htmlNumber(text.left(end)), style);
    right_ = TextBlock(htmlNumber(text.mid(end)), style);
}

void AlignedNumber::draw(QPainter& painter, QPointF decimalSign) const {
    left_.draw(painter, decimalSign - QPointF(left_.width(), 0));
    right_.draw(painter, decimalSign);
}

double heightOf(const Slices& slices) {
    double height = 0;
    for (std::size_t i = 0; i < slices.size(); ++i)
        height += slices[i].height + (i > 0 ? slices[i].before : 0);
    return height;
}

Slice stacked(Slices slices) {
    Slice made;
    made.height = heightOf(slices);
    made.before = slices.empty() ? 0 : slices.front().before;
    made.draw = [slices = std::move(slices)](QPainter& painter, QPointF at) {
        bool first = true;
        for (const Slice& slice : slices) {
            at.ry() += first ? 0 : slice.before;
            slice.draw(painter, at);
            at.ry() += slice.height;
            first = false;
        }
    };
    return made;
}

Slices slicesOf(const Block& block, double width, const ColumnNames& names) {
    struct {
        double width;
        const ColumnNames& names;
        Slices operator()(const Heading& one) const { return headingSlices(one, width); }
        Slices operator()(const Paragraph& one) const { return paragraphSlices(one, width); }
        Slices operator()(const Values& one) const { return valuesSlices(one, width); }
        Slices operator()(const Equations& one) const { return equationSlices(one, width, names); }
        Slices operator()(const Table& one) const { return tableSlices(one, width); }
        Slices operator()(const Picture& one) const { return pictureSlices(one, width); }
        Slices operator()(const SignatureFields& one) const { return signatureSlices(one, width); }
        Slices operator()(const std::shared_ptr<const Beside>& one) const {
            return besideSlices(*one, width, names);
        }
    } const set{width, names};
    return std::visit(set, block);
}

Slices slicesOf(const Blocks& blocks, double width, const ColumnNames& names) {
    Slices all;
    for (const Block& block : blocks) {
        Slices some = slicesOf(block, width, names);
        std::move(some.begin(), some.end(), std::back_inserter(all));
    }
    return all;
}

} // namespace ferna::sheet
