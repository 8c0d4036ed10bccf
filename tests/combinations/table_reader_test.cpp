#include "combinations/table_reader.h"
#include "combinations/workbook.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <QBuffer>
#include <QStringEncoder>

#include <gtest/gtest.h>

namespace ferna::combinations {

namespace {

QStringList written(TableReader& reader) {
    QStringList lines;
    while (const auto row = reader.next()) {
        if (const auto* const refusal = std::get_if<Refusal>(&*row)) {
            lines += refusal->text;
            continue;
        }
        const auto& one = std::get<Combination>(*row);
        lines += QStringLiteral("%1: %2 %3 %4 %5 %6")
                     .arg(one.name)
                     .arg(one.load.N)
                     .arg(one.load.M1)
                     .arg(one.load.M2)
                     .arg(one.shear.Vx)
                     .arg(one.shear.Vy);
    }
    return lines;
}

QStringList read(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    TextSource source(buffer);
    TableReader reader(source);
    return written(reader);
}

QStringList readFile(const QString& path) {
    const auto opened = openTable(path);
    if (const auto* const why = std::get_if<QString>(&opened))
        return {*why};
    TableReader reader(*std::get<std::unique_ptr<RowSource>>(opened));
    return written(reader);
}

const QString polish =
    QStringLiteral("Nazwa;N;M1;M2;Vx;Vy\r\nŚnieg + wiatr ą;1 250,5;-120;0;10;0\r\n");
const QStringList polishRow{QStringLiteral("Śnieg + wiatr ą: 1250.5 -120 0 10 0")};

TEST(TableReader, ReadsUtf8AndUtf16AndCodePage1250) {
    EXPECT_EQ(read(polish.toUtf8()), polishRow);
    EXPECT_EQ(read("\xEF\xBB\xBF" + polish.toUtf8()), polishRow);
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder marked(encoding, QStringConverter::Flag::WriteBom);
        EXPECT_EQ(read(marked(polish)), polishRow);
        QStringEncoder plain(encoding);
        EXPECT_EQ(read(plain(polish)), polishRow);
    }
    QByteArray page = polish.toUtf8();
    page.replace("Ś", "\x8c").replace("ą", "\xb9");
    EXPECT_EQ(read(page), polishRow);
}

TEST(TableReader, ReadsTabsSemicolonsAndCommasWithBothDecimalSigns) {
    const QStringList row{QStringLiteral("a: 1.5 2 3 4 5.25")};
    EXPECT_EQ(read("a\t1,5\t2\t3\t4\t5,25"), row);
    EXPECT_EQ(read("a\t1.5\t2\t3\t4\t5.25"), row);
    EXPECT_EQ(read("a;1,5;2;3;4;5,25"), row);
    EXPECT_EQ(read("a,1.5,2,3,4,5.25"), row);
    EXPECT_EQ(read("\"a\",\"1,5\",\"2\",\"3\",\"4\",\"5,25\""), row);
}

TEST(TableReader, EveryRowIsComputedOrRefusedWithColumnAndReason) {
    EXPECT_EQ(read("KO-1;300;100;20;5;0\nKO-2;300;12,3,4;20;5;0\n\n;;;;;\nKO-3;1 200,5;1;2;3\n"
                   "KO-4;1;2;3;4;1e101\nKO-5;;2;3;4;5\n"),
              (QStringList{QStringLiteral("KO-1: 300 100 20 5 0"),
                           QStringLiteral("kolumna M1: \"12,3,4\" nie jest liczbą"),
                           QStringLiteral("kolumna Vy: brak wartości"),
                           QStringLiteral("kolumna Vy: liczba \"1e101\" jest za duża"),
                           QStringLiteral("kolumna N: brak wartości")}));
}

TEST(TableReader, ARefusalNamesTheColumnAsTheTableDoes) {
    EXPECT_EQ(read("Nazwa;N;My [kNm];Mz;Ty;Tz\nKO-1;1;x;3;4;5\n"),
              QStringList(QStringLiteral("kolumna M1 (My): \"x\" nie jest liczbą")));
}

TEST(TableReader, TurnsUnitsAndSigns) {
    EXPECT_EQ(read("-N [N];M1 [Nmm];M2;Vx;Vy\n-300000;1,2e8;3;4;5\n"),
              QStringList(QStringLiteral(": 300 120 3 4 5")));
}

TEST(TableReader, AMarkThatIsNotClosedLosesNoRow) {
    EXPECT_EQ(read("\"KO-1;300;100;20;5;0\nKO-2;300;100;20;5;0\nKO-3;1;2;3;4;5\n").size(), 3);
    EXPECT_EQ(read("rura 5\";300;100;20;5;0\nrura 6\";1;2;3;4;5\nKO-3;1;2;3;4;5\n").size(), 3);
}

TEST(TableReader, GivesAHundredThousandRowsAsTheyStandWhereverTheBlocksEnd) {
    QByteArray bytes;
    for (int i = 1; i <= 100'000; ++i)
        bytes += "KO " + QByteArray::number(i) + " \xc5\x9bnieg;" + QByteArray::number(i)
                 + ",5;1;2;3;4\r\n";
    for (const bool wide : {false, true}) {
        QStringEncoder encode(QStringConverter::Utf16LE);
        const QStringList rows = read(wide ? QByteArray(encode(QString::fromUtf8(bytes))) : bytes);
        ASSERT_EQ(rows.size(), 100'000);
        for (int i = 1; i <= 100'000; ++i)
            ASSERT_EQ(rows[i - 1], QStringLiteral("KO %1 śnieg: %2 1 2 3 4").arg(i).arg(i + 0.5));
    }
}

TEST(TableReader, ACellOfTwoLinesStaysWholeWhereverTheBlocksEnd) {
    QByteArray table = "Nazwa;N;M1;M2;Vx;Vy\n";
    constexpr int rows = 20'000; // many blocks, whose ends fall anywhere
    for (int i = 1; i <= rows; ++i)
        table += "\"KO " + QByteArray::number(i) + "\nwiatr; parcie\";1;2;3;4;5\n";
    const QStringList lines = read(table);
    ASSERT_EQ(lines.size(), rows);
    for (int i = 1; i <= rows; ++i)
        ASSERT_EQ(lines.at(i - 1), QStringLiteral("KO %1\nwiatr; parcie: 1 2 3 4 5").arg(i));
}

TEST(TableReader, AMarkOfUtf8StandsInNoNameAlsoWhereTheRestIsOfTheCodePage) {
    EXPECT_EQ(read("\xEF\xBB\xBFN;M1;M2;Vx;Vy;Nazwa\n1;2;3;4;5;S\xB3up\n"),
              QStringList(QStringLiteral("Słup: 1 2 3 4 5")));
}

TEST(TableReader, ALineWithoutAnEndTakesNoMoreThanItsRoom) {
    const QByteArray endless = QByteArray("1;2;3;4;") + QByteArray(5'000'000, '7');
    for (const QString& line : read(endless))
        EXPECT_LT(line.size(), 1'200'000);
}

TEST(TableReader, ReadsWorkbooksWithTheirFormulasAndAllDigits) {
    for (const char* file : {"/combinations.xlsx", "/combinations.ods"}) {
        const auto opened =
            openTable(places::source("/tests/combinations/data") + QLatin1String(file));
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<RowSource>>(opened)) << file;
        TableReader reader(*std::get<std::unique_ptr<RowSource>>(opened));
        EXPECT_EQ(reader.layout().skipped, 3);
        const auto first = reader.next();
        ASSERT_TRUE(first && std::holds_alternative<Combination>(*first)) << file;
        const auto& one = std::get<Combination>(*first);
        EXPECT_EQ(one.name, QStringLiteral("KO-1 śnieg"));
        EXPECT_DOUBLE_EQ(one.load.N, 300.125);
        EXPECT_EQ(one.load.M1, 120.123456789);
        EXPECT_EQ(one.load.M2, 10.5);
        EXPECT_EQ(one.shear.Vx, 20.125);
        const auto second = reader.next();
        ASSERT_TRUE(second && std::holds_alternative<Refusal>(*second)) << file;
        EXPECT_EQ(std::get<Refusal>(*second).text,
                  QStringLiteral("kolumna M1 (My): \"brak\" nie jest liczbą"));
        EXPECT_FALSE(reader.next());
    }
}

TEST(OpenTable, SaysWhyAFileCannotBeRead) {
    const testing::Folder folder;
    EXPECT_EQ(readFile(folder.path({})),
              QStringList(QStringLiteral("to jest katalog, a nie plik")));
    EXPECT_EQ(readFile(folder.path(QStringLiteral("brak.csv"))),
              QStringList(QStringLiteral("nie można otworzyć pliku")));
    EXPECT_EQ(readFile(folder.write(QStringLiteral("a.xlsx"), QByteArray("PK\x03\x04zzz", 7))),
              QStringList(QStringLiteral("to nie jest skoroszyt .xlsx ani .ods")));
    QFile whole(places::source("/tests/combinations/data/combinations.xlsx"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    for (qsizetype end = 4; end < bytes.size(); end += 50) {
        const QStringList cut = readFile(folder.write(QStringLiteral("b.xlsx"), bytes.first(end)));
        ASSERT_EQ(cut.size(), 1);
        EXPECT_TRUE(cut.front().contains(u"skoroszyt")) << cut.front().toStdString();
    }
}

} // namespace

} // namespace ferna::combinations
