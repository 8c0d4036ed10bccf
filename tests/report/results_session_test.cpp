#include "protocol/renderer_files.h"
#include "protocol/renderer_news.h"
#include "report/results_session.h"
#include "report/title_lines.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/folder.h"
#include "support/printing.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

#include <csignal>

using namespace ferna;
using namespace ferna::testing;

namespace {

class Results : public ::testing::Test {
protected:
    ColumnBase base;
    Folder folder;
    int rendered = 0;
    QByteArray picture = "picture";
    std::unique_ptr<ResultsSession> session;

    void SetUp() override {
        folder.write(QStringLiteral("Ferogo2.bmp"), "principle");
        folder.write(wyd::replyFile, "1, 7\r\n");
        base.fourAnchors(250, 150).loads(320, 60, 5).loads(900, 5, 0);
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
        session = std::make_unique<ResultsSession>(
            base.stan, base.dialogs, folder.path(QStringLiteral(".")), true,
            [] { return QDateTime(QDate(2024, 3, 9), QTime(14, 5)); },
            [this] {
                ++rendered;
                if (!picture.isNull())
                    folder.write(wyd::screenPicture, picture);
                return RendererReport{};
            });
    }
};

TEST_F(Results, OpenWithASketchOfEachCaseThatHasANeutralLine) {
    base.dialogs.answers.push_back(QStringLiteral("F-1"));
    session->open();
    EXPECT_EQ(folder.read(QStringLiteral("ferogol.bmp")), QByteArray("principle"));
    EXPECT_TRUE(folder.names().contains(QStringLiteral("fernasz1.bmp")));
    EXPECT_FALSE(folder.names().contains(QStringLiteral("fernasz2.bmp")));
    EXPECT_TRUE(session->raport().Wiersze_strefy(0).startsWith(u"<45>"));
    EXPECT_EQ(session->raport().Wiersze_strefy(1), QString()) << "nothing without a sketch";
    EXPECT_EQ(session->labelPanel(), QStringLiteral("F-1"));
    EXPECT_EQ(session->pagePanel(), QStringLiteral(" Strona 1"));
    EXPECT_EQ(session->statePanel(), QStringLiteral("OK"));
}

TEST_F(Results, TakeTheFreeTitleLinesFromTheFileOfTheProgramFolder) {
    folder.write(titleLinesFile, "norma_pl = Konstrukcje stalowe\nbiuro = Biuro\n");
    session->open();
    EXPECT_EQ(session->raport().Wiersze_naglowka(2), QStringLiteral("Konstrukcje stalowe"));
    EXPECT_EQ(session->model().title(3), QStringLiteral("Biuro"));
}

TEST_F(Results, TakeThePictureAndDeleteItsFile) {
    session->open();
    EXPECT_EQ(session->screenPicture(), picture);
    EXPECT_FALSE(folder.names().contains(wyd::screenPicture));
    EXPECT_TRUE(folder.read(wyd::jobFile).startsWith("-2, 1.0, 0.5, 1.0, 1\r\n"));
}

TEST_F(Results, TellThatTheRendererLeftNoPictureAndNeverShowAnOldOne) {
    session->open();
    folder.write(wyd::screenPicture, "old");
    picture = QByteArray();
    EXPECT_EQ(errorNumberOf([&] { session->screenPicture(); }), error::FileNotFound);
}

TEST_F(Results, AskForTheLabelBeforeEachPrint) {
    session->open();
    base.dialogs.answers.push_back(QStringLiteral("F-2"));
    session->print(RenderMode::Print);
    EXPECT_EQ(session->labelPanel(), QStringLiteral("F-2"));
    EXPECT_TRUE(folder.read(wyd::jobFile).startsWith("-1, 1.0, 0.5, 1.0, 1\r\n"));
    EXPECT_EQ(rendered, 1);
}

TEST_F(Results, MakeOneMessageOfAnyFailureOnAChosenPrinter) {
    session->open();
    session = std::make_unique<ResultsSession>(
        base.stan, base.dialogs, folder.path(QStringLiteral(".")), true,
        [] { return QDateTime::currentDateTime(); },
        []() -> RendererReport { throw RunTimeError(error::NoObject); });
    session->printOnChosenPrinter();
    EXPECT_EQ(base.messages().last(), QStringLiteral("Problem z wyborem drukarki"));
    EXPECT_EQ(base.dialogs.messages.back().title, QStringLiteral("Ferna Pr"));
}

TEST_F(Results, RejectTheEmptyAnswerOfACancelledPagePrompt) {
    base.dialogs.answers.push_back(QString());
    EXPECT_EQ(errorNumberOf([&] { session->askPageNumber(); }), error::TypeMismatch);
    EXPECT_EQ(base.stan.opcje.Nr_strony, 1);
    base.dialogs.answers.push_back(QStringLiteral("12"));
    session->askPageNumber();
    EXPECT_EQ(session->pagePanel(), QStringLiteral(" Strona 12"));
}

TEST_F(Results, TakeAPastedProjectNameAsOneLine) {
    base.dialogs.answers.push_back(QStringLiteral("Hala A\noś B\n"));
    session->askProjectName();
    EXPECT_EQ(session->projectPanel(), QStringLiteral("Hala A oś B"));
}

TEST_F(Results, SaveUnderThePresetNameAtTheFirstCancelAndStopAtTheSecond) {
    session->open();
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path(QStringLiteral(".")));
    session->saveText();
    EXPECT_TRUE(folder.names().contains(QStringLiteral("Wyniki")));
    EXPECT_EQ(errorNumberOf([&] { session->saveText(); }), error::Cancelled);
    QDir::setCurrent(before);
}

