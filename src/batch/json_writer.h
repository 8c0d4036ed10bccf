#pragma once

#include "batch/object_reader.h"

#include <QString>

#include <string>
#include <string_view>
#include <utility>

namespace ferna::batch {

/// Writes JSON as it comes, without values in between, with the bytes of `Json::dump`: on one line,
/// or every part on a line of its own behind one blank a level.
class JsonWriter {
public:
    enum class Layout { OneLine, Indented };

    explicit JsonWriter(Layout layout) : isIndented_(layout == Layout::Indented) {
        constexpr std::size_t usual = 16'384; // bytes of a result
        bytes_.reserve(usual);
    }

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    /// The key of the value that follows. Its letters stand as they are.
    void key(std::string_view name);

    void null() { word("null"); }
    void boolean(bool value) { word(value ? "true" : "false"); }
    void whole(int value);
    void number(Double value);
    /// The shortest decimal that reads back to the same Single.
    void single(Single value);
    void text(const QString& value);
    /// A value that is there already; its texts are UTF-8.
    void value(const Json& value);

    /// Everything so far; the writer is empty then.
    std::string take() { return std::exchange(bytes_, {}); }

private:
    void begin(char bracket);
    void end(char bracket);
    void word(std::string_view letters);
    void part();
    void lineOfLevel();
    void utf8(std::string_view text);
    void wholeNumber(Double value);
    void escaped(char16_t letter);
    int other(QStringView text);

    std::string bytes_;
    int level_ = 0;
    bool isIndented_;
    bool isFirst_ = true; // of its object or array
    bool hasKey_ = false; // the value's place is told
};

} // namespace ferna::batch
