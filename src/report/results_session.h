#pragma once

#include "desktop/word_processor.h"
#include "protocol/renderer_start.h"
#include "report/report_model.h"
#include "report/rtf_writer.h"

#include <functional>
#include <memory>
#include <utility>

namespace ferna {

/// What the results form does, without its controls: the report is prepared, rebuilt, rendered and
/// saved here. One session lasts from the opening of the form to the way back.
class ResultsSession {
public:
    /// `folder`: the program folder. `norm0`: the first option of the norm control is set. `now`
    /// gives the time of the title block; `render` runs the renderer on the job that was written.
    ResultsSession(Stan& stan, Dialogs& dialogs, QString folder, bool norm0,
                   std::function<QDateTime()> now, std::function<RendererReport()> render);

    /// Prepares the lines, saves the sketches and asks for the label; the first screen picture may
    /// follow. Errors of the writers.
    void open();

    /// Rebuilds the command files and has the renderer make the screen picture. Returns it as the
    /// bytes of a metafile, whose file is gone afterwards. Errors of the writers and the renderer;
    /// 53 where the renderer left no picture.
    QByteArray screenPicture();

    /// Asks for the label, then prints or saves metafiles through the renderer.
    void print(RenderMode mode);
    /// The same under the command's own handler: a failure becomes its message.
    void printOnChosenPrinter();

    /// Asks for the first page number. Error 13 where the answer is no number.
    void askPageNumber();
    /// Asks for the project's name.
    void askProjectName();
    /// Asks for the label of the footing.
    void askLabel() { Nazwa_zadania(raport_, dialogs_); }
    /// Rebuilds the title block, which asks for the label.
    void retitle();

    /// Asks where to and saves the report as RTF; as with the plain text. The page number may grow.
    void saveRtf();

    /// Builds the report as a document of the word processor. Errors of `WordProcessor`.
    std::unique_ptr<WordProcessor> buildDocument() const;
    /// Asks where to, saves the built document and tells how to open it. A document that cannot be
    /// saved ends the command silently; a cancel is as with the plain text.
    void saveDocument(std::unique_ptr<WordProcessor> document);
    /// The word processor to use in place of the installed one.
    void setWordProcessor(std::function<std::unique_ptr<WordProcessor>()> open) {
        openWord_ = std::move(open);
    }

    /// Asks where to and saves the plain text. A file that cannot be written ends the command
    /// silently. The first cancel since the session began saves under the preset name in the
    /// current folder, later ones are error 32755.
    void saveText();

    /// The way back: the label is cleared and the page number taken from the renderer's reply.
    void leave();

    /// The texts of the status bar's panels 2 to 5.
    QString pagePanel() const;
    QString statePanel() const;
    /// True where an anchor or the concrete is exceeded: panel 3 says so.
    bool exceeded() const;
    const QString& projectPanel() const { return stan_.opcje.Nazwa_projektu; }
    const QString& labelPanel() const { return raport_.Nazwa_stopy; }
    /// The label as typed, before it was cut.
    const QString& typedLabel() const { return raport_.typedLabel; }

    /// The files written since this was asked last, as absolute paths; none where a save failed.
    QStringList takeWritten() { return std::exchange(written_, {}); }

    Raport& raport() { return raport_; }
    /// The report as it stands now. Errors of `reportModel`.
    ReportModel model() const { return reportModel(stan_, raport_); }

private:
    QString inFolder(const QString& name) const { return folder_ + u'/' + name; }
    QString askWhereToSave(const SaveQuestion& question);
    void saveSketches();
    void keep(const RtfPages& reached);
    void noteWritten(const QString& path);

    Stan& stan_;
    Dialogs& dialogs_;
    QString folder_;
    bool norm0_;
    std::function<QDateTime()> now_;
    std::function<RendererReport()> render_;
    QStringList written_;
    std::function<std::unique_ptr<WordProcessor>()> openWord_ = [] { return openWordProcessor(); };
    Raport raport_;
    bool reportsCancel_ = false; ///< set once a save question has been asked
    QString behindThePage_; ///< in panel 2: a blank where the RTF report has counted the page on
};

} // namespace ferna
