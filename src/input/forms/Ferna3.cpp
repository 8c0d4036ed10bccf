#include "input/forms/Ferna3.h"

#include "design/configuration.h"
#include "design/language.h"
#include "design/material_tables.h"
#include "design/start_up.h"
#include "design/typed_names.h"
#include "input/forms/FernaPon.h"
#include "input/forms/Fernafi.h"
#include "input/forms/KGM8.h"
#include "input/forms/Nowa_Sruba.h"
#include "input/forms/left_fields.h"
#include "input/forms/load_rows.h"
#include "input/load_table.h"
#include "input/material_fields.h"
#include "input/plate_drawing.h"
#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "runtime/format.h"
#include "statics/forms/StatykaS.h"
#include "ui_Ferna3.h"
#include "widgets/codepage_note.h"
#include "widgets/environment_stop.h"
#include "widgets/field_place.h"
#include "widgets/form_tools.h"
#include "widgets/notes.h"
#include "widgets/number_field.h"
#include "widgets/small_screen.h"

#include <QCloseEvent>
#include <QGroupBox>

namespace ferna {

namespace {

constexpr int generalTab = 1;
constexpr int anchorTab = 3;

} // namespace

Ferna3::Ferna3(Stan& stan, const QString& folder, Dialogs& dialogs,
               std::function<void()> openResults)
    : stan_(stan), folder_(folder), dialogs_(dialogs), openResults_(std::move(openResults)),
      ui_(std::make_unique<Ui::Ferna3>()),
      left_(new LeftFields(this, [this](QWidget* field) { leave(field); })) {
    ui_->setupUi(this);
    setWindowFlags(Qt::Window);
    collectFields();
    for (QGroupBox* group : findChildren<QGroupBox*>())
        stopTabAtTheChoice(group);
    showNote(ui_->txtNaz_proj, ui_->lblZnaki_projektu, projectNote);
    keepRoomForNote(ui_->lblZnaki_projektu);
    showAsWarning(ui_->lblLista_nieaktualna, true);
    keepTablesOut(this, {ui_->txtNaz_proj});
    ui_->Picture1->setSketch(QStringLiteral(":/szkice/Ferogo2.svg"));
    for (QWidget* field :
         {static_cast<QWidget*>(ui_->Text1), static_cast<QWidget*>(ui_->Text2),
          static_cast<QWidget*>(ui_->cmbBeton), static_cast<QWidget*>(ui_->cmbStal)})
        left_->watch(field);
    addTabKeys(this, ui_->SSTab1);
    connectGuarded(ui_->SSTab1, &QTabWidget::currentChanged, this, [this] { tabChanged(); });
    connect(ui_->SSTab1, &QTabWidget::tabBarClicked, this, [this](int tab) {
        if (tab == ui_->SSTab1->currentIndex())
            focusFirstField();
    });
    connectOptions();
    connectAnchorCommands();
    connectCommand(ui_->cmdStatyka, [this] { declareColumn(); });
    connectCommand(ui_->cmdOblicz, [this] { calculate(); });
    connectCommand(ui_->cmdKoniec, [this] { leaveProgram(); });
    uwagi_ = std::make_unique<InputNotesBand>(this, ui_->uwagi, stan_, [this] { return fields(); });
    menus_ = addedMenus(ui_->layout18);
    connect(this, &Ferna3::entered, this, [this] { uwagi_->renew(); });
    watchEntries();
}

Ferna3::~Ferna3() = default;

void Ferna3::collectFields() {
    const Ui::Ferna3& u = *ui_;
    loads_ = std::make_unique<LoadRows>(
        u.Text1, LoadRows::Fields{{{u.Text6_0, u.Text7_0, u.Text8_0, u.Text5_0, u.Text10_0},
                                   {u.Text6_1, u.Text7_1, u.Text8_1, u.Text5_1, u.Text10_1},
                                   {u.Text6_2, u.Text7_2, u.Text8_2, u.Text5_2, u.Text10_2},
                                   {u.Text6_3, u.Text7_3, u.Text8_3, u.Text5_3, u.Text10_3},
                                   {u.Text6_4, u.Text7_4, u.Text8_4, u.Text5_4, u.Text10_4},
                                   {u.Text6_5, u.Text7_5, u.Text8_5, u.Text5_5, u.Text10_5}}});
    Jezyk_ = {u.Jezyk_0, u.Jezyk_1, u.Jezyk_2, u.Jezyk_3, u.Jezyk_4};
    optRTF_ = {u.optRTF_0, u.optRTF_1, u.optRTF_2};
    optHsruby_ = {u.optHsruby_0, u.optHsruby_1};
    Norma_ = {u.Norma_0, u.Norma_1};
    Wsp_n_ = {u.Wsp_n_0, u.Wsp_n_1};
}

QLineEdit* Ferna3::fieldOf(const TypedValue& value) const {
    switch (value.value) {
    case Value::PageNumber:
        return ui_->txtNr_strony;
    case Value::CaseCount:
        return ui_->Text1;
    case Value::RatioN:
        return ui_->Text2;
    case Value::PlateLength:
        return ui_->Text3;
    case Value::PlateWidth:
        return ui_->Text4;
    default:
        return loads_->fieldOf(value);
    }
}

void Ferna3::watchEntries() {
    for (QLineEdit* field : findChildren<QLineEdit*>())
        connect(field, &QLineEdit::textChanged, this, &Ferna3::entered);
    for (QComboBox* list : findChildren<QComboBox*>())
        connect(list, &QComboBox::currentIndexChanged, this, &Ferna3::entered);
    for (QRadioButton* option : findChildren<QRadioButton*>())
        connect(option, &QRadioButton::toggled, this, &Ferna3::entered);
    connect(ui_->Text9, &QPlainTextEdit::textChanged, this, &Ferna3::entered);
}

void Ferna3::connectOptions() {
    const auto onClick = [this](const auto& options, auto handler) {
        Integer i = 0;
        for (QRadioButton* option : options) {
            connectGuarded(option, &QRadioButton::clicked, this, [handler, i] { handler(i); });
            ++i;
        }
    };
    onClick(Jezyk_, [this](Integer i) { chooseLanguage(i); });
    onClick(optRTF_, [this](Integer i) { stan_.opcje.Tryb_RTF = i; });
    onClick(optHsruby_, [this](Integer i) { stan_.opcje.Hsily_wszystkie = i; });
    onClick(Norma_, [this](Integer i) {
        chooseNorm(stan_, i);
        fillConcretes();
        if (ui_->Wsp_n_0->isChecked())
            showRatio();
        emit entered(); // the option was told of before the norm was taken
    });
    onClick(Wsp_n_, [this](Integer i) { chooseRatioMode(i); });
}

void Ferna3::connectAnchorCommands() {
    connectCommand(ui_->cmdDodaj1s, [this] { addAnchorsBy(Adding::One); });
    connectCommand(ui_->cmdDodaj2x, [this] { addAnchorsBy(Adding::PairAboutX); });
    connectCommand(ui_->cmdDodaj2y, [this] { addAnchorsBy(Adding::PairAboutY); });
    connectCommand(ui_->cmdDodaj4, [this] { addAnchorsBy(Adding::Four); });
    connectCommand(ui_->cmdUsun1s, [this] {
        if (removeOneAnchor(stan_, dialogs_))
            showAnchors();
    });
    connectCommand(ui_->cmdUsunws, [this] {
        if (removeAllAnchors(stan_, dialogs_))
            showAnchors();
    });
    connectCommand(ui_->cmdZmien1fi,
                   [this] { changeDiameterOf(askForAnchorToChange(stan_, dialogs_)); });
    connectCommand(ui_->cmdZmienwfi,
                   [this] { changeDiameterOf(allAnchorsToChange(stan_, dialogs_)); });
}

// A button pressed by its mnemonic or by Enter does not take the focus by itself. It is given the
// focus, so that the field that had it is left, and what that brings runs before the command.
void Ferna3::connectCommand(QPushButton* button, const std::function<void()>& handler) {
    connectGuarded(button, &QPushButton::clicked, this, [this, button, handler] {
        button->setFocus(Qt::ShortcutFocusReason);
        left_->settle();
        handler();
    });
}

void Ferna3::leave(QWidget* field) {
    if (field == ui_->Text1)
        leaveText1();
    else if (field == ui_->Text2)
        leaveRatio(ui_->Text2->text());
    else if (field == ui_->cmbBeton)
        leaveConcrete();
    else if (field == ui_->cmbStal)
        leaveSteel();
}

void Ferna3::load() {
    ui_->cmbStal->addItems(steelNames());
    makeRoomForItems(ui_->cmbStal);
    Jezyk_wczytany = stan_.opcje.Nr_jezyka;
    const InputFields start = startFields(stan_);
    showOptions();
    showFields(start);
    leaveText1();
    Rysuj_P3();
    ui_->SSTab1->setCurrentIndex(generalTab);
    keepRoomForEveryTab(ui_->SSTab1);
    if (needsMoreThan(this, roomOnScreen(this)))
        letPagesScroll(ui_->SSTab1); // the commands below stay in sight
    centreOnScreen(this);
}

void Ferna3::showOptions() {
    const Opcje_zadania& task = stan_.opcje;
    const auto choose = [](const auto& options, Integer chosen) {
        options.at(static_cast<std::size_t>(chosen))->setChecked(true);
    };
    choose(Jezyk_, task.Nr_jezyka);
    choose(optRTF_, task.Tryb_RTF);
    choose(Norma_, task.Nr_normy);
    choose(Wsp_n_, task.Tryb_wsp_n);
    fillConcretes();
}

void Ferna3::showFields(const InputFields& fields) {
    ui_->cmbStal->setCurrentIndex(fields.cmbStal);
    (fields.optHsruby_0 ? ui_->optHsruby_0 : ui_->optHsruby_1)->setChecked(true);
    (fields.Option1_0 ? ui_->Option1_0 : ui_->Option1_1)->setChecked(true);
    ui_->txtNaz_proj->setText(fields.txtNaz_proj);
    ui_->Text2->setText(fields.Text2);
    loads_->setTexts(fields.loads);
    ui_->Text3->setText(fields.Text3);
    ui_->Text4->setText(fields.Text4);
}

Stan Ferna3::enteredState() const {
    Stan entered = stan_;
    if (ui_->cmbBeton->currentIndex() >= 0)
        entered.opcje.Nr_betonu = CInt(ui_->cmbBeton->currentIndex() + 1);
    try {
        QString count = ui_->Text1->text();
        takeCaseCount(entered, count);
    } catch (const RunTimeError&) { // the last number that could be taken stands
    }
    return entered;
}

void Ferna3::takeTask(const Stan& task, const InputFields& fields) {
    Stan taken = task;
    taken.Teksty = stan_.Teksty;
    if (task.opcje.Nr_jezyka != Jezyk_wczytany)
        Czytaj_teksty(taken, folder_ + u'/' + catalogueFile(task.opcje.Nr_jezyka));
    {
        const QSignalBlocker quiet(this);
        stan_ = std::move(taken);
        Jezyk_wczytany = stan_.opcje.Nr_jezyka;
        left_->forget();
        showOptions();
        showFields(fields);
        ui_->txtNr_strony->setText(fields.txtNr_strony);
        ui_->Text1->setText(general(stan_.obciazenia.Liczba_przyp));
        loads_->showRows(stan_.obciazenia.Liczba_przyp);
        showAnchorList();
        ScriptedDialogs unseen; // a text that is no number is told when it is used
        PictureBox picture(platePictureSize);
        showPlate(ferna::Rysuj_P3(picture, stan_, fields, unseen));
    }
    if (auto* const field = qobject_cast<QLineEdit*>(focusWidget()))
        field->selectAll(); // what is typed next takes the place of what has come
    Q_EMIT entered();
}

void Ferna3::openTask(const Stan& task, const InputFields& fields) {
    takeTask(task, fields);
    przypadek_ = {};
    statyka_ = {};
}

void Ferna3::declareColumn() {
    if (StatykaS(stan_, statyka_, *loads_, dialogs_, this).exec() == QDialog::Accepted)
        Q_EMIT columnSaved(statyka_, stan_.obciazenia.Liczba_przyp);
}

InputFields Ferna3::fields() const {
    InputFields out;
    out.txtNaz_proj = ui_->txtNaz_proj->text();
    out.txtNr_strony = ui_->txtNr_strony->text();
    out.Text2 = ui_->Text2->text();
    out.Text3 = ui_->Text3->text();
    out.Text4 = ui_->Text4->text();
    out.cmbStal = ui_->cmbStal->currentIndex();
    out.Option1_0 = ui_->Option1_0->isChecked();
    out.optHsruby_0 = ui_->optHsruby_0->isChecked();
    out.loads = loads_->texts();
    return out;
}

bool Ferna3::firstNorm() const {
    return ui_->Norma_0->isChecked();
}

void Ferna3::takeLoads(int rows, const std::function<void()>& fill) {
    if (rows > stan_.obciazenia.Liczba_przyp)
        replaceLoads(rows, fill);
    else
        fill();
}

void Ferna3::replaceLoads(int rows, const std::function<void()>& fill) {
    ui_->Text1->setText(general(rows));
    leaveText1();
    fill();
}

// With room for a few notes, so that the window does not grow when they come.
QSize Ferna3::sizeHint() const {
    const int free = ui_->uwagi->isHidden() ? ui_->uwagi->usualHeight() : 0;
    return QDialog::sizeHint() + QSize(0, free);
}

void Ferna3::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    ui_->txtNr_strony->setText(general(stan_.opcje.Nr_strony));
    ui_->lblLista_nieaktualna->setVisible(!listIsTrue(stan_.plyta));
    Q_EMIT anchorsShown(); // a calculation may have moved one
    ui_->SSTab1->setCurrentIndex(generalTab);
    focusFirstField();
}

