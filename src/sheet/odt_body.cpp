#include "sheet/odt_body.h"

#include "sheet/html_math.h"
#include "sheet/html_writer.h"
#include "sheet/odt_tables.h"
#include "sheet/rich_runs.h"

#include <QBuffer>

namespace ferna::sheet::odt {

namespace {

const Xml::Attributes contentNames{
    {"xmlns:office", odf::office}, {"xmlns:style", odf::style}, {"xmlns:text", odf::text},
    {"xmlns:table", odf::table},   {"xmlns:draw", odf::draw},   {"xmlns:fo", odf::fo},
    {"xmlns:svg", odf::svg},       {"xmlns:xlink", odf::xlink}, {"office:version", odf::version},
};

constexpr std::array<const char*, 3> alignNames{"start", "end", "center"};

/// Paragraphs of cells without numbers, by how they stand: "L", "R", "C", and "n" before it for
/// narrow ones.
QString cellStyle(bool narrow, Column::Align align) {
    static constexpr std::array<char16_t, 3> letters{u'L', u'R', u'C'};
    return (narrow ? QStringLiteral("n") : QString())
           + QChar(letters.at(static_cast<std::size_t>(align)));
}

/// Columns that stand beside one another on a page stand below one another in a document.
void flatten(const Blocks& blocks, std::vector<const Block*>& flat) {
    for (const Block& block : blocks) {
        if (const auto* beside = std::get_if<std::shared_ptr<const Beside>>(&block)) {
            flatten((*beside)->left, flat);
            flatten((*beside)->right, flat);
        } else {
            flat.push_back(&block);
        }
    }
}

class Body {
public:
    Body(const Sheet& sheet, std::vector<Part>& pictures) : sheet_(sheet), pictures_(pictures) {
        flatten(sheet.blocks, flat_);
        for (const Block* const block : flat_) {
            const QString name = QStringLiteral("T%1").arg(plans_.size() + 1);
            if (const auto* table = std::get_if<Table>(block))
                take(planOf(*table, name), *table);
            else if (const auto* equations = std::get_if<Equations>(block))
                take(planOf(*equations, name), *equations);
        }
    }

    QByteArray content() {
        xml_.element("office:document-content", contentNames, [&] {
            xml_.element("office:automatic-styles", {}, [&] { automaticStyles(); });
            xml_.element("office:body", {}, [&] {
                xml_.element("office:text", {}, [&] {
                    paragraph("Title", sheet_.title);
                    for (const Block* const block : flat_)
                        std::visit([this](const auto& one) { write(one); }, *block);
                });
            });
        });
        return xml_.finish();
    }

private:
    template <typename Numbers>
    void take(TablePlan plan, const Numbers& numbers) {
        numberStyles_.merge(stylesOf(plan, numbers));
        plans_.push_back(std::move(plan));
    }

    void automaticStyles() {
        for (const bool narrow : {false, true})
            for (const auto align :
                 {Column::Align::Left, Column::Align::Right, Column::Align::Centre})
                paragraphStyle(narrow, align);
        edgeStyle("Cell", "0.25pt solid #bbbbbb");
        edgeStyle("HeadCell", "0.75pt solid #000000");
        edgeStyle("Bare", "none");
        edgeStyle("ToSign", "none", "0.5pt solid #000000");
        for (const TablePlan& plan : plans_)
            writeStyles(xml_, plan);
        for (const NumberStyle& style : numberStyles_)
            writeStyle(xml_, style);
    }

    void paragraphStyle(bool narrow, Column::Align align) {
        xml_.element("style:style",
                     {{"style:name", cellStyle(narrow, align)},
                      {"style:family", QStringLiteral("paragraph")},
                      {"style:parent-style-name",
                       narrow ? QStringLiteral("Narrow_20_Cell") : QStringLiteral("Cell")}},
                     [&] {
                         xml_.element("style:paragraph-properties",
                                      {{"fo:text-align", QString::fromLatin1(alignNames.at(
                                                             static_cast<std::size_t>(align)))}});
                     });
    }

