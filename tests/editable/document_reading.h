#pragma once

#include "batch/report_files.h"
#include "batch/task_run.h"
#include "pages/sketch_files.h"
#include "report/report_model.h"
#include "report/report_words.h"
#include "support/folder.h"
#include "support/task_document.h"

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <nlohmann/json.hpp>

namespace ferna::testing {

/// A text without what word processors make of blanks.
inline QString plain(const QString& text) {
    return text.simplified();
}

/// A report of a task that has every section: cases with and without a sketch, plate, anchor.
struct ReportOfATask {
    Folder folder;
    nlohmann::ordered_json task = nlohmann::ordered_json::parse(R"({
        "Nazwa_projektu": "Hala", "Nazwa_stopy": "F-1", "Nr_normy": 1, "Nr_betonu": 2,
        "Dlug_plyty_mm": 330, "Szer_plyty_mm": 320,
        "Kotwy": [{"x": 115, "y": 110, "fi": 20}, {"x": -115, "y": 110, "fi": 20},
                  {"x": 115, "y": -110, "fi": 20}, {"x": -115, "y": -110, "fi": 20}],
        "Przypadki": [{"N": 59, "M1": 0.07, "M2": 4.5, "Vx": 0, "Vy": 0},
                      {"N": 300, "M1": 12, "M2": 3, "Vx": 0, "Vy": 32.4},
                      {"N": 45.5, "M1": 0, "M2": -1, "Vx": 5.2, "Vy": 0}],
        "Blacha": {"Nr_stali_blachy": 2, "Sprawdzenia":
                   {"3": {"l": 121, "b": 95, "sigma": 6.5},
                    "8": {"b": 245, "a": 453, "c": 97, "S": 51.5}}},
        "Kotwa": {"rodzaj": "P", "g": 50}})");

    ReportOfATask() { batch::deliverPictures(places::bin(), folder.path(QString())); }

    /// The report in a language, its pictures in `folder`.
    const ReportModel& make(Integer language) {
        task["Nr_jezyka"] = language;
        const batch::RunOptions options{{},
                                        places::data(),
                                        QDateTime(QDate(2026, 5, 17), QTime(9, 41)),
                                        folder.path(QString())};
        done =
            std::make_unique<batch::ComputedTask>(batch::run(readTask(documentOf(task)), options));
        EXPECT_TRUE(done->reportReady);
        model = reportModel(done->task.stan, done->raport);
        return model;
    }

    std::unique_ptr<batch::ComputedTask> done;
    ReportModel model;
};

/// A part of a document's package.
inline QByteArray partOf(const QByteArray& package, const char* part) {
    const Folder folder;
    const QString file = folder.write(QStringLiteral("a.zip"), package);
    QProcess unzip;
    unzip.start(QStringLiteral("unzip"), {QStringLiteral("-p"), file, QString::fromLatin1(part)});
    EXPECT_TRUE(unzip.waitForFinished());
    EXPECT_EQ(unzip.exitCode(), 0) << part;
    return unzip.readAllStandardOutput();
}

/// The texts of the paragraphs of a part; cells of a row are joined by a blank. `paragraph` and
/// `row` are the names of their elements without a prefix, `blank` that of written blanks.
inline QStringList textsOf(const QByteArray& xml, const QStringList& paragraphs, const char* row,
                           const char* letters) {
    QXmlStreamReader reader(xml);
    QStringList texts;
    QString text;
    int rows = 0;
    bool inLetters = letters == nullptr;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        const auto name = reader.name();
        if (token == QXmlStreamReader::StartElement && name == QLatin1String(row))
            ++rows;
        else if (token == QXmlStreamReader::StartElement && name == u"s" && letters == nullptr)
            text += u' ';
        else if (token == QXmlStreamReader::StartElement && letters != nullptr
                 && name == QLatin1String(letters))
            inLetters = true;
        else if (token == QXmlStreamReader::StartElement && name == u"desc")
            reader.skipCurrentElement();
        else if (token == QXmlStreamReader::Characters && inLetters)
            text += reader.text();
        else if (token == QXmlStreamReader::EndElement) {
            if (letters != nullptr && name == QLatin1String(letters))
                inLetters = false;
            const bool ends = paragraphs.contains(name.toString());
            if (ends && rows > 0)
                text += u' ';
            if (name == QLatin1String(row))
                --rows;
            if ((ends && rows == 0) || name == QLatin1String(row)) {
                if (!plain(text).isEmpty())
                    texts += plain(text);
                text.clear();
            }
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

inline QStringList odtTexts(const QByteArray& odt) {
    return textsOf(partOf(odt, "content.xml"), {QStringLiteral("p"), QStringLiteral("h")},
                   "table-row", nullptr);
}

inline QStringList docxTexts(const QByteArray& docx) {
    return textsOf(partOf(docx, "word/document.xml"), {QStringLiteral("p")}, "tr", "t");
}

/// What the plain report has for its reader, line by line, in the letters of an editable one. The
/// word before the page's number stands in the header.
inline QStringList plainLines(const ReportModel& report) {
    QStringList lines;
    for (int i = 1; i <= 8; ++i)
        if (i != 6)
            lines += report.title(i);
    lines += report.data + report.anchors + report.loads;
    lines += report.resultsHeading;
    for (const ReportCase& section : report.cases) {
        lines += section.title;
        lines += section.axis;
        for (const ReportResultLine& line : section.results)
            lines += line.ratio ? line.text + QChar(0x3c9) + report.omegaSubscript + *line.ratio
                                : line.text;
    }
    if (report.summary) {
        lines += report.summary->heading;
        lines.append({report.summary->lines.begin(), report.summary->lines.end()});
    }
    if (report.plate)
        lines += report.plate->lines();
    if (report.anchor)
        lines += QStringList(report.anchor->heading) + report.anchor->lines;
    QStringList full;
    for (const QString& line : lines)
        if (!line.trimmed().isEmpty())
            full += plain(fullSpelling(line, report.language));
    return full;
}

/// Every line is among the texts, one behind the other, and nothing but captions and the translated
/// title stands between them.
inline void expectLines(const QStringList& lines, const QStringList& texts) {
    qsizetype next = 0;
    for (const QString& line : lines) {
        const qsizetype found = texts.indexOf(line, next);
        ASSERT_GE(found, 0) << line.toStdString() << "\nis missing in\n"
                            << texts.join(u'\n').toStdString();
        EXPECT_LE(found - next, 1) << "before " << line.toStdString();
        next = found + 1;
    }
    EXPECT_EQ(next, texts.size()) << "behind the last line";
}

} // namespace ferna::testing
