#include "editable/editable_report.h"

#include "pages/bitmap_file.h"
#include "pages/sketch_files.h"
#include "report/report_words.h"
#include "runtime/run_time_error.h"

#include <QBuffer>
#include <QRegularExpression>

#include <algorithm>

namespace ferna::editable {

namespace {

// Printed sizes of the pictures, mm; those of the report on paper.
constexpr QSizeF generalViewSize(52.9, 34.7);
constexpr QSizeF plateSize(70.1, 46.6);
constexpr QSizeF zoneSize(41.1, 27.9);
constexpr QSizeF anchorSize(91.5, 29.0);
constexpr double plateSketchWidth = 33; // their heights differ

const QRegularExpression severalBlanks(QStringLiteral("\\s{2,}"));

QStringList cellsOf(const QString& line) {
    return line.trimmed().split(severalBlanks);
}

class Builder {
public:
    Builder(const ReportModel& report, QString pictures)
        : report_(report), words_(reportWords(report.language)), pictures_(std::move(pictures)) {}

    Document build() {
        properties();
        titleBlock();
        generalData();
        text(report_.resultsHeading, Style::Heading1);
        for (const ReportCase& section : report_.cases)
            loadCase(section);
        if (report_.summary)
            summary(*report_.summary);
        if (report_.plate)
            plateSection(*report_.plate);
        if (report_.anchor)
            anchorSection(*report_.anchor);
        return std::move(document_);
    }

private:
    QString spelt(const QString& line) const { return fullSpelling(line, report_.language); }

    void properties() {
        document_.title = documentTitle(report_.language, report_.norm);
        document_.subject = words_.subject;
        document_.author = report_.title(3).trimmed();
        document_.languageTag = words_.tag;
        document_.project = report_.title(4).trimmed();
        document_.label = report_.title(7).trimmed();
        document_.page = words_.page;
        document_.figure = words_.figure;
        document_.firstPage = qMax<int>(1, report_.firstPage);
        document_.created = report_.titledAt;
    }

    /// A line; an empty one leaves nothing, as the styles bring their own room.
    void text(const QString& line, Style style = Style::Text) {
        if (!line.trimmed().isEmpty())
            document_.blocks.push_back(Paragraph{style, {{spelt(line)}}});
    }

    Image image(const QString& file, QSizeF sizeMm, const QString& description) const {
        const QImage picture = readPicture(pictures_ + u'/' + file);
        if (picture.isNull())
            throw RunTimeError(error::FileNotFound, pictures_ + u'/' + file);
        if (sizeMm.height() == 0)
            sizeMm.setHeight(sizeMm.width() * picture.height() / picture.width());
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        picture.convertToFormat(QImage::Format_RGB888).save(&buffer, "PNG");
        return {png, sizeMm, description};
    }

    void figure(std::vector<Image> images, const QString& caption) {
        document_.blocks.push_back(Figure{std::move(images), caption});
    }

    void titleBlock() {
        text(report_.title(1), Style::Title);
        const QString translated = documentTitle(report_.language, report_.norm);
        if (words_.tag != reportWords(0).tag)
            text(translated, Style::Subtitle);
        for (const int line : {2, 3})
            text(report_.title(line), Style::Subtitle);
        for (const int line : {4, 5, 7})
            text(report_.title(line));
        figure({image(report_.generalView, generalViewSize, words_.views),
                image(report_.platePicture, plateSize, words_.views)},
               words_.views);
    }

    void generalData() {
        for (const QString& line : report_.data)
            text(line);
        text(report_.anchors.front(), Style::Heading1);
        table(report_.anchors.mid(1), QStringLiteral("Kotwy"),
              {{12, Align::Right}, {20}, {38}, {38}});
        text(report_.loads.front(), Style::Heading1);
        loadTable();
    }

    void loadTable() {
        std::vector<Column> columns{{30}};
        columns.insert(columns.end(), 5, {29, Align::Right});
        const QStringList& lines = report_.loads;
        table(lines.mid(2), QStringLiteral("Obciazenia"), columns,
              QStringList(QString()) + cellsOf(lines[1])); // the column of the cases has no letter
    }

