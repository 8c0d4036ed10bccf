#include "report/forms/FernaWyn.h"

#include "report/forms/status_panel.h"
#include "selection/selection_form.h"
#include "ui_FernaWyn.h"
#include "widgets/added_menus.h"
#include "widgets/environment_stop.h"
#include "widgets/hourglass.h"
#include "widgets/notes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QShortcutEvent>
#include <QToolButton>

namespace ferna {

namespace {

constexpr int roomUnderSections = 25;
constexpr int linesPerPage = 12; // wheel and arrow steps that make a viewport

} // namespace

FernaWyn::FernaWyn(Stan& stan, std::unique_ptr<ResultsSession> session, Links links)
    : stan_(stan), session_(std::move(session)), links_(std::move(links)),
      ui_(std::make_unique<Ui::FernaWyn>()) {
    ui_->setupUi(this);
    buildStatusBar();
    connectMenu();
    more_ = growingMenu(QStringLiteral("&Więcej"), ui_->menubar);
    showRtfEntry();
    ui_->Picture1->installEventFilter(this);
    ui_->menubar->installEventFilter(this);
    connect(ui_->VScroll, &QScrollBar::valueChanged, this,
            [this](int value) { ui_->Picture2->move(0, -value); });
    const QRect room = screen()->availableGeometry();
    resize(qMin(room.width() * 9 / 10, 1000), room.height() * 9 / 10);
    move(room.center() - QPoint(width() / 2, height() / 2));
}

FernaWyn::~FernaWyn() = default;

void FernaWyn::buildStatusBar() {
    const auto button = [this](const char* name, const QString& tip, auto ask) {
        auto* const panel = new StatusPanel;
        panel->setObjectName(QString::fromLatin1(name));
        panel->setToolTip(tip);
        panel->setAccessibleName(tip);
        connectGuarded(panel, &QToolButton::clicked, this, [this, ask] {
            ask();
            refresh();
        });
        return panel;
    };
    page_ = button("StatusBar1_2", QStringLiteral("Zmień numer pierwszej strony"),
                   [this] { session_->askPageNumber(); });
    state_ = new QLabel;
    state_->setObjectName(QStringLiteral("StatusBar1_3"));
    state_->setIndent(StatusPanel::textMargin);
    project_ = button("StatusBar1_4", QStringLiteral("Zmień nazwę projektu"),
                      [this] { session_->askProjectName(); });
    label_ = button("StatusBar1_5", QStringLiteral("Zmień oznaczenie stopy"),
                    [this] { session_->askLabel(); });
    addPanel(new QLabel, 1); // panel 1 shows nothing
    addPanel(page_, 2);
    addPanel(state_, 3);
    addPanel(project_, 5);
    addPanel(label_, 4);
}

void FernaWyn::addPanel(QWidget* panel, int share) {
    auto* const frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* const layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel);
    ui_->StatusBar1->addWidget(frame, share);
}

void FernaWyn::connectMenu() {
    const auto on = [this](QAction* action, auto handler) {
        connectGuarded(action, &QAction::triggered, this, [this, handler] {
            handler();
            tellWritten();
        });
    };
    on(ui_->mnuNrstrony, [this] {
        session_->askPageNumber();
        showPanels();
        session_->retitle();
        showPanels();
    });
    on(ui_->mnuZapiszEMF, [this] { printWith(RenderMode::Emf); });
    on(ui_->mnuZapiszdoc, [this] { saveDocument(); });
    on(ui_->mnuZapiszrtf, [this] {
        session_->saveRtf();
        showPanels();
    });
    on(ui_->mnuZapisztxt, [this] { session_->saveText(); });
    on(ui_->mnuDrukuj, [this] { printWith(RenderMode::Print); });
    on(ui_->mnuDrukuj2, [this] {
        session_->printOnChosenPrinter();
        showPanels();
    });
    on(ui_->mnuTytul, [this] {
        session_->retitle();
        showPanels();
    });
    ui_->mnuPowrot->setShortcuts({ui_->mnuPowrot->shortcut(), QKeySequence::Back});
    on(ui_->mnuPowrot, [this] { back(); });
    for (QAction* end : {ui_->mnuKoniec, ui_->mnuKoniec2})
        on(end, [this] {
            links_.endProgram();
            hide();
        });
    on(ui_->mnuPomoc, [this] { links_.help(); });
    on(ui_->mnuGrub_blachy, [this] {
        links_.plateForm(this);
        afterSection();
    });
    on(ui_->mnuDobor_ferny, [this] {
        links_.anchorForm(this);
        afterSection();
    });
    connect(ui_->mnuDalsze_obl, &QMenu::aboutToShow, this, [this] {
        ui_->mnuGrub_blachy->setEnabled(stan_.wyniki.Beton_OK
                                        && stan_.raport.Liczba_wierszy_blachy <= 0);
        ui_->mnuDobor_ferny->setEnabled(anchorSelectionOffered(stan_));
    });
}

