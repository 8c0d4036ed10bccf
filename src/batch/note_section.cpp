#include "batch/note_section.h"

namespace ferna::batch {

void writeNotes(JsonWriter& json, const notes::Notes& notes) {
    const auto number = [&json](std::string_view key, int value) {
        if (value == 0)
            return;
        json.key(key);
        json.whole(value);
    };
    json.beginArray();
    for (const notes::Note& note : notes) {
        json.beginObject();
        json.key("kod");
        json.utf8(notes::codeName(note.code));
        number("przypadek", note.caseNumber);
        number("kotwa", note.anchor);
        number("sprawdzenie", note.check);
        json.key("tekst");
        json.text(note.text);
        json.endObject();
    }
    json.endArray();
}

} // namespace ferna::batch
