#include "sheet/odt_writer.h"

#include "sheet/html_writer.h"

#include <QBuffer>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QTextFrame>
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
    document.setHtml(html);
    constexpr double perMm = 96 / 25.4; // of a rich text
    document.setPageSize(QSizeF(210, 297) * perMm);
    QTextFrameFormat page = document.rootFrame()->frameFormat();
    page.setMargin(15 * perMm);
    document.rootFrame()->setFrameFormat(page);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QTextDocumentWriter writer(&buffer, "odf");
    writer.write(&document);
    return bytes;
}

} // namespace ferna::sheet
