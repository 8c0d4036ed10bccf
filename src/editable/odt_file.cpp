#include "editable/editable_report.h"
#include "editable/odt_styles.h"
#include "package/package.h"

#include <QRegularExpression>

namespace ferna::editable {

using namespace package;

namespace {

const Xml::Attributes contentNames{
    {"xmlns:office", odt::office}, {"xmlns:style", odt::style}, {"xmlns:text", odt::text},
    {"xmlns:table", odt::table},   {"xmlns:draw", odt::draw},   {"xmlns:fo", odt::fo},
    {"xmlns:svg", odt::svg},       {"xmlns:xlink", odt::xlink}, {"office:version", odt::version},
};

QString mm(double value) {
    return decimal(value) + QStringLiteral("mm");
}

const char* styleName(Style style) {
    switch (style) {
    case Style::Title:
        return "Title";
    case Style::Subtitle:
        return "Subtitle";
    case Style::Heading1:
        return "Heading_20_1";
    case Style::Heading2:
        return "Heading_20_2";
    case Style::TableTitle:
        return "Table_20_Title";
    case Style::Text:
        break;
    }
    return "Text_20_body";
}

QString pictureName(int number) {
    return QStringLiteral("Pictures/rysunek%1.png").arg(number);
}

/// Writes the flow of a document.
class OdtBody {
public:
    explicit OdtBody(const Document& document) : document_(document) {}

    QByteArray content() {
        xml_.element("office:document-content", contentNames, [&] {
            xml_.element("office:automatic-styles", {}, [&] { automaticStyles(); });
            xml_.element("office:body", {}, [&] {
                xml_.element("office:text", {}, [&] {
                    xml_.element("text:sequence-decls", {}, [&] {
                        xml_.element("text:sequence-decl",
                                     {{"text:display-outline-level", QStringLiteral("0")},
                                      {"text:name", QStringLiteral("Illustration")}});
                    });
                    for (const Block& block : document_.blocks)
                        std::visit([this](const auto& part) { write(part); }, block);
                });
            });
        });
        return xml_.finish();
    }

private:
    /// The first paragraph, which starts the page numbers, and the columns of the tables.
    void automaticStyles() {
        xml_.element("style:style",
                     {{"style:name", QStringLiteral("First")},
                      {"style:family", QStringLiteral("paragraph")},
                      {"style:parent-style-name", QStringLiteral("Title")},
                      {"style:master-page-name", QStringLiteral("Standard")}},
                     [&] {
                         xml_.element(
                             "style:paragraph-properties",
                             {{"style:page-number", QString::number(document_.firstPage)}});
                     });
        cellStyle("Cell", QStringLiteral("0.25pt solid #a0a0a0"));
        cellStyle("HeaderCell", QStringLiteral("0.75pt solid #000000"));
        int number = 0;
        for (const Block& block : document_.blocks)
            if (const auto* table = std::get_if<Table>(&block))
                tableStyles(*table, ++number);
    }

    void cellStyle(const char* name, const QString& bottom) {
        xml_.element("style:style",
                     {{"style:name", QString::fromLatin1(name)},
                      {"style:family", QStringLiteral("table-cell")}},
                     [&] {
                         xml_.element("style:table-cell-properties",
                                      {{"fo:padding", QStringLiteral("0.6mm")},
                                       {"fo:border-bottom", bottom}});
                     });
    }

    void tableStyles(const Table& table, int number) {
        const QString name = QStringLiteral("Table%1").arg(number);
        double width = 0;
        for (const Column& column : table.columns)
            width += column.widthMm;
        xml_.element(
            "style:style", {{"style:name", name}, {"style:family", QStringLiteral("table")}}, [&] {
                xml_.element(
                    "style:table-properties",
                    {{"style:width", mm(width)},
                     {"table:align", QStringLiteral("left")},
                     {"fo:margin-bottom", mm(1.5)},
                     {"fo:keep-with-next",
                      table.keepsWithNext ? QStringLiteral("always") : QStringLiteral("auto")},
                     {"style:may-break-between-rows",
                      table.hasHeader ? QStringLiteral("false") : QStringLiteral("true")}});
            });
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            xml_.element("style:style",
                         {{"style:name", columnName(name, i)},
                          {"style:family", QStringLiteral("table-column")}},
                         [&] {
                             xml_.element("style:table-column-properties",
                                          {{"style:column-width", mm(table.columns[i].widthMm)}});
                         });
    }

