#include "combinations/workbook.h"

#include <QDateTime>
#include <QLocale>

#include <orcus/orcus_ods.hpp>
#include <orcus/orcus_xlsx.hpp>
#include <orcus/spreadsheet/import_interface.hpp>

#include <algorithm>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace ferna::combinations {

namespace {

namespace sheets = orcus::spreadsheet;

constexpr qint64 largestWorkbook = 200'000'000; // bytes

/// A number with all its digits and in a form that is read in one way only: "10.125" beside decimal
/// commas could be thousands.
QString written(double value) {
    QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    constexpr qsizetype group = 3;
    const qsizetype point = text.indexOf(u'.');
    if (point >= 0 && text.size() - point - 1 == group)
        text += u'0';
    return text;
}

using SheetRows = std::map<int, QStringList>;

class Strings : public sheets::iface::import_shared_strings {
public:
    size_t append(std::string_view text) override {
        texts_.push_back(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        return texts_.size() - 1;
    }
    size_t add(std::string_view text) override { return append(text); }
    void append_segment(std::string_view text) override { segments_ += text; }
    size_t commit_segments() override { return append(std::exchange(segments_, {})); }

    void set_segment_font(size_t /*index*/) override {}
    void set_segment_bold(bool /*is*/) override {}
    void set_segment_italic(bool /*is*/) override {}
    void set_segment_font_name(std::string_view /*name*/) override {}
    void set_segment_font_size(double /*points*/) override {}
    void set_segment_font_color(sheets::color_elem_t, sheets::color_elem_t, sheets::color_elem_t,
                                sheets::color_elem_t) override {}

    QString at(size_t index) const { return index < texts_.size() ? texts_[index] : QString(); }

private:
    std::vector<QString> texts_;
    std::string segments_;
};

/// Takes the values of one sheet.
class Sheet : public sheets::iface::import_sheet, private sheets::iface::import_formula {
public:
    explicit Sheet(const Strings& strings) : strings_(strings) {}

    SheetRows& rows() { return rows_; }

    void set_auto(sheets::row_t row, sheets::col_t column, std::string_view text) override {
        put(row, column, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    }
    void set_string(sheets::row_t row, sheets::col_t column, sheets::string_id_t index) override {
        put(row, column, strings_.at(index));
    }
    void set_value(sheets::row_t row, sheets::col_t column, double value) override {
        put(row, column, written(value));
    }
    void set_bool(sheets::row_t row, sheets::col_t column, bool value) override {
        put(row, column, value ? QStringLiteral("PRAWDA") : QStringLiteral("FAŁSZ"));
    }
    void set_date_time(sheets::row_t row, sheets::col_t column, int year, int month, int day,
                       int hour, int minute, double second) override {
        const QDateTime moment(QDate(year, month, day),
                               QTime(hour, minute, static_cast<int>(second)));
        put(row, column, moment.toString(QStringLiteral("yyyy-MM-dd hh:mm")));
    }
    void fill_down_cells(sheets::row_t row, sheets::col_t column, sheets::row_t count) override {
        const auto source = rows_.find(row);
        if (source == rows_.end())
            return;
        const QString value = source->second.value(column);
        for (sheets::row_t r = 1; r <= count && r <= mostRows; ++r)
            put(row + r, column, value);
    }
    sheets::range_size_t get_sheet_size() const override { return {mostRows, mostColumns}; }
    sheets::iface::import_formula* get_formula() override { return this; }

    void set_format(sheets::row_t, sheets::col_t, size_t) override {}
    void set_format(sheets::row_t, sheets::col_t, sheets::row_t, sheets::col_t, size_t) override {}

private:
    // Of a formula the value that the spreadsheet saved with it.
    void set_position(sheets::row_t row, sheets::col_t column) override {
        row_ = row;
        column_ = column;
    }
    void set_formula(sheets::formula_grammar_t, std::string_view) override {}
    void set_shared_formula_index(size_t) override {}
    void set_result_string(std::string_view value) override { set_auto(row_, column_, value); }
    void set_result_value(double value) override { set_value(row_, column_, value); }
    void set_result_bool(bool value) override { set_bool(row_, column_, value); }
    void set_result_empty() override {}
    void commit() override {}

    void put(sheets::row_t row, sheets::col_t column, const QString& text) {
        if (row < 0 || column < 0 || column >= columnsRead)
            return;
        QStringList& cells = rows_[row];
        while (cells.size() <= column)
            cells += QString();
        cells[column] = text.trimmed();
    }

    static constexpr sheets::row_t mostRows = 1'048'576;
    static constexpr sheets::col_t mostColumns = 16'384;
    static constexpr sheets::col_t columnsRead = 256; // no table of loads is wider

    const Strings& strings_;
    SheetRows rows_;
    sheets::row_t row_ = 0;
    sheets::col_t column_ = 0;
};

/// Reads addresses such as "AB12" and "A1:F6".
class Addresses : public sheets::iface::import_reference_resolver {
public:
    sheets::src_address_t resolve_address(std::string_view address) override {
        constexpr int letters = 26;
        constexpr int decimal = 10;
        constexpr int most = 10'000'000; // no sheet has so many rows
        sheets::src_address_t place{0, 0, 0};
        std::size_t i = 0;
        for (; i < address.size() && address[i] >= 'A' && address[i] <= 'Z'; ++i)
            place.column = std::min(place.column * letters + (address[i] - 'A' + 1), most);
        for (; i < address.size() && address[i] >= '0' && address[i] <= '9'; ++i)
            place.row = std::min(place.row * decimal + (address[i] - '0'), most);
        if (i < address.size() || place.row == 0 || place.column == 0)
            throw std::invalid_argument("address " + std::string(address));
        --place.row;
        --place.column;
        return place;
    }
    sheets::src_range_t resolve_range(std::string_view range) override {
        const std::size_t colon = range.find(':');
        const sheets::src_address_t first = resolve_address(range.substr(0, colon));
        return {first,
                colon == std::string_view::npos ? first : resolve_address(range.substr(colon + 1))};
    }
};

class Workbook : public sheets::iface::import_factory {
public:
    sheets::iface::import_shared_strings* get_shared_strings() override { return &strings_; }
    sheets::iface::import_reference_resolver*
    get_reference_resolver(sheets::formula_ref_context_t /*context*/) override {
        return &addresses_;
    }
    sheets::iface::import_sheet* append_sheet(sheets::sheet_t, std::string_view name) override {
        sheets_.push_back(std::make_unique<Sheet>(strings_));
        names_.emplace_back(name);
        return sheets_.back().get();
    }
    sheets::iface::import_sheet* get_sheet(std::string_view name) override {
        for (std::size_t i = 0; i < names_.size(); ++i)
            if (names_[i] == name)
                return sheets_[i].get();
        return nullptr;
    }
    sheets::iface::import_sheet* get_sheet(sheets::sheet_t index) override {
        const auto i = static_cast<std::size_t>(index);
        return i < sheets_.size() ? sheets_[i].get() : nullptr;
    }
    void finalize() override {}

