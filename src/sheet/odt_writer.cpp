#include "sheet/odt_writer.h"

#include "sheet/html_writer.h"

#include <QBuffer>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QUrl>

namespace ferna::sheet {

QByteArray odtOf(const Sheet& sheet) {
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("Liberation Sans"), 9));
    std::vector<const Picture*> pictures;
    const QString html = flatHtmlOf(sheet, pictures);
    for (std::size_t i = 0; i < pictures.size(); ++i)
        document.addResource(QTextDocument::ImageResource, QUrl(QString::number(i)),
                             imageOf(*pictures[i]));
    constexpr double widthOfText = 175 * 96 / 25.4; // A4 within its margins
    document.setTextWidth(widthOfText);
    document.setHtml(html);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QTextDocumentWriter writer(&buffer, "odf");
    writer.write(&document);
    return bytes;
}

} // namespace ferna::sheet
