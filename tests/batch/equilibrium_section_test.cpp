#include "batch/equilibrium_section.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::batch;
using namespace ferna::testing;

namespace {

/// The value of "Rownowaga" for what is entered.
Json sectionOf(const ColumnBase& base) {
    JsonWriter json(JsonWriter::Layout::OneLine);
    writeEquilibria(json, enteredEquilibria(base.stan, base.fields));
    return Json::parse(json.written());
}

std::vector<std::string> keysOf(const Json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.get_ref<const Json::object_t&>())
        keys.push_back(key);
    std::sort(keys.begin(), keys.end());
    return keys;
}

struct EquilibriumSection : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;
};

TEST_F(EquilibriumSection, TellsStressesPlaneAndLineOfAnEquilibrium) {
    base.fourAnchors(250, 150).loads(100, 60, 0);
    const Json one = sectionOf(base).at(0);
    EXPECT_EQ(keysOf(one), (std::vector<std::string>{"Linia", "Plaszczyzna", "Reszta", "Sigma_b",
                                                     "Sigma_kotwy", "istnieje"}));
    EXPECT_TRUE(one.at("istnieje").get<bool>());
    ASSERT_EQ(one.at("Sigma_kotwy").size(), 4U);
    EXPECT_EQ(one.at("Sigma_kotwy")[0], 0.0);
    EXPECT_LT(one.at("Sigma_kotwy")[1].get<double>(), 0);
    const Json& plane = one.at("Plaszczyzna");
    ASSERT_EQ(plane.size(), 3U);
    const auto at = [&plane](double x) {
        return plane[0].get<double>() + plane[1].get<double>() * x;
    };
    EXPECT_NEAR(at(300), one.at("Sigma_b").get<double>(), 1e-9) << "MPa and MPa/mm";
    ASSERT_EQ(one.at("Linia").size(), 2U);
    for (const Json& point : one.at("Linia")) {
        EXPECT_NEAR(at(point[0].get<double>()), 0, 1e-9);
        EXPECT_NEAR(std::fabs(point[1].get<double>()), 200, 1e-9);
    }
    EXPECT_LT(one.at("Reszta").get<double>(), 1e-10);
}

TEST_F(EquilibriumSection, HasNoLineWhereItDoesNotCrossThePlate) {
    base.fourAnchors(250, 150).loads(240, 0, 0);
    EXPECT_TRUE(sectionOf(base).at(0).at("Linia").is_null());
}

TEST_F(EquilibriumSection, TellsTheAxisAloneWhereTheColumnTipsOver) {
    base.loads(100, 31, 0);
    const Json one = sectionOf(base).at(0);
    EXPECT_EQ(keysOf(one), (std::vector<std::string>{"istnieje", "os"}));
    EXPECT_FALSE(one.at("istnieje").get<bool>());
    const Json& axis = one.at("os");
    ASSERT_EQ(axis.size(), 2U);
    for (const Json& point : axis)
        EXPECT_NEAR(point[0].get<double>(), 300, 1e-9);
    EXPECT_NEAR(axis[0][1].get<double>(), -200, 1e-9);
    EXPECT_NEAR(axis[1][1].get<double>(), 200, 1e-9);
}

TEST_F(EquilibriumSection, IsThereForRefusedLoads) {
    base.fourAnchors(250, 150).loads(-50, 0, 0).loads(0, 10, 0).plate(400, 600);
    ASSERT_EQ(base.calculate(), CalculationEnd::Refused);
    const Json all = sectionOf(base);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all.at(0).at("Sigma_b"), 0.0);
    EXPECT_TRUE(all.at(1).at("istnieje").get<bool>());
}

TEST_F(EquilibriumSection, IsNullWithoutAreasAndInThePlaceOfALoadThatIsNoNumber) {
    base.fourAnchors(250, 150).loads(100, 60, 0).loads(100, 60, 0);
    base.fields.loads[0].N = QStringLiteral("x");
    EXPECT_TRUE(sectionOf(base).at(0).is_null());
    EXPECT_TRUE(sectionOf(base).at(1).is_object());
    base.anchor(0, 0, 18);
    EXPECT_TRUE(sectionOf(base).is_null());
}

} // namespace
