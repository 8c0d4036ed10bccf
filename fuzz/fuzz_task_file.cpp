#include "fuzzing.h"
#include "runtime/format.h"
#include "task/task.h"

using namespace ferna;
using namespace ferna::fuzzing;

namespace {

bool sameAnchors(const Plyta_i_kotwy& one, const Plyta_i_kotwy& other) {
    if (one.Liczba_srub != other.Liczba_srub)
        return false;
    for (int i = 1; i <= one.Liczba_srub; ++i)
        if (one.X_kotwy(i) != other.X_kotwy(i) || one.Y_kotwy(i) != other.Y_kotwy(i)
            || one.Fi_kotwy(i) != other.Fi_kotwy(i) || one.Pole_kotwy(i) != other.Pole_kotwy(i))
            return false;
    return true;
}

bool sameChoices(const Stan& one, const Stan& other) {
    const Opcje_zadania& a = one.opcje;
    const Opcje_zadania& b = other.opcje;
    const Materialy& m = one.materialy;
    const Materialy& n = other.materialy;
    return a.Nr_normy == b.Nr_normy && a.Nr_jezyka == b.Nr_jezyka && a.Tryb_RTF == b.Tryb_RTF
           && a.Tryb_wsp_n == b.Tryb_wsp_n && a.Nr_betonu == b.Nr_betonu && a.Nr_stali == b.Nr_stali
           && m.Stal_nazwa == n.Stal_nazwa && m.Stal_fd == n.Stal_fd && m.Stal_Re == n.Stal_Re
           && m.Stal_Rm == n.Stal_Rm && m.Stal_fi_max == n.Stal_fi_max;
}

void requireSame(const Task& first, const Task& second) {
    require(first.fields == second.fields, "every field comes back as it was typed");
    require(first.Nazwa_stopy == second.Nazwa_stopy, "the name of the footing comes back");
    require(first.stan.obciazenia.Liczba_przyp == second.stan.obciazenia.Liczba_przyp,
            "as many cases come back");
    require(sameAnchors(first.stan.plyta, second.stan.plyta), "the anchors come back");
    require(sameChoices(first.stan, second.stan), "the choices come back");
    require(first.column.has_value() == second.column.has_value()
                && first.plate.has_value() == second.plate.has_value()
                && first.anchor == second.anchor,
            "column, plate and anchor come back");
    if (first.column)
        require(first.column->inCase == second.column->inCase
                    && columnTaskJson(*first.column) == columnTaskJson(*second.column),
                "the loads on the column come back");
    if (first.plate)
        require(first.plate->cmbStalb == second.plate->cmbStalb
                    && first.plate->steel == second.plate->steel
                    && plateTaskJson(*first.plate) == plateTaskJson(*second.plate),
                "the checks of the plate come back");
}

} // namespace

// A task file: what can be opened can be saved, and what is saved opens as the same task and is
// saved with the same bytes. The first byte chooses the decimal sign of the process.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    setDecimalSign(data[0] % 2 == 0 ? u',' : u'.');
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    try {
        const Task first = readTask(parsed(text), TaskCases::Elsewhere);
        const std::string written = taskText(first);
        std::optional<Task> second;
        try {
            second = readTask(parsed(written), TaskCases::Elsewhere);
        } catch (const TaskError& failure) {
            std::fprintf(stderr, "%s\n%s", failure.what(), written.c_str());
            require(false, "a saved task can be opened");
        }
        requireSame(first, *second);
        require(taskText(*second) == written, "opened and saved again it has the same bytes");
    } catch (const TaskError& failure) {
        const int line = lineOf(text, failure.path);
        require(line >= 1 && line <= 1 + std::count(text.begin(), text.end(), '\n'),
                "a refusal names a line of the task");
    }
    return 0;
}
