#include "desktop/forms/Help_window.h"
#include "runtime/run_time_error.h"
#include "support/places.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHelpContentWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include <gtest/gtest.h>

using namespace ferna;

namespace {

/// A program folder with the help that the build has packed.
class HelpWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        ASSERT_TRUE(
            QFile::copy(places::bin("/Ferna.qch"), folder_.filePath(QStringLiteral("Ferna.qch"))));
    }

    void TearDown() override {
        for (HelpWindow* const window : windows())
            window->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static QList<HelpWindow*> windows() {
        QList<HelpWindow*> open;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* const window = dynamic_cast<HelpWindow*>(widget))
                open += window;
        return open;
    }

    HelpWindow* open(int context = help::Start) {
        openHelp(folder_.path(), context);
        EXPECT_EQ(windows().size(), 1);
        EXPECT_TRUE(QTest::qWaitForWindowActive(windows().front()));
        return windows().front();
    }

    static QTextBrowser* page(const HelpWindow* window) {
        return window->findChild<QTextBrowser*>(QStringLiteral("page"));
    }

    QTemporaryDir folder_;
};

bool waitUntil(const std::function<bool()>& holds) {
    QElapsedTimer clock;
    clock.start();
    while (!holds() && clock.elapsed() < 30000)
        QTest::qWait(20);
    return holds();
}

TEST_F(HelpWindowTest, Context100IsTheStartPage) {
    const HelpWindow* const window = open(100);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(page(window)->source().fileName(), QStringLiteral("index.html"));
    EXPECT_TRUE(page(window)->toPlainText().contains(u"zakotwienie słupa stalowego"));
    EXPECT_EQ(page(window)->documentTitle(), QStringLiteral("Ferna 2005 Pr"));
}

TEST_F(HelpWindowTest, EveryContextOpensItsPage) {
    const std::pair<int, const char*> pages[] = {{help::Configuration, "konfiguracja.html"},
                                                 {help::General, "dane-ogolne.html"},
                                                 {help::Loads, "obciazenia.html"},
                                                 {help::Anchors, "sruby.html"},
                                                 {help::Statics, "statyka.html"},
                                                 {help::Results, "wyniki.html"},
                                                 {help::PlateThickness, "grubosc-blachy.html"},
                                                 {help::AnchorSelection, "dobor-kotwy.html"},
                                                 {help::Messages, "komunikaty.html"}};
    for (const auto& [context, file] : pages)
        EXPECT_EQ(page(open(context))->source().fileName(), QString::fromLatin1(file)) << context;
}

TEST_F(HelpWindowTest, AnUnknownContextIsTheStartPage) {
    EXPECT_EQ(page(open(4711))->source().fileName(), QStringLiteral("index.html"));
}

TEST_F(HelpWindowTest, OneWindowIsUsedAgain) {
    const HelpWindow* const first = open(help::Start);
    EXPECT_EQ(open(help::Messages), first);
}

TEST_F(HelpWindowTest, AClosedWindowIsGoneAndOpensAnew) {
    HelpWindow* const window = open();
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([] { return windows().isEmpty(); }));
    EXPECT_EQ(page(open(help::Results))->source().fileName(), QStringLiteral("wyniki.html"));
}

TEST_F(HelpWindowTest, SearchFindsRdzen) {
    HelpWindow* const window = open();
    window->search(QStringLiteral("rdzeń"));
    const auto* const hits = window->findChild<QListWidget*>(QStringLiteral("hits"));
    ASSERT_TRUE(waitUntil([&] { return hits->count() > 0; }));
    QStringList titles;
    for (int i = 0; i < hits->count(); ++i)
        titles += hits->item(i)->text();
    EXPECT_TRUE(titles.contains(QStringLiteral("Model obliczeniowy")));
    const auto* const count = window->findChild<QLabel*>(QStringLiteral("hitCount"));
    EXPECT_TRUE(count->text().endsWith(QString::number(hits->count())));
}

