// The editable report: its lines, its structure, its properties.
#include "editable/document_reading.h"
#include "editable/editable_report.h"
#include "report/report_words.h"

using namespace ferna;
using namespace ferna::editable;
using namespace ferna::testing;

namespace {

class EditableReport : public ::testing::Test, public ReportOfATask {};

constexpr Integer languages = 5;

TEST_F(EditableReport, HasEveryLineOfThePlainReportInItsOrder) {
    for (Integer language = 0; language < languages; ++language) {
        const ReportModel& report = make(language);
        const Document document = editableReport(report, folder.path(QString()));
        for (const auto& [name, texts] : {std::pair{"odt", odtTexts(odtFile(document))},
                                          {"docx", docxTexts(docxFile(document))}}) {
            SCOPED_TRACE(std::string(name) + ", language " + std::to_string(language));
            expectLines(plainLines(report), texts);
        }
    }
}

TEST_F(EditableReport, GivesTheSameBytesForTheSameReport) {
    const ReportModel& report = make(0);
    const QString pictures = folder.path(QString());
    EXPECT_EQ(odtFile(editableReport(report, pictures)), odtFile(editableReport(report, pictures)));
    EXPECT_EQ(docxFile(editableReport(report, pictures)),
              docxFile(editableReport(report, pictures)));
}

TEST_F(EditableReport, SpellsFrenchInFull) {
    const Document document = editableReport(make(3), folder.path(QString()));
    const QString text = odtTexts(odtFile(document)).join(u'\n');
    for (const char* word : {"diamètre", "Diamètre nominal", "entièrement", "(arrondie à 50 mm)"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(word))) << word;
    for (const char* word : {"diametre", "entierement", "modele"})
        EXPECT_FALSE(text.contains(QString::fromUtf8(word), Qt::CaseInsensitive)) << word;
}

TEST_F(EditableReport, KeepsLettersThatTheCodePageLacks) {
    task["Nazwa_projektu"] = "Œuvre Øre";
    const Document document = editableReport(make(0), folder.path(QString()));
    EXPECT_TRUE(odtTexts(odtFile(document)).contains(QString::fromUtf8("Œuvre Øre")));
}

TEST_F(EditableReport, HasTheLoadsInATableWithAHeader) {
    const Document document = editableReport(make(0), folder.path(QString()));
    const Table* loads = nullptr;
    for (const Block& block : document.blocks)
        if (const auto* table = std::get_if<Table>(&block); table != nullptr && table->hasHeader)
            loads = table;
    ASSERT_NE(loads, nullptr);
    EXPECT_EQ(loads->rows.front().join(u'|'), QStringLiteral("|N|M1|M2|Vx|Vy"));
    ASSERT_EQ(loads->rows.size(), 4U);
    EXPECT_EQ(loads->rows[2].join(u'|'),
              QStringLiteral("Przypadek 2|300.00 kN|12.00 kNm|3.00 kNm|0.00 kN|32.40 kN"));
}

TEST_F(EditableReport, NamesTheCaseUnderItsSketch) {
    const Document document = editableReport(make(4), folder.path(QString()));
    QStringList captions;
    std::size_t images = 0;
    for (const Block& block : document.blocks)
        if (const auto* figure = std::get_if<Figure>(&block)) {
            captions += figure->caption;
            images += figure->images.size();
        }
    EXPECT_EQ(captions.at(1), QStringLiteral("Lastfall Nr. 1: Druckzone und Nulllinie"));
    EXPECT_EQ(captions.first(), reportWords(4).views);
    EXPECT_EQ(captions.last(), QStringLiteral("Anker"));
    EXPECT_EQ(images, 6U) << "general view, plate, case 1, two plate checks, anchor";
    EXPECT_TRUE(captions.filter(QStringLiteral("Plattenfeld")).size() == 1) << "a plate check";
}

TEST_F(EditableReport, SetsTheRatioOfOmegaAsASubscript) {
    task["Przypadki"] = {{{"N", 900}, {"M1", 15}, {"M2", 3}, {"Vx", 0}, {"Vy", 0}}};
    const ReportModel& report = make(0);
    ASSERT_TRUE(report.cases.front().results.back().ratio
                || report.cases.front().results.at(1).ratio)
        << "the case is one with the ratio";
    const Document document = editableReport(report, folder.path(QString()));
    int subscripts = 0;
    for (const Block& block : document.blocks) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph == nullptr || paragraph->runs.size() < 3)
            continue;
        ++subscripts;
        EXPECT_TRUE(paragraph->runs[0].text.endsWith(QChar(0x3c9)));
        EXPECT_EQ(paragraph->runs[1].text, QStringLiteral("u"));
        EXPECT_TRUE(paragraph->runs[1].subscript);
        EXPECT_TRUE(paragraph->runs[2].text.startsWith(QStringLiteral(" = 1.")));
    }
    EXPECT_EQ(subscripts, 1);
}

