#include "editable/odt_styles.h"

#include "package/package.h"

namespace ferna::editable::odt {

using namespace package;

namespace {

/// A named paragraph style. Lengths are in points.
struct ParagraphStyle {
    const char* name;
    const char* display;
    const char* parent;
    double size;
    bool bold;
    double above;
    double below;
    bool keepsWithNext;
    const char* align;
    const char* outline; ///< level in the navigator; null for none
};

constexpr ParagraphStyle paragraphStyles[] = {
    {"Text_20_body", "Text body", "Standard", 10, false, 0, 2, false, "start", nullptr},
    {"Title", "Title", "Standard", 14, true, 0, 4, true, "start", nullptr},
    {"Subtitle", "Subtitle", "Standard", 11, false, 0, 3, true, "start", nullptr},
    {"Heading_20_1", "Heading 1", "Standard", 12, true, 12, 4, true, "start", "1"},
    {"Heading_20_2", "Heading 2", "Standard", 10.5, true, 8, 3, true, "start", "2"},
    {"Table_20_Title", "Table Title", "Text_20_body", 10, false, 2, 2, true, "start", nullptr},
    {"Table_20_Contents", "Table Contents", "Standard", 9.5, false, 0, 0, false, "start", nullptr},
    {"Table_20_Numbers", "Table Numbers", "Table_20_Contents", 9.5, false, 0, 0, false, "end",
     nullptr},
    {"Table_20_Heading", "Table Heading", "Table_20_Contents", 9.5, true, 0, 0, true, "end",
     nullptr},
    {"Figure", "Figure", "Standard", 10, false, 4, 2, true, "start", nullptr},
    {"Illustration", "Illustration", "Standard", 9, false, 0, 6, false, "start", nullptr},
};

QString points(double value) {
    return decimal(value) + QStringLiteral("pt");
}

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

void fontFaces(Xml& xml) {
    xml.element("style:font-face", {{"style:name", QStringLiteral("Liberation Sans")},
                                    {"svg:font-family", QStringLiteral("'Liberation Sans', Arial")},
                                    {"style:font-family-generic", QStringLiteral("swiss")},
                                    {"style:font-pitch", QStringLiteral("variable")}});
}

void defaultStyle(Xml& xml, const Document& document) {
    const QStringList tag = document.languageTag.split(u'-');
    xml.element("style:default-style", {{"style:family", QStringLiteral("paragraph")}}, [&] {
        xml.element("style:paragraph-properties",
                    {{"fo:orphans", QStringLiteral("2")}, {"fo:widows", QStringLiteral("2")}});
        xml.element("style:text-properties",
                    {{"style:font-name", QStringLiteral("Liberation Sans")},
                     {"fo:font-size", points(10)},
                     {"fo:language", tag.first()},
                     {"fo:country", tag.last()}});
    });
    xml.element("style:style", {{"style:name", QStringLiteral("Standard")},
                                {"style:family", QStringLiteral("paragraph")},
                                {"style:class", QStringLiteral("text")}});
}

void namedStyle(Xml& xml, const ParagraphStyle& style) {
    Xml::Attributes attributes{{"style:name", latin(style.name)},
                               {"style:display-name", latin(style.display)},
                               {"style:family", QStringLiteral("paragraph")},
                               {"style:parent-style-name", latin(style.parent)}};
    if (style.outline != nullptr) {
        attributes.push_back({"style:default-outline-level", latin(style.outline)});
        attributes.push_back({"style:next-style-name", QStringLiteral("Text_20_body")});
    }
    xml.element("style:style", attributes, [&] {
        Xml::Attributes paragraph{{"fo:margin-top", points(style.above)},
                                  {"fo:margin-bottom", points(style.below)},
                                  {"fo:text-align", latin(style.align)}};
        if (style.keepsWithNext)
            paragraph.push_back({"fo:keep-with-next", QStringLiteral("always")});
        xml.element("style:paragraph-properties", paragraph);
        xml.element(
            "style:text-properties",
            {{"fo:font-size", points(style.size)},
             {"fo:font-weight", style.bold ? QStringLiteral("bold") : QStringLiteral("normal")}});
    });
}

void headerStyle(Xml& xml, double textWidthMm) {
    xml.element("style:style",
                {{"style:name", QStringLiteral("Header")},
                 {"style:family", QStringLiteral("paragraph")},
                 {"style:parent-style-name", QStringLiteral("Standard")},
                 {"style:class", QStringLiteral("extra")}},
                [&] {
                    xml.element("style:paragraph-properties",
                                {{"fo:padding-bottom", QStringLiteral("1mm")},
                                 {"fo:border-bottom", QStringLiteral("0.5pt solid #000000")}},
                                [&] {
                                    xml.element("style:tab-stops", {}, [&] {
                                        xml.element("style:tab-stop",
                                                    {{"style:position",
                                                      decimal(textWidthMm) + QStringLiteral("mm")},
                                                     {"style:type", QStringLiteral("right")}});
                                    });
                                });
                    xml.element("style:text-properties", {{"fo:font-size", points(9)}});
                });
}

void otherStyles(Xml& xml) {
    xml.element(
        "style:style",
        {{"style:name", QStringLiteral("Subscript")}, {"style:family", QStringLiteral("text")}},
        [&] {
            xml.element("style:text-properties",
                        {{"style:text-position", QStringLiteral("sub 70%")}});
        });
    xml.element(
        "style:style",
        {{"style:name", QStringLiteral("Graphics")}, {"style:family", QStringLiteral("graphic")}},
        [&] {
            xml.element("style:graphic-properties",
                        {{"text:anchor-type", QStringLiteral("as-char")},
                         {"style:vertical-pos", QStringLiteral("bottom")},
                         {"style:vertical-rel", QStringLiteral("baseline")}});
        });
}

void pageLayout(Xml& xml) {
    xml.element("style:page-layout", {{"style:name", QStringLiteral("A4")}}, [&] {
        xml.element("style:page-layout-properties",
                    {{"fo:page-width", QStringLiteral("210mm")},
                     {"fo:page-height", QStringLiteral("297mm")},
                     {"style:print-orientation", QStringLiteral("portrait")},
                     {"fo:margin-top", QStringLiteral("12mm")},
                     {"fo:margin-bottom", QStringLiteral("15mm")},
                     {"fo:margin-left", QStringLiteral("20mm")},
                     {"fo:margin-right", QStringLiteral("15mm")}});
        xml.element("style:header-style", {}, [&] {
            xml.element("style:header-footer-properties",
                        {{"fo:min-height", QStringLiteral("8mm")},
                         {"fo:margin-bottom", QStringLiteral("5mm")}});
        });
    });
}

void header(Xml& xml, const Document& document) {
    const auto field = [&xml](const char* name, const Xml::Attributes& attributes) {
        xml.element(name, attributes, [&] { xml.text(QStringLiteral("1")); });
    };
    xml.element("text:p", {{"text:style-name", QStringLiteral("Header")}}, [&] {
        xml.text(document.headerText());
        xml.element("text:tab");
        xml.text(document.page + u' ');
        field("text:page-number", {{"text:select-page", QStringLiteral("current")}});
    });
}

} // namespace

QByteArray styles(const Document& document) {
    constexpr double textWidthMm = 175;
    Xml xml;
    xml.element("office:document-styles",
                {{"xmlns:office", office},
                 {"xmlns:style", style},
                 {"xmlns:text", text},
                 {"xmlns:fo", fo},
                 {"xmlns:svg", svg},
                 {"office:version", version}},
                [&] {
                    xml.element("office:font-face-decls", {}, [&] { fontFaces(xml); });
                    xml.element("office:styles", {}, [&] {
                        defaultStyle(xml, document);
                        for (const ParagraphStyle& paragraph : paragraphStyles)
                            namedStyle(xml, paragraph);
                        headerStyle(xml, textWidthMm);
                        otherStyles(xml);
                    });
                    xml.element("office:automatic-styles", {}, [&] { pageLayout(xml); });
                    xml.element("office:master-styles", {}, [&] {
                        xml.element("style:master-page",
                                    {{"style:name", QStringLiteral("Standard")},
                                     {"style:page-layout-name", QStringLiteral("A4")}},
                                    [&] {
                                        xml.element("style:header", {},
                                                    [&] { header(xml, document); });
                                    });
                    });
                });
    return xml.finish();
}

} // namespace ferna::editable::odt
