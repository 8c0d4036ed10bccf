// The style of each message, which is its icon.
#include "design/user_steels.h"
#include "input/anchor_layout.h"
#include "plate/plate_form.h"
#include "plate/plate_report_lines.h"
#include "report/results_session.h"
#include "selection/selection_form.h"
#include "statics/load_list.h"
#include "support/printing.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ferna;

namespace {

class MessageStyles : public ::testing::Test {
protected:
    /// The one message since the last question, with its style.
    void expect(MessageStyle style, const QString& text, const QString& title = programTitle) {
        ASSERT_EQ(dialogs.messages.size(), 1U) << text.toStdString();
        EXPECT_EQ(dialogs.messages[0].text, text);
        EXPECT_EQ(dialogs.messages[0].title, title);
        EXPECT_EQ(dialogs.messages[0].style, style) << text.toStdString();
        dialogs.messages.clear();
    }
    void answer(const char* text) { dialogs.answers.push_back(QString::fromLatin1(text)); }

    Stan stan;
    ScriptedDialogs dialogs;
};

TEST_F(MessageStyles, OfTheAnchorCommandsIsPlain) {
    const QString none = QStringLiteral("Nie ma takiej śruby");
    answer("3");
    removeOneAnchor(stan, dialogs);
    expect(MessageStyle::Plain, none, QStringLiteral("Ferna 2005 Pr - Usuwanie"));
    answer("3");
    askForAnchorToChange(stan, dialogs);
    expect(MessageStyle::Plain, none, QStringLiteral("Ferna 2005 Pr - Zmiana średnicy"));
    allAnchorsToChange(stan, dialogs);
    expect(MessageStyle::Plain, QStringLiteral("Nie ma śrub do modyfikacji"),
           QStringLiteral("Ferna 2005 Pr - Zmiana średnic"));
}

TEST_F(MessageStyles, OfARefusedSteelIsTheStop) {
    const QString title = QStringLiteral("Błąd w opisie stali użytkownika");
    AnchorSteelFields anchors{QString(), QStringLiteral("300"), QStringLiteral("40"),
                              QStringLiteral("490"), QStringLiteral("355")};
    acceptAnchorSteel(stan, anchors, dialogs);
    expect(MessageStyle::Stop, QStringLiteral("Podaj nazwę materiału"), title);
    anchors.name = QStringLiteral("S355");
    anchors.fd = QStringLiteral("x");
    acceptAnchorSteel(stan, anchors, dialogs);
    expect(MessageStyle::Stop, title, title);
    acceptPlateSteel(stan, {QString(), QStringLiteral("300"), QStringLiteral("40")}, dialogs);
    expect(MessageStyle::Stop, QStringLiteral("Podaj nazwę materiału"), title);
}

struct Cancelling : PlateSteelHost {
    void KGM8b(Stan& stan) override { stan.materialy.Stal_anulowana = True; }
};

TEST_F(MessageStyles, OfThePlateFormIsTheStop) {
    Cancelling host;
    askPlateSteel(stan, dialogs, host);
    expect(MessageStyle::Stop, QStringLiteral("Musisz okreslić stal dla blachy"));
    PlateForm form = openPlateForm(stan);
    form.fields.Text4 = QStringLiteral("0");
    writePlateSection(stan, form, dialogs);
    expect(MessageStyle::Stop, QStringLiteral("Musisz sprawdzić chociaż jeden warunek\n"
                                              "i podać przyjętą grubość blachy"));
}

TEST_F(MessageStyles, OfTheStaticsAndTheSelectionIsPlain) {
    Stan_statyki loads;
    StaticsForm statics = openStatics(loads);
    removeLoad(loads, statics, dialogs);
    expect(MessageStyle::Plain, QStringLiteral("Musisz zazanczyć na liście usuwane obciążenie"));
    stan.plyta.Fi_kotwy(1) = 24;
    stan.wyniki.Nr_kotwy_max = 1;
    SelectionForm selection;
    answer("gruba");
    loadSelection(stan, selection, dialogs);
    ASSERT_FALSE(dialogs.messages.empty());
    dialogs.messages.resize(1);
    expect(MessageStyle::Plain,
           QStringLiteral("Podany ciąg znaków nie tworzy liczby\nPrzyjęto wartość ZERO."));
}

TEST_F(MessageStyles, OfAFailedPrintIsTheStop) {
    const QTemporaryDir folder;
    ResultsSession session(
        stan, dialogs, folder.path(), true, [] { return QDateTime(); },
        []() -> RendererReport { throw RunTimeError(error::NoObject); });
    session.printOnChosenPrinter();
    expect(MessageStyle::Stop, QStringLiteral("Problem z wyborem drukarki"),
           QStringLiteral("Ferna Pr"));
}

} // namespace
