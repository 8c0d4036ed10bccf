// What stands on the form of the plate thickness, to the letter and on its tab.
#include "plate/forms/Grub_bla.h"
#include "support/captions.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/worked_form.h"

#include <QListWidget>
#include <QStackedWidget>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// A field on its tab with its label and unit; "" where it has none.
struct PlateFieldFace {
    int tab;
    const char* field;
    const char* tip;
    const char* label;
    const char* caption;
    const char* unit;
    const char* unitText;
};

// clang-format off
const std::vector<PlateFieldFace> fields{
    {0, "Text1_0", "Porównaj szkic", "Label1_0", "Szerokość współpracująca pasa blachy (bs)", "Label2_0", "mm"},
    {0, "Text2_0", "Porównaj szkic", "Label3_0", "Długość wspornika (odległość osi kotwy od krawędzi spoiny) (ca)", "Label4_0", "mm"},
    {0, "Text3_0", "Siła w kotwie dotycz. obl. fragmentu blachy", "Label5_0", "Siła w kotwie (S)", "Label6_0", "kN"},
    {1, "Text1_5", "Porównaj szkic", "Label1_5", "Szerokość fragmentu blachy (b)", "Label2_5", "mm"},
    {1, "Text2_8", "Porównaj szkic", "Label3_10", "Położenie kotwy: wymiar a", "Label4_10", "mm"},
    {1, "Text2_7", "Porównaj szkic", "Label3_9", "Położenie kotwy: wymiar c", "Label4_9", "mm"},
    {1, "Text3_7", "Siła w kotwie dotycz. obl. fragmentu blachy", "Label5_7", "Siła w kotwie (S)", "Label6_7", "kN"},
    {2, "Text1_4", "Porównaj szkic", "Label1_4", "Szerokość fragmentu blachy (b)", "Label2_4", "mm"},
    {2, "Text2_5", "Porównaj szkic", "Label3_5", "Położenie kotwy: wymiar a", "Label4_5", "mm"},
    {2, "Text2_6", "Porównaj szkic", "Label3_8", "Położenie kotwy: wymiar c", "Label4_8", "mm"},
    {2, "Text3_6", "Siła w kotwie dotycz. obl. fragmentu blachy", "Label5_6", "Siła w kotwie (S)", "Label6_6", "kN"},
    {3, "cmbProfil", "Wybierz profil słupa", "", "", "", ""},
    {3, "Text3_2", "", "Label5_2", "Max. naprężenia pod blachą", "Label6_2", "MPa"},
    {4, "Text2_1", "Porównaj szkic", "Label3_1", "Długość wspornika (odległość krawędzi blachy od krawędzi spoiny)", "Label4_1", "mm"},
    {4, "Text3_8", "Porównaj szkic", "Label5_8", "Naprężenia pod początkiem wspornika (przy słupie lub żebrze)", "Label6_8", "MPa"},
    {4, "Text3_1", "Porównaj szkic", "Label5_1", "Naprężenia pod końcem wspornika (na krawędzi blachy)", "Label6_1", "MPa"},
    {5, "Text1_3", "Porównaj szkic", "Label1_3", "Długość fragmentu blachy [l]", "Label2_3", "mm"},
    {5, "Text2_4", "Porównaj szkic", "Label3_4", "Szerokość fragmentu blachy [b]", "Label4_4", "mm"},
    {5, "Text3_5", "Dotyczy sprawdzanego fragmentu blachy", "Label5_5", "Naprężenia pod blachą", "Label6_5", "MPa"},
    {6, "Text1_2", "Porównaj szkic", "Label1_2", "Długość fragmentu blachy [l]", "Label2_2", "mm"},
    {6, "Text2_3", "Porównaj szkic", "Label3_3", "Szerokość fragmentu blachy [b]", "Label4_3", "mm"},
    {6, "Text3_4", "", "Label5_4", "Naprężenia pod blachą", "Label6_4", "MPa"},
    {7, "Text1_1", "Porównaj szkic", "Label1_1", "Długość fragmentu blachy [l]", "Label2_1", "mm"},
    {7, "Text2_2", "Porównaj szkic", "Label3_2", "Szerokość fragmentu blachy [b]", "Label4_2", "mm"},
    {7, "Text3_3", "Dotyczy sprawdzanego fragmentu blachy", "Label5_3", "Naprężenia pod blachą", "Label6_3", "MPa"},
};
// clang-format on

