// Which catalogue is read, and when: the form remembers the one that is in force.
#include "support/main_form.h"
#include "support/places.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class Language : public MainForm {
protected:
    static QString firstText(const char* catalogue) {
        return readLines(places::data("/") + QLatin1String(catalogue)).front();
    }
};

TEST_F(Language, OfTheLastTaskIsRememberedAtTheStart) {
    setLine(7, " 2            Jezyk 0-PL 1-P2 2-GB 3-FR 4-DE");
    start();
    show(Konfiguracja);
    EXPECT_TRUE(checked("Jezyk_2"));
    EXPECT_EQ(stan.Teksty(1), firstText("Fergb.txt"));
    QFile::remove(path(QStringLiteral("Fergb.txt")));
    click("Jezyk_2"); // is in force: nothing is read, so nothing is missed
    EXPECT_EQ(stan.Teksty(1), firstText("Fergb.txt"));
    click("Jezyk_0"); // is not: its catalogue comes
    EXPECT_EQ(stan.opcje.Nr_jezyka, 0);
    EXPECT_EQ(stan.Teksty(1), firstText("Ferpl.txt"));
}

TEST_F(Language, OfEveryOptionBringsItsOwnCatalogue) {
    show(Konfiguracja);
    const std::array catalogues{"Ferpl.txt", "Ferp2.txt", "Fergb.txt", "Ferfr.txt", "Ferge.txt"};
    for (const int i : {4, 3, 2, 1, 0}) {
        click(QStringLiteral("Jezyk_%1").arg(i).toLatin1().constData());
        EXPECT_EQ(stan.Teksty(1), firstText(catalogues.at(static_cast<std::size_t>(i)))) << i;
    }
}

TEST_F(Language, OfACatalogueThatCannotBeReadIsAskedForAgain) {
    show(Konfiguracja);
    const QByteArray german = contents(QStringLiteral("Ferge.txt"));
    QFile::remove(path(QStringLiteral("Ferge.txt")));
    answers.stop(53);
    click("Jezyk_4");
    writeFileWhole(path(QStringLiteral("Ferge.txt")), german);
    click("Jezyk_4"); // was not taken for the one in force
    EXPECT_EQ(stan.Teksty(1), firstText("Ferge.txt"));
}

} // namespace
