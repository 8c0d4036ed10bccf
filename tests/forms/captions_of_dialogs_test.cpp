// What stands on the dialogs, to the letter.
#include "input/forms/KGM8.h"
#include "plate/forms/KGM8b.h"
#include "statics/forms/Obciazenie.h"
#include "statics/forms/StatykaS.h"
#include "statics/forms/Statyka_sch.h"
#include "statics/statics_desk.h"
#include "support/captions.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class CaptionsOfDialogs : public WorkedForm {};

TEST_F(CaptionsOfDialogs, OfTheAnchorSteel) {
    KGM8 form(stan, dialogs, nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Stal użytkownika (kotwy)"));
    expectControls(form, {{"Label1", "Nazwa materiału"},
                          {"Label2_0", "fd="},
                          {"Label2_1", "max. średnica"},
                          {"Label2_2", "Rm="},
                          {"Label2_3", "Re="},
                          {"Label3_0", "N/mm2"},
                          {"Label3_1", "mm"},
                          {"Label3_2", "N/mm2"},
                          {"Label3_3", "N/mm2"},
                          {"Label4_0", "=MPa"},
                          {"Label4_2", "=MPa"},
                          {"Label4_3", "=MPa"},
                          {"cmdOK", "O&K", "Kontynuacja.."},
                          {"cmdCancel", "&Anuluj", "Powrót do poprzedniego okna"}});
    const Hand hand(form);
    EXPECT_EQ(hand.the("Text2_0")->toolTip(), QStringLiteral("Wytrzymałość obliczeniowa"));
    EXPECT_EQ(hand.the("Text2_1")->toolTip(), QStringLiteral("Re<Rm"));
    EXPECT_EQ(hand.the("Text2_2")->toolTip(), QStringLiteral("Wytrzymałość na rozciąganie"));
    EXPECT_EQ(hand.the("Text2_3")->toolTip(), QStringLiteral("Granica plastyczności"));
}

TEST_F(CaptionsOfDialogs, OfThePlateSteel) {
    KGM8b form(stan, dialogs, nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Stal użytkownika (blacha)"));
    expectControls(form, {{"Label1", "Nazwa materiału"},
                          {"Label2_0", "fd="},
                          {"Label2_1", "max. grubość"},
                          {"Label3_0", "N/mm2"},
                          {"Label3_1", "mm"},
                          {"Label4_0", "=MPa"},
                          {"cmdOK", "O&K", "Kontynuacja.."},
                          {"cmdCancel", "&Anuluj", "Powrót do poprzedniego okna"}});
    const Hand hand(form);
    EXPECT_EQ(hand.the("Text2_0")->toolTip(), QStringLiteral("Wtrzymałość obliczeniowa"));
    EXPECT_EQ(hand.the("Text2_1")->toolTip(), QStringLiteral("Re<Rm"));
}

class CaptionsOfTheStatics : public ColumnStaticsForm {};

TEST_F(CaptionsOfTheStatics, OfTheListOfLoads) {
    const char* const sum = "Siły w zakotwieniu wywołane obciązeniami wyszczególnionymi na liście";
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Statyka słupa"));
    expectControls(
        *form,
        {{"Label3", "Lista obciążeń:"},
         {"Frame1", "Kierunek obciążenia"},
         {"optTypObciaz_0", "Pionowe"},
         {"optTypObciaz_1", "W płaszczyżnie ZX"},
         {"optTypObciaz_2", "W płaszczyżnie ZY"},
         {"Frame2", "Rodzaj obciążenia"},
         {"optTypsily_0", "Siła skupiona"},
         {"optTypsily_1", "Obciążenie ciągłe"},
         {"optTypsily_2", "Moment"},
         {"cmdDodaj", "Szczegóły obciążenia", "Wielkość obciążenia i jego położenie"},
         {"cmdUsun", "Usuń obciążenie z listy", "Usuwanie jednego z obciążen z powyższej listy"},
         {"Label2", "N [kN]           M1 [kNm]        M2 [kNm]       Vx [kN]        Vy [kN]"},
         {"Text1_0", "0", sum},
         {"Text1_1", "0", sum},
         {"Text1_2", "0", sum},
         {"Text1_3", "0", sum},
         {"Text1_4", "0", sum},
         {"cmdZapisz", "Koniec deklarowania listy obciążeń"}});
    EXPECT_EQ(list().toolTip(), QStringLiteral("Lista zadeklarowanych obciążeń"));
    EXPECT_EQ(hand->the("Picture1")->toolTip(), QStringLiteral("Szkic"));
    EXPECT_TRUE(hand->shows("Picture1", QStringLiteral("slup")));
    EXPECT_FALSE(hand->enabled("cmdUsun"));
}

struct LoadFace {
    int direction, kind;
    const char* heading;
    std::array<const char*, 4> labels; // of Text1(0), Text1(1), Text2(0), Text2(1); "" for none
    const char* sketch;
};

TEST_F(CaptionsOfTheStatics, OfALoadByItsDirectionAndKind) {
    const auto* const inX = "Obciążenie w płaszczyżnie XZ";
    const auto* const inY = "Obciążenie w płaszczyżnie YZ";
    const std::vector<LoadFace> faces{
        {0,
         0,
         "Obciążenie siłą pionową",
         {"Siła P [kN]", "", "Mimośród ex w płaszczyżnie XZ [mm]",
          "Mimośród ey w płaszczyżnie YZ [mm]"},
         "obciaz1"},
        {1, 0, inX, {"Siła Hx [kN]", "", "Wysokość przyłożenia h [m]", ""}, "obciaz4"},
        {1,
         1,
         inX,
         {"Obciążenie p1x [kN/m]", "Obciążenie p2x [kN/m]", "Wysokość przyłożenia h1 [m]",
          "Wysokość przyłożenia h2 [m]"},
         "obciaz6"},
        {1, 2, inX, {"Moment Mxz [kNm]", "", "", ""}, "obciaz2"},
        {2, 0, inY, {"Siła Hy [kN]", "", "Wysokość przyłożenia h [m]", ""}, "obciaz5"},
        {2,
         1,
         inY,
         {"Obciążenie p1y [kN/m]", "Obciążenie p2y [kN/m]", "Wysokość przyłożenia h1 [m]",
          "Wysokość przyłożenia h2 [m]"},
         "obciaz6"},
        {2, 2, inY, {"Moment Myz [kNm]", "", "", ""}, "obciaz3"},
    };
    for (const LoadFace& face : faces) {
        choose(face.direction, face.kind);
        answers.dialog(QStringLiteral("Obciazenie"), [&face](QWidget& modal) {
            Hand dialog(modal);
            EXPECT_EQ(modal.windowTitle(), QStringLiteral("Szczegóły obciążenia"));
            EXPECT_EQ(dialog.label("Label1"), QString::fromUtf8(face.heading));
            const std::array labels{"Label2_0", "Label2_1", "Label3_0", "Label3_1"};
            const std::array fields{"Text1_0", "Text1_1", "Text2_0", "Text2_1"};
            for (std::size_t i = 0; i < fields.size(); ++i) {
                const QString label = QString::fromUtf8(face.labels.at(i));
                EXPECT_EQ(dialog.shown(fields.at(i)), !label.isEmpty()) << fields.at(i);
                EXPECT_EQ(dialog.shown(labels.at(i)), !label.isEmpty()) << labels.at(i);
                if (!label.isEmpty()) {
                    EXPECT_EQ(dialog.label(labels.at(i)), label);
                }
                EXPECT_EQ(dialog.text(fields.at(i)), QString::fromLatin1(i == 0 ? "1" : "0"));
            }
            EXPECT_TRUE(dialog.shows("Picture1", QString::fromLatin1(face.sketch)));
            EXPECT_EQ(dialog.focused(), QStringLiteral("Text1_0"));
            expectControls(modal, {{"cmdExit", "&Dodaj to obciążenie", "Akceptacja"},
                                   {"cmdAnuluj", "&Anuluj", "Powrót do poprzedniego okna"}});
            dialog.click("cmdAnuluj");
        });
        hand->click("cmdDodaj");
        EXPECT_TRUE(answers.done());
    }
}

TEST_F(CaptionsOfTheStatics, OfTheScheme) {
    const Statyka_sch dialog(3, nullptr);
    expectControls(dialog, {{"frmZapis", "Tryb zapisu"},
                            {"optZapis_0", "Zapisz jako nowy schemat"},
                            {"optZapis_1", "Dodaj do istniejącego schematu"},
                            {"optZapis_2", "Zastąp istniejący schemat"},
                            {"frmNumer_sch", "Numer schematu"},
                            {"optNumer_0", "Schemat 1"},
                            {"optNumer_1", "Schemat 2"},
                            {"optNumer_2", "Schemat 3"},
                            {"optNumer_3", "Schemat 4"},
                            {"optNumer_4", "Schemat 5"},
                            {"optNumer_5", "Schemat 6"},
                            {"cmdZapisz", "Zapisz", "Akceptacja"},
                            {"cmdAnuluj", "Anuluj", "Powrót do poprzedniego okna"}});
}

} // namespace
