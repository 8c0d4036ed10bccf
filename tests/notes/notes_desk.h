#pragma once

#include "notes/notes.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace ferna::testing {

/// A column base whose calculation is taken down for the notes.
struct NotesDesk : ColumnBase {
    WithDecimalSign comma{u','};
    notes::Record record;

    /// Calculates, and gives what there is to say.
    notes::Notes calculated() {
        struct Host : RecordingHost {
            NotesDesk& desk;
            explicit Host(NotesDesk& of) : desk(of) {}
            void caseEnded(int c) override { desk.record.caseEnded(desk.stan, c); }
            void caseRefused(int c) override { desk.record.caseRefused(desk.stan, c); }
        } taking(*this);
        record.begin(notes::entered(stan, fields));
        Oblicz(stan, solver, fields, dialogs, taking);
        return notes::notesOf(record);
    }

    /// What is doubtful about the input.
    notes::Notes typed() const { return notes::notesOf(notes::entered(stan, fields)); }

    /// The exact equilibrium of a case.
    equilibrium::Result exact(int c) const {
        return *enteredEquilibria(stan, fields).byCase.at(static_cast<std::size_t>(c - 1));
    }

    /// A case 1 that ended so and was told these stresses, MPa; `anchors` negative in tension.
    notes::Notes told(CaseOutcome outcome, Double concrete, const std::vector<Double>& anchors) {
        record.begin(notes::entered(stan, fields));
        stan.materialy.Fd_kotwy = Fd;
        stan.materialy.Rb_betonu = Rb;
        stan.wyniki.outcomes(1) = outcome;
        stan.wyniki.Sigma_b(1) = CSng(concrete);
        for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
            const Double stress = anchors.at(static_cast<std::size_t>(i - 1));
            stan.plyta.Odl_kotwy(i) = stress < 0 ? -1 : 1;
            if (stress < 0)
                stan.wyniki.Sigma_kotwy(i)(1) = CSng(stress);
        }
        record.caseEnded(stan, 1);
        return notes::notesOf(record);
    }
    notes::Notes toldExactly(CaseOutcome outcome) {
        const equilibrium::Result is = exact(1);
        return told(outcome, is.sigmaConcrete, {is.sigmaAnchor.begin(), is.sigmaAnchor.end()});
    }

    Single Fd = 215;
    Single Rb = 8.7F;
};

/// The codes of the notes with their case, anchor and check: "odchylka 1 k2 s3".
inline std::vector<std::string> marks(const notes::Notes& notes) {
    std::vector<std::string> result;
    for (const notes::Note& note : notes) {
        std::string mark = notes::codeName(note.code);
        if (note.caseNumber)
            mark += ' ' + std::to_string(note.caseNumber);
        if (note.anchor)
            mark += " k" + std::to_string(note.anchor);
        if (note.check)
            mark += " s" + std::to_string(note.check);
        result.push_back(mark);
    }
    return result;
}

using Marks = std::vector<std::string>;

} // namespace ferna::testing
