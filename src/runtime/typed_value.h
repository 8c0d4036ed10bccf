#pragma once

namespace ferna {

/// The values that an engineer types as texts.
enum class Value {
    None,
    PageNumber,
    CaseCount,
    RatioN,
    PlateLength,
    PlateWidth,
    // of a load case
    N,
    M1,
    M2,
    Vx,
    Vy,
    // of an anchor to be added
    AnchorX,
    AnchorY,
    // of a load on the column: P, H, p1 or M; p2; ex, h or h1; ey or h2
    ColumnLoad,
    ColumnSecondLoad,
    ColumnArm,
    ColumnSecondArm,
    // sums of the loads on the column
    TotalN,
    TotalM1,
    TotalM2,
    TotalVx,
    TotalVy,
    // of a check of the plate's thickness
    CheckBs,
    CheckCa,
    CheckS,
    CheckSigmaK,
    CheckSigmaP,
    CheckSigma,
    CheckL,
    CheckB,
    CheckA,
    CheckC,
    AcceptedThickness,
};

/// Which typed value it is: an error carries it to whoever knows the value's field or key.
struct TypedValue {
    Value value = Value::None;
    /// Row of the load table, 0..5; number of the check, 1..8; 0 for a value that there is once.
    int of = 0;

    bool operator==(const TypedValue&) const = default;
};

} // namespace ferna
