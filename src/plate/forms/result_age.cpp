#include "plate/forms/result_age.h"

#include "widgets/notes.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace ferna {

ResultAge::ResultAge(QWidget* page, QLabel* line, const QComboBox* grade)
    : QObject(page), page_(page), line_(line), grade_(grade),
      note_(new QLabel(QStringLiteral("Wynik nieaktualny: dane zmieniono po obliczeniu."))) {
    note_->setObjectName(line->objectName() + QStringLiteral("_nieaktualny"));
    showAsWarning(note_, true);
    QSizePolicy policy = note_->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the page must not move under the hand
    note_->setSizePolicy(policy);
    auto* const column = static_cast<QBoxLayout*>(page->layout());
    column->insertWidget(column->indexOf(line) + 1, note_);
    note_->hide();
    for (const QLineEdit* field : page->findChildren<QLineEdit*>())
        connect(field, &QLineEdit::textChanged, this, &ResultAge::look);
    for (const QComboBox* list : page->findChildren<QComboBox*>())
        connect(list, &QComboBox::currentIndexChanged, this, &ResultAge::look);
    connect(grade, &QComboBox::currentIndexChanged, this, &ResultAge::look);
}

void ResultAge::computed() {
    ofTheResult_ = inputs();
    look();
}

void ResultAge::withdrawn() {
    ofTheResult_.clear();
    look();
}

void ResultAge::look() {
    const bool old = !ofTheResult_.isEmpty() && inputs() != ofTheResult_;
    line_->setEnabled(!old);
    note_->setVisible(old);
}

QStringList ResultAge::inputs() const {
    QStringList texts{grade_->currentText()};
    for (const QLineEdit* field : page_->findChildren<QLineEdit*>())
        texts += field->text();
    for (const QComboBox* list : page_->findChildren<QComboBox*>())
        texts += list->currentText();
    return texts;
}

} // namespace ferna
