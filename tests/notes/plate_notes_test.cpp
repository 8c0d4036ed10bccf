#include "notes/notes_desk.h"
#include "notes/plate_notes.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

/// A section in which these checks stand with 20 mm each, every value typed as computed.
notes::PlateFacts section(std::initializer_list<int> standing, Single accepted) {
    notes::PlateFacts facts;
    for (const int check : standing)
        facts.required.at(static_cast<std::size_t>(check - 1)) = 20;
    facts.accepted = accepted;
    facts.force = 100;
    facts.pressure = 5;
    PlateInputs& in = facts.inputs;
    in.check1.S = in.check7.S = in.check8.S = 100;
    in.check2.sigma_k = in.check2.sigma_p = 5;
    in.check3.sigma = in.check4.sigma = in.check5.sigma = in.check6.sigma = 5;
    return facts;
}

Marks marksOf(const notes::PlateFacts& facts) {
    return marks(notes::plateNotes(facts));
}

TEST(PlateNotes, ASectionAsItShouldBeBringsNone) {
    EXPECT_EQ(marksOf(section({1, 2, 3, 5, 6, 7, 8}, 20)), Marks{});
    EXPECT_EQ(marksOf(section({4}, 20)), Marks{});
}

TEST(PlateNotes, EachRefusedCheckIsToldByItsNumber) {
    for (int check = 1; check <= PlateChecks; ++check) {
        notes::PlateFacts facts = section({check == 1 ? 2 : 1}, 20);
        facts.refused.at(static_cast<std::size_t>(check - 1)) = true;
        EXPECT_EQ(marksOf(facts), Marks{"sprawdzenie_odrzucone s" + std::to_string(check)});
    }
    notes::PlateFacts facts = section({1}, 20);
    facts.refused[4] = true;
    EXPECT_EQ(notes::plateNotes(facts)[0].text,
              QStringLiteral("Sprawdzenie blachy (3.2): zostało odrzucone albo nie mogło się odbyć "
                             "i nie ma go w wydruku. Popraw jego dane i wykonaj je ponownie."));
}

TEST(PlateNotes, AThicknessBelowWhatACheckNeedsIsTold) {
    EXPECT_EQ(marksOf(section({1, 7}, 20)), Marks{});
    notes::PlateFacts facts = section({1, 7}, 21.5F);
    facts.required[6] = 22;
    ASSERT_EQ(marksOf(facts), Marks{"grubosc_bez_sprawdzenia s7"});
    EXPECT_TRUE(notes::plateNotes(facts)[0].text.endsWith(
        QStringLiteral("a sprawdzenia wymagają 22 mm. Przyjmij co najmniej 22 mm.")));
    facts.accepted = 22.0F;
    EXPECT_EQ(marksOf(facts), Marks{});
    facts.accepted.reset();
    EXPECT_EQ(marksOf(facts), Marks{}) << "no thickness stands in the report";
}

TEST(PlateNotes, AThicknessWithoutAnyCheckIsTold) {
    const WithDecimalSign comma(u',');
    ASSERT_EQ(marksOf(section({}, 12.5F)), Marks{"grubosc_bez_sprawdzenia"});
    EXPECT_EQ(
        notes::plateNotes(section({}, 12.5F))[0].text,
        QStringLiteral("Przyjęto grubość blachy 12,5 mm, a żadne sprawdzenie jej nie dotyczy. "
                       "Wykonaj sprawdzenia fragmentów blachy."));
}

TEST(PlateNotes, AValueMoreThanTwoPercentBelowTheComputedOneIsTold) {
    struct Field {
        int check;
        Single computed;
        Single& (*of)(PlateInputs&);
    };
    const Field fields[] = {
        {1, 100, [](PlateInputs& in) -> Single& { return in.check1.S; }},
        {2, 5, [](PlateInputs& in) -> Single& { return in.check2.sigma_k; }},
        {2, 5, [](PlateInputs& in) -> Single& { return in.check2.sigma_p; }},
        {3, 5, [](PlateInputs& in) -> Single& { return in.check3.sigma; }},
        {4, 5, [](PlateInputs& in) -> Single& { return in.check4.sigma; }},
        {5, 5, [](PlateInputs& in) -> Single& { return in.check5.sigma; }},
        {6, 5, [](PlateInputs& in) -> Single& { return in.check6.sigma; }},
        {7, 100, [](PlateInputs& in) -> Single& { return in.check7.S; }},
        {8, 100, [](PlateInputs& in) -> Single& { return in.check8.S; }},
    };
    for (const Field& field : fields) {
        notes::PlateFacts facts = section({field.check}, 20);
        field.of(facts.inputs) = 0.9801F * field.computed;
        EXPECT_EQ(marksOf(facts), Marks{}) << field.check;
        field.of(facts.inputs) = 0.9799F * field.computed;
        EXPECT_EQ(marksOf(facts), Marks{"sila_mniejsza s" + std::to_string(field.check)});
        notes::PlateFacts absent = section({field.check == 1 ? 2 : 1}, 20);
        field.of(absent.inputs) = 0;
        EXPECT_EQ(marksOf(absent), Marks{}) << "the check does not stand";
    }
}

TEST(PlateNotes, TheSentenceSaysBothValuesAndTheDifference) {
    const WithDecimalSign comma(u',');
    notes::PlateFacts facts = section({7}, 20);
    facts.inputs.check7.S = 80;
    EXPECT_EQ(
        notes::plateNotes(facts)[0].text,
        QStringLiteral("Sprawdzenie blachy (5.1): wpisano siłę w kotwie 80,0 kN, o 20,0 % "
                       "mniej niż największa obliczona wartość 100,0 kN. Wpisz obliczoną albo "
                       "upewnij się, że sprawdzany fragment jest mniej obciążony."));
}

TEST(PlateNotes, ANegativeForceIsTooSmall) {
    notes::PlateFacts facts = section({1}, 20);
    facts.inputs.check1.S = -100;
    EXPECT_EQ(marksOf(facts), Marks{"sila_mniejsza s1"});
    facts.force = 0;
    facts.inputs.check1.S = 0;
    EXPECT_EQ(marksOf(facts), Marks{}) << "nothing was computed";
}

} // namespace
