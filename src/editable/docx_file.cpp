#include "editable/docx_parts.h"
#include "editable/editable_report.h"
#include "package/package.h"
#include "runtime/lengths.h"

#include <cmath>

namespace ferna::editable {

using namespace package;

namespace {

constexpr double twipsPerMm = 20 * pointsPerInch / mmPerInch;
constexpr double emuPerMm = 36000;

QString twips(double mm) {
    return QString::number(std::lround(mm * twipsPerMm));
}

QString emu(double mm) {
    return QString::number(std::lround(mm * emuPerMm));
}

const char* styleId(Style style) {
    switch (style) {
    case Style::Title:
        return "Title";
    case Style::Subtitle:
        return "Subtitle";
    case Style::Heading1:
        return "Heading1";
    case Style::Heading2:
        return "Heading2";
    case Style::TableTitle:
        return "TableTitle";
    case Style::Text:
        break;
    }
    return "BodyText";
}

/// Writes the flow of a document.
class DocxBody {
public:
    explicit DocxBody(const Document& document) : document_(document) {}

    QByteArray content() {
        xml_.element("w:document",
                     {{"xmlns:w", docx::main},
                      {"xmlns:r", docx::relationships},
                      {"xmlns:wp", docx::wordDrawing},
                      {"xmlns:a", docx::drawing},
                      {"xmlns:pic", docx::picture}},
                     [&] {
                         xml_.element("w:body", {}, [&] {
                             for (const Block& block : document_.blocks)
                                 std::visit([this](const auto& part) { write(part); }, block);
                             page();
                         });
                     });
        return xml_.finish();
    }

private:
    void value(const char* name, const QString& value) { xml_.element(name, {{"w:val", value}}); }

    void run(const QString& text, bool subscript = false) {
        xml_.element("w:r", {}, [&] {
            if (subscript)
                xml_.element("w:rPr", {},
                             [&] { value("w:vertAlign", QStringLiteral("subscript")); });
            xml_.element("w:t", {{"xml:space", QStringLiteral("preserve")}},
                         [&] { xml_.text(text); });
        });
    }

    void paragraph(const char* style, const std::function<void()>& inside) {
        xml_.element("w:p", {}, [&] {
            xml_.element("w:pPr", {}, [&] { value("w:pStyle", QString::fromLatin1(style)); });
            inside();
        });
    }

    void write(const Paragraph& text) {
        paragraph(styleId(text.style), [&] {
            for (const Run& part : text.runs)
                run(part.text, part.subscript);
        });
    }

    void write(const Table& table) {
        double width = 0;
        for (const Column& column : table.columns)
            width += column.widthMm;
        xml_.element("w:tbl", {}, [&] {
            xml_.element("w:tblPr", {}, [&] {
                value("w:tblStyle", QStringLiteral("ReportTable"));
                xml_.element("w:tblW", {{"w:w", twips(width)}, {"w:type", QStringLiteral("dxa")}});
                xml_.element("w:tblLayout", {{"w:type", QStringLiteral("fixed")}});
                xml_.element("w:tblLook", {{"w:val", QStringLiteral("0020")},
                                           {"w:firstRow", table.hasHeader ? QStringLiteral("1")
                                                                          : QStringLiteral("0")}});
            });
            xml_.element("w:tblGrid", {}, [&] {
                for (const Column& column : table.columns)
                    xml_.element("w:gridCol", {{"w:w", twips(column.widthMm)}});
            });
            for (std::size_t i = 0; i < table.rows.size(); ++i)
                row(table, i);
        });
        paragraph(table.keepsWithNext ? "InTable" : "AfterTable",
                  [] {}); // two tables in a row would grow together
    }

    void row(const Table& table, std::size_t number) {
        const bool header = table.hasHeader && number == 0;
        const bool last = number + 1 == table.rows.size();
        const bool keeps = last ? table.keepsWithNext : table.hasHeader;
        xml_.element("w:tr", {}, [&] {
            xml_.element("w:trPr", {}, [&] {
                xml_.element("w:cantSplit");
                if (header)
                    xml_.element("w:tblHeader");
            });
            for (std::size_t i = 0; i < table.columns.size(); ++i)
                cell(table.columns[i], table.rows[number][static_cast<qsizetype>(i)], header,
                     keeps);
        });
    }

    void cell(const Column& column, const QString& text, bool header, bool keeps) {
        xml_.element("w:tc", {}, [&] {
            xml_.element("w:tcPr", {}, [&] {
                xml_.element("w:tcW",
                             {{"w:w", twips(column.widthMm)}, {"w:type", QStringLiteral("dxa")}});
            });
            xml_.element("w:p", {}, [&] {
                xml_.element("w:pPr", {}, [&] {
                    const bool right = column.align == Align::Right;
                    value("w:pStyle", header  ? QStringLiteral("TableHeading")
                                      : right ? QStringLiteral("TableNumbers")
                                              : QStringLiteral("TableContents"));
                    if (keeps)
                        xml_.element("w:keepNext");
                });
                run(text);
            });
        });
    }

