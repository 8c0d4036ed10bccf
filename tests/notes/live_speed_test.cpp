#include "notes/notes_desk.h"

#include <chrono>

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST(NotesWhileTyping, TwentyAnchorsAndSixCasesTakeLessThanFiveMilliseconds) {
    NotesDesk desk; // doubtful everywhere, so that every sentence is written
    for (int i = 0; i < MaxAnchors; ++i)
        desk.anchor(400, 300, i % 2 ? Integer{24} : Integer{30});
    for (int c = 0; c < MaxCases; ++c)
        desk.loads(10, -200 - c, 150);
    const auto doubtful = desk.typed();
    EXPECT_GE(doubtful.size(), 2U * MaxAnchors - 1);

    constexpr int keys = 20;
    const auto start = std::chrono::steady_clock::now();
    std::size_t said = 0;
    for (int key = 0; key < keys; ++key)
        said += desk.typed().size();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(said, keys * doubtful.size());
    EXPECT_LT(took.count() / keys, 5);
    RecordProperty("milliseconds", std::to_string(took.count() / keys));
    std::printf("%.3f ms a key\n", took.count() / keys);
}

} // namespace