    static QString columnName(const QString& table, std::size_t index) {
        return table + u'.' + QChar(static_cast<char16_t>(u'A' + index));
    }

    /// A text whose blanks in a row stay.
    void text(const QString& text) {
        static const QRegularExpression blanks(QStringLiteral("  +"));
        qsizetype from = 0;
        for (auto run = blanks.globalMatch(text); run.hasNext();) {
            const QRegularExpressionMatch match = run.next();
            xml_.text(text.mid(from, match.capturedStart() - from + 1));
            xml_.element("text:s", {{"text:c", QString::number(match.capturedLength() - 1)}});
            from = match.capturedEnd();
        }
        xml_.text(text.mid(from));
    }

    void write(const Paragraph& paragraph) {
        const bool heading =
            paragraph.style == Style::Heading1 || paragraph.style == Style::Heading2;
        QString style = QString::fromLatin1(styleName(paragraph.style));
        if (std::exchange(first_, false) && paragraph.style == Style::Title)
            style = QStringLiteral("First");
        Xml::Attributes attributes{{"text:style-name", style}};
        if (heading)
            attributes.push_back({"text:outline-level", paragraph.style == Style::Heading1
                                                            ? QStringLiteral("1")
                                                            : QStringLiteral("2")});
        xml_.element(heading ? "text:h" : "text:p", attributes, [&] {
            for (const Run& run : paragraph.runs) {
                if (run.subscript)
                    xml_.element("text:span", {{"text:style-name", QStringLiteral("Subscript")}},
                                 [&] { text(run.text); });
                else
                    text(run.text);
            }
        });
    }

    void write(const Table& table) {
        const QString name = QStringLiteral("Table%1").arg(++tables_);
        xml_.element("table:table", {{"table:name", table.name}, {"table:style-name", name}}, [&] {
            for (std::size_t i = 0; i < table.columns.size(); ++i)
                xml_.element("table:table-column", {{"table:style-name", columnName(name, i)}});
            for (std::size_t i = 0; i < table.rows.size(); ++i) {
                const bool header = table.hasHeader && i == 0;
                const auto line = [&] { row(table, table.rows[i], header); };
                if (header)
                    xml_.element("table:table-header-rows", {}, line);
                else
                    line();
            }
        });
    }

    void row(const Table& table, const QStringList& texts, bool header) {
        xml_.element("table:table-row", {}, [&] {
            for (qsizetype i = 0; i < texts.size(); ++i) {
                const bool right = table.columns[static_cast<std::size_t>(i)].align == Align::Right;
                xml_.element("table:table-cell",
                             {{"table:style-name",
                               header ? QStringLiteral("HeaderCell") : QStringLiteral("Cell")},
                              {"office:value-type", QStringLiteral("string")}},
                             [&] {
                                 const QString style = header ? QStringLiteral("Table_20_Heading")
                                                       : right
                                                           ? QStringLiteral("Table_20_Numbers")
                                                           : QStringLiteral("Table_20_Contents");
                                 xml_.element("text:p", {{"text:style-name", style}},
                                              [&] { text(texts[i]); });
                             });
            }
        });
    }

    void write(const Figure& figure) {
        xml_.element("text:p", {{"text:style-name", QStringLiteral("Figure")}}, [&] {
            for (std::size_t i = 0; i < figure.images.size(); ++i) {
                if (i > 0)
                    text(QStringLiteral("     "));
                image(figure.images[i]);
            }
        });
        ++figures_;
        xml_.element("text:p", {{"text:style-name", QStringLiteral("Illustration")}}, [&] {
            xml_.text(document_.figure + u' ');
            xml_.element("text:sequence",
                         {{"text:ref-name", QStringLiteral("refIllustration%1").arg(figures_ - 1)},
                          {"text:name", QStringLiteral("Illustration")},
                          {"text:formula", QStringLiteral("ooow:Illustration+1")},
                          {"style:num-format", QStringLiteral("1")}},
                         [&] { xml_.text(QString::number(figures_)); });
            text(QStringLiteral(". ") + figure.caption);
        });
    }

