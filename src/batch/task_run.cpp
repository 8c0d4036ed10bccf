#include "batch/task_run.h"

#include "command/calculation.h"
#include "input/anchor_layout.h"
#include "input/plate_drawing.h"
#include "pages/sketch_files.h"
#include "report/zone_sketch.h"
#include "task/field_keys.h"

#include <cstdio>

namespace ferna::batch {

namespace {

/// The surroundings of a calculation without windows: the steel dialog is answered from the task.
class HeadlessHost : public CalculationHost {
public:
    HeadlessHost(ComputedTask& done, const RunOptions& options) : done_(done), options_(options) {}

    void KGM8(Stan& stan) override {
        if (acceptAnchorSteel(stan, done_.task.steel, done_.dialogs))
            cancelSteel(stan);
    }

    void drawPlate(Stan& stan, const InputFields& fields) override {
        if (!options_.pictures.isEmpty())
            savePlatePicture(stan, fields, done_.dialogs,
                             options_.pictures + u'/' + platePictureFile);
    }

    int casesEnded() const { return casesEnded_; }

    void caseEnded(int c) override {
        casesEnded_ = c;
        CaseTrace& trace = done_.traces.at(static_cast<std::size_t>(c));
        const Wyniki& results = done_.task.stan.wyniki;
        trace.firstLine = CInt(lastLine_ + 1);
        trace.lastLine = lastLine_ = results.Nr_wiersza;
        trace.wholePlate = results.Przyp_policzony(c) == True;
        trace.Beta = done_.solver.Beta;
        trace.C_linii = done_.solver.C_linii;
        trace.Wsp_k = done_.solver.Wsp_k;
        done_.record.caseEnded(done_.task.stan, c);
    }

    void caseRefused(int c) override { done_.record.caseRefused(done_.task.stan, c); }

private:
    ComputedTask& done_;
    const RunOptions& options_;
    Integer lastLine_ = 0;
    int casesEnded_ = 0;
};

/// The load case that a run-time error stopped: that of its key, or the one under way.
std::optional<int> caseOf(const RunTimeError& failure, int ended, const Stan& stan) {
    int row = 0;
    if (std::sscanf(failure.key().c_str(), "Przypadki[%d]", &row) == 1)
        return row + 1;
    if (!failure.key().empty() || stan.obciazenia.Nr_przyp != ended + 1)
        return {};
    return ended + 1;
}

/// Keeps how a section ended. False where a run-time error stopped it.
bool keep(ComputedTask& done, const SectionResult& result) {
    done.failure = result.Blad;
    return done.failure.is_null();
}

/// The sections that follow the results, in the order of the menu.
void runSections(ComputedTask& done, const RunOptions& options) {
    Stan& stan = done.task.stan;
    if (done.task.plate) {
        done.plate = runPlateTask(*done.task.plate, stan, done.dialogs);
        done.record.plateWorked(done.plate->facts);
        if (done.plate->section && !options.pictures.isEmpty())
            for (const PlateSketch& sketch : done.plate->section->sketches)
                savePlateSketch(options.pictures, sketch.image, QString::fromLatin1(sketch.file));
        if (!keep(done, *done.plate))
            return;
    }
    if (done.task.anchor) {
        done.anchor = runAnchorTask(*done.task.anchor, stan, done.dialogs);
        keep(done, *done.anchor);
    }
}

void prepareReport(ComputedTask& done, const RunOptions& options) {
    Stan& stan = done.task.stan;
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c) {
        if (wholePlate(stan, c))
            continue;
        if (options.pictures.isEmpty())
            done.raport.Wiersze_strefy(c - 1) = Wiersz_strefy(stan, c);
        else
            Rysuj_strefe(done.raport, stan, c, options.pictures + u'/' + zoneSketchFile(c));
    }
    done.raport.titleLines = options.titleLines->lines(stan.opcje.Nr_jezyka);
    if (options.reports) {
        fillAnchorLines(stan);
        Wypelnij_wiersze(done.raport, stan);
        done.dialogs.answers.push_back(done.task.Nazwa_stopy);
        Naglowek(done.raport, stan, stan.opcje.Nr_normy == 0, options.now, done.dialogs);
    }
    done.reportReady = true;
}

} // namespace

ComputedTask run(Task task, const RunOptions& options) {
    ComputedTask done(std::move(task), options.now);
    Stan& stan = done.task.stan;
    stan.Teksty = options.catalogues->texts(stan.opcje.Nr_jezyka);
    if (done.task.column)
        done.column = runColumnTask(*done.task.column, stan, done.task.fields);
    const bool columnKept = !done.column || keep(done, *done.column);
    done.equilibria = enteredEquilibria(stan, done.task.fields);
    done.record.begin(notes::entered(stan, done.task.fields, done.equilibria));
    done.record.labelled(done.task.Nazwa_stopy);
    if (!columnKept)
        return done;
    HeadlessHost host(done, options);
    try {
        const CalculationEnd end = Oblicz(stan, done.solver, done.task.fields, done.dialogs, host);
        done.computed = end != CalculationEnd::Refused;
        if (end == CalculationEnd::Computed) {
            prepareReport(done, options);
            runSections(done, options);
        }
    } catch (const RunTimeError& raised) {
        const RunTimeError failure = raised.of(keyOfValue(raised.value()));
        const std::optional<int> stopped = caseOf(failure, host.casesEnded(), stan);
        done.failure = errorJson(failure, stopped);
        if (addsCase(done.task) && !failure.key().empty()
            && stopped == stan.obciazenia.Liczba_przyp)
            done.failure["klucz"] = done.task.column->path; // its totals are the last case
        done.computed = false;
        done.record.stopped();
    }
    return done;
}

bool solved(const ComputedTask& done) {
    return done.reportReady && done.failure.is_null();
}

} // namespace ferna::batch
