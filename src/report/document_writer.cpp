#include "report/document_writer.h"

#include "report/zone_sketch.h"
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
const QString noSketch = QStringLiteral("gkrys0.bmp");
const QString generalView = QStringLiteral("Ferogo2.bmp");
const QString platePicture = QStringLiteral("Ferrob.bmp");

/// Horizontal places of the case sketches, three to a row, points.
int leftOfSketch(int c) {
    constexpr int places[] = {60, 190, 320};
    return places[(c - 1) % 3];
}

class DocumentBuilder {
public:
    DocumentBuilder(WordProcessor& word, const Stan& stan, const Raport& raport, QString folder)
        : word_(word), stan_(stan), raport_(raport), folder_(std::move(folder)), results_(stan) {}

    void build() {
        word_.getOrCreate();
        word_.Documents_Add();
        titleAndPictures();
        generalData();
        row_ = CInt(pitch * (cases() + 4) + top1_ + 120);
        for (int c = 1; c <= cases(); ++c)
            loadCase(c);
        // About twice the line count: kept so, it steers the plate picture.
        lines_ = CInt(stan_.wyniki.Ostatni_wiersz(cases()) + results_.nextLine());
        if (cases() > 1)
            summary();
        if (stan_.raport.Liczba_wierszy_blachy > 0)
            plateSection();
        if (stan_.raport.Liczba_wierszy_kotwy > 0)
            anchorSection();
    }

private:
    int cases() const { return stan_.obciazenia.Liczba_przyp; }

    void add(const QString& text) { word_.InsertAfter(text + QStringLiteral("\r\n")); }

    void picture(const QString& file, int number, Integer top, int left) {
        word_.AddPicture(QDir::toNativeSeparators(folder_ + u'/' + file), false, true);
        const QString name = QStringLiteral("Picture ") + Format(number, u"#");
        word_.IncrementTop(name, top);
        word_.IncrementLeft(name, left);
    }

    void titleAndPictures() {
        for (int i = 1; i <= 8; ++i)
            add(raport_.Wiersze_naglowka(i).left(longestTitle));
        top1_ = CInt(pitch * (stan_.plyta.Liczba_srub + 13));
        picture(generalView, 2, top1_, 50);
        picture(platePicture, 3, top1_, 250);
    }

    void generalData() {
        for (int i = 1; i <= 4; ++i)
            add(raport_.Wiersze_danych(i));
        for (int i = 0; i <= stan_.plyta.Liczba_srub; ++i)
            add(stan_.raport.Wiersze_srub(i));
        for (int i = 0; i <= cases() + 2; ++i)
            add(stan_.raport.Wiersze_obciazen(i));
        add(raport_.Wiersze_stale(0));
    }

    void loadCase(int c) {
        if (c == 4)
            row_ = CInt(row_ + rowHeight);
        add(caseTitle(stan_, c));
        picture(wholePlate(stan_, c) ? noSketch : zoneSketchFile(c), c + firstSketch, row_,
                leftOfSketch(c));
        if (!wholePlate(stan_, c)) {
            add(raport_.Wiersze_strefy(c - 1));
            add(raport_.Wiersze_stale(1));
        }
        add(raport_.Wiersze_stale(2));
        results_.ofCase(
            c, [this](const QString& text) { add(text); },
            [this](const QString& text, const QString& ratio) {
                add(text + omega + omegaSubscript(stan_) + ratio);
            });
        add(raport_.Wiersze_stale(2));
    }

    void summary() {
        add(raport_.Wiersze_stale(3));
        for (const QString& text : Wiersze_podsumowania(stan_))
            add(text);
        lines_ = CInt(lines_ + 4);
    }

    void plateSection() {
        Integer top2 = CInt(pitch * lines_ + row_ + 80);
        if (top2 > lastPlaceOfPage) {
            word_.InsertAfter(QStringLiteral("\r\f"));
            top2 = CInt(top2 + 250);
        }
        word_.GoTo({}, {}, 1);
        picture(generalView, cases() + firstSketch + 1, top2, 60);
        for (int i = 0; i <= stan_.raport.Liczba_wierszy_blachy; ++i)
            add(stan_.raport.Wiersze_blachy(i));
    }

    void anchorSection() {
        add(QString());
        for (int i = 1; i <= stan_.raport.Liczba_wierszy_kotwy; ++i)
            add(stan_.raport.Wiersze_kotwy(i));
        word_.InsertAfter(QStringLiteral("\r\n"));
        word_.InsertAfter(
            QStringLiteral("Szkice kotew są w plikach: rys3f.bmp (kotwy fajkowe), rys2pm.bmp "));
        add(QStringLiteral("(małe kotwy płytkowe) i rys2pd.bmp (duże kotwy płytkowe)."));
    }

    WordProcessor& word_;
    const Stan& stan_;
    const Raport& raport_;
    QString folder_;
    ResultLines results_;
    Integer top1_ = 0;  // vertical shift of the two fixed pictures, points
    Integer row_ = 0;   // vertical shift of the case sketches, points
    Integer lines_ = 0; // estimate of the lines written so far
};

} // namespace

void buildDocument(WordProcessor& word, const Stan& stan, const Raport& raport,
                   const QString& folder) {
    DocumentBuilder(word, stan, raport, folder).build();
}

void saveDocument(WordProcessor& word, const QString& path) {
    word.SaveAs(path);
    word.Close();
}

void writeDocument(const Stan& stan, const Raport& raport, const QString& folder,
                   const QString& path, const WordProcessorPlace& place) {
    const std::unique_ptr<WordProcessor> word = openWordProcessor(place);
    buildDocument(*word, stan, raport, folder);
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