    /// The lines as a table of so many columns below its header, if any; where one has other cells,
    /// as paragraphs.
    void table(const QStringList& lines, const QString& name, const std::vector<Column>& columns,
               const QStringList& header = {}) {
        Table made{name, columns, {}, !header.isEmpty(), false};
        if (made.hasHeader)
            made.rows.push_back(header);
        for (const QString& line : lines)
            if (!line.trimmed().isEmpty())
                made.rows.push_back(cellsOf(spelt(line)));
        const bool even = std::all_of(made.rows.begin(), made.rows.end(), [&](const auto& row) {
            return row.size() == static_cast<qsizetype>(columns.size());
        });
        if (even && !made.rows.empty()) {
            document_.blocks.push_back(std::move(made));
            return;
        }
        text(header.join(QStringLiteral("  ")));
        for (const QString& line : lines)
            text(line);
    }

    void loadCase(const ReportCase& section) {
        ++case_;
        text(section.title, Style::Heading2);
        if (!section.wholePlate()) {
            const QString caption = words_.zone.arg(spelt(section.title));
            figure({image(section.figure, zoneSize, caption)}, caption);
            text(section.axis.front());
            text(section.axis.last(), Style::TableTitle);
        }
        std::size_t next = stresses(section.results);
        for (; next < section.results.size(); ++next)
            result(section.results[next]);
    }

    /// The lines of the anchors in tension as a table. Returns how many lines they are.
    std::size_t stresses(const std::vector<ReportResultLine>& lines) {
        // "2  -1413.29 MPa      -346.3 kN - exceeded!"
        static const QRegularExpression anchor(
            QStringLiteral("^\\s*(\\d+)\\s{2,}(\\S.* MPa)\\s{2,}(\\S.*? kN)(.*)$"));
        Table made{QStringLiteral("Przypadek %1").arg(case_),
                   {{12, Align::Right}, {34, Align::Right}, {30, Align::Right}, {80}},
                   {},
                   false,
                   true};
        bool remarks = false;
        for (const ReportResultLine& line : lines) {
            const QRegularExpressionMatch match = anchor.match(line.text);
            if (!match.hasMatch() || line.ratio)
                break;
            const QString remark = spelt(match.captured(4)).trimmed();
            remarks = remarks || !remark.isEmpty();
            made.rows.push_back({match.captured(1), match.captured(2), match.captured(3), remark});
        }
        if (!remarks) {
            made.columns.pop_back();
            for (QStringList& row : made.rows)
                row.removeLast();
        }
        const std::size_t count = made.rows.size();
        if (count > 0)
            document_.blocks.push_back(std::move(made));
        return count;
    }

    void result(const ReportResultLine& line) {
        constexpr QChar omega(u'\u03c9');
        if (!line.ratio) {
            text(line.text);
            return;
        }
        document_.blocks.push_back(Paragraph{
            Style::Text,
            {{spelt(line.text) + omega}, {QString(report_.omegaSubscript), true}, {*line.ratio}}});
    }

    void summary(const ReportSummary& section) {
        text(section.heading, Style::Heading1);
        for (const QString& line : section.lines)
            text(line);
    }

    void plateSection(const ReportPlate& section) {
        text(section.heading(), Style::Heading1);
        for (const ReportPlateBlock& block : section.blocks) {
            text(block.lines.front(), Style::Heading2);
            const QString caption = spelt(block.lines.front()).trimmed();
            if (!block.figure.isEmpty())
                figure({image(block.figure, {plateSketchWidth, 0}, caption)}, caption);
            for (const QString& line : block.lines.mid(1))
                text(line);
        }
        for (const QString& line : section.rest)
            text(line);
    }

    void anchorSection(const ReportAnchor& section) {
        saveAnchorSketch(pictures_, section.sketch);
        text(section.heading, Style::Heading1);
        figure({image(section.figure, anchorSize, words_.anchor)}, words_.anchor);
        for (const QString& line : section.lines)
            text(line);
    }

    const ReportModel& report_;
    const ReportWords words_;
    const QString pictures_;
    Document document_;
    int case_ = 0;
};

} // namespace

QString Document::headerText() const {
    const bool both = !project.isEmpty() && !label.isEmpty();
    return project + (both ? QStringLiteral(" \u2013 ") : QString()) + label;
}

QString Document::createdText() const {
    return created.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}

Document editableReport(const ReportModel& report, const QString& pictures) {
    return Builder(report, pictures).build();
}

Writer writerFor(const QString& file) {
    if (file.endsWith(QStringLiteral(".odt"), Qt::CaseInsensitive))
        return odtFile;
    if (file.endsWith(QStringLiteral(".docx"), Qt::CaseInsensitive))
        return docxFile;
    return nullptr;
}

} // namespace ferna::editable
