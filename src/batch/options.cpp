#include "batch/options.h"

#include "batch/report_files.h"
#include "batch/schemas.h"
#include "batch/sheet_files.h"
#include "batch/view_files.h"

#include <QCommandLineParser>

namespace ferna::batch {

namespace {

Leave badCall(const QString& what) {
    return {"ferna-wsad: " + what.toStdString() + '\n', 2};
}

/// Qt knows the program's name only once it is started, which the options decide.
QString helpOf(const QCommandLineParser& parser) {
    return parser.helpText().replace(QStringLiteral("<executable_name>"),
                                     QStringLiteral("ferna-wsad"));
}

/// The schema of that name, or that there is none.
Leave schemaLeave(const QString& name) {
    if (const std::optional<std::string> schema = schemaOf(name))
        return {*schema, 0};
    return badCall(QStringLiteral("--schemat: expected %1 and not \"%2\"")
                       .arg(schemaNames().join(QStringLiteral(" or ")), name));
}

/// Why an answer in place of the result cannot be had with what else is asked for.
std::optional<QString> clashOf(const Options& options) {
    if (options.capacity && !options.range.isEmpty())
        return QStringLiteral("--nosnosc and --dobierz do not go together");
    const bool more = options.lines || !options.reports.isEmpty() || !options.sheets.isEmpty()
                      || !options.views.isEmpty() || !options.combinations.isEmpty();
    if (more && (options.capacity || !options.range.isEmpty()))
        return QStringLiteral("%1 answers one task; it takes no --linie, --raport, --arkusz, "
                              "--podglad or --kombinacje")
            .arg(options.capacity ? QStringLiteral("--nosnosc") : QStringLiteral("--dobierz"));
    return std::nullopt;
}

/// A call that cannot be followed, and why.
struct BadCall {
    QString what;
};

void refuse(bool isBad, const QString& what) {
    if (isBad)
        throw BadCall{what};
}

QString listed(const QStringList& endings) {
    return endings.join(QStringLiteral(", "));
}

/// The options that the companion knows, and what a call makes of them.
class CommandLine {
public:
    CommandLine() {
        parser_.setApplicationDescription(QStringLiteral(
            "Computes column bases without windows: one task file, or a stream of "
            "tasks, one a line.\nExit codes: 0 computed; 1 refused or not solved, of a "
            "stream one task at least; 2 bad call, unreadable task or input.\n"
            "A task has at most 1,000,000 bytes, in a file as on a line of a stream."));
        parser_.addOptions({help_, version_, catalogue_, decimal_, report_, sheet_, view_, result_,
                            lines_, combinations_, threads_, schema_, capacity_, range_});
        parser_.addPositionalArgument(QStringLiteral("TASK.json"),
                                      QStringLiteral("The task; - is standard input."));
    }

    std::variant<Options, Leave> read(const QStringList& arguments) {
        if (!parser_.parse(QStringList{QStringLiteral("ferna-wsad")} + arguments))
            throw BadCall{parser_.errorText()};
        if (parser_.isSet(help_))
            return Leave{helpOf(parser_).toStdString(), 0};
        if (parser_.isSet(version_))
            return Leave{"ferna-wsad " FERNA_VERSION "\n", 0};
        if (parser_.isSet(schema_))
            return schemaLeave(parser_.value(schema_));
        takeDecimalSign();
        takeFiles();
        takeAnswers();
        takeThreads();
        takeTask();
        return options_;
    }

private:
    void takeDecimalSign() {
        options_.catalogue = parser_.value(catalogue_);
        if (!parser_.isSet(decimal_))
            return;
        const QString sign = parser_.value(decimal_);
        refuse(sign != u"," && sign != u".",
               QStringLiteral("--dziesietny: expected , or . and not \"%1\"").arg(sign));
        options_.decimalSign = sign.front();
    }

    /// The files of an option, each with an ending of its formats.
    QStringList filesOf(const QCommandLineOption& option, bool (*isOne)(const QString&),
                        const QStringList& endings) const {
        for (const QString& file : parser_.values(option))
            refuse(!isOne(file), QStringLiteral("--%1 %2: expected a file ending in %3")
                                     .arg(option.names().constFirst(), file, listed(endings)));
        return parser_.values(option);
    }

    void takeFiles() {
        options_.reports = filesOf(report_, isReportFile, reportEndings());
        options_.sheets = filesOf(sheet_, isSheetFile, sheetEndings());
        options_.views = filesOf(view_, isViewFile, viewEndings());
        options_.result = parser_.value(result_);
    }

    /// The file of an option that is not told without one.
    QString fileOf(const QCommandLineOption& option) const {
        refuse(
            parser_.isSet(option) && parser_.value(option).isEmpty(),
            QStringLiteral("--%1: expected the name of a file").arg(option.names().constFirst()));
        return parser_.value(option);
    }

    void takeAnswers() {
        options_.capacity = parser_.isSet(capacity_);
        options_.range = fileOf(range_);
        options_.lines = parser_.isSet(lines_);
        options_.combinations = fileOf(combinations_);
        refuse(!options_.combinations.isEmpty()
                   && (options_.lines || !options_.reports.isEmpty() || !options_.views.isEmpty()
                       || !options_.result.isEmpty()),
               QStringLiteral("--kombinacje writes standard output; it takes no --linie, "
                              "--raport, --podglad or --wynik"));
        if (const std::optional<QString> clash = clashOf(options_))
            throw BadCall{*clash};
    }

