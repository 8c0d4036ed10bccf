// The sheet of a calculation without results, in the menu of the main form.
#include "app/unsolved_sheet_entry.h"
#include "support/folder.h"
#include "support/main_form.h"

#include <QMenu>

using namespace ferna;
using namespace ferna::testing;

namespace {

class UnsolvedSheet : public MainForm {
protected:
    Folder sheets;
    ScriptedDialogs questions;
    UnsolvedSheetEntry* sheet = nullptr;

    void prepare() override { sheet = new UnsolvedSheetEntry(*form, stan, questions); }

    QAction* entry() const {
        Q_EMIT form->menus().task->aboutToShow();
        for (QAction* const one : form->menus().task->actions())
            if (one->text() == u"&Arkusz obliczeniowy...")
                return one;
        throw std::runtime_error("no entry");
    }

    void enter(const QString& N) {
        show(Dane_ogolne);
        type("Text1", QStringLiteral("1"));
        show(Obciazenia_);
        type("Text6_0", N);
        type("Text7_0", QStringLiteral("20"));
        type("Text8_0", QStringLiteral("5"));
        show(Sruby);
        add("cmdDodaj4", 24, 250, 150);
    }

    void refuse() {
        answers.box(QStringLiteral("Schemat nr 1"),
                    QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"));
        click("cmdOblicz");
    }

    QString saved() {
        questions.answers = {sheets.path(QStringLiteral("a.html"))};
        entry()->trigger();
        return QString::fromUtf8(Folder::bytesOf(sheets.path(QStringLiteral("a.html"))));
    }
};

TEST_F(UnsolvedSheet, CannotBeChosenBeforeACalculationNorAfterOneWithResults) {
    enter(QStringLiteral("300"));
    EXPECT_FALSE(entry()->isEnabled());
    EXPECT_TRUE(entry()->toolTip().contains(QStringLiteral("z okna wyników (Więcej)")));
    click("cmdOblicz");
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_FALSE(entry()->isEnabled());
}

TEST_F(UnsolvedSheet, OfARefusedTaskStandsOnTheExactEquilibriumAndQuotesTheMessage) {
    enter(QStringLiteral("-50"));
    refuse();
    ASSERT_TRUE(entry()->isEnabled());
    const QString html = saved();
    const QString first = html.left(html.indexOf(QStringLiteral("<h2>")));
    EXPECT_TRUE(first.contains(QStringLiteral("Arkusz opiera się na dokładnej równowadze")));
    EXPECT_TRUE(first.contains(
        QStringLiteral("Schemat nr 1: Program nie wykonuje obliczeń dla zakotwień rozciąganych")));
    EXPECT_TRUE(html.contains(QStringLiteral("data-symbol=\"sigma_1_e\"")));
    EXPECT_FALSE(html.contains(QStringLiteral("data-symbol=\"sigma_b_s\"")));
    EXPECT_TRUE(the<WrittenFiles>("zapisano")->isVisible());
}

TEST_F(UnsolvedSheet, CanBeChosenWhileTheTaskIsTheOneThatWasCalculated) {
    enter(QStringLiteral("-50"));
    refuse();
    show(Obciazenia_);
    type("Text6_0", QStringLiteral("-60"));
    EXPECT_FALSE(entry()->isEnabled());
    type("Text6_0", QStringLiteral("-50"));
    EXPECT_TRUE(entry()->isEnabled());
}

TEST_F(UnsolvedSheet, TheLineOfTheSavedFileLeavesOtherLettersAloneAndGoesWithTheNextCalculation) {
    enter(QStringLiteral("-50"));
    refuse();
    EXPECT_FALSE(saved().isEmpty());
    EXPECT_TRUE(the<WrittenFiles>("zapisano")->isVisible());
    answers.box(QStringLiteral("Schemat nr 1"),
                QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"));
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(answers.done()) << "Alt+O calculates";
    EXPECT_FALSE(the<WrittenFiles>("zapisano")->isVisible());
}

TEST_F(UnsolvedSheet, SpeaksTheLanguageThatIsChosenNow) {
    enter(QStringLiteral("-50"));
    refuse();
    show(Konfiguracja);
    click("Jezyk_4");
    EXPECT_TRUE(saved().contains(QStringLiteral("Das Blatt steht auf dem genauen Gleichgewicht")));
}

TEST_F(UnsolvedSheet, OfARunTimeErrorQuotesItsText) {
    enter(QStringLiteral("300"));
    show(Dane_ogolne);
    show(Konfiguracja);
    type("txtNr_strony", QStringLiteral("99999")); // beyond 16 bits
    answers.stop(6);
    click("cmdOblicz");
    ASSERT_TRUE(entry()->isEnabled());
    const QString html = saved();
    EXPECT_TRUE(html.left(html.indexOf(QStringLiteral("<h2>"))).contains(errorText(6)));
}

} // namespace
