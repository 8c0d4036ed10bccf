#include "design/user_steels.h"
#include "support/decimal_comma.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::WithDecimalSign;

namespace {

const QString title = QStringLiteral("Błąd w opisie stali użytkownika");

struct AnchorSteelDialog : ::testing::Test {
    WithDecimalSign comma{u','};
    Stan stan;
    ScriptedDialogs dialogs;
    // fd, largest diameter, Rm, Re
    AnchorSteelFields fields{QStringLiteral("10.9"), QStringLiteral("640"), QStringLiteral("36"),
                             QStringLiteral("1000"), QStringLiteral("900,5")};

    AnchorSteelDialog() {
        stan.plyta.Fi_max = 24;
        stan.materialy.Stal_Re = 355; // of the last acceptance
        stan.materialy.Stal_Rm = 490;
    }

    std::optional<SteelField> ok() { return acceptAnchorSteel(stan, fields, dialogs); }

    void expectRefused(const char16_t* text, SteelField focus) {
        dialogs.messages.clear();
        EXPECT_EQ(ok(), focus);
        ASSERT_EQ(dialogs.messages.size(), 1U);
        EXPECT_EQ(dialogs.messages[0].text, QString::fromUtf16(text));
        EXPECT_EQ(dialogs.messages[0].title, title);
        EXPECT_EQ(stan.materialy.Stal_anulowana, True);
    }
};

TEST_F(AnchorSteelDialog, AcceptedItReplacesTheStrengths) {
    EXPECT_EQ(ok(), std::nullopt);
    EXPECT_TRUE(dialogs.messages.empty());
    const Materialy& m = stan.materialy;
    EXPECT_EQ(m.Stal_nazwa, QStringLiteral("10.9"));
    EXPECT_EQ(m.Fd_kotwy, 640);
    EXPECT_EQ(m.Stal_fd, 640);
    EXPECT_EQ(m.Stal_fi_max, 36);
    EXPECT_EQ(m.Stal_Re, 900.5F);
    EXPECT_EQ(m.Stal_Rm, 1000);
    EXPECT_EQ(m.Fd2_kotwy, CSng(0.85 * 900.5));
    EXPECT_EQ(m.Fv_kotwy, 450);
    EXPECT_EQ(m.Stal_anulowana, False);
    EXPECT_TRUE(m.Stal_uzytkownika);
}

TEST_F(AnchorSteelDialog, RefusesInItsOrder) {
    fields = {QString(), QStringLiteral("0"), QStringLiteral("8"), QStringLiteral("0"),
              QStringLiteral("0")};
    expectRefused(u"Podaj nazwę materiału", SteelField::Name);
    fields.name = QStringLiteral("X");
    expectRefused(u"Nieoczekiwana max. średnica", SteelField::Largest);
    fields.fi_max = QStringLiteral("120");
    expectRefused(u"Nieoczekiwana max. średnica", SteelField::Largest);
    fields.fi_max = QStringLiteral("23");
    expectRefused(u"Conajmniej jedna śruba jest grubsza!", SteelField::Largest);
    fields.fi_max = QStringLiteral("24");
    expectRefused(u"Musisz wypełnic wszystkie pola", SteelField::Name); // fd is 0
    fields.fd = QStringLiteral("300");
    expectRefused(u"Nieprawidłowe parametry materiału", SteelField::Strength); // Re is 0
}

TEST_F(AnchorSteelDialog, TheRangeOfDiametersIncludesItsEnds) {
    stan.plyta.Fi_max = 9;
    fields.fi_max = QStringLiteral("9");
    EXPECT_EQ(ok(), std::nullopt);
    fields.fi_max = QStringLiteral("119");
    EXPECT_EQ(ok(), std::nullopt);
}

TEST_F(AnchorSteelDialog, AYieldPointEqualToTheStrengthPasses) {
    fields.Rm = fields.Re = QStringLiteral("700");
    EXPECT_EQ(ok(), std::nullopt);
    fields.Rm = QStringLiteral("699,9");
    expectRefused(u"Nieprawidłowe parametry materiału", SteelField::Strength);
}

TEST_F(AnchorSteelDialog, AStrengthEqualToTheYieldPointDoesNotPass) {
    fields.fd = QStringLiteral("900,5");
    expectRefused(u"Nieprawidłowe parametry materiału", SteelField::Strength);
    fields.fd = QStringLiteral("900,4");
    EXPECT_EQ(ok(), std::nullopt);
}

TEST_F(AnchorSteelDialog, ARememberedZeroRefusesWhateverIsTyped) {
    stan.materialy.Stal_Re = 0;
    expectRefused(u"Musisz wypełnic wszystkie pola", SteelField::Name);
    expectRefused(u"Musisz wypełnic wszystkie pola", SteelField::Name); // it never gets further
    stan.materialy.Stal_Re = 1;
    EXPECT_EQ(ok(), std::nullopt);
    stan.materialy.Stal_Rm = 0;
    expectRefused(u"Musisz wypełnic wszystkie pola", SteelField::Name);
}

TEST_F(AnchorSteelDialog, ATextThatIsNoNumberKeepsTheDialogOpen) {
    for (QString AnchorSteelFields::*const number :
         {&AnchorSteelFields::fd, &AnchorSteelFields::fi_max, &AnchorSteelFields::Rm,
          &AnchorSteelFields::Re}) {
        const QString before = fields.*number;
        fields.*number = QStringLiteral("1,2,3");
        dialogs.messages.clear();
        EXPECT_TRUE(ok());
        ASSERT_EQ(dialogs.messages.size(), 1U);
        EXPECT_EQ(dialogs.messages[0].text, title);
        EXPECT_EQ(dialogs.messages[0].title, title);
        fields.*number = before;
    }
    fields.fi_max = QStringLiteral("40000");
    dialogs.messages.clear();
    EXPECT_TRUE(ok());
    EXPECT_EQ(dialogs.messages.at(0).text, title);
}

TEST_F(AnchorSteelDialog, ShowsTheValuesLastRemembered) {
    ASSERT_EQ(ok(), std::nullopt);
    const AnchorSteelFields again = rememberedAnchorSteel(stan.materialy);
    EXPECT_EQ(again, fields);
}

TEST_F(AnchorSteelDialog, CancelLeavesNoSteel) {
    ASSERT_EQ(ok(), std::nullopt);
    cancelSteel(stan);
    EXPECT_EQ(stan.materialy.Stal_anulowana, True);
}

struct PlateSteelDialog : ::testing::Test {
    WithDecimalSign comma{u','};
    Stan stan;
    ScriptedDialogs dialogs;
    PlateSteelFields fields{QStringLiteral("S235"), QStringLiteral("215,5"), QStringLiteral("40")};

