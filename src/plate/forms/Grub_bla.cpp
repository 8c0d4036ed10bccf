#include "plate/forms/Grub_bla.h"

#include "pages/sketch_files.h"
#include "plate/forms/KGM8b.h"
#include "plate/forms/result_age.h"
#include "plate/plate_checks.h"
#include "plate/plate_report_lines.h"
#include "plate/plate_tables.h"
#include "ui_Grub_bla.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "widgets/number_field.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QTimer>

#include <utility>

namespace ferna {

namespace {

/// The sketch in `Picture1(i)`, image i + 1.
constexpr std::array sketches{"szkic1",  "szkic2",  "szkic31", "szkic32",
                              "szkic33", "szkic51", "szkic52"};

void keepItsPlace(QWidget* control) {
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

} // namespace

Grub_bla::Grub_bla(Stan& stan, const QString& folder, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), stan_(stan), folder_(folder), dialogs_(dialogs), form_(openPlateForm(stan)),
      ui_(std::make_unique<Ui::Grub_bla>()) {
    ui_->setupUi(this);
    keepTablesOut(this);
    collectControls();
    collectLines();
    ui_->cmbStalb->addItems(plateSteelNames());
    ui_->cmbStalb->setCurrentIndex(-1);
    ui_->cmbStalb->installEventFilter(this);
    ui_->Text4->installEventFilter(this);
    ui_->cmbProfil->addItems(profileNames());
    ui_->cmbProfil->setCurrentIndex(-1);
    connectTabs();
    connectCommands();
    for (const Line& line : lines_)
        line.field->setText(*line.text);
    showForm();
    chooseTab(0);
    centreOnScreen(this);
}

Grub_bla::~Grub_bla() = default;

void Grub_bla::collectControls() {
    const Ui::Grub_bla& u = *ui_;
    Label8_ = {u.Label8_0, u.Label8_1, u.Label8_2, u.Label8_3,
               u.Label8_4, u.Label8_5, u.Label8_6, u.Label8_7};
    cmdOblicz_ = {u.cmdOblicz1,  u.cmdOblicz2,  u.cmdOblicz31, u.cmdOblicz4,
                  u.cmdOblicz32, u.cmdOblicz33, u.cmdOblicz51, u.cmdOblicz52};
    cmdAnulujto_ = {u.cmdAnulujto_0, u.cmdAnulujto_1, u.cmdAnulujto_2, u.cmdAnulujto_3,
                    u.cmdAnulujto_4, u.cmdAnulujto_5, u.cmdAnulujto_6, u.cmdAnulujto_7};
    firstFields_ = {u.Text1_0, u.Text1_5, u.Text1_4, u.cmbProfil,
                    u.Text2_1, u.Text1_3, u.Text1_2, u.Text1_1};
    for (int tab = 0; tab < PlateChecks; ++tab) {
        const auto check = static_cast<std::size_t>(plateTab(tab).check - 1);
        resultAges_[check] = new ResultAge(ui_->SSTab1->widget(tab), Label8_[check], ui_->cmbStalb);
    }
    for (QWidget* line : Label8_)
        keepItsPlace(line);
    for (QWidget* control :
         {static_cast<QWidget*>(ui_->Label10_0), static_cast<QWidget*>(ui_->Text4),
          static_cast<QWidget*>(ui_->Label10_1)})
        keepItsPlace(control);
    const std::array<PictureView*, sketches.size()> pictures{
        u.Picture1_0, u.Picture1_1, u.Picture1_2, u.Picture1_3,
        u.Picture1_4, u.Picture1_5, u.Picture1_6};
    for (std::size_t i = 0; i < pictures.size(); ++i)
        pictures[i]->setSketch(QStringLiteral(":/szkice/%1.svg").arg(QLatin1String(sketches[i])));
}

QPushButton* Grub_bla::command(int tab) const {
    return cmdOblicz_.at(static_cast<std::size_t>(plateTab(tab).check - 1));
}

void Grub_bla::collectLines() {
    const Ui::Grub_bla& u = *ui_;
    PlateFields& f = form_.fields;
    lines_ = {
        {u.Text1_0, &f.check1.bs, {Value::CheckBs, 1}},
        {u.Text2_0, &f.check1.ca, {Value::CheckCa, 1}},
        {u.Text3_0, &f.check1.S, {Value::CheckS, 1}},
        {u.Text2_1, &f.check2.ca, {Value::CheckCa, 2}},
        {u.Text3_1, &f.check2.sigma_k, {Value::CheckSigmaK, 2}},
        {u.Text3_8, &f.check2.sigma_p, {Value::CheckSigmaP, 2}},
        {u.Text1_1, &f.check3.l, {Value::CheckL, 3}},
        {u.Text2_2, &f.check3.b, {Value::CheckB, 3}},
        {u.Text3_3, &f.check3.sigma, {Value::CheckSigma, 3}},
        {u.Text3_2, &f.check4.sigma, {Value::CheckSigma, 4}},
        {u.Text1_2, &f.check5.l, {Value::CheckL, 5}},
        {u.Text2_3, &f.check5.b, {Value::CheckB, 5}},
        {u.Text3_4, &f.check5.sigma, {Value::CheckSigma, 5}},
        {u.Text1_3, &f.check6.l, {Value::CheckL, 6}},
        {u.Text2_4, &f.check6.b, {Value::CheckB, 6}},
        {u.Text3_5, &f.check6.sigma, {Value::CheckSigma, 6}},
        {u.Text1_4, &f.check7.b, {Value::CheckB, 7}},
        {u.Text2_5, &f.check7.a, {Value::CheckA, 7}},
        {u.Text2_6, &f.check7.c, {Value::CheckC, 7}},
        {u.Text3_6, &f.check7.S, {Value::CheckS, 7}},
        {u.Text1_5, &f.check8.b, {Value::CheckB, 8}},
        {u.Text2_8, &f.check8.a, {Value::CheckA, 8}},
        {u.Text2_7, &f.check8.c, {Value::CheckC, 8}},
        {u.Text3_7, &f.check8.S, {Value::CheckS, 8}},
        {u.Text4, &f.Text4, {Value::AcceptedThickness}},
    };
}

QLineEdit* Grub_bla::fieldOf(const TypedValue& value) const {
    for (const Line& line : lines_)
        if (line.value == value)
            return line.field;
    return nullptr;
}

// The list of the tabs never takes the focus: the keys go to the first field of the chosen one.
void Grub_bla::connectTabs() {
    QListWidget* const list = ui_->lstZakladki;
    const int rowHeight = 2 * list->fontMetrics().height();
    for (int tab = 0; tab < PlateChecks; ++tab)
        list->item(tab)->setSizeHint({list->sizeHintForColumn(0), rowHeight});
    list->setFixedWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() + 8);
    list->setMinimumHeight(PlateChecks * rowHeight + 2 * list->frameWidth());
    connect(list, &QListWidget::currentRowChanged, this, &Grub_bla::chooseTab);
    connect(list, &QListWidget::itemClicked, this, [this] { focusFirstField(); });
    const auto onKeys = [this](const QKeySequence& keys, auto tab) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, tab] { chooseTab(tab()); });
    };
    for (int tab = 0; tab < PlateChecks; ++tab) {
        onKeys(Qt::ALT | Qt::Key(Qt::Key_1 + tab), [tab] { return tab; });
        list->item(tab)->setToolTip(QStringLiteral("Alt+%1").arg(tab + 1));
    }
    const auto step = [this](int by) {
        return
            [this, by] { return (ui_->SSTab1->currentIndex() + PlateChecks + by) % PlateChecks; };
    };
    onKeys(Qt::CTRL | Qt::Key_Tab, step(1));
    onKeys(Qt::CTRL | Qt::Key_PageDown, step(1));
    onKeys(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, step(-1));
    onKeys(Qt::CTRL | Qt::Key_PageUp, step(-1));
}

