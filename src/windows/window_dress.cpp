#include "windows/window_dress.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QSpacerItem>
#include <QStyle>

namespace ferna {

namespace {

constexpr int frameButtons = 150; // pixels beside a title: icon, buttons and edges of the frame

int widthForTitle(const QWidget* form) {
    QFont title = form->font();
    title.setBold(true); // as frames may write it
    return QFontMetrics(title).horizontalAdvance(form->windowTitle()) + frameButtons;
}

QString iconFile(QMessageBox::Icon icon) {
    switch (icon) {
    case QMessageBox::Critical:
        return QStringLiteral(":/ikony/stop.svg");
    case QMessageBox::Question:
        return QStringLiteral(":/ikony/pytanie.svg");
    case QMessageBox::Warning:
        return QStringLiteral(":/ikony/uwaga.svg");
    case QMessageBox::Information:
        return QStringLiteral(":/ikony/informacja.svg");
    case QMessageBox::NoIcon:
        break;
    }
    return {};
}

// The icons of the style are bitmaps for a scale of 100 %.
void sharpenIcon(QMessageBox& box) {
    auto* const place = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
    const QString file = iconFile(box.icon());
    if (place == nullptr || file.isEmpty())
        return;
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    place->setPixmap(QIcon(file).pixmap(QSize(size, size), box.devicePixelRatioF()));
}

class WindowDress : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Polish)
            return false;
        if (auto* const box = qobject_cast<QMessageBox*>(watched)) {
            sharpenIcon(*box);
            // Its size is its layout's own.
            auto* const grid = qobject_cast<QGridLayout*>(box->layout());
            if (grid != nullptr)
                grid->addItem(new QSpacerItem(widthForTitle(box), 0), grid->rowCount(), 0, 1,
                              grid->columnCount());
        } else if (auto* const dialog = qobject_cast<QDialog*>(watched)) {
            makeRoomForTitle(dialog);
        }
        return false;
    }
};

} // namespace

// A width that is set takes the place of the one that the layout keeps to: only a form that is
// narrower than its title is given one.
void makeRoomForTitle(QWidget* form) {
    for (QWidget* control : form->findChildren<QWidget*>())
        control->ensurePolished();
    const QLayout* const layout = form->layout();
    const int own = layout ? layout->totalMinimumSize().width() : form->minimumWidth();
    if (own < widthForTitle(form))
        form->setMinimumWidth(widthForTitle(form));
}

void dressWindows(QApplication& application) {
    application.installEventFilter(new WindowDress(&application));
}

} // namespace ferna
