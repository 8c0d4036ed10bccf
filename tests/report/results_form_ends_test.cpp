// The results form where the renderer fails, and the ways out of it.
#include "design/configuration.h"
#include "protocol/renderer_files.h"
#include "report/forms/renderer_wait.h"
#include "report/results_form.h"
#include "support/places.h"

#include <QPushButton>
#include <QTimer>

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST_F(ResultsForm, TellsAFailedRendererAndStaysUsable) {
    render = []() -> RendererReport {
        throw RunTimeError(error::NoObject, QStringLiteral("Wyd_drk"));
    };
    open(QStringLiteral("F-1"), [this] { EXPECT_THROW(form->open(), RunTimeError); });
    EXPECT_TRUE(form->isVisible());
    folder.write(wyd::replyFile, "0, 1\r\n");
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
}

TEST_F(ResultsForm, OffersToGiveUpARendererThatHangs) {
    open();
    QFile::remove(folder.path(QStringLiteral("Wyd_drk")));
    QFile hanging(folder.write(QStringLiteral("Wyd_drk"), "#!/bin/sh\nexec sleep 600\n"));
    hanging.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    render = [this] {
        RendererWait wait(form.get());
        return runRenderer(path(), {},
                           [&](const RendererState& state) { return wait.goOn(state); });
    };
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("12"));
    answers.dialog(QStringLiteral("rendererWait"), [](QWidget& modal) {
        const auto words = modal.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(words.begin(), words.end(), [](const QLabel* label) {
            return label->text().startsWith(QStringLiteral("Wyd_drk pracuje od 4 s."));
        }));
        QTest::mouseClick(modal.findChild<QPushButton*>(), Qt::LeftButton);
    });
    answers.stop(error::NoObject);
    clickPanel(2);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "no hourglass is left over";
    EXPECT_TRUE(form->isEnabled());
    render = [this] { return runRenderer(path()); };
    QFile::remove(folder.path(QStringLiteral("Wyd_drk")));
    QFile::link(places::bin("/Wyd_drk"), folder.path(QStringLiteral("Wyd_drk")));
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("12"), QStringLiteral("13"));
    clickPanel(2);
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 13")) << "and the next command works";
}

TEST_F(ResultsForm, TellsADamagedPictureOfTheRenderer) {
    open();
    render = [this] {
        folder.write(wyd::screenPicture, "to nie jest obraz");
        return RendererReport{};
    };
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("12"));
    answers.stop(error::DeviceIO);
    clickPanel(2);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(folder.names().contains(wyd::screenPicture));
}

TEST_F(ResultsForm, TellsAReplyWithLettersAndGoesBackWithThePageNumberAsItStands) {
    open();
    folder.write(wyd::replyFile, "jeden, dwa\r\n");
    answers.stop(error::TypeMismatch);
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(base.stan.opcje.Nr_strony, 1);
}

TEST_F(ResultsForm, IsLeftEvenWhereTheRendererFailsAndLeavesNoReply) {
    render = []() -> RendererReport {
        throw RunTimeError(error::NoObject, QStringLiteral("Wyd_drk"));
    };
    open(QStringLiteral("F-1"), [this] { EXPECT_THROW(form->open(), RunTimeError); });
    const auto saveAndEnd = [this] {
        Zapisz_cfg(base.stan, folder.path(QStringLiteral("Ferna.cfg")),
                   folder.path(wyd::replyFile));
    };
    endProgram = saveAndEnd;
    answers.stop(error::FileNotFound); // the end is abandoned, and the form can still be left
    action("mnuKoniec")->trigger();
    EXPECT_TRUE(form->isVisible());
    answers.stop(error::FileNotFound);
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(base.stan.opcje.Nr_strony, 1);
    form->show();
    answers.stop(error::FileNotFound);
    form->close();
    EXPECT_EQ(backs, 2);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ResultsForm, EndsTheProgramAtTheStopOfAMissingReply) {
    open();
    QFile::remove(folder.path(wyd::replyFile));
    for (const char* command : {"mnuPowrot", "mnuKoniec2"}) {
        endProgram = [this] {
            Zapisz_cfg(base.stan, folder.path(QStringLiteral("Ferna.cfg")),
                       folder.path(wyd::replyFile));
        };
        answers.stop(error::FileNotFound, true);
        QTimer::singleShot(0, form.get(), [this, command] { action(command)->trigger(); });
        QTimer::singleShot(5000, form.get(), [] { QApplication::exit(99); });
        EXPECT_EQ(QApplication::exec(), 1) << command;
    }
    EXPECT_EQ(backs, 0);
    EXPECT_FALSE(folder.names().contains(QStringLiteral("Ferna.cfg")));
}

TEST_F(ResultsForm, GoesBackWithTheNextFreePageAlsoByItsFrame) {
    open();
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
    EXPECT_EQ(base.stan.opcje.Nr_strony, 3); // the report has two pages
    EXPECT_FALSE(form->isVisible());
    form->show();
    form->close();
    EXPECT_EQ(backs, 2);
}

TEST_F(ResultsForm, EndsTheProgramFromBothPlaces) {
    open();
    action("mnuKoniec")->trigger();
    action("mnuKoniec2")->trigger();
    EXPECT_EQ(ends, 2);
}

} // namespace
