#include "batch/name_remarks.h"
#include "batch/options.h"
#include "batch/ordered_workers.h"
#include "batch/report_files.h"
#include "batch/task_run.h"
#include "desktop/program_folder.h"
#include "runtime/format.h"
#include "runtime/qt_remarks.h"
#include "runtime/text_file.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimeZone>

#include <algorithm>
#include <iostream>
#include <memory>

namespace {

using namespace ferna;
using namespace ferna::batch;

constexpr int Computed = 0;
constexpr int NotSolved = 1;
constexpr int BadCall = 2;

/// Now, or the moment that SOURCE_DATE_EPOCH sets, in UTC, so that reports can be compared.
QDateTime reportTime() {
    bool isSet = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isSet);
    return isSet ? QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc())
                 : QDateTime::currentDateTime();
}

int refuse(const std::string& what) {
    std::cerr << "ferna-wsad: " << what << '\n';
    return BadCall;
}

/// What is to be told beside a result; nothing where the text is empty.
void remark(const QString& what) {
    if (!what.isEmpty())
        std::cerr << "ferna-wsad: " << what.toStdString() << '\n';
}

std::string textOf(const RunTimeError& failure) {
    return errorTextEnglish(failure.number()).toStdString() + ": " + failure.detail().toStdString();
}

/// To standard output, or an error where it takes no more: a full disk must not look like success.
void print(const std::string& text) {
    if (!(std::cout << text << std::flush))
        throw RunTimeError(error::DeviceIO, QStringLiteral("standard output"));
}

int runOne(const Options& options, const RunOptions& runOptions) {
    const QByteArray bytes = readFileWhole(options.task);
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    try {
        const ComputedTask done = run(readTask(parsed(text)), runOptions);
        const QByteArray result = QByteArray::fromStdString(resultOf(done).dump(1)) + '\n';
        if (options.result.isEmpty())
            print(result.toStdString());
        else
            writeFileWhole(options.result, result);
        if (done.reportReady && !options.reports.isEmpty())
            for (const QString& what : nameRemarks(done.task))
                remark(options.task + QStringLiteral(": ") + what);
        if (done.reportReady)
            for (const QString& file : options.reports)
                remark(writeReport(done, file, runOptions.pictures));
        return solved(done) ? Computed : NotSolved;
    } catch (const TaskError& failure) {
        return refuse(options.task.toStdString() + ", line "
                      + std::to_string(lineOf(text, failure.path)) + ": " + failure.what());
    }
}

/// One line of JSON; bytes of the input that are no UTF-8 are replaced, so that it can be read.
std::string oneLine(const Json& result) {
    return result.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// One task of a stream; a bad line becomes that line's result.
std::string resultLine(const std::string& text, long number, const RunOptions& runOptions) {
    const auto line = [number](const std::string& what) {
        return "line " + std::to_string(number) + ": " + what;
    };
    try {
        return oneLine(resultOf(run(readTask(parsed(text)), runOptions)));
    } catch (const TaskError& failure) {
        return oneLine(resultOfRefused(line(failure.what())));
    } catch (const RunTimeError& failure) {
        return oneLine(resultOfRefused(line(textOf(failure))));
    }
}

int runLines(const Options& options, const RunOptions& runOptions) {
    std::ios::sync_with_stdio(false);
    runOrdered(
        options.threads,
        [](std::string& item) { return static_cast<bool>(std::getline(std::cin, item)); },
        [&](const std::string& item, long number) { return resultLine(item, number, runOptions); },
        [](const std::string& result) { print(result + '\n'); });
    return Computed;
}

/// The folder of the pictures, where a report shows some.
std::unique_ptr<QTemporaryDir> pictureFolder(const Options& options, const QString& dataFolder) {
    if (std::none_of(options.reports.begin(), options.reports.end(), needsPictures))
        return nullptr;
    auto folder = std::make_unique<QTemporaryDir>();
    if (!folder->isValid())
        throw RunTimeError(error::PathAccess, folder->errorString());
    deliverPictures(dataFolder, folder->path());
    return folder;
}

int runProgram(const Options& options) {
    if (options.decimalSign)
        setDecimalSign(*options.decimalSign);
    const QString dataFolder = deliveredDataFolder();
    const std::unique_ptr<QTemporaryDir> pictures = pictureFolder(options, dataFolder);
    const RunOptions runOptions{options.catalogue, dataFolder, reportTime(),
                                pictures ? pictures->path() : QString()};
    return options.lines ? runLines(options, runOptions) : runOne(options, runOptions);
}

/// Qt without a screen; its fonts are started only where pictures are drawn.
std::unique_ptr<QCoreApplication> startQt(int& argc, char** argv, const Options& options) {
    if (std::none_of(options.reports.begin(), options.reports.end(), needsPictures))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    hushMissingRuntimeFolder();
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    const auto asked = readOptions(arguments);
    if (const Leave* const leave = std::get_if<Leave>(&asked)) {
        (leave->exitCode == Computed ? std::cout : std::cerr) << leave->text;
        return leave->exitCode;
    }
    const Options& options = std::get<Options>(asked);
    const std::unique_ptr<QCoreApplication> application = startQt(argc, argv, options);
    try {
        return runProgram(options);
    } catch (const RunTimeError& failure) {
        return refuse(textOf(failure));
    }
}