void FernaWyn::tellWritten() {
    if (const QStringList files = session_->takeWritten(); !files.isEmpty())
        tellWritten(files);
}

void FernaWyn::tellWritten(const QStringList& files) {
    QStringList absolute;
    for (const QString& file : files)
        absolute += QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    ui_->zapisano->tell(absolute);
}

void FernaWyn::showRtfEntry() {
    const Integer mode = stan_.opcje.Tryb_RTF;
    ui_->mnuZapiszrtf->setText(mode == 1   ? QStringLiteral("Zapisz jako RTF (MSWord)")
                               : mode == 2 ? QStringLiteral("Zapisz jako RTF (StarOffice)")
                                           : QStringLiteral("Zapisz jako RTF"));
    ui_->mnuZapiszrtf->setEnabled(mode != 0);
}

void FernaWyn::showPanels() {
    page_->setText(session_->pagePanel());
    state_->setText(session_->statePanel());
    showAsWarning(state_, session_->exceeded());
    project_->setText(session_->projectPanel());
    label_->setText(session_->labelPanel());
    showNotes();
}

void FernaWyn::showNotes() {
    if (links_.notes)
        ui_->uwagi->setNotes(links_.notes(session_->typedLabel()));
}

void FernaWyn::open() {
    showPanels();
    show();
    ui_->Picture1->setFocus();
    session_->open();
    showPanels();
    refresh();
}

void FernaWyn::refresh() {
    showPanels();
    ui_->Picture2->setPicture(session_->screenPicture());
    layOut();
}

void FernaWyn::afterSection() {
    ui_->Picture2->clear();
    belowTheReport_ = roomUnderSections;
    refresh();
    ui_->VScroll->setValue(0);
}

void FernaWyn::layOut() {
    const QSize viewport = ui_->Picture1->size();
    const int height = ui_->Picture2->heightFor(viewport.width());
    ui_->Picture2->resize(viewport.width(), qMax(height, viewport.height()));
    const bool taller = height > viewport.height();
    ui_->VScroll->setRange(0, taller ? height - viewport.height() + belowTheReport_ : 0);
    ui_->VScroll->setPageStep(viewport.height());
    ui_->VScroll->setSingleStep(viewport.height() / linesPerPage);
    ui_->VScroll->setEnabled(taller);
    ui_->Picture2->move(0, -ui_->VScroll->value());
}

void FernaWyn::printWith(RenderMode mode) {
    session_->print(mode);
    showPanels();
}

void FernaWyn::saveDocument() {
    std::unique_ptr<WordProcessor> document;
    {
        const Hourglass wait;
        document = session_->buildDocument();
    }
    session_->saveDocument(std::move(document));
}

// Without a reply that can be read the way back stays open: a renderer that fails leaves none, and
// what was typed waits on the input form.
void FernaWyn::back() {
    if (!goesOnWithout(
            this, [this] { session_->leave(); },
            QStringLiteral("Po powrocie do danych numer strony pozostaje bez zmian.")))
        return;
    hide();
    links_.back();
}

// Closing by the frame is the way back: the input form is hidden and must not be left alone.
void FernaWyn::closeEvent(QCloseEvent* event) {
    event->ignore();
    guarded(this, [this] { back(); });
}

void FernaWyn::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    layOut();
}

// "Plik" and "Powrót" share their letter: every other Alt+P would leave the results. It opens the
// file menu each time, and with the focus on the bar the arrows go on from there. A key that comes
// to the bar with no entry chosen is again the report's.
bool FernaWyn::keyOfMenuBar(QEvent* event) {
    if (event->type() == QEvent::Shortcut && static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        ui_->menubar->setActiveAction(ui_->mnuPlik->menuAction());
        ui_->menubar->setFocus(Qt::MenuBarFocusReason);
        return true;
    }
    if (event->type() == QEvent::KeyPress && ui_->menubar->activeAction() == nullptr) {
        ui_->Picture1->setFocus();
        QCoreApplication::sendEvent(ui_->Picture1, event);
        return true;
    }
    return false;
}

bool FernaWyn::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->menubar && keyOfMenuBar(event))
        return true;
    if (watched == ui_->Picture1 && event->type() == QEvent::Resize)
        layOut();
    return QMainWindow::eventFilter(watched, event);
}

void FernaWyn::keyPressEvent(QKeyEvent* event) {
    QScrollBar* const bar = ui_->VScroll;
    switch (event->key()) {
    case Qt::Key_PageUp:
        bar->triggerAction(QAbstractSlider::SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    case Qt::Key_Up:
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        break;
    case Qt::Key_Down:
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        break;
    case Qt::Key_Home:
        bar->setValue(bar->minimum());
        break;
    case Qt::Key_End:
        bar->setValue(bar->maximum());
        break;
    default:
        QMainWindow::keyPressEvent(event);
    }
}

void FernaWyn::wheelEvent(QWheelEvent* event) {
    QApplication::sendEvent(ui_->VScroll, event);
}

} // namespace ferna
