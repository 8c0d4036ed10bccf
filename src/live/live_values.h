#pragma once

#include "design/input_fields.h"
#include "live/picture_values.h"

#include <QStringList>

namespace ferna::live {

/// All that the live view shows of what is entered.
struct LiveValues {
    /// Why nothing can be shown, with the field that is to be put right; empty where all is well.
    QString reason;
    /// Why there is a picture but no checks; empty where there are some.
    QString withoutChecks;
    PictureValues plate; ///< without a case
    std::vector<PictureCase> cases;
    QStringList loads; ///< of each case, in words

    bool valid() const { return reason.isEmpty(); }
};

/// The limits of the checks, empty also where the concrete is in neither list.
std::optional<CheckLimits> limitsOf(const Stan& stan, const InputFields& fields);

/// What is entered with its exact equilibria and their checks. For any state and any typed texts.
LiveValues liveValues(const Stan& stan, const InputFields& fields);

/// "Przypadek 2".
QString caseTitle(int number);
inline const QString envelopeTitle = QStringLiteral("Obwiednia");

/// The picture of one case, from 1, or of the envelope of all for 0.
PictureValues pictureOf(const LiveValues& values, int which);

} // namespace ferna::live
