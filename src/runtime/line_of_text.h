#pragma once

#include "runtime/numbers.h"

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

namespace ferna {

/// A line of a report that is put together from texts and numbers: one text at its end and none in
/// between.
class LineOfText {
    static constexpr qsizetype usual = 160; // letters; more are no error

public:
    using Letters = QVarLengthArray<QChar, usual>;

    LineOfText& add(QStringView text) {
        letters_.append(text.data(), text.size());
        return *this;
    }

    /// A number as `Format` writes it.
    LineOfText& number(Single value, QStringView pattern);
    LineOfText& number(Double value, QStringView pattern);
    LineOfText& number(int value, QStringView pattern);

    /// A number as `general` writes it.
    LineOfText& general(Single value);
    LineOfText& general(Double value);
    LineOfText& general(int value);

    operator QString() const { return QString(letters_.data(), letters_.size()); } // NOLINT

private:
    Letters letters_;
};

} // namespace ferna
