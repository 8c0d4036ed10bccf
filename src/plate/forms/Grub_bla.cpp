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

template <typename Control, std::size_t N>
void collect(const QWidget* form, const char* name, std::array<Control*, N>& controls) {
    for (std::size_t i = 0; i < N; ++i)
        controls[i] = form->findChild<Control*>(QString::fromLatin1(name).arg(i));
}

} // namespace

Grub_bla::Grub_bla(Stan& stan, const QString& folder, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), stan_(stan), folder_(folder), dialogs_(dialogs), form_(openPlateForm(stan)),
      ui_(std::make_unique<Ui::Grub_bla>()) {
    ui_->setupUi(this);
    keepTablesOut(this);
    collectControls();
    ui_->cmbStalb->addItems(plateSteelNames());
    ui_->cmbStalb->setCurrentIndex(-1);
    ui_->cmbStalb->installEventFilter(this);
    ui_->Text4->installEventFilter(this);
    ui_->cmbProfil->addItems(profileNames());
    ui_->cmbProfil->setCurrentIndex(-1);
    connectTabs();
    connectCommands();
    for (std::size_t i = 0; i < Text1_.size(); ++i)
        Text1_[i]->setText(form_.fields.Text1[i]);
    for (std::size_t i = 0; i < Text2_.size(); ++i)
        Text2_[i]->setText(form_.fields.Text2[i]);
    for (std::size_t i = 0; i < Text3_.size(); ++i)
        Text3_[i]->setText(form_.fields.Text3[i]);
    showForm();
    chooseTab(0);
    centreOnScreen(this);
}

Grub_bla::~Grub_bla() = default;

void Grub_bla::collectControls() {
    collect(this, "Text1_%1", Text1_);
    collect(this, "Text2_%1", Text2_);
    collect(this, "Text3_%1", Text3_);
    collect(this, "Label8_%1", Label8_);
    for (int tab = 0; tab < PlateChecks; ++tab)
        cmdOblicz_.at(static_cast<std::size_t>(plateTab(tab).check - 1)) = command(tab);
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
    std::array<PictureView*, sketches.size()> pictures{};
    collect(this, "Picture1_%1", pictures);
    for (std::size_t i = 0; i < pictures.size(); ++i)
        pictures[i]->setSketch(QStringLiteral(":/szkice/%1.svg").arg(QLatin1String(sketches[i])));
}

QPushButton* Grub_bla::command(int tab) const {
    return findChild<QPushButton*>(QString::fromLatin1(plateTab(tab).command));
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
        connectCommand(findChild<QPushButton*>(QStringLiteral("cmdAnulujto_%1").arg(i)),
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
    const PlateTab& shown = plateTab(ui_->SSTab1->currentIndex());
    findChild<QWidget*>(QString::fromLatin1(shown.firstField))->setFocus(Qt::TabFocusReason);
}

void Grub_bla::work(const std::function<void()>& core) {
    readFields();
    shownAfterwards(core, [this] { showForm(); });
}

void Grub_bla::readFields() {
    const auto texts = [](const auto& lines, auto& to) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            to[i] = lines[i]->text();
    };
    texts(Text1_, form_.fields.Text1);
    texts(Text2_, form_.fields.Text2);
    texts(Text3_, form_.fields.Text3);
    form_.fields.Text4 = ui_->Text4->text();
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
