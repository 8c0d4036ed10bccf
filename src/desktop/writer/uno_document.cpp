#include "desktop/writer/uno_document.h"

#include "desktop/writer/office_process.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QUrl>

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/graphic/GraphicProvider.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/Locale.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/style/BreakType.hpp>
#include <com/sun/star/style/LineSpacing.hpp>
#include <com/sun/star/style/LineSpacingMode.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <com/sun/star/text/ControlCharacter.hpp>
#include <com/sun/star/text/HoriOrientation.hpp>
#include <com/sun/star/text/RelOrientation.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>
#include <com/sun/star/text/VertOrientation.hpp>
#include <com/sun/star/text/WrapTextMode.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include <cmath>
#include <cppuhelper/bootstrap.hxx>
#include <map>
#include <rtl/bootstrap.hxx>

namespace ferna::writer {

namespace {

using namespace com::sun::star;
using rtl::OUString;
using uno::Any;
using uno::Reference;
using uno::UNO_QUERY_THROW;

constexpr Double perPoint = 2540.0 / 72; // hundredths of a millimetre
constexpr sal_Int32 pageWidth = 21000;   // A4, hundredths of a millimetre
constexpr sal_Int32 pageHeight = 29700;
constexpr sal_Int32 pageMargin = 2500;
constexpr float letterHeight = 8;    // points, as the report's places suppose
constexpr Double lineHeight = 9.225; // points
constexpr int pixelsPerInch = 96;    // of a bitmap that does not tell its size
constexpr int firstPicture = 2;      // number in the name of a document's first picture
constexpr int closeLimit = 5000;     // ms
constexpr int connectStep = 50;      // ms

OUString uni(const QString& text) {
    return OUString(text.utf16(), static_cast<sal_Int32>(text.size()));
}

QString words(const OUString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getStr()), text.getLength());
}

OUString url(const QString& file) {
    return uni(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
}

sal_Int32 hundredths(Double points) {
    return static_cast<sal_Int32>(std::lround(points * perPoint));
}

uno::Sequence<beans::PropertyValue> property(const char* name, const Any& value) {
    const beans::PropertyValue only(OUString::createFromAscii(name), -1, value,
                                    beans::PropertyState_DIRECT_VALUE);
    return {&only, 1};
}

[[noreturn]] void ended() {
    throw RunTimeError(error::NoObject, QStringLiteral("LibreOffice Writer przerwał pracę"));
}

/// Runs a call of the word processor and tells its failure as a run-time error.
template <typename Call>
auto guarded(const Call& call) {
    try {
        return call();
    } catch (const lang::DisposedException&) {
        ended();
    } catch (const io::IOException& failure) {
        throw RunTimeError(error::DeviceIO,
                           QStringLiteral("LibreOffice Writer: ") + words(failure.Message));
    } catch (const uno::Exception& failure) {
        throw RunTimeError(error::NoObject,
                           QStringLiteral("LibreOffice Writer: ") + words(failure.Message));
    }
}

/// Where the office is installed without its Writer, there is no document.
Reference<text::XTextDocument> emptyTextDocument(const Reference<frame::XDesktop2>& desktop) {
    QString why;
    try {
        const Reference<text::XTextDocument> document(
            desktop->loadComponentFromURL(OUString("private:factory/swriter"), OUString("_blank"),
                                          0, property("Hidden", Any(true))),
            uno::UNO_QUERY);
        if (document.is())
            return document;
    } catch (const lang::DisposedException&) {
        throw;
    } catch (const uno::Exception& failure) {
        why = QStringLiteral(": ") + words(failure.Message);
    }
    noWordProcessor(QStringLiteral("LibreOffice nie otwiera dokumentu tekstowego") + why);
}

Reference<uno::XComponentContext> localContext() {
    // Without the office's own types the first call of the bridge fails.
    rtl::Bootstrap::set(OUString("URE_MORE_TYPES"),
                        OUString("file://" FERNA_OFFICE_PROGRAM "/types/offapi.rdb"));
    return cppu::defaultBootstrap_InitialComponentContext();
}

Reference<beans::XPropertySet> standardStyle(const Reference<uno::XInterface>& document,
                                             const char* family) {
    const Reference<style::XStyleFamiliesSupplier> styles(document, UNO_QUERY_THROW);
    const Reference<container::XNameAccess> names(
        styles->getStyleFamilies()->getByName(OUString::createFromAscii(family)), UNO_QUERY_THROW);
    return {names->getByName(OUString("Standard")), UNO_QUERY_THROW};
}

/// A4 and the letters that the places of the pictures suppose.
void setUpPages(const Reference<uno::XInterface>& document) {
    const auto page = standardStyle(document, "PageStyles");
    page->setPropertyValue(OUString("Width"), Any(pageWidth));
    page->setPropertyValue(OUString("Height"), Any(pageHeight));
    for (const char* margin : {"LeftMargin", "RightMargin", "TopMargin", "BottomMargin"})
        page->setPropertyValue(OUString::createFromAscii(margin), Any(pageMargin));
    const auto letters = standardStyle(document, "ParagraphStyles");
    letters->setPropertyValue(OUString("CharFontName"), Any(OUString("Times New Roman")));
    letters->setPropertyValue(OUString("CharHeight"), Any(letterHeight));
    // The report's language is the catalogue's: no proofing, or every word would be marked.
    letters->setPropertyValue(OUString("CharLocale"),
                              Any(lang::Locale(OUString("zxx"), OUString(), OUString())));
    letters->setPropertyValue(
        OUString("ParaLineSpacing"),
        Any(style::LineSpacing(style::LineSpacingMode::FIX,
                               static_cast<sal_Int16>(hundredths(lineHeight)))));
}

} // namespace

