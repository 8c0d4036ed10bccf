#include "sheet/math_box.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ferna::sheet {

namespace {

using Kind = Expression::Kind;

constexpr double indexSize = 0.7;    // of the letters beside it
constexpr double axisHeight = 0.26;  // of a fraction's stroke above the base line, of the size
constexpr double strokeWidth = 0.05; // of the size

MathBox textBox(const QString& text, double size, bool italic) {
    const QFont font = fontOf({.size = size, .serif = true, .italic = italic});
    const QFontMetricsF metrics(font);
    constexpr double capitals = 0.72; // real letters reach less high than their line
    constexpr double depth = 0.22;
    return {metrics.horizontalAdvance(text), capitals * size, depth * size,
            [text, font](QPainter& painter, QPointF at) {
                painter.setFont(font);
                painter.setPen(Qt::black);
                painter.drawText(at, text);
            }};
}

MathBox shifted(MathBox box, double down) {
    MathBox made{
        box.width, std::max(box.ascent - down, 0.0), std::max(box.descent + down, 0.0), {}};
    made.draw = [draw = std::move(box.draw), down](QPainter& painter, QPointF at) {
        draw(painter, at + QPointF(0, down));
    };
    return made;
}

MathBox space(double width) {
    return {width, 0, 0, [](QPainter&, QPointF) {}};
}

void drawStroke(QPainter& painter, QPointF from, QPointF to, double width) {
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(from, to);
}

/// One formula.
class Setter {
public:
    Setter(Show show, double size) : show_(show), size_(size) {}

    MathBox set(const Expression& e) const {
        switch (e.kind) {
        case Kind::Number:
            return wordBox(printedDigits(e.text), size_);
        case Kind::Symbol:
            return show_ == Show::Symbols ? symbolBox(e.text, size_) : numberBox(e.printed);
        case Kind::Sum:
            return sum(e);
        case Kind::Product:
            return sheet::row(
                {factor(e.parts[0]), word(QStringLiteral(" · ")), factor(e.parts[1])});
        case Kind::Quotient:
            return fraction(set(withoutBrackets(e.parts[0])), set(withoutBrackets(e.parts[1])));
        case Kind::Square:
            return sheet::row({factor(e.parts[0]), raised(QStringLiteral("2"))});
        case Kind::Negative:
            return sheet::row({word(QStringLiteral("−")), factor(e.parts[0])});
        case Kind::Brackets:
            return around(set(e.parts[0]), u'(', u')');
        case Kind::Root:
            return root(set(withoutBrackets(e.parts[0])));
        case Kind::Function:
            return function(e);
        }
        return {};
    }

private:
    MathBox word(const QString& text) const { return wordBox(text, size_); }
    MathBox raised(const QString& text) const {
        constexpr double rise = 0.38;
        return shifted(wordBox(text, indexSize * size_), -rise * size_);
    }

    MathBox numberBox(const QString& text) const {
        const qsizetype power = text.indexOf(u'^');
        if (power < 0)
            return word(text);
        return sheet::row({word(text.left(power)), raised(text.mid(power + 1))});
    }

    MathBox factor(const Expression& e) const {
        const bool loose = e.kind == Kind::Sum || e.kind == Kind::Negative;
        return loose || needsBrackets(e, show_) ? around(set(e), u'(', u')') : set(e);
    }

    MathBox sum(const Expression& e) const {
        std::vector<MathBox> boxes;
        for (const Expression* const part : printedParts(e)) {
            const bool first = boxes.empty();
            if (part == nullptr) {
                boxes.push_back(word(QStringLiteral(" + …")));
            } else if (part->kind == Kind::Negative) {
                boxes.push_back(word(first ? QStringLiteral("−") : QStringLiteral(" − ")));
                boxes.push_back(factor(part->parts[0]));
            } else {
                if (!first)
                    boxes.push_back(word(QStringLiteral(" + ")));
                boxes.push_back(first ? set(*part) : factor(*part));
            }
        }
        return sheet::row(std::move(boxes));
    }

    MathBox fraction(MathBox above, MathBox below) const {
        const double axis = axisHeight * size_;
        const double gap = 0.12 * size_;
        const double side = 0.12 * size_;
        const double width = std::max(above.width, below.width) + 2 * side;
        const double up = axis + gap + above.descent;
        const double down = gap + below.ascent - axis;
        MathBox made{width + side, up + above.ascent, down + below.descent, {}};
        made.draw = [above = std::move(above), below = std::move(below), width, up, down, axis,
                     stroke = strokeWidth * size_](QPainter& painter, QPointF at) {
            above.draw(painter, at + QPointF((width - above.width) / 2, -up));
            below.draw(painter, at + QPointF((width - below.width) / 2, down));
            drawStroke(painter, at + QPointF(0, -axis), at + QPointF(width, -axis), stroke);
        };
        return made;
    }

