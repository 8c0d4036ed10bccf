#pragma once

#include "report/report_model.h"
#include "runtime/text_file.h"

namespace ferna {

/// How far the pages of an RTF report have gone: the number of the last one, and its title line 6,
/// which carries it where the report took more than a page.
struct RtfPages {
    Integer Nr_strony = 1;
    QString pageLine;
};

/// Writes the report as Rich Text, line by line as literal control words: the text is fixed, also
/// where it is not correct RTF. Pictures are not embedded, the file links to bitmaps by bare name.
/// A file line is a line of the class, so that a pattern reads like the file it writes.
class RtfWriter {
public:
    /// `now` is the date and time in the title block of every page but the first.
    RtfWriter(ReportModel report, QDateTime now)
        : report_(std::move(report)),
          now_(std::move(now)), reached_{report_.firstPage, report_.title(6)} {}

    /// The whole file, its body by `Tryb_RTF`. Error 5 for a mode that has no body.
    void document(Integer Tryb_RTF);

    /// The body for a word processor that lets pictures stand in a row before their text.
    void Wyniki_RTF_ms();
    /// The body for one that hangs each picture beside its text, in two columns.
    void Wyniki_RTF_so();

    /// Page test before a block of `wysokosc`, y being the height used of the page (3.17 a line).
    /// Past 210 a page begins with the title block: the page number grows and title line 6 becomes
    /// date, time and page number. In either case y grows by `wysokosc`. Error 6 past page 32767.
    void Koniec_strony_RTF(Single& y, Double wysokosc);

    TextFileWriter& file() { return file_; }
    const RtfPages& reached() const { return reached_; }
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
    void loadCase(const ReportCase& section, const QString& sketch = {});
    void caseTest(const ReportCase& section, int furtherLines);
    void summary(const ReportSummary& section);
    void plateHeading(const ReportPlate& section);
    /// `count` cases from the index `first` on.
    void casesOfRow(int first, int count, int furtherLines);
    void plateRow(const ReportPlate& section);
    void flush(DeferredText& text, int from);
    void plateColumns(const ReportPlate& section);

    const ReportModel report_;
    QDateTime now_;
    RtfPages reached_;
    TextFileWriter file_;
    QStringList pictures_;
};

/// A frame with a linked picture: `head` is its size and place.
QString rtfFrame(QStringView head, const QString& name);

/// The report as RTF, its body by `Tryb_RTF`. Error 5 for a mode without RTF, error 6 past page
/// 32767.
RtfWriter rtfReport(const ReportModel& report, Integer Tryb_RTF, const QDateTime& now);

/// The same into a file. Returns the pages reached, which the caller keeps. Errors of
/// `writeFileWhole` too.
RtfPages saveRtfReport(const ReportModel& report, Integer Tryb_RTF, const QDateTime& now,
                       const QString& path);

/// The question for the name of the file.
SaveQuestion rtfQuestion();

} // namespace ferna
