#include "task/json_text.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <cmath>

namespace ferna {

namespace {

constexpr std::size_t indent = 4;

bool isShort(const Json& value) {
    return std::none_of(value.begin(), value.end(),
                        [](const Json& part) { return part.is_structured(); });
}

std::string scalar(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// NOLINTNEXTLINE(misc-no-recursion): a task is a few levels deep
void write(std::string& out, const Json& value, std::size_t level) {
    if (!value.is_structured()) {
        out += scalar(value);
        return;
    }
    const bool onOneLine = value.empty() || (level > 0 && isShort(value));
    out += value.is_object() ? '{' : '[';
    bool first = true;
    for (const auto& [key, part] : value.items()) {
        if (!first)
            out += onOneLine ? ", " : ",";
        first = false;
        if (!onOneLine)
            out.append("\n").append((level + 1) * indent, ' ');
        if (value.is_object())
            out.append(scalar(key)).append(": ");
        write(out, part, level + 1);
    }
    if (!onOneLine)
        out.append("\n").append(level * indent, ' ');
    out += value.is_object() ? '}' : ']';
}

} // namespace

std::optional<double> numberIn(const QString& text) {
    try {
        return CDbl(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

Json jsonNumber(double value) {
    constexpr double exact = 1e15;
    if (value == std::floor(value) && std::fabs(value) < exact)
        return static_cast<std::int64_t>(value);
    return value;
}

std::string readableText(const Json& value) {
    std::string out;
    write(out, value, 0);
    return out += '\n';
}

} // namespace ferna
