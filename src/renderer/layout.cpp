#include "renderer/layout.h"

#include "pages/text_measure.h"
#include "renderer/fitting.h"
#include "renderer/page_flow.h"
#include "runtime/lengths.h"
#include "runtime/run_time_error.h"

#include <QDir>

namespace ferna::renderer {

namespace {

constexpr double projectLine = 19; // mm, where the frame has the project's name

/// The page-number text with the page's own number.
void number(Chain& chain, int page) {
    pages::Text& text = chain.texts.front();
    text.text = wyd::wordsOfPageNumber(text.text) + QString::number(page);
    measure(text);
}

/// The frame with its page number, as every page starts.
pages::Page framed(const Segment& frame, int page) {
    Segment own = frame;
    for (TextLine& line : own.lines)
        for (Chain& chain : line.chains)
            if (chain.pageNumber)
                number(chain, page);
    fitFrame(own);
    pages::Page result;
    result.number = page;
    for (const TextLine& line : own.lines)
        addTo(result, line);
    for (const Block& block : own.blocks)
        addTo(result, block);
    return result;
}

QString titleOf(const Segment& frame) {
    for (const TextLine& line : frame.lines)
        if (line.leavesInk())
            return line.chains.front().texts.front().text.trimmed();
    return {};
}

QString projectOf(const Segment& frame) {
    constexpr double near = 0.05; // mm
    for (const TextLine& line : frame.lines)
        if (qAbs(line.y - projectLine) < near)
            return line.chains.front().texts.front().text.trimmed();
    return {};
}

std::vector<wyd::Record> frameOf(const Job& job, wyd::Complaints& complaints) {
    std::vector<wyd::Record> frame = wyd::readRecordFile(job.framePath, complaints);
    if (frame.empty())
        throw RunTimeError(error::DeviceIO, QDir::toNativeSeparators(job.framePath)
                                                + QStringLiteral(": brak poleceń ramki strony"));
    return frame;
}

} // namespace

std::vector<pages::Page> layOut(Segment frame, std::vector<Segment> body, int firstPage) {
    PageFlow flow([&frame, firstPage](int index) { return framed(frame, firstPage + index); });
    for (Segment& segment : body) {
        flow.newPage();
        for (Section& section : sectionsOf(groupsOf(std::move(segment))))
            flow.place(std::move(section));
    }
    return flow.takePages();
}

Commands::Commands(const Job& job, wyd::Complaints& complaints)
    : frame_(frameOf(job, complaints)), body_(wyd::readRecordFile(job.bodyPath, complaints)),
      twins_(pictureFiles(job.framePath, frame_) + pictureFiles(job.bodyPath, body_)) {}

pages::Report compose(const Job& job, wyd::Complaints& complaints, const QString& language) {
    return compose(job, Commands(job, complaints), complaints, language);
}

pages::Report compose(const Job& job, const Commands& commands, wyd::Complaints& complaints,
                      const QString& language) {
    const double width = job.lineWidthPt * mmPerPoint;
    const auto interpreter = [&](const QString& path) {
        return RecordInterpreter(path, width, commands.twins(), complaints, language);
    };
    Segment frame = interpreter(job.framePath).frame(commands.frame());
    std::vector<Segment> body = interpreter(job.bodyPath).body(commands.body(), commands.frame());
    pages::Report report;
    report.language = language;
    report.title = titleOf(frame);
    report.project = projectOf(frame);
    report.pages = layOut(std::move(frame), std::move(body), job.firstPage);
    return report;
}

} // namespace ferna::renderer