TEST_F(Results, TellWhatWasWrittenAndWhere) {
    base.dialogs.answers = {QStringLiteral("F-1"), folder.path(QStringLiteral("stopa.txt"))};
    session->open();
    EXPECT_EQ(session->takeWritten(), QStringList()) << "the program's own files are not told";
    session->saveText();
    EXPECT_EQ(session->takeWritten(), QStringList{folder.path(QStringLiteral("stopa.txt"))});
    EXPECT_EQ(session->takeWritten(), QStringList());
    base.dialogs.answers = {folder.path(QStringLiteral("no/stopa.txt"))};
    session->saveText();
    EXPECT_EQ(session->takeWritten(), QStringList()) << "nothing was written";
}

TEST_F(Results, KeepThePageThatTheRtfReportReachedAndItsTitleLine) {
    base.stan.opcje.Tryb_RTF = 1;
    base.dialogs.answers = {QStringLiteral("F-1"), folder.path(QStringLiteral("a.rtf"))};
    base.fourAnchors(200, 100).fourAnchors(150, 50).fourAnchors(220, 120).fourAnchors(230, 130);
    session->open();
    base.stan.opcje.Nr_strony = 7;
    session->saveRtf();
    const auto pages = static_cast<Integer>(folder.read(QStringLiteral("a.rtf")).count("\\page"));
    ASSERT_GT(pages, 0);
    EXPECT_EQ(base.stan.opcje.Nr_strony, 7 + pages);
    EXPECT_EQ(session->pagePanel(), QStringLiteral(" Strona %1 ").arg(7 + pages));
    EXPECT_TRUE(
        session->raport().Wiersze_naglowka(6).endsWith(QStringLiteral("Strona %1").arg(7 + pages)));
    base.dialogs.answers = {folder.path(QStringLiteral("no/a.rtf"))};
    session->saveRtf();
    EXPECT_EQ(base.stan.opcje.Nr_strony, 7 + pages) << "what was not written counts no page";
}

