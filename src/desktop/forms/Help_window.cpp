#include "desktop/forms/Help_window.h"

#include "desktop/forms/help_browser.h"
#include "runtime/run_time_error.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

namespace ferna {

namespace {

const QString helpSpace = QStringLiteral("ferna.pomoc");
const QUrl startPage(QStringLiteral("qthelp://ferna.pomoc/pomoc/index.html"));

QVBoxLayout* pageLayout(QWidget* page) {
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(4, 6, 4, 4);
    return layout;
}

/// The words of a search: what stands between double quotes, or between blanks.
QStringList wordsOf(const QString& typed) {
    static const QRegularExpression word(QStringLiteral("\"([^\"]+)\"|([^\\s\"]+)"));
    QStringList words;
    for (auto match = word.globalMatch(typed); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        words += found.captured(found.capturedLength(1) > 0 ? 1 : 2);
    }
    return words;
}

/// The beginning that the forms of a Polish word share, as far as its last letter tells.
QString beginningOf(const QString& word) {
    constexpr qsizetype longEnough = 5;
    const bool endsInVowel = QStringLiteral("aeiouyąęó").contains(word.back().toLower());
    return word.size() >= longEnough && endsInVowel ? word.chopped(1) : word;
}

/// The search as the index understands it: every word quoted, since signs such as "/" have a
/// meaning there, and taken as a beginning, so that "kotwa" finds "kotwy".
QString indexQuery(const QString& typed) {
    constexpr qsizetype tooShort = 2;
    QStringList parts;
    for (const QString& word : wordsOf(typed))
        parts += u'"' + beginningOf(word) + u'"'
                 + (word.size() > tooShort ? QStringLiteral(" *") : QString());
    return parts.join(u' ');
}

HelpWindow* openWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* const help = dynamic_cast<HelpWindow*>(window); help && help->isVisible())
            return help;
    return nullptr;
}

} // namespace

void openHelp(const QString& programFolder, int context) {
    HelpWindow* window = openWindow();
    if (window == nullptr) {
        window = new HelpWindow(programFolder);
        window->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, window, &QObject::deleteLater);
    }
    window->showContext(context);
    if (window->isMinimized())
        window->showNormal();
    window->show();
    window->raise();
    window->activateWindow();
}

HelpWindow::HelpWindow(const QString& programFolder) : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Ferna 2005 Pr - Pomoc"));
    openCollection(programFolder);
    browser_ = new HelpBrowser(*engine_);
    browser_->setObjectName(QStringLiteral("page"));
    browser_->setAccessibleName(QStringLiteral("Strona pomocy"));

    tabs_ = new QTabWidget;
    tabs_->addTab(contentsPage(), QStringLiteral("Spis &treści"));
    tabs_->addTab(indexPage(), QStringLiteral("&Indeks"));
    tabs_->addTab(searchPage(), QStringLiteral("&Szukaj"));
    auto* const page = new QWidget;
    auto* const pageColumn = new QVBoxLayout(page);
    pageColumn->setContentsMargins(0, 0, 0, 0);
    pageColumn->addWidget(browser_);
    pageColumn->addWidget(findBar());
    auto* const splitter = new QSplitter;
    splitter->addWidget(tabs_);
    splitter->addWidget(page);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({290, 710});

    auto* const column = new QVBoxLayout(this);
    column->addWidget(navigation());
    column->addWidget(splitter, 1);
    addShortcuts();
    resize(1000, 720);
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::markInContents);
    engine_->searchEngine()->reindexDocumentation();
}

