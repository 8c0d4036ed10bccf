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

std::string textOfFile(const char* path) {
    return fileBytes(places::source(path)).toStdString();
}

/// The whole number behind these words.
std::string numberAfter(const std::string& text, const std::string& words) {
    std::size_t at = text.find(words);
    if (at == std::string::npos)
        return "no " + words;
    at += words.size();
    return text.substr(at, text.find_first_not_of("0123456789", at) - at);
}

TEST(ModelPages, TellTheFiguresOfTheVerificationPage) {
    const std::string page = textOfFile("/docs/verification.md");
    const std::string english = textOfFile("/docs/en/model.md");
    const std::string polish = textOfFile("/docs/pl/model.md");
    const std::string help = textOfFile("/data/help/model.html");
    const std::string outside = numberAfter(page, "| of ");
    EXPECT_EQ(outside, numberAfter(english, "| of "));
    EXPECT_EQ(outside, numberAfter(polish, "| z "));
    EXPECT_EQ(outside, numberAfter(help, "<th>z "));
    struct Row {
        const char* page;
        const char* english;
        const char* polish;
    };
    constexpr Row rows[] = {
        {"although an equilibrium exists", "although an equilibrium exists",
         "choć równowaga istnieje"},
        {"of these, the exact stresses pass", "of these, the exact stresses pass",
         "z tego naprężenia dokładne są dopuszczalne"},
        {"solved with the smaller moment raised by a tenth",
         "solved with the smaller moment raised by a tenth",
         "policzone z mniejszym momentem większym o 10 %"},
        {"solved with the last anchor moved by 0.5 %", "solved with the last anchor moved by 0,5 %",
         "policzone z ostatnią kotwą przesuniętą o 0,5 %"},
        {"a told stress more than 2 % below the exact one",
         "a told stress more than 2 % below the exact one",
         "podane naprężenie niższe od dokładnego o ponad 2 %"},
        {"more than half of the exact stress missing (false)",
         "false: more than half of the exact stress missing",
         "fałszywe: brakuje ponad połowy dokładnego naprężenia"},
        {"any result told to pass although an exact stress fails",
         "told to pass although an exact stress fails",
         "warunek podany jako spełniony, choć dokładne naprężenie go przekracza"},
    };
    for (const Row& row : rows) {
        const std::string cases = numberAfter(page, std::string(row.page) + " | ");
        EXPECT_FALSE(cases.empty()) << row.page;
        EXPECT_EQ(cases, numberAfter(english, std::string(row.english) + " | "));
        EXPECT_EQ(cases, numberAfter(polish, std::string(row.polish) + " | "));
        EXPECT_EQ(cases, numberAfter(help, std::string(row.polish) + "</td><td>"));
    }
}

#ifndef FERNA_SANITIZE // the page's statistics take too long there
TEST(VerificationPage, SaysWhatTheProgramGivesToday) {
    EXPECT_EQ(fileBytes(places::golden("/../../docs/verification.md")).toStdString(),
              verificationPage())
        << "write it anew: build/release/tests/verification > docs/verification.md";
}
#endif

} // namespace
