#include "sheet/sheet_file.h"

#include "desktop/word_processor.h"
#include "runtime/passing_folder.h"
#include "runtime/text_file.h"
#include "sheet/html_writer.h"
#include "sheet/odt_writer.h"
#include "sheet/pages.h"

#include <array>

namespace ferna::sheet {

namespace {

void saveHtml(const Sheet& sheet, const QString& file) {
    writeFileWhole(file, htmlOf(sheet));
}

void savePdf(const Sheet& sheet, const QString& file) {
    writeFileWhole(file, Pages(sheet).pdf());
}

void saveOdt(const Sheet& sheet, const QString& file) {
    writeFileWhole(file, odtOf(sheet));
}

/// By the word processor, out of the OpenDocument text.
void saveDocx(const Sheet& sheet, const QString& file) {
    const PassingFolder folder(QStringLiteral("arkusz"));
    const QString made = folder.path() + QStringLiteral("/arkusz.odt");
    saveOdt(sheet, made);
    const std::unique_ptr<WordProcessor> word = openWordProcessor();
    word->getOrCreate();
    word->Documents_Open(made);
    word->SaveAs(file);
    word->Close();
}

struct Format {
    const char* ending;
    void (*save)(const Sheet& sheet, const QString& file);
};

// One row a format.
constexpr std::array formats{Format{".pdf", savePdf}, Format{".html", saveHtml},
                             Format{".odt", saveOdt}, Format{".docx", saveDocx}};

const Format* formatOf(const QString& file) {
    for (const Format& format : formats)
        if (file.endsWith(QLatin1String(format.ending), Qt::CaseInsensitive))
            return &format;
    return nullptr;
}

} // namespace

QStringList sheetEndings() {
    QStringList endings;
    for (const Format& format : formats)
        endings += QString::fromLatin1(format.ending);
    return endings;
}

bool isSheetFile(const QString& file) {
    return formatOf(file) != nullptr;
}

void saveSheet(const Sheet& sheet, const QString& file) {
    formatOf(file)->save(sheet, file);
}

} // namespace ferna::sheet