// The widgets of the engine go before the engine.
HelpWindow::~HelpWindow() {
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

// The collection is made in the program folder, which can be written. One that is damaged, or made
// for a help elsewhere, is made anew.
void HelpWindow::openCollection(const QString& programFolder) {
    const QDir folder(programFolder);
    const QString documentation = folder.absoluteFilePath(QStringLiteral("Ferna.qch"));
    const QString collection = folder.absoluteFilePath(QStringLiteral("Ferna.qhc"));
    if (!QFile::exists(documentation))
        throw RunTimeError(error::FileNotFound, QDir::toNativeSeparators(documentation));
    for (const bool again : {false, true}) {
        if (again)
            QFile::remove(collection);
        engine_ = std::make_unique<QHelpEngine>(collection);
        engine_->setReadOnly(false);
        if (engine_->setupData() && takeDocumentation(documentation))
            return;
    }
    throw RunTimeError(error::DeviceIO,
                       QDir::toNativeSeparators(documentation) + u' ' + engine_->error());
}

bool HelpWindow::takeDocumentation(const QString& documentation) {
    if (engine_->documentationFileName(helpSpace) != documentation) {
        if (engine_->registeredDocumentations().contains(helpSpace))
            engine_->unregisterDocumentation(helpSpace);
        if (!engine_->registerDocumentation(documentation) || !engine_->setupData())
            return false;
    }
    return !engine_->fileData(startPage).isEmpty();
}

void HelpWindow::showContext(int context) {
    const QList<QHelpLink> pages = engine_->documentsForIdentifier(QString::number(context));
    browser_->setSource(pages.isEmpty() ? startPage : pages.front().url);
    browser_->setFocus();
}

QWidget* HelpWindow::navigation() {
    auto* const bar = new QToolBar;
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](const char* name, QStyle::StandardPixmap icon, const QString& text,
                         const QKeySequence& keys) {
        QAction* const action = bar->addAction(style()->standardIcon(icon), text);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcut(keys);
        action->setToolTip(text + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText)
                           + u')');
        addAction(action);
        return action;
    };
    QAction* const back = add("back", QStyle::SP_ArrowBack, QStringLiteral("Wstecz"),
                              QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction* const forward = add("forward", QStyle::SP_ArrowForward, QStringLiteral("Dalej"),
                                 QKeySequence(Qt::ALT | Qt::Key_Right));
    const QAction* const home =
        add("home", QStyle::SP_DirHomeIcon, QStringLiteral("Strona początkowa"),
            QKeySequence(Qt::ALT | Qt::Key_Home));
    bar->addSeparator();
    const QAction* const find =
        add("find", QStyle::SP_FileDialogContentsView, QStringLiteral("Znajdź na stronie"),
            QKeySequence(Qt::CTRL | Qt::Key_F));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(home, &QAction::triggered, this, [this] { browser_->setSource(startPage); });
    connect(find, &QAction::triggered, this, &HelpWindow::openFindBar);
    return bar;
}

QWidget* HelpWindow::contentsPage() {
    QHelpContentWidget* const contents = engine_->contentWidget();
    contents->setObjectName(QStringLiteral("contents"));
    connect(engine_->contentModel(), &QHelpContentModel::contentsCreated, this, [this, contents] {
        contents->expandAll();
        markInContents(browser_->source());
    });
    const auto open = [this](const QModelIndex& index) {
        if (const QHelpContentItem* const item = engine_->contentModel()->contentItemAt(index))
            browser_->setSource(item->url());
    };
    connect(contents, &QAbstractItemView::clicked, this, open);
    connect(contents, &QAbstractItemView::activated, this, open);
    auto* const page = new QWidget;
    pageLayout(page)->addWidget(contents);
    return page;
}

QWidget* HelpWindow::indexPage() {
    auto* const filter = new QLineEdit;
    filter->setObjectName(QStringLiteral("indexFilter"));
    filter->setPlaceholderText(QStringLiteral("Hasło"));
    filter->setClearButtonEnabled(true);
    QHelpIndexWidget* const index = engine_->indexWidget();
    index->setObjectName(QStringLiteral("index"));
    connect(filter, &QLineEdit::textChanged, this,
            [index](const QString& text) { index->filterIndices(text); });
    connect(filter, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QAbstractItemView::clicked, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink& link) { browser_->setSource(link.url); });
    connect(index, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& links) { browser_->setSource(links.front().url); });
    auto* const page = new QWidget;
    QVBoxLayout* const layout = pageLayout(page);
    layout->addWidget(filter);
    layout->addWidget(index);
    return page;
}

QWidget* HelpWindow::searchPage() {
    words_ = new QLineEdit;
    words_->setObjectName(QStringLiteral("words"));
    words_->setPlaceholderText(QStringLiteral("Słowa szukane na wszystkich stronach"));
    words_->setClearButtonEnabled(true);
    auto* const start = new QPushButton(QStringLiteral("S&zukaj"));
    start->setObjectName(QStringLiteral("search"));
    hitCount_ = new QLabel;
    hitCount_->setObjectName(QStringLiteral("hitCount"));
    hitCount_->setWordWrap(true);
    hits_ = new QListWidget;
    hits_->setObjectName(QStringLiteral("hits"));
    hits_->setWordWrap(true);
    connect(words_, &QLineEdit::returnPressed, this, &HelpWindow::startSearch);
    connect(start, &QPushButton::clicked, this, &HelpWindow::startSearch);
    const auto open = [this](const QListWidgetItem* item) {
        browser_->setSource(item->data(Qt::UserRole).toUrl());
        markWord();
    };
    connect(hits_, &QListWidget::itemClicked, this, open);
    connect(hits_, &QListWidget::itemActivated, this, open);
    QHelpSearchEngine* const engine = engine_->searchEngine();
    connect(engine, &QHelpSearchEngine::indexingFinished, this, [this] {
        indexed_ = true;
        if (searchWaits_)
            startSearch();
    });
    connect(engine, &QHelpSearchEngine::searchingFinished, this, &HelpWindow::showHits);

    auto* const page = new QWidget;
    QVBoxLayout* const layout = pageLayout(page);
    auto* const row = new QHBoxLayout;
    row->addWidget(words_);
    row->addWidget(start);
    layout->addLayout(row);
    layout->addWidget(hitCount_);
    layout->addWidget(hits_);
    return page;
}

