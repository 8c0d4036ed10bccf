#pragma once

#include "task/object_reader.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace ferna::batch {

/// Bytes that grow at their end.
class GrowingBytes {
public:
    explicit GrowingBytes(std::size_t room) : bytes_(new char[room]), room_(room) {}

    /// A place for so many more bytes; `take` tells where the last of them ends.
    char* room(std::size_t more) {
        if (size_ + more > room_)
            grow(more);
        return bytes_.get() + size_;
    }
    void take(const char* end) { size_ = static_cast<std::size_t>(end - bytes_.get()); }

    GrowingBytes& operator+=(char byte) {
        *room(1) = byte;
        ++size_;
        return *this;
    }
    GrowingBytes& operator+=(std::string_view more) {
        std::copy(more.begin(), more.end(), room(more.size()));
        size_ += more.size();
        return *this;
    }

    /// With room for the line end that mostly follows.
    std::string text() const {
        std::string all;
        all.reserve(size_ + 1);
        return all.append(bytes_.get(), size_);
    }

private:
    void grow(std::size_t more) {
        room_ = 2 * room_ + more;
        std::unique_ptr<char[]> grown(new char[room_]);
        std::copy_n(bytes_.get(), size_, grown.get());
        bytes_ = std::move(grown);
    }

    std::unique_ptr<char[]> bytes_;
    std::size_t room_;
    std::size_t size_ = 0;
};

/// Writes JSON as it comes, without values in between, with the bytes of `Json::dump`: on one line,
/// or every part on a line of its own behind one blank a level.
class JsonWriter {
public:
    enum class Layout { OneLine, Indented };

    explicit JsonWriter(Layout layout) : isIndented_(layout == Layout::Indented) {}

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    /// The key of the value that follows. Its letters stand as they are.
    void key(std::string_view name);

    void null() { word("null"); }
    void boolean(bool value) { word(value ? "true" : "false"); }
    void whole(std::int64_t value);
    void number(Double value);
    /// The shortest decimal that reads back to the same Single.
    void single(Single value);
    void text(QStringView value);
    /// A text in UTF-8, which is sound: it comes from the program's own.
    void utf8(std::string_view value);
    /// A value that is there already; its texts are UTF-8.
    void value(const Json& value);

    /// Everything so far.
    std::string written() const { return bytes_.text(); }

private:
    void begin(char bracket);
    void end(char bracket);
    void word(std::string_view letters);
    void part();
    void lineOfLevel();
    void wholeNumber(Double value);

    static constexpr std::size_t usual = 16'384; // bytes of a result
    GrowingBytes bytes_{usual};
    int level_ = 0;
    bool isIndented_;
    bool isFirst_ = true; // of its object or array
    bool hasKey_ = false; // the value's place is told
};

} // namespace ferna::batch