    std::optional<SteelField> ok() { return acceptPlateSteel(stan, fields, dialogs); }

    void expectRefused(const char16_t* text, SteelField focus) {
        dialogs.messages.clear();
        EXPECT_EQ(ok(), focus);
        ASSERT_EQ(dialogs.messages.size(), 1U);
        EXPECT_EQ(dialogs.messages[0].text, QString::fromUtf16(text));
        EXPECT_EQ(dialogs.messages[0].title, title);
        EXPECT_EQ(stan.materialy.Stal_anulowana, True);
    }
};

TEST_F(PlateSteelDialog, AcceptedItIsTheSteelOfThePlate) {
    EXPECT_EQ(ok(), std::nullopt);
    const Materialy& m = stan.materialy;
    EXPECT_EQ(m.Blacha_nazwa, QStringLiteral("S235"));
    EXPECT_EQ(m.Blacha_fd, 215.5F);
    EXPECT_EQ(m.Fd_blachy, 215.5F);
    EXPECT_EQ(m.Blacha_t_max, 40);
    EXPECT_EQ(m.Max_grubosc, 40);
    EXPECT_EQ(m.Stal_anulowana, False);
    EXPECT_EQ(m.Blacha_uzytkownika, True);
    EXPECT_EQ(rememberedPlateSteel(m), fields);
}

TEST_F(PlateSteelDialog, RefusesInItsOrder) {
    fields = {QString(), QStringLiteral("0"), QStringLiteral("8")};
    expectRefused(u"Podaj nazwę materiału", SteelField::Name);
    fields.name = QStringLiteral("X");
    expectRefused(u"Nieoczekiwana max. grubość", SteelField::Largest);
    EXPECT_EQ(stan.materialy.Max_grubosc, 0);
    fields.t_max = QStringLiteral("120");
    expectRefused(u"Nieoczekiwana max. grubość", SteelField::Largest);
    fields.t_max = QStringLiteral("119");
    expectRefused(u"Musisz określić fd", SteelField::Strength);
    EXPECT_EQ(stan.materialy.Max_grubosc, 119);
    fields.fd = QStringLiteral("-5");
    expectRefused(u"Musisz określić fd", SteelField::Strength);
    EXPECT_EQ(stan.materialy.Fd_blachy, -5) << "a refusal leaves what was set";
    EXPECT_EQ(stan.materialy.Blacha_uzytkownika, False);
}

TEST_F(PlateSteelDialog, ATextThatIsNoNumberKeepsTheDialogOpen) {
    fields.fd = QStringLiteral("fd");
    EXPECT_TRUE(ok());
    EXPECT_EQ(dialogs.messages.at(0).text, title);
}

} // namespace