void Grub_bla::connectCommands() {
    for (int i = 0; i < PlateChecks; ++i) {
        connectCommand(cmdOblicz_.at(static_cast<std::size_t>(i)), [this, i] {
            work([this, i] { computePlateCheck({stan_, form_, dialogs_, *this}, i + 1); });
            const auto at = static_cast<std::size_t>(i);
            if (form_.face.Label8_visible[at] && form_.face.Label8[at] != noPlateResult)
                resultAges_[at]->computed();
        });
        connectCommand(cmdAnulujto_.at(static_cast<std::size_t>(i)),
                       [this, i] { work([this, i] { cmdAnulujto(stan_, form_, i); }); });
    }
    connectCommand(ui_->cmdOK, [this] { writeSection(); });
    connectCommand(ui_->cmdAnuluj, [this] { reject(); });
}

// A button pressed by its mnemonic or by Enter does not take the focus by itself, but the list of
// grades is left all the same, and before the command runs.
void Grub_bla::connectCommand(QPushButton* button, const std::function<void()>& handler) {
    connectGuarded(button, &QPushButton::clicked, this, [this, button, handler] {
        if (focusWidget() == ui_->cmbStalb)
            button->setFocus(Qt::ShortcutFocusReason);
        settleGradeList();
        handler();
    });
}

