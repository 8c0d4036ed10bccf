#pragma once

#include "notes/record.h"
#include "sheet/sheet.h"
#include "sheet/sheet_input.h"
#include "sheet/texts.h"
#include "utilisation/utilisation.h"

#include <initializer_list>

namespace ferna::sheet {

/// How a number is printed.
struct Shown {
    int decimals = -1; ///< fixed, where not negative
    int digits = 5;    ///< else so many that count
    QString told = {}; ///< else this text, as the report gives it
};
inline Shown places(int decimals) {
    return {.decimals = decimals};
}
inline Shown digits(int count) {
    return {.digits = count};
}

using Numbers = std::vector<const Quantity*>;

/// A load case on its way into the sheet.
struct CaseSheet {
    int number = 1;
    bool readable = false; ///< its loads are numbers
    equilibrium::Load load;
    Shear shear;
    const notes::ToldCase* told = nullptr; ///< results of the search; null where there are none
    const equilibrium::Result* exact = nullptr; ///< null where there is no equilibrium
    std::optional<Utilisation> exactUse;

    bool hasLine() const { return told != nullptr && notes::hasLine(*told); }
    bool wholePlate() const { return told != nullptr && !notes::hasLine(*told); }
};

/// The sheet while it is made, with what its parts share.
class Maker {
public:
    explicit Maker(const SheetInput& input);

    const SheetInput& input() const { return input_; }
    const notes::Entered& entered() const { return input_.record.given(); }
    const Texts& text() const { return text_; }
    Sheet& sheet() { return sheet_; }

    // Blocks
    void add(Block block) { sheet_.blocks.push_back(std::move(block)); }
    void heading(int level, const Rich& text) { add(Heading{level, text}); }
    void say(const QString& key, const QStringList& arguments = {}, Tone tone = Tone::Plain) {
        add(Paragraph{text_(key, arguments), tone});
    }

    // Numbers. Cases and names are unique together: a second number of a name is a logic error.
    const Quantity* given(int c, const QString& id, const QString& symbol, double value,
                          const QString& unit, const Shown& shown = digits(7),
                          const QString& source = {});
    const Quantity* computed(int c, const QString& id, const QString& symbol, const Clause& clause,
                             const Numbers& inputs, const Shown& shown);
    const Quantity* computed(int c, const QString& id, const QString& symbol, const QString& unit,
                             Expression formula, const Shown& shown, const QString& source = {});
    /// A number made before, of that case or of all; null where there is none.
    const Quantity* find(int c, const QString& id) const;
    /// The same where it is known to be there.
    const Quantity* at(int c, const QString& id) const;

    QString sourceText(const Source& source) const;

    // What is entered, and what it is held against
    std::vector<equilibrium::Anchor> anchors;
    std::optional<CheckLimits> limits;
    std::vector<CaseSheet> cases;
    bool hasBase = false;

private:
    const Quantity* keep(Quantity quantity);

    const SheetInput& input_;
    Texts text_;
    Sheet sheet_;
};

/// Expressions that refer to numbers.
std::vector<Expression> references(const Numbers& numbers);

// Cells
inline Cell cell(const Rich& text) {
    return {text};
}
inline Cell cell(const Quantity* number) {
    return {{}, number};
}
inline Cell headCell(const Rich& text, int span = 1) {
    return {text, nullptr, true, span};
}

} // namespace ferna::sheet
