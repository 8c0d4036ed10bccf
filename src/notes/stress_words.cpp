#include "notes/stress_words.h"

#include "runtime/format.h"

namespace ferna::notes {

namespace {

const QString mpa = QStringLiteral(" MPa");

int decimals(Double value) {
    return std::fabs(value) < 9.995 ? 2 : 1;
}

QString withDecimals(Double value, int count) {
    constexpr Double written = 1e7; // from here on with an exponent
    return std::fabs(value) < written
               ? Format(value, QStringLiteral("0.").append(QString(count, u'0')))
               : general(value);
}

QString hundredths(Double value) {
    return general(std::round(100 * value) / 100);
}

/// A stress and its limit, so that both can be told apart.
QString against(Double value, Double limit, QStringView name) {
    return numberBeside(value, limit) + mpa + QStringLiteral(" (dopuszczalne %1 = ").arg(name)
           + numberBeside(limit, value) + mpa + u')';
}

} // namespace

QString number(Double value) {
    return withDecimals(value, decimals(value));
}

QString numberBeside(Double value, Double other) {
    constexpr int most = 9;
    int count = decimals(value);
    while (count < most && value != other
           && withDecimals(value, count) == withDecimals(other, count))
        ++count;
    return withDecimals(value, count);
}

QString place(Double x, Double y) {
    return u'(' + hundredths(x) + QStringLiteral("; ") + hundredths(y) + u')';
}

QString percent(Double share) {
    return Format(100 * share, u"0.0") + QStringLiteral(" %");
}

Exact exactOf(const equilibrium::Result& result, int anchors, const Record& record) {
    Exact exact;
    exact.pressure = result.sigmaConcrete;
    exact.pressureLimit = record.pressureLimit();
    exact.stressLimit = record.anchorLimit();
    for (int i = 1; i <= anchors; ++i) {
        const Double stress = std::fabs(result.sigmaAnchor.at(static_cast<std::size_t>(i - 1)));
        if (stress > exact.stress) {
            exact.stress = stress;
            exact.anchor = i;
        }
    }
    return exact;
}

QString stressesOf(const Exact& exact) {
    QString text = QStringLiteral("docisk ") + against(exact.pressure, exact.pressureLimit, u"2Rb");
    if (exact.anchor == 0)
        return text + QStringLiteral(", kotwy nierozciągane");
    return text + QStringLiteral(", kotwa %1: ").arg(exact.anchor)
           + against(exact.stress, exact.stressLimit, u"fd");
}

QString verdictOf(const Exact& exact) {
    if (exact.pressurePasses() && exact.stressPasses())
        return QStringLiteral("Naprężenia te są dopuszczalne.");
    if (exact.pressurePasses())
        return QStringLiteral("Naprężenie w kotwie jest przekroczone.");
    if (exact.stressPasses())
        return QStringLiteral("Docisk do betonu jest przekroczony.");
    return QStringLiteral("Docisk i naprężenie w kotwie są przekroczone.");
}

} // namespace ferna::notes