    void takeThreads() {
        bool isNumber = false;
        options_.threads = parser_.value(threads_).toInt(&isNumber);
        refuse(!isNumber || options_.threads < 1 || options_.threads > 256,
               QStringLiteral("--watki: expected a whole number from 1 to 256 and not \"%1\"")
                   .arg(parser_.value(threads_)));
    }

    void takeTask() {
        const QStringList tasks = parser_.positionalArguments();
        if (options_.lines) {
            refuse(!tasks.isEmpty() || !options_.reports.isEmpty() || !options_.sheets.isEmpty()
                       || !options_.views.isEmpty() || !options_.result.isEmpty(),
                   QStringLiteral("--linie reads standard input and writes standard output; "
                                  "it takes no task file, --raport, --arkusz, --podglad or "
                                  "--wynik"));
            return;
        }
        refuse(parser_.isSet(threads_), QStringLiteral("--watki goes with --linie"));
        refuse(tasks.size() != 1, QStringLiteral("expected one task file (see --help)"));
        refuse(tasks.front() == u"-" && options_.combinations == u"-",
               QStringLiteral("standard input cannot be both the task and the table"));
        options_.task = tasks.front() == u"-" ? QStringLiteral("/dev/stdin") : tasks.front();
    }

    const QCommandLineOption help_{{QStringLiteral("h"), QStringLiteral("help")},
                                   QStringLiteral("Show this help.")};
    const QCommandLineOption version_{{QStringLiteral("v"), QStringLiteral("version")},
                                      QStringLiteral("Show the version.")};
    const QCommandLineOption catalogue_{
        QStringLiteral("katalog"),
        QStringLiteral("Language catalogue to use in place of the task's language."),
        QStringLiteral("FILE")};
    const QCommandLineOption decimal_{QStringLiteral("dziesietny"),
                                      QStringLiteral("Decimal sign of the report, a comma or a "
                                                     "point; the locale's without it."),
                                      QStringLiteral(",|.")};
    const QCommandLineOption report_{
        QStringLiteral("raport"),
        QStringLiteral("Write the report, its format by the file's ending (%1); may be given "
                       "several times. The pages of an EMF or SVG report of several go into "
                       "F-strona-1-z-3.svg and so on. No file is both read and written by a "
                       "call.")
            .arg(listed(reportEndings())),
        QStringLiteral("FILE")};
    const QCommandLineOption sheet_{
        QStringLiteral("arkusz"),
        QStringLiteral("Write the calculation sheet, its format by the file's ending (%1); may be "
                       "given several times. Also of a task that is refused or not solved: its "
                       "sheet stands on the exact equilibrium.")
            .arg(listed(sheetEndings())),
        QStringLiteral("FILE")};
    const QCommandLineOption view_{
        QStringLiteral("podglad"),
        QStringLiteral(
            "Write the live view's picture of each case, its format by the file's ending "
            "(%1); may be given several times. The pictures of several cases go into "
            "F-przypadek-1-z-3.svg and so on. Also of a task that is refused or not "
            "solved: it is a view by the exact equilibrium and no report.")
            .arg(listed(viewEndings())),
        QStringLiteral("FILE")};
    const QCommandLineOption result_{
        QStringLiteral("wynik"), QStringLiteral("Write the result here, not to standard output."),
        QStringLiteral("FILE.json")};
    const QCommandLineOption lines_{
        QStringLiteral("linie"),
        QStringLiteral("Read tasks from standard input, one a line; results in the same order.")};
    const QCommandLineOption threads_{QStringLiteral("watki"),
                                      QStringLiteral("Threads of a stream, 1 to 256."),
                                      QStringLiteral("N"), QStringLiteral("1")};
    const QCommandLineOption combinations_{
        QStringLiteral("kombinacje"),
        QStringLiteral("Answer each row of a table of combinations for the base of the task: how "
                       "far each check is used, a JSON line a row, then a summary. FILE is text "
                       "(CSV, tabs, semicolons), .xlsx or .ods; - is standard input."),
        QStringLiteral("FILE")};
    const QCommandLineOption schema_{
        QStringLiteral("schemat"),
        QStringLiteral("Print the JSON schema of a task (zadanie), of its result (wynik), of the "
                       "range (zakres) and the answer (dobor) of --dobierz, or of the answer of "
                       "--nosnosc (nosnosc)."),
        schemaNames().join(u'|')};
    const QCommandLineOption capacity_{
        QStringLiteral("nosnosc"),
        QStringLiteral("In place of the result, up to which loads the base is borne: for each case "
                       "the line of M1 and M2 at its N, and lines of N and M, as JSON.")};
    const QCommandLineOption range_{
        QStringLiteral("dobierz"),
        QStringLiteral("In place of the result, the lightest bases of the range in this file for "
                       "the task's loads, as JSON; the task's own plate and anchors are not looked "
                       "at. Exit code 1 where the calculation confirms none."),
        QStringLiteral("RANGE.json")};

    QCommandLineParser parser_;
    Options options_;
};

} // namespace

std::variant<Options, Leave> readOptions(const QStringList& arguments) {
    try {
        return CommandLine().read(arguments);
    } catch (const BadCall& bad) {
        return badCall(bad.what);
    }
}

} // namespace ferna::batch