    void edgeStyle(const char* name, const char* below, const char* above = "none") {
        xml_.element("style:style",
                     {{"style:name", QString::fromLatin1(name)},
                      {"style:family", QStringLiteral("table-cell")}},
                     [&] {
                         xml_.element("style:table-cell-properties",
                                      {{"fo:padding", mm(0.7)},
                                       {"style:vertical-align", QStringLiteral("middle")},
                                       {"fo:border-top", QString::fromLatin1(above)},
                                       {"fo:border-bottom", QString::fromLatin1(below)},
                                       {"fo:border-left", QStringLiteral("none")},
                                       {"fo:border-right", QStringLiteral("none")}});
                     });
    }

    // Letters

    void letters(const Rich& text, bool bold = false) {
        for (const RichRun& run : runsOf(text)) {
            if (run.text == QChar(QChar::LineSeparator)) {
                xml_.element("text:line-break");
                continue;
            }
            const char* const style = run.italic && run.below ? "SymbolIndex"
                                      : run.italic            ? "Symbol"
                                      : run.below             ? "Index"
                                      : run.above             ? "Exponent"
                                      : run.bold || bold      ? "Bold"
                                                              : nullptr;
            if (style == nullptr)
                xml_.text(run.text);
            else
                xml_.element("text:span", {{"text:style-name", QString::fromLatin1(style)}},
                             [&] { xml_.text(run.text); });
        }
    }

    void paragraph(const QString& style, const std::function<void()>& inside) {
        xml_.element("text:p", {{"text:style-name", style}}, inside);
    }
    void paragraph(const char* style, const Rich& text) {
        paragraph(QString::fromLatin1(style), [&] { letters(text); });
    }

    static Rich withUnit(const Quantity& number) {
        return htmlNumber(number.text) + unitBehind(number);
    }

    // Blocks

    void write(const Heading& heading) {
        const QString level = QString::number(heading.level);
        xml_.element("text:h",
                     {{"text:style-name", QStringLiteral("Heading_20_") + level},
                      {"text:outline-level", level}},
                     [&] { letters(heading.text); });
    }

    void write(const Paragraph& one) {
        static constexpr std::array<const char*, 4> styles{"Text_20_body", "Small", "Warning",
                                                           "Quote"};
        paragraph(styles.at(static_cast<std::size_t>(one.tone)), one.text);
    }

    void write(const Values& values) {
        QStringList parts;
        for (const Quantity* const number : values.numbers)
            parts += richSymbol(number->symbol) + QStringLiteral(" = ") + withUnit(*number);
        if (!parts.isEmpty())
            paragraph("Text_20_body", parts.join(QStringLiteral(",  ")));
    }

    void write(const Picture& picture) {
        if (!picture.painting)
            return;
        Part part{QStringLiteral("Pictures/%1.png").arg(pictures_.size() + 1), {}, true};
        QBuffer buffer(&part.bytes);
        imageOf(picture).save(&buffer, "PNG");
        paragraph(QStringLiteral("Figure"), [&] {
            xml_.element("draw:frame",
                         {{"draw:name", part.name},
                          {"draw:style-name", QStringLiteral("Graphics")},
                          {"text:anchor-type", QStringLiteral("as-char")},
                          {"svg:width", mm(picture.width)},
                          {"svg:height", mm(picture.height)}},
                         [&] {
                             xml_.element("draw:image",
                                          {{"xlink:href", part.name},
                                           {"xlink:type", QStringLiteral("simple")},
                                           {"xlink:show", QStringLiteral("embed")},
                                           {"xlink:actuate", QStringLiteral("onLoad")}});
                         });
        });
        pictures_.push_back(std::move(part));
    }

    void write(const std::shared_ptr<const Beside>& /*beside*/) {} // flattened

    void write(const SignatureFields& fields) {
        paragraph("Text_20_body", {});
        paragraph("Text_20_body", {});
        xml_.element("table:table", {{"table:name", QStringLiteral("Sign")}}, [&] {
            xml_.element("table:table-column",
                         {{"table:number-columns-repeated", QString::number(fields.names.size())}});
            xml_.element("table:table-row", {}, [&] {
                for (const QString& name : fields.names)
                    cell("ToSign", 1, cellStyle(true, Column::Align::Left),
                         [&] { letters(rich(name)); });
            });
        });
    }

    void write(const Table& table) {
        const TablePlan& plan = plans_.at(written_++);
        if (!table.caption.isEmpty())
            paragraph("Caption", table.caption);
        tableOf(plan, [&] {
            if (!table.head.empty())
                xml_.element("table:table-header-rows", {}, [&] {
                    for (const Row& row : table.head)
                        writeRow(row, table, plan, true);
                });
            for (const Row& row : table.rows)
                writeRow(row, table, plan, false);
        });
    }

