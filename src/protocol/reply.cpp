#include "protocol/reply.h"

#include "protocol/renderer_files.h"
#include "runtime/field_reader.h"
#include "runtime/text_file.h"

#include <QDir>

#include <limits>

namespace ferna {

namespace {

/// A number with the blanks that free-form output puts around it: the sign's place and one behind.
QString freeForm(int value) {
    return (value < 0 ? QString() : QStringLiteral(" ")) + QString::number(value) + u' ';
}

} // namespace

void writeReply(const QString& folder, bool done, int nextPage) {
    replyAhead(folder, done, nextPage).install();
}

FileAhead replyAhead(const QString& folder, bool done, int nextPage) {
    // The reader takes a 16-bit number; a page number beyond would stop it.
    constexpr int lowest = std::numeric_limits<Integer>::min();
    constexpr int highest = std::numeric_limits<Integer>::max();
    const int number = qBound(lowest, nextPage, highest);
    TextFileWriter file;
    file.line(freeForm(done ? 1 : 0) + u',' + freeForm(number));
    return {QDir(folder).filePath(wyd::replyFile), file.bytes()};
}

RendererReply readRendererReply(const QString& path) {
    FieldReader file(path);
    RendererReply reply;
    file.nextLine();
    reply.printed = file.single();
    if (file.atLineEnd())
        file.nextLine();
    reply.nextPage = file.integer();
    return reply;
}

} // namespace ferna