bool Grub_bla::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->Text4) {
        if (event->type() == QEvent::FocusIn)
            ui_->cmdOK->setDefault(true);
        else if (event->type() == QEvent::FocusOut)
            command(ui_->SSTab1->currentIndex())->setDefault(true);
    } else if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool staysInTheForm = reason != Qt::ActiveWindowFocusReason
                                    && reason != Qt::PopupFocusReason
                                    && reason != Qt::MenuBarFocusReason;
        if (staysInTheForm) {
            gradeListLeft_ = true;
            QTimer::singleShot(0, this, &Grub_bla::settleWhenFree);
        }
    }
    return QDialog::eventFilter(watched, event);
}

// Leaving the list may open the dialog of the steel. Opened in the middle of a click it would
// swallow the release of the mouse button, and with it the command that was clicked. The focus that
// goes down to the opened list and comes back has not left it.
void Grub_bla::settleWhenFree() {
    constexpr int lookAgain = 20; // ms
    if (QGuiApplication::mouseButtons() != Qt::NoButton
        || QApplication::activePopupWidget() != nullptr)
        QTimer::singleShot(lookAgain, this, &Grub_bla::settleWhenFree);
    else if (isVisible() && focusWidget() != ui_->cmbStalb)
        guarded(this, [this] { settleGradeList(); });
    else
        gradeListLeft_ = false;
}

void Grub_bla::settleGradeList() {
    if (std::exchange(gradeListLeft_, false))
        work([this] { leaveGradeList(stan_, form_, dialogs_, *this); });
}

void Grub_bla::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        ui_->cmbStalb->setFocus();
}

// Esc does nothing here: a slip of the finger must not withdraw every check.
void Grub_bla::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        QDialog::keyPressEvent(event);
}

// Enter in a field computes the check of its tab, Enter in the accepted thickness means OK.
void Grub_bla::chooseTab(int tab) {
    ui_->SSTab1->setCurrentIndex(tab);
    ui_->lstZakladki->setCurrentRow(tab);
    command(tab)->setDefault(true);
    if (isVisible())
        focusFirstField();
}

void Grub_bla::focusFirstField() {
    firstFields_.at(static_cast<std::size_t>(ui_->SSTab1->currentIndex()))
        ->setFocus(Qt::TabFocusReason);
}

void Grub_bla::work(const std::function<void()>& core) {
    readFields();
    shownAfterwards(core, [this] { showForm(); });
}

void Grub_bla::readFields() {
    for (const Line& line : lines_)
        *line.text = line.field->text();
    form_.fields.cmbStalb = ui_->cmbStalb->currentIndex();
    form_.fields.cmbProfil = ui_->cmbProfil->currentIndex();
}

void Grub_bla::showForm() {
    const PlateFace& face = form_.face;
    for (std::size_t i = 0; i < PlateChecks; ++i) {
        Label8_[i]->setText(face.Label8[i]);
        Label8_[i]->setVisible(face.Label8_visible[i]);
        if (!face.Label8_visible[i])
            resultAges_[i]->withdrawn();
        cmdOblicz_[i]->setEnabled(face.cmdOblicz_enabled[i]);
    }
    ui_->Label10_0->setVisible(face.Label10_visible);
    ui_->Label10_1->setVisible(face.Label10_visible);
    if (ui_->Text4->text() != form_.fields.Text4)
        ui_->Text4->setText(form_.fields.Text4);
    ui_->Text4->setVisible(face.Text4_visible);
}

void Grub_bla::writeSection() {
    readFields();
    try {
        const std::optional<PlateSection> section = writePlateSection(stan_, form_, dialogs_);
        if (!section)
            return;
        for (const PlateSketch& sketch : section->sketches)
            savePlateSketch(folder_, sketch.image, QString::fromLatin1(sketch.file));
    } catch (...) { // back in the form, "Anuluj wszystko" must leave no section
        stan_.raport.Liczba_wierszy_blachy = 0;
        throw;
    }
    accept();
}

void Grub_bla::KGM8b(Stan& stan) {
    ferna::KGM8b(stan, dialogs_, this).exec();
}

} // namespace ferna
