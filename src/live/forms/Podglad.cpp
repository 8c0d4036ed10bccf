#include "live/forms/Podglad.h"

#include "live/checks_table.h"
#include "live/picture_files.h"
#include "runtime/settings.h"
#include "runtime/text_file.h"
#include "ui_Podglad.h"
#include "widgets/environment_stop.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDialog>
#include <QMenu>
#include <QMimeData>

namespace ferna {

using namespace live;

namespace {

const QString asideKey = QStringLiteral("podglad/przypiety");
const QString widthKey = QStringLiteral("podglad/szerokosc");
const QString placeKey = QStringLiteral("podglad/miejsce");
constexpr int usualWidth = 520;

const QString pngEnding = QStringLiteral(".png");
const QString pictureFilter =
    QStringLiteral("Obraz PNG (*.png)|*.png|Rysunek SVG (*.svg)|*.svg|Dokument PDF (*.pdf)|*.pdf");

/// The name of a picture's file: of a case, or of the envelope for 0.
QString nameOffered(int which) {
    return which == 0 ? QStringLiteral("podglad-obwiednia.png")
                      : QStringLiteral("podglad-przypadek-%1.png").arg(which);
}

/// The strengths that a calculation has taken are those that it would take now.
bool sameLimits(const notes::Record& record, const Stan& stan, const InputFields& fields) {
    const std::optional<CheckLimits> limits = limitsOf(stan, fields);
    return limits && limits->fd == record.anchorLimit() && 2 * limits->Rb == record.pressureLimit();
}

} // namespace

Podglad::Podglad(QDialog* form, LiveSource source, Dialogs& dialogs)
    : form_(form), source_(std::move(source)), dialogs_(dialogs),
      ui_(std::make_unique<Ui::Podglad>()), side_(form) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    ui_->przypadki->setDrawBase(false);
    ui_->przypadki->setExpanding(false);
    ui_->przypadki->setUsesScrollButtons(true);
    addPictureCommands();
    connectParts();
    form_->installEventFilter(this);
}

Podglad::~Podglad() = default;

void Podglad::addPictureCommands() {
    auto* const menu = new QMenu(this);
    menu->addAction(QStringLiteral("&Zapisz do pliku..."),
                    [this] { guarded(this, [this] { savePicture(); }); });
    menu->addAction(QStringLiteral("&Kopiuj do schowka"),
                    [this] { guarded(this, [this] { copyPicture(); }); });
    ui_->obraz->setMenu(menu);
}

void Podglad::connectParts() {
    connect(ui_->przypadki, &QTabBar::currentChanged, this, [this] { showPicture(); });
    connect(ui_->przypnij, &QToolButton::clicked, this, [this] { changePlace(); });
    connect(ui_->zamknij, &QToolButton::clicked, this, [this] { setOpen(false); });
    PictureCanvas* const picture = ui_->rysunek;
    connect(picture, &PictureCanvas::anchorChosen, this, &Podglad::anchorChosen);
    connect(picture, &PictureCanvas::changeBegun, this, [this] { source_.changeBegins(); });
    connect(picture, &PictureCanvas::changeEnded, this, [this] { source_.changeEnds(); });
    connectGuarded(picture, &PictureCanvas::anchorMoved, this,
                   [this](int anchor, int x, int y) { source_.moveAnchor(anchor, x, y); });
    connectGuarded(picture, &PictureCanvas::plateResized, this,
                   [this](int length, int width) { source_.resizePlate(length, width); });
    connect(ui_->sprawdzenia, &ChecksView::checkChosen, this,
            [this](int number, Check, int anchor) { checkChosen(number, anchor); });
}

void Podglad::setOpen(bool open) {
    if (open == open_)
        return;
    open_ = open;
    if (open) {
        renew();
        if (settings::value(asideKey, true).toBool())
            putAside();
        else
            putFree();
    } else {
        rememberPlace();
        if (isAside())
            side_.take();
        hide();
    }
    Q_EMIT openChanged(open_);
}

void Podglad::putAside() {
    side_.put(this, settings::value(widthKey, usualWidth).toInt());
    showPlace();
}

void Podglad::putFree() {
    setParent(form_, Qt::Window);
    if (!restoreGeometry(settings::value(placeKey).toByteArray())) {
        resize(usualWidth, form_->height());
        move(form_->frameGeometry().topRight());
    }
    showPlace();
    if (form_->isVisible())
        show();
}

void Podglad::showPlace() {
    ui_->przypnij->setText(isAside() ? QStringLiteral("Odepnij") : QStringLiteral("Przypnij"));
    ui_->przypnij->setToolTip(isAside() ? QStringLiteral("Podgląd w osobnym oknie")
                                        : QStringLiteral("Podgląd z prawej strony okna głównego"));
}

void Podglad::rememberPlace() {
    settings::setValue(asideKey, isAside());
    if (isAside())
        settings::setValue(widthKey, width());
    else
        settings::setValue(placeKey, saveGeometry());
}

void Podglad::changePlace() {
    rememberPlace();
    const bool wasAside = isAside();
    if (wasAside) {
        side_.take();
        putFree();
    } else {
        hide();
        putAside();
    }
    settings::setValue(asideKey, isAside());
    ui_->przypnij->setFocus();
}

void Podglad::closeEvent(QCloseEvent* event) {
    setOpen(false);
    event->accept();
}

void Podglad::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !isAside())
        setOpen(false);
    else
        QWidget::keyPressEvent(event);
}

