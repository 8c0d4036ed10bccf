#pragma once

#include "sheet/maker.h"

namespace ferna::sheet {

// The parts of a sheet in the order of thought. Each adds its blocks and its numbers; the later
// ones refer to the numbers of the earlier.

/// What the sheet is about, lines to sign, and what must be known before reading on.
void addHead(Maker& maker);
/// Plate, anchors and loads, with a dimensioned drawing.
void addData(Maker& maker);
/// Strengths, moduli, areas, each with its source.
void addMaterials(Maker& maker);
/// A load case from its eccentricities to its checks.
void addCase(Maker& maker, const CaseSheet& one);
/// Case x check, what governs, the verdict.
void addSummary(Maker& maker);
/// The thickness of the plate, where it was worked.
void addPlate(Maker& maker);
/// The anchor of the catalogue, where one was chosen.
void addAnchor(Maker& maker);
/// What the program remarks, in full.
void addNotes(Maker& maker);
/// What is assumed and what is not checked.
void addModel(Maker& maker);
/// The table of combinations of which the load cases are rows.
void addCombinations(Maker& maker, const combinations::Digest& digest);

// Of a load case

/// Eccentricities and the kern test, and the stress where the whole plate is compressed.
Equations kernEquations(Maker& maker, const CaseSheet& one);
/// The neutral line and the plane of stresses, by the search and exact; makes their numbers.
Table planeTable(Maker& maker, const CaseSheet& one);
/// Stress, force and utilisation of each anchor.
Table anchorTable(Maker& maker, const CaseSheet& one);
/// The same table with its second half beside the first.
Table inTwoColumns(Table table);
/// The compressed zone and the balance computed back from it and from the anchors.
Blocks balanceTables(Maker& maker, const CaseSheet& one);
/// Concrete, tension, shear and interaction.
Equations checkEquations(Maker& maker, const CaseSheet& one);

/// Names of the numbers of the search and of the exact equilibrium.
enum class Side { Search, Exact };
inline QString sided(const QString& id, Side side) {
    return id + (side == Side::Search ? QStringLiteral("_s") : QStringLiteral("_e"));
}
/// "σ_b", and "σ*_b" of the exact equilibrium.
inline QString symbolOf(const QString& base, const QString& index, Side side) {
    return base + (side == Side::Exact ? QStringLiteral("*") : QString())
           + (index.isEmpty() ? QString() : u'_' + index);
}
/// True where that side has a plane of stresses.
inline bool hasPlane(const CaseSheet& one, Side side) {
    return side == Side::Exact ? one.exact != nullptr : one.hasLine();
}

} // namespace ferna::sheet
