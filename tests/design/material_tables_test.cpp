#include "design/material_tables.h"
#include "support/clause_text.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::errorNumberOf;

namespace {

struct SteelAt {
    Integer Nr_stali;
    Integer first; // range of the largest diameter, mm
    Integer last;
    Single fd;
    Single fd2;
    Single fv;
    const char* name;
};

constexpr SteelAt steels[] = {
    {1, 0, 16, 175, 165.75F, 141.75F, " (A-0) "},
    {1, 17, 40, 165, 157.25F, 141.75F, " (A-0) "},
    {2, 0, 16, 215, 199.75F, 168.75F, " (A-I) "},
    {2, 17, 40, 205, 191.25F, 168.75F, " (A-I) "},
    {2, 41, 100, 195, 182.75F, 168.75F, " (A-I) "},
    {3, 0, 16, 235, 216.75F, 184.5F, " "},
    {3, 17, 40, 225, 208.25F, 184.5F, " "},
    {4, 0, 16, 305, 301.75F, 220.5F, " (A-II) "},
    {4, 17, 30, 295, 293.25F, 220.5F, " (A-II) "},
    {4, 31, 50, 285, 284.75F, 220.5F, " (A-II) "},
    {5, 0, 16, 370, 374, 252, " "},
    {5, 17, 29, 360, 365.5F, 252, " "},
    {5, 30, 50, 350, 357, 252, " "},
    {6, 0, 32, 310, 290, 220, " (A-II) "},
};

TEST(SteelTable, HasItsValuesAtBothEndsOfEveryRow) {
    for (const SteelAt& row : steels)
        for (const Integer fi : {row.first, row.last}) {
            const auto steel = anchorSteel(row.Nr_stali, fi);
            ASSERT_TRUE(steel) << row.Nr_stali << " M" << fi;
            EXPECT_EQ(steel->Fd_kotwy, row.fd) << row.Nr_stali << " M" << fi;
            EXPECT_EQ(steel->Fd2_kotwy, row.fd2) << row.Nr_stali << " M" << fi;
            EXPECT_EQ(steel->Fv_kotwy, row.fv) << row.Nr_stali << " M" << fi;
            EXPECT_STREQ(steel->Klasa_stali, row.name) << row.Nr_stali << " M" << fi;
        }
}

TEST(SteelTable, EndsWhereTheNormDoes) {
    for (const auto& [steel, last] : {std::pair{1, 40}, std::pair{2, 100}, std::pair{3, 40},
                                      std::pair{4, 50}, std::pair{5, 50}, std::pair{6, 32}}) {
        EXPECT_TRUE(anchorSteel(static_cast<Integer>(steel), static_cast<Integer>(last)));
        EXPECT_FALSE(anchorSteel(static_cast<Integer>(steel), static_cast<Integer>(last + 1)));
    }
}

TEST(SteelTable, TheListHasSevenItems) {
    EXPECT_EQ(steelNames(),
              QStringList({QStringLiteral("St0S"), QStringLiteral("St3SX,St3SY,St3S,St3V,St3W"),
                           QStringLiteral("St4VX,St4VY,St4V,St4W"), QStringLiteral("18G2,18G2A"),
                           QStringLiteral("18G2AV"), QStringLiteral("50B"),
                           QStringLiteral("inna stal")}));
}

struct ConcreteAt {
    Integer norm;
    Integer Nr_betonu;
    const char* name;
    Single plain;
    Single reinforced;
    Single Eb;
    Single tensile; // 0: unchanged
    Single multiplier;
    Single coefficient;
    Single n; // 205000 / Eb to two decimals
};

constexpr ConcreteAt concretes[] = {
    {0, 1, "B15", 7.1F, 8.7F, 23100, 0.75F, 40, 1.0F, 8.87F},
    {0, 2, "B17.5", 8.3F, 10.2F, 25300, 0.83F, 38, 0.961F, 8.1F},
    {0, 3, "B20", 9.4F, 11.5F, 27000, 0.9F, 35, 0.866F, 7.59F},
    {0, 4, "B25", 11.6F, 14.3F, 30000, 1.03F, 32, 0.775F, 6.83F},
    {0, 5, "B30", 13.9F, 17.1F, 32400, 1.15F, 30, 0.693F, 6.33F},
    {1, 1, "B15", 6.7F, 8.0F, 26000, 0, 40, 1.0F, 7.88F},
    {1, 2, "B20", 8.9F, 10.6F, 27500, 0, 35, 0.866F, 7.45F},
    {1, 3, "B25", 11.1F, 13.3F, 29000, 0, 32, 0.775F, 7.07F},
    {1, 4, "B30", 13.9F, 16.7F, 30500, 0, 30, 0.693F, 6.72F},
    {1, 5, "B30", 13.9F, 17.1F, 32400, 1.15F, 30, 0.693F, 6.33F}, // not in the list of the norm
};

TEST(ConcreteTable, HasItsValuesForBothNormsAndFootings) {
    for (const ConcreteAt& row : concretes) {
        const Concrete& one = concrete(row.norm, row.Nr_betonu);
        EXPECT_STREQ(one.name, row.name);
        EXPECT_EQ(one.Rb_plain, row.plain) << row.norm << row.name;
        EXPECT_EQ(one.Rb_reinforced, row.reinforced) << row.norm << row.name;
        EXPECT_EQ(one.Eb_betonu, row.Eb) << row.norm << row.name;
        EXPECT_EQ(one.Rbz_betonu.value_or(0), row.tensile) << row.norm << row.name;
        EXPECT_EQ(one.Mnoznik_dlugosci, row.multiplier) << row.norm << row.name;
        EXPECT_EQ(one.Wsp_dlugosci, row.coefficient) << row.norm << row.name;
        EXPECT_EQ(ratioN(one.Eb_betonu), row.n) << row.norm << row.name;
        EXPECT_EQ(row.n, CSng(ferna::testing::computed(ratioNClause, {one.Eb_betonu})));
    }
    EXPECT_EQ(errorNumberOf([] { concrete(0, 6); }), error::Subscript);
    EXPECT_EQ(errorNumberOf([] { concrete(1, 0); }), error::Subscript);
}

TEST(ConcreteTable, TheListsFollowTheNorm) {
    EXPECT_EQ(concreteNames(0).join(u' '), QStringLiteral("B15 B17.5 B20 B25 B30"));
    EXPECT_EQ(concreteNames(1).join(u' '), QStringLiteral("B15 B20 B25 B30"));
}

TEST(CoreAreas, FollowTheSeriesOfDiameters) {
    const std::pair<Integer, Double> areas[] = {
        {12, 0.85},  {16, 1.57},  {20, 2.45}, {24, 3.53},  {30, 5.61},  {36, 8.17}, {42, 11.2},
        {48, 14.72}, {52, 17.57}, {56, 20.3}, {64, 26.75}, {72, 34.58}, {80, 43.42}};
    for (const auto& [fi, area] : areas)
        EXPECT_EQ(coreArea(fi), area) << fi;
    for (const int fi : {0, 10, 13, 18, 22, 81, -12})
        EXPECT_FALSE(coreArea(static_cast<Integer>(fi))) << fi;
}

} // namespace