struct UnoDocument::Uno {
    Uno(const WordProcessorPlace& place, std::shared_ptr<ProcessGroup> group)
        : process(place.program.isEmpty() ? QStringLiteral(FERNA_OFFICE_PROGRAM) : place.program,
                  std::move(group)),
          startLimit(place.startLimit) {}

    OfficeProcess process;
    std::chrono::milliseconds startLimit;
    Reference<uno::XComponentContext> local;
    Reference<uno::XComponentContext> office;
    Reference<frame::XDesktop2> desktop;
    Reference<text::XTextDocument> document;
    std::map<QString, Reference<drawing::XShape>> pictures;

    void connect();
    const Reference<text::XTextDocument>& open() const;
    void paragraphBreak();
    void pageBreak();
    Reference<graphic::XGraphic> graphicOf(const QString& file) const;
    awt::Size sizeOf(const Reference<graphic::XGraphic>& graphic) const;
    const Reference<drawing::XShape>& picture(const QString& name) const;
    void hangAtEnd(const Reference<drawing::XShape>& shape) const;
};

void UnoDocument::Uno::connect() {
    const auto resolver = bridge::UnoUrlResolver::create(local);
    const OUString address =
        uni(QStringLiteral("uno:pipe,name=%1;urp;StarOffice.ComponentContext").arg(process.pipe()));
    const QDeadlineTimer deadline(startLimit);
    for (;;) {
        try {
            office.set(resolver->resolve(address), UNO_QUERY_THROW);
            break;
        } catch (const connection::NoConnectException&) {
            if (!process.stillRunning(connectStep))
                throw RunTimeError(error::NoObject,
                                   QStringLiteral("LibreOffice Writer nie uruchomił się"));
            if (deadline.hasExpired())
                throw RunTimeError(
                    error::NoObject,
                    QStringLiteral("LibreOffice Writer nie zgłosił się w ciągu "
                                   "%1 s")
                        .arg(std::chrono::ceil<std::chrono::seconds>(startLimit).count()));
        }
    }
    desktop = frame::Desktop::create(office);
}

const Reference<text::XTextDocument>& UnoDocument::Uno::open() const {
    if (!document.is())
        throw RunTimeError(error::NoObject, QStringLiteral("dokument nie jest otwarty"));
    return document;
}

void UnoDocument::Uno::paragraphBreak() {
    const auto body = document->getText();
    body->insertControlCharacter(body->getEnd(), text::ControlCharacter::PARAGRAPH_BREAK, false);
}

