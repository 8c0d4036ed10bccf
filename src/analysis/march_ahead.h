#pragma once

#include "analysis/case_values.h"
#include "analysis/equilibrium_formulas.h"

#include <array>

namespace ferna {

/// Looks ahead on a march of the distance. The moment errors at the next distances do not depend on
/// one another once the distances are formed, so several are computed side by side; what lies
/// behind the step that ends the march is thrown away. Bit by bit the errors are those of
/// `Rownowaga_c`. Holds for one angle.
class MarchAhead {
public:
    static constexpr std::size_t shortRow = 4;
    static constexpr std::size_t longRow = 16;
    using Row = std::array<Double, longRow>; ///< distances in cm, or errors in kG cm

    /// What the processor can do; all give the same bits.
    enum class Instructions { Plain, Avx2 };
    static Instructions best();

    MarchAhead(const Stan_przypadku& s, const CaseInput& in, Instructions instructions = best());

    /// The errors at the first distances of a row, so many as a short or a long row has; not a
    /// number where `Rownowaga_c` would end in a run-time error.
    Row at(const Row& distances, std::size_t count) const;

    /// What stays the same on all lines of one angle, in cm and kG.
    struct Angle {
        LineAngle line;
        AxialForce force;
        Double volume; ///< m^2 / 6
        Double x;      ///< m^2 / 24
        Double y;      ///< 1 / 24 / m
        int anchors;
        std::array<Double, MaxAnchors> projection; ///< of the anchors on the normal
        std::array<Double, MaxAnchors> area;       ///< cm2
    };

private:
    Angle angle_;
    void (*errors_)(const Angle&, const Row& distances, std::size_t count, Row& errors);
};

} // namespace ferna
