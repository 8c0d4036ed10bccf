#pragma once

#include "combinations/choice.h"
#include "combinations/evaluation.h"
#include "combinations/table_row.h"

namespace ferna::combinations {

/// A table of combinations as read, with the answers as far as they have been computed.
class AnsweredTable {
public:
    void add(ReadRow row);

    /// From now on the rows are to be answered anew.
    void forgetAnswers();
    /// Answers up to `count` further rows; false where none is left.
    bool answerNext(const Evaluator& evaluator, std::size_t count);

    std::size_t size() const { return rows_.size(); }
    std::size_t answered() const { return answers_.size(); }
    RowNumber refused() const { return refused_; }

    /// Row numbers are from 1, as the rows stand in the table.
    const ReadRow& row(RowNumber number) const { return rows_.at(index(number)); }
    /// Null where the row was refused.
    const Combination* combination(RowNumber number) const {
        return std::get_if<Combination>(&row(number));
    }
    /// True where the row has its answer, if only that nothing carries it.
    bool isAnswered(RowNumber number) const {
        return index(number) < answers_.size() && combination(number) != nullptr;
    }
    /// The answer of such a row; empty where nothing carries it.
    const std::optional<Utilisation>& answer(RowNumber number) const {
        return answers_.at(index(number));
    }

    const Choice& choice() const { return choice_; }
    /// The rows that use a check as its governing one does, in order; none where it is 0 in all.
    std::vector<RowNumber> governing(Check check) const;

private:
    static std::size_t index(RowNumber number) { return static_cast<std::size_t>(number - 1); }

    std::vector<ReadRow> rows_;
    std::vector<std::optional<Utilisation>> answers_; ///< of the first rows; empty of refused ones
    Choice choice_;
    RowNumber refused_ = 0;
};

/// What an engineer must know of a row beside its numbers: why it was refused, that nothing carries
/// it, which checks fail, that the calculation will refuse it. Empty where there is nothing, or
/// where it has no answer yet.
QString remarkOn(const AnsweredTable& table, RowNumber number);

/// "beton", "rozciąganie", "ścinanie", "interakcja".
QString nameOf(Check check);

/// A utilisation as it is shown: two decimals, "∞" where nothing could carry it.
QString useText(Double use);

/// The table with its answers for a spreadsheet: UTF-8 with a mark, semicolons, numbers with the
/// decimal sign of the program, one line a row and the names of the columns above.
QByteArray answersAsCsv(const AnsweredTable& table);

} // namespace ferna::combinations
