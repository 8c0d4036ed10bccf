#include "support/main_form.h"
#include "support/places.h"

#include <QClipboard>
#include <QTimer>

using namespace ferna;
using namespace ferna::testing;

namespace {

class Start : public MainForm {};
class Leaving : public MainForm {
protected:
    /// Runs the program until it ends by itself after `command`; its exit code.
    int runUntilEnd(const std::function<void()>& command) {
        QTimer::singleShot(0, form.get(), command);
        QTimer::singleShot(5000, form.get(), [] { QApplication::exit(99); });
        return QApplication::exec();
    }

    bool configurationIs(const QByteArray& before) const {
        return contents(QStringLiteral("Ferna.cfg")) == before;
    }
};

TEST_F(Start, TheFieldsShowTheLastTask) {
    setLine(1, " 1            Norma");
    setLine(2, " 17           Strona");
    setLine(3, QStringLiteral("Hala A, o\u015B B").toUtf8().replace("\xC5\x9B", "\x9C"));
    setLine(4, " 2            Nrbetonu");
    setLine(5, " 4            Nrstali");
    setLine(6, " 1            685");
    setLine(7, " 2            Jezyk 0-PL 1-P2 2-GB 3-FR 4-DE");
    setLine(9, "3205   -1401   7     -350   12");
    setLine(13, "600   5   0     0   1");
    setLine(14, "600");
    setLine(15, "405");
    setLine(17, " 1            Tryb_sru");
    setLine(20, " 2            Tryb_RTF");
    start();

    EXPECT_TRUE(checked("Norma_1"));
    EXPECT_EQ(text("txtNr_strony"), QStringLiteral("17"));
    EXPECT_EQ(text("txtNaz_proj"), QStringLiteral("Hala A, oś B"));
    EXPECT_EQ(the<QComboBox>("cmbBeton")->currentText(), QStringLiteral("B20"));
    EXPECT_EQ(the<QComboBox>("cmbStal")->currentText(), QStringLiteral("18G2,18G2A"));
    EXPECT_TRUE(checked("Wsp_n_1"));
    EXPECT_EQ(text("Text2"), QStringLiteral("6,85"));
    EXPECT_TRUE(checked("Jezyk_2"));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("100"));
    EXPECT_EQ(text("Text6_1"), QStringLiteral("320,5"));
    EXPECT_EQ(text("Text7_1"), QStringLiteral("-140,1"));
    EXPECT_EQ(text("Text8_1"), QStringLiteral("0,7"));
    EXPECT_EQ(text("Text5_1"), QStringLiteral("-35"));
    EXPECT_EQ(text("Text10_1"), QStringLiteral("1,2"));
    EXPECT_EQ(text("Text6_5"), QStringLiteral("60"));
    EXPECT_EQ(text("Text10_5"), QStringLiteral("0,1"));
    EXPECT_EQ(text("Text3"), QStringLiteral("600"));
    EXPECT_EQ(text("Text4"), QStringLiteral("405"));
    EXPECT_TRUE(checked("optHsruby_1"));
    EXPECT_TRUE(checked("optRTF_2"));
}

TEST_F(Start, ARatioThatTheProgramComputesIsNotTakenFromTheFile) {
    setLine(6, " 0            1234");
    start();
    EXPECT_EQ(text("Text2"), QStringLiteral("7,59"));
    EXPECT_TRUE(checked("Wsp_n_0"));
}

TEST_F(Start, TheGeneralDataAreInFrontWithTheFirstFieldFocused) {
    EXPECT_EQ(shownTab(), Dane_ogolne);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
    EXPECT_EQ(text("Text1"), QStringLiteral("1"));
}

TEST_F(Start, AConcreteThatTheListDoesNotOfferLeavesItWithoutAChoice) {
    setLine(1, " 1            Norma");
    setLine(4, " 5            Nrbetonu");
    start();
    EXPECT_EQ(item("cmbBeton"), -1);
    EXPECT_EQ(stan.materialy.Nazwa_betonu, QStringLiteral("B30"));
    EXPECT_EQ(stan.materialy.Eb_betonu, 32400.0F);
}

TEST_F(Start, ThePageNumberIsUpToDateWhenTheFormComesBackFromTheResults) {
    form->hide();
    stan.opcje.Nr_strony = 12;
    form->show();
    EXPECT_EQ(text("txtNr_strony"), QStringLiteral("12"));
    EXPECT_EQ(shownTab(), Dane_ogolne);
}

TEST_F(Start, AnotherLanguageReadsItsCatalogueAndTheSameOneDoesNot) {
    show(Konfiguracja);
    click("Jezyk_2");
    EXPECT_EQ(stan.opcje.Nr_jezyka, 2);
    Stan english;
    english.opcje.Nr_jezyka = 2;
    startUp(english, places::data());
    const QString polish = english.Teksty(1);
    EXPECT_NE(stan.Teksty(1), polish);

    QFile::remove(path(QStringLiteral("Fergb.txt")));
    click("Jezyk_2"); // nothing is read, so nothing is missed
    EXPECT_EQ(stan.opcje.Nr_jezyka, 2);
}

TEST_F(Start, AMissingCatalogueStopsTheChoiceOfItsLanguage) {
    const QString before = stan.Teksty(1);
    QFile::remove(path(QStringLiteral("Ferge.txt")));
    show(Konfiguracja);
    answers.stop(53);
    click("Jezyk_4");
    EXPECT_EQ(stan.Teksty(1), before);
}

