#include "combinations/row_source.h"

#include "combinations/workbook.h"
#include "runtime/codepage.h"
#include "tables/table_text.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace ferna::combinations {

namespace {

constexpr qsizetype block = 1 << 16;      // bytes that are read at once
constexpr qsizetype longestRow = 1 << 20; // characters in which a row must end

/// Where the last whole row of a text ends: behind the last line end outside quotation marks; 0
/// without one. A text too long for one row ends with its last line.
qsizetype endOfRows(QStringView text) {
    bool quoted = false;
    qsizetype outside = 0;
    qsizetype any = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'"')
            quoted = !quoted;
        if (text[i] != u'\n' && text[i] != u'\r')
            continue;
        any = i + 1;
        if (!quoted)
            outside = i + 1;
    }
    if (outside > 0 || text.size() < longestRow)
        return outside;
    return any > 0 ? any : text.size();
}

/// A byte that code page 1250 does not assign stands as a question mark: only a name can lose a
/// letter by it, as a number with it is none.
QString fromCodePage(QByteArrayView bytes) {
    if (auto text = codepage::decoded(bytes))
        return *text;
    QString text;
    for (qsizetype i = 0; i < bytes.size(); ++i)
        text += codepage::decoded(bytes.sliced(i, 1)).value_or(QStringLiteral("?"));
    return text;
}

QString fromBytes(QByteArrayView bytes) {
    QStringDecoder utf8(QStringConverter::Utf8);
    QString text = utf8(bytes);
    return utf8.hasError() ? fromCodePage(bytes) : text;
}

/// A file together with its rows.
class FileSource : public RowSource {
public:
    explicit FileSource(std::unique_ptr<QFile> file) : file_(std::move(file)), rows_(*file_) {}

    std::optional<QStringList> next() override { return rows_.next(); }
    QString trouble() const override { return rows_.trouble(); }

private:
    std::unique_ptr<QFile> file_;
    TextSource rows_;
};

std::unique_ptr<QFile> opened(const QString& path) {
    auto file = std::make_unique<QFile>(path);
    const bool isOpen =
        path == u"-" ? file->open(stdin, QIODevice::ReadOnly) : file->open(QIODevice::ReadOnly);
    return isOpen || path == u"-" ? std::move(file) : nullptr;
}

} // namespace

TextSource::TextSource(QIODevice& bytes) : bytes_(bytes) {}

/// A mark at the beginning decides; without one a zero byte in it can only be of UTF-16.
void TextSource::chooseEncoding() {
    const QByteArrayView bytes(undecoded_);
    if (bytes.startsWith(QByteArrayView("\xEF\xBB\xBF")))
        undecoded_.remove(0, 3);
    else if (bytes.startsWith(QByteArrayView("\xFF\xFE", 2))
             || bytes.startsWith(QByteArrayView("\xFE\xFF", 2)))
        utf16_.emplace(QStringConverter::Utf16);
    else if (bytes.contains('\0'))
        utf16_.emplace(bytes.front() == '\0' ? QStringConverter::Utf16BE
                                             : QStringConverter::Utf16LE);
}

/// Decodes some more bytes, of single-byte ones whole lines.
void TextSource::read() {
    const QByteArray more = bytes_.read(block);
    if (more.isEmpty()) {
        atEnd_ = true;
        if (bytes_.atEnd())
            trouble_.clear();
        else
            trouble_ = bytes_.errorString();
    }
    undecoded_ += more;
    if (std::exchange(isFirst_, false))
        chooseEncoding();
    if (utf16_) {
        waiting_ += (*utf16_)(undecoded_);
        undecoded_.clear();
        return;
    }
    qsizetype end = undecoded_.lastIndexOf('\n') + 1;
    if (atEnd_ || (end == 0 && undecoded_.size() >= longestRow))
        end = undecoded_.size();
    waiting_ += fromBytes(QByteArrayView(undecoded_).first(end));
    undecoded_.remove(0, end);
}

/// Makes the next whole rows the reader's; false behind the last ones.
bool TextSource::nextPart() {
    reader_.reset();
    qsizetype end = 0;
    while (end == 0 && !atEnd_) {
        read();
        end = endOfRows(waiting_);
    }
    if (atEnd_)
        end = waiting_.size();
    part_ = waiting_.first(end);
    waiting_.remove(0, end);
    if (!separator_)
        separator_ = tables::separatorOf(part_);
    reader_.emplace(part_, *separator_);
    return !part_.isEmpty();
}

std::optional<QStringList> TextSource::next() {
    for (;;) {
        if (reader_)
            if (auto row = reader_->next())
                return std::move(row->cells);
        if (!nextPart())
            return std::nullopt;
    }
}

std::variant<std::unique_ptr<RowSource>, QString> openTable(const QString& path) {
    std::unique_ptr<QFile> file = opened(path);
    if (QFileInfo(path).isDir())
        return QStringLiteral("to jest katalog, a nie plik");
    if (!file || !file->isOpen())
        return file ? file->errorString() : QStringLiteral("nie można otworzyć pliku");
    if (isWorkbook(file->peek(workbookMark)))
        return openWorkbook(*file);
    return std::unique_ptr<RowSource>(std::make_unique<FileSource>(std::move(file)));
}

} // namespace ferna::combinations
