#include "batch/note_section.h"

namespace ferna::batch {

Json notesJson(const notes::Notes& notes) {
    Json list = Json::array();
    for (const notes::Note& note : notes) {
        Json& one = list.emplace_back(Json::object());
        one["kod"] = notes::codeName(note.code);
        const auto number = [&one](const char* key, int value) {
            if (value != 0)
                one[key] = value;
        };
        number("przypadek", note.caseNumber);
        number("kotwa", note.anchor);
        number("sprawdzenie", note.check);
        one["tekst"] = note.text.toStdString();
    }
    return list;
}

} // namespace ferna::batch
