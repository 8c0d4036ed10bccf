#include "combinations/forms/reading_dialog.h"

#include "runtime/format.h"
#include "widgets/small_screen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>

namespace ferna {

using combinations::Columns;
using combinations::LoadColumn;

namespace {

struct Unit {
    const char16_t* name;
    double factor; ///< to kN or kNm
};
constexpr Unit forces[] = {{u"kN", 1}, {u"N", 1e-3}, {u"MN", 1e3}};
constexpr Unit moments[] = {{u"kNm", 1},     {u"Nm", 1e-3},   {u"Nmm", 1e-6},
                            {u"kNcm", 1e-2}, {u"kNmm", 1e-3}, {u"MNm", 1e3}};

bool isMoment(Value load) {
    return load == Value::M1 || load == Value::M2;
}

QTableWidget* table(const QString& name) {
    auto* const made = new QTableWidget;
    made->setAccessibleName(name);
    made->setEditTriggers(QAbstractItemView::NoEditTriggers);
    made->setSelectionMode(QAbstractItemView::NoSelection);
    made->setTabKeyNavigation(false);
    made->verticalHeader()->setDefaultSectionSize(made->fontMetrics().height() + 6);
    return made;
}

/// A column as a list names it: its heading, else a letter as in a spreadsheet.
QString columnText(const combinations::Layout& layout, int column) {
    QString heading = layout.headings.value(column).simplified();
    if (!heading.isEmpty())
        return heading;
    constexpr int letters = 26;
    return column < letters ? QStringLiteral("kolumna %1").arg(QChar(u'A' + column))
                            : QStringLiteral("kolumna %1").arg(column + 1);
}

} // namespace

ReadingDialog::ReadingDialog(const combinations::Layout& layout, QList<QStringList> first,
                             const QString& source, QWidget* parent)
    : QDialog(parent), layout_(layout), first_(std::move(first)) {
    setObjectName(QStringLiteral("Wczytanie_kombinacji"));
    setWindowTitle(QStringLiteral("Wczytywanie kombinacji - %1").arg(source));
    auto* const page = new QVBoxLayout(this);
    page->addWidget(new QLabel(QStringLiteral("Pierwsze wiersze tabeli:")));
    file_ = table(QStringLiteral("Tabela jak w pliku"));
    page->addWidget(file_, 2);
    auto* const grid = new QGridLayout;
    page->addLayout(grid);
    page->addWidget(new QLabel(QStringLiteral("Tak zostaną odczytane:")));
    read_ = table(QStringLiteral("Odczytane kombinacje"));
    page->addWidget(read_, 2);
    told_ = new QLabel;
    told_->setWordWrap(true);
    told_->setTextFormat(Qt::PlainText);
    page->addWidget(told_);
    buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons_->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Wczytaj"));
    buttons_->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Anuluj"));
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    page->addWidget(buttons_);
    addChoices(grid);
    orderTabs();
    showFile();
    showRead();
    fitToScreen(this, QSize(860, 640));
    QPushButton* const ok = buttons_->button(QDialogButtonBox::Ok);
    (layout_.doubt.isEmpty() && ok->isEnabled() ? static_cast<QWidget*>(ok)
                                                : choices_.front().column)
        ->setFocus();
}

/// From the top down, a load after the other.
void ReadingDialog::orderTabs() {
    QList<QWidget*> order{file_, name_};
    for (const Choice& choice : choices_)
        order += {choice.column, choice.unit, choice.turned};
    order +=
        {read_, buttons_->button(QDialogButtonBox::Ok), buttons_->button(QDialogButtonBox::Cancel)};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

QComboBox* ReadingDialog::columnList(const QString& none, int chosen) {
    auto* const list = new QComboBox;
    list->addItem(none, -1);
    for (int column = 0; column < layout_.width; ++column)
        list->addItem(columnText(layout_, column), column);
    list->setCurrentIndex(list->findData(chosen));
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(12);
    connect(list, &QComboBox::currentIndexChanged, this, [this] { showRead(); });
    return list;
}

void ReadingDialog::addChoices(QGridLayout* grid) {
    const QStringList rows{QStringLiteral("Kolumna"), QStringLiteral("Jednostka"),
                           QStringLiteral("Znak")};
    for (int r = 0; r < rows.size(); ++r)
        grid->addWidget(new QLabel(rows.at(r)), r + 1, 0);
    auto* const label = new QLabel(QStringLiteral("Na&zwa"));
    name_ = columnList(QStringLiteral("(brak)"), layout_.columns.name);
    label->setBuddy(name_);
    grid->addWidget(label, 0, 1);
    grid->addWidget(name_, 1, 1);
    for (int place = 0; place < static_cast<int>(combinations::loads.size()); ++place)
        addChoice(grid, place);
}

void ReadingDialog::addChoice(QGridLayout* grid, int place) {
    const auto index = static_cast<std::size_t>(place);
    const Value load = combinations::loads.at(index);
    const LoadColumn& column = layout_.columns.byLoad.at(index);
    Choice& choice = choices_.at(index);
    const QString symbol = combinations::symbolOf(load);
    static const QStringList labels{QStringLiteral("&N"), QStringLiteral("M&1"),
                                    QStringLiteral("M&2"), QStringLiteral("V&x"),
                                    QStringLiteral("V&y")};
    auto* const label = new QLabel(labels.at(place));
    choice.column = columnList(QStringLiteral("(brak, 0)"), column.column);
    label->setBuddy(choice.column);
    choice.unit = new QComboBox;
    choice.unit->setAccessibleName(QStringLiteral("Jednostka %1").arg(symbol));
    const auto addUnit = [&](const Unit& unit) {
        choice.unit->addItem(QStringView(unit.name).toString(), unit.factor);
        if (std::fabs(std::fabs(column.factor) / unit.factor - 1) < 1e-9)
            choice.unit->setCurrentIndex(choice.unit->count() - 1);
    };
    if (isMoment(load))
        for (const Unit& unit : moments)
            addUnit(unit);
    else
        for (const Unit& unit : forces)
            addUnit(unit);
    choice.turned = new QCheckBox(QStringLiteral("odwróć"));
    choice.turned->setAccessibleName(QStringLiteral("Odwróć znak %1").arg(symbol));
    choice.turned->setChecked(column.factor < 0);
    connect(choice.unit, &QComboBox::currentIndexChanged, this, [this] { showRead(); });
    connect(choice.turned, &QCheckBox::toggled, this, [this] { showRead(); });
    grid->addWidget(label, 0, place + 2);
    grid->addWidget(choice.column, 1, place + 2);
    grid->addWidget(choice.unit, 2, place + 2);
    grid->addWidget(choice.turned, 3, place + 2);
}

Columns ReadingDialog::columns() const {
    Columns columns = layout_.columns;
    columns.name = name_->currentData().toInt();
    for (std::size_t i = 0; i < choices_.size(); ++i) {
        const Choice& choice = choices_.at(i);
        LoadColumn& load = columns.byLoad.at(i);
        load.column = choice.column->currentData().toInt();
        load.factor = choice.unit->currentData().toDouble() * (choice.turned->isChecked() ? -1 : 1);
        if (load.column != layout_.columns.byLoad.at(i).column)
            load.heading = layout_.headings.value(load.column).simplified();
    }
    return columns;
}

void ReadingDialog::showFile() {
    file_->setColumnCount(layout_.width);
    file_->setRowCount(static_cast<int>(first_.size()));
    QStringList headings;
    for (int column = 0; column < layout_.width; ++column)
        headings += columnText(layout_, column);
    file_->setHorizontalHeaderLabels(headings);
    for (int r = 0; r < first_.size(); ++r)
        for (int column = 0; column < layout_.width; ++column)
            file_->setItem(r, column, new QTableWidgetItem(first_.at(r).value(column)));
    file_->resizeColumnsToContents();
}

void ReadingDialog::showRead() {
    const Columns chosen = columns();
    read_->clear();
    read_->clearSpans();
    read_->setColumnCount(static_cast<int>(combinations::loads.size()) + 1);
    read_->setHorizontalHeaderLabels({QStringLiteral("Nazwa"), QStringLiteral("N, kN"),
                                      QStringLiteral("M1, kNm"), QStringLiteral("M2, kNm"),
                                      QStringLiteral("Vx, kN"), QStringLiteral("Vy, kN")});
    read_->setRowCount(static_cast<int>(first_.size()));
    int refused = 0;
    for (int r = 0; r < first_.size(); ++r) {
        const combinations::ReadRow row = combinations::readRow(first_.at(r), chosen);
        if (const auto* const refusal = std::get_if<combinations::Refusal>(&row)) {
            ++refused;
            read_->setItem(r, 0, new QTableWidgetItem(refusal->name));
            read_->setItem(r, 1,
                           new QTableWidgetItem(QStringLiteral("odrzucony: ") + refusal->text));
            read_->setSpan(r, 1, 1, static_cast<int>(combinations::loads.size()));
            continue;
        }
        const auto& one = std::get<combinations::Combination>(row);
        read_->setItem(r, 0, new QTableWidgetItem(one.name));
        int column = 1;
        for (const Double load :
             {one.load.N, one.load.M1, one.load.M2, one.shear.Vx, one.shear.Vy}) {
            auto* const cell = new QTableWidgetItem(general(load));
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            read_->setItem(r, column++, cell);
        }
    }
    read_->resizeColumnToContents(0);
    tell(refused, chosen.byLoad.front().column >= 0);
}

/// What an engineer should look at before the table is taken.
void ReadingDialog::tell(int refused, bool hasN) {
    QStringList told;
    if (!layout_.doubt.isEmpty())
        told += QStringLiteral("Wybierz kolumny: %1.").arg(layout_.doubt);
    if (!layout_.assumed.isEmpty())
        told += QStringLiteral("Uwaga: %1.").arg(layout_.assumed);
    if (refused > 0)
        told += QStringLiteral("Z pokazanych wierszy odrzucono: %1.").arg(refused);
    if (!hasN)
        told += QStringLiteral("Bez kolumny N nie ma czego liczyć.");
    told_->setText(told.join(u'\n'));
    told_->setVisible(!told.isEmpty());
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(hasN);
}

} // namespace ferna
