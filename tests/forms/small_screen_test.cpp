// Forms on a screen that is too small for them.
#include "support/main_form.h"
#include "widgets/small_screen.h"

#include <QMenuBar>
#include <QScrollArea>

using namespace ferna;
using namespace ferna::testing;

namespace {

constexpr QSize smallRoom(632, 480);

class OnASmallScreen : public MainForm {
protected:
    void becomeSmall() {
        ASSERT_TRUE(needsMoreThan(form.get(), smallRoom));
        letPagesScroll(the<QTabWidget>("SSTab1"));
        form->resize(smallRoom);
        settle();
    }

    bool isInSight(const QWidget* control) const {
        return control->visibleRegion().boundingRect() == control->rect();
    }
};

TEST_F(OnASmallScreen, TheMainFormFitsAndItsCommandsAreInSight) {
    becomeSmall();
    EXPECT_EQ(form->size(), smallRoom);
    EXPECT_FALSE(needsMoreThan(form.get(), smallRoom));
    for (const Tab tab : {Konfiguracja, Dane_ogolne, Obciazenia_, Sruby}) {
        show(tab);
        EXPECT_TRUE(isInSight(the("cmdOblicz")));
        EXPECT_TRUE(isInSight(the("cmdKoniec")));
    }
}

TEST_F(OnASmallScreen, TheFieldWithTheFocusIsScrolledIntoSight) {
    becomeSmall();
    show(Obciazenia_);
    EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
    for (int field = 0; field < 4; ++field)
        key(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("Text10_0"));
    EXPECT_TRUE(isInSight(the("Text10_0")));
}

TEST_F(OnASmallScreen, TheTabsKeepTitlesTipsAndOrder) {
    const auto* const tabs = the<QTabWidget>("SSTab1");
    QStringList before;
    for (int tab = 0; tab < tabs->count(); ++tab)
        before += tabs->tabText(tab) + tabs->tabToolTip(tab);
    const int front = tabs->currentIndex();
    becomeSmall();
    QStringList after;
    for (int tab = 0; tab < tabs->count(); ++tab)
        after += tabs->tabText(tab) + tabs->tabToolTip(tab);
    EXPECT_EQ(after, before);
    EXPECT_EQ(tabs->currentIndex(), front);
}

TEST_F(OnASmallScreen, AWholeFormIsScrolledUnderItsMenus) {
    letContentsScroll(form.get());
    form->resize(smallRoom);
    settle();
    EXPECT_EQ(form->size(), smallRoom);
    auto* const area = form->findChild<QScrollArea*>(QStringLiteral("przewijanie"));
    ASSERT_NE(area, nullptr);
    EXPECT_TRUE(area->isAncestorOf(the("cmdOblicz")));
    EXPECT_FALSE(area->isAncestorOf(form->findChild<QMenuBar*>()));
    EXPECT_GE(area->sizeHint().width(), the("SSTab1")->width()) << "all of it, where there is room";
}

TEST_F(OnASmallScreen, AFormThatFitsIsLeftAsItIs) {
    EXPECT_FALSE(needsMoreThan(form.get(), QSize(1600, 1200)));
    EXPECT_EQ(form->findChild<QScrollArea*>(QStringLiteral("przewijanie")), nullptr);
}

} // namespace
