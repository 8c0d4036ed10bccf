#include "widgets/small_screen.h"

#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ferna {

namespace {

/// An area without a frame in which a widget is as large as it has to be, or as there is room.
QScrollArea* areaFor(QWidget* contents) {
    auto* const area = new QScrollArea;
    area->setObjectName(QStringLiteral("przewijanie"));
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(contents);
    return area;
}

} // namespace

QSize roomOnScreen(const QWidget* form) {
    const int title = form->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, form);
    constexpr int edges = 8;
    return form->screen()->availableSize() - QSize(edges, title + edges);
}

bool needsMoreThan(const QWidget* form, QSize room) {
    const QSize least = form->minimumSizeHint().expandedTo(form->minimumSize());
    return least.width() > room.width() || least.height() > room.height();
}

void letPagesScroll(QTabWidget* tabs) {
    const QSignalBlocker quiet(tabs);
    const int front = tabs->currentIndex();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        const QString title = tabs->tabText(tab);
        const QString tip = tabs->tabToolTip(tab);
        const bool enabled = tabs->isTabEnabled(tab);
        QWidget* const page = tabs->widget(tab);
        tabs->removeTab(tab);
        tabs->insertTab(tab, areaFor(page), title);
        page->show();
        tabs->setTabToolTip(tab, tip);
        tabs->setTabEnabled(tab, enabled);
    }
    tabs->setCurrentIndex(front);
}

void letContentsScroll(QWidget* form) {
    QLayout* const layout = form->layout();
    QWidget* const menus = layout->menuBar();
    layout->setMenuBar(nullptr);
    auto* const contents = new QWidget;
    contents->setLayout(layout); // takes it off the form with all that it holds
    auto* const outer = new QVBoxLayout(form);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(areaFor(contents));
    outer->setMenuBar(menus);
    form->setMinimumSize(0, 0);
}

} // namespace ferna
