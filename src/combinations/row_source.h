#pragma once

#include "tables/cells.h"

#include <QIODevice>
#include <QStringDecoder>

#include <memory>
#include <optional>
#include <variant>

namespace ferna::combinations {

/// Gives the rows of a table one after another, blank ones left out.
class RowSource {
public:
    RowSource() = default;
    RowSource(const RowSource&) = delete;
    RowSource& operator=(const RowSource&) = delete;
    virtual ~RowSource() = default;

    /// The cells of the next row; empty behind the last one.
    virtual std::optional<QStringList> next() = 0;

    /// Why the rest could not be read; empty where all was.
    virtual QString trouble() const { return {}; }
};

/// Rows of text, as UTF-8, UTF-16 or code page 1250, in the room of some hundred thousand
/// characters however many there are. The first of them show what separates the cells.
class TextSource : public RowSource {
public:
    /// `bytes` is open and outlives the source.
    explicit TextSource(QIODevice& bytes);

    std::optional<QStringList> next() override;
    QString trouble() const override { return trouble_; }

private:
    bool nextPart();
    void read();
    void chooseEncoding();

    QIODevice& bytes_;
    QByteArray undecoded_; ///< the beginning of a line, of bytes that are not UTF-16
    bool atEnd_ = false;   ///< the bytes have been read
    bool isFirst_ = true;
    std::optional<QStringDecoder> utf16_;
    QString waiting_; ///< decoded, behind the part
    QString part_;    ///< whole rows, from which the reader reads
    std::optional<tables::Separator> separator_;
    std::optional<tables::RowReader> reader_;
    QString trouble_;
};

/// The rows of a table in a file, or why it cannot be read at all. `path` is a text file, "-" the
/// standard input, or a workbook (.xlsx, .ods), of which the first sheet that is not empty is read.
std::variant<std::unique_ptr<RowSource>, QString> openTable(const QString& path);

} // namespace ferna::combinations