/// A tab with its commands, its sketch and its basis; "" where it has none.
struct TabFace {
    const char* caption;
    int check;
    const char* command;
    const char* commandCaption;
    const char* picture;
    const char* sketch;
    const char* basis;
    const char* basisText;
};

const std::vector<TabFace> tabs{
    {"Wspornikowy fragment bl. - strefa rozciągana", 1, "cmdOblicz1", "Oblicz (1)", "Picture1_0",
     "szkic1", "", ""},
    {"Fragment zamoc. na 2 krawędziach (rozciąg)", 8, "cmdOblicz52", "Oblicz (5.2)", "Picture1_6",
     "szkic52", "Label11_5", "wg PN-B-03215:1998 - Załącznik B wz.( B.2) i rys. B.3"},
    {"Fragment zamoc. na 3 krawędziach (rozciąg.)", 7, "cmdOblicz51", "Oblicz (5.1)", "Picture1_5",
     "szkic51", "Label11_4", "wg PN-B-03215:1998 - Załącznik B wz.( B.2) i rys. B.2"},
    {"Przypadek słupa IPE lub HEB (docisk)", 4, "cmdOblicz4", "Oblicz (4)", "", "", "Label11_0",
     "wg PN-B-03215:1998 - Załącznik B p.B 2  (stopa bez żeber usztywniających) - model sprężysty"},
    {"Wspornikowy fragment bl. - strefa dociskana", 2, "cmdOblicz2", "Oblicz (2)", "Picture1_1",
     "szkic2", "", ""},
    {"Fragment oparty na 2 krawędziach (docisk)", 6, "cmdOblicz33", "Oblicz (3.3)", "Picture1_4",
     "szkic33", "Label11_3", "wg PN-B-03215:1998 - Załącznik B wz. B.6 i tabl. B.2"},
    {"Fragment oparty na 3 krawędziach (docisk)", 5, "cmdOblicz32", "Oblicz (3.2)", "Picture1_3",
     "szkic32", "Label11_2", "wg PN-B-03215:1998 - Załącznik B wz. B.6 i tabl. B.2"},
    {"Fragment oparty na 4 krawędziach (docisk)", 3, "cmdOblicz31", "Oblicz (3.1)", "Picture1_2",
     "szkic31", "Label11_1", "wg PN-B-03215:1998 - Załącznik B wz. B.6 i tabl. B.2"},
};

class CaptionsOfThePlate : public WorkedForm {
protected:
    CaptionsOfThePlate() {
        const QDir programs(places::bin());
        for (const QString& picture : programs.entryList({QStringLiteral("rysgb*.bmp")}))
            QFile::copy(programs.filePath(picture), path(picture));
        stan.plyta.Fi_kotwy(1) = 20;
        stan.wyniki.Nr_kotwy_max = 1;
        form = std::make_unique<Grub_bla>(stan, folder.path(), dialogs, nullptr);
        form->show();
        hand = std::make_unique<Hand>(*form);
        hand->activate();
    }

    void chooseTab(int tab) { hand->key(Qt::Key(Qt::Key_1 + tab), Qt::AltModifier); }
    int tabOf(const QWidget* control) const {
        const auto* const pages = hand->the<QStackedWidget>("SSTab1");
        for (int tab = 0; tab < pages->count(); ++tab)
            if (pages->widget(tab)->isAncestorOf(control))
                return tab;
        return -1;
    }
    /// The control by its name, on that tab.
    const QWidget& on(int tab, const QString& name) const {
        const QWidget* const control = hand->the(name.toLatin1().constData());
        EXPECT_EQ(tabOf(control), tab) << name.toStdString();
        return *control;
    }