// A window of its own goes and comes with the main form; what is entered may be another task then.
bool Podglad::eventFilter(QObject* watched, QEvent* event) {
    if (watched == form_ && open_ && !isAside()) {
        if (event->type() == QEvent::Hide)
            hide();
        else if (event->type() == QEvent::Show)
            show();
    }
    if (watched == form_ && open_ && event->type() == QEvent::Show)
        renew();
    return QWidget::eventFilter(watched, event);
}

void Podglad::renew() {
    if (!open_)
        return;
    now_ = liveValues(source_.stan, source_.fields());
    if (now_.valid())
        valid_ = now_;
    showCases();
    showChecks(now_.reason);
    showPicture();
}

void Podglad::calculated() {
    calculated_ = notes::entered(source_.stan, source_.fields());
    renew();
}

bool Podglad::toldHolds() const {
    const notes::Record& record = source_.record();
    if (!record.begun())
        return false;
    const InputFields fields = source_.fields();
    const notes::Entered now = notes::entered(source_.stan, fields);
    const bool same =
        notes::sameTask(record.given(), now) || (calculated_ && notes::sameTask(*calculated_, now));
    return same && sameLimits(record, source_.stan, fields);
}

/// A tab for each case, with the sign of its worst check, and one for the envelope of several.
void Podglad::showCases() {
    QTabBar* const tabs = ui_->przypadki;
    const QSignalBlocker quiet(tabs);
    const int cases = static_cast<int>(valid_.cases.size());
    const int wanted = cases > 1 ? cases + 1 : cases;
    const int before = shownCase();
    while (tabs->count() > wanted)
        tabs->removeTab(tabs->count() - 1);
    while (tabs->count() < wanted)
        tabs->addTab(QString());
    for (int i = 0; i < wanted; ++i) {
        const bool envelope = i == cases;
        tabs->setTabText(i, envelope ? envelopeTitle : QString::number(i + 1));
        tabs->setTabToolTip(i, envelope
                                   ? QStringLiteral("Największe wartości wszystkich przypadków")
                                   : caseTitle(i + 1));
        tabs->setTabData(i, envelope ? 0 : i + 1);
        tabs->setTabIcon(i, {});
        if (envelope)
            continue;
        const PictureCase& one = valid_.cases.at(static_cast<std::size_t>(i));
        if (one.used || !one.found.exists)
            tabs->setTabIcon(
                i, verdictIcon(one.used ? verdictOf(one.used->worst()) : Verdict::Exceeded, this));
    }
    if (before >= 0)
        showCase(before);
}

int Podglad::shownCase() const {
    const int tab = ui_->przypadki->currentIndex();
    return tab < 0 ? -1 : ui_->przypadki->tabData(tab).toInt();
}

void Podglad::showCase(int which) {
    for (int i = 0; i < ui_->przypadki->count(); ++i)
        if (ui_->przypadki->tabData(i).toInt() == which)
            ui_->przypadki->setCurrentIndex(i);
}

void Podglad::showPicture() {
    PictureValues picture = pictureOf(valid_, std::max(shownCase(), 0));
    if (valid_.cases.empty() && valid_.plate.drawable())
        picture.title = QStringLiteral("Bez przypadków obciążenia");
    ui_->rysunek->setPicture(picture, now_.reason);
}

void Podglad::showChecks(const QString& reason) {
    const ToldChecks told =
        reason.isEmpty() && toldHolds() ? toldChecks(source_.record(), source_.stan) : ToldChecks{};
    const std::vector<CheckRow> rows = checksTable(valid_, told);
    ui_->sprawdzenia->setChecks(rows, !reason.isEmpty());
    ui_->sprawdzenia->setVisible(!rows.empty());
    ui_->bezSprawdzen->setText(valid_.withoutChecks);
    ui_->bezSprawdzen->setVisible(!valid_.withoutChecks.isEmpty());
}

void Podglad::anchorChosen(int anchor) {
    if (anchor == 0 || valid_.cases.empty())
        return;
    const AnchorPull pull =
        pullsOf(ui_->rysunek->picture()).at(static_cast<std::size_t>(anchor - 1));
    const int row = pull.caseNumber > 0 ? pull.caseNumber : std::max(shownCase(), 1);
    ui_->sprawdzenia->select(row, Check::Tension);
}

// The envelope shows every anchor of every case, so it stays.
void Podglad::checkChosen(int caseNumber, int anchor) {
    if (shownCase() != 0)
        showCase(caseNumber);
    ui_->rysunek->choose(anchor);
}

void Podglad::savePicture() {
    const std::optional<QString> file =
        dialogs_.saveFile({QStringLiteral("Zapis obrazu podglądu"),
                           nameOffered(std::max(shownCase(), 0)), pngEnding, pictureFilter});
    if (!file)
        return;
    if (!isPictureFile(*file)) {
        dialogs_.message(
            QStringLiteral("Obraz podglądu zapisuje się w pliku %1. Podaj nazwę z takim "
                           "zakończeniem.")
                .arg(pictureEndings().join(QStringLiteral(", "))),
            programTitle, MessageStyle::Exclamation);
        return;
    }
    PictureOptions options;
    options.greyed = !now_.reason.isEmpty();
    options.reason = now_.reason;
    writeFileWhole(*file, pictureBytes(*file, ui_->rysunek->picture(), options));
}

void Podglad::copyPicture() {
    PictureOptions options;
    options.greyed = !now_.reason.isEmpty();
    options.reason = now_.reason;
    auto* const content = new QMimeData;
    content->setImageData(pictureImage(ui_->rysunek->picture(), options));
    content->setData(QStringLiteral("image/svg+xml"),
                     pictureBytes(QStringLiteral(".svg"), ui_->rysunek->picture(), options));
    QApplication::clipboard()->setMimeData(content);
}

} // namespace ferna
