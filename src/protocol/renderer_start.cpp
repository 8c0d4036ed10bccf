#include "protocol/renderer_start.h"

#include "protocol/renderer_files.h"
#include "protocol/renderer_news.h"
#include "runtime/passing_folder.h"
#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

namespace ferna {

namespace {

#ifdef Q_OS_WIN
const QString rendererName = QStringLiteral("Wyd_drk.exe");
#else
const QString rendererName = QStringLiteral("Wyd_drk");
#endif

/// The renderer's own last words, for the message.
QString wordsOf(QProcess& process) {
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return words.isEmpty() ? words : QStringLiteral(": ") + words;
}

/// Waits for the end of the renderer and reads its news. False where it was given up; it is gone
/// then.
bool waitFor(QProcess& process, const WaitOn& waitOn, RendererNews& news) {
    constexpr int forEver = -1;
    constexpr int betweenQuestions = 50; // ms
    QElapsedTimer clock;
    clock.start();
    while (!process.waitForFinished(waitOn ? betweenQuestions : forEver)) {
        if (process.state() == QProcess::NotRunning)
            break;
        news.read(process.readAllStandardOutput());
        if (news.showsWindow())
            clock.restart(); // its user's time is not its own
        if (waitOn && !waitOn({std::chrono::milliseconds(clock.elapsed()), news.showsWindow()})) {
            process.kill();
            process.waitForFinished(forEver);
            return false;
        }
    }
    news.read(process.readAllStandardOutput());
    return true;
}

} // namespace

QString rendererPath(const QString& folder) {
    const QString own = folder + u'/' + rendererName;
    return QFileInfo(own).isExecutable()
               ? own
               : QCoreApplication::applicationDirPath() + u'/' + rendererName;
}

RendererReport runRenderer(const QString& folder, const QStringList& options, const WaitOn& waitOn,
                           const RendererClient& client) {
    const QString renderer = rendererPath(folder);
    if (!QFileInfo::exists(renderer))
        throw RunTimeError(error::FileNotFound,
                           QDir::toNativeSeparators(renderer)
                               + QStringLiteral(" (program rysujący strony raportu)"));
    QProcess process;
    process.setWorkingDirectory(folder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(news::variable), QString::number(client.window));
    environment.insert(QLatin1String(languageVariable), client.language);
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier(
        [parent = QCoreApplication::applicationPid()] { endWithParent(parent); });
    process.start(renderer, QStringList(options)
                                << QDir::toNativeSeparators(folder + u'/' + wyd::jobFile));
    if (!process.waitForStarted(-1))
        throw RunTimeError(error::NoObject,
                           rendererName + QStringLiteral(": ") + process.errorString());
    RendererNews told;
    if (!waitFor(process, waitOn, told))
        throw RunTimeError(error::NoObject,
                           rendererName + QStringLiteral(" nie skończył pracy (Przerwij)"));
    if (process.exitStatus() != QProcess::NormalExit)
        throw RunTimeError(error::NoObject,
                           rendererName + QStringLiteral(" przerwał pracę") + wordsOf(process));
    if (process.exitCode() == wyd::CancelledByUser)
        return {};
    if (process.exitCode() != wyd::Done)
        throw RunTimeError(error::NoObject, QStringLiteral("%1 zakończył pracę z kodem %2%3")
                                                .arg(rendererName)
                                                .arg(process.exitCode())
                                                .arg(wordsOf(process)));
    return {told.written()};
}

} // namespace ferna