    void write(const Equations& equations) {
        const TablePlan& plan = plans_.at(written_++);
        if (equations.rows.empty())
            return;
        tableOf(plan, [&] {
            if (equations.twoResults)
                xml_.element("table:table-header-rows", {}, [&] { namesOfSides(); });
            for (const Equation& row : equations.rows)
                writeRow(row, plan, equations.twoResults);
        });
    }

    // Rows

    void tableOf(const TablePlan& plan, const std::function<void()>& rows) {
        xml_.element(
            "table:table", {{"table:name", plan.name}, {"table:style-name", plan.name}}, [&] {
                for (std::size_t i = 0; i < plan.columns.size(); ++i)
                    xml_.element("table:table-column", {{"table:style-name", columnName(plan, i)}});
                rows();
            });
    }

    void cell(const char* style, int span, const QString& paragraphStyle,
              const std::function<void()>& inside) {
        Xml::Attributes attributes{{"table:style-name", QString::fromLatin1(style)},
                                   {"office:value-type", QStringLiteral("string")}};
        if (span > 1)
            attributes.push_back({"table:number-columns-spanned", QString::number(span)});
        xml_.element("table:table-cell", attributes, [&] { paragraph(paragraphStyle, inside); });
        for (int i = 1; i < span; ++i)
            xml_.element("table:covered-table-cell");
    }

    void writeRow(const Row& row, const Table& table, const TablePlan& plan, bool head) {
        xml_.element("table:table-row", {}, [&] {
            std::size_t column = 0;
            for (const Cell& one : row) {
                const char* const style = head ? "HeadCell" : "Cell";
                if (one.number != nullptr && one.span == 1)
                    cell(style, 1, styleOf(plan, column, *one.number, one.strong).name(),
                         [&] { letters(htmlNumber(one.number->text), one.strong); });
                else
                    cell(style, one.span,
                         cellStyle(plan.narrow, one.span > 1 ? Column::Align::Centre
                                                             : table.columns.at(column).align),
                         [&] { letters(one.text, head || one.strong); });
                column += static_cast<std::size_t>(one.span);
            }
        });
    }

    void namesOfSides() {
        xml_.element("table:table-row", {}, [&] {
            for (const Rich& name : {Rich(), sheet_.search, sheet_.exact, Rich()})
                cell("Bare", 1, cellStyle(true, Column::Align::Right),
                     [&] { letters(name, true); });
        });
    }

    void writeRow(const Equation& row, const TablePlan& plan, bool twoResults) {
        const Quantity* const told = row.result != nullptr ? row.result : row.exact;
        if (told == nullptr)
            return;
        Rich way = richSymbol(told->symbol);
        if (told->formula && isWorthPrinting(*told->formula))
            way += QStringLiteral(" = %1 = %2")
                       .arg(lineFormula(*told->formula, Show::Symbols),
                            lineFormula(*told->formula, Show::Values));
        Rich remark = row.remark;
        if (!told->source.isEmpty())
            remark += QStringLiteral(" [%1]").arg(rich(told->source));
        const auto result = [&](const Quantity* number, std::size_t column) {
            if (number == nullptr)
                cell("Bare", 1, cellStyle(false, Column::Align::Right), [] {});
            else
                cell("Bare", 1, styleOf(plan, column, *number, true).name(), [&] {
                    letters(htmlNumber(number->text), true);
                    letters(unitBehind(*number));
                });
        };
        xml_.element("table:table-row", {}, [&] {
            cell("Bare", 1, cellStyle(false, Column::Align::Left), [&] { letters(way); });
            result(row.result, 1);
            if (twoResults)
                result(row.exact, 2);
            cell("Bare", 1, cellStyle(true, Column::Align::Left),
                 [&] { letters(remark.trimmed()); });
        });
    }

    const Sheet& sheet_;
    std::vector<Part>& pictures_;
    std::vector<const Block*> flat_;
    std::vector<TablePlan> plans_; ///< of the tables and equations, in their order
    std::size_t written_ = 0;      ///< of them
    std::set<NumberStyle> numberStyles_;
    Xml xml_;
};

} // namespace

QByteArray content(const Sheet& sheet, std::vector<Part>& pictures) {
    return Body(sheet, pictures).content();
}

} // namespace ferna::sheet::odt
