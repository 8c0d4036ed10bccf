#include "report/document_e2e.h"
#include "report/document_writer.h"
#include "report/hand_filled_report.h"
#include "runtime/format.h"
#include "support/decimal_comma.h"

#include <QRectF>
#include <QRegularExpression>

// The real word processor, from the first call to the file opened again.

namespace ferna::testing {
namespace {

/// Text with every run of blanks and line ends as one blank.
QString simplified(const QString& text) {
    return text.simplified();
}

HandFilledReport wholeReport() {
    return HandFilledReport(6, 12, {3}).withPlate({1, 2, 3, 4, 5, 6, 7, 8}).withAnchorSection();
}

/// Every report line in its order, blanks aside.
void expectReportText(const QString& shown) {
    const QString text = simplified(shown);
    qsizetype at = 0;
    const auto follows = [&](const QString& line) {
        const qsizetype found = text.indexOf(simplified(line), at);
        EXPECT_GE(found, 0) << line.toStdString();
        at = std::max(at, found);
    };
    follows(QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz PN-84/B-03264"));
    follows(QStringLiteral("Hala nr 7, oś B"));
    follows(QStringLiteral("Stopa F-1"));
    follows(QStringLiteral("Stal kotew 2 St3S fd = 195 MPa"));
    follows(QStringLiteral("nr 4 średnica 24 mm"));
    follows(QStringLiteral("schemat 6 300,00 kN"));
    follows(QStringLiteral("Wyniki obliczeń"));
    for (int c = 1; c <= 6; ++c) {
        follows(QStringLiteral("Schemat obciążenia nr %1").arg(c));
        if (c != 3)
            follows(QStringLiteral("Oś obojętna A(%1,-200), B(300,5)").arg(10 * c));
        for (int i = 1; i <= 12; ++i)
            if (c != 1 || i != 3)
                follows(QStringLiteral("wynik %1.%2").arg(c).arg(i));
    }
    follows(QStringLiteral("Wartości największe"));
    follows(QStringLiteral("Największa siła w kotwie - 35,75 kN"));
    follows(QStringLiteral("Blacha podstawy o grubości 20 mm"));
    follows(QStringLiteral("blacha 1.1"));
    follows(QStringLiteral("blacha 8.5"));
    follows(QStringLiteral("kotwa wiersz 1 kotwa wiersz 2"));
    follows(QStringLiteral("Szkice kotew są w plikach: rys3f.bmp (kotwy fajkowe), rys2pm.bmp (małe "
                           "kotwy płytkowe) i rys2pd.bmp (duże kotwy płytkowe)."));
    EXPECT_TRUE(text.contains(QStringLiteral("wynik 2.2 \u03c9d = 1,10")));
    EXPECT_TRUE(text.contains(QStringLiteral("wynik 3.2 \u03c9d = 1,25")));
}

struct Placed {
    int page;
    double top; // points from the page's edge
    double left;
};

/// The pictures of a PDF with their places.
QList<Placed> picturesOf(const QString& pdf, const QString& folder) {
    const QString xml =
        QString::fromUtf8(outputOf(QStringLiteral("pdftohtml"),
                                   {QStringLiteral("-xml"), QStringLiteral("-zoom"),
                                    QStringLiteral("1"), QStringLiteral("-stdout"), pdf},
                                   folder));
    static const QRegularExpression element(
        QStringLiteral("<page number=\"(\\d+)\"|<image top=\"(-?\\d+)\" left=\"(-?\\d+)\""));
    QList<Placed> pictures;
    int page = 0;
    for (auto found = element.globalMatch(xml); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (match.hasCaptured(1))
            page = match.captured(1).toInt();
        else
            pictures += Placed{page, match.captured(2).toDouble(), match.captured(3).toDouble()};
    }
    return pictures;
}

TEST_F(DocumentEndToEnd, SavedDocumentOpensAgainWithItsTextAndItsPictures) {
    const WithDecimalSign comma(u',');
    const HandFilledReport report = wholeReport();
    const QString file = out(QStringLiteral("Wyniki.doc"));
    writeDocument(report.model(), program_.path(), file, place_);
    EXPECT_TRUE(fileBytes(file).startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")) << "no .doc";

    const QString pdf = pdfOf(file);
    expectReportText(QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}, out_.path())));

