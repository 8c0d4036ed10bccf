#include "combinations/forms/answers_filter.h"
#include "combinations/forms/answers_model.h"
#include "combinations/forms/case_picture.h"
#include "combinations/forms/combinations_window.h"
#include "combinations/forms/comparison_view.h"
#include "combinations/forms/governing_view.h"
#include "combinations/forms/histogram.h"
#include "combinations/forms/use_bar.h"
#include "editing/forms/clipboard_table.h"
#include "widgets/environment_stop.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

// The parts of the window "Kombinacje", from the top down.

namespace ferna {

using combinations::RowNumber;

QWidget* CombinationsWindow::topRow() {
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    open_ = new QPushButton(QStringLiteral("Wczytaj &plik..."));
    auto* const paste = new QPushButton(QStringLiteral("W&klej"));
    paste->setToolTip(QStringLiteral("Wczytuje tabelę skopiowaną z arkusza lub programu"));
    for (QPushButton* button : {open_, paste})
        button->setAutoDefault(false);
    connect(open_, &QPushButton::clicked, this, [this] {
        if (const QString path = links_.openName(); !path.isEmpty())
            readFile(path);
    });
    connect(paste, &QPushButton::clicked, this,
            [this] { readText(clipboardTable(QApplication::clipboard()->mimeData())); });
    state_ = new QLabel;
    state_->setTextFormat(Qt::PlainText);
    progress_ = new QProgressBar;
    progress_->setMaximumWidth(180);
    stop_ = new QPushButton(QStringLiteral("P&rzerwij"));
    stop_->setAutoDefault(false);
    connect(stop_, &QPushButton::clicked, this, [this] { work_.stop(); });
    layout->addWidget(open_);
    layout->addWidget(paste);
    layout->addWidget(state_, 1);
    layout->addWidget(progress_);
    layout->addWidget(stop_);
    return row;
}

QWidget* CombinationsWindow::tableSide() {
    auto* const side = new QWidget;
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    governing_ = new GoverningView([this](RowNumber row) { choose(row); });
    layout->addWidget(governing_);
    auto* const row = new QHBoxLayout;
    filterText_ = new QLineEdit;
    filterText_->setClearButtonEnabled(true);
    filterText_->setPlaceholderText(QStringLiteral("nazwa, numer wiersza lub uwaga"));
    auto* const label = new QLabel(QStringLiteral("&Filtr:"));
    label->setBuddy(filterText_);
    shown_ = new QComboBox;
    shown_->addItems({QStringLiteral("wszystkie"), QStringLiteral("niespełnione"),
                      QStringLiteral("sześć do tabeli"), QStringLiteral("odrzucone")});
    auto* const shownLabel = new QLabel(QStringLiteral("Pok&aż:"));
    shownLabel->setBuddy(shown_);
    row->addWidget(label);
    row->addWidget(filterText_, 1);
    row->addWidget(shownLabel);
    row->addWidget(shown_);
    layout->addLayout(row);
    connect(filterText_, &QLineEdit::returnPressed, this, [this] { table_->setFocus(); });
    connect(filterText_, &QLineEdit::textChanged, this, [this](const QString& text) {
        filter_->setText(text);
        showState();
    });
    connect(shown_, &QComboBox::currentIndexChanged, this, [this](int index) {
        filter_->setShown(static_cast<AnswersFilter::Shown>(index));
        showState();
    });
    layout->addWidget(combinationTable(), 1);
    return side;
}

QWidget* CombinationsWindow::combinationTable() {
    model_ = new AnswersModel(this);
    filter_ = new AnswersFilter(this);
    filter_->setSourceModel(model_);
    table_ = new QTableView;
    table_->setAccessibleName(QStringLiteral("Kombinacje"));
    table_->setModel(filter_);
    table_->setSortingEnabled(true);
    table_->sortByColumn(AnswersModel::Row, Qt::AscendingOrder);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    table_->horizontalHeader()->setStretchLastSection(true);
    auto* const bars = new UseBar(table_);
    for (int column = AnswersModel::Worst; column <= AnswersModel::Interaction; ++column)
        table_->setItemDelegateForColumn(column, bars);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { showChosen(); });
    return table_;
}

QWidget* CombinationsWindow::pictureSide() {
    tabs_ = new QTabWidget;
    picture_ = new CasePicture;
    histogram_ = new Histogram;
    comparison_ = new ComparisonView;
    tabs_->addTab(picture_, QStringLiteral("&Obraz"));
    tabs_->addTab(histogram_, QStringLiteral("&Histogram"));
    tabs_->addTab(comparison_, QStringLiteral("Porów&nanie z Oblicz"));
    return tabs_;
}

QWidget* CombinationsWindow::bottomRow() {
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    putButton_ = new QPushButton(QStringLiteral("&Wstaw do tabeli"));
    putButton_->setToolTip(
        QStringLiteral("Wpisuje do tabeli obciążeń wiersze miarodajne i następne "
                       "najbardziej wytężone, razem do sześciu"));
    chart_ = new QPushButton(QStringLiteral("Na w&ykres nośności"));
    chart_->setToolTip(QStringLiteral("Pokazuje wszystkie kombinacje jako punkty na wykresie "
                                      "obciążeń, do których podstawa wystarcza"));
    export_ = new QPushButton(QStringLiteral("&Eksportuj CSV..."));
    export_->setToolTip(QStringLiteral("Zapisuje wszystkie wiersze z odpowiedziami"));
    sheet_ = new QPushButton(QStringLiteral("&Do arkusza..."));
    sheet_->setToolTip(QStringLiteral("Zapisuje arkusz obliczeniowy tych do sześciu wierszy z "
                                      "podsumowaniem całej tabeli"));
    auto* const close = new QPushButton(QStringLiteral("&Zamknij"));
    for (QPushButton* button : {putButton_, chart_, export_, sheet_, close})
        button->setAutoDefault(false);
    chart_->setVisible(links_.showInChart != nullptr);
    sheet_->setVisible(links_.saveSheet != nullptr);
    connect(putButton_, &QPushButton::clicked, this, [this] { putSix(); });
    connect(chart_, &QPushButton::clicked, this, [this] { links_.showInChart(); });
    connect(export_, &QPushButton::clicked, this, [this] { exportCsv(); });
    connectGuarded(sheet_, &QPushButton::clicked, this, [this] { saveSheet(); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    for (QPushButton* button : {putButton_, chart_, export_, sheet_})
        layout->addWidget(button);
    layout->addStretch(1);
    layout->addWidget(close);
    return row;
}

} // namespace ferna
