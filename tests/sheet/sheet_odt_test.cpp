// The sheet as an OpenDocument text: its structure, read from the file.
#include "editable/document_reading.h"
#include "sheet/odt_writer.h"
#include "sheet/sheet_tasks.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace ferna::sheet {
namespace {

using namespace ferna::testing;

/// Blocks one behind the other, those beside one another too.
void gather(const Blocks& blocks, std::vector<const Block*>& flat) {
    for (const Block& block : blocks)
        if (const auto* beside = std::get_if<std::shared_ptr<const Beside>>(&block)) {
            gather((*beside)->left, flat);
            gather((*beside)->right, flat);
        } else {
            flat.push_back(&block);
        }
}

class SheetOdt : public ::testing::Test {
protected:
    Sheet sheet = batch::sheetOf(computed(large(4)));
    QByteArray file = odtOf(sheet);
    QByteArray content = partOf(file, "content.xml");
    std::vector<const Block*> flat;

    SheetOdt() { gather(sheet.blocks, flat); }

    template <typename Kind>
    std::vector<const Kind*> all() const {
        std::vector<const Kind*> found;
        for (const Block* const block : flat)
            if (const auto* one = std::get_if<Kind>(block))
                found.push_back(one);
        return found;
    }
};

TEST_F(SheetOdt, HasTheTextsOfTheSheetInTheirOrder) {
    const QStringList texts = odtTexts(file);
    qsizetype next = 0;
    const auto expect = [&](const Rich& text) {
        const QString plain = plainText(text);
        if (plain.isEmpty())
            return;
        const qsizetype found = texts.indexOf(plain, next);
        ASSERT_GE(found, 0) << plain.toStdString();
        next = found + 1;
    };
    expect(sheet.title);
    for (const Block* const block : flat) {
        if (const auto* heading = std::get_if<Heading>(block))
            expect(heading->text);
        else if (const auto* paragraph = std::get_if<Paragraph>(block))
            expect(Rich(paragraph->text).replace(QStringLiteral("<br/>"), QString()));
        else if (const auto* table = std::get_if<Table>(block))
            expect(table->caption);
    }
}

TEST_F(SheetOdt, HasEveryNumberOfItsTables) {
    const QStringList texts = odtTexts(file);
    std::size_t numbers = 0;
    for (const Table* const table : all<Table>())
        for (const Row& row : table->rows) {
            QStringList cells;
            for (const Cell& cell : row) {
                numbers += cell.number != nullptr ? 1U : 0U;
                const QString text =
                    cell.number != nullptr ? cell.number->text : plainText(cell.text);
                if (!text.isEmpty() && !text.contains(u'^'))
                    cells += text.simplified();
            }
            const QString whole = cells.join(u' ');
            EXPECT_TRUE(whole.isEmpty() || !texts.filter(whole).isEmpty()) << whole.toStdString();
        }
    EXPECT_GT(numbers, 700U);
}

TEST_F(SheetOdt, HeadsOfTablesAreRepeatedOverPages) {
    qsizetype heads = 0;
    for (const Table* const table : all<Table>())
        heads += table->head.empty() ? 0 : 1;
    for (const Equations* const equations : all<Equations>())
        heads += equations->twoResults && !equations->rows.empty() ? 1 : 0;
    EXPECT_GT(heads, 30);
    EXPECT_EQ(content.count("<table:table-header-rows>"), heads);
}

TEST_F(SheetOdt, EveryColumnHasItsWidthAndEveryTableFitsThePage) {
    QHash<QString, double> widths;
    QHash<QString, double> tables; // width of each
    QString style;
    QString table;
    QXmlStreamReader reader(content);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto attribute = [&](const char* name) {
            return reader.attributes().value(QString::fromLatin1(name)).toString();
        };
        const auto name = reader.qualifiedName();
        if (name == u"style:style") {
            style = attribute("style:name");
        } else if (name == u"style:table-column-properties") {
            const QString width = attribute("style:column-width");
            ASSERT_TRUE(width.endsWith(QStringLiteral("mm"))) << style.toStdString();
            widths.insert(style, width.chopped(2).toDouble());
        } else if (name == u"table:table") {
            table = attribute("table:name");
        } else if (name == u"table:table-column" && table != u"Sign") {
            const double width = widths.value(attribute("table:style-name"));
            EXPECT_GT(width, 2) << table.toStdString();
            tables[table] += width;
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_GT(tables.size(), 40);
    for (auto one = tables.cbegin(); one != tables.cend(); ++one) {
        EXPECT_LE(one.value(), 175.01) << one.key().toStdString();
        EXPECT_GT(one.value(), 40) << one.key().toStdString();
    }
}

/// How far the paragraphs of a style stand from the right edge, mm.
double indentOf(const QByteArray& content, const QString& style) {
    const QRegularExpression found(QStringLiteral("style:name=\"%1\"[^>]*>"
                                                  "<style:paragraph-properties "
                                                  "fo:text-align=\"end\" "
                                                  "fo:margin-right=\"([\\d.]+)mm\"")
                                       .arg(style));
    const QRegularExpressionMatch match = found.match(QString::fromUtf8(content));
    EXPECT_TRUE(match.hasMatch()) << style.toStdString();
    return match.captured(1).toDouble();
}

TEST_F(SheetOdt, NumbersOfAColumnStandAtTheirDecimalSigns) {
    // The first point of the line: in whole millimetres, and exact with a decimal.
    const QString text = QString::fromUtf8(content);
    const QRegularExpression rows(QStringLiteral(
        "text:style-name=\"(n?N\\d+)\">\u221282</text:p>.*?text:style-name=\"(n?N\\d+)\">"
        "\u221281\\.8</text:p>"));
    const QRegularExpressionMatch match = rows.match(text);
    ASSERT_TRUE(match.hasMatch());
    constexpr double decimal = 2.5; // mm: a sign and a digit of 8.5 points
    EXPECT_NEAR(indentOf(content, match.captured(1)) - indentOf(content, match.captured(2)),
                decimal, 0.3);
}

TEST_F(SheetOdt, ItsFootCountsThePages) {
    const QByteArray styles = partOf(file, "styles.xml");
    EXPECT_TRUE(styles.contains("Seite <text:page-number>1</text:page-number> von "
                                "<text:page-count>1</text:page-count>"))
        << styles.toStdString();
    EXPECT_TRUE(styles.contains("Hala &lt;B> &amp; C")
                || styles.contains("Hala &lt;B&gt; &amp; C"));
}

TEST_F(SheetOdt, HeadingsAreHeadings) {
    EXPECT_EQ(content.count("<text:h "), static_cast<qsizetype>(all<Heading>().size()));
}

} // namespace
} // namespace ferna::sheet
