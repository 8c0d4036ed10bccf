#include "app/program.h"

#include "app/combination_points.h"
#include "app/document_entries.h"
#include "app/editing_entries.h"
#include "app/sheet_entry.h"
#include "app/unsolved_sheet_entry.h"
#include "combinations/forms/combination_entries.h"
#include "design/configuration.h"
#include "desktop/forms/Help_window.h"
#include "plate/forms/Grub_bla.h"
#include "protocol/renderer_files.h"
#include "report/forms/renderer_wait.h"
#include "report/report_words.h"
#include "selection/forms/Dobor_fer.h"
#include "widgets/hourglass.h"

#include <QApplication>
#include <QMenu>

namespace ferna {

Program::Program(Stan& stan, QString folder)
    : stan_(stan), folder_(std::move(folder)),
      input_(stan_, folder_, dialogs_, [this] { openResults(); }),
      task_(input_, stan_, dialogs_, folder_, keptTasksFolder()),
      reserve_(input_, stan_, [this] { return loadsOf(combinations_); }) {
    addMenus();
    addEditing(input_, stan_);
    combinations_ = new CombinationEntries( // the form owns it
        stan_, input_, dialogs_,
        {.showInChart = [this] { reserve_.showOtherLoads(); },
         .saveSheet =
             [this](const combinations::Digest& digest) {
                 return saveSheetOf(digest, stan_, input_.fields(), dialogs_);
             },
         .answered = [this] { reserve_.capacity().renewSoon(); }});
    view_ = addLiveView(input_, stan_, dialogs_);
    new UnsolvedSheetEntry(input_, stan_, dialogs_); // the form owns it
}

int Program::run(const QString& taskFile) {
    input_.load();
    task_.beforeShown(taskFile);
    input_.show();
    task_.shown(taskFile);
    return QApplication::exec();
}

void Program::addMenus() {
    input_.menus().help->addAction(QStringLiteral("&Pomoc\tF1"),
                                   [this] { openHelp(folder_, help::Start); });
}

void Program::openResults() {
    view_->calculated();
    auto session = std::make_unique<ResultsSession>(
        stan_, dialogs_, folder_, input_.firstNorm(), [] { return QDateTime::currentDateTime(); },
        [this] { return render(); });
    combinations_->calculated();
    results_ = std::make_unique<FernaWyn>(stan_, std::move(session), links());
    addDocumentEntries(*results_, {folder_, dialogs_,
                                   [this](const QStringList& options) { return render(options); }});
    task_.resultsMade(*results_);
    addSheetEntry(*results_, stan_, input_.record(), dialogs_,
                  [this] { return combinations_->calculatedDigest(); });
    input_.hide();
    results_->open();
}

RendererReport Program::render(const QStringList& options) {
    const Hourglass hourglass;
    RendererWait wait(results_.get());
    return runRenderer(
        folder_, options, [&wait](const RendererState& state) { return wait.goOn(state); },
        {.window = results_->winId(), .language = reportWords(stan_.opcje.Nr_jezyka).tag});
}

FernaWyn::Links Program::links() {
    return {
        .plateForm =
            [this](QWidget* parent) {
                Grub_bla form(stan_, folder_, dialogs_, parent);
                if (form.exec() != QDialog::Accepted)
                    return;
                input_.record().plateWorked(notes::plateFacts(stan_, form.worked(), true));
                task_.plateWorked(form);
            },
        .anchorForm =
            [this](QWidget* parent) {
                Dobor_fer form(stan_, folder_, dialogs_, parent);
                if (form.exec() == QDialog::Accepted)
                    task_.anchorSelected(form);
            },
        .help = [this] { openHelp(folder_, help::Start); },
        .back = [this] { input_.show(); },
        .endProgram =
            [this] {
                Zapisz_cfg(stan_, folder_ + QStringLiteral("/Ferna.cfg"),
                           folder_ + u'/' + wyd::replyFile);
                QCoreApplication::exit(0);
            },
        .notes = [this](const QString& label) { return notesOn(label); },
    };
}

QStringList Program::notesOn(const QString& label) {
    notes::Record& record = input_.record();
    record.labelled(label);
    task_.labelled(label);
    QStringList texts;
    for (const notes::Note& note : notes::notesOf(record))
        texts += note.text;
    return texts;
}

} // namespace ferna