    void write(const Figure& figure) {
        paragraph("Figure", [&] {
            for (std::size_t i = 0; i < figure.images.size(); ++i) {
                if (i > 0)
                    run(QStringLiteral("     "));
                image(figure.images[i]);
            }
        });
        ++figures_;
        paragraph("Caption", [&] {
            run(document_.figure + u' ');
            xml_.element("w:fldSimple", {{"w:instr", QStringLiteral(" SEQ Figure \\* ARABIC ")}},
                         [&] { run(QString::number(figures_)); });
            run(QStringLiteral(". ") + figure.caption);
        });
    }

    void image(const Image& image) {
        ++images_;
        const QString name = QStringLiteral("Rysunek %1").arg(images_);
        const Xml::Attributes extent{{"cx", emu(image.sizeMm.width())},
                                     {"cy", emu(image.sizeMm.height())}};
        xml_.element("w:r", {}, [&] {
            xml_.element("w:drawing", {}, [&] {
                xml_.element("wp:inline", {}, [&] {
                    xml_.element("wp:extent", extent);
                    xml_.element("wp:docPr", {{"id", QString::number(images_)},
                                              {"name", name},
                                              {"descr", image.description}});
                    xml_.element("a:graphic", {}, [&] {
                        xml_.element("a:graphicData", {{"uri", docx::picture}},
                                     [&] { pictureOf(name, extent); });
                    });
                });
            });
        });
    }

    void pictureOf(const QString& name, const Xml::Attributes& extent) {
        xml_.element("pic:pic", {}, [&] {
            xml_.element("pic:nvPicPr", {}, [&] {
                xml_.element("pic:cNvPr", {{"id", QString::number(images_)}, {"name", name}});
                xml_.element("pic:cNvPicPr");
            });
            xml_.element("pic:blipFill", {}, [&] {
                xml_.element("a:blip", {{"r:embed", docx::pictureId(images_)}});
                xml_.element("a:stretch", {}, [&] { xml_.element("a:fillRect"); });
            });
            xml_.element("pic:spPr", {}, [&] {
                xml_.element("a:xfrm", {}, [&] {
                    xml_.element("a:off", {{"x", QStringLiteral("0")}, {"y", QStringLiteral("0")}});
                    xml_.element("a:ext", extent);
                });
                xml_.element("a:prstGeom", {{"prst", QStringLiteral("rect")}},
                             [&] { xml_.element("a:avLst"); });
            });
        });
    }

    /// The section: A4, header, first page number.
    void page() {
        xml_.element("w:sectPr", {}, [&] {
            xml_.element("w:headerReference",
                         {{"w:type", QStringLiteral("default")}, {"r:id", docx::headerId}});
            xml_.element("w:pgSz", {{"w:w", twips(210)}, {"w:h", twips(297)}});
            xml_.element("w:pgMar", {{"w:top", twips(25)},
                                     {"w:right", twips(15)},
                                     {"w:bottom", twips(15)},
                                     {"w:left", twips(20)},
                                     {"w:header", twips(12)},
                                     {"w:footer", twips(8)},
                                     {"w:gutter", QStringLiteral("0")}});
            xml_.element("w:pgNumType", {{"w:start", QString::number(document_.firstPage)}});
        });
    }

    const Document& document_;
    Xml xml_;
    int figures_ = 0;
    int images_ = 0;
};

} // namespace

QByteArray docxFile(const Document& document) {
    std::vector<Part> pictures;
    for (const Block& block : document.blocks)
        if (const auto* figure = std::get_if<Figure>(&block))
            for (const Image& image : figure->images)
                pictures.push_back({QStringLiteral("word/")
                                        + docx::pictureName(static_cast<int>(pictures.size()) + 1),
                                    image.png, true});
    const int count = static_cast<int>(pictures.size());
    std::vector<Part> parts{
        {QStringLiteral("[Content_Types].xml"), docx::contentTypes()},
        {QStringLiteral("_rels/.rels"), docx::packageRelations()},
        {QStringLiteral("word/document.xml"), DocxBody(document).content()},
        {QStringLiteral("word/_rels/document.xml.rels"), docx::documentRelations(count)},
        {QStringLiteral("word/styles.xml"), docx::styles(document)},
        {QStringLiteral("word/header1.xml"), docx::header(document)},
        {QStringLiteral("word/settings.xml"), docx::settings(document)},
        {QStringLiteral("docProps/core.xml"), docx::coreProperties(document)},
    };
    parts.insert(parts.end(), pictures.begin(), pictures.end());
    return packed(parts);
}

} // namespace ferna::editable
