#include "batch/task_input.h"

#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace ferna::batch {

namespace {

constexpr std::size_t block = 65536;

[[noreturn]] void cannotRead(const QString& what, int reason) {
    throw RunTimeError(reason == EISDIR ? error::PathAccess : error::DeviceIO,
                       what + QStringLiteral(" (") + qt_error_string(reason) + u')');
}

/// Reads to the end of a pipe or terminal. Nobody may write a pipe: that is waited for, but not
/// without end.
QByteArray readStream(int file, const QString& name) {
    constexpr int patience = 2000; // ms
    constexpr int step = 20;
    int waited = 0;
    QByteArray text;
    char bytes[block];
    for (;;) {
        const ssize_t count = ::read(file, bytes, sizeof bytes);
        if (count > 0)
            text.append(bytes, count);
        if (text.size() > static_cast<qsizetype>(longestTask))
            throw RunTimeError(
                error::DeviceIO,
                QStringLiteral("%1 (a task has at most %2 bytes)").arg(name).arg(longestTask));
        if (count < 0 && errno != EAGAIN && errno != EINTR)
            cannotRead(name, errno);
        pollfd waiting{file, POLLIN, 0};
        const bool nobodyYet = count == 0 && text.isEmpty() && ::poll(&waiting, 1, 0) == 0;
        if (count == 0 && !nobodyYet)
            return text;
        if (nobodyYet && (waited += step) > patience)
            throw RunTimeError(error::PathAccess, name + QStringLiteral(" (nobody writes to it)"));
        waiting.revents = 0;
        ::poll(&waiting, 1, nobodyYet ? step : -1);
    }
}

} // namespace

QByteArray readTaskText(const QString& path) {
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat info {};
    const bool isStream =
        file >= 0 && ::fstat(file, &info) == 0 && (S_ISFIFO(info.st_mode) || S_ISCHR(info.st_mode));
    struct Closed {
        int file;
        ~Closed() { ::close(file); }
    } const closed{file};
    return isStream ? readStream(file, QDir::toNativeSeparators(path))
                    : readFileWhole(path, longestTask);
}

LineInput::LineInput(int file) : file_(file) {
    if (::pipe2(wake_, O_CLOEXEC) != 0)
        cannotRead(QStringLiteral("standard input"), errno);
}

LineInput::~LineInput() {
    ::close(wake_[0]);
    ::close(wake_[1]);
}

void LineInput::cancel() {
    const char byte = 0;
    (void)!::write(wake_[1], &byte, 1); // never read: it wakes for good
}

/// Gets more bytes; false at the end.
bool LineInput::fill() {
    pollfd waiting[] = {{wake_[0], POLLIN, 0}, {file_, POLLIN, 0}};
    if (::poll(waiting, 2, -1) < 0 && errno != EINTR)
        cannotRead(QStringLiteral("standard input"), errno);
    cancelled_ = waiting[0].revents != 0;
    if (cancelled_)
        return false;
    buffer_.resize(block);
    begin_ = 0;
    const ssize_t count = ::read(file_, buffer_.data(), block);
    const int reason = errno;
    buffer_.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    if (count < 0 && reason != EAGAIN && reason != EINTR)
        cannotRead(QStringLiteral("standard input"), reason);
    return count != 0;
}

void LineInput::add(std::string& line, std::size_t end) {
    constexpr std::size_t enough = longestTask + 1;
    line.append(buffer_, begin_, std::min(end - begin_, enough - std::min(enough, line.size())));
    begin_ = end;
}

bool LineInput::next(std::string& line) {
    line.clear();
    bool any = false;
    for (;;) {
        if (begin_ == buffer_.size() && !fill())
            return any && !cancelled_;
        if (buffer_.empty())
            continue;
        any = true;
        const std::size_t end = buffer_.find('\n', begin_);
        add(line, std::min(end, buffer_.size()));
        if (end == std::string::npos)
            continue;
        ++begin_;
        return true;
    }
}

} // namespace ferna::batch