    const QList<Placed> pictures = picturesOf(pdf, out_.path());
    ASSERT_EQ(pictures.size(), 9) << "two views, six sketches, the plate's picture";
    constexpr double margin = 2500 * 72 / 2540.0;
    const QList<Placed> expected{
        {1, 157, 50}, {1, 157, 250},                // 4 anchors
        {1, 369, 60}, {1, 369, 190}, {1, 369, 320}, // six cases, three to a row
        {1, 449, 60}, {1, 449, 190}, {1, 449, 320},
    };
    for (const Placed& place : expected)
        EXPECT_EQ(std::count_if(pictures.begin(), pictures.end(),
                                [&](const Placed& picture) {
                                    return picture.page == place.page
                                           && std::abs(picture.top - place.top - margin) <= 2
                                           && std::abs(picture.left - place.left - margin) <= 2;
                                }),
                  1)
            << place.left << ", " << place.top;
}

TEST_F(DocumentEndToEnd, PictureThatThePageCannotHoldHeadsThePlateSection) {
    const HandFilledReport report = wholeReport();
    const QString file = out(QStringLiteral("Wyniki.doc"));
    writeDocument(report.model(), program_.path(), file, place_);
    const QString pdf = pdfOf(file);
    const QList<Placed> pictures = picturesOf(pdf, out_.path());
    ASSERT_FALSE(pictures.isEmpty());
    const QString page = QString::number(pictures.last().page);
    EXPECT_GT(pictures.last().page, 1);
    const QString shown = QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"),
                 {QStringLiteral("-f"), page, QStringLiteral("-l"), page, pdf, QStringLiteral("-")},
                 out_.path()));
    EXPECT_TRUE(simplified(shown).startsWith(QStringLiteral("Blacha podstawy")))
        << shown.toStdString();
}

TEST_F(DocumentEndToEnd, TextAndPicturesDoNotLieOverEachOther) {
    const HandFilledReport report = wholeReport();
    const QString file = out(QStringLiteral("Wyniki.doc"));
    writeDocument(report.model(), program_.path(), file, place_);
    const QString xml =
        QString::fromUtf8(outputOf(QStringLiteral("pdftohtml"),
                                   {QStringLiteral("-xml"), QStringLiteral("-zoom"),
                                    QStringLiteral("1"), QStringLiteral("-stdout"), pdfOf(file)},
                                   out_.path()));
    static const QRegularExpression element(QStringLiteral(
        "<page |<(image|text) top=\"(\\d+)\" left=\"(\\d+)\" width=\"(\\d+)\" height=\"(\\d+)\""));
    QList<QRectF> pictures;
    QList<QRectF> texts;
    int pairs = 0;
    const auto endPage = [&] {
        for (const QRectF& picture : pictures)
            for (const QRectF& line : texts) {
                ++pairs;
                EXPECT_FALSE(picture.adjusted(2, 2, -2, -2).intersects(line))
                    << "at " << line.left() << ", " << line.top();
            }
        pictures.clear();
        texts.clear();
    };
    for (auto found = element.globalMatch(xml); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (!match.hasCaptured(1)) {
            endPage();
            continue;
        }
        const QRectF box(match.captured(3).toDouble(), match.captured(2).toDouble(),
                         match.captured(4).toDouble(), match.captured(5).toDouble());
        (match.captured(1) == QStringLiteral("image") ? pictures : texts) += box;
    }
    endPage();
    EXPECT_GT(pairs, 100);
}

TEST_F(DocumentEndToEnd, OpenDocumentTextIsWrittenByItsEnding) {
    const WithDecimalSign comma(u',');
    const HandFilledReport report = wholeReport();
    const QString file = out(QStringLiteral("raport.odt"));
    writeDocument(report.model(), program_.path(), file, place_);
    EXPECT_TRUE(fileBytes(file).contains("application/vnd.oasis.opendocument.text"));
    const QString pdf = pdfOf(file);
    expectReportText(QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}, out_.path())));
    EXPECT_EQ(picturesOf(pdf, out_.path()).size(), 9);
}

TEST_F(DocumentEndToEnd, NameWithoutAnEndingIsKeptInTheCurrentFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(out_.path()));
    const HandFilledReport report(1);
    const std::unique_ptr<WordProcessor> word = openWordProcessor(place_);
    buildDocument(*word, report.model(), program_.path());
    saveDocument(*word, QStringLiteral("Wyniki"));
    QDir::setCurrent(before);
    EXPECT_TRUE(fileBytes(out(QStringLiteral("Wyniki"))).startsWith("\xD0\xCF\x11\xE0"));
}

TEST_F(DocumentEndToEnd, OneDocumentAfterTheOther) {
    const HandFilledReport report(1);
    for (const char* name : {"pierwszy.doc", "drugi.doc"}) {
        writeDocument(report.model(), program_.path(), out(QLatin1String(name)), place_);
        EXPECT_TRUE(QFile::exists(out(QLatin1String(name)))) << name;
        EXPECT_TRUE(runningWriters().isEmpty());
    }
}

} // namespace
} // namespace ferna::testing