// Closing by the frame ends the program without writing the configuration.
void Ferna3::closeEvent(QCloseEvent* event) {
    event->accept();
    QCoreApplication::exit(0);
}

// With a number of cases or a ratio n that cannot be taken the change of tab is abandoned.
void Ferna3::tabChanged() {
    QLineEdit* taken = ui_->Text1;
    try {
        for (QLineEdit* field : {ui_->Text1, ui_->Text2}) {
            left_->taken(field); // here
            taken = field;
            leave(field);
        }
    } catch (const RunTimeError&) {
        const QSignalBlocker quiet(ui_->SSTab1);
        ui_->SSTab1->setCurrentIndex(generalTab);
        left_->returnTo(taken);
        left_->forget();
        throw;
    }
    guarded(this, [this] { left_->settle(); });
    focusFirstField();
    if (ui_->SSTab1->currentIndex() == anchorTab)
        Rysuj_P3();
}

void Ferna3::focusFirstField() {
    const std::array<QWidget*, 4> first{ui_->txtNaz_proj, ui_->Text1, loads_->first(),
                                        ui_->cmdDodaj4};
    goTo(first.at(static_cast<std::size_t>(ui_->SSTab1->currentIndex())));
}

void Ferna3::leaveText1() {
    QString text = ui_->Text1->text();
    takeCaseCount(stan_, text);
    ui_->Text1->setText(text);
    loads_->showRows(stan_.obciazenia.Liczba_przyp);
    emit entered();
}

