#pragma once

#include <QByteArray>
#include <QString>

#include <string>

namespace ferna::batch {

inline constexpr std::size_t longestTask = 1'000'000; ///< bytes, in a file as on a line of a stream

/// The text of a task: from a plain file, or from a pipe or terminal that somebody writes. Errors
/// of `readFileWhole`; 75 for a pipe without a writer, 57 for a text longer than a task may be.
QByteArray readTaskText(const QString& path);

/// The lines of a descriptor, read as they come. `next` is called by one thread at a time, `cancel`
/// by any.
class LineInput {
public:
    /// `file`: stays open behind this object.
    explicit LineInput(int file);
    ~LineInput();
    LineInput(const LineInput&) = delete;
    LineInput& operator=(const LineInput&) = delete;

    /// The next line without its end; false where there is no further one. Of a line longer than a
    /// task may be only that it is so is kept: `line` is one byte longer then. Error 57 where
    /// the input cannot be read.
    bool next(std::string& line);

    /// Ends a waiting `next` and every later one with false.
    void cancel();

private:
    bool fill();
    void add(std::string& line, std::size_t end);

    int file_;
    int wake_[2];
    std::string buffer_;
    std::size_t begin_ = 0;
    bool cancelled_ = false;
};

} // namespace ferna::batch