TEST_F(Start, OptionsGoIntoTheStateWhenTheyAreClicked) {
    show(Konfiguracja);
    click("optRTF_2");
    EXPECT_EQ(stan.opcje.Tryb_RTF, 2);
    click("optRTF_0");
    EXPECT_EQ(stan.opcje.Tryb_RTF, 0);
    click("optHsruby_1");
    EXPECT_EQ(stan.opcje.Hsily_wszystkie, 1);
    EXPECT_FALSE(form->fields().optHsruby_0);
    click("Mono_col_1"); // nothing reads it
    EXPECT_TRUE(checked("Mono_col_1"));
}

TEST_F(Start, ALetterThatTheFilesCannotHoldIsToldBesideTheProjectName) {
    show(Konfiguracja);
    auto* const note = the<QLabel>("lblZnaki_projektu");
    EXPECT_FALSE(note->isVisible());
    typeHere(QStringLiteral("Słup Ω"));
    EXPECT_TRUE(note->isVisible());
    EXPECT_TRUE(note->text().endsWith(QStringLiteral(": Ω"))) << note->text().toStdString();
    typeHere(QStringLiteral("Słup w osi Ż"));
    EXPECT_FALSE(note->isVisible());
}

TEST_F(Leaving, KoniecWritesTheConfigurationAndEndsTheProgram) {
    show(Konfiguracja);
    click("Norma_1"); // B20 stays: 3 becomes 2
    click("Jezyk_1");
    EXPECT_EQ(runUntilEnd([this] { click("cmdKoniec"); }), 0);
    EXPECT_FALSE(form->isVisible());
    const QList<QByteArray> lines = contents(QStringLiteral("Ferna.cfg")).split('\n');
    EXPECT_TRUE(lines[0].simplified() == "1 Norma") << lines[0].toStdString();
    EXPECT_TRUE(lines[3].simplified() == "2 Nrbetonu") << lines[3].toStdString();
    EXPECT_TRUE(lines[6].simplified().startsWith("1 Jezyk")) << lines[6].toStdString();
    EXPECT_TRUE(lines[15].simplified() == "0 0") << lines[15].toStdString(); // no anchor was added
}

TEST_F(Leaving, KoniecTakesThePageNumberThatTheRendererReported) {
    writeFileWhole(path(QStringLiteral("W_X.txt")), "1, 23\r\n");
    EXPECT_EQ(runUntilEnd([this] { click("cmdKoniec"); }), 0);
    EXPECT_EQ(contents(QStringLiteral("Ferna.cfg")).split('\n')[1].simplified(), "23 Strona");
}

TEST_F(Leaving, NamesPastedWithLineBreaksComeBackAtTheNextStart) {
    const auto paste = [](QWidget* field, const char16_t* text) {
        QApplication::clipboard()->setText(QString::fromUtf16(text));
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    };
    show(Konfiguracja);
    paste(the<QLineEdit>("txtNaz_proj"), u"Hala A\r\noś B\n");
    show(Dane_ogolne);
    choose("cmbStal", 6);
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    answers.dialog(QStringLiteral("KGM8"), [&paste](QWidget& modal) {
        paste(modal.findChild<QLineEdit*>(QStringLiteral("Text1")), u"S355\tJ2\n");
        press(modal, "cmdOK");
    });
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(runUntilEnd([this] { click("cmdKoniec"); }), 0);
    start();
    EXPECT_EQ(text("txtNaz_proj"), QStringLiteral("Hala A oś B"));
    EXPECT_EQ(stan.materialy.Stal_nazwa, QStringLiteral("S355 J2"));
    EXPECT_EQ(text("Text3"), QStringLiteral("1200"));
}

TEST_F(Leaving, TheFirstAnchorIsTheDefaultOfTheNextRun) {
    show(Sruby);
    add("cmdDodaj1s", 24, -250, 150);
    EXPECT_EQ(runUntilEnd([this] { click("cmdKoniec"); }), 0);
    EXPECT_EQ(contents(QStringLiteral("Ferna.cfg")).split('\n')[15].simplified(), "-250 150");
    start();
    EXPECT_EQ(stan.plyta.Liczba_srub, 0);
    show(Sruby);
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("Text1"))->text(),
                  QStringLiteral("-250"));
        EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("Text2"))->text(),
                  QStringLiteral("150"));
        chooseDiameter(modal, 16);
        press(modal, "cmdOK");
    });
    click("cmdDodaj1s");
}

TEST_F(Leaving, ClosingByTheFrameEndsWithoutWritingTheConfiguration) {
    const QByteArray before = contents(QStringLiteral("Ferna.cfg"));
    show(Konfiguracja);
    click("Jezyk_3");
    EXPECT_EQ(runUntilEnd([this] { form->close(); }), 0);
    EXPECT_TRUE(configurationIs(before));
}

TEST_F(Leaving, EscapeDoesNotEndTheProgram) {
    key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(Leaving, WithoutTheReplyOfTheRendererTheOldConfigurationSurvives) {
    const QByteArray before = contents(QStringLiteral("Ferna.cfg"));
    QFile::remove(path(QStringLiteral("W_X.txt")));
    show(Konfiguracja);
    click("Jezyk_3");
    answers.stop(53);
    click("cmdKoniec");
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(configurationIs(before));
}

TEST_F(Leaving, EndingAtAStopGivesExitCodeOneAndWritesNothing) {
    const QByteArray before = contents(QStringLiteral("Ferna.cfg"));
    type("Text1", QStringLiteral("abc"));
    answers.stop(13, true);
    EXPECT_EQ(runUntilEnd([this] { QTest::keyClick(the<QLineEdit>("Text1"), Qt::Key_Tab); }), 1);
    EXPECT_TRUE(configurationIs(before));
}

} // namespace
