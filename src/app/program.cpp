#include "app/program.h"

#include "app/document_entries.h"
#include "app/editing_entries.h"
#include "design/configuration.h"
#include "desktop/forms/Help_window.h"
#include "plate/forms/Grub_bla.h"
#include "protocol/renderer_files.h"
#include "report/forms/renderer_wait.h"
#include "selection/forms/Dobor_fer.h"
#include "widgets/hourglass.h"

#include <QApplication>
#include <QMenu>

namespace ferna {

Program::Program(Stan& stan, QString folder)
    : stan_(stan), folder_(std::move(folder)),
      input_(stan_, folder_, dialogs_, [this] { openResults(); }) {
    addMenus();
    addEditing(input_, stan_);
}

int Program::run() {
    input_.load();
    input_.show();
    return QApplication::exec();
}

void Program::addMenus() {
    input_.menus().help->addAction(QStringLiteral("&Pomoc\tF1"),
                                   [this] { openHelp(folder_, help::Start); });
}

void Program::openResults() {
    auto session = std::make_unique<ResultsSession>(
        stan_, dialogs_, folder_, input_.firstNorm(), [] { return QDateTime::currentDateTime(); },
        [this] { return render(); });
    results_ = std::make_unique<FernaWyn>(stan_, std::move(session), links());
    addDocumentEntries(*results_, {folder_, dialogs_,
                                   [this](const QStringList& options) { return render(options); }});
    input_.hide();
    results_->open();
}

RendererReport Program::render(const QStringList& options) {
    const Hourglass hourglass;
    RendererWait wait(results_.get());
    return runRenderer(
        folder_, options, [&wait](const RendererState& state) { return wait.goOn(state); },
        results_->winId());
}

FernaWyn::Links Program::links() {
    return {
        .plateForm =
            [this](QWidget* parent) {
                Grub_bla form(stan_, folder_, dialogs_, parent);
                if (form.exec() == QDialog::Accepted)
                    input_.record().plateWorked(notes::plateFacts(stan_, form.worked(), true));
            },
        .anchorForm =
            [this](QWidget* parent) { Dobor_fer(stan_, folder_, dialogs_, parent).exec(); },
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
    QStringList texts;
    for (const notes::Note& note : notes::notesOf(record))
        texts += note.text;
    return texts;
}

} // namespace ferna