TEST_F(HelpWindowTest, SearchFindsTheOtherFormsOfAWordAndTheNameOfANorm) {
    HelpWindow* const window = open();
    const auto* const hits = window->findChild<QListWidget*>(QStringLiteral("hits"));
    const auto titlesOf = [&](const QString& words) {
        window->search(words);
        waitUntil([&] { return hits->count() > 0; });
        QStringList titles;
        for (int i = 0; i < hits->count(); ++i)
            titles += hits->item(i)->text();
        return titles;
    };
    EXPECT_TRUE(titlesOf(QStringLiteral("rdzeń")).contains(QStringLiteral("Dobór kotwy")))
        << "rdzenia";
    EXPECT_TRUE(titlesOf(QStringLiteral("PN-90/B-03200"))
                    .contains(QStringLiteral("Sprawdzenia według norm")));
    EXPECT_TRUE(titlesOf(QStringLiteral("b/c")).contains(QStringLiteral("Grubość blachy")));
    EXPECT_TRUE(
        titlesOf(QStringLiteral("\"pierwsze anuluj\" {")).contains(QStringLiteral("Druk i zapis")));
}

TEST_F(HelpWindowTest, AHitOpensItsPageAtTheWord) {
    HelpWindow* const window = open();
    window->search(QStringLiteral("zagnieżdżone"));
    auto* const hits = window->findChild<QListWidget*>(QStringLiteral("hits"));
    ASSERT_TRUE(waitUntil([&] { return hits->count() > 0; }));
    emit hits->itemClicked(hits->item(0));
    EXPECT_EQ(page(window)->source().fileName(), QStringLiteral("model.html"));
    EXPECT_EQ(page(window)->textCursor().selectedText(), QStringLiteral("zagnieżdżone"));
}

TEST_F(HelpWindowTest, ASearchWithoutHitsSaysSo) {
    HelpWindow* const window = open();
    window->search(QStringLiteral("hipopotam"));
    const auto* const count = window->findChild<QLabel*>(QStringLiteral("hitCount"));
    EXPECT_TRUE(waitUntil([&] { return count->text().startsWith(u"Nie znaleziono"); }));
}

TEST_F(HelpWindowTest, TheContentsListEveryChapter) {
    HelpWindow* const window = open();
    const auto* const contents = window->findChild<QHelpContentWidget*>(QStringLiteral("contents"));
    ASSERT_TRUE(waitUntil([&] { return contents->model()->rowCount() > 0; }));
    const QModelIndex book = contents->model()->index(0, 0);
    QStringList chapters;
    for (int i = 0; i < contents->model()->rowCount(book); ++i)
        chapters += contents->model()->index(i, 0, book).data().toString();
    EXPECT_TRUE(chapters.contains(QStringLiteral("Komunikaty programu")));
    EXPECT_TRUE(chapters.contains(QStringLiteral("Obliczenia")));
}

TEST_F(HelpWindowTest, AnIndexEntryTypedOpensItsPage) {
    HelpWindow* const window = open();
    const auto* const index = window->findChild<QAbstractItemView*>(QStringLiteral("index"));
    ASSERT_TRUE(waitUntil([&] { return index->model()->rowCount() > 30; }));
    auto* const filter = window->findChild<QLineEdit*>(QStringLiteral("indexFilter"));
    filter->setText(QStringLiteral("Tolerancje"));
    ASSERT_TRUE(waitUntil([&] { return index->model()->rowCount() == 1; }));
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_TRUE(waitUntil(
        [&] { return page(window)->source().fileName() == QStringLiteral("model.html"); }));
}

TEST_F(HelpWindowTest, BackForwardAndHomeWalkThroughThePages) {
    HelpWindow* const window = open(help::Start);
    openHelp(folder_.path(), help::Results);
    const auto trigger = [&](const char* name) {
        window->findChild<QAction*>(QString::fromLatin1(name))->trigger();
        return page(window)->source().fileName();
    };
    EXPECT_EQ(trigger("back"), QStringLiteral("index.html"));
    EXPECT_EQ(trigger("forward"), QStringLiteral("wyniki.html"));
    EXPECT_EQ(trigger("home"), QStringLiteral("index.html"));
}

TEST_F(HelpWindowTest, ALinkOfAPageLeadsOn) {
    const HelpWindow* const window = open(help::Start);
    page(window)->setSource(QUrl(QStringLiteral("druk-i-zapis.html#anuluj")));
    EXPECT_TRUE(page(window)->toPlainText().contains(u"Pierwsze Anuluj"));
}