TEST_F(Results, EndSilentlyWhereTheTextCannotBeWritten) {
    session->open();
    base.dialogs.answers.push_back(folder.path(QStringLiteral("no/such/folder.txt")));
    const std::size_t messages = base.dialogs.messages.size();
    session->saveText();
    EXPECT_EQ(base.dialogs.messages.size(), messages);
}

TEST_F(Results, TakeThePageNumberOfTheReplyOnTheWayBack) {
    session->open();
    session->leave();
    EXPECT_EQ(base.stan.opcje.Nr_strony, 7);
    EXPECT_TRUE(session->labelPanel().isEmpty());
    folder.write(wyd::replyFile, "0, 9\r\n");
    session->leave();
    EXPECT_EQ(base.stan.opcje.Nr_strony, 7);
}

TEST_F(Results, TellInTheStatusBarThatAnAnchorIsExceeded) {
    base.stan.wyniki.Kotwy_OK = False;
    EXPECT_EQ(session->statePanel(), QStringLiteral(" Przekroczone naprezenia !! "));
}

TEST(JobFile, CarriesModePageNumberAndThePathsOfTheCommandFiles) {
    EXPECT_EQ(jobLine(RenderMode::Clipboard, 12), QStringLiteral("3, 1.0, 0.5, 1.0, 12"));
    EXPECT_EQ(jobLine(RenderMode::ScreenPicture, 0), QStringLiteral("-2, 1.0, 0.5, 1.0, 0"));
    EXPECT_EQ(jobLine(RenderMode::Print, -3), QStringLiteral("-1, 1.0, 0.5, 1.0, -3"));
    EXPECT_EQ(jobLine(RenderMode::PrintChosen, 1), QStringLiteral("1, 1.0, 0.5, 1.0, 1"));
    EXPECT_EQ(jobLine(RenderMode::Emf, 1), QStringLiteral(" 2, 1.0, 0.5, 1.0, 1"));
    const Folder folder;
    writeJob(folder.path(QStringLiteral("")), RenderMode::Print, 5);
    const QByteArray job = folder.read(wyd::jobFile);
    EXPECT_EQ(job.count("\r\n"), 3);
    EXPECT_TRUE(job.contains("FERNAPr.wyd\r\n"));
    EXPECT_TRUE(job.endsWith("FERNAPr1.wyd\r\n"));
}

TEST(JobFile, NamesTheFilesAloneInAFolderWhoseNameTheCodePageLacks) {
    const Folder folder;
    const QString strange = folder.path(QStringLiteral("юзер"));
    ASSERT_TRUE(QDir().mkpath(strange));
    writeJob(strange, RenderMode::Print, 5);
    EXPECT_EQ(Folder::bytesOf(strange + u'/' + wyd::jobFile),
              "-1, 1.0, 0.5, 1.0, 5\r\nFERNAPr.wyd\r\nFERNAPr1.wyd\r\n");
}

class RendererStart : public ::testing::Test {
protected:
    Folder folder;

