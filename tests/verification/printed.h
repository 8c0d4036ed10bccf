#pragma once

#include <cstdarg>
#include <cstdio>
#include <string>

namespace ferna::testing {

/// A text of up to 400 bytes by a pattern of the C library.
[[gnu::format(printf, 1, 2)]] inline std::string printed(const char* pattern, ...) {
    char text[400];
    std::va_list values;
    va_start(values, pattern);
    std::vsnprintf(text, sizeof text, pattern, values);
    va_end(values);
    return text;
}

} // namespace ferna::testing
