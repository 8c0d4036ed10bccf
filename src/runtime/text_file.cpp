#include "runtime/text_file.h"

#include "runtime/codepage.h"
#include "runtime/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace ferna {

namespace {

QString native(const QString& path) {
    return QDir::toNativeSeparators(path);
}

[[noreturn]] void cannotRead(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        throw RunTimeError(error::FileNotFound, native(path));
    throw RunTimeError(info.isDir() ? error::PathAccess : error::PermissionDenied, native(path));
}

[[noreturn]] void cannotWrite(const QString& path, const QFileDevice& file) {
    const QFileInfo folder(QFileInfo(path).absolutePath());
    const QString detail = native(path) + QStringLiteral(" (") + file.errorString() + u')';
    if (!folder.exists())
        throw RunTimeError(error::PathNotFound, detail);
    if (file.error() == QFileDevice::ResourceError)
        throw RunTimeError(error::DiskFull, detail);
    if (QFileInfo(path).isDir())
        throw RunTimeError(error::PathAccess, detail);
    if (!folder.isWritable())
        throw RunTimeError(error::PermissionDenied, detail);
    throw RunTimeError(error::DeviceIO, detail);
}

} // namespace

QByteArray readFileWhole(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        cannotRead(path);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw RunTimeError(QFileInfo(path).isDir() ? error::PathAccess : error::DeviceIO,
                           native(path));
    return bytes;
}

QStringList readLines(const QString& path, TextFrom from) {
    QByteArray bytes = readFileWhole(path);
    if (bytes.endsWith('\x1a')) // the end-of-file mark of old editors
        bytes.chop(1);
    QStringList lines;
    qsizetype start = 0;
    while (start < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        QByteArrayView line(bytes.constData() + start, end - start);
        if (line.endsWith('\r'))
            line.chop(1);
        const std::optional<QString> text = codepage::decoded(line);
        if (!text || (from == TextFrom::Editor && codepage::looksLikeUtf8(line)))
            throw RunTimeError(error::DeviceIO,
                               QStringLiteral("%1, wiersz %2: to nie jest tekst w stronie kodowej "
                                              "1250")
                                   .arg(native(path))
                                   .arg(lines.size() + 1));
        lines += *text;
        start = end + 1;
    }
    return lines;
}

QString oneLine(QStringView name) {
    QString line;
    bool gap = false;
    for (const QChar c : name) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator) {
            gap = true;
            continue;
        }
        if (gap && !line.isEmpty())
            line += u' ';
        gap = false;
        line += c;
    }
    return line;
}

void TextFileWriter::line(QStringView text) {
    bytes_ += codepage::encoded(text);
    bytes_ += "\r\n";
}

void TextFileWriter::commit(const QString& path) const {
    writeFileWhole(path, bytes_);
}

void writeFileWhole(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        cannotWrite(path, file);
    // Flushed by itself: a commit overlooks that the last bytes found no room, and would put an
    // empty file in the place of the old one.
    if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        cannotWrite(path, file);
}

} // namespace ferna
