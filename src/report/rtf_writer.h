#pragma once

#include "report/report_lines.h"
#include "runtime/text_file.h"

namespace ferna {

/// Writes the report as Rich Text, line by line as literal control words: the text is fixed, also
/// where it is not correct RTF. Pictures are not embedded, the file links to bitmaps by bare name.
/// A file line is a line of the class, so that a pattern reads like the file it writes.
class RtfWriter {
public:
    /// `now` is the date and time in the title block of every page but the first.
    RtfWriter(Stan& stan, Raport& raport, QDateTime now)
        : stan_(stan), raport_(raport), now_(std::move(now)) {}

    /// The whole file, its body by `Tryb_RTF`. Error 5 for a mode that has no body.
    void document();

    /// The body for a word processor that lets pictures stand in a row before their text.
    void Wyniki_RTF_ms();
    /// The body for one that hangs each picture beside its text, in two columns.
    void Wyniki_RTF_so();

    /// Page test before a block of `wysokosc`, y being the height used of the page (3.17 a line).
    /// Past 210 a page begins with the title block: `Nr_strony` grows and title line 6 becomes
    /// date, time and page number. In either case y grows by `wysokosc`. Error 6 past page 32767.
    void Koniec_strony_RTF(Single& y, Double wysokosc);

    TextFileWriter& file() { return file_; }
    /// Names of the pictures that the text links to, each once, in the order of the text.
    const QStringList& pictures() const { return pictures_; }
    Single Poz_rtf = 0; ///< running height estimate of the page

private:
    static constexpr Double lineHeight = 3.17;

    struct DeferredText;

    /// A file line of pieces written one behind the other.
    template <typename... Pieces>
    void put(const Pieces&... pieces) {
        QString text;
        (text.append(pieces), ...);
        file_.line(text);
    }

    // Line forms.
    void line(const QString& text);
    void afterFrameLine(const QString& text);
    void heading(const QString& text);
    void reset(const QString& text);
    void spacer();
    /// `gap` stands between the frame and the end of its line.
    void placed(const QString& frame, QStringView gap = {});

    /// A frame with a linked picture, which is noted.
    QString frame(QStringView head, const QString& name);
    void notePicture(const QString& name);

    void titleBlock(QStringView opening);
    void fixedPictures();
    void generalData();
    /// The lines of a case from its title on; `sketch` is written behind the title where there is
    /// one.
    void loadCase(ResultLines& results, int c, const QString& sketch = {});
    void caseTest(int c, int furtherLines);
    void summary();
    void plateHeading();
    void casesOfRow(ResultLines& results, int first, int last, int furtherLines);
    void plateRow();
    void flush(DeferredText& text, int from);
    void plateColumns();

    Stan& stan_;
    Raport& raport_;
    QDateTime now_;
    TextFileWriter file_;
    QStringList pictures_;
};

/// A frame with a linked picture: `head` is its size and place.
QString rtfFrame(QStringView head, const QString& name);

/// The report as RTF. Afterwards `Nr_strony` is the number of the last page written and title line
/// 6 carries it, where the report took more than a page. Error 5 for a mode without RTF, error 6
/// past page 32767.
TextFileWriter rtfReport(Stan& stan, Raport& raport, const QDateTime& now);

/// The same into a file; where that fails no page has been counted. Errors of `writeFileWhole` too.
void saveRtfReport(Stan& stan, Raport& raport, const QDateTime& now, const QString& path);

/// The question for the name of the file.
SaveQuestion rtfQuestion();

} // namespace ferna
