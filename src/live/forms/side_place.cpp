#include "live/forms/side_place.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QScreen>

#include <algorithm>

namespace ferna {

SidePlace::SidePlace(QDialog* form) : form_(form) {
    QLayout* const own = form_->layout();
    QWidget* const menus = own->menuBar();
    own->setMenuBar(nullptr);
    auto* const content = new QWidget;
    content->setLayout(own);
    row_ = new QHBoxLayout(form_);
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(0);
    row_->setMenuBar(menus);
    row_->addWidget(content, 3);
}

void SidePlace::put(QWidget* panel, int width) {
    panel_ = panel;
    widthAlone_ = form_->width();
    row_->addWidget(panel, 2);
    panel->show();
    const int wide = std::max(width, panel->minimumSizeHint().width());
    const QRect screen = form_->screen()->availableGeometry();
    form_->resize(std::min(widthAlone_ + wide, screen.width()), form_->height());
    const int over = form_->frameGeometry().right() - screen.right();
    if (over > 0)
        form_->move(std::max(screen.left(), form_->x() - over), form_->y());
}

int SidePlace::take() {
    const int width = panel_->width();
    row_->removeWidget(panel_);
    panel_->hide();
    panel_->setParent(nullptr);
    panel_ = nullptr;
    row_->activate();
    form_->resize(widthAlone_, form_->height());
    return width;
}

} // namespace ferna
