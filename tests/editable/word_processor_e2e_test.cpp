// The editable report in the word processor that is installed.
#include "editable/document_reading.h"
#include "editable/editable_report.h"
#include "report/report_words.h"

using namespace ferna;
using namespace ferna::editable;
using namespace ferna::testing;

namespace {

class InTheWordProcessor : public ::testing::Test, public ReportOfATask {
protected:
    /// The file as the word processor saves it in another format.
    QByteArray converted(const QString& file, const char* format, const char* ending) const {
        QProcess office;
        office.start(QStringLiteral("soffice"),
                     {QStringLiteral("-env:UserInstallation=file://")
                          + folder.path(QStringLiteral("profile")),
                      QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                      QString::fromLatin1(format), QStringLiteral("--outdir"),
                      folder.path(QStringLiteral("out")), file});
        EXPECT_TRUE(office.waitForFinished(120'000));
        EXPECT_EQ(office.exitCode(), 0) << office.readAllStandardError().toStdString();
        return Folder::bytesOf(folder.path(QStringLiteral("out/a.") + QString::fromLatin1(ending)));
    }

    void expectReadBack(const char* ending, const QByteArray& bytes) {
        const QString file =
            folder.write(QStringLiteral("a.") + QString::fromLatin1(ending), bytes);
        const QString text = QString::fromUtf8(converted(file, "txt:Text (encoded):UTF8", "txt"));
        QStringList read;
        for (const QString& line : text.split(u'\n'))
            read += plain(line);
        const QString all = plain(read.join(u' '));
        qsizetype from = 0;
        for (const QString& line : plainLines(model)) {
            const qsizetype found = all.indexOf(line, from);
            ASSERT_GE(found, 0) << ending << ": " << line.toStdString() << "\nin\n"
                                << all.mid(from).toStdString();
            from = found + line.size();
        }
    }
};

TEST_F(InTheWordProcessor, EveryLineIsReadBackFromBothFormats) {
    for (const Integer language : {Integer{0}, Integer{3}}) {
        const Document document = editableReport(make(language), folder.path(QString()));
        expectReadBack("odt", odtFile(document));
        expectReadBack("docx", docxFile(document));
    }
}

TEST_F(InTheWordProcessor, HeadingsFiguresAndTablesArriveAsSuch) {
    const Document document = editableReport(make(2), folder.path(QString()));
    for (const auto& [ending, bytes] :
         {std::pair{"docx", docxFile(document)}, {"odt", odtFile(document)}}) {
        const QString file =
            folder.write(QStringLiteral("a.") + QString::fromLatin1(ending), bytes);
        const QByteArray flat = converted(file, "fodt", "fodt");
        EXPECT_EQ(flat.count("<text:h "), 11) << ending << ": headings in the navigator";
        EXPECT_EQ(flat.count("<draw:frame "), 6) << ending;
        EXPECT_EQ(flat.count("<draw:frame draw:style-name=\""), 6) << ending;
        EXPECT_EQ(flat.count("<table:table table:name"), 3) << ending;
        EXPECT_TRUE(flat.contains("<table:table-header-rows>")) << ending;
        EXPECT_TRUE(flat.contains("<text:page-number")) << ending;
        static const QRegularExpression a4(
            QStringLiteral("fo:page-width=\"(210mm|21cm|8.26\\d*in)\""));
        EXPECT_TRUE(a4.match(QString::fromUtf8(flat)).hasMatch()) << ending;
        EXPECT_EQ(flat.count("<text:sequence "), 5) << ending << ": numbers of the captions";
    }
}

} // namespace
