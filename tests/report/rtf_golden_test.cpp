#include "report/hand_filled_report.h"
#include "report/rtf_writer.h"
#include "support/decimal_comma.h"
#include "support/golden_file.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <functional>

namespace ferna::testing {
namespace {

struct GoldenReport {
    const char* name;
    Integer Nr_normy;
    std::function<HandFilledReport()> make;
};

std::vector<GoldenReport> reports() {
    return {
        {"one_case", 1, [] { return HandFilledReport(1); }},
        {"one_case_whole_plate", 0, [] { return HandFilledReport(1, 4, {1}); }},
        {"three_cases", 0, [] { return HandFilledReport(3, 4, {2}); }},
        {"four_cases", 1, [] { return HandFilledReport(4, 4, {4}); }},
        {"six_cases", 0,
         [] {
             return HandFilledReport(6, 4, {1, 6});
         }},
        {"page_break", 1, [] { return HandFilledReport(3, 20); }},
        {"plate_heading_alone", 0, [] { return HandFilledReport(1).withPlate({}); }},
        {"plate_4", 0, [] { return HandFilledReport(1).withPlate({4}); }},
        {"plate_8", 1, [] { return HandFilledReport(1).withPlate({8}); }},
        {"plate_1_3", 0,
         [] {
             return HandFilledReport(1).withPlate({1, 3});
         }},
        {"plate_2_7_8", 0,
         [] {
             return HandFilledReport(1).withPlate({2, 7, 8});
         }},
        {"plate_1_2_3_4", 0,
         [] {
             return HandFilledReport(1).withPlate({1, 2, 3, 4});
         }},
        {"plate_1_2_3_5", 1,
         [] {
             return HandFilledReport(1).withPlate({1, 2, 3, 5});
         }},
        {"plate_1_3_5_6", 0,
         [] {
             return HandFilledReport(1).withPlate({1, 3, 5, 6});
         }},
        {"plate_2_4_5_7", 0,
         [] {
             return HandFilledReport(1).withPlate({2, 4, 5, 7});
         }},
        {"plate_1_2_3_8", 0,
         [] {
             return HandFilledReport(1).withPlate({1, 2, 3, 8});
         }},
        {"plate_1_2_3_4_8", 0,
         [] {
             return HandFilledReport(1).withPlate({1, 2, 3, 4, 8});
         }},
        {"plate_3_4_5_6_7", 1,
         [] {
             return HandFilledReport(1).withPlate({3, 4, 5, 6, 7});
         }},
        {"plate_all", 1,
         [] {
             return HandFilledReport(1).withPlate({1, 2, 3, 4, 5, 6, 7, 8});
         }},
        {"anchor_section", 0, [] { return HandFilledReport(1).withAnchorSection(); }},
        {"everything", 1,
         [] {
             return HandFilledReport(6, 12, {3})
                 .withPlate({1, 2, 3, 4, 5, 6, 7, 8})
                 .withAnchorSection(10);
         }},
    };
}

/// Every report in one pattern.
void compareAll(Integer Tryb_RTF, QLatin1Char pattern) {
    const WithDecimalSign comma(u',');
    for (const GoldenReport& golden : reports()) {
        SCOPED_TRACE(golden.name);
        HandFilledReport report = golden.make();
        report.stan.opcje.Nr_normy = golden.Nr_normy;
        report.stan.opcje.Nr_strony = 7;
        const TextFileWriter file = rtfReport(report.model(), Tryb_RTF, report.now).file();
        expectGolden(file.bytes(), QStringLiteral("rtf/") + pattern + u'_'
                                       + QLatin1String(golden.name) + QStringLiteral(".rtf"));
    }
}

TEST(RtfGolden, PatternAIsLiteralToTheLastControlWord) {
    compareAll(1, QLatin1Char('a'));
}

TEST(RtfGolden, PatternBIsLiteralToTheLastControlWord) {
    compareAll(2, QLatin1Char('b'));
}

} // namespace
} // namespace ferna::testing