    std::unique_ptr<Grub_bla> form;
    std::unique_ptr<Hand> hand;
};

TEST_F(CaptionsOfThePlate, OfTheFieldsWithTheirUnits) {
    for (const PlateFieldFace& face : fields) {
        EXPECT_EQ(on(face.tab, QLatin1String(face.field)).toolTip(), QString::fromUtf8(face.tip))
            << face.field;
        if (face.label[0] == '\0')
            continue;
        EXPECT_EQ(captionOf(on(face.tab, QLatin1String(face.label))),
                  QString::fromUtf8(face.caption))
            << face.label;
        EXPECT_EQ(captionOf(on(face.tab, QLatin1String(face.unit))),
                  QString::fromUtf8(face.unitText))
            << face.unit;
    }
}

TEST_F(CaptionsOfThePlate, OfTheTabsWithTheirCommandsAndSketches) {
    const auto* const list = hand->the<QListWidget>("lstZakladki");
    ASSERT_EQ(list->count(), static_cast<int>(tabs.size()));
    for (int tab = 0; tab < list->count(); ++tab) {
        const TabFace& face = tabs[static_cast<std::size_t>(tab)];
        EXPECT_EQ(list->item(tab)->text(), QString::fromUtf8(face.caption));
        const QWidget& command = on(tab, QLatin1String(face.command));
        EXPECT_EQ(captionOf(command), QString::fromUtf8(face.commandCaption));
        EXPECT_EQ(command.toolTip(), QStringLiteral("Obliczenie grubości blachy dla tego warunku"));
        const QWidget& withdraw = on(tab, QStringLiteral("cmdAnulujto_%1").arg(face.check - 1));
        EXPECT_EQ(captionOf(withdraw), QStringLiteral("Anuluj to sprawdzenie"));
        EXPECT_EQ(withdraw.toolTip(), QStringLiteral("Anulowanie obliczeń z tej zakładki"));
        const QWidget& line = on(tab, QStringLiteral("Label8_%1").arg(face.check - 1));
        EXPECT_EQ(captionOf(line), QStringLiteral("Wymagana ..."));
        EXPECT_EQ(line.toolTip(), QStringLiteral("Grubość blachy wynikająca z tego warunku"));
        if (face.basis[0] != '\0') {
            EXPECT_EQ(captionOf(on(tab, QLatin1String(face.basis))),
                      QString::fromUtf8(face.basisText));
        }
        if (face.picture[0] != '\0') {
            chooseTab(tab);
            on(tab, QLatin1String(face.picture));
            EXPECT_TRUE(hand->shows(face.picture, QLatin1String(face.sketch))) << face.picture;
        }
    }
}

TEST_F(CaptionsOfThePlate, OfWhatStandsOutsideTheTabs) {
    const char* const governing = "Grubość blachy po uwzględnieniu wszystkich obliczonych warunków";
    expectControls(*form, {{"Label9", "Gatunek stali blachy :"},
                           {"Label10_0", "Przyjęto grubość blachy = ", governing},
                           {"Label10_1", "mm "},
                           {"cmdOK", "O&K - dopisz do wyników",
                            "Dopisanie wszystkich oszacowań i powrót do okna wyników"},
                           {"cmdAnuluj", "Anuluj wszystko",
                            "Anulowanie wszystkich obliczeń - powrót do okna wyników"}});
    EXPECT_EQ(hand->the("Text4")->toolTip(), QString::fromUtf8(governing));
    EXPECT_EQ(hand->the("cmbStalb")->toolTip(), QStringLiteral("Wybierz gatunek  stali"));
    EXPECT_EQ(hand->the<QComboBox>("cmbStalb")->currentIndex(), -1);
    EXPECT_EQ(itemsOf(*form, "cmbStalb").size(), 6);
    EXPECT_EQ(itemsOf(*form, "cmbProfil").size(), 25);
}

} // namespace