TEST_F(HelpWindowTest, FindInThePageGoesRoundAndTellsWhatIsNotThere) {
    HelpWindow* const window = open(help::Start);
    window->findChild<QAction*>(QStringLiteral("find"))->trigger();
    auto* const field = window->findChild<QLineEdit*>(QStringLiteral("findText"));
    ASSERT_TRUE(field->isVisible());
    field->setText(QStringLiteral("pierwsza stopa"));
    QTest::keyClick(field, Qt::Key_Return);
    const int first = page(window)->textCursor().selectionStart();
    EXPECT_TRUE(page(window)->textCursor().hasSelection());
    QTest::keyClick(field, Qt::Key_Return); // the only one: found again from the start
    EXPECT_EQ(page(window)->textCursor().selectionStart(), first);
    field->setText(QStringLiteral("hipopotam"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_FALSE(window->findChild<QLabel*>(QStringLiteral("findNote"))->text().isEmpty());
}

TEST_F(HelpWindowTest, EscClosesTheFindBarFirst) {
    HelpWindow* const window = open(help::Start);
    window->findChild<QAction*>(QStringLiteral("find"))->trigger();
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->findChild<QLineEdit*>(QStringLiteral("findText"))->isVisible());
}

TEST_F(HelpWindowTest, ItStaysUsableWhileAModalFormStands) {
    HelpWindow* const window = open(help::Start);
    QDialog form;
    bool found = false;
    QTimer::singleShot(200, &form, [&] {
        auto* const home = window->findChild<QAction*>(QStringLiteral("find"));
        home->trigger();
        auto* const field = window->findChild<QLineEdit*>(QStringLiteral("findText"));
        // A window that a modal form blocks gets no keys of the user.
        for (const char key : {'s', 't', 'o', 'p', 'a'})
            QTest::keyClick(window->windowHandle(), key);
        found = field->text() == u"stopa";
        form.reject();
    });
    window->activateWindow();
    form.exec();
    EXPECT_TRUE(found);
}

TEST_F(HelpWindowTest, AMissingHelpIsAFileNotFound) {
    const QTemporaryDir empty;
    try {
        openHelp(empty.path(), help::Start);
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::FileNotFound);
        EXPECT_TRUE(failure.detail().endsWith(u"Ferna.qch"));
    }
    EXPECT_TRUE(windows().isEmpty());
}

TEST_F(HelpWindowTest, ADamagedHelpIsAReadingError) {
    QFile help(folder_.filePath(QStringLiteral("Ferna.qch")));
    ASSERT_TRUE(help.open(QIODevice::WriteOnly | QIODevice::Truncate));
    help.write("no help at all");
    help.close();
    try {
        openHelp(folder_.path(), help::Start);
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::DeviceIO);
    }
}

TEST_F(HelpWindowTest, ADamagedCollectionIsMadeAnew) {
    QFile collection(folder_.filePath(QStringLiteral("Ferna.qhc")));
    ASSERT_TRUE(collection.open(QIODevice::WriteOnly));
    collection.write("no collection at all");
    collection.close();
    EXPECT_EQ(page(open())->source().fileName(), QStringLiteral("index.html"));
    EXPECT_TRUE(page(windows().value(0))->toPlainText().contains(u"zakotwienie"));
}

TEST_F(HelpWindowTest, ACollectionOfAMovedProgramFolderIsPutRight) {
    open()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QTemporaryDir moved;
    for (const char* file : {"Ferna.qch", "Ferna.qhc"})
        ASSERT_TRUE(QFile::rename(folder_.filePath(QString::fromLatin1(file)),
                                  moved.filePath(QString::fromLatin1(file))));
    openHelp(moved.path(), help::Start);
    EXPECT_TRUE(page(windows().value(0))->toPlainText().contains(u"zakotwienie"));
}

TEST_F(HelpWindowTest, TheCollectionLiesInTheProgramFolder) {
    open();
    EXPECT_TRUE(QFileInfo::exists(folder_.filePath(QStringLiteral("Ferna.qhc"))));
}

TEST_F(HelpWindowTest, SketchesAreShown) {
    const HelpWindow* const window = open(help::General);
    const QVariant sketch = page(window)->loadResource(QTextDocument::ImageResource,
                                                       QUrl(QStringLiteral("szkice/Ferogo2.svg")));
    EXPECT_EQ(sketch.value<QImage>().deviceIndependentSize(), QSizeF(400, 262));
}

} // namespace
