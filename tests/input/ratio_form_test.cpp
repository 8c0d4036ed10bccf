// A ratio n that the configuration cannot hold would make the next start refuse the whole task.
#include "design/configuration.h"
#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

constexpr auto inputTitle = "Stosunek współczynników sztywności";
constexpr auto inputPrompt = "Podaj stosunek współczynników sztywności n=E/Eb";

class Ratio : public MainForm {
protected:
    /// The next offer of n: another value is typed, and, where that is refused, 6 is taken.
    void announceTyped(const QString& n, bool refused) {
        answers.dialog(QStringLiteral("FernaPon"), [refused](QWidget& modal) {
            press(modal, "cmdn_2");
            EXPECT_EQ(modal.isVisible(), refused);
            if (refused)
                press(modal, "cmdn_0");
        });
        answers.input(QString::fromUtf8(inputTitle), QString::fromUtf8(inputPrompt),
                      QStringLiteral("7,59"), n);
        if (refused)
            answers.stop(error::Overflow);
    }

    /// Types 400 into the field, leaves it by `leave`, and finds it refused and still there.
    void expectRefused(const std::function<void()>& leave) {
        type("Text2", QStringLiteral("400"));
        answers.stop(error::Overflow);
        leave();
        EXPECT_TRUE(answers.done());
        EXPECT_EQ(shownTab(), Dane_ogolne);
        EXPECT_EQ(focused(), QStringLiteral("Text2"));
        EXPECT_EQ(text("Text2"), QStringLiteral("400"));
        EXPECT_EQ(resultsOpened, 0);
        EXPECT_LT(stan.opcje.Wsp_n_val, 400);
    }
};

TEST_F(Ratio, ThatCannotBeSavedIsRefusedByTheOfferWhichStaysOpen) {
    show(Konfiguracja);
    announceTyped(QStringLiteral("327,68"), true);
    click("Wsp_n_1");
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.0F);
}

TEST_F(Ratio, ThatCannotBeSavedIsRefusedWhereTheFieldIsLeft) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    show(Dane_ogolne);
    expectRefused([this] { key(Qt::Key_Tab); });
    expectRefused([this] { show(Obciazenia_); });
    expectRefused([this] { key(Qt::Key_Return); });
    expectRefused([this] { click("cmdOblicz"); });
    expectRefused([this] { click("cmdKoniec"); });
    EXPECT_TRUE(form->isVisible());
    type("Text2", QStringLiteral("6,4"));
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 1);
}

TEST_F(Ratio, LettersInTheFieldAreLeftToTheCalculation) {
    show(Dane_ogolne);
    type("Text2", QStringLiteral("six"));
    key(Qt::Key_Tab);
    EXPECT_NE(focused(), QStringLiteral("Text2"));
}

TEST_F(Ratio, TheLargestThatIsTakenComesBackAtTheNextStart) {
    show(Konfiguracja);
    announceTyped(QStringLiteral("327,67"), false);
    click("Wsp_n_1");
    Zapisz_cfg(stan, path(QStringLiteral("Ferna.cfg")), path(QStringLiteral("W_X.txt")));
    start();
    EXPECT_EQ(stan.opcje.Wsp_n_val, 327.67F);
    EXPECT_EQ(text("Text2"), QStringLiteral("327,67"));
}

} // namespace
