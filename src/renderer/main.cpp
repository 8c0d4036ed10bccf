#include "pages/drawing.h"
#include "protocol/renderer_files.h"
#include "protocol/renderer_start.h"
#include "protocol/reply.h"
#include "renderer/delivery.h"
#include "renderer/layout.h"
#include "renderer/paper.h"
#include "renderer/replies.h"
#include "runtime/run_time_error.h"
#include "runtime/screen.h"

#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>

#include <cstdio>
#include <memory>
#include <new>

using namespace ferna;
using namespace ferna::renderer;

namespace {

void say(const QString& line) {
    std::fputs(("Wyd_drk: " + line.toUtf8() + '\n').constData(), stderr);
}

/// Qt's own remarks stay out of standard error: a failure is one clear line there.
void quiet(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg)
        say(text);
}

/// Starts Qt: with widgets on the user's screen, or without either.
std::unique_ptr<QGuiApplication> startQt(int& argc, char** argv, bool screen) {
    if (screen)
        return paper().startQt(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

QString languageOf(const Call& call) {
    return call.language.isEmpty() ? qEnvironmentVariable(languageVariable) : call.language;
}

void run(int& argc, char** argv, const Call& call, const Job& job, Replies& replies) {
    qInstallMessageHandler(quiet);
    const bool screen = needsScreen(call, job);
    if (screen && !hasScreen())
        throw RunTimeError(error::DeviceIO, QStringLiteral("ten tryb zlecenia wymaga ekranu"));
    wyd::Complaints complaints;
    const std::unique_ptr<QGuiApplication> application = startQt(argc, argv, screen);
    const Commands commands(job, complaints); // on a thread of theirs, too, while fonts are found
    const QString face = QFontInfo(drawing::fontOf(1)).family();
    if (face != drawing::textFace)
        say(QStringLiteral("brak czcionki %1, zamiast niej %2").arg(drawing::textFace, face));
    pages::Report report = compose(job, commands, complaints, languageOf(call));
    report.documentTitle = call.title;
    report.subject = call.subject;
    report.author = call.author;
    for (const QString& line : complaints.lines())
        say(line);
    replies.prepareSuccess(job.firstPage + static_cast<int>(report.pages.size()));
    deliver(report, call, job);
    replies.succeed();
}

/// Reads the job; where it cannot be read the reply says so. Beside a file that is no job of ours
/// nothing is written.
Job jobOrFailure(const Call& call) {
    try {
        return readJob(call.jobPath);
    } catch (const RunTimeError&) {
        const QString folder = folderOf(call.jobPath);
        if (QFileInfo(call.jobPath).fileName() == wyd::jobFile && QFileInfo(folder).isDir())
            writeReply(folder, false, 1);
        throw;
    }
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    if (const QString answer = answerTo(arguments); !answer.isEmpty()) {
        std::fputs(answer.toLocal8Bit().constData(), stdout);
        return wyd::Done;
    }
    QString fault;
    const std::optional<Call> call = parseCall(arguments, fault);
    if (!call) {
        say(fault + QStringLiteral(". ") + usage());
        return wyd::BadCall;
    }
    try {
        const Job job = jobOrFailure(*call);
        Replies replies(folderOf(call->jobPath));
        if (!keepsLastReply(*call, job))
            replies.failureFirst(job.firstPage);
        run(argc, argv, *call, job, replies);
        return wyd::Done;
    } catch (const RunTimeError& failure) {
        if (failure.number() == error::Cancelled)
            return wyd::CancelledByUser;
        say(failure.text());
    } catch (const std::bad_alloc&) {
        say(QStringLiteral("brak pamięci"));
    } catch (const std::exception& failure) {
        say(QString::fromLocal8Bit(failure.what()));
    }
    return wyd::Failed;
}
