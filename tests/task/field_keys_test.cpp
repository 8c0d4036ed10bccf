#include "support/column_base.h"
#include "support/run_time_errors.h"
#include "task/field_keys.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::errorOf;

namespace {

TEST(KeyOfAValue, ATextThatCannotBeTakenLeadsToItsKeyOfTheTask) {
    const auto keyOf = [](const char16_t* text, QString& (*field)(InputFields&)) {
        ColumnBase base;
        base.fourAnchors(250, 150).loads(300, 10, 0).loads(200, 5, 0);
        field(base.fields) = QString::fromUtf16(text);
        const auto failure = errorOf([&] { base.calculate(); });
        return failure ? keyOfValue(failure->value()) : std::string("no error");
    };
    using Fields = InputFields;
    using Text = QString&;
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.txtNr_strony; }), "Nr_strony");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.Text2; }), "Wsp_n_val");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.Text3; }), "Dlug_plyty_mm");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.Text4; }), "Szer_plyty_mm");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.loads[0].N; }), "Przypadki[0].N");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.loads[1].N; }), "Przypadki[1].N");
    EXPECT_EQ(keyOf(u"1e38", [](Fields& f) -> Text { return f.loads[1].N; }), "Przypadki[1].N");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.loads[1].M1; }), "Przypadki[1].M1");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.loads[0].M2; }), "Przypadki[0].M2");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.loads[1].Vx; }), "Przypadki[1].Vx");
    EXPECT_EQ(keyOf(u"x", [](Fields& f) -> Text { return f.loads[1].Vy; }), "Przypadki[1].Vy");
}

TEST(KeyOfAValue, AValueOfAnotherFormHasNone) {
    EXPECT_EQ(keyOfValue({}), "");
    EXPECT_EQ(keyOfValue({Value::TotalN}), "");
    EXPECT_EQ(keyOfValue({Value::AcceptedThickness}), "");
}

} // namespace
