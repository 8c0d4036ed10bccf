#include "task/task_value.h"

#include "task/complaints.h"
#include "task/object_reader.h"
#include "task/plain_json.h"
#include "task/task_error.h"

#include <array>
#include <map>
#include <set>

namespace ferna {

namespace {

constexpr std::size_t deepest = 32;                       // levels of objects and arrays
constexpr std::int64_t mostWhole = std::int64_t{1} << 53; // a double holds them exactly up to here

/// What the parser says of a text that is no JSON.
TaskError noJson(const std::string& what) {
    return {"",
            {"expected JSON: " + what,
             "to nie jest pełny plik zadania (tekst JSON jest tu uszkodzony albo urwany)"}};
}

Json jsonOf(const TaskValue& value) {
    switch (value.kind) {
    case TaskValue::Kind::Null:
        return nullptr;
    case TaskValue::Kind::Boolean:
        return value.isTrue;
    case TaskValue::Kind::Number:
        return value.isWhole ? Json(static_cast<std::int64_t>(value.number)) : Json(value.number);
    case TaskValue::Kind::Text:
        return value.text;
    case TaskValue::Kind::Array:
    case TaskValue::Kind::Object:
        break;
    }
    Json parts = value.isArray() ? Json::array() : Json::object();
    for (const TaskValue& part : value.parts())
        if (value.isArray())
            parts.push_back(jsonOf(part));
        else
            parts[std::string(part.key)] = jsonOf(part);
    return parts;
}

/// Keeps what the parser tells; refuses a key that stands twice, and what is too deep.
class Keeper {
public:
    /// Where the letters of the texts that the parser tells stand.
    enum class Letters { InTheDocument, Elsewhere };

    /// `length`: of the whole text.
    Keeper(TaskDocument& document, std::size_t length, Letters letters)
        : document_(document), letters_(letters) {
        constexpr std::size_t bytesOfAValue = 8; // about, of a task
        document_.values.reserve(length / bytesOfAValue + 1);
        document_.letters.reserve(length); // a letter is never longer than what stood for it
    }

    // The library names its events.
    // NOLINTBEGIN(readability-identifier-naming)
    bool null() {
        keep(TaskValue::Kind::Null);
        return true;
    }
    bool boolean(bool value) {
        keep(TaskValue::Kind::Boolean).isTrue = value;
        return true;
    }
    bool number_integer(Json::number_integer_t value) {
        return number(static_cast<double>(value), value >= -mostWhole && value <= mostWhole);
    }
    bool number_unsigned(Json::number_unsigned_t value) {
        return number(static_cast<double>(value), value <= std::uint64_t{mostWhole});
    }
    bool number_float(double value, std::string_view /*text*/) { return number(value, false); }
    bool string(std::string_view value) {
        const std::string_view text = lettersOf(value);
        keep(TaskValue::Kind::Text).text = text;
        return true;
    }
    bool binary(const Json::binary_t& /*value*/) { return false; } // not of a text
    bool start_object(std::size_t /*count*/) { return open(TaskValue::Kind::Object); }
    bool end_object() { return close(); }
    bool start_array(std::size_t /*count*/) { return open(TaskValue::Kind::Array); }
    bool end_array() { return close(); }

    bool key(std::string_view name) {
        Level& level = levels_[depth_ - 1];
        level.key = lettersOf(name);
        const TaskValue& object = document_.values[level.begin];
        if (isKnown(level, object))
            throw TaskError(pathOf(depth_), keyTwice);
        return true;
    }

    bool parse_error(std::size_t /*place*/, const std::string& /*token*/,
                     const nlohmann::detail::exception& failure) {
        const std::string what = failure.what();
        const std::size_t behindTheId = what.find("] ");
        throw noJson(behindTheId == std::string::npos ? what : what.substr(behindTheId + 2));
    }
    // NOLINTEND(readability-identifier-naming)

private:
    struct Level {
        std::size_t begin = 0;     // of the object or array among the values
        std::string_view key = {}; // the last one
        std::uint64_t marks = 0;   // of the keys so far
    };
    std::string_view lettersOf(std::string_view text) {
        if (letters_ == Letters::InTheDocument)
            return text;
        const std::size_t begin = document_.letters.size();
        document_.letters.insert(document_.letters.end(), text.begin(), text.end());
        return {document_.letters.data() + begin, text.size()};
    }

