#include "smallest/forms/SmallestWindow.h"

#include "smallest/forms/design_table.h"
#include "smallest/forms/range_fields.h"
#include "smallest/words.h"
#include "ui_SmallestWindow.h"
#include "widgets/environment_stop.h"
#include "widgets/small_screen.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QShowEvent>

namespace ferna {

namespace {

/// A number with its thousands apart.
QString counted(long value) {
    QString digits = QString::number(value);
    for (qsizetype place = digits.size() - 3; place > 0; place -= 3)
        digits.insert(place, QChar(0x00a0));
    return digits;
}

} // namespace

SmallestWindow::SmallestWindow(Links links, QWidget* parent)
    : QDialog(parent, Qt::Window), links_(std::move(links)),
      ui_(std::make_unique<Ui::SmallestWindow>()), found_(new DesignTable(this)) {
    ui_->setupUi(this);
    fillRangeLists(*ui_);
    ui_->tabela->setModel(found_);
    ui_->tabela->horizontalHeader()->setStretchLastSection(true);
    ui_->tabela->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->lblNieSprawdzono->setText(QStringLiteral("Czego szukanie nie sprawdza: ")
                                   + smallest::notChecked().join(u' '));
    connectGuarded(ui_->cmdSzukaj, &QPushButton::clicked, this, [this] { search(); });
    connectGuarded(ui_->cmdPrzejmij, &QPushButton::clicked, this, [this] { takeChosen(); });
    connect(ui_->cmdPrzerwij, &QPushButton::clicked, this, [this] { stopped_ = true; });
    connect(ui_->cmdZamknij, &QPushButton::clicked, this, &SmallestWindow::close);
    connect(ui_->tabela->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { showChoice(); });
    const auto enableWidths = [this] {
        for (QWidget* field : {ui_->spnSzOd, ui_->spnSzDo, ui_->spnSzCo})
            field->setEnabled(ui_->optSzer->isChecked());
        ui_->spnProporcja->setEnabled(ui_->optProporcja->isChecked());
    };
    connect(ui_->optSzer, &QRadioButton::toggled, this, enableWidths);
    enableWidths();
    showSearching(false);
    fitToScreen(this, sizeHint().expandedTo(QSize(1180, 760)));
}

SmallestWindow::~SmallestWindow() = default;

void SmallestWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    if (!std::exchange(isShownBefore_, true)) {
        smallest::DesignRange range;
        range.columnLength = range.columnWidth = 300;
        range.length = {400, 900, 20};
        range.width = {300, 900, 20};
        range.steels = {std::max<Integer>(links_.stan.opcje.Nr_stali, 1)};
        showRange(*ui_, range);
    }
    showLoads();
    ui_->spnSlupH->setFocus();
}

void SmallestWindow::closeEvent(QCloseEvent* event) {
    stopped_ = true;
    QDialog::closeEvent(event);
}

void SmallestWindow::reject() {
    stopped_ = true;
    QDialog::reject();
}

void SmallestWindow::showLoads() {
    const auto task = smallest::enteredTask(links_.stan, links_.fields());
    ui_->lblObciazenia->setText(
        task
            ? QStringLiteral("Obciążenia, beton i stosunek n z zadania; liczba przypadków: %1.")
                  .arg(task->cases.size())
            : QStringLiteral("Obciążenia i stosunek n muszą być liczbami, n nie może być ujemne."));
    ui_->cmdSzukaj->setEnabled(task.has_value() && !searching_);
}

void SmallestWindow::loadsChanged() {
    if (!isVisible())
        return;
    showLoads();
    if (found_->rowCount() > 0 && !searching_)
        ui_->lblWynik->setText(QStringLiteral(
            "Zadanie zmieniło się od szukania: przed przejęciem podstawy szukaj ponownie."));
}

void SmallestWindow::showSearching(bool searching) {
    searching_ = searching;
    ui_->postep->setVisible(searching);
    ui_->cmdPrzerwij->setVisible(searching);
    ui_->cmdSzukaj->setEnabled(!searching);
    showChoice();
}

// Between the parts of the search the window lives: it can be stopped and closed.
bool SmallestWindow::goesOn(double share) {
    ui_->postep->setValue(static_cast<int>(1000 * share));
    QCoreApplication::processEvents();
    return !stopped_;
}

void SmallestWindow::search() {
    if (searching_)
        return;
    const smallest::DesignRange range = rangeIn(*ui_);
    found_->show({}, 1);
    if (const std::optional<smallest::RangePart> wrong = wrongPart(range)) {
        ui_->lblWynik->setText(smallest::wordsOf(*wrong));
        return;
    }
    const InputFields fields = links_.fields();
    const auto task = smallest::enteredTask(links_.stan, fields);
    showLoads();
    if (!task)
        return;
    range_ = range;
    stopped_ = false;
    ui_->lblWynik->clear();
    showSearching(true);
    const Stan stan = links_.stan; // as it is now, whatever is typed meanwhile
    smallest::Winners winners;
    try {
        winners = smallest::winners(range, *task, stan, fields, wanted,
                                    [this](double share) { return goesOn(share); });
    } catch (...) {
        showSearching(false);
        throw;
    }
    showSearching(false);
    showFound(winners);
}

void SmallestWindow::showFound(const smallest::Winners& winners) {
    const smallest::Found& found = winners.found;
    QString words = found.stopped ? QStringLiteral("Przerwano. ") : QString();
    words += QStringLiteral("Podstaw w zakresie: %1, mieszczących się: %2, wystarczających: %3.")
                 .arg(counted(found.candidates), counted(found.placed), counted(found.passed));
    if (found.tooThick > 0)
        words +=
            QStringLiteral(" Z blachą za grubą dla jej stali: %1.").arg(counted(found.tooThick));
    if (found.passed == 0 && !found.stopped)
        words += QStringLiteral(" Żadna nie wystarcza: poszerz zakres albo wybierz inną stal.");
    ui_->lblWynik->setText(words);
    found_->show(winners.all, range_.pressure);
    ui_->tabela->resizeColumnsToContents();
    if (found_->rowCount() > 0) {
        ui_->tabela->selectRow(0);
        ui_->tabela->setFocus();
    }
}

void SmallestWindow::showChoice() {
    ui_->cmdPrzejmij->setEnabled(!searching_ && ui_->tabela->selectionModel()->hasSelection());
}

void SmallestWindow::takeChosen() {
    const int row = ui_->tabela->currentIndex().row();
    if (row < 0)
        return;
    const smallest::Design design = found_->at(row).design;
    links_.take(design, range_);
    ui_->lblWynik->setText(QStringLiteral("Podstawa %1 × %2 mm z %3 kotwami %4 mm stoi w zadaniu.")
                               .arg(design.length)
                               .arg(design.width)
                               .arg(design.layout)
                               .arg(design.diameter));
}

} // namespace ferna