QWidget* HelpWindow::findBar() {
    findBar_ = new QWidget;
    findText_ = new QLineEdit;
    findText_->setObjectName(QStringLiteral("findText"));
    findText_->setPlaceholderText(QStringLiteral("Tekst na tej stronie"));
    findNote_ = new QLabel;
    findNote_->setObjectName(QStringLiteral("findNote"));
    auto* const next = new QPushButton(QStringLiteral("&Następne"));
    auto* const previous = new QPushButton(QStringLiteral("&Poprzednie"));
    connect(findText_, &QLineEdit::returnPressed, this, [this] { findAgain(false); });
    connect(next, &QPushButton::clicked, this, [this] { findAgain(false); });
    connect(previous, &QPushButton::clicked, this, [this] { findAgain(true); });
    auto* const row = new QHBoxLayout(findBar_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(QStringLiteral("Znajdź:")));
    row->addWidget(findText_, 1);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(findNote_, 1);
    findBar_->hide();
    return findBar_;
}

void HelpWindow::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto handler) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, handler);
    };
    add(Qt::Key_Escape, [this] { leaveFindBarOrClose(); });
    add(Qt::Key_F3, [this] { findAgain(false); });
    add(Qt::SHIFT | Qt::Key_F3, [this] { findAgain(true); });
    add(Qt::CTRL | Qt::Key_Plus, [this] { browser_->zoomIn(); });
    add(Qt::CTRL | Qt::Key_Equal, [this] { browser_->zoomIn(); });
    add(Qt::CTRL | Qt::Key_Minus, [this] { browser_->zoomOut(); });
}

void HelpWindow::search(const QString& words) {
    tabs_->setCurrentIndex(2);
    words_->setText(words);
    startSearch();
}

void HelpWindow::startSearch() {
    searchWaits_ = !indexed_;
    hits_->clear();
    const QString query = indexQuery(words_->text());
    if (query.isEmpty()) {
        searchWaits_ = false;
        hitCount_->clear();
    } else if (searchWaits_) {
        hitCount_->setText(QStringLiteral("Powstaje indeks wyszukiwania..."));
    } else {
        engine_->searchEngine()->search(query);
    }
}

void HelpWindow::showHits() {
    const QHelpSearchEngine* const engine = engine_->searchEngine();
    hits_->clear();
    for (const QHelpSearchResult& hit : engine->searchResults(0, engine->searchResultCount())) {
        auto* const item = new QListWidgetItem(hit.title(), hits_);
        item->setData(Qt::UserRole, hit.url());
    }
    hitCount_->setText(hits_->count() == 0
                           ? QStringLiteral("Nie znaleziono. Spróbuj krótszego początku słowa.")
                           : QStringLiteral("Znalezione strony: %1").arg(hits_->count()));
}

// The page of a hit opens at the whole search where it stands so, else at its first word.
void HelpWindow::markWord() {
    if (browser_->findOnPage(words_->text().trimmed()))
        return;
    for (const QString& word : wordsOf(words_->text()))
        if (browser_->findOnPage(beginningOf(word)))
            return;
}

void HelpWindow::markInContents(const QUrl& page) {
    QHelpContentWidget* const contents = engine_->contentWidget();
    QModelIndex here = contents->indexOf(page);
    if (!here.isValid())
        here = contents->indexOf(page.adjusted(QUrl::RemoveFragment));
    if (here.isValid())
        contents->setCurrentIndex(here);
}

void HelpWindow::openFindBar() {
    findBar_->show();
    findNote_->clear();
    findText_->setFocus();
    findText_->selectAll();
}

void HelpWindow::findAgain(bool backwards) {
    const QString text = findText_->text();
    if (text.isEmpty()) {
        openFindBar();
        return;
    }
    findNote_->setText(browser_->findOnPage(text, backwards)
                           ? QString()
                           : QStringLiteral("Na tej stronie nie ma tego tekstu."));
}

void HelpWindow::leaveFindBarOrClose() {
    if (findBar_->isVisible()) {
        findBar_->hide();
        browser_->setFocus();
    } else {
        close();
    }
}

// A modal form blocks every window that is not its own. The help becomes its own for as long as the
// form stands.
bool HelpWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        QMetaObject::invokeMethod(
            this, [this] { stayUsableBeside(QGuiApplication::modalWindow()); },
            Qt::QueuedConnection);
    return QWidget::event(event);
}

void HelpWindow::stayUsableBeside(QWindow* modal) {
    QWindow* const own = windowHandle();
    if (modal == nullptr || own == nullptr || modal == own)
        return;
    own->setTransientParent(modal);
    connect(modal, &QWindow::visibleChanged, own, [own, modal](bool visible) {
        if (!visible && own->transientParent() == modal)
            own->setTransientParent(nullptr);
    });
}

} // namespace ferna
