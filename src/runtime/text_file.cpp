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

/// A plain file that is open for as long as this lives. Opening a pipe that nobody writes would
/// wait without end, so nothing waits here.
class PlainFile {
public:
    explicit PlainFile(const QString& path)
        : path_(path), number_(::open(QFile::encodeName(path).constData(),
                                      O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
        struct stat info {};
        const int reason = number_ < 0 || ::fstat(number_, &info) != 0 ? errno
                           : S_ISDIR(info.st_mode)                     ? EISDIR
                                                                       : 0;
        const bool plain = S_ISREG(info.st_mode);
        size_ = info.st_size;
        if (reason == 0 && plain)
            return;
        close();
        if (reason != 0)
            cannotRead(path, reason);
        throw RunTimeError(error::PathAccess,
                           native(path) + QStringLiteral(" (to nie jest zwykły plik)"));
    }
    ~PlainFile() { close(); }
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;

    /// As the system has it; some files of its own have none.
    qsizetype size() const { return size_; }

    /// The next bytes, so many at most; none at the end.
    qsizetype read(char* to, qsizetype room) {
        for (;;) {
            const ssize_t count = ::read(number_, to, static_cast<std::size_t>(room));
            if (count >= 0)
                return count;
            if (errno != EINTR)
                cannotRead(path_, errno);
        }
    }

private:
    void close() {
        if (number_ >= 0)
            ::close(number_);
    }

    QString path_;
    int number_;
    qsizetype size_ = 0;
};

void refuseBeyond(qsizetype most, qsizetype read, const QString& path) {
    if (read > most)
        throw RunTimeError(
            error::DeviceIO,
            QStringLiteral("%1 (plik ma ponad %2 MB)").arg(native(path)).arg(most / megabyte));
}

} // namespace

QByteArray readFileWhole(const QString& path, qsizetype most) {
    if (path.startsWith(u':')) { // carried by the program itself: no file of the system
        QFile carried(path);
        if (!QFileInfo(carried).isFile() || !carried.open(QIODevice::ReadOnly))
            cannotRead(path, ENOENT);
        return carried.readAll();
    }
    PlainFile file(path);
    constexpr qsizetype block = 65536;
    QByteArray bytes;
    qsizetype read = 0;
    // One more byte tells the end of a file that has a size.
    bytes.resize(qMin(qMax(block, file.size() + 1), most + 1));
    while (const qsizetype count = file.read(bytes.data() + read, bytes.size() - read)) {
        read += count;
        refuseBeyond(most, read, path);
        if (read == bytes.size())
            bytes.resize(qMin(2 * read, most + 1));
    }
    bytes.resize(read);
    return bytes;
}

qsizetype readFileInParts(const QString& path, const std::function<void(QByteArrayView)>& take) {
    constexpr qsizetype part = 262144; // stays in the processor's cache
    PlainFile file(path);
    QByteArray bytes(part, Qt::Uninitialized);
    qsizetype read = 0;
    while (const qsizetype count = file.read(bytes.data(), part)) {
        read += count;
        refuseBeyond(largestFile, read, path);
        take(QByteArrayView(bytes.constData(), count));
    }
    return read;
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
