#pragma once

/// Lines of the language catalogue by what they say: `stan.Teksty(phrase::LoadsHeading)`. A line
/// that a value follows ends in the blank before it.
namespace ferna::phrase {

enum Line : int {
    // Results of a case.
    NoAnchorInTension = 1,
    AnchorExceeded = 2, ///< behind the line of an anchor
    ConcreteStress = 3,
    ConcreteNotAcceptable = 4, ///< behind the concrete stress
    BearingFactorNeeded = 5,
    WholePlateInCompression = 6,

    // Headings and general data.
    AnchorsHeading = 7,
    ResultsHeading = 8,
    AnchorsInTensionHeading = 9,
    PlateLength = 10,
    PlateWidth = 11,
    Concrete = 12,
    AnchorSteel = 13,
    LoadsHeading = 14,
    LoadsOfCase = 15,
    CaseTitle = 16,
    SummaryHeading = 17,
    LargestConcreteStress = 18,
    LargestAnchorStress = 19,
    LargestAnchorForce = 20,

    // The selected anchor.
    SelectedAnchor = 21,
    AnchorCapacity = 22,
    NominalDiameter = 23,
    HookLength = 24,
    BendDiameter = 25,
    StraightLength = 26,
    ThreadedLength = 27,
    CombinedThickness = 28,
    TotalLength = 29,
    RoundedToFifty = 30, ///< behind the total length
    AnchorEndPlate = 31,
    RibLength = 32,

    PlainFooting = 33, ///< behind the concrete; 34 is the other choice of the footing
    ReinforcedFooting = 34,

    // The plate section.
    AdoptedThickness = 35,
    SteelOfPlate = 36, ///< behind the thickness
    CantileverAtAnchor = 37,
    ForceInAnchor = 38,
    CantileverBehindForce = 39,
    EffectiveWidth = 40,
    RequiredThickness = 41,
    CantileverAtEdge = 42,
    StressUnderPlate = 43,
    CantileverLength = 44,

    NeutralAxis = 45, ///< up to the opening bracket of its first point

    // Horizontal forces of a case.
    ShearByFriction = 46,
    ShearOfSomeAnchors = 47, ///< satisfied; 48 exceeded by, 49 exceeded by more than 5 %
    ShearOfAllAnchors = 50,  ///< satisfied; 51 and 52 in the same way

    // The plate section again.
    ColumnWithoutStiffeners = 53,
    ColumnProfile = 54,
    PanelSupportedOn = 55, ///< the number of edges follows
    SupportedEdges = 56,
    PanelDimensions = 57,
    InCompressionZone = 58, ///< behind the title of a check
    InTensionZone = 59,     ///< likewise
    AnnexFormulaAndFigure = 60,
    PanelFixedOn = 61,
    FixedEdges = 62,
    AnchorPosition = 63, ///< behind the force
    Millimetres = 64,
    PanelFixedOnTwoOnly = 65,
};

} // namespace ferna::phrase
