#pragma once

#include "runtime/run_time_error.h"

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace ferna::fuzzing {

/// Ends the run with a finding where a promise is broken.
inline void require(bool kept, const char* promise) {
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// Runs what may end in a run-time error; every other exception is a finding. True without an
/// error.
template <typename Command>
bool runs(const Command& command) {
    try {
        command();
        return true;
    } catch (const RunTimeError& failure) {
        require(failure.text().size() > 3, "every error has a text");
        return false;
    }
}

/// A folder in memory for readers that take a file.
class Folder {
public:
    QString path(const QString& name) const { return folder_.filePath(name); }
    QString path(const char* name) const { return path(QString::fromLatin1(name)); }

    QString write(const char* name, const QByteArray& bytes) const {
        return write(QString::fromLatin1(name), bytes);
    }
    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                "the fuzzer's own file can be written");
        return file.fileName();
    }

    static const Folder& instance() {
        static const Folder folder;
        return folder;
    }

private:
    QTemporaryDir folder_{QStringLiteral("/dev/shm/ferna-fuzz-XXXXXX")};
};

/// Qt with its fonts, without a screen.
inline void startQt() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const auto* const application = new QGuiApplication(count, arguments);
    (void)application;
}

} // namespace ferna::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
