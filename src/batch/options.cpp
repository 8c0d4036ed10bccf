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

} // namespace

std::variant<Options, Leave> readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Computes column bases without windows: one task file, or a stream of "
                       "tasks, one a line.\nExit codes: 0 computed; 1 refused or not solved, of a "
                       "stream one task at least; 2 bad call, unreadable task or input.\n"
                       "A task has at most 1,000,000 bytes, in a file as on a line of a stream."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    const QCommandLineOption catalogue(
        QStringLiteral("katalog"),
        QStringLiteral("Language catalogue to use in place of the task's language."),
        QStringLiteral("FILE"));
    const QCommandLineOption decimal(QStringLiteral("dziesietny"),
                                     QStringLiteral("Decimal sign of the report, a comma or a "
                                                    "point; the locale's without it."),
                                     QStringLiteral(",|."));
    const QCommandLineOption report(
        QStringLiteral("raport"),
        QStringLiteral("Write the report, its format by the file's ending (%1); may be given "
                       "several times. The pages of an EMF or SVG report of several go into "
                       "F-strona-1-z-3.svg and so on. No file is both read and written by a "
                       "call.")
            .arg(reportEndings().join(QStringLiteral(", "))),
        QStringLiteral("FILE"));
    const QCommandLineOption sheet(
        QStringLiteral("arkusz"),
        QStringLiteral("Write the calculation sheet, its format by the file's ending (%1); may be "
                       "given several times. Also of a task that is refused or not solved: its "
                       "sheet stands on the exact equilibrium.")
            .arg(sheetEndings().join(QStringLiteral(", "))),
        QStringLiteral("FILE"));
    const QCommandLineOption view(
        QStringLiteral("podglad"),
        QStringLiteral(
            "Write the live view's picture of each case, its format by the file's ending "
            "(%1); may be given several times. The pictures of several cases go into "
            "F-przypadek-1-z-3.svg and so on. Also of a task that is refused or not "
            "solved: it is a view by the exact equilibrium and no report.")
            .arg(viewEndings().join(QStringLiteral(", "))),
        QStringLiteral("FILE"));
    const QCommandLineOption result(
        QStringLiteral("wynik"), QStringLiteral("Write the result here, not to standard output."),
        QStringLiteral("FILE.json"));
    const QCommandLineOption lines(
        QStringLiteral("linie"),
        QStringLiteral("Read tasks from standard input, one a line; results in the same order."));
    const QCommandLineOption threads(QStringLiteral("watki"),
                                     QStringLiteral("Threads of a stream, 1 to 256."),
                                     QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption combinations(
        QStringLiteral("kombinacje"),
        QStringLiteral("Answer each row of a table of combinations for the base of the task: how "
                       "far each check is used, a JSON line a row, then a summary. FILE is text "
                       "(CSV, tabs, semicolons), .xlsx or .ods; - is standard input."),
        QStringLiteral("FILE"));
    const QCommandLineOption schema(
        QStringLiteral("schemat"),
        QStringLiteral("Print the JSON schema of a task (zadanie), of its result (wynik), of the "
                       "range (zakres) and the answer (dobor) of --dobierz, or of the answer of "
                       "--nosnosc (nosnosc)."),
        schemaNames().join(u'|'));
    const QCommandLineOption capacity(
        QStringLiteral("nosnosc"),
        QStringLiteral("In place of the result, up to which loads the base is borne: for each case "
                       "the line of M1 and M2 at its N, and lines of N and M, as JSON."));
    const QCommandLineOption range(
        QStringLiteral("dobierz"),
        QStringLiteral("In place of the result, the lightest bases of the range in this file for "
                       "the task's loads, as JSON; the task's own plate and anchors are not looked "
                       "at. Exit code 1 where the calculation confirms none."),
        QStringLiteral("RANGE.json"));
    parser.addOptions({help, version, catalogue, decimal, report, sheet, view, result, lines,
                       combinations, threads, schema, capacity, range});
    parser.addPositionalArgument(QStringLiteral("TASK.json"),
                                 QStringLiteral("The task; - is standard input."));

    if (!parser.parse(QStringList{QStringLiteral("ferna-wsad")} + arguments))
        return badCall(parser.errorText());
    if (parser.isSet(help))
        return Leave{helpOf(parser).toStdString(), 0};
    if (parser.isSet(version))
        return Leave{"ferna-wsad " FERNA_VERSION "\n", 0};
    if (parser.isSet(schema))
        return schemaLeave(parser.value(schema));

    Options options;
    options.catalogue = parser.value(catalogue);
    if (parser.isSet(decimal)) {
        const QString sign = parser.value(decimal);
        if (sign != u"," && sign != u".")
            return badCall(
                QStringLiteral("--dziesietny: expected , or . and not \"%1\"").arg(sign));
        options.decimalSign = sign.front();
    }
    options.reports = parser.values(report);
    for (const QString& file : options.reports)
        if (!isReportFile(file))
            return badCall(QStringLiteral("--raport %1: expected a file ending in %2")
                               .arg(file, reportEndings().join(QStringLiteral(", "))));
    options.sheets = parser.values(sheet);
    for (const QString& file : options.sheets)
        if (!isSheetFile(file))
            return badCall(QStringLiteral("--arkusz %1: expected a file ending in %2")
                               .arg(file, sheetEndings().join(QStringLiteral(", "))));
    options.views = parser.values(view);
    for (const QString& file : options.views)
        if (!isViewFile(file))
            return badCall(QStringLiteral("--podglad %1: expected a file ending in %2")
                               .arg(file, viewEndings().join(QStringLiteral(", "))));
    options.result = parser.value(result);
    options.capacity = parser.isSet(capacity);
    options.range = parser.value(range);
    if (parser.isSet(range) && options.range.isEmpty())
        return badCall(QStringLiteral("--dobierz: expected the name of a file"));
    options.lines = parser.isSet(lines);
    options.combinations = parser.value(combinations);
    if (parser.isSet(combinations) && options.combinations.isEmpty())
        return badCall(QStringLiteral("--kombinacje: expected the name of a file"));
    if (!options.combinations.isEmpty()
        && (options.lines || !options.reports.isEmpty() || !options.views.isEmpty()
            || !options.result.isEmpty()))
        return badCall(QStringLiteral("--kombinacje writes standard output; it takes no --linie, "
                                      "--raport, --podglad or --wynik"));
    if (const std::optional<QString> clash = clashOf(options))
        return badCall(*clash);
    bool isNumber = false;
    options.threads = parser.value(threads).toInt(&isNumber);
    if (!isNumber || options.threads < 1 || options.threads > 256)
        return badCall(
            QStringLiteral("--watki: expected a whole number from 1 to 256 and not \"%1\"")
                .arg(parser.value(threads)));
    const QStringList tasks = parser.positionalArguments();
    if (options.lines) {
        if (!tasks.isEmpty() || !options.reports.isEmpty() || !options.sheets.isEmpty()
            || !options.views.isEmpty() || !options.result.isEmpty())
            return badCall(
                QStringLiteral("--linie reads standard input and writes standard output; "
                               "it takes no task file, --raport, --arkusz, --podglad or "
                               "--wynik"));
        return options;
    }
    if (parser.isSet(threads))
        return badCall(QStringLiteral("--watki goes with --linie"));
    if (tasks.size() != 1)
        return badCall(QStringLiteral("expected one task file (see --help)"));
    if (tasks.front() == u"-" && options.combinations == u"-")
        return badCall(QStringLiteral("standard input cannot be both the task and the table"));
    options.task = tasks.front() == u"-" ? QStringLiteral("/dev/stdin") : tasks.front();
    return options;
}

} // namespace ferna::batch
