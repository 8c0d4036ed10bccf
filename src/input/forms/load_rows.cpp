#include "input/forms/load_rows.h"

namespace ferna {

LoadRows::LoadRows(QLineEdit* count, const Fields& fields) : count_(count), fields_(fields) {
    for (const auto& row : fields_)
        for (QLineEdit* field : row) {
            QSizePolicy policy = field->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            field->setSizePolicy(policy);
        }
}

QLineEdit* LoadRows::fieldOf(const TypedValue& value) const {
    const auto ofCase = [&](std::size_t column) {
        return fields_.at(static_cast<std::size_t>(value.of)).at(column);
    };
    switch (value.value) {
    case Value::N:
        return ofCase(0);
    case Value::M1:
        return ofCase(1);
    case Value::M2:
        return ofCase(2);
    case Value::Vx:
        return ofCase(3);
    case Value::Vy:
        return ofCase(4);
    default:
        return nullptr;
    }
}

std::array<LoadRow<QString>, MaxCases> LoadRows::texts() const {
    std::array<LoadRow<QString>, MaxCases> texts;
    for (std::size_t r = 0; r < MaxCases; ++r) {
        const auto& row = fields_[r];
        texts[r] = {row[0]->text(), row[1]->text(), row[2]->text(), row[3]->text(), row[4]->text()};
    }
    return texts;
}

void LoadRows::setTexts(const std::array<LoadRow<QString>, MaxCases>& texts) {
    for (int r = 0; r < MaxCases; ++r)
        setRow(r, texts.at(static_cast<std::size_t>(r)));
}

void LoadRows::showRows(int cases) {
    for (int r = 0; r < MaxCases; ++r)
        for (QLineEdit* field : fields_.at(static_cast<std::size_t>(r)))
            field->setVisible(r < cases);
}

void LoadRows::setCount(const QString& text) {
    count_->setText(text);
}

void LoadRows::setRow(int r, const LoadRow<QString>& texts) {
    const auto& row = fields_.at(static_cast<std::size_t>(r));
    row[0]->setText(texts.N);
    row[1]->setText(texts.M1);
    row[2]->setText(texts.M2);
    row[3]->setText(texts.Vx);
    row[4]->setText(texts.Vy);
}

void LoadRows::showRow(int r) {
    for (QLineEdit* field : fields_.at(static_cast<std::size_t>(r)))
        field->setVisible(true);
}

} // namespace ferna
