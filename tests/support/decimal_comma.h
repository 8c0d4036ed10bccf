#pragma once

#include "runtime/format.h"

#include <QLocale>

namespace ferna::testing {

/// The decimal sign for the length of a test.
class WithDecimalSign {
public:
    explicit WithDecimalSign(QChar sign) { setDecimalSign(sign); }
    ~WithDecimalSign() { QLocale::setDefault(before_); }
    WithDecimalSign(const WithDecimalSign&) = delete;
    WithDecimalSign& operator=(const WithDecimalSign&) = delete;

private:
    QLocale before_;
};

} // namespace ferna::testing