void Ferna3::fillConcretes() {
    ui_->cmbBeton->clear();
    ui_->cmbBeton->addItems(concreteNames(stan_.opcje.Nr_normy));
    makeRoomForItems(ui_->cmbBeton);
    const int index = stan_.opcje.Nr_betonu - 1;
    ui_->cmbBeton->setCurrentIndex(index < ui_->cmbBeton->count() ? index : -1);
}

void Ferna3::leaveConcrete() {
    if (ui_->cmbBeton->currentIndex() < 0)
        return;
    chooseConcrete(stan_, ui_->cmbBeton->currentIndex());
    if (ui_->Wsp_n_0->isChecked()) {
        computeRatio(stan_);
        showRatio();
    } else {
        askForRatio();
    }
    emit entered();
}

void Ferna3::leaveSteel() {
    if (ui_->cmbStal->currentIndex() >= 0)
        stan_.opcje.Nr_stali = CInt(ui_->cmbStal->currentIndex() + 1);
}

void Ferna3::showRatio() {
    ui_->Text2->setText(ratioText(stan_));
}

void Ferna3::chooseLanguage(Integer number) {
    stan_.opcje.Nr_jezyka = number;
    if (number == Jezyk_wczytany)
        return;
    Czytaj_teksty(stan_, folder_ + u'/' + catalogueFile(number));
    Jezyk_wczytany = number;
}