    void renderer(const QByteArray& script) {
        QFile file(folder.write(QStringLiteral("Wyd_drk"), "#!/bin/sh\n" + script + '\n'));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString failure() {
        try {
            runRenderer(folder.path(QStringLiteral(".")));
        } catch (const RunTimeError& error) {
            return error.text();
        }
        return {};
    }
};

TEST_F(RendererStart, NamesAMissingRenderer) {
    EXPECT_TRUE(failure().contains(QStringLiteral("Wyd_drk")));
    EXPECT_TRUE(failure().contains(QStringLiteral("Nie znaleziono pliku")));
}

TEST_F(RendererStart, HandsOverTheJobFileAndWaits) {
    renderer("cp \"$1\" seen");
    folder.write(wyd::jobFile, "job");
    EXPECT_EQ(failure(), QString());
    EXPECT_EQ(folder.read(QStringLiteral("seen")), QByteArray("job"));
}

TEST_F(RendererStart, TellsTheWordsOfAFailedRenderer) {
    renderer("echo brak pliku Ferrob.bmp >&2; exit 1");
    EXPECT_TRUE(failure().contains(QStringLiteral("kodem 1")));
    EXPECT_TRUE(failure().contains(QStringLiteral("brak pliku Ferrob.bmp")));
}

TEST_F(RendererStart, TakesACancelledDialogForNoError) {
    renderer("exit 3");
    EXPECT_EQ(failure(), QString());
}

TEST_F(RendererStart, ThatHangsIsEndedWhereTheEngineerGivesUp) {
    renderer("echo $$ > pid; exec sleep 600");
    int asked = 0;
    const auto failure = ferna::testing::errorOf([&] {
        runRenderer(folder.path(QStringLiteral(".")), {}, [&](const RendererState& state) {
            ++asked;
            return state.worked < std::chrono::milliseconds(300);
        });
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::NoObject);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("Wyd_drk nie skończył pracy")));
    EXPECT_GT(asked, 2);
    const pid_t pid = folder.read(QStringLiteral("pid")).trimmed().toInt();
    ASSERT_GT(pid, 1);
    EXPECT_EQ(kill(pid, 0), -1) << "no renderer stays behind";
}

TEST_F(RendererStart, ThatEndsInTimeIsAskedAboutAndNotGivenUp) {
    renderer("sleep 0.3; touch done");
    int asked = 0;
    EXPECT_FALSE(ferna::testing::errorOf([&] {
        runRenderer(folder.path(QStringLiteral(".")), {}, [&asked](const RendererState&) {
            ++asked;
            return true;
        });
    }));
    EXPECT_GE(asked, 2);
    EXPECT_TRUE(folder.names().contains(QStringLiteral("done")));
}

TEST_F(RendererStart, TellsItsWindowsAndTheFilesItHasWrittenAndLearnsForWhom) {
    renderer("echo \"$WYD_DRK_OKNO $WYD_DRK_JEZYK\" > window; echo okno otwarte; sleep 0.4;"
             "echo okno zamkniete; echo cos innego; echo 'zapisano /tmp/Hala A/rap-1.emf';"
             "printf 'zapisano /tmp/%%C5%%81/rap'; sleep 0.2; printf -- '-2.emf\\n'; sleep 0.3");
    std::vector<bool> windows;
    std::chrono::milliseconds worked{0};
    const RendererReport report =
        runRenderer(folder.path(QStringLiteral(".")), {},
                    [&](const RendererState& state) {
                        if (windows.empty() || windows.back() != state.showsWindow)
                            windows.push_back(state.showsWindow);
                        worked = state.worked;
                        return true;
                    },
                    {.window = 77, .language = QStringLiteral("de-DE")});
    EXPECT_EQ(folder.read(QStringLiteral("window")).trimmed(), "77 de-DE");
    EXPECT_EQ(windows, (std::vector<bool>{true, false}));
    EXPECT_GE(worked.count(), 350);
    EXPECT_LT(worked.count(), 800) << "counted from the end of its window";
    EXPECT_EQ(report.written.join(u'|'), QStringLiteral("/tmp/Hala A/rap-1.emf|/tmp/Ł/rap-2.emf"));
}

TEST(RendererNewsOf, EveryNameIsReadAsItWasTold) {
    RendererNews news;
    const QString name = QStringLiteral("/tmp/Zażółć 100%\n+.emf");
    const QByteArray told =
        news::windowOpens() + news::fileWritten(name) + news::windowCloses() + "\n";
    for (const char byte : told)
        news.read(QByteArray(1, byte));
    EXPECT_FALSE(news.showsWindow());
    EXPECT_EQ(news.written(), QStringList{name});
}

TEST_F(RendererStart, TellsThatTheRendererCrashed) {
    renderer("kill -SEGV $$");
    EXPECT_TRUE(failure().contains(QStringLiteral("przerwał pracę")));
}

} // namespace