    MathBox root(MathBox inside) const {
        const double sign = 0.62 * size_;
        const double gap = 0.12 * size_;
        MathBox made{inside.width + sign + gap, inside.ascent + 2 * gap, inside.descent, {}};
        made.draw = [inside = std::move(inside), sign, gap,
                     stroke = strokeWidth * size_](QPainter& painter, QPointF at) {
            const double top = -inside.ascent - gap;
            const double foot = inside.descent;
            QPainterPath path;
            path.moveTo(at + QPointF(0, -0.32 * inside.ascent));
            path.lineTo(at + QPointF(0.25 * sign, -0.42 * inside.ascent));
            path.lineTo(at + QPointF(0.52 * sign, foot));
            path.lineTo(at + QPointF(0.92 * sign, top));
            path.lineTo(at + QPointF(sign + inside.width + gap, top));
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(Qt::black, stroke, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            painter.drawPath(path);
            inside.draw(painter, at + QPointF(sign, 0));
        };
        return made;
    }

    /// Brackets as high as what stands in them.
    MathBox around(MathBox inside, char16_t left, char16_t right) const {
        const double ordinary = 0.94 * size_;
        const double scale = std::max(1.0, inside.height() / ordinary);
        const double centre = (inside.descent - inside.ascent) / 2;
        const MathBox open = stretched(left, scale, centre);
        const MathBox close = stretched(right, scale, centre);
        return sheet::row({open, std::move(inside), close});
    }

    MathBox stretched(char16_t letter, double scale, double centre) const {
        MathBox plain = word(QString(QChar(letter)));
        if (scale <= 1.05) // NOLINT: as good as its own height
            return plain;
        const double own = (plain.descent - plain.ascent) / 2;
        MathBox made{plain.width, plain.ascent * scale, plain.descent * scale, {}};
        made.draw = [plain, scale, centre, own](QPainter& painter, QPointF at) {
            painter.save();
            painter.translate(at + QPointF(0, centre));
            painter.scale(1, scale);
            plain.draw(painter, QPointF(0, -own));
            painter.restore();
        };
        return made;
    }

    MathBox function(const Expression& e) const {
        std::vector<MathBox> boxes;
        for (const Expression* const part : printedParts(e)) {
            if (!boxes.empty())
                boxes.push_back(word(QStringLiteral("; ")));
            boxes.push_back(part == nullptr ? word(QStringLiteral("…")) : set(*part));
        }
        MathBox inside = sheet::row(std::move(boxes));
        if (e.text == u"abs")
            return around(std::move(inside), u'|', u'|');
        if (e.text == u"floor")
            return around(std::move(inside), u'⌊', u'⌋');
        return sheet::row(
            {word(e.text), space(0.05 * size_), around(std::move(inside), u'(', u')')});
    }

    Show show_;
    double size_;
};

} // namespace

MathBox wordBox(const QString& word, double size) {
    return textBox(word, size, false);
}

MathBox symbolBox(const QString& symbol, double size) {
    const qsizetype index = symbol.indexOf(u'_');
    if (index < 0)
        return textBox(symbol, size, true);
    constexpr double drop = 0.18;
    return row({textBox(symbol.left(index), size, true),
                shifted(textBox(symbol.mid(index + 1), indexSize * size, false), drop * size)});
}

MathBox row(std::vector<MathBox> boxes) {
    MathBox made;
    for (const MathBox& box : boxes) {
        made.width += box.width;
        made.ascent = std::max(made.ascent, box.ascent);
        made.descent = std::max(made.descent, box.descent);
    }
    made.draw = [boxes = std::move(boxes)](QPainter& painter, QPointF at) {
        for (const MathBox& box : boxes) {
            box.draw(painter, at);
            at.rx() += box.width;
        }
    };
    return made;
}

MathBox fitted(MathBox box, double width) {
    if (box.width <= width || box.width <= 0)
        return box;
    const double scale = width / box.width;
    MathBox made{width, box.ascent * scale, box.descent * scale, {}};
    made.draw = [draw = std::move(box.draw), scale](QPainter& painter, QPointF at) {
        painter.save();
        painter.translate(at);
        painter.scale(scale, scale);
        draw(painter, {0, 0});
        painter.restore();
    };
    return made;
}

MathBox formulaBox(const Expression& expression, Show show, double size) {
    return Setter(show, size).set(expression);
}

} // namespace ferna::sheet
