#include "batch/combinations_run.h"
#include "batch/failure_words.h"
#include "batch/name_remarks.h"
#include "batch/options.h"
#include "batch/ordered_workers.h"
#include "batch/output_files.h"
#include "batch/remarks.h"
#include "batch/report_files.h"
#include "batch/sheet_files.h"
#include "batch/smallest_run.h"
#include "batch/task_input.h"
#include "batch/task_run.h"
#include "batch/view_files.h"
#include "design/language.h"
#include "desktop/program_folder.h"
#include "runtime/format.h"
#include "runtime/passing_folder.h"
#include "runtime/qt_remarks.h"
#include "runtime/text_file.h"

#include <QGuiApplication>
#include <QTimeZone>

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <stdexcept>
#include <system_error>

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

/// What is doubtful about a task, a line each. The remarks on the names go with the reports.
void tellNotes(const ComputedTask& done, bool namesAreTold) {
    for (const notes::Note& note : notes::notesOf(done.record))
        if (!namesAreTold || note.code < notes::Code::LiteraSpozaStrony)
            remark(QStringLiteral("uwaga: ") + note.text);
}

std::string textOf(const RunTimeError& failure) {
    return failureWords(failure).toStdString();
}

/// What is wrong with the text of a task, and where.
std::string wordsOf(const TaskError& failure, const QString& task, std::string_view text) {
    return task.toStdString() + ", line " + std::to_string(lineOf(text, failure.path)) + ": "
           + failure.what();
}

/// To standard output, or an error where it takes no more: a full disk must not look like success.
void print(const std::string& text) {
    if (!(std::cout << text << std::flush))
        throw RunTimeError(error::DeviceIO, QStringLiteral("standard output"));
}

/// Everything that a call for one task reads.
QStringList inputsOf(const Options& options, const QString& dataFolder) {
    QStringList inputs{options.task, options.catalogue};
    for (int language = 0; language < Languages; ++language)
        inputs += dataFolder + u'/' + catalogueFile(CInt(language));
    return inputs;
}

int runOne(const Options& options, const RunOptions& runOptions) {
    OutputFiles outputs(inputsOf(options, runOptions.dataFolder));
    for (const QString& file : options.reports + options.sheets + QStringList(options.result))
        if (!file.isEmpty())
            outputs.claim(file);
    for (const QString& file : options.views)
        outputs.claim(file);
    const QByteArray bytes = readTaskText(options.task);
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    try {
        const ComputedTask done = run(readTask(parsed(text)), runOptions);
        const std::string result = resultText(done, JsonWriter::Layout::Indented) + '\n';
        if (options.result.isEmpty())
            print(result);
        else
            writeFileWhole(options.result, QByteArray::fromStdString(result));
        for (const QString& what : remarksOf(done))
            remark(options.task + QStringLiteral(": ") + what);
        const bool namesAreTold = done.reportReady && !options.reports.isEmpty();
        if (namesAreTold)
            for (const QString& what : nameRemarks(done.task))
                remark(options.task + QStringLiteral(": ") + what);
        if (done.reportReady)
            for (const QString& file : options.reports)
                remark(writeReport(done, file, runOptions.pictures, outputs));
        for (const QString& file : options.sheets)
            writeSheet(done, file);
        for (const QString& file : options.views)
            remark(writeView(done, file, outputs));
        tellNotes(done, namesAreTold);
        return solved(done) ? Computed : NotSolved;
    } catch (const TaskError& failure) {
        return refuse(wordsOf(failure, options.task, text));
    }
}