    void image(const Image& image) {
        ++images_;
        xml_.element("draw:frame",
                     {{"draw:name", QStringLiteral("Rysunek %1").arg(images_)},
                      {"draw:style-name", QStringLiteral("Graphics")},
                      {"text:anchor-type", QStringLiteral("as-char")},
                      {"svg:width", mm(image.sizeMm.width())},
                      {"svg:height", mm(image.sizeMm.height())}},
                     [&] {
                         xml_.element("draw:image", {{"xlink:href", pictureName(images_)},
                                                     {"xlink:type", QStringLiteral("simple")},
                                                     {"xlink:show", QStringLiteral("embed")},
                                                     {"xlink:actuate", QStringLiteral("onLoad")}});
                         xml_.element("svg:desc", {}, [&] { xml_.text(image.description); });
                     });
    }

    const Document& document_;
    Xml xml_;
    bool first_ = true;
    int tables_ = 0;
    int figures_ = 0;
    int images_ = 0;
};

QByteArray meta(const Document& document) {
    Xml xml;
    const auto put = [&xml](const char* name, const QString& value) {
        if (!value.isEmpty())
            xml.element(name, {}, [&] { xml.text(value); });
    };
    xml.element("office:document-meta",
                {{"xmlns:office", odt::office},
                 {"xmlns:meta", odt::meta},
                 {"xmlns:dc", odt::dc},
                 {"office:version", odt::version}},
                [&] {
                    xml.element("office:meta", {}, [&] {
                        const QString time = document.createdText();
                        put("meta:generator", QStringLiteral("Ferna"));
                        put("dc:title", document.title);
                        put("dc:subject", document.subject);
                        put("meta:initial-creator", document.author);
                        put("dc:creator", document.author);
                        put("meta:creation-date", time);
                        put("dc:date", time);
                        put("dc:language", document.languageTag);
                    });
                });
    return xml.finish();
}

QByteArray manifest(int pictures) {
    Xml xml;
    const auto entry = [&xml](const QString& path, const QString& type) {
        xml.element("manifest:file-entry",
                    {{"manifest:full-path", path}, {"manifest:media-type", type}});
    };
    xml.element("manifest:manifest",
                {{"xmlns:manifest", odt::manifest}, {"manifest:version", odt::version}}, [&] {
                    entry(QStringLiteral("/"), odt::mimeType);
                    for (const char* part : {"content.xml", "styles.xml", "meta.xml"})
                        entry(QString::fromLatin1(part), QStringLiteral("text/xml"));
                    for (int i = 1; i <= pictures; ++i)
                        entry(pictureName(i), QStringLiteral("image/png"));
                });
    return xml.finish();
}

} // namespace

QByteArray odtFile(const Document& document) {
    std::vector<Part> pictures;
    for (const Block& block : document.blocks)
        if (const auto* figure = std::get_if<Figure>(&block))
            for (const Image& image : figure->images)
                pictures.push_back(
                    {pictureName(static_cast<int>(pictures.size()) + 1), image.png, true});
    std::vector<Part> parts{
        {QStringLiteral("mimetype"), odt::mimeType.toLatin1(), true}, // first, readable as it lies
        {QStringLiteral("content.xml"), OdtBody(document).content()},
        {QStringLiteral("styles.xml"), odt::styles(document)},
        {QStringLiteral("meta.xml"), meta(document)},
        {QStringLiteral("META-INF/manifest.xml"), manifest(static_cast<int>(pictures.size()))},
    };
    parts.insert(parts.end(), pictures.begin(), pictures.end());
    return packed(parts);
}

} // namespace ferna::editable