TEST_F(EditableReport, TellsItsLanguageTitleAndTimeInItsProperties) {
    for (Integer language = 0; language < languages; ++language) {
        const Document document = editableReport(make(language), folder.path(QString()));
        const QString tag = reportWords(language).tag;
        const QString title = documentTitle(language, 1);
        const QByteArray odt = odtFile(document);
        const QByteArray meta = partOf(odt, "meta.xml");
        EXPECT_TRUE(meta.contains("<dc:language>" + tag.toUtf8())) << meta.toStdString();
        EXPECT_TRUE(meta.contains("<dc:title>" + title.toHtmlEscaped().toUtf8() + "</dc:title>"))
            << meta.toStdString();
        EXPECT_TRUE(meta.contains("<meta:creation-date>2026-05-17T09:41:00<"));
        EXPECT_TRUE(partOf(odt, "styles.xml").contains("fo:language=\"" + tag.left(2).toUtf8()));
        const QByteArray docx = docxFile(document);
        EXPECT_TRUE(partOf(docx, "docProps/core.xml").contains(tag.toUtf8()));
        EXPECT_TRUE(partOf(docx, "word/styles.xml").contains("<w:lang w:val=\"" + tag.toUtf8()));
    }
    EXPECT_FALSE(documentTitle(2, 0).contains(QStringLiteral("wg")));
    EXPECT_TRUE(documentTitle(2, 0).contains(QStringLiteral("PN-84/B-03264")));
}

TEST_F(EditableReport, HasProjectLabelAndPageInItsHeader) {
    task["Nr_strony"] = 12;
    const Document document = editableReport(make(2), folder.path(QString()));
    const QByteArray odt = odtFile(document);
    const QByteArray styles = partOf(odt, "styles.xml");
    EXPECT_TRUE(styles.contains("Hala \xe2\x80\x93 F-1<text:tab/>Page <text:page-number"));
    EXPECT_TRUE(styles.contains("fo:page-width=\"210mm\""));
    EXPECT_TRUE(partOf(odt, "content.xml").contains("style:page-number=\"12\""));
    const QByteArray docx = docxFile(document);
    EXPECT_TRUE(partOf(docx, "word/header1.xml").contains(" PAGE "));
    EXPECT_TRUE(partOf(docx, "word/document.xml").contains("<w:pgNumType w:start=\"12\"/>"));
    EXPECT_TRUE(
        partOf(docx, "word/document.xml").contains("<w:pgSz w:w=\"11906\" w:h=\"16838\"/>"));
}

TEST_F(EditableReport, StartsWithItsKindAsItLies) {
    const QByteArray odt = odtFile(editableReport(make(0), folder.path(QString())));
    EXPECT_EQ(odt.mid(30, 8), "mimetype");
    EXPECT_EQ(odt.mid(38, 39), "application/vnd.oasis.opendocument.text");
}

TEST_F(EditableReport, IsWrittenByTheEndingOfItsName) {
    EXPECT_EQ(writerFor(QStringLiteral("a.ODT")), &odtFile);
    EXPECT_EQ(writerFor(QStringLiteral("a.docx")), &docxFile);
    EXPECT_EQ(writerFor(QStringLiteral("a.doc")), nullptr);
}

} // namespace