void UnoDocument::Uno::pageBreak() {
    const auto body = document->getText();
    const auto cursor = body->createTextCursorByRange(body->getEnd());
    const Reference<beans::XPropertySet> paragraph(cursor, UNO_QUERY_THROW);
    paragraph->setPropertyValue(OUString("BreakType"), Any(style::BreakType_PAGE_BEFORE));
}

Reference<graphic::XGraphic> UnoDocument::Uno::graphicOf(const QString& file) const {
    const auto provider = graphic::GraphicProvider::create(office);
    Reference<graphic::XGraphic> graphic;
    try {
        graphic = provider->queryGraphic(property("URL", Any(url(file))));
    } catch (const lang::DisposedException&) {
        throw;
    } catch (const uno::Exception&) {
        graphic.clear();
    }
    if (!graphic.is())
        throw RunTimeError(error::DeviceIO, file + QStringLiteral(" (to nie jest obraz)"));
    return graphic;
}

awt::Size UnoDocument::Uno::sizeOf(const Reference<graphic::XGraphic>& graphic) const {
    const Reference<beans::XPropertySet> properties(graphic, UNO_QUERY_THROW);
    awt::Size size;
    properties->getPropertyValue(OUString("Size100thMM")) >>= size;
    if (size.Width <= 0 || size.Height <= 0) {
        properties->getPropertyValue(OUString("SizePixel")) >>= size;
        size.Width = size.Width * 2540 / pixelsPerInch;
        size.Height = size.Height * 2540 / pixelsPerInch;
    }
    return size;
}

const Reference<drawing::XShape>& UnoDocument::Uno::picture(const QString& name) const {
    const auto found = pictures.find(name);
    if (found == pictures.end())
        throw RunTimeError(error::Subscript, name);
    return found->second;
}

/// A picture cannot leave the page on which its text stands: one that is moved past it heads what
/// is written next, at the end of the text.
void UnoDocument::Uno::hangAtEnd(const Reference<drawing::XShape>& shape) const {
    const sal_Int32 left = shape->getPosition().X;
    const Reference<beans::XPropertySet> properties(shape, UNO_QUERY_THROW);
    properties->setPropertyValue(OUString("TextRange"), Any(document->getText()->getEnd()));
    shape->setPosition(awt::Point(left, 0));
}

UnoDocument::UnoDocument(const WordProcessorPlace& place, std::shared_ptr<ProcessGroup> group)
    : uno_(std::make_unique<Uno>(place, std::move(group))) {}

UnoDocument::~UnoDocument() {
    end();
}

void UnoDocument::connect() {
    guarded([this] {
        uno_->process.start();
        uno_->local = localContext();
        uno_->connect();
    });
}

void UnoDocument::add() {
    guarded([this] {
        if (!uno_->desktop.is())
            ended();
        uno_->document = emptyTextDocument(uno_->desktop);
        setUpPages(uno_->document);
    });
}

void UnoDocument::openFile(const QString& file) {
    guarded([this, &file] {
        if (!uno_->desktop.is())
            ended();
        const Reference<text::XTextDocument> document(
            uno_->desktop->loadComponentFromURL(url(QFileInfo(file).absoluteFilePath()),
                                                OUString("_blank"), 0,
                                                property("Hidden", Any(true))),
            uno::UNO_QUERY);
        if (!document.is())
            throw RunTimeError(error::FileNotFound, file);
        uno_->document = document;
    });
}

void UnoDocument::insertAfter(const QString& text) {
    guarded([this, &text] {
        const auto body = uno_->open()->getText();
        qsizetype start = 0;
        for (qsizetype i = 0; i <= text.size(); ++i) {
            const QChar letter = i < text.size() ? text[i] : QChar(u'\0');
            if (i < text.size() && letter != u'\r' && letter != u'\n' && letter != u'\f')
                continue;
            if (i > start)
                body->insertString(body->getEnd(), uni(text.mid(start, i - start)), false);
            if (letter == u'\r' || (letter == u'\n' && (i == 0 || text[i - 1] != u'\r')))
                uno_->paragraphBreak();
            else if (letter == u'\f')
                uno_->pageBreak();
            start = i + 1;
        }
    });
}