    /// The rows of the first sheet that holds something.
    SheetRows takeRows() {
        for (const auto& sheet : sheets_)
            if (!sheet->rows().empty())
                return std::move(sheet->rows());
        return {};
    }

private:
    Strings strings_;
    Addresses addresses_;
    std::vector<std::unique_ptr<Sheet>> sheets_;
    std::vector<std::string> names_;
};

class WorkbookSource : public RowSource {
public:
    explicit WorkbookSource(SheetRows rows) : rows_(std::move(rows)) {}

    std::optional<QStringList> next() override {
        while (!rows_.empty()) {
            const QStringList cells = std::move(rows_.extract(rows_.begin()).mapped());
            if (!cells.join(QString()).isEmpty())
                return cells;
        }
        return std::nullopt;
    }

private:
    SheetRows rows_;
};

/// Reads the bytes by one of the library's filters; false where they are of another kind.
template <typename Filter>
bool readBy(const QByteArray& bytes, Workbook& workbook) {
    const auto* const begin = reinterpret_cast<const unsigned char*>(bytes.constData());
    const auto size = static_cast<std::size_t>(bytes.size());
    if (!Filter::detect(begin, size))
        return false;
    Filter(&workbook).read_stream({bytes.constData(), size});
    return true;
}

} // namespace

bool isWorkbook(QByteArrayView beginning) {
    return beginning.startsWith(QByteArrayView("PK\x03\x04"));
}

std::variant<std::unique_ptr<RowSource>, QString> openWorkbook(QIODevice& file) {
    const QByteArray bytes = file.read(largestWorkbook + 1);
    if (bytes.size() > largestWorkbook)
        return QStringLiteral("skoroszyt jest większy niż 200 MB - zapisz arkusz jako CSV");
    Workbook workbook;
    try {
        if (!readBy<orcus::orcus_xlsx>(bytes, workbook)
            && !readBy<orcus::orcus_ods>(bytes, workbook))
            return QStringLiteral("to nie jest skoroszyt .xlsx ani .ods");
    } catch (const std::exception& failure) {
        return QStringLiteral("skoroszyt jest uszkodzony (%1)")
            .arg(QString::fromUtf8(failure.what()));
    }
    SheetRows rows = workbook.takeRows();
    if (rows.empty())
        return QStringLiteral("skoroszyt nie ma ani jednej wartości");
    return std::unique_ptr<RowSource>(std::make_unique<WorkbookSource>(std::move(rows)));
}

} // namespace ferna::combinations
