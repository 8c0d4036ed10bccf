#include "editable/docx_parts.h"

#include "package/package.h"

#include <cmath>

namespace ferna::editable::docx {

using namespace package;

namespace {

constexpr double twipsPerPoint = 20;

/// A named style of a paragraph. Lengths are in points.
struct ParagraphStyle {
    const char* id;
    const char* name;
    const char* basedOn; ///< null: on nothing
    double size;
    bool bold;
    double above;
    double below;
    bool keepsWithNext;
    bool toTheRight;
    int outline; ///< level in the navigator from 0; -1 for none
};

constexpr ParagraphStyle paragraphStyles[] = {
    {"Normal", "Normal", nullptr, 10, false, 0, 0, false, false, -1},
    {"BodyText", "Body Text", "Normal", 10, false, 0, 2, false, false, -1},
    {"Title", "Title", "Normal", 14, true, 0, 4, true, false, -1},
    {"Subtitle", "Subtitle", "Normal", 11, false, 0, 3, true, false, -1},
    {"Heading1", "heading 1", "Normal", 12, true, 12, 4, true, false, 0},
    {"Heading2", "heading 2", "Normal", 10.5, true, 8, 3, true, false, 1},
    {"TableTitle", "Table Title", "BodyText", 10, false, 2, 2, true, false, -1},
    {"TableContents", "Table Contents", "Normal", 9.5, false, 1, 1, false, false, -1},
    {"TableNumbers", "Table Numbers", "TableContents", 9.5, false, 1, 1, false, true, -1},
    {"TableHeading", "Table Heading", "TableContents", 9.5, true, 1, 1, true, true, -1},
    {"AfterTable", "After Table", "Normal", 3, false, 0, 0, false, false, -1},
    {"InTable", "In Table", "AfterTable", 3, false, 0, 0, true, false, -1},
    {"Figure", "Figure", "Normal", 10, false, 4, 2, true, false, -1},
    {"Caption", "caption", "Normal", 9, false, 0, 6, false, false, -1},
    {"Header", "header", "Normal", 9, false, 0, 0, false, false, -1},
};

constexpr const char* types = "http://schemas.openxmlformats.org/package/2006/content-types";
constexpr const char* packageNames = "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr const char* coreNames =
    "http://schemas.openxmlformats.org/package/2006/metadata/core-properties";
constexpr const char* coreType =
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
constexpr const char* wordType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.%1+xml";

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

QString whole(double value) {
    return QString::number(std::lround(value));
}

void relation(Xml& xml, const QString& id, const QString& type, const QString& target) {
    xml.element("Relationship", {{"Id", id}, {"Type", type}, {"Target", target}});
}

void style(Xml& xml, const ParagraphStyle& style) {
    xml.element(
        "w:style",
        {{"w:type", QStringLiteral("paragraph")},
         {"w:styleId", latin(style.id)},
         {"w:default", style.basedOn == nullptr ? QStringLiteral("1") : QStringLiteral("0")}},
        [&] {
            const auto value = [&xml](const char* name, const QString& of) {
                xml.element(name, {{"w:val", of}});
            };
            value("w:name", latin(style.name));
            if (style.basedOn != nullptr)
                value("w:basedOn", latin(style.basedOn));
            if (style.outline >= 0)
                value("w:next", QStringLiteral("BodyText"));
            xml.element("w:qFormat");
            xml.element("w:pPr", {}, [&] {
                if (style.keepsWithNext)
                    xml.element("w:keepNext");
                if (latin(style.id) == u"Header") {
                    xml.element("w:pBdr", {}, [&] {
                        xml.element("w:bottom", {{"w:val", QStringLiteral("single")},
                                                 {"w:sz", QStringLiteral("4")},
                                                 {"w:space", QStringLiteral("3")},
                                                 {"w:color", QStringLiteral("000000")}});
                    });
                    xml.element("w:tabs", {}, [&] {
                        xml.element("w:tab", {{"w:val", QStringLiteral("right")},
                                              {"w:pos", QStringLiteral("9921")}}); // 175 mm
                    });
                }
                xml.element("w:spacing", {{"w:before", whole(style.above * twipsPerPoint)},
                                          {"w:after", whole(style.below * twipsPerPoint)}});
                if (style.toTheRight)
                    value("w:jc", QStringLiteral("right"));
                if (style.outline >= 0)
                    value("w:outlineLvl", QString::number(style.outline));
            });
            xml.element("w:rPr", {}, [&] {
                if (style.bold)
                    xml.element("w:b");
                value("w:sz", whole(2 * style.size)); // half points
            });
        });
}

void tableStyle(Xml& xml) {
    xml.element("w:style",
                {{"w:type", QStringLiteral("table")}, {"w:styleId", QStringLiteral("ReportTable")}},
                [&] {
                    xml.element("w:name", {{"w:val", QStringLiteral("Report Table")}});
                    xml.element("w:tblPr", {}, [&] {
                        xml.element("w:tblBorders", {}, [&] {
                            for (const char* side : {"w:bottom", "w:insideH"})
                                xml.element(side, {{"w:val", QStringLiteral("single")},
                                                   {"w:sz", QStringLiteral("2")},
                                                   {"w:space", QStringLiteral("0")},
                                                   {"w:color", QStringLiteral("A0A0A0")}});
                        });
                    });
                });
}

} // namespace

QString pictureId(int number) {
    return QStringLiteral("rysunek%1").arg(number);
}

QString pictureName(int number) {
    return QStringLiteral("media/rysunek%1.png").arg(number);
}

QByteArray contentTypes() {
    Xml xml;
    const auto part = [&xml](const char* name, const QString& type) {
        xml.element("Override", {{"PartName", latin(name)}, {"ContentType", type}});
    };
    xml.element("Types", {{"xmlns", latin(types)}}, [&] {
        const auto ending = [&xml](const char* of, const char* type) {
            xml.element("Default", {{"Extension", latin(of)}, {"ContentType", latin(type)}});
        };
        ending("rels", "application/vnd.openxmlformats-package.relationships+xml");
        ending("xml", "application/xml");
        ending("png", "image/png");
        part("/word/document.xml", latin(wordType).arg(QStringLiteral("document.main")));
        part("/word/styles.xml", latin(wordType).arg(QStringLiteral("styles")));
        part("/word/settings.xml", latin(wordType).arg(QStringLiteral("settings")));
        part("/word/header1.xml", latin(wordType).arg(QStringLiteral("header")));
        part("/docProps/core.xml",
             QStringLiteral("application/vnd.openxmlformats-package.core-properties+xml"));
    });
    return xml.finish();
}

QByteArray packageRelations() {
    Xml xml;
    xml.element("Relationships", {{"xmlns", latin(packageNames)}}, [&] {
        relation(xml, QStringLiteral("document"), relationships + QStringLiteral("/officeDocument"),
                 QStringLiteral("word/document.xml"));
        relation(xml, QStringLiteral("core"), latin(coreType), QStringLiteral("docProps/core.xml"));
    });
    return xml.finish();
}

QByteArray documentRelations(int pictures) {
    Xml xml;
    xml.element("Relationships", {{"xmlns", latin(packageNames)}}, [&] {
        for (const char* part : {"styles", "settings"})
            relation(xml, latin(part), relationships + u'/' + latin(part),
                     latin(part) + QStringLiteral(".xml"));
        relation(xml, headerId, relationships + QStringLiteral("/header"),
                 QStringLiteral("header1.xml"));
        for (int i = 1; i <= pictures; ++i)
            relation(xml, pictureId(i), relationships + QStringLiteral("/image"), pictureName(i));
    });
    return xml.finish();
}

QByteArray styles(const Document& document) {
    Xml xml;
    xml.element("w:styles", {{"xmlns:w", main}}, [&] {
        xml.element("w:docDefaults", {}, [&] {
            xml.element("w:rPrDefault", {}, [&] {
                xml.element("w:rPr", {}, [&] {
                    const QString face = QStringLiteral("Arial");
                    xml.element("w:rFonts", {{"w:ascii", face}, {"w:hAnsi", face}, {"w:cs", face}});
                    xml.element("w:sz", {{"w:val", QStringLiteral("20")}});
                    xml.element("w:lang", {{"w:val", document.languageTag}});
                });
            });
            xml.element("w:pPrDefault");
        });
        for (const ParagraphStyle& paragraph : paragraphStyles)
            style(xml, paragraph);
        tableStyle(xml);
    });
    return xml.finish();
}

QByteArray header(const Document& document) {
    Xml xml;
    const auto run = [&xml](const QString& text) {
        xml.element("w:r", {}, [&] {
            xml.element("w:t", {{"xml:space", QStringLiteral("preserve")}},
                        [&] { xml.text(text); });
        });
    };
    xml.element("w:hdr", {{"xmlns:w", main}}, [&] {
        xml.element("w:p", {}, [&] {
            xml.element("w:pPr", {}, [&] {
                xml.element("w:pStyle", {{"w:val", QStringLiteral("Header")}});
            });
            run(document.headerText());
            xml.element("w:r", {}, [&] { xml.element("w:tab"); });
            run(document.page + u' ');
            xml.element("w:fldSimple", {{"w:instr", QStringLiteral(" PAGE ")}},
                        [&] { run(QString::number(document.firstPage)); });
        });
    });
    return xml.finish();
}

QByteArray settings(const Document& document) {
    Xml xml;
    xml.element("w:settings", {{"xmlns:w", main}}, [&] {
        xml.element("w:themeFontLang", {{"w:val", document.languageTag}});
    });
    return xml.finish();
}

QByteArray coreProperties(const Document& document) {
    Xml xml;
    xml.element("cp:coreProperties",
                {{"xmlns:cp", latin(coreNames)},
                 {"xmlns:dc", QStringLiteral("http://purl.org/dc/elements/1.1/")},
                 {"xmlns:dcterms", QStringLiteral("http://purl.org/dc/terms/")},
                 {"xmlns:xsi", QStringLiteral("http://www.w3.org/2001/XMLSchema-instance")}},
                [&] {
                    const auto put = [&xml](const char* name, const QString& value) {
                        if (!value.isEmpty())
                            xml.element(name, {}, [&] { xml.text(value); });
                    };
                    put("dc:title", document.title);
                    put("dc:subject", document.subject);
                    put("dc:creator", document.author);
                    put("dc:language", document.languageTag);
                    const QString time = document.createdText() + u'Z';
                    for (const char* name : {"dcterms:created", "dcterms:modified"})
                        xml.element(name, {{"xsi:type", QStringLiteral("dcterms:W3CDTF")}},
                                    [&] { xml.text(time); });
                });
    return xml.finish();
}

} // namespace ferna::editable::docx