/// One line of JSON; bytes of the input that are no UTF-8 are replaced, so that it can be read.
std::string oneLine(const Json& result) {
    return result.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// One task of a stream; a bad line becomes that line's result. `all` is no longer true where the
/// task was refused or not solved.
std::string resultLine(const std::string& text, long number, const RunOptions& runOptions,
                       std::atomic<bool>& all) {
    const auto refused = [&](const std::string& what) {
        all = false;
        return oneLine(resultOfRefused("line " + std::to_string(number) + ": " + what)) + '\n';
    };
    if (text.size() > longestTask)
        return refused("expected at most " + std::to_string(longestTask) + " bytes");
    try {
        const ComputedTask done = run(readTask(parsed(text)), runOptions);
        if (!solved(done))
            all = false;
        return resultText(done, JsonWriter::Layout::OneLine) += '\n';
    } catch (const TaskError& failure) {
        return refused(failure.what());
    } catch (const RunTimeError& failure) {
        return refused(textOf(failure));
    }
}

int runLines(const Options& options, const RunOptions& runOptions) {
    LineInput input(STDIN_FILENO);
    std::atomic<bool> all = true;
    runOrdered(options.threads,
               {[&](std::string& item) { return input.next(item); },
                [&](const std::string& item, long number) {
                    return resultLine(item, number, runOptions, all);
                },
                [](const std::string& result) { print(result); }, [&] { input.cancel(); }});
    return all ? Computed : NotSolved;
}

/// The value that `read` makes of a file; a TaskError becomes a line that names file and place.
template <typename Read>
auto valueOf(const QString& file, const Read& read) {
    const QByteArray bytes = readTaskText(file);
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    try {
        return read(parsed(text));
    } catch (const TaskError& failure) {
        throw std::invalid_argument(wordsOf(failure, file, text));
    }
}

/// What --nosnosc or --dobierz answers in place of a result.
int runAnswer(const Options& options) {
    OutputFiles outputs({options.task, options.range});
    if (!options.result.isEmpty())
        outputs.claim(options.result);
    try {
        const Task task =
            valueOf(options.task, [](const TaskValue& json) { return readTask(json); });
        const Answer answer = options.capacity
                                  ? capacityAnswer(task)
                                  : smallestAnswer(task, valueOf(options.range, readRange));
        if (options.result.isEmpty())
            print(answer.text);
        else
            writeFileWhole(options.result, QByteArray::fromStdString(answer.text));
        return answer.solved ? Computed : NotSolved;
    } catch (const std::invalid_argument& failure) {
        return refuse(failure.what());
    }
}

int runTable(const Options& options) {
    const QByteArray bytes = readTaskText(options.task);
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    try {
        const Task task = readTask(parsed(text), TaskCases::Elsewhere);
        const CombinationsEnd end = runCombinations(options.combinations, task, print);
        remark(end.remark);
        if (!end.trouble.isEmpty())
            return refuse(end.trouble.toStdString());
        return end.rows > end.refused ? Computed : NotSolved;
    } catch (const TaskError& failure) {
        return refuse(wordsOf(failure, options.task, text));
    }
}

bool anyNeedsPictures(const Options& options) {
    return std::any_of(options.reports.begin(), options.reports.end(), needsPictures);
}

/// The folder of the pictures, where a report shows some, and its tidy end.
class Pictures {
public:
    explicit Pictures(const QString& dataFolder) { deliverPictures(dataFolder, path()); }
    QString path() const { return folder_.path(); }

private:
    TidyEnd tidyEnd_;
    PassingFolder folder_{QStringLiteral("wsad")};
};

int runProgram(const Options& options) {
    if (options.decimalSign)
        setDecimalSign(*options.decimalSign);
    if (options.capacity || !options.range.isEmpty())
        return runAnswer(options);
    if (!options.combinations.isEmpty())
        return runTable(options);
    const QString dataFolder = deliveredDataFolder();
    const std::unique_ptr<Pictures> pictures =
        anyNeedsPictures(options) ? std::make_unique<Pictures>(dataFolder) : nullptr;
    RunOptions runOptions{options.catalogue, dataFolder, reportTime(),
                          pictures ? pictures->path() : QString()};
    runOptions.reports = !options.lines;
    return options.lines ? runLines(options, runOptions) : runOne(options, runOptions);
}

constexpr const char* outOfMemory = "out of memory";

/// For an end in the middle of something that cannot be left otherwise, as where Qt finds no
/// memory: also that is a line and an exit code.
[[noreturn]] void leaveAtOnce() {
    const char* what = outOfMemory;
    try {
        if (const std::exception_ptr failure = std::current_exception())
            std::rethrow_exception(failure);
        std::abort();
    } catch (const std::bad_alloc&) {
    } catch (const std::exception& failure) {
        what = failure.what();
    } catch (...) {
        what = "unknown failure";
    }
    std::fprintf(stderr, "ferna-wsad: %s\n", what);
    std::_Exit(BadCall);
}

/// Qt without a screen; its fonts are started only where something is drawn.
std::unique_ptr<QCoreApplication> startQt(int& argc, char** argv, const Options& options) {
    if (!anyNeedsPictures(options) && options.sheets.isEmpty() && options.views.isEmpty())
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    hushMissingRuntimeFolder();
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    std::set_terminate(leaveAtOnce);
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
    } catch (const std::bad_alloc&) {
        return refuse(outOfMemory);
    } catch (const std::system_error& failure) {
        return refuse(std::string("the system gives no more: ") + failure.what());
    }
}
