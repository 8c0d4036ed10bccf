// Reads tasks, one a line, and writes for each a line of its result and its sheet as HTML without
// pictures, with its load cases as a table of combinations, the length of the sheet before it; the
// argument is the folder of the catalogues. sheet_recomputed_test.py reads them.

#include "batch/sheet_files.h"
#include "batch/task_run.h"
#include "runtime/format.h"
#include "sheet/html_writer.h"
#include "task/task.h"

#include <QGuiApplication>

#include <iostream>

namespace {

using namespace ferna;

/// The load cases of a task as the rows of a table, in order, and all of them taken; empty where
/// they give no table.
std::optional<combinations::Digest> digestOfCases(const batch::ComputedTask& done) {
    const notes::Entered& given = done.record.given();
    Stan entered = done.task.stan;
    entered.plyta = given.plate; // before the calculation, which may have moved an anchor
    const auto made = combinations::Evaluator::of(entered, given.fields);
    const auto* const evaluator = std::get_if<combinations::Evaluator>(&made);
    combinations::AnsweredTable table;
    std::vector<combinations::RowNumber> taken;
    for (int c = 1; c <= given.cases; ++c) {
        const auto load = enteredLoad(given.fields, c);
        const LoadRow<QString>& row = given.fields.loads[static_cast<std::size_t>(c - 1)];
        if (!load)
            return std::nullopt;
        table.add(combinations::Combination{
            QStringLiteral("KO-%1").arg(c), *load, {row.Vx.toDouble(), row.Vy.toDouble()}});
        taken.push_back(c);
    }
    if (!evaluator || taken.empty())
        return std::nullopt;
    table.answerNext(*evaluator, table.size());
    return digestOf(table, QStringLiteral("tabela.csv"), taken);
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    setDecimalSign(u'.');
    const batch::RunOptions options{
        {}, QString::fromLocal8Bit(argv[1]), QDateTime::currentDateTime()};
    std::string line;
    while (std::getline(std::cin, line)) {
        const batch::ComputedTask done = batch::run(readTask(parsed(line)), options);
        const auto table = digestOfCases(done);
        const QByteArray page = sheet::htmlOf(batch::sheetOf(done, table ? &*table : nullptr),
                                              sheet::HtmlPictures::LeftOut);
        std::cout << batch::resultText(done, batch::JsonWriter::Layout::OneLine) << '\n'
                  << page.size() << '\n'
                  << page.constData();
    }
}
