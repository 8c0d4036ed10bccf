#include "renderer/paper/printing.h"

#include "pages/drawing.h"
#include "pages/page_painter.h"
#include "protocol/renderer_news.h"
#include "renderer/news.h"
#include "renderer/paper/own_window.h"
#include "renderer/paper/print_queue.h"
#include "runtime/lengths.h"
#include "runtime/run_time_error.h"

#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QThread>

#include <algorithm>
#include <numeric>

namespace ferna::renderer {

namespace {

[[noreturn]] void cannotPrint(const QString& detail) {
    throw RunTimeError(error::DeviceIO, detail);
}

void setUp(QPrinter& printer, const pages::Report& report) {
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setFullPage(true);
    printer.setDocName(report.project.isEmpty() ? report.title : report.project);
    printer.setCreator(QStringLiteral("Wyd_drk"));
}

} // namespace

namespace {

/// The engineer would look for the sheets in vain: a job that waits is told. A queue finds out
/// about its printer only once it sends to it, and that may be some seconds later: the printer of a
/// job that still waits is asked itself.
void tellObstacle(const QString& name, int job) {
    constexpr int looks = 4;
    constexpr unsigned long between = 250; // ms
    QString obstacle = queueObstacle(name);
    for (int i = 1; i < looks && obstacle.isEmpty() && isWaiting(name, job); ++i) {
        QThread::msleep(between);
        obstacle = queueObstacle(name);
    }
    if (obstacle.isEmpty() && isWaiting(name, job))
        obstacle = deviceObstacle(name);
    if (!obstacle.isEmpty() && isWaiting(name, job))
        cannotPrint(QStringLiteral("drukarka %1: %2, wydruk czeka w niej jako zadanie nr %3")
                        .arg(name, obstacle)
                        .arg(job));
}

} // namespace

std::vector<std::size_t> pagesToPrint(const QPrinter& printer, std::size_t pages) {
    std::size_t first = 1;
    std::size_t last = pages;
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        first = static_cast<std::size_t>(printer.fromPage());
        last = qMin(pages, static_cast<std::size_t>(qMax(printer.fromPage(), printer.toPage())));
    }
    std::vector<std::size_t> chosen;
    for (std::size_t page = first; page <= last; ++page)
        chosen.push_back(page - 1);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(chosen.begin(), chosen.end());
    return chosen;
}

void printOn(QPrinter& printer, const pages::Report& report) {
    const QString name = printer.printerName();
    const bool toFile = !printer.outputFileName().isEmpty();
    if (!toFile) {
        const QString refusal = queueRefusal(name);
        if (!refusal.isEmpty())
            cannotPrint(QStringLiteral("drukarka %1: %2").arg(name, refusal));
    }
    const std::vector<std::size_t> chosen = pagesToPrint(printer, report.pages.size());
    if (chosen.empty())
        cannotPrint(QStringLiteral("wybrany zakres nie zawiera żadnej z %1 stron raportu")
                        .arg(report.pages.size()));
    const int jobsBefore = toFile ? 0 : lastJobOf(name);
    QPainter painter;
    if (!painter.begin(&printer))
        cannotPrint(QStringLiteral("nie można rozpocząć wydruku na drukarce %1").arg(name));
    const double scale = printer.resolution() / mmPerInch / drawing::unitsPerMm;
    bool first = true;
    for (const std::size_t page : chosen) {
        if (!std::exchange(first, false) && !printer.newPage())
            cannotPrint(QStringLiteral("drukarka %1 nie przyjęła kolejnej strony").arg(name));
        painter.resetTransform();
        painter.scale(scale, scale);
        paintPage(painter, report.pages[page]);
    }
    const bool ended = painter.end();
    const int job = toFile ? 0 : lastJobOf(name);
    if (!ended || printer.printerState() == QPrinter::Error
        || (!toFile && jobsBefore >= 0 && job <= jobsBefore))
        cannotPrint(QStringLiteral("drukarka %1 nie przyjęła wydruku").arg(name));
    if (!toFile)
        tellObstacle(name, job);
}

void printOnDefault(const pages::Report& report) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        cannotPrint(QStringLiteral("nie ma drukarki domyślnej"));
    QPrinter printer(info, QPrinter::HighResolution);
    setUp(printer, report);
    printOn(printer, report);
}

void printOnChosen(const pages::Report& report) {
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, report);
    QPrintDialog dialog(&printer);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setMinMax(1, static_cast<int>(report.pages.size()));
    if (runOwnWindow(dialog) != QDialog::Accepted)
        throw RunTimeError(error::Cancelled, QStringLiteral("okno wyboru drukarki"));
    printer.setFullPage(true);
    printOn(printer, report);
    if (!printer.outputFileName().isEmpty())
        tell(news::fileWritten(QFileInfo(printer.outputFileName()).absoluteFilePath()));
}

} // namespace ferna::renderer
