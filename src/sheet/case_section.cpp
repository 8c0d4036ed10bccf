#include "sheet/numbers.h"
#include "sheet/plate_picture.h"
#include "sheet/sections.h"

namespace ferna::sheet {

namespace {

/// How the search ended, as the text's key; empty for a plain end.
QString outcomeKey(const Maker& maker, const CaseSheet& one) {
    switch (maker.input().record.told(one.number).outcome) {
    case CaseOutcome::WholePlate:
        return QStringLiteral("outcome.wholePlate");
    case CaseOutcome::Found:
        return QStringLiteral("outcome.found");
    case CaseOutcome::FoundWithRaisedMoment:
        return QStringLiteral("outcome.raised");
    case CaseOutcome::FoundWithMovedAnchor:
        return QStringLiteral("outcome.moved");
    case CaseOutcome::GaveUp:
    case CaseOutcome::PassedOver:
    case CaseOutcome::NoStart:
        return QStringLiteral("outcome.gaveUp");
    default:
        return QStringLiteral("outcome.none");
    }
}

/// How the search ended, and why there is no exact equilibrium where there is none.
void tellOutcome(Maker& maker, const CaseSheet& one) {
    if (!one.readable)
        maker.say(QStringLiteral("case.unreadable"), {}, Tone::Warning);
    else if (!maker.hasBase)
        maker.say(QStringLiteral("case.noBase"), {}, Tone::Warning);
    else if (one.exact == nullptr)
        maker.say(QStringLiteral("case.tips"), {}, Tone::Warning);
    if (one.told == nullptr && one.exact == nullptr)
        return;
    const QString key = outcomeKey(maker, one);
    const bool failed = key == u"outcome.gaveUp" || key == u"outcome.none";
    maker.add(Paragraph{maker.text()(key), failed ? Tone::Warning : Tone::Plain, true});
}

constexpr std::size_t mostBeside = 8; // anchors whose table finds room below the picture

void addPressure(Maker& maker, const CaseSheet& one) {
    Equations kern = kernEquations(maker, one);
    Table plane = planeTable(maker, one);
    const bool loaded = hasPlane(one, Side::Search) || hasPlane(one, Side::Exact);
    auto beside = std::make_shared<Beside>();
    beside->leftShare = 0.45;
    beside->left.push_back(pressurePicture(maker, one));
    std::optional<Table> anchors;
    if (loaded && !maker.anchors.empty())
        anchors = anchorTable(maker, one);
    if (anchors && maker.anchors.size() <= mostBeside) {
        beside->left.push_back(std::move(*anchors));
        anchors.reset();
    }
    if (!kern.rows.empty())
        beside->right.push_back(std::move(kern));
    maker.add(std::shared_ptr<const Beside>(beside));
    if (anchors)
        maker.add(inTwoColumns(std::move(*anchors)));
    if (!plane.rows.empty())
        maker.add(std::move(plane));
}

void addBalance(Maker& maker, const CaseSheet& one) {
    Blocks balance = balanceTables(maker, one);
    if (balance.empty())
        return;
    auto beside = std::make_shared<Beside>();
    beside->leftShare = 0.5;
    beside->right.push_back(std::move(balance.back()));
    balance.pop_back();
    beside->left = std::move(balance);
    beside->left.push_back(Paragraph{maker.text()(QStringLiteral("balance.how")), Tone::Small});
    maker.add(std::shared_ptr<const Beside>(beside));
}

} // namespace

void addCase(Maker& maker, const CaseSheet& one) {
    const Texts& text = maker.text();
    maker.heading(2, text(QStringLiteral("case.heading"), {QString::number(one.number)}));
    tellOutcome(maker, one);
    if (!one.readable || !maker.hasBase)
        return;
    addPressure(maker, one);
    addBalance(maker, one);
    if (maker.limits && (one.told != nullptr || one.exact != nullptr)) {
        maker.heading(3, text(QStringLiteral("check.heading")));
        maker.add(checkEquations(maker, one));
    }
}

} // namespace ferna::sheet
