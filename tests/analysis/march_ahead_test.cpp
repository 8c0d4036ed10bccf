#include "analysis/equilibrium.h"
#include "analysis/load_case.h"
#include "analysis/march_ahead.h"
#include "analysis/search.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/random_tasks.h"

#include <gtest/gtest.h>

#include <bit>
#include <fstream>

using namespace ferna;
using namespace ferna::testing;

namespace {

using Instructions = MarchAhead::Instructions;

/// A base with its last case prepared, the line turned to an angle.
void turn(ColumnBase& base, Double beta) {
    Stan_przypadku& s = base.solver;
    s.Beta = beta;
    s.Sin_beta = std::sin(beta);
    s.Cos_beta = std::cos(beta);
    s.Nachylenie = -s.Cos_beta / s.Sin_beta;
}

/// The error that one full evaluation gives; not a number where it ends in a run-time error.
Double fullError(ColumnBase& base, Double c) {
    base.solver.C_linii = c;
    base.solver.Liczba_ocen = 0;
    try {
        Rownowaga_c(base.solver, inputOf(base.stan));
    } catch (const RunTimeError&) {
        return std::nan("");
    }
    return base.solver.Reszta_c;
}

bool sameBits(Double one, Double other) {
    return (std::isnan(one) && std::isnan(other))
           || std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

/// The distance, next to this one, of a line whose crossings are there to the last bit.
template <typename IsThere>
Double distanceWhere(const LineAngle& line, Double near, IsThere isThere) {
    for (Double c = near - 1e-12; c < near + 1e-12; c = std::nextafter(c, 1e9))
        if (isThere(crossings(line, c)))
            return c;
    return std::nan("");
}

class RowOfErrors : public ::testing::TestWithParam<Instructions> {
protected:
    void SetUp() override {
        if (GetParam() == Instructions::Avx2 && MarchAhead::best() != Instructions::Avx2)
            GTEST_SKIP() << "this processor has no such instructions";
    }
};

TEST_P(RowOfErrors, HasTheBitsOfFullEvaluations) {
    std::array<int, 6> ofShape{};
    for (std::uint64_t number = 1; number <= 400; ++number) {
        ColumnBase base;
        randomTask(base, number);
        try {
            base.calculate();
        } catch (const RunTimeError&) {
            continue;
        }
        Dice dice(number);
        turn(base, dice.between(0.001, 1.57));
        const Double R = base.solver.Prom_R;
        if (!(R > 0) || base.stan.obciazenia.Nr_przyp < 1)
            continue;
        const MarchAhead ahead(base.solver, inputOf(base.stan), GetParam());
        for (int march = 0; march < 20; ++march) {
            const Double step = dice.between(-0.02, 0.02) * R * (march % 2 == 0 ? 1 : 1e-4);
            MarchAhead::Row distances;
            Double c = dice.between(-1.2, 1.2) * R;
            for (Double& distance : distances)
                distance = c += step;
            const std::size_t length = march % 3 == 0 ? MarchAhead::shortRow : MarchAhead::longRow;
            const MarchAhead::Row errors = ahead.at(distances, length);
            for (std::size_t i = 0; i < length; ++i) {
                ASSERT_TRUE(sameBits(errors[i], fullError(base, distances[i])))
                    << "task " << number << ", distance " << distances[i];
                ++ofShape[static_cast<std::size_t>(base.solver.Typ_strefy)];
            }
        }
    }
    for (std::size_t shape = 1; shape <= 4; ++shape)
        EXPECT_GT(ofShape[shape], 1000) << "shape " << shape;
}

TEST_P(RowOfErrors, IsNoNumberWhereTheEvaluationFails) {
    ColumnBase base;
    base.plate(400, 300).fourAnchors(150, 100, 20);
    base.loads(100, 60, 40);
    base.calculate();
    turn(base, 0.7);
    const MarchAhead ahead(base.solver, inputOf(base.stan), GetParam());
    MarchAhead::Row distances;
    distances.fill(5);
    distances[1] = std::numeric_limits<Double>::infinity();
    distances[2] = 1e200;
    const MarchAhead::Row errors = ahead.at(distances, MarchAhead::shortRow);
    EXPECT_TRUE(sameBits(errors[0], fullError(base, 5)));
    EXPECT_TRUE(std::isnan(errors[1]));
    EXPECT_TRUE(std::isnan(errors[2]) && std::isnan(fullError(base, 1e200)));
    EXPECT_TRUE(sameBits(errors[3], fullError(base, 5)));
}

// A line through a corner of the plate has another shape than those beside it.
TEST_P(RowOfErrors, HasTheBitsOfFullEvaluationsThroughACornerOfThePlate) {
    ColumnBase base;
    base.plate(400, 300).fourAnchors(150, 100, 20);
    base.loads(100, 60, 40);
    base.calculate();
    for (const Double beta : {0.2, 0.7, 1.3}) {
        turn(base, beta);
        const LineAngle line = lineAngle(base.solver);
        const MarchAhead ahead(base.solver, inputOf(base.stan), GetParam());
        for (const Double corner :
             {distanceWhere(line, (line.b + line.m * line.a) * line.sine,
                            [&](const auto& at) { return at.xT == -line.a; }),
              distanceWhere(line, (-line.b - line.m * line.a) * line.sine,
                            [&](const auto& at) { return at.yR == -line.b; })}) {
            ASSERT_FALSE(std::isnan(corner)) << beta;
            for (const Double other : {corner, corner + 1, corner - 1}) {
                MarchAhead::Row distances;
                distances.fill(corner);
                distances[MarchAhead::shortRow - 1] = other;
                const MarchAhead::Row errors = ahead.at(distances, MarchAhead::shortRow);
                for (std::size_t i = 0; i < MarchAhead::shortRow; ++i)
                    EXPECT_TRUE(sameBits(errors[i], fullError(base, distances[i])))
                        << beta << ", " << distances[i] << ": " << errors[i];
            }
        }
    }
}

TEST(Instructions, AreTheWidestThatTheProcessorSaysItHas) {
    std::ifstream processor("/proc/cpuinfo");
    std::string line;
    while (std::getline(processor, line) && line.rfind("flags", 0) != 0) {
    }
    if (line.empty())
        GTEST_SKIP() << "nothing says what the processor can do";
    const bool wide = (line + ' ').find(" avx2 ") != std::string::npos;
    EXPECT_EQ(MarchAhead::best(), wide ? Instructions::Avx2 : Instructions::Plain);
}

INSTANTIATE_TEST_SUITE_P(, RowOfErrors, ::testing::Values(Instructions::Plain, Instructions::Avx2),
                         [](const auto& instance) {
                             return instance.param == Instructions::Plain ? "Plain" : "Avx2";
                         });

/// All that a calculation leaves in the solver and in the results, as one number.
class Fingerprint {
public:
    void add(Double value) {
        std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
        for (int i = 0; i < 8; ++i, bits >>= 8U)
            hash_ = (hash_ ^ (bits & 0xffU)) * 0x100000001b3U; // FNV-1a
    }
    std::uint64_t value() const { return hash_; }

private:
    std::uint64_t hash_ = 0xcbf29ce484222325U;
};

std::uint64_t fingerprint(std::uint64_t number) {
    ColumnBase base;
    randomTask(base, number);
    Fingerprint print;
    base.host.afterCase = [&](int c) {
        const Stan_przypadku& s = base.solver;
        for (const Double value :
             {s.Beta, s.Krok_beta, s.C_linii, s.Krok_c, s.Reszta_c, s.Reszta_c_poprz, s.Reszta_beta,
              s.Wsp_k, s.V_strefy, s.Suma_Ad, s.Suma_Add, s.Ramie_C, Double(s.Kroki_c),
              Double(s.Nawroty), Double(s.Liczba_ocen), Double(s.Typ_strefy)})
            print.add(value);
        print.add(base.stan.wyniki.Sigma_b(c));
        for (int i = 1; i <= base.stan.plyta.Liczba_srub; ++i)
            print.add(base.stan.wyniki.Sigma_kotwy(i)(c));
    };
    try {
        base.calculate();
    } catch (const RunTimeError& failure) {
        print.add(failure.number());
    }
    print.add(static_cast<Double>(base.dialogs.messages.size()));
    return print.value();
}

// The fingerprints were taken from a search that evaluated every line in full, one after the other.
// Among the tasks are marches that stand still for a million evaluations (3, 14) and searches that
// go round (179, 1001).
TEST(LookingAhead, ChangesNoBitOfAnyResult) {
    std::ifstream file(places::golden("/search.fingerprints.txt").toStdString());
    std::uint64_t number = 0;
    std::uint64_t expected = 0;
    int tasks = 0;
    while (file >> std::dec >> number >> std::hex >> expected) {
        EXPECT_EQ(fingerprint(number), expected) << "task " << number;
        ++tasks;
    }
    EXPECT_EQ(tasks, 330);
}

} // namespace
