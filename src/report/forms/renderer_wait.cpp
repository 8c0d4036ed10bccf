#include "report/forms/renderer_wait.h"

#include "runtime/dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ferna {

RendererWait::RendererWait(QWidget* form) : form_(form) {}

RendererWait::~RendererWait() {
    takeBoxAway();
}

bool RendererWait::goOn(const RendererState& state) {
    if (form_ != nullptr) // the renderer's own dialog may have stood in front of it
        form_->repaint();
    if (state.showsWindow || state.worked < silent) {
        takeBoxAway();
        return true;
    }
    const bool first = box_ == nullptr;
    if (first)
        makeBox();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(state.worked).count();
    words_->setText(
        QStringLiteral("Wyd_drk pracuje od %1 s.\nJeżeli otworzył własne okno (drukarka, "
                       "zapis EMF), dokończ w nim wybór.")
            .arg(seconds));
    if (first) // with its words, whose size decides its place
        box_->show();
    QApplication::processEvents();
    return !givenUp_;
}

void RendererWait::takeBoxAway() {
    if (box_ == nullptr)
        return;
    box_.reset();
    QApplication::restoreOverrideCursor();
}

// Modal, so that no other command begins while one waits; but the focus stays where it is, which
// may be a window of the renderer's own.
void RendererWait::makeBox() {
    box_ = std::make_unique<QDialog>(form_.data());
    box_->setObjectName(QStringLiteral("rendererWait"));
    box_->setWindowTitle(programTitle);
    box_->setWindowModality(Qt::ApplicationModal);
    box_->setAttribute(Qt::WA_ShowWithoutActivating);
    words_ = new QLabel;
    words_->setTextFormat(Qt::PlainText);
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("&Przerwij"), QDialogButtonBox::RejectRole)
        ->setAutoDefault(false); // Enter is meant for the window that the engineer works in
    QObject::connect(buttons, &QDialogButtonBox::rejected, box_.get(), &QDialog::reject);
    QObject::connect(box_.get(), &QDialog::rejected, [this] { givenUp_ = true; });
    auto* const layout = new QVBoxLayout(box_.get());
    layout->addWidget(words_);
    layout->addWidget(buttons);
    QApplication::setOverrideCursor(Qt::ArrowCursor); // over the hourglass of the form
}

} // namespace ferna
