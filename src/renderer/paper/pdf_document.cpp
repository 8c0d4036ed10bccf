#include "renderer/paper/pdf_document.h"

#include "runtime/lengths.h"
#include "runtime/run_time_error.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace ferna::renderer {

namespace {

QPDFObjectHandle textOf(const QString& text) {
    return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

/// The text without the colon of a heading.
QString labelOf(QString heading) {
    while (heading.endsWith(u':') || heading.endsWith(u' '))
        heading.chop(1);
    return heading;
}

/// Makes the bookmarks: a tree of dictionaries that know their neighbours.
class Outline {
public:
    explicit Outline(QPDF& pdf) : pdf_(pdf), pages_(QPDFPageDocumentHelper(pdf).getAllPages()) {
        root_ = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        root_.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    }

    void add(const pages::Heading& heading, std::size_t page) {
        const bool inner = heading.level > 0 && lastOuter_.isInitialized();
        QPDFObjectHandle parent = inner ? lastOuter_ : root_;
        QPDFObjectHandle item = pdf_.makeIndirectObject(QPDFObjectHandle::newDictionary());
        item.replaceKey("/Title", textOf(labelOf(heading.text)));
        item.replaceKey("/Parent", parent);
        item.replaceKey("/Dest", placeOf(heading, page));
        QPDFObjectHandle& before = inner ? lastInner_ : lastOuter_;
        if (!parent.hasKey("/First")) {
            parent.replaceKey("/First", item);
        } else {
            item.replaceKey("/Prev", before);
            before.replaceKey("/Next", item);
        }
        parent.replaceKey("/Last", item);
        countIn(parent);
        if (inner)
            countIn(root_); // its parent is open
        before = item;
    }

    /// Puts the tree into the document, where it has an entry.
    void finish() {
        if (!root_.hasKey("/First"))
            return;
        QPDFObjectHandle catalogue = pdf_.getRoot();
        catalogue.replaceKey("/Outlines", root_);
        catalogue.replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
    }

private:
    static void countIn(QPDFObjectHandle parent) {
        const long long present =
            parent.hasKey("/Count") ? parent.getKey("/Count").getIntValue() : 0;
        parent.replaceKey("/Count", QPDFObjectHandle::newInteger(present + 1));
    }

    /// The top of the window some way above the heading's line.
    QPDFObjectHandle placeOf(const pages::Heading& heading, std::size_t page) {
        constexpr double above = 8; // mm
        const double fromTop = pages::frameCorner.y() + heading.y - above;
        const double y = (pages::sheet.height() - qMax(0.0, fromTop)) * pointsPerMm;
        QPDFObjectHandle place = QPDFObjectHandle::newArray();
        place.appendItem(pages_.at(page).getObjectHandle());
        place.appendItem(QPDFObjectHandle::newName("/XYZ"));
        place.appendItem(QPDFObjectHandle::newNull());
        place.appendItem(QPDFObjectHandle::newReal(y, 1));
        place.appendItem(QPDFObjectHandle::newNull());
        return place;
    }

    QPDF& pdf_;
    std::vector<QPDFPageObjectHelper> pages_;
    QPDFObjectHandle root_;
    QPDFObjectHandle lastOuter_;
    QPDFObjectHandle lastInner_;
};

void tellProperties(QPDF& pdf, const pages::Report& report, const QString& title,
                    const QDateTime& made) {
    QPDFObjectHandle info = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    const auto put = [&info](const char* key, const QString& value) {
        if (!value.isEmpty())
            info.replaceKey(key, textOf(value));
    };
    put("/Title", title);
    put("/Subject", report.subject);
    put("/Author", report.author);
    put("/Creator", QStringLiteral("Ferna"));
    put("/Producer", QStringLiteral("Wyd_drk"));
    put("/CreationDate", made.toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'")));
    pdf.getTrailer().replaceKey("/Info", info);
    QPDFObjectHandle catalogue = pdf.getRoot();
    if (!report.language.isEmpty())
        catalogue.replaceKey("/Lang", textOf(report.language));
    QPDFObjectHandle view = QPDFObjectHandle::newDictionary();
    view.replaceKey("/DisplayDocTitle", QPDFObjectHandle::newBool(true));
    catalogue.replaceKey("/ViewerPreferences", view);
}

} // namespace

QDateTime pdfTime() {
    bool given = false;
    const qint64 epoch = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&given);
    return given ? QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC) : QDateTime::currentDateTimeUtc();
}

QByteArray finishedPdf(const QByteArray& pages, const pages::Report& report, const QString& title,
                       const QDateTime& made) {
    try {
        QPDF pdf;
        pdf.processMemoryFile("report.pdf", pages.constData(),
                              static_cast<std::size_t>(pages.size()));
        tellProperties(pdf, report, title, made);
        Outline outline(pdf);
        for (std::size_t page = 0; page < report.pages.size(); ++page)
            for (const pages::Heading& heading : report.pages[page].headings)
                outline.add(heading, page);
        outline.finish();
        QPDFWriter writer(pdf);
        writer.setOutputMemory();
        writer.setDeterministicID(true);
        writer.write();
        const std::shared_ptr<Buffer> file = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(file->getBuffer()),
                static_cast<qsizetype>(file->getSize())};
    } catch (const std::exception& failure) {
        throw RunTimeError(
            error::DeviceIO,
            QStringLiteral("nie można zapisać PDF (%1)").arg(QString::fromUtf8(failure.what())));
    }
}

} // namespace ferna::renderer
