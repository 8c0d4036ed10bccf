#include "sheet/odt_styles.h"

#include "sheet/rich_runs.h"

namespace ferna::sheet::odt {

namespace {

/// A named paragraph style. Lengths in points.
struct ParagraphStyle {
    const char* name;
    const char* display;
    double size;
    bool bold;
    double above;
    double below;
    bool keepsWithNext;
    double indent;
    const char* barColour; ///< of the bar at its left; null for none
    const char* outline;   ///< level in the navigator; null for none
};

constexpr std::array paragraphStyles{
    ParagraphStyle{"Text_20_body", "Text body", 9, false, 2, 2, false, 0, nullptr, nullptr},
    ParagraphStyle{"Title", "Title", 15, true, 0, 4, true, 0, nullptr, nullptr},
    ParagraphStyle{"Heading_20_1", "Heading 1", 12, true, 12, 3, true, 0, nullptr, "1"},
    ParagraphStyle{"Heading_20_2", "Heading 2", 10.5, true, 9, 3, true, 0, nullptr, "2"},
    ParagraphStyle{"Heading_20_3", "Heading 3", 9.5, true, 6, 2, true, 0, nullptr, "3"},
    ParagraphStyle{"Small", "Small", 7.5, false, 2, 2, false, 0, nullptr, nullptr},
    ParagraphStyle{"Warning", "Warning", 9, true, 3, 3, false, 6, "#a00000", nullptr},
    ParagraphStyle{"Quote", "Quote", 9, false, 3, 3, false, 14, "#999999", nullptr},
    ParagraphStyle{"Caption", "Caption", 8.5, true, 5, 2, true, 0, nullptr, nullptr},
    ParagraphStyle{"Figure", "Figure", 9, false, 4, 2, false, 0, nullptr, nullptr},
    ParagraphStyle{"Cell", "Cell", 8.5, false, 0, 0, false, 0, nullptr, nullptr},
    ParagraphStyle{"Narrow_20_Cell", "Narrow Cell", 7, false, 0, 0, false, 0, nullptr, nullptr},
};

QString pt(double value) {
    return decimal(value) + QStringLiteral("pt");
}

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

void defaultStyle(Xml& xml, const Sheet& sheet) {
    xml.element("style:default-style", {{"style:family", QStringLiteral("paragraph")}}, [&] {
        xml.element("style:paragraph-properties",
                    {{"fo:orphans", QStringLiteral("2")}, {"fo:widows", QStringLiteral("2")}});
        xml.element("style:text-properties",
                    {{"style:font-name", QStringLiteral("Liberation Sans")},
                     {"fo:font-size", pt(9)},
                     {"fo:language", sheet.language},
                     {"fo:country",
                      sheet.language == u"en" ? QStringLiteral("GB") : sheet.language.toUpper()}});
    });
    xml.element("style:style", {{"style:name", QStringLiteral("Standard")},
                                {"style:family", QStringLiteral("paragraph")},
                                {"style:class", QStringLiteral("text")}});
}

void namedStyle(Xml& xml, const ParagraphStyle& style) {
    package::Xml::Attributes attributes{{"style:name", latin(style.name)},
                                        {"style:display-name", latin(style.display)},
                                        {"style:family", QStringLiteral("paragraph")},
                                        {"style:parent-style-name", QStringLiteral("Standard")}};
    if (style.outline != nullptr)
        attributes.push_back({"style:default-outline-level", latin(style.outline)});
    xml.element("style:style", attributes, [&] {
        package::Xml::Attributes paragraph{{"fo:margin-top", pt(style.above)},
                                           {"fo:margin-bottom", pt(style.below)},
                                           {"fo:margin-left", pt(style.indent)}};
        if (style.keepsWithNext)
            paragraph.push_back({"fo:keep-with-next", QStringLiteral("always")});
        if (style.barColour != nullptr) {
            paragraph.push_back(
                {"fo:border-left", QStringLiteral("2pt solid ") + latin(style.barColour)});
            paragraph.push_back({"fo:padding-left", pt(4)});
        }
        xml.element("style:paragraph-properties", paragraph);
        xml.element(
            "style:text-properties",
            {{"fo:font-size", pt(style.size)},
             {"fo:font-weight", style.bold ? QStringLiteral("bold") : QStringLiteral("normal")}});
    });
}

/// The style of the lines at the head and the foot of a page: what is said at the right stands
/// behind a tabulator.
void marginStyle(Xml& xml) {
    xml.element("style:style",
                {{"style:name", QStringLiteral("Margin")},
                 {"style:family", QStringLiteral("paragraph")},
                 {"style:parent-style-name", QStringLiteral("Standard")},
                 {"style:class", QStringLiteral("extra")}},
                [&] {
                    xml.element("style:paragraph-properties", {}, [&] {
                        xml.element("style:tab-stops", {}, [&] {
                            xml.element("style:tab-stop",
                                        {{"style:position", mm(textWidth)},
                                         {"style:type", QStringLiteral("right")}});
                        });
                    });
                    xml.element("style:text-properties",
                                {{"fo:font-size", pt(7)}, {"fo:color", QStringLiteral("#555555")}});
                });
}

/// Letters within a paragraph.
void letterStyle(Xml& xml, const char* name, const Xml::Attributes& attributes) {
    xml.element("style:style",
                {{"style:name", latin(name)}, {"style:family", QStringLiteral("text")}},
                [&] { xml.element("style:text-properties", attributes); });
}

void letterStyles(Xml& xml) {
    const QString serif = QStringLiteral("Liberation Serif");
    letterStyle(xml, "Bold", {{"fo:font-weight", QStringLiteral("bold")}});
    letterStyle(xml, "Symbol",
                {{"style:font-name", serif}, {"fo:font-style", QStringLiteral("italic")}});
    letterStyle(xml, "Index", {{"style:text-position", QStringLiteral("sub 65%")}});
    letterStyle(xml, "SymbolIndex",
                {{"style:font-name", serif},
                 {"fo:font-style", QStringLiteral("italic")},
                 {"style:text-position", QStringLiteral("sub 65%")}});
    letterStyle(xml, "Exponent", {{"style:text-position", QStringLiteral("super 65%")}});
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
    const auto room = [&xml](const char* name, const char* margin) {
        xml.element(name, {}, [&] {
            xml.element("style:header-footer-properties",
                        {{"fo:min-height", QStringLiteral("5mm")}, {margin, mm(3)}});
        });
    };
    xml.element("style:page-layout", {{"style:name", QStringLiteral("A4")}}, [&] {
        xml.element("style:page-layout-properties",
                    {{"fo:page-width", QStringLiteral("210mm")},
                     {"fo:page-height", QStringLiteral("297mm")},
                     {"style:print-orientation", QStringLiteral("portrait")},
                     {"fo:margin-top", mm(9)},
                     {"fo:margin-bottom", mm(8)},
                     {"fo:margin-left", mm(20)},
                     {"fo:margin-right", mm(15)}});
        room("style:header-style", "fo:margin-bottom");
        room("style:footer-style", "fo:margin-top");
    });
}

QString plainText(const Rich& text) {
    QString plain;
    for (const RichRun& run : runsOf(text))
        plain += run.text;
    return plain;
}

void marginLine(Xml& xml, const char* place, const Rich& left, const std::function<void()>& right) {
    xml.element(place, {}, [&] {
        xml.element("text:p", {{"text:style-name", QStringLiteral("Margin")}}, [&] {
            xml.text(plainText(left));
            xml.element("text:tab");
            right();
        });
    });
}

/// "Page 2 of 5" with the numbers as fields.
void pageOf(Xml& xml, const QString& words) {
    const auto field = [&xml](const char* name) {
        xml.element(name, {}, [&] { xml.text(QStringLiteral("1")); });
    };
    const qsizetype page = words.indexOf(QStringLiteral("%1"));
    const qsizetype count = words.indexOf(QStringLiteral("%2"));
    xml.text(words.left(page));
    field("text:page-number");
    xml.text(words.mid(page + 2, count - page - 2));
    field("text:page-count");
    xml.text(words.mid(count + 2));
}

} // namespace

QString mm(double length) {
    return decimal(length) + QStringLiteral("mm");
}

QByteArray styles(const Sheet& sheet) {
    Xml xml;
    const Xml::Attributes names{{"xmlns:office", odf::office}, {"xmlns:style", odf::style},
                                {"xmlns:text", odf::text},     {"xmlns:fo", odf::fo},
                                {"xmlns:svg", odf::svg},       {"office:version", odf::version}};
    xml.element("office:document-styles", names, [&] {
        xml.element("office:font-face-decls", {}, [&] {
            for (const char* face : {"Liberation Sans", "Liberation Serif"})
                xml.element("style:font-face", {{"style:name", latin(face)},
                                                {"svg:font-family", u'\'' + latin(face) + u'\''}});
        });
        xml.element("office:styles", {}, [&] {
            defaultStyle(xml, sheet);
            for (const ParagraphStyle& style : paragraphStyles)
                namedStyle(xml, style);
            marginStyle(xml);
            letterStyles(xml);
        });
        xml.element("office:automatic-styles", {}, [&] { pageLayout(xml); });
        xml.element("office:master-styles", {}, [&] {
            xml.element("style:master-page",
                        {{"style:name", QStringLiteral("Standard")},
                         {"style:page-layout-name", QStringLiteral("A4")}},
                        [&] {
                            marginLine(xml, "style:header", sheet.title,
                                       [&] { xml.text(plainText(sheet.subject)); });
                            marginLine(xml, "style:footer", sheet.made,
                                       [&] { pageOf(xml, sheet.pageOf); });
                        });
        });
    });
    return xml.finish();
}

} // namespace ferna::sheet::odt
