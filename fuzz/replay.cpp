// Stands in for the fuzzer in the tests: feeds every input of the corpora that it is called with,
// in the order of their names.
#include "fuzzing.h"

#include <QDir>

#include <unistd.h>

#include <csignal>
#include <cstring>

extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int* count, char*** arguments);

namespace {

char current[4096]; // path of the input that runs

void tellCurrent(int) {
    [[maybe_unused]] const auto told = write(STDERR_FILENO, current, std::strlen(current));
}

} // namespace

int main(int count, char** arguments) {
    std::signal(SIGABRT, tellCurrent);
    if (LLVMFuzzerInitialize != nullptr)
        LLVMFuzzerInitialize(&count, &arguments);
    int inputs = 0;
    for (int i = 1; i < count; ++i) {
        QStringList names =
            QDir(QFile::decodeName(arguments[i])).entryList(QDir::Files, QDir::Name);
        for (const QString& name : names) {
            QFile file(QFile::decodeName(arguments[i]) + u'/' + name);
            ferna::fuzzing::require(file.open(QIODevice::ReadOnly), "an input can be read");
            const QByteArray bytes = file.readAll();
            std::snprintf(current, sizeof current, "input %s\n", qPrintable(file.fileName()));
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
            ++inputs;
        }
    }
    delete QCoreApplication::instance(); // or its fonts count as a leak
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