void UnoDocument::addPicture(const QString& file) {
    if (!QFileInfo::exists(file))
        throw RunTimeError(error::FileNotFound, file);
    guarded([this, &file] {
        const Reference<lang::XMultiServiceFactory> factory(uno_->open(), UNO_QUERY_THROW);
        const auto graphic = uno_->graphicOf(file);
        const Reference<drawing::XShape> shape(
            factory->createInstance(OUString("com.sun.star.drawing.GraphicObjectShape")),
            UNO_QUERY_THROW);
        const Reference<beans::XPropertySet> properties(shape, UNO_QUERY_THROW);
        properties->setPropertyValue(OUString("Graphic"), Any(graphic));
        shape->setSize(uno_->sizeOf(graphic));
        properties->setPropertyValue(OUString("AnchorType"),
                                     Any(text::TextContentAnchorType_AT_PARAGRAPH));
        const Reference<text::XTextContent> content(shape, UNO_QUERY_THROW);
        const auto body = uno_->document->getText();
        body->insertTextContent(body->getStart(), content, false);
        for (const char* relation : {"HoriOrientRelation", "VertOrientRelation"})
            properties->setPropertyValue(OUString::createFromAscii(relation),
                                         Any(text::RelOrientation::FRAME));
        // The text keeps clear of the pictures: the places suppose that it goes on below them.
        properties->setPropertyValue(OUString("Surround"), Any(text::WrapTextMode_NONE));
        properties->setPropertyValue(OUString("Opaque"), Any(true));
        const QString name = QStringLiteral("Picture %1")
                                 .arg(firstPicture + static_cast<int>(uno_->pictures.size()));
        Reference<container::XNamed>(shape, UNO_QUERY_THROW)->setName(uni(name));
        uno_->pictures[name] = shape;
    });
}

void UnoDocument::move(const QString& name, int right, int down) {
    guarded([this, &name, right, down] {
        const auto& shape = uno_->picture(name);
        const awt::Point at = shape->getPosition();
        const sal_Int32 top = at.Y + hundredths(down);
        if (down > 0 && top + shape->getSize().Height > pageHeight - 2 * pageMargin)
            uno_->hangAtEnd(shape);
        else
            shape->setPosition(awt::Point(at.X + hundredths(right), top));
    });
}

void UnoDocument::saveAs(const QString& file) {
    const auto endsIn = [&](const char* ending) {
        return file.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    };
    const OUString filter(endsIn(".odt")    ? OUString("writer8")
                          : endsIn(".docx") ? OUString("MS Word 2007 XML")
                                            : OUString("MS Word 97"));
    const QString made = uno_->process.folder() + QStringLiteral("/dokument");
    guarded([&] {
        const Reference<frame::XStorable> document(uno_->open(), UNO_QUERY_THROW);
        document->storeToURL(url(made), property("FilterName", Any(filter)));
    });
    // The word processor would make a missing folder and write over a file in place.
    writeFileWhole(QFileInfo(file).absoluteFilePath(), readFileWhole(made));
}

void UnoDocument::close() {
    if (!uno_->document.is())
        return;
    guarded([this] {
        const Reference<util::XCloseable> document(uno_->document, UNO_QUERY_THROW);
        uno_->pictures.clear();
        uno_->document.clear();
        document->close(true);
    });
}

void UnoDocument::end() noexcept {
    bool gentle = uno_->desktop.is();
    try {
        close();
        if (gentle)
            uno_->desktop->terminate();
    } catch (const uno::Exception&) {
        // Terminating, it breaks the connection before it has answered.
    } catch (const RunTimeError&) {
        gentle = false;
    }
    uno_->desktop.clear();
    uno_->office.clear();
    uno_->process.finish(gentle ? closeLimit : 0);
    try {
        const Reference<lang::XComponent> local(uno_->local, uno::UNO_QUERY);
        uno_->local.clear();
        if (local.is())
            local->dispose();
    } catch (const uno::Exception&) {
        return; // nothing is left of it that could matter
    }
}

} // namespace ferna::writer
