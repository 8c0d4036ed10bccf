#include "notes/notes.h"

#include "notes/case_notes.h"
#include "notes/input_notes.h"
#include "notes/name_notes.h"
#include "notes/plate_notes.h"

#include <algorithm>

namespace ferna::notes {

namespace {

void add(Notes& notes, Notes more) {
    std::move(more.begin(), more.end(), std::back_inserter(notes));
}

Notes inOrder(Notes notes) {
    putInOrder(notes);
    return notes;
}

bool hasExact(const Notes& notes, int c) {
    return std::any_of(notes.begin(), notes.end(), [c](const Note& note) {
        return note.caseNumber == c
               && (note.code == Code::BrakRozwiazania || note.code == Code::NieStoi
                   || note.code == Code::Rozciaganie);
    });
}

/// True where the calculation has ended without results because of a case.
bool failedAtACase(const Record& record) {
    if (record.refusedCase() != 0)
        return true;
    for (int c = 1; c <= record.given().cases; ++c)
        if (record.told(c).outcome == CaseOutcome::GaveUp)
            return true;
    return false;
}

} // namespace

Notes notesOf(const Entered& entered) {
    Notes notes = inputNotes(entered);
    if (entered.plate.Liczba_srub == 0)
        std::erase_if(notes, [](const Note& note) { return note.code == Code::NieStoi; });
    add(notes, nameNotes(entered));
    return inOrder(std::move(notes));
}

Notes notesOf(const Record& record) {
    if (!record.begun())
        return {};
    Notes notes = inputNotes(record.given());
    for (int c = 1; c <= record.given().cases; ++c)
        add(notes, caseNotes(record, c));
    add(notes, nameNotes(record.given()));
    add(notes, labelNotes(record.label()));
    if (record.plate()) {
        add(notes, plateNotes(*record.plate()));
        add(notes, plateSteelNotes(record.plate()->steelName));
    }
    return inOrder(std::move(notes));
}

Notes notesInPlaceOfResults(const Record& record, const Entered& now) {
    if (!record.begun() || !failedAtACase(record))
        return {};
    Notes notes = notesOf(now);
    for (int c = 1; c <= record.given().cases; ++c) {
        add(notes, caseNotes(record, c));
        if (!hasExact(notes, c))
            add(notes, exactNote(record, c));
    }
    return inOrder(std::move(notes));
}

} // namespace ferna::notes
