#include "app/unsolved_sheet_entry.h"

#include "app/sheet_entry.h"
#include "widgets/environment_stop.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QMenu>
#include <QPushButton>

namespace ferna {

UnsolvedSheetEntry::UnsolvedSheetEntry(Ferna3& form, const Stan& stan, Dialogs& dialogs)
    : QObject(&form), form_(form), stan_(stan), dialogs_(dialogs),
      entry_(form.menus().task->addAction(QStringLiteral("&Arkusz obliczeniowy..."))),
      written_(new WrittenFiles(&form)) {
    form.menus().task->setToolTipsVisible(true);
    if (auto* const layout = qobject_cast<QBoxLayout*>(form.layout()))
        layout->addWidget(written_);
    // The letter of the button is that of Oblicz here.
    auto* const folder = written_->findChild<QPushButton*>(QStringLiteral("cmdOtworz_folder"));
    folder->setText(folder->text().remove(u'&'));
    connectGuarded(entry_, &QAction::triggered, &form, [this] { save(); });
    connect(&form, &Ferna3::calculating, this, [this] {
        ended_.reset();
        written_->hide();
        renew();
    });
    connect(&form, &Ferna3::endedWithoutResults, this, [this](const QStringList& told) {
        ended_ = Ended{stan_, form_.record(), notes::entered(stan_, form_.fields()), told};
        renew();
    });
    connect(form.menus().task, &QMenu::aboutToShow, this, &UnsolvedSheetEntry::renew);
    renew();
}

bool UnsolvedSheetEntry::isDue() const {
    if (!ended_ || ended_->stan.opcje.Nr_normy != stan_.opcje.Nr_normy
        || ended_->stan.opcje.Nr_betonu != stan_.opcje.Nr_betonu)
        return false;
    return notes::sameTask(notes::entered(stan_, form_.fields()), ended_->left);
}

void UnsolvedSheetEntry::renew() {
    const bool due = isDue();
    entry_->setEnabled(due);
    entry_->setToolTip(
        due ? QStringLiteral("Arkusz obliczenia, które nie dało wyników: na dokładnej równowadze")
            : QStringLiteral("Arkusz obliczenia z wynikami zapisuje się z okna wyników (Więcej). "
                             "Tutaj zapisuje się arkusz obliczenia, które nie dało wyników, "
                             "dopóki zadanie jest tym, które obliczono."));
}

void UnsolvedSheetEntry::save() {
    if (!isDue())
        return;
    Stan shown = ended_->stan;
    shown.opcje.Nr_jezyka = stan_.opcje.Nr_jezyka; // a choice of the document alone
    const std::optional<QString> file =
        askAndSaveSheet({.stan = shown,
                         .record = ended_->record,
                         .messages = ended_->told,
                         .project = ended_->record.given().fields.txtNaz_proj},
                        dialogs_);
    if (file)
        written_->tell({QFileInfo(*file).absoluteFilePath()});
}

} // namespace ferna
