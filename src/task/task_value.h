#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace ferna {

/// A value of a task's JSON. Lives in a `TaskDocument`, its parts right behind it.
class TaskValue {
public:
    enum class Kind : std::uint8_t { Null, Boolean, Number, Text, Array, Object };

    bool isNull() const { return kind == Kind::Null; }
    bool isNumber() const { return kind == Kind::Number; }
    bool isText() const { return kind == Kind::Text; }
    bool isArray() const { return kind == Kind::Array; }
    bool isObject() const { return kind == Kind::Object; }

    /// The part of an object with that key; null where there is none or the value is no object.
    const TaskValue* find(std::string_view wanted) const;

    /// The parts of an object or array, in order.
    class Parts {
    public:
        class Iterator {
        public:
            using iterator_category = std::forward_iterator_tag;
            using difference_type = std::ptrdiff_t;
            using value_type = TaskValue;
            using pointer = const TaskValue*;
            using reference = const TaskValue&;

            explicit Iterator(const TaskValue* at) : at_(at) {}
            reference operator*() const { return *at_; }
            Iterator& operator++() {
                at_ += at_->span;
                return *this;
            }
            bool operator==(const Iterator& other) const = default;

        private:
            const TaskValue* at_;
        };

        explicit Parts(const TaskValue& whole) : whole_(whole) {}
        Iterator begin() const { return Iterator(&whole_ + 1); }
        Iterator end() const { return Iterator(&whole_ + whole_.span); }

    private:
        const TaskValue& whole_;
    };
    Parts parts() const { return Parts(*this); }

    /// The value as it would stand in a file, on one line, for messages.
    std::string written() const;

    Kind kind = Kind::Null;
    bool isTrue = false;     ///< of a boolean
    bool isWhole = false;    ///< of a number that was written as a whole one
    std::uint32_t count = 0; ///< parts of an array or object
    std::uint32_t span = 1;  ///< values from this one to behind its last part
    double number = 0;
    std::string_view text;
    std::string_view key; ///< in its object
};

/// The values of a text, and their letters.
class TaskDocument {
public:
    const TaskValue& root() const { return values.front(); }
    operator const TaskValue&() const { return root(); } // NOLINT: a document is read as its value

    std::vector<TaskValue> values;
    std::vector<char> letters; ///< never grows once texts point into it
};

/// The values of a text. Throws TaskError where it is no JSON, goes too deep, or where a key stands
/// twice in an object. Takes a time that grows as the text does.
TaskDocument parsed(std::string_view text);

} // namespace ferna
