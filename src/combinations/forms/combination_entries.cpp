#include "combinations/forms/combination_entries.h"

#include "input/forms/Ferna3.h"
#include "live/told_checks.h"
#include "runtime/dialogs.h"
#include "runtime/format.h"
#include "runtime/settings.h"
#include "windows/save_question.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>

namespace ferna {

namespace {

constexpr std::array columns{Value::N, Value::M1, Value::M2, Value::Vx, Value::Vy};

} // namespace

CombinationEntries::CombinationEntries(const Stan& stan, Ferna3& form, Dialogs& dialogs,
                                       AroundCombinations around)
    : QObject(&form), stan_(stan), form_(form), dialogs_(dialogs), around_(std::move(around)) {
    QAction* const entry =
        form.menus().task->addAction(QStringLiteral("&Kombinacje..."), this, [this] { open(); });
    entry->setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    form.largeTable = [this](const QString& table) { return offer(table); };
    connect(&form, &Ferna3::entered, this, [this] {
        if (window_)
            window_->baseChanged();
    });
}

void CombinationEntries::open() {
    if (!window_)
        window_ = std::make_unique<CombinationsWindow>(
            stan_,
            CombinationsWindow::Links{
                .fields = [this] { return form_.fields(); },
                .putIntoTable = [this](const CombinationsWindow::Rows& rows) { put(rows); },
                .saveName =
                    [this](const QString& name) {
                        SaveSurroundings surroundings;
                        surroundings.parent = window_.get();
                        return askWhereToSave({.title = QStringLiteral("Eksport kombinacji"),
                                               .preset = name,
                                               .extension = QStringLiteral(".csv"),
                                               .filter = QStringLiteral("CSV (*.csv)|*.csv")},
                                              surroundings);
                    },
                .openName =
                    [this] {
                        return QFileDialog::getOpenFileName(
                            window_.get(), QStringLiteral("Tabela kombinacji"),
                            settings::saveFolder(),
                            QStringLiteral("Tabele (*.csv *.tsv *.txt *.xlsx *.ods);;"
                                           "Wszystkie pliki (*)"));
                    },
                .told = [this] { return live::toldChecks(form_.record(), stan_); },
                .showInChart = around_.showInChart,
                .saveSheet = around_.saveSheet,
                .answered = around_.answered},
            nullptr);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void CombinationEntries::openWith(const QString& table) {
    open();
    window_->readText(table);
}

bool CombinationEntries::offer(const QString& table) {
    if (!dialogs_.confirm(QStringLiteral("Tabela ma więcej wierszy, niż mieści tabela obciążeń.\n"
                                         "Otworzyć ją w oknie Kombinacje, które wybierze wiersze "
                                         "miarodajne?"),
                          QStringLiteral("Ferna 2005 Pr - Kombinacje")))
        return false;
    openWith(table);
    return true;
}

void CombinationEntries::calculated() {
    if (window_)
        window_->calculated();
}

std::optional<combinations::Digest> CombinationEntries::calculatedDigest() const {
    return window_ ? window_->calculatedDigest() : std::nullopt;
}

/// The load table takes the rows as if they were typed; rows behind them go.
void CombinationEntries::put(const CombinationsWindow::Rows& rows) {
    form_.replaceLoads(static_cast<int>(rows.size()), [&] {
        int r = 0;
        for (const auto& [row, one] : rows) {
            const std::array loads{one.load.N, one.load.M1, one.load.M2, one.shear.Vx,
                                   one.shear.Vy};
            for (std::size_t i = 0; i < columns.size(); ++i)
                form_.fieldOf({columns.at(i), r})->setText(general(loads.at(i)));
            ++r;
        }
    });
    Q_EMIT form_.stepped(QStringLiteral("wstawienie kombinacji"));
}

} // namespace ferna
