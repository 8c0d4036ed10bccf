#include "task/complaints.h"
#include "task/task.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <vector>

namespace ferna {

namespace {

/// Keeps the key path of the value that the parser is at, and refuses a key that stands twice.
class PathKeeper {
public:
    using Event = nlohmann::json::parse_event_t;

    /// To be called at every event. Returns the path where a value begins, else null.
    const std::string* at(Event event, const nlohmann::json& value) {
        switch (event) {
        case Event::key:
            key(value.get_ref<const std::string&>());
            return nullptr;
        case Event::object_start:
        case Event::array_start: {
            const std::string* const begun = beginValue();
            if (levels_.size() == deepest)
                throw TaskError(path_, tooDeep(deepest));
            levels_.push_back({event == Event::array_start, path_, {}, 0});
            return begun;
        }
        case Event::object_end:
        case Event::array_end:
            levels_.pop_back();
            return nullptr;
        case Event::value:
            return beginValue();
        }
        return nullptr;
    }

private:
    static constexpr std::size_t deepest = 32; // every level keeps its path

    struct Level {
        bool isArray;
        std::string path;
        std::set<std::string, std::less<>> keys;
        std::size_t next;
    };

    void key(const std::string& name) {
        Level& level = levels_.back();
        path_ = level.path.empty() ? name : level.path + '.' + name;
        if (!level.keys.insert(name).second)
            throw TaskError(path_, keyTwice);
    }

    const std::string* beginValue() {
        if (!levels_.empty() && levels_.back().isArray) {
            Level& level = levels_.back();
            path_ = level.path + '[' + std::to_string(level.next++) + ']';
        }
        return &path_;
    }

    std::vector<Level> levels_;
    std::string path_;
};

/// Characters of a text that count the line ends they have passed.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* position, int* lines) : position_(position), lines_(lines) {}

    reference operator*() const { return *position_; }
    CountingIterator& operator++() {
        if (*position_ == '\n')
            ++*lines_;
        ++position_;
        return *this;
    }
    CountingIterator operator++(int) {
        CountingIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const CountingIterator& other) const { return position_ == other.position_; }

private:
    const char* position_;
    int* lines_;
};

} // namespace

int lineOf(std::string_view text, const std::string& path) {
    int line = 1;
    int found = 1;
    bool known = path.empty();
    if (const std::size_t zero = text.find('\0'); known && zero != std::string_view::npos) {
        const std::string_view before = text.substr(0, zero);
        return 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
    }
    PathKeeper keeper;
    try {
        const auto note = [&](int /*depth*/, PathKeeper::Event event, nlohmann::json& value) {
            if (const std::string* const at = keeper.at(event, value);
                at != nullptr && *at == path && !known) {
                found = line;
                known = true;
            }
            return true;
        };
        const nlohmann::json whole =
            nlohmann::json::parse(CountingIterator(text.data(), &line),
                                  CountingIterator(text.data() + text.size(), &line), note);
    } catch (const TaskError&) { // a key that stands twice ends the reading at its second place
        if (!known)
            found = line;
    } catch (const nlohmann::json::exception&) {
        return line;
    }
    // A missing key has no line of its own: that of the object it belongs to.
    if (!known && path.find('.') != std::string::npos)
        return lineOf(text, path.substr(0, path.rfind('.')));
    return found;
}

} // namespace ferna
