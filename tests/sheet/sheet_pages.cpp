// Reads tasks, one a line, and writes for each a line of its result and its sheet as HTML without
// pictures, the length of the sheet before it; the argument is the folder of the catalogues.
// sheet_recomputed_test.py reads them.

#include "batch/sheet_files.h"
#include "batch/task_run.h"
#include "runtime/format.h"
#include "sheet/html_writer.h"
#include "task/task.h"

#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv) {
    using namespace ferna;
    const QGuiApplication application(argc, argv);
    setDecimalSign(u'.');
    const batch::RunOptions options{
        {}, QString::fromLocal8Bit(argv[1]), QDateTime::currentDateTime()};
    std::string line;
    while (std::getline(std::cin, line)) {
        const batch::ComputedTask done = batch::run(readTask(parsed(line)), options);
        const QByteArray page = sheet::htmlOf(batch::sheetOf(done), sheet::HtmlPictures::LeftOut);
        std::cout << batch::resultText(done, batch::JsonWriter::Layout::OneLine) << '\n'
                  << page.size() << '\n'
                  << page.constData();
    }
}
