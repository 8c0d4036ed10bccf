#include "widgets/small_screen.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ferna {

namespace {

/// An area without a frame in which a widget is as large as it has to be, or as there is room. It
/// would like to show all of it: the toolkit's own area keeps to a few lines.
class ScrolledContents : public QScrollArea {
public:
    explicit ScrolledContents(QWidget* contents) {
        setObjectName(QStringLiteral("przewijanie"));
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidget(contents);
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget* /*from*/, QWidget* to) { bringIntoSight(to); });
    }

    /// A focus that goes while the area does is no longer its own.
    ~ScrolledContents() override { disconnect(qApp, nullptr, this, nullptr); }
    Q_DISABLE_COPY_MOVE(ScrolledContents)

    QSize sizeHint() const override {
        const QSize bars(verticalScrollBar()->sizeHint().width(),
                         horizontalScrollBar()->sizeHint().height());
        return widget()->sizeHint().expandedTo(widget()->minimumSize()) + bars;
    }

private:
    /// All of a control that gets the focus, where the toolkit shows its cursor alone.
    void bringIntoSight(const QWidget* control) {
        constexpr int around = 4; // pixels
        if (control == nullptr || !widget()->isAncestorOf(control))
            return;
        const QRect place(control->mapTo(widget(), QPoint()), control->size());
        ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + around,
                      place.height() / 2 + around);
    }
};

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
        tabs->insertTab(tab, new ScrolledContents(page), title);
        page->show();
        tabs->setTabToolTip(tab, tip);
        tabs->setTabEnabled(tab, enabled);
    }
    tabs->setCurrentIndex(front);
    tabs->updateGeometry();
    tabs->window()->layout()->activate(); // the least size of the form is smaller now
}

void letContentsScroll(QWidget* form) {
    QLayout* const layout = form->layout();
    QWidget* const menus = layout->menuBar();
    layout->setMenuBar(nullptr);
    auto* const contents = new QWidget;
    contents->setLayout(layout); // takes it off the form with all that it holds
    auto* const outer = new QVBoxLayout(form);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(new ScrolledContents(contents));
    outer->setMenuBar(menus);
    form->setMinimumSize(0, 0);
    outer->activate();
}

void fitToScreen(QWidget* window, QSize wanted) {
    const QSize room = roomOnScreen(window);
    if (needsMoreThan(window, room))
        letContentsScroll(window);
    window->resize(wanted.boundedTo(room));
    // In the middle, its title in sight: the toolkit leaves no room for the frame.
    const QPoint margin((room.width() - window->width()) / 2,
                        (room.height() - window->height()) / 2);
    window->move(window->screen()->availableGeometry().topLeft() + margin);
}

} // namespace ferna