    TaskValue& keep(TaskValue::Kind kind) {
        TaskValue& value = document_.values.emplace_back();
        value.kind = kind;
        if (depth_ > 0) {
            TaskValue& whole = document_.values[levels_[depth_ - 1].begin];
            ++whole.count;
            if (whole.isObject())
                value.key = levels_[depth_ - 1].key;
        }
        return value;
    }

    bool number(double value, bool isWhole) {
        TaskValue& kept = keep(TaskValue::Kind::Number);
        kept.number = value;
        kept.isWhole = isWhole;
        return true;
    }

    bool open(TaskValue::Kind kind) {
        if (depth_ == deepest)
            throw TaskError(pathOfNext(), tooDeep(deepest));
        const std::size_t begin = document_.values.size();
        keep(kind);
        levels_[depth_++] = {begin, {}, 0};
        return true;
    }

    bool close() {
        const std::size_t begin = levels_[--depth_].begin;
        document_.values[begin].span = static_cast<std::uint32_t>(document_.values.size() - begin);
        return true;
    }

    /// One of 64 marks; keys that are alike have the same.
    static std::uint64_t markOf(std::string_view key) {
        const auto letter = [](char c) { return static_cast<unsigned char>(c); };
        const std::size_t sum =
            key.empty() ? 0 : letter(key.front()) + 7U * letter(key.back()) + 5 * key.size();
        return std::uint64_t{1} << sum % 64;
    }

    /// True where the present key of the object that is being read stands before.
    bool isKnown(Level& level, const TaskValue& object) {
        constexpr std::uint32_t few = 32;
        const std::uint64_t mark = markOf(level.key);
        const bool isNew = (level.marks & mark) == 0;
        level.marks |= mark;
        if (isNew && object.count < few)
            return false;
        if (object.count < few) {
            const TaskValue* part = &object + 1;
            for (std::uint32_t i = 0; i < object.count; ++i, part += part->span)
                if (part->key == level.key)
                    return true;
            return false;
        }
        std::set<std::string_view>& keys = manyKeys_[level.begin];
        if (keys.empty()) {
            const TaskValue* part = &object + 1;
            for (std::uint32_t i = 0; i < object.count; ++i, part += part->span)
                keys.insert(part->key);
        }
        return !keys.insert(level.key).second;
    }

    /// Key path of what is being read in the innermost of so many levels.
    std::string pathOf(std::size_t depth) const {
        std::string path;
        for (std::size_t i = 0; i < depth; ++i) {
            const TaskValue& whole = document_.values[levels_[i].begin];
            if (whole.isArray())
                path += '[' + std::to_string(whole.count - (i + 1 < depth ? 1 : 0)) + ']';
            else
                (path += path.empty() ? "" : ".") += levels_[i].key;
        }
        return path;
    }
    std::string pathOfNext() const { return pathOf(depth_); }

    TaskDocument& document_;
    Letters letters_;
    std::array<Level, deepest> levels_;
    std::size_t depth_ = 0;
    std::map<std::size_t, std::set<std::string_view>> manyKeys_; // of objects with many
};

} // namespace

const TaskValue* TaskValue::find(std::string_view wanted) const {
    if (isObject())
        for (const TaskValue& part : parts())
            if (part.key == wanted)
                return &part;
    return nullptr;
}

std::string TaskValue::written() const {
    return jsonOf(*this).dump(-1, ' ', false, Json::error_handler_t::replace);
}

TaskDocument parsed(std::string_view text) {
    TaskDocument document;
    document.letters.assign(text.begin(), text.end());
    Keeper keeper(document, text.size(), Keeper::Letters::InTheDocument);
    if (PlainJson({document.letters.data(), text.size()}, keeper).read())
        return document;
    // The library takes it for the end and would not see what stands behind it.
    if (text.find('\0') != std::string_view::npos)
        throw noJson("a zero byte stands in it");
    TaskDocument again;
    Keeper other(again, text.size(), Keeper::Letters::Elsewhere);
    Json::sax_parse(text, &other);
    return again;
}

} // namespace ferna
