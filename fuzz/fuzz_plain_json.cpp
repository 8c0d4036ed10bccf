#include "fuzzing.h"
#include "task/plain_json.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstring>
#include <string>

using namespace ferna;
using namespace ferna::fuzzing;

namespace {

/// Writes down what a reader tells, with every bit of the numbers.
class Tale {
public:
    bool null() { return tell("null"); }
    bool boolean(bool value) { return tell(value ? "true" : "false"); }
    bool number_integer(std::int64_t value) { return tell('#' + std::to_string(value)); }
    bool number_unsigned(std::uint64_t value) { return tell('#' + std::to_string(value)); }
    bool number_float(double value, std::string_view /*text*/) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return tell('~' + std::to_string(bits));
    }
    bool string(std::string_view value) { return tell('"' + std::string(value)); }
    bool binary(const nlohmann::json::binary_t& /*value*/) { return false; }
    bool key(std::string_view name) { return tell(':' + std::string(name)); }
    bool start_object(std::size_t /*count*/) { return ++depth_ <= deepest && tell("{"); }
    bool end_object() { return --depth_ >= 0 && tell("}"); }
    bool start_array(std::size_t /*count*/) { return ++depth_ <= deepest && tell("["); }
    bool end_array() { return --depth_ >= 0 && tell("]"); }
    bool parse_error(std::size_t /*place*/, const std::string& /*token*/,
                     const nlohmann::detail::exception& /*failure*/) {
        return false;
    }

    const std::string& told() const { return told_; }

private:
    static constexpr int deepest = 32;

    bool tell(const std::string& what) {
        told_ += what;
        told_ += '\n';
        return true;
    }

    std::string told_;
    int depth_ = 0;
};

/// What is left to the library though it is JSON: escapes, a mark of the encoding before the text,
/// a zero that the library takes for its end, and numbers that may lie beyond those that the reader
/// holds.
bool mayBeLeft(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF") || text.find('\\') != text.npos
        || text.find('\0') != text.npos)
        return true;
    std::size_t digits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        digits = text[i] >= '0' && text[i] <= '9' ? digits + 1 : 0;
        const bool isExponent =
            (text[i] == 'e' || text[i] == 'E') && i > 0 && text[i - 1] >= '0' && text[i - 1] <= '9';
        if (digits > 18 || isExponent)
            return true;
    }
    return false;
}

} // namespace

// The quick reader of plain JSON against the library: it takes nothing that the library refuses,
// tells the same of what it takes, and leaves nothing plain to the library.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    Tale quick;
    Tale slow;
    const bool isTaken = PlainJson(text, quick).read();
    const bool isJson = nlohmann::json::sax_parse(text, &slow);
    if (isTaken) {
        require(isJson, "what the quick reader takes is JSON");
        require(quick.told() == slow.told(), "both readers tell the same");
    } else if (isJson) {
        require(mayBeLeft(text), "plain JSON is taken by the quick reader");
    }
    return 0;
}
