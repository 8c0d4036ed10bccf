#include "combinations/answered_table.h"
#include "combinations/table_reader.h"
#include "fuzzing.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

using namespace ferna;
using namespace ferna::combinations;
using namespace ferna::fuzzing;

namespace {

/// A plate of 600 x 400 mm with an anchor at each corner.
const Evaluator& evaluator() {
    static const Evaluator made = [] {
        Stan stan;
        int i = 0;
        for (const Single x : {-25.0F, 25.0F})
            for (const Single y : {-15.0F, 15.0F}) {
                stan.plyta.X_kotwy(++i) = x;
                stan.plyta.Y_kotwy(i) = y;
                stan.plyta.Fi_kotwy(i) = 24;
            }
        stan.plyta.Liczba_srub = CInt(i);
        stan.opcje.Nr_betonu = 1;
        InputFields fields;
        fields.Text2 = QStringLiteral("9");
        fields.Text3 = QStringLiteral("600");
        fields.Text4 = QStringLiteral("400");
        fields.cmbStal = 1;
        return std::get<Evaluator>(Evaluator::of(stan, fields));
    }();
    return made;
}

void checkRow(const ReadRow& row) {
    if (const auto* const refusal = std::get_if<Refusal>(&row)) {
        require(refusal->text.startsWith(u"kolumna "), "a refusal names its column");
        return;
    }
    const auto& one = std::get<Combination>(row);
    for (const Double load : {one.load.N, one.load.M1, one.load.M2, one.shear.Vx, one.shear.Vy})
        require(std::fabs(load) <= 1e100, "a load is a number of some size");
}

void checkChoice(const AnsweredTable& table) {
    const std::vector<RowNumber> six = table.choice().six();
    const auto computed = static_cast<RowNumber>(table.size()) - table.refused();
    require(static_cast<RowNumber>(six.size()) == std::min<RowNumber>(chosenRows, computed),
            "six rows, or as many as there are");
    for (const Check check : allChecks) {
        const RowNumber row = table.choice().governing(check);
        require((row > 0) == (computed > 0), "of any rows one governs");
        require(row == 0 || std::find(six.begin(), six.end(), row) != six.end(),
                "the six hold every governing one");
    }
    for (const RowNumber row : six)
        require(table.combination(row) != nullptr, "no refused row is chosen");
}

} // namespace

// The text of a table of combinations: every row becomes a combination or a refusal, and the choice
// holds what governs.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QByteArray bytes = bytesOf(data, size);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    TextSource source(buffer);
    TableReader reader(source);
    const Layout& layout = reader.layout();
    for (const LoadColumn& load : layout.columns.byLoad)
        require(load.column < std::max(layout.width, 6), "a column is one of the table");
    AnsweredTable table;
    while (auto row = reader.next()) {
        checkRow(*row);
        table.add(*std::move(row));
        require(table.size() <= size + 1, "no row comes out of nothing");
    }
    table.answerNext(evaluator(), table.size());
    checkChoice(table);
    require(!answersAsCsv(table).isEmpty(), "the answers can be exported");
    return 0;
}
