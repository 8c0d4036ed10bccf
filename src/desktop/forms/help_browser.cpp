#include "desktop/forms/help_browser.h"

#include <QPainter>
#include <QSvgRenderer>

namespace ferna {

namespace {

constexpr qreal sketchScale = 2; // sketches are drawn for forms, a page has more room

} // namespace

HelpBrowser::HelpBrowser(const QHelpEngineCore& engine, QWidget* parent)
    : QTextBrowser(parent), engine_(engine) {
    setOpenExternalLinks(false);
    // Black on white whatever the desktop's colours: the sketches are drawn so.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Link, QColor(0x0b, 0x4f, 0x9e));
    setPalette(paper);
    document()->setDocumentMargin(16);
}

bool HelpBrowser::findOnPage(const QString& text, bool backwards) {
    const QTextDocument::FindFlags way =
        backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find(text, way))
        return true;
    const QTextCursor here = textCursor();
    moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (find(text, way))
        return true;
    setTextCursor(here);
    return false;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl url = source().resolved(name);
    if (url.scheme() != u"qthelp")
        return {}; // the help shows nothing from outside
    const QByteArray bytes = engine_.fileData(url);
    if (type == QTextDocument::ImageResource && url.path().endsWith(u".svg"))
        return sketch(bytes);
    return bytes;
}

QImage HelpBrowser::sketch(const QByteArray& svg) const {
    QSvgRenderer renderer(svg);
    const qreal ratio = devicePixelRatioF();
    QImage image((QSizeF(renderer.defaultSize()) * sketchScale * ratio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace ferna
