#include "sheet/odt_writer.h"

#include "sheet/odt_body.h"
#include "sheet/odt_styles.h"

namespace ferna::sheet {

namespace {

using namespace package;

QByteArray meta(const Sheet& sheet) {
    Xml xml;
    const auto put = [&xml](const char* name, const QString& value) {
        xml.element(name, {}, [&] { xml.text(value); });
    };
    xml.element("office:document-meta",
                {{"xmlns:office", odf::office},
                 {"xmlns:meta", odf::meta},
                 {"xmlns:dc", odf::dc},
                 {"office:version", odf::version}},
                [&] {
                    xml.element("office:meta", {}, [&] {
                        put("meta:generator", sheet.program);
                        put("dc:title", sheet.title);
                        put("dc:language", sheet.language);
                    });
                });
    return xml.finish();
}

QByteArray manifest(const std::vector<Part>& pictures) {
    Xml xml;
    const auto entry = [&xml](const QString& path, const QString& type) {
        xml.element("manifest:file-entry",
                    {{"manifest:full-path", path}, {"manifest:media-type", type}});
    };
    xml.element("manifest:manifest",
                {{"xmlns:manifest", odf::manifest}, {"manifest:version", odf::version}}, [&] {
                    entry(QStringLiteral("/"), odf::mimeType);
                    for (const char* part : {"content.xml", "styles.xml", "meta.xml"})
                        entry(QString::fromLatin1(part), QStringLiteral("text/xml"));
                    for (const Part& picture : pictures)
                        entry(picture.name, QStringLiteral("image/png"));
                });
    return xml.finish();
}

} // namespace

QByteArray odtOf(const Sheet& sheet) {
    std::vector<Part> pictures;
    const QByteArray content = odt::content(sheet, pictures);
    std::vector<Part> parts{
        {QStringLiteral("mimetype"), odf::mimeType.toLatin1(), true}, // first, readable as it lies
        {QStringLiteral("content.xml"), content},
        {QStringLiteral("styles.xml"), odt::styles(sheet)},
        {QStringLiteral("meta.xml"), meta(sheet)},
        {QStringLiteral("META-INF/manifest.xml"), manifest(pictures)},
    };
    parts.insert(parts.end(), pictures.begin(), pictures.end());
    return packed(parts);
}

} // namespace ferna::sheet