void Ferna3::chooseRatioMode(Integer k) {
    if (k == stan_.opcje.Tryb_wsp_n)
        return;
    if (k == 0) {
        computeRatio(stan_);
        showRatio();
    } else {
        askForRatio();
    }
    stan_.opcje.Tryb_wsp_n = k;
}

void Ferna3::askForRatio() {
    if (FernaPon(stan_, dialogs_, this).exec() == QDialog::Accepted)
        showRatio();
}

void Ferna3::addAnchorsBy(Adding way) {
    addAnchors(stan_, way, [this, way] {
        if (!nowaSruba_)
            nowaSruba_ = std::make_unique<Nowa_Sruba>(stan_, dialogs_, this);
        return nowaSruba_->ask(newAnchorCaption(way));
    });
    showAnchors();
}

void Ferna3::changeDiameterOf(std::optional<Integer> anchor) {
    if (!anchor)
        return;
    Fernafi(stan_, *anchor, dialogs_, this).exec();
    showAnchorList();
}

void Ferna3::editAnchors(const std::function<void(Plyta_i_kotwy&)>& edit) {
    edit(stan_.plyta);
    showAnchors();
}

void Ferna3::showAnchors() {
    showAnchorList();
    Rysuj_P3();
}

void Ferna3::showAnchorList() {
    ui_->Text9->setPlainText(Lista_srub(stan_));
    ui_->lblLista_nieaktualna->setVisible(!listIsTrue(stan_.plyta));
    Q_EMIT anchorsShown();
}

