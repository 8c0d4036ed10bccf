#include "report/document_e2e.h"
#include "report/document_writer.h"
#include "report/hand_filled_report.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <array>
#include <cerrno>
#include <cstdio>

// What can go wrong with the real word processor, and that nothing of it is left behind.

namespace ferna::testing {
namespace {

class DocumentFailure : public DocumentEndToEnd {};

// Built without the word processor's development files: the word processor is no help then.
TEST_F(DocumentFailure, MissingModuleSaysWhatToInstall) {
    place_.module = out(QStringLiteral("brak.so"));
    const RunTimeError noModule = errorOf([this] { openWordProcessor(place_); });
    EXPECT_EQ(noModule.number(), error::NoObject);
    EXPECT_TRUE(noModule.detail().startsWith(
        QStringLiteral("brak modułu zapisu dokumentów ") + place_.module
        + QStringLiteral(
            " (program zbudowany ze źródeł: trzeba zainstalować pakiet libreoffice-dev "
            "i zbudować program od nowa;")))
        << noModule.detail().toStdString();
    EXPECT_FALSE(noModule.detail().contains(QStringLiteral("libreoffice-writer")));
}

TEST_F(DocumentFailure, MissingWordProcessorSaysWhatToInstall) {
    place_.program = out(QStringLiteral("brak"));
    const RunTimeError noProgram = errorOf([this] { opened(); });
    EXPECT_EQ(noProgram.number(), error::NoObject);
    EXPECT_TRUE(noProgram.detail().contains(QStringLiteral("libreoffice-writer")))
        << noProgram.detail().toStdString();
}

/// A stand-in for the word processor's executable.
void makeExecutable(const QString& folder, const QByteArray& script) {
    QFile file(folder + QStringLiteral("/soffice.bin"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(DocumentFailure, WordProcessorThatEndsAtOnceIsAnErrorAtOnce) {
    makeExecutable(out_.path(), "exit 3\n");
    place_.program = out_.path();
    QElapsedTimer timer;
    timer.start();
    const RunTimeError failure = errorOf([this] { opened(); });
    EXPECT_EQ(failure.number(), error::NoObject);
    EXPECT_TRUE(failure.detail().contains(QStringLiteral("nie uruchomił się")))
        << failure.detail().toStdString();
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST_F(DocumentFailure, WordProcessorThatAlwaysAsksForASecondStartIsGivenUp) {
    makeExecutable(out_.path(), "echo start >> \"${0%/*}/starty\"\nexit 81\n");
    place_.program = out_.path();
    place_.startLimit = std::chrono::seconds(20);
    const RunTimeError failure = errorOf([this] { opened(); });
    EXPECT_EQ(failure.number(), error::NoObject);
    EXPECT_TRUE(failure.detail().contains(QStringLiteral("po 3 uruchomieniach")))
        << failure.detail().toStdString();
    EXPECT_EQ(fileBytes(out(QStringLiteral("starty"))).count('\n'), 3);
}

TEST_F(DocumentFailure, WordProcessorThatNeverAnswersIsGivenUpAndEnded) {
    makeExecutable(out_.path(), "sleep 600 & echo $! > \"${0%/*}/dziecko\"\nwait\n");
    place_.program = out_.path();
    place_.startLimit = std::chrono::seconds(1);
    const RunTimeError failure = errorOf([this] { opened(); });
    EXPECT_EQ(failure.number(), error::NoObject);
    EXPECT_TRUE(failure.detail().contains(QStringLiteral("nie zgłosił się")))
        << failure.detail().toStdString();
    const pid_t child = fileBytes(out(QStringLiteral("dziecko"))).trimmed().toInt();
    ASSERT_GT(child, 0);
    for (int i = 0; i < 100 && alive(child); ++i)
        QThread::msleep(20);
    EXPECT_FALSE(alive(child)) << "its own children go with it";
}

TEST_F(DocumentFailure, WordProcessorKilledInTheMiddleIsAnError) {
    const std::unique_ptr<WordProcessor> word = opened();
    word->InsertAfter(QStringLiteral("wiersz\r\n"));
    const QList<pid_t> processes = runningWriters();
    ASSERT_EQ(processes.size(), 1);
    ::kill(processes.first(), SIGKILL);
    const RunTimeError failure = errorOf([&] {
        for (int i = 0; i < 100; ++i)
            word->InsertAfter(QStringLiteral("wiersz\r\n"));
    });
    EXPECT_EQ(failure.number(), error::NoObject);
    EXPECT_TRUE(failure.detail().contains(QStringLiteral("przerwał pracę")))
        << failure.detail().toStdString();
    EXPECT_EQ(errorOf([&] { word->SaveAs(out(QStringLiteral("Wyniki.doc"))); }).number(),
              error::NoObject);
    EXPECT_FALSE(QFile::exists(out(QStringLiteral("Wyniki.doc"))));
}

// The library may still write to the connection when the word processor is being ended.
TEST_F(DocumentFailure, WritingToABrokenConnectionDoesNotEndTheProgram) {
    const std::unique_ptr<WordProcessor> word = opened();
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    ::close(ends[0]);
    EXPECT_EQ(::write(ends[1], "x", 1), -1);
    EXPECT_EQ(errno, EPIPE);
    ::close(ends[1]);
}

TEST_F(DocumentFailure, WordProcessorThatHangsInTheMiddleIsEnded) {
    place_.callLimit = std::chrono::seconds(5);
    const std::unique_ptr<WordProcessor> word = opened();
    const QList<pid_t> processes = runningWriters();
    ASSERT_EQ(processes.size(), 1);
    ::kill(processes.first(), SIGSTOP);
    const RunTimeError failure = errorOf([&] { word->InsertAfter(QStringLiteral("wiersz\r\n")); });
    EXPECT_EQ(failure.number(), error::NoObject);
    EXPECT_TRUE(failure.detail().contains(QStringLiteral("nie odpowiada")))
        << failure.detail().toStdString();
    EXPECT_EQ(errorOf([&] { word->Close(); }).number(), error::NoObject);
}

TEST_F(DocumentFailure, DocumentLeftOpenIsClosedWithTheWordProcessor) {
    const HandFilledReport report(1);
    const std::unique_ptr<WordProcessor> word = openWordProcessor(place_);
    buildDocument(*word, report.model(), program_.path());
    EXPECT_EQ(runningWriters().size(), 1);
    // Not saved, as after a cancelled question for the name; the rest is seen when the test ends.
}

TEST_F(DocumentFailure, ProgramThatIsKilledTakesTheWordProcessorAlong) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_also_run_disabled_tests"),
                   QStringLiteral("--gtest_filter=DocumentFailure.DISABLED_HoldsADocumentOpen")});
    QByteArray said;
    while (!said.contains("document is open") && program.waitForReadyRead(120'000))
        said += program.readAllStandardOutput();
    ASSERT_TRUE(said.contains("document is open")) << said.toStdString();
    const QList<pid_t> processes = runningWriters(static_cast<pid_t>(program.processId()));
    ASSERT_EQ(processes.size(), 1);
    const auto id = static_cast<pid_t>(program.processId());
    EXPECT_EQ(pipesOf(id).size(), 1);
    program.kill();
    program.waitForFinished();
    for (int i = 0; i < 100 && alive(processes.first()); ++i)
        QThread::msleep(50);
    EXPECT_FALSE(alive(processes.first()));
    // A killed program cannot tidy up: its temporary folder and pipe stay.
    for (const QString& pipe : pipesOf(id))
        QFile::remove(QStringLiteral("/tmp/") + pipe);
    for (const QString& folder :
         QDir(temporary_.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QDir(temporary_.filePath(folder)).removeRecursively();
}

TEST_F(DocumentFailure, DISABLED_HoldsADocumentOpen) {
    const std::unique_ptr<WordProcessor> word = opened();
    std::puts("document is open");
    std::fflush(stdout);
    QThread::sleep(60);
}

TEST_F(DocumentFailure, CallsOutOfTurnAreErrors) {
    const std::unique_ptr<WordProcessor> word = openWordProcessor(place_);
    EXPECT_EQ(errorOf([&] { word->Documents_Add(); }).number(), error::NoObject);
    EXPECT_EQ(errorOf([&] { word->InsertAfter(QStringLiteral("x")); }).number(), error::NoObject);
    EXPECT_EQ(errorOf([&] { word->SaveAs(out(QStringLiteral("x.doc"))); }).number(),
              error::NoObject);
    EXPECT_EQ(errorOf([&] { word->Close(); }).number(), 0) << "nothing is open";
}

TEST_F(DocumentFailure, MissingFolderIsAnErrorAndIsNotMade) {
    const std::unique_ptr<WordProcessor> word = opened();
    const RunTimeError failure =
        errorOf([&] { word->SaveAs(out(QStringLiteral("brak/Wyniki.doc"))); });
    EXPECT_EQ(failure.number(), error::PathNotFound);
    EXPECT_FALSE(QFile::exists(out(QStringLiteral("brak"))));
}

TEST_F(DocumentFailure, TargetThatCannotBeWrittenIsAnErrorAndTheDocumentStaysOpen) {
    const std::unique_ptr<WordProcessor> word = opened();
    ASSERT_TRUE(QDir(out_.path()).mkdir(QStringLiteral("Wyniki.doc")));
    EXPECT_EQ(errorOf([&] { word->SaveAs(out(QStringLiteral("Wyniki.doc"))); }).number(),
              error::PathAccess);
    if (::geteuid() != 0) { // root may write everywhere
        ASSERT_TRUE(QDir(out_.path()).mkdir(QStringLiteral("zamkniety")));
        QFile::setPermissions(out(QStringLiteral("zamkniety")), QFile::ReadOwner | QFile::ExeOwner);
        EXPECT_EQ(
            errorOf([&] { word->SaveAs(out(QStringLiteral("zamkniety/Wyniki.doc"))); }).number(),
            error::PermissionDenied);
    }
    word->SaveAs(out(QStringLiteral("inne.doc")));
    EXPECT_TRUE(QFile::exists(out(QStringLiteral("inne.doc"))));
}

TEST_F(DocumentFailure, ExistingFileIsReplaced) {
    QFile old(out(QStringLiteral("Wyniki.doc")));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("stary");
    old.close();
    const std::unique_ptr<WordProcessor> word = opened();
    word->SaveAs(out(QStringLiteral("Wyniki.doc")));
    EXPECT_TRUE(fileBytes(out(QStringLiteral("Wyniki.doc"))).startsWith("\xD0\xCF\x11\xE0"));
}

TEST_F(DocumentFailure, MissingOrDamagedPictureIsAnErrorAndTheDocumentGoesOn) {
    const std::unique_ptr<WordProcessor> word = opened();
    EXPECT_EQ(
        errorOf([&] { word->AddPicture(out(QStringLiteral("brak.bmp")), false, true); }).number(),
        error::FileNotFound);
    QFile damaged(out(QStringLiteral("zly.bmp")));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("to nie obraz");
    damaged.close();
    EXPECT_EQ(errorOf([&] { word->AddPicture(damaged.fileName(), false, true); }).number(),
              error::DeviceIO);
    word->AddPicture(program_.filePath(QStringLiteral("gkrys0.bmp")), false, true);
    word->IncrementTop(QStringLiteral("Picture 2"), 10);
    EXPECT_EQ(errorOf([&] { word->IncrementLeft(QStringLiteral("Picture 3"), 10); }).number(),
              error::Subscript);
}

} // namespace
} // namespace ferna::testing
