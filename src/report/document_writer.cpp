#include "report/document_writer.h"

#include "pages/sketch_files.h"
#include "runtime/format.h"

#include <QDir>

namespace ferna {

namespace {

constexpr Double pitch = 9.225;         // height of a text line, points
constexpr qsizetype longestTitle = 150; // letters
constexpr QChar omega{u'\u03c9'};
constexpr int firstSketch = 3; // the sketch of case c is picture c + 3
constexpr Integer rowHeight = 80;
constexpr Integer lastPlaceOfPage = 600; // points; what would stand lower starts a page

/// Horizontal places of the case sketches, three to a row, points.
int leftOfSketch(int c) {
    constexpr int places[] = {60, 190, 320};
    return places[(c - 1) % 3];
}

class DocumentBuilder {
public:
    DocumentBuilder(WordProcessor& word, const ReportModel& report, QString folder)
        : word_(word), report_(report), folder_(std::move(folder)) {}

    void build() {
        word_.getOrCreate();
        word_.Documents_Add();
        titleAndPictures();
        generalData();
        row_ = CInt(pitch * (report_.caseCount() + 4) + top1_ + 120);
        for (int c = 1; c <= report_.caseCount(); ++c)
            loadCase(c);
        // The last result line and the one behind it, so about twice the line count: kept so, it
        // steers the plate picture.
        lines_ = CInt(2 * report_.lastResultLine() + 1);
        if (report_.summary)
            summary(*report_.summary);
        if (report_.plate)
            plateSection(*report_.plate);
        if (report_.anchor)
            anchorSection(*report_.anchor);
    }

private:
    void add(const QString& text) { word_.InsertAfter(text + QStringLiteral("\r\n")); }

    void addAll(const QStringList& lines) {
        for (const QString& line : lines)
            add(line);
    }

    void picture(const QString& file, int number, Integer top, int left) {
        word_.AddPicture(QDir::toNativeSeparators(folder_ + u'/' + file), false, true);
        const QString name = QStringLiteral("Picture ") + Format(number, u"#");
        word_.IncrementTop(name, top);
        word_.IncrementLeft(name, left);
    }

    void titleAndPictures() {
        for (int i = 1; i <= 8; ++i)
            add(report_.title(i).left(longestTitle));
        top1_ = CInt(pitch * (report_.anchorCount() + 13));
        picture(report_.generalView, 2, top1_, 50);
        picture(report_.platePicture, 3, top1_, 250);
    }

    void generalData() {
        addAll(report_.data);
        addAll(report_.anchors);
        addAll(report_.loads);
        add(report_.resultsHeading);
    }

    void loadCase(int c) {
        const ReportCase& section = report_.cases[static_cast<std::size_t>(c - 1)];
        if (c == 4)
            row_ = CInt(row_ + rowHeight);
        add(section.title);
        picture(section.wholePlate() ? noSketchFile : section.figure, c + firstSketch, row_,
                leftOfSketch(c));
        addAll(section.axis);
        add({});
        for (const ReportResultLine& line : section.results)
            add(line.ratio ? line.text + omega + report_.omegaSubscript + *line.ratio : line.text);
        add({});
    }

    void summary(const ReportSummary& section) {
        add(section.heading);
        for (const QString& text : section.lines)
            add(text);
        lines_ = CInt(lines_ + 4);
    }

    void plateSection(const ReportPlate& section) {
        Integer top2 = CInt(pitch * lines_ + row_ + 80);
        if (top2 > lastPlaceOfPage) {
            word_.InsertAfter(QStringLiteral("\r\f"));
            top2 = CInt(top2 + 250);
        }
        word_.GoTo({}, {}, 1);
        picture(report_.generalView, report_.caseCount() + firstSketch + 1, top2, 60);
        addAll(section.lines());
    }

    void anchorSection(const ReportAnchor& section) {
        add({});
        add(section.heading);
        addAll(section.lines);
        word_.InsertAfter(QStringLiteral("\r\n"));
        word_.InsertAfter(
            QStringLiteral("Szkice kotew są w plikach: rys3f.bmp (kotwy fajkowe), rys2pm.bmp "));
        add(QStringLiteral("(małe kotwy płytkowe) i rys2pd.bmp (duże kotwy płytkowe)."));
    }

    WordProcessor& word_;
    const ReportModel& report_;
    QString folder_;
    Integer top1_ = 0;  // vertical shift of the two fixed pictures, points
    Integer row_ = 0;   // vertical shift of the case sketches, points
    Integer lines_ = 0; // estimate of the lines written so far
};

} // namespace

void buildDocument(WordProcessor& word, const ReportModel& report, const QString& folder) {
    DocumentBuilder(word, report, folder).build();
}

void saveDocument(WordProcessor& word, const QString& path) {
    word.SaveAs(path);
    word.Close();
}

void writeDocument(const ReportModel& report, const QString& folder, const QString& path,
                   const WordProcessorPlace& place) {
    const std::unique_ptr<WordProcessor> word = openWordProcessor(place);
    buildDocument(*word, report, folder);
    saveDocument(*word, path);
}

SaveQuestion documentQuestion() {
    return {QStringLiteral("Podaj nazwę dokumentu Word'a"), QStringLiteral("Wyniki"),
            QStringLiteral(".doc"),
            QStringLiteral("plik wyników (*.doc)|*.doc|wszystkie pliki (*.*)|*.*")};
}

QString documentAdvice() {
    return QStringLiteral("    Zaleca się otwieranie dokumentu\n"
                          "       z czcionką o wysokości '8'  i\n"
                          "widokiem ustawionym na 'Układ strony'");
}

QString documentAdviceTitle() {
    return QStringLiteral("Dokument Word'a");
}

} // namespace ferna
