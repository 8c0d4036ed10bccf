#include "renderer/job.h"

#include "runtime/field_reader.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFileInfo>

#include <limits>

namespace ferna::renderer {

namespace {

Mode modeOf(int number, const QString& path) {
    switch (number) {
    case -2:
    case -1:
    case 1:
    case 2:
    case 3:
        return static_cast<Mode>(number);
    default:
        throw RunTimeError(error::Subscript, QStringLiteral("%1, wiersz 1: nieznany tryb %2")
                                                 .arg(QDir::toNativeSeparators(path))
                                                 .arg(number));
    }
}

QString pathLine(FieldReader& reader, const QString& jobPath) {
    reader.nextLine();
    const QString path = reader.rest().trimmed();
    if (path.isEmpty())
        throw RunTimeError(error::InputPastEnd, QStringLiteral("%1, wiersz %2: brak ścieżki")
                                                    .arg(QDir::toNativeSeparators(jobPath))
                                                    .arg(reader.lineNumber()));
    return QDir(folderOf(jobPath)).absoluteFilePath(QDir::fromNativeSeparators(path));
}

/// A number with the blanks that free-form output puts around it: the sign's place and one behind.
QString freeForm(int value) {
    return (value < 0 ? QString() : QStringLiteral(" ")) + QString::number(value) + u' ';
}

} // namespace

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
    job.bodyPath = pathLine(reader, path);
    job.framePath = pathLine(reader, path);
    return job;
}

void writeReply(const QString& folder, bool done, int nextPage) {
    // The reader takes a 16-bit number; a page number beyond would stop it.
    constexpr int lowest = std::numeric_limits<Integer>::min();
    constexpr int highest = std::numeric_limits<Integer>::max();
    const int number = qBound(lowest, nextPage, highest);
    TextFileWriter file;
    file.line(freeForm(done ? 1 : 0) + u',' + freeForm(number));
    file.commit(QDir(folder).filePath(QStringLiteral("W_X.txt")));
}

} // namespace ferna::renderer
