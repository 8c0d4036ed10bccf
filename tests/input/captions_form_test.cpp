#include "support/captions.h"
#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class Captions : public MainForm {
protected:
    QString tip(const char* name) const { return the(name)->toolTip(); }
};

TEST_F(Captions, OfTheFourTabs) {
    const auto* const tabs = the<QTabWidget>("SSTab1");
    QStringList titles;
    for (int i = 0; i < tabs->count(); ++i)
        titles += tabs->tabText(i);
    EXPECT_EQ(titles.join(u'|'),
              QStringLiteral("Konfiguracja|Dane ogólne|Obciążenia|Śruby (kotwy)"));
}

TEST_F(Captions, OfTheConfiguration) {
    expectControls(*form, {{"Label11", "Nazwa projektu"},
                           {"Label12", "Numer pierwszej strony obliczeń"},
                           {"Frame1", "Drukarka"},
                           {"Mono_col_0", "Mono"},
                           {"Mono_col_1", "Color"},
                           {"Frame2", "Język wyników"},
                           {"Frame3", "Norma"},
                           {"Norma_0", "PN-84/B-03264"},
                           {"Norma_1", "PN-B-03264:1999"},
                           {"Frame4", "Współczynnik n=Es/Ebet"},
                           {"Wsp_n_0", "Obliczony przez program"},
                           {"Wsp_n_1", "Podany przez użytkownika"},
                           {"Frame5", "Przenoszenie sił poziomych"},
                           {"optHsruby_0", "przez wszystkie kotwy"},
                           {"optHsruby_1", "przez kotwy strefy ściskanej"},
                           {"Frame6", "Opcja wyników w formacie RTF"},
                           {"optRTF_0", "Nie potrzebuję wyników w formacie *.RTF"},
                           {"optRTF_1", "Generacja wyników wzoru A (np. dla MS Word)"},
                           {"optRTF_2", "Generacja wyników wzoru B (np. dla Star Office)"}});
}

TEST_F(Captions, OfTheGeneralData) {
    expectControls(*form, {{"Label2", "Liczba przypadków obciążenia"},
                           {"Label3", "Es/Eb:"},
                           {"Label4", "Długość płyty (Lx) mm"},
                           {"Label5", "Szerokość płyty (Ly) mm"},
                           {"Label8", "Beton:"},
                           {"Label9", "Kotwy ze stali:"},
                           {"frmTyp_stopy", "Typ stopy"},
                           {"Option1_0", "Betonowa"},
                           {"Option1_1", "Żelbetowa"},
                           {"cmdOblicz", "&Oblicz", "Obliczenie sił i naprężeń"},
                           {"cmdKoniec", "&Koniec", "Koniec pracy z programem"}});
    EXPECT_EQ(tip("Text1"), QStringLiteral("max. 6 przypadków (schematów) obciążenia"));
    EXPECT_EQ(tip("Text2"), QString());
    EXPECT_EQ(tip("Text3"), QStringLiteral("Długość płyty mierzona wzdłuż osi X musi być Lx>=Ly)"));
    EXPECT_EQ(tip("Text4"),
              QStringLiteral("Szerokość płyty mierzona wzdłuż osi Y (musi być Ly<=Lx)"));
    EXPECT_EQ(tip("cmbBeton"), QStringLiteral("Wybierz z listy klasę betonu"));
    EXPECT_EQ(tip("cmbStal"), QStringLiteral("Wybierz z listy stal dla śrub"));
    EXPECT_EQ(tip("Picture1"), QStringLiteral("Zasada orientacji (kierunki) wymiarów i obciążeń"));
    EXPECT_EQ(the<QComboBox>("cmbStal")->placeholderText(), QStringLiteral("Wybierz stal śrub"));
    EXPECT_EQ(itemsOf(*form, "cmbBeton").join(u'|'), QStringLiteral("B15|B17.5|B20|B25|B30"));
    show(Konfiguracja);
    click("Norma_1");
    EXPECT_EQ(itemsOf(*form, "cmbBeton").join(u'|'), QStringLiteral("B15|B20|B25|B30"));
}

TEST_F(Captions, OfTheLoadTable) {
    expectControls(*form, {{"Label1", "N [kN]"},
                           {"Label6", "M1 [kNm]"},
                           {"Label10", "M2 [kNm]"},
                           {"Label13", "Vx [kN]"},
                           {"Label14", "Vy [kN]"},
                           {"Label7_0", "1."},
                           {"Label7_5", "6."}});
}

TEST_F(Captions, OfTheAnchorCommands) {
    expectControls(*form, {{"cmdDodaj1s", "&Dodaj 1 śrubę"},
                           {"cmdDodaj2x", "Dodaj 2 śruby rozmieszczone symetr. wzgl. osi &X"},
                           {"cmdDodaj2y", "Dodaj 2 śruby rozmieszczone symetr. wzgl. osi &Y"},
                           {"cmdDodaj4", "Dodaj 4 śruby &rozmieszczone symetrycznie"},
                           {"cmdUsun1s", "&Usuń 1 śrubę"},
                           {"cmdUsunws", "Usuń w&szystkie śruby"},
                           {"cmdZmien1fi", "Z&mień średnicę 1 śruby"},
                           {"cmdZmienwfi", "Zmień śr&ednicę wszystkich śrub"}});
    EXPECT_EQ(tip("Text9"), QStringLiteral("Lista już zadeklarowanych śrub"));
    EXPECT_EQ(tip("Picture3"), QStringLiteral("Proporcje płyty i rozmieszczenie śrub"));
    EXPECT_EQ(the<QPlainTextEdit>("Text9")->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
}

TEST_F(Captions, OfTheDialogOfANewAnchor) {
    show(Sruby);
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        expectControls(modal, {{"Label4", "Średnica śruby [mm]:"},
                               {"Label1", "x="},
                               {"Label2", " mm      y="},
                               {"Label3", "mm"},
                               {"cmdOK", "&O&K"}});
        EXPECT_EQ(itemsOf(modal, "cmbFi").join(u' '),
                  QStringLiteral("12 16 20 24 30 36 42 48 52 56 64 72 80"));
        EXPECT_EQ(modal.findChild<QComboBox*>(QStringLiteral("cmbFi"))->placeholderText(),
                  QStringLiteral("Srednica"));
        modal.close();
    });
    click("cmdDodaj1s");
}

TEST_F(Captions, OfTheDialogOfADiameter) {
    show(Sruby);
    add("cmdDodaj1s", 20, 0, 0);
    answers.dialog(QStringLiteral("Fernafi"), [](QWidget& modal) {
        expectControls(modal, {{"cmdOK", "O&K", "Akceptacja i dalsze obliczenia"},
                               {"cmbFi", "", "Wskaż nową średnicę"}});
        EXPECT_EQ(itemsOf(modal, "cmbFi").join(u' '),
                  QStringLiteral("16 20 24 30 36 42 48 52 56 64 72 80"));
        EXPECT_EQ(modal.findChild<QComboBox*>(QStringLiteral("cmbFi"))->placeholderText(),
                  QStringLiteral("Srednica"));
        modal.close();
    });
    click("cmdZmienwfi");
}

TEST_F(Captions, OfTheOfferOfN) {
    show(Konfiguracja);
    answers.dialog(QStringLiteral("FernaPon"), [](QWidget& modal) {
        expectControls(modal, {{"cmdn_0", "n=6"}, {"cmdn_2", "Inna wartość"}});
        press(modal, "cmdn_0");
    });
    click("Wsp_n_1");
}

} // namespace
