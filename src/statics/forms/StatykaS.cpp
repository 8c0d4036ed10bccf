#include "statics/forms/StatykaS.h"

#include "statics/forms/Obciazenie.h"
#include "statics/forms/Statyka_sch.h"
#include "ui_StatykaS.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "widgets/number_field.h"

#include <QKeyEvent>

namespace ferna {

StatykaS::StatykaS(Stan& stan, Stan_statyki& loads, LoadTable& table, Dialogs& dialogs,
                   QWidget* parent)
    : QDialog(parent), stan_(stan), loads_(loads), table_(table), dialogs_(dialogs),
      form_(openStatics(loads)), ui_(std::make_unique<Ui::StatykaS>()) {
    ui_->setupUi(this);
    keepTablesOut(this);
    Text1_ = {ui_->Text1_0, ui_->Text1_1, ui_->Text1_2, ui_->Text1_3, ui_->Text1_4};
    optTypObciaz_ = {ui_->optTypObciaz_0, ui_->optTypObciaz_1, ui_->optTypObciaz_2};
    optTypsily_ = {ui_->optTypsily_0, ui_->optTypsily_1, ui_->optTypsily_2};
    ui_->Picture1->setSketch(QStringLiteral(":/szkice/slup.svg"));
    putTotalsUnderTheirHeadings();
    connectOptions();
    connectGuarded(ui_->cmdDodaj, &QPushButton::clicked, this, [this] { addLoad(); });
    connectGuarded(ui_->cmdUsun, &QPushButton::clicked, this,
                   [this] { work([this] { removeLoad(loads_, form_, dialogs_); }); });
    connectGuarded(ui_->cmdZapisz, &QPushButton::clicked, this, [this] { save(); });
    showForm();
    centreOnScreen(this);
}

StatykaS::~StatykaS() = default;

void StatykaS::connectOptions() {
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        connectGuarded(optTypObciaz_[at], &QRadioButton::clicked, this,
                       [this, i] { work([this, i] { chooseDirection(form_, i); }); });
        connectGuarded(optTypsily_[at], &QRadioButton::clicked, this,
                       [this, i] { work([this, i] { chooseKind(form_, i); }); });
    }
}

// The headings are one text with blanks between them: every field is as wide as its heading with
// the blanks behind it.
void StatykaS::putTotalsUnderTheirHeadings() {
    const QString headings = ui_->Label2->text();
    const QFontMetrics metrics = ui_->Label2->fontMetrics();
    const int spacing = ui_->layoutSumy->horizontalSpacing();
    qsizetype from = 0;
    for (QLineEdit* field : Text1_) {
        const QString heading = headings.mid(from, headings.indexOf(u']', from) + 1 - from);
        qsizetype next = from + heading.size();
        while (next < headings.size() && headings[next] == u' ')
            ++next;
        const QString whole =
            next < headings.size() ? headings.mid(from, next - from) : heading + QString(8, u' ');
        field->setFixedWidth(metrics.horizontalAdvance(whole) - spacing);
        from = next;
    }
}

void StatykaS::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        ui_->Text1_0->setFocus();
}

// Esc does nothing here: a slip of the finger must not discard the list.
void StatykaS::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        QDialog::keyPressEvent(event);
}

QLineEdit* StatykaS::fieldOf(const TypedValue& value) const {
    switch (value.value) {
    case Value::TotalN:
        return Text1_[0];
    case Value::TotalM1:
        return Text1_[1];
    case Value::TotalM2:
        return Text1_[2];
    case Value::TotalVx:
        return Text1_[3];
    case Value::TotalVy:
        return Text1_[4];
    default:
        return nullptr;
    }
}

void StatykaS::addLoad() {
    work([this] { Obciazenie(loads_, form_, this).exec(); });
}

void StatykaS::save() {
    readForm();
    Statyka_sch(stan_.obciazenia.Liczba_przyp, this).exec();
    try {
        saveTotals(stan_, form_.totals, table_);
    } catch (const RunTimeError& failure) {
        if (failure.number() != error::Subscript)
            throw;
        throw RunTimeError(error::Subscript, QStringLiteral("program przyjmuje najwyżej %1 "
                                                            "przypadków obciążenia")
                                                 .arg(MaxCases));
    }
    accept();
}

void StatykaS::work(const std::function<void()>& core) {
    readForm();
    shownAfterwards(core, [this] { showForm(); });
}

void StatykaS::readForm() {
    form_.totals = {Text1_[0]->text(), Text1_[1]->text(), Text1_[2]->text(), Text1_[3]->text(),
                    Text1_[4]->text()};
    // The line with the focus frame is not chosen by that alone.
    const QModelIndexList chosen = ui_->lstObciazen->selectionModel()->selectedRows();
    form_.selected = chosen.isEmpty() ? -1 : chosen.front().row();
}

void StatykaS::showForm() {
    const auto show = [](QLineEdit* field, const QString& total) {
        if (field->text() != total)
            field->setText(total);
    };
    show(Text1_[0], form_.totals.N);
    show(Text1_[1], form_.totals.M1);
    show(Text1_[2], form_.totals.M2);
    show(Text1_[3], form_.totals.Vx);
    show(Text1_[4], form_.totals.Vy);
    if (form_.lstObciazen.size() != ui_->lstObciazen->count()) {
        ui_->lstObciazen->clear();
        ui_->lstObciazen->addItems(form_.lstObciazen);
    }
    if (form_.optTypObciaz >= 0)
        optTypObciaz_[static_cast<std::size_t>(form_.optTypObciaz)]->setChecked(true);
    if (form_.optTypsily >= 0)
        optTypsily_[static_cast<std::size_t>(form_.optTypsily)]->setChecked(true);
    ui_->optTypsily_1->setVisible(form_.kindsVisible);
    ui_->optTypsily_2->setVisible(form_.kindsVisible);
    ui_->cmdUsun->setEnabled(form_.cmdUsun_enabled);
}

} // namespace ferna
