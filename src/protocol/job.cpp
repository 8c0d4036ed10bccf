#include "protocol/job.h"

#include "protocol/renderer_files.h"
#include "runtime/field_reader.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace ferna {

namespace {

struct WrittenMode {
    RenderMode mode;
    const char* text; // as the job file has it
};

// With the blank that has always stood before the 2.
constexpr std::array modes{
    WrittenMode{RenderMode::Clipboard, "3"}, WrittenMode{RenderMode::ScreenPicture, "-2"},
    WrittenMode{RenderMode::Print, "-1"},    WrittenMode{RenderMode::PrintChosen, "1"},
    WrittenMode{RenderMode::Emf, " 2"},
};

RenderMode modeOf(int number, const QString& path) {
    const auto* const known = std::find_if(modes.begin(), modes.end(), [&](const WrittenMode& m) {
        return static_cast<int>(m.mode) == number;
    });
    if (known == modes.end())
        throw RunTimeError(error::Subscript, QStringLiteral("%1, wiersz 1: nieznany tryb %2")
                                                 .arg(QDir::toNativeSeparators(path))
                                                 .arg(number));
    return known->mode;
}

QString pathOfNextLine(FieldReader& reader, const QString& jobPath) {
    reader.nextLine();
    QString path = wyd::pathOfLine(folderOf(jobPath), reader.rest());
    if (path.isEmpty())
        throw RunTimeError(error::InputPastEnd, QStringLiteral("%1, wiersz %2: brak ścieżki")
                                                    .arg(QDir::toNativeSeparators(jobPath))
                                                    .arg(reader.lineNumber()));
    return path;
}

} // namespace

QString jobLine(RenderMode mode, Integer Nr_strony) {
    for (const WrittenMode& written : modes)
        if (written.mode == mode)
            return QLatin1String(written.text) + QStringLiteral(", 1.0, 0.5, 1.0, ")
                   + general(Nr_strony);
    throw RunTimeError(error::InvalidCall);
}

void writeJob(const QString& folder, RenderMode mode, Integer Nr_strony) {
    TextFileWriter job;
    job.line(jobLine(mode, Nr_strony));
    job.line(wyd::pathLine(folder, wyd::bodyFile));
    job.line(wyd::pathLine(folder, wyd::frameFile));
    job.commit(folder + u'/' + wyd::jobFile, Lasting::UntilNextUse);
}

QString folderOf(const QString& jobPath) {
    return QFileInfo(jobPath).absolutePath();
}

Job readJob(const QString& path) {
    constexpr double widestPt = 20;
    FieldReader reader(path);
    Job job;
    job.folder = folderOf(path);
    reader.nextLine();
    job.mode = modeOf(reader.integer(), path);
    (void)reader.number(); // scale of the sheet, always 1
    const double width = reader.number();
    if (width > 0 && width <= widestPt)
        job.lineWidthPt = width;
    (void)reader.number(); // scale of the letters, always 1
    job.firstPage = reader.integer();
    job.bodyPath = pathOfNextLine(reader, path);
    job.framePath = pathOfNextLine(reader, path);
    return job;
}

} // namespace ferna
