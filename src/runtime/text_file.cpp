#include "runtime/text_file.h"

#include "runtime/codepage.h"
#include "runtime/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace ferna {

namespace {

QString native(const QString& path) {
    return QDir::toNativeSeparators(path);
}

[[noreturn]] void cannotRead(const QString& path, int reason) {
    switch (reason) {
    case ENOENT:
    case ENOTDIR:
        throw RunTimeError(error::FileNotFound, native(path));
    case EACCES:
    case EPERM:
        throw RunTimeError(error::PermissionDenied, native(path));
    case EISDIR:
        throw RunTimeError(error::PathAccess, native(path));
    default:
        throw RunTimeError(error::DeviceIO,
                           native(path) + QStringLiteral(" (") + qt_error_string(reason) + u')');
    }
}

/// A file that is open for as long as this lives. Opening a pipe that nobody writes would wait
/// without end, so nothing waits here.
class OpenFile {
public:
    explicit OpenFile(const QString& path)
        : number_(::open(QFile::encodeName(path).constData(),
                         O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}
    ~OpenFile() {
        if (number_ >= 0)
            ::close(number_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int number() const { return number_; }

private:
    int number_;
};

} // namespace

QByteArray readFileWhole(const QString& path, qsizetype most) {
    if (path.startsWith(u':')) { // carried by the program itself: no file of the system
        QFile carried(path);
        if (!QFileInfo(carried).isFile() || !carried.open(QIODevice::ReadOnly))
            cannotRead(path, ENOENT);
        return carried.readAll();
    }
    const OpenFile file(path);
    struct stat info {};
    if (file.number() < 0 || ::fstat(file.number(), &info) != 0)
        cannotRead(path, errno);
    if (S_ISDIR(info.st_mode))
        cannotRead(path, EISDIR);
    if (!S_ISREG(info.st_mode))
        throw RunTimeError(error::PathAccess,
                           native(path) + QStringLiteral(" (to nie jest zwykły plik)"));
    constexpr qsizetype block = 65536;
    QByteArray bytes;
    qsizetype read = 0;
    // Some files of the system's own have no size; one more byte tells the end of the others.
    bytes.resize(qMin<qsizetype>(qMax<qsizetype>(block, info.st_size + 1), most + 1));
    for (;;) {
        const ssize_t count = ::read(file.number(), bytes.data() + read,
                                     static_cast<std::size_t>(bytes.size() - read));
        if (count < 0 && errno != EINTR)
            cannotRead(path, errno);
        if (count == 0)
            break;
        read += qMax<ssize_t>(count, 0);
        if (read > most)
            throw RunTimeError(
                error::DeviceIO,
                QStringLiteral("%1 (plik ma ponad %2 MB)").arg(native(path)).arg(most / megabyte));
        if (read == bytes.size())
            bytes.resize(qMin(2 * read, most + 1));
    }
    bytes.resize(read);
    return bytes;
}

QStringList readLines(const QString& path, TextFrom from) {
    QByteArray bytes = readFileWhole(path, largestTextFile);
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

void TextFileWriter::commit(const QString& path, Lasting lasting) const {
    writeFileWhole(path, bytes_, lasting);
}

} // namespace ferna