void Ferna3::Rysuj_P3() {
    PictureBox picture(platePictureSize);
    showPlate(ferna::Rysuj_P3(picture, stan_, fields(), dialogs_));
}

// The picture shows the layout as it was drawn last, whatever has changed in the state since, and
// is sharp in every size of the form. It is the picture of the report.
void Ferna3::showPlate(bool drawn) {
    ui_->Picture3->setDrawing(platePictureSize, [plate = stan_.plyta, drawn](qreal ratio) {
        PictureBox picture(platePictureSize, ratio);
        if (drawn)
            ferna::drawPlate(picture, plate);
        return picture.image();
    });
    drawn_ = drawn ? std::optional(stan_.plyta) : std::nullopt;
    Q_EMIT anchorsShown();
}

void Ferna3::KGM8(Stan& stan) {
    ferna::KGM8(stan, dialogs_, this).exec();
}

void Ferna3::drawPlate(Stan& stan, const InputFields& fields) {
    showPlate(savePlatePicture(stan, fields, dialogs_, folder_ + u'/' + platePictureFile));
}

void Ferna3::calculate() {
    Q_EMIT calculating();
    uwagi_->calculationBegins();
    CalculationEnd end = CalculationEnd::Refused;
    HeardDialogs dialogs(dialogs_);
    try {
        shownAfterwards([&] { end = Oblicz(stan_, przypadek_, fields(), dialogs, *this); },
                        [this] { uwagi_->calculationEnded(); });
    } catch (const RunTimeError& failure) {
        Q_EMIT endedWithoutResults(dialogs.heard + QStringList(failure.text()));
        throw;
    }
    if (end == CalculationEnd::Computed)
        openResults_();
    else
        Q_EMIT endedWithoutResults(dialogs.heard);
}

void Ferna3::leaveProgram() {
    Zapisz_cfg(stan_, folder_ + QStringLiteral("/Ferna.cfg"), folder_ + u'/' + wyd::replyFile);
    hide();
    QCoreApplication::exit(0);
}

} // namespace ferna
