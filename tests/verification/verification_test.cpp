#include "support/golden_file.h"
#include "support/places.h"
#include "verification/published_examples.h"
#include "verification/search_record.h"
#include "verification/verification_page.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ferna::testing;

namespace {

void expectWithin(const std::vector<Compared>& figures, double share, double ofZero) {
    for (const Compared& one : figures)
        EXPECT_LT(one.deviation(), one.published != 0 ? share : ofZero)
            << one.what << ": " << one.here << " instead of " << one.published;
}

TEST(PublishedExample, OfFourAnchorsAgreesWithinTheRoundingOfItsFigures) {
    for (const Compared& one : biaxialFourAnchors()) {
        const bool wholeMillimetres = one.what.ends_with("mm");
        EXPECT_NEAR(one.here, one.published, wholeMillimetres ? 0.5 : 0.005) << one.what;
    }
}

TEST(PublishedExample, OfFourAnchorsAgreesWithTheTablesAreaToo) {
    expectWithin(biaxialFourAnchorsOfTheTable(), 0.005, 0);
}

TEST(PublishedExample, OfEightAnchorsAgreesThroughTheWholeProgram) {
    expectWithin(biaxialEightAnchors(), 0.001, 1e-9);
}

TEST(PublishedExample, OfOneRowGivesTheBearingLength) {
    expectWithin(uniaxialEquation(), 1e-5, 0);
}

TEST(PublishedExample, OfOneRowAgreesWithTheProgramUpToTheSubstituteMoment) {
    expectWithin(uniaxialProgram(), 0.01, 0);
}

TEST(PublishedExample, HasTheFiguresOfTheExactEquilibrium) {
    for (const std::vector<Compared>& figures :
         {biaxialFourAnchors(), biaxialEightAnchors(), uniaxialEquation(), uniaxialProgram()})
        for (const Compared& one : figures) {
            const bool wholeMillimetres = one.what == "its x, mm" || one.what == "its y, mm";
            EXPECT_NEAR(one.exact, one.published,
                        wholeMillimetres ? 0.5 : 0.0005 * std::fabs(one.published) + 1e-9)
                << one.what;
        }
}

TEST(SearchRecord, CountsWhatTheSearchMakesOfRandomBases) {
    const SearchRecord record = searchRecord(600);
    EXPECT_GT(record.outside, 250);
    EXPECT_GT(record.gaveUp, 10);
    EXPECT_LT(record.gaveUp, record.outside / 4);
    EXPECT_LE(record.gaveUpPasses, record.gaveUp);
    EXPECT_LE(record.falsePasses, record.verdictFalls);
}

#ifndef FERNA_SANITIZE // the page's statistics take too long there
TEST(VerificationPage, SaysWhatTheProgramGivesToday) {
    EXPECT_EQ(fileBytes(places::golden("/../../docs/verification.md")).toStdString(),
              verificationPage())
        << "write it anew: build/release/tests/verification > docs/verification.md";
}
#endif

} // namespace
