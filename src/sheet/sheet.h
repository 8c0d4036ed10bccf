#pragma once

#include "sheet/quantity.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <variant>
#include <vector>

class QPainter;

namespace ferna::sheet {

// The calculation sheet as values. A writer walks the blocks and adds the layout of its own file
// and nothing else; no writer computes. Texts are Unicode with a little markup, <sub>, <sup>, <b>,
// <i>, everything else of HTML written as entities.

/// A text with markup.
using Rich = QString;

struct Heading {
    int level = 1; ///< 1 a section, 2 a load case or part, 3 below it
    Rich text;
};

enum class Tone {
    Plain,
    Small,   ///< what explains
    Warning, ///< what must not be overlooked
    Quote    ///< a message of the program, to the letter
};
struct Paragraph {
    Rich text;
    Tone tone = Tone::Plain;
    bool withNext = false; ///< not the last thing on its page
};

/// A computed number with its way: symbol = formula = numbers = result.
struct Equation {
    const Quantity* result = nullptr;
    /// The same quantity by the exact equilibrium, where `result` is by the search.
    const Quantity* exact = nullptr;
    Rich remark; ///< what it means, or how it compares
};
/// Given numbers in one line of text: "b = 150 mm, a = 100 mm".
struct Values {
    std::vector<const Quantity*> numbers;
};
/// Equations below one another. With `twoResults` the results stand in two columns, by the search
/// and by the exact equilibrium.
struct Equations {
    std::vector<Equation> rows;
    bool twoResults = false;
};

/// A cell holds a text or a number.
struct Cell {
    Rich text;
    const Quantity* number = nullptr;
    bool strong = false;
    int span = 1; ///< columns that it reaches over
};
struct Column {
    enum class Align { Left, Right, Centre };
    Align align = Align::Right;
    double width = 1; ///< share of the table
};
using Row = std::vector<Cell>;
struct Table {
    Rich caption;
    std::vector<Column> columns;
    std::vector<Row> head; ///< repeated where the table goes on over a page
    std::vector<Row> rows;
    double share = 1; ///< of the width of the page
};

/// Draws in mm, origin at the left upper corner, y down.
using Painting = std::function<void(QPainter& painter)>;
struct Picture {
    double width = 0; ///< mm
    double height = 0;
    std::shared_ptr<const Painting> painting; ///< null: there is nothing to draw
};

/// Lines to be filled in by hand.
struct SignatureFields {
    QStringList names;
};

struct Beside;
using Block = std::variant<Heading, Paragraph, Values, Equations, Table, Picture, SignatureFields,
                           std::shared_ptr<const Beside>>;
using Blocks = std::vector<Block>;

/// Two columns that stay together on a page.
struct Beside {
    Blocks left;
    Blocks right;
    double leftShare = 0.5;
};

/// A sheet owns its numbers; blocks point to them.
struct Sheet {
    Sheet() = default;
    Sheet(Sheet&&) = default;
    Sheet& operator=(Sheet&&) = default;

    QString language; ///< of the texts, as HTML names it: "pl"
    Rich title;       ///< "Arkusz obliczeniowy"
    Rich subject;     ///< project and footing, for the foot of the pages
    Rich made;        ///< program, version, date
    QString program;  ///< its name and version
    QString pageOf;   ///< "Strona %1 z %2"
    QString search;   ///< heads of the two columns of results
    QString exact;
    Blocks blocks;
    std::vector<std::unique_ptr<Quantity>> numbers;
    std::map<std::pair<int, QString>, const Quantity*> byName;
};

/// A text without markup as one with it.
inline Rich rich(const QString& plain) {
    return plain.toHtmlEscaped();
}
/// A symbol with its index below: "σ_b".
Rich richSymbol(const QString& symbol);

} // namespace ferna::sheet
