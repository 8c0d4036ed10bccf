#pragma once

#include "design/input_fields.h"
#include "runtime/typed_value.h"
#include "statics/load_scheme.h"

#include <QLineEdit>

#include <array>

namespace ferna {

/// The load table of the main form: `Text1` with the number of cases and six rows of five fields,
/// of which those of the cases are seen.
class LoadRows : public LoadTable {
public:
    /// By row: N, M1, M2, Vx, Vy.
    using Fields = std::array<std::array<QLineEdit*, 5>, MaxCases>;

    /// A hidden row keeps its room, so that nothing moves when it comes.
    LoadRows(QLineEdit* count, const Fields& fields);

    QLineEdit* first() const { return fields_[0][0]; }
    /// The field of a value of a case; null for a value of another kind.
    QLineEdit* fieldOf(const TypedValue& value) const;

    std::array<LoadRow<QString>, MaxCases> texts() const;
    void setTexts(const std::array<LoadRow<QString>, MaxCases>& texts);

    /// Shows the rows of so many cases and hides the others.
    void showRows(int cases);

    void setCount(const QString& text) override;
    void setRow(int r, const LoadRow<QString>& texts) override;
    void showRow(int r) override;

private:
    QLineEdit* count_;
    Fields fields_;
};

} // namespace ferna
