// Prints every number that the golden tasks leave behind as a hex float, for comparing builds.
#include "batch/task_run.h"
#include "runtime/format.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

using namespace ferna;
using namespace ferna::batch;

namespace {

void print(const char* name, Double value) {
    std::printf(" %s=%a", name, value);
}

void printCase(const ComputedTask& done, int c) {
    const Wyniki& r = done.task.stan.wyniki;
    const CaseTrace& trace = done.traces.at(static_cast<std::size_t>(c));
    std::printf("\n  case %d", c);
    print("Sigma_b", r.Sigma_b(c));
    for (const Single end : {r.Przec_a(c), r.Przec_b(c), r.Przec_c(c), r.Przec_d(c)})
        print("Przec", end);
    print("Beta", trace.Beta);
    print("C_linii", trace.C_linii);
    print("Wsp_k", trace.Wsp_k);
    for (int i = 1; i <= done.task.stan.plyta.Liczba_srub; ++i)
        print("Sigma_kotwy", r.Sigma_kotwy(i)(c));
}

void printSolver(const Stan_przypadku& s) {
    for (const Double value : {s.Ex, s.Ey, s.Alfa, s.Mimosrod, s.Rdzen, s.Krok_beta, s.Krok_c,
                               s.Reszta_c, s.Reszta_beta, s.V_strefy, s.Xs_strefy, s.Ys_strefy,
                               s.Suma_Ad, s.Suma_Add, s.Sila_C, s.Sila_T, s.Ramie_C, s.Os_C})
        print("s", value);
    std::printf(" evaluations=%d", s.Liczba_ocen);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: print_bits TASKS.jsonl DATA_FOLDER\n";
        return 2;
    }
    setDecimalSign(u',');
    std::ifstream tasks(argv[1]);
    const RunOptions options{{}, QString::fromLocal8Bit(argv[2]), QDateTime()};
    std::string line;
    for (int number = 1; std::getline(tasks, line); ++number) {
        const ComputedTask done = run(readTask(parsed(line)), options);
        std::printf("task %d error %d messages %zu", number,
                    done.failure.is_null() ? 0 : done.failure.at("numer").get<int>(),
                    done.dialogs.messages.size());
        for (int c = 1; c <= done.task.stan.obciazenia.Liczba_przyp; ++c)
            printCase(done, c);
        std::printf("\n  last");
        printSolver(done.solver);
        std::printf("\n");
    }
    return 0;
}
